// DialogoCondizione.hpp - what all condition dialogs share: tag, buttons, recovery group.
//
// A dialog never touches the grid on its own. Whoever drives it makes it, fills it from a row or a parameter
// string or shows it, reads its tag, and asks for the five cells:
//
//     F_PuntiSu dialogo(ospite, TipoCondizione::peso);      loaded
//     dialogo.LeggiPunti(griglia);                          for an edit: from the selected row
//     desktop shows it; the user presses buttons            Premi(...)
//     if (!dialogo.sTag.empty()) griglia.Riga(r) = dialogo.GetParametri();

#pragma once

#include "ordavel/Controlli.hpp"

#include "condizioni/ModTestoCelle.hpp"
#include "editor/OspiteDialoghi.hpp"

#include <string>
#include <string_view>

namespace ordavel {

/// Tags: empty while a dialog was not confirmed, or was cancelled.
inline constexpr std::string_view kTagConfermato = "ooo";
inline constexpr std::string_view kTagRiempito = "ttt";

/// The three buttons, by their indices.
enum class ePulsanteDialogo : std::uint8_t { conferma = 0, chiudi = 1, statistica = 2 };

class DialogoCondizione {
public:
    DialogoCondizione(OspiteDialoghi& ospite, TipoCondizione tipo, std::string_view sTitoloDialogo);
    DialogoCondizione(const DialogoCondizione&) = delete;
    DialogoCondizione& operator=(const DialogoCondizione&) = delete;
    virtual ~DialogoCondizione() = default;

    [[nodiscard]] TipoCondizione Tipo() const noexcept { return m_Tipo; }

    /// A button. CONFERMA: when the coherence test passes, the tag becomes "ooo" and the dialog hides. CHIUDI: the tag
    /// is emptied and it hides. STATISTICA: shows the statistic of the kind, and changes nothing.
    void Premi(ePulsanteDialogo pulsante);

    /// The five cells of what the dialog holds.
    [[nodiscard]] Condizione GetParametri() const;

    /// Fills the dialog from a parameter string, pieces joined by "|", as if the user had confirmed it.
    /// Changes  the tag, which becomes "ttt"; a kind that takes no string leaves it empty. A failure is shown under
    ///          "OrdavelSis.setPuntiSuFrm" and leaves it empty, too.
    void SetPuntiSuFrm(std::string_view sParam);

    /// Tests the state and shows the last of the messages that it has collected.
    [[nodiscard]] bool VerificaCoerenza();

    /// Fills the dialog from the selected row of a grid.
    /// Fails    9: a value for which the dialog has no box
    virtual void LeggiPunti(const GrigliaCondizioni& griglia) = 0;

    Stato<bool> Visibile{false};
    std::string sTitolo;
    std::string sTag;
    Combo CmbRecupero; ///< recovery group: " ", "1" to "20"

protected:
    /// What the cells are made of.
    [[nodiscard]] virtual ValoriDialogo Valori() const = 0;
    /// The message of the last failing test; empty when all pass.
    [[nodiscard]] virtual std::string MessaggioCoerenza() const = 0;
    /// Takes a parameter string.
    /// Gives    false when the kind takes none
    virtual bool Riempi(std::string_view sParam) = 0;

    void LoadComboquadroRec();
    /// Is a recovery group chosen?
    [[nodiscard]] bool ConGruppo() const;
    [[nodiscard]] OspiteDialoghi& Ospite() const noexcept { return m_Ospite; }

private:
    OspiteDialoghi& m_Ospite;
    TipoCondizione m_Tipo;
};

/// The pieces of a parameter string; as many as asked for, empty where it has fewer.
[[nodiscard]] std::vector<std::string_view> PezziParametri(std::string_view sParam, std::size_t nPezzi);

} // namespace ordavel
