// ContaSistemaStime_prova.cpp - estimates on the way to a count, and counts that are cancelled.

#include "ordavel/ContaSistema.hpp"

#include "comune/Fallimenti.hpp"
#include "comune/GeneratoriSistema.hpp"
#include "comune/RecordProva.hpp"
#include "motore/ConteggiProva.hpp"

#include <gmock/gmock.h>

#include <atomic>
#include <chrono>
#include <thread>
#include <vector>

namespace ordavel {
namespace {

using namespace std::chrono_literals;
using prove::Dispari;
using prove::Fila;
using prove::Intervallo;
using prove::kMai;
using prove::Lista;
using prove::Ok;
using prove::Sistema;
using testing::ElementsAre;

// ---- estimates ----

TEST(ContaSistemaStime, QuelCheNonSiPercorreRestaUnaStima)
{
    const auto specchi = Lista(TipoCondizione::simmetrieNum, {0});
    const auto conto = ContaSistema(Sistema(Fila(1, 90), 10, {specchi, Dispari({3})}), {.attesa = kMai});
    ASSERT_TRUE(conto.has_value());
    EXPECT_FALSE(conto->bEsatto);
    EXPECT_GT(conto->nErrore, 0);
    EXPECT_GT(conto->nPassano, conto->nErrore);
    EXPECT_THAT(Ok(*conto), ElementsAre(3266751780864, 643936807800)) << "i contatori sono esatti";
    EXPECT_TRUE(conto->aCondizioni[0].bEsatto);
}

TEST(ContaSistemaStime, UnEmulatoreSiStimaColSuoErrore)
{
    RecordCondizione emulatore;
    emulatore.Tipo = TipoCondizione::emulatore;
    for (int k = 0; k <= 10; ++k) {
        emulatore.PuntiRec(k) = 30;
    }
    emulatore.PuntiOk(1) = 1;
    SistemaDaContare sistema = Sistema(Fila(1, 90), 10, {emulatore});
    RigaEmulatore riga;
    riga(1) = riga(2) = riga(3) = 1;
    sistema.stato.aEmulatore = RigheEmulatore({riga});
    const auto conto = ContaSistema(sistema, {.bSoloStima = true, .attesa = kMai});
    ASSERT_TRUE(conto.has_value());
    const ContoCondizione& contato = conto->aCondizioni[0];
    EXPECT_FALSE(contato.bEsatto);
    EXPECT_GT(contato.nErrore, 0);
    // Columns that have exactly one of the three numbers: three times 87 numbers in nine places.
    EXPECT_NEAR(contato.nOk, 1538750402010, 2 * contato.nErrore);
    EXPECT_EQ(contato.nOk + contato.nKo, conto->nColonne);
}

/// Asks for the estimate at once, on the way to the exact count.
TEST(ContaSistemaStime, LaStimaArrivaPrimaDelConto)
{
    std::vector<ConteggioSistema> aStime;
    const SistemaDaContare sistema =
        Sistema(Fila(1, 40), 5, {Lista(TipoCondizione::simmetrieNum, {0}), Dispari({2, 3})});
    const auto conto =
        ContaSistema(sistema, {.attesa = 0ms}, {}, [&](const auto& stima) { aStime.push_back(stima); });
    ASSERT_TRUE(conto && conto->bEsatto);
    ASSERT_EQ(aStime.size(), 1U);
    EXPECT_FALSE(aStime[0].bEsatto);
    EXPECT_NEAR(aStime[0].nPassano, conto->nPassano, 2 * aStime[0].nErrore);
    EXPECT_EQ(aStime[0].nColonne, conto->nColonne);
}

TEST(ContaSistemaStime, SoloLaStima)
{
    const SistemaDaContare sistema = Sistema(Fila(1, 40), 5, {Lista(TipoCondizione::simmetrieNum, {0})});
    const auto conto = ContaSistema(sistema, {.bSoloStima = true, .attesa = 0ms});
    ASSERT_TRUE(conto.has_value());
    EXPECT_FALSE(conto->bEsatto);
    EXPECT_GT(conto->nErrore, 0);
}

TEST(ContaSistemaStime, LaStimaDiUnSistemaGuastoFallisce)
{
    const auto guasta = prove::Compila(Condizione{"Resto", "Resto a : 20", "1", "2", ""});
    const SistemaDaContare sistema = Sistema(Fila(1, 40), 5, {guasta});
    EXPECT_EQ(prove::NumeroErrore(
                  [&] { static_cast<void>(ContaSistema(sistema, {.bSoloStima = true, .attesa = 0ms})); }),
              9);
}

// ---- cancelling ----

TEST(ContaSistemaStime, AnnullatoNonDaNiente)
{
    const SistemaDaContare sistema =
        Sistema(Fila(1, 90), 8, {Intervallo(TipoCondizione::peso, 334, 394), Dispari({3})});
    EXPECT_EQ(ContaSistema(sistema, {.attesa = kMai}, [] { return true; }), std::nullopt);
    for (const int nVolta : {2, 10, 40}) {
        int nChiesto = 0;
        EXPECT_EQ(ContaSistema(sistema, {.attesa = kMai}, [&] { return ++nChiesto == nVolta; }),
                  std::nullopt);
        EXPECT_EQ(nChiesto, nVolta);
    }
}

TEST(ContaSistemaStime, AnnullatoDuranteLaStimaOMentreCammina)
{
    const SistemaDaContare sistema = Sistema(Fila(1, 60), 6, {Lista(TipoCondizione::simmetrieNum, {0})});
    bool bStimato = false;
    EXPECT_EQ(ContaSistema(
                  sistema, {.attesa = 0ms}, [&] { return bStimato; }, [&](const auto&) { bStimato = true; }),
              std::nullopt);
    EXPECT_TRUE(bStimato);
    int nChiesto = 0;
    EXPECT_EQ(ContaSistema(sistema, {.attesa = 0ms}, [&] { return ++nChiesto > 3; }), std::nullopt);
}

TEST(ContaSistemaStime, InUnFiloSuoEAnnullatoDaUnAltro)
{
    const SistemaDaContare sistema = Sistema(Fila(1, 90), 10, {Lista(TipoCondizione::simmetrieNum, {0})});
    std::atomic<bool> bAnnulla{false};
    std::atomic<bool> bStimato{false};
    std::optional<ConteggioSistema> conto{ConteggioSistema{}};
    std::thread filo([&] {
        conto = ContaSistema(
            sistema, {.attesa = 0ms, .nColonneMassime = 1e13}, [&] { return bAnnulla.load(); },
            [&](const auto&) { bStimato = true; });
    });
    while (!bStimato) {
        std::this_thread::yield();
    }
    bAnnulla = true;
    filo.join();
    EXPECT_EQ(conto, std::nullopt);
}

} // namespace
} // namespace ordavel
