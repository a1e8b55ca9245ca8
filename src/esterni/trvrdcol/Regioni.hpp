// Regioni.hpp - improves a large cover piece by piece.
//
// In a large problem a local search over everything scatters its moves and rarely sees one through. So a region is cut
// out: some chosen sets that lie near each other, and the elements that only these cover. To cover these elements with
// fewer sets is a small problem of its own, and a good one for a local search; what it finds takes the place of the
// region's sets. As many sets, but others, are taken too, so that the next regions see something new.
//
// Several threads work on one cover. Each looks at it alone when it cuts out and when it puts back, and searches in
// between without a lock. What others changed meanwhile is noticed when putting back: if something would stand
// uncovered, the piece of work is dropped.

#pragma once

#include "Incidenza.hpp"
#include "Problema.hpp"
#include "Sorte.hpp"
#include "Tempo.hpp"

#include <cstddef>
#include <cstdint>
#include <mutex>
#include <span>
#include <vector>

namespace ordavel::trvrdcol {

/// A cover on which several threads work. What changes it, or reads more than its size, wants the lock.
struct CoperturaComune {
    explicit CoperturaComune(std::size_t nQuanti);

    void Entra(Indice nInsieme, std::span<const Indice> aVicini);
    void Esce(Indice nInsieme, std::span<const Indice> aVicini);

    std::mutex serratura;
    std::vector<std::uint32_t> aQuanti; ///< chosen sets that cover a set
    std::vector<Indice> aScelti;
    std::vector<Indice> aPosto; ///< of each set among the chosen ones, or kNessuno
};

/// The work of one thread on a common cover.
class RicercaRegioni {
public:
    RicercaRegioni(CoperturaComune& copertura, Fonte fonte, std::uint64_t nSeme);

    /// Puts another cover in the place of the common one, when it is smaller or there is none yet.
    void Parti(const std::vector<Indice>& aScelti);

    /// Tries one region.
    /// Gives    how many sets fewer the cover has
    std::size_t Prova(const Tempo& tempo);

    /// The common cover.
    [[nodiscard]] std::vector<Indice> Scelti() const;
    [[nodiscard]] std::size_t Quanti() const;

private:
    void Raccogli();
    void Guarda(Indice nScelto, std::size_t nGrandezza);
    void ElementiPropri();
    [[nodiscard]] Incidenza Ritaglia();
    [[nodiscard]] std::vector<Indice> Cerca(const Incidenza& incidenza, const Tempo& tempo);
    [[nodiscard]] bool Scambia(const std::vector<Indice>& aNuovi);

    CoperturaComune& m_Copertura;
    Fonte m_Fonte;
    Sorte m_Sorte;
    Segni m_Visti;
    std::vector<Indice> m_aLocale;    ///< scratch: a number for some sets
    std::vector<Indice> m_aRegione;   ///< chosen sets that are to be replaced
    std::vector<Indice> m_aElementi;  ///< sets that only these cover
    std::vector<Indice> m_aCandidati; ///< sets that cover some of the elements
};

} // namespace ordavel::trvrdcol
