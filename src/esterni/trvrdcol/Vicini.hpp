// Vicini.hpp - which sets cover a given one.
//
// Looking at all pairs is out of reach for a million sets. Two sets with t places in common share the s smallest of
// these, and each of these s stands among the first |set| - t + s places of both: t - s common ones come behind it. So
// it is enough to list, for every s places, the sets that have them among their first |set| - t + s, and to look at
// the sets that stand in one list with the given one. With s = t every set found is a neighbour; with a smaller s the
// lists are fewer and longer, and what is found is checked. The s that promises the least work is taken.

#pragma once

#include "Problema.hpp"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace ordavel::trvrdcol {

/// Marks over indices that are all taken back at once.
class Segni {
public:
    explicit Segni(std::size_t nQuanti) : m_aTurno(nQuanti, 0) {}

    void Cancella() noexcept
    {
        if (++m_nTurno == 0) {
            std::ranges::fill(m_aTurno, 0U);
            m_nTurno = 1;
        }
    }

    /// Marks an index.
    /// Gives    false when it was marked
    bool Segna(Indice nIndice) noexcept
    {
        const bool bNuovo = m_aTurno[nIndice] != m_nTurno;
        m_aTurno[nIndice] = m_nTurno;
        return bNuovo;
    }

private:
    std::vector<std::uint32_t> m_aTurno;
    std::uint32_t m_nTurno = 1;
};

/// The index of the sets of a problem. It refers to the problem and never changes.
class Vicini {
public:
    explicit Vicini(const Problema& problema);

    /// The sets that cover set nInsieme, itself included, in no order.
    /// Takes    segni   of as many indices as there are sets; one for each thread
    void Trova(Indice nInsieme, Segni& segni, std::vector<Indice>& aTrovati) const;

    /// About how many sets cover a set, on the average, itself included.
    [[nodiscard]] double GradoMedio() const noexcept { return m_nGradoMedio; }

private:
    void Stima();
    [[nodiscard]] Maschera Primi(Indice nInsieme) const noexcept;
    template <typename Azione> void PerOgniLista(Indice nInsieme, const Azione& azione) const;

    const Problema& m_Problema;
    std::size_t m_nScelti = 1; ///< s
    double m_nGradoMedio = 1;
    std::vector<std::uint32_t> m_aInizio; ///< of each list, by the rank of its places; one more at the end
    std::vector<Indice> m_aListe;
};

} // namespace ordavel::trvrdcol
