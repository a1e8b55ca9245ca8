// Incidenza.hpp - who covers whom, written out: the form that a local search needs.
//
// Candidates cover elements, and each candidate has a cost. In a reduction both are the sets of the problem and cover is
// mutual, so that one table serves both ways.

#pragma once

#include "Problema.hpp"
#include "Tempo.hpp"
#include "Vicini.hpp"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace ordavel::trvrdcol {

/// Rows of indices, one behind the other.
struct Righe {
    std::vector<std::size_t> aInizio{0}; ///< of each row; one more at the end
    std::vector<Indice> aVoci;

    [[nodiscard]] std::size_t Quante() const noexcept { return aInizio.size() - 1; }
    [[nodiscard]] std::span<const Indice> operator[](std::size_t nRiga) const noexcept
    {
        return {aVoci.data() + aInizio[nRiga], aInizio[nRiga + 1] - aInizio[nRiga]};
    }
    void Accoda(std::span<const Indice> aRiga)
    {
        aVoci.insert(aVoci.end(), aRiga.begin(), aRiga.end());
        aInizio.push_back(aVoci.size());
    }
};

/// The same table seen from the other side.
/// Takes    nColonne   above every index in the rows
[[nodiscard]] Righe Trasposta(const Righe& righe, std::size_t nColonne);

/// A covering problem. Every element is covered by some candidate.
struct Incidenza {
    Righe copre;   ///< of each candidate, the elements that it covers
    Righe coperta; ///< of each element, the candidates that cover it; without rows: as copre
    std::vector<std::uint32_t> aCosto; ///< of each candidate, 1 or more

    [[nodiscard]] const Righe& CopertaDa() const noexcept { return coperta.Quante() == 0 ? copre : coperta; }
    [[nodiscard]] std::size_t Candidati() const noexcept { return copre.Quante(); }
    [[nodiscard]] std::size_t Elementi() const noexcept { return CopertaDa().Quante(); }
};

/// The neighbours of one set after the other, read from a table where there is one. One for each thread.
class Fonte {
public:
    Fonte(const trvrdcol::Vicini& vicini, const Incidenza* incidenza, std::size_t nQuanti)
        : m_Vicini(vicini), m_Incidenza(incidenza), m_Segni(incidenza == nullptr ? nQuanti : 0)
    {}

    /// Good until the next call.
    [[nodiscard]] std::span<const Indice> Vicini(Indice nInsieme)
    {
        if (m_Incidenza != nullptr) {
            return m_Incidenza->copre[nInsieme];
        }
        m_Vicini.Trova(nInsieme, m_Segni, m_aTrovati);
        return m_aTrovati;
    }

private:
    const trvrdcol::Vicini& m_Vicini;
    const Incidenza* m_Incidenza;
    Segni m_Segni;
    std::vector<Indice> m_aTrovati;
};

/// The neighbours of all sets.
/// Takes    nVociMassime   more are not written out
///          nFili          threads that work on it
/// Gives    nothing when there are more, or a stop was asked meanwhile
[[nodiscard]] std::optional<Incidenza> ScriviIncidenza(const Problema& problema, const Vicini& vicini,
                                                       std::size_t nVociMassime, unsigned nFili,
                                                       const Tempo& tempo);

/// No cover has fewer candidates: elements no two of which have a candidate in common, taken greedily.
[[nodiscard]] std::size_t LimiteInferiore(const Incidenza& incidenza);

} // namespace ordavel::trvrdcol
