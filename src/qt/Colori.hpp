// Colori.hpp - from the colours of the logic to those of Qt.

#pragma once

#include "ordavel/Controlli.hpp"

#include <QColor>

namespace ordavel::qt {

/// 0xBBGGRR as Qt has it.
[[nodiscard]] inline QColor ColoreDi(Colore nColore)
{
    return {nColore & 0xFF, nColore >> 8 & 0xFF, nColore >> 16 & 0xFF};
}

} // namespace ordavel::qt
