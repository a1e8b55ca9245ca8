// F_DelCondizioni_vista.hpp - the window that asks which conditions to delete.

#pragma once

#include "editor/F_DelCondizioni.hpp"
#include "qt/VistaDialogo.hpp"

namespace ordavel::qt {

class F_DelCondizioniVista : public VistaDialogo {
    Q_OBJECT

public:
    F_DelCondizioniVista(F_DelCondizioni& dialogo, PiattaformaQt& piattaforma, QWidget* padre);
};

} // namespace ordavel::qt
