// GuardiaConteggio.hpp - lets a long count be cancelled, and what is due be done in the midst of it.

#pragma once

#include <chrono>
#include <cstdint>
#include <exception>
#include <functional>
#include <utility>

namespace ordavel {

/// The count was cancelled.
class ConteggioAnnullato : public std::exception {
public:
    [[nodiscard]] const char* what() const noexcept override { return "conteggio annullato"; }
};

/// Whoever counts passes here at every small piece of work.
class GuardiaConteggio {
public:
    using Orologio = std::chrono::steady_clock;

    /// Takes    annullato   asked every tenth of a millisecond or so; empty for never
    explicit GuardiaConteggio(std::function<bool()> annullato = {}) : m_Annullato(std::move(annullato)) {}

    /// Something is to be done once, from a time on, in the midst of the count.
    void PoniScadenza(Orologio::time_point scadenza, std::function<void()> azione)
    {
        m_Scadenza = scadenza;
        m_Azione = std::move(azione);
    }

    /// It is no longer due.
    void TogliScadenza() { m_Azione = nullptr; }

    /// A piece of work of so many steps, each of some nanoseconds, is done.
    /// Fails    ConteggioAnnullato
    void Passa(std::uint32_t nPassi = 1)
    {
        m_nPassi += nPassi;
        if (m_nPassi >= kPassi) {
            Guarda();
        }
    }

    /// Looks at once.
    void Guarda()
    {
        m_nPassi = 0;
        if (m_Annullato && m_Annullato()) {
            throw ConteggioAnnullato();
        }
        if (m_Azione && Orologio::now() >= m_Scadenza) {
            std::exchange(m_Azione, nullptr)();
        }
    }

private:
    static constexpr std::uint32_t kPassi = 1024;

    std::function<bool()> m_Annullato;
    std::function<void()> m_Azione;
    Orologio::time_point m_Scadenza;
    std::uint32_t m_nPassi = 0;
};

} // namespace ordavel
