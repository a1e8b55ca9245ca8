// ModLimiti.hpp - the limits that a range dialog shows for the picks.

#pragma once

#include "editor/TabellaDialoghi.hpp"

#include <optional>

namespace ordavel {

/// What the two labels say.
struct Limiti {
    std::int32_t nMin = 0;
    std::int32_t nMax = 0;

    [[nodiscard]] friend bool operator==(const Limiti&, const Limiti&) = default;
};

/// Limits over the picks s(1) < s(2) < ... s(m), k numbers a column.
///
/// Sum: of the k lowest and of the k highest picks. The "Somma" dialogs show these too: they are the limits of
/// "Peso", not of the digits that they sum. Mean: its whole part, of the same two. Spread: the greatest is
/// s(m) - s(1); the least is s(k) - s(i), where i is the last start of k neighbours with s(i) below s(k). That is
/// not the true smallest spread, and it is the figure that is wanted.
/// Takes    nClasse   k, 1 or more
/// Gives    nothing when there are fewer picks than the class, or no such i
[[nodiscard]] std::optional<Limiti> LimitiNumeri(eLimiti limiti, std::int16_t nClasse,
                                                 const NumeriScelti& aNumeri);

} // namespace ordavel
