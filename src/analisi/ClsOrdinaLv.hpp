// ClsOrdinaLv.hpp - sorts a report list by one of its columns.

#pragma once

#include "ordavel/Controlli.hpp"

namespace ordavel {

/// How a column is read: as text, or as numbers of two kinds that sort alike.
enum class eTipoOrdine : std::int16_t { testo = 1, numero = 2, valuta = 3 };

class ClsOrdinaLv {
public:
    /// A click on a heading: the same one again turns the direction round, another one starts ascending.
    /// Takes    nIdCol   column, from 1
    /// Fails    as OrdinaLv
    void Clic(Elenco& oLista, std::int16_t nIdCol, eTipoOrdine tipo);

    /// Sorts lines that are new as the last click has asked; before any click nothing happens.
    /// Fails    as OrdinaLv
    void Riordina(Elenco& oLista);

    /// Sorts the lines. As text they are compared byte by byte. As numbers, every "." is taken out, "," is the
    /// decimal point, and four decimals count; a text that is no number is 0. What a line lacks is empty. Lines
    /// that are equal do not keep their order. Fewer than two lines stay as they are.
    /// Takes    nIdCol      column, from 1
    ///          nTipoSort   1 ascending, 0 descending
    /// Changes  the lines, and the icons of the headings: the column's shows the direction, the others none
    /// Fails    9: no such heading; 6: a number too large for 64 bits with four decimals. Then nothing changes
    static void OrdinaLv(Elenco& oLista, std::int16_t nIdCol, eTipoOrdine tipo, std::int16_t& nTipoSort);

private:
    std::int16_t m_nCol = 0;
    eTipoOrdine m_Tipo = eTipoOrdine::testo;
    std::int16_t m_nTipoSort = 1;
};

} // namespace ordavel
