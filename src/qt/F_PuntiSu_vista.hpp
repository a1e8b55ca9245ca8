// F_PuntiSu_vista.hpp - the window of the thirty common condition dialogs.

#pragma once

#include "editor/F_PuntiSu.hpp"
#include "qt/VistaDialogo.hpp"

namespace ordavel::qt {

class F_PuntiSuVista : public VistaDialogo {
    Q_OBJECT

public:
    F_PuntiSuVista(F_PuntiSu& dialogo, PiattaformaQt& piattaforma, QWidget* padre);
};

} // namespace ordavel::qt
