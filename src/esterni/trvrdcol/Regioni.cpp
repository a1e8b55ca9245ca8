// Regioni.cpp - cut out, search, put back.

#include "Regioni.hpp"

#include "RicercaLocale.hpp"

#include <algorithm>
#include <utility>

namespace ordavel::trvrdcol {

namespace {

/// Chosen sets in a region. Fewer are soon as good as they can be; with more the search loses its hold.
constexpr std::size_t kRegioneMinima = 6;
constexpr std::size_t kRegioneMassima = 60;
/// Elements in a region, so that none takes longer than a moment.
constexpr std::size_t kElementiMassimi = 6000;

} // namespace

CoperturaComune::CoperturaComune(std::size_t nQuanti) : aQuanti(nQuanti, 0), aPosto(nQuanti, kNessuno) {}

void CoperturaComune::Entra(Indice nInsieme, std::span<const Indice> aVicini)
{
    std::ranges::for_each(aVicini, [&](Indice i) { ++aQuanti[i]; });
    aPosto[nInsieme] = static_cast<Indice>(aScelti.size());
    aScelti.push_back(nInsieme);
}

void CoperturaComune::Esce(Indice nInsieme, std::span<const Indice> aVicini)
{
    std::ranges::for_each(aVicini, [&](Indice i) { --aQuanti[i]; });
    const Indice nUltimo = aScelti.back();
    aScelti[aPosto[nInsieme]] = nUltimo;
    aPosto[nUltimo] = aPosto[nInsieme];
    aPosto[nInsieme] = kNessuno;
    aScelti.pop_back();
}

RicercaRegioni::RicercaRegioni(CoperturaComune& copertura, Fonte fonte, std::uint64_t nSeme)
    : m_Copertura(copertura),
      m_Fonte(std::move(fonte)),
      m_Sorte(nSeme),
      m_Visti(copertura.aQuanti.size()),
      m_aLocale(copertura.aQuanti.size(), 0)
{}

void RicercaRegioni::Parti(const std::vector<Indice>& aScelti)
{
    const std::scoped_lock presa(m_Copertura.serratura);
    if (!m_Copertura.aScelti.empty() && m_Copertura.aScelti.size() <= aScelti.size()) {
        return;
    }
    m_Copertura.aScelti.clear();
    std::ranges::fill(m_Copertura.aQuanti, 0U);
    std::ranges::fill(m_Copertura.aPosto, kNessuno);
    for (const Indice i : aScelti) {
        m_Copertura.Entra(i, m_Fonte.Vicini(i));
    }
}

std::vector<Indice> RicercaRegioni::Scelti() const
{
    const std::scoped_lock presa(m_Copertura.serratura);
    return m_Copertura.aScelti;
}

std::size_t RicercaRegioni::Quanti() const
{
    const std::scoped_lock presa(m_Copertura.serratura);
    return m_Copertura.aScelti.size();
}

/// Adds to the region the chosen sets that cover some element which nScelto covers as well.
void RicercaRegioni::Guarda(Indice nScelto, std::size_t nGrandezza)
{
    const auto aVicini = m_Fonte.Vicini(nScelto);
    std::vector<Indice> aElementi(aVicini.begin(), aVicini.end());
    m_Sorte.Mescola(aElementi);
    for (const Indice e : aElementi) {
        if (m_aRegione.size() >= nGrandezza) {
            return;
        }
        if (m_Copertura.aQuanti[e] < 2) {
            continue; // only nScelto covers it
        }
        for (const Indice c : m_Fonte.Vicini(e)) {
            if (m_Copertura.aPosto[c] != kNessuno && m_Visti.Segna(c)) {
                m_aRegione.push_back(c);
            }
        }
    }
}

/// A chosen set by chance, and those around it.
void RicercaRegioni::Raccogli()
{
    const std::size_t nGrandezza = kRegioneMinima + m_Sorte.Sotto(kRegioneMassima - kRegioneMinima + 1);
    const Indice nPrimo = m_Copertura.aScelti[m_Sorte.Sotto(m_Copertura.aScelti.size())];
    m_Visti.Cancella();
    m_Visti.Segna(nPrimo);
    m_aRegione = {nPrimo};
    for (std::size_t k = 0; k < m_aRegione.size() && m_aRegione.size() < nGrandezza; ++k) {
        Guarda(m_aRegione[k], nGrandezza);
    }
    m_aRegione.resize(std::min(m_aRegione.size(), nGrandezza));
}

/// What the region's sets cover and no other; the region is cut where this becomes too much.
void RicercaRegioni::ElementiPropri()
{
    std::vector<Indice> aToccati;
    m_Visti.Cancella();
    for (std::size_t k = 0; k < m_aRegione.size(); ++k) {
        if (aToccati.size() > kElementiMassimi) {
            m_aRegione.resize(k);
            break;
        }
        for (const Indice e : m_Fonte.Vicini(m_aRegione[k])) {
            if (m_Visti.Segna(e)) {
                m_aLocale[e] = 0;
                aToccati.push_back(e);
            }
            ++m_aLocale[e];
        }
    }
    m_aElementi.clear();
    for (const Indice e : aToccati) {
        if (m_aLocale[e] == m_Copertura.aQuanti[e]) {
            m_aElementi.push_back(e);
        }
    }
}

/// The small problem.
Incidenza RicercaRegioni::Ritaglia()
{
    Incidenza incidenza;
    m_aCandidati.clear();
    m_Visti.Cancella();
    std::vector<Indice> aRiga;
    for (const Indice e : m_aElementi) {
        aRiga.clear();
        for (const Indice c : m_Fonte.Vicini(e)) {
            if (m_Visti.Segna(c)) {
                m_aLocale[c] = static_cast<Indice>(m_aCandidati.size());
                m_aCandidati.push_back(c);
            }
            aRiga.push_back(m_aLocale[c]);
        }
        incidenza.coperta.Accoda(aRiga);
    }
    incidenza.copre = Trasposta(incidenza.coperta, m_aCandidati.size());
    incidenza.aCosto.assign(m_aCandidati.size(), 1);
    return incidenza;
}

/// Searches the small problem from the region's sets on.
/// Gives    sets that may take their place, as many or fewer
std::vector<Indice> RicercaRegioni::Cerca(const Incidenza& incidenza, const Tempo& tempo)
{
    constexpr unsigned kFetteVane = 8;
    const std::size_t nFetta = std::clamp<std::size_t>(incidenza.copre.aVoci.size() / 4, 10, 250);
    std::vector<Indice> aInizio;
    for (const Indice c : m_aRegione) {
        // A set of the region that covers nothing alone is no candidate: it can simply go.
        if (m_aLocale[c] < m_aCandidati.size() && m_aCandidati[m_aLocale[c]] == c) {
            aInizio.push_back(m_aLocale[c]);
        }
    }
    RicercaLocale ricerca(incidenza, m_Sorte.Numero());
    ricerca.Parti(aInizio);
    const std::size_t nLimite = LimiteInferiore(incidenza);
    for (unsigned n = 0; n < kFetteVane && ricerca.CostoMigliore() > nLimite && !tempo.Finito(); ++n) {
        n = ricerca.Cerca(nFetta) ? 0 : n;
    }
    std::vector<Indice> aNuovi;
    for (const Indice c : ricerca.Migliore()) {
        aNuovi.push_back(m_aCandidati[c]);
    }
    return aNuovi;
}

/// Puts sets in the place of the region's.
/// Gives    false, and changes nothing, when others have changed too much meanwhile
bool RicercaRegioni::Scambia(const std::vector<Indice>& aNuovi)
{
    const std::scoped_lock presa(m_Copertura.serratura);
    const auto scelto = [&](Indice i) { return m_Copertura.aPosto[i] != kNessuno; };
    if (!std::ranges::all_of(m_aRegione, scelto)) {
        return false;
    }
    std::ranges::for_each(m_aRegione, [&](Indice i) { m_Copertura.Esce(i, m_Fonte.Vicini(i)); });
    bool bTutto = std::ranges::none_of(aNuovi, scelto);
    if (bTutto) {
        std::ranges::for_each(aNuovi, [&](Indice i) { m_Copertura.Entra(i, m_Fonte.Vicini(i)); });
        bTutto = std::ranges::all_of(m_aRegione, [&](Indice i) {
            return std::ranges::all_of(m_Fonte.Vicini(i),
                                       [&](Indice e) { return m_Copertura.aQuanti[e] > 0; });
        });
        if (!bTutto) {
            std::ranges::for_each(aNuovi, [&](Indice i) { m_Copertura.Esce(i, m_Fonte.Vicini(i)); });
        }
    }
    if (!bTutto) {
        std::ranges::for_each(m_aRegione, [&](Indice i) { m_Copertura.Entra(i, m_Fonte.Vicini(i)); });
    }
    return bTutto;
}

std::size_t RicercaRegioni::Prova(const Tempo& tempo)
{
    {
        const std::scoped_lock presa(m_Copertura.serratura);
        Raccogli();
        ElementiPropri();
    }
    if (m_aRegione.size() < 2) {
        return 0;
    }
    const std::vector<Indice> aNuovi = Cerca(Ritaglia(), tempo);
    return aNuovi.size() <= m_aRegione.size() && Scambia(aNuovi) ? m_aRegione.size() - aNuovi.size() : 0;
}

} // namespace ordavel::trvrdcol
