// F_Spoglio_vista.cpp - the window that checks columns against a winning one.

#include "qt/F_Spoglio_vista.hpp"

#include "qt/Disposizione.hpp"
#include "qt/ModelloElenco.hpp"

#include <QBoxLayout>
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTabBar>
#include <QTableView>

namespace ordavel::qt {

F_SpoglioVista::F_SpoglioVista(F_Spoglio& dialogo, PiattaformaQt& piattaforma, QWidget* padre)
    : VistaDialogo(dialogo, piattaforma, padre)
{
    auto* tutto = new QVBoxLayout(this);
    QFormLayout* modulo = NuovoModulo();
    modulo->setFieldGrowthPolicy(QFormLayout::ExpandingFieldsGrow);
    legami().collega(dialogo.Text1, AggiungiRiga(modulo, "Colonna &vincente", "Text1", new QLineEdit));
    legami().collega(dialogo.CmbPuntiMin,
                     AggiungiRiga(modulo, "&Punti minimi", "CmbPuntiMin", new QComboBox));
    tutto->addLayout(modulo);
    AggiungiPagine(dialogo, tutto);
    QPushButton* esegui = NuovoPulsante("XPButton10", "&ESEGUI");
    QPushButton* chiudi = NuovoPulsante("XPButton11", "C&HIUDI");
    esegui->setDefault(true);
    legami().Al(esegui, &QPushButton::clicked, [&dialogo] { dialogo.XPButton1(0); });
    legami().Al(chiudi, &QPushButton::clicked, [&dialogo] { dialogo.XPButton1(1); });
    QBoxLayout* pulsanti = Affianca({esegui, chiudi});
    pulsanti->insertStretch(0);
    tutto->addLayout(pulsanti);
    const int nSegno = fontMetrics().averageCharWidth();
    resize(90 * nSegno, 75 * nSegno);
}

/// One page is on show at a time; the dialog says which.
void F_SpoglioVista::AggiungiPagine(F_Spoglio& dialogo, QBoxLayout* sotto)
{
    auto* linguette = new QTabBar(this);
    Nomina(linguette, "TabStrip1", "Pagine");
    linguette->setExpanding(false);
    legami().collega(dialogo.TabStrip1, linguette);
    sotto->addWidget(linguette);
    const auto ordina = [&dialogo](int nColonna) {
        dialogo.ListView1_ColumnClick(static_cast<std::int16_t>(nColonna + 1));
    };
    sotto->addWidget(NuovoElenco(legami(), dialogo.ListView1,
                                 {.sNome = "ListView1",
                                  .sLetto = "Vincite",
                                  .aDestra = {0, 2},
                                  .nElastica = 1,
                                  .alTitolo = ordina},
                                 this),
                     1);
    sotto->addWidget(
        NuovoElenco(
            legami(), dialogo.ListView2,
            {.sNome = "ListView2", .sLetto = "Confronto condizioni", .aDestra = {0, 4}, .nElastica = 1},
            this),
        1);
    sotto->addWidget(
        NuovoElenco(legami(), dialogo.ListView3,
                    {.sNome = "ListView3", .sLetto = "Riepilogo", .aDestra = {1}, .nElastica = 0}, this),
        1);
}

} // namespace ordavel::qt
