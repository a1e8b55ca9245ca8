// VistaGriglia.cpp - the grid of conditions.

#include "qt/VistaGriglia.hpp"

#include "qt/ContoVivo.hpp"
#include "qt/DelegatoGriglia.hpp"
#include "qt/TestataGriglia.hpp"

#include <QContextMenuEvent>
#include <QCoreApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QWheelEvent>

#include <algorithm>
#include <array>
#include <utility>

namespace ordavel::qt {

namespace {

constexpr int kMargine = 3;
constexpr int kRigheParametriMinime = 4;

/// Lines of text that a row is high: the grid's own, or what its list may need.
constexpr std::array<int, 6> kAltezze{1, 2, kRigheGriglia[rigaParametri].nAltezzeTesto, 2, 2, 1};

/// Lines that a text takes when each has so many letters.
int RigheDi(std::string_view sTesto, int nLettere)
{
    int nRighe = 0;
    while (!sTesto.empty()) {
        const auto nFine = std::min(sTesto.find('\n'), sTesto.size());
        nRighe += std::max(1, (static_cast<int>(nFine) + nLettere - 1) / nLettere);
        sTesto.remove_prefix(std::min(nFine + 1, sTesto.size()));
    }
    return nRighe;
}

} // namespace

VistaGriglia::VistaGriglia(Ordavel& componente, Segnalatore& segnalatore, QWidget* padre)
    : QTableView(padre),
      m_Componente(componente),
      m_Stato(componente.Controlli().GrdCond),
      m_Legami(segnalatore, "F_EleEst.GrdCond"),
      m_Modello(componente),
      m_Testata(new TestataGriglia(m_Modello, this)),
      m_Angolo(new AngoloGriglia(m_Modello, *m_Testata, this))
{
    setObjectName("GrdCond");
    setAccessibleName("Condizioni");
    setItemDelegate(new DelegatoGriglia(this));
    setHorizontalHeader(m_Testata);
    setModel(&m_Modello);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setTabKeyNavigation(false);
    setAutoScroll(false);
    setWordWrap(true);
    setHorizontalScrollMode(QAbstractItemView::ScrollPerItem);
    setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    preparaTestate();
    poniLarghezze();
    poniAltezze();
    seguiCorrente();
    legaStati();
}

/// The model goes before the view that shows it.
VistaGriglia::~VistaGriglia()
{
    m_Legami.Taglia();
    setModel(nullptr);
}

/// The two fixed rows are the header of the columns, the fixed column is that of the rows.
void VistaGriglia::preparaTestate()
{
    setCornerButtonEnabled(false);
    hideRow(rigaNumero);
    hideRow(rigaCondizione);
    hideColumn(0);
    QHeaderView* lato = verticalHeader();
    lato->setSectionResizeMode(QHeaderView::Fixed);
    lato->setSectionsClickable(false);
    lato->setDefaultAlignment(Qt::AlignCenter);
    lato->setFixedWidth(
        QFontMetrics(m_Modello.carattere(rigaParametri, 1)).horizontalAdvance(Testo(kTestoLarghezza)));
    connect(m_Testata, &QHeaderView::sectionPressed, this, &VistaGriglia::scegliDaTestata);
    connect(m_Testata, &QHeaderView::sectionDoubleClicked, this, &VistaGriglia::modificaChiesta);
    m_Testata->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(m_Testata, &QWidget::customContextMenuRequested, this, [this](const QPoint& punto) {
        if (const int nColonna = m_Testata->logicalIndexAt(punto); nColonna > 0) {
            scegliDaTestata(nColonna);
        }
        chiediMenu(viewport()->mapFromGlobal(m_Testata->viewport()->mapToGlobal(punto)));
    });
}

void VistaGriglia::legaStati()
{
    m_Legami.collega(static_cast<Controllo&>(m_Stato), this);
    m_Legami.Segui(m_Stato.Larghezza, this, [this](std::int32_t) { poniLarghezze(); });
    m_Legami.Segui(m_Stato.Evidenziata, this, [this](std::int32_t) {
        m_Modello.aggiorna();
        seguiCorrente();
    });
    m_Legami.Segui(m_Stato.PrimaColonna, this, [this](std::int32_t) { seguiPrimaColonna(); });
    m_Legami.Al(horizontalScrollBar(), &QScrollBar::valueChanged, [this] { notaScorrimento(); });
}

void VistaGriglia::aggiorna()
{
    if (m_Modello.aggiorna()) {
        poniLarghezze();
        poniAltezze();
    }
    seguiCorrente();
}

void VistaGriglia::segui(const ContoVivo& conto)
{
    connect(&conto, &ContoVivo::cominciato, &m_Modello, &ModelloGriglia::invecchiaConto);
    connect(&conto, &ContoVivo::stima, &m_Modello, &ModelloGriglia::poniConto);
    connect(&conto, &ContoVivo::esatto, &m_Modello, &ModelloGriglia::poniConto);
    connect(&conto, &ContoVivo::nessuno, &m_Modello, &ModelloGriglia::togliConto);
}

void VistaGriglia::poniLarghezze()
{
    bool bCambiate = false;
    const auto nComune = std::max<int>(m_Stato.Larghezza.Valore(), m_Testata->minimumSectionSize());
    // All at once first: most columns have the common width.
    if (m_Testata->defaultSectionSize() != nComune) {
        m_Testata->setDefaultSectionSize(nComune);
        bCambiate = true;
    }
    for (int j = 1; j <= kCondizioniMassime; ++j) {
        const int nLarga = std::max<int>(m_Componente.LarghezzaColonna(j), m_Testata->minimumSectionSize());
        if (m_Testata->sectionSize(j) != nLarga) {
            m_Testata->resizeSection(j, nLarga);
            bCambiate = true;
        }
    }
    if (bCambiate) {
        doItemsLayout();
        tieniPrimaColonna();
        notaScorrimento();
    }
}

/// The same condition stays the leftmost, though the place of each is another now.
void VistaGriglia::tieniPrimaColonna()
{
    const QScrollBar& barra = *horizontalScrollBar();
    if (barra.value() > 0 && barra.value() == barra.maximum()) {
        m_Testata->setOffsetToLastSection();
    } else {
        m_Testata->setOffsetToSectionPosition(barra.value());
    }
}

int VistaGriglia::altezzaRiga(int nRiga) const
{
    const int nTesto = QFontMetrics(m_Modello.carattere(rigaParametri, 1)).height();
    return kAltezze.at(static_cast<std::size_t>(nRiga)) * nTesto + 2 * kMargine;
}

/// So much as the longest text needs: what no text needs is given up where there is not much room.
int VistaGriglia::altezzaMinimaParametri() const
{
    const QFontMetrics misure(m_Modello.carattere(rigaParametri, 1));
    const int nLettera = std::max(1, misure.horizontalAdvance('W'));
    int nRighe = kRigheParametriMinime;
    for (int j = m_Modello.ultima(); j > 0; --j) {
        const int nLettere = std::max(1, (m_Testata->sectionSize(j) - 2 * kMargine) / nLettera);
        nRighe = std::max(nRighe, RigheDi(m_Modello.condizione(j).sParametri, nLettere));
    }
    return std::min(nRighe, kAltezze[rigaParametri]) * misure.height() + 2 * kMargine;
}

void VistaGriglia::poniAltezze()
{
    const int nAltre = altezzaRiga(rigaPunti) + altezzaRiga(rigaRecupero) + altezzaRiga(rigaQuadro);
    setRowHeight(rigaParametri, std::clamp(viewport()->height() - nAltre, altezzaMinimaParametri(),
                                           altezzaRiga(rigaParametri)));
    for (const int nRiga : {rigaPunti, rigaRecupero, rigaQuadro}) {
        setRowHeight(nRiga, altezzaRiga(nRiga));
    }
}

QSize VistaGriglia::sizeHint() const
{
    int nAlta =
        m_Testata->sizeHint().height() + horizontalScrollBar()->sizeHint().height() + 2 * frameWidth();
    for (int nRiga = kRigheFisse; nRiga < m_Modello.rowCount(); ++nRiga) {
        nAlta += altezzaRiga(nRiga);
    }
    return {verticalHeader()->width() + 5 * std::max(m_Stato.Larghezza.Valore(), 1), nAlta};
}

QSize VistaGriglia::minimumSizeHint() const
{
    const int nAlta = m_Testata->sizeHint().height() + horizontalScrollBar()->sizeHint().height() +
                      2 * frameWidth() + altezzaRiga(rigaPunti);
    return {2 * verticalHeader()->width(), nAlta};
}

int VistaGriglia::colonneIntere() const
{
    int nIntere = 0;
    int nLargo = viewport()->width();
    for (int j = horizontalScrollBar()->value() + 1; j <= kCondizioniMassime; ++j) {
        nLargo -= m_Testata->sectionSize(j);
        if (nLargo < 0) {
            break;
        }
        ++nIntere;
    }
    return std::max(nIntere, 1);
}

/// Tells the logic what is on show. Before the grid has been shown it has no say.
void VistaGriglia::notaScorrimento()
{
    if (isVisible() && !m_bSegue) {
        m_Stato.PrimaColonna.Poni(horizontalScrollBar()->value() + 1);
        m_Stato.ColonneIntere.Poni(colonneIntere());
    }
}

void VistaGriglia::seguiPrimaColonna()
{
    const int nPrima = horizontalScrollBar()->value() + 1;
    {
        const QScopedValueRollback segue(m_bSegue, true);
        executeDelayedItemsLayout();
        horizontalScrollBar()->setValue(m_Stato.PrimaColonna.Valore() - 1);
    }
    if (m_Stato.PrimaColonna.Valore() > nPrima) {
        mostraEvidenziata();
    }
    notaScorrimento();
}

/// The logic reckons with columns of one width; where the ones to the right are wider, it takes some more.
void VistaGriglia::mostraEvidenziata()
{
    const int nEvidenziata = m_Stato.Evidenziata.Valore();
    const int nPrima = horizontalScrollBar()->value() + 1;
    if (!isVisible() || nEvidenziata <= nPrima || nEvidenziata > nPrima + m_Stato.ColonneIntere.Valore()) {
        return;
    }
    const QScopedValueRollback segue(m_bSegue, true);
    while (horizontalScrollBar()->value() + 1 < nEvidenziata &&
           horizontalScrollBar()->value() + colonneIntere() < nEvidenziata) {
        horizontalScrollBar()->setValue(horizontalScrollBar()->value() + 1);
    }
}

/// The current cell is always in the selected condition, or in the first where none is.
void VistaGriglia::seguiCorrente()
{
    const int nColonna = std::max(1, m_Componente.GetGridCond().Corrente());
    const QModelIndex corrente = currentIndex();
    if (corrente.column() != nColonna) {
        const QScopedValueRollback segue(m_bSegue, true);
        setCurrentIndex(m_Modello.index(std::max<int>(corrente.row(), rigaParametri), nColonna));
    }
}

void VistaGriglia::entra(int nCondizione)
{
    m_Legami.Protetto([&] { m_Componente.GrdCond_EnterCell(nCondizione); });
    Q_EMIT condizioneScelta(nCondizione);
}

void VistaGriglia::scegliDaTestata(int nCondizione)
{
    setFocus(Qt::MouseFocusReason);
    entra(nCondizione);
}

void VistaGriglia::currentChanged(const QModelIndex& corrente, const QModelIndex& precedente)
{
    QTableView::currentChanged(corrente, precedente);
    if (m_bSegue || !corrente.isValid()) {
        return;
    }
    if (m_bTasti) {
        scrollTo(corrente);
    }
    entra(corrente.column());
}

/// Where End leads: to the last condition, and from there to the free column behind it.
int VistaGriglia::fine(int nColonna, bool bTutte) const
{
    const int nUltima = m_Modello.ultima();
    return bTutte ? kCondizioniMassime : nColonna == nUltima ? nUltima + 1 : std::max(nUltima, 1);
}

QModelIndex VistaGriglia::moveCursor(CursorAction azione, Qt::KeyboardModifiers tasti)
{
    int nRiga = currentIndex().row();
    int nColonna = currentIndex().column();
    switch (azione) {
    case MoveUp:
    case MoveDown:
        nRiga += azione == MoveDown ? 1 : -1;
        break;
    case MoveLeft:
    case MovePrevious:
        --nColonna;
        break;
    case MoveRight:
    case MoveNext:
        ++nColonna;
        break;
    case MoveHome:
        nColonna = 1;
        break;
    case MoveEnd:
        nColonna = fine(nColonna, tasti.testFlag(Qt::ControlModifier));
        break;
    case MovePageUp:
    case MovePageDown:
        nColonna += (azione == MovePageDown ? 1 : -1) * colonneIntere();
        break;
    }
    return m_Modello.index(std::clamp<int>(nRiga, rigaParametri, rigaQuadro),
                           std::clamp(nColonna, 1, kCondizioniMassime));
}

void VistaGriglia::keyPressEvent(QKeyEvent* evento)
{
    struct Tasto {
        int nTasto;
        void (VistaGriglia::*segnale)();
    };
    static constexpr std::array<Tasto, 5> kTasti{{{Qt::Key_F2, &VistaGriglia::modificaChiesta},
                                                  {Qt::Key_Return, &VistaGriglia::modificaChiesta},
                                                  {Qt::Key_Enter, &VistaGriglia::modificaChiesta},
                                                  {Qt::Key_Delete, &VistaGriglia::eliminaChiesta},
                                                  {Qt::Key_Insert, &VistaGriglia::inserisciChiesta}}};
    const auto tasto =
        std::find_if(kTasti.begin(), kTasti.end(), [&](const Tasto& t) { return t.nTasto == evento->key(); });
    if (tasto != kTasti.end() && (evento->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier) {
        evento->accept();
        entra(currentIndex().column());
        Q_EMIT(this->*tasto->segnale)();
        return;
    }
    const QScopedValueRollback tasti(m_bTasti, true);
    QTableView::keyPressEvent(evento);
}

void VistaGriglia::keyboardSearch(const QString& sTesto)
{
    const int nUltima = m_Modello.ultima();
    for (int i = 1; i <= nUltima; ++i) {
        const int nColonna = (currentIndex().column() - 1 + i) % nUltima + 1;
        if (Testo(m_Modello.condizione(nColonna).sCondizione).startsWith(sTesto, Qt::CaseInsensitive)) {
            setCurrentIndex(m_Modello.index(currentIndex().row(), nColonna));
            return;
        }
    }
}

void VistaGriglia::mousePressEvent(QMouseEvent* evento)
{
    QTableView::mousePressEvent(evento);
    // The current cell may have no highlight yet, as in a new system.
    const QModelIndex indice = indexAt(evento->position().toPoint());
    if (indice.isValid() && indice.column() != m_Stato.Evidenziata.Valore()) {
        entra(indice.column());
    }
}

void VistaGriglia::mouseDoubleClickEvent(QMouseEvent* evento)
{
    QTableView::mouseDoubleClickEvent(evento);
    if (evento->button() == Qt::LeftButton && indexAt(evento->position().toPoint()).isValid()) {
        Q_EMIT modificaChiesta();
    }
}

/// By the mouse the condition under it has been selected by the press; by the key the menu stands at the current one.
void VistaGriglia::contextMenuEvent(QContextMenuEvent* evento)
{
    const bool bMouse = evento->reason() == QContextMenuEvent::Mouse;
    const QModelIndex indice = bMouse ? indexAt(evento->pos()) : currentIndex();
    if (indice.isValid() && indice.column() != m_Stato.Evidenziata.Valore()) {
        entra(indice.column());
    }
    chiediMenu(bMouse ? evento->pos() : visualRect(indice).center());
}

void VistaGriglia::chiediMenu(const QPoint& posto)
{
    Q_EMIT customContextMenuRequested(posto);
}

void VistaGriglia::resizeEvent(QResizeEvent* evento)
{
    QTableView::resizeEvent(evento);
    poniAltezze();
    seguiPrimaColonna();
}

void VistaGriglia::showEvent(QShowEvent* evento)
{
    QTableView::showEvent(evento);
    seguiPrimaColonna();
}

/// Where nothing scrolls up and down, the wheel scrolls sideways.
void VistaGriglia::wheelEvent(QWheelEvent* evento)
{
    if (verticalScrollBar()->maximum() == 0) {
        QCoreApplication::sendEvent(horizontalScrollBar(), evento);
    } else {
        QTableView::wheelEvent(evento);
    }
}

void VistaGriglia::updateGeometries()
{
    QTableView::updateGeometries();
    m_Angolo->setGeometry(frameWidth(), frameWidth(), verticalHeader()->width(), m_Testata->height());
    m_Angolo->raise();
}

} // namespace ordavel::qt
