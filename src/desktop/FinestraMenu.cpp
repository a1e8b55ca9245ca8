// FinestraMenu.cpp - the menus of the window, and what stands in them.

#include "ordavel/OrdavelWidget.hpp"

#include "core/ModProcessore.hpp"
#include "desktop/ArchivioImpostazioni.hpp"
#include "desktop/F_Finestra.hpp"
#include "desktop/F_Impostazioni.hpp"
#include "desktop/F_Manuale.hpp"

#include <QAction>
#include <QApplication>
#include <QFileInfo>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>

#include <array>

namespace ordavel::desktop {

using qt::Testo;

void F_Finestra::CreaMenu()
{
    m_Ordavel->riempiMenu(menuBar());
    CreaMenuFile();
    CreaMenuAiuto();
}

QAction* F_Finestra::NuovaAzione(QMenu* menu, const QString& sNome, const QString& sTesto,
                                 const std::function<void()>& azione)
{
    QAction* voce = menu->addAction(sTesto);
    voce->setObjectName(sNome);
    m_Legami.Al(voce, &QAction::triggered, azione);
    return voce;
}

void F_Finestra::CreaMenuFile()
{
    auto* menu = new QMenu(QStringLiteral("&File"), this);
    menu->setObjectName("MenuFile");
    const QList<QAction*> aTitoli = menuBar()->actions();
    menuBar()->insertMenu(aTitoli.isEmpty() ? nullptr : aTitoli.constFirst(), menu);
    m_MenuRecenti = menu->addMenu(QStringLiteral("Sistemi &recenti"));
    m_MenuRecenti->setObjectName("MenuRecenti");
    m_MenuRecenti->setToolTipsVisible(true);
    m_Legami.Al(m_MenuRecenti, &QMenu::aboutToShow, [this] { RiempiRecenti(); });
    m_aFerme.append(m_MenuRecenti->menuAction());
    menu->addSeparator();
    CreaMenuStampa(menu);
    menu->addSeparator();
    QAction* impostazioni = NuovaAzione(menu, "Impostazioni", QStringLiteral("&Impostazioni…"),
                                        [this] { ModificaImpostazioni(); });
    impostazioni->setShortcut(QKeySequence(QStringLiteral("Ctrl+,")));
    impostazioni->setMenuRole(QAction::PreferencesRole);
    m_aFerme.append(impostazioni);
    menu->addSeparator();
    QAction* esci = NuovaAzione(menu, "Esci", QStringLiteral("&Esci"), [this] { close(); });
    esci->setShortcut(QKeySequence(QStringLiteral("Ctrl+Q")));
    esci->setMenuRole(QAction::QuitRole);
}

void F_Finestra::CreaMenuStampa(QMenu* menu)
{
    struct Voce {
        const char* sNome;
        const char* sTesto;
        eStampa come;
    };
    constexpr std::array kVoci = std::to_array<Voce>({
        {"AnteprimaStampa", "A&nteprima di stampa…", eStampa::anteprima},
        {"Stampa", "S&tampa…", eStampa::stampante},
        {"EsportaPdf", "Esporta in &PDF…", eStampa::pdf},
    });
    for (const Voce& voce : kVoci) {
        m_aFerme.append(NuovaAzione(menu, voce.sNome, QString::fromUtf8(voce.sTesto),
                                    [this, come = voce.come] { Stampa(come, {}); }));
    }
}

void F_Finestra::CreaMenuAiuto()
{
    QMenu* menu = menuBar()->addMenu(QStringLiteral("&Aiuto"));
    menu->setObjectName("MenuAiuto");
    NuovaAzione(menu, "Manuale", QStringLiteral("&Manuale"), [this] {
        MostraManuale();
    })->setShortcut(QKeySequence(QKeySequence::HelpContents));
    NuovaAzione(menu, "Informazioni", QStringLiteral("&Informazioni su Ordavel"), [this] {
        MostraInformazioni();
    })->setMenuRole(QAction::AboutRole);
}

void F_Finestra::RiempiRecenti()
{
    m_MenuRecenti->clear();
    const QStringList aFile = m_Recenti.Elenco();
    for (qsizetype i = 0; i < aFile.size(); ++i) {
        const QString& sFile = aFile.at(i);
        const QString sNome = QFileInfo(sFile).fileName().replace(u'&', QStringLiteral("&&"));
        QAction* voce = NuovaAzione(m_MenuRecenti, QStringLiteral("Recente%1").arg(i + 1),
                                    QStringLiteral("&%1  %2").arg((i + 1) % 10).arg(sNome),
                                    [this, sFile] { Apri(sFile); });
        voce->setToolTip(sFile);
    }
    if (aFile.isEmpty()) {
        m_MenuRecenti->addAction(QStringLiteral("Nessuno"))->setEnabled(false);
        return;
    }
    m_MenuRecenti->addSeparator();
    NuovaAzione(m_MenuRecenti, "SvuotaRecenti", QStringLiteral("&Svuota l'elenco"),
                [this] { m_Recenti.Svuota(); });
}

void F_Finestra::ModificaImpostazioni()
{
    F_Impostazioni finestra(PresentiImpostazioni(), m_Piattaforma, this);
    if (finestra.exec() == QDialog::Accepted) {
        ScriviImpostazioni(finestra.Scelte(), m_Archivio);
        UsaImpostazioni(finestra.Scelte());
        Conserva();
    }
}

void F_Finestra::MostraManuale()
{
    auto* manuale = findChild<F_Manuale*>();
    if (manuale == nullptr) {
        manuale = new F_Manuale(this);
    }
    manuale->show();
    manuale->raise();
    manuale->activateWindow();
}

void F_Finestra::MostraInformazioni()
{
    const auto sNucleo = NomeNucleo(NucleoMigliore());
    QMessageBox::about(
        this, QStringLiteral("Informazioni su Ordavel"),
        QStringLiteral("<h3>Ordavel %1</h3><p>Sistemi condizionati per i giochi del lotto.</p>"
                       "<p>Qt %2, motore «%3».</p>")
            .arg(QApplication::applicationVersion(), QString::fromLatin1(qVersion()), Testo(sNucleo)));
}

} // namespace ordavel::desktop
