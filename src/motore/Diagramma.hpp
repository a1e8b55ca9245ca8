// Diagramma.hpp - sets of columns, and values of columns, as decision diagrams.
//
// A node asks whether the number at a place is in the column: «low» is what follows when it is not, «high» when it is.
// All columns have the class's numbers, so a node also knows how many numbers are still missing, and speaks of the
// columns that can still be made of the places from its own on. One that would say the same of all of them is not made:
// a value stands in its place. Equal nodes are one, so that two diagrams are equal when their roots are.
//
// Values are small whole numbers. A set is a diagram of the values 0 and 1; counting how many of some conditions hold
// is the sum of their sets.

#pragma once

#include "motore/ArrayAPezzi.hpp"
#include "motore/Automa.hpp"
#include "motore/GuardiaConteggio.hpp"

#include <cstddef>
#include <cstdint>
#include <exception>
#include <functional>
#include <span>
#include <vector>

namespace ordavel {

/// A diagram: its root, or the value of all columns.
using Diagramma = std::uint32_t;

/// The diagrams would take more room than was granted.
class TroppiNodi : public std::exception {
public:
    [[nodiscard]] const char* what() const noexcept override { return "troppi nodi"; }
};

/// The room in which diagrams live, all over the same picks and of the same class.
class Diagrammi {
public:
    /// Values are below this.
    static constexpr Diagramma kValori = 4096;

    /// Takes    nScelti   at most 90
    ///          nClasse   1..10, not above nScelti
    ///          nNodi     the most nodes that may be made
    ///          guardia   asked all the time; outlives the diagrams
    Diagrammi(std::size_t nScelti, std::size_t nClasse, std::size_t nNodi, GuardiaConteggio& guardia);

    /// The columns that satisfy a condition.
    /// Takes    automa   with states, and no column that fails
    [[nodiscard]] Diagramma Passano(const Automa& automa);

    /// The columns inside a condition's recovery zone.
    [[nodiscard]] Diagramma Recuperano(const Automa& automa);

    /// Columns of both sets.
    [[nodiscard]] Diagramma E(Diagramma a, Diagramma b);
    /// Columns of one set or of both.
    [[nodiscard]] Diagramma Oppure(Diagramma a, Diagramma b);
    /// The sum of two values of each column.
    /// Takes    nTetto   larger sums count as this one; below kValori
    [[nodiscard]] Diagramma Somma(Diagramma a, Diagramma b, Diagramma nTetto);
    /// The columns whose value is one of a list.
    [[nodiscard]] Diagramma Dove(Diagramma a, const std::function<bool(Diagramma nValore)>& vale);

    /// Columns of all the sets, the smallest ones first.
    [[nodiscard]] Diagramma Tutti(const std::vector<Diagramma>& aInsiemi);

    /// How many columns have another value than 0.
    [[nodiscard]] std::int64_t Conta(Diagramma a);

    /// Is a column, as ascending places, one whose value is not 0?
    [[nodiscard]] Diagramma Valore(Diagramma a, std::span<const std::size_t> aPosti) const;

    /// Nodes below a root, itself included.
    [[nodiscard]] std::size_t Nodi(Diagramma a) const;
    /// Nodes made so far.
    [[nodiscard]] std::size_t Nodi() const noexcept { return m_nNodi; }

private:
    struct Nodo {
        std::uint16_t nPosto;
        std::uint16_t nMancano; ///< numbers from this place on
        Diagramma basso;
        Diagramma alto;
    };
    /// Results by two numbers. Most of the time of a count is spent looking here.
    class Memoria {
    public:
        /// Takes    nVoci   the most pairs that it may hold
        Memoria(std::size_t nVoci, GuardiaConteggio& guardia) : m_nVociMassime(nVoci), m_Guardia(guardia) {}

        /// The slot of a pair; its value is kIgnoto when it is new. It moves when others are made.
        [[nodiscard]] Diagramma& operator()(Diagramma a, Diagramma b);
        void Svuota();

    private:
        struct Voce {
            Diagramma a = 0;
            Diagramma b = 0;
            Diagramma valore = 0;
            std::uint32_t nGiro = 0; ///< a slot of an earlier round is empty
        };
        void Allarga();

        std::size_t m_nVociMassime;
        GuardiaConteggio& m_Guardia;
        ArrayAPezzi<Voce> m_aVoci{1024};
        std::size_t m_nPiene = 0;
        std::uint32_t m_nGiro = 1;
    };

    static constexpr Diagramma kIgnoto = 0xFFFFFFFFU;

    [[nodiscard]] const Nodo& Di(Diagramma a) const { return m_aNodi[a - kValori]; }
    [[nodiscard]] static bool Foglia(Diagramma a) noexcept { return a < kValori; }
    [[nodiscard]] Diagramma Crea(std::size_t nPosto, std::size_t nMancano, Diagramma basso, Diagramma alto);
    void AllargaTavola();
    [[nodiscard]] std::int64_t ContaDa(Diagramma a, std::size_t nPosto, std::size_t nMancano);
    template <typename Scelta> [[nodiscard]] Diagramma DaAutoma(const Automa& automa, Scelta scelta);
    template <typename Operazione>
    [[nodiscard]] Diagramma Applica(Diagramma a, Diagramma b, const Operazione& operazione);

    std::size_t m_nScelti;
    std::size_t m_nClasse;
    std::size_t m_nNodiMassimi;
    GuardiaConteggio& m_Guardia;
    ArrayAPezzi<Nodo> m_aNodi;
    std::size_t m_nNodi = 0;
    ArrayAPezzi<Diagramma> m_aTavola; ///< open addressing over the nodes, 0 for an empty place
    Memoria m_Memoria;
    ArrayAPezzi<std::int64_t>
        m_aConti; ///< by node; every node has a column, so that 0 is one not counted yet
};

} // namespace ordavel
