// OrdavelContenuto.cpp - what a user has stated, taken out of the component and put back.

#include "ordavel/Ordavel.hpp"

#include <algorithm>

namespace ordavel {

ContenutoSistema Ordavel::Contenuto() const
{
    std::int32_t nUltima = kCondizioniMassime;
    while (nUltima > 0 && m_GrdCond.Riga(nUltima) == Condizione{}) {
        --nUltima;
    }
    ContenutoSistema contenuto;
    for (std::int32_t i = 1; i <= nUltima; ++i) {
        contenuto.aCondizioni.push_back(m_GrdCond.Riga(i));
        contenuto.aAltezze.push_back(m_GrdCond.Altezza(i));
    }
    contenuto.numeri = m_Controlli.SelnovoNumeri1.Scelti.Valore();
    contenuto.aQuadro = m_Controlli.LbQuadroRec.Voci.Valore();
    return contenuto;
}

void Ordavel::PoniContenuto(const ContenutoSistema& contenuto, bool bModificato)
{
    if (m_bInCorso) {
        return;
    }
    const auto nRighe = std::min<std::size_t>(contenuto.aCondizioni.size(), kCondizioniMassime);
    const std::int32_t nCorrente = m_GrdCond.Corrente();
    m_GrdCond.Svuota();
    for (std::size_t i = 0; i < nRighe; ++i) {
        m_GrdCond.Riga(static_cast<std::int32_t>(i) + 1) = contenuto.aCondizioni[i];
        if (i < contenuto.aAltezze.size()) {
            m_GrdCond.PoniAltezza(static_cast<std::int32_t>(i) + 1, contenuto.aAltezze[i]);
        }
    }
    m_GrdCond.PoniCorrente(nCorrente);
    m_Controlli.SelnovoNumeri1.Scelti.Poni(contenuto.numeri);
    m_Controlli.LbQuadroRec.Voci.Poni(contenuto.aQuadro);
    DisegnaNumeriProno();
    SegnaModificato();
    m_Modificato = bModificato;
}

} // namespace ordavel
