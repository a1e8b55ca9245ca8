// ModIntegrali.hpp - how many columns a whole system has, and how much two columns share.

#pragma once

#include "ordavel/records.hpp"

#include <cstdint>
#include <vector>

namespace ordavel {

/// Columns of class nClasse over nNumeri numbers.
///
/// n! / (k! * (n-k)!) in double precision, the division last; the third factor is 1 when n equals k.
/// Gives    0 when there are fewer numbers than the class
/// Fails    11: nClasse is 0
[[nodiscard]] double CalcolaIntegrali(std::int32_t nNumeri, std::int32_t nClasse);

/// 1 times 2 and on up to nValore; 0 for 0.
[[nodiscard]] double Fattoriale(std::int32_t nValore) noexcept;

/// How many of the first nClasse numbers of `prima` stand among those of `seconda`.
/// Fails    9: nClasse above 20, or a number above 90
[[nodiscard]] std::int32_t ContaNumeriComuni(std::int16_t nClasse, const Colonna& prima,
                                             const Colonna& seconda);

/// How many picks a compact list holds: its entries above 0.
[[nodiscard]] std::int16_t ContaNumeri(const NumeriScelti& aNumeri) noexcept;

/// The picks of a compact list, one byte each.
[[nodiscard]] std::vector<std::uint8_t> Scelti(const NumeriScelti& aNumeri);

} // namespace ordavel
