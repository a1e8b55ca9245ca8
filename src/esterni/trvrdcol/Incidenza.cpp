// Incidenza.cpp - tables of neighbours.

#include "Incidenza.hpp"

#include "core/Fili.hpp"

#include <algorithm>
#include <atomic>
#include <numeric>

namespace ordavel::trvrdcol {

namespace {

constexpr std::size_t kBlocco = 1024;

/// The rows of some consecutive sets.
Righe ScriviBlocco(const Problema& problema, const Vicini& vicini, std::size_t nBlocco, Segni& segni)
{
    Righe righe;
    std::vector<Indice> aTrovati;
    const std::size_t nFine = std::min(problema.Quanti(), (nBlocco + 1) * kBlocco);
    for (std::size_t i = nBlocco * kBlocco; i < nFine; ++i) {
        vicini.Trova(static_cast<Indice>(i), segni, aTrovati);
        std::ranges::sort(aTrovati);
        righe.Accoda(aTrovati);
    }
    return righe;
}

/// Joins the blocks, each of which is given back as soon as it is copied: the table stands only once in memory.
Righe Unisci(std::vector<Righe>& aBlocchi, std::size_t nRighe, std::size_t nVoci)
{
    Righe tutte;
    tutte.aInizio.reserve(nRighe + 1);
    tutte.aVoci.reserve(nVoci);
    for (Righe& blocco : aBlocchi) {
        for (std::size_t k = 0; k < blocco.Quante(); ++k) {
            tutte.Accoda(blocco[k]);
        }
        blocco = {};
    }
    return tutte;
}

} // namespace

Righe Trasposta(const Righe& righe, std::size_t nColonne)
{
    Righe altra;
    altra.aInizio.assign(nColonne + 2, 0);
    for (const Indice n : righe.aVoci) {
        ++altra.aInizio[n + 2];
    }
    std::partial_sum(altra.aInizio.begin(), altra.aInizio.end(), altra.aInizio.begin());
    altra.aVoci.resize(righe.aVoci.size());
    for (std::size_t r = 0; r < righe.Quante(); ++r) {
        for (const Indice n : righe[r]) {
            altra.aVoci[altra.aInizio[n + 1]++] = static_cast<Indice>(r);
        }
    }
    altra.aInizio.pop_back();
    return altra;
}

std::optional<Incidenza> ScriviIncidenza(const Problema& problema, const Vicini& vicini,
                                         std::size_t nVociMassime, unsigned nFili, const Tempo& tempo)
{
    const std::size_t nQuanti = problema.Quanti();
    std::vector<Righe> aBlocchi((nQuanti + kBlocco - 1) / kBlocco);
    std::atomic<std::size_t> nProssimo{0};
    std::atomic<std::size_t> nVoci{0};
    InParallelo(nFili, [&](unsigned) {
        Segni segni(nQuanti);
        for (std::size_t b = nProssimo++; b < aBlocchi.size(); b = nProssimo++) {
            if (tempo.Fermato() || nVoci > nVociMassime) {
                return;
            }
            aBlocchi[b] = ScriviBlocco(problema, vicini, b, segni);
            nVoci += aBlocchi[b].aVoci.size();
        }
    });
    if (tempo.Fermato() || nVoci > nVociMassime) {
        return {};
    }
    Incidenza incidenza;
    incidenza.copre = Unisci(aBlocchi, nQuanti, nVoci);
    incidenza.aCosto.assign(nQuanti, 1);
    return incidenza;
}

std::size_t LimiteInferiore(const Incidenza& incidenza)
{
    const Righe& coperta = incidenza.CopertaDa();
    std::vector<Indice> aOrdine(incidenza.Elementi());
    std::iota(aOrdine.begin(), aOrdine.end(), Indice{0});
    std::ranges::stable_sort(aOrdine, {}, [&](Indice e) { return coperta[e].size(); });
    std::vector<bool> aUsati(incidenza.Candidati());
    std::size_t nScelti = 0;
    for (const Indice e : aOrdine) {
        if (std::ranges::none_of(coperta[e], [&](Indice c) { return aUsati[c]; })) {
            ++nScelti;
            std::ranges::for_each(coperta[e], [&](Indice c) { aUsati[c] = true; });
        }
    }
    std::size_t nMassimo = 1;
    for (std::size_t c = 0; c < incidenza.Candidati(); ++c) {
        nMassimo = std::max(nMassimo, incidenza.copre[c].size());
    }
    return std::max(nScelti, (incidenza.Elementi() + nMassimo - 1) / nMassimo);
}

} // namespace ordavel::trvrdcol
