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
    int nY = dove.y();
    qsizetype nPrima = 0;
    while (nPrima < m_aVoci.size()) {
        const Riga riga = RigaDa(nPrima, dove.width());
        if (bPosa) {
            Posa(nPrima, riga, {dove.x(), nY}, dove.width());
        }
        nPrima = riga.nDopo;
        nY += riga.nAlta + (nPrima < m_aVoci.size() ? spacing() : 0);
    }
    return nY - dove.y();
}

DisposizioneFluida::Riga DisposizioneFluida::RigaDa(qsizetype nPrima, int nLargo) const
{
    Riga riga{nPrima, 0};
    int nX = 0;
    for (; riga.nDopo < m_aVoci.size(); ++riga.nDopo) {
        const QLayoutItem* voce = m_aVoci.at(riga.nDopo);
        if (voce->isEmpty()) {
            continue;
        }
        const QSize grandezza = voce->sizeHint();
        if (nX > 0 && nX + grandezza.width() > nLargo) {
            break;
        }
        nX += grandezza.width() + spacing();
        riga.nAlta = std::max(riga.nAlta, grandezza.height());
    }
    return riga;
}

void DisposizioneFluida::Posa(qsizetype nPrima, const Riga& riga, QPoint angolo, int nLargo) const
{
    for (qsizetype i = nPrima; i < riga.nDopo; ++i) {
        QLayoutItem* voce = m_aVoci.at(i);
        if (voce->isEmpty()) {
            continue;
        }
        const QSize grandezza = voce->sizeHint().boundedTo({nLargo, riga.nAlta});
        voce->setGeometry({angolo + QPoint(0, (riga.nAlta - grandezza.height()) / 2), grandezza});
        angolo.rx() += grandezza.width() + spacing();
    }
}

} // namespace ordavel::qt
