// ModTabelle.hpp - lookups by number: last digit, ten, reduced digit sum, third of the range.
//
// The tables never change, so the compiler fills them; a metric reads one byte in place of a division.

#pragma once

#include "ordavel/records.hpp"

namespace ordavel {

using TabellaNumeri = Tabella<std::uint8_t, 1, kNumeroMassimo>;

/// Last digit of a number.
[[nodiscard]] constexpr std::uint8_t Cadenza(std::uint8_t nNumero) noexcept
{
    return static_cast<std::uint8_t>(nNumero % 10);
}

/// Tens digit of a number: 10 has 1, 90 has 9. TabDecine counts the tens from the number before.
[[nodiscard]] constexpr std::uint8_t Decina(std::uint8_t nNumero) noexcept
{
    return static_cast<std::uint8_t>(nNumero / 10);
}

/// Digit sum reduced to one digit, with one exception that is meant: 9 gives 0, while 18, 27 ... 90 give 9.
/// The tens are peeled off while the rest is at least 9, so that a bare 9 loses one ten too many:
/// 9 becomes -1 with one ten, which add up to 0.
[[nodiscard]] constexpr std::uint8_t Figura(std::uint8_t nNumero) noexcept
{
    int nDecine = 0;
    int nResto = nNumero;
    while (nResto >= 9) {
        ++nDecine;
        nResto -= 10;
    }
    const auto nSomma = static_cast<std::uint8_t>(nResto + nDecine);
    return nSomma > 9 ? Figura(nSomma) : nSomma;
}

/// The four lookups together.
struct Tabelle {
    TabellaNumeri TabCadenze; ///< 0..9
    TabellaNumeri TabDecine;  ///< 0..8, 1 to 10 are 0
    TabellaNumeri TabFigure;  ///< 0..9
    TabellaNumeri TabFormule; ///< 1..3, the thirds 1 to 30, 31 to 60, 61 to 90
};

/// Fills the four lookups.
[[nodiscard]] constexpr Tabelle InitTabelle() noexcept
{
    Tabelle tabelle;
    for (std::uint8_t n = 1; n <= kNumeroMassimo; ++n) {
        tabelle.TabCadenze[n] = Cadenza(n);
        tabelle.TabDecine[n] = static_cast<std::uint8_t>((n - 1) / 10);
        tabelle.TabFigure[n] = Figura(n);
        tabelle.TabFormule[n] = static_cast<std::uint8_t>((n - 1) / 30 + 1);
    }
    return tabelle;
}

inline constexpr Tabelle kTabelle = InitTabelle();

} // namespace ordavel
