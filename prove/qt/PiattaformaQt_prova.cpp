// PiattaformaQt_prova.cpp - boxes, dialogs and choices of files as a user answers them.

#include "qt/PiattaformaQt.hpp"

#include "qt/Legami.hpp"

#include <QApplication>
#include <QCursor>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>

namespace ordavel::qt {

namespace {

/// Does something with the window that will be in front, inside its loop.
template <typename Finestra>
bool Quando(std::function<void(Finestra&)> azione, const std::function<void()>& apre)
{
    bool bVista = false;
    QTimer::singleShot(0, [&] {
        auto* finestra = qobject_cast<Finestra*>(QApplication::activeModalWidget());
        bVista = finestra != nullptr;
        if (bVista) {
            azione(*finestra);
        } else if (QWidget* altra = QApplication::activeModalWidget()) {
            altra->close();
        }
    });
    apre();
    return bVista;
}

struct PiattaformaQtProva : testing::Test {
    PiattaformaQt piattaforma{nullptr};
};

} // namespace

TEST_F(PiattaformaQtProva, LaDomandaRispondeSiONo)
{
    for (const bool bSi : {true, false}) {
        eRisposta risposta = eRisposta::ok;
        EXPECT_TRUE(Quando<QMessageBox>(
            [bSi](QMessageBox& finestra) {
                EXPECT_EQ(finestra.text(), "Interrompere ?");
                EXPECT_EQ(finestra.icon(), QMessageBox::Question);
                QTest::mouseClick(finestra.buttons().at(bSi ? 0 : 1), Qt::LeftButton);
            },
            [&] {
                risposta =
                    piattaforma.MostraMessaggio({eIcona::domanda, {}, "Interrompere ?", ePulsanti::siNo});
            }));
        EXPECT_EQ(risposta, bSi ? eRisposta::si : eRisposta::no);
    }
}

TEST_F(PiattaformaQtProva, EscInUnaDomandaEUnNo)
{
    eRisposta risposta = eRisposta::ok;
    EXPECT_TRUE(Quando<QMessageBox>(
        [](QMessageBox& finestra) { QTest::keyClick(&finestra, Qt::Key_Escape); },
        [&] {
            risposta = piattaforma.MostraMessaggio({eIcona::domanda, {}, "Annullare ?", ePulsanti::siNo});
        }));
    EXPECT_EQ(risposta, eRisposta::no);
}

TEST_F(PiattaformaQtProva, IlFallimentoHaIlNomeDellOperazioneNelTitolo)
{
    EXPECT_TRUE(Quando<QMessageBox>(
        [](QMessageBox& finestra) {
            EXPECT_EQ(finestra.windowTitle(), "OrdavelSis.Apri");
            EXPECT_EQ(finestra.icon(), QMessageBox::Critical);
            EXPECT_TRUE(finestra.text().startsWith("53- "));
            finestra.close();
        },
        [&] { piattaforma.MostraFallimento("OrdavelSis.Apri", Errore(eErrore::fileNonTrovato)); }));
}

TEST_F(PiattaformaQtProva, IlNomeSenzaEstensioneLaRiceve)
{
    const QTemporaryDir cartella;
    std::string sFile;
    EXPECT_TRUE(Quando<QFileDialog>(
        [](QFileDialog& finestra) {
            finestra.findChild<QLineEdit*>("fileNameEdit")->setText("prova");
            QTest::keyClick(finestra.findChild<QLineEdit*>("fileNameEdit"), Qt::Key_Return);
        },
        [&] {
            sFile = piattaforma.DialogoSalva(
                {"Salva", "File sistema (*.sic)|*.sic", ".sic", "", Testo(cartella.path())});
        }));
    EXPECT_EQ(sFile, Testo(cartella.path() + "/prova.sic"));
}

TEST_F(PiattaformaQtProva, UnaSceltaDiFileSenzaRispostaEVuota)
{
    std::string sFile = "x";
    EXPECT_TRUE(Quando<QFileDialog>([](QFileDialog& finestra) { finestra.reject(); },
                                    [&] {
                                        sFile = piattaforma.DialogoApri({"Apri", "Tutti|*", "", "", ""});
                                    }));
    EXPECT_TRUE(sFile.empty());
}

TEST_F(PiattaformaQtProva, ChiAspettaLUtenteNonHaIlPuntatoreOccupato)
{
    piattaforma.PuntatoreOccupato(true);
    piattaforma.PuntatoreOccupato(true);
    EXPECT_TRUE(Quando<QFileDialog>(
        [](QFileDialog& finestra) {
            EXPECT_EQ(QApplication::overrideCursor(), nullptr);
            finestra.reject();
        },
        [&] {
            piattaforma.DialogoSalva({"Salva", "Tutti|*", "", "", ""});
        }));
    EXPECT_TRUE(Quando<QMessageBox>(
        [](QMessageBox& finestra) {
            EXPECT_EQ(QApplication::overrideCursor(), nullptr);
            finestra.close();
        },
        [&] {
            piattaforma.MostraMessaggio({eIcona::avviso, {}, "Avviso", ePulsanti::ok});
        }));
    for (int i = 0; i < 2; ++i) {
        ASSERT_NE(QApplication::overrideCursor(), nullptr);
        EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::BusyCursor);
        piattaforma.PuntatoreOccupato(false);
    }
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

TEST_F(PiattaformaQtProva, UnFileGiaNominatoNonSiChiede)
{
    piattaforma.RispondiApri("/tmp/mio.sic");
    EXPECT_EQ(piattaforma.DialogoApri({}), "/tmp/mio.sic");
}

TEST_F(PiattaformaQtProva, UnDialogoSenzaFinestraEFallimento438)
{
    Dialogo dialogo("F_Sconosciuto", "");
    try {
        piattaforma.MostraModale(dialogo);
        FAIL() << "nessun fallimento";
    } catch (const Errore& errore) {
        EXPECT_EQ(errore.Numero(), eErrore::membro);
    }
}

TEST_F(PiattaformaQtProva, IlTestoDellaGrigliaHaLettereDiLarghezzaUguale)
{
    EXPECT_GT(piattaforma.LarghezzaTesto("W"), 0);
    EXPECT_NEAR(piattaforma.LarghezzaTesto("iiii"), piattaforma.LarghezzaTesto("WWWW"), 0.01);
    EXPECT_GT(piattaforma.AltezzaTesto("W"), 0);
}

} // namespace ordavel::qt
