// ModTesti_prova.cpp - small operations on texts.

#include "core/ModTesti.hpp"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <string>
#include <string_view>
#include <vector>

namespace ordavel {
namespace {

using Parti = std::vector<std::string_view>;

/// Texts of few different letters, so that what is looked for occurs.
rc::Gen<std::string> GeneraTesto()
{
    return rc::gen::container<std::string>(rc::gen::element('a', 'B', 'b', ' ', '-'));
}

std::string Unisci(const Parti& aParti, std::string_view sSeparatore)
{
    std::string sTesto;
    for (std::size_t i = 0; i < aParti.size(); ++i) {
        sTesto.append(i == 0 ? "" : sSeparatore).append(aParti[i]);
    }
    return sTesto;
}

TEST(ModTesti, UnTestoVuotoNonHaParti)
{
    EXPECT_EQ(Dividi("", "-"), Parti{});
}

TEST(ModTesti, SenzaSeparatoriLaParteEUna)
{
    EXPECT_EQ(Dividi("abc", "-"), Parti{"abc"});
    EXPECT_EQ(Dividi(" ", "-"), Parti{" "});
}

TEST(ModTesti, OgniSeparatoreDaUnaParteInPiuAncheVuota)
{
    EXPECT_EQ(Dividi("1-2-3", "-"), (Parti{"1", "2", "3"}));
    EXPECT_EQ(Dividi("3-", "-"), (Parti{"3", ""}));
    EXPECT_EQ(Dividi("-", "-"), (Parti{"", ""}));
    EXPECT_EQ(Dividi("--", "-"), (Parti{"", "", ""}));
}

TEST(ModTesti, LaFineRigaSoloInCoppiaDivide)
{
    EXPECT_EQ(Dividi("a\r\nb\nc\rd", kCrLf), (Parti{"a", "b\nc\rd"}));
    EXPECT_EQ(Dividi("\r\r\n\n", kCrLf), (Parti{"\r", "\n"}));
}

TEST(ModTesti, SiTolgonoSoloIBlank)
{
    EXPECT_EQ(TogliBlank("  a b  "), "a b");
    EXPECT_EQ(TogliBlank("\t a \r\n"), "\t a \r\n");
    EXPECT_EQ(TogliBlank("   "), "");
    EXPECT_EQ(TogliBlank(""), "");
}

TEST(ModTesti, SostituisciNonRileggeIlNuovo)
{
    EXPECT_EQ(Sostituisci("1.234.567", ".", ""), "1234567");
    EXPECT_EQ(Sostituisci("aaa", "aa", "a"), "aa");
    EXPECT_EQ(Sostituisci("a", "a", "aa"), "aa");
    EXPECT_EQ(Sostituisci("", "a", "b"), "");
}

TEST(ModTesti, IlCasoNonContaNelleLettere)
{
    EXPECT_TRUE(UgualiSenzaCaso("SuperEnalotto", "sUPERenalotto"));
    EXPECT_TRUE(UgualiSenzaCaso("AMZ", "amz"));
    EXPECT_TRUE(UgualiSenzaCaso("", ""));
    EXPECT_FALSE(UgualiSenzaCaso("Lotto", "Lotto "));
    EXPECT_FALSE(UgualiSenzaCaso("[", "{")); // they differ by the bit that tells the case of a letter
    EXPECT_FALSE(UgualiSenzaCaso("@", "`"));
}

TEST(ModTesti, LInizioPuoEssereTuttoOVuoto)
{
    EXPECT_TRUE(IniziaSenzaCaso("Consec : 1", "CONSEC"));
    EXPECT_TRUE(IniziaSenzaCaso("abc", "ABC"));
    EXPECT_TRUE(IniziaSenzaCaso("abc", ""));
    EXPECT_FALSE(IniziaSenzaCaso("ab", "abc"));
    EXPECT_FALSE(IniziaSenzaCaso("xabc", "abc"));
}

TEST(ModTesti, SiCercaIlPrimoPosto)
{
    EXPECT_EQ(CercaSenzaCaso("una Riga, una riga", "RIGA"), 4U);
    EXPECT_EQ(CercaSenzaCaso("aab", "AB"), 1U);
    EXPECT_EQ(CercaSenzaCaso("abc", "abcd"), std::string_view::npos);
    EXPECT_EQ(CercaSenzaCaso("", "a"), std::string_view::npos);
    EXPECT_EQ(CercaSenzaCaso("abc", ""), 0U);
    EXPECT_EQ(CercaSenzaCaso("", ""), 0U);
}

RC_GTEST_PROP(ModTesti, LePartiUniteRidannoIlTesto, ())
{
    const auto sTesto = *GeneraTesto();
    const std::string sSeparatore = *rc::gen::element<std::string>("-", "bB", " ");
    const Parti aParti = Dividi(sTesto, sSeparatore);
    RC_ASSERT(Unisci(aParti, sSeparatore) == sTesto);
    for (const std::string_view sParte : aParti) {
        RC_ASSERT(sParte.find(sSeparatore) == std::string_view::npos);
    }
}

RC_GTEST_PROP(ModTesti, SostituireEDividereEUnireInAltroModo, ())
{
    const auto sTesto = *GeneraTesto();
    RC_ASSERT(Sostituisci(sTesto, "bB", "xyz") == Unisci(Dividi(sTesto, "bB"), "xyz"));
}

RC_GTEST_PROP(ModTesti, SenzaCasoECercareInMinuscolo, ())
{
    const auto minuscolo = [](std::string s) {
        for (char& c : s) {
            c = c == 'B' ? 'b' : c;
        }
        return s;
    };
    const auto sTesto = *GeneraTesto();
    const auto sCercato = *rc::gen::resize(3, GeneraTesto());
    RC_ASSERT(CercaSenzaCaso(sTesto, sCercato) == minuscolo(sTesto).find(minuscolo(sCercato)));
    RC_ASSERT(IniziaSenzaCaso(sTesto, sCercato) == minuscolo(sTesto).starts_with(minuscolo(sCercato)));
    RC_ASSERT(UgualiSenzaCaso(sTesto, sCercato) == (minuscolo(sTesto) == minuscolo(sCercato)));
}

RC_GTEST_PROP(ModTesti, TogliereIBlankToccaSoloLeEstremita, ())
{
    const auto sTesto = *GeneraTesto();
    const std::string sTolto(TogliBlank(sTesto));
    RC_ASSERT(!sTolto.starts_with(' '));
    RC_ASSERT(!sTolto.ends_with(' '));
    const std::size_t nInizio = sTesto.find(sTolto);
    RC_ASSERT(nInizio != std::string::npos);
    RC_ASSERT(sTesto.find_first_not_of(' ') == (sTolto.empty() ? std::string::npos : nInizio));
    RC_ASSERT(sTesto.find_last_not_of(' ') + 1 == (sTolto.empty() ? 0 : nInizio + sTolto.size()));
}

TEST(ModTesti, DietroDaCioCheSegueLaPrimaOccorrenza)
{
    EXPECT_EQ(Dietro("Resto a : 4:5", ":"), " 4:5");
    EXPECT_EQ(Dietro("a:", ":"), "");
    EXPECT_EQ(Dietro("abc", ":"), "");
    EXPECT_EQ(Dietro("", ":"), "");
}

} // namespace
} // namespace ordavel
