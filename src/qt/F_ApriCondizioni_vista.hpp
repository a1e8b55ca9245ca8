// F_ApriCondizioni_vista.hpp - the window that reads conditions from a file.

#pragma once

#include "editor/F_ApriCondizioni.hpp"
#include "qt/VistaDialogo.hpp"

namespace ordavel::qt {

class F_ApriCondizioniVista : public VistaDialogo {
    Q_OBJECT

public:
    F_ApriCondizioniVista(F_ApriCondizioni& dialogo, PiattaformaQt& piattaforma, QWidget* padre);
};

} // namespace ordavel::qt
