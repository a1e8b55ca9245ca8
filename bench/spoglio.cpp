// spoglio.cpp - how fast columns are checked against a winning column, beside reading them alone.
//
// One million random columns of class 5, 20 MB, the most that are checked at once. All files stand in one folder of
// the system's temporary one.

#include "ordavel/Ordavel.hpp"

#include "analisi/F_Spoglio.hpp"
#include "comune/CartellaProva.hpp"
#include "persistenza/ModFileColonne.hpp"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <array>
#include <functional>
#include <memory>
#include <numeric>
#include <random>
#include <string>
#include <vector>

namespace ordavel {
namespace {

constexpr std::size_t kColonne = kColonneInMemoria;

class SenzaStatistica : public Statistica {
public:
    void Avvia() override {}
    void Ferma() override {}
    void MostraStatistica(std::int32_t, std::int16_t) override {}
};

/// A desktop where nobody sits, and whose dialogs are used by the benchmark.
class DesktopBanco : public Piattaforma {
public:
    explicit DesktopBanco(std::function<void(F_Spoglio&)> usa) : m_Usa(std::move(usa)) {}

    eRisposta MostraMessaggio(const Messaggio&) override { return eRisposta::no; }
    std::string DialogoApri(const RichiestaFile&) override { return {}; }
    std::string DialogoSalva(const RichiestaFile&) override { return {}; }
    std::string ScegliCartella(const std::string&) override { return {}; }
    void MostraModale(Dialogo& dialogo) override { m_Usa(dynamic_cast<F_Spoglio&>(dialogo)); }
    std::unique_ptr<Statistica> CreaStatistica() override { return std::make_unique<SenzaStatistica>(); }
    void LasciaEventi() override {}
    void PuntatoreOccupato(bool) override {}
    float SecondiDaMezzanotte() override { return 0; }

private:
    std::function<void(F_Spoglio&)> m_Usa;
};

void ScriviColonne(const std::string& sFile)
{
    std::mt19937 sorte(1);
    std::array<std::uint8_t, kNumeroMassimo> aNumeri{};
    std::iota(aNumeri.begin(), aNumeri.end(), std::uint8_t{1});
    std::vector<Colonna> aColonne(kColonne);
    for (Colonna& colonna : aColonne) {
        std::sample(aNumeri.begin(), aNumeri.end(), colonna.aNumeri.begin(), 5, sorte);
    }
    FileBinario file(sFile, eApertura::scrittura);
    AccodaColonne(file, aColonne);
    file.Chiudi();
}

/// Has the dialog of a system with a million columns used, and tells how many lines it lists.
void ConLaFinestra(benchmark::State& giri, const std::function<void(F_Spoglio&)>& usa)
{
    const prove::CartellaProva cartella;
    DesktopBanco desktop([&](F_Spoglio& finestra) {
        finestra.Text1.Testo.Poni("5.12.30.41.60");
        usa(finestra);
        giri.counters["righe"] = static_cast<double>(finestra.ListView1.Righe.Valore().size());
    });
    Ordavel sistema(desktop);
    sistema.PoniPercorsoTemp(cartella / "temp");
    ScriviColonne(sistema.FileColonne());
    sistema.Toolbar2_ButtonClick("ConfrontoCondSuCol");
    giri.SetItemsProcessed(giri.iterations() * static_cast<std::int64_t>(kColonne));
}

/// Argument: the least score to list.
void ControllaUnMilione(benchmark::State& giri)
{
    ConLaFinestra(giri, [&](F_Spoglio& finestra) {
        for (auto _ : giri) {
            finestra.VerificaVincite(static_cast<std::int32_t>(giri.range(0)));
        }
    });
}

/// All columns with a point, again in the order of their points that the user has chosen.
void ControllaEOrdina(benchmark::State& giri)
{
    ConLaFinestra(giri, [&](F_Spoglio& finestra) {
        constexpr std::int16_t kPunti = 3;
        finestra.ListView1_ColumnClick(kPunti);
        for (auto _ : giri) {
            finestra.VerificaVincite(1);
        }
    });
}

void LeggiSoltanto(benchmark::State& giri)
{
    const prove::CartellaProva cartella;
    const std::string sColonne = cartella / "colonne.col";
    ScriviColonne(sColonne);
    for (auto _ : giri) {
        benchmark::DoNotOptimize(LeggiColonne(sColonne, kColonneInMemoria));
    }
    giri.SetItemsProcessed(giri.iterations() * static_cast<std::int64_t>(kColonne));
}

BENCHMARK(ControllaUnMilione)->Arg(3)->Arg(2)->Arg(1)->Unit(benchmark::kMillisecond);
BENCHMARK(ControllaEOrdina)->Unit(benchmark::kMillisecond);
BENCHMARK(LeggiSoltanto)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace ordavel
