// SviluppoBlocchi.hpp - the enumeration by whole blocks of columns.
//
// All columns that begin with the same class - 2 numbers are judged together. For each condition the row of its
// automaton holds a mask for each next-to-last number; what all conditions pass is written in order. Beginnings behind
// which nothing passes are not looked into: the counters follow from the automata. Everything that a run shows is what
// the plain form would show: counters, last values, refreshes after every 10000 columns, the place of a stop, the order
// of the columns, failures.
//
// A block that cannot be judged this way, because a condition fails somewhere in it, goes through the plain form column
// by column, and fails there where it fails.

#pragma once

#include "motore/BufferColonne.hpp"
#include "motore/CondizioniBlocchi.hpp"
#include "motore/DoppioControllo.hpp"
#include "motore/ModSviluppo.hpp"

#include <memory>

namespace ordavel {

/// What is walked through, and how.
struct CorsaBlocchi {
    std::span<const std::uint8_t> aScelti; ///< the picks, ascending, at most 90
    std::int16_t nClasse = 0;              ///< 2..10
    double nTotale = 0;                    ///< columns of the whole system, for the percentage
    eNucleo nucleo = eNucleo::comune;      ///< the inner loops
    /// What the automata of all conditions may take together.
    std::size_t nByteAutomi = std::size_t{512} << 20;
};

/// May such a system be walked through by blocks? One that may fail in recovery or links may not, nor one of very many
/// conditions.
[[nodiscard]] bool BlocchiPossibili(std::size_t nScelti, std::int16_t nClasse, const StatoSviluppo& stato);

class SviluppoBlocchi {
public:
    /// Takes    corsa    of which BlocchiPossibili is true
    ///          buffer   where kept columns go
    /// Fails    7
    SviluppoBlocchi(const CorsaBlocchi& corsa, BufferColonne& buffer, StatoSviluppo& stato,
                    Avanzamento& avanzamento);

    /// Is it known that some column of the run fails? Then the plain form is to be taken.
    [[nodiscard]] bool Fallisce() const noexcept { return m_Condizioni.Falliscono(); }

    /// Walks through all columns, or up to a stop.
    void Esegui();

private:
    using Seguito = CondizioniBlocchi::Seguito;

    /// Gives    false when the run was stopped; so do all below
    [[nodiscard]] bool Scendi(std::size_t nDati, std::size_t nDa, Seguito seguito);
    [[nodiscard]] bool Salta(std::size_t nDati, std::size_t nDa, Seguito seguito);
    [[nodiscard]] bool EseguiInizio(std::size_t nPrimo, Seguito seguito);
    [[nodiscard]] bool EseguiPiano(std::size_t nPrimo, std::int64_t nDa);
    [[nodiscard]] bool EseguiColonna(std::size_t nPosto, std::size_t nUltimo);
    [[nodiscard]] bool Aggiornata();
    [[nodiscard]] std::int64_t FinoAdAggiornamento() const noexcept;
    [[nodiscard]] bool Trabocca(std::int64_t nColonne) const noexcept;
    void Passa(std::size_t nPrimo, std::int64_t nDa, std::int64_t nA, bool bTenute);
    void PassaIntero(std::size_t nPrimo, std::int64_t nColonne, bool bTenute);
    void Tieni(std::size_t nPrimo, const MaschereRiga& tenute);
    void TieniParola(Colonna& colonna, std::uint64_t nParola, const std::uint8_t* aNumeri);
    void TieniUna(const Colonna& colonna);
    void SegnaEsaminate(std::int64_t nColonne) noexcept;
    [[nodiscard]] PostiColonna UltimiPosti() const;
    void PoniConti();
    void PoniUltimiValori();
    void ConfrontaFine(bool bFinita);
    void SegnaPassata(const Colonna& colonna)
    {
        if constexpr (kDoppioControllo) {
            m_Doppio->Passa(colonna);
        }
    }

    std::vector<std::uint8_t> m_aScelti;
    std::size_t m_nClasse;
    BufferColonne& m_Buffer;
    double m_nTotale;
    StatoSviluppo& m_Stato;
    Avanzamento& m_Avanzamento;
    CondizioniBlocchi m_Condizioni;
    std::array<std::uint8_t, 128> m_aPerBit{}; ///< number of each bit of a mask
    MaschereRiga m_Tutte;                      ///< all columns of a beginning, by next-to-last place
    MaschereRiga m_Alcune;                     ///< some of them
    MaschereRiga m_Tenute;
    Colonna m_Inizio;                          ///< the numbers of the present beginning
    std::int64_t m_nEsaminate = 0;             ///< columns, from the first on
    bool m_bPosti = false;                     ///< the plain form has left the records as they must be
    std::unique_ptr<DoppioControllo> m_Doppio; ///< where kDoppioControllo
};

} // namespace ordavel
