// Orbite.hpp - covers that are unions of orbits of a group.
//
// When a group maps the sets of a problem onto each other, an orbit covers another orbit wholly or not at all, and one
// set of it tells which. So the problem shrinks by about the size of the group: an orbit is a candidate that costs as
// many columns as it has sets, and an element as well. Problems far too large for a local search come within its reach,
// and middle ones are searched in milliseconds, a new group each time.

#pragma once

#include "Gruppi.hpp"
#include "Incidenza.hpp"
#include "Problema.hpp"
#include "Sorte.hpp"
#include "Tempo.hpp"
#include "Vicini.hpp"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

namespace ordavel::trvrdcol {

/// A problem as the search for symmetry sees it; it refers to all parts and changes none.
struct Terreno {
    const Problema& problema;
    const Vicini& vicini;
    const Incidenza* incidenza; ///< its neighbours written out, or null
    const Dizionario& dizionario;
    const std::vector<Classe>& aClassi;
};

/// The sets by orbits.
struct Orbite {
    std::vector<Indice> aOrbitaDi;         ///< of each set
    std::vector<Indice> aRappresentante;   ///< of each orbit, its first set
    std::vector<std::uint32_t> aGrandezza; ///< of each orbit

    [[nodiscard]] std::size_t Quante() const noexcept { return aRappresentante.size(); }
};

/// Gives    nothing when the group does not map the sets onto each other
[[nodiscard]] std::optional<Orbite> DividiInOrbite(const Terreno& terreno, const Gruppo& gruppo);

/// The problem of the orbits.
/// Gives    nothing when it is too large, or the time is over meanwhile
[[nodiscard]] std::optional<Incidenza> IncidenzaOrbite(const Orbite& orbite, Fonte& fonte,
                                                       const Tempo& tempo);

/// A search over many groups, for one thread. The best ones are kept, searched longer, and cut down to parts of them.
class RicercaSimmetrica {
public:
    RicercaSimmetrica(const Terreno& terreno, std::uint64_t nSeme);

    /// Tries one more group, new or kept.
    /// Gives    the sets of the best cover of that group, when it is smaller than nDaBattere; empty otherwise
    [[nodiscard]] std::vector<Indice> Prova(std::size_t nDaBattere, const Tempo& tempo);

private:
    /// A group that was tried.
    struct Tentativo {
        Gruppo gruppo;
        std::uint64_t nCosto = 0;
        std::size_t nOrbite = 0;
        unsigned nVolte = 0;         ///< that it was searched
        std::vector<Indice> aScelti; ///< its best cover, a set of each orbit
    };

    [[nodiscard]] Tentativo Scegli();
    [[nodiscard]] bool Cerca(Tentativo& tentativo, const Tempo& tempo);
    void Conserva(Tentativo tentativo);
    [[nodiscard]] std::vector<Indice> Distesi(const Tentativo& tentativo) const;

    const Terreno& m_Terreno;
    Sorte m_Sorte;
    Fonte m_Fonte;
    std::vector<Tentativo> m_aConservati;
    Orbite m_Orbite; ///< of the group at hand
};

} // namespace ordavel::trvrdcol
