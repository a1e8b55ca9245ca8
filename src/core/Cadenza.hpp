// Cadenza.hpp - is it time again? How often a run looks at its user.

#pragma once

#include <chrono>

namespace ordavel {

/// Figures on show change so often at most: thirty times a second.
inline constexpr std::chrono::microseconds kOgniMostra{33334};
/// A run that could let events go on all the time does so this often: a stop is seen soon, and asking costs nothing.
inline constexpr std::chrono::milliseconds kOgniEventi{5};

/// Something that may be done at any moment and is done now and then.
///
/// It has no clock of its own: whoever asks says what time it is, so that a test can play the time.
class Cadenza {
public:
    using Orologio = std::chrono::steady_clock;
    using Istante = Orologio::time_point;

    /// Takes    nOgni     time between two of them, at least
    ///          dalle     the first time is not before; at once without it
    explicit constexpr Cadenza(Orologio::duration nOgni, Istante dalle = Istante::min()) noexcept
        : m_nOgni(nOgni), m_Prossima(dalle)
    {}

    /// Is it time? Then the next time is so much later.
    [[nodiscard]] constexpr bool Scaduta(Istante adesso) noexcept
    {
        if (adesso < m_Prossima) {
            return false;
        }
        Riparti(adesso);
        return true;
    }

    /// It was done now, whether it was time or not.
    constexpr void Riparti(Istante adesso) noexcept { m_Prossima = adesso + m_nOgni; }

private:
    Orologio::duration m_nOgni;
    Istante m_Prossima;
};

} // namespace ordavel
