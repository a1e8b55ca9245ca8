// Schermate_prova.cpp - pictures of the main window, of dialogs and of a chart, in light and in dark.
//
// They are written into the folder that ORDAVEL_SCHERMATE names, for the manual and to be looked at; without it they
// go to a folder of the moment, and only that they can be drawn is tested.

#include "ordavel/Ordavel.hpp"
#include "ordavel/OrdavelWidget.hpp"

#include "qt/Legami.hpp"
#include "qt/VistaDialogo.hpp"

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QImage>
#include <QLabel>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>

namespace ordavel::qt {

namespace {

QPalette Scura()
{
    const QColor fondo(0x2B, 0x2B, 0x2E);
    const QColor base(0x3A, 0x3A, 0x3E);
    const QColor testo(0xE6, 0xE6, 0xE6);
    QPalette tavolozza(fondo);
    for (const QPalette::ColorRole ruolo :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText}) {
        tavolozza.setColor(ruolo, testo);
        tavolozza.setColor(QPalette::Disabled, ruolo, QColor(0x8A, 0x8A, 0x8A));
    }
    tavolozza.setColor(QPalette::Base, base);
    tavolozza.setColor(QPalette::AlternateBase, fondo);
    tavolozza.setColor(QPalette::ToolTipBase, base);
    tavolozza.setColor(QPalette::Highlight, QColor(0x2F, 0x6F, 0xB5));
    tavolozza.setColor(QPalette::HighlightedText, Qt::white);
    tavolozza.setColor(QPalette::PlaceholderText, QColor(0x9A, 0x9A, 0x9A));
    return tavolozza;
}

/// The example "superenalotto".
ContenutoSistema Esempio()
{
    ContenutoSistema contenuto;
    contenuto.aCondizioni = {
        {"Peso", "Caselle :\r\n1-2-3-4-5-6", "220-320", "200-219", "1"},
        {"Pari-Dispari", "Pari", "2-3-4", "1-5", "1"},
        {"Consecutivi", "Consecutivi", "0-1", "2", "1"},
        {"LinkOpen", "LinkOpen", "", "", ""},
        {"Decine", "Decine", "1-2", "3", "1"},
        {"Ampiezza", "Ampiezza", "45-80", "-", " "},
        {"LinkClose", "LinkClose", "1-2", "", ""},
        {"Punti Col.", "03-11-19-23-\r\n31-38-45-53", "1-2-3-4", "", " "},
    };
    contenuto.aQuadro = {"1,1,-1"};
    for (const int n : {3, 4, 11, 14, 19, 22, 23, 31, 34, 38, 41, 45, 46, 53, 58, 62, 67, 73, 79, 86}) {
        contenuto.numeri(n) = 1;
    }
    return contenuto;
}

struct Schermate : testing::TestWithParam<bool> {
    Schermate()
    {
        const QString sChiesta = qEnvironmentVariable("ORDAVEL_SCHERMATE");
        if (!sChiesta.isEmpty()) {
            m_sDove = sChiesta;
            QDir().mkpath(m_sDove);
        }
        if (GetParam()) {
            QApplication::setPalette(Scura());
        }
        sistema().PoniPercorsoTemp(Testo(m_Cartella.filePath("temp")));
        sistema().Controlli().CmbTipoGioco.Indice.Poni(3);
        sistema().PoniContenuto(Esempio(), false);
        widget.setWindowTitle("superenalotto - Ordavel");
        widget.resize(1080, 700);
        widget.show();
        widget.setFocus();
        Attendi();
    }
    ~Schermate() override { QApplication::setPalette(m_Prima); }

    Ordavel& sistema() { return widget.componente(); }

    /// Until the count under the grid stands.
    void Attendi()
    {
        const auto* conto = widget.findChild<QLabel*>("LabConto");
        ASSERT_NE(conto, nullptr);
        EXPECT_TRUE(QTest::qWaitFor([&] { return conto->text().contains("su 38.760"); }));
    }

    void Ritrai(QWidget& finestra, const QString& sNome)
    {
        const QString sFile = QString("%1/%2-%3.png").arg(m_sDove, sNome, GetParam() ? "scuro" : "chiaro");
        const QImage immagine = finestra.grab().toImage();
        EXPECT_GT(immagine.width(), 100) << sNome.toStdString();
        EXPECT_TRUE(immagine.save(sFile)) << sFile.toStdString();
    }

    /// Opens a dialog by a command, lets it be filled, and takes its picture.
    void RitraiDialogo(
        const char* sComando, const QString& sNome,
        const std::function<void(QWidget&)>& riempi = [](QWidget&) {})
    {
        bool bVisto = false;
        QTimer::singleShot(0, [&] {
            QWidget* finestra = QApplication::activeModalWidget();
            ASSERT_NE(finestra, nullptr) << sComando;
            riempi(*finestra);
            QCoreApplication::processEvents();
            Ritrai(*finestra, sNome);
            bVisto = true;
            finestra->close();
        });
        widget.findChild<QAction*>(sComando)->trigger();
        EXPECT_TRUE(bVisto) << sComando;
    }

    QTemporaryDir m_Cartella;
    QString m_sDove = m_Cartella.path();
    QPalette m_Prima = QApplication::palette();
    OrdavelWidget widget;
};

} // namespace

TEST_P(Schermate, LaFinestra)
{
    sistema().SetColonnaGrid(2);
    Ritrai(widget, "finestra");
    widget.resize(560, 620);
    QTest::qWait(50);
    Ritrai(widget, "finestra-stretta");
    widget.resize(1080, 700);
    widget.findChild<QAction*>("SelNumeri")->trigger();
    QTest::qWait(50);
    Ritrai(widget, "numeri");
}

TEST_P(Schermate, IDialoghiDelleCondizioni)
{
    RitraiDialogo("PuntisuPeso", "peso");
    RitraiDialogo("PuntisuPariDispari", "pari-dispari");
    RitraiDialogo("PuntiSuColonna", "punti-su-colonna");
    RitraiDialogo("PuntiSuSequenze", "sequenze");
    RitraiDialogo("PuntiSuFormule", "formule");
    RitraiDialogo("PuntiSuEmulatore", "emulatore");
}

TEST_P(Schermate, GliAltriDialoghi)
{
    RitraiDialogo("QuadroRecuperi", "quadro-recuperi");
    RitraiDialogo("puntimassivi", "imposta-punti");
    RitraiDialogo("SalvaCondizioni", "salva-condizioni");
    RitraiDialogo("GestCondizioni", "apri-condizioni");
    RitraiDialogo("PuntiSuColonnaTxt", "importa-colonne");
    RitraiDialogo("Riduzione", "riduzione");
}

TEST_P(Schermate, IRisultati)
{
    // The box at the end of the run.
    QTimer chiude;
    QObject::connect(&chiude, &QTimer::timeout, [] {
        if (QWidget* finestra = QApplication::activeModalWidget()) {
            finestra->close();
        }
    });
    chiude.start(5);
    ASSERT_TRUE(sistema().GestSviluppo());
    chiude.stop();
    Attendi();
    Ritrai(widget, "sviluppato");
    RitraiDialogo("VisualizzaColonne", "colonne");
    RitraiDialogo("EffettoCondizioni", "effetto");
    RitraiDialogo("ConfrontoCondSuCol", "spoglio");
}

INSTANTIATE_TEST_SUITE_P(Tavolozze, Schermate, testing::Bool(), [](const testing::TestParamInfo<bool>& p) {
    return std::string(p.param ? "Scuro" : "Chiaro");
});

} // namespace ordavel::qt
