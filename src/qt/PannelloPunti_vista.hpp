// PannelloPunti_vista.hpp - the boxes of a panel that writes the same points into many rows.

#pragma once

#include "editor/PannelloPunti.hpp"
#include "qt/Legami.hpp"

class QBoxLayout;

namespace ordavel::qt {

/// The frames "Punti" and "Recupero" side by side, bound.
[[nodiscard]] QBoxLayout* NuovoPannelloPunti(Legami& legami, PannelloPunti& pannello);

} // namespace ordavel::qt
