// Rispondi.hpp - the program answers a dialog in the user's place.

#pragma once

#include "cli/Sessione.hpp"

namespace ordavel::cli {

/// What is done with the dialogs of that type from now on; any other is left unconfirmed.
template <typename Finestra, typename Azione> void Rispondi(Sessione& sessione, Azione azione)
{
    sessione.Desktop().RispondiDialogo([azione](Dialogo& dialogo) {
        if (auto* finestra = dynamic_cast<Finestra*>(&dialogo)) {
            azione(*finestra);
        }
    });
}

} // namespace ordavel::cli
