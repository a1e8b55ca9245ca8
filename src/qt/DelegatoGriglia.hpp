// DelegatoGriglia.hpp - paints a cell of the grid: lines of text, centred both ways, cut where the room ends.

#pragma once

#include <QStyledItemDelegate>

class QFont;
class QPainter;
class QRectF;

namespace ordavel::qt {

/// Paints a text inside a room, centred in both directions. Long lines are broken, at best behind a "-"; of what has no
/// room the last line shows "…".
void DipingiRighe(QPainter& penna, const QRectF& dove, const QString& sTesto, const QFont& carattere);

class DelegatoGriglia : public QStyledItemDelegate {
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* penna, const QStyleOptionViewItem& opzioni,
               const QModelIndex& indice) const override;
};

} // namespace ordavel::qt
