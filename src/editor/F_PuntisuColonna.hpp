// F_PuntisuColonna.hpp - "Punti su colonna": numbers, and how many of them a column may hold.

#pragma once

#include "editor/DialogoLista.hpp"

namespace ordavel {

class ORDAVEL_EXPORT F_PuntisuColonna : public DialogoLista {
public:
    explicit F_PuntisuColonna(OspiteDialoghi& ospite);

    /// A number can be chosen exactly when it is selected in `numeri`.
    void AbilitaNum(const SelettoreNumeri& numeri) override;

    [[nodiscard]] bool SempreMostrato() const override { return true; }

    /// A double click on the numbers: as CONFERMA.
    void SelnovoNumeri1_DblClick() { Premi(ePulsanteDialogo::conferma); }

    SelettoreNumeri SelnovoNumeri1; ///< the numbers of the condition; none is legal

protected:
    [[nodiscard]] ValoriDialogo Valori() const override;
    void LeggiParametro(std::string_view sCella) override;
};

} // namespace ordavel
