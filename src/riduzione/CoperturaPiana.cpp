// CoperturaPiana.cpp - a look at every pair.

#include "riduzione/CoperturaPiana.hpp"

#include <algorithm>

namespace ordavel {

namespace {

/// Pairs between two looks for a stop.
constexpr std::size_t kCoppieBlocco = 10'000'000;

} // namespace

CoperturaPiana::CoperturaPiana(const ProblemaRiduzione& problema, Continua continua)
    : Copertura(std::move(continua)),
      m_Problema(problema),
      m_Marcati(1, problema.nClasse),
      m_aCoperte(problema.aColonne.size())
{}

template <typename Azione> void CoperturaPiana::PerOgniCoperta(std::size_t i, const Azione& azione)
{
    m_Marcati.Marca(m_Problema.aColonne[i]);
    for (std::size_t m = 0; m < m_Problema.aColonne.size(); ++m) {
        if (m != i && !m_aCoperte[m] && m_Marcati.Comuni(m_Problema.aColonne[m]) >= m_Problema.nPunti) {
            azione(m);
        }
    }
}

std::size_t CoperturaPiana::Blocco() const noexcept
{
    return std::max<std::size_t>(1, kCoppieBlocco / std::max<std::size_t>(1, m_Problema.aColonne.size()));
}

void CoperturaPiana::ValoriIniziali(std::size_t nDa, std::span<std::int32_t> aValori)
{
    for (std::size_t i = 0; i < aValori.size(); ++i) {
        aValori[i] = Valore(nDa + i);
    }
}

std::int32_t CoperturaPiana::Valore(std::size_t i)
{
    std::int32_t nValore = 0;
    PerOgniCoperta(i, [&](std::size_t /*m*/) { ++nValore; });
    return nValore;
}

void CoperturaPiana::Scegli(std::size_t i)
{
    PerOgniCoperta(i, [&](std::size_t m) { m_aCoperte[m] = true; });
    m_aCoperte[i] = true;
}

} // namespace ordavel
