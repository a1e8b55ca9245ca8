// RangoColonne.hpp - columns by their number in the order of the enumeration, from 0.

#pragma once

#include "motore/ContiAutoma.hpp"

#include <cstddef>
#include <cstdint>

namespace ordavel {

/// How many columns follow a beginning of nDati numbers when all others come from place nDa on.
[[nodiscard]] std::int64_t QuanteColonne(std::size_t nScelti, std::size_t nClasse, std::size_t nDati,
                                         std::size_t nDa) noexcept;

/// The places of column number nColonna.
[[nodiscard]] PostiColonna PostiDi(std::size_t nScelti, std::size_t nClasse, std::int64_t nColonna) noexcept;

/// Marks the columns nDa to nA - 1 of the block that follows a beginning.
/// Takes    nPrimo   first place of the next-to-last number
/// Changes  maschere: the rows from nPrimo on
void SegnaColonne(std::size_t nScelti, std::size_t nPrimo, std::int64_t nDa, std::int64_t nA,
                  MaschereRiga& maschere) noexcept;

} // namespace ordavel
