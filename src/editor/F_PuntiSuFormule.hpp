// F_PuntiSuFormule.hpp - "Punti su formule": how many numbers of a column lie in each third of 1 to 90.

#pragma once

#include "editor/DialogoCondizione.hpp"

#include <array>

namespace ordavel {

class ORDAVEL_EXPORT F_PuntiSuFormule : public DialogoCondizione {
public:
    explicit F_PuntiSuFormule(OspiteDialoghi& ospite);

    void LeggiPunti(const GrigliaCondizioni& griglia) override;

    /// "Da 1 a 30", "Da 31 a 60", "Da 61 a 90": 0 to class each, none selected at the start.
    std::array<Combo, 3> CmbFormula;
    std::array<Combo, 3> CmbFormulaR; ///< the same for recovery

protected:
    [[nodiscard]] ValoriDialogo Valori() const override;
    [[nodiscard]] std::string MessaggioCoerenza() const override;

private:
    void LoadCombo();
    void AbilitaComboFormule();
    [[nodiscard]] bool DaLaClasse(const std::array<Combo, 3>& aCombo) const;
};

} // namespace ordavel
