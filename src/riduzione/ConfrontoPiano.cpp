// ConfrontoPiano.cpp - each column against all that were kept before it.

#include "riduzione/ConfrontoPiano.hpp"

#include <algorithm>
#include <span>

namespace ordavel {

ConfrontoPiano::ConfrontoPiano(ColonneRidotte& ridotte, std::int16_t nClasse, std::int32_t nPunti,
                               std::size_t nBlocco)
    : m_Ridotte(ridotte),
      m_Marcati(0, nClasse),
      m_nPunti(nPunti),
      m_nBlocco(static_cast<std::int64_t>(nBlocco))
{}

void ConfrontoPiano::ConfrontaColonnaRidotta(const Colonna& colonna)
{
    m_Marcati.Marca(colonna);
    if (!Copre(m_Ridotte.InAttesa()) && !CopreIlFile()) {
        m_Ridotte.Tieni(colonna);
    }
}

bool ConfrontoPiano::Copre(std::span<const Colonna> aTenute) const
{
    return std::any_of(aTenute.rbegin(), aTenute.rend(),
                       [this](const Colonna& tenuta) { return m_Marcati.Comuni(tenuta) >= m_nPunti; });
}

bool ConfrontoPiano::CopreIlFile()
{
    bool bCopre = false;
    for (std::int64_t nFine = m_Ridotte.Scritte(); nFine > 0 && !bCopre; nFine -= m_nBlocco) {
        const std::int64_t nInizio = std::max<std::int64_t>(nFine - m_nBlocco, 0);
        m_aBlocco.resize(static_cast<std::size_t>(nFine - nInizio));
        m_Ridotte.File().Leggi(nInizio * kByteColonna + 1, std::as_writable_bytes(std::span(m_aBlocco)));
        bCopre = Copre(m_aBlocco);
    }
    return bCopre;
}

} // namespace ordavel
