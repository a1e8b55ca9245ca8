// RicercaLocale.hpp - makes a cover cheaper by exchanging candidates, for as long as one likes.
//
// Each element has a weight. A candidate is worth the weight of the elements that it alone covers or would cover. From a
// cover, the candidate that is worth least for its cost is dropped, so that some elements stand uncovered; then again
// and again one more is dropped, one of the uncovered elements is drawn, and the worthiest candidate that covers it comes
// in, as long as all stays cheaper than the best cover so far. Elements that stay uncovered gain weight, so that those
// that are hard to cover come to decide, and the search leaves places where it would turn in circles. A candidate that
// was dropped comes back only after something near it has changed, and one that came in stays for a step. Of equal ones
// that is taken which was left alone the longest.
//
// Method after Gao, Weise and Li, weighting-based local search for unicost set covering (2015), and its weighted form.

#pragma once

#include "Incidenza.hpp"
#include "Sorte.hpp"

#include <compare>
#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace ordavel::trvrdcol {

/// A search over one problem, which it refers to.
class RicercaLocale {
public:
    RicercaLocale(const Incidenza& incidenza, std::uint64_t nSeme);

    /// Begins anew from some candidates, completed to a cover; from none, with a cover made by chance and worth. The best
    /// cover is forgotten.
    void Parti(std::span<const Indice> aScelti);

    /// Goes on for some steps.
    /// Gives    did the best cover become cheaper?
    bool Cerca(std::size_t nPassi);

    [[nodiscard]] const std::vector<Indice>& Migliore() const noexcept { return m_aMigliore; }
    [[nodiscard]] std::uint64_t CostoMigliore() const noexcept { return m_nCostoMigliore; }

private:
    /// All that is asked of a candidate, in one piece of memory: the loops jump from one to another.
    struct Candidato {
        std::uint32_t nValore = 0; ///< weight that it alone covers or would cover
        std::uint32_t nCosto = 1;
        std::uint32_t nMossa = 0;     ///< the step at which it last came in or went
        std::uint8_t nDentro = 0;     ///< is it chosen?
        std::uint8_t nPuoTornare = 1; ///< has something changed near it since it went?
    };

    /// Members with their places in the list, so that one can be taken out at once.
    struct Elenco {
        std::vector<Indice> aVoci;
        std::vector<Indice> aPosto;

        void Metti(Indice n)
        {
            aPosto[n] = static_cast<Indice>(aVoci.size());
            aVoci.push_back(n);
        }
        void Togli(Indice n)
        {
            const Indice nUltimo = aVoci.back();
            aVoci[aPosto[n]] = nUltimo;
            aPosto[nUltimo] = aPosto[n];
            aVoci.pop_back();
        }
    };

    void Azzera();
    void Entra(Indice nCandidato);
    void Esce(Indice nCandidato);
    void Salva();
    void Passo();
    void Appesantisci();
    void Completa();
    [[nodiscard]] Indice MenoUtile();
    [[nodiscard]] Indice PiuUtile(Indice nElemento) const;

    /// Compares what two candidates are worth for their cost.
    [[nodiscard]] static std::strong_ordering Resa(const Candidato& a, const Candidato& b) noexcept
    {
        return std::uint64_t{a.nValore} * b.nCosto <=> std::uint64_t{b.nValore} * a.nCosto;
    }

    const Incidenza& m_Incidenza;
    const Righe& m_CopertaDa;
    Sorte m_Sorte;
    std::vector<std::uint32_t> m_aPeso;   ///< of each element
    std::vector<std::uint32_t> m_aQuanti; ///< chosen candidates that cover an element
    std::vector<Indice> m_aIntreccio;     ///< these, exclusive-ored: the candidate itself when it is one
    std::vector<Candidato> m_aCandidati;
    Elenco m_Scelti;
    Elenco m_Scoperti;
    Indice m_nAppenaEntrato = kNessuno;
    std::uint32_t m_nPasso = 0;
    std::uint64_t m_nPesoTotale = 0;
    std::uint64_t m_nCosto = 0;
    std::uint64_t m_nCostoMigliore = 0;
    std::vector<Indice> m_aMigliore;
};

} // namespace ordavel::trvrdcol
