// PiattaformaQt.cpp - the desktop that Qt gives.

#include "qt/PiattaformaQt.hpp"

#include "ordavel/VistaCondizioni.hpp"

#include "qt/CreaVista.hpp"
#include "qt/Legami.hpp"
#include "qt/VistaDialogo.hpp"

#include <QApplication>
#include <QCursor>
#include <QFileDialog>
#include <QFileInfo>
#include <QFontMetricsF>
#include <QList>
#include <QMessageBox>
#include <QPushButton>
#include <QTime>

#include <array>

namespace ordavel::qt {

namespace {

constexpr std::array kIcone = {QMessageBox::NoIcon, QMessageBox::Critical, QMessageBox::Warning,
                               QMessageBox::Information, QMessageBox::Question};

/// "File colonne (*.col)|*.col" as Qt wants it: the description with the patterns in brackets.
QString FiltroQt(std::string_view sFiltro)
{
    const auto nBarra = sFiltro.find('|');
    QString sDescrizione = Testo(sFiltro.substr(0, nBarra));
    if (nBarra == std::string_view::npos || sDescrizione.contains("(*")) {
        return sDescrizione;
    }
    return sDescrizione + " (" + Testo(sFiltro.substr(nBarra + 1)) + ")";
}

/// Whoever waits for the user is not busy: the pointer is its own for so long, whatever runs behind.
class PuntatoreLibero {
public:
    PuntatoreLibero()
    {
        for (const QCursor* cursore = QApplication::overrideCursor(); cursore != nullptr;
             cursore = QApplication::overrideCursor()) {
            m_aTolti.append(*cursore);
            QApplication::restoreOverrideCursor();
        }
    }
    PuntatoreLibero(const PuntatoreLibero&) = delete;
    PuntatoreLibero& operator=(const PuntatoreLibero&) = delete;
    ~PuntatoreLibero()
    {
        while (!m_aTolti.isEmpty()) {
            QApplication::setOverrideCursor(m_aTolti.takeLast());
        }
    }

private:
    QList<QCursor> m_aTolti;
};

} // namespace

PiattaformaQt::PiattaformaQt(QWidget* padre, FabbricaStatistica statistica)
    : m_Padre(padre),
      m_FabbricaStatistica(std::move(statistica)),
      m_Carattere(Testo(kCarattereGriglia), QApplication::font().pointSize())
{
    m_Carattere.setStyleHint(QFont::Monospace);
}

PiattaformaQt::~PiattaformaQt()
{
    for (const auto& [dialogo, vista] : m_aAccanto) {
        delete vista.data();
    }
}

QWidget* PiattaformaQt::Davanti() const
{
    if (QWidget* modale = QApplication::activeModalWidget()) {
        return modale;
    }
    // A box under a window that stays on top could not be answered.
    for (const auto& [dialogo, vista] : m_aAccanto) {
        if (!vista.isNull() && vista->isVisible() &&
            vista->windowFlags().testFlag(Qt::WindowStaysOnTopHint)) {
            return vista;
        }
    }
    return m_Padre == nullptr ? nullptr : m_Padre->window();
}

eRisposta PiattaformaQt::MostraMessaggio(const Messaggio& messaggio)
{
    const PuntatoreLibero puntatore;
    QMessageBox finestra(Davanti());
    finestra.setIcon(kIcone.at(static_cast<std::size_t>(messaggio.icona)));
    finestra.setWindowTitle(messaggio.sTitolo.empty() ? QStringLiteral("Ordavel") : Testo(messaggio.sTitolo));
    finestra.setTextFormat(Qt::PlainText);
    finestra.setText(Testo(messaggio.sTesto));
    if (messaggio.pulsanti == ePulsanti::ok) {
        finestra.addButton("&OK", QMessageBox::AcceptRole);
        finestra.exec();
        return eRisposta::ok;
    }
    const QPushButton* si = finestra.addButton("&Sì", QMessageBox::YesRole);
    QPushButton* no = finestra.addButton("&No", QMessageBox::NoRole);
    finestra.setEscapeButton(no);
    finestra.exec();
    return finestra.clickedButton() == si ? eRisposta::si : eRisposta::no;
}

std::string PiattaformaQt::ChiediFile(const RichiestaFile& richiesta, bool bSalva)
{
    const PuntatoreLibero puntatore;
    QFileDialog finestra(Davanti(), Testo(richiesta.sTitolo));
    finestra.setAcceptMode(bSalva ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    finestra.setFileMode(bSalva ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
    finestra.setNameFilters({FiltroQt(richiesta.sFiltro), "Tutti i file (*)"});
    finestra.setDefaultSuffix(Testo(richiesta.sEstensione).remove('.'));
    QString& sCartella = m_aCartelle[richiesta.sEstensione];
    if (!richiesta.sCartella.empty()) {
        sCartella = Testo(richiesta.sCartella);
    }
    finestra.setDirectory(sCartella);
    if (richiesta.sNomeFile.find('*') == std::string::npos) {
        finestra.selectFile(Testo(richiesta.sNomeFile));
    }
    if (finestra.exec() != QDialog::Accepted || finestra.selectedFiles().isEmpty()) {
        return {};
    }
    const QString sFile = finestra.selectedFiles().constFirst();
    sCartella = QFileInfo(sFile).absolutePath();
    return Testo(sFile);
}

std::string PiattaformaQt::DialogoApri(const RichiestaFile& richiesta)
{
    return m_sApri.empty() ? ChiediFile(richiesta, false) : std::exchange(m_sApri, {});
}

std::string PiattaformaQt::DialogoSalva(const RichiestaFile& richiesta)
{
    return ChiediFile(richiesta, true);
}

std::string PiattaformaQt::ScegliCartella(const std::string& sCartella)
{
    return Testo(QFileDialog::getExistingDirectory(Davanti(), "Scegli la cartella", Testo(sCartella)));
}

void PiattaformaQt::MostraModale(Dialogo& dialogo)
{
    const std::unique_ptr<VistaDialogo> vista = CreaVista(dialogo, *this, Davanti());
    dialogo.Mostra();
    if (dialogo.Visibile.Valore()) {
        vista->exec();
        dialogo.Visibile.Poni(false);
    }
}

void PiattaformaQt::MostraAccanto(Dialogo& dialogo)
{
    QPointer<VistaDialogo>& vista = m_aAccanto[&dialogo];
    if (vista.isNull() || vista->Finita()) {
        vista = CreaVista(dialogo, *this, m_Padre == nullptr ? nullptr : m_Padre->window()).release();
        vista->setAttribute(Qt::WA_DeleteOnClose);
    }
    dialogo.Mostra();
    vista->show();
    vista->raise();
    vista->activateWindow();
}

void PiattaformaQt::Beep()
{
    QApplication::beep();
}

double PiattaformaQt::LarghezzaTesto(std::string_view sTesto) const
{
    return QFontMetricsF(m_Carattere).horizontalAdvance(Testo(sTesto));
}

double PiattaformaQt::AltezzaTesto(std::string_view /*sTesto*/) const
{
    return QFontMetricsF(m_Carattere).height();
}

std::unique_ptr<Statistica> PiattaformaQt::CreaStatistica()
{
    return m_FabbricaStatistica ? m_FabbricaStatistica(*this) : Piattaforma::CreaStatistica();
}

void PiattaformaQt::LasciaEventi()
{
    QCoreApplication::processEvents();
}

void PiattaformaQt::PuntatoreOccupato(bool bOccupato)
{
    if (bOccupato) {
        QApplication::setOverrideCursor(Qt::BusyCursor);
    } else {
        QApplication::restoreOverrideCursor();
    }
}

float PiattaformaQt::SecondiDaMezzanotte()
{
    return static_cast<float>(QTime::currentTime().msecsSinceStartOfDay()) / 1000.0F;
}

} // namespace ordavel::qt
