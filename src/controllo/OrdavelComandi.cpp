// OrdavelComandi.cpp - the two dispatchers of the toolbar, and the life of a system from new to saved.

#include "ordavel/Ordavel.hpp"

#include "analisi/F_EffettoCond.hpp"
#include "analisi/F_NavigaSistema.hpp"
#include "analisi/F_Spoglio.hpp"
#include "controllo/BarraComandi.hpp"
#include "controllo/F_VisualizzaColonne.hpp"
#include "core/ModFunzGeneriche.hpp"
#include "core/ModGestore.hpp"
#include "core/ModNumeri.hpp"
#include "core/ModTesti.hpp"
#include "editor/DialogoCondizione.hpp"
#include "persistenza/ModFileColonne.hpp"

#include <algorithm>
#include <array>

namespace ordavel {

/// A key and what it does.
struct Ordavel::Comando {
    std::string_view sChiave;
    void (*azione)(Ordavel&);
};

void Ordavel::Toolbar2_ButtonClick(std::string_view sChiave)
{
    static constexpr std::array kComandi = std::to_array<Comando>({
        {"Open", [](Ordavel& o) { o.PremiOpen(); }},
        {"Save", [](Ordavel& o) { o.PremiSave(); }},
        {"New", [](Ordavel& o) { o.NuovoSistema(); }},
        {"Condizioni", [](Ordavel& o) { o.PremiCondizioni(); }},
        {"GestCondizioni", [](Ordavel& o) { o.InsCondizioni(); }},
        {"SelNumeri", [](Ordavel& o) { o.PremiSelNumeri(); }},
        {"LinkOpen", [](Ordavel& o) { o.InserisciDaBarra(TipoCondizione::linkOpen); }},
        {"LinkClose", [](Ordavel& o) { o.InserisciDaBarra(TipoCondizione::linkClose); }},
        {"Edit", [](Ordavel& o) { o.ModificaCondizione(); }},
        {"Delete", [](Ordavel& o) { o.EliminaCondizione(); }},
        {"SviluppaCond", [](Ordavel& o) { o.GestSviluppo(); }},
        {"FiltraSvilPrec", [](Ordavel& o) { o.PremiFiltra(); }},
        {"QuadroRecuperi", [](Ordavel& o) { o.GestQuadroRecuperi(); }},
        {"Inserisci", [](Ordavel& o) { o.InserisciRiga(); }},
        {"VisualizzaColonne", [](Ordavel& o) { o.PremiVisualizza(); }},
        {"IncrGrid", [](Ordavel& o) { o.VariaLarghezzaColonne(1); }},
        {"DecrGrid", [](Ordavel& o) { o.VariaLarghezzaColonne(-1); }},
        {"Naviga", [](Ordavel& o) { o.PremiNaviga(); }},
        {"EffettoCondizioni", [](Ordavel& o) { o.PremiEffetto(); }},
        {"ConfrontoCondSuCol", [](Ordavel& o) { o.PremiConfronto(); }},
        {"Riduzione", [](Ordavel& o) { o.PremiRiduzione(); }},
        {"StampaSk", [](Ordavel& o) { o.PremiStampa(); }},
        {"puntimassivi", [](Ordavel& o) { o.ApplicaImpostaPunti(); }},
    });
    if (UgualiSenzaCaso(sChiave, "Stop")) {
        // The one command that a run lets through.
        return Stop();
    }
    EseguiComando("OrdavelSis.Toolbar2_ButtonClick", kComandi, sChiave);
}

void Ordavel::Toolbar2_ButtonMenuClick(std::string_view sChiave)
{
    static constexpr std::array kComandi = std::to_array<Comando>({
        {"Salva", [](Ordavel& o) { o.SalvaConFlag(o.m_FileSistema); }},
        {"SalvaConNome", [](Ordavel& o) { o.SalvaConFlag({}); }},
        {"SalvaColonne", [](Ordavel& o) { o.SalvaFileColonne(); }},
        {"SalvaColonneTesto", [](Ordavel& o) { o.SalvaFileColonneTesto(); }},
        {"PuntiSuColonnaTxt",
         [](Ordavel& o) {
             o.InserisciColonneDaFile();
             o.m_UltimaCondizione = TipoCondizione::nessuno;
         }},
        {"SalvaCondizioni", [](Ordavel& o) { o.SalvaCondizioni(); }},
        {"InsCondizioni", [](Ordavel& o) { o.InsCondizioni(); }},
        {"FiltraFileCol", [](Ordavel& o) { o.ApriFiltroFileColonne(); }},
        {"DelCondizioni", [](Ordavel& o) { o.EliminaRangeCondizioni(); }},
    });
    constexpr std::string_view kOrigine = "OrdavelSis.Toolbar2_ButtonMenuClick";
    if (const TipoCondizione tipo = TipoDiVoce(sChiave); tipo != TipoCondizione::nessuno) {
        if (!m_bInCorso) {
            ConGestore(m_Piattaforma, kOrigine, [&] { ScegliDaMenu(tipo); });
        }
        return;
    }
    EseguiComando(kOrigine, kComandi, sChiave);
}

void Ordavel::EseguiComando(std::string_view sOrigine, std::span<const Comando> aComandi,
                            std::string_view sChiave)
{
    const auto comando = std::find_if(aComandi.begin(), aComandi.end(), [sChiave](const Comando& c) {
        return UgualiSenzaCaso(c.sChiave, sChiave);
    });
    if (comando != aComandi.end() && !m_bInCorso) {
        ConGestore(m_Piattaforma, sOrigine, [&] { comando->azione(*this); });
    }
}

bool Ordavel::ConfermaPerditaModifiche()
{
    return !m_Modificato || m_Piattaforma.MostraMessaggio(
                                {.icona = eIcona::domanda,
                                 .sTitolo = {},
                                 .sTesto = "Il sistema è stato modificato ma non ancora salvato.Continuare ?",
                                 .pulsanti = ePulsanti::siNo}) == eRisposta::si;
}

void Ordavel::PremiOpen()
{
    if (ConfermaPerditaModifiche()) {
        Apri();
    }
}

void Ordavel::PremiSave()
{
    if (FileEsiste(m_FileSistema)) {
        SalvaConFlag(m_FileSistema);
    } else {
        m_Piattaforma.Beep();
    }
}

void Ordavel::SalvaConFlag(std::string sFile)
{
    Salva(sFile, true);
}

void Ordavel::NuovoSistema()
{
    if (m_bInCorso || !ConfermaPerditaModifiche()) {
        return;
    }
    LayOutGrid();
    m_Controlli.SelnovoNumeri1.Svuota();
    DisegnaNumeriProno();
    m_Controlli.LbQuadroRec.Voci.Poni({});
    PulisciEtichette();
    m_UltimaCondizione = TipoCondizione::nessuno;
    m_Controlli.CmbRid.SelezionaPrima();
    m_FileSistema.clear();
    KillFile(m_FileColonne, m_Piattaforma);
    AggiornaComandiColonne();
    m_Controlli.Toolbar2.Voce("Salva").Abilitato.Poni(false);
    ++m_nSistemi;
}

void Ordavel::InserisciDaBarra(TipoCondizione tipo)
{
    std::int32_t nRiga = 0;
    InserisciCondizione(tipo, nRiga, {});
}

/// A kind from the menu is remembered, so that the button repeats it.
void Ordavel::ScegliDaMenu(TipoCondizione tipo)
{
    if (tipo == TipoCondizione::emulatore && IsCondizionePresente("Emulatore")) {
        return Avvisa("Si può inserire un solo filtro emulatore");
    }
    InserisciDaBarra(tipo);
    m_UltimaCondizione = tipo;
}

void Ordavel::PremiCondizioni()
{
    if (m_UltimaCondizione != TipoCondizione::nessuno) {
        InserisciDaBarra(m_UltimaCondizione);
    }
    if (m_Eventi.CondizioniPressed) {
        m_Eventi.CondizioniPressed();
    }
}

void Ordavel::PremiSelNumeri()
{
    m_Controlli.SelnovoNumeri1.Visibile.Poni(m_Controlli.Toolbar2.Pulsante("SelNumeri").Premuto.Valore());
}

void Ordavel::SelnovoNumeri1_Chiuso()
{
    m_Controlli.Toolbar2.Pulsante("SelNumeri").Premuto.Poni(false);
    PremiSelNumeri();
    DisegnaNumeriProno();
    SegnaModificato();
}

void Ordavel::PremiFiltra()
{
    GestSviluppoDaFileColonne(m_PercorsoTemp + "Sviluppo.col");
}

void Ordavel::PremiVisualizza()
{
    F_VisualizzaColonne dialogo(*m_Ospite, m_FileColonne);
    m_Piattaforma.MostraModale(dialogo);
}

void Ordavel::PremiNaviga()
{
    if (!m_NavigaSistema) {
        m_NavigaSistema = std::make_unique<F_NavigaSistema>(*m_Ospite);
    }
    m_Piattaforma.MostraAccanto(*m_NavigaSistema);
    m_NavigaSistema->LoadTree();
}

void Ordavel::PremiEffetto()
{
    F_EffettoCond dialogo(*m_Ospite);
    dialogo.LoadList();
    m_Piattaforma.MostraModale(dialogo);
}

void Ordavel::PremiConfronto()
{
    F_Spoglio dialogo(*m_Ospite);
    m_Piattaforma.MostraModale(dialogo);
}

void Ordavel::PremiStampa()
{
    if (FileEsiste(m_FileColonne) && m_Eventi.StampaSk) {
        std::string sTipogioco = GetIdCmbTipoGiocoString();
        m_Eventi.StampaSk(sTipogioco);
    }
}

void Ordavel::ApriFiltroFileColonne()
{
    const std::string sFile = m_Piattaforma.DialogoApri({.sTitolo = "Apri file",
                                                         .sFiltro = "File colonne (*.col)|*.col)",
                                                         .sEstensione = ".col",
                                                         .sNomeFile = "*.col",
                                                         .sCartella = m_PercorsoSalvaColonne});
    if (sFile.empty() || !FileEsiste(sFile)) {
        return;
    }
    m_Controlli.LabIntegrale.Testo.Poni(
        FormattaNumero(GetNumeroColonneInFile(sFile, m_Piattaforma).value_or(0)));
    m_Controlli.LabNumSel.Testo.Poni("File");
    GestSviluppoDaFileColonne(sFile);
}

} // namespace ordavel
