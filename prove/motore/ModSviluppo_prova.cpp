// ModSviluppo_prova.cpp - enumeration, reduction, refreshes and stops of a development.

#include "motore/ModSviluppo.hpp"

#include "comune/ColonneProva.hpp"
#include "comune/Fallimenti.hpp"
#include "comune/GeneratoriSistema.hpp"
#include "comune/RecordProva.hpp"
#include "motore/CorsaProva.hpp"
#include "motore/ModIntegrali.hpp"

#include <gmock/gmock.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <limits>
#include <vector>

namespace ordavel {
namespace {

using prove::Aggiornamento;
using prove::ColonnaDi;
using prove::CorsaProva;
using prove::Fila;
using prove::NumeroErrore;
using prove::Tra;
using testing::ElementsAre;

std::vector<Colonna> ColonneDi(const std::vector<std::vector<int>>& aColonne)
{
    std::vector<Colonna> aFatte;
    for (const std::vector<int>& aNumeri : aColonne) {
        aFatte.push_back(ColonnaDi(aNumeri).colonna);
    }
    return aFatte;
}

/// Every column by nested recursion, in lexicographic order.
void Aggiungi(const std::vector<int>& aScelti, int nClasse, std::size_t nDa, std::vector<int>& aColonna,
              std::vector<Colonna>& aTutte)
{
    if (static_cast<int>(aColonna.size()) == nClasse) {
        aTutte.push_back(ColonnaDi(aColonna).colonna);
        return;
    }
    for (std::size_t i = nDa; i < aScelti.size(); ++i) {
        aColonna.push_back(aScelti[i]);
        Aggiungi(aScelti, nClasse, i + 1, aColonna, aTutte);
        aColonna.pop_back();
    }
}

std::vector<Colonna> TutteLeColonne(const std::vector<int>& aScelti, int nClasse)
{
    std::vector<Colonna> aTutte;
    std::vector<int> aColonna;
    Aggiungi(aScelti, nClasse, 0, aColonna, aTutte);
    return aTutte;
}

/// The reduction over a list, with a buffer of nBuffer columns.
std::vector<Colonna> Ridotte(const std::vector<Colonna>& aColonne, std::int16_t nClasse, int nLimite,
                             std::size_t nBuffer)
{
    std::vector<Colonna> aTenute;
    for (const Colonna& colonna : aColonne) {
        if (aTenute.size() % nBuffer == 0 || ContaNumeriComuni(nClasse, colonna, aTenute.back()) < nLimite) {
            aTenute.push_back(colonna);
        }
    }
    return aTenute;
}

TEST(ModSviluppo, LOrdineELessicografico)
{
    CorsaProva corsa;
    EXPECT_EQ(corsa.Sviluppa({3, 7, 12, 20}, 2),
              ColonneDi({{3, 7}, {3, 12}, {3, 20}, {7, 12}, {7, 20}, {12, 20}}));
}

TEST(ModSviluppo, TantiNumeriQuantaLaClasseDannoUnaColonna)
{
    CorsaProva corsa;
    EXPECT_EQ(corsa.Sviluppa({3, 7, 12}, 3), ColonneDi({{3, 7, 12}}));
    EXPECT_THAT(corsa.avanzamento.aMostrati, ElementsAre(Aggiornamento{1, 1, 100}));
}

TEST(ModSviluppo, UnaClasseFuoriDaUnaColonnaFallisce)
{
    CorsaProva corsa;
    EXPECT_EQ(NumeroErrore([&] { corsa.Sviluppa(Fila(1, 30), 21); }), 9);
    EXPECT_EQ(NumeroErrore([&] { corsa.Sviluppa(Fila(1, 30), 0); }), 9);
    EXPECT_EQ(corsa.Sviluppa(Fila(1, 20), 20).size(), std::size_t{1});
}

TEST(ModSviluppo, UnPronosticoSottoLaClasseFallisceNellaPercentuale)
{
    CorsaProva corsa;
    EXPECT_EQ(NumeroErrore([&] { corsa.Sviluppa({1, 2}, 3); }), 11);
    EXPECT_EQ(corsa.stato.nSviluppate, 0);
}

TEST(ModSviluppo, INumeriDietroLaClasseRestano0)
{
    CorsaProva corsa;
    for (const Colonna& colonna : corsa.Sviluppa(Fila(80, 90), 4)) {
        EXPECT_TRUE(std::all_of(colonna.aNumeri.begin() + 4, colonna.aNumeri.end(),
                                [](std::uint8_t n) { return n == 0; }));
    }
}

RC_GTEST_PROP(ModSviluppo, LEnumerazioneDaTutteLeColonneInOrdine, ())
{
    const int nClasse = Tra(1, 10);
    const int nScelti = Tra(nClasse, nClasse + 5);
    std::vector<int> aScelti =
        *rc::gen::unique<std::vector<int>>(static_cast<std::size_t>(nScelti), rc::gen::inRange(1, 91));
    std::sort(aScelti.begin(), aScelti.end());
    CorsaProva corsa;
    const std::vector<Colonna> aColonne = corsa.Sviluppa(aScelti, nClasse);
    RC_ASSERT(aColonne == TutteLeColonne(aScelti, nClasse));
    RC_ASSERT(static_cast<double>(aColonne.size()) == std::nearbyint(CalcolaIntegrali(nScelti, nClasse)));
}

TEST(ModSviluppo, UnSistemaGrandeTornaConIlSuoBinomiale)
{
    CorsaProva corsa;
    const std::vector<Colonna> aColonne = corsa.Sviluppa(Fila(1, 90), 3);
    EXPECT_EQ(aColonne.size(), std::size_t{117480});
    EXPECT_TRUE(std::is_sorted(aColonne.begin(), aColonne.end(), [](const Colonna& a, const Colonna& b) {
        return a.aNumeri <= b.aNumeri; // strictly: an equal pair is out of order too
    }));
    EXPECT_EQ(corsa.stato.nSviluppate, 117480);
    EXPECT_EQ(corsa.stato.nCondizionate, 117480);
}

TEST(ModSviluppo, IConteggiNotiDiUnSistemaIntero)
{
    // 25 numbers in class 5: by parity C(13,3)*C(12,2).
    CorsaProva corsa({prove::Dispari({3}), prove::Intervallo(TipoCondizione::peso, 0, 64),
                      prove::Intervallo(TipoCondizione::peso, 66, 500)});
    static_cast<void>(corsa.Sviluppa(Fila(1, 25), 5));
    const auto& aCondizioni = corsa.stato.aCondizioni;
    EXPECT_EQ(aCondizioni[0].ContaOk, 18876);
    EXPECT_EQ(aCondizioni[0].ContaKo, 53130 - 18876);
    EXPECT_EQ(aCondizioni[1].ContaOk, aCondizioni[2].ContaOk) << "le somme stanno simmetriche intorno a 65";
    EXPECT_EQ(corsa.stato.nCondizionate, 0);
}

TEST(ModSviluppo, LaRiduzione0TieneTutto)
{
    CorsaProva corsa;
    EXPECT_EQ(corsa.Sviluppa(Fila(1, 9), 4, 4), TutteLeColonne(Fila(1, 9), 4));
}

TEST(ModSviluppo, UnaRiduzioneDallaClasseInSuTieneTutto)
{
    for (const int nLimite : {0, -1}) {
        CorsaProva corsa;
        EXPECT_EQ(corsa.Sviluppa(Fila(1, 9), 4, nLimite), TutteLeColonne(Fila(1, 9), 4));
    }
}

TEST(ModSviluppo, LaRiduzioneDiradaIViciniDellUltimaTenuta)
{
    CorsaProva corsa;
    EXPECT_EQ(corsa.Sviluppa({1, 2, 3, 4}, 3, 2), ColonneDi({{1, 2, 3}}));
    CorsaProva altra;
    EXPECT_EQ(altra.Sviluppa({1, 2, 3, 4, 5}, 2, 1), ColonneDi({{1, 2}, {3, 4}}));
    EXPECT_EQ(altra.stato.nCondizionate, 2);
    EXPECT_EQ(altra.stato.nSviluppate, 10);
}

TEST(ModSviluppo, DopoOgniScritturaLaPrimaColonnaNonHaUnaPrima)
{
    CorsaProva corsa;
    const std::vector<Colonna> aTutte = TutteLeColonne(Fila(1, 32), 5);
    const std::vector<Colonna> aTenute = corsa.Sviluppa(Fila(1, 32), 5, 4);
    ASSERT_GT(aTenute.size(), std::size_t{10000});
    EXPECT_EQ(aTenute, Ridotte(aTutte, 5, 4, 10000));
    EXPECT_NE(aTenute, Ridotte(aTutte, 5, 4, aTutte.size())) << "un buffer senza fine terrebbe altre colonne";
}

TEST(ModSviluppo, DiecimilaTenuteEsatteSiScrivonoUnaVolta)
{
    // 20 numbers in the first third, 20 in the second, 25 in the last: one of each is 10000 columns.
    std::vector<int> aScelti = Fila(1, 20);
    for (const int n : Fila(31, 50)) {
        aScelti.push_back(n);
    }
    for (const int n : Fila(61, 85)) {
        aScelti.push_back(n);
    }
    RecordCondizione formula;
    formula.Tipo = TipoCondizione::formule;
    formula.PuntiOk2(1) = formula.PuntiOk2(2) = formula.PuntiOk2(3) = 1;
    CorsaProva corsa({formula});
    const std::vector<Colonna> aColonne = corsa.Sviluppa(aScelti, 3);
    EXPECT_EQ(aColonne.size(), std::size_t{10000});
    EXPECT_EQ(aColonne.back(), ColonnaDi({20, 50, 85}).colonna);
    EXPECT_EQ(corsa.avanzamento.aMostrati.back(), (Aggiornamento{43680, 10000, 100}));
}

TEST(ModSviluppo, SiAggiornaOgni10000EsaminateEAllaFine)
{
    CorsaProva corsa;
    static_cast<void>(corsa.Sviluppa(Fila(1, 30), 4));
    EXPECT_THAT(corsa.avanzamento.aMostrati,
                ElementsAre(Aggiornamento{10000, 10000, 36}, Aggiornamento{20000, 20000, 72},
                            Aggiornamento{27405, 27405, 100}));
    EXPECT_EQ(corsa.avanzamento.nEventi, 2);
}

TEST(ModSviluppo, SottoLe10000SiMostraSoloAllaFine)
{
    CorsaProva corsa;
    static_cast<void>(corsa.Sviluppa(Fila(1, 20), 4));
    EXPECT_THAT(corsa.avanzamento.aMostrati, ElementsAre(Aggiornamento{4845, 4845, 100}));
    EXPECT_EQ(corsa.avanzamento.nEventi, 0);
}

TEST(ModSviluppo, UnoStopSiVedeUnAggiornamentoDopo)
{
    CorsaProva corsa;
    corsa.avanzamento.eventi = [&corsa] { corsa.stato.bStopSviluppo = true; };
    EXPECT_EQ(corsa.Sviluppa(Fila(1, 30), 4).size(), std::size_t{20000});
    EXPECT_THAT(corsa.avanzamento.aMostrati,
                ElementsAre(Aggiornamento{10000, 10000, 36}, Aggiornamento{20000, 20000, 72},
                            Aggiornamento{20000, 20000, 72}));
    EXPECT_EQ(corsa.avanzamento.nEventi, 1) << "allo stop gli eventi non passano più";
}

TEST(ModSviluppo, UnoStopLasciaLeTenuteDelBufferIncompleto)
{
    const std::vector<RecordCondizione> aCondizioni{prove::Dispari({2})};
    CorsaProva intera(aCondizioni);
    const std::vector<Colonna> aTutte = intera.Sviluppa(Fila(1, 30), 4);
    CorsaProva corsa(aCondizioni);
    corsa.avanzamento.eventi = [&corsa] { corsa.stato.bStopSviluppo = true; };
    const std::vector<Colonna> aColonne = corsa.Sviluppa(Fila(1, 30), 4);
    EXPECT_EQ(corsa.stato.nSviluppate, 20000);
    EXPECT_EQ(aColonne.size(), static_cast<std::size_t>(corsa.stato.nCondizionate));
    ASSERT_GT(aColonne.size(), std::size_t{0});
    ASSERT_LT(aColonne.size(), aTutte.size());
    EXPECT_TRUE(std::equal(aColonne.begin(), aColonne.end(), aTutte.begin()));
}

TEST(ModSviluppo, OltreIl32BitFallisce)
{
    StatoSviluppo stato;
    prove::AvanzamentoProva avanzamento;
    stato.nSviluppate = std::numeric_limits<std::int32_t>::max() - 1;
    EXPECT_TRUE(ContaEsaminata(1e10, stato, avanzamento));
    EXPECT_EQ(NumeroErrore([&] { static_cast<void>(ContaEsaminata(1e10, stato, avanzamento)); }), 6);
    EXPECT_EQ(stato.nSviluppate, std::numeric_limits<std::int32_t>::max());
}

TEST(ModSviluppo, AncheLeTenuteOltreIl32BitFalliscono)
{
    // The counter is pushed to its end from the first refresh; what was flushed by then stays.
    CorsaProva corsa;
    corsa.avanzamento.eventi = [&corsa] {
        corsa.stato.nCondizionate = std::numeric_limits<std::int32_t>::max() - 1;
    };
    EXPECT_EQ(NumeroErrore([&] { corsa.Sviluppa(Fila(1, 30), 4); }), 6);
    EXPECT_EQ(corsa.stato.nSviluppate, 10001);
}

TEST(ModSviluppo, UnaSecondaCorsaContaDaCapo)
{
    CorsaProva corsa;
    corsa.stato.nSviluppate = 5;
    corsa.stato.nCondizionate = 7;
    static_cast<void>(corsa.Sviluppa({1, 2, 3}, 2));
    EXPECT_EQ(corsa.stato.nSviluppate, 3);
    EXPECT_EQ(corsa.stato.nCondizionate, 3);
}

/// A random system of 1 to 8 conditions and a board.
StatoSviluppo SistemaCasuale(std::int16_t nClasse)
{
    StatoSviluppo stato;
    LeggiCondizioniDaGriglia(stato.aCondizioni, prove::GrigliaDi(*prove::GenCondizioni(nClasse, 8)),
                             *prove::GenQuadro(), stato.aQuadroRec);
    EstendiRecuperiSequenze(stato.aCondizioni);
    return stato;
}

RC_GTEST_PROP(ModSviluppo, UnoSviluppoEIlFiltroDelloSviluppoIntero, ())
{
    const auto nClasse = static_cast<std::int16_t>(Tra(2, 10));
    const std::vector<int> aScelti = Fila(80 - nClasse - Tra(0, 4), 80);
    const int nLimite = nClasse - Tra(0, 5);
    CorsaProva sviluppo;
    sviluppo.stato = SistemaCasuale(nClasse);
    CorsaProva filtro;
    filtro.stato = sviluppo.stato;
    CorsaProva intera;
    const std::vector<Colonna> aTutte = intera.Sviluppa(aScelti, nClasse);
    const std::vector<Colonna> aSviluppate = sviluppo.Sviluppa(aScelti, nClasse, nLimite);
    RC_ASSERT(aTutte.size() <= std::size_t{10000});
    RC_ASSERT(aSviluppate == filtro.Filtra(aTutte, nClasse, nLimite));
    RC_ASSERT(sviluppo.stato.aCondizioni == filtro.stato.aCondizioni);
    RC_ASSERT(sviluppo.stato.nSviluppate == filtro.stato.nSviluppate);
    RC_ASSERT(sviluppo.stato.nCondizionate == filtro.stato.nCondizionate);
}

RC_GTEST_PROP(ModSviluppo, UnoStopTieneUnInizioDelloSviluppo, ())
{
    // 12650 or 20475 columns: a stop at the first events is seen only by a run that reaches a second refresh.
    const std::int16_t nClasse = 4;
    const std::vector<int> aScelti = Fila(1, prove::UnaVoltaSu(2) ? 25 : 28);
    CorsaProva intera;
    intera.stato = SistemaCasuale(nClasse);
    CorsaProva fermata;
    fermata.stato = intera.stato;
    fermata.avanzamento.eventi = [&fermata] { fermata.stato.bStopSviluppo = true; };
    const std::vector<Colonna> aTutte = intera.Sviluppa(aScelti, nClasse, 3);
    const std::vector<Colonna> aTenute = fermata.Sviluppa(aScelti, nClasse, 3);
    RC_ASSERT(fermata.stato.nSviluppate == std::min(20000, intera.stato.nSviluppate));
    RC_ASSERT(aTenute.size() == static_cast<std::size_t>(fermata.stato.nCondizionate));
    RC_ASSERT(aTenute.size() <= aTutte.size());
    RC_ASSERT(std::equal(aTenute.begin(), aTenute.end(), aTutte.begin()));
}

} // namespace
} // namespace ordavel
