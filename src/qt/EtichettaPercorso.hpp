// EtichettaPercorso.hpp - a label for a path: one that is too long loses its middle, not its name.

#pragma once

#include <QLabel>

namespace ordavel::qt {

class EtichettaPercorso : public QLabel {
    Q_OBJECT

public:
    explicit EtichettaPercorso(QWidget* padre = nullptr);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    /// The whole path as tool tip, where no other is set.
    bool event(QEvent* evento) override;
    void paintEvent(QPaintEvent* evento) override;
};

} // namespace ordavel::qt
