// ModBinomiali.hpp - how many sets there are, as exact whole numbers.

#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace ordavel {

/// Sets are counted up to this size.
inline constexpr std::size_t kGrandezzaBinomiali = 10;
/// Places that sets are taken from, at most: the numbers 0 to 90.
inline constexpr std::size_t kPostiBinomiali = 91;

/// C(n, k) for n of 0 to 91 and k of 0 to 10. The largest, C(91, 10), is below 2^43.
inline constexpr auto kBinomiali = [] {
    std::array<std::array<std::uint64_t, kGrandezzaBinomiali + 1>, kPostiBinomiali + 1> aBinomiali{};
    for (std::size_t n = 0; n <= kPostiBinomiali; ++n) {
        aBinomiali[n][0] = 1;
        for (std::size_t k = 1; k <= kGrandezzaBinomiali && n > 0; ++k) {
            aBinomiali[n][k] = aBinomiali[n - 1][k - 1] + aBinomiali[n - 1][k];
        }
    }
    return aBinomiali;
}();

/// Columns of a class over so many numbers; 0 for fewer numbers than the class.
/// Takes    nNumeri   0..91
///          nClasse   0..10
[[nodiscard]] constexpr std::int64_t Combinazioni(std::size_t nNumeri, std::size_t nClasse) noexcept
{
    return static_cast<std::int64_t>(kBinomiali[nNumeri][nClasse]);
}

} // namespace ordavel
