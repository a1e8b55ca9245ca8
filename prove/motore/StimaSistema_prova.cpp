// StimaSistema_prova.cpp - shares of columns drawn at random, and how far they are from the truth.

#include "motore/StimaSistema.hpp"

#include "comune/RecordProva.hpp"
#include "condizioni/ModCompila.hpp"
#include "motore/CorsaProva.hpp"

#include <gmock/gmock.h>

#include <cmath>

namespace ordavel {
namespace {

using prove::Dispari;
using prove::Fila;
using prove::Intervallo;

std::vector<std::uint8_t> Scelti(int nPrimo, int nUltimo)
{
    const auto aFila = Fila(nPrimo, nUltimo);
    return {aFila.begin(), aFila.end()};
}

Campione Sorteggiate(const StatoSviluppo& stato, int nUltimo, int nClasse, std::uint64_t nSeme,
                     std::int64_t nProve)
{
    return Sorteggia(stato, Scelti(1, nUltimo), static_cast<std::int16_t>(nClasse), nSeme,
                     [&](std::int64_t n) { return n < nProve; });
}

/// How many of a hundred seeds give an interval that holds the truth.
int QuanteGiuste(const StatoSviluppo& stato, int nUltimo, int nClasse)
{
    prove::CorsaProva corsa;
    corsa.stato = stato;
    corsa.Sviluppa(Fila(1, nUltimo), nClasse);
    const double nVera = static_cast<double>(corsa.stato.nCondizionate) / corsa.stato.nSviluppate;
    int nGiuste = 0;
    for (std::uint64_t nSeme = 1; nSeme <= 100; ++nSeme) {
        const Campione campione = Sorteggiate(stato, nUltimo, nClasse, nSeme, 1000);
        const Quota quota = QuotaDi(campione.nPassano, campione.nProve);
        nGiuste += std::abs(quota.nQuota - nVera) <= quota.nErrore ? 1 : 0;
    }
    return nGiuste;
}

TEST(StimaSistema, LIntervalloContieneIlVero)
{
    EXPECT_GE(QuanteGiuste(prove::StatoDi({Dispari({3})}), 25, 5), 90);
    EXPECT_GE(QuanteGiuste(prove::StatoDi({Intervallo(TipoCondizione::peso, 15, 40)}), 25, 5), 90)
        << "una quota rara";
    EXPECT_GE(QuanteGiuste(prove::StatoDi({prove::Manca()}), 20, 5), 100);
}

/// The verdict of a sequence that passes is that of the columns in front.
TEST(StimaSistema, LeSequenzeInUnGruppoGuardanoLeColonneDavanti)
{
    auto sequenza = prove::Sequenza({1, 0}, {1}, {0});
    auto altra = Dispari({3});
    sequenza.IdRecupero = altra.IdRecupero = 1;
    altra.PuntiRec(2) = kVero;
    StatoSviluppo stato = prove::StatoDi({sequenza, altra});
    stato.aQuadroRec[1] = {-1, 2, 2};
    EXPECT_GE(QuanteGiuste(stato, 20, 5), 90);
}

TEST(StimaSistema, LoStessoSemeDaLeStesseColonne)
{
    const StatoSviluppo stato = prove::StatoDi({Dispari({3}), Intervallo(TipoCondizione::peso, 200, 255)});
    const Campione prima = Sorteggiate(stato, 90, 5, 7, 2000);
    const Campione seconda = Sorteggiate(stato, 90, 5, 7, 2000);
    EXPECT_EQ(prima.nPassano, seconda.nPassano);
    EXPECT_EQ(prima.aOk, seconda.aOk);
    EXPECT_NE(prima.aOk, Sorteggiate(stato, 90, 5, 8, 2000).aOk);
}

/// Every column comes as often as any other: of the ten pairs of five numbers each a tenth.
TEST(StimaSistema, TutteLeColonneSonoUgualmenteProbabili)
{
    for (int nSomma = 3; nSomma <= 9; ++nSomma) {
        const StatoSviluppo stato = prove::StatoDi({Intervallo(TipoCondizione::peso, nSomma, nSomma)});
        const Campione campione = Sorteggiate(stato, 5, 2, 1, 20000);
        const double nAttesa = nSomma <= 4 || nSomma >= 8 ? 0.1 : 0.2;
        EXPECT_NEAR(QuotaDi(campione.nPassano, campione.nProve).nQuota, nAttesa, 0.015) << nSomma;
    }
}

TEST(StimaSistema, ClasseUgualeAiNumeri)
{
    const Campione campione = Sorteggiate(prove::StatoDi({Dispari({10})}), 20, 20, 1, 10);
    EXPECT_EQ(campione.nPassano, campione.nProve);
    EXPECT_GE(campione.nProve, 10);
}

TEST(StimaSistema, UnaColonnaGuastaFinisceIlSorteggio)
{
    auto guasta = prove::ConParametro(prove::Lista(TipoCondizione::resto, {1}), 20);
    const Campione campione = Sorteggiate(prove::StatoDi({prove::Passa(), guasta}), 90, 5, 1, 100000);
    ASSERT_TRUE(campione.guasto);
    EXPECT_EQ(campione.guasto->Numero(), eErrore::indice);
    EXPECT_THAT(campione.guasto->Descrizione(), testing::HasSubstr("condizione 2 Resto"));
    EXPECT_LT(campione.nProve, 100);
}

TEST(StimaSistema, AncheUnaQuotaDiNienteHaUnErrore)
{
    const Quota niente = QuotaDi(0, 1000);
    EXPECT_EQ(niente.nQuota, 0);
    EXPECT_NEAR(niente.nErrore, 0.00383, 0.00001);
    const Quota tutto = QuotaDi(1000, 1000);
    EXPECT_EQ(tutto.nQuota, 1);
    EXPECT_NEAR(tutto.nErrore, 0.00383, 0.00001);
    EXPECT_NEAR(QuotaDi(500, 1000).nErrore, 0.031, 0.001);
}

} // namespace
} // namespace ordavel
