// Miglioramento.hpp - uses the granted time to make a cover smaller, on all threads.

#pragma once

#include "Incidenza.hpp"
#include "Problema.hpp"
#include "Tempo.hpp"
#include "Vicini.hpp"

#include <vector>

namespace ordavel::trvrdcol {

/// Takes    incidenza   the neighbours written out, or null
///          aScelti     a cover
/// Gives    a cover that is not larger. It ends when the time is over, and before when no smaller one can be, or when
///          none was found for so long that none is to be hoped for
[[nodiscard]] std::vector<Indice> Migliora(const Problema& problema, const Vicini& vicini,
                                           const Incidenza* incidenza, std::vector<Indice> aScelti,
                                           unsigned nFili, Tempo& tempo);

} // namespace ordavel::trvrdcol
