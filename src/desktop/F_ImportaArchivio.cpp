// F_ImportaArchivio.cpp - a draw archive made of a text.

#include "desktop/F_ImportaArchivio.hpp"

#include "core/ModNumeri.hpp"
#include "core/TestoErrato.hpp"
#include "desktop/RigaPercorso.hpp"
#include "persistenza/ImportaArchivio.hpp"
#include "persistenza/ModBaseDati.hpp"
#include "qt/PiattaformaQt.hpp"

#include <QDialogButtonBox>
#include <QFileInfo>
#include <QFormLayout>
#include <QLabel>
#include <QPushButton>
#include <QStringList>

#include <algorithm>

namespace ordavel::desktop {

using qt::Testo;

namespace {

QString Quante(std::int64_t nEstrazioni)
{
    return nEstrazioni == 1
               ? QStringLiteral("1 estrazione")
               : Testo(FormattaNumero(static_cast<double>(nEstrazioni))) + QStringLiteral(" estrazioni");
}

/// The numbers of a draw, of the first wheel where there are wheels.
QString Numeri(const ProfiloGioco& gioco, const Estrazione& estrazione)
{
    const bool bRuote = gioco.nNumeriEstrazione > gioco.nNumeriEmulati * 2;
    const auto nNumeri = static_cast<std::size_t>(bRuote ? gioco.nNumeriEmulati : gioco.nNumeriEstrazione);
    QStringList aNumeri;
    for (std::size_t i = 0; i < nNumeri; ++i) {
        aNumeri.append(QString::number(estrazione[i]));
    }
    return (bRuote ? Testo(Ruote()[0]) + QStringLiteral(" ") : QString()) + aNumeri.join(u' ');
}

} // namespace

QString RiassuntoArchivio(const ProfiloGioco& gioco, const QString& sArchivio)
{
    if (sArchivio.isEmpty()) {
        return QStringLiteral("Nessun archivio");
    }
    if (!QFileInfo(sArchivio).isFile()) {
        return QStringLiteral("Il file non esiste");
    }
    const TracciatoEstrazione tracciato = TracciatoDi(gioco);
    const auto nEstrazioni =
        ComeIntero<std::int32_t>(ContaEstrazioni(tracciato, Testo(sArchivio)).value_or(0));
    Estrazioni ultima;
    if (nEstrazioni < 1 || !LeggiEstrazioni(tracciato, nEstrazioni, nEstrazioni, ultima, Testo(sArchivio))) {
        return QStringLiteral("Nessuna estrazione");
    }
    return Quante(nEstrazioni) + QStringLiteral(", l'ultima: ") + Numeri(gioco, ultima.aEstrazioni[0]);
}

F_ImportaArchivio::F_ImportaArchivio(const ProfiloGioco& gioco, const QString& sArchivio,
                                     qt::PiattaformaQt& piattaforma, QWidget* padre)
    : QDialog(padre),
      m_Gioco(gioco),
      m_Piattaforma(piattaforma),
      m_Legami(piattaforma, "F_ImportaArchivio"),
      m_Testo(new RigaPercorso("Testo", "Testo delle estrazioni", this)),
      m_Archivio(new RigaPercorso("Archivio", "Archivio da creare", this)),
      m_Esito(new QLabel(this))
{
    setObjectName("F_ImportaArchivio");
    setWindowTitle(QStringLiteral("Importa le estrazioni di ") + Testo(gioco.sNome));
    setAccessibleName(windowTitle());
    m_Archivio->Poni(sArchivio);
    Disponi();
    m_Legami.Al(m_Testo, &RigaPercorso::sfoglia, [this] { ScegliTesto(); });
    m_Legami.Al(m_Archivio, &RigaPercorso::sfoglia, [this] { ScegliArchivio(); });
    m_Legami.Al(m_Testo, &RigaPercorso::cambiato, [this] { Esamina(); });
    m_Legami.Al(m_Archivio, &RigaPercorso::cambiato, [this] { Esamina(); });
    Esamina();
}

void F_ImportaArchivio::Disponi()
{
    auto* righe = new QFormLayout(this);
    auto* spiega =
        new QLabel(QStringLiteral("Il testo ha una riga d'intestazione e una riga per ogni estrazione, "
                                  "dalla più vecchia: la data e i numeri, separati da «;», «,» o "
                                  "tabulazioni."),
                   this);
    spiega->setWordWrap(true);
    righe->addRow(spiega);
    righe->addRow(QStringLiteral("&Testo:"), m_Testo);
    righe->addRow(QStringLiteral("&Archivio:"), m_Archivio);
    m_Esito->setObjectName("Esito");
    m_Esito->setTextFormat(Qt::PlainText);
    m_Esito->setWordWrap(true);
    m_Esito->setMinimumHeight(fontMetrics().lineSpacing() * 3);
    m_Esito->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    righe->addRow(QStringLiteral("Esito:"), m_Esito);
    auto* pulsanti = new QDialogButtonBox(this);
    m_Importa = pulsanti->addButton(QStringLiteral("&Importa"), QDialogButtonBox::AcceptRole);
    m_Importa->setObjectName("Importa");
    m_Importa->setDefault(true);
    pulsanti->addButton(QStringLiteral("A&nnulla"), QDialogButtonBox::RejectRole)->setObjectName("Annulla");
    connect(pulsanti, &QDialogButtonBox::rejected, this, &QDialog::reject);
    m_Legami.Al(m_Importa, &QPushButton::clicked, [this] { Importa(); });
    righe->addRow(pulsanti);
}

void F_ImportaArchivio::ScegliTesto()
{
    const std::string sFile = m_Piattaforma.DialogoApri({.sTitolo = "Testo delle estrazioni",
                                                         .sFiltro = "Testi (*.csv *.txt)|*.csv *.txt",
                                                         .sEstensione = ".csv",
                                                         .sNomeFile = {},
                                                         .sCartella = {}});
    if (!sFile.empty()) {
        m_Testo->Poni(Testo(sFile));
    }
}

void F_ImportaArchivio::ScegliArchivio()
{
    const std::string sFile = m_Piattaforma.DialogoSalva({.sTitolo = "Archivio da creare",
                                                          .sFiltro = "Archivi di estrazioni (*.bd)|*.bd",
                                                          .sEstensione = ".bd",
                                                          .sNomeFile = Testo(m_Archivio->Path()),
                                                          .sCartella = {}});
    if (!sFile.empty()) {
        m_Archivio->Poni(Testo(sFile));
    }
}

void F_ImportaArchivio::Esamina()
{
    m_bBuono = false;
    m_Esito->setText(Anteprima(m_Testo->Path()));
    m_Importa->setEnabled(m_bBuono && !m_Archivio->Path().isEmpty());
}

QString F_ImportaArchivio::Anteprima(const QString& sTesto)
{
    if (sTesto.isEmpty()) {
        return QStringLiteral("Scegli il testo da cui leggere le estrazioni.");
    }
    try {
        const PuntatoreInAttesa attesa(m_Piattaforma);
        const RiassuntoEstrazioni riassunto = EsaminaTesto(Testo(sTesto), m_Gioco);
        m_bBuono = true;
        const QString sQuante = Quante(riassunto.nEstrazioni);
        return riassunto.nEstrazioni == 0
                   ? QStringLiteral("Il testo non ha estrazioni: l'archivio sarà vuoto.")
                   : sQuante + QStringLiteral("\nLa prima: ") + Numeri(m_Gioco, riassunto.prima) +
                         QStringLiteral("\nL'ultima: ") + Numeri(m_Gioco, riassunto.ultima);
    } catch (const TestoErrato& errore) {
        return QStringLiteral("Errore alla ") + QString::fromUtf8(errore.what());
    } catch (const Errore& errore) {
        return QString::fromStdString(errore.Descrizione());
    }
}

void F_ImportaArchivio::Importa()
{
    try {
        const PuntatoreInAttesa attesa(m_Piattaforma);
        CreaArchivio(Testo(m_Testo->Path()), m_Gioco, Testo(m_Archivio->Path()));
    } catch (const TestoErrato&) {
        // The text has changed since it was looked at.
        return Esamina();
    }
    accept();
}

QString F_ImportaArchivio::Archivio() const
{
    return m_Archivio->Path();
}

} // namespace ordavel::desktop
