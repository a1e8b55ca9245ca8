// TavolaInsiemi.hpp - numbers for the sets of one size that more than one column holds.
//
// All sets are shown to the table once or twice; then it tells the number of each that was seen in two columns or
// more. Where every rank can have an entry of its own, it has one. Where not, a byte for each hash tells which
// ranks may have been seen twice; these are sorted, and a shared one has its number by its place among them. A table
// by hash would find it sooner, in five times the memory, which columns made for it can ask for a hundred million times.

#pragma once

#include <cstdint>
#include <vector>

namespace ordavel {

class TavolaInsiemi {
public:
    /// What a set that nobody shares has instead of a number.
    static constexpr std::uint32_t kNessuno = 0xFFFFFFFFU;
    /// Up to so many ranks have an entry of their own.
    static constexpr std::uint64_t kDiretti = std::uint64_t{1} << 26;

    /// Takes    nRanghi    ranks run from 0 to nRanghi - 1
    ///          nInsiemi   how many sets will be shown, for the size of the table of hashes
    ///          nDiretti   kDiretti; less to try the other way
    TavolaInsiemi(std::uint64_t nRanghi, std::uint64_t nInsiemi, std::uint64_t nDiretti = kDiretti);

    /// Bytes that a table of so many ranks and sets takes, at most.
    [[nodiscard]] static double Memoria(std::uint64_t nRanghi, std::uint64_t nInsiemi) noexcept;

    /// Shows a set, once for each column that holds it.
    void Vedi(std::uint64_t nRango) noexcept
    {
        if (m_bDiretta) {
            ++m_aDiretti[nRango];
        } else {
            std::uint8_t& nVisti = m_aVisti[Posto(nRango)];
            m_nDubbi += nVisti == 1 ? 2 : nVisti / 2;
            nVisti = nVisti == 0 ? 1 : 2;
        }
    }

    /// Must all sets be shown a second time, to Rivedi?
    [[nodiscard]] bool Rivedere() const noexcept { return !m_bDiretta; }

    /// Makes room for what Rivedi will keep, and for no more.
    void PreparaRivedere() { m_aRanghi.reserve(m_nDubbi); }

    void Rivedi(std::uint64_t nRango)
    {
        if (m_aVisti[Posto(nRango)] > 1) {
            m_aRanghi.push_back(nRango);
        }
    }

    /// Numbers the shared sets, from nPrimo on.
    /// Gives    the first number that is free
    std::uint32_t Numera(std::uint32_t nPrimo);

    /// The number of a set that was shown.
    [[nodiscard]] std::uint32_t Numero(std::uint64_t nRango) const
    {
        return m_bDiretta ? m_aDiretti[nRango] : NumeroIndiretto(nRango);
    }

private:
    [[nodiscard]] std::uint64_t Posto(std::uint64_t nRango) const noexcept;
    [[nodiscard]] std::uint32_t NumeroIndiretto(std::uint64_t nRango) const;
    std::uint32_t NumeraDiretti(std::uint32_t nPrimo);
    std::uint32_t NumeraIndiretti(std::uint32_t nPrimo);

    bool m_bDiretta;
    unsigned m_nBit;                       ///< the table of hashes has 2^m_nBit entries
    std::vector<std::uint32_t> m_aDiretti; ///< by rank: how often it was shown, later its number
    std::vector<std::uint8_t> m_aVisti;    ///< by hash: 0, 1, 2 for more
    std::size_t m_nDubbi = 0;              ///< how many sets were shown whose ranks may be shared
    std::vector<std::uint64_t> m_aRanghi;  ///< ranks that may be shared; later those that are, ascending
    std::uint32_t m_nPrimo = 0;            ///< number of the first of them
};

} // namespace ordavel
