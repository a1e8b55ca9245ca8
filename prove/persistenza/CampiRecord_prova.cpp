// CampiRecord_prova.cpp - the packed layouts.

#include "persistenza/CampiRecord.hpp"

#include "comune/Fallimenti.hpp"
#include "persistenza/SistemaCasuale.hpp"

#include <rapidcheck/gtest.h>

#include <cmath>
#include <limits>

namespace ordavel {
namespace {

using prove::ComeTesto;
using prove::NumeroErrore;

template <typename T> std::string Codifica(const T& valore)
{
    std::vector<std::byte> aByte;
    ScrittoreCampi campo(aByte);
    if constexpr (requires { Campi(campo, valore); }) {
        Campi(campo, valore);
    } else {
        campo(valore);
    }
    return ComeTesto(aByte);
}

template <typename T> T Decodifica(std::string_view sByte)
{
    T valore{};
    LettoreCampi campo(std::as_bytes(std::span(sByte)));
    if constexpr (requires { Campi(campo, valore); }) {
        Campi(campo, valore);
    } else {
        campo(valore);
    }
    return valore;
}

using std::string_literals::operator""s;

TEST(CampiRecord, GliInteriSonoConIlByteBassoDavanti)
{
    EXPECT_EQ(Codifica(std::int16_t{0x1234}), "\x34\x12"s);
    EXPECT_EQ(Codifica(std::int16_t{-1}), "\xFF\xFF"s);
    EXPECT_EQ(Codifica(std::int32_t{0x12345678}), "\x78\x56\x34\x12"s);
    EXPECT_EQ(Codifica(std::int32_t{-2}), "\xFE\xFF\xFF\xFF"s);
    EXPECT_EQ(Codifica(std::uint8_t{90}), "\x5A"s);
}

TEST(CampiRecord, GliInteriSiRileggonoAgliEstremi)
{
    EXPECT_EQ(Decodifica<std::int16_t>("\x00\x80"s), std::numeric_limits<std::int16_t>::min());
    EXPECT_EQ(Decodifica<std::int32_t>("\x00\x00\x00\x80"s), std::numeric_limits<std::int32_t>::min());
    EXPECT_EQ(Decodifica<std::int32_t>("\xFF\xFF\xFF\x7F"s), std::numeric_limits<std::int32_t>::max());
    EXPECT_EQ(Decodifica<std::uint8_t>("\xFF"s), 255);
}

TEST(CampiRecord, IContatoriSonoNumeriInDoppiaPrecisione)
{
    EXPECT_EQ(Codifica(1.0), "\x00\x00\x00\x00\x00\x00\xF0\x3F"s);
    EXPECT_EQ(Decodifica<double>("\x00\x00\x00\x00\x00\x00\x34\x40"s), 20.0);
}

TEST(CampiRecord, UnNonNumeroSiRiscriveBitPerBit)
{
    const std::string sSegnale = "\x01\x00\x00\x00\x00\x00\xF0\x7F"s;
    const auto nValore = Decodifica<double>(sSegnale);
    EXPECT_TRUE(std::isnan(nValore));
    EXPECT_EQ(Codifica(nValore), sSegnale);
}

TEST(CampiRecord, UnTipoSconosciutoSiRiscriveComEra)
{
    const auto tipo = Decodifica<TipoCondizione>("\xE7\x03"s);
    EXPECT_EQ(static_cast<int>(tipo), 999);
    EXPECT_EQ(Codifica(tipo), "\xE7\x03"s);
}

TEST(CampiRecord, UnImmagineCheFinisceNelCampoFallisceCon9)
{
    EXPECT_EQ(NumeroErrore([] { Decodifica<std::int16_t>("\x01"s); }), 9);
    EXPECT_EQ(NumeroErrore([] { Decodifica<double>("1234567"s); }), 9);
    EXPECT_EQ(NumeroErrore([] { Decodifica<std::uint8_t>(""s); }), 9);
    EXPECT_EQ(NumeroErrore([] { Decodifica<RecordCondizione>(std::string(333, '\0')); }), 9);
    EXPECT_EQ(NumeroErrore([] { Decodifica<RecordCondizione>(std::string(334, '\0')); }), std::nullopt);
}

TEST(CampiRecord, UnaVoceDiRecuperoOccupaSeiByte)
{
    EXPECT_EQ(Codifica(VoceRecupero{.Attiva = kVero, .MinPunti = 2, .MaxPunti = 0x0103}),
              "\xFF\xFF\x02\x00\x03\x01"s);
}

/// Where a field of a condition stands: set one and see which bytes of the record are no longer 0.
struct PostoCampo {
    const char* sNome;
    void (*imposta)(RecordCondizione&);
    std::size_t nPrimo;
    std::size_t nUltimo;
};

// clang-format off
const PostoCampo kPosti[] = {
    // field                                                                            first last
    {"Tipo",        [](auto& r) { r.Tipo = static_cast<TipoCondizione>(-1); },             0,   1},
    {"Riservato",   [](auto& r) { r.Riservato = -1; },                                     2,   3},
    {"Numeri 0",    [](auto& r) { r.Numeri(0) = -1; },                                     4,   5},
    {"Numeri 1",    [](auto& r) { r.Numeri(1) = -1; },                                     6,   7},
    {"Numeri 90",   [](auto& r) { r.Numeri(90) = -1; },                                  184, 185},
    {"PuntiOk 0",   [](auto& r) { r.PuntiOk(0) = -1; },                                  186, 187},
    {"PuntiOk 10",  [](auto& r) { r.PuntiOk(10) = -1; },                                 206, 207},
    {"PuntiRec 0",  [](auto& r) { r.PuntiRec(0) = -1; },                                 208, 209},
    {"PuntiOk2 0",  [](auto& r) { r.PuntiOk2(0) = -1; },                                 230, 231},
    {"PuntiRec2 0", [](auto& r) { r.PuntiRec2(0) = -1; },                                252, 253},
    {"Parametro",   [](auto& r) { r.Parametro = -1; },                                   274, 275},
    {"OkMin",       [](auto& r) { r.OkMin = -1; },                                       276, 279},
    {"OkMax",       [](auto& r) { r.OkMax = -1; },                                       280, 283},
    {"RecMin",      [](auto& r) { r.RecMin = -1; },                                      284, 287},
    {"RecMax",      [](auto& r) { r.RecMax = -1; },                                      288, 291},
    {"IdRecupero",  [](auto& r) { r.IdRecupero = -1; },                                  292, 293},
    {"Passo",       [](auto& r) { r.Passo = -1; },                                       294, 295},
    {"Valore",      [](auto& r) { r.Valore = -1; },                                      296, 299},
    {"Valore2",     [](auto& r) { r.Valore2 = -1; },                                     300, 303},
    {"ContaKo",     [](auto& r) { r.ContaKo = std::bit_cast<double>(~std::uint64_t{}); }, 304, 311},
    {"ContaOk",     [](auto& r) { r.ContaOk = std::bit_cast<double>(~std::uint64_t{}); }, 312, 319},
    {"ContaRec",    [](auto& r) { r.ContaRec = std::bit_cast<double>(~std::uint64_t{}); }, 320, 327},
    {"Esito",       [](auto& r) { r.Esito = kVero; },                                    328, 329},
    {"EsitoRec",    [](auto& r) { r.EsitoRec = kVero; },                                 330, 331},
    {"EsitoLink",   [](auto& r) { r.EsitoLink = kVero; },                                332, 333},
};
// clang-format on

TEST(CampiRecord, OgniCampoDiUnaCondizioneStaAlSuoPosto)
{
    for (const PostoCampo& posto : kPosti) {
        RecordCondizione condizione;
        posto.imposta(condizione);
        std::string sAtteso(kByteRecordCondizione, '\0');
        const std::size_t nByte = posto.nUltimo - posto.nPrimo + 1;
        sAtteso.replace(posto.nPrimo, nByte, nByte, '\xFF');
        EXPECT_EQ(Codifica(condizione), sAtteso) << posto.sNome;
    }
}

RC_GTEST_PROP(CampiRecord, UnaCondizioneSiRileggeUguale, ())
{
    RecordCondizione condizione;
    prove::CampiCasuali campo;
    Campi(campo, condizione);
    const std::string sByte = Codifica(condizione);
    RC_ASSERT(std::ssize(sByte) == kByteRecordCondizione);
    RC_ASSERT(Decodifica<RecordCondizione>(sByte) == condizione);
}

RC_GTEST_PROP(CampiRecord, QualunqueByteSiRiscrivonoUguali, ())
{
    const auto aByte = *rc::gen::container<std::string>(kByteRecordCondizione, rc::gen::arbitrary<char>());
    RC_ASSERT(Codifica(Decodifica<RecordCondizione>(aByte)) == aByte);
}

} // namespace
} // namespace ordavel
