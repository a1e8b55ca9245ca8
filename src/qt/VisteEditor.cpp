// VisteEditor.cpp - table of windows: the special dialogs of conditions.

#include "qt/CreaVista.hpp"
#include "qt/F_LinkClose_vista.hpp"
#include "qt/F_PuntiSuEmulatore_vista.hpp"
#include "qt/F_PuntiSuFormule_vista.hpp"
#include "qt/F_PuntiSuGruppiDiConsecutivi_vista.hpp"
#include "qt/F_PuntiSuSequenze_vista.hpp"
#include "qt/F_PuntisuColonna_vista.hpp"

#include <array>

namespace ordavel::qt {

std::span<const RigaVista> VisteEditor() noexcept
{
    static constexpr std::array kViste = std::to_array<RigaVista>({
        {"F_LinkClose", &Crea<F_LinkCloseVista, F_LinkClose>},
        {"F_PuntisuColonna", &Crea<F_PuntisuColonnaVista, F_PuntisuColonna>},
        {"F_PuntiSuSequenze", &Crea<F_PuntiSuSequenzeVista, F_PuntiSuSequenze>},
        {"F_PuntiSuGruppiDiConsecutivi",
         &Crea<F_PuntiSuGruppiDiConsecutiviVista, F_PuntiSuGruppiDiConsecutivi>},
        {"F_PuntiSuFormule", &Crea<F_PuntiSuFormuleVista, F_PuntiSuFormule>},
        {"F_PuntiSuEmulatore", &Crea<F_PuntiSuEmulatoreVista, F_PuntiSuEmulatore>},
    });
    return kViste;
}

} // namespace ordavel::qt
