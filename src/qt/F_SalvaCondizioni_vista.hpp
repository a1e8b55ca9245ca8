// F_SalvaCondizioni_vista.hpp - the window that saves a run of conditions.

#pragma once

#include "editor/F_SalvaCondizioni.hpp"
#include "qt/VistaDialogo.hpp"

namespace ordavel::qt {

class F_SalvaCondizioniVista : public VistaDialogo {
    Q_OBJECT

public:
    F_SalvaCondizioniVista(F_SalvaCondizioni& dialogo, PiattaformaQt& piattaforma, QWidget* padre);
};

} // namespace ordavel::qt
