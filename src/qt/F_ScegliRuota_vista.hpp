// F_ScegliRuota_vista.hpp - the window that asks for a wheel.

#pragma once

#include "editor/F_ScegliRuota.hpp"
#include "qt/VistaDialogo.hpp"

namespace ordavel::qt {

class F_ScegliRuotaVista : public VistaDialogo {
    Q_OBJECT

public:
    F_ScegliRuotaVista(F_ScegliRuota& dialogo, PiattaformaQt& piattaforma, QWidget* padre);
};

} // namespace ordavel::qt
