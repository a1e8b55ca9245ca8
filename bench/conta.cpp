// conta.cpp - how fast a system is counted without a development.
//
// The picks are all 90 numbers. Three conditions (sum, exactly three odd, at most one consecutive pair) are counted
// exactly in every class; forty conditions have their counters exact and the columns that pass estimated. A wrong count
// makes the line an error. The argument is the class.

#include "ordavel/ContaSistema.hpp"

#include "comune/RecordProva.hpp"

#include <benchmark/benchmark.h>

#include <array>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <random>
#include <vector>

namespace ordavel {
namespace {

using prove::Dispari;
using prove::Intervallo;
using prove::Lista;

/// The middle sums of a class, and what the three conditions pass together.
struct Attesa {
    std::int32_t nMinimo;
    std::int32_t nMassimo;
    double nPassano;
};

constexpr std::array<Attesa, 6> kAttese{{{200, 255, 5082009},
                                         {243, 303, 72589877},
                                         {289, 348, 672460629},
                                         {334, 394, 5017761100},
                                         {380, 440, 30401892697},
                                         {425, 485, 158402076833}}};

SistemaDaContare TuttiINumeri(std::int64_t nClasse)
{
    SistemaDaContare sistema;
    sistema.nClasse = static_cast<std::int16_t>(nClasse);
    for (std::int16_t n = 1; n <= kNumeroMassimo; ++n) {
        sistema.aNumeri[n] = n;
    }
    return sistema;
}

/// No estimate is due: the time is that of the exact count.
const OpzioniConteggio kSenzaStima{.attesa = std::chrono::hours(1)};

void TreCondizioni(benchmark::State& giri)
{
    const Attesa& attesa = kAttese.at(static_cast<std::size_t>(giri.range(0) - 5));
    SistemaDaContare sistema = TuttiINumeri(giri.range(0));
    sistema.stato.aCondizioni = {Intervallo(TipoCondizione::peso, attesa.nMinimo, attesa.nMassimo),
                                 Dispari({3}), Lista(TipoCondizione::consecutivi, {0, 1})};
    for (auto _ : giri) {
        const auto conto = ContaSistema(sistema, kSenzaStima);
        if (!conto || !conto->bEsatto || conto->nPassano != attesa.nPassano) {
            giri.SkipWithError("il conto non torna");
        }
    }
}

/// A sum, a count of consecutive pairs, and counts of numbers in sets of 10 to 39.
std::vector<RecordCondizione> Quaranta()
{
    std::mt19937 sorte(1);
    std::vector<RecordCondizione> aCondizioni{Intervallo(TipoCondizione::peso, 200, 350),
                                              Lista(TipoCondizione::consecutivi, {0, 1})};
    while (aCondizioni.size() < 40) {
        RecordCondizione record = Lista(TipoCondizione::puntiColonna, {0, 1, 2, 3, 4});
        const std::size_t nNumeri = 10 + sorte() % 30;
        for (std::size_t n = 0; n < nNumeri; ++n) {
            record.Numeri[static_cast<std::int64_t>(1 + sorte() % 90)] = kVero;
        }
        aCondizioni.push_back(record);
    }
    return aCondizioni;
}

void QuarantaStimate(benchmark::State& giri)
{
    SistemaDaContare sistema = TuttiINumeri(giri.range(0));
    sistema.stato.aCondizioni = Quaranta();
    for (auto _ : giri) {
        const auto conto = ContaSistema(sistema, {.bSoloStima = true});
        if (!conto || conto->nErrore <= 0) {
            giri.SkipWithError("non è una stima");
        }
    }
}

/// All counters, and the attempt at an exact count as far as the room for diagrams goes.
void QuarantaContate(benchmark::State& giri)
{
    SistemaDaContare sistema = TuttiINumeri(giri.range(0));
    sistema.stato.aCondizioni = Quaranta();
    for (auto _ : giri) {
        const auto conto = ContaSistema(sistema, {.nColonneMassime = 0});
        if (!conto || !conto->aCondizioni.back().bEsatto) {
            giri.SkipWithError("i contatori non sono esatti");
        }
    }
}

BENCHMARK(TreCondizioni)->DenseRange(5, 10)->Unit(benchmark::kMillisecond);
BENCHMARK(QuarantaStimate)->Arg(6)->Arg(10)->Unit(benchmark::kMillisecond);
BENCHMARK(QuarantaContate)->Arg(6)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace ordavel
