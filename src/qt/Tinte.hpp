// Tinte.hpp - the colours that the logic names, as the screen's, and what can be read on them.

#pragma once

#include "ordavel/Controlli.hpp"

#include <QColor>

namespace ordavel::qt {

/// A colour of the logic, 0xBBGGRR.
[[nodiscard]] inline QColor Tinta(Colore nColore)
{
    return {nColore & 0xFF, (nColore >> 8) & 0xFF, (nColore >> 16) & 0xFF};
}

/// Black or white, whichever stands out more on a ground.
[[nodiscard]] inline QColor TestoLeggibile(const QColor& sfondo)
{
    // Weights of the three for the eye; above this lightness black has the better contrast.
    const int nChiarezza = (sfondo.red() * 299 + sfondo.green() * 587 + sfondo.blue() * 114) / 1000;
    return nChiarezza > 128 ? QColor(Qt::black) : QColor(Qt::white);
}

} // namespace ordavel::qt
