// GraficoBarre.cpp - a chart of bars.

#include "qt/GraficoBarre.hpp"

#include <QFontMetricsF>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionFocusRect>
#include <QToolTip>

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

namespace ordavel::qt {

namespace {

constexpr int kLineeScala = 5;
constexpr double kParteBarra = 0.72; ///< of the place of a bar
const QString kTutte = QStringLiteral("tutte le estrazioni");
constexpr double kSegno = 2; ///< thickness of marks and of the highlight

/// A step of 1, 2 or 5 times a power of ten, of which kLineeScala reach a share.
double PassoScala(double nQuota)
{
    const double nGrezzo = std::max(nQuota, 0.001) / kLineeScala;
    const double nDecina = std::pow(10, std::floor(std::log10(nGrezzo)));
    for (const double nCifra : {1.0, 2.0, 5.0}) {
        if (nCifra * nDecina >= nGrezzo * (1 - 1e-9)) {
            return nCifra * nDecina;
        }
    }
    return 10 * nDecina;
}

QString TestoScala(double nQuota, double nPasso)
{
    return QString::number(100 * nQuota, 'f', nPasso < 0.01 ? 1 : 0).replace('.', ',') + " %";
}

/// Between two colours of the palette, where neither alone is quiet enough.
QColor Misto(const QColor& uno, const QColor& due, double nParte)
{
    const auto fra = [nParte](int n, int m) { return static_cast<int>(std::lround(n + (m - n) * nParte)); };
    return {fra(uno.red(), due.red()), fra(uno.green(), due.green()), fra(uno.blue(), due.blue())};
}

double Riga(const QWidget& widget)
{
    return QFontMetricsF(widget.font()).height();
}

} // namespace

GraficoBarre::GraficoBarre(QWidget* padre) : QWidget(padre)
{
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    Descrivi();
}

void GraficoBarre::Mostra(ContenutoGrafico contenuto)
{
    m_Contenuto = std::move(contenuto);
    double nMassima = 0;
    for (const BarraGrafico& barra : m_Contenuto.aBarre) {
        nMassima = std::max({nMassima, barra.nQuota, barra.nQuotaUltime});
    }
    m_nPasso = PassoScala(nMassima);
    m_nScala = m_nPasso * std::max(1.0, std::ceil(nMassima / m_nPasso - 1e-9));
    m_nEvidenziata = -1;
    Descrivi();
    updateGeometry();
    update();
    Q_EMIT BarraEvidenziata(m_nEvidenziata);
}

void GraficoBarre::Evidenzia(int nBarra)
{
    const int nNuova = nBarra < Barre() ? std::max(nBarra, -1) : -1;
    if (nNuova == m_nEvidenziata) {
        return;
    }
    m_nEvidenziata = nNuova;
    Descrivi();
    update();
    Q_EMIT BarraEvidenziata(m_nEvidenziata);
}

/// What a reader of the screen says of the chart.
void GraficoBarre::Descrivi()
{
    if (m_nEvidenziata >= 0) {
        return setAccessibleDescription(Barra(m_nEvidenziata).sTesto);
    }
    setAccessibleDescription(Barre() == 0 ? m_Contenuto.sVuoto
                                          : QStringLiteral("%1 barre, le frecce le scorrono; media %2")
                                                .arg(Barre())
                                                .arg(m_Contenuto.sMedia));
}

const BarraGrafico& GraficoBarre::Barra(int nBarra) const
{
    return m_Contenuto.aBarre[static_cast<std::size_t>(nBarra)];
}

/// Where the bars stand: the scale is left of it, the labels below, the legend and the mean's label above.
QRectF GraficoBarre::Area() const
{
    const double nRiga = Riga(*this);
    const double nScala = QFontMetricsF(font()).horizontalAdvance(TestoScala(1, 0.001)) + nRiga;
    return QRectF(rect()).adjusted(nScala, 3.6 * nRiga, -nRiga, -1.9 * nRiga);
}

double GraficoBarre::Posto() const
{
    return Barre() == 0 ? 0 : Area().width() / Barre();
}

double GraficoBarre::Altezza(double nQuota) const
{
    return Area().height() * nQuota / m_nScala;
}

QRectF GraficoBarre::Rettangolo(int nBarra) const
{
    const QRectF area = Area();
    const double nSinistra = std::round(area.left() + (nBarra + (1 - kParteBarra) / 2) * Posto());
    const double nDestra = std::round(area.left() + (nBarra + (1 + kParteBarra) / 2) * Posto());
    const double nAlto = std::round(area.bottom() - Altezza(Barra(nBarra).nQuota));
    return {QPointF(nSinistra, nAlto), QPointF(std::max(nDestra, nSinistra + 1), std::round(area.bottom()))};
}

int GraficoBarre::BarraIn(const QPointF& punto) const
{
    const QRectF area = Area();
    if (Barre() == 0 || punto.x() < area.left() || punto.x() >= area.right()) {
        return -1;
    }
    return std::min(static_cast<int>((punto.x() - area.left()) / Posto()), Barre() - 1);
}

int GraficoBarre::PassoEtichette() const
{
    const QFontMetricsF misure(font());
    double nLarga = 1;
    for (const BarraGrafico& barra : m_Contenuto.aBarre) {
        nLarga = std::max(nLarga, misure.horizontalAdvance(barra.sValori));
    }
    const double nPosto = std::max(Posto(), 1.0);
    return std::max(1, static_cast<int>(std::ceil((nLarga + misure.horizontalAdvance(' ') * 2) / nPosto)));
}

bool GraficoBarre::QuoteSopra() const
{
    const QFontMetricsF misure(font());
    return std::all_of(m_Contenuto.aBarre.begin(), m_Contenuto.aBarre.end(), [&](const BarraGrafico& barra) {
        return misure.horizontalAdvance(barra.sQuota) + 2 <= Posto();
    });
}

QSize GraficoBarre::sizeHint() const
{
    const int nRiga = static_cast<int>(std::ceil(Riga(*this)));
    return {36 * nRiga, 20 * nRiga};
}

QSize GraficoBarre::minimumSizeHint() const
{
    const int nRiga = static_cast<int>(std::ceil(Riga(*this)));
    const double nLegenda = QFontMetricsF(font()).horizontalAdvance(kTutte + m_Contenuto.sUltime);
    return {static_cast<int>(std::ceil(nLegenda)) + 10 * nRiga, 14 * nRiga};
}

bool GraficoBarre::event(QEvent* evento)
{
    if (evento->type() != QEvent::ToolTip) {
        return QWidget::event(evento);
    }
    const auto* aiuto = static_cast<QHelpEvent*>(evento);
    const int nBarra = BarraIn(aiuto->pos());
    if (nBarra < 0) {
        QToolTip::hideText();
        evento->ignore();
    } else {
        QToolTip::showText(aiuto->globalPos(), Barra(nBarra).sTesto, this);
    }
    return true;
}

void GraficoBarre::keyPressEvent(QKeyEvent* evento)
{
    const int nUltima = Barre() - 1;
    const auto muovi = [&](int nBarra) { Evidenzia(std::clamp(nBarra, 0, nUltima)); };
    if (nUltima < 0) {
        return QWidget::keyPressEvent(evento);
    }
    switch (evento->key()) {
    case Qt::Key_Left:
        return muovi(m_nEvidenziata < 0 ? nUltima : m_nEvidenziata - 1);
    case Qt::Key_Right:
        return muovi(m_nEvidenziata + 1);
    case Qt::Key_Home:
        return muovi(0);
    case Qt::Key_End:
        return muovi(nUltima);
    default:
        QWidget::keyPressEvent(evento);
    }
}

void GraficoBarre::mousePressEvent(QMouseEvent* evento)
{
    Evidenzia(BarraIn(evento->position()));
}

void GraficoBarre::focusInEvent(QFocusEvent* evento)
{
    QWidget::focusInEvent(evento);
    update();
}

void GraficoBarre::focusOutEvent(QFocusEvent* evento)
{
    QWidget::focusOutEvent(evento);
    update();
}

void GraficoBarre::paintEvent(QPaintEvent* /*evento*/)
{
    QPainter pittore(this);
    pittore.fillRect(rect(), palette().base());
    pittore.setPen(palette().color(QPalette::Text));
    if (Barre() == 0) {
        pittore.drawText(rect(), Qt::AlignCenter | Qt::TextWordWrap, m_Contenuto.sVuoto);
    } else {
        DipingiScala(pittore);
        for (int i = 0; i < Barre(); ++i) {
            DipingiBarra(pittore, i);
        }
        DipingiMedia(pittore);
        DipingiEtichette(pittore);
        DipingiLegenda(pittore);
    }
    pittore.setPen(Misto(palette().color(QPalette::Base), palette().color(QPalette::Text), 0.3));
    pittore.drawRect(rect().adjusted(0, 0, -1, -1));
    if (hasFocus()) {
        QStyleOptionFocusRect fuoco;
        fuoco.initFrom(this);
        fuoco.rect = rect().adjusted(2, 2, -2, -2);
        fuoco.backgroundColor = palette().color(QPalette::Base);
        style()->drawPrimitive(QStyle::PE_FrameFocusRect, &fuoco, &pittore, this);
    }
}

void GraficoBarre::DipingiScala(QPainter& pittore) const
{
    const QRectF area = Area();
    const double nRiga = Riga(*this);
    const QColor linea = Misto(palette().color(QPalette::Base), palette().color(QPalette::Text), 0.18);
    const int nLinee = static_cast<int>(std::lround(m_nScala / m_nPasso));
    for (int i = 0; i <= nLinee; ++i) {
        const double nY = std::round(area.bottom() - Altezza(i * m_nPasso));
        pittore.setPen(i == 0 ? palette().color(QPalette::Text) : linea);
        pittore.drawLine(QPointF(area.left(), nY), QPointF(area.right(), nY));
        pittore.setPen(palette().color(QPalette::Text));
        pittore.drawText(QRectF(0, nY - nRiga / 2, area.left() - nRiga / 3, nRiga),
                         Qt::AlignRight | Qt::AlignVCenter, TestoScala(i * m_nPasso, m_nPasso));
    }
}

void GraficoBarre::DipingiBarra(QPainter& pittore, int nBarra) const
{
    const QRectF rettangolo = Rettangolo(nBarra);
    const bool bEvidenziata = nBarra == m_nEvidenziata;
    const QColor colore = palette().color(QPalette::Highlight);
    const bool bAltra = m_nEvidenziata >= 0 && !bEvidenziata;
    pittore.fillRect(rettangolo, bAltra ? Misto(colore, palette().color(QPalette::Base), 0.35) : colore);
    if (bEvidenziata) {
        pittore.setPen(
            QPen(palette().color(QPalette::Text), kSegno, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
        pittore.drawRect(rettangolo);
    }
    const double nUltime = Barra(nBarra).nQuotaUltime;
    if (!m_Contenuto.sUltime.isEmpty() && nUltime > 0) {
        const double nY = std::round(Area().bottom() - Altezza(nUltime));
        const double nOltre = Posto() * (1 - kParteBarra) / 4;
        pittore.fillRect(
            QRectF(rettangolo.left() - nOltre, nY - kSegno / 2, rettangolo.width() + 2 * nOltre, kSegno),
            palette().color(QPalette::Text));
    }
}

/// Where the share of a bar stands: on the bar, or on the mark of the latest draws when that is in the way.
double GraficoBarre::CimaQuota(int nBarra) const
{
    const double nBarraAlta = Altezza(Barra(nBarra).nQuota);
    const double nSegno = Altezza(Barra(nBarra).nQuotaUltime);
    const bool bInMezzo = nSegno > nBarraAlta && nSegno < nBarraAlta + Riga(*this) + 3 * kSegno;
    return Area().bottom() - (bInMezzo ? nSegno : nBarraAlta);
}

void GraficoBarre::DipingiEtichette(QPainter& pittore) const
{
    const QRectF area = Area();
    const double nRiga = Riga(*this);
    const QFontMetricsF misure(font());
    const bool bTutte = QuoteSopra();
    const int nPasso = PassoEtichette();
    pittore.setPen(palette().color(QPalette::Text));
    const auto scrivi = [&](int nBarra, double nY, const QString& sTesto) {
        const double nLarga = misure.horizontalAdvance(sTesto) + 2;
        const double nX = std::clamp(Rettangolo(nBarra).center().x() - nLarga / 2, 0.0, width() - nLarga);
        const QRectF posto(nX, nY, nLarga, nRiga);
        pittore.fillRect(posto, palette().base());
        pittore.drawText(posto, Qt::AlignCenter, sTesto);
    };
    for (int i = 0; i < Barre(); ++i) {
        if (i % nPasso == 0) {
            scrivi(i, area.bottom() + nRiga / 3, Barra(i).sValori);
        }
        if (bTutte || i == m_nEvidenziata) {
            scrivi(i, CimaQuota(i) - nRiga - kSegno, Barra(i).sQuota);
        }
    }
}

void GraficoBarre::DipingiMedia(QPainter& pittore) const
{
    const QRectF area = Area();
    const double nRiga = Riga(*this);
    const double nX = std::round(area.left() + m_Contenuto.nPostoMedia * Posto());
    pittore.setPen(QPen(palette().color(QPalette::Text), 1, Qt::DashLine));
    pittore.drawLine(QPointF(nX, area.top() - nRiga), QPointF(nX, area.bottom()));
    const QString sTesto = "media " + m_Contenuto.sMedia;
    const double nLarga = QFontMetricsF(font()).horizontalAdvance(sTesto) + 2;
    const double nSinistra = std::clamp(nX - nLarga / 2, 0.0, std::max(0.0, width() - nLarga));
    pittore.setPen(palette().color(QPalette::Text));
    pittore.drawText(QRectF(nSinistra, area.top() - 2.1 * nRiga, nLarga, nRiga), Qt::AlignCenter, sTesto);
}

void GraficoBarre::DipingiLegenda(QPainter& pittore) const
{
    const double nRiga = Riga(*this);
    const QFontMetricsF misure(font());
    double nX = Area().left();
    const double nY = nRiga / 3;
    const auto scrivi = [&](const QRectF& segno, QPalette::ColorRole colore, const QString& sTesto) {
        pittore.fillRect(segno.translated(nX, nY), palette().color(colore));
        nX += nRiga * 1.3;
        pittore.drawText(QPointF(nX, nY + misure.ascent()), sTesto);
        nX += misure.horizontalAdvance(sTesto) + nRiga;
    };
    pittore.setPen(palette().color(QPalette::Text));
    scrivi(QRectF(0, nRiga * 0.15, nRiga, nRiga * 0.7), QPalette::Highlight, kTutte);
    if (!m_Contenuto.sUltime.isEmpty()) {
        scrivi(QRectF(0, std::round(nRiga / 2) - kSegno / 2, nRiga, kSegno), QPalette::Text,
               m_Contenuto.sUltime);
    }
}

} // namespace ordavel::qt
