// VistaNumeri_prova.cpp - the selector of numbers under mouse and keyboard.

#include "qt/VistaNumeri.hpp"

#include "ordavel/errore.hpp"

#include <QAccessible>
#include <QImage>
#include <QSignalSpy>
#include <QTest>
#include <gtest/gtest.h>

#include <vector>

namespace ordavel::qt {

namespace {

struct SegnalatoreMuto : Segnalatore {
    void MostraFallimento(std::string_view /*sOrigine*/, const Errore& /*errore*/) override { ++nMostrati; }

    int nMostrati = 0;
};

struct VistaNumeriProva : testing::Test {
    VistaNumeriProva()
    {
        vista.resize(vista.sizeHint());
        vista.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&vista));
        vista.setFocus();
    }

    [[nodiscard]] QPoint Centro(int nNumero) const { return vista.Casella(nNumero).center(); }

    void Clicca(int nNumero) { QTest::mouseClick(&vista, Qt::LeftButton, {}, Centro(nNumero)); }

    /// Pulls from box to box, the button held down.
    void Tira(const std::vector<int>& aNumeri)
    {
        QTest::mousePress(&vista, Qt::LeftButton, {}, Centro(aNumeri.front()));
        for (const int nNumero : aNumeri) {
            QMouseEvent mossa(QEvent::MouseMove, Centro(nNumero), vista.mapToGlobal(Centro(nNumero)),
                              Qt::NoButton, Qt::LeftButton, {});
            QCoreApplication::sendEvent(&vista, &mossa);
        }
        QTest::mouseRelease(&vista, Qt::LeftButton, {}, Centro(aNumeri.back()));
    }

    /// QTest sends the second press alone.
    void DoppioClic(int nNumero)
    {
        Clicca(nNumero);
        QTest::mouseDClick(&vista, Qt::LeftButton, {}, Centro(nNumero));
    }

    void Tasto(Qt::Key tasto) { QTest::keyClick(&vista, tasto); }

    [[nodiscard]] std::vector<int> Scelti() const
    {
        std::vector<int> aScelti;
        for (int n = 1; n <= kNumeroMassimo; ++n) {
            if (numeri.Scelto(n)) {
                aScelti.push_back(n);
            }
        }
        return aScelti;
    }

    [[nodiscard]] QImage Casella(int nNumero) { return vista.grab(vista.Casella(nNumero)).toImage(); }

    SegnalatoreMuto segnalatore;
    SelettoreNumeri numeri;
    Legami legami{segnalatore, "F_Prova"};
    VistaNumeri vista{legami, numeri};
};

using Numeri = std::vector<int>;

} // namespace

TEST_F(VistaNumeriProva, LeCaselleRiempionoLaVistaSenzaSovrapporsi)
{
    for (const QSize misura : {vista.sizeHint(), QSize(403, 287), QSize(1001, 555)}) {
        vista.resize(misura);
        for (int n = 1; n <= kNumeroMassimo; ++n) {
            EXPECT_EQ(vista.NumeroA(vista.Casella(n).topLeft()), n);
            EXPECT_EQ(vista.NumeroA(vista.Casella(n).bottomRight()), n);
        }
        EXPECT_EQ(vista.Casella(90).bottomRight(), vista.rect().bottomRight());
    }
    EXPECT_EQ(vista.NumeroA({-1, 5}), 0);
    EXPECT_EQ(vista.NumeroA({5, 10000}), 0);
}

TEST_F(VistaNumeriProva, UnClicSceglieEUnAltroToglie)
{
    Clicca(7);
    Clicca(90);
    EXPECT_EQ(Scelti(), (Numeri{7, 90}));
    Clicca(7);
    EXPECT_EQ(Scelti(), Numeri{90});
    EXPECT_EQ(vista.Corrente(), 7);
}

