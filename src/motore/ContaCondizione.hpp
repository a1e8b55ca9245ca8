// ContaCondizione.hpp - the counters of one condition over all columns, without a walk.
//
// What a condition passes and recovers among all columns depends on nothing but itself. A kind with keys is counted
// by its automaton, one that sees only how many numbers fall into each of some groups by these, one that looks for
// partners by how many pairs the picks hold. The emulator has no short way.

#pragma once

#include "motore/Automa.hpp"
#include "motore/GuardiaConteggio.hpp"

#include <cstdint>
#include <optional>
#include <span>

namespace ordavel {

/// What a run over all columns leaves in a record.
struct ContatoriCondizione {
    double nOk = 0;
    double nRec = 0;
    bool bRotti = false; ///< some column fails
};

/// Counts a condition by its automaton.
///
/// «ContaRec» of a pair is the number of columns that pass in front of the last one that recovers, and one more.
/// Takes    automa   not prepared yet; it is afterwards
///          nByte    what its states may take
/// Gives    nothing when it would need more, or has no states
/// Fails    ConteggioAnnullato
[[nodiscard]] std::optional<ContatoriCondizione> ContaConAutoma(Automa& automa, TipoCondizione tipo,
                                                                std::size_t nByte, GuardiaConteggio& guardia);

/// Counts a condition that has a shorter way than its automaton, or no automaton at all.
/// Takes    nClasse   2..10
/// Gives    nothing for a kind that has none
[[nodiscard]] std::optional<ContatoriCondizione> ContaInBreve(const RecordCondizione& record,
                                                              std::span<const std::uint8_t> aScelti,
                                                              std::int16_t nClasse,
                                                              GuardiaConteggio& guardia);

} // namespace ordavel
