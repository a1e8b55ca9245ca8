// Impostazioni.cpp - what a user sets once, kept and given to the component.

#include "desktop/Impostazioni.hpp"

#include "ordavel/Ordavel.hpp"
#include "ordavel/OrdavelWidget.hpp"

#include "core/ModGiochi.hpp"
#include "desktop/ArchivioImpostazioni.hpp"
#include "qt/Legami.hpp"

#include <QStandardPaths>

#include <algorithm>

namespace ordavel::desktop {

using qt::OrdavelWidget;
using qt::Testo;

namespace {

constexpr std::array<void (OrdavelWidget::*)(const QString&), kArchivi> kPoniArchivio{
    &OrdavelWidget::setFileBdLotto, &OrdavelWidget::setFileBd10Lotto, &OrdavelWidget::setFileBd10Lotto5M,
    &OrdavelWidget::setFileBdSE, &OrdavelWidget::setFileBdWF};

QString ChiaveArchivio(std::size_t nGioco)
{
    return Testo(ProfiliGioco()[nGioco].sArchivio);
}

void LeggiTesto(const ArchivioImpostazioni& archivio, const QString& sChiave, QString& sTesto)
{
    if (const QString sLetto = archivio.Valore(sChiave).toString(); !sLetto.isEmpty()) {
        sTesto = sLetto;
    }
}

} // namespace

Impostazioni Predefinite()
{
    const QString sDocumenti =
        QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation) + QStringLiteral("/Ordavel");
    Impostazioni impostazioni;
    impostazioni.sDirSistemi = sDocumenti + QStringLiteral("/Sistemi");
    impostazioni.sPercorsoSalvaColonne = sDocumenti + QStringLiteral("/Colonne");
    impostazioni.sPercorsoTemp =
        QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation) + QStringLiteral("/ordavel");
    return impostazioni;
}

Impostazioni LeggiImpostazioni(const ArchivioImpostazioni& archivio)
{
    Impostazioni impostazioni = Predefinite();
    LeggiTesto(archivio, "DirSistemi", impostazioni.sDirSistemi);
    LeggiTesto(archivio, "PercorsoSalvaColonne", impostazioni.sPercorsoSalvaColonne);
    LeggiTesto(archivio, "PercorsoTemp", impostazioni.sPercorsoTemp);
    for (std::size_t i = 0; i < kArchivi; ++i) {
        LeggiTesto(archivio, ChiaveArchivio(i), impostazioni.aArchivi.at(i));
    }
    const int nThread = archivio.Valore("NumeroThreadsSviluppo").toInt();
    impostazioni.nThread = nThread >= 1 ? nThread : impostazioni.nThread;
    impostazioni.bMotoreEsterno =
        archivio.Valore("MotoreSviluppo").toInt() == static_cast<int>(OrdavelWidget::MotoreSviluppo::esterno);
    return impostazioni;
}

void ScriviImpostazioni(const Impostazioni& impostazioni, ArchivioImpostazioni& archivio)
{
    archivio.Poni("DirSistemi", impostazioni.sDirSistemi);
    archivio.Poni("PercorsoSalvaColonne", impostazioni.sPercorsoSalvaColonne);
    archivio.Poni("PercorsoTemp", impostazioni.sPercorsoTemp);
    for (std::size_t i = 0; i < kArchivi; ++i) {
        archivio.Poni(ChiaveArchivio(i), impostazioni.aArchivi.at(i));
    }
    archivio.Poni("NumeroThreadsSviluppo", impostazioni.nThread);
    archivio.Poni("MotoreSviluppo", impostazioni.bMotoreEsterno ? 2 : 1);
}

void ApplicaImpostazioni(const Impostazioni& impostazioni, const QString& sLavoro, OrdavelWidget& ordavel)
{
    for (std::size_t i = 0; i < kArchivi; ++i) {
        (ordavel.*kPoniArchivio.at(i))(impostazioni.aArchivi.at(i));
    }
    ordavel.setDirSistemi(impostazioni.sDirSistemi);
    ordavel.setPercorsoTemp(sLavoro);
    ordavel.setPercorsoSalvaColonne(impostazioni.sPercorsoSalvaColonne);
    ordavel.setNumeroThreadsSviluppo(impostazioni.nThread);
    ordavel.setMotoreSviluppo(impostazioni.bMotoreEsterno ? OrdavelWidget::MotoreSviluppo::esterno
                                                          : OrdavelWidget::MotoreSviluppo::interno);
    ordavel.componente().SelezionaComboMotSviluppo();
}

} // namespace ordavel::desktop
