// OrdavelWidget.cpp - the widget of the component: its life, its settings.

#include "ordavel/OrdavelWidget.hpp"

#include "qt/ArchivioQSettings.hpp"
#include "qt/FacciaOrdavel.hpp"

#include <QMenuBar>

namespace ordavel::qt {

namespace {

constexpr int kClassePreset = 5;
constexpr int kThreadPreset = 5;

std::int16_t Corto(int n)
{
    return static_cast<std::int16_t>(qBound(-32768, n, 32767));
}

} // namespace

OrdavelWidget::OrdavelWidget(QWidget* parent) : QWidget(parent), m_p(std::make_unique<Privato>(*this))
{
    setObjectName("ordavel");
    setAccessibleName("Sistema condizionato");
}

OrdavelWidget::~OrdavelWidget() = default;

Ordavel& OrdavelWidget::componente() const
{
    return m_p->m_Ordavel;
}

QUndoStack* OrdavelWidget::annullamenti() const
{
    return m_p->m_Annullamenti.Pila();
}

void OrdavelWidget::riempiMenu(QMenuBar* barra)
{
    m_p->m_Comandi.RiempiMenu(barra);
}

bool OrdavelWidget::apriFile(const QString& sFile)
{
    const std::uint32_t nPrima = m_p->m_Ordavel.Sistemi();
    m_p->m_Piattaforma.RispondiApri(Testo(sFile));
    m_p->m_Comandi.Azione("Open")->trigger();
    // Whoever keeps the changes is not asked for a file.
    m_p->m_Piattaforma.RispondiApri({});
    return m_p->m_Ordavel.Sistemi() != nPrima;
}

bool OrdavelWidget::inCorso() const
{
    return m_p->m_Ordavel.InCorso();
}

void OrdavelWidget::setModoProgetto(bool bProgetto)
{
    m_p->m_bProgetto = bProgetto;
}

bool OrdavelWidget::saveProperties(QSettings& impostazioni) const
{
    ArchivioQSettings archivio(impostazioni);
    m_p->m_Ordavel.ScriviProprieta(archivio);
    impostazioni.sync();
    return impostazioni.status() == QSettings::NoError;
}

bool OrdavelWidget::loadProperties(QSettings& impostazioni)
{
    m_p->m_Ordavel.LeggiProprieta(ArchivioQSettings(impostazioni));
    return impostazioni.status() == QSettings::NoError;
}

void OrdavelWidget::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    m_p->m_Ordavel.Resize();
}

QSize OrdavelWidget::sizeHint() const
{
    return QWidget::sizeHint().expandedTo({980, 640});
}

QSize OrdavelWidget::minimumSizeHint() const
{
    return {fontMetrics().horizontalAdvance('W') * 30, fontMetrics().height() * 20};
}

int OrdavelWidget::classe() const
{
    return m_p->m_Ordavel.classe();
}

void OrdavelWidget::setClasse(int nClasse)
{
    m_p->Protetto([&] { m_p->m_Ordavel.PoniClasse(Corto(nClasse)); });
}

void OrdavelWidget::resetClasse()
{
    setClasse(kClassePreset);
}

int OrdavelWidget::numeroThreadsSviluppo() const
{
    return m_p->m_Ordavel.NumeroThreadsSviluppo();
}

void OrdavelWidget::setNumeroThreadsSviluppo(int nThread)
{
    if (nThread != numeroThreadsSviluppo()) {
        m_p->Protetto([&] { m_p->m_Ordavel.PoniNumeroThreadsSviluppo(Corto(nThread)); });
    }
}

void OrdavelWidget::resetNumeroThreadsSviluppo()
{
    setNumeroThreadsSviluppo(kThreadPreset);
}

OrdavelWidget::MotoreSviluppo OrdavelWidget::motoreSviluppo() const
{
    return static_cast<MotoreSviluppo>(m_p->m_Ordavel.MotoreSviluppo());
}

void OrdavelWidget::setMotoreSviluppo(MotoreSviluppo motore)
{
    m_p->m_Ordavel.PoniMotoreSviluppo(static_cast<eMotoreSviluppo>(motore));
    m_p->m_Ordavel.SelezionaComboMotSviluppo();
    m_p->SegnalaMotore();
}

void OrdavelWidget::resetMotoreSviluppo()
{
    setMotoreSviluppo(MotoreSviluppo::interno);
}

void OrdavelWidget::resetPercorsoSalvaColonne()
{
    m_p->AzzeraPercorso(&Privato::m_sSalvaProgetto, &OrdavelWidget::percorsoSalvaColonneChanged);
}

void OrdavelWidget::resetPercorsoTemp()
{
    m_p->AzzeraPercorso(&Privato::m_sTempProgetto, &OrdavelWidget::percorsoTempChanged);
}

void OrdavelWidget::resetDirSistemi()
{
    m_p->AzzeraPercorso(&Privato::m_sSistemiProgetto, &OrdavelWidget::dirSistemiChanged);
}

QString OrdavelWidget::percorsoSalvaColonne() const
{
    return m_p->Percorso(m_p->m_sSalvaProgetto, m_p->m_Ordavel.PercorsoSalvaColonne());
}

void OrdavelWidget::setPercorsoSalvaColonne(const QString& sPercorso)
{
    m_p->PoniPercorso(&Privato::m_sSalvaProgetto, &Ordavel::PoniPercorsoSalvaColonne, sPercorso,
                      &OrdavelWidget::percorsoSalvaColonneChanged);
}

QString OrdavelWidget::percorsoTemp() const
{
    return m_p->Percorso(m_p->m_sTempProgetto, m_p->m_Ordavel.PercorsoTemp());
}

void OrdavelWidget::setPercorsoTemp(const QString& sPercorso)
{
    m_p->PoniPercorso(&Privato::m_sTempProgetto, &Ordavel::PoniPercorsoTemp, sPercorso,
                      &OrdavelWidget::percorsoTempChanged);
}

QString OrdavelWidget::dirSistemi() const
{
    return m_p->Percorso(m_p->m_sSistemiProgetto, m_p->m_Ordavel.DirSistemi());
}

void OrdavelWidget::setDirSistemi(const QString& sPercorso)
{
    m_p->PoniPercorso(&Privato::m_sSistemiProgetto, &Ordavel::PoniDirSistemi, sPercorso,
                      &OrdavelWidget::dirSistemiChanged);
}

} // namespace ordavel::qt
