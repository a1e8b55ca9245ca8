// tratti.cpp - a development by several threads, beside that by one.
//
// The picks are all 90 numbers. In class 6 forty conditions (622614630 columns): InOrdine is the engine of one thread,
// ATratti the other; its argument is the number of threads. In class 10 (5720645481903 columns) conditions that keep about
// a million, so that nearly all beginnings are passed over. Lines are read against each other, by wall time as far as the
// machine does nothing else, otherwise by processor time.

#include "comune/RecordProva.hpp"
#include "motore/ModSviluppo.hpp"
#include "motore/SviluppoTratti.hpp"

#include <benchmark/benchmark.h>

#include <filesystem>
#include <random>
#include <string>

namespace ordavel {
namespace {

using prove::Intervallo;
using prove::Lista;

class SenzaMostrare : public Avanzamento {
public:
    void Mostra(std::int32_t, std::int32_t, std::int16_t) override {}
    void LasciaEventi() override {}
    void MostraFallimento(std::string_view, const Errore&) override {}
};

NumeriScelti TuttiINumeri()
{
    NumeriScelti aNumeri;
    for (std::int16_t n = 1; n <= kNumeroMassimo; ++n) {
        aNumeri[n] = n;
    }
    return aNumeri;
}

/// A sum, a count of consecutive pairs, and counts of numbers in sets of up to 39, all of which must hold. They stand
/// in a link, so that every block is judged; few columns pass, so that the file costs little.
std::vector<RecordCondizione> Quaranta()
{
    std::mt19937 sorte(1);
    std::vector<RecordCondizione> aCondizioni{Intervallo(TipoCondizione::peso, 240, 310),
                                              Lista(TipoCondizione::consecutivi, {0, 1}), prove::LinkOpen()};
    while (aCondizioni.size() < 41) {
        RecordCondizione record = Lista(TipoCondizione::puntiColonna, {0, 1, 2});
        const std::size_t nNumeri = 10 + sorte() % 30;
        for (std::size_t n = 0; n < nNumeri; ++n) {
            record.Numeri[static_cast<std::int64_t>(1 + sorte() % 90)] = kVero;
        }
        aCondizioni.push_back(record);
    }
    aCondizioni.push_back(prove::LinkClose({38}));
    return aCondizioni;
}

/// A small sum, no pair of partners, a width.
std::vector<RecordCondizione> PocheInDieci()
{
    return {Intervallo(TipoCondizione::peso, 55, 110), Lista(TipoCondizione::paralleliNum, {0}),
            Lista(TipoCondizione::consecutivi, {0, 1, 2, 3, 4, 5})};
}

/// A run into a file that is deleted outside the time.
template <typename Corsa> void ScriviFile(benchmark::State& giri, Corsa&& corsa)
{
    const std::string sPath = (std::filesystem::temp_directory_path() / "ordavel-tratti.col").string();
    std::filesystem::remove(sPath);
    for (auto _ : giri) {
        FileBinario file(sPath, eApertura::scrittura);
        corsa(file);
        file.Chiudi();
        giri.PauseTiming();
        std::filesystem::remove(sPath);
        giri.ResumeTiming();
    }
}

void InOrdine(benchmark::State& giri)
{
    StatoSviluppo stato;
    SenzaMostrare avanzamento;
    ScriviFile(giri, [&](FileBinario& file) {
        stato.aCondizioni = Quaranta();
        SviluppaColonne(TuttiINumeri(), 6, 0, file, stato, avanzamento);
    });
    giri.counters["tenute"] = stato.nCondizionate;
}

void Tratti(benchmark::State& giri, const std::vector<RecordCondizione>& aCondizioni, std::int16_t nClasse)
{
    double nTenute = 0;
    ScriviFile(giri, [&](FileBinario& file) {
        StatoSviluppo stato;
        stato.aCondizioni = aCondizioni;
        ComandiTratti comandi;
        SviluppaTratti(TuttiINumeri(), nClasse, 0, file, stato, comandi,
                       {.nFili = static_cast<unsigned>(giri.range(0))});
        nTenute = static_cast<double>(comandi.nCondizionate);
    });
    giri.counters["tenute"] = nTenute;
}

void Opzioni(benchmark::internal::Benchmark* banco)
{
    banco->Arg(1)->Arg(2)->Unit(benchmark::kMillisecond)->UseRealTime()->MeasureProcessCPUTime();
}

BENCHMARK(InOrdine)->Unit(benchmark::kMillisecond)->UseRealTime()->MeasureProcessCPUTime();
BENCHMARK_CAPTURE(Tratti, quaranta_classe_6, Quaranta(), 6)->Apply(Opzioni);
BENCHMARK_CAPTURE(Tratti, poche_classe_10, PocheInDieci(), 10)->Apply(Opzioni);

} // namespace
} // namespace ordavel
