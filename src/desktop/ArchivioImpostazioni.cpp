// ArchivioImpostazioni.cpp - the program's settings in a file of the user's.

#include "desktop/ArchivioImpostazioni.hpp"

#include <QFile>
#include <QStandardPaths>

namespace ordavel::desktop {

QString ArchivioImpostazioni::FileUtente()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
           QStringLiteral("/ordavel/ordavel.ini");
}

ArchivioImpostazioni::ArchivioImpostazioni(const QString& sFile) : m_Impostazioni(sFile, QSettings::IniFormat)
{
    // What is wrong shows only once the keys are looked at.
    if (!Vuoto() && m_Impostazioni.status() == QSettings::FormatError) {
        QFile::copy(sFile, sFile + QStringLiteral(".rovinato"));
    }
}

bool ArchivioImpostazioni::Salva()
{
    m_Impostazioni.sync();
    return m_Impostazioni.status() != QSettings::AccessError;
}

QString ArchivioImpostazioni::Guasto() const
{
    switch (m_Impostazioni.status()) {
    case QSettings::AccessError:
        return QStringLiteral("Le impostazioni non si possono conservare in ") + m_Impostazioni.fileName();
    case QSettings::FormatError:
        return QStringLiteral("Il file delle impostazioni è rovinato, e vale quel che se ne legge: ") +
               m_Impostazioni.fileName();
    case QSettings::NoError:
        break;
    }
    return {};
}

} // namespace ordavel::desktop
