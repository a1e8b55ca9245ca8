// F_ScegliRuota_vista.cpp - the window that asks for a wheel.

#include "qt/F_ScegliRuota_vista.hpp"

#include "qt/Disposizione.hpp"

#include <QBoxLayout>
#include <QComboBox>
#include <QPushButton>

namespace ordavel::qt {

F_ScegliRuotaVista::F_ScegliRuotaVista(F_ScegliRuota& dialogo, PiattaformaQt& piattaforma, QWidget* padre)
    : VistaDialogo(dialogo, piattaforma, padre)
{
    auto* tutto = new QVBoxLayout(this);
    QFormLayout* modulo = NuovoModulo();
    tutto->addLayout(modulo);
    tutto->addStretch();
    legami().collega(dialogo.CmbRuota, AggiungiRiga(modulo, "&Ruota", "CmbRuota", new QComboBox));
    QPushButton* conferma = NuovoPulsante("Conferma", "&CONFERMA");
    conferma->setDefault(true);
    legami().Al(conferma, &QPushButton::clicked, [&dialogo] { dialogo.Premi(ePulsanteDialogo::conferma); });
    tutto->addWidget(conferma, 0, Qt::AlignRight);
    // No less than its title.
    setMinimumWidth(fontMetrics().horizontalAdvance(windowTitle()) * 3 / 2);
}

} // namespace ordavel::qt
