// EtichettaPercorso.cpp - a label for a path.

#include "qt/EtichettaPercorso.hpp"

#include <QHelpEvent>
#include <QStyle>
#include <QStyleOptionFrame>
#include <QStylePainter>
#include <QToolTip>

namespace ordavel::qt {

namespace {

constexpr int kCaratteri = 48;
constexpr int kCaratteriMinimi = 16;

} // namespace

EtichettaPercorso::EtichettaPercorso(QWidget* padre) : QLabel(padre)
{
    setTextFormat(Qt::PlainText);
    setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
    setMargin(2);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

QSize EtichettaPercorso::sizeHint() const
{
    return {kCaratteri * fontMetrics().averageCharWidth(), QLabel::sizeHint().height()};
}

QSize EtichettaPercorso::minimumSizeHint() const
{
    return {kCaratteriMinimi * fontMetrics().averageCharWidth(), QLabel::minimumSizeHint().height()};
}

bool EtichettaPercorso::event(QEvent* evento)
{
    if (evento->type() == QEvent::ToolTip && toolTip().isEmpty()) {
        QToolTip::showText(static_cast<QHelpEvent*>(evento)->globalPos(), text(), this);
        return true;
    }
    return QLabel::event(evento);
}

void EtichettaPercorso::paintEvent(QPaintEvent* /*evento*/)
{
    QStylePainter pittore(this);
    QStyleOptionFrame cornice;
    initStyleOption(&cornice);
    pittore.drawControl(QStyle::CE_ShapedFrame, cornice);
    const QRect dentro = contentsRect().adjusted(margin(), 0, -margin(), 0);
    pittore.drawItemText(dentro, Qt::AlignVCenter | Qt::AlignLeft, palette(), isEnabled(),
                         fontMetrics().elidedText(text(), Qt::ElideMiddle, dentro.width()), foregroundRole());
}

} // namespace ordavel::qt
