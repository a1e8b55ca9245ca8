// riduci.cpp - the reduction in memory: its forms against looking at every pair, and a million columns.

#include "ColonneBanco.hpp"
#include "riduzione/ModGaranzia.hpp"
#include "riduzione/ModRiduci.hpp"

#include <benchmark/benchmark.h>

#include <sys/resource.h>

namespace ordavel {
namespace {

constexpr std::size_t kMilione = 1000000;

double MegabyteDelProcesso()
{
    rusage uso{};
    getrusage(RUSAGE_SELF, &uso);
    return static_cast<double>(uso.ru_maxrss) / 1024;
}

/// Reduces, checks the promise and tells how many columns stay. The memory is the most that the process ever had.
void Misura(benchmark::State& giri, const std::vector<Colonna>& aColonne, std::int32_t nPunti,
            std::optional<eCopertura> forma)
{
    banco::SenzaUtente avanzamento;
    std::vector<Colonna> aRidotte;
    for (auto _ : giri) {
        aRidotte = RiduciInMemoria(aColonne, nPunti, forma, {}, avanzamento).value();
    }
    giri.counters["colonne"] = static_cast<double>(aColonne.size());
    giri.counters["tenute"] = static_cast<double>(aRidotte.size());
    giri.counters["MB"] = MegabyteDelProcesso();
    if (PrimaScoperta(aColonne, aRidotte, nPunti)) {
        giri.SkipWithError("la garanzia non tiene");
    }
}

std::vector<Colonna> VentiNumeri()
{
    return banco::ColonneTenute(20, 6, kMilione, [](const Colonna&) { return true; });
}

/// All 38,760 columns of 20 numbers in class 6, 4 points.
void VentiNumeriQuattroPunti(benchmark::State& giri)
{
    Misura(giri, VentiNumeri(), 4, static_cast<eCopertura>(giri.range(0)));
}
BENCHMARK(VentiNumeriQuattroPunti)
    ->Arg(static_cast<int>(eCopertura::sottoinsiemi))
    ->Arg(static_cast<int>(eCopertura::fette))
    ->Unit(benchmark::kMillisecond);

/// The same, pair by pair.
void VentiNumeriACoppie(benchmark::State& giri)
{
    Misura(giri, VentiNumeri(), 4, eCopertura::piana);
}
BENCHMARK(VentiNumeriACoppie)->Iterations(1)->Unit(benchmark::kMillisecond);

/// The first million columns of 45 numbers in class 6 with a sum of 100 to 180.
void MilioneSviluppato(benchmark::State& giri)
{
    const auto aColonne = banco::ColonneTenute(45, 6, kMilione, [](const Colonna& colonna) {
        return banco::SommaDi(colonna) >= 100 && banco::SommaDi(colonna) <= 180;
    });
    Misura(giri, aColonne, static_cast<std::int32_t>(giri.range(0)), {});
}
BENCHMARK(MilioneSviluppato)->Arg(5)->Arg(4)->Iterations(1)->Unit(benchmark::kSecond);

/// A million random columns of 90 numbers in class 6.
void MilioneCasuale(benchmark::State& giri)
{
    Misura(giri, banco::ColonneCasuali(kMilione, 6), static_cast<std::int32_t>(giri.range(0)), {});
}
BENCHMARK(MilioneCasuale)->Arg(5)->Arg(4)->Arg(3)->Iterations(1)->Unit(benchmark::kSecond);

} // namespace
} // namespace ordavel
