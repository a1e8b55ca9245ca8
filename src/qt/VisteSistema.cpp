// VisteSistema.cpp - table of windows.

#include "qt/CreaVista.hpp"
#include "qt/F_ApriCondizioni_vista.hpp"
#include "qt/F_DelCondizioni_vista.hpp"
#include "qt/F_EffettoCond_vista.hpp"
#include "qt/F_ImpostaPunti_vista.hpp"
#include "qt/F_InsColonne_vista.hpp"
#include "qt/F_NavigaSistema_vista.hpp"
#include "qt/F_Progress_vista.hpp"
#include "qt/F_QuadroRecuperi_vista.hpp"
#include "qt/F_Riduzione_vista.hpp"
#include "qt/F_SalvaCondizioni_vista.hpp"
#include "qt/F_ScegliRuota_vista.hpp"
#include "qt/F_Spoglio_vista.hpp"
#include "qt/F_VisualizzaColonne_vista.hpp"

#include <array>

namespace ordavel::qt {

std::span<const RigaVista> VisteSistema() noexcept
{
    static constexpr std::array kViste = std::to_array<RigaVista>({
        {"F_ApriCondizioni", &Crea<F_ApriCondizioniVista, F_ApriCondizioni>},
        {"F_DelCondizioni", &Crea<F_DelCondizioniVista, F_DelCondizioni>},
        {"F_EffettoCond", &Crea<F_EffettoCondVista, F_EffettoCond>},
        {"F_ImpostaPunti", &Crea<F_ImpostaPuntiVista, F_ImpostaPunti>},
        {"F_InsColonne", &Crea<F_InsColonneVista, F_InsColonne>},
        {"F_NavigaSistema", &Crea<F_NavigaSistemaVista, F_NavigaSistema>},
        {"F_Progress", &Crea<F_ProgressVista, F_Progress>},
        {"F_QuadroRecuperi", &Crea<F_QuadroRecuperiVista, F_QuadroRecuperi>},
        {"F_Riduzione", &Crea<F_RiduzioneVista, F_Riduzione>},
        {"F_SalvaCondizioni", &Crea<F_SalvaCondizioniVista, F_SalvaCondizioni>},
        {"F_ScegliRuota", &Crea<F_ScegliRuotaVista, F_ScegliRuota>},
        {"F_Spoglio", &Crea<F_SpoglioVista, F_Spoglio>},
        {"F_VisualizzaColonne", &Crea<F_VisualizzaColonneVista, F_VisualizzaColonne>},
    });
    return kViste;
}

} // namespace ordavel::qt
