// BarraTerminale.cpp - a progress bar on the error stream.

#include "cli/BarraTerminale.hpp"

#include "core/ModNumeri.hpp"

#include <algorithm>
#include <iostream>

namespace ordavel::cli {

namespace {

constexpr std::int32_t kLarghezza = 30;
constexpr std::chrono::milliseconds kPrimaVolta{500};
constexpr std::chrono::milliseconds kOgni{100};

std::string TempoResto(const Avanzato& avanzato)
{
    const double nResto = avanzato.nSecondi * (avanzato.nTotale - avanzato.nFatte) / avanzato.nFatte;
    return FormattaTempo(static_cast<std::int64_t>(Pavimento(std::clamp(nResto, 0.0, 1e9))));
}

} // namespace

std::string TestoBarra(const Avanzato& avanzato, std::int32_t nLarghezza)
{
    const std::int32_t nPercento =
        avanzato.nTotale > 0 ? PercentualeProgress(avanzato.nFatte, avanzato.nTotale) : 100;
    const auto nPiene = static_cast<std::size_t>(nLarghezza * nPercento / 100);
    std::string sBarra(static_cast<std::size_t>(nLarghezza), '-');
    std::fill_n(sBarra.begin(), nPiene, '#');
    std::string sTesto = "[" + sBarra + "] " + std::to_string(nPercento) + " %  ";
    sTesto += FormattaNumero(avanzato.nTenute) + " tenute";
    if (avanzato.nFatte > 0 && avanzato.nTotale > 0) {
        sTesto += "  resta " + TempoResto(avanzato);
    }
    return sTesto;
}

BarraTerminale::BarraTerminale(bool bAccesa) : m_bAccesa(bAccesa), m_Cadenza(kOgni) {}

void BarraTerminale::Inizia(double nTotale)
{
    m_nTotale = nTotale;
    m_Inizio = Cadenza::Orologio::now();
    m_Cadenza = Cadenza(kOgni, m_Inizio + kPrimaVolta);
}

void BarraTerminale::Aggiorna(double nFatte, double nTenute)
{
    const auto adesso = Cadenza::Orologio::now();
    if (!m_bAccesa || !m_Cadenza.Scaduta(adesso)) {
        return;
    }
    const double nSecondi = std::chrono::duration<double>(adesso - m_Inizio).count();
    const Avanzato avanzato{.nFatte = nFatte, .nTotale = m_nTotale, .nTenute = nTenute, .nSecondi = nSecondi};
    // One write: a bar that arrives in pieces flickers.
    std::cerr << "\r\x1b[K" + TestoBarra(avanzato, kLarghezza) << std::flush;
    m_bDisegnata = true;
}

void BarraTerminale::Cancella()
{
    if (m_bDisegnata) {
        std::cerr << "\r\x1b[K" << std::flush;
        m_bDisegnata = false;
    }
}

} // namespace ordavel::cli
