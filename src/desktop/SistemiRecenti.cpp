// SistemiRecenti.cpp - the systems that were opened or saved lately.

#include "desktop/SistemiRecenti.hpp"

#include "desktop/ArchivioImpostazioni.hpp"

#include <QFileInfo>

namespace ordavel::desktop {

namespace {

QString Chiave()
{
    return QStringLiteral("SistemiRecenti");
}

} // namespace

QStringList SistemiRecenti::Elenco() const
{
    return m_Archivio.Valore(Chiave()).toStringList().mid(0, kMassimo);
}

void SistemiRecenti::Aggiungi(const QString& sFile)
{
    const QString sIntero = QFileInfo(sFile).absoluteFilePath();
    QStringList aFile = Elenco();
    aFile.removeAll(sIntero);
    aFile.prepend(sIntero);
    Scrivi(aFile.mid(0, kMassimo));
}

void SistemiRecenti::Togli(const QString& sFile)
{
    QStringList aFile = Elenco();
    aFile.removeAll(sFile);
    Scrivi(aFile);
}

void SistemiRecenti::Svuota()
{
    Scrivi({});
}

void SistemiRecenti::Scrivi(const QStringList& aFile)
{
    m_Archivio.Poni(Chiave(), aFile);
}

} // namespace ordavel::desktop
