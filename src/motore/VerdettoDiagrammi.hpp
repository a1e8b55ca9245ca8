// VerdettoDiagrammi.hpp - recovery and links over sets of columns.

#pragma once

#include "motore/Diagramma.hpp"
#include "motore/VerdettoBlocchi.hpp"

#include <vector>

namespace ordavel {

/// What the conditions make of all columns, by record.
struct InsiemiCondizioni {
    std::vector<Diagramma> aOk; ///< columns that satisfy it
    std::vector<Diagramma>
        aRec; ///< columns inside its recovery zone; read of members of a group in force alone
};

/// The columns that pass.
/// Fails    TroppiNodi; ConteggioAnnullato
[[nodiscard]] Diagramma ComponiVerdetto(Diagrammi& diagrammi, const PianoVerdetto& piano,
                                        InsiemiCondizioni insiemi);

} // namespace ordavel
