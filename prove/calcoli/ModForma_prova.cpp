// ModForma_prova.cpp - metrics of a column's shape.

#include "calcoli/ModForma.hpp"

#include "comune/ColonneProva.hpp"
#include "comune/Fallimenti.hpp"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <cstdint>
#include <numeric>
#include <string>
#include <vector>

namespace ordavel {
namespace {

using prove::ColonnaConParita;
using prove::ColonnaDi;
using prove::ColonnaProva;
using prove::FlagDi;
using prove::GeneraColonna;
using prove::GeneraFlag;
using prove::NumeroErrore;

using Metrica = std::int32_t (*)(std::int16_t, const Colonna&);

std::int32_t Misura(Metrica metrica, const ColonnaProva& c)
{
    return metrica(c.nClasse, c.colonna);
}

std::int32_t InterruzioniPD(std::int16_t nClasse, const Colonna& colonna)
{
    return CalcolaInterruzioniPD(nClasse, colonna);
}

std::int32_t ConsecutiviPD(std::int16_t nClasse, const Colonna& colonna)
{
    return CalcolaConsecutiviPD(nClasse, CreaSequenzaParita(nClasse, colonna));
}

std::int32_t Inferiore(std::int16_t nClasse, const Colonna& colonna)
{
    return BaricentroInferiore(nClasse, SommaColonna(nClasse, colonna));
}

std::int32_t Gruppi(const std::vector<int>& aNumeri, int nGruppo, int nPasso)
{
    const ColonnaProva c = ColonnaDi(aNumeri);
    return CalcolaGruppiDiConsecutivi(c.nClasse, c.colonna, static_cast<std::int16_t>(nGruppo),
                                      static_cast<std::int16_t>(nPasso));
}

/// The gaps of adjacent pairs.
std::vector<int> Distanze(const ColonnaProva& c)
{
    const std::vector<int> aNumeri = c.Numeri();
    std::vector<int> aDistanze;
    for (std::size_t i = 1; i < aNumeri.size(); ++i) {
        aDistanze.push_back(aNumeri[i] - aNumeri[i - 1]);
    }
    return aDistanze;
}

template <typename Condizione> int Quante(const std::vector<int>& aValori, Condizione condizione)
{
    return static_cast<int>(std::count_if(aValori.begin(), aValori.end(), condizione));
}

/// Groups found run by run, for groups of 2 or more and steps of 1 or more: behind a counted run the reading
/// goes on nPasso-1 places from the number that broke it.
int GruppiPerTratti(const std::vector<int>& aNumeri, int nGruppo, int nPasso)
{
    const int nQuanti = static_cast<int>(aNumeri.size());
    int nGruppi = 0;
    for (int nInizio = 0; nInizio < nQuanti;) {
        int nFine = nInizio + 1;
        while (nFine < nQuanti &&
               aNumeri[static_cast<std::size_t>(nFine)] == aNumeri[static_cast<std::size_t>(nFine - 1)] + 1) {
            ++nFine;
        }
        const bool bGruppo = nFine - nInizio == nGruppo;
        nGruppi += bGruppo ? 1 : 0;
        nInizio = bGruppo ? nFine + nPasso - 1 : nFine;
    }
    return nGruppi;
}

// --- worked column

TEST(ModForma, LaColonnaDiEsempioHaOgniMisuraAttesa)
{
    const ColonnaProva c = ColonnaDi({1, 2, 3, 5, 8});
    EXPECT_EQ(Misura(CalcolaAmpiezza, c), 7);
    EXPECT_EQ(Misura(CalcolaDistanzaMinima, c), 1);
    EXPECT_EQ(Misura(CalcolaDistanzaMassima, c), 3);
    EXPECT_EQ(Misura(CalcolaConsecutivi, c), 2);
    EXPECT_EQ(Misura(CalcolaPonte, c), 1);
    EXPECT_EQ(Misura(CalcolaInterruzioni, c), 2);
    EXPECT_EQ(Misura(ConsecutiviPD, c), 1);
    EXPECT_EQ(Misura(InterruzioniPD, c), 3);
    EXPECT_EQ(Misura(SommaColonna, c), 19);
    EXPECT_EQ(Misura(CalcolaBaricentro, c), 4);
    EXPECT_EQ(Misura(Inferiore, c), 3);
}

TEST(ModForma, LaSequenzaParitaVale1SuiDispariE0Altrove)
{
    const ColonnaProva c = ColonnaDi({1, 2, 3, 5, 8});
    SequenzaParita aAttesa;
    aAttesa(1) = aAttesa(3) = aAttesa(4) = 1;
    EXPECT_EQ(CreaSequenzaParita(c.nClasse, c.colonna), aAttesa);
}

TEST(ModForma, LaParitaSiFermaAllaClasse)
{
    const ColonnaProva c = ColonnaDi({1, 3, 5});
    SequenzaParita aAttesa;
    aAttesa(1) = aAttesa(2) = 1;
    EXPECT_EQ(CreaSequenzaParita(2, c.colonna), aAttesa);
}

TEST(ModForma, UnNumeroSoloNonHaCoppie)
{
    const ColonnaProva c = ColonnaDi({37});
    EXPECT_EQ(Misura(CalcolaAmpiezza, c), 0);
    EXPECT_EQ(Misura(CalcolaDistanzaMinima, c), 1000);
    EXPECT_EQ(Misura(CalcolaDistanzaMassima, c), 0);
    for (const Metrica metrica :
         {CalcolaConsecutivi, CalcolaPonte, CalcolaInterruzioni, ConsecutiviPD, InterruzioniPD}) {
        EXPECT_EQ(Misura(metrica, c), 0);
    }
}

TEST(ModForma, UnaClasseSottoUnoNonHaCoppieNeSomma)
{
    const ColonnaProva c = ColonnaDi({1, 2, 3});
    for (const std::int16_t nClasse : {std::int16_t{0}, std::int16_t{-3}}) {
        EXPECT_EQ(CalcolaDistanzaMinima(nClasse, c.colonna), 1000);
        EXPECT_EQ(CalcolaDistanzaMassima(nClasse, c.colonna), 0);
        EXPECT_EQ(CalcolaConsecutivi(nClasse, c.colonna), 0);
        EXPECT_EQ(CalcolaPonte(nClasse, c.colonna), 0);
        EXPECT_EQ(CalcolaInterruzioni(nClasse, c.colonna), 0);
        EXPECT_EQ(ConsecutiviPD(nClasse, c.colonna), 0);
        EXPECT_EQ(InterruzioniPD(nClasse, c.colonna), 0);
        EXPECT_EQ(SommaColonna(nClasse, c.colonna), 0);
        EXPECT_EQ(ContaPuntiColonna(nClasse, c.colonna, FlagDi({1, 2, 3})), 0);
        EXPECT_EQ(CalcolaPeso(nClasse, c.colonna, FlagDi({1, 2, 3})), 0);
    }
}

TEST(ModForma, UnaClasseSopraVentiFallisceOvunque)
{
    const Colonna colonna = ColonnaDi({1, 2, 3}).colonna;
    for (const Metrica metrica :
         {SommaColonna, CalcolaAmpiezza, CalcolaDistanzaMinima, CalcolaDistanzaMassima, CalcolaConsecutivi,
          CalcolaPonte, CalcolaInterruzioni, InterruzioniPD, CalcolaBaricentro}) {
        EXPECT_EQ(NumeroErrore([&] { (void)metrica(21, colonna); }), 9);
    }
    const SequenzaParita aParita;
    EXPECT_EQ(NumeroErrore([&] { (void)CreaSequenzaParita(21, colonna); }), 9);
    EXPECT_EQ(NumeroErrore([&] { (void)CalcolaConsecutiviPD(21, aParita); }), 9);
    EXPECT_EQ(NumeroErrore([&] { (void)CalcolaInterruzioniPD(21, aParita); }), 9);
    EXPECT_EQ(NumeroErrore([&] { (void)ContaPuntiColonna(21, colonna, {}); }), 9);
    EXPECT_EQ(NumeroErrore([&] { (void)CalcolaPeso(21, colonna, {}); }), 9);
    EXPECT_EQ(NumeroErrore([&] { (void)CalcolaGruppiDiConsecutivi(21, colonna, 2, 2); }), 9);
}

TEST(ModForma, UnaClasseDiVentiSiMisuraTutta)
{
    std::vector<int> aNumeri(20);
    std::iota(aNumeri.begin(), aNumeri.end(), 71);
    const ColonnaProva c = ColonnaDi(aNumeri);
    EXPECT_EQ(Misura(CalcolaAmpiezza, c), 19);
    EXPECT_EQ(Misura(CalcolaConsecutivi, c), 19);
    EXPECT_EQ(Misura(InterruzioniPD, c), 19);
    EXPECT_EQ(Misura(SommaColonna, c), 1610);
}

// --- flags

TEST(ModForma, IPuntiContanoINumeriSegnati)
{
    const ColonnaProva c = ColonnaDi({3, 20, 90});
    EXPECT_EQ(ContaPuntiColonna(c.nClasse, c.colonna, FlagDi({1, 2, 3, 90})), 2);
    EXPECT_EQ(ContaPuntiColonna(c.nClasse, c.colonna, FlagDi({1, 2})), 0);
}

TEST(ModForma, IPuntiRifiutanoUnNumeroSopraNovanta)
{
    const ColonnaProva c = ColonnaDi({3, 91});
    EXPECT_EQ(NumeroErrore([&] { (void)ContaPuntiColonna(c.nClasse, c.colonna, {}); }), 9);
}

TEST(ModForma, IlPesoSommaINumeriDellePosizioniSegnate)
{
    const ColonnaProva c = ColonnaDi({3, 20, 90});
    EXPECT_EQ(CalcolaPeso(c.nClasse, c.colonna, FlagDi({1, 3})), 93);
    EXPECT_EQ(CalcolaPeso(c.nClasse, c.colonna, FlagDi({20, 90})), 0);
}

TEST(ModForma, UnFlagVaPerQualunqueValoreDiversoDaZero)
{
    const ColonnaProva c = ColonnaDi({1, 2});
    FlagNumeri aFlag;
    aFlag(1) = -1;
    aFlag(2) = 256;
    EXPECT_EQ(ContaPuntiColonna(c.nClasse, c.colonna, aFlag), 2);
    EXPECT_EQ(CalcolaPeso(c.nClasse, c.colonna, aFlag), 3);
}

// --- sums

TEST(ModForma, IlRestoEQuelloDellaDivisioneIntera)
{
    EXPECT_EQ(Resto(19, 5), 4);
    EXPECT_EQ(Resto(20, 5), 0);
    EXPECT_EQ(Resto(3, 90), 3);
    EXPECT_EQ(Resto(19, -5), 4);
}

TEST(ModForma, IlRestoPerZeroFallisce)
{
    EXPECT_EQ(NumeroErrore([] { (void)Resto(19, 0); }), 11);
}

TEST(ModForma, BaricentroPubblicoArrotondaAlPari)
{
    EXPECT_EQ(Misura(CalcolaBaricentro, ColonnaDi({12, 13})), 12);
    EXPECT_EQ(Misura(CalcolaBaricentro, ColonnaDi({13, 14})), 14);
    EXPECT_EQ(Misura(CalcolaBaricentro, ColonnaDi({12, 13, 14, 16})), 14); // mean 13.75
}

TEST(ModForma, BaricentroDelMotoreTronca)
{
    EXPECT_EQ(Misura(Inferiore, ColonnaDi({12, 13})), 12);
    EXPECT_EQ(Misura(Inferiore, ColonnaDi({13, 14})), 13);
    EXPECT_EQ(Misura(Inferiore, ColonnaDi({12, 13, 14, 16})), 13);
}

TEST(ModForma, IlBaricentroDiNessunNumeroFallisce)
{
    EXPECT_EQ(NumeroErrore([] { (void)CalcolaBaricentro(0, Colonna{}); }), 11);
    EXPECT_EQ(NumeroErrore([] { (void)BaricentroInferiore(0, 0); }), 11);
}

TEST(ModForma, UnaClasseNegativaDaBaricentroZero)
{
    EXPECT_EQ(CalcolaBaricentro(-2, ColonnaDi({5, 6}).colonna), 0);
    EXPECT_EQ(BaricentroInferiore(-2, 0), 0);
}

// --- gaps

TEST(ModForma, LAmpiezzaDiNessunNumeroFallisce)
{
    EXPECT_EQ(NumeroErrore([] { (void)CalcolaAmpiezza(0, Colonna{}); }), 9);
    EXPECT_EQ(NumeroErrore([] { (void)CalcolaAmpiezza(-1, Colonna{}); }), 9);
}

TEST(ModForma, UnaColonnaCheScendeFallisceNelleDistanze)
{
    const ColonnaProva c = ColonnaDi({5, 9, 3});
    for (const Metrica metrica : {CalcolaAmpiezza, CalcolaDistanzaMinima, CalcolaDistanzaMassima}) {
        EXPECT_EQ(NumeroErrore([&] { (void)Misura(metrica, c); }), 6);
    }
}

TEST(ModForma, LAmpiezzaGuardaSoloGliEstremi)
{
    EXPECT_EQ(Misura(CalcolaAmpiezza, ColonnaDi({5, 90, 6})), 1);
}

TEST(ModForma, NumeriUgualiDistanoZero)
{
    const ColonnaProva c = ColonnaDi({7, 7});
    EXPECT_EQ(Misura(CalcolaDistanzaMinima, c), 0);
    EXPECT_EQ(Misura(CalcolaDistanzaMassima, c), 0);
    EXPECT_EQ(Misura(CalcolaInterruzioni, c), 1);
}

// --- groups of consecutive numbers

TEST(ModForma, IGruppiContanoSoloLaLunghezzaEsatta)
{
    EXPECT_EQ(Gruppi({1, 2, 3, 7, 8}, 3, 2), 1);
    EXPECT_EQ(Gruppi({1, 2, 3, 7, 8}, 2, 2), 1);
    EXPECT_EQ(Gruppi({1, 2, 3}, 2, 2), 0);
    EXPECT_EQ(Gruppi({1, 2, 3}, 4, 2), 0);
}

TEST(ModForma, ConPasso2IlNumeroCheRompeNonIniziaUnGruppo)
{
    EXPECT_EQ(Gruppi({1, 2, 5, 6}, 2, 2), 1);
    EXPECT_EQ(Gruppi({1, 2, 5, 7, 8}, 2, 2), 2);
}

TEST(ModForma, ConPasso1IlNumeroCheRompeSiRilegge)
{
    EXPECT_EQ(Gruppi({1, 2, 5, 6}, 2, 1), 2);
}

TEST(ModForma, UnPassoMaggioreSaltaNumeri)
{
    const std::vector<int> aNumeri{1, 2, 5, 10, 11, 20, 21};
    EXPECT_EQ(Gruppi(aNumeri, 2, 2), 2); // from 10 on: 10 11, broken by 20, and a lone 21
    EXPECT_EQ(Gruppi(aNumeri, 2, 3), 2); // from 11 on: alone, then 20 21
    EXPECT_EQ(Gruppi(aNumeri, 2, 4), 2); // from 20 on
    EXPECT_EQ(Gruppi(aNumeri, 2, 5), 1); // from 21 on
    EXPECT_EQ(Gruppi(aNumeri, 2, 32767), 1);
}

TEST(ModForma, UnGruppoDiUnoContaOgniNumeroLettoEUnaVoltaLaFine)
{
    EXPECT_EQ(Gruppi({1, 3}, 1, 2), 3);
    EXPECT_EQ(Gruppi({1, 2, 3}, 1, 2), 4);
    EXPECT_EQ(Gruppi({1, 2, 3, 4, 5}, 1, 3), 4); // reads 1, 3, 5
}

TEST(ModForma, UnGruppoDiUnoConPasso1FinisceInOverflow)
{
    EXPECT_EQ(NumeroErrore([] { (void)Gruppi({1, 3}, 1, 1); }), 6);
}

TEST(ModForma, UnPassoSottoUnoTornaIndietro)
{
    EXPECT_EQ(Gruppi({1, 2, 5}, 2, 0), 1);                              // goes on from 2
    EXPECT_EQ(NumeroErrore([] { (void)Gruppi({1, 2, 5}, 2, -1); }), 6); // from 1 for ever
    EXPECT_EQ(NumeroErrore([] { (void)Gruppi({1, 2, 5}, 2, -2); }), 9); // from in front of 1
    EXPECT_EQ(NumeroErrore([] { (void)Gruppi({1, 2, 5}, 2, -32768); }), 9);
}

TEST(ModForma, IGruppiDiNessunNumero)
{
    EXPECT_EQ(Gruppi({}, 2, 2), 0);
    EXPECT_EQ(Gruppi({}, 1, 2), 1);
    EXPECT_EQ(CalcolaGruppiDiConsecutivi(-1, Colonna{}, 1, 1), 1);
}

TEST(ModForma, UnGruppoDiZeroNonEsiste)
{
    EXPECT_EQ(Gruppi({1, 2, 4}, 0, 2), 0);
    EXPECT_EQ(Gruppi({1, 2, 4}, -1, 2), 0);
}

// --- properties

RC_GTEST_PROP(ModForma, ConsecutiviEInterruzioniFannoTutteLeCoppie, ())
{
    const ColonnaProva c = *GeneraColonna(1);
    RC_ASSERT(Misura(CalcolaConsecutivi, c) + Misura(CalcolaInterruzioni, c) == c.nClasse - 1);
    RC_ASSERT(Misura(ConsecutiviPD, c) + Misura(InterruzioniPD, c) == c.nClasse - 1);
}

RC_GTEST_PROP(ModForma, LeCoppieSiContanoSulleDistanze, ())
{
    const ColonnaProva c = *GeneraColonna();
    const std::vector<int> aDistanze = Distanze(c);
    RC_ASSERT(Misura(CalcolaConsecutivi, c) == Quante(aDistanze, [](int d) { return d == 1; }));
    RC_ASSERT(Misura(CalcolaPonte, c) == Quante(aDistanze, [](int d) { return d == 2; }));
    RC_ASSERT(Misura(CalcolaInterruzioni, c) == Quante(aDistanze, [](int d) { return d != 1; }));
    RC_ASSERT(Misura(ConsecutiviPD, c) == Quante(aDistanze, [](int d) { return d % 2 == 0; }));
    RC_ASSERT(Misura(InterruzioniPD, c) == Quante(aDistanze, [](int d) { return d % 2 == 1; }));
}

RC_GTEST_PROP(ModForma, LeDistanzeSonoGliEstremiOrdinati, ())
{
    const ColonnaProva c = *GeneraColonna(2);
    std::vector<int> aDistanze = Distanze(c);
    std::sort(aDistanze.begin(), aDistanze.end());
    RC_ASSERT(Misura(CalcolaDistanzaMinima, c) == aDistanze.front());
    RC_ASSERT(Misura(CalcolaDistanzaMassima, c) == aDistanze.back());
    RC_ASSERT(Misura(CalcolaAmpiezza, c) == std::accumulate(aDistanze.begin(), aDistanze.end(), 0));
}

RC_GTEST_PROP(ModForma, LaCodaNonContaMai, ())
{
    const ColonnaProva c = *GeneraColonna(2);
    ColonnaProva corta = c;
    corta.nClasse = *rc::gen::inRange<std::int16_t>(1, c.nClasse);
    const ColonnaProva sola = ColonnaDi(corta.Numeri());
    for (const Metrica metrica :
         {SommaColonna, CalcolaAmpiezza, CalcolaDistanzaMinima, CalcolaDistanzaMassima, CalcolaConsecutivi,
          CalcolaPonte, CalcolaInterruzioni, InterruzioniPD, ConsecutiviPD, CalcolaBaricentro, Inferiore}) {
        RC_ASSERT(Misura(metrica, corta) == Misura(metrica, sola));
    }
}

RC_GTEST_PROP(ModForma, IPuntiEIlPesoSeguonoIFlag, ())
{
    const ColonnaProva c = *GeneraColonna();
    const FlagNumeri aFlag = *GeneraFlag();
    int nPunti = 0;
    int nPeso = 0;
    int nPosizione = 0;
    for (const int nNumero : c.Numeri()) {
        nPunti += aFlag(nNumero) != 0 ? 1 : 0;
        nPeso += aFlag(++nPosizione) != 0 ? nNumero : 0;
    }
    RC_ASSERT(ContaPuntiColonna(c.nClasse, c.colonna, aFlag) == nPunti);
    RC_ASSERT(CalcolaPeso(c.nClasse, c.colonna, aFlag) == nPeso);
}

RC_GTEST_PROP(ModForma, IDueBaricentriDistanoQuantoLaFrazione, ())
{
    const ColonnaProva c = *GeneraColonna(1);
    const std::int32_t nSomma = Misura(SommaColonna, c);
    const std::vector<int> aNumeri = c.Numeri();
    RC_ASSERT(nSomma == std::accumulate(aNumeri.begin(), aNumeri.end(), 0));
    const std::int32_t nIntera = nSomma / c.nClasse;
    const std::int32_t nDoppioResto = 2 * (nSomma - nIntera * c.nClasse);
    const bool bSale = nDoppioResto > c.nClasse || (nDoppioResto == c.nClasse && nIntera % 2 == 1);
    RC_ASSERT(Misura(Inferiore, c) == nIntera);
    RC_ASSERT(Misura(CalcolaBaricentro, c) == nIntera + (bSale ? 1 : 0));
}

RC_GTEST_PROP(ModForma, IGruppiSiTrovanoTrattoPerTratto, ())
{
    const ColonnaProva c = *GeneraColonna();
    const int nGruppo = *rc::gen::inRange(2, 6);
    const int nPasso = *rc::gen::inRange(1, 6);
    RC_ASSERT(Gruppi(c.Numeri(), nGruppo, nPasso) == GruppiPerTratti(c.Numeri(), nGruppo, nPasso));
}

RC_GTEST_PROP(ModForma, UnGruppoDiUnoContaINumeriAPassoMenoUno, ())
{
    const ColonnaProva c = *GeneraColonna();
    const int nPasso = *rc::gen::inRange(2, 8);
    const int nLetti = (c.nClasse + nPasso - 2) / (nPasso - 1);
    RC_ASSERT(Gruppi(c.Numeri(), 1, nPasso) == nLetti + 1);
}

RC_GTEST_PROP(ModForma, LeParitaDiUnaColonnaSonoQuelleChieste, ())
{
    const auto sParita =
        *rc::gen::resize(kNumeriColonna, rc::gen::container<std::string>(rc::gen::element('P', 'D')));
    const ColonnaProva c = ColonnaConParita(sParita);
    const SequenzaParita aParita = CreaSequenzaParita(c.nClasse, c.colonna);
    for (std::size_t i = 0; i < sParita.size(); ++i) {
        RC_ASSERT(aParita(static_cast<int>(i) + 1) == (sParita[i] == 'D' ? 1 : 0));
    }
}

} // namespace
} // namespace ordavel
