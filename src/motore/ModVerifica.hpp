// ModVerifica.hpp - does a column belong to the system, and what did each condition count?
//
// Three stages, always in this order. Every condition is evaluated, with no early exit: the counters of all of
// them are wanted, and recovery needs all verdicts. Then the recovery board forgives by groups. Then each link
// collapses into one verdict, and the column passes when no verdict is negative.
//
// This is the plain form: literal, and the truth for any faster one.

#pragma once

#include "ordavel/StatoSviluppo.hpp"

namespace ordavel {

/// Tests one column against the compiled conditions.
/// Takes    nClasse   numbers of the column, 1..20
///          colonna   its numbers, ascending
///          stato     aCondizioni, aQuadroRec, aEmulatore
/// Gives    true when the column passes
/// Changes  verdicts, last values and counters of every condition. `ContaOk` and `ContaKo` count the verdict
///          before recovery. Links, and kinds without a metric, move no counter.
/// Fails    9: a value outside a list (it stands in `Valore` by then), a position outside 1..20, a recovery
///          group outside 0..20, a count outside a link's list; 11: modulus 0; 6: a scan that stands still. What a
///          condition raises names it in its description.
/// Cost     the metrics; no allocation but the first growth of the links' working copy
[[nodiscard]] bool VerificaColonna(std::int16_t nClasse, const Colonna& colonna, StatoSviluppo& stato);

/// Stage 1: evaluates every record in grid order.
void ValutaCondizioni(std::int16_t nClasse, const Colonna& colonna, StatoSviluppo& stato);

/// Stage 2: when the number of a group's members inside their recovery zone lies within the limits of its line on
/// the board, all those members pass; else none of them does. Group 0 takes no part.
/// Fails    9: a group outside 0..20
void ApplicaRecuperi(StatoSviluppo& stato);

/// Stage 3: collapses the links from the first "LinkClose" on and gives the verdict.
///
/// A "LinkClose" takes the nearest "LinkOpen" before it (the start when there is none); the block counts its
/// satisfied conditions and passes when that count is flagged in a `Numeri`. The list is that of the compiled
/// record whose index equals the working index of the "LinkClose": its own as long as nothing has collapsed
/// before it, another record's afterwards. The block then stands for one condition.
/// Fails    9: more satisfied conditions than a list can flag
[[nodiscard]] bool ValutaLink(StatoSviluppo& stato);

/// Index of the nearest "LinkOpen" among the records 0 to nIndice, from the last down; 0 when there is none.
[[nodiscard]] std::size_t TrovaLinkOpen(const std::vector<VoceLink>& aVoci, std::size_t nIndice) noexcept;

/// How many of the records nDa to nA, both included, have a positive verdict.
[[nodiscard]] std::int32_t ContaEsiti(const std::vector<VoceLink>& aVoci, std::size_t nDa,
                                      std::size_t nA) noexcept;

} // namespace ordavel
