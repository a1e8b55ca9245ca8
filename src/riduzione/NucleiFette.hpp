// NucleiFette.hpp - the inner loops of the coverage by rows of bits, one set for each instruction set.

#pragma once

#include "ordavel/records.hpp"

#include "core/ModProcessore.hpp"

#include <array>
#include <cstddef>
#include <cstdint>

namespace ordavel {

/// Rows are looked at in pieces of this many words, so that the rows of all numbers stay in the cache.
inline constexpr std::size_t kParoleFetta = 128;
/// Columns that a piece speaks of.
inline constexpr std::size_t kColonneFetta = kParoleFetta * 64;

/// One bit for each column of a piece.
using Fetta = std::array<std::uint64_t, kParoleFetta>;

/// Vertical counters: bit b of word w of digit c belongs to the count of column 64 w + b.
inline constexpr std::size_t kCifreContatori = 8;
using ContatoriFetta = std::array<Fetta, kCifreContatori>;
/// What the counters can hold.
inline constexpr std::size_t kContatoreMassimo = (std::size_t{1} << kCifreContatori) - 1;

inline constexpr std::size_t kCoppieRighe = kNumeriColonna / 2;
/// Two pieces of rows for each pair of numbers.
using RigheFetta = std::array<const std::uint64_t*, kNumeriColonna>;

/// Where the digits begin, so that their overflow is the verdict.
struct SogliaFette {
    static constexpr std::size_t kCifreMassime = 5; ///< sums up to 20
    /// [pairs - 1] digits for that many pairs of rows, all bits of a word alike
    std::array<std::array<std::uint64_t, kCifreMassime>, kCoppieRighe> aCifre{};
    std::uint64_t nSempre = 0; ///< all ones when every column has enough
};

/// The digits that a column of so many pairs of rows needs.
[[nodiscard]] constexpr std::size_t CifreFette(std::size_t nCoppie) noexcept
{
    std::size_t nCifre = 0;
    while ((std::size_t{1} << nCifre) <= 2 * nCoppie) {
        ++nCifre;
    }
    return nCifre;
}

/// The digits 2^N - nPunti for each number of pairs; nothing overflows when nPunti cannot be reached.
[[nodiscard]] SogliaFette CreaSoglia(std::int32_t nPunti) noexcept;

struct NucleiFette {
    using Giudica = void (*)(const RigheFetta& aRighe, const SogliaFette& soglia, Fetta& verdetti);

    /// [pairs - 1] which columns of a piece have enough of the numbers whose rows are given
    std::array<Giudica, kCoppieRighe> giudica{};
    /// Columns that stand in both.
    std::int32_t (*conta)(const Fetta& prima, const Fetta& seconda) = nullptr;
    /// Adds one to the counts of the columns of a piece; at most kContatoreMassimo times.
    void (*accumula)(const Fetta& fetta, ContatoriFetta& contatori) = nullptr;
};

/// The loops for an instruction set that this processor has.
[[nodiscard]] const NucleiFette& ScegliNuclei(eNucleo nucleo = NucleoMigliore()) noexcept;

} // namespace ordavel
