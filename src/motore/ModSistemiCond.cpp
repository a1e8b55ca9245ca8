// ModSistemiCond.cpp - a whole run.

#include "motore/ModSistemiCond.hpp"

#include "condizioni/ModCompila.hpp"
#include "core/ModGestore.hpp"
#include "core/ModProcessore.hpp"
#include "motore/ModFiltro.hpp"
#include "motore/ModSviluppo.hpp"

namespace ordavel {

namespace {

/// The frame of both forms; `corsa` gets the open destination.
template <typename Corsa>
bool Esegui(const RichiestaSviluppo& richiesta, StatoSviluppo& stato, Avanzamento& avanzamento, Corsa&& corsa)
{
    return ConGestore(avanzamento, "ModSistemiCond.InitSviluppoSistCondizionato",
                      [&] {
                          static_cast<void>(NucleoMigliore()); // fails before anything is touched
                          stato.aCondizioni.assign(1, RecordCondizione{});
                          stato.bStopSviluppo = false;
                          FileBinario file(richiesta.sFile, eApertura::scrittura);
                          LeggiCondizioniDaGriglia(stato.aCondizioni, richiesta.griglia,
                                                   richiesta.aRigheQuadro, stato.aQuadroRec);
                          stato.nCondizioni = static_cast<std::int32_t>(stato.aCondizioni.size());
                          EstendiRecuperiSequenze(stato.aCondizioni);
                          corsa(file);
                          file.Chiudi();
                      }) &&
           !stato.bStopSviluppo;
}

} // namespace

bool InitSviluppoSistCondizionato(const RichiestaSviluppo& richiesta, const NumeriScelti& aNumeri,
                                  StatoSviluppo& stato, Avanzamento& avanzamento)
{
    return Esegui(richiesta, stato, avanzamento, [&](FileBinario& file) {
        SviluppaColonne(aNumeri, richiesta.nClasse, richiesta.nLimite, file, stato, avanzamento);
    });
}

bool InitSviluppoSistCondizionato(const RichiestaSviluppo& richiesta, const std::string& sOrigine,
                                  StatoSviluppo& stato, Avanzamento& avanzamento)
{
    return Esegui(richiesta, stato, avanzamento, [&](FileBinario& file) {
        FiltraFile(sOrigine, richiesta.nClasse, richiesta.nLimite, file, stato, avanzamento);
    });
}

} // namespace ordavel
