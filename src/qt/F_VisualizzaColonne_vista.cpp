// F_VisualizzaColonne_vista.cpp - the window of the columns.

#include "qt/F_VisualizzaColonne_vista.hpp"

#include "qt/Disposizione.hpp"
#include "qt/ModelloElenco.hpp"

#include <QBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QSlider>
#include <QTableView>

#include <algorithm>
#include <array>

namespace ordavel::qt {

namespace {

constexpr std::array kTastiCursore = {Qt::Key_Up,       Qt::Key_Down, Qt::Key_PageUp,
                                      Qt::Key_PageDown, Qt::Key_Home, Qt::Key_End};
constexpr int kCaratteriLista = 48;

bool IsPerIlCursore(const QEvent& evento)
{
    if (evento.type() == QEvent::KeyPress) {
        const int nTasto = static_cast<const QKeyEvent&>(evento).key();
        return std::find(kTastiCursore.begin(), kTastiCursore.end(), nTasto) != kTastiCursore.end();
    }
    return evento.type() == QEvent::Wheel;
}

/// The slider stands where a scroll bar does, and moves as one: down is on.
QSlider* NuovoCursore()
{
    auto* cursore = new QSlider(Qt::Vertical);
    Nomina(cursore, "Slider1", "Prima colonna in vista");
    cursore->setInvertedAppearance(true);
    cursore->setInvertedControls(true);
    cursore->setPageStep(F_VisualizzaColonne::kRigheMostrate);
    return cursore;
}

/// Room for all lines and no more: the list itself never scrolls.
void Dimensiona(QTableView& lista)
{
    lista.setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    lista.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    lista.setMinimumWidth(kCaratteriLista * lista.fontMetrics().averageCharWidth());
    lista.setMinimumHeight(lista.horizontalHeader()->sizeHint().height() + 2 * lista.frameWidth() +
                           F_VisualizzaColonne::kRigheMostrate *
                               lista.verticalHeader()->defaultSectionSize());
}

} // namespace

F_VisualizzaColonneVista::F_VisualizzaColonneVista(F_VisualizzaColonne& dialogo, PiattaformaQt& piattaforma,
                                                   QWidget* padre)
    : VistaSoloChiudi(dialogo, piattaforma, padre),
      m_Cursore(NuovoCursore()),
      m_Lista(NuovoElenco(legami(), dialogo.ListView1,
                          {.sNome = "ListView1", .sLetto = "Colonne", .aDestra = {0}}, this))
{
    auto* tutto = new QVBoxLayout(this);
    Dimensiona(*m_Lista);
    QBoxLayout* riga = Affianca({m_Lista, m_Cursore});
    riga->setStretch(0, 1);
    tutto->addLayout(riga);
    legami().collega(dialogo.Slider1, m_Cursore);
    m_Lista->installEventFilter(this);
    m_Lista->viewport()->installEventFilter(this);
    AggiungiChiudi(dialogo, tutto);
    m_Cursore->setFocus();
}

bool F_VisualizzaColonneVista::eventFilter(QObject* oggetto, QEvent* evento)
{
    if (!IsPerIlCursore(*evento)) {
        return VistaSoloChiudi::eventFilter(oggetto, evento);
    }
    QCoreApplication::sendEvent(m_Cursore, evento);
    return true;
}

} // namespace ordavel::qt
