// F_InsColonne.hpp - "Inserimento colonne da file": columns out of a text, each to be a condition.

#pragma once

#include "condizioni/ModRighe.hpp"
#include "editor/DialogoConferma.hpp"
#include "editor/PannelloPunti.hpp"

#include <vector>

namespace ordavel {

class ORDAVEL_EXPORT F_InsColonne : public DialogoConferma {
public:
    /// Lines that the list holds. The grid has 2000 rows; a text of many more is not a list of conditions, and
    /// reading on would only cost memory.
    static constexpr std::size_t kColonneInElenco = 100000;

    explicit F_InsColonne(OspiteDialoghi& ospite);

    /// A key of the toolbar: "open", "delete" or "punti"; any other does nothing.
    void Toolbar1(std::string_view sChiave);

    /// Asks for a text file and loads it.
    void ApriFile();

    /// Puts every line that is a column into the list, in place of what it holds. A missing file changes nothing.
    /// A failure is shown under "F_InsColonne.LoadLvColonne", the lines in front of it stay; more than
    /// kColonneInElenco columns are failure 7.
    void LoadLVColonne(const std::string& sFile);

    /// Takes the selected lines away.
    void EliminaRecord();

    /// Writes the points of the panel into the selected lines.
    void ImpostaPunti();

    /// The panel's buttons: take the points, or not.
    void XPButton2();
    void XPButton3();

    /// Is there any line? When there is none, nothing is said.
    [[nodiscard]] bool VerificaCoerenza() override { return !ListView1.Righe.Valore().empty(); }

    /// The columns of the list in order, each with the points that were set for it.
    [[nodiscard]] std::vector<ColonnaInGriglia> Colonne() const;

    /// The group that all of them get: the one that the combo shows.
    [[nodiscard]] std::string Quadro() const { return Pannello.CmbRecupero.Testo(); }

    Elenco ListView1;       ///< "Colonna", "Punti", "Recupero", "Quadro Rec" behind a running number
    Controllo PanPunti;     ///< the panel of points, hidden at first
    PannelloPunti Pannello; ///< what stands in it

private:
    std::vector<NumeriScelti> m_aNumeri; ///< of the line with the running number i, from 1, at i - 1
};

} // namespace ordavel
