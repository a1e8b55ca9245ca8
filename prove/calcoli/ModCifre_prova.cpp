// ModCifre_prova.cpp - metrics by digit.

#include "calcoli/ModCifre.hpp"

#include "comune/ColonneProva.hpp"
#include "comune/Fallimenti.hpp"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <map>
#include <string>
#include <vector>

namespace ordavel {
namespace {

using prove::ColonnaDi;
using prove::ColonnaProva;
using prove::FlagDi;
using prove::GeneraColonna;
using prove::GeneraFlag;
using prove::NumeroErrore;

using Metrica = std::int32_t (*)(std::int16_t, const Colonna&);
using Somma = std::int32_t (*)(std::int16_t, const Colonna&, const FlagNumeri&);

std::int32_t Misura(Metrica metrica, const std::vector<int>& aNumeri)
{
    const ColonnaProva c = ColonnaDi(aNumeri);
    return metrica(c.nClasse, c.colonna);
}

FlagNumeri TutteLePosizioni()
{
    FlagNumeri aFlag;
    aFlag.aElementi.fill(1);
    return aFlag;
}

std::int32_t SommaTutta(Somma somma, const std::vector<int>& aNumeri)
{
    const ColonnaProva c = ColonnaDi(aNumeri);
    return somma(c.nClasse, c.colonna, TutteLePosizioni());
}

std::vector<int> Formule(const std::vector<int>& aNumeri)
{
    const ColonnaProva c = ColonnaDi(aNumeri);
    const ContatoriFormule aQuanti = CalcolaFormule(c.nClasse, c.colonna);
    return {aQuanti.aElementi.begin(), aQuanti.aElementi.end()};
}

/// The draw of some numbers.
RigaEmulatore Riga(const std::vector<int>& aNumeri)
{
    RigaEmulatore aRiga;
    for (const int nNumero : aNumeri) {
        aRiga(nNumero) = 1;
    }
    return aRiga;
}

// Digits by way of the written number, for numbers 1 to 90.

int UltimaCifra(int nNumero)
{
    return std::to_string(nNumero).back() - '0';
}

int PrimaDiDue(int nNumero)
{
    const std::string sCifre = std::to_string(nNumero);
    return sCifre.size() == 2 ? sCifre.front() - '0' : 0;
}

int Ridotto(int nNumero)
{
    if (nNumero == 9) {
        return 0;
    }
    return nNumero % 9 == 0 ? 9 : nNumero % 9;
}

template <typename Classe> int ClassePiuNumerosa(const ColonnaProva& c, Classe classe)
{
    std::map<int, int> aQuanti;
    int nMassimo = 0;
    for (const int nNumero : c.Numeri()) {
        nMassimo = std::max(nMassimo, ++aQuanti[classe(nNumero)]);
    }
    return nMassimo;
}

template <typename Addendo> int SommaAttesa(const ColonnaProva& c, const FlagNumeri& aFlag, Addendo addendo)
{
    int nSomma = 0;
    int nPosizione = 0;
    for (const int nNumero : c.Numeri()) {
        if (aFlag(++nPosizione) != 0) {
            nSomma += addendo(nNumero);
        }
    }
    return nSomma;
}

// --- fullest class

TEST(ModCifre, CadenzeDellEsempio)
{
    EXPECT_EQ(Misura(CalcolaCadenze, {1, 2, 3, 11, 21}), 3);
    EXPECT_EQ(Misura(CalcolaCadenze, {10, 20, 90}), 3);
}

TEST(ModCifre, LaDecinaDelleDecineFinisceConLoZero)
{
    EXPECT_EQ(Misura(CalcolaDecine, {10, 11}), 1);
    EXPECT_EQ(Misura(CalcolaDecine, {1, 10}), 2);
    EXPECT_EQ(Misura(CalcolaDecine, {81, 90}), 2);
}

TEST(ModCifre, NoveNonStaConLeFigureDiNove)
{
    EXPECT_EQ(Misura(CalcolaFigure, {9, 10, 19}), 2);
    EXPECT_EQ(Misura(CalcolaFigure, {9, 18}), 1);
    EXPECT_EQ(Misura(CalcolaFigure, {18, 27, 90}), 3);
}

TEST(ModCifre, UnaColonnaVuotaNonHaClassi)
{
    for (const Metrica metrica : {CalcolaCadenze, CalcolaDecine, CalcolaFigure}) {
        EXPECT_EQ(metrica(0, ColonnaDi({1}).colonna), 0);
        EXPECT_EQ(metrica(-1, ColonnaDi({1}).colonna), 0);
    }
    EXPECT_EQ(CalcolaFormule(0, ColonnaDi({1}).colonna), ContatoriFormule{});
}

TEST(ModCifre, UnNumeroFuoriDaUnoANovantaNonHaClasse)
{
    for (const int nNumero : {0, 91, 255}) {
        for (const Metrica metrica : {CalcolaCadenze, CalcolaDecine, CalcolaFigure}) {
            EXPECT_EQ(NumeroErrore([&] { (void)Misura(metrica, {nNumero}); }), 9) << nNumero;
        }
        EXPECT_EQ(NumeroErrore([&] { (void)Formule({nNumero}); }), 9) << nNumero;
    }
}

TEST(ModCifre, VentiNumeriUgualiStannoTuttiInUnaClasse)
{
    const std::vector<int> aNumeri(20, 90);
    for (const Metrica metrica : {CalcolaCadenze, CalcolaDecine, CalcolaFigure}) {
        EXPECT_EQ(Misura(metrica, aNumeri), 20);
    }
    EXPECT_EQ(Formule(aNumeri), (std::vector<int>{0, 0, 20}));
}

RC_GTEST_PROP(ModCifre, LaClassePiuPienaSiContaConUnaMappa, ())
{
    const ColonnaProva c = *GeneraColonna();
    RC_ASSERT(CalcolaCadenze(c.nClasse, c.colonna) == ClassePiuNumerosa(c, UltimaCifra));
    RC_ASSERT(CalcolaDecine(c.nClasse, c.colonna) ==
              ClassePiuNumerosa(c, [](int nNumero) { return PrimaDiDue(nNumero - 1); }));
    RC_ASSERT(CalcolaFigure(c.nClasse, c.colonna) == ClassePiuNumerosa(c, Ridotto));
}

// --- thirds

TEST(ModCifre, LeFormuleContanoITerzi)
{
    EXPECT_EQ(Formule({30, 31, 60, 61}), (std::vector<int>{1, 2, 1}));
    EXPECT_EQ(Formule({1, 90}), (std::vector<int>{1, 0, 1}));
}

RC_GTEST_PROP(ModCifre, ITerziFannoLaClasse, ())
{
    const ColonnaProva c = *GeneraColonna();
    const std::vector<int> aNumeri = c.Numeri();
    const auto sotto = [&aNumeri](int nLimite) {
        return static_cast<int>(std::upper_bound(aNumeri.begin(), aNumeri.end(), nLimite) - aNumeri.begin());
    };
    RC_ASSERT(Formule(aNumeri) ==
              (std::vector<int>{sotto(30), sotto(60) - sotto(30), c.nClasse - sotto(60)}));
}

// --- sums at flagged positions

TEST(ModCifre, LaDecinaDelleSommeELaCifraDelleDecine)
{
    EXPECT_EQ(SommaTutta(CalcolaSommaDecine, {10, 90}), 10);
    EXPECT_EQ(SommaTutta(CalcolaSommaDecine, {9, 19}), 1);
}

TEST(ModCifre, LaSommaCadenzePrendeLUltimaCifra)
{
    EXPECT_EQ(SommaTutta(CalcolaSommaCadenze, {7, 20, 39}), 16);
}

TEST(ModCifre, LaSommaFigurePrendeNoveComeZero)
{
    EXPECT_EQ(SommaTutta(CalcolaSommaFigure, {9, 18, 19, 79, 88, 90}), 0 + 9 + 1 + 7 + 7 + 9);
}

TEST(ModCifre, INumerettiSonoSottoDieci)
{
    EXPECT_EQ(SommaTutta(CalcolaSommaNumeretti, {1, 9, 10, 11, 90}), 10);
}

TEST(ModCifre, LaSommaComplessivaLasciaFuoriDaDieciInSu)
{
    EXPECT_EQ(SommaTutta(CalcolaSommaComplessiva, {5, 9, 45}), 33);
    EXPECT_EQ(SommaTutta(CalcolaSommaComplessiva, {10, 19, 90}), 0);
    for (int n = 1; n <= 8; ++n) {
        EXPECT_EQ(SommaTutta(CalcolaSommaComplessiva, {n}), 3 * n);
    }
}

TEST(ModCifre, LeSommeSeguonoLePosizioniENonINumeri)
{
    const ColonnaProva c = ColonnaDi({4, 8, 9});
    const FlagNumeri aFlag = FlagDi({1, 3, 8});
    EXPECT_EQ(CalcolaSommaCadenze(c.nClasse, c.colonna, aFlag), 13);
    EXPECT_EQ(CalcolaSommaNumeretti(c.nClasse, c.colonna, aFlag), 13);
    EXPECT_EQ(CalcolaSommaFigure(c.nClasse, c.colonna, aFlag), 4);
    EXPECT_EQ(CalcolaSommaComplessiva(c.nClasse, c.colonna, aFlag), 30);
    EXPECT_EQ(CalcolaSommaDecine(c.nClasse, c.colonna, aFlag), 0);
}

TEST(ModCifre, LeSommeAccettanoOgniByte)
{
    EXPECT_EQ(SommaTutta(CalcolaSommaCadenze, {0, 91, 255}), 6);
    EXPECT_EQ(SommaTutta(CalcolaSommaDecine, {0, 91, 255}), 34);
    EXPECT_EQ(SommaTutta(CalcolaSommaFigure, {0, 91, 255}), 0 + 1 + 3);
    EXPECT_EQ(SommaTutta(CalcolaSommaNumeretti, {0, 91, 255}), 0);
    EXPECT_EQ(SommaTutta(CalcolaSommaComplessiva, {0, 91, 255}), 0);
}

TEST(ModCifre, UnaClasseSottoUnoNonHaSomme)
{
    const Colonna colonna = ColonnaDi({5, 15}).colonna;
    for (const Somma somma : {CalcolaSommaCadenze, CalcolaSommaDecine, CalcolaSommaFigure,
                              CalcolaSommaNumeretti, CalcolaSommaComplessiva}) {
        EXPECT_EQ(somma(0, colonna, TutteLePosizioni()), 0);
        EXPECT_EQ(somma(-1, colonna, TutteLePosizioni()), 0);
    }
}

RC_GTEST_PROP(ModCifre, LeSommeSiRifannoSulleCifreScritte, ())
{
    const ColonnaProva c = *GeneraColonna();
    const FlagNumeri aFlag = *GeneraFlag();
    const auto numeretto = [](int n) { return UltimaCifra(n) == n ? n : 0; };
    const auto complessivo = [](int n) { return UltimaCifra(n) == n ? 2 * n + Ridotto(n) : 0; };
    RC_ASSERT(CalcolaSommaCadenze(c.nClasse, c.colonna, aFlag) == SommaAttesa(c, aFlag, UltimaCifra));
    RC_ASSERT(CalcolaSommaDecine(c.nClasse, c.colonna, aFlag) == SommaAttesa(c, aFlag, PrimaDiDue));
    RC_ASSERT(CalcolaSommaFigure(c.nClasse, c.colonna, aFlag) == SommaAttesa(c, aFlag, Ridotto));
    RC_ASSERT(CalcolaSommaNumeretti(c.nClasse, c.colonna, aFlag) == SommaAttesa(c, aFlag, numeretto));
    RC_ASSERT(CalcolaSommaComplessiva(c.nClasse, c.colonna, aFlag) == SommaAttesa(c, aFlag, complessivo));
}

// --- emulator

TEST(ModCifre, LEmulatoreContaLeEstrazioniPerColpi)
{
    const std::vector<RigaEmulatore> aEmulatore{Riga({1, 2, 3}), Riga({4, 5, 6}), Riga({1, 5, 7})};
    const ColonnaProva c = ColonnaDi({1, 5});
    ContatoriEmulatore aAttesi;
    aAttesi(1) = 2;
    aAttesi(2) = 1;
    EXPECT_EQ(CalcolaEmulatore(c.nClasse, c.colonna, aEmulatore), aAttesi);
}

TEST(ModCifre, LaRigaDiSoliZeriNonDaColpi)
{
    const std::vector<RigaEmulatore> aEmulatore(1);
    const ColonnaProva c = ColonnaDi({1, 5, 90});
    ContatoriEmulatore aAttesi;
    aAttesi(0) = 1;
    EXPECT_EQ(CalcolaEmulatore(c.nClasse, c.colonna, aEmulatore), aAttesi);
}

TEST(ModCifre, SenzaRigheLEmulatoreNonConta)
{
    const ColonnaProva c = ColonnaDi({1, 91});
    EXPECT_EQ(CalcolaEmulatore(c.nClasse, c.colonna, {}), ContatoriEmulatore{});
}

TEST(ModCifre, OgniByteDiversoDaZeroEUnNumeroEstratto)
{
    std::vector<RigaEmulatore> aEmulatore(1);
    aEmulatore[0](90) = 255;
    const ColonnaProva c = ColonnaDi({89, 90});
    EXPECT_EQ(CalcolaEmulatore(c.nClasse, c.colonna, aEmulatore)(1), 1);
}

TEST(ModCifre, LEmulatoreRifiutaUnNumeroSopraNovanta)
{
    const std::vector<RigaEmulatore> aEmulatore(1);
    for (const ColonnaProva& c : {ColonnaDi({91, 1, 2}), ColonnaDi({1, 91, 2}), ColonnaDi({1, 2, 91})}) {
        EXPECT_EQ(NumeroErrore([&] { (void)CalcolaEmulatore(c.nClasse, c.colonna, aEmulatore); }), 9) << c;
        EXPECT_EQ(NumeroErrore([&] { (void)CalcolaEmulatore(0, c.colonna, aEmulatore); }), std::nullopt);
    }
}

TEST(ModCifre, LEmulatoreConta32767EstrazioniENonUnaDiPiu)
{
    std::vector<RigaEmulatore> aEmulatore(32767);
    const ColonnaProva c = ColonnaDi({1, 5});
    EXPECT_EQ(CalcolaEmulatore(c.nClasse, c.colonna, aEmulatore)(0), 32767);
    aEmulatore.emplace_back();
    EXPECT_EQ(NumeroErrore([&] { (void)CalcolaEmulatore(c.nClasse, c.colonna, aEmulatore); }), 6);
}

RC_GTEST_PROP(ModCifre, IColpiSonoGliElementiComuni, ())
{
    const ColonnaProva c = *GeneraColonna();
    const auto aEstratte = *rc::gen::container<std::vector<ColonnaProva>>(GeneraColonna());
    std::vector<RigaEmulatore> aEmulatore;
    ContatoriEmulatore aAttesi;
    for (const ColonnaProva& estratta : aEstratte) {
        const std::vector<int> aUno = c.Numeri();
        const std::vector<int> aDue = estratta.Numeri();
        std::vector<int> aComuni;
        std::set_intersection(aUno.begin(), aUno.end(), aDue.begin(), aDue.end(),
                              std::back_inserter(aComuni));
        ++aAttesi(static_cast<std::int64_t>(aComuni.size()));
        aEmulatore.push_back(Riga(aDue));
    }
    RC_ASSERT(CalcolaEmulatore(c.nClasse, c.colonna, aEmulatore) == aAttesi);
}

// --- class

TEST(ModCifre, UnaClasseSopraVentiFallisceOvunque)
{
    const Colonna colonna = ColonnaDi({1, 2, 3}).colonna;
    const std::vector<RigaEmulatore> aEmulatore(1);
    for (const Metrica metrica : {CalcolaCadenze, CalcolaDecine, CalcolaFigure}) {
        EXPECT_EQ(NumeroErrore([&] { (void)metrica(21, colonna); }), 9);
    }
    for (const Somma somma : {CalcolaSommaCadenze, CalcolaSommaDecine, CalcolaSommaFigure,
                              CalcolaSommaNumeretti, CalcolaSommaComplessiva}) {
        EXPECT_EQ(NumeroErrore([&] { (void)somma(21, colonna, {}); }), 9);
    }
    EXPECT_EQ(NumeroErrore([&] { (void)CalcolaFormule(21, colonna); }), 9);
    EXPECT_EQ(NumeroErrore([&] { (void)CalcolaEmulatore(21, colonna, aEmulatore); }), 9);
}

} // namespace
} // namespace ordavel
