// F_PuntiSuEmulatore_vista_prova.cpp - the sheet of the emulator, and the box that floats over its cell.

#include "qt/F_PuntiSuEmulatore_vista.hpp"

#include "qt/DialoghiProva.hpp"

#include <QScrollBar>

namespace ordavel::qt {

namespace {

using namespace prove;
using enum TipoCondizione;

/// The window with its parts.
struct Parti {
    explicit Parti(VistaDialogo& vista)
        : foglio(Trova<QTableWidget>(vista, "MSFlexGrid1")),
          casella(Trova<QLineEdit>(vista, "Text1")),
          colonne(Trova<QLineEdit>(vista, "Text2"))
    {}

    [[nodiscard]] QString Cella(int nRiga, int nColonna) const
    {
        return foglio.item(nRiga, nColonna)->text();
    }

    [[nodiscard]] std::pair<int, int> Corrente() const
    {
        return {foglio.currentRow(), foglio.currentColumn()};
    }

    /// Is the box where the current cell is?
    [[nodiscard]] bool Sopra() const
    {
        return casella.isVisible() && casella.geometry() == foglio.visualItemRect(foglio.currentItem());
    }

    void Tasto(Qt::Key tasto) const { QTest::keyClick(&casella, tasto); }

    void Clicca(int nRiga, int nColonna) const
    {
        const QRect posto = foglio.visualItemRect(foglio.item(nRiga, nColonna));
        QTest::mouseClick(foglio.viewport(), Qt::LeftButton, {}, posto.center());
    }

