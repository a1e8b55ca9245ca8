// VerdettoDiagrammi.cpp - members counted, groups that forgive, links that collapse.

#include "motore/VerdettoDiagrammi.hpp"

#include <algorithm>
#include <cstddef>

namespace ordavel {

namespace {

/// Adds the pardon of a group to what its members pass.
void Perdona(Diagrammi& diagrammi, const PianoVerdetto::GruppoRecupero& gruppo, InsiemiCondizioni& insiemi)
{
    const std::int64_t nTroppi = std::clamp<std::int64_t>(gruppo.nMassimo + 1, 0, Diagrammi::kValori - 1);
    Diagramma nMembri = 0;
    for (const std::size_t i : gruppo.aMembri) {
        nMembri = diagrammi.Somma(nMembri, insiemi.aRec[i], static_cast<Diagramma>(nTroppi));
    }
    const Diagramma perdonate = diagrammi.Dove(nMembri, [&gruppo](Diagramma nValore) {
        return std::int64_t{nValore} >= gruppo.nMinimo && std::int64_t{nValore} <= gruppo.nMassimo;
    });
    for (const std::size_t i : gruppo.aMembri) {
        insiemi.aOk[i] = diagrammi.Oppure(insiemi.aOk[i], diagrammi.E(insiemi.aRec[i], perdonate));
    }
}

/// Takes    aPosti   what satisfies each slot so far
Diagramma Collassa(Diagrammi& diagrammi, const PianoVerdetto::BloccoLink& blocco,
                   const std::vector<Diagramma>& aPosti)
{
    Diagramma nEsiti = 0;
    for (const std::size_t nPosto : blocco.aPosti) {
        nEsiti = diagrammi.Somma(nEsiti, aPosti[nPosto], Diagrammi::kValori - 1);
    }
    return diagrammi.Dove(nEsiti, [&blocco](Diagramma nValore) {
        return std::ranges::find(blocco.aAccettati, nValore) != blocco.aAccettati.end();
    });
}

} // namespace

Diagramma ComponiVerdetto(Diagrammi& diagrammi, const PianoVerdetto& piano, InsiemiCondizioni insiemi)
{
    for (const PianoVerdetto::GruppoRecupero& gruppo : piano.aGruppi) {
        Perdona(diagrammi, gruppo, insiemi);
    }
    std::vector<Diagramma>& aPosti = insiemi.aOk; // the links stand behind the records
    for (const PianoVerdetto::BloccoLink& blocco : piano.aLink) {
        aPosti.push_back(Collassa(diagrammi, blocco, aPosti));
    }
    std::vector<Diagramma> aFinali;
    for (std::size_t i = 0; i < piano.aRuoli.size(); ++i) {
        if (piano.aRuoli[i] == eRuolo::indispensabile) {
            aFinali.push_back(aPosti[i]);
        }
    }
    std::ranges::transform(piano.aFinali, std::back_inserter(aFinali),
                           [&aPosti](std::size_t nPosto) { return aPosti[nPosto]; });
    return diagrammi.Tutti(aFinali);
}

} // namespace ordavel
