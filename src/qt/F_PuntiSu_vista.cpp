// F_PuntiSu_vista.cpp - the window of the thirty common condition dialogs.

#include "qt/F_PuntiSu_vista.hpp"

#include <QBoxLayout>

namespace ordavel::qt {

F_PuntiSuVista::F_PuntiSuVista(F_PuntiSu& dialogo, PiattaformaQt& piattaforma, QWidget* padre)
    : VistaDialogo(dialogo, piattaforma, padre)
{
    AggiungiPulsanti(dialogo, new QVBoxLayout(this), true);
}

} // namespace ordavel::qt
