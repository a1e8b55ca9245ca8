// F_ScegliRuota.hpp - "Scegli ruota per Emulatore": which wheel's draws are emulated.

#pragma once

#include "core/ModGiochi.hpp"
#include "editor/DialogoConferma.hpp"

namespace ordavel {

class ORDAVEL_EXPORT F_ScegliRuota : public DialogoConferma {
public:
    explicit F_ScegliRuota(OspiteDialoghi& ospite)
        : DialogoConferma(ospite, "F_ScegliRuota", "Scegli ruota per Emulatore")
    {
        for (const std::string_view sRuota : Ruote()) {
            CmbRuota.Aggiungi(sRuota);
        }
        CmbRuota.SelezionaPrima();
    }

    /// The chosen wheel, 1 to 11.
    [[nodiscard]] std::int16_t Ruota() const
    {
        return static_cast<std::int16_t>(CmbRuota.Indice.Valore() + 1);
    }

    Combo CmbRuota;
};

} // namespace ordavel
