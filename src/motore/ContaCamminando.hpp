// ContaCamminando.hpp - the count that goes from column to column.

#pragma once

#include "ordavel/StatoSviluppo.hpp"

#include "motore/GuardiaConteggio.hpp"

#include <cstdint>

namespace ordavel {

/// Judges every column in order and keeps none.
/// Takes    aNumeri   the picks, no fewer than the class
/// Gives    how many pass
/// Changes  stato: the counters of every condition
/// Fails    what VerificaColonna raises; ConteggioAnnullato
[[nodiscard]] std::int64_t ContaCamminando(const NumeriScelti& aNumeri, std::int16_t nClasse,
                                           StatoSviluppo& stato, GuardiaConteggio& guardia);

} // namespace ordavel
