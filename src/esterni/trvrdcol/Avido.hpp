// Avido.hpp - a first cover, and what every cover goes through before it is written.
//
// The greedy cover takes, again and again, the set that covers the most records not covered yet, itself included; of
// several such sets the first of the file. Nothing that this library writes is larger.

#pragma once

#include "Incidenza.hpp"
#include "Problema.hpp"
#include "Tempo.hpp"
#include "Vicini.hpp"

#include <vector>

namespace ordavel::trvrdcol {

/// The greedy cover. After a stop it is completed in a simpler way.
/// Takes    incidenza   the neighbours written out, or null: then they are looked for where they are needed
[[nodiscard]] std::vector<Indice> CopriAvido(const Problema& problema, const Vicini& vicini,
                                             const Incidenza* incidenza, const Tempo& tempo);

/// Adds to chosen sets what they lack to be a cover, greedily among the sets that are not covered, and takes away
/// those that are not needed.
[[nodiscard]] std::vector<Indice> Ripara(const Problema& problema, const Vicini& vicini,
                                         std::vector<Indice> aScelti, const Tempo& tempo);

/// Takes away sets without which the others are still a cover.
[[nodiscard]] std::vector<Indice> TogliSuperflui(const Problema& problema, const Vicini& vicini,
                                                 std::vector<Indice> aScelti, const Tempo& tempo);

/// For each set one of the chosen that covers it, or kNessuno.
[[nodiscard]] std::vector<Indice> Testimoni(const Problema& problema, const Vicini& vicini,
                                            const std::vector<Indice>& aScelti);

} // namespace ordavel::trvrdcol
