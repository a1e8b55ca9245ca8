// InsiemiCondivisi.hpp - the sets of numbers that columns share, numbered, with the columns that hold each.
//
// Of the sets of t numbers and more that a column holds, only those that another column holds as well say anything.
// They are numbered from 0, those of t numbers first; a column keeps the numbers of its own, a set of t numbers the
// columns that hold it.

#pragma once

#include "riduzione/Copertura.hpp"
#include "riduzione/Sottoinsiemi.hpp"
#include "riduzione/TavolaInsiemi.hpp"

#include <array>
#include <utility>

namespace ordavel {

class InsiemiCondivisi {
public:
    /// A set as a column keeps it: its number, and above it how many numbers it has.
    static constexpr unsigned kBitNumero = 28;
    [[nodiscard]] static constexpr std::uint32_t Numero(std::uint32_t nVoce) noexcept
    {
        return nVoce & ((std::uint32_t{1} << kBitNumero) - 1);
    }
    [[nodiscard]] static constexpr std::size_t Grandezza(std::uint32_t nVoce) noexcept
    {
        return nVoce >> kBitNumero;
    }

    /// Takes    problema   one that is Ammesso
    ///          continua   asked while the sets are looked for
    /// Fails    7: there are more shared sets than numbers for them
    InsiemiCondivisi(const ProblemaRiduzione& problema, Continua continua);

    /// Are they all found? When the search was ended before, nothing may be asked of them.
    [[nodiscard]] bool Completi() const noexcept { return m_bCompleti; }

    /// What building takes.
    struct Misura {
        double nRanghi = 0;  ///< entries of tables by rank
        double nInsiemi = 0; ///< sets of all columns, shared or not
        double nMemoria = 0; ///< bytes, at most
    };

    /// Takes    problema   of class 1 to 10 and points 1 to the class
    [[nodiscard]] static Misura Misurata(const ProblemaRiduzione& problema);

    /// May this be built? Columns without repetitions, class 1 to 10, points 1 to the class, memory for it.
    [[nodiscard]] static bool Ammesso(const ProblemaRiduzione& problema);

    /// How many sets have a number.
    [[nodiscard]] std::size_t Quanti() const noexcept { return m_nQuanti; }

    /// The shared sets of a column.
    [[nodiscard]] std::span<const std::uint32_t> Di(std::size_t i) const noexcept
    {
        return std::span(m_aVoci).subspan(m_aInizi[i], m_aInizi[i + 1] - m_aInizi[i]);
    }

    /// The shared sets of a column that have t numbers; they stand in front.
    [[nodiscard]] std::span<const std::uint32_t> MinimiDi(std::size_t i) const noexcept;

    /// The columns that hold a set of t numbers, by its number.
    [[nodiscard]] std::span<const std::uint32_t> Colonne(std::uint32_t nNumero) const noexcept
    {
        return std::span(m_aColonne)
            .subspan(m_aElenchi[nNumero], m_aElenchi[nNumero + 1] - m_aElenchi[nNumero]);
    }

private:
    /// The numbers of a column as places among the numbers that occur at all, ascending.
    using Posti = std::pair<std::array<std::uint8_t, kSottoinsiemeMassimo>, std::size_t>;
    [[nodiscard]] Posti PostiDi(const Colonna& colonna) const;
    /// May the search go on to column i?
    [[nodiscard]] bool Avanti(std::size_t i);
    /// Calls azione(rank) for each set of nGrandezza numbers of each column.
    template <typename Azione> void PerOgniInsieme(std::size_t nGrandezza, const Azione& azione);

    [[nodiscard]] TavolaInsiemi CreaTavola(std::size_t nGrandezza);
    /// Puts the shared sets of a column behind those of the columns before it.
    void AccodaVoci(const Posti& posti, std::span<const TavolaInsiemi> aTavole);
    void RiempiVoci(std::span<const TavolaInsiemi> aTavole);
    void RiempiElenchi();

    ProblemaRiduzione m_Problema;
    Continua m_Continua;
    bool m_bCompleti = true;
    std::array<std::uint8_t, kNumeroMassimo + 1> m_aPosto{}; ///< place of a number, by number
    std::size_t m_nPosti = 0;
    std::uint32_t m_nQuanti = 0;
    std::uint32_t m_nMinimi = 0;       ///< sets of t numbers
    std::vector<std::size_t> m_aInizi; ///< [columns + 1] where the sets of a column begin in m_aVoci
    std::vector<std::uint32_t> m_aVoci;
    std::vector<std::size_t> m_aElenchi; ///< [m_nMinimi + 1] where the columns of a set begin in m_aColonne
    std::vector<std::uint32_t> m_aColonne;
};

} // namespace ordavel
