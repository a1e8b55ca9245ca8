// ColonneViste.cpp - the table, and the list beside it.

#include "riduzione/ColonneViste.hpp"

#include <algorithm>

namespace ordavel {

namespace {

/// A longer list costs more to compare than another pass.
constexpr std::size_t kElencoMassimo = 10000;

std::uint64_t RanghiAttesi(std::int16_t nClasse, std::int32_t nPunti, std::int64_t nColonne)
{
    const auto nGrandezza = static_cast<std::size_t>(nPunti);
    if (nGrandezza > kSottoinsiemeMassimo) {
        return 0;
    }
    return NumeroSottoinsiemi(static_cast<std::size_t>(nClasse), nGrandezza) *
           static_cast<std::uint64_t>(nColonne);
}

} // namespace

ColonneViste::ColonneViste(std::int16_t nClasse, std::int32_t nPunti, std::int64_t nColonne,
                           std::size_t nByte)
    : m_nClasse(nClasse),
      m_nPunti(nPunti),
      m_Visti(static_cast<std::size_t>(nPunti), RanghiAttesi(nClasse, nPunti, nColonne), nByte),
      m_Marcati(0, nClasse),
      m_nElencoMassimo(std::clamp<std::size_t>(nByte / sizeof(Colonna), 1, kElencoMassimo))
{}

bool ColonneViste::Aggiungi(const Colonna& colonna)
{
    const PostiColonna posti(colonna, 0, m_nClasse);
    if (!posti.Ripetuti() && m_Visti.Basta(posti.Posti().size())) {
        return m_Visti.Aggiungi(posti.Posti());
    }
    if (m_aElenco.size() == m_nElencoMassimo) {
        return false;
    }
    m_aElenco.push_back(colonna);
    return true;
}

void ColonneViste::Svuota() noexcept
{
    m_Visti.Svuota();
    m_aElenco.clear();
}

bool ColonneViste::CopreElenco(const Colonna& colonna)
{
    m_Marcati.Marca(colonna);
    return std::any_of(m_aElenco.begin(), m_aElenco.end(),
                       [this](const Colonna& tenuta) { return m_Marcati.Comuni(tenuta) >= m_nPunti; });
}

} // namespace ordavel
