// F_Spoglio_vista.hpp - the window that checks columns against a winning one.

#pragma once

#include "analisi/F_Spoglio.hpp"
#include "qt/VistaDialogo.hpp"

class QBoxLayout;

namespace ordavel::qt {

class F_SpoglioVista : public VistaDialogo {
    Q_OBJECT

public:
    F_SpoglioVista(F_Spoglio& dialogo, PiattaformaQt& piattaforma, QWidget* padre);

private:
    void AggiungiPagine(F_Spoglio& dialogo, QBoxLayout* sotto);
};

} // namespace ordavel::qt
