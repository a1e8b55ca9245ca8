// FacciaOrdavel_prova.cpp - the component as a user meets it: toolbar, grid, numbers, runs, by mouse and by keys.

#include "ordavel/OrdavelWidget.hpp"

#include "qt/ComandiOrdavel.hpp"
#include "qt/ContoVivo.hpp"
#include "qt/DialoghiProva.hpp"
#include "qt/VistaGriglia.hpp"
#include "qt/VistaNumeri.hpp"

#include <QAction>
#include <QComboBox>
#include <QElapsedTimer>
#include <QFile>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QToolBar>
#include <QToolButton>
#include <QUndoStack>

namespace ordavel::qt::prove {

namespace {

struct FacciaProva : testing::Test {
    FacciaProva()
    {
        widget.setPercorsoTemp(cartella.filePath("temp"));
        widget.resize(1000, 640);
        widget.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&widget));
    }

    Ordavel& Sistema() { return widget.componente(); }
    GrigliaCondizioni& Griglia() { return Sistema().GetGridCond(); }
    QAction& Azione(const char* sChiave) { return *widget.findChild<QAction*>(sChiave); }
    QString Testo(const char* sNome) { return Trova<QLabel>(widget, sNome).text(); }

    void ScegliNumeri(int nQuanti)
    {
        for (std::int16_t n = 1; n <= nQuanti; ++n) {
            Sistema().SelezionaNumero(n, true);
        }
    }

    /// Answers every box that comes, until it is told to end.
    void Rispondi(const std::function<void(QWidget&)>& azione = [](QWidget& finestra) { finestra.close(); })
    {
        m_Risponde.callOnTimeout(&widget, [azione] {
            if (QWidget* finestra = QApplication::activeModalWidget()) {
                azione(*finestra);
            }
        });
        m_Risponde.start(5);
    }

    QTemporaryDir cartella;
    OrdavelWidget widget;
    QTimer m_Risponde;
};

} // namespace

TEST_F(FacciaProva, OgniControlloHaUnNome)
{
    Azione("SelNumeri").trigger();
    EXPECT_EQ(SenzaNome(widget), QStringList());
}

TEST_F(FacciaProva, TuttoSiRaggiungeDaTastiera)
{
    Azione("SelNumeri").trigger();
    EXPECT_EQ(NonRaggiunti(widget), QStringList());
}

TEST_F(FacciaProva, UnPulsanteDellaBarraSiPremeColMouseEConLaBarraSpazio)
{
    QTest::mouseClick(&Trova<QToolButton>(widget, "TastoLinkOpen"), Qt::LeftButton);
    EXPECT_EQ(Griglia().Riga(1).sCondizione, "LinkOpen");
    QTest::keyClick(&Trova<QToolButton>(widget, "TastoLinkOpen"), Qt::Key_Space);
    EXPECT_EQ(Griglia().Riga(2).sCondizione, "LinkOpen");
}

