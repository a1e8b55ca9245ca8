// ModNumeri_prova.cpp - numbers from text and to text, roundings, counters.

#include "core/ModNumeri.hpp"

#include "comune/Fallimenti.hpp"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>
#include <locale>
#include <string>

namespace ordavel {
namespace {

using prove::NumeroErrore;

constexpr double kInfinito = std::numeric_limits<double>::infinity();

/// Italian marks, whatever languages the machine has.
class MarcheItaliane : public std::numpunct<char> {
protected:
    [[nodiscard]] char do_decimal_point() const override { return ','; }
    [[nodiscard]] char do_thousands_sep() const override { return '.'; }
    [[nodiscard]] std::string do_grouping() const override { return "\3"; }
};

/// Sets the global locale for its life.
class LocaleProva {
public:
    explicit LocaleProva(const std::locale& locale) : m_Prima(std::locale::global(locale)) {}
    LocaleProva(const LocaleProva&) = delete;
    LocaleProva& operator=(const LocaleProva&) = delete;
    ~LocaleProva() { std::locale::global(m_Prima); }

private:
    std::locale m_Prima;
};

// --- from text

TEST(ModNumeri, SiLeggeIlPrefissoNumerico)
{
    EXPECT_EQ(LeggiNumero("12"), 12.0);
    EXPECT_EQ(LeggiNumero("3)"), 3.0);
    EXPECT_EQ(LeggiNumero("3-5"), 3.0);
    EXPECT_EQ(LeggiNumero("1 2"), 1.0);
    EXPECT_EQ(LeggiNumero("007"), 7.0);
    EXPECT_EQ(LeggiNumero("1.5.7"), 1.5);
    EXPECT_EQ(LeggiNumero("1,5"), 1.0);
    EXPECT_EQ(LeggiNumero("0x10"), 0.0);
}

TEST(ModNumeri, IBlankDavantiSiSaltano)
{
    EXPECT_EQ(LeggiNumero("   42"), 42.0);
    EXPECT_EQ(LeggiNumero("\t42"), 0.0);
    EXPECT_EQ(LeggiNumero("\r\n42"), 0.0);
}

TEST(ModNumeri, IlSegnoEUnoSolo)
{
    EXPECT_EQ(LeggiNumero("-5"), -5.0);
    EXPECT_EQ(LeggiNumero("+5"), 5.0);
    EXPECT_EQ(LeggiNumero(" -.5"), -0.5);
    EXPECT_EQ(LeggiNumero("--5"), 0.0);
    EXPECT_EQ(LeggiNumero("+-5"), 0.0);
    EXPECT_EQ(LeggiNumero("- 5"), 0.0);
}

TEST(ModNumeri, IlPuntoVuoleUnaCifraDaUnaParte)
{
    EXPECT_EQ(LeggiNumero("5."), 5.0);
    EXPECT_EQ(LeggiNumero(".5"), 0.5);
    EXPECT_EQ(LeggiNumero("."), 0.0);
    EXPECT_EQ(LeggiNumero("-."), 0.0);
    EXPECT_EQ(LeggiNumero(".e5"), 0.0);
}

TEST(ModNumeri, LEsponenteVuoleLeSueCifre)
{
    EXPECT_EQ(LeggiNumero("1e3"), 1000.0);
    EXPECT_EQ(LeggiNumero("1E+3"), 1000.0);
    EXPECT_EQ(LeggiNumero("15e-1"), 1.5);
    EXPECT_EQ(LeggiNumero("5.e1"), 50.0);
    EXPECT_EQ(LeggiNumero("2e"), 2.0);
    EXPECT_EQ(LeggiNumero("2e+"), 2.0);
    EXPECT_EQ(LeggiNumero("2ex"), 2.0);
    EXPECT_EQ(LeggiNumero("e3"), 0.0);
}

TEST(ModNumeri, SenzaNumeroSiLeggeZero)
{
    for (const std::string_view sTesto : {"", " ", "-", "+", "Pari", "inf", "nan", "infinity", ")3"}) {
        EXPECT_EQ(LeggiNumero(sTesto), 0.0) << sTesto;
    }
}

TEST(ModNumeri, UnNumeroTroppoGrandeEInfinito)
{
    EXPECT_EQ(LeggiNumero("1e999"), kInfinito);
    EXPECT_EQ(LeggiNumero("-1e999"), -kInfinito);
    EXPECT_EQ(LeggiNumero("1e99999999999999999999"), kInfinito);
    EXPECT_EQ(LeggiNumero(std::string(400, '9')), kInfinito);
    EXPECT_EQ(LeggiNumero("1" + std::string(400, '0') + "e-50"), kInfinito);
    EXPECT_EQ(LeggiNumero("1" + std::string(400, '0') + ".5e+1"), kInfinito);
}

TEST(ModNumeri, UnNumeroTroppoPiccoloEZero)
{
    EXPECT_EQ(LeggiNumero("1e-999"), 0.0);
    EXPECT_EQ(LeggiNumero("1e-99999999999999999999"), 0.0);
    EXPECT_EQ(LeggiNumero("0.001e-9223372036854775807"), 0.0);
    EXPECT_EQ(LeggiNumero("0." + std::string(400, '0') + "1"), 0.0);
    EXPECT_EQ(LeggiNumero("0." + std::string(400, '0') + "1e50"), 0.0);
    EXPECT_EQ(LeggiNumero("0e999"), 0.0);
}

TEST(ModNumeri, UnaMantissaLungaSiCompensaConLEsponente)
{
    EXPECT_EQ(LeggiNumero("1" + std::string(400, '0') + "e-400"), 1.0);
    EXPECT_EQ(LeggiNumero("0." + std::string(399, '0') + "1e400"), 1.0);
}

TEST(ModNumeri, LaLinguaDelProgrammaNonConta)
{
    const LocaleProva lingua(std::locale(std::locale::classic(), new MarcheItaliane));
    EXPECT_EQ(LeggiNumero("1.5"), 1.5);
    EXPECT_EQ(LeggiNumero("1,5"), 1.0);
    EXPECT_EQ(FormattaNumero(1234567.0), "1.234.567");
    EXPECT_EQ(Formatta00(1234), "1234");
}

RC_GTEST_PROP(ModNumeri, UnInteroScrittoSiRilegge, (std::int32_t nValore))
{
    const std::string sTesto = *rc::gen::element<std::string>("", "  ") + std::to_string(nValore) +
                               *rc::gen::element<std::string>("", ")", " x", "-1", "e", ".");
    RC_ASSERT(LeggiIntero<std::int32_t>(sTesto) == nValore);
}

RC_GTEST_PROP(ModNumeri, QuelCheSegueIlNumeroNonConta, (const std::string& sCoda))
{
    const auto nValore = *rc::gen::inRange(0, 100000);
    const std::string sTesto = std::to_string(nValore) + ";" + sCoda;
    RC_ASSERT(LeggiNumero(sTesto) == static_cast<double>(nValore));
}

// --- roundings

TEST(ModNumeri, ArrotondaPariPortaIMezziAlPari)
{
    EXPECT_EQ(ArrotondaPari(0.5), 0.0);
    EXPECT_EQ(ArrotondaPari(1.5), 2.0);
    EXPECT_EQ(ArrotondaPari(2.5), 2.0);
    EXPECT_EQ(ArrotondaPari(-0.5), 0.0);
    EXPECT_EQ(ArrotondaPari(-1.5), -2.0);
    EXPECT_EQ(ArrotondaPari(-2.5), -2.0);
    EXPECT_EQ(ArrotondaPari(2.4999), 2.0);
    EXPECT_EQ(ArrotondaPari(2.5001), 3.0);
}

TEST(ModNumeri, PavimentoScendeSempre)
{
    EXPECT_EQ(Pavimento(2.999), 2.0);
    EXPECT_EQ(Pavimento(2.0), 2.0);
    EXPECT_EQ(Pavimento(-0.1), -1.0);
    EXPECT_EQ(Pavimento(-2.0), -2.0);
}

RC_GTEST_PROP(ModNumeri, GliArrotondamentiStannoNelLoroMezzo, (std::int32_t nSedicesimi))
{
    const double nValore = nSedicesimi / 16.0;
    RC_ASSERT(Pavimento(nValore) <= nValore);
    RC_ASSERT(nValore < Pavimento(nValore) + 1);
    const double nScarto = std::fabs(ArrotondaPari(nValore) - nValore);
    RC_ASSERT(nScarto <= 0.5);
    RC_ASSERT(nScarto < 0.5 || std::fmod(ArrotondaPari(nValore), 2.0) == 0.0);
}

// --- whole numbers

TEST(ModNumeri, ComeInteroArrotondaAlPari)
{
    EXPECT_EQ(ComeIntero<std::int16_t>(2.5), 2);
    EXPECT_EQ(ComeIntero<std::int16_t>(3.5), 4);
    EXPECT_EQ(ComeIntero<std::int32_t>(-0.5), 0);
}

TEST(ModNumeri, ComeInteroArrivaAgliEstremi)
{
    EXPECT_EQ(ComeIntero<std::int16_t>(32767.0), 32767);
    EXPECT_EQ(ComeIntero<std::int16_t>(32767.4), 32767);
    EXPECT_EQ(ComeIntero<std::int16_t>(-32768.5), -32768);
    EXPECT_EQ(ComeIntero<std::int32_t>(2147483647.0), 2147483647);
    EXPECT_EQ(ComeIntero<std::int32_t>(-2147483648.0), std::numeric_limits<std::int32_t>::min());
    EXPECT_EQ(ComeIntero<std::uint8_t>(255.0), 255);
}

TEST(ModNumeri, ComeInteroOltreGliEstremiFallisce)
{
    EXPECT_EQ(NumeroErrore([] { (void)ComeIntero<std::int16_t>(32767.5); }), 6);
    EXPECT_EQ(NumeroErrore([] { (void)ComeIntero<std::int16_t>(-32769.0); }), 6);
    EXPECT_EQ(NumeroErrore([] { (void)ComeIntero<std::int32_t>(2147483648.0); }), 6);
    EXPECT_EQ(NumeroErrore([] { (void)ComeIntero<std::uint8_t>(-1.0); }), 6);
    EXPECT_EQ(NumeroErrore([] { (void)ComeIntero<std::int32_t>(kInfinito); }), 6);
    EXPECT_EQ(NumeroErrore([] { (void)ComeIntero<std::int32_t>(std::nan("")); }), 6);
}

TEST(ModNumeri, LeggiInteroArrotondaEFallisceComeIlNumeroLetto)
{
    EXPECT_EQ(LeggiIntero<std::int16_t>("2.5"), 2);
    EXPECT_EQ(LeggiIntero<std::int16_t>(" 7)"), 7);
    EXPECT_EQ(LeggiIntero<std::int16_t>(""), 0);
    EXPECT_EQ(NumeroErrore([] { (void)LeggiIntero<std::int16_t>("32768"); }), 6);
    EXPECT_EQ(NumeroErrore([] { (void)LeggiIntero<std::int32_t>("1e999"); }), 6);
}

// --- counters

TEST(ModNumeri, AumentaFinoAllEstremoENonOltre)
{
    std::int16_t nCorto = 32766;
    Aumenta(nCorto, 1);
    EXPECT_EQ(nCorto, 32767);
    EXPECT_EQ(NumeroErrore([&] { Aumenta(nCorto, 1); }), 6);
    EXPECT_EQ(nCorto, 32767);

    std::int32_t nLungo = std::numeric_limits<std::int32_t>::max();
    EXPECT_EQ(NumeroErrore([&] { Aumenta(nLungo, 1); }), 6);
    EXPECT_EQ(nLungo, std::numeric_limits<std::int32_t>::max());
}

TEST(ModNumeri, AumentaDiUnNegativoScendeFinoAllEstremo)
{
    std::int32_t nConto = std::numeric_limits<std::int32_t>::min() + 1;
    Aumenta(nConto, -1);
    EXPECT_EQ(nConto, std::numeric_limits<std::int32_t>::min());
    EXPECT_EQ(NumeroErrore([&] { Aumenta(nConto, -1); }), 6);
    EXPECT_EQ(nConto, std::numeric_limits<std::int32_t>::min());
}

RC_GTEST_PROP(ModNumeri, AumentaSommaOLasciaComEra, (std::int16_t nConto, std::int16_t nQuanto))
{
    const int nSomma = nConto + nQuanto;
    const bool bEntra = nSomma >= -32768 && nSomma <= 32767;
    std::int16_t nNuovo = nConto;
    RC_ASSERT(NumeroErrore([&] { Aumenta(nNuovo, nQuanto); }).has_value() == !bEntra);
    RC_ASSERT(nNuovo == (bEntra ? nSomma : nConto));
}

// --- to text

TEST(ModNumeri, FormattaNumeroDiZeroEUnoZero)
{
    EXPECT_EQ(FormattaNumero(0), "0");
    EXPECT_EQ(FormattaNumero(-0.0), "0");
}

TEST(ModNumeri, FormattaNumeroSeparaLeMigliaia)
{
    EXPECT_EQ(FormattaNumero(7), "7");
    EXPECT_EQ(FormattaNumero(999), "999");
    EXPECT_EQ(FormattaNumero(1000), "1.000");
    EXPECT_EQ(FormattaNumero(43949268), "43.949.268");
    EXPECT_EQ(FormattaNumero(-1234), "-1.234");
    EXPECT_EQ(FormattaNumero(-999), "-999");
    EXPECT_EQ(FormattaNumero(5720645481903.0), "5.720.645.481.903"); // columns of 10 from 90
}

TEST(ModNumeri, FormattaNumeroNonMostraFrazioni)
{
    EXPECT_EQ(FormattaNumero(1234.4), "1.234");
    EXPECT_EQ(FormattaNumero(999.6), "1.000");
    EXPECT_EQ(FormattaNumero(0.4), "");
    EXPECT_EQ(FormattaNumero(-0.4), "");
}

TEST(ModNumeri, FormattaNumeroReggeOgniDouble)
{
    EXPECT_EQ(FormattaNumero(1e300).size(), 301U + 100U);
    EXPECT_EQ(FormattaNumero(kInfinito), "inf");
    EXPECT_EQ(FormattaNumero(-kInfinito), "-inf");
}

RC_GTEST_PROP(ModNumeri, SenzaPuntiIlNumeroFormattatoSiRilegge, (std::int64_t nGrande))
{
    const std::int64_t nValore = nGrande % (std::int64_t{1} << 53);
    std::string sTesto = FormattaNumero(static_cast<double>(nValore));
    for (std::size_t i = sTesto.size(); i > 4; i -= 4) {
        RC_ASSERT(sTesto[i - 4] == '.');
    }
    sTesto.erase(std::remove(sTesto.begin(), sTesto.end(), '.'), sTesto.end());
    RC_ASSERT(sTesto == std::to_string(nValore));
}

TEST(ModNumeri, Formatta00HaAlmenoDueCifre)
{
    EXPECT_EQ(Formatta00(0), "00");
    EXPECT_EQ(Formatta00(7), "07");
    EXPECT_EQ(Formatta00(10), "10");
    EXPECT_EQ(Formatta00(123), "123");
    EXPECT_EQ(Formatta00(-7), "-07");
}

TEST(ModNumeri, LaPercentualeSiFermaACento)
{
    EXPECT_EQ(PercentualeProgress(3, 2), 100);
    EXPECT_EQ(PercentualeProgress(1e15, 1), 100);
    EXPECT_EQ(PercentualeProgress(2, 2), 100);
}

TEST(ModNumeri, LaPercentualeSiTronca)
{
    EXPECT_EQ(PercentualeProgress(0, 3), 0);
    EXPECT_EQ(PercentualeProgress(2, 3), 66);
    EXPECT_EQ(PercentualeProgress(999, 1000), 99);
}

TEST(ModNumeri, LaPercentualeDiNullaFallisce)
{
    EXPECT_EQ(NumeroErrore([] { (void)PercentualeProgress(1, 0); }), 11);
    EXPECT_EQ(NumeroErrore([] { (void)PercentualeProgress(0, 0); }), 11);
}

TEST(ModNumeri, IlTempoEInOreMinutiSecondi)
{
    EXPECT_EQ(FormattaTempo(0), "00:00:00");
    EXPECT_EQ(FormattaTempo(59), "00:00:59");
    EXPECT_EQ(FormattaTempo(3725), "01:02:05");
    EXPECT_EQ(FormattaTempo(86399), "23:59:59");
    EXPECT_EQ(FormattaTempo(360000), "100:00:00");
}

} // namespace
} // namespace ordavel
