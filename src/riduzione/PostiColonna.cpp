// PostiColonna.cpp - columns that are not in order.

#include "riduzione/PostiColonna.hpp"

#include <algorithm>

namespace ordavel {

void PostiColonna::Riordina(std::uint8_t nPrimo) noexcept
{
    auto* const pFine = std::copy_if(m_pPosti, m_pPosti + m_nPosti, m_aRiordinati.data(),
                                     [nPrimo](std::uint8_t n) { return n >= nPrimo && n <= kNumeroMassimo; });
    std::sort(m_aRiordinati.data(), pFine);
    auto* const pDiversi = std::unique(m_aRiordinati.data(), pFine);
    m_bRipetuti = pDiversi != pFine;
    m_pPosti = m_aRiordinati.data();
    m_nPosti = static_cast<std::size_t>(pDiversi - m_aRiordinati.data());
}

} // namespace ordavel
