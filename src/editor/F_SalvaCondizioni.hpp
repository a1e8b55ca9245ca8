// F_SalvaCondizioni.hpp - "Salva condizioni": a run of conditions into a file of its own.

#pragma once

#include "editor/DialogoConferma.hpp"

namespace ordavel {

inline constexpr std::string_view kFiltroCondizioni = "File di condizioni (*.cnd)|*.cnd";
inline constexpr std::string_view kEstensioneCondizioni = ".cnd";

class ORDAVEL_EXPORT F_SalvaCondizioni : public DialogoConferma {
public:
    /// Offers the conditions up to the first empty row.
    explicit F_SalvaCondizioni(OspiteDialoghi& ospite);

    /// Copies the chosen run into the preview. Nothing happens while either end is not chosen; an end in front of
    /// the start leaves the preview empty.
    void CopiaCondizioni();

    /// Asks for a file and writes the preview into it; then the dialog hides. When no file is chosen it stays. A
    /// failure is shown under "F_SalvaCondizioni.Salva".
    void Salva();

    Combo CmbCondInizio;       ///< "Da Condizione"
    Combo CmbCondFine;         ///< "A Condizione"
    GrigliaCondizioni GrdCond; ///< preview

protected:
    [[nodiscard]] std::string MessaggioCoerenza() const override;
    void Conferma() override { Salva(); }

private:
    void LoadComboCondizioni();
};

} // namespace ordavel
