// TavolaInsiemi.cpp - shared sets are found and numbered.

#include "riduzione/TavolaInsiemi.hpp"

#include <algorithm>
#include <bit>

namespace ordavel {

namespace {

/// Eight entries for each set leave few ranks in doubt; the largest table is 256 MiB.
unsigned BitTavola(std::uint64_t nInsiemi) noexcept
{
    return std::clamp(static_cast<unsigned>(std::bit_width(nInsiemi)) + 3, 10U, 28U);
}

} // namespace

TavolaInsiemi::TavolaInsiemi(std::uint64_t nRanghi, std::uint64_t nInsiemi, std::uint64_t nDiretti)
    : m_bDiretta(nRanghi <= nDiretti), m_nBit(BitTavola(nInsiemi))
{
    if (m_bDiretta) {
        m_aDiretti.resize(nRanghi);
    } else {
        m_aVisti.resize(std::size_t{1} << m_nBit);
    }
}

double TavolaInsiemi::Memoria(std::uint64_t nRanghi, std::uint64_t nInsiemi) noexcept
{
    return static_cast<double>(nRanghi <= kDiretti ? nRanghi * sizeof(std::uint32_t)
                                                   : (std::uint64_t{1} << BitTavola(nInsiemi)) +
                                                         nInsiemi * sizeof(std::uint64_t));
}

std::uint64_t TavolaInsiemi::Posto(std::uint64_t nRango) const noexcept
{
    // The golden ratio spreads ranks that lie side by side; the high bits are the best.
    return (nRango * 0x9E3779B97F4A7C15U) >> (64 - m_nBit);
}

std::uint32_t TavolaInsiemi::Numera(std::uint32_t nPrimo)
{
    return m_bDiretta ? NumeraDiretti(nPrimo) : NumeraIndiretti(nPrimo);
}

std::uint32_t TavolaInsiemi::NumeraDiretti(std::uint32_t nPrimo)
{
    for (std::uint32_t& nPosto : m_aDiretti) {
        nPosto = nPosto > 1 ? nPrimo++ : kNessuno;
    }
    return nPrimo;
}

std::uint32_t TavolaInsiemi::NumeraIndiretti(std::uint32_t nPrimo)
{
    std::ranges::sort(m_aRanghi);
    std::size_t nQuanti = 0;
    for (std::size_t i = 1; i < m_aRanghi.size(); ++i) {
        const std::uint64_t nRango = m_aRanghi[i];
        if (nRango == m_aRanghi[i - 1] && (nQuanti == 0 || m_aRanghi[nQuanti - 1] != nRango)) {
            m_aRanghi[nQuanti++] = nRango;
        }
    }
    m_aRanghi.resize(nQuanti);
    m_nPrimo = nPrimo;
    return nPrimo + static_cast<std::uint32_t>(nQuanti);
}

std::uint32_t TavolaInsiemi::NumeroIndiretto(std::uint64_t nRango) const
{
    if (m_aVisti[Posto(nRango)] < 2) {
        return kNessuno;
    }
    const auto trovato = std::ranges::lower_bound(m_aRanghi, nRango);
    if (trovato == m_aRanghi.end() || *trovato != nRango) {
        return kNessuno;
    }
    return m_nPrimo + static_cast<std::uint32_t>(trovato - m_aRanghi.begin());
}

} // namespace ordavel
