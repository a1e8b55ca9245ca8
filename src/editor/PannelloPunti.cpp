// PannelloPunti.cpp - points for many conditions at once.

#include "editor/PannelloPunti.hpp"

#include "condizioni/ModTestoCelle.hpp"

namespace ordavel {

PannelloPunti::PannelloPunti(std::int16_t nClasse) : m_Esclusione(ChkPunti, ChkRecupero, CmbRecupero)
{
    LoadComboquadroRec(CmbRecupero);
    m_Esclusione.Carica(kValoreListaMassimo);
    CmbRecupero.Indice.AlCambio([this] { m_Esclusione.AbilitaChkRecupero(); });
    for (std::int32_t n = nClasse + 1; n <= kValoreListaMassimo; ++n) {
        ChkPunti(n).Visibile.Poni(false);
        ChkRecupero(n).Visibile.Poni(false);
    }
}

std::string PannelloPunti::Punti() const
{
    return UnisciFlag(ChkPunti.Flag(), "-", false);
}

std::string PannelloPunti::Recupero() const
{
    return UnisciFlag(ChkRecupero.Flag(), "-", false);
}

} // namespace ordavel
