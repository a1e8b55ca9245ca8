// F_PuntiSuGruppiDiConsecutivi.hpp - "Punti su gruppi di consecutivi": the length of a group and its step.

#pragma once

#include "editor/DialogoLista.hpp"

namespace ordavel {

class ORDAVEL_EXPORT F_PuntiSuGruppiDiConsecutivi : public DialogoLista {
public:
    explicit F_PuntiSuGruppiDiConsecutivi(OspiteDialoghi& ospite);

    Combo CmbPasso;     ///< step, 1 to class
    Combo CmbLenGruppo; ///< numbers of one group, 2 to class

protected:
    [[nodiscard]] ValoriDialogo Valori() const override;
    void LeggiParametro(std::string_view sCella) override;
};

} // namespace ordavel
