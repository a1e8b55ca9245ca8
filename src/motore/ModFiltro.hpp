// ModFiltro.hpp - puts the conditions over the columns of an existing file.

#pragma once

#include "ordavel/StatoSviluppo.hpp"

#include "core/FileBinario.hpp"
#include "motore/Avanzamento.hpp"

#include <string>

namespace ordavel {

/// Filters a column file.
///
/// As SviluppaColonne, with the enumeration replaced by blocks of 10000 columns read from the source, in its
/// order. What is left over behind the last whole block is rounded to columns, ties to even; a rest that rounds
/// to none ends the reading. The buffer is written when it holds exactly as many columns as a block has; in a
/// shorter last block a buffer that already holds more misses that and waits for the end, and fails with 9 if
/// it fills up before.
/// Takes    sOrigine   path of the source
///          nClasse    class of its columns
///          nLimite    required common limit: class minus reduction
///          file       the destination, open for writing
/// Fails    never: a failure is shown under "ModSistemiCond.FiltraFile" and ends the run. Blocks already
///          written stay; stato.bStopSviluppo is not set by it.
void FiltraFile(const std::string& sOrigine, std::int16_t nClasse, std::int16_t nLimite, FileBinario& file,
                StatoSviluppo& stato, Avanzamento& avanzamento);

} // namespace ordavel
