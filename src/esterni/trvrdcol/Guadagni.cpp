// Guadagni.cpp - values of sets for the greedy cover.

#include "Guadagni.hpp"

#include "riduzione/Sottoinsiemi.hpp"

namespace ordavel::trvrdcol {

GuadagniScritti::GuadagniScritti(const Problema& problema, const Incidenza& incidenza)
    : Coperti(problema.Quanti()),
      m_Problema(problema),
      m_Incidenza(incidenza),
      m_aValore(problema.Quanti(), 0)
{
    for (std::size_t i = 0; i < problema.Quanti(); ++i) {
        for (const Indice j : incidenza.copre[i]) {
            m_aValore[i] += problema.aMolteplicita[j];
        }
    }
}

void GuadagniScritti::Copri(Indice nInsieme)
{
    for (const Indice j : m_Incidenza.copre[nInsieme]) {
        if (!Segna(j)) {
            continue;
        }
        const std::uint32_t nMeno = m_Problema.aMolteplicita[j];
        for (const Indice i : m_Incidenza.copre[j]) {
            m_aValore[i] -= nMeno;
        }
    }
}

bool GuadagniContati::Possibile(const Problema& problema)
{
    constexpr std::uint64_t kContatoriMassimi = 100'000'000;
    constexpr std::uint64_t kLettureMassime = 3000;
    std::uint64_t nContatori = 0;
    std::uint64_t nLetture = 0;
    if (static_cast<std::size_t>(problema.nPunti) > kSottoinsiemeMassimo) {
        return false;
    }
    for (int s = problema.nPunti; s < problema.nGrandezza; ++s) {
        if (static_cast<std::size_t>(s) > kSottoinsiemeMassimo || nContatori > kContatoriMassimi) {
            return false;
        }
        nContatori += NumeroSottoinsiemi(problema.nPosti, static_cast<std::size_t>(s));
        nLetture +=
            NumeroSottoinsiemi(static_cast<std::size_t>(problema.nGrandezza), static_cast<std::size_t>(s));
    }
    return nContatori <= kContatoriMassimi && nLetture <= kLettureMassime;
}

GuadagniContati::GuadagniContati(const Problema& problema, const Vicini& vicini)
    : Coperti(problema.Quanti()), m_Problema(problema), m_Vicini(vicini), m_Segni(problema.Quanti())
{
    for (int s = problema.nPunti; s < problema.nGrandezza; ++s) {
        m_aTabelle.emplace_back(NumeroSottoinsiemi(problema.nPosti, static_cast<std::size_t>(s)), 0);
    }
    for (Indice i = 0; i < problema.Quanti(); ++i) {
        Conta(i, problema.aMolteplicita[i]);
    }
}

/// Takes    nQuanti   to be added, modulo 2^32
void GuadagniContati::Conta(Indice nInsieme, std::uint32_t nQuanti)
{
    const Posti posti(m_Problema.aInsiemi[nInsieme]);
    auto s = static_cast<std::size_t>(m_Problema.nPunti);
    for (std::vector<std::uint32_t>& aTabella : m_aTabelle) {
        PerOgniSottoinsieme(std::span<const std::uint8_t>(posti.aPosti.data(), posti.nPosti), s++,
                            [&](std::uint64_t nRango) { aTabella[nRango] += nQuanti; });
    }
}

std::uint32_t GuadagniContati::Valore(Indice nInsieme) const
{
    const Posti posti(m_Problema.aInsiemi[nInsieme]);
    const auto t = static_cast<std::size_t>(m_Problema.nPunti);
    std::int64_t nValore = 0;
    std::int64_t nSegno = 1;
    std::size_t s = t;
    for (const std::vector<std::uint32_t>& aTabella : m_aTabelle) {
        std::int64_t nSomma = 0;
        PerOgniSottoinsieme(std::span<const std::uint8_t>(posti.aPosti.data(), posti.nPosti), s,
                            [&](std::uint64_t nRango) { nSomma += aTabella[nRango]; });
        nValore += nSegno * static_cast<std::int64_t>(NumeroSottoinsiemi(s - 1, t - 1)) * nSomma;
        nSegno = -nSegno;
        ++s;
    }
    // A set as large as any is held by itself alone; there is no table for that.
    if (posti.nPosti == s && !Coperto(nInsieme)) {
        nValore += nSegno * static_cast<std::int64_t>(NumeroSottoinsiemi(s - 1, t - 1)) *
                   m_Problema.aMolteplicita[nInsieme];
    }
    return static_cast<std::uint32_t>(nValore);
}

void GuadagniContati::Copri(Indice nInsieme)
{
    m_Vicini.Trova(nInsieme, m_Segni, m_aTrovati);
    for (const Indice j : m_aTrovati) {
        if (Segna(j)) {
            Conta(j, 0U - m_Problema.aMolteplicita[j]);
        }
    }
}

std::uint32_t GuadagniCercati::Valore(Indice nInsieme)
{
    m_Vicini.Trova(nInsieme, m_Segni, m_aTrovati);
    std::uint32_t nValore = 0;
    for (const Indice j : m_aTrovati) {
        nValore += Coperto(j) ? 0 : m_Problema.aMolteplicita[j];
    }
    return nValore;
}

void GuadagniCercati::Copri(Indice nInsieme)
{
    m_Vicini.Trova(nInsieme, m_Segni, m_aTrovati);
    for (const Indice j : m_aTrovati) {
        Segna(j);
    }
}

} // namespace ordavel::trvrdcol
