// CartellaLavoro.cpp - the folder of temporary files of one running program.

#include "desktop/CartellaLavoro.hpp"

#include <QDir>

namespace ordavel::desktop {

CartellaLavoro::CartellaLavoro(const QString& sBase)
    : m_sBase(sBase), m_Blocco(sBase + QStringLiteral("/.ordavel.lock"))
{
    QDir().mkpath(sBase);
    m_Blocco.setStaleLockTime(0);
    // A folder that cannot be written is left to the component, which says so.
    if (!m_Blocco.tryLock() && m_Blocco.error() == QLockFile::LockFailedError) {
        m_Propria.emplace(sBase + QStringLiteral("/sessione-XXXXXX"));
        if (!m_Propria->isValid()) {
            m_Propria.reset();
        }
    }
}

} // namespace ordavel::desktop
