// ModEmulazione.hpp - hits of a column in the emulated draws, for 64 draws at once.

#pragma once

#include "ordavel/RigheEmulatore.hpp"

#include "calcoli/ModCifre.hpp"
#include "core/ModProcessore.hpp"

namespace ordavel {

/// For each number of hits h, how many draws a column would have hit with h points: the same as CalcolaEmulatore of
/// the rows one by one, whatever the numbers and the draws.
///
/// The hits of 64 draws are added as five binary digits, each a word, and counted where the digits say h.
/// Takes    nClasse   0..20
///          nucleo    one that this processor has
/// Fails    9: nClasse above 20, or a number above 90 while there are draws; 6: more than 32767 draws hit alike
[[nodiscard]] ContatoriEmulatore CalcolaEmulatore(std::int16_t nClasse, const Colonna& colonna,
                                                  const RigheEmulatore& righe,
                                                  eNucleo nucleo = NucleoMigliore());

} // namespace ordavel
