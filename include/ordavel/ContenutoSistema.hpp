// ContenutoSistema.hpp - what a user has stated of a system, as a value: to compare, to keep, to put back.

#pragma once

#include "ordavel/Controlli.hpp"
#include "ordavel/GrigliaCondizioni.hpp"

#include <string>
#include <vector>

namespace ordavel {

struct ContenutoSistema {
    /// Rows 1, 2 ... up to the last that holds anything; an empty one among them stays in its place.
    std::vector<Condizione> aCondizioni;
    /// The height of each of these rows, which is of the looks and plays no part in a comparison.
    std::vector<eAltezza> aAltezze;
    SegniNumeri numeri; ///< 1 for a selected number
    std::vector<std::string> aQuadro;

    [[nodiscard]] friend bool operator==(const ContenutoSistema& a, const ContenutoSistema& b)
    {
        return a.aCondizioni == b.aCondizioni && a.numeri == b.numeri && a.aQuadro == b.aQuadro;
    }
};

} // namespace ordavel
