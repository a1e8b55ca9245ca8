// F_LinkClose.cpp - "LinkClose".

#include "editor/F_LinkClose.hpp"

#include "condizioni/ModRighe.hpp"
#include "core/ModNumeri.hpp"
#include "core/ModTesti.hpp"

#include <algorithm>

namespace ordavel {

F_LinkClose::F_LinkClose(OspiteDialoghi& ospite)
    : DialogoCondizione(ospite, TipoCondizione::linkClose, "LinkClose")
{}

void F_LinkClose::LoadchkPunti(std::int32_t n)
{
    for (std::int32_t i = 0; i <= std::min<std::int32_t>(n, kNumeroMassimo); ++i) {
        List1.Aggiungi(std::to_string(i));
    }
}

void F_LinkClose::GuardaRighe(const GrigliaCondizioni& griglia, std::int32_t nRiga)
{
    LoadchkPunti(ContaCondizioniLink(griglia, nRiga - 1));
}

std::string F_LinkClose::GetPunti() const
{
    Unione unione("-");
    const auto& aScelte = List1.Scelte.Valore();
    for (std::size_t i = 0; i < aScelte.size(); ++i) {
        if (aScelte[i]) {
            unione.Aggiungi(std::to_string(i));
        }
    }
    return unione.Testo();
}

Condizione F_LinkClose::GetParametri() const
{
    Condizione celle = DialogoCondizione::GetParametri();
    celle.sPunti = GetPunti();
    return celle;
}

void F_LinkClose::LeggiPunti(const GrigliaCondizioni& griglia)
{
    const double nUltimo = static_cast<double>(List1.Voci.Valore().size()) - 1;
    for (const std::string_view sPosto : Dividi(griglia.Riga(griglia.Corrente()).sPunti, "-")) {
        if (LeggiNumero(sPosto) <= nUltimo) {
            List1.Seleziona(LeggiIntero<std::uint32_t>(sPosto), true);
        }
    }
}

} // namespace ordavel
