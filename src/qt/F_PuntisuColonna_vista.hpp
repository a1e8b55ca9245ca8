// F_PuntisuColonna_vista.hpp - the window of "Punti su colonna": numbers, and how many of them a column may hold.

#pragma once

#include "editor/F_PuntisuColonna.hpp"
#include "qt/VistaDialogo.hpp"

namespace ordavel::qt {

class F_PuntisuColonnaVista : public VistaDialogo {
    Q_OBJECT

public:
    F_PuntisuColonnaVista(F_PuntisuColonna& dialogo, PiattaformaQt& piattaforma, QWidget* padre);
};

} // namespace ordavel::qt
