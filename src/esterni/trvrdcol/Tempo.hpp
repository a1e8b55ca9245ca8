// Tempo.hpp - how long a reduction may still work, whether it was asked to stop, and how far it has come.

#pragma once

#include <atomic>
#include <chrono>
#include <cstddef>
#include <cstdint>

namespace ordavel::trvrdcol {

/// What other threads say to a reduction and read of it.
struct Comandi {
    std::atomic<bool> bFerma{false};
    std::atomic<std::int16_t> nPercentuale{0};
};

/// The seconds that the environment grants to a search: ORDAVEL_RIDUZIONE_SECONDI, 60 when it is missing or no number
/// of 0 or more.
[[nodiscard]] double SecondiConcessi();

/// The clock of one reduction. It starts with its making; all operations may be called from any thread.
class Tempo {
public:
    Tempo(Comandi& comandi, double nSecondi) : m_Comandi(comandi), m_nConcessi(nSecondi) {}

    [[nodiscard]] double Trascorsi() const
    {
        return std::chrono::duration<double>(Orologio::now() - m_Inizio).count();
    }
    [[nodiscard]] bool Fermato() const { return m_Comandi.bFerma.load(std::memory_order_relaxed); }

    /// Nothing more is to be tried: time is over, a stop was asked, or Basta() was called.
    [[nodiscard]] bool Finito() const
    {
        return m_bBasta.load(std::memory_order_relaxed) || Fermato() || Trascorsi() >= m_nConcessi;
    }

    /// Ends the search before its time.
    void Basta() { m_bBasta.store(true, std::memory_order_relaxed); }

    /// Shows the share of time that is gone; when none was granted, that of the work that must be done anyway. What is
    /// shown never falls, and reaches 100 only at the end.
    /// Takes    nParte, nTutto   how much of that work is done
    void Mostra(std::size_t nParte, std::size_t nTutto) const;

private:
    using Orologio = std::chrono::steady_clock;

    Comandi& m_Comandi;
    double m_nConcessi;
    Orologio::time_point m_Inizio = Orologio::now();
    std::atomic<bool> m_bBasta{false};
};

} // namespace ordavel::trvrdcol
