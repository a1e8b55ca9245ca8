// F_ImpostaPunti_vista.hpp - the window that gives the same points to a run of conditions.

#pragma once

#include "editor/F_ImpostaPunti.hpp"
#include "qt/VistaDialogo.hpp"

namespace ordavel::qt {

class F_ImpostaPuntiVista : public VistaDialogo {
    Q_OBJECT

public:
    F_ImpostaPuntiVista(F_ImpostaPunti& dialogo, PiattaformaQt& piattaforma, QWidget* padre);
};

} // namespace ordavel::qt
