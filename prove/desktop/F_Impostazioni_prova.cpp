// F_Impostazioni_prova.cpp - the dialog of the settings, and the import of draws.

#include "desktop/F_Impostazioni.hpp"

#include "FinestraInProva.hpp"
#include "core/ModGiochi.hpp"
#include "desktop/F_ImportaArchivio.hpp"
#include "qt/PiattaformaQt.hpp"

#include <QComboBox>
#include <QFile>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QSpinBox>
#include <QTabWidget>
#include <QTest>

namespace ordavel::desktop {
namespace {

class DialogoImpostazioniProva : public testing::Test {
protected:
    DialogoImpostazioniProva()
    {
        prime.sDirSistemi = In("sistemi");
        prime.sPercorsoSalvaColonne = In("colonne");
        prime.sPercorsoTemp = In("temp");
    }

    [[nodiscard]] QString In(std::string_view sNome) const
    {
        return QString::fromStdString(cartella / sNome);
    }

    F_Impostazioni& Finestra()
    {
        if (!finestra) {
            finestra.emplace(prime, piattaforma, nullptr);
        }
        return *finestra;
    }
    QLineEdit& Casella(const char* sNome) { return *Finestra().findChild<QLineEdit*>(sNome); }

    /// OK is refused with a box.
    void Rifiutata(const QString& sInizio)
    {
        EXPECT_TRUE(Quando<QMessageBox>(
            [&](QMessageBox& avviso) {
                EXPECT_TRUE(avviso.text().startsWith(sInizio)) << avviso.text().toStdString();
                avviso.close();
            },
            [&] { Finestra().accept(); }));
        EXPECT_NE(Finestra().result(), QDialog::Accepted);
    }

