// DisposizioneFluida.cpp - things side by side, line after line.

#include "qt/DisposizioneFluida.hpp"

#include <QWidget>

#include <algorithm>

namespace ordavel::qt {

DisposizioneFluida::DisposizioneFluida(int nSpazio)
{
    setSpacing(nSpazio);
    setContentsMargins(0, 0, 0, 0);
}

DisposizioneFluida::~DisposizioneFluida()
{
    qDeleteAll(m_aVoci);
}

void DisposizioneFluida::addItem(QLayoutItem* voce)
{
    m_aVoci.append(voce);
}

int DisposizioneFluida::count() const
{
    return static_cast<int>(m_aVoci.size());
}

QLayoutItem* DisposizioneFluida::itemAt(int nPosto) const
{
    return m_aVoci.value(nPosto);
}

QLayoutItem* DisposizioneFluida::takeAt(int nPosto)
{
    return nPosto >= 0 && nPosto < count() ? m_aVoci.takeAt(nPosto) : nullptr;
}

int DisposizioneFluida::heightForWidth(int nLargo) const
{
    return Disponi({0, 0, nLargo, 0}, false);
}

void DisposizioneFluida::setGeometry(const QRect& dove)
{
    QLayout::setGeometry(dove);
    Disponi(dove, true);
}

QSize DisposizioneFluida::sizeHint() const
{
    QSize grandezza;
    for (const QLayoutItem* voce : m_aVoci) {
        grandezza.rwidth() += voce->sizeHint().width() + spacing();
        grandezza.setHeight(std::max(grandezza.height(), voce->sizeHint().height()));
    }
    return grandezza;
}

QSize DisposizioneFluida::minimumSize() const
{
    QSize grandezza;
    for (const QLayoutItem* voce : m_aVoci) {
        grandezza = grandezza.expandedTo(voce->minimumSize());
    }
    return grandezza;
}

int DisposizioneFluida::Disponi(const QRect& dove, bool bPosa) const
{
    int nX = dove.x();
    int nY = dove.y();
    int nAlta = 0;
    for (QLayoutItem* voce : m_aVoci) {
        if (voce->isEmpty()) {
            continue;
        }
        const QSize grandezza = voce->sizeHint();
        if (nX > dove.x() && nX + grandezza.width() > dove.right() + 1) {
            nX = dove.x();
            nY += nAlta + spacing();
            nAlta = 0;
        }
        if (bPosa) {
            voce->setGeometry({QPoint(nX, nY), grandezza.boundedTo({dove.width(), grandezza.height()})});
        }
        nX += grandezza.width() + spacing();
        nAlta = std::max(nAlta, grandezza.height());
    }
    return nY + nAlta - dove.y();
}

} // namespace ordavel::qt
