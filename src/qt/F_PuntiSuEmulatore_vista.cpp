// F_PuntiSuEmulatore_vista.cpp - the window of "Punti su emulatore".

#include "qt/F_PuntiSuEmulatore_vista.hpp"

#include "qt/Disposizione.hpp"

#include <QBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QScrollBar>

#include <algorithm>

namespace ordavel::qt {

namespace {

// The sheet's first row and first column are the headings of the table.
constexpr int kTestate = 1;

constexpr int kCifreColonne = 4;

int AltezzaRiga(const QWidget& widget)
{
    constexpr double kTwipPollice = 1440;
    return qRound(F_PuntiSuEmulatore::kAltezzaRiga / kTwipPollice * widget.logicalDpiY());
}

QTableWidgetItem* NuovaCella(const std::string& sTesto)
{
    return new QTableWidgetItem(Testo(sTesto));
}

} // namespace

void TabellaConCasella::PoniCasella(QWidget* casella)
{
    m_Casella = casella;
    casella->setParent(viewport());
    Segui();
}

void TabellaConCasella::Segui()
{
    if (m_Casella != nullptr && currentItem() != nullptr) {
        m_Casella->setGeometry(visualItemRect(currentItem()));
    }
}

/// All cells, when there is room.
QSize TabellaConCasella::sizeHint() const
{
    const int nBordo = 2 * frameWidth();
    return {verticalHeader()->sizeHint().width() + horizontalHeader()->length() + nBordo,
            horizontalHeader()->sizeHint().height() + verticalHeader()->length() + nBordo};
}

void TabellaConCasella::scrollContentsBy(int nDx, int nDy)
{
    QTableWidget::scrollContentsBy(nDx, nDy);
    Segui();
}

void TabellaConCasella::updateGeometries()
{
    QTableWidget::updateGeometries();
    Segui();
}

F_PuntiSuEmulatoreVista::F_PuntiSuEmulatoreVista(F_PuntiSuEmulatore& dialogo, PiattaformaQt& piattaforma,
                                                 QWidget* padre)
    : VistaDialogo(dialogo, piattaforma, padre),
      m_Logica(dialogo),
      m_Foglio(new TabellaConCasella(this)),
      m_Casella(new QLineEdit(this))
{
    auto* tutto = new QVBoxLayout(this);
    QFormLayout* modulo = NuovoModulo();
    tutto->addLayout(modulo);
    auto* colonne = AggiungiRiga(modulo, "Colonne &Emulate", "Text2", NuovaCasella(kCifreColonne));
    legami().collega(dialogo.Text2, colonne);
    tutto->addWidget(m_Foglio, 1);
    AggiungiPulsanti(dialogo, tutto, true);
    DisponiFoglio();
    LegaFoglio();
    LegaCasella();
    setTabOrder(colonne, m_Casella);
}

/// The table takes no focus: who clicks a cell writes in the box over it.
void F_PuntiSuEmulatoreVista::DisponiFoglio()
{
    Nomina(m_Foglio, "MSFlexGrid1", "Minimo e massimo per punti");
    m_Foglio->setFocusPolicy(Qt::NoFocus);
    m_Foglio->setTabKeyNavigation(false);
    m_Foglio->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_Foglio->setSelectionMode(QAbstractItemView::NoSelection);
    m_Foglio->verticalHeader()->setDefaultSectionSize(AltezzaRiga(*m_Foglio));
    m_Foglio->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    m_Foglio->verticalHeader()->setDefaultAlignment(Qt::AlignCenter);
    m_Foglio->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    for (QHeaderView* testata : {m_Foglio->horizontalHeader(), m_Foglio->verticalHeader()}) {
        testata->setSectionsClickable(false);
        testata->setHighlightSections(false);
    }
}

void F_PuntiSuEmulatoreVista::LegaFoglio()
{
    legami().collega(static_cast<Controllo&>(m_Logica.MSFlexGrid1), m_Foglio);
    legami().Segui(m_Logica.MSFlexGrid1.Celle, m_Foglio, [this](const auto& aRighe) { MostraCelle(aRighe); });
    legami().Al(m_Foglio, &QTableWidget::currentCellChanged, [this](int nRiga, int nColonna, int, int) {
        m_Logica.MSFlexGrid1.Corrente.Poni({nRiga + kTestate, nColonna + kTestate});
    });
}

void F_PuntiSuEmulatoreVista::LegaCasella()
{
    m_Casella->setObjectName("Text1");
    m_Casella->installEventFilter(this);
    m_Foglio->PoniCasella(m_Casella);
    legami().Segui(m_Logica.MSFlexGrid1.Corrente, m_Foglio,
                   [this](const Foglio::Posto& posto) { MostraCorrente(posto); });
    legami().collega(m_Logica.Text1, m_Casella);
}

void F_PuntiSuEmulatoreVista::MostraCelle(const std::vector<std::vector<std::string>>& aRighe)
{
    if (aRighe.empty()) {
        return;
    }
    m_Foglio->setRowCount(static_cast<int>(aRighe.size()) - kTestate);
    m_Foglio->setColumnCount(static_cast<int>(aRighe.front().size()) - kTestate);
    for (int nRiga = 0; nRiga < m_Foglio->rowCount(); ++nRiga) {
        const auto& aCelle = aRighe[static_cast<std::size_t>(nRiga + kTestate)];
        m_Foglio->setVerticalHeaderItem(nRiga, NuovaCella(aCelle.front()));
        for (int nColonna = 0; nColonna < m_Foglio->columnCount(); ++nColonna) {
            const auto nPosto = static_cast<std::size_t>(nColonna + kTestate);
            m_Foglio->setHorizontalHeaderItem(nColonna, NuovaCella(aRighe.front()[nPosto]));
            m_Foglio->setItem(nRiga, nColonna, NuovaCella(aCelle[nPosto]));
        }
    }
}

void F_PuntiSuEmulatoreVista::MostraCorrente(const Foglio::Posto& posto)
{
    m_Foglio->setCurrentCell(posto.nRiga - kTestate, posto.nColonna - kTestate);
    m_Foglio->Segui();
    const QTableWidgetItem* riga = m_Foglio->verticalHeaderItem(m_Foglio->currentRow());
    const QTableWidgetItem* colonna = m_Foglio->horizontalHeaderItem(m_Foglio->currentColumn());
    if (riga != nullptr && colonna != nullptr) {
        m_Casella->setAccessibleName(colonna->text() + ", " + riga->text());
    }
}

bool F_PuntiSuEmulatoreVista::eventFilter(QObject* oggetto, QEvent* evento)
{
    if (oggetto == m_Casella && evento->type() == QEvent::KeyPress) {
        const auto* tasto = static_cast<QKeyEvent*>(evento);
        return tasto->modifiers().testFlag(Qt::ShiftModifier) ? false : Muovi(tasto->key());
    }
    return VistaDialogo::eventFilter(oggetto, evento);
}

/// Up and down go to the next row; left and right to the next column where the cursor has no further to go.
/// Gives    whether the key was one of those
bool F_PuntiSuEmulatoreVista::Muovi(int nTasto)
{
    const bool bTutto = m_Casella->hasSelectedText();
    const bool bInizio = bTutto || m_Casella->cursorPosition() == 0;
    const bool bFine = bTutto || m_Casella->cursorPosition() == m_Casella->text().size();
    int nRiga = m_Foglio->currentRow();
    int nColonna = m_Foglio->currentColumn();
    if (nTasto == Qt::Key_Up || nTasto == Qt::Key_Down) {
        nRiga += nTasto == Qt::Key_Up ? -1 : 1;
    } else if (nTasto == Qt::Key_Left && bInizio) {
        --nColonna;
    } else if (nTasto == Qt::Key_Right && bFine) {
        ++nColonna;
    } else {
        return false;
    }
    m_Foglio->setCurrentCell(std::clamp(nRiga, 0, m_Foglio->rowCount() - 1),
                             std::clamp(nColonna, 0, m_Foglio->columnCount() - 1));
    return true;
}

} // namespace ordavel::qt