    prove::CartellaProva cartella;
    qt::PiattaformaQt piattaforma{nullptr};
    Impostazioni prime;
    std::optional<F_Impostazioni> finestra;
};

class DialogoImportaProva : public DialogoImpostazioniProva {
protected:
    const ProfiloGioco& gioco = *TrovaGioco("SuperEnalotto");
    const QString sEsempio = QStringLiteral(ORDAVEL_ARCHIVI "/superenalotto.csv");
};

TEST_F(DialogoImpostazioniProva, MostraQuelCheCE)
{
    prime.nThread = 9;
    prime.bMotoreEsterno = true;
    EXPECT_EQ(Finestra().Scelte(), prime);
}

TEST_F(DialogoImpostazioniProva, ConfermataFaLeCartelle)
{
    Casella("DirSistemi").setText(In("a/b/c"));
    Finestra().findChild<QSpinBox*>("NumeroThreadsSviluppo")->setValue(2);
    Finestra().findChild<QComboBox*>("MotoreSviluppo")->setCurrentIndex(1);
    Finestra().accept();
    EXPECT_EQ(Finestra().result(), QDialog::Accepted);
    EXPECT_TRUE(std::filesystem::is_directory(cartella / "a/b/c"));
    EXPECT_EQ(Finestra().Scelte().nThread, 2);
    EXPECT_TRUE(Finestra().Scelte().bMotoreEsterno);
}

TEST_F(DialogoImpostazioniProva, UnaCartellaImpossibileNonSiConferma)
{
    prove::ScriviFile(cartella / "file", "x");
    Casella("PercorsoTemp").setText(In("file/temp"));
    Finestra().findChild<QTabWidget*>()->setCurrentIndex(2);
    Rifiutata("Errore creazione percorso ");
    EXPECT_EQ(Finestra().findChild<QTabWidget*>()->currentIndex(), 0);
    Casella("PercorsoTemp").clear();
    Rifiutata("Serve un percorso intero");
}

TEST_F(DialogoImpostazioniProva, UnArchivioCheMancaNonSiConferma)
{
    Casella("FileBdSE").setText(In("manca.bd"));
    EXPECT_EQ(Finestra().findChild<QLabel*>("RiassuntoFileBdSE")->text(), "Il file non esiste");
    Rifiutata("L'archivio non esiste: ");
    EXPECT_EQ(Finestra().findChild<QTabWidget*>()->currentIndex(), 1);
}

TEST_F(DialogoImpostazioniProva, DellArchivioSiVedonoLeEstrazioni)
{
    Casella("FileBdSE").setText(QStringLiteral(ORDAVEL_ARCHIVI "/superenalotto.bd"));
    EXPECT_TRUE(
        Finestra().findChild<QLabel*>("RiassuntoFileBdSE")->text().contains("estrazioni, l'ultima: "));
    Casella("FileBdSE").clear();
    EXPECT_EQ(Finestra().findChild<QLabel*>("RiassuntoFileBdSE")->text(), "Nessun archivio");
}

TEST_F(DialogoImpostazioniProva, LaCartellaSiSfoglia)
{
    std::filesystem::create_directory(cartella / "scelta");
    EXPECT_TRUE(Quando<QFileDialog>(
        [&](QFileDialog& sfoglia) {
            sfoglia.setDirectory(In("scelta"));
            sfoglia.findChild<QLineEdit*>("fileNameEdit")->setText(In("scelta"));
            QTest::keyClick(sfoglia.findChild<QLineEdit*>("fileNameEdit"), Qt::Key_Return);
        },
        [&] { Finestra().findChild<QPushButton*>("SfogliaDirSistemi")->click(); }));
    EXPECT_EQ(Casella("DirSistemi").text(), In("scelta"));
}

TEST_F(DialogoImpostazioniProva, OgniCampoHaUnNomePerChiNonVede)
{
    for (const QLineEdit* casella : Finestra().findChildren<QLineEdit*>()) {
        EXPECT_TRUE(casella->objectName().startsWith("qt_") || !casella->accessibleName().isEmpty())
            << casella->objectName().toStdString();
    }
    for (const QPushButton* pulsante : Finestra().findChildren<QPushButton*>()) {
        EXPECT_FALSE(pulsante->text().isEmpty() && pulsante->accessibleName().isEmpty());
    }
}

TEST_F(DialogoImpostazioniProva, LImportazioneRiempieIlPercorso)
{
    EXPECT_TRUE(Quando<F_ImportaArchivio>(
        [&](F_ImportaArchivio& importa) {
            importa.findChild<QLineEdit*>("Testo")->setText(
                QStringLiteral(ORDAVEL_ARCHIVI "/winforlife.csv"));
            importa.findChild<QLineEdit*>("Archivio")->setText(In("wf.bd"));
            importa.findChild<QPushButton*>("Importa")->click();
        },
        [&] { Finestra().findChild<QPushButton*>("ImportaFileBdWF")->click(); }));
    EXPECT_EQ(Casella("FileBdWF").text(), In("wf.bd"));
    EXPECT_EQ(prove::LeggiFile(cartella / "wf.bd"), prove::LeggiFile(ORDAVEL_ARCHIVI "/winforlife.bd"));
    EXPECT_TRUE(Finestra().findChild<QLabel*>("RiassuntoFileBdWF")->text().contains("l'ultima: "));
}

TEST_F(DialogoImportaProva, UnTestoBuonoSiVedeESiImporta)
{
    F_ImportaArchivio importa(gioco, In("se.bd"), piattaforma, nullptr);
    auto* pulsante = importa.findChild<QPushButton*>("Importa");
    EXPECT_FALSE(pulsante->isEnabled());
    importa.findChild<QLineEdit*>("Testo")->setText(sEsempio);
    EXPECT_TRUE(
        importa.findChild<QLabel*>("Esito")->text().contains("estrazioni\nLa prima: 42 29 86 2 38 34\n"));
    ASSERT_TRUE(pulsante->isEnabled());
    EXPECT_FALSE(QFile::exists(In("se.bd")));
    pulsante->click();
    EXPECT_EQ(importa.result(), QDialog::Accepted);
    EXPECT_EQ(prove::LeggiFile(cartella / "se.bd"), prove::LeggiFile(ORDAVEL_ARCHIVI "/superenalotto.bd"));
}

TEST_F(DialogoImportaProva, UnaRigaErrataSiDiceELArchivioResta)
{
    prove::ScriviFile(cartella / "se.bd", "vecchio");
    prove::ScriviFile(cartella / "t.csv", "Data;N1;N2;N3;N4;N5;N6\n;1;2;3;4;5;6\n;1;2;3;4;5;95\n");
    F_ImportaArchivio importa(gioco, In("se.bd"), piattaforma, nullptr);
    importa.findChild<QLineEdit*>("Testo")->setText(In("t.csv"));
    EXPECT_EQ(importa.findChild<QLabel*>("Esito")->text(),
              "Errore alla riga 3: \"95\" non è un numero da 0 a 90");
    EXPECT_FALSE(importa.findChild<QPushButton*>("Importa")->isEnabled());
    EXPECT_EQ(prove::LeggiFile(cartella / "se.bd"), "vecchio");
}

TEST_F(DialogoImportaProva, IlTestoCheCambiaSottoManoNonRovinaLArchivio)
{
    prove::ScriviFile(cartella / "se.bd", "vecchio");
    prove::ScriviFile(cartella / "t.csv", "Data;N1;N2;N3;N4;N5;N6\n;1;2;3;4;5;6\n");
    F_ImportaArchivio importa(gioco, In("se.bd"), piattaforma, nullptr);
    importa.findChild<QLineEdit*>("Testo")->setText(In("t.csv"));
    prove::ScriviFile(cartella / "t.csv", "altro\n");
    importa.findChild<QPushButton*>("Importa")->click();
    EXPECT_NE(importa.result(), QDialog::Accepted);
    EXPECT_TRUE(importa.findChild<QLabel*>("Esito")->text().startsWith("Errore alla riga 1: "));
    EXPECT_EQ(prove::LeggiFile(cartella / "se.bd"), "vecchio");
}

TEST_F(DialogoImportaProva, DoveNonSiPuoScrivereSiDice)
{
    prove::ScriviFile(cartella / "file", "x");
    F_ImportaArchivio importa(gioco, In("file/se.bd"), piattaforma, nullptr);
    importa.findChild<QLineEdit*>("Testo")->setText(sEsempio);
    EXPECT_TRUE(Quando<QMessageBox>(
        [](QMessageBox& avviso) {
            EXPECT_EQ(avviso.icon(), QMessageBox::Critical);
            avviso.close();
        },
        [&] { importa.findChild<QPushButton*>("Importa")->click(); }));
    EXPECT_NE(importa.result(), QDialog::Accepted);
    EXPECT_EQ(prove::LeggiFile(cartella / "file"), "x");
}

} // namespace
} // namespace ordavel::desktop
