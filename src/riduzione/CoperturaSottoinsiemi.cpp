// CoperturaSottoinsiemi.cpp - values as sums of counters.

#include "riduzione/CoperturaSottoinsiemi.hpp"

namespace ordavel {

CoperturaSottoinsiemi::CoperturaSottoinsiemi(const ProblemaRiduzione& problema, const Continua& continua)
    : Copertura(continua),
      m_Insiemi(problema, continua),
      m_aContatori(m_Insiemi.Quanti()),
      m_aCoperte(problema.aColonne.size())
{
    const auto nPunti = static_cast<std::size_t>(problema.nPunti);
    for (std::size_t s = nPunti; s <= kSottoinsiemeMassimo; ++s) {
        const auto nPeso = static_cast<std::uint32_t>(kBinomiali[s - 1][nPunti - 1]);
        m_aPesi[s] = (s - nPunti) % 2 == 0 ? nPeso : 0 - nPeso;
    }
    for (std::size_t i = 0; i < m_aCoperte.size() && m_Insiemi.Completi(); ++i) {
        for (const std::uint32_t nVoce : m_Insiemi.Di(i)) {
            m_aContatori[InsiemiCondivisi::Numero(nVoce)] += Peso(nVoce);
        }
    }
}

std::uint32_t CoperturaSottoinsiemi::Proprio(std::size_t i) const noexcept
{
    std::uint32_t nProprio = 0;
    for (const std::uint32_t nVoce : m_Insiemi.Di(i)) {
        nProprio += Peso(nVoce);
    }
    return nProprio;
}

std::int32_t CoperturaSottoinsiemi::Valore(std::size_t i)
{
    std::uint32_t nValore = 0;
    for (const std::uint32_t nVoce : m_Insiemi.Di(i)) {
        nValore += m_aContatori[InsiemiCondivisi::Numero(nVoce)];
    }
    return static_cast<std::int32_t>(Coperta(i) ? nValore : nValore - Proprio(i));
}

void CoperturaSottoinsiemi::ValoriIniziali(std::size_t nDa, std::span<std::int32_t> aValori)
{
    for (std::size_t i = 0; i < aValori.size(); ++i) {
        aValori[i] = Valore(nDa + i);
    }
}

void CoperturaSottoinsiemi::Copri(std::size_t i)
{
    if (Coperta(i)) {
        return;
    }
    m_aCoperte[i] = 1;
    for (const std::uint32_t nVoce : m_Insiemi.Di(i)) {
        m_aContatori[InsiemiCondivisi::Numero(nVoce)] -= Peso(nVoce);
    }
}

void CoperturaSottoinsiemi::Scegli(std::size_t i)
{
    Copri(i);
    for (const std::uint32_t nVoce : m_Insiemi.MinimiDi(i)) {
        for (const std::uint32_t m : m_Insiemi.Colonne(InsiemiCondivisi::Numero(nVoce))) {
            Copri(m);
        }
    }
}

} // namespace ordavel
