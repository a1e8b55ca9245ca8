// F_LinkClose_vista.cpp - the window of "LinkClose".

#include "qt/F_LinkClose_vista.hpp"

#include "qt/Disposizione.hpp"

#include <QBoxLayout>
#include <QGroupBox>
#include <QListWidget>

namespace ordavel::qt {

F_LinkCloseVista::F_LinkCloseVista(F_LinkClose& dialogo, PiattaformaQt& piattaforma, QWidget* padre)
    : VistaDialogo(dialogo, piattaforma, padre)
{
    auto* lista = new QListWidget;
    Nomina(lista, "List1", "Punti");
    auto* dentro = new QVBoxLayout;
    dentro->addWidget(lista);
    auto* tutto = new QVBoxLayout(this);
    tutto->addWidget(NuovoRiquadro("Punti", dentro));
    AggiungiPulsanti(dialogo, tutto);
    legami().collega(dialogo.List1, lista);
}

} // namespace ordavel::qt
