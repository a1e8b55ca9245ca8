// OrdavelSviluppo.cpp - the development driver: what stands between a command and the engines.

#include "ordavel/Ordavel.hpp"

#include "core/Cadenza.hpp"
#include "core/ModFunzGeneriche.hpp"
#include "core/ModGestore.hpp"
#include "core/ModNumeri.hpp"
#include "core/ModTesti.hpp"
#include "editor/F_ScegliRuota.hpp"
#include "emulatore/ModEmulatore.hpp"
#include "motore/LibreriaSviluppo.hpp"
#include "motore/ModIntegrali.hpp"
#include "motore/ModSistemiCond.hpp"
#include "persistenza/ModFileColonne.hpp"

#include <cmath>
#include <filesystem>
#include <system_error>

namespace ordavel {

namespace {

/// Moves the source aside when it is the destination itself, however its path is written. Whether case counts is
/// for the file system to say.
std::string MettiDaParte(const std::string& sOrigine, const std::string& sDestinazione,
                         Segnalatore& segnalatore)
{
    std::error_code codice;
    if (!std::filesystem::equivalent(sOrigine, sDestinazione, codice)) {
        return sOrigine;
    }
    std::string sVecchio = sDestinazione + ".old";
    KillFile(sVecchio, segnalatore);
    std::filesystem::rename(sDestinazione, sVecchio, codice);
    if (codice) {
        throw ErroreDiSistema(codice.value(), sDestinazione);
    }
    return sVecchio;
}

/// What a run needs of a component, for columns of a class.
RichiestaSviluppo Richiesta(Ordavel& ordavel, std::int16_t nClasse, const std::string& sFile)
{
    return {.nClasse = nClasse,
            .nLimite = static_cast<std::int16_t>(nClasse - ordavel.Riduzione()),
            .griglia = ordavel.GetGridCond(),
            .aRigheQuadro = ordavel.GetLbQuadroRec().Voci.Valore(),
            .sFile = sFile};
}

} // namespace

/// A run's refreshes, on labels and bar.
///
/// Refreshes may come every few microseconds: they are shown, and events run, only now and then.
class Ordavel::AvanzamentoPannello : public Avanzamento {
public:
    explicit AvanzamentoPannello(Ordavel& ordavel) : m_Ordavel(ordavel) {}

    void Mostra(std::int32_t nSviluppate, std::int32_t nCondizionate, std::int16_t nPercentuale) override
    {
        m_Ultimo = {.nSviluppate = nSviluppate, .nCondizionate = nCondizionate, .nPercentuale = nPercentuale};
        m_bDaMostrare = true;
        if (m_Mostra.Scaduta(m_Ordavel.m_Piattaforma.Adesso())) {
            MostraUltimo();
        }
    }

    void LasciaEventi() override
    {
        if (m_Eventi.Scaduta(m_Ordavel.m_Piattaforma.Adesso())) {
            m_Ordavel.m_Piattaforma.LasciaEventi();
        }
    }

    void MostraFallimento(std::string_view sOrigine, const Errore& errore) override
    {
        MostraUltimo();
        m_Ordavel.m_Piattaforma.MostraFallimento(sOrigine, errore);
    }

    /// The figures of the last refresh, which nobody may have seen yet. A run ends with this.
    void MostraUltimo()
    {
        if (!m_bDaMostrare) {
            return;
        }
        m_bDaMostrare = false;
        m_Ordavel.m_Controlli.LabSviluppate.Testo.Poni(FormattaNumero(m_Ultimo.nSviluppate));
        m_Ordavel.m_Controlli.LabCondizionate.Testo.Poni(FormattaNumero(m_Ultimo.nCondizionate));
        m_Ordavel.m_Controlli.ProgBarXP1.Valore.Poni(m_Ultimo.nPercentuale);
    }

private:
    struct Figure {
        std::int32_t nSviluppate = 0;
        std::int32_t nCondizionate = 0;
        std::int16_t nPercentuale = 0;
    };

