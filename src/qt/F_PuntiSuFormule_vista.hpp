// F_PuntiSuFormule_vista.hpp - the window of "Punti su formule": counts for each third of the numbers.

#pragma once

#include "editor/F_PuntiSuFormule.hpp"
#include "qt/VistaDialogo.hpp"

namespace ordavel::qt {

class F_PuntiSuFormuleVista : public VistaDialogo {
    Q_OBJECT

public:
    F_PuntiSuFormuleVista(F_PuntiSuFormule& dialogo, PiattaformaQt& piattaforma, QWidget* padre);
};

} // namespace ordavel::qt
