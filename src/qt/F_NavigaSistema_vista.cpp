// F_NavigaSistema_vista.cpp - the window of the conditions as a tree.

#include "qt/F_NavigaSistema_vista.hpp"

#include "qt/Disposizione.hpp"

#include <QBoxLayout>
#include <QScrollBar>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>

namespace ordavel::qt {

namespace {

QString Chiave(const QTreeWidgetItem* voce)
{
    return voce == nullptr ? QString() : voce->data(0, Qt::UserRole).toString();
}

} // namespace

F_NavigaSistemaVista::F_NavigaSistemaVista(F_NavigaSistema& dialogo, PiattaformaQt& piattaforma,
                                           QWidget* padre)
    : VistaSoloChiudi(dialogo, piattaforma, padre), m_Albero(new QTreeWidget(this))
{
    auto* tutto = new QVBoxLayout(this);
    Nomina(m_Albero, "TreeView1", "Condizioni del sistema");
    m_Albero->setHeaderHidden(true);
    tutto->addWidget(m_Albero);
    // A tree that is made anew keeps what the user has opened; it is complete when the event is over.
    connect(m_Albero->model(), &QAbstractItemModel::modelAboutToBeReset, this,
            &F_NavigaSistemaVista::Ricorda);
    legami().collega(dialogo.TreeView1, m_Albero,
                     [&dialogo](const std::string& sChiave) { dialogo.Clic(sChiave); });
    AggiungiChiudi(dialogo, tutto);
    const int nSegno = fontMetrics().averageCharWidth();
    resize(45 * nSegno, 70 * nSegno);
}

void F_NavigaSistemaVista::Ricorda()
{
    if (m_Aspetto || m_Albero->topLevelItemCount() == 0) {
        return;
    }
    m_Aspetto = {.aAperti = {},
                 .sCorrente = Chiave(m_Albero->currentItem()),
                 .nInVista = m_Albero->verticalScrollBar()->value()};
    for (QTreeWidgetItemIterator voce(m_Albero); *voce != nullptr; ++voce) {
        if ((*voce)->isExpanded()) {
            m_Aspetto->aAperti.insert(Chiave(*voce));
        }
    }
    QMetaObject::invokeMethod(this, &F_NavigaSistemaVista::Ripristina, Qt::QueuedConnection);
}

void F_NavigaSistemaVista::Ripristina()
{
    const Aspetto aspetto = *std::exchange(m_Aspetto, std::nullopt);
    for (QTreeWidgetItemIterator voce(m_Albero); *voce != nullptr; ++voce) {
        if (aspetto.aAperti.contains(Chiave(*voce))) {
            (*voce)->setExpanded(true);
        }
        if (Chiave(*voce) == aspetto.sCorrente) {
            m_Albero->setCurrentItem(*voce);
        }
    }
    m_Albero->verticalScrollBar()->setValue(aspetto.nInVista);
}

} // namespace ordavel::qt
