// Icone_prova.cpp - the drawn icons, in the colours of the palette.

#include "qt/Icone.hpp"

#include "controllo/BarraComandi.hpp"
#include "qt/Colori.hpp"
#include "qt/Legami.hpp"

#include <QApplication>
#include <QImage>
#include <QPalette>
#include <gtest/gtest.h>

namespace ordavel::qt {

namespace {

/// The darkest and the lightest of what is drawn.
std::pair<int, int> Chiarezze(const QIcon& icona, QIcon::Mode modo = QIcon::Normal)
{
    const QImage immagine = icona.pixmap(QSize(48, 48), modo).toImage();
    std::pair<int, int> estremi{255, 0};
    for (int y = 0; y < immagine.height(); ++y) {
        for (int x = 0; x < immagine.width(); ++x) {
            const QColor punto = immagine.pixelColor(x, y);
            if (punto.alpha() > 200) {
                estremi.first = std::min(estremi.first, punto.lightness());
                estremi.second = std::max(estremi.second, punto.lightness());
            }
        }
    }
    return estremi;
}

struct TavolozzaProvvisoria {
    explicit TavolozzaProvvisoria(const QPalette& nuova) { QApplication::setPalette(nuova); }
    TavolozzaProvvisoria(const TavolozzaProvvisoria&) = delete;
    TavolozzaProvvisoria& operator=(const TavolozzaProvvisoria&) = delete;
    ~TavolozzaProvvisoria() { QApplication::setPalette(m_Prima); }

private:
    QPalette m_Prima = QApplication::palette();
};

} // namespace

TEST(Icone, OgniPulsanteHaLaSuaImmagine)
{
    for (const PulsanteStrumento& pulsante : PulsantiOrdavel()) {
        const QIcon icona = Icona(Testo(pulsante.sImmagine));
        ASSERT_FALSE(icona.isNull()) << pulsante.sImmagine;
        EXPECT_LE(Chiarezze(icona).first, Chiarezze(icona).second) << pulsante.sImmagine << " è vuota";
    }
    EXPECT_FALSE(Icona("Pulisci").isNull());
}

TEST(Icone, UnaChiaveSconosciutaEUnIconaVuota)
{
    EXPECT_TRUE(Icona("inesistente").isNull());
}

TEST(Icone, SuFondoScuroIlTrattoEChiaro)
{
    const QIcon icona = Icona("save");
    EXPECT_LT(Chiarezze(icona).first, 80);
    QPalette scura = QApplication::palette();
    scura.setColor(QPalette::ButtonText, Qt::white);
    scura.setColor(QPalette::Window, Qt::black);
    const TavolozzaProvvisoria provvisoria(scura);
    EXPECT_GT(Chiarezze(icona).second, 200);
}

TEST(Colori, AndataERitornoDallOrdineDeiByte)
{
    EXPECT_EQ(ColoreQt(0xAA1111), QColor(0x11, 0x11, 0xAA));
    for (const Colore nColore : {0x00FF00, 0xFF8080, 0x80FFFF, 0x123456}) {
        EXPECT_EQ(ColoreOrdavel(ColoreQt(nColore)), nColore);
    }
}

TEST(Colori, IlContrastoVaDaUnoAVentuno)
{
    EXPECT_NEAR(Contrasto(Qt::white, Qt::black), 21, 0.01);
    EXPECT_NEAR(Contrasto(Qt::red, Qt::red), 1, 0.01);
}

TEST(Colori, OgniColoreDiventaLeggibileSuOgniFondo)
{
    for (const QColor& sfondo : {QColor(Qt::white), QColor(Qt::black), QColor(0x30, 0x30, 0x30)}) {
        for (const Colore nColore : {0xAA1111, 0x00FF00, 0x80FFFF}) {
            EXPECT_GE(Contrasto(LeggibileSu(ColoreQt(nColore), sfondo), sfondo), 4.5);
        }
        EXPECT_GE(Contrasto(TestoSu(sfondo), sfondo), 4.5);
    }
}

} // namespace ordavel::qt
