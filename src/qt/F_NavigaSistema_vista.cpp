// F_NavigaSistema_vista.cpp - the window of the conditions as a tree.

#include "qt/F_NavigaSistema_vista.hpp"

#include "qt/Disposizione.hpp"

#include <QBoxLayout>
#include <QScrollBar>
#include <QStyledItemDelegate>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>

namespace ordavel::qt {

namespace {

QString Chiave(const QTreeWidgetItem* voce)
{
    return voce->data(0, Qt::UserRole).toString();
}

/// Texts of cells stand on their side there, a letter a line; here they are read.
class TestoInRiga : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    [[nodiscard]] QString displayText(const QVariant& valore, const QLocale& lingua) const override
    {
        return QStyledItemDelegate::displayText(valore, lingua)
            .remove('\r')
            .remove('\n')
            .remove(QChar::LineSeparator);
    }
};

} // namespace

F_NavigaSistemaVista::F_NavigaSistemaVista(F_NavigaSistema& dialogo, PiattaformaQt& piattaforma,
                                           QWidget* padre)
    : VistaSoloChiudi(dialogo, piattaforma, padre), m_Albero(new QTreeWidget(this))
{
    auto* tutto = new QVBoxLayout(this);
    Nomina(m_Albero, "TreeView1", "Condizioni del sistema");
    m_Albero->setHeaderHidden(true);
    m_Albero->setUniformRowHeights(true);
    m_Albero->setItemDelegate(new TestoInRiga(m_Albero));
    tutto->addWidget(m_Albero);
    // What is emptied has lost its current node before anybody hears of it.
    connect(m_Albero, &QTreeWidget::currentItemChanged, this, [this](const QTreeWidgetItem* voce) {
        m_sCorrente = voce == nullptr ? m_sCorrente : Chiave(voce);
    });
    // A tree that is made anew keeps what the user has opened; it is complete when the event is over.
    connect(m_Albero->model(), &QAbstractItemModel::modelAboutToBeReset, this,
            &F_NavigaSistemaVista::Ricorda);
    legami().collega(dialogo.TreeView1, m_Albero,
                     [&dialogo](const std::string& sChiave) { dialogo.Clic(sChiave); });
    AggiungiChiudi(dialogo, tutto);
    const int nSegno = fontMetrics().averageCharWidth();
    resize(45 * nSegno, 70 * nSegno);
}

F_NavigaSistemaVista::~F_NavigaSistemaVista()
{
    // The tree goes after this, and is emptied on its way.
    m_Albero->disconnect(this);
    m_Albero->model()->disconnect(this);
}

void F_NavigaSistemaVista::Ricorda()
{
    if (m_Aspetto || m_Albero->topLevelItemCount() == 0) {
        return;
    }
    m_Aspetto = {.aAperti = {}, .nInVista = m_Albero->verticalScrollBar()->value()};
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
    const QString sCorrente = m_sCorrente;
    for (QTreeWidgetItemIterator voce(m_Albero); *voce != nullptr; ++voce) {
        if (aspetto.aAperti.contains(Chiave(*voce))) {
            (*voce)->setExpanded(true);
        }
        if (Chiave(*voce) == sCorrente) {
            m_Albero->setCurrentItem(*voce);
        }
    }
    m_Albero->verticalScrollBar()->setValue(aspetto.nInVista);
}

} // namespace ordavel::qt
