// NumeriComuni.cpp - marks.

#include "riduzione/NumeriComuni.hpp"

namespace ordavel {

void NumeriMarcati::Marca(const Colonna& colonna) noexcept
{
    m_aMarchi.fill(0);
    for (std::int16_t k = 1; k <= m_nClasse; ++k) {
        const std::uint8_t nNumero = colonna[k];
        m_aMarchi[nNumero] = nNumero >= m_nPrimo && nNumero <= kNumeroMassimo ? 1 : 0;
    }
}

} // namespace ordavel
