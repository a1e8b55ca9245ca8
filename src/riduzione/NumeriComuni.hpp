// NumeriComuni.hpp - how many numbers two columns of a reduction have in common.

#pragma once

#include "ordavel/records.hpp"

#include <array>
#include <cstdint>

namespace ordavel {

/// The numbers of one column, marked, so that others can be held against it.
///
/// The numbers of a column are its first nClasse entries. A number behind 90 has no place among the marks: it is
/// in common with nothing. A number that stands twice in the other column counts twice.
class NumeriMarcati {
public:
    /// Takes    nPrimo    least number that is marked, 0 or 1: is a 0 inside the class a number like others?
    ///          nClasse   0 to 20
    NumeriMarcati(std::uint8_t nPrimo, std::int16_t nClasse) noexcept : m_nPrimo(nPrimo), m_nClasse(nClasse)
    {}

    /// Marks the numbers of a column, and no others.
    void Marca(const Colonna& colonna) noexcept;

    /// How many entries of another column are marked.
    [[nodiscard]] std::int32_t Comuni(const Colonna& altra) const noexcept
    {
        std::int32_t nComuni = 0;
        for (std::int16_t k = 1; k <= m_nClasse; ++k) {
            nComuni += m_aMarchi[altra[k]];
        }
        return nComuni;
    }

private:
    std::uint8_t m_nPrimo;
    std::int16_t m_nClasse;
    std::array<std::uint8_t, 256> m_aMarchi{}; ///< by any byte that a file may hold
};

} // namespace ordavel
