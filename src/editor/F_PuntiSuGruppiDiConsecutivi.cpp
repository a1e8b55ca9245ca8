// F_PuntiSuGruppiDiConsecutivi.cpp - "Punti su gruppi di consecutivi".

#include "editor/F_PuntiSuGruppiDiConsecutivi.hpp"

#include "condizioni/ModParole.hpp"
#include "core/ModNumeri.hpp"
#include "core/ModTesti.hpp"

namespace ordavel {

namespace {

/// The selected number as text; "0" without a selection.
std::string NumeroScelto(const Combo& combo)
{
    return std::to_string(LeggiIntero<std::int32_t>(combo.Testo()));
}

void SelezionaNumero(std::string_view sTesto, Combo& combo)
{
    SelezionaCombo(std::to_string(LeggiIntero<std::int32_t>(sTesto)), combo);
}

} // namespace

F_PuntiSuGruppiDiConsecutivi::F_PuntiSuGruppiDiConsecutivi(OspiteDialoghi& ospite)
    : DialogoLista(ospite, TipoCondizione::gruppiDiConsecutivi, "Punti su gruppi di consecutivi", 0)
{
    CaricaSpunte(ospite.classe());
    CmbPasso.AggiungiNumeri(1, ospite.classe());
    CmbPasso.SelezionaPrima();
    CmbLenGruppo.AggiungiNumeri(2, ospite.classe());
    CmbLenGruppo.SelezionaPrima();
}

ValoriDialogo F_PuntiSuGruppiDiConsecutivi::Valori() const
{
    ValoriDialogo valori = DialogoLista::Valori();
    valori.sPasso = NumeroScelto(CmbPasso);
    valori.sGruppo = NumeroScelto(CmbLenGruppo);
    return valori;
}

void F_PuntiSuGruppiDiConsecutivi::LeggiParametro(std::string_view sCella)
{
    SelezionaNumero(Dietro(sCella, kGruppoDa), CmbLenGruppo);
    SelezionaNumero(Dietro(sCella, kPasso), CmbPasso);
}

} // namespace ordavel
