// F_PuntisuColonna.cpp - "Punti su colonna".

#include "editor/F_PuntisuColonna.hpp"

#include "core/ModNumeri.hpp"
#include "core/ModTesti.hpp"

namespace ordavel {

F_PuntisuColonna::F_PuntisuColonna(OspiteDialoghi& ospite)
    : DialogoLista(ospite, TipoCondizione::puntiColonna, "Punti su colonna", 0)
{
    CaricaSpunte(ospite.classe());
}

void F_PuntisuColonna::AbilitaNum(const SelettoreNumeri& numeri)
{
    SelnovoNumeri1.Abilitati.Poni(numeri.Scelti.Valore());
}

ValoriDialogo F_PuntisuColonna::Valori() const
{
    ValoriDialogo valori = DialogoLista::Valori();
    for (std::int32_t n = 1; n <= kNumeroMassimo; ++n) {
        valori.aNumeri(n) = ComeBooleano(SelnovoNumeri1.Scelto(n));
    }
    return valori;
}

void F_PuntisuColonna::LeggiParametro(std::string_view sCella)
{
    const std::string sLista = Sostituisci(sCella, kCrLf, "");
    for (const std::string_view sNumero : Dividi(sLista, "-")) {
        SelnovoNumeri1.Seleziona(LeggiIntero<std::int32_t>(sNumero), true);
    }
}

} // namespace ordavel
