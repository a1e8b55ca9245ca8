// F_LinkClose_vista.hpp - the window of "LinkClose": how many conditions of a link may be satisfied.

#pragma once

#include "editor/F_LinkClose.hpp"
#include "qt/VistaDialogo.hpp"

namespace ordavel::qt {

class F_LinkCloseVista : public VistaDialogo {
    Q_OBJECT

public:
    F_LinkCloseVista(F_LinkClose& dialogo, PiattaformaQt& piattaforma, QWidget* padre);
};

} // namespace ordavel::qt
