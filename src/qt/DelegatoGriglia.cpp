// DelegatoGriglia.cpp - paints a cell of the grid.

#include "qt/DelegatoGriglia.hpp"

#include <QFontMetricsF>
#include <QPainter>
#include <QTextLayout>

#include <algorithm>
#include <cmath>

namespace ordavel::qt {

namespace {

/// No cell has room for more, whatever a file has put there.
constexpr qsizetype kLettereMassime = 2000;

/// With line breaks that a layout understands, and places where a list may be broken.
QString Impaginabile(QString sTesto)
{
    constexpr QChar kSpazioNullo(0x200B);
    return sTesto.replace('\n', QChar(QChar::LineSeparator)).replace("-", QString("-") + kSpazioNullo);
}

void Impagina(QTextLayout& pagina, qreal nLargo)
{
    QTextOption opzioni(Qt::AlignHCenter);
    opzioni.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    pagina.setTextOption(opzioni);
    pagina.beginLayout();
    qreal nY = 0;
    for (QTextLine riga = pagina.createLine(); riga.isValid(); riga = pagina.createLine()) {
        riga.setLineWidth(nLargo);
        riga.setPosition({0, nY});
        nY += riga.height();
    }
    pagina.endLayout();
}

} // namespace

void DipingiRighe(QPainter& penna, const QRectF& dove, const QString& sTesto, const QFont& carattere)
{
    if (sTesto.isEmpty() || dove.width() < 1) {
        return;
    }
    QTextLayout pagina(Impaginabile(sTesto.left(kLettereMassime)), carattere, penna.device());
    Impagina(pagina, dove.width());
    const QFontMetricsF misure(carattere, penna.device());
    const qreal nAlta = pagina.lineAt(0).height();
    const int nStanno = std::max(1, static_cast<int>(std::floor((dove.height() + 1) / nAlta)));
    const bool bTagliato = pagina.lineCount() > nStanno;
    const int nRighe = bTagliato ? nStanno : pagina.lineCount();
    const QPointF inizio(dove.left(), dove.top() + std::max(0.0, (dove.height() - nRighe * nAlta) / 2));
    for (int i = 0; i < nRighe - (bTagliato ? 1 : 0); ++i) {
        pagina.lineAt(i).draw(&penna, inizio);
    }
    if (bTagliato) {
        const QTextLine riga = pagina.lineAt(nRighe - 1);
        const QString sRiga = pagina.text().mid(riga.textStart(), riga.textLength()).trimmed();
        const QRectF ultima(inizio + QPointF(0, (nRighe - 1) * nAlta), QSizeF(dove.width(), nAlta));
        penna.setFont(carattere);
        penna.drawText(ultima, Qt::AlignCenter | Qt::TextSingleLine,
                       misure.elidedText(sRiga + QChar(0x2026), Qt::ElideRight, dove.width()));
    }
}

void DelegatoGriglia::paint(QPainter* penna, const QStyleOptionViewItem& opzioni,
                            const QModelIndex& indice) const
{
    penna->save();
    penna->setClipRect(opzioni.rect);
    const QVariant sfondo = indice.data(Qt::BackgroundRole);
    // Also where there is none of its own: the view has painted the current cell as selected.
    penna->fillRect(opzioni.rect,
                    sfondo.isValid() ? sfondo.value<QColor>() : opzioni.palette.color(QPalette::Base));
    const QVariant tinta = indice.data(Qt::ForegroundRole);
    const bool bAbilitata = opzioni.state.testFlag(QStyle::State_Enabled);
    const auto gruppo = bAbilitata ? QPalette::Active : QPalette::Disabled;
    penna->setPen(tinta.isValid() ? tinta.value<QColor>() : opzioni.palette.color(gruppo, QPalette::Text));
    if (opzioni.state.testFlag(QStyle::State_HasFocus)) {
        penna->drawRect(opzioni.rect.adjusted(0, 0, -1, -1));
        penna->drawRect(opzioni.rect.adjusted(1, 1, -2, -2));
    }
    DipingiRighe(*penna, QRectF(opzioni.rect).adjusted(3, 2, -3, -2), indice.data().toString(),
                 indice.data(Qt::FontRole).value<QFont>());
    penna->restore();
}

} // namespace ordavel::qt
