// ModelloElenco.cpp - a report list in a table.

#include "qt/ModelloElenco.hpp"

#include "qt/Colori.hpp"

#include <QAction>
#include <QFontMetrics>
#include <QHeaderView>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QStyledItemDelegate>
#include <QTableView>

#include <algorithm>

namespace ordavel::qt {

namespace {

/// Lines from both ends that say how wide a column must be; those in between are like them.
constexpr int kRigheMisurate = 30;

/// Texts of neighbouring columns are kept apart, also where one ends on the right and the next begins on the left.
QString Distaccato(const QString& sTesto)
{
    return ' ' + sTesto + ' ';
}

class DistaccoTesti : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

protected:
    void initStyleOption(QStyleOptionViewItem* opzione, const QModelIndex& indice) const override
    {
        QStyledItemDelegate::initStyleOption(opzione, indice);
        opzione->text = Distaccato(opzione->text);
    }
};

/// Headings over their texts, with room for the arrow where there may be one.
class TestataElenco : public QHeaderView {
public:
    explicit TestataElenco(QWidget* padre) : QHeaderView(Qt::Horizontal, padre) {}

protected:
    void initStyleOptionForIndex(QStyleOptionHeader* opzione, int nColonna) const override
    {
        QHeaderView::initStyleOptionForIndex(opzione, nColonna);
        opzione->text = Distaccato(opzione->text);
    }

