// Sottoinsiemi.hpp - the sets of s numbers that a column holds, each by its rank.
//
// Two columns have at least t numbers in common exactly when some set of t numbers stands in both. So a table over
// the ranks of such sets answers what would otherwise need a look at every pair of columns.
//
// Rank of the set of places p1 < p2 < ... < ps, counted from 0: C(p1,1) + C(p2,2) + ... + C(ps,s), the combinatorial
// number system. It runs from 0 to C(v,s) - 1 over v places and does not depend on v.

#pragma once

#include "ordavel/records.hpp"

#include "core/ModBinomiali.hpp"

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <utility>

namespace ordavel {

/// Sets larger than this have no rank here.
inline constexpr std::size_t kSottoinsiemeMassimo = kGrandezzaBinomiali;
/// Places that a rank can speak of: the numbers 0 to 90.
inline constexpr std::size_t kPosti = kPostiBinomiali;

/// How many sets of nGrandezza there are among nPosti places.
/// Takes    nPosti       0 to 91
///          nGrandezza   0 to 10
[[nodiscard]] constexpr std::uint64_t NumeroSottoinsiemi(std::size_t nPosti, std::size_t nGrandezza) noexcept
{
    return kBinomiali[nPosti][nGrandezza];
}

/// Calls azione(rank) for each set of S of the first nPosti places, nRango added to it.
template <std::size_t S, typename Azione>
constexpr void PerOgniSottoinsieme(const std::uint8_t* aPosti, std::size_t nPosti, std::uint64_t nRango,
                                   const Azione& azione)
{
    if constexpr (S == 0) {
        azione(nRango);
    } else {
        for (std::size_t j = S; j <= nPosti; ++j) {
            PerOgniSottoinsieme<S - 1>(aPosti, j - 1, nRango + kBinomiali[aPosti[j - 1]][S], azione);
        }
    }
}

/// Calls azione(rank) for each set of nGrandezza of some places; for none when there are fewer places.
/// Takes    aPosti       ascending and different, each 0 to 90
///          nGrandezza   0 to 10; for a larger one nothing is called
template <typename Azione>
constexpr void PerOgniSottoinsieme(std::span<const std::uint8_t> aPosti, std::size_t nGrandezza,
                                   const Azione& azione)
{
    [&]<std::size_t... S>(std::index_sequence<S...>)
    {
        static_cast<void>(
            ((nGrandezza == S && (PerOgniSottoinsieme<S>(aPosti.data(), aPosti.size(), 0, azione), true)) ||
             ...));
    }
    (std::make_index_sequence<kSottoinsiemeMassimo + 1>{});
}

} // namespace ordavel
