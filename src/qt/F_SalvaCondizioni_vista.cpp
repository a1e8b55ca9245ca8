// F_SalvaCondizioni_vista.cpp - the window that saves a run of conditions.

#include "qt/F_SalvaCondizioni_vista.hpp"

#include "qt/AnteprimaCondizioni.hpp"
#include "qt/Disposizione.hpp"

#include <QBoxLayout>
#include <QComboBox>

namespace ordavel::qt {

F_SalvaCondizioniVista::F_SalvaCondizioniVista(F_SalvaCondizioni& dialogo, PiattaformaQt& piattaforma,
                                               QWidget* padre)
    : VistaDialogo(dialogo, piattaforma, padre)
{
    auto* tutto = new QVBoxLayout(this);
    QFormLayout* modulo = NuovoModulo();
    auto* inizio = AggiungiRiga(modulo, "&Da Condizione", "CmbCondInizio", new QComboBox);
    auto* fine = AggiungiRiga(modulo, "&A Condizione", "CmbCondFine", new QComboBox);
    legami().collega(dialogo.CmbCondInizio, inizio);
    legami().collega(dialogo.CmbCondFine, fine);
    tutto->addLayout(modulo);
    auto* anteprima = new AnteprimaCondizioni(this);
    Nomina(anteprima, "GrdCond", "Anteprima");
    anteprima->Mostra(dialogo.GrdCond);
    tutto->addWidget(anteprima, 1);
    // Behind the binding: the choice has reached the preview's conditions by then.
    for (QComboBox* combo : {inizio, fine}) {
        combo->setMinimumContentsLength(16);
        legami().Al(combo, qOverload<int>(&QComboBox::currentIndexChanged),
                    [&dialogo, anteprima] { anteprima->Mostra(dialogo.GrdCond); });
    }
    AggiungiPulsanti(dialogo, tutto);
    resize(sizeHint()); // the whole preview, also on a small screen
}

} // namespace ordavel::qt
