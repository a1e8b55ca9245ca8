// VistaCondizioni.cpp - which conditions are on show.

#include "ordavel/VistaCondizioni.hpp"

#include <algorithm>

namespace ordavel {

bool VistaCondizioni::IsVisibile(std::int32_t nId) const noexcept
{
    const std::int32_t nPrima = PrimaColonna.Valore();
    return nId >= nPrima && nId < nPrima + ColonneIntere.Valore();
}

void VistaCondizioni::PortaInVista(std::int32_t nId)
{
    const std::int32_t nSeguente = std::min(nId + 1, kCondizioniMassime);
    if (nId < PrimaColonna.Valore()) {
        PrimaColonna.Poni(std::max(nId, 1));
    } else if (!IsVisibile(nSeguente)) {
        PrimaColonna.Poni(std::min(nSeguente - ColonneIntere.Valore() + 1, nId));
    }
}

} // namespace ordavel
