// F_PuntisuColonna_vista.cpp - the window of "Punti su colonna".

#include "qt/F_PuntisuColonna_vista.hpp"

#include "qt/Disposizione.hpp"
#include "qt/VistaNumeri.hpp"
#include "qt/VistaSpunte.hpp"

#include <QBoxLayout>
#include <QGroupBox>

namespace ordavel::qt {

F_PuntisuColonnaVista::F_PuntisuColonnaVista(F_PuntisuColonna& dialogo, PiattaformaQt& piattaforma,
                                             QWidget* padre)
    : VistaDialogo(dialogo, piattaforma, padre)
{
    auto* numeri = new VistaNumeri(legami(), dialogo.SelnovoNumeri1);
    legami().Al(numeri, &VistaNumeri::doubleClicked, [&dialogo] { dialogo.SelnovoNumeri1_DblClick(); });
    auto* dentro = new QVBoxLayout;
    dentro->addWidget(numeri);
    auto* tutto = new QVBoxLayout(this);
    tutto->addWidget(NuovoRiquadro("Numeri", dentro), 1);
    AggiungiPuntiERecupero(legami(), dialogo, tutto);
    AggiungiPulsanti(dialogo, tutto, true);
}

} // namespace ordavel::qt
