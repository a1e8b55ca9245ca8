// Guadagni.hpp - how many records a set would newly cover: three ways to know, by the size of the problem.
//
// All have the same two operations, and start with nothing covered:
//     Valore(i)      records not covered yet that set i covers
//     Copri(i)       set i is taken: its neighbours are covered from now on

#pragma once

#include "Incidenza.hpp"
#include "Problema.hpp"
#include "Vicini.hpp"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace ordavel::trvrdcol {

/// What all three keep: which sets are covered.
class Coperti {
public:
    explicit Coperti(std::size_t nQuanti) : m_aCoperto(nQuanti, false), m_nScoperti(nQuanti) {}

    [[nodiscard]] std::size_t Scoperti() const noexcept { return m_nScoperti; }
    [[nodiscard]] bool Coperto(Indice nInsieme) const noexcept { return m_aCoperto[nInsieme]; }

protected:
    /// Gives    false when it was covered
    bool Segna(Indice nInsieme)
    {
        if (m_aCoperto[nInsieme]) {
            return false;
        }
        m_aCoperto[nInsieme] = true;
        --m_nScoperti;
        return true;
    }

private:
    std::vector<bool> m_aCoperto;
    std::size_t m_nScoperti;
};

/// Values of all sets, kept up to date through the written table of neighbours.
class GuadagniScritti : public Coperti {
public:
    GuadagniScritti(const Problema& problema, const Incidenza& incidenza);
    [[nodiscard]] std::uint32_t Valore(Indice nInsieme) const noexcept { return m_aValore[nInsieme]; }
    void Copri(Indice nInsieme);

private:
    const Problema& m_Problema;
    const Incidenza& m_Incidenza;
    std::vector<std::uint32_t> m_aValore;
};

/// Values by inclusion and exclusion: with B_s the sum, over the sets S of s places of a set, of the records not
/// covered that hold S, those that share at least t places are the sum over s >= t of (-1)^(s-t) C(s-1,t-1) B_s.
class GuadagniContati : public Coperti {
public:
    /// Are the tables small enough?
    [[nodiscard]] static bool Possibile(const Problema& problema);

    GuadagniContati(const Problema& problema, const Vicini& vicini);
    [[nodiscard]] std::uint32_t Valore(Indice nInsieme) const;
    void Copri(Indice nInsieme);

private:
    void Conta(Indice nInsieme, std::uint32_t nQuanti);

    const Problema& m_Problema;
    const Vicini& m_Vicini;
    Segni m_Segni;
    std::vector<Indice> m_aTrovati;
    std::vector<std::vector<std::uint32_t>> m_aTabelle; ///< of s = t, t+1, ..., one below the largest set
};

/// Values by looking at all neighbours.
class GuadagniCercati : public Coperti {
public:
    GuadagniCercati(const Problema& problema, const Vicini& vicini)
        : Coperti(problema.Quanti()), m_Problema(problema), m_Vicini(vicini), m_Segni(problema.Quanti())
    {}
    [[nodiscard]] std::uint32_t Valore(Indice nInsieme);
    void Copri(Indice nInsieme);

private:
    const Problema& m_Problema;
    const Vicini& m_Vicini;
    Segni m_Segni;
    std::vector<Indice> m_aTrovati;
};

} // namespace ordavel::trvrdcol
