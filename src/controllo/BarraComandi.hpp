// BarraComandi.hpp - the toolbar of the component as data.

#pragma once

#include "ordavel/Controlli.hpp"

#include <string_view>
#include <vector>

namespace ordavel {

/// The buttons in their order, with keys, tips, images and menus, enabled as in an empty system.
[[nodiscard]] std::vector<PulsanteStrumento> PulsantiOrdavel();

/// The kind of condition that an entry of the menu "Condizioni" inserts, by its key, case does not count.
/// Gives    `nessuno` for any other key
[[nodiscard]] TipoCondizione TipoDiVoce(std::string_view sChiave) noexcept;

} // namespace ordavel
