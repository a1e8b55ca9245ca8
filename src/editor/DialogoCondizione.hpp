// DialogoCondizione.hpp - what all condition dialogs share: recovery group, statistic, parameter string, cells.
//
// A dialog never touches the grid on its own. Whoever drives it makes it, fills it from a row or a parameter
// string or shows it, reads its tag, and asks for the five cells:
//
//     auto dialogo = CreaDialogo(ospite, TipoCondizione::peso);   loaded
//     dialogo->LeggiPunti(griglia);                               for an edit: from the selected row
//     desktop shows it; the user presses buttons                  Premi(...)
//     if (!dialogo->sTag.empty()) griglia.Riga(r) = dialogo->GetParametri();

#pragma once

#include "ordavel/Controlli.hpp"

#include "condizioni/ModTestoCelle.hpp"
#include "editor/DialogoConferma.hpp"

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace ordavel {

class ORDAVEL_EXPORT DialogoCondizione : public DialogoConferma {
public:
    DialogoCondizione(OspiteDialoghi& ospite, TipoCondizione tipo, std::string_view sTitoloDialogo);

    [[nodiscard]] TipoCondizione Tipo() const noexcept { return m_Tipo; }

    /// The five cells of what the dialog holds.
    /// Fails    6: a number in a box is too large
    [[nodiscard]] virtual Condizione GetParametri() const;

    /// Fills the dialog from a parameter string, pieces joined by "|", as if the user had confirmed it.
    /// Changes  the tag, which becomes "ttt"; a kind that takes no string leaves it empty. A failure is shown under
    ///          "OrdavelSis.setPuntiSuFrm" and leaves it empty, too.
    void SetPuntiSuFrm(std::string_view sParam);

    /// Fills the dialog from the selected row of a grid.
    /// Fails    9: a value for which the dialog has no box
    virtual void LeggiPunti(const GrigliaCondizioni& griglia) = 0;

    /// Is it always shown, whatever the parameter string says?
    [[nodiscard]] virtual bool SempreMostrato() const { return false; }

    /// Looks at the rows in front of the one that is written. Only the end of a link cares.
    virtual void GuardaRighe(const GrigliaCondizioni& /*griglia*/, std::int32_t /*nRiga*/) {}

    /// Lets the user choose only numbers that are selected in the system. Only a dialog that offers numbers cares.
    virtual void AbilitaNum(const SelettoreNumeri& /*numeri*/) {}

    Combo CmbRecupero; ///< recovery group: " ", "1" to "20"

protected:
    /// What the cells are made of.
    [[nodiscard]] virtual ValoriDialogo Valori() const = 0;
    /// Takes a parameter string.
    /// Gives    false when the kind takes none
    virtual bool Riempi(std::string_view /*sParam*/) { return false; }
    void MostraStatistica() override;

private:
    TipoCondizione m_Tipo;
};

/// Loads the dialog of a kind.
/// Gives    nullptr for a kind that has none
[[nodiscard]] ORDAVEL_EXPORT std::unique_ptr<DialogoCondizione> CreaDialogo(OspiteDialoghi& ospite,
                                                                            TipoCondizione tipo);

/// The pieces of a parameter string; as many as asked for, empty where it has fewer.
[[nodiscard]] std::vector<std::string_view> PezziParametri(std::string_view sParam, std::size_t nPezzi);

/// The two lines of a piece of a parameter string.
/// Fails    9: it has only one
[[nodiscard]] std::vector<std::string_view> DueRighe(std::string_view sPezzo);

} // namespace ordavel
