// RicercaLocale.cpp - weighted exchange.

#include "RicercaLocale.hpp"

#include <algorithm>

namespace ordavel::trvrdcol {

namespace {

/// Above this many chosen candidates, the one to drop is the best of a draw of half as many: looking at all would
/// take longer than the exchange itself. A draw among few makes much worse covers than looking at all.
constexpr std::size_t kSceltiGuardati = 4000;
/// Weights begin anew before a value could pass 32 bits.
constexpr std::uint64_t kPesoMassimo = 3'000'000'000;

} // namespace

RicercaLocale::RicercaLocale(const Incidenza& incidenza, std::uint64_t nSeme)
    : m_Incidenza(incidenza),
      m_CopertaDa(incidenza.CopertaDa()),
      m_Sorte(nSeme),
      m_aCandidati(incidenza.Candidati())
{
    m_Scelti.aPosto.resize(incidenza.Candidati());
    m_Scoperti.aPosto.resize(incidenza.Elementi());
}

/// Nothing is chosen, all weights are 1.
void RicercaLocale::Azzera()
{
    const std::size_t nElementi = m_Incidenza.Elementi();
    m_aPeso.assign(nElementi, 1);
    m_aQuanti.assign(nElementi, 0);
    m_aIntreccio.assign(nElementi, 0);
    for (std::size_t c = 0; c < m_aCandidati.size(); ++c) {
        Candidato& candidato = m_aCandidati[c];
        candidato.nValore = static_cast<std::uint32_t>(m_Incidenza.copre[c].size());
        candidato.nCosto = m_Incidenza.aCosto[c];
        candidato.nDentro = 0;
        candidato.nPuoTornare = 1;
    }
    m_Scelti.aVoci.clear();
    m_Scoperti.aVoci.clear();
    for (Indice e = 0; e < nElementi; ++e) {
        m_Scoperti.Metti(e);
    }
    m_nPesoTotale = nElementi;
    m_nCosto = 0;
}

void RicercaLocale::Parti(std::span<const Indice> aScelti)
{
    Azzera();
    for (const Indice c : aScelti) {
        if (m_aCandidati[c].nDentro == 0) {
            Entra(c);
        }
    }
    Completa();
    Salva();
}

void RicercaLocale::Completa()
{
    while (!m_Scoperti.aVoci.empty()) {
        Entra(PiuUtile(m_Scoperti.aVoci[m_Sorte.Sotto(m_Scoperti.aVoci.size())]));
    }
}

void RicercaLocale::Salva()
{
    m_aMigliore = m_Scelti.aVoci;
    m_nCostoMigliore = m_nCosto;
}

/// The hot loop, with its mirror below: only where an element changes between covered by none, by one and by two do
/// values change.
void RicercaLocale::Entra(Indice nCandidato)
{
    std::uint32_t nValore = 0;
    for (const Indice e : m_Incidenza.copre[nCandidato]) {
        const std::uint32_t nPeso = m_aPeso[e];
        const std::uint32_t nQuanti = m_aQuanti[e]++;
        if (nQuanti == 0) {
            for (const Indice c : m_CopertaDa[e]) {
                m_aCandidati[c].nValore -= nPeso;
                m_aCandidati[c].nPuoTornare = 1;
            }
            nValore += nPeso;
            m_Scoperti.Togli(e);
        } else if (nQuanti == 1) {
            m_aCandidati[m_aIntreccio[e]].nValore -= nPeso;
        }
        m_aIntreccio[e] ^= nCandidato;
    }
    Candidato& candidato = m_aCandidati[nCandidato];
    candidato.nValore = nValore;
    candidato.nDentro = 1;
    candidato.nMossa = m_nPasso;
    m_nCosto += candidato.nCosto;
    m_Scelti.Metti(nCandidato);
}

void RicercaLocale::Esce(Indice nCandidato)
{
    std::uint32_t nValore = 0;
    for (const Indice e : m_Incidenza.copre[nCandidato]) {
        const std::uint32_t nPeso = m_aPeso[e];
        const std::uint32_t nQuanti = --m_aQuanti[e];
        m_aIntreccio[e] ^= nCandidato;
        if (nQuanti == 0) {
            for (const Indice c : m_CopertaDa[e]) {
                m_aCandidati[c].nValore += nPeso;
                m_aCandidati[c].nPuoTornare = 1;
            }
            nValore += nPeso;
            m_Scoperti.Metti(e);
        } else if (nQuanti == 1) {
            m_aCandidati[m_aIntreccio[e]].nValore += nPeso;
        }
    }
    Candidato& candidato = m_aCandidati[nCandidato];
    candidato.nValore = nValore;
    candidato.nDentro = 0;
    candidato.nPuoTornare = 0;
    candidato.nMossa = m_nPasso;
    m_nCosto -= candidato.nCosto;
    m_Scelti.Togli(nCandidato);
}

/// Which chosen candidate to drop, the one worth least for its cost; kNessuno when there is none.
Indice RicercaLocale::MenoUtile()
{
    const std::vector<Indice>& aScelti = m_Scelti.aVoci;
    const bool bTutti = aScelti.size() <= kSceltiGuardati;
    const std::size_t nGuardati = bTutti ? aScelti.size() : kSceltiGuardati / 2;
    Indice nMeno = kNessuno;
    for (std::size_t k = 0; k < nGuardati; ++k) {
        const Indice c = aScelti[bTutti ? k : m_Sorte.Sotto(aScelti.size())];
        if (c == m_nAppenaEntrato) {
            continue;
        }
        if (nMeno == kNessuno) {
            nMeno = c;
            continue;
        }
        const Candidato& candidato = m_aCandidati[c];
        const Candidato& meno = m_aCandidati[nMeno];
        const auto resa = Resa(candidato, meno);
        nMeno = std::is_lt(resa) || (std::is_eq(resa) && candidato.nMossa < meno.nMossa) ? c : nMeno;
    }
    return nMeno == kNessuno && !aScelti.empty() ? aScelti.front() : nMeno;
}

/// Which candidate is to cover an uncovered element. When none that covers it may come back, all may.
Indice RicercaLocale::PiuUtile(Indice nElemento) const
{
    Indice nPiu = kNessuno;
    for (const Indice c : m_CopertaDa[nElemento]) {
        if (nPiu == kNessuno) {
            nPiu = c;
            continue;
        }
        const Candidato& candidato = m_aCandidati[c];
        const Candidato& piu = m_aCandidati[nPiu];
        const auto resa = Resa(candidato, piu);
        const bool bMeglio = std::is_gt(resa) || (std::is_eq(resa) && candidato.nMossa < piu.nMossa);
        nPiu = (candidato.nPuoTornare == piu.nPuoTornare ? bMeglio : candidato.nPuoTornare != 0) ? c : nPiu;
    }
    return nPiu;
}

void RicercaLocale::Appesantisci()
{
    for (const Indice e : m_Scoperti.aVoci) {
        ++m_aPeso[e];
        for (const Indice c : m_CopertaDa[e]) {
            ++m_aCandidati[c].nValore;
        }
    }
    m_nPesoTotale += m_Scoperti.aVoci.size();
}

void RicercaLocale::Passo()
{
    ++m_nPasso;
    if (const Indice c = MenoUtile(); c != kNessuno) {
        Esce(c);
    }
    while (!m_Scoperti.aVoci.empty()) {
        const Indice e = m_Scoperti.aVoci[m_Sorte.Sotto(m_Scoperti.aVoci.size())];
        const Indice c = PiuUtile(e);
        if (m_nCosto + m_aCandidati[c].nCosto >= m_nCostoMigliore) {
            break;
        }
        Entra(c);
        m_nAppenaEntrato = c;
        Appesantisci();
    }
}

bool RicercaLocale::Cerca(std::size_t nPassi)
{
    const std::uint64_t nPrima = m_nCostoMigliore;
    for (std::size_t n = 0; n < nPassi; ++n) {
        while (m_Scoperti.aVoci.empty() && m_nCosto < m_nCostoMigliore) {
            Salva();
        }
        if (m_Scoperti.aVoci.empty()) {
            if (const Indice c = MenoUtile(); c != kNessuno) {
                Esce(c);
            }
            continue;
        }
        Passo();
        if (m_nPesoTotale > kPesoMassimo) {
            const std::vector<Indice> aOra = m_Scelti.aVoci;
            Azzera();
            std::ranges::for_each(aOra, [&](Indice c) { Entra(c); });
        }
    }
    return m_nCostoMigliore < nPrima;
}

} // namespace ordavel::trvrdcol
