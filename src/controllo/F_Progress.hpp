// F_Progress.hpp - the progress of a text export, with a way out.

#pragma once

#include "editor/DialogoConferma.hpp"

namespace ordavel {

class ORDAVEL_EXPORT F_Progress : public DialogoConferma {
public:
    explicit F_Progress(OspiteDialoghi& ospite) : DialogoConferma(ospite, "F_Progress", "")
    {
        bSempreDavanti = true;
    }

    /// The cancel button: asks "Annullare ?", and on yes the export ends at its next look.
    void Annulla()
    {
        const eRisposta risposta = Ospite().Desktop().MostraMessaggio(
            {.icona = eIcona::domanda, .sTitolo = {}, .sTesto = "Annullare ?", .pulsanti = ePulsanti::siNo});
        if (risposta == eRisposta::si) {
            Ospite().AnnullaExport();
        }
    }

    Barra ProgBarXP1; ///< 0 to 100
};

} // namespace ordavel
