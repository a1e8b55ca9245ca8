// Colori.hpp - colours that must be told apart on a light and on a dark ground.

#pragma once

#include "ordavel/Controlli.hpp"

#include <QColor>
#include <QPalette>

namespace ordavel::qt {

/// 0xBBGGRR as the logic has it.
[[nodiscard]] QColor ColoreQt(Colore nColore);
[[nodiscard]] Colore ColoreOrdavel(const QColor& colore);

/// Is the ground of windows dark?
[[nodiscard]] bool Scura(const QPalette& tavolozza);

/// What leads the eye, and what warns.
[[nodiscard]] QColor ColoreAccento(const QPalette& tavolozza);
[[nodiscard]] QColor ColoreAvviso(const QPalette& tavolozza);

/// Contrast of two colours, 1 (none) to 21.
/// Source   WCAG 2.1, relative luminance and contrast ratio
[[nodiscard]] double Contrasto(const QColor& uno, const QColor& altro);

/// Black or white, whichever is read better on a ground.
[[nodiscard]] QColor TestoSu(const QColor& sfondo);

/// A colour of the same hue that is read on a ground, with a contrast of 4.5 or as near as it gets.
[[nodiscard]] QColor LeggibileSu(const QColor& colore, const QColor& sfondo);

} // namespace ordavel::qt