    [[nodiscard]] QSize sectionSizeFromContents(int nColonna) const override
    {
        const int nFreccia = style()->pixelMetric(QStyle::PM_HeaderMarkSize, nullptr, this) +
                             2 * style()->pixelMetric(QStyle::PM_HeaderMargin, nullptr, this);
        return QHeaderView::sectionSizeFromContents(nColonna) +
               QSize(fontMetrics().horizontalAdvance(Distaccato({})) + (sectionsClickable() ? nFreccia : 0),
                     0);
    }
};

/// The selection of a table as flags.
std::vector<bool> SceltiDi(const QTableView& vista)
{
    std::vector<bool> aScelte(static_cast<std::size_t>(vista.model()->rowCount()));
    for (const QItemSelectionRange& tratto : vista.selectionModel()->selection()) {
        std::fill(aScelte.begin() + tratto.top(), aScelte.begin() + tratto.bottom() + 1, true);
    }
    return aScelte;
}

/// What the state says is selected, in as few ranges as there are.
QItemSelection SelezioneDi(const QAbstractItemModel& modello, const std::vector<RigaElenco>& aRighe)
{
    QItemSelection scelte;
    const int nRighe = std::min(modello.rowCount(), static_cast<int>(aRighe.size()));
    for (int i = 0; i < nRighe; ++i) {
        if (!aRighe[static_cast<std::size_t>(i)].bScelta) {
            continue;
        }
        const int nPrima = i;
        while (i + 1 < nRighe && aRighe[static_cast<std::size_t>(i) + 1].bScelta) {
            ++i;
        }
        scelte.append({modello.index(nPrima, 0), modello.index(i, std::max(0, modello.columnCount() - 1))});
    }
    return scelte;
}

void ScriviScelte(Elenco& elenco, const std::vector<bool>& aScelte)
{
    std::vector<RigaElenco> aRighe = elenco.Righe.Valore();
    for (std::size_t i = 0; i < std::min(aRighe.size(), aScelte.size()); ++i) {
        aRighe[i].bScelta = aScelte[i];
    }
    elenco.Righe.Poni(std::move(aRighe));
}

/// As wide as the texts at both ends need, and never narrower than before: columns do not jump while lines pass.
void AllargaColonna(QTableView& vista, int nColonna)
{
    const int nRighe = vista.model()->rowCount();
    int nLarghezza =
        std::max(vista.columnWidth(nColonna), vista.horizontalHeader()->sectionSizeHint(nColonna));
    for (int i = 0; i < std::min(nRighe, 2 * kRigheMisurate); ++i) {
        const int nRiga = i < kRigheMisurate ? i : nRighe - 1 - (i - kRigheMisurate);
        const QModelIndex indice = vista.model()->index(nRiga, nColonna);
        nLarghezza = std::max(nLarghezza, vista.fontMetrics().horizontalAdvance(indice.data().toString()) +
                                              3 * vista.fontMetrics().averageCharWidth());
    }
    vista.setColumnWidth(nColonna, nLarghezza);
}

void AllargaColonne(QTableView& vista)
{
    for (int i = 0; i < vista.model()->columnCount(); ++i) {
        if (vista.horizontalHeader()->sectionResizeMode(i) != QHeaderView::Stretch) {
            AllargaColonna(vista, i);
        }
    }
}

/// The arrow over the column by which the list is sorted.
void MostraOrdine(QHeaderView& testata, const std::vector<eOrdine>& aIcone)
{
    const QSignalBlocker muta(testata);
    const auto icona =
        std::find_if(aIcone.begin(), aIcone.end(), [](eOrdine e) { return e != eOrdine::nessuno; });
    testata.setSortIndicatorShown(icona != aIcone.end());
    if (icona != aIcone.end()) {
        testata.setSortIndicator(static_cast<int>(icona - aIcone.begin()),
                                 *icona == eOrdine::crescente ? Qt::AscendingOrder : Qt::DescendingOrder);
    }
}

/// New lines come where the old ones were looked at, with a line that keys can start from.
void MostraRighe(QTableView& vista, ModelloElenco& modello, const Elenco& elenco, bool bMolte)
{
    const int nInVista = vista.verticalScrollBar()->value();
    const int nCorrente = vista.currentIndex().row();
    modello.Rinfresca();
    AllargaColonne(vista);
    if (!vista.currentIndex().isValid() && modello.rowCount() > 0) {
        vista.selectionModel()->setCurrentIndex(
            modello.index(std::clamp(nCorrente, 0, modello.rowCount() - 1), 0),
            QItemSelectionModel::NoUpdate);
    }
    if (bMolte) {
        vista.selectionModel()->select(SelezioneDi(modello, elenco.Righe.Valore()),
                                       QItemSelectionModel::ClearAndSelect);
    }
    vista.verticalScrollBar()->setValue(nInVista);
}

void Prepara(QTableView& vista, const AspettoElenco& aspetto)
{
    vista.setObjectName(aspetto.sNome);
    vista.setAccessibleName(aspetto.sLetto);
    vista.setSelectionBehavior(QAbstractItemView::SelectRows);
    vista.setSelectionMode(aspetto.bMolte ? QAbstractItemView::ExtendedSelection
                                          : QAbstractItemView::SingleSelection);
    vista.setEditTriggers(QAbstractItemView::NoEditTriggers);
    vista.setTabKeyNavigation(false);
    vista.setShowGrid(false);
    vista.setAlternatingRowColors(true);
    vista.setWordWrap(false);
    vista.setCornerButtonEnabled(false);
    vista.verticalHeader()->hide();
    vista.verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    vista.verticalHeader()->setMinimumSectionSize(0);
    vista.verticalHeader()->setDefaultSectionSize(vista.fontMetrics().height() * 5 / 4);
    vista.horizontalHeader()->setHighlightSections(false);
    vista.horizontalHeader()->setSectionsClickable(static_cast<bool>(aspetto.alTitolo));
    vista.setItemDelegate(new DistaccoTesti(&vista));
    for (int i = 0; i < vista.model()->columnCount(); ++i) {
        vista.setColumnWidth(i, 0); // they grow from there
    }
    const int nElastica = aspetto.nElastica < 0 ? vista.model()->columnCount() - 1 : aspetto.nElastica;
    vista.horizontalHeader()->setSectionResizeMode(nElastica, QHeaderView::Stretch);
}

/// A double click and Enter do the same.
void CollegaDoppioClic(Legami& legami, QTableView& vista, const std::function<void(int)>& alDoppioClic)
{
    legami.Al(&vista, &QTableView::doubleClicked,
              [alDoppioClic](const QModelIndex& indice) { alDoppioClic(indice.row()); });
    auto* invio = new QAction(&vista);
    invio->setShortcuts({Qt::Key_Return, Qt::Key_Enter});
    invio->setShortcutContext(Qt::WidgetShortcut);
    vista.addAction(invio);
    legami.Al(invio, &QAction::triggered, [alDoppioClic, &vista] {
        if (vista.currentIndex().isValid()) {
            alDoppioClic(vista.currentIndex().row());
        }
    });
}

/// Headings are buttons; who has no mouse finds them in the menu of the list.
void CollegaTitoli(Legami& legami, Elenco& elenco, QTableView& vista,
                   const std::function<void(int)>& alTitolo)
{
    QHeaderView* testata = vista.horizontalHeader();
    const auto ordina = [alTitolo, testata, &elenco](int nColonna) {
        alTitolo(nColonna);
        // The heading has turned its arrow round by itself already, whatever came of it.
        MostraOrdine(*testata, elenco.Icone.Valore());
    };
    legami.Al(testata, &QHeaderView::sectionClicked, ordina);
    for (std::size_t i = 0; i < elenco.aTestate.size(); ++i) {
        auto* voce = new QAction("Ordina per " + Testo(elenco.aTestate[i]), &vista);
        legami.Al(voce, &QAction::triggered, [ordina, i] { ordina(static_cast<int>(i)); });
        vista.addAction(voce);
    }
    vista.setContextMenuPolicy(Qt::ActionsContextMenu);
    legami.Segui(elenco.Icone, testata,
                 [testata](const std::vector<eOrdine>& aIcone) { MostraOrdine(*testata, aIcone); });
}

} // namespace

