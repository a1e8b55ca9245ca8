// ColonneCoprenti.cpp - the table, and the masks beside it.

#include "riduzione/ColonneCoprenti.hpp"

#include <algorithm>
#include <bit>

namespace ordavel {

namespace {

/// Sets of a column up to which look-ups are worth their while: half of class 10, the largest that a development has.
constexpr std::uint64_t kInsiemiMassimi = 252;

/// Sets of nPunti in a column, where they have a rank.
std::uint64_t InsiemiPerColonna(std::int16_t nClasse, std::int32_t nPunti)
{
    const auto nGrandezza = static_cast<std::size_t>(nPunti);
    return nGrandezza > kSottoinsiemeMassimo
               ? 0
               : NumeroSottoinsiemi(static_cast<std::size_t>(nClasse), nGrandezza);
}

/// Can look-ups answer? Points above the class no column has, and a table without sets says so at once.
bool ServeTabella(std::int16_t nClasse, std::int32_t nPunti)
{
    const auto nGrandezza = static_cast<std::size_t>(nPunti);
    return nPunti > nClasse ||
           (nGrandezza <= kSottoinsiemeMassimo && InsiemiPerColonna(nClasse, nPunti) <= kInsiemiMassimi);
}

MascheraColonna Maschera(std::span<const std::uint8_t> aPosti)
{
    MascheraColonna maschera;
    for (const std::uint8_t n : aPosti) {
        (n < 64 ? maschera.nBassa : maschera.nAlta) |= std::uint64_t{1} << (n % 64U);
    }
    return maschera;
}

std::int32_t Comuni(const MascheraColonna& una, const MascheraColonna& altra)
{
    return std::popcount(una.nBassa & altra.nBassa) + std::popcount(una.nAlta & altra.nAlta);
}

} // namespace

ColonneCoprenti::ColonneCoprenti(std::int16_t nClasse, std::int32_t nPunti, std::int64_t nColonne,
                                 std::size_t nByte)
    : m_nClasse(nClasse),
      m_nPunti(nPunti),
      m_bTabella(ServeTabella(nClasse, nPunti)),
      m_Visti(static_cast<std::size_t>(nPunti),
              InsiemiPerColonna(nClasse, nPunti) * static_cast<std::uint64_t>(nColonne),
              m_bTabella ? nByte / 2 : 0),
      m_nMaschereMassime(std::max<std::size_t>(nByte / 2 / sizeof(MascheraColonna), 1))
{
    m_bTabella = m_bTabella && m_Visti.Basta(static_cast<std::size_t>(nClasse));
}

bool ColonneCoprenti::Aggiungi(const Colonna& ridotta)
{
    const PostiColonna posti(ridotta, 1, m_nClasse);
    if (m_aMaschere.size() == m_nMaschereMassime || (m_bTabella && !m_Visti.Aggiungi(posti.Posti()))) {
        return false;
    }
    m_aMaschere.push_back(Maschera(posti.Posti()));
    return true;
}

void ColonneCoprenti::Svuota() noexcept
{
    m_Visti.Svuota();
    m_aMaschere.clear();
}

bool ColonneCoprenti::CopreUnaMaschera(const Colonna& colonna) const
{
    const PostiColonna posti(colonna, 1, m_nClasse);
    if (!posti.Ripetuti()) {
        const MascheraColonna maschera = Maschera(posti.Posti());
        return std::any_of(m_aMaschere.begin(), m_aMaschere.end(), [&](const MascheraColonna& ridotta) {
            return Comuni(ridotta, maschera) >= m_nPunti;
        });
    }
    const auto aNumeri = std::span(colonna.aNumeri).first(static_cast<std::size_t>(m_nClasse));
    return std::any_of(m_aMaschere.begin(), m_aMaschere.end(), [&](const MascheraColonna& ridotta) {
        return std::count_if(aNumeri.begin(), aNumeri.end(),
                             [&](std::uint8_t n) { return ridotta.Contiene(n); }) >= m_nPunti;
    });
}

} // namespace ordavel