    Ordavel& m_Ordavel;
    Cadenza m_Mostra{kOgniMostra};
    Cadenza m_Eventi{kOgniEventi};
    Figure m_Ultimo;
    bool m_bDaMostrare = false; ///< m_Ultimo is not on show yet
};

/// The panel of a run is visible, and no second run may begin, for as long as it lives.
class Ordavel::CorsaInVista {
public:
    explicit CorsaInVista(Ordavel& ordavel) : m_Ordavel(ordavel)
    {
        m_Ordavel.m_bInCorso = true;
        m_Ordavel.m_Controlli.ProgBarXP1.Valore.Poni(0);
        m_Ordavel.m_Controlli.PanSviluppo.Visibile.Poni(true);
    }
    CorsaInVista(const CorsaInVista&) = delete;
    CorsaInVista& operator=(const CorsaInVista&) = delete;
    ~CorsaInVista()
    {
        m_Ordavel.m_Controlli.PanSviluppo.Visibile.Poni(false);
        m_Ordavel.m_bInCorso = false;
        // A run that failed on its way has deleted the working file all the same.
        m_Ordavel.AggiornaComandiColonne();
    }

private:
    Ordavel& m_Ordavel;
};

bool Ordavel::GestSviluppo()
{
    if (m_bInCorso) {
        return false;
    }
    if (classe() > ContaNumeriSel()) {
        Avvisa("Impostare il pronostico");
        return false;
    }
    if (!VerificaCoerenzaLink()) {
        return false;
    }
    m_PercorsoTemp = ConSeparatore(m_PercorsoTemp); // kept settings may name it without
    m_FileColonne = m_PercorsoTemp + "Sviluppo.col";
    // Columns go behind what a file holds: one that cannot be deleted would mix two results.
    if (!KillFile(m_FileColonne, m_Piattaforma)) {
        return false;
    }
    const std::string sFileEmulatore = PreparaEmulatore();
    const CorsaInVista corsa(*this);
    m_Piattaforma.LasciaEventi();
    m_ColonneDaFiltrare =
        CalcolaIntegrali(LeggiIntero<std::int32_t>(m_Controlli.LabNumSel.Testo.Valore()), classe());
    const float nInizio = m_Piattaforma.SecondiDaMezzanotte();
    if (m_MotoreSviluppo == eMotoreSviluppo::interno) {
        CaricaEmulatore();
        SviluppaCondizionato();
    } else {
        SviluppaCondizionatoEsterno(sFileEmulatore);
    }
    m_Controlli.Toolbar2.Pulsante("FiltraSvilPrec").Abilitato.Poni(true);
    AggiornaComandiColonne();
    MostraFineSviluppo(nInizio);
    return true;
}

bool Ordavel::GestSviluppoDaFileColonne(const std::string& sFileColonne)
{
    if (m_bInCorso) {
        return false;
    }
    m_ColonneDaFiltrare = NumeroColonneFile(sFileColonne);
    if (!(m_ColonneDaFiltrare > 0) || !VerificaCoerenzaLink()) {
        return false;
    }
    PreparaEmulatore();
    const CorsaInVista corsa(*this);
    m_Piattaforma.LasciaEventi();
    const float nInizio = m_Piattaforma.SecondiDaMezzanotte();
    CaricaEmulatore();
    SviluppaCondizionatoDaFileColonne(sFileColonne);
    MostraFineSviluppo(nInizio);
    return true;
}

void Ordavel::Stop()
{
    const eRisposta risposta = m_Piattaforma.MostraMessaggio(
        {.icona = eIcona::domanda, .sTitolo = {}, .sTesto = "Interrompere ?", .pulsanti = ePulsanti::siNo});
    if (risposta != eRisposta::si) {
        return;
    }
    m_Stato.bStopSviluppo = true; // first: a run of the internal engine ends even when the library is missing
    // A run keeps the engine that it has begun with, whatever is chosen meanwhile.
    if (m_MotoreSviluppo != eMotoreSviluppo::interno || m_Controlli.Timer1.Acceso.Valore()) {
        ConGestore(m_Piattaforma, "OrdavelSis.Toolbar2_ButtonClick", [this] { m_Esterna->StopSviluppo(); });
    }
}

void Ordavel::MostraFineSviluppo(float nInizio)
{
    const float nDurata = SecondiTrascorsi(nInizio, m_Piattaforma.SecondiDaMezzanotte());
    const std::string sTempo = FormattaTempo(static_cast<std::int64_t>(std::trunc(nDurata)));
    m_Piattaforma.MostraMessaggio({.icona = eIcona::informazione,
                                   .sTitolo = "Sviluppo",
                                   .sTesto = "Fine sviluppo " + std::string(kCrLf) + sTempo,
                                   .pulsanti = ePulsanti::ok});
}

/// Asks for the wheel, in a dialog that has no way out, since the others of its kind matter to "Lotto" alone.
std::int16_t Ordavel::ChiediColonneDaEmulare()
{
    F_ScegliRuota dialogo(*m_Ospite);
    m_Piattaforma.MostraModale(dialogo);
    return dialogo.Ruota();
}

/// The archive of the selected game.
/// Builds the emulated draws of a system that asks for them. When that cannot be, older ones stay.
/// Gives    the path of their file; "-" for a system without an emulator
std::string Ordavel::PreparaEmulatore()
{
    if (!IsCondizionePresente("Emulatore")) {
        return "-";
    }
    std::string sFile = m_PercorsoTemp + "Emulatore.dat";
    const std::int16_t nRuota = ChiediColonneDaEmulare();
    if (!CreaDatiEmulatore(sFile, GetQuantitaColDaEmulareFromGrid(), nRuota, GetIdCmbTipoGiocoString(),
                           FileBd(static_cast<std::int16_t>(GetIdCmbTipoGioco() + 1)), m_Piattaforma)) {
        m_Piattaforma.MostraMessaggio({.icona = eIcona::nessuna,
                                       .sTitolo = {},
                                       .sTesto = "Filtro emulatore non creato",
                                       .pulsanti = ePulsanti::ok});
    }
    return sFile;
}

void Ordavel::CaricaEmulatore()
{
    m_Stato.aEmulatore = {};
    std::vector<RigaEmulatore> aRighe(1);
    LeggiFileEmulatore(m_PercorsoTemp + "Emulatore.dat", aRighe);
    m_Stato.aEmulatore = RigheEmulatore(std::move(aRighe));
    m_Stato.bEmulatoreCaricato = true;
}

void Ordavel::PreparaCorsa()
{
    m_ColonneValide = false;
    m_Controlli.LabSviluppate.Testo.Poni("0");
    m_Controlli.LabCondizionate.Testo.Poni("0");
    AbilitaComandiSviluppo(true);
}

void Ordavel::SviluppaCondizionato()
{
    KillFile(m_FileColonne, m_Piattaforma);
    PreparaCorsa();
    AvanzamentoPannello avanzamento(*this);
    m_ColonneValide = InitSviluppoSistCondizionato(Richiesta(*this, classe(), m_FileColonne), GetNumeriSel(),
                                                   m_Stato, avanzamento);
    avanzamento.MostraUltimo();
    ApriFileColonne(m_FileColonne);
    AbilitaComandiSviluppo(false);
}

void Ordavel::SviluppaCondizionatoDaFileColonne(const std::string& sFileColonne)
{
    ConGestore(m_Piattaforma, "OrdavelSisE.SviluppaCondizionatoDaFileColonne", [&] {
        const std::string sDestinazione = m_PercorsoTemp + "Sviluppo.col";
        const std::string sOrigine = MettiDaParte(sFileColonne, sDestinazione, m_Piattaforma);
        if (!KillFile(sDestinazione, m_Piattaforma)) {
            return;
        }
        PreparaCorsa();
        const std::int16_t nClasse = GetClasseColonneInFile(sOrigine, m_Piattaforma);
        AvanzamentoPannello avanzamento(*this);
        m_ColonneValide = InitSviluppoSistCondizionato(Richiesta(*this, nClasse, sDestinazione), sOrigine,
                                                       m_Stato, avanzamento);
        avanzamento.MostraUltimo();
        ApriFileColonne(sDestinazione);
        AbilitaComandiSviluppo(false);
    });
}

} // namespace ordavel
