// SottoinsiemiVisti.hpp - a table of the sets of t numbers that stand in some columns.
//
// Whether a column has t numbers in common with one of many is then as many look-ups as it has sets of t numbers,
// however many columns there are.
//
// Two forms, chosen at the start. Bits: one for each rank there is; 320 KB for t of 4, 6 MB for 5, 83 MB for 6, and
// too much beyond. Ranks: only those that are in, in an open-addressing table of 64-bit words. The table never grows
// above what it was given; when it is full it says so, and the caller goes on in another way.

#pragma once

#include "riduzione/Sottoinsiemi.hpp"

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace ordavel {

/// What a table of sets may take in memory when nothing else is said.
inline constexpr std::size_t kByteTabella = std::size_t{256} << 20U;

class SottoinsiemiVisti {
public:
    /// Takes    nGrandezza   numbers of a set, t; above 10 no set is ever put in or found
    ///          nAttesi      the most sets that will be put in, as far as the caller knows; a small job takes little
    ///          nByte        the most that the table may take, 0 included
    /// Cost     allocates once
    SottoinsiemiVisti(std::size_t nGrandezza, std::uint64_t nAttesi, std::size_t nByte);

    /// Does some set of these numbers stand in the table?
    /// Takes    aPosti   ascending and different, each 0 to 90, at most 20
    /// Cost     C(numbers, t) look-ups, fewer after a hit; allocates nothing
    [[nodiscard]] bool Contiene(std::span<const std::uint8_t> aPosti) const noexcept
    {
        return (this->*m_pContiene)(aPosti);
    }

    /// Puts all sets of these numbers in.
    /// Gives    false when there may be no room for all of them; then none was put in
    [[nodiscard]] bool Aggiungi(std::span<const std::uint8_t> aPosti) noexcept;

    /// Has an empty table room for all sets of so many numbers?
    [[nodiscard]] bool Basta(std::size_t nPosti) const noexcept;

    /// Is it a table of bits?
    [[nodiscard]] bool ABit() const noexcept { return m_bBit; }

    /// Takes everything out.
    void Svuota() noexcept;

private:
    using Ricerca = bool (SottoinsiemiVisti::*)(std::span<const std::uint8_t>) const noexcept;

    template <std::size_t S>
    [[nodiscard]] bool ContieneBit(std::span<const std::uint8_t> aPosti) const noexcept;
    template <std::size_t S>
    [[nodiscard]] bool ContieneRango(std::span<const std::uint8_t> aPosti) const noexcept;
    [[nodiscard]] Ricerca Scegli() const noexcept;
    void MettiRango(std::uint64_t nRango) noexcept;

    std::size_t m_nGrandezza;
    bool m_bBit = false;
    std::uint64_t m_nCapienza = 0; ///< ranks that may stand in a table of ranks
    std::uint64_t m_nPresenti = 0; ///< those that do
    std::vector<std::uint64_t> m_aParole;
    Ricerca m_pContiene = nullptr;
};

} // namespace ordavel
