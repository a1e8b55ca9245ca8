// AnteprimaCondizioni.cpp - a look at a list of conditions.

#include "qt/AnteprimaCondizioni.hpp"

#include "ordavel/VistaCondizioni.hpp"

#include "qt/Colori.hpp"
#include "qt/Legami.hpp"

#include <QFont>
#include <QHeaderView>
#include <QScrollBar>

#include <algorithm>
#include <array>

namespace ordavel::qt {

namespace {

/// The cells of a condition, from the top.
constexpr std::array kCelle = {&Condizione::sCondizione, &Condizione::sParametri, &Condizione::sPunti,
                               &Condizione::sRecupero, &Condizione::sQuadro};
constexpr int kColonneInVista = 5;
/// The rows of the grid in front of the first cell: that of the numbers.
constexpr std::size_t kRigheDavanti = kRigheGriglia.size() - kCelle.size();

QFont CarattereCelle(bool bCondizione)
{
    const std::string_view sNome = bCondizione ? kCarattereEtichette : kCarattereGriglia;
    QFont carattere(Testo(sNome), QFont().pointSize());
    carattere.setStyleHint(bCondizione ? QFont::SansSerif : QFont::Monospace);
    carattere.setBold(bCondizione);
    return carattere;
}

std::string_view Etichetta(int nRiga)
{
    return kRigheGriglia.at(static_cast<std::size_t>(nRiga) + kRigheDavanti).sEtichetta;
}

} // namespace

ModelloAnteprima::ModelloAnteprima(QObject* padre) : QAbstractTableModel(padre) {}

void ModelloAnteprima::Mostra(const GrigliaCondizioni& griglia)
{
    beginResetModel();
    m_aCondizioni.clear();
    for (std::int32_t nRiga = 1; !griglia.Vuota(nRiga); ++nRiga) {
        m_aCondizioni.push_back(griglia.Riga(nRiga));
    }
    endResetModel();
}

int ModelloAnteprima::rowCount(const QModelIndex& padre) const
{
    return padre.isValid() ? 0 : static_cast<int>(kCelle.size());
}

int ModelloAnteprima::columnCount(const QModelIndex& padre) const
{
    return padre.isValid() ? 0 : static_cast<int>(m_aCondizioni.size());
}

QString ModelloAnteprima::Cella(const QModelIndex& indice) const
{
    const Condizione& condizione = m_aCondizioni.at(static_cast<std::size_t>(indice.column()));
    return Testo(condizione.*kCelle.at(static_cast<std::size_t>(indice.row()))).remove('\r');
}

QVariant ModelloAnteprima::data(const QModelIndex& indice, int nRuolo) const
{
    if (!indice.isValid()) {
        return {};
    }
    const bool bCondizione = indice.row() == 0;
    switch (nRuolo) {
    case Qt::DisplayRole:
        return Cella(indice);
    case Qt::AccessibleTextRole: // a bare cell says nothing
        return QString("%1, %2: %3")
            .arg(indice.column() + 1)
            .arg(Testo(Etichetta(indice.row())), Cella(indice).replace('\n', ' '));
    case Qt::TextAlignmentRole:
        return QVariant(Qt::AlignCenter);
    case Qt::FontRole:
        return CarattereCelle(bCondizione);
    case Qt::BackgroundRole:
        return bCondizione ? QVariant(ColoreQt(kSfondoCondizione)) : QVariant();
    case Qt::ForegroundRole:
        return bCondizione ? QVariant(ColoreQt(kTestoCondizione)) : QVariant();
    default:
        return {};
    }
}

QVariant ModelloAnteprima::headerData(int nPosto, Qt::Orientation verso, int nRuolo) const
{
    if (nRuolo != Qt::DisplayRole) {
        return {};
    }
    return verso == Qt::Horizontal ? QVariant(nPosto + 1) : QVariant(Testo(Etichetta(nPosto)));
}

AnteprimaCondizioni::AnteprimaCondizioni(QWidget* padre) : QTableView(padre), m_Modello(this)
{
    setModel(&m_Modello);
    setAccessibleName("Anteprima delle condizioni");
    setEditTriggers(NoEditTriggers);
    setTabKeyNavigation(false);
    setCornerButtonEnabled(false);
    horizontalHeader()->setHighlightSections(false);
    verticalHeader()->setHighlightSections(false);
    verticalHeader()->setDefaultAlignment(Qt::AlignCenter);
    setHorizontalScrollMode(ScrollPerPixel);
    setVerticalScrollMode(ScrollPerPixel);
    const QFontMetrics lettere(CarattereCelle(false));
    horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    horizontalHeader()->setDefaultSectionSize(lettere.horizontalAdvance(Testo(kTestoLarghezza)));
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    for (int nRiga = 0; nRiga < m_Modello.rowCount(); ++nRiga) {
        const auto nRighe = kRigheGriglia.at(static_cast<std::size_t>(nRiga) + kRigheDavanti).nAltezzeTesto;
        setRowHeight(nRiga, std::max(1, nRighe) * lettere.height() + lettere.height() / 2);
    }
}

void AnteprimaCondizioni::Mostra(const GrigliaCondizioni& griglia)
{
    if (griglia.Revisione() == m_nRevisione) {
        return;
    }
    m_nRevisione = griglia.Revisione();
    m_Modello.Mostra(griglia);
    if (m_Modello.columnCount() > 0) {
        selectionModel()->setCurrentIndex(m_Modello.index(0, 0), QItemSelectionModel::NoUpdate);
    }
    scrollToTop();
}

QSize AnteprimaCondizioni::sizeHint() const
{
    // Without conditions the heading says nothing about its height.
    const int nTestata = std::max(horizontalHeader()->sizeHint().height(), fontMetrics().height() * 3 / 2);
    const int nAltezza = nTestata + verticalHeader()->length() + horizontalScrollBar()->sizeHint().height();
    const int nLarghezza =
        verticalHeader()->sizeHint().width() + kColonneInVista * horizontalHeader()->defaultSectionSize();
    return {nLarghezza + 2 * frameWidth(), nAltezza + 2 * frameWidth()};
}

} // namespace ordavel::qt
