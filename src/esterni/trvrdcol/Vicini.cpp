// Vicini.cpp - lists of the sets that hold the same places.

#include "Vicini.hpp"

#include "riduzione/Sottoinsiemi.hpp"

#include <algorithm>

namespace ordavel::trvrdcol {

namespace {

constexpr std::size_t kListeMassime = 50'000'000;
constexpr double kVociMassime = 120e6;
constexpr std::size_t kCampione = 1500;

/// The first nQuanti places of a set.
Maschera Primi(const Maschera& insieme, std::size_t nQuanti) noexcept
{
    const Posti posti(insieme);
    Maschera primi;
    for (std::size_t k = 0; k < std::min(nQuanti, posti.nPosti); ++k) {
        primi.Metti(posti.aPosti[k]);
    }
    return primi;
}

/// C(n, s) for small n.
double Scelte(int n, std::size_t s) noexcept
{
    return n < 0 ? 0 : static_cast<double>(NumeroSottoinsiemi(static_cast<std::size_t>(n), s));
}

/// What one search through lists of s places is worth, in steps of a loop; measured on pairs of a sample.
struct Stimato {
    double nVoci = 0;    ///< lists that a set stands in
    double nTrovati = 0; ///< sets in these lists
    double nVicini = 0;  ///< neighbours among all

    [[nodiscard]] double Passi(bool bDaVerificare) const noexcept
    {
        // A list costs a jump into memory; a check costs a few jumps and the counting of bits.
        return 8 * nVoci + (bDaVerificare ? 6 : 1.5) * nTrovati;
    }
};

/// Sets spread over the whole problem, never in step with its order.
std::vector<Indice> Campione(std::size_t nQuanti, std::uint64_t nSeme)
{
    std::vector<Indice> aCampione(std::min(kCampione, nQuanti));
    for (Indice& nIndice : aCampione) {
        nSeme = nSeme * 6364136223846793005U + 1442695040888963407U;
        nIndice = static_cast<Indice>((nSeme >> 33U) % nQuanti);
    }
    return aCampione;
}

Stimato StimaScelta(const Problema& problema, std::size_t s)
{
    const std::vector<Indice> aUno = Campione(problema.Quanti(), 1);
    const std::vector<Indice> aDue = Campione(problema.Quanti(), 2);
    const auto primi = [&](Indice i) {
        const Maschera& insieme = problema.aInsiemi[i];
        const int nPrimi = insieme.Quanti() - problema.nPunti + static_cast<int>(s);
        return Primi(insieme, static_cast<std::size_t>(nPrimi));
    };
    std::vector<Maschera> aPrimi(aDue.size());
    std::ranges::transform(aDue, aPrimi.begin(), primi);
    Stimato stimato;
    for (const Indice i : aUno) {
        const Maschera mia = primi(i);
        stimato.nVoci += Scelte(mia.Quanti(), s);
        for (std::size_t k = 0; k < aDue.size(); ++k) {
            stimato.nTrovati += Scelte(Comuni(mia, aPrimi[k]), s);
            stimato.nVicini +=
                Comuni(problema.aInsiemi[i], problema.aInsiemi[aDue[k]]) >= problema.nPunti ? 1 : 0;
        }
    }
    const auto nUno = static_cast<double>(aUno.size());
    const double nScala = static_cast<double>(problema.Quanti()) / (nUno * static_cast<double>(aDue.size()));
    return {stimato.nVoci / nUno, stimato.nTrovati * nScala, stimato.nVicini * nScala};
}

} // namespace

void Vicini::Stima()
{
    const auto t = static_cast<std::size_t>(m_Problema.nPunti);
    double nMinimi = 0;
    for (std::size_t s = 1; s <= std::min(t, kSottoinsiemeMassimo); ++s) {
        if (NumeroSottoinsiemi(m_Problema.nPosti, s) > kListeMassime) {
            break;
        }
        const Stimato stimato = StimaScelta(m_Problema, s);
        const double nPassi = stimato.Passi(s < t);
        m_nGradoMedio = std::max(1.0, stimato.nVicini);
        const bool bEntra = stimato.nVoci * static_cast<double>(m_Problema.Quanti()) <= kVociMassime;
        if (s == 1 || (bEntra && nPassi < nMinimi)) {
            nMinimi = nPassi;
            m_nScelti = s;
        }
    }
}

Maschera Vicini::Primi(Indice nInsieme) const noexcept
{
    const Maschera& insieme = m_Problema.aInsiemi[nInsieme];
    const auto nTolti = static_cast<std::size_t>(m_Problema.nPunti) - m_nScelti;
    return trvrdcol::Primi(insieme, static_cast<std::size_t>(insieme.Quanti()) - nTolti);
}

template <typename Azione> void Vicini::PerOgniLista(Indice nInsieme, const Azione& azione) const
{
    const Posti posti(Primi(nInsieme));
    PerOgniSottoinsieme(std::span<const std::uint8_t>(posti.aPosti.data(), posti.nPosti), m_nScelti, azione);
}

Vicini::Vicini(const Problema& problema) : m_Problema(problema)
{
    if (problema.Quanti() == 0) {
        return;
    }
    Stima();
    m_aInizio.assign(NumeroSottoinsiemi(problema.nPosti, m_nScelti) + 2, 0);
    // Lengths two places ahead, so that filling a list moves its start to where it belongs.
    for (Indice i = 0; i < problema.Quanti(); ++i) {
        PerOgniLista(i, [&](std::uint64_t nLista) { ++m_aInizio[nLista + 2]; });
    }
    std::uint32_t nFin = 0;
    for (std::uint32_t& nInizio : m_aInizio) {
        nFin += nInizio;
        nInizio = nFin;
    }
    m_aListe.resize(nFin);
    for (Indice i = 0; i < problema.Quanti(); ++i) {
        PerOgniLista(i, [&](std::uint64_t nLista) { m_aListe[m_aInizio[nLista + 1]++] = i; });
    }
}

void Vicini::Trova(Indice nInsieme, Segni& segni, std::vector<Indice>& aTrovati) const
{
    aTrovati.clear();
    segni.Cancella();
    const Maschera& insieme = m_Problema.aInsiemi[nInsieme];
    const bool bDaVerificare = m_nScelti < static_cast<std::size_t>(m_Problema.nPunti);
    PerOgniLista(nInsieme, [&](std::uint64_t nLista) {
        for (std::uint32_t k = m_aInizio[nLista]; k < m_aInizio[nLista + 1]; ++k) {
            const Indice i = m_aListe[k];
            if (segni.Segna(i) &&
                (!bDaVerificare || Comuni(insieme, m_Problema.aInsiemi[i]) >= m_Problema.nPunti)) {
                aTrovati.push_back(i);
            }
        }
    });
}

} // namespace ordavel::trvrdcol
