// F_PuntiSuGruppiDiConsecutivi_vista.hpp - the window of "Punti su gruppi di consecutivi".

#pragma once

#include "editor/F_PuntiSuGruppiDiConsecutivi.hpp"
#include "qt/VistaDialogo.hpp"

namespace ordavel::qt {

class F_PuntiSuGruppiDiConsecutiviVista : public VistaDialogo {
    Q_OBJECT

public:
    F_PuntiSuGruppiDiConsecutiviVista(F_PuntiSuGruppiDiConsecutivi& dialogo, PiattaformaQt& piattaforma,
                                      QWidget* padre);
};

} // namespace ordavel::qt
