// Icone.hpp - the drawn icons: one set, whose colours follow the palette.

#pragma once

#include <QIcon>

namespace ordavel::qt {

/// The icon of an image key of the toolbar ("open"), or "annulla", "ripeti", "ordavel". It is drawn when it is
/// painted, in the colours of the palette of that moment, at any size. An unknown key has an empty icon.
[[nodiscard]] QIcon Icona(const QString& sChiave);

} // namespace ordavel::qt
