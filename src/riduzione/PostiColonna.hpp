// PostiColonna.hpp - the numbers of a column as a set of places, fit to be ranked.

#pragma once

#include "ordavel/records.hpp"

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

namespace ordavel {

/// The different numbers among the first nClasse entries of a column, ascending, up to 90.
///
/// A sound column is its own set and is not copied: it must outlive this.
class PostiColonna {
public:
    /// Takes    nPrimo    least number that counts, 0 or 1
    ///          nClasse   0 to 20
    PostiColonna(const Colonna& colonna, std::uint8_t nPrimo, std::int16_t nClasse) noexcept
        : m_pPosti(colonna.aNumeri.data()), m_nPosti(static_cast<std::size_t>(nClasse))
    {
        if (!InOrdine(nPrimo)) {
            Riordina(nPrimo);
        }
    }
    PostiColonna(const PostiColonna&) = delete;
    PostiColonna& operator=(const PostiColonna&) = delete;
    ~PostiColonna() = default;

    [[nodiscard]] std::span<const std::uint8_t> Posti() const noexcept { return {m_pPosti, m_nPosti}; }

    /// Does a number that counts stand twice?
    [[nodiscard]] bool Ripetuti() const noexcept { return m_bRipetuti; }

private:
    [[nodiscard]] bool InOrdine(std::uint8_t nPrimo) const noexcept
    {
        std::int32_t nPrima = nPrimo - 1;
        bool bInOrdine = true;
        for (std::size_t i = 0; i < m_nPosti; ++i) {
            bInOrdine = bInOrdine && m_pPosti[i] > nPrima;
            nPrima = m_pPosti[i];
        }
        return bInOrdine && nPrima <= kNumeroMassimo;
    }

    void Riordina(std::uint8_t nPrimo) noexcept;

    const std::uint8_t* m_pPosti;
    std::size_t m_nPosti;
    bool m_bRipetuti = false;
    std::array<std::uint8_t, kNumeriColonna> m_aRiordinati{}; ///< only where the column is not in order
};

} // namespace ordavel