ModelloElenco::ModelloElenco(Legami& legami, const Elenco& elenco, std::vector<int> aDestra, QObject* padre)
    : QAbstractTableModel(padre),
      m_Legami(&legami),
      m_Elenco(elenco),
      m_aDestra(std::move(aDestra)),
      m_nColonne(static_cast<int>(elenco.aTestate.size()))
{}

int ModelloElenco::rowCount(const QModelIndex& padre) const
{
    return padre.isValid() ? 0 : m_nRighe;
}

int ModelloElenco::columnCount(const QModelIndex& padre) const
{
    return padre.isValid() ? 0 : m_nColonne;
}

QVariant ModelloElenco::Valore(const QModelIndex& indice, int nRuolo) const
{
    const std::vector<RigaElenco>& aRighe = m_Elenco.Righe.Valore();
    const auto nRiga = static_cast<std::size_t>(indice.row());
    const auto nColonna = static_cast<std::size_t>(indice.column());
    if (nRiga >= aRighe.size()) {
        return {}; // the state is ahead of the table for the moment
    }
    const RigaElenco& riga = aRighe[nRiga];
    if (nRuolo == Qt::DisplayRole) {
        if (nColonna == 0) {
            return Testo(riga.sTesto);
        }
        return nColonna <= riga.aSotto.size() ? Testo(riga.aSotto[nColonna - 1]) : QString();
    }
    const bool bColorata = nColonna != 0 && riga.nColonnaColorata == nColonna;
    if (bColorata && nRuolo == Qt::BackgroundRole) {
        return ColoreQt(riga.nColore);
    }
    // Black can be read on each of the colours, whatever those of the desktop are.
    return bColorata && nRuolo == Qt::ForegroundRole ? QVariant(QColor(Qt::black)) : QVariant();
}

QVariant ModelloElenco::data(const QModelIndex& indice, int nRuolo) const
{
    if (nRuolo == Qt::TextAlignmentRole) {
        return headerData(indice.column(), Qt::Horizontal, nRuolo);
    }
    QVariant valore;
    if (m_Legami && indice.isValid()) {
        m_Legami->Protetto([&] { valore = Valore(indice, nRuolo); });
    }
    return valore;
}

QVariant ModelloElenco::headerData(int nPosto, Qt::Orientation verso, int nRuolo) const
{
    if (verso != Qt::Horizontal) {
        return {};
    }
    if (nRuolo == Qt::TextAlignmentRole) {
        const bool bDestra = std::find(m_aDestra.begin(), m_aDestra.end(), nPosto) != m_aDestra.end();
        return QVariant(Qt::AlignVCenter | (bDestra ? Qt::AlignRight : Qt::AlignLeft));
    }
    QVariant valore;
    if (m_Legami && nRuolo == Qt::DisplayRole) {
        m_Legami->Protetto([&] { valore = Testo(m_Elenco.aTestate.at(static_cast<std::size_t>(nPosto))); });
    }
    return valore;
}

void ModelloElenco::Rinfresca()
{
    const int nRighe = static_cast<int>(m_Elenco.Righe.Valore().size());
    if (nRighe == m_nRighe) {
        if (nRighe > 0) {
            Q_EMIT dataChanged(index(0, 0), index(nRighe - 1, m_nColonne - 1));
        }
        return;
    }
    beginResetModel();
    m_nRighe = nRighe;
    endResetModel();
}

QTableView* NuovoElenco(Legami& legami, Elenco& elenco, const AspettoElenco& aspetto, QWidget* padre)
{
    auto* vista = new QTableView(padre);
    auto* modello = new ModelloElenco(legami, elenco, aspetto.aDestra, vista);
    vista->setHorizontalHeader(new TestataElenco(vista));
    vista->setModel(modello);
    Prepara(*vista, aspetto);
    legami.collega(static_cast<Controllo&>(elenco), vista);
    const bool bMolte = aspetto.bMolte;
    legami.Segui(elenco.Righe, vista, [vista, modello, &elenco, bMolte](const std::vector<RigaElenco>&) {
        MostraRighe(*vista, *modello, elenco, bMolte);
    });
    if (bMolte) {
        legami.Al(vista->selectionModel(), &QItemSelectionModel::selectionChanged,
                  [&elenco, vista] { ScriviScelte(elenco, SceltiDi(*vista)); });
    }
    if (aspetto.alTitolo) {
        CollegaTitoli(legami, elenco, *vista, aspetto.alTitolo);
    }
    if (aspetto.alDoppioClic) {
        CollegaDoppioClic(legami, *vista, aspetto.alDoppioClic);
    }
    return vista;
}

} // namespace ordavel::qt
