// F_DelCondizioni_vista.cpp - the window that asks which conditions to delete.

#include "qt/F_DelCondizioni_vista.hpp"

#include "qt/LimitiRighe_vista.hpp"

#include <QFormLayout>

namespace ordavel::qt {

F_DelCondizioniVista::F_DelCondizioniVista(F_DelCondizioni& dialogo, PiattaformaQt& piattaforma,
                                           QWidget* padre)
    : VistaDialogo(dialogo, piattaforma, padre)
{
    auto* tutto = new QVBoxLayout(this);
    tutto->addLayout(NuoviLimiti(legami(), dialogo));
    tutto->addStretch();
    AggiungiPulsanti(dialogo, tutto);
}

} // namespace ordavel::qt
