// BarraTerminale.hpp - a progress bar on the error stream, drawn only on a terminal.

#pragma once

#include "core/Cadenza.hpp"

#include <cstdint>
#include <string>

namespace ordavel::cli {

/// How far a run has come.
struct Avanzato {
    double nFatte = 0;
    double nTotale = 0;
    double nTenute = 0;
    double nSecondi = 0; ///< since the start
};

/// The bar as one line of text: "[######----]  60 %  1.234 tenute  resta 00:01:05".
/// Takes    nLarghezza   characters between the brackets
[[nodiscard]] std::string TestoBarra(const Avanzato& avanzato, std::int32_t nLarghezza);

/// Draws at most ten times a second, nothing in the first half second, and cleans up behind itself.
class BarraTerminale {
public:
    /// Takes    bAccesa   whether to draw at all
    explicit BarraTerminale(bool bAccesa);
    BarraTerminale(const BarraTerminale&) = delete;
    BarraTerminale& operator=(const BarraTerminale&) = delete;
    ~BarraTerminale() { Cancella(); }

    void Inizia(double nTotale);
    void Aggiorna(double nFatte, double nTenute);
    /// Wipes the bar off the terminal, so that a message can be written there.
    void Cancella();

private:
    bool m_bAccesa;
    bool m_bDisegnata = false;
    double m_nTotale = 0;
    Cadenza::Istante m_Inizio;
    Cadenza m_Cadenza;
};

} // namespace ordavel::cli
