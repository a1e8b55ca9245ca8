// VistaStriscia.hpp - the strip of numbers: a drawing of texts at their places.

#pragma once

#include "qt/Legami.hpp"

#include <QWidget>

namespace ordavel::qt {

class VistaStriscia : public QWidget {
    Q_OBJECT

public:
    /// Takes    disegno      what is drawn; its owner places the texts in the font of the component
    ///          carattere    that font
    VistaStriscia(Disegno& disegno, Legami& legami, const QFont& carattere, QWidget* padre = nullptr);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* evento) override;

private:
    const Disegno& m_Disegno;
};

} // namespace ordavel::qt
