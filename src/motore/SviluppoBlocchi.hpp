// SviluppoBlocchi.hpp - the enumeration by whole blocks of columns.
//
// All columns that begin with the same class - 2 numbers are judged together. For each condition the row of its
// automaton holds a mask for each next-to-last number; counters move by population counts, and what all conditions pass
// is written in order. Everything that a run shows is what the plain form would show: counters, last values, refreshes
// after every 10000 columns, the place of a stop, the order of the columns, failures.
//
// A block that cannot be judged this way, because a condition fails somewhere in it, goes through the plain form column
// by column, and fails there where it fails.

#pragma once

#include "motore/BufferColonne.hpp"
#include "motore/ModSviluppo.hpp"
#include "motore/NucleiBlocchi.hpp"
#include "motore/VerdettoBlocchi.hpp"

namespace ordavel {

/// What is walked through, and how.
struct CorsaBlocchi {
    std::span<const std::uint8_t> aScelti; ///< the picks, ascending, at most 90
    std::int16_t nClasse = 0;              ///< 2..10
    double nTotale = 0;                    ///< columns of the whole system, for the percentage
    eNucleo nucleo = eNucleo::comune;      ///< the inner loop
    /// What the automata of all conditions may take together.
    std::size_t nByteAutomi = std::size_t{512} << 20;
};

class SviluppoBlocchi {
public:
    /// Takes    buffer   where kept columns go
    /// Fails    7
    SviluppoBlocchi(const CorsaBlocchi& corsa, BufferColonne& buffer, StatoSviluppo& stato,
                    Avanzamento& avanzamento);

    /// May this system be walked through by blocks?
    [[nodiscard]] static bool Possibile(std::size_t nScelti, std::int16_t nClasse,
                                        const StatoSviluppo& stato);

    /// Walks through all columns, or up to a stop.
    void Esegui();

private:
    struct Condizione {
        Condizione(Automa automaNuovo, std::size_t nRecordNuovo, const RecordCondizione& record);

        Automa automa;
        std::size_t nRecord;               ///< its record
        bool bCoppia;                      ///< its recovery verdict may be that of the column before
        std::vector<std::uint32_t> aStati; ///< state behind each number of the beginning
        std::uint64_t nOk = 0;             ///< of a pair: columns that passed so far
        bool bRiporto = false;             ///< of a pair: recovery verdict of the last column
    };

    void CreaCondizioni(std::size_t nByte);
    /// Gives    false when the run was stopped
    [[nodiscard]] bool Scendi(std::int16_t nDati, std::size_t nDa);
    [[nodiscard]] bool EseguiInizio(std::size_t nPrimo);
    [[nodiscard]] bool EseguiBlocco(std::size_t nPrimo, std::int64_t nColonne);
    [[nodiscard]] bool EseguiPiano(std::size_t nPrimo, std::int64_t nDa);
    [[nodiscard]] bool EseguiColonna(std::size_t nPosto, std::size_t nUltimo);
    [[nodiscard]] bool Trabocca(std::int64_t nColonne) const noexcept;
    [[nodiscard]] bool PrendiRighe(std::size_t nPrimo);
    void EseguiTratto(std::size_t nPrimo, std::int64_t nDa, std::int64_t nA, bool bIntero);
    void PreparaAttive(std::size_t nPrimo, std::int64_t nDa, std::int64_t nA);
    void ContaCoppia(Condizione& condizione, const RigaAutoma& riga);
    void Componi(std::size_t nPrimo);
    [[nodiscard]] std::uint64_t ComponiParola(std::size_t nPosto, bool bAlta);
    void Tieni(std::size_t nPrimo);
    void SegnaUltima();
    void TieniParola(Colonna& colonna, std::uint64_t nParola, std::size_t nBitSotto);
    void VersaConti();
    void PoniUltimiValori();
    [[nodiscard]] bool Aggiornata();

    std::vector<std::uint8_t> m_aScelti;
    std::int16_t m_nClasse;
    BufferColonne& m_Buffer;
    double m_nTotale;
    StatoSviluppo& m_Stato;
    Avanzamento& m_Avanzamento;
    NucleoBlocchi m_Nucleo;
    VerdettoBlocchi m_Verdetto;
    std::vector<Condizione> m_aCondizioni;
    std::vector<VoceBlocco> m_aVoci; ///< one for each of m_aCondizioni
    Blocco m_Blocco;
    MaschereRiga m_Tutte;             ///< all columns of a beginning, by next-to-last place
    MaschereRiga m_Alcune;            ///< some of them
    std::vector<std::uint64_t> m_aOk; ///< a word for each record
    std::vector<std::uint64_t> m_aRec;
    std::vector<std::uint8_t>
        m_aRiporti;   ///< by condition: of pairs, the recovery verdict of the column before
    Colonna m_Inizio; ///< the numbers of the present beginning
    Colonna m_Ultima; ///< last column examined, when there was one
    bool m_bEsaminata = false;
    std::int64_t m_nEsaminate = 0; ///< by blocks, not yet in the counters of the records
};

} // namespace ordavel
