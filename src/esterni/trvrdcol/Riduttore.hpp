// Riduttore.hpp - a whole reduction, from records to the records that stay.

#pragma once

#include "Problema.hpp"
#include "Tempo.hpp"

#include <cstdint>
#include <span>
#include <vector>

namespace ordavel::trvrdcol {

/// Chooses the records of the output.
///
/// Takes    nPuntiRichiesti   any number; 0 or less: the first record is enough
///          nSecondi          for improving the greedy cover; 0: none
/// Gives    indices, ascending; every record has the required numbers in common with one of them, or is one of them.
///          This was checked record by record
/// Changes  comandi.nPercentuale; it looks at comandi.bFerma
[[nodiscard]] std::vector<Indice> Riduci(std::span<const Record> aRecord, std::int32_t nPuntiRichiesti,
                                         double nSecondi, Comandi& comandi);

} // namespace ordavel::trvrdcol
