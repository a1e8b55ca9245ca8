// ModChiavi.hpp - what a condition remembers of the first numbers of a column.
//
// Two beginnings of the same length with the same key are alike to a condition: whatever numbers follow, it gives both
// the same verdict, the same recovery and the same failure. So a condition is an automaton that reads a column number
// by number, with one state for each length and key, and what it says of the numbers to come is worked out once a
// state and not once a column.
//
// A kind whose keys would be as many as the beginnings themselves has none: it is judged column by column.

#pragma once

#include "ordavel/records.hpp"

#include <cstdint>

namespace ordavel {

/// What the key of a kind is made of.
enum class eChiave : std::uint8_t {
    nessuna,   ///< no key
    parita,    ///< the parities, one bit a number
    parziale,  ///< what the metric gives for the beginning alone, a sum over its numbers
    resto,     ///< the sum, modulo the parameter
    somma,     ///< the sum
    primo,     ///< the first number
    ultimo,    ///< what the metric gives for the beginning alone, and its last number
    soglie,    ///< between which bounds of the record that lies, and the last number
    vicini,    ///< which numbers follow the one before, one bit each, and the last number
    posizione, ///< the number at the position that counts, once it is there
    cifre,     ///< how many numbers fall into each digit class
    costante,  ///< nothing: the verdict is always the same
};

/// The make of a kind's key.
[[nodiscard]] eChiave FormaChiave(TipoCondizione tipo) noexcept;

/// Does the key hold the last number? Only numbers above it can then follow.
[[nodiscard]] constexpr bool ConUltimo(eChiave forma) noexcept
{
    return forma == eChiave::ultimo || forma == eChiave::soglie || forma == eChiave::vicini;
}

/// Does a number at a position add the same to the key, whatever stands in front of it?
[[nodiscard]] constexpr bool SiSomma(eChiave forma) noexcept
{
    return forma == eChiave::parziale || forma == eChiave::somma || forma == eChiave::cifre;
}

/// The key of a beginning.
/// Takes    record    of a kind that has keys
///          nDati     how many numbers are there, 0 to 10
///          colonna   the beginning; its last number is the greatest where ConUltimo holds
[[nodiscard]] std::uint64_t ChiaveDi(const RecordCondizione& record, std::int16_t nDati,
                                     const Colonna& colonna);

} // namespace ordavel
