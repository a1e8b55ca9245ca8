// motore.cpp - how fast the engine is, beside the writing of the same bytes.
//
// The system is whole: 90 numbers in class 5, 43949268 columns. Each development writes its file, as every real
// one does; ScriviSoltanto writes the 878985360 bytes of all columns in the same blocks and is what the others
// are read against. Times of different runs do not compare: the disk and the neighbours change.

#include "comune/RecordProva.hpp"
#include "motore/ModSviluppo.hpp"
#include "motore/ModVerifica.hpp"
#include "persistenza/ModFileColonne.hpp"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <filesystem>
#include <numeric>
#include <optional>
#include <random>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace ordavel {
namespace {

using enum TipoCondizione;
using prove::ConParametro;
using prove::Intervallo;
using prove::Lista;

constexpr std::int16_t kClasse = 5;
constexpr std::int64_t kColonneIntere = 43949268;

/// The file that every run writes, and deletes outside the time.
std::string PathBanco()
{
    return (std::filesystem::temp_directory_path() / "ordavel-banco.col").string();
}

/// One run that writes the file; `corsa` gets it open and empty.
template <typename Corsa> void ScriviFile(benchmark::State& giri, Corsa&& corsa)
{
    std::filesystem::remove(PathBanco());
    for (auto _ : giri) {
        FileBinario file(PathBanco(), eApertura::scrittura);
        corsa(file);
        file.Chiudi();
        giri.PauseTiming();
        std::filesystem::remove(PathBanco());
        giri.ResumeTiming();
    }
    giri.SetItemsProcessed(giri.iterations() * kColonneIntere);
}

class SenzaMostrare : public Avanzamento {
public:
    void Mostra(std::int32_t, std::int32_t, std::int16_t) override {}
    void LasciaEventi() override {}
    void MostraFallimento(std::string_view, const Errore&) override {}
};

/// Eight conditions of different families.
std::vector<RecordCondizione> OttoMiste()
{
    return {Intervallo(peso, 200, 255),
            prove::Dispari({3}),
            Lista(consecutivi, {0, 1}),
            Intervallo(distanzaMinima, 1, 20),
            ConParametro(Lista(vortice, {1, 2, 3}), 1),
            Lista(decine, {1, 2}),
            Intervallo(sommaCadenze, 10, 30),
            ConParametro(Lista(simmetrie, {0, 1}), 1)};
}

NumeriScelti TuttiINumeri()
{
    NumeriScelti aNumeri;
    for (std::int16_t n = 1; n <= kNumeroMassimo; ++n) {
        aNumeri[n] = n;
    }
    return aNumeri;
}

/// Columns that satisfy each condition.
std::vector<double> Conteggi(const StatoSviluppo& stato)
{
    std::vector<double> aConteggi;
    for (const RecordCondizione& record : stato.aCondizioni) {
        aConteggi.push_back(record.ContaOk);
    }
    return aConteggi;
}

std::optional<eNucleo> NucleoChiesto(const benchmark::State& giri)
{
    return giri.range(0) < 0 ? std::nullopt : std::optional(static_cast<eNucleo>(giri.range(0)));
}

/// The plain form, and the blocks by each instruction set of this processor.
void Forme(benchmark::internal::Benchmark* banco)
{
    banco->DenseRange(-1, static_cast<int>(NucleoMigliore()))->Unit(benchmark::kMillisecond);
}

/// One whole development; the argument is an instruction set, -1 for the plain form. Wrong counts make its line an
/// error.
/// Takes    nAttese   columns to be kept
///          aAttesi   columns that satisfy each condition
void Sviluppa(benchmark::State& giri, const std::vector<RecordCondizione>& aCondizioni, std::int32_t nAttese,
              const std::vector<double>& aAttesi)
{
    StatoSviluppo stato;
    SenzaMostrare avanzamento;
    ScriviFile(giri, [&](FileBinario& file) {
        stato.aCondizioni = aCondizioni;
        SviluppaColonne(TuttiINumeri(), kClasse, 0, file, stato, avanzamento, NucleoChiesto(giri));
    });
    giri.counters["tenute"] = stato.nCondizionate;
    if (stato.nCondizionate != nAttese || Conteggi(stato) != aAttesi) {
        giri.SkipWithError("i conteggi non tornano");
    }
}

void ScriviSoltanto(benchmark::State& giri)
{
    const std::vector<Colonna> aBlocco(static_cast<std::size_t>(kColonneBuffer));
    ScriviFile(giri, [&](FileBinario& file) {
        for (std::int64_t nResto = kColonneIntere; nResto > 0; nResto -= kColonneBuffer) {
            const auto nQuante = static_cast<std::size_t>(std::min<std::int64_t>(nResto, kColonneBuffer));
            AccodaColonne(file, std::span(aBlocco).first(nQuante));
        }
    });
}

/// The columns alone: neither tested nor written.
void EnumeraSoltanto(benchmark::State& giri)
{
    for (auto _ : giri) {
        Enumeratore enumeratore(TuttiINumeri(), kClasse);
        Colonna colonna;
        do {
            enumeratore.Componi(colonna);
            benchmark::DoNotOptimize(colonna);
        } while (enumeratore.Avanza());
    }
    giri.SetItemsProcessed(giri.iterations() * kColonneIntere);
}

/// Enumeration and test without a condition, nothing written.
void EnumeraEVerifica(benchmark::State& giri)
{
    StatoSviluppo stato;
    for (auto _ : giri) {
        Enumeratore enumeratore(TuttiINumeri(), kClasse);
        Colonna colonna;
        do {
            enumeratore.Componi(colonna);
            benchmark::DoNotOptimize(VerificaColonna(kClasse, colonna, stato));
        } while (enumeratore.Avanza());
    }
    giri.SetItemsProcessed(giri.iterations() * kColonneIntere);
}

std::vector<Colonna> ColonneACaso(std::int16_t nClasse, std::size_t nQuante)
{
    std::mt19937 caso(1);
    std::vector<std::uint8_t> aNumeri(static_cast<std::size_t>(kNumeroMassimo));
    std::vector<Colonna> aColonne(nQuante);
    for (Colonna& colonna : aColonne) {
        std::iota(aNumeri.begin(), aNumeri.end(), std::uint8_t{1});
        std::sample(aNumeri.begin(), aNumeri.end(), colonna.aNumeri.begin(), nClasse, caso);
    }
    return aColonne;
}

/// One kind alone. The argument is its number; kinds with a parameter get one that suits them.
RecordCondizione Tipica(TipoCondizione tipo)
{
    RecordCondizione record = Intervallo(tipo, 0, 500);
    record.Parametro = tipo == resto ? 7 : 2;
    record.Passo = tipo == gruppiDiConsecutivi ? 2 : 1;
    record.Numeri[0] = tipo == sequenze ? 1 : 0;
    record.PuntiOk(1) = record.PuntiOk2(1) = kVero;
    return record;
}

void VerificaTipo(benchmark::State& giri)
{
    const std::vector<Colonna> aColonne = ColonneACaso(kClasse, 4096);
    StatoSviluppo stato;
    stato.aCondizioni = {Tipica(static_cast<TipoCondizione>(giri.range(0)))};
    stato.aEmulatore = RigheEmulatore(std::vector<RigaEmulatore>(50));
    for (auto _ : giri) {
        for (const Colonna& colonna : aColonne) {
            benchmark::DoNotOptimize(VerificaColonna(kClasse, colonna, stato));
        }
    }
    giri.SetItemsProcessed(giri.iterations() * static_cast<std::int64_t>(aColonne.size()));
}

BENCHMARK(ScriviSoltanto)->Unit(benchmark::kMillisecond);
BENCHMARK(EnumeraSoltanto)->Unit(benchmark::kMillisecond);
BENCHMARK(EnumeraEVerifica)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Sviluppa, senza_condizioni, {RecordCondizione{}}, 43949268, {0})->Apply(Forme);
BENCHMARK_CAPTURE(Sviluppa, una_condizione, {Intervallo(peso, 200, 255)}, 16183140, {16183140})->Apply(Forme);
BENCHMARK_CAPTURE(Sviluppa, tre_condizioni,
                  {Intervallo(peso, 200, 255), prove::Dispari({3}), Lista(consecutivi, {0, 1})}, 5082009,
                  {16183140, 14048100, 43320522})
    ->Apply(Forme);
BENCHMARK_CAPTURE(Sviluppa, otto_condizioni, OttoMiste(), 2459943,
                  {16183140, 14048100, 43320522, 43949016, 30078543, 40383000, 38582604, 32954856})
    ->Apply(Forme);
BENCHMARK(VerificaTipo)->DenseRange(0, kTipiCondizione)->Unit(benchmark::kMicrosecond);

} // namespace
} // namespace ordavel