TEST_F(VistaNumeriProva, SoloIlTastoSinistroSceglie)
{
    QTest::mouseClick(&vista, Qt::RightButton, {}, Centro(7));
    EXPECT_EQ(Scelti(), Numeri());
}

TEST_F(VistaNumeriProva, TiratoSceglieTutteLeCaselleSulCammino)
{
    Tira({11, 15});
    EXPECT_EQ(Scelti(), (Numeri{11, 12, 13, 14, 15}));
    Tira({5, 25});
    EXPECT_EQ(Scelti(), (Numeri{5, 11, 12, 13, 14, 15, 25}));
    EXPECT_EQ(vista.Corrente(), 25);
}

TEST_F(VistaNumeriProva, TiratoDaUnaSceltaToglie)
{
    Tira({1, 10});
    Clicca(4);
    Tira({2, 6});
    EXPECT_EQ(Scelti(), (Numeri{1, 7, 8, 9, 10}));
}

TEST_F(VistaNumeriProva, TiratoFuoriNonFaNulla)
{
    QTest::mousePress(&vista, Qt::LeftButton, {}, Centro(81));
    const QPointF fuori(-40, vista.height() + 40);
    QMouseEvent mossa(QEvent::MouseMove, fuori, vista.mapToGlobal(fuori), Qt::NoButton, Qt::LeftButton, {});
    QCoreApplication::sendEvent(&vista, &mossa);
    EXPECT_EQ(Scelti(), Numeri{81});
}

TEST_F(VistaNumeriProva, LeCaselleDisabilitateRestanoComeSono)
{
    numeri.Seleziona(3, true);
    SegniNumeri aAbilitati = TuttiINumeri(true);
    aAbilitati(3) = aAbilitati(4) = 0;
    numeri.Abilitati.Poni(aAbilitati);
    Clicca(3);
    Clicca(4);
    EXPECT_EQ(Scelti(), Numeri{3});
    Tira({2, 6});
    EXPECT_EQ(Scelti(), (Numeri{2, 3, 5, 6}));
    Tira({4, 9});
    EXPECT_EQ(Scelti(), (Numeri{2, 3, 5, 6}));
    Tasto(Qt::Key_Home);
    Tasto(Qt::Key_Right);
    Tasto(Qt::Key_Right);
    Tasto(Qt::Key_Space);
    EXPECT_EQ(Scelti(), (Numeri{2, 3, 5, 6}));
}

TEST_F(VistaNumeriProva, IlControlloDisabilitatoNonPrendeNulla)
{
    numeri.Abilitato.Poni(false);
    Clicca(3);
    EXPECT_EQ(Scelti(), Numeri());
}

TEST_F(VistaNumeriProva, LeFrecceMuovonoIlRiquadroDentroLaVista)
{
    EXPECT_EQ(vista.Corrente(), 1);
    const std::vector<std::pair<Qt::Key, int>> aPassi{
        {Qt::Key_Left, 1}, {Qt::Key_Up, 1},     {Qt::Key_Right, 2}, {Qt::Key_Down, 12}, {Qt::Key_Left, 11},
        {Qt::Key_End, 90}, {Qt::Key_Right, 90}, {Qt::Key_Down, 90}, {Qt::Key_Up, 80},   {Qt::Key_Home, 1},
    };
    for (const auto& [tasto, nAtteso] : aPassi) {
        Tasto(tasto);
        EXPECT_EQ(vista.Corrente(), nAtteso);
    }
    EXPECT_EQ(Scelti(), Numeri());
}

TEST_F(VistaNumeriProva, LoSpazioSceglieEToglie)
{
    Tasto(Qt::Key_Down);
    Tasto(Qt::Key_Space);
    EXPECT_EQ(Scelti(), Numeri{11});
    Tasto(Qt::Key_Space);
    EXPECT_EQ(Scelti(), Numeri());
}

