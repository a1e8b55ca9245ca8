// F_Finestra_prova.cpp - the window: title, opening, recent systems, closing.

#include "FinestraInProva.hpp"
#include "desktop/F_Manuale.hpp"
#include "qt/AnteprimaSchedine.hpp"

#include <QAction>
#include <QCloseEvent>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QFileDialog>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QMimeData>
#include <QPushButton>
#include <QScreen>
#include <QTest>
#include <QTextBrowser>
#include <QUrl>

namespace ordavel::desktop {
namespace {

class FinestraProva : public FinestraInProva {
protected:
    /// Answers the question before closing.
    /// Gives    whether the window may go
    bool Chiudi(const QString& sPulsante)
    {
        bool bChiusa = false;
        EXPECT_TRUE(Quando<QMessageBox>([&](QMessageBox& domanda) { Premi(domanda, sPulsante); },
                                        [&] { bChiusa = Finestra().close(); }));
        return bChiusa;
    }

    static void Premi(const QMessageBox& domanda, const QString& sPulsante)
    {
        for (QAbstractButton* pulsante : domanda.buttons()) {
            if (pulsante->text() == sPulsante) {
                return pulsante->click();
            }
        }
        ADD_FAILURE() << "manca il pulsante " << sPulsante.toStdString();
        domanda.buttons().constFirst()->click();
    }

    bool Lascia(const QString& sFile)
    {
        QMimeData dati;
        dati.setUrls({QUrl::fromLocalFile(sFile)});
        QDragEnterEvent entra({5, 5}, Qt::CopyAction, &dati, Qt::LeftButton, Qt::NoModifier);
        entra.ignore();
        QApplication::sendEvent(&Finestra(), &entra);
        if (entra.isAccepted()) {
            QDropEvent lascia({5, 5}, Qt::CopyAction, &dati, Qt::LeftButton, Qt::NoModifier);
            QApplication::sendEvent(&Finestra(), &lascia);
        }
        return entra.isAccepted();
    }

