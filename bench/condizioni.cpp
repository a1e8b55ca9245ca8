// condizioni.cpp - how fast a full list of conditions is filled and emptied again, a condition at a time.
//
// Each line is 2000 commands of the component, as a host gives them: insertions from a text through the dialog of
// the kind, or deletions. The list of a deletion is filled outside the time.

#include "ordavel/Ordavel.hpp"

#include <benchmark/benchmark.h>

#include <memory>
#include <string>
#include <string_view>

namespace ordavel {
namespace {

constexpr std::string_view kValori = "1,2|3";

class SenzaStatistica : public Statistica {
public:
    void Avvia() override {}
    void Ferma() override {}
    void MostraStatistica(std::int32_t, std::int16_t) override {}
};

/// A desktop where nobody sits.
class SenzaDesktop : public Piattaforma {
public:
    eRisposta MostraMessaggio(const Messaggio&) override { return eRisposta::no; }
    std::string DialogoApri(const RichiestaFile&) override { return {}; }
    std::string DialogoSalva(const RichiestaFile&) override { return {}; }
    std::string ScegliCartella(const std::string&) override { return {}; }
    void MostraModale(Dialogo&) override {}
    std::unique_ptr<Statistica> CreaStatistica() override { return std::make_unique<SenzaStatistica>(); }
    void LasciaEventi() override {}
    void PuntatoreOccupato(bool) override {}
    float SecondiDaMezzanotte() override { return 0; }
};

void Riempi(Ordavel& sistema)
{
    for (std::int32_t i = 0; i < kCondizioniMassime; ++i) {
        sistema.InsCondizione(TipoCondizione::consecutivi, kValori);
    }
}

/// How many rows hold a condition.
std::int32_t Piene(Ordavel& sistema)
{
    std::int32_t nPiene = 0;
    for (std::int32_t nRiga = 1; nRiga <= kCondizioniMassime; ++nRiga) {
        nPiene += sistema.GetGridCond().Vuota(nRiga) ? 0 : 1;
    }
    return nPiene;
}

/// A wrong number of rows at the end makes the line an error.
void Concludi(benchmark::State& giri, Ordavel& sistema, std::int32_t nAttese)
{
    giri.SetItemsProcessed(giri.iterations() * kCondizioniMassime);
    if (Piene(sistema) != nAttese) {
        giri.SkipWithError("le righe non tornano");
    }
}

void InserisciDuemila(benchmark::State& giri)
{
    SenzaDesktop desktop;
    Ordavel sistema(desktop);
    for (auto _ : giri) {
        giri.PauseTiming();
        sistema.GetGridCond().Svuota();
        giri.ResumeTiming();
        Riempi(sistema);
    }
    Concludi(giri, sistema, kCondizioniMassime);
}

/// From the top, where every deletion moves all that is left.
void EliminaDuemila(benchmark::State& giri)
{
    SenzaDesktop desktop;
    Ordavel sistema(desktop);
    for (auto _ : giri) {
        giri.PauseTiming();
        Riempi(sistema);
        sistema.SetColonnaGrid(1);
        giri.ResumeTiming();
        for (std::int32_t i = 0; i < kCondizioniMassime; ++i) {
            sistema.EliminaCondizione();
        }
    }
    Concludi(giri, sistema, 0);
}

BENCHMARK(InserisciDuemila)->Unit(benchmark::kMillisecond);
BENCHMARK(EliminaDuemila)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace ordavel
