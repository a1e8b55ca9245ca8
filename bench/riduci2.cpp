// riduci2.cpp - the streaming reduction beside reading its file, and the check of what it promises.
//
// Ten million columns of class 6, 200 MB: at random, and the first ten million of all sets of 90 numbers. All files
// stand in one folder of the system's temporary one and are in the system's memory when they are read.

#include "ColonneBanco.hpp"
#include "comune/CartellaProva.hpp"
#include "persistenza/ModFileColonne.hpp"
#include "riduzione/BlocchiColonne.hpp"
#include "riduzione/ModGaranzia.hpp"
#include "riduzione/ModRiduci2.hpp"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <numeric>
#include <random>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace ordavel {
namespace {

constexpr std::int64_t kColonne = 10000000;
constexpr std::int64_t kColonneControllo = 1000000;
constexpr std::size_t kClasse = 6;

template <typename Passo> void Scrivi(const std::string& sFile, std::int64_t nColonne, Passo&& passo)
{
    FileBinario file(sFile, eApertura::scrittura);
    ColonneRidotte colonne(file);
    Colonna colonna = banco::PrimaColonna(kClasse);
    for (std::int64_t n = 0; n < nColonne; ++n) {
        colonne.Tieni(colonna);
        passo(colonna);
    }
    colonne.ScriviResto();
    file.Chiudi();
}

/// The files of the whole program, made once.
class Archivio {
public:
    Archivio()
    {
        std::mt19937 sorte(1);
        const auto caso = [&sorte](Colonna& colonna) { banco::Sorteggia(colonna, kClasse, sorte); };
        Scrivi(sCasuali, kColonne, caso);
        Scrivi(sOrdinate, kColonne,
               [](Colonna& colonna) { banco::Prossima(colonna, kClasse, kNumeroMassimo); });
        Scrivi(sMilione, kColonneControllo, caso);
    }

    prove::CartellaProva cartella;
    std::string sCasuali = cartella / "casuali.col";
    std::string sOrdinate = cartella / "ordinate.col";
    std::string sMilione = cartella / "milione.col";
    std::string sRidotto = cartella / "ridotto.col";
};

Archivio& File()
{
    static Archivio archivio;
    return archivio;
}

void LeggiSoltanto(benchmark::State& giri)
{
    const std::string& sFile = File().sCasuali;
    std::int64_t nLette = 0;
    for (auto _ : giri) {
        FileBinario file(sFile, eApertura::lettura);
        BlocchiColonne blocchi(file, 0, kColonne);
        for (auto aBlocco = blocchi.Prossimo(); !aBlocco.empty(); aBlocco = blocchi.Prossimo()) {
            nLette += std::ssize(aBlocco);
        }
    }
    giri.SetItemsProcessed(nLette);
}

void Riduci(benchmark::State& giri, const std::string& sFile, std::int64_t nColonne)
{
    banco::SenzaUtente nessuno;
    for (auto _ : giri) {
        RiduzioneSequenziale(sFile, File().sRidotto, static_cast<std::int32_t>(giri.range(0)), nessuno);
    }
    giri.SetItemsProcessed(giri.iterations() * nColonne);
    giri.counters["tenute"] = NumeroColonneFile(File().sRidotto);
}

void RiduciCasuali(benchmark::State& giri)
{
    Riduci(giri, File().sCasuali, kColonne);
}

void RiduciOrdinate(benchmark::State& giri)
{
    Riduci(giri, File().sOrdinate, kColonne);
}

void Controlla(benchmark::State& giri)
{
    banco::SenzaUtente nessuno;
    const auto nRiduzione = static_cast<std::int32_t>(giri.range(0));
    RiduzioneSequenziale(File().sMilione, File().sRidotto, nRiduzione, nessuno);
    for (auto _ : giri) {
        const EsitoGaranzia esito = ControllaGaranzia(File().sMilione, File().sRidotto,
                                                      static_cast<std::int32_t>(kClasse) - nRiduzione);
        if (esito.nControllate != kColonneControllo || esito.nScoperte != 0) {
            giri.SkipWithError("la garanzia non tiene");
        }
    }
    giri.SetItemsProcessed(giri.iterations() * kColonneControllo);
}

BENCHMARK(LeggiSoltanto)->Unit(benchmark::kMillisecond);
BENCHMARK(RiduciCasuali)->DenseRange(1, 3)->Unit(benchmark::kMillisecond);
BENCHMARK(RiduciOrdinate)->DenseRange(1, 3)->Unit(benchmark::kMillisecond);
BENCHMARK(Controlla)->DenseRange(1, 3)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace ordavel
