// Ordavel.cpp - the component: creation, settings, and what its controls do when they change.

#include "ordavel/Ordavel.hpp"

#include "analisi/F_NavigaSistema.hpp"
#include "analisi/F_Riduzione.hpp"
#include "condizioni/ModCompila.hpp"
#include "controllo/BarraComandi.hpp"
#include "controllo/OspiteOrdavel.hpp"
#include "core/ModFunzGeneriche.hpp"
#include "core/ModGiochi.hpp"
#include "core/ModNumeri.hpp"
#include "motore/LibreriaSviluppo.hpp"
#include "motore/ModIntegrali.hpp"
#include "riduzione/ModRiduci.hpp"

#include <span>

namespace ordavel {

namespace {

constexpr std::int16_t kThreadPreset = 5;

void Riempi(Combo& combo, std::span<const std::string_view> aVoci)
{
    for (const std::string_view sVoce : aVoci) {
        combo.Aggiungi(sVoce);
    }
}

} // namespace

Ordavel::Ordavel(Piattaforma& piattaforma)
    : m_Piattaforma(piattaforma),
      m_Statistica(piattaforma.CreaStatistica()),
      m_Ospite(std::make_unique<OspiteOrdavel>(*this, piattaforma, m_Statistica)),
      m_StatoRiduzione(std::make_unique<StatoRiduzione>()),
      m_Esterna(std::make_unique<LibreriaSviluppo>())
{
    m_Controlli.Toolbar2.aPulsanti = PulsantiOrdavel();
    m_Controlli.PanSviluppo.Visibile.Poni(false);
    for (const ProfiloGioco& gioco : ProfiliGioco()) {
        m_Controlli.CmbTipoGioco.Aggiungi(gioco.sNome);
    }
    Riempi(m_Controlli.CmbMotSviluppo, VociMotore());
    m_Controlli.CmbTipoGioco.Indice.AlCambio([this] { ImpostaProfiloGioco(); });
    m_Controlli.CmbClasse.Indice.AlCambio([this] { CambioClasse(); });
    m_Controlli.CmbRid.Indice.AlCambio([this] { CambioRiduzione(); });
    m_Controlli.CmbMotSviluppo.Indice.AlCambio([this] { CambioMotore(); });
    m_Controlli.SelnovoNumeri1.Scelti.AlCambio([this] { CambioNumeri(); });
    m_Controlli.Timer1.nMillisecondi = 1000;
    m_Controlli.Timer1.scatto = [this] { Timer1_Timer(); };
    m_Controlli.PanPerc.Visibile.Poni(false);
    m_Controlli.SelnovoNumeri1.Visibile.Poni(false);
    MisuraLarghezze();
    LayOutGrid();
    m_Controlli.CmbTipoGioco.Indice.Poni(0);
    m_Controlli.CmbRid.Indice.Poni(0);
    SelezionaComboMotSviluppo();
    PoniNumeroThreadsSviluppo(kThreadPreset);
    Pubblica();
    try {
        m_Statistica->Avvia();
    } catch (...) {
        m_Statistica.reset();
        Deinit();
        throw;
    }
}

Ordavel::~Ordavel()
{
    Deinit();
}

bool Ordavel::CreaPercorsoOAvvisa(const std::string& sPercorso)
{
    const bool bCreato = CreaPercorso(sPercorso);
    if (!bCreato) {
        Avvisa("Errore creazione percorso " + sPercorso);
    }
    return bCreato;
}

bool Ordavel::PoniPercorso(const std::string& sPercorso, std::string& sCampo, std::string_view sNome)
{
    if (!CreaPercorsoOAvvisa(sPercorso)) {
        return false;
    }
    sCampo = ConSeparatore(sPercorso);
    NotaProprieta(sNome);
    return true;
}

bool Ordavel::PoniDirSistemi(const std::string& sPercorso)
{
    return PoniPercorso(sPercorso, m_DirSistemi, "DirSistemi");
}

bool Ordavel::PoniPercorsoTemp(const std::string& sPercorso)
{
    // A run ends where it began: its file is not taken from under it.
    if (m_bInCorso || !CreaPercorsoOAvvisa(sPercorso)) {
        return false;
    }
    m_PercorsoTemp = ConSeparatore(sPercorso);
    m_FileColonne = m_PercorsoTemp + "Sviluppo.col";
    NotaProprieta("PercorsoTemp");
    return true;
}

bool Ordavel::PoniPercorsoSalvaColonne(const std::string& sPercorso)
{
    return PoniPercorso(sPercorso, m_PercorsoSalvaColonne, "PercorsoSalvaColonne");
}

void Ordavel::SelezionaComboMotSviluppo()
{
    m_Controlli.CmbMotSviluppo.Indice.Poni(m_MotoreSviluppo == eMotoreSviluppo::interno ? 0 : 1);
}

std::int16_t Ordavel::classe() const
{
    return LeggiIntero<std::int16_t>(m_Controlli.CmbClasse.Testo());
}

void Ordavel::PoniClasse(std::int16_t nClasse)
{
    const std::string sClasse = std::to_string(nClasse);
    if (m_Controlli.CmbClasse.Contiene(sClasse)) {
        SelezionaCombo(sClasse, m_Controlli.CmbClasse);
    }
}

std::int16_t Ordavel::GetIdCmbTipoGioco() const
{
    return static_cast<std::int16_t>(m_Controlli.CmbTipoGioco.Indice.Valore());
}

std::string Ordavel::GetIdCmbTipoGiocoString() const
{
    return m_Controlli.CmbTipoGioco.Testo();
}

double Ordavel::ColonneIntegrali() const
{
    return CalcolaIntegrali(ContaNumeriSel(), classe());
}

void Ordavel::SelezionaNumero(std::int16_t nNumero, bool bSelezionato)
{
    m_Controlli.SelnovoNumeri1.Seleziona(nNumero, bSelezionato);
}

std::int32_t Ordavel::ContaNumeriSel() const
{
    return m_Controlli.SelnovoNumeri1.Conta();
}

NumeriScelti Ordavel::GetNumeriSel() const
{
    NumeriScelti aNumeri;
    std::int16_t nPosto = 0;
    for (std::int16_t n = 1; n <= kNumeroMassimo; ++n) {
        if (m_Controlli.SelnovoNumeri1.Scelto(n)) {
            aNumeri[++nPosto] = n;
        }
    }
    return aNumeri;
}

bool Ordavel::IsCondizionePresente(std::string_view sNome) const
{
    return ordavel::IsCondizionePresente(m_GrdCond, sNome);
}

bool Ordavel::VerificaCoerenzaLink()
{
    std::vector<RecordCondizione> aCondizioni;
    QuadroRecuperi aQuadroRec;
    LeggiCondizioniDaGriglia(aCondizioni, m_GrdCond, m_Controlli.LbQuadroRec.Voci.Valore(), aQuadroRec);
    if (LinkCoerenti(aCondizioni)) {
        return true;
    }
    Avvisa("Link non valide");
    return false;
}

void Ordavel::ImpostaProfiloGioco()
{
    const ProfiloGioco* gioco = TrovaGioco(m_Controlli.CmbTipoGioco.Testo());
    if (gioco == nullptr) {
        return;
    }
    m_Controlli.CmbClasse.Svuota();
    m_Controlli.CmbRid.Svuota();
    Riempi(m_Controlli.CmbClasse, VociClasse());
    m_Controlli.CmbClasse.Indice.Poni(gioco->nClassePreset - kClasseMinima);
    Riempi(m_Controlli.CmbRid, VociRiduzione());
}

void Ordavel::CambioClasse()
{
    // Without a class there is no system to count.
    if (m_Classe != classe()) {
        m_Classe = classe();
        NotaProprieta("Classe");
    }
    const bool bClasse = m_Classe > 0;
    m_Controlli.LabIntegrale.Testo.Poni(bClasse ? FormattaNumero(ColonneIntegrali()) : std::string());
    CambioRiduzione();
}

void Ordavel::CambioRiduzione()
{
    const std::int32_t nGaranzia = classe() - Riduzione();
    m_Controlli.LabGaranzia.Testo.Poni("A condizioni superate garanzia " + std::to_string(nGaranzia));
}

void Ordavel::CambioMotore()
{
    m_MotoreSviluppo =
        m_Controlli.CmbMotSviluppo.Indice.Valore() == 0 ? eMotoreSviluppo::interno : eMotoreSviluppo::esterno;
}

void Ordavel::CambioNumeri()
{
    CambioClasse();
    m_Controlli.LabNumSel.Testo.Poni(std::to_string(ContaNumeriSel()));
}

void Ordavel::PulisciEtichette()
{
    for (Etichetta* etichetta : {&m_Controlli.LabSviluppate, &m_Controlli.LabIntegrale,
                                 &m_Controlli.LabNumSel, &m_Controlli.LabCondizionate}) {
        etichetta->Testo.Poni({});
    }
    m_Controlli.Toolbar2.Pulsante("FiltraSvilPrec").Abilitato.Poni(false);
}

void Ordavel::AbilitaComandiSviluppo(bool bInCorso)
{
    // "FiltraSvilPrec" belongs to a finished development: a run that ends gives it back as it was.
    Stato<bool>& filtro = m_Controlli.Toolbar2.Pulsante("FiltraSvilPrec").Abilitato;
    if (bInCorso) {
        m_bFiltroPrimaDellaCorsa = filtro.Valore();
    }
    for (PulsanteStrumento& pulsante : m_Controlli.Toolbar2.aPulsanti) {
        pulsante.Abilitato.Poni((pulsante.sChiave == "Stop") == bInCorso);
    }
    if (!bInCorso) {
        filtro.Poni(m_bFiltroPrimaDellaCorsa);
    }
    for (Combo* combo : {&m_Controlli.CmbClasse, &m_Controlli.CmbRid, &m_Controlli.CmbMotSviluppo}) {
        combo->Abilitato.Poni(!bInCorso);
    }
    // A selector that is open would change the picks of which the columns are made.
    m_Controlli.SelnovoNumeri1.Abilitato.Poni(!bInCorso);
    AggiornaComandiColonne();
}

void Ordavel::AggiornaComandiColonne()
{
    const bool bColonne = FileEsiste(m_FileColonne);
    m_Controlli.Toolbar2.Pulsante("VisualizzaColonne").Abilitato.Poni(bColonne);
    for (const std::string_view sVoce : {"SalvaColonne", "SalvaColonneTesto"}) {
        m_Controlli.Toolbar2.Voce(sVoce).Abilitato.Poni(bColonne);
    }
}

std::int16_t Ordavel::Riduzione() const
{
    return LeggiIntero<std::int16_t>(m_Controlli.CmbRid.Testo());
}

void Ordavel::Avvisa(std::string_view sTesto)
{
    m_Piattaforma.MostraMessaggio(
        {.icona = eIcona::avviso, .sTitolo = {}, .sTesto = std::string(sTesto), .pulsanti = ePulsanti::ok});
}

} // namespace ordavel
