// Colori.cpp - colours on a light and on a dark ground.

#include "qt/Colori.hpp"

#include <algorithm>
#include <cmath>

namespace ordavel::qt {

namespace {

constexpr double kContrastoTesto = 4.5;
constexpr int kSogliaScura = 128;

double Lineare(int nByte)
{
    const double nCanale = nByte / 255.0;
    return nCanale <= 0.03928 ? nCanale / 12.92 : std::pow((nCanale + 0.055) / 1.055, 2.4);
}

double Luminanza(const QColor& colore)
{
    return 0.2126 * Lineare(colore.red()) + 0.7152 * Lineare(colore.green()) +
           0.0722 * Lineare(colore.blue());
}

} // namespace

QColor ColoreQt(Colore nColore)
{
    return {nColore & 0xFF, (nColore >> 8) & 0xFF, (nColore >> 16) & 0xFF};
}

Colore ColoreOrdavel(const QColor& colore)
{
    return colore.red() | colore.green() << 8 | colore.blue() << 16;
}

bool Scura(const QPalette& tavolozza)
{
    return tavolozza.color(QPalette::Window).lightness() < kSogliaScura;
}

QColor ColoreAccento(const QPalette& tavolozza)
{
    return Scura(tavolozza) ? QColor(0x6C, 0xB4, 0xF5) : QColor(0x15, 0x65, 0xC0);
}

QColor ColoreAvviso(const QPalette& tavolozza)
{
    return Scura(tavolozza) ? QColor(0xFF, 0x8A, 0x80) : QColor(0xB7, 0x1C, 0x1C);
}

double Contrasto(const QColor& uno, const QColor& altro)
{
    const double nUno = Luminanza(uno);
    const double nAltro = Luminanza(altro);
    return (std::max(nUno, nAltro) + 0.05) / (std::min(nUno, nAltro) + 0.05);
}

QColor TestoSu(const QColor& sfondo)
{
    return Contrasto(Qt::white, sfondo) > Contrasto(Qt::black, sfondo) ? Qt::white : Qt::black;
}

QColor LeggibileSu(const QColor& colore, const QColor& sfondo)
{
    const QColor meta = TestoSu(sfondo);
    QColor provato = colore;
    // Towards black or white in tenths, until it is read.
    for (int i = 1; i <= 10 && Contrasto(provato, sfondo) < kContrastoTesto; ++i) {
        const auto misto = [i](int nDa, int nA) { return nDa + (nA - nDa) * i / 10; };
        provato = QColor(misto(colore.red(), meta.red()), misto(colore.green(), meta.green()),
                         misto(colore.blue(), meta.blue()));
    }
    return provato;
}

} // namespace ordavel::qt
