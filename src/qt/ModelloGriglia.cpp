// ModelloGriglia.cpp - the conditions as a table model.

#include "qt/ModelloGriglia.hpp"

#include "qt/Colori.hpp"
#include "qt/Legami.hpp"
#include "qt/TestoConto.hpp"

#include <QApplication>
#include <QTextDocument>

#include <algorithm>
#include <array>
#include <utility>

namespace ordavel::qt {

namespace {

constexpr int kRighe = static_cast<int>(kRigheGriglia.size());

/// The cell of each row, from row 1 on.
constexpr std::array kCelle{&Condizione::sCondizione, &Condizione::sParametri, &Condizione::sPunti,
                            &Condizione::sRecupero, &Condizione::sQuadro};

QString Etichetta(int nRiga)
{
    return Testo(kRigheGriglia.at(static_cast<std::size_t>(nRiga)).sEtichetta);
}

/// A cell as it is spoken: a word that is written downwards is a word again, other lines follow each other.
QString InUnaRiga(const QString& sTesto)
{
    const QStringList aRighe = sTesto.split('\n', Qt::SkipEmptyParts);
    const bool bInGiu = aRighe.size() > 1 && std::all_of(aRighe.begin(), aRighe.end(), [](const QString& s) {
                            return s.size() == 1 && s.front().isLetter();
                        });
    return aRighe.join(bInGiu ? QString() : QStringLiteral(" ")).simplified();
}

/// A tool tip shows a text as it stands, also one that looks like markup.
QString Suggerimento(const QString& sTesto)
{
    return Qt::mightBeRichText(sTesto) ? "<pre>" + sTesto.toHtmlEscaped() + "</pre>" : sTesto;
}

QFont Carattere(std::string_view sNome, QFont::StyleHint specie)
{
    QFont carattere(Testo(sNome), QApplication::font().pointSize());
    carattere.setStyleHint(specie);
    return carattere;
}

} // namespace

ModelloGriglia::ModelloGriglia(Ordavel& componente, QObject* padre)
    : QAbstractTableModel(padre),
      m_Componente(componente),
      m_aCelle(static_cast<std::size_t>(kCondizioniMassime) + 1),
      m_aTagli(m_aCelle.size()),
      m_Celle(Carattere(kCarattereGriglia, QFont::Monospace)),
      m_Etichette(Carattere(kCarattereEtichette, QFont::SansSerif))
{
    aggiorna();
}

bool ModelloGriglia::aggiorna()
{
    evidenzia();
    const std::uint64_t nRevisione = m_Componente.GetGridCond().Revisione();
    if (m_nRevisione == nRevisione) {
        return false;
    }
    m_nRevisione = nRevisione;
    confronta();
    return true;
}

/// Takes over the columns that differ, and tells of each run of them.
void ModelloGriglia::confronta()
{
    const GrigliaCondizioni& griglia = m_Componente.GetGridCond();
    int nPrima = 0;
    for (int j = 1; j <= kCondizioniMassime + 1; ++j) {
        const auto nPosto = static_cast<std::size_t>(j);
        const bool bDiversa = j <= kCondizioniMassime && griglia.Riga(j) != m_aCelle[nPosto];
        if (bDiversa) {
            m_aCelle[nPosto] = griglia.Riga(j);
            m_aTagli[nPosto].reset();
            nPrima = nPrima == 0 ? j : nPrima;
        } else if (nPrima > 0) {
            cambiati(std::exchange(nPrima, 0), j - 1, {});
        }
    }
}

void ModelloGriglia::evidenzia()
{
    const int nEvidenziata = m_Componente.Controlli().GrdCond.Evidenziata.Valore();
    const QColor evidenza = ColoreQt(m_Componente.Controlli().LabColoreColSel.Valore());
    if (nEvidenziata == m_nEvidenziata && evidenza == m_Evidenza) {
        return;
    }
    m_Evidenza = evidenza;
    const int nPrima = std::exchange(m_nEvidenziata, nEvidenziata);
    for (const int nColonna : {nPrima, nEvidenziata}) {
        if (nColonna > 0) {
            Q_EMIT dataChanged(index(rigaParametri, nColonna), index(kRighe - 1, nColonna),
                               {Qt::BackgroundRole, Qt::ForegroundRole});
        }
    }
}

void ModelloGriglia::cambiati(int nPrima, int nUltima, const QList<int>& aRuoli)
{
    Q_EMIT dataChanged(index(rigaCondizione, nPrima), index(kRighe - 1, nUltima), aRuoli);
    Q_EMIT headerDataChanged(Qt::Horizontal, nPrima, nUltima);
}

/// Gives each column a new share, and tells of the span of those that differ.
template <typename Nuovo> void ModelloGriglia::poniTagli(Nuovo nuovo)
{
    int nPrima = 0;
    int nUltima = 0;
    for (int j = 1; j <= kCondizioniMassime; ++j) {
        std::optional<Taglio>& taglio = m_aTagli[static_cast<std::size_t>(j)];
        if (const std::optional<Taglio> nuovoTaglio = nuovo(j); nuovoTaglio != taglio) {
            taglio = nuovoTaglio;
            nPrima = nPrima == 0 ? j : nPrima;
            nUltima = j;
        }
    }
    if (nPrima > 0) {
        cambiati(nPrima, nUltima, {Qt::ToolTipRole, Qt::AccessibleDescriptionRole});
    }
}

void ModelloGriglia::poniConto(const ConteggioSistema& conto)
{
    poniTagli([&](int nColonna) -> std::optional<Taglio> {
        const auto nPosto = static_cast<std::size_t>(nColonna) - 1;
        if (nPosto >= conto.aCondizioni.size()) {
            return {};
        }
        const ContoCondizione& condizione = conto.aCondizioni[nPosto];
        const double nEsaminate = condizione.nOk + condizione.nKo;
        if (nEsaminate <= 0) {
            return {};
        }
        return Taglio{.nQuota = condizione.nKo / nEsaminate, .bEsatto = condizione.bEsatto};
    });
}

void ModelloGriglia::invecchiaConto()
{
    poniTagli([this](int nColonna) {
        std::optional<Taglio> vecchio = taglio(nColonna);
        if (vecchio) {
            vecchio->bEsatto = false;
        }
        return vecchio;
    });
}

void ModelloGriglia::togliConto()
{
    poniTagli([](int) { return std::optional<Taglio>(); });
}

std::optional<Taglio> ModelloGriglia::taglio(int nCondizione) const
{
    return m_aTagli.at(static_cast<std::size_t>(nCondizione));
}

const Condizione& ModelloGriglia::condizione(int nCondizione) const
{
    return m_aCelle.at(static_cast<std::size_t>(nCondizione));
}

int ModelloGriglia::ultima() const
{
    int nUltima = kCondizioniMassime;
    while (nUltima > 0 && condizione(nUltima).sCondizione.empty()) {
        --nUltima;
    }
    return nUltima;
}

QFont ModelloGriglia::carattere(int nRiga, int nColonna) const
{
    QFont carattere = nColonna == 0 || nRiga == rigaCondizione ? m_Etichette : m_Celle;
    carattere.setBold(nRiga == rigaNumero || (nRiga == rigaCondizione && nColonna > 0));
    return carattere;
}

int ModelloGriglia::rowCount(const QModelIndex& padre) const
{
    return padre.isValid() ? 0 : kRighe;
}

int ModelloGriglia::columnCount(const QModelIndex& padre) const
{
    return padre.isValid() ? 0 : kCondizioniMassime + kColonneFisse;
}

QString ModelloGriglia::testo(int nRiga, int nColonna) const
{
    if (nColonna == 0) {
        return Etichetta(nRiga);
    }
    if (nRiga == rigaNumero) {
        return QString::number(nColonna);
    }
    const std::string& sCella = condizione(nColonna).*kCelle.at(static_cast<std::size_t>(nRiga) - 1);
    return Testo(sCella).replace("\r\n", "\n");
}

QString ModelloGriglia::testoParlato(int nRiga, int nColonna) const
{
    if (nColonna == 0) {
        return Etichetta(nRiga);
    }
    const QString sCella = InUnaRiga(testo(nRiga, nColonna));
    return QStringLiteral("Condizione %1, %2: %3")
        .arg(QString::number(nColonna), Etichetta(nRiga),
             sCella.isEmpty() ? QStringLiteral("vuoto") : sCella);
}

QString ModelloGriglia::testoTaglio(int nColonna) const
{
    const std::optional<Taglio> quota = taglio(nColonna);
    return quota ? TestoTaglio(quota->nQuota, quota->bEsatto) : QString();
}

QVariant ModelloGriglia::colore(int nRiga, int nColonna, bool bSfondo) const
{
    if (nColonna > 0 && nRiga == rigaCondizione) {
        return ColoreQt(bSfondo ? kSfondoCondizione : kTestoCondizione);
    }
    if (nColonna > 0 && nColonna == m_nEvidenziata && nRiga >= kRigheFisse) {
        return bSfondo ? m_Evidenza : TestoSu(m_Evidenza);
    }
    return {};
}

QVariant ModelloGriglia::data(const QModelIndex& indice, int nRuolo) const
{
    if (!indice.isValid()) {
        return {};
    }
    const int nRiga = indice.row();
    const int nColonna = indice.column();
    switch (nRuolo) {
    case Qt::DisplayRole:
        return testo(nRiga, nColonna);
    case Qt::ToolTipRole:
        return Suggerimento(testo(nRiga, nColonna));
    case Qt::AccessibleTextRole:
        return testoParlato(nRiga, nColonna);
    case Qt::AccessibleDescriptionRole:
        return testoTaglio(nColonna);
    case Qt::TextAlignmentRole:
        return QVariant::fromValue(Qt::Alignment(Qt::AlignCenter));
    case Qt::FontRole:
        return carattere(nRiga, nColonna);
    case Qt::BackgroundRole:
    case Qt::ForegroundRole:
        return colore(nRiga, nColonna, nRuolo == Qt::BackgroundRole);
    default:
        return {};
    }
}

QVariant ModelloGriglia::headerData(int nSezione, Qt::Orientation verso, int nRuolo) const
{
    if (verso == Qt::Vertical || nSezione == 0) {
        return verso == Qt::Vertical ? data(index(nSezione, 0), nRuolo) : QVariant();
    }
    QStringList aRighe{QString::number(nSezione), testo(rigaCondizione, nSezione)};
    switch (nRuolo) {
    case Qt::DisplayRole:
        break;
    case Qt::ToolTipRole:
    case Qt::AccessibleTextRole:
        aRighe.front().prepend("Condizione ");
        aRighe.append(testoTaglio(nSezione));
        break;
    default:
        return {};
    }
    aRighe.removeAll(QString());
    const QString sTesto =
        aRighe.join(nRuolo == Qt::AccessibleTextRole ? QStringLiteral(", ") : QStringLiteral("\n"));
    return nRuolo == Qt::ToolTipRole ? Suggerimento(sTesto) : sTesto;
}

Qt::ItemFlags ModelloGriglia::flags(const QModelIndex& indice) const
{
    if (!indice.isValid()) {
        return Qt::NoItemFlags;
    }
    return indice.column() == 0 ? Qt::ItemIsEnabled : Qt::ItemIsEnabled | Qt::ItemIsSelectable;
}

} // namespace ordavel::qt
