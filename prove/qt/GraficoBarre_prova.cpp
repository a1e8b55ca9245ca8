// GraficoBarre_prova.cpp - where bars stand, what is told of them, and how keys and clicks reach them.

#include "qt/GraficoBarre.hpp"

#include <QApplication>
#include <QHelpEvent>
#include <QImage>
#include <QSignalSpy>
#include <QTest>
#include <QToolTip>
#include <gtest/gtest.h>

#include <memory>

namespace ordavel::qt {

namespace {

ContenutoGrafico Contenuto(int nBarre)
{
    ContenutoGrafico contenuto;
    for (int i = 0; i < nBarre; ++i) {
        contenuto.aBarre.push_back({.sValori = QString::number(i),
                                    .sQuota = QString::number(i) + " %",
                                    .sTesto = "barra " + QString::number(i),
                                    .nQuota = 0.1 * (i % 4),
                                    .nQuotaUltime = 0.05 * (i % 3)});
    }
    contenuto.nPostoMedia = 1.5;
    contenuto.sMedia = "1,00";
    contenuto.sUltime = "ultime 10";
    contenuto.sVuoto = "Nessuna estrazione";
    return contenuto;
}

struct Grafico : testing::Test {
    Grafico() { grafico.resize(600, 400); }

    GraficoBarre grafico;
};

} // namespace

TEST_F(Grafico, LeBarreStannoInFilaEAlteQuantoLaQuota)
{
    grafico.Mostra(Contenuto(4));
    ASSERT_EQ(grafico.Barre(), 4);
    for (int i = 0; i < 4; ++i) {
        EXPECT_TRUE(grafico.rect().contains(grafico.Rettangolo(i).topLeft().toPoint())) << i;
        EXPECT_TRUE(grafico.rect().contains(grafico.Rettangolo(i).bottomRight().toPoint())) << i;
        EXPECT_EQ(grafico.BarraIn(grafico.Rettangolo(i).center()), i);
        EXPECT_EQ(grafico.Rettangolo(i).bottom(), grafico.Rettangolo(0).bottom());
    }
    EXPECT_EQ(grafico.Rettangolo(0).height(), 0);
    EXPECT_NEAR(grafico.Rettangolo(2).height(), 2 * grafico.Rettangolo(1).height(), 2);
    EXPECT_NEAR(grafico.Rettangolo(3).height(), 3 * grafico.Rettangolo(1).height(), 2);
    EXPECT_LT(grafico.Rettangolo(0).right(), grafico.Rettangolo(1).left());
    EXPECT_EQ(grafico.BarraIn({1, 200}), -1);
    EXPECT_EQ(grafico.BarraIn({599, 200}), -1);
}

TEST_F(Grafico, LeEtichetteSiDiradanoInveceDiSovrapporsi)
{
    grafico.Mostra(Contenuto(5));
    EXPECT_EQ(grafico.PassoEtichette(), 1);
    EXPECT_TRUE(grafico.QuoteSopra());
    ContenutoGrafico molte = Contenuto(30);
    for (BarraGrafico& barra : molte.aBarre) {
        barra.sValori = "1000-1049";
    }
    grafico.Mostra(molte);
    const int nPasso = grafico.PassoEtichette();
    EXPECT_GT(nPasso, 1);
    EXPECT_FALSE(grafico.QuoteSopra());
    const double nDistanza = grafico.Rettangolo(nPasso).center().x() - grafico.Rettangolo(0).center().x();
    EXPECT_GT(nDistanza, QFontMetricsF(grafico.font()).horizontalAdvance("1000-1049"));
}

TEST_F(Grafico, LeFrecceSpostanoLaBarraEvidenziata)
{
    grafico.Mostra(Contenuto(4));
    const QSignalSpy spia(&grafico, &GraficoBarre::BarraEvidenziata);
    EXPECT_EQ(grafico.Evidenziata(), -1);
    const std::vector<std::pair<Qt::Key, int>> aTasti{
        {Qt::Key_Right, 0}, {Qt::Key_Left, 0}, {Qt::Key_Right, 1}, {Qt::Key_End, 3},
        {Qt::Key_Right, 3}, {Qt::Key_Left, 2}, {Qt::Key_Home, 0}};
    for (const auto& [tasto, nBarra] : aTasti) {
        QTest::keyClick(&grafico, tasto);
        EXPECT_EQ(grafico.Evidenziata(), nBarra);
        EXPECT_EQ(grafico.accessibleDescription(), "barra " + QString::number(nBarra));
    }
    EXPECT_EQ(spia.count(), 5);
    grafico.Evidenzia(9);
    EXPECT_EQ(grafico.Evidenziata(), -1);
    QTest::keyClick(&grafico, Qt::Key_Left);
    EXPECT_EQ(grafico.Evidenziata(), 3);
}

TEST_F(Grafico, UnClicEvidenziaEAltroContenutoNo)
{
    grafico.Mostra(Contenuto(4));
    QTest::mouseClick(&grafico, Qt::LeftButton, {}, grafico.Rettangolo(2).center().toPoint());
    EXPECT_EQ(grafico.Evidenziata(), 2);
    grafico.Mostra(Contenuto(2));
    EXPECT_EQ(grafico.Evidenziata(), -1);
    EXPECT_EQ(grafico.accessibleDescription(), "2 barre, le frecce le scorrono; media 1,00");
}

TEST_F(Grafico, IlSuggerimentoDiceLaBarra)
{
    grafico.Mostra(Contenuto(4));
    grafico.show();
    const QPoint punto = grafico.Rettangolo(3).center().toPoint();
    QHelpEvent aiuto(QEvent::ToolTip, punto, grafico.mapToGlobal(punto));
    QApplication::sendEvent(&grafico, &aiuto);
    EXPECT_EQ(QToolTip::text(), "barra 3");
    QToolTip::hideText();
}

TEST_F(Grafico, SenzaBarreDiceCheNonCeNulla)
{
    grafico.Mostra(Contenuto(0));
    EXPECT_EQ(grafico.accessibleDescription(), "Nessuna estrazione");
    QTest::keyClick(&grafico, Qt::Key_Right);
    EXPECT_EQ(grafico.Evidenziata(), -1);
    EXPECT_EQ(grafico.BarraIn({300, 200}), -1);
    EXPECT_FALSE(grafico.grab().isNull());
}

TEST_F(Grafico, UsaIColoriDellaTavolozza)
{
    for (const auto& [fondo, barra] : {std::pair{QColor(250, 250, 250), QColor(10, 90, 200)},
                                       std::pair{QColor(30, 30, 30), QColor(90, 160, 250)}}) {
        QPalette tavolozza = grafico.palette();
        tavolozza.setColor(QPalette::Base, fondo);
        tavolozza.setColor(QPalette::Highlight, barra);
        grafico.setPalette(tavolozza);
        grafico.Mostra(Contenuto(4));
        const QImage immagine = grafico.grab().toImage();
        const QRectF rettangolo = grafico.Rettangolo(3);
        EXPECT_EQ(immagine.pixelColor(rettangolo.center().toPoint() + QPoint(5, 0)), barra);
        EXPECT_EQ(immagine.pixelColor(QPoint(qRound(rettangolo.left()) - 3, qRound(rettangolo.bottom()) - 3)),
                  fondo);
    }
}

} // namespace ordavel::qt
