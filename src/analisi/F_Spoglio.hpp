// F_Spoglio.hpp - "Spoglio vincite": the columns of the working file, and every condition, against a winning column.

#pragma once

#include "ordavel/records.hpp"

#include "analisi/ClsOrdinaLv.hpp"
#include "editor/DialogoConferma.hpp"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

namespace ordavel {

class ORDAVEL_EXPORT F_Spoglio : public DialogoConferma {
public:
    /// How often each score was reached, 0 to 10 points.
    using Conteggi = Tabella<std::int32_t, 0, kClasseMassima>;

    explicit F_Spoglio(OspiteDialoghi& ospite);

    /// The buttons: 0 runs the check, any other closes.
    void XPButton1(std::int32_t nIndice);

    /// A click on a heading of the first page, from 1: sorts it.
    void ListView1_ColumnClick(std::int16_t nColonna);

    /// Are the numbers of the winning column, separated by ".", from 1 to 90 and at most 20? Shows what is wrong.
    [[nodiscard]] bool verificaCoerenzacolonna();

    /// Scores every column of the working file against the numbers separated by "."; lists those with nPuntiMin
    /// points or more, and how many reached each score from the class down. A failure is shown under
    /// "F_Spoglio.VerificaVincite".
    void VerificaVincite(std::int32_t nPuntiMin);

    /// Tests the column of the numbers separated by "," against every condition. A failure is shown under
    /// "F_Spoglio.GestioneConfrontoCond".
    void GestioneConfrontoCond();

    CasellaTesto Text1; ///< the winning column
    Combo CmbPuntiMin;  ///< least score to list, "1" to "10"
    Combo TabStrip1;    ///< the pages "Vincite", "Confronto condizioni", "Riepilogo"
    Elenco ListView1;   ///< "Colonna", "Numeri", "Punti"
    Elenco ListView2;   ///< "Id", "Condizione", "Punti", "Recupero", "Punti effettivi", "Esito"
    Elenco ListView3;   ///< "Vincita", "Colonne"

    /// The records that cut the winning column in the last comparison, as indices from 0; nothing when there was none
    /// or it failed.
    std::optional<std::vector<std::size_t>> Tagli;

private:
    void LoadComboPuntiMin();
    void MostraPagina();
    void ScriviRiepilogo(std::int32_t nPuntiMin, const Conteggi& aConteggi);

    ClsOrdinaLv m_Ordine; ///< of the first page, as the user has chosen it
};

} // namespace ordavel
