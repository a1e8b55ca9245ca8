// F_Finestra.cpp - the window of the program.

#include "desktop/F_Finestra.hpp"

#include "ordavel/Ordavel.hpp"
#include "ordavel/OrdavelWidget.hpp"

#include "core/FileBinario.hpp"
#include "desktop/ArchivioImpostazioni.hpp"
#include "persistenza/ModFileSistema.hpp"

#include <QAction>
#include <QCloseEvent>
#include <QDragEnterEvent>
#include <QFileInfo>
#include <QGuiApplication>
#include <QMessageBox>
#include <QMimeData>
#include <QPushButton>
#include <QScreen>
#include <QTimer>
#include <QUndoStack>
#include <QUrl>

#include <algorithm>

namespace ordavel::desktop {

using qt::OrdavelWidget;
using qt::Testo;

namespace {

constexpr const char* kGeometria = "Finestra/Geometria";
constexpr const char* kStato = "Finestra/Stato";
/// Of the screen, that a first window may take.
constexpr double kParteSchermo = 0.9;

/// Can the file be loaded? A name that only failed to is none to come back to.
bool EUnSistema(const QString& sFile)
{
    try {
        FileBinario file(Testo(sFile), eApertura::lettura);
        return LeggiParteSistema(file).has_value();
    } catch (const std::exception&) {
        return false;
    }
}

} // namespace

QString SistemaTrascinato(const QMimeData& dati)
{
    const QList<QUrl> aUrl = dati.urls();
    const bool bUno = aUrl.size() == 1 && aUrl.constFirst().isLocalFile();
    const QString sFile = bUno ? aUrl.constFirst().toLocalFile() : QString();
    return sFile.endsWith(QStringLiteral(".sic"), Qt::CaseInsensitive) ? sFile : QString();
}

void RiportaSulloSchermo(QWidget& finestra)
{
    const QRect cornice = finestra.frameGeometry();
    const QRect titolo(cornice.topLeft(), QSize(cornice.width(), finestra.fontMetrics().height()));
    const QList<QScreen*> aSchermi = QGuiApplication::screens();
    const bool bVisibile = std::any_of(aSchermi.begin(), aSchermi.end(), [&](const QScreen* schermo) {
        return schermo->availableGeometry().intersects(titolo);
    });
    if (!bVisibile && !aSchermi.isEmpty()) {
        const QRect posto = aSchermi.constFirst()->availableGeometry();
        finestra.resize(finestra.size().boundedTo(posto.size()));
        finestra.move(posto.topLeft());
    }
}

F_Finestra::F_Finestra(ArchivioImpostazioni& archivio)
    : m_Archivio(archivio),
      m_Recenti(archivio),
      m_Piattaforma(this),
      m_Legami(m_Piattaforma, "F_Finestra"),
      m_Ordavel(new OrdavelWidget(this))
{
    setObjectName("F_Finestra");
    setCentralWidget(m_Ordavel);
    setAcceptDrops(true);
    CreaMenu();
    m_Legami.Al(m_Ordavel, &OrdavelWidget::sistemaCambiato, [this] { SistemaCambiato(); });
    m_Legami.Al(m_Ordavel->annullamenti(), &QUndoStack::cleanChanged, [this] { SistemaCambiato(); });
    m_Legami.Al(m_Ordavel, &OrdavelWidget::inCorsoChanged,
                [this](bool bInCorso) { CorsaCambiata(bInCorso); });
    m_Legami.Al(m_Ordavel, &OrdavelWidget::stampaSk,
                [this](const QString& sTipogioco) { Stampa(eStampa::anteprima, sTipogioco); });
    Riprendi();
    SistemaCambiato();
    m_Ordavel->setFocus();
}

F_Finestra::~F_Finestra() = default;

void F_Finestra::Riprendi()
{
    Ordavel& componente = m_Ordavel->componente();
    if (!m_Archivio.Vuoto()) {
        componente.LeggiProprieta(m_Archivio);
    }
    UsaImpostazioni(LeggiImpostazioni(m_Archivio));
    if (!restoreGeometry(m_Archivio.Valore(kGeometria).toByteArray())) {
        resize(sizeHint().boundedTo(screen()->availableSize() * kParteSchermo));
    }
    restoreState(m_Archivio.Valore(kStato).toByteArray());
    RiportaSulloSchermo(*this);
}

/// Another folder of temporary files is taken before the old one is given back.
void F_Finestra::UsaImpostazioni(const Impostazioni& impostazioni)
{
    if (!m_Lavoro || m_Lavoro->Base() != impostazioni.sPercorsoTemp) {
        m_Lavoro = std::make_unique<CartellaLavoro>(impostazioni.sPercorsoTemp);
    }
    ApplicaImpostazioni(impostazioni, m_Lavoro->Path(), *m_Ordavel);
}

/// The toolbar can change the engine; all else changes here alone.
Impostazioni F_Finestra::PresentiImpostazioni() const
{
    Impostazioni impostazioni = LeggiImpostazioni(m_Archivio);
    impostazioni.bMotoreEsterno = m_Ordavel->motoreSviluppo() == OrdavelWidget::MotoreSviluppo::esterno;
    return impostazioni;
}

void F_Finestra::Conserva()
{
    const Impostazioni impostazioni = PresentiImpostazioni();
    m_Ordavel->componente().ScriviProprieta(m_Archivio);
    // Over the folder that this run works in, and others do not.
    ScriviImpostazioni(impostazioni, m_Archivio);
    m_Archivio.Poni(kGeometria, saveGeometry());
    m_Archivio.Poni(kStato, saveState());
    if (!m_Archivio.Salva()) {
        MostraGuasto();
    }
}

void F_Finestra::MostraGuasto()
{
    if (const QString sGuasto = m_Archivio.Guasto(); !sGuasto.isEmpty()) {
        Avvisa(sGuasto);
    }
}

void F_Finestra::Avvisa(const QString& sTesto)
{
    m_Piattaforma.MostraMessaggio(
        {.icona = eIcona::avviso, .sTitolo = {}, .sTesto = Testo(sTesto), .pulsanti = ePulsanti::ok});
}

QString F_Finestra::NomeSistema() const
{
    const QString sFile = Testo(m_Ordavel->componente().FileSistema());
    return sFile.isEmpty() ? QStringLiteral("Senza nome") : QFileInfo(sFile).fileName();
}

void F_Finestra::SistemaCambiato()
{
    const Ordavel& componente = m_Ordavel->componente();
    setWindowTitle(NomeSistema() + QStringLiteral("[*] - Ordavel"));
    setWindowModified(DaSalvare());
    const QString sFile = Testo(componente.FileSistema());
    if (sFile != m_sUltimo && !componente.Modificato() && EUnSistema(sFile)) {
        m_sUltimo = sFile;
        m_Recenti.Aggiungi(sFile);
    }
}

void F_Finestra::CorsaCambiata(bool bInCorso)
{
    for (QAction* azione : m_aFerme) {
        azione->setEnabled(!bInCorso);
    }
}

bool F_Finestra::Apri(const QString& sFile)
{
    if (m_Ordavel->inCorso()) {
        return false;
    }
    if (!QFileInfo(sFile).isFile()) {
        m_Recenti.Togli(sFile);
        Avvisa(QStringLiteral("Il file non esiste: ") + sFile);
        return false;
    }
    const QString sIntero = QFileInfo(sFile).absoluteFilePath();
    if (!m_Ordavel->apriFile(sIntero) || !EUnSistema(sIntero)) {
        return false;
    }
    m_sUltimo = sIntero;
    m_Recenti.Aggiungi(sIntero);
    SistemaCambiato();
    return true;
}

void F_Finestra::Stampa(eStampa come, const QString& sGioco)
{
    if (!StampaColonne(come, m_Ordavel->componente(), sGioco, m_Piattaforma, this)) {
        Avvisa(QStringLiteral("Non ci sono colonne da stampare"));
    }
}

void F_Finestra::closeEvent(QCloseEvent* evento)
{
    bool bChiudi = false;
    m_Legami.Protetto([&] {
        bChiudi = PuoChiudersi();
        if (bChiudi) {
            Conserva();
        }
    });
    evento->setAccepted(bChiudi);
}

/// A window in front, as that of a reduction, has the first word.
bool F_Finestra::PuoChiudersi()
{
    if (QGuiApplication::modalWindow() != nullptr) {
        m_Piattaforma.Beep();
        return false;
    }
    if (m_Ordavel->inCorso()) {
        ChiediInterruzione();
        return false;
    }
    // Numbers that are just being chosen are a change once their selector is left.
    if (auto* numeri = m_Ordavel->findChild<QAction*>("SelNumeri"); numeri->isChecked()) {
        numeri->trigger();
    }
    if (!DaSalvare()) {
        return true;
    }
    const eChiusura risposta = ChiediChiusura();
    return risposta == eChiusura::nonSalvare || (risposta == eChiusura::salva && Salva());
}

bool F_Finestra::DaSalvare() const
{
    return m_Ordavel->componente().Modificato() || !m_Ordavel->annullamenti()->isClean();
}

F_Finestra::eChiusura F_Finestra::ChiediChiusura()
{
    QMessageBox finestra(this);
    finestra.setIcon(QMessageBox::Warning);
    finestra.setWindowTitle(QStringLiteral("Ordavel"));
    finestra.setTextFormat(Qt::PlainText);
    finestra.setText(
        QStringLiteral("Il sistema «%1» è stato modificato.\nSalvare le modifiche?").arg(NomeSistema()));
    const QPushButton* salva = finestra.addButton(QStringLiteral("&Salva"), QMessageBox::AcceptRole);
    const QPushButton* nonSalvare =
        finestra.addButton(QStringLiteral("&Non salvare"), QMessageBox::DestructiveRole);
    QPushButton* annulla = finestra.addButton(QStringLiteral("&Annulla"), QMessageBox::RejectRole);
    finestra.setEscapeButton(annulla);
    finestra.exec();
    if (finestra.clickedButton() == salva) {
        return eChiusura::salva;
    }
    return finestra.clickedButton() == nonSalvare ? eChiusura::nonSalvare : eChiusura::annulla;
}

bool F_Finestra::Salva()
{
    Ordavel& componente = m_Ordavel->componente();
    std::string sFile = componente.FileSistema();
    return componente.Salva(sFile, true) && !componente.Modificato();
}

/// An export has no stop command of its own that asks; a run that is only being prepared would not hear it.
void F_Finestra::ChiediInterruzione()
{
    Ordavel& componente = m_Ordavel->componente();
    if (!componente.Controlli().PanPerc.Visibile.Valore()) {
        const bool bFerma = componente.Controlli().Toolbar2.Pulsante("Stop").Abilitato.Valore();
        return bFerma ? componente.Stop() : m_Piattaforma.Beep();
    }
    if (m_Piattaforma.MostraMessaggio({.icona = eIcona::domanda,
                                       .sTitolo = {},
                                       .sTesto = "Interrompere ?",
                                       .pulsanti = ePulsanti::siNo}) == eRisposta::si) {
        componente.AnnullaExport();
    }
}

void F_Finestra::dragEnterEvent(QDragEnterEvent* evento)
{
    if (!m_Ordavel->inCorso() && !SistemaTrascinato(*evento->mimeData()).isEmpty()) {
        evento->acceptProposedAction();
    }
}

void F_Finestra::dropEvent(QDropEvent* evento)
{
    const QString sFile = SistemaTrascinato(*evento->mimeData());
    evento->acceptProposedAction();
    // Whoever let it go waits for the answer, and opening may ask a question.
    QTimer::singleShot(0, this, [this, sFile] { m_Legami.Protetto([&] { Apri(sFile); }); });
}

} // namespace ordavel::desktop