TEST_F(FacciaProva, ITastiRapidiEseguonoIComandi)
{
    widget.setFocus();
    QTest::keyClick(&Trova<VistaGriglia>(widget, "GrdCond"), Qt::Key_K, Qt::ControlModifier);
    EXPECT_EQ(Griglia().Riga(1).sCondizione, "LinkOpen");
    QTest::keyClick(&Trova<VistaGriglia>(widget, "GrdCond"), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_TRUE(Griglia().Vuota(1));
}

TEST_F(FacciaProva, UnDialogoSiAprePerIlMenuSiRiempieESiConferma)
{
    QTimer::singleShot(0, [] {
        QWidget* finestra = QApplication::activeModalWidget();
        ASSERT_NE(finestra, nullptr);
        Clicca(*finestra, "ChkPunti1");
        Clicca(*finestra, "ChkPunti2");
        QTest::keyClick(finestra, Qt::Key_Return);
    });
    Azione("PuntiSuPonte").trigger();
    EXPECT_EQ(Griglia().Riga(1).sCondizione, "Ponte");
    EXPECT_EQ(Griglia().Riga(1).sPunti, "1-2");
}

TEST_F(FacciaProva, InvioSullaGrigliaApreLaCondizione)
{
    Sistema().InsCondizione(TipoCondizione::ponte, "1,2");
    Sistema().SetColonnaGrid(1);
    QCoreApplication::processEvents();
    QString sTitolo;
    QTimer::singleShot(0, [&] {
        QWidget* finestra = QApplication::activeModalWidget();
        ASSERT_NE(finestra, nullptr);
        sTitolo = finestra->windowTitle();
        EXPECT_TRUE(Trova<QAbstractButton>(*finestra, "ChkPunti1").isChecked());
        finestra->close();
    });
    QTest::keyClick(&Trova<VistaGriglia>(widget, "GrdCond"), Qt::Key_Return);
    EXPECT_EQ(sTitolo, "Punti su ponte");
}

TEST_F(FacciaProva, INumeriSiScelgonoESiChiudono)
{
    Azione("SelNumeri").trigger();
    auto& numeri = Trova<VistaNumeri>(widget, "SelnovoNumeri1");
    ASSERT_TRUE(numeri.isVisible());
    EXPECT_TRUE(numeri.hasFocus());
    QTest::mouseClick(&numeri, Qt::LeftButton, {}, numeri.Casella(7).center());
    EXPECT_EQ(Testo("LabNumSel"), "1");
    Clicca(widget, "TuttiNumeri");
    EXPECT_EQ(Testo("LabIntegrale"), "43.949.268");
    Clicca(widget, "ChiudiNumeri");
    EXPECT_FALSE(numeri.isVisible());
    EXPECT_FALSE(Azione("SelNumeri").isChecked());
    EXPECT_TRUE(Sistema().Modificato());
    QCoreApplication::processEvents();
    EXPECT_GE(widget.annullamenti()->count(), 1);
}

TEST_F(FacciaProva, ChiusiINumeriLaTastieraVaAllaGriglia)
{
    for (const bool bDallaBarra : {false, true}) {
        Azione("SelNumeri").trigger();
        ASSERT_TRUE(Trova<VistaNumeri>(widget, "SelnovoNumeri1").hasFocus());
        bDallaBarra ? Azione("SelNumeri").trigger() : Clicca(widget, "ChiudiNumeri");
        EXPECT_TRUE(Trova<VistaGriglia>(widget, "GrdCond").hasFocus());
    }
}

TEST_F(FacciaProva, INumeriSceltiContanoAncheSeSiLascianoDallaBarra)
{
    Azione("SelNumeri").trigger();
    Azione("SelNumeri").trigger();
    EXPECT_FALSE(Sistema().Modificato());
    Azione("SelNumeri").trigger();
    Clicca(widget, "TuttiNumeri");
    EXPECT_FALSE(Sistema().Modificato());
    Azione("SelNumeri").trigger();
    EXPECT_TRUE(Sistema().Modificato());
}

TEST_F(FacciaProva, INumeriCheSiStannoScegliendoSonoUnaModifica)
{
    Azione("SelNumeri").trigger();
    Clicca(widget, "TuttiNumeri");
    bool bChiesto = false;
    Rispondi([&](QWidget& domanda) {
        bChiesto = true;
        domanda.close();
    });
    Azione("New").trigger();
    EXPECT_TRUE(bChiesto);
}

TEST_F(FacciaProva, INumeriDiUnSistemaNuovoNonSonoUnaModifica)
{
    Sistema().SelezionaNumero(7, true);
    Azione("SelNumeri").trigger();
    Azione("New").trigger();
    EXPECT_TRUE(Trova<VistaNumeri>(widget, "SelnovoNumeri1").isVisible());
    Azione("SelNumeri").trigger();
    EXPECT_FALSE(Sistema().Modificato());
}

TEST_F(FacciaProva, ChiNonENeiNumeriNonPerdeLaTastiera)
{
    Azione("SelNumeri").trigger();
    auto& classe = Trova<QComboBox>(widget, "CmbClasse");
    classe.setFocus();
    Azione("SelNumeri").trigger();
    EXPECT_TRUE(classe.hasFocus());
}

TEST_F(FacciaProva, IlContoSeguelUtente)
{
    ScegliNumeri(20);
    EXPECT_TRUE(QTest::qWaitFor([&] { return Testo("LabConto").contains("15.504 su 15.504"); }))
        << Testo("LabConto").toStdString();
    Sistema().InsCondizione(TipoCondizione::ampiezza, "4,10");
    ASSERT_TRUE(QTest::qWaitFor([&] {
        return !Testo("LabConto").contains("15.504 su 15.504") && !Testo("LabConto").contains(u'…');
    }));
    const QString sConto = Testo("LabConto");
    Rispondi();
    ASSERT_TRUE(Sistema().GestSviluppo());
    EXPECT_TRUE(sConto.contains(QString("%1 su").arg(Testo("LabCondizionate")))) << sConto.toStdString();
}

TEST_F(FacciaProva, IlPannelloSiVedeSoloDuranteLaCorsa)
{
    ScegliNumeri(30);
    bool bVisto = false;
    QTimer spia;
    spia.callOnTimeout(
        &widget, [&] { bVisto = bVisto || (Trova(widget, "PanSviluppo").isVisible() && widget.inCorso()); });
    spia.start(0);
    Rispondi();
    ASSERT_TRUE(widget.GestSviluppo());
    EXPECT_TRUE(bVisto);
    EXPECT_FALSE(Trova(widget, "PanSviluppo").isVisible());
    EXPECT_EQ(Testo("LabSviluppate"), "142.506");
}

TEST_F(FacciaProva, StopFermaUnoSviluppoInCorso)
{
    ScegliNumeri(90);
    Sistema().PoniClasse(6);
    // A column in a thousand is kept: the run takes its time, and the disk is not filled.
    Sistema().InsCondizione(TipoCondizione::linkOpen, {});
    for (int i = 0; i < 200; ++i) {
        Griglia().Riga(2 + i) = {"Punti Col.", "01-02-03-04-05-06-07-08-09-1" + std::to_string(i % 10), "0",
                                 "-", " "};
    }
    Griglia().Riga(202) = {"LinkClose", "LinkClose", "1", "", ""};
    bool bChiesto = false;
    bool bPremuto = false;
    QTimer preme;
    preme.callOnTimeout(&widget, [&] {
        auto& stop = Trova<QToolButton>(widget, "FermaSviluppo");
        if (!bPremuto && stop.isVisible() && stop.isEnabled()) {
            bPremuto = true;
            QTest::mouseClick(&stop, Qt::LeftButton);
        }
    });
    preme.start(5);
    Rispondi([&](QWidget& finestra) {
        if (auto* domanda = qobject_cast<QMessageBox*>(&finestra);
            domanda != nullptr && domanda->text() == "Interrompere ?") {
            bChiesto = true;
            EXPECT_FALSE(Azione("Open").isEnabled());
            EXPECT_FALSE(Azione("Annulla").isEnabled());
            QTest::keyClick(domanda, Qt::Key_S, Qt::AltModifier);
            return;
        }
        finestra.close();
    });
    ASSERT_TRUE(widget.GestSviluppo());
    EXPECT_TRUE(bPremuto);
    EXPECT_TRUE(bChiesto);
    EXPECT_TRUE(Sistema().UltimoSviluppo().bStopSviluppo);
    EXPECT_FALSE(Azione("Stop").isEnabled());
    EXPECT_TRUE(Azione("Open").isEnabled());
    QCoreApplication::processEvents();
    EXPECT_TRUE(Azione("Annulla").isEnabled());
}

TEST_F(FacciaProva, SalvareRendePulitoIlRegistroDegliAnnullamenti)
{
    Sistema().InsCondizione(TipoCondizione::ponte, "1,2");
    QCoreApplication::processEvents();
    EXPECT_FALSE(widget.annullamenti()->isClean());
    const QString sFile = cartella.filePath("prova.sic");
    Rispondi([&](QWidget& finestra) {
        auto* nome = finestra.findChild<QLineEdit*>("fileNameEdit");
        if (nome != nullptr) {
            nome->setText(sFile);
            QTest::keyClick(nome, Qt::Key_Return);
        }
    });
    Azione("SalvaConNome").trigger();
    EXPECT_TRUE(QFile::exists(sFile));
    EXPECT_TRUE(widget.annullamenti()->isClean());
    Azione("LinkOpen").trigger();
    EXPECT_TRUE(Sistema().Modificato());
    Azione("Annulla").trigger();
    EXPECT_FALSE(Sistema().Modificato());
}

TEST_F(FacciaProva, UnFileNominatoSiApreSenzaChiedereIlNome)
{
    Sistema().InsCondizione(TipoCondizione::ponte, "1,2");
    std::string sFile = cartella.filePath("prova.sic").toStdString();
    ASSERT_TRUE(Sistema().Salva(sFile, true));
    OrdavelWidget altro;
    altro.setPercorsoTemp(cartella.filePath("altro"));
    const QSignalSpy spia(&altro, &OrdavelWidget::sistemaCambiato);
    EXPECT_TRUE(altro.apriFile(QString::fromStdString(sFile)));
    EXPECT_TRUE(altro.IsCondizionePresente("Ponte"));
    EXPECT_EQ(altro.annullamenti()->count(), 0);
    EXPECT_GE(spia.count(), 1);
}

TEST_F(FacciaProva, UnAperturaLasciataPerdereTieneGliAnnullamenti)
{
    Sistema().InsCondizione(TipoCondizione::ponte, "1,2");
    std::string sFile = cartella.filePath("prova.sic").toStdString();
    ASSERT_TRUE(Sistema().Salva(sFile, true));
    QCoreApplication::processEvents();
    ASSERT_TRUE(widget.annullamenti()->isClean());
    ASSERT_EQ(widget.annullamenti()->count(), 1);
    Rispondi();
    Azione("Open").trigger();
    EXPECT_EQ(widget.annullamenti()->count(), 1);
    EXPECT_TRUE(widget.annullamenti()->isClean());
}

TEST_F(FacciaProva, UnSistemaNuovoNonHaNullaDaAnnullare)
{
    Sistema().InsCondizione(TipoCondizione::ponte, "1,2");
    Rispondi([](QWidget& finestra) { QTest::keyClick(&finestra, Qt::Key_S, Qt::AltModifier); });
    Azione("New").trigger();
    EXPECT_TRUE(Griglia().Vuota(1));
    EXPECT_EQ(widget.annullamenti()->count(), 0);
}

TEST_F(FacciaProva, UnFileGuastoNonRisultaAperto)
{
    QFile file(cartella.filePath("guasto.sic"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("non un sistema");
    file.close();
    Rispondi();
    EXPECT_FALSE(widget.apriFile(file.fileName()));
    EXPECT_FALSE(widget.apriFile(cartella.filePath("assente.sic")));
}

TEST_F(FacciaProva, LaStrisciaMostraINovantaNumeri)
{
    EXPECT_EQ(Sistema().Controlli().PicProno.Scritte.Valore().size(), 90U);
}

TEST_F(FacciaProva, ChiNonVuolePerdereLeModificheTieneIlSuoSistema)
{
    Sistema().InsCondizione(TipoCondizione::ponte, "1,2");
    std::string sFile = cartella.filePath("prova.sic").toStdString();
    ASSERT_TRUE(Sistema().Salva(sFile, true));
    Azione("LinkOpen").trigger();
    Rispondi([](QWidget& finestra) { QTest::keyClick(&finestra, Qt::Key_N, Qt::AltModifier); });
    EXPECT_FALSE(widget.apriFile(QString::fromStdString(sFile)));
    EXPECT_EQ(Griglia().Riga(2).sCondizione, "LinkOpen");
}

TEST_F(FacciaProva, UnaFinestraStrettaTieneTuttiIComandi)
{
    widget.resize(widget.minimumSizeHint());
    QCoreApplication::processEvents();
    EXPECT_LE(Trova<QToolBar>(widget, "Toolbar2").width(), widget.width());
    EXPECT_TRUE(Trova(widget, "qt_toolbar_ext_button").isVisible());
    EXPECT_LE(Trova(widget, "LabGaranzia").geometry().right(), widget.width());
}

TEST_F(FacciaProva, DistruttoConUnContoInCorsoNonAspetta)
{
    auto altro = std::make_unique<OrdavelWidget>();
    altro->show();
    for (int n = 1; n <= 90; ++n) {
        altro->SelezionaNumero(n, true);
    }
    altro->setClasse(10);
    QTest::qWait(30);
    QElapsedTimer tempo;
    tempo.start();
    altro.reset();
    EXPECT_LT(tempo.elapsed(), 5000) << "la distruzione non aspetta la fine del conto";
}

} // namespace ordavel::qt::prove
