// VistaStriscia.cpp - the strip of numbers.
//
// The colours of the picks are bright green and dark blue, which no one ground carries both. A green text stands on a
// plaque of its own, which also tells the picks from the others without colour; the blue one is made readable.

#include "qt/VistaStriscia.hpp"

#include "qt/Colori.hpp"

#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>

namespace ordavel::qt {

namespace {

constexpr int kContrastoMinimo = 3;
constexpr double kMargine = 2;
const QColor kPlacca(0x0B, 0x3D, 0x1C);

} // namespace

VistaStriscia::VistaStriscia(Disegno& disegno, Legami& legami, const QFont& carattere, QWidget* padre)
    : QWidget(padre), m_Disegno(disegno)
{
    setObjectName("PicProno");
    setAccessibleName("Numeri del pronostico");
    setFont(carattere);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    legami.collega(static_cast<Controllo&>(disegno), this);
    legami.Segui(disegno.Scritte, this, [this](const std::vector<Scritta>& aScritte) {
        setAccessibleDescription(QString("%1 caselle").arg(aScritte.size()));
        update();
    });
}

QSize VistaStriscia::sizeHint() const
{
    double nLargo = 0;
    for (const Scritta& scritta : m_Disegno.Scritte.Valore()) {
        nLargo = std::max(nLargo, scritta.nX + QFontMetricsF(font()).horizontalAdvance("00 "));
    }
    return {static_cast<int>(nLargo), m_Disegno.Altezza.Valore()};
}

QSize VistaStriscia::minimumSizeHint() const
{
    return {0, m_Disegno.Altezza.Valore()};
}

void VistaStriscia::paintEvent(QPaintEvent* /*evento*/)
{
    QPainter pennello(this);
    pennello.setRenderHint(QPainter::Antialiasing);
    // A window that is too narrow shows all numbers smaller.
    const double nScala = std::min(1.0, width() / static_cast<double>(std::max(1, sizeHint().width())));
    pennello.scale(nScala, nScala);
    const QFontMetricsF misure(font());
    const QColor sfondo = palette().color(QPalette::Window);
    for (const Scritta& scritta : m_Disegno.Scritte.Valore()) {
        const QString sTesto = Testo(scritta.sTesto);
        const QRectF casella(scritta.nX, scritta.nY, misure.horizontalAdvance(sTesto), misure.height());
        QColor colore = ColoreQt(scritta.nColore);
        if (colore.lightness() > 100 && Contrasto(colore, kPlacca) > kContrastoMinimo) {
            pennello.setPen(Qt::NoPen);
            pennello.setBrush(kPlacca);
            pennello.drawRoundedRect(casella.adjusted(-kMargine, 0, kMargine, 0), kMargine * 2, kMargine * 2);
        } else {
            colore = LeggibileSu(colore, sfondo);
        }
        pennello.setPen(isEnabled() ? colore : palette().color(QPalette::Disabled, QPalette::WindowText));
        pennello.drawText(casella, Qt::AlignCenter, sTesto);
    }
}

} // namespace ordavel::qt
