// DelegatoGriglia_prova.cpp - texts stand in the middle of their cell, and never beyond it.

#include "qt/DelegatoGriglia.hpp"

#include <QFontMetrics>
#include <QImage>
#include <QPainter>
#include <gtest/gtest.h>

namespace ordavel::qt {

namespace {

constexpr int kLarga = 120;
constexpr int kAlta = 80;
constexpr int kBordo = 20;

/// The rectangle that holds all that was painted of a text into the middle of an image.
QRect Inchiostro(const QString& sTesto, const QFont& carattere = QFont())
{
    QImage figura(kLarga + 2 * kBordo, kAlta + 2 * kBordo, QImage::Format_RGB32);
    figura.fill(Qt::white);
    QPainter penna(&figura);
    DipingiRighe(penna, QRectF(kBordo, kBordo, kLarga, kAlta), sTesto, carattere);
    penna.end();
    QRect tutto;
    for (int nY = 0; nY < figura.height(); ++nY) {
        for (int nX = 0; nX < figura.width(); ++nX) {
            if (figura.pixelColor(nX, nY) != Qt::white) {
                tutto |= QRect(nX, nY, 1, 1);
            }
        }
    }
    return tutto;
}

const QRect kPosto(kBordo, kBordo, kLarga, kAlta);

} // namespace

TEST(DelegatoGriglia, UnTestoStaNelMezzo)
{
    const QRect tutto = Inchiostro("HHH\nHHH");
    EXPECT_TRUE(kPosto.contains(tutto));
    EXPECT_NEAR(tutto.center().x(), kPosto.center().x(), 2);
    EXPECT_NEAR(tutto.center().y(), kPosto.center().y(), 4);
    EXPECT_GT(tutto.height(), QFontMetrics(QFont()).height());
}

TEST(DelegatoGriglia, UnTestoLungoVaACapoDopoUnTrattino)
{
    const QRect tutto = Inchiostro("11111-11111-11111-11111-11111");
    EXPECT_TRUE(kPosto.contains(tutto));
    EXPECT_GT(tutto.height(), QFontMetrics(QFont()).height());
}

TEST(DelegatoGriglia, QuelCheNonCiStaSiTaglia)
{
    EXPECT_TRUE(kPosto.contains(Inchiostro(QString("H\n").repeated(40))));
    EXPECT_TRUE(kPosto.contains(Inchiostro(QString("H").repeated(5000))));
}

TEST(DelegatoGriglia, UnTestoEnormeCostaComeUnoGrande)
{
    EXPECT_TRUE(kPosto.contains(Inchiostro(QString("1-2-3\n").repeated(2000000))));
    EXPECT_TRUE(Inchiostro({}).isNull());
}

} // namespace ordavel::qt
