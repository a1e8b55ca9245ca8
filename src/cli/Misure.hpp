// Misure.hpp - every metric of one column, by the name of its operation.

#pragma once

#include "ordavel/records.hpp"

#include <nlohmann/json.hpp>

namespace ordavel::cli {

/// All metrics of a column.
///
/// An operation with a parameter has one entry per value of it: words ("Pari", "Diretto"), moduli, positions,
/// group lengths (with step 2), patterns (with step 1). Sums by position are over all positions.
/// Takes    nClasse   1..20
///          colonna   numbers 1..90, ascending
/// Gives    an object: operation name to number, text, list or object
[[nodiscard]] nlohmann::ordered_json Misura(std::int16_t nClasse, const Colonna& colonna);

} // namespace ordavel::cli
