// emulatore.cpp - an emulator of 500 draws: a column against the sets of draws, and against the draws one by one.

#include "calcoli/ModEmulazione.hpp"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <random>
#include <vector>

namespace ordavel {
namespace {

constexpr std::size_t kEstrazioni = 500;
constexpr std::size_t kColonne = 4096;

std::vector<RigaEmulatore> Estrazioni()
{
    std::mt19937 sorte(1);
    std::vector<RigaEmulatore> aRighe(kEstrazioni);
    for (RigaEmulatore& aRiga : aRighe) {
        for (int n = 0; n < 6; ++n) {
            aRiga(static_cast<std::int64_t>(sorte() % 90) + 1) = 1;
        }
    }
    return aRighe;
}

std::vector<Colonna> Colonne(std::int64_t nClasse)
{
    std::mt19937 sorte(2);
    std::vector<Colonna> aColonne(kColonne);
    for (Colonna& colonna : aColonne) {
        for (std::int64_t k = 0; k < nClasse; ++k) {
            colonna.aNumeri[static_cast<std::size_t>(k)] = static_cast<std::uint8_t>(sorte() % 90 + 1);
        }
    }
    return aColonne;
}

template <typename Righe> void Misura(benchmark::State& giri, const Righe& righe)
{
    const auto nClasse = static_cast<std::int16_t>(giri.range(0));
    const std::vector<Colonna> aColonne = Colonne(nClasse);
    for (auto _ : giri) {
        for (const Colonna& colonna : aColonne) {
            benchmark::DoNotOptimize(CalcolaEmulatore(nClasse, colonna, righe));
        }
    }
    giri.SetItemsProcessed(giri.iterations() * static_cast<std::int64_t>(kColonne));
}

void Insiemi(benchmark::State& giri)
{
    Misura(giri, RigheEmulatore(Estrazioni()));
}
BENCHMARK(Insiemi)->Arg(6)->Arg(10);

void RigaPerRiga(benchmark::State& giri)
{
    Misura(giri, Estrazioni());
}
BENCHMARK(RigaPerRiga)->Arg(6)->Arg(10);

} // namespace
} // namespace ordavel
