// BarraComandi.hpp - the toolbar of the component as data.

#pragma once

#include "ordavel/Controlli.hpp"

#include <vector>

namespace ordavel {

/// The buttons in their order, with keys, tips, images and menus, enabled as in an empty system.
[[nodiscard]] std::vector<PulsanteStrumento> PulsantiOrdavel();

} // namespace ordavel
