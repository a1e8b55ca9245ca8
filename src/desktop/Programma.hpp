// Programma.hpp - the program from its command line to its end.

#pragma once

#include <QString>
#include <QStringList>

namespace ordavel::desktop {

/// What the command line asks for.
struct Richiesta {
    QString sFile;         ///< system to open; empty for none
    QString sImpostazioni; ///< file of the settings
    QString sTesto;        ///< to be printed, after which the program ends; empty for none
    bool bErrata = false;  ///< sTesto tells what is wrong
};

/// Takes    aArgomenti   the program's name first
[[nodiscard]] Richiesta LeggiArgomenti(const QStringList& aArgomenti);

/// Exit codes: 0 done, 2 wrong usage.
[[nodiscard]] int Esegui(int nArgomenti, char** aArgomenti);

} // namespace ordavel::desktop
