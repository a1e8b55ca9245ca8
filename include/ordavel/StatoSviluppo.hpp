// StatoSviluppo.hpp - what one development shares between its procedures.

#pragma once

#include "ordavel/RigheEmulatore.hpp"
#include "ordavel/records.hpp"

#include <vector>

namespace ordavel {

/// One record of a link's working copy: all that a collapse reads.
struct VoceLink {
    TipoCondizione Tipo = TipoCondizione::nessuno;
    Booleano Esito = kFalso;
};

/// The state of a development. The component has one; a scratch check makes another and pays nothing for it.
struct StatoSviluppo {
    std::vector<RecordCondizione> aCondizioni{1}; ///< compiled conditions in grid order; never empty
    std::int32_t nCondizioni = 1;                 ///< upper bound of aCondizioni plus 1
    QuadroRecuperi aQuadroRec;
    bool bStopSviluppo = false;      ///< set by the stop command, read at each refresh
    bool bEmulatoreCaricato = false; ///< a run has looked for draws, and set aEmulatore
    RigheEmulatore aEmulatore;       ///< draws of the emulator; one zero row when none is loaded

    std::int32_t nSviluppate = 0;   ///< columns examined in the last run
    std::int32_t nCondizionate = 0; ///< columns kept in the last run

    std::vector<VoceLink>
        aLavoroLink; ///< working copy of the links, kept between columns to spare allocations
};

} // namespace ordavel
