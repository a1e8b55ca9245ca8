// ConteggiProva.hpp - systems to be counted, and what came out.

#pragma once

#include "ordavel/ContaSistema.hpp"

#include "motore/CorsaProva.hpp"

#include <chrono>
#include <vector>

namespace ordavel::prove {

inline constexpr auto kMai = std::chrono::hours(1); ///< no estimate is due

inline SistemaDaContare Sistema(const std::vector<int>& aScelti, int nClasse,
                                const std::vector<RecordCondizione>& aCondizioni)
{
    return {StatoDi(aCondizioni), Pronostico(aScelti), static_cast<std::int16_t>(nClasse)};
}

/// Columns that satisfy each condition.
inline std::vector<double> Ok(const ConteggioSistema& conto)
{
    std::vector<double> aOk;
    for (const ContoCondizione& condizione : conto.aCondizioni) {
        aOk.push_back(condizione.nOk);
    }
    return aOk;
}

} // namespace ordavel::prove
