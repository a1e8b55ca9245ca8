// Programma.cpp - the program from its command line to its end.

#include "desktop/Programma.hpp"

#include "desktop/ArchivioImpostazioni.hpp"
#include "desktop/F_Finestra.hpp"

#include <QApplication>
#include <QCommandLineParser>
#include <QIcon>
#include <QLibraryInfo>
#include <QLocale>
#include <QTimer>
#include <QTranslator>

#include <csignal>
#include <iostream>

namespace ordavel::desktop {

namespace {

constexpr int kUscitaUso = 2;

/// The texts of Qt itself: standard buttons, choices of files, printing.
void ParlaItaliano(QTranslator& testi)
{
    QLocale::setDefault(QLocale(QLocale::Italian, QLocale::Italy));
    if (testi.load(QStringLiteral("qtbase_it"), QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
        QCoreApplication::installTranslator(&testi);
    }
}

QString Aiuto()
{
    return QStringLiteral("Uso: ordavel-desktop [opzioni] [sistema.sic]\n\n"
                          "Apre la finestra di Ordavel, con il sistema nominato.\n\n"
                          "Opzioni:\n"
                          "  -h, --help                 mostra questo aiuto\n"
                          "  -v, --version              mostra la versione\n"
                          "      --impostazioni FILE    legge e conserva le impostazioni in FILE\n\n"
                          "Per esempio:  ordavel-desktop esempi/superenalotto.sic\n");
}

Richiesta Errata(const QString& sPerche)
{
    return {.sFile = {},
            .sImpostazioni = {},
            .sTesto = sPerche + QStringLiteral("\nPer vedere come si usa:  ordavel-desktop --help\n"),
            .bErrata = true};
}

/// What needs no window, and so no display.
int Stampa(const Richiesta& richiesta)
{
    (richiesta.bErrata ? std::cerr : std::cout) << richiesta.sTesto.toStdString();
    return richiesta.bErrata ? kUscitaUso : 0;
}

QStringList Testi(int nArgomenti, char** aArgomenti)
{
    QStringList aTesti;
    for (int i = 0; i < nArgomenti; ++i) {
        aTesti.append(QString::fromLocal8Bit(aArgomenti[i]));
    }
    return aTesti;
}

} // namespace

Richiesta LeggiArgomenti(const QStringList& aArgomenti)
{
    const QCommandLineOption aiuto(QStringList{"h", "help"});
    const QCommandLineOption versione(QStringList{"v", "version"});
    const QCommandLineOption impostazioni("impostazioni", {}, "FILE", ArchivioImpostazioni::FileUtente());
    QCommandLineParser lettore;
    lettore.addOptions({aiuto, versione, impostazioni});
    if (!lettore.parse(aArgomenti)) {
        return Errata(lettore.errorText());
    }
    if (lettore.positionalArguments().size() > 1) {
        return Errata(QStringLiteral("Si apre un sistema solo alla volta."));
    }
    Richiesta richiesta;
    richiesta.sFile = lettore.positionalArguments().value(0);
    richiesta.sImpostazioni = lettore.value(impostazioni);
    if (lettore.isSet(aiuto)) {
        richiesta.sTesto = Aiuto();
    } else if (lettore.isSet(versione)) {
        richiesta.sTesto = QStringLiteral("ordavel-desktop " ORDAVEL_VERSIONE "\n");
    }
    return richiesta;
}

int Esegui(int nArgomenti, char** aArgomenti)
{
    // A write beyond a limit fails then, and is told, instead of ending the program.
    std::signal(SIGXFSZ, SIG_IGN);
    if (const Richiesta subito = LeggiArgomenti(Testi(nArgomenti, aArgomenti));
        !subito.sTesto.isEmpty() && !subito.bErrata) {
        return Stampa(subito);
    }
    const QApplication applicazione(nArgomenti, aArgomenti);
    QCoreApplication::setApplicationName(QStringLiteral("Ordavel"));
    QCoreApplication::setApplicationVersion(QStringLiteral(ORDAVEL_VERSIONE));
    QGuiApplication::setDesktopFileName(QStringLiteral("ordavel"));
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/desktop/ordavel.svg")));
    QTranslator testi;
    ParlaItaliano(testi);
    // The options that Qt itself takes are gone now.
    const Richiesta richiesta = LeggiArgomenti(QCoreApplication::arguments());
    if (!richiesta.sTesto.isEmpty()) {
        return Stampa(richiesta);
    }
    ArchivioImpostazioni archivio(richiesta.sImpostazioni);
    F_Finestra finestra(archivio);
    finestra.show();
    QTimer::singleShot(0, &finestra, [&] {
        finestra.MostraGuasto();
        if (!richiesta.sFile.isEmpty()) {
            finestra.Apri(richiesta.sFile);
        }
    });
    return QApplication::exec();
}

} // namespace ordavel::desktop
