// ColonneViste.hpp - what the columns kept so far rule out, in bounded memory.

#pragma once

#include "riduzione/NumeriComuni.hpp"
#include "riduzione/PostiColonna.hpp"
#include "riduzione/SottoinsiemiVisti.hpp"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace ordavel {

/// Columns kept by the streaming reduction.
///
/// A new column brings the set of its numbers, one that was kept its entries. Where no number stands twice in the one
/// that was kept, the table answers. The others, which only a damaged file holds, stand in a short list and are
/// compared one by one, and so does any column when the table is too small for a single one.
class ColonneViste {
public:
    /// Takes    nClasse    0 to 20
    ///          nPunti     0 or more: numbers in common from which a column is ruled out
    ///          nColonne   the most that will be added
    ///          nByte      what the table may take; at most as much again, up to 200 KB, for the list
    ColonneViste(std::int16_t nClasse, std::int32_t nPunti, std::int64_t nColonne, std::size_t nByte);

    /// Is a column ruled out?
    [[nodiscard]] bool Copre(const Colonna& colonna)
    {
        return m_Visti.Contiene(PostiColonna(colonna, 0, m_nClasse).Posti()) ||
               (!m_aElenco.empty() && CopreElenco(colonna));
    }

    /// Adds a column that was kept. The first one after the start or after Svuota() always finds room.
    /// Gives    false when there is no room; then nothing was added
    [[nodiscard]] bool Aggiungi(const Colonna& colonna);

    /// Forgets all columns.
    void Svuota() noexcept;

private:
    [[nodiscard]] bool CopreElenco(const Colonna& colonna);

    std::int16_t m_nClasse;
    std::int32_t m_nPunti;
    SottoinsiemiVisti m_Visti;
    NumeriMarcati m_Marcati;
    std::size_t m_nElencoMassimo;
    std::vector<Colonna> m_aElenco;
};

} // namespace ordavel
