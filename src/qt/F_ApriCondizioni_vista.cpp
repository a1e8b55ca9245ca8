// F_ApriCondizioni_vista.cpp - the window that reads conditions from a file.

#include "qt/F_ApriCondizioni_vista.hpp"

#include "qt/AnteprimaCondizioni.hpp"
#include "qt/Disposizione.hpp"
#include "qt/EtichettaPercorso.hpp"

#include <QBoxLayout>
#include <QComboBox>
#include <QPushButton>

namespace ordavel::qt {

F_ApriCondizioniVista::F_ApriCondizioniVista(F_ApriCondizioni& dialogo, PiattaformaQt& piattaforma,
                                             QWidget* padre)
    : VistaDialogo(dialogo, piattaforma, padre)
{
    auto* tutto = new QVBoxLayout(this);
    QFormLayout* modulo = NuovoModulo();
    modulo->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    auto* percorso = new EtichettaPercorso;
    percorso->setObjectName("LabPercorso");
    percorso->setAccessibleDescription("Cartella");
    legami().collega(dialogo.LabPercorso, percorso);
    QPushButton* sfoglia = NuovoPulsante("Command1", "&Sfoglia…");
    sfoglia->setAccessibleName("Sfoglia le cartelle");
    legami().Al(sfoglia, &QPushButton::clicked, [&dialogo] { dialogo.Command1(); });
    QBoxLayout* cartella = Affianca({percorso, sfoglia});
    cartella->setStretch(0, 1);
    modulo->addRow("Cartella", cartella);
    auto* file = AggiungiRiga(modulo, "&File Condizione", "CmbCondizioni", new QComboBox);
    legami().collega(dialogo.CmbCondizioni, file);
    tutto->addLayout(modulo);
    auto* anteprima = new AnteprimaCondizioni(this);
    Nomina(anteprima, "GrdCond", "Anteprima");
    tutto->addWidget(anteprima, 1);
    // Behind the binding: the file has been read by then.
    legami().Al(file, qOverload<int>(&QComboBox::currentIndexChanged),
                [&dialogo, anteprima] { anteprima->Mostra(dialogo.GrdCond); });
    AggiungiPulsanti(dialogo, tutto);
    file->setFocus();
    resize(sizeHint()); // the whole preview, also on a small screen
}

} // namespace ordavel::qt
