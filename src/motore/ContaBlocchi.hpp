// ContaBlocchi.hpp - how many columns pass, by whole blocks, without keeping one of them.

#pragma once

#include "motore/SviluppoBlocchi.hpp"

#include <optional>

namespace ordavel {

/// Counts what a development would keep without thinning, beginnings behind which nothing or everything passes as a
/// whole.
/// Takes    corsa      of which BlocchiPossibili is true
///          stato      compiled conditions; their counters are added to
///          continua   asked every few microseconds
/// Gives    the columns that pass, or nothing when it was not to go on
/// Changes  stato: the counters of every condition, when it went on to the end
/// Fails    as the column fails that a development would fail at
[[nodiscard]] std::optional<std::uint64_t> ContaPassano(const CorsaBlocchi& corsa, StatoSviluppo& stato,
                                                        const Automa::Continua& continua);

} // namespace ordavel
