// OrdavelConta.cpp - the system as it stands, counted without a file.

#include "ordavel/Ordavel.hpp"

#include "condizioni/ModCompila.hpp"
#include "emulatore/ModEmulatore.hpp"

namespace ordavel {

SistemaDaContare Ordavel::PreparaConteggio() const
{
    SistemaDaContare sistema;
    sistema.nClasse = classe();
    sistema.aNumeri = GetNumeriSel();
    StatoSviluppo& stato = sistema.stato;
    LeggiCondizioniDaGriglia(stato.aCondizioni, m_GrdCond, m_Controlli.LbQuadroRec.Voci.Valore(),
                             stato.aQuadroRec);
    EstendiRecuperiSequenze(stato.aCondizioni);
    stato.nCondizioni = static_cast<std::int32_t>(stato.aCondizioni.size());
    if (IsCondizionePresente("Emulatore")) {
        std::vector<RigaEmulatore> aRighe(1);
        LeggiFileEmulatore(m_PercorsoTemp + "Emulatore.dat", aRighe);
        stato.aEmulatore = RigheEmulatore(std::move(aRighe));
    }
    return sistema;
}

std::optional<ConteggioSistema> Ordavel::ContaSistema(const OpzioniConteggio& opzioni,
                                                      const ContoAnnullato& annullato,
                                                      const StimaPronta& stima) const
{
    return ordavel::ContaSistema(PreparaConteggio(), opzioni, annullato, stima);
}

} // namespace ordavel
