// Tempo.cpp - the clock of a reduction.

#include "Tempo.hpp"

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace ordavel::trvrdcol {

double SecondiConcessi()
{
    constexpr double kDiRegola = 60;
    const char* sValore = std::getenv("ORDAVEL_RIDUZIONE_SECONDI");
    if (sValore == nullptr || *sValore == '\0') {
        return kDiRegola;
    }
    char* sFine = nullptr;
    const double nSecondi = std::strtod(sValore, &sFine);
    return *sFine == '\0' && std::isfinite(nSecondi) && nSecondi >= 0 ? nSecondi : kDiRegola;
}

void Tempo::Mostra(std::size_t nParte, std::size_t nTutto) const
{
    const double nLavoro = nTutto == 0 ? 0 : static_cast<double>(nParte) / static_cast<double>(nTutto);
    const double nTempo = m_nConcessi > 0 ? Trascorsi() / m_nConcessi : nLavoro;
    const auto nNuova = static_cast<std::int16_t>(100 * std::clamp(nTempo, 0.0, 0.99));
    std::int16_t nVecchia = m_Comandi.nPercentuale.load(std::memory_order_relaxed);
    while (nNuova > nVecchia && !m_Comandi.nPercentuale.compare_exchange_weak(nVecchia, nNuova)) {
    }
}

} // namespace ordavel::trvrdcol
