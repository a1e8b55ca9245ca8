// CreaDialogo.cpp - from a kind of condition to its dialog.

#include "editor/DialogoCondizione.hpp"
#include "editor/F_LinkClose.hpp"
#include "editor/F_PuntiSu.hpp"
#include "editor/F_PuntiSuEmulatore.hpp"
#include "editor/F_PuntiSuFormule.hpp"
#include "editor/F_PuntiSuGruppiDiConsecutivi.hpp"
#include "editor/F_PuntiSuSequenze.hpp"
#include "editor/F_PuntisuColonna.hpp"

namespace ordavel {

std::unique_ptr<DialogoCondizione> CreaDialogo(OspiteDialoghi& ospite, TipoCondizione tipo)
{
    switch (tipo) {
    case TipoCondizione::linkClose:
        return std::make_unique<F_LinkClose>(ospite);
    case TipoCondizione::puntiColonna:
        return std::make_unique<F_PuntisuColonna>(ospite);
    case TipoCondizione::sequenze:
        return std::make_unique<F_PuntiSuSequenze>(ospite);
    case TipoCondizione::gruppiDiConsecutivi:
        return std::make_unique<F_PuntiSuGruppiDiConsecutivi>(ospite);
    case TipoCondizione::formule:
        return std::make_unique<F_PuntiSuFormule>(ospite);
    case TipoCondizione::emulatore:
        return std::make_unique<F_PuntiSuEmulatore>(ospite);
    default:
        return TrovaDialogo(tipo) == nullptr ? nullptr : std::make_unique<F_PuntiSu>(ospite, tipo);
    }
}

} // namespace ordavel
