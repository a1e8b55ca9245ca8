// OrdavelSistema.cpp - the system file: saved and opened.

#include "ordavel/Ordavel.hpp"

#include "condizioni/ModCompila.hpp"
#include "condizioni/ModTestoCelle.hpp"
#include "core/FileBinario.hpp"
#include "core/ModFunzGeneriche.hpp"
#include "core/ModGestore.hpp"
#include "core/ModTesti.hpp"
#include "persistenza/ModFileSistema.hpp"

namespace ordavel {

namespace {

constexpr std::string_view kFiltroSistemi = "Sistemi condizionati (*.sic)|*.sic";

std::string LineaQuadro(const VoceRecupero& voce)
{
    return std::to_string(voce.MinPunti) + "," + std::to_string(voce.MaxPunti) + "," +
           std::to_string(voce.Attiva);
}

} // namespace

bool Ordavel::Salva(std::string& sFile, bool bAzzeraModificato)
{
    return !m_bInCorso && SalvaSistema(sFile, bAzzeraModificato);
}

/// The same for a run, which hands its system to the external engine this way.
bool Ordavel::SalvaSistema(std::string& sFile, bool bAzzeraModificato)
{
    return ConGestore(m_Piattaforma, "OrdavelSis.Salva",
                      [&] {
                          if (sFile.empty()) {
                              sFile = m_Piattaforma.DialogoSalva({.sTitolo = "Salva sistema",
                                                                  .sFiltro = std::string(kFiltroSistemi),
                                                                  .sEstensione = ".sic",
                                                                  .sNomeFile = m_FileSistema,
                                                                  .sCartella = m_DirSistemi});
                              m_FileSistema = sFile;
                          }
                          if (!sFile.empty()) {
                              ScriviSistema(sFile);
                              m_Modificato = m_Modificato && !bAzzeraModificato;
                              m_nSalvataggi += bAzzeraModificato ? 1 : 0;
                          }
                      }) &&
           !sFile.empty();
}

void Ordavel::ScriviSistema(const std::string& sFile)
{
    ParteSistema parte;
    parte.nClasse = classe();
    parte.nRiduzione = Riduzione();
    parte.aNumeri = LeggiNumeriSelezionati();
    LeggiCondizioniDaGriglia(parte.aCondizioni, m_GrdCond, m_Controlli.LbQuadroRec.Voci.Valore(),
                             parte.aQuadroRec);
    if (TogliBlank(m_GrdCond.Riga(1).sCondizione).empty()) {
        parte.aCondizioni.clear();
    }
    const std::vector<std::byte> aByte = ComponiParteSistema(parte, parte.aCondizioni);
    // From here on the older file is gone: all that could fail for want of sense in the system has been done.
    if (!KillFile(sFile, m_Piattaforma)) {
        throw Errore(eErrore::accessoPercorso, sFile);
    }
    FileBinario file(sFile, eApertura::scrittura);
    file.Accoda(aByte);
    AppendiColonneAFileSistema(file);
    file.Chiudi();
}

bool Ordavel::Apri()
{
    if (m_bInCorso) {
        return false;
    }
    const std::string sCartella = CartellaDi(m_FileSistema);
    const std::string sScelto =
        m_Piattaforma.DialogoApri({.sTitolo = "Apri sistema",
                                   .sFiltro = std::string(kFiltroSistemi),
                                   .sEstensione = ".sic",
                                   .sNomeFile = m_FileSistema,
                                   .sCartella = FileEsiste(sCartella) ? sCartella : m_DirSistemi});
    if (sScelto.empty()) {
        return false;
    }
    bool bLetto = false;
    PulisciEtichette();
    const PuntatoreInAttesa attesa(m_Piattaforma);
    m_Piattaforma.LasciaEventi();
    m_FileSistema = sScelto;
    ConGestore(m_Piattaforma, "OrdavelSis.Apri", [&] { bLetto = LeggiSistema(); });
    m_nSistemi += bLetto ? 1 : 0;
    return bLetto;
}

bool Ordavel::LeggiSistema()
{
    FileBinario file(m_FileSistema, eApertura::lettura);
    const std::optional<ParteSistema> parte = LeggiParteSistema(file);
    if (!parte) {
        Avvisa(kFormatoNonSupportato);
        return false;
    }
    ApriColonne(file);
    ImpostaNumeriDaFile(parte->aNumeri);
    SelezionaCombo(std::to_string(parte->nClasse), m_Controlli.CmbClasse);
    const std::string sRiduzione = std::to_string(parte->nRiduzione);
    if (m_Controlli.CmbRid.Contiene(sRiduzione)) {
        SelezionaCombo(sRiduzione, m_Controlli.CmbRid);
    }
    LayOutGrid();
    for (std::size_t i = 0; i < parte->aCondizioni.size(); ++i) {
        const auto nIndice = static_cast<std::int32_t>(i);
        CondizioneSuGriglia(nIndice + 1, nIndice, m_GrdCond, parte->aCondizioni);
    }
    std::vector<std::string> aRighe;
    for (int i = 1; i <= kGruppiRecupero; ++i) {
        aRighe.push_back(LineaQuadro(parte->aQuadroRec[i]));
    }
    m_Controlli.LbQuadroRec.Voci.Poni(std::move(aRighe));
    SetColonnaGrid(1);
    m_Controlli.Toolbar2.Voce("Salva").Abilitato.Poni(true);
    m_Modificato = false;
    AggiornaComandiColonne();
    return true;
}

void Ordavel::ImpostaNumeriDaFile(const Tabella<Booleano, 1, kNumeroMassimo>& aNumeri)
{
    Tabella<std::uint8_t, 1, kNumeroMassimo> aScelti;
    for (int n = 1; n <= kNumeroMassimo; ++n) {
        aScelti[n] = aNumeri[n] != 0 ? 1 : 0;
    }
    m_Controlli.SelnovoNumeri1.Scelti.Poni(aScelti);
    DisegnaNumeriProno();
    // The labels were cleared: they are written again even when the same numbers come back.
    CambioNumeri();
}

Tabella<Booleano, 1, kNumeroMassimo> Ordavel::LeggiNumeriSelezionati() const
{
    Tabella<Booleano, 1, kNumeroMassimo> aNumeri;
    for (int n = 1; n <= kNumeroMassimo; ++n) {
        aNumeri[n] = ComeBooleano(m_Controlli.SelnovoNumeri1.Scelto(n));
    }
    return aNumeri;
}

} // namespace ordavel
