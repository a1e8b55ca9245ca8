// Orbite.cpp - many small problems out of a large one.

#include "Orbite.hpp"

#include "RicercaLocale.hpp"

#include <algorithm>
#include <numeric>

namespace ordavel::trvrdcol {

namespace {

constexpr std::size_t kVociMassime = 30'000'000;
constexpr std::size_t kOrbiteMassime = 60'000;
constexpr std::size_t kConservati = 12;

Indice Radice(std::vector<Indice>& aPadre, Indice n) noexcept
{
    while (aPadre[n] != n) {
        aPadre[n] = aPadre[aPadre[n]];
        n = aPadre[n];
    }
    return n;
}

/// Joins each set with its image.
/// Gives    false when an image is not among the sets
bool Unisci(const Terreno& terreno, const Permutazione& permutazione, std::vector<Indice>& aPadre)
{
    const std::vector<Maschera>& aInsiemi = terreno.problema.aInsiemi;
    for (Indice i = 0; i < aInsiemi.size(); ++i) {
        const Indice nImmagine = terreno.dizionario.Trova(aInsiemi, Immagine(aInsiemi[i], permutazione));
        if (nImmagine == kNessuno) {
            return false;
        }
        const Indice nQui = Radice(aPadre, i);
        const Indice nLa = Radice(aPadre, nImmagine);
        aPadre[std::max(nQui, nLa)] = std::min(nQui, nLa);
    }
    return true;
}

} // namespace

std::optional<Orbite> DividiInOrbite(const Terreno& terreno, const Gruppo& gruppo)
{
    std::vector<Indice> aPadre(terreno.problema.Quanti());
    std::iota(aPadre.begin(), aPadre.end(), Indice{0});
    for (const Permutazione& permutazione : gruppo) {
        if (!Unisci(terreno, permutazione, aPadre)) {
            return {};
        }
    }
    Orbite orbite;
    orbite.aOrbitaDi.resize(aPadre.size());
    for (Indice i = 0; i < aPadre.size(); ++i) {
        const Indice nRadice = Radice(aPadre, i);
        if (nRadice == i) { // the root is the first of its orbit
            orbite.aOrbitaDi[i] = static_cast<Indice>(orbite.Quante());
            orbite.aRappresentante.push_back(i);
            orbite.aGrandezza.push_back(0);
        }
        orbite.aOrbitaDi[i] = orbite.aOrbitaDi[nRadice];
        ++orbite.aGrandezza[orbite.aOrbitaDi[i]];
    }
    return orbite;
}

std::optional<Incidenza> IncidenzaOrbite(const Orbite& orbite, Fonte& fonte, const Tempo& tempo)
{
    Incidenza incidenza;
    incidenza.aCosto = orbite.aGrandezza;
    Segni segni(orbite.Quante());
    std::vector<Indice> aRiga;
    for (std::size_t o = 0; o < orbite.Quante(); ++o) {
        segni.Cancella();
        aRiga.clear();
        for (const Indice i : fonte.Vicini(orbite.aRappresentante[o])) {
            if (segni.Segna(orbite.aOrbitaDi[i])) {
                aRiga.push_back(orbite.aOrbitaDi[i]);
            }
        }
        incidenza.copre.Accoda(aRiga);
        if (incidenza.copre.aVoci.size() > kVociMassime || (o % 64 == 0 && tempo.Finito())) {
            return {};
        }
    }
    return incidenza;
}

RicercaSimmetrica::RicercaSimmetrica(const Terreno& terreno, std::uint64_t nSeme)
    : m_Terreno(terreno),
      m_Sorte(nSeme),
      m_Fonte(terreno.vicini, terreno.incidenza, terreno.problema.Quanti())
{}

/// A new group, a kept one to be searched longer, or a part of a kept one, which begins with the cover of the whole.
RicercaSimmetrica::Tentativo RicercaSimmetrica::Scegli()
{
    if (m_aConservati.size() < kConservati || m_Sorte.Capita(50)) {
        Tentativo nuovo;
        nuovo.gruppo = GruppoACaso(m_Terreno.aClassi, m_Sorte);
        return nuovo;
    }
    // The better of two drawn; the kept ones stand in order.
    const std::size_t nQuale =
        std::min(m_Sorte.Sotto(m_aConservati.size()), m_Sorte.Sotto(m_aConservati.size()));
    Tentativo scelto = m_aConservati[nQuale];
    if (m_Sorte.Capita(35)) {
        scelto.gruppo = Sottogruppo(std::move(scelto.gruppo), m_Sorte);
        std::vector<Indice> aTutti;
        m_Orbite = DividiInOrbite(m_Terreno, m_aConservati[nQuale].gruppo).value();
        scelto.aScelti = Distesi(m_aConservati[nQuale]);
        scelto.nVolte = 0;
    } else {
        m_aConservati.erase(m_aConservati.begin() + static_cast<std::ptrdiff_t>(nQuale));
    }
    return scelto;
}

/// All sets of the chosen orbits.
std::vector<Indice> RicercaSimmetrica::Distesi(const Tentativo& tentativo) const
{
    std::vector<bool> aDentro(m_Orbite.Quante());
    for (const Indice i : tentativo.aScelti) {
        aDentro[m_Orbite.aOrbitaDi[i]] = true;
    }
    std::vector<Indice> aTutti;
    for (Indice i = 0; i < m_Orbite.aOrbitaDi.size(); ++i) {
        if (aDentro[m_Orbite.aOrbitaDi[i]]) {
            aTutti.push_back(i);
        }
    }
    return aTutti;
}

/// Searches the covers of a group, from the best known one or anew.
/// Gives    false when the group is of no use
bool RicercaSimmetrica::Cerca(Tentativo& tentativo, const Tempo& tempo)
{
    std::optional<Orbite> orbite = DividiInOrbite(m_Terreno, tentativo.gruppo);
    if (!orbite || orbite->Quante() < 2 || orbite->Quante() > kOrbiteMassime) {
        return false;
    }
    m_Orbite = std::move(*orbite);
    const std::optional<Incidenza> incidenza = IncidenzaOrbite(m_Orbite, m_Fonte, tempo);
    if (!incidenza) {
        return false;
    }
    std::vector<Indice> aScelti;
    for (const Indice i : tentativo.aScelti) {
        aScelti.push_back(m_Orbite.aOrbitaDi[i]);
    }
    RicercaLocale ricerca(*incidenza, m_Sorte.Numero());
    ricerca.Parti(aScelti);
    constexpr std::size_t kFetta = 500;
    const std::size_t nFette = (4 + m_Orbite.Quante() / 100) << std::min(tentativo.nVolte, 8U);
    for (std::size_t n = 0; n < nFette && !tempo.Finito(); ++n) {
        ricerca.Cerca(kFetta);
    }
    tentativo.nCosto = ricerca.CostoMigliore();
    tentativo.nOrbite = m_Orbite.Quante();
    ++tentativo.nVolte;
    tentativo.aScelti.clear();
    for (const Indice o : ricerca.Migliore()) {
        tentativo.aScelti.push_back(m_Orbite.aRappresentante[o]);
    }
    return true;
}

/// Keeps the cheapest ones, one of each number of orbits and cost.
void RicercaSimmetrica::Conserva(Tentativo tentativo)
{
    const auto uguale = [&](const Tentativo& t) {
        return t.nCosto == tentativo.nCosto && t.nOrbite == tentativo.nOrbite;
    };
    if (std::ranges::any_of(m_aConservati, uguale)) {
        return;
    }
    const auto posto = std::ranges::upper_bound(m_aConservati, tentativo.nCosto, {}, &Tentativo::nCosto);
    m_aConservati.insert(posto, std::move(tentativo));
    if (m_aConservati.size() > kConservati) {
        m_aConservati.pop_back();
    }
}

std::vector<Indice> RicercaSimmetrica::Prova(std::size_t nDaBattere, const Tempo& tempo)
{
    Tentativo tentativo = Scegli();
    if (tentativo.gruppo.empty() || !Cerca(tentativo, tempo)) {
        return {};
    }
    std::vector<Indice> aTrovati;
    if (tentativo.nCosto < nDaBattere) {
        aTrovati = Distesi(tentativo);
    }
    Conserva(std::move(tentativo));
    return aTrovati;
}

} // namespace ordavel::trvrdcol
