// LimitiRighe_vista.hpp - the rows "Dalla N" and "Alla N" of a run of conditions.

#pragma once

#include "editor/LimitiRighe.hpp"
#include "qt/Legami.hpp"

class QFormLayout;

namespace ordavel::qt {

/// The two combos with their labels, bound.
[[nodiscard]] QFormLayout* NuoviLimiti(Legami& legami, LimitiRighe& dialogo);

} // namespace ordavel::qt
