// TavolaInsiemi_prova.cpp - which sets were seen twice, with a place for each and without.

#include "riduzione/TavolaInsiemi.hpp"

#include <gtest/gtest.h>

#include <map>
#include <random>
#include <set>

namespace ordavel {
namespace {

constexpr std::uint64_t kRanghi = 3000;

/// Shows random ranks to a table and holds its numbers against a count.
void Confronta(std::uint64_t nDiretti)
{
    std::mt19937 caso(7);
    std::map<std::uint64_t, int> aVisti;
    TavolaInsiemi tavola(kRanghi, 40, nDiretti); // a small table of hashes, so that many ranks are in doubt
    std::vector<std::uint64_t> aMostrati(2000);
    for (std::uint64_t& nRango : aMostrati) {
        nRango = std::uniform_int_distribution<std::uint64_t>(0, kRanghi - 1)(caso);
        ++aVisti[nRango];
        tavola.Vedi(nRango);
    }
    EXPECT_EQ(tavola.Rivedere(), nDiretti < kRanghi);
    tavola.PreparaRivedere();
    for (const std::uint64_t nRango : aMostrati) {
        if (tavola.Rivedere()) {
            tavola.Rivedi(nRango);
        }
    }
    const std::uint32_t nFine = tavola.Numera(100);
    std::set<std::uint32_t> aNumeri;
    for (const auto& [nRango, nQuante] : aVisti) {
        const std::uint32_t nNumero = tavola.Numero(nRango);
        EXPECT_EQ(nNumero != TavolaInsiemi::kNessuno, nQuante > 1) << nRango;
        if (nQuante > 1) {
            EXPECT_TRUE(aNumeri.insert(nNumero).second) << nNumero;
        }
    }
    ASSERT_FALSE(aNumeri.empty());
    EXPECT_EQ(*aNumeri.begin(), 100U);
    EXPECT_EQ(*aNumeri.rbegin(), nFine - 1);
    EXPECT_EQ(aNumeri.size(), nFine - 100);
}

TEST(TavolaInsiemi, NumeraSoloGliInsiemiVistiDueVolteConUnPostoPerOgnuno)
{
    Confronta(kRanghi);
}

TEST(TavolaInsiemi, NumeraSoloGliInsiemiVistiDueVolteAncheSenzaUnPostoPerOgnuno)
{
    Confronta(kRanghi - 1);
}

TEST(TavolaInsiemi, SenzaUnPostoPerOgnunoNessunInsiemeENumeratoSeTuttiSonoDiversi)
{
    TavolaInsiemi tavola(1000, 1000, 0);
    for (std::uint64_t nRango = 0; nRango < 1000; ++nRango) {
        tavola.Vedi(nRango);
    }
    tavola.PreparaRivedere();
    for (std::uint64_t nRango = 0; nRango < 1000; ++nRango) {
        tavola.Rivedi(nRango);
    }
    EXPECT_EQ(tavola.Numera(5), 5U);
    EXPECT_EQ(tavola.Numero(999), TavolaInsiemi::kNessuno);
}

/// Columns may be made so that nearly every set is shared.
TEST(TavolaInsiemi, SenzaUnPostoPerOgnunoLaMemoriaContaOgniInsiemeInDubbio)
{
    constexpr std::uint64_t kInsiemi = 100'000'000;
    EXPECT_GE(TavolaInsiemi::Memoria(TavolaInsiemi::kDiretti + 1, kInsiemi), 8.0 * kInsiemi);
    EXPECT_EQ(TavolaInsiemi::Memoria(TavolaInsiemi::kDiretti, kInsiemi), 4.0 * TavolaInsiemi::kDiretti);
}

} // namespace
} // namespace ordavel
