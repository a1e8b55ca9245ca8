// ModSviluppo.hpp - walks through every column of a class over the picks, and keeps those that pass.
//
// The order is fixed: lexicographic in the picks. With 3, 7, 12, 20 and class 2: (3,7), (3,12), (3,20), (7,12),
// (7,20), (12,20). Columns that pass are thinned against the one kept just before in the same buffer, which is
// no guarantee, and go to the file in blocks of 10000.

#pragma once

#include "ordavel/StatoSviluppo.hpp"

#include "core/FileBinario.hpp"
#include "core/ModNumeri.hpp"
#include "core/ModProcessore.hpp"
#include "motore/Avanzamento.hpp"

#include <optional>
#include <span>
#include <vector>

namespace ordavel {

/// All columns of a class over the picks, one after the other.
///
/// For each position of the column stands a row of the matrix whose cell (row r, position j) is the pick with index
/// r + j; rows that never fall from left to right are then a strictly ascending column. The matrix is not stored:
/// its column j is the pick list itself, read from place j on.
class Enumeratore {
public:
    /// Fails    9: nClasse outside 1..20
    Enumeratore(const NumeriScelti& aNumeri, std::int16_t nClasse);

    /// Is there a column at the present place?
    [[nodiscard]] bool Presente() const noexcept { return m_aPosizioni[0] < m_nRighe; }

    /// Goes to a column of at most 10 numbers.
    /// Takes    aPosti   the places of its numbers among the picks, from 0, ascending
    void Vai(std::span<const std::size_t> aPosti)
    {
        for (std::size_t j = 0; j < m_aPosizioni.size(); ++j) {
            m_aPosizioni[j] = aPosti[j] - j;
        }
    }

    /// Writes the column of the present place; the numbers behind the class stay as they are.
    void Componi(Colonna& colonna) const noexcept
    {
        // A byte written may be any object to the compiler: what the loop reads is kept out of its reach.
        const std::size_t nClasse = m_aPosizioni.size();
        const std::size_t* const aPosizioni = m_aPosizioni.data();
        const std::uint8_t* const aScelti = m_aScelti.data();
        for (std::size_t j = 0; j < nClasse; ++j) {
            colonna.aNumeri[j] = aScelti[aPosizioni[j] + j];
        }
    }

    /// Goes to the next place.
    /// Gives    false when there was none left
    [[nodiscard]] bool Avanza() noexcept
    {
        std::size_t& nUltima = m_aPosizioni.back();
        if (nUltima + 1 < m_nRighe) {
            ++nUltima;
            return true;
        }
        return Riporta();
    }

private:
    /// The last position can rise no more: the next one to its left does.
    [[nodiscard]] bool Riporta() noexcept;

    std::size_t m_nRighe = 0;
    std::vector<std::size_t> m_aPosizioni; ///< row of each position, from 0
    std::vector<std::uint8_t> m_aScelti;   ///< the picks
};

/// Develops the picks.
/// Takes    aNumeri       the picks, compact and ascending
///          nClasse       numbers of a column, 1..20
///          nLimite       required common limit: class minus reduction
///          file          open for writing, and empty
///          stato         compiled conditions; bStopSviluppo is read at each refresh
///          avanzamento   refreshed every 10000 columns examined, and at the end
///          nucleo        inner loop of the block form; nothing for the plain form alone
/// Gives    the kept columns behind the end of the file, also after a stop
/// Changes  stato: counters of the run and of every condition
/// Fails    6: more than 2147483647 columns examined; 9: class outside 1..20; 11: fewer picks than the class;
///          what VerificaColonna and writing raise. Blocks already written stay; the columns in the buffer are lost.
void SviluppaColonne(const NumeriScelti& aNumeri, std::int16_t nClasse, std::int16_t nLimite,
                     FileBinario& file, StatoSviluppo& stato, Avanzamento& avanzamento,
                     std::optional<eNucleo> nucleo = NucleoMigliore());

/// A refresh: shows the counters, looks at the stop, and only then lets events run, so that a stop is seen one
/// refresh after the events that set it.
/// Gives    false when the run is to stop
[[nodiscard]] bool Aggiorna(double nTotale, StatoSviluppo& stato, Avanzamento& avanzamento);

/// One column was examined: counts it and, at every 10000th, refreshes.
/// Takes    nTotale   columns of the whole run, for the percentage
/// Gives    false when the run is to stop
/// Fails    6: the counter passes 2147483647
[[nodiscard]] inline bool ContaEsaminata(double nTotale, StatoSviluppo& stato, Avanzamento& avanzamento)
{
    Aumenta(stato.nSviluppate, 1);
    return stato.nSviluppate % kColonneAggiornamento != 0 || Aggiorna(nTotale, stato, avanzamento);
}

} // namespace ordavel
