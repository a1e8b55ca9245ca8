// F_ImpostaPunti_vista.cpp - the window that gives the same points to a run of conditions.

#include "qt/F_ImpostaPunti_vista.hpp"

#include "qt/Disposizione.hpp"
#include "qt/LimitiRighe_vista.hpp"
#include "qt/PannelloPunti_vista.hpp"

#include <QBoxLayout>
#include <QGroupBox>

namespace ordavel::qt {

F_ImpostaPuntiVista::F_ImpostaPuntiVista(F_ImpostaPunti& dialogo, PiattaformaQt& piattaforma, QWidget* padre)
    : VistaDialogo(dialogo, piattaforma, padre)
{
    auto* tutto = new QVBoxLayout(this);
    tutto->addLayout(NuovoPannelloPunti(legami(), dialogo.Pannello));
    tutto->addWidget(NuovoRiquadro("Range condizioni", NuoviLimiti(legami(), dialogo)));
    tutto->addStretch();
    AggiungiPulsanti(dialogo, tutto);
}

} // namespace ordavel::qt
