// F_InsColonne_vista.cpp - the window that takes columns from a text.

#include "qt/F_InsColonne_vista.hpp"

#include "qt/Disposizione.hpp"
#include "qt/ModelloElenco.hpp"
#include "qt/PannelloPunti_vista.hpp"

#include <QBoxLayout>
#include <QComboBox>
#include <QGroupBox>
#include <QPushButton>
#include <QShortcut>
#include <QTableView>

namespace ordavel::qt {

F_InsColonneVista::F_InsColonneVista(F_InsColonne& dialogo, PiattaformaQt& piattaforma, QWidget* padre)
    : VistaDialogo(dialogo, piattaforma, padre)
{
    auto* tutto = new QVBoxLayout(this);
    AggiungiBarra(dialogo, tutto);
    AggiungiPannello(dialogo, tutto);
    AggiungiElenco(dialogo, tutto);
    AggiungiPulsanti(dialogo, tutto);
    const int nSegno = fontMetrics().averageCharWidth();
    findChild<QPushButton*>("open")->setFocus();
    resize(95 * nSegno, 75 * nSegno);
}

void F_InsColonneVista::AggiungiBarra(F_InsColonne& dialogo, QBoxLayout* sotto)
{
    struct Tasto {
        const char* sChiave;
        const char* sTesto;
    };
    auto* barra = new QHBoxLayout;
    for (const Tasto& tasto : {Tasto{"open", "Apri &file txt"}, Tasto{"delete", "&Elimina colonne"},
                               Tasto{"punti", "Imposta &punti"}}) {
        QPushButton* pulsante = NuovoPulsante(tasto.sChiave, tasto.sTesto);
        const char* sChiave = tasto.sChiave;
        legami().Al(pulsante, &QPushButton::clicked, [&dialogo, sChiave] { dialogo.Toolbar1(sChiave); });
        barra->addWidget(pulsante);
    }
    barra->addStretch();
    sotto->addLayout(barra);
}

/// The panel stands over the list when it is asked for; then keys go to it.
void F_InsColonneVista::AggiungiPannello(F_InsColonne& dialogo, QBoxLayout* sotto)
{
    auto* dentro = new QVBoxLayout;
    dentro->addLayout(NuovoPannelloPunti(legami(), dialogo.Pannello));
    QPushButton* imposta = NuovoPulsante("XPButton2", "&IMPOSTA");
    QPushButton* annulla = NuovoPulsante("XPButton3", "&ANNULLA");
    legami().Al(imposta, &QPushButton::clicked, [&dialogo] { dialogo.XPButton2(); });
    legami().Al(annulla, &QPushButton::clicked, [&dialogo] { dialogo.XPButton3(); });
    QBoxLayout* pulsanti = Affianca({imposta, annulla});
    pulsanti->insertStretch(0);
    dentro->addLayout(pulsanti);
    QGroupBox* pannello = NuovoRiquadro("Imposta punti", dentro);
    pannello->setObjectName("PanPunti");
    legami().collega(static_cast<Controllo&>(dialogo.PanPunti), pannello);
    sotto->addWidget(pannello);
    auto* apre = findChild<QPushButton*>("punti");
    legami().Al(apre, &QPushButton::clicked,
                [pannello] { pannello->findChild<QWidget*>("ChkPunti0")->setFocus(); });
}

void F_InsColonneVista::AggiungiElenco(F_InsColonne& dialogo, QBoxLayout* sotto)
{
    QTableView* lista = NuovoElenco(
        legami(), dialogo.ListView1,
        {.sNome = "ListView1", .sLetto = "Colonne", .aDestra = {0}, .nElastica = 1, .bMolte = true}, this);
    auto* elimina = new QShortcut(Qt::Key_Delete, lista, nullptr, nullptr, Qt::WidgetShortcut);
    legami().Al(elimina, &QShortcut::activated, [&dialogo] { dialogo.Toolbar1("delete"); });
    sotto->addWidget(lista, 1);
}

} // namespace ordavel::qt