    QString FileAperto() { return QString::fromStdString(Componente().FileSistema()); }
};

TEST_F(FinestraProva, IlTitoloDiceIlNomeESeEModificato)
{
    EXPECT_EQ(Finestra().windowTitle(), "Senza nome[*] - Ordavel");
    EXPECT_FALSE(Finestra().isWindowModified());
    ASSERT_TRUE(Finestra().Apri(NuovoSistema("mio.sic")));
    EXPECT_EQ(Finestra().windowTitle(), "mio.sic[*] - Ordavel");
    EXPECT_FALSE(Finestra().isWindowModified());
    Modifica();
    EXPECT_TRUE(QTest::qWaitFor([&] { return Finestra().isWindowModified(); }));
    EXPECT_EQ(Finestra().windowTitle(), "mio.sic[*] - Ordavel");
}

TEST_F(FinestraProva, IlSistemaApertoDiventaRecente)
{
    const QString sUno = NuovoSistema("uno.sic");
    const QString sDue = NuovoSistema("due.sic");
    EXPECT_TRUE(Finestra().Apri(sUno));
    EXPECT_TRUE(Finestra().Apri(sDue));
    EXPECT_EQ(Finestra().Recenti().Elenco(), (QStringList{sDue, sUno}));
    auto* menu = Finestra().findChild<QMenu*>("MenuRecenti");
    ASSERT_NE(menu, nullptr);
    Q_EMIT menu->aboutToShow();
    auto* secondo = menu->findChild<QAction*>("Recente2");
    ASSERT_NE(secondo, nullptr);
    EXPECT_EQ(secondo->text(), "&2  uno.sic");
    secondo->trigger();
    EXPECT_EQ(FileAperto(), sUno);
    EXPECT_EQ(Finestra().Recenti().Elenco(), (QStringList{sUno, sDue}));
}

TEST_F(FinestraProva, IlRecenteCheMancaSiDiceEEsce)
{
    const QString sUno = NuovoSistema("uno.sic");
    ASSERT_TRUE(Finestra().Apri(sUno));
    ASSERT_TRUE(QFile::remove(sUno));
    EXPECT_TRUE(Quando<QMessageBox>(
        [](QMessageBox& avviso) {
            EXPECT_TRUE(avviso.text().startsWith("Il file non esiste: "));
            avviso.close();
        },
        [&] { EXPECT_FALSE(Finestra().Apri(sUno)); }));
    EXPECT_TRUE(Finestra().Recenti().Elenco().isEmpty());
}

TEST_F(FinestraProva, UnFileCheNonEUnSistemaNonDiventaRecente)
{
    prove::ScriviFile(cartella / "falso.sic", "altro");
    EXPECT_TRUE(Quando<QMessageBox>([](QMessageBox& avviso) { avviso.close(); },
                                    [&] { EXPECT_FALSE(Finestra().Apri(In("falso.sic"))); }));
    EXPECT_TRUE(Finestra().Recenti().Elenco().isEmpty());
}

TEST_F(FinestraProva, SenzaModificheSiChiudeSenzaDomande)
{
    EXPECT_TRUE(Finestra().close());
}

TEST_F(FinestraProva, INumeriCheSiStannoScegliendoNonSiPerdonoChiudendo)
{
    Finestra().findChild<QAction*>("SelNumeri")->trigger();
    Componente().SelezionaNumero(7, true);
    EXPECT_FALSE(Chiudi("&Annulla"));
    EXPECT_TRUE(Componente().Modificato());
}

TEST_F(FinestraProva, AncheQuelCheIlComponenteNonContaComeModificaSiChiede)
{
    Componente().InsCondizione(TipoCondizione::ponte, "1,2");
    ASSERT_TRUE(Finestra().Apri(NuovoSistema("uno.sic")));
    Componente().SetColonnaGrid(1);
    Finestra().findChild<QAction*>("Inserisci")->trigger();
    ASSERT_FALSE(Componente().Modificato());
    EXPECT_TRUE(Finestra().isWindowModified());
    EXPECT_FALSE(Chiudi("&Annulla"));
    Finestra().findChild<QAction*>("Annulla")->trigger();
    EXPECT_FALSE(Finestra().isWindowModified());
    EXPECT_TRUE(Finestra().close());
}

TEST_F(FinestraProva, AnnullaLasciaTuttoCosi)
{
    const QString sFile = NuovoSistema("uno.sic");
    ASSERT_TRUE(Finestra().Apri(sFile));
    Modifica();
    EXPECT_FALSE(Chiudi("&Annulla"));
    EXPECT_TRUE(Componente().Modificato());
}

TEST_F(FinestraProva, NonSalvareChiudeENonTocca)
{
    const QString sFile = NuovoSistema("uno.sic");
    const std::string sPrima = prove::LeggiFile(sFile.toStdString());
    ASSERT_TRUE(Finestra().Apri(sFile));
    Componente().SelezionaNumero(77, true);
    Modifica();
    EXPECT_TRUE(Chiudi("&Non salvare"));
    EXPECT_EQ(prove::LeggiFile(sFile.toStdString()), sPrima);
}

TEST_F(FinestraProva, SalvaSalvaEChiude)
{
    const QString sFile = NuovoSistema("uno.sic");
    const std::string sPrima = prove::LeggiFile(sFile.toStdString());
    ASSERT_TRUE(Finestra().Apri(sFile));
    Componente().SelezionaNumero(77, true);
    Modifica();
    EXPECT_TRUE(Chiudi("&Salva"));
    EXPECT_NE(prove::LeggiFile(sFile.toStdString()), sPrima);
    EXPECT_FALSE(Componente().Modificato());
}

TEST_F(FinestraProva, SeNonSiPuoSalvareSiResta)
{
    const QString sFile = NuovoSistema("uno.sic");
    ASSERT_TRUE(Finestra().Apri(sFile));
    ASSERT_TRUE(QFile::remove(sFile));
    std::filesystem::create_directory(sFile.toStdString());
    Modifica();
    bool bChiusa = true;
    QTimer risposte;
    QStringList aTitoli;
    risposte.callOnTimeout([&] {
        if (auto* mostrata = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
            aTitoli.append(mostrata->windowTitle());
            mostrata->buttons().size() == 3 ? Premi(*mostrata, "&Salva")
                                            : mostrata->buttons().constFirst()->click();
        }
    });
    risposte.start(0);
    bChiusa = Finestra().close();
    risposte.stop();
    EXPECT_FALSE(bChiusa);
    EXPECT_GE(aTitoli.size(), 2);
    EXPECT_TRUE(Componente().Modificato());
}

TEST_F(FinestraProva, ChiRinunciaAlNomeResta)
{
    NuovoSistema("nulla");
    Modifica();
    ASSERT_TRUE(Componente().FileSistema().empty());
    bool bChiusa = true;
    QTimer risposte;
    risposte.callOnTimeout([&] {
        if (auto* domanda = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
            Premi(*domanda, "&Salva");
        } else if (auto* nome = qobject_cast<QFileDialog*>(QApplication::activeModalWidget())) {
            nome->reject();
        }
    });
    risposte.start(0);
    bChiusa = Finestra().close();
    risposte.stop();
    EXPECT_FALSE(bChiusa);
}

TEST_F(FinestraProva, DuranteUnoSviluppoSiChiedeDiInterrompere)
{
    for (std::int16_t n = 1; n <= 45; ++n) {
        Componente().SelezionaNumero(n, true);
    }
    Finestra().Componente().setClasse(7);
    QAction& impostazioni = *Finestra().findChild<QAction*>("Impostazioni");
    QStringList aTesti;
    bool bTentata = false;
    // Two of them: the one that closes waits for the box that the other answers.
    QTimer risposte;
    risposte.callOnTimeout([&] {
        if (auto* mostrata = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
            aTesti.append(mostrata->text().section(u'\n', 0, 0).trimmed());
            mostrata->buttons().constFirst()->click();
        }
    });
    QTimer chiusura;
    chiusura.callOnTimeout([&] {
        if (Componente().Controlli().Toolbar2.Pulsante("Stop").Abilitato.Valore() && !bTentata) {
            bTentata = true;
            EXPECT_FALSE(impostazioni.isEnabled());
            EXPECT_FALSE(Finestra().close());
        }
    });
    risposte.start(1);
    chiusura.start(1);
    Finestra().show();
    Finestra().Componente().findChild<QAction*>("SviluppaCond")->trigger();
    risposte.stop();
    chiusura.stop();
    EXPECT_TRUE(bTentata);
    EXPECT_EQ(aTesti, (QStringList{"Interrompere ?", "Fine sviluppo"}));
    EXPECT_FALSE(Componente().ColonneValide());
    EXPECT_TRUE(Finestra().isVisible());
    EXPECT_TRUE(impostazioni.isEnabled());
}

TEST_F(FinestraProva, UnSistemaTrascinatoSiApre)
{
    const QString sFile = NuovoSistema("uno.sic");
    NuovoSistema("due.sic");
    EXPECT_TRUE(Lascia(sFile));
    EXPECT_TRUE(QTest::qWaitFor([&] { return FileAperto() == sFile; }));
    EXPECT_FALSE(Lascia(In("ordavel.ini")));
}

TEST_F(FinestraProva, LaGeometriaSiConservaERestaSulloSchermo)
{
    Finestra().resize(700, 500);
    Finestra().move(30, 40);
    ASSERT_TRUE(Finestra().close());
    finestra.emplace(archivio);
    EXPECT_EQ(finestra->size(), QSize(700, 500));
    finestra->move(-9000, -9000);
    RiportaSulloSchermo(*finestra);
    EXPECT_TRUE(finestra->screen()->availableGeometry().contains(finestra->frameGeometry().topLeft()));
}

TEST_F(FinestraProva, AllaChiusuraLeImpostazioniDelComponenteRestano)
{
    Finestra().Componente().setClasse(7);
    ASSERT_TRUE(Finestra().close());
    const ArchivioImpostazioni altro(In("ordavel.ini"));
    EXPECT_EQ(altro.Leggi("Classe"), "7");
    EXPECT_EQ(altro.Leggi("PercorsoTemp"), (cartella / "temp"));
    finestra.emplace(archivio);
    EXPECT_EQ(Componente().classe(), 7);
}

TEST_F(FinestraProva, ImpostazioniCheNonSiScrivonoSiDicono)
{
    prove::ScriviFile(cartella / "file", "x");
    ArchivioImpostazioni chiuso(In("file/ordavel.ini"));
    ScriviImpostazioni(LeggiImpostazioni(archivio), chiuso);
    F_Finestra senza(chiuso);
    bool bChiusa = false;
    EXPECT_TRUE(Quando<QMessageBox>(
        [](QMessageBox& avviso) {
            EXPECT_TRUE(avviso.text().startsWith("Le impostazioni non si possono conservare"));
            avviso.close();
        },
        [&] { bChiusa = senza.close(); }));
    EXPECT_TRUE(bChiusa);
}

TEST_F(FinestraProva, SenzaColonneNonSiStampa)
{
    for (const char* sVoce : {"AnteprimaStampa", "Stampa", "EsportaPdf"}) {
        EXPECT_TRUE(Quando<QMessageBox>(
            [](QMessageBox& avviso) {
                EXPECT_EQ(avviso.text(), "Non ci sono colonne da stampare");
                avviso.close();
            },
            [&] { Finestra().findChild<QAction*>(sVoce)->trigger(); }));
    }
}

TEST_F(FinestraProva, StampaSkMostraLAnteprimaDelGioco)
{
    (void)Finestra();
    prove::ScriviFile(cartella / "temp/Sviluppo.col", std::string("\1\2\3\4\5") + std::string(15, '\0'));
    EXPECT_TRUE(Quando<qt::AnteprimaSchedine>(
        [](qt::AnteprimaSchedine& anteprima) {
            EXPECT_EQ(anteprima.Pagine(), 1);
            anteprima.close();
        },
        [&] { Componente().Toolbar2_ButtonClick("StampaSk"); }));
}

TEST_F(FinestraProva, IlManualeSiApreUnaVoltaSola)
{
    auto* voce = Finestra().findChild<QAction*>("Manuale");
    voce->trigger();
    voce->trigger();
    const auto aManuali = Finestra().findChildren<F_Manuale*>();
    ASSERT_EQ(aManuali.size(), 1);
    EXPECT_TRUE(
        aManuali.constFirst()->findChild<QTextBrowser*>()->toPlainText().contains("Il primo sistema"));
}

TEST_F(FinestraProva, OgniVoceDiMenuHaIlSuoTastoMnemonico)
{
    QString sLettere;
    for (const QAction* titolo : Finestra().menuBar()->actions()) {
        const QString sTitolo = titolo->text();
        EXPECT_TRUE(sTitolo.contains(u'&')) << sTitolo.toStdString();
        const QString sLettera = sTitolo.mid(sTitolo.indexOf(u'&') + 1, 1).toUpper();
        EXPECT_FALSE(sLettere.contains(sLettera)) << sTitolo.toStdString();
        sLettere += sLettera;
    }
    for (const char* sMenu : {"MenuFile", "MenuAiuto"}) {
        for (const QAction* voce : Finestra().findChild<QMenu*>(sMenu)->actions()) {
            EXPECT_TRUE(voce->isSeparator() || voce->text().contains(u'&')) << voce->text().toStdString();
        }
    }
}

} // namespace
} // namespace ordavel::desktop