TEST_F(VistaNumeriProva, DoppioClicEInvioPassanoOltre)
{
    const QSignalSpy spia(&vista, &VistaNumeri::doubleClicked);
    DoppioClic(8);
    EXPECT_EQ(spia.count(), 1);
    Tasto(Qt::Key_Return);
    Tasto(Qt::Key_Enter);
    EXPECT_EQ(spia.count(), 3);
}

TEST_F(VistaNumeriProva, ConChiAscoltaIlSecondoClicNonToglie)
{
    const QSignalSpy spia(&vista, &VistaNumeri::doubleClicked);
    DoppioClic(8);
    EXPECT_EQ(Scelti(), Numeri{8});
    EXPECT_EQ(spia.count(), 1);
}

TEST_F(VistaNumeriProva, SenzaChiAscoltaDueClicSonoDueClic)
{
    DoppioClic(8);
    EXPECT_EQ(Scelti(), Numeri());
}

TEST_F(VistaNumeriProva, DueClicSvelteSuDueCaselleSonoDueClic)
{
    const QSignalSpy spia(&vista, &VistaNumeri::doubleClicked);
    Clicca(8);
    QMouseEvent doppio(QEvent::MouseButtonDblClick, Centro(9), vista.mapToGlobal(Centro(9)), Qt::LeftButton,
                       Qt::LeftButton, {});
    QCoreApplication::sendEvent(&vista, &doppio);
    EXPECT_EQ(Scelti(), (Numeri{8, 9}));
    EXPECT_EQ(spia.count(), 0);
}

TEST_F(VistaNumeriProva, LoStatoCambiatoAltroveSiVede)
{
    const QImage prima = Casella(5);
    numeri.Seleziona(5, true);
    EXPECT_NE(Casella(5), prima);
    numeri.Svuota();
    EXPECT_EQ(Casella(5), prima);
}

TEST_F(VistaNumeriProva, LaSceltaSiVedeAncheSenzaColore)
{
    auto aColori = numeri.Colori.Valore();
    aColori(5) = {0x00FFFF, 0x000000};
    numeri.Colori.Poni(aColori);
    const QImage prima = Casella(5);
    EXPECT_EQ(prima.pixelColor(prima.width() / 4, 3), QColor(255, 255, 0)) << "yellow: red and green";
    numeri.Seleziona(5, true);
    const QImage dopo = Casella(5);
    EXPECT_NE(dopo, prima);
    EXPECT_EQ(dopo.pixelColor(dopo.width() / 4, 3), QColor(0, 0, 0))
        << "the frame, in the colour of the text";
}

TEST_F(VistaNumeriProva, SiLeggeQuantiEQualeEInMano)
{
    const auto letto = [this](QAccessible::Text quale) {
        return QAccessible::queryAccessibleInterface(&vista)->text(quale);
    };
    EXPECT_EQ(letto(QAccessible::Name), "Numeri scelti: 0");
    EXPECT_EQ(letto(QAccessible::Description), "Numero 1, non scelto");
    Clicca(12);
    EXPECT_EQ(letto(QAccessible::Name), "Numeri scelti: 1");
    EXPECT_EQ(letto(QAccessible::Description), "Numero 12, scelto");
    numeri.Abilitati.Poni(TuttiINumeri(false));
    Tasto(Qt::Key_Right);
    EXPECT_EQ(letto(QAccessible::Description), "Numero 13, non disponibile");
}

TEST_F(VistaNumeriProva, UnaRegolaCheFallisceSiVedeESiFerma)
{
    numeri.Scelti.AlCambio([] { throw Errore(eErrore::indice); });
    Clicca(1);
    EXPECT_EQ(segnalatore.nMostrati, 1);
}

TEST_F(VistaNumeriProva, TagliataNonToccaPiuLoStato)
{
    legami.Taglia();
    Clicca(1);
    Tasto(Qt::Key_Space);
    EXPECT_EQ(Scelti(), Numeri());
}

} // namespace ordavel::qt