    QTableWidget& foglio;
    QLineEdit& casella;
    QLineEdit& colonne;
};

using FPuntiSuEmulatoreVistaProva = DialoghiProva;
using Posto = std::pair<int, int>;

} // namespace

TEST_F(FPuntiSuEmulatoreVistaProva, IlFoglioHaTestateEUnaRigaPerPunti)
{
    Apri(emulatore, [](VistaDialogo& vista) {
        const Parti parti(vista);
        EXPECT_EQ(parti.foglio.rowCount(), 6);
        EXPECT_EQ(parti.foglio.columnCount(), 2);
        EXPECT_EQ(parti.foglio.horizontalHeaderItem(0)->text(), "Minimo");
        EXPECT_EQ(parti.foglio.horizontalHeaderItem(1)->text(), "Massimo");
        EXPECT_EQ(parti.foglio.verticalHeaderItem(5)->text(), "P5");
        EXPECT_EQ(parti.foglio.rowHeight(0), qRound(600.0 / 1440 * vista.logicalDpiY()));
    });
}

TEST_F(FPuntiSuEmulatoreVistaProva, SiApreConLaCasellaSullaPrimaCella)
{
    Apri(emulatore, [](VistaDialogo& vista) {
        const Parti parti(vista);
        EXPECT_EQ(parti.Corrente(), Posto(0, 0));
        EXPECT_TRUE(parti.Sopra());
        EXPECT_TRUE(parti.casella.hasFocus());
        EXPECT_EQ(parti.casella.accessibleName(), "Minimo, P0");
    });
}

TEST_F(FPuntiSuEmulatoreVistaProva, ITastiMuovonoLaCasella)
{
    Apri(emulatore, [](VistaDialogo& vista) {
        const Parti parti(vista);
        const std::vector<std::pair<Qt::Key, Posto>> aPassi{
            {Qt::Key_Up, {0, 0}},    {Qt::Key_Left, {0, 0}}, {Qt::Key_Down, {1, 0}}, {Qt::Key_Right, {1, 1}},
            {Qt::Key_Right, {1, 1}}, {Qt::Key_Down, {2, 1}}, {Qt::Key_Left, {2, 0}}, {Qt::Key_Up, {1, 0}},
        };
        for (const auto& [tasto, atteso] : aPassi) {
            parti.Tasto(tasto);
            EXPECT_EQ(parti.Corrente(), atteso);
            EXPECT_TRUE(parti.Sopra());
            EXPECT_TRUE(parti.casella.hasFocus());
        }
        EXPECT_EQ(parti.casella.accessibleName(), "Minimo, P1");
    });
}

TEST_F(FPuntiSuEmulatoreVistaProva, LeFrecceDentroUnTestoNonCambianoCella)
{
    Apri(emulatore, [](VistaDialogo& vista) {
        const Parti parti(vista);
        QTest::keyClicks(&parti.casella, "123");
        parti.Tasto(Qt::Key_Left);
        EXPECT_EQ(parti.Corrente(), Posto(0, 0));
        EXPECT_EQ(parti.casella.cursorPosition(), 2);
        parti.Tasto(Qt::Key_Right);
        EXPECT_EQ(parti.Corrente(), Posto(0, 0));
        parti.Tasto(Qt::Key_Right);
        EXPECT_EQ(parti.Corrente(), Posto(0, 1));
    });
}

TEST_F(FPuntiSuEmulatoreVistaProva, UnClicPortaLiLaCasella)
{
    Apri(emulatore, [](VistaDialogo& vista) {
        const Parti parti(vista);
        parti.Clicca(3, 1);
        EXPECT_EQ(parti.Corrente(), Posto(3, 1));
        EXPECT_TRUE(parti.Sopra());
        EXPECT_TRUE(parti.casella.hasFocus());
        QTest::keyClicks(&parti.casella, "7");
        EXPECT_EQ(parti.Cella(3, 1), "7");
        EXPECT_EQ(parti.Cella(0, 0), "");
    });
}

TEST_F(FPuntiSuEmulatoreVistaProva, LaCasellaSiSpostaSenzaScrivere)
{
    Apri(emulatore, [](VistaDialogo& vista) {
        const Parti parti(vista);
        QTest::keyClicks(&parti.casella, "4");
        parti.Tasto(Qt::Key_Down);
        EXPECT_EQ(parti.casella.text(), "");
        EXPECT_EQ(parti.Cella(0, 0), "4");
        EXPECT_EQ(parti.Cella(1, 0), "");
        parti.Tasto(Qt::Key_Up);
        EXPECT_EQ(parti.casella.text(), "4");
        EXPECT_TRUE(parti.casella.hasSelectedText());
    });
}

TEST_F(FPuntiSuEmulatoreVistaProva, LeColonneDannoIMassimiFinoAlProssimoCambio)
{
    Apri(emulatore, [](VistaDialogo& vista) {
        const Parti parti(vista);
        parti.Clicca(2, 1);
        Scrivi(vista, "Text2", "12");
        EXPECT_EQ(parti.Cella(0, 1), "12");
        EXPECT_EQ(parti.Cella(5, 1), "12");
        EXPECT_EQ(parti.casella.text(), "12") << "the box is over one of them";
        QTest::keyClicks(&parti.casella, "3");
        const QString sUno = parti.Cella(2, 1);
        EXPECT_TRUE(sUno.contains('3'));
        Scrivi(vista, "Text2", "8");
        EXPECT_EQ(parti.Cella(2, 1), "8");
    });
}

TEST_F(FPuntiSuEmulatoreVistaProva, LeColonneSonoSoloCifre)
{
    Apri(emulatore, [](VistaDialogo& vista) {
        Scrivi(vista, "Text2", "1a2-");
        EXPECT_EQ(Parti(vista).colonne.text(), "12");
    });
}

TEST_F(FPuntiSuEmulatoreVistaProva, CinquecentoPassanoCinquecentounoNo)
{
    Apri(emulatore, [](VistaDialogo& vista) {
        EXPECT_EQ(Avviso([&] { Clicca(vista, "Conferma"); }), "Impostare il numero di colonne da emulare");
        Scrivi(vista, "Text2", "501");
        EXPECT_EQ(Avviso([&] { Clicca(vista, "Conferma"); }),
                  "Il numero di colonne da emulare massimo è 500");
        EXPECT_TRUE(vista.isVisible());
        Scrivi(vista, "Text2", "500");
        EXPECT_EQ(Avviso([&] { Clicca(vista, "Conferma"); }), "");
        EXPECT_FALSE(vista.isVisible());
    });
    EXPECT_EQ(Riga(1).sParametri.substr(0, 5), "[500]");
}

TEST_F(FPuntiSuEmulatoreVistaProva, ConfermaScriveIlFoglioELaModificaLoRimostra)
{
    Apri(emulatore, [](VistaDialogo& vista) {
        const Parti parti(vista);
        Scrivi(vista, "Text2", "12");
        parti.Clicca(2, 0);
        QTest::keyClicks(&parti.casella, "3");
        parti.Tasto(Qt::Key_Return);
        EXPECT_FALSE(vista.isVisible());
    });
    const std::string sAtteso = "[12]\r\nP0)   0 -  12\r\nP1)   0 -  12\r\nP2)   3 -  12\r\n"
                                "P3)   0 -  12\r\nP4)   0 -  12\r\nP5)   0 -  12\r\n";
    EXPECT_EQ(Riga(1), (Condizione{"Emulatore", sAtteso, "", "", ""}));
    Modifica(1, [](VistaDialogo& vista) {
        const Parti parti(vista);
        EXPECT_EQ(parti.colonne.text(), "12");
        EXPECT_EQ(parti.Cella(2, 0), "3");
        EXPECT_EQ(parti.Cella(5, 1), "12");
        EXPECT_EQ(parti.casella.text(), "0");
        Clicca(vista, "Conferma");
    });
    EXPECT_EQ(Riga(1).sParametri, sAtteso);
}

TEST_F(FPuntiSuEmulatoreVistaProva, ChiudiNonCambiaNulla)
{
    Apri(emulatore, [](VistaDialogo& vista) {
        Scrivi(vista, "Text2", "12");
        Clicca(vista, "Chiudi");
        EXPECT_FALSE(vista.isVisible());
    });
    EXPECT_TRUE(sistema.GetGridCond().Vuota(1));
}

TEST_F(FPuntiSuEmulatoreVistaProva, LaCasellaSegueLaCellaInUnaFinestraPiccola)
{
    sistema.PoniClasse(10);
    ASSERT_EQ(sistema.classe(), 10);
    Apri(emulatore, [](VistaDialogo& vista) {
        const Parti parti(vista);
        vista.resize(vista.width(), vista.minimumSizeHint().height());
        QCoreApplication::processEvents();
        for (int i = 0; i < 10; ++i) {
            parti.Tasto(Qt::Key_Down);
        }
        EXPECT_EQ(parti.Corrente(), Posto(10, 0));
        EXPECT_GT(parti.foglio.verticalScrollBar()->value(), 0);
        EXPECT_TRUE(parti.Sopra());
        EXPECT_TRUE(parti.foglio.viewport()->rect().contains(parti.casella.geometry().center()));
        parti.foglio.verticalScrollBar()->setValue(0);
        EXPECT_TRUE(parti.Sopra());
        vista.resize(vista.width() * 2, vista.height() * 2);
        QCoreApplication::processEvents();
        EXPECT_TRUE(parti.Sopra());
    });
}

TEST_F(FPuntiSuEmulatoreVistaProva, IlSecondoSiRifiuta)
{
    sistema.GetGridCond().Riga(1).sCondizione = "Emulatore";
    EXPECT_EQ(Avviso([&] { Premi(emulatore); }), "Si può inserire un solo filtro emulatore");
}

} // namespace ordavel::qt
