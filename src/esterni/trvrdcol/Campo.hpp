// Campo.hpp - finite fields, whose lines and circles make the covers with the most symmetry.

#pragma once

#include <cstdint>
#include <vector>

namespace ordavel::trvrdcol {

/// The field of q = p^e elements, numbered 0 to q-1; 0 and 1 are what they should be.
class Campo {
public:
    /// Is there a field of so many elements? Up to 90 are asked for.
    [[nodiscard]] static bool Esiste(unsigned nQ);

    /// Takes    nQ   Esiste(nQ)
    explicit Campo(unsigned nQ);

    [[nodiscard]] unsigned Quanti() const noexcept { return m_nQ; }
    [[nodiscard]] unsigned Caratteristica() const noexcept { return m_nP; }
    [[nodiscard]] unsigned Grado() const noexcept { return m_nE; }
    [[nodiscard]] unsigned Somma(unsigned nA, unsigned nB) const noexcept;
    [[nodiscard]] unsigned Prodotto(unsigned nA, unsigned nB) const noexcept;
    /// Power of the element that generates all others than 0.
    [[nodiscard]] unsigned Potenza(unsigned nEsponente) const noexcept
    {
        return m_aPotenze[nEsponente % (m_nQ - 1)];
    }
    /// Takes    nA   not 0
    [[nodiscard]] unsigned Opposto(unsigned nA) const noexcept;
    [[nodiscard]] unsigned Inverso(unsigned nA) const noexcept
    {
        return Potenza(m_nQ - 1 - m_aEsponenti[nA]);
    }

private:
    [[nodiscard]] bool Genera(unsigned nPolinomio);

    unsigned m_nQ;
    unsigned m_nP = 2;
    unsigned m_nE = 0;
    std::vector<unsigned> m_aPotenze;
    std::vector<unsigned> m_aEsponenti;
};

} // namespace ordavel::trvrdcol
