// VistaSoloChiudi.cpp - a window that only shows.

#include "qt/VistaSoloChiudi.hpp"

#include <QBoxLayout>
#include <QPushButton>

namespace ordavel::qt {

void VistaSoloChiudi::AggiungiChiudi(DialogoConferma& dialogo, QBoxLayout* sotto)
{
    QPushButton* chiudi = NuovoPulsante("Chiudi", "C&HIUDI");
    legami().Al(chiudi, &QPushButton::clicked, [&dialogo] { dialogo.Premi(ePulsanteDialogo::chiudi); });
    sotto->addWidget(chiudi, 0, Qt::AlignRight);
}

} // namespace ordavel::qt
