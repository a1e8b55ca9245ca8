// ModPagina1252_prova.cpp - texts to and from code page 1252.

#include "core/ModPagina1252.hpp"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <string>
#include <string_view>

namespace ordavel {
namespace {

using std::string_literals::operator""s;

/// All bytes from nDa to nA.
std::string Byte(int nDa, int nA)
{
    std::string sByte;
    for (int n = nDa; n <= nA; ++n) {
        sByte += static_cast<char>(n);
    }
    return sByte;
}

/// A number as UTF-8 in a given count of bytes, due or not.
std::string Utf8(char32_t nCodice, int nByte)
{
    if (nByte == 1) {
        return std::string(1, static_cast<char>(nCodice));
    }
    std::string sTesto;
    for (int i = 1; i < nByte; ++i) {
        sTesto.insert(sTesto.begin(), static_cast<char>(0x80U | (nCodice & 0x3FU)));
        nCodice >>= 6U;
    }
    return static_cast<char>((0xF00U >> static_cast<unsigned>(nByte)) | nCodice) + sTesto;
}

/// A number as UTF-8.
std::string Utf8(char32_t nCodice)
{
    return Utf8(nCodice, 1 + static_cast<int>(nCodice >= 0x80) + static_cast<int>(nCodice >= 0x800) +
                             static_cast<int>(nCodice >= 0x10000));
}

TEST(ModPagina1252, ITestiSempliciRestanoUguali)
{
    const std::string sSemplici = Byte(0, 0x7F);
    EXPECT_EQ(DaPagina1252(sSemplici), sSemplici);
    EXPECT_EQ(InPagina1252(sSemplici), sSemplici);
    EXPECT_EQ(DaPagina1252(""), "");
    EXPECT_EQ(InPagina1252(""), "");
}

TEST(ModPagina1252, ICaratteriTipograficiStannoFra0x80E0x9F)
{
    // The five open places are bare control characters.
    const std::string sTesto = "€\xC2\x81‚ƒ„…†‡ˆ‰Š‹Œ\xC2\x8DŽ\xC2\x8F"
                               "\xC2\x90‘’“”•–—˜™š›œ\xC2\x9DžŸ";
    EXPECT_EQ(DaPagina1252(Byte(0x80, 0x9F)), sTesto);
    EXPECT_EQ(InPagina1252(sTesto), Byte(0x80, 0x9F));
}

TEST(ModPagina1252, ICaratteriAccentatiHannoIlLoroNumero)
{
    EXPECT_EQ(InPagina1252("perché no? àèìòù ÿ ¡"), "perch\xE9 no? \xE0\xE8\xEC\xF2\xF9 \xFF \xA1");
    for (char32_t n = 0xA0; n <= 0xFF; ++n) {
        const std::string sByte(1, static_cast<char>(n));
        EXPECT_EQ(DaPagina1252(sByte), Utf8(n)) << static_cast<unsigned>(n);
        EXPECT_EQ(InPagina1252(Utf8(n)), sByte) << static_cast<unsigned>(n);
    }
}

TEST(ModPagina1252, CioCheLaPaginaNonHaDiventaUnPuntoInterrogativo)
{
    EXPECT_EQ(InPagina1252("a Ω b"), "a ? b");
    EXPECT_EQ(InPagina1252("日本"), "??");
    EXPECT_EQ(InPagina1252("\xF0\x9F\x8E\xB1!"), "?!");
    EXPECT_EQ(InPagina1252("\xC2\x80"), "?"); // U+0080: the byte 0x80 is the euro sign
}

TEST(ModPagina1252, DiTuttiICaratteriLaPaginaNeTiene256)
{
    int nTenuti = 0;
    int nLunghi = 0;
    for (char32_t n = 0; n <= 0x10FFFF; ++n) {
        const std::string sTesto = Utf8(n);
        const std::string sByte = InPagina1252(sTesto);
        nTenuti += static_cast<int>(DaPagina1252(sByte) == sTesto);
        nLunghi += static_cast<int>(sByte.size() != 1);
        n = n == 0xD7FF ? 0xDFFF : n; // surrogates are no characters
    }
    EXPECT_EQ(nTenuti, 256);
    EXPECT_EQ(nLunghi, 0);
}

TEST(ModPagina1252, OgniByteSenzaCarattereDiventaUnPuntoInterrogativo)
{
    EXPECT_EQ(InPagina1252("a\x80"s + "b"), "a?b");           // stray
    EXPECT_EQ(InPagina1252("\xE2\x82"), "??");                // cut by the end
    EXPECT_EQ(InPagina1252("\xE2\x82x"), "??x");              // cut by another character
    EXPECT_EQ(InPagina1252("\xE2\xE2\x82\xAC"), "?\x80");     // the next one is whole
    EXPECT_EQ(InPagina1252("\xC0\x80"), "??");                // overlong
    EXPECT_EQ(InPagina1252("\xED\xA0\x80"), "???");           // half of a surrogate pair
    EXPECT_EQ(InPagina1252("\xF4\x90\x80\x80"), "????");      // beyond U+10FFFF
    EXPECT_EQ(InPagina1252("\xF8\x88\x80\x80\x80"), "?????"); // a form that there is no more
    EXPECT_EQ(InPagina1252("\xFE\xFF"), "??");
}

TEST(ModPagina1252, LeFormeTroppoLungheNonNascondonoCaratteri)
{
    for (const char32_t n : {U'\0', U'[', U'\x7F'}) {
        EXPECT_EQ(InPagina1252(Utf8(n, 2)), "??");
        EXPECT_EQ(InPagina1252(Utf8(n, 3)), "???");
        EXPECT_EQ(InPagina1252(Utf8(n, 4)), "????");
    }
    EXPECT_EQ(InPagina1252(Utf8(U'é', 3)), "???");
    EXPECT_EQ(InPagina1252(Utf8(U'€', 4)), "????");
}

RC_GTEST_PROP(ModPagina1252, QualunqueByteTornaComEra, (const std::string& sByte))
{
    RC_ASSERT(InPagina1252(DaPagina1252(sByte)) == sByte);
}

RC_GTEST_PROP(ModPagina1252, QualunqueTestoDaUnByteOMenoPerByte, (const std::string& sTesto))
{
    const std::string sByte = InPagina1252(sTesto);
    RC_ASSERT(sByte.size() <= sTesto.size());
    RC_ASSERT(sByte.empty() == sTesto.empty());
    RC_ASSERT(InPagina1252(DaPagina1252(sByte)) == sByte);
}

RC_GTEST_PROP(ModPagina1252, UnGuastoNonToccaITestiAttorno, (const std::string& sGuasto))
{
    // A letter behind the fault is never eaten by it.
    RC_ASSERT(InPagina1252("a" + sGuasto + "[R]") == "a" + InPagina1252(sGuasto) + "[R]");
}

} // namespace
} // namespace ordavel
