// CreaVista.cpp - from a dialog to its window.

#include "qt/CreaVista.hpp"

#include "editor/F_PuntiSu.hpp"
#include "qt/F_PuntiSu_vista.hpp"

#include <algorithm>
#include <array>

namespace ordavel::qt {

std::unique_ptr<VistaDialogo> CreaVista(Dialogo& dialogo, PiattaformaQt& piattaforma, QWidget* padre)
{
    if (auto* comune = dynamic_cast<F_PuntiSu*>(&dialogo)) {
        return std::make_unique<F_PuntiSuVista>(*comune, piattaforma, padre);
    }
    for (const std::span<const RigaVista> aViste : {VisteEditor(), VisteSistema()}) {
        const auto riga = std::find_if(aViste.begin(), aViste.end(),
                                       [&](const RigaVista& r) { return r.sNome == dialogo.sNome; });
        if (riga != aViste.end()) {
            return riga->crea(dialogo, piattaforma, padre);
        }
    }
    throw Errore(eErrore::membro, dialogo.sNome);
}

} // namespace ordavel::qt
