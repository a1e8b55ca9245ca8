// Ordavel.hpp - the component: a conditioned system, its controls, its runs and its files.
//
// It needs no screen. A host creates it over a Piattaforma, sets its folders, states a system and runs it:
//
//     ordavel::Ordavel sistema(piattaforma);
//     sistema.PoniPercorsoTemp("/tmp/ordavel");
//     for (std::int16_t n = 1; n <= 20; ++n) sistema.SelezionaNumero(n, true);
//     sistema.GetGridCond().Riga(1) = {"Peso", "Caselle :\r\n1-2-3-4-5", "100-150", "-", " "};
//     sistema.GestSviluppo();
//     std::vector<ordavel::Colonna> aColonne;
//     sistema.GetColonneSviluppo(aColonne);
//
// Calling order: create; set the archives, DirSistemi, PercorsoTemp and PercorsoSalvaColonne; use; Deinit. A host
// that keeps settings calls InizializzaProprieta when the component is first placed, LeggiProprieta when it is
// loaded and ScriviProprieta when it is saved. PercorsoTemp must be set through PoniPercorsoTemp for the working
// column file to have a name; reading it from the settings does not give it one.
//
// Everything runs on one thread. A development, a filter, a text export and a reduction let pending events run; a host
// may then read anything, call Stop() (or AnnullaExport(), or StopRiduciColonne()) and set numbers and settings, which count from the
// next run on. Whatever would change the conditions, start a second run, open, save, or touch the working file or its
// folder is refused and does nothing.
//
// Failures of file work are shown as boxes and cleared. Operations without a handler of their own pass them on as
// Errore; each says so.

#pragma once

#include "ordavel/ArchivioProprieta.hpp"
#include "ordavel/CalcoliColonna.hpp"
#include "ordavel/ContaSistema.hpp"
#include "ordavel/ContenutoSistema.hpp"
#include "ordavel/ControlliOrdavel.hpp"
#include "ordavel/EventiOrdavel.hpp"
#include "ordavel/GrigliaCondizioni.hpp"
#include "ordavel/Piattaforma.hpp"
#include "ordavel/StatoSviluppo.hpp"
#include "ordavel/esporta.hpp"

#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace ordavel {

class DialogoCondizione;
class F_NavigaSistema;
class F_Riduzione;
class FileBinario;
class LibreriaSviluppo;
class OspiteDialoghi;
struct StatoRiduzione;

class ORDAVEL_EXPORT Ordavel : public CalcoliColonna {
public:
    /// Lays out an empty system of "Lotto" in class 5, without reduction, for the internal engine.
    /// Takes    piattaforma   outlives the component
    explicit Ordavel(Piattaforma& piattaforma);
    Ordavel(const Ordavel&) = delete;
    Ordavel& operator=(const Ordavel&) = delete;
    ~Ordavel(); ///< also does what a forgotten Deinit would have done

    /// The instance that was published last and is not at its end; nullptr for none.
    [[nodiscard]] static Ordavel* Pubblicato() noexcept;

    /// The end of the component: stops the statistics, takes back the published reference, closes the navigation.
    void Deinit();

    /// What a host wants to hear.
    [[nodiscard]] EventiOrdavel& Eventi() noexcept { return m_Eventi; }

    // ---- settings that a host keeps ----

    /// As the component is when it is first placed: class 5, 5 threads, internal engine, no folders.
    void InizializzaProprieta();

    /// Takes on the settings "Classe", "MotoreSviluppo", "NumeroThreadsSviluppo", "PercorsoSalvaColonne" and
    /// "PercorsoTemp". One that is missing, is no number or lies outside its bounds is what InizializzaProprieta
    /// makes it.
    void LeggiProprieta(const ArchivioProprieta& archivio);

    /// Writes the five settings: "Classe", "NumeroThreadsSviluppo", "PercorsoSalvaColonne", "MotoreSviluppo",
    /// "PercorsoTemp".
    void ScriviProprieta(ArchivioProprieta& archivio) const;

    /// The draw archives, one a game: paths, taken as they come.
    void PoniFileBdLotto(std::string sFile) { m_FileBdLotto = std::move(sFile); }
    void PoniFileBd10Lotto(std::string sFile) { m_FileBd10Lotto = std::move(sFile); }
    void PoniFileBd10Lotto5M(std::string sFile) { m_FileBd10Lotto5M = std::move(sFile); }
    void PoniFileBdSE(std::string sFile) { m_FileBdSE = std::move(sFile); }
    void PoniFileBdWF(std::string sFile) { m_FileBdWF = std::move(sFile); }
    /// The archive of a game, by its number from 1.
    /// Fails    9: there is no such game
    [[nodiscard]] const std::string& FileBd(std::int16_t nGioco) const;
    [[nodiscard]] const std::string& FileBdLotto() const noexcept { return m_FileBdLotto; }
    [[nodiscard]] const std::string& FileBd10Lotto() const noexcept { return m_FileBd10Lotto; }
    [[nodiscard]] const std::string& FileBd10Lotto5M() const noexcept { return m_FileBd10Lotto5M; }
    [[nodiscard]] const std::string& FileBdSE() const noexcept { return m_FileBdSE; }
    [[nodiscard]] const std::string& FileBdWF() const noexcept { return m_FileBdWF; }

    /// Threads of an outside writer of counters; kept for the host. It sizes TxtPMin and TxtPMax.
    void PoniNumeroThreadsSviluppo(std::int16_t nThread);
    [[nodiscard]] std::int16_t NumeroThreadsSviluppo() const noexcept { return m_NumeroThreadsSviluppo; }

    // ---- folders and settings ----

    /// Folder setters create the folder and add the separator at its end. When it cannot be created they show
    /// "Errore creazione percorso " and the path, and change nothing.
    /// Gives    whether the folder was taken
    bool PoniDirSistemi(const std::string& sPercorso);
    bool PoniPercorsoTemp(const std::string& sPercorso); ///< also sets the working column file in it
    bool PoniPercorsoSalvaColonne(const std::string& sPercorso);
    [[nodiscard]] const std::string& DirSistemi() const noexcept { return m_DirSistemi; }
    [[nodiscard]] const std::string& PercorsoTemp() const noexcept { return m_PercorsoTemp; }
    [[nodiscard]] const std::string& PercorsoSalvaColonne() const noexcept { return m_PercorsoSalvaColonne; }

    /// The engine of the next development. The combo is not touched; SelezionaComboMotSviluppo brings it in line.
    void PoniMotoreSviluppo(eMotoreSviluppo motore) noexcept { m_MotoreSviluppo = motore; }
    [[nodiscard]] eMotoreSviluppo MotoreSviluppo() const noexcept { return m_MotoreSviluppo; }
    void SelezionaComboMotSviluppo();

    /// Numbers per column, as the list of classes shows it; 0 when none is selected.
    [[nodiscard]] std::int16_t classe() const;
    /// Selects a class; one that is not in the list changes nothing.
    void PoniClasse(std::int16_t nClasse);

    /// The reduction, "Rid N-K", as its list shows it; 0 for the blank entry and for none.
    [[nodiscard]] std::int16_t Riduzione() const;

    /// The game: index 0 to 4 in its list, and its name.
    [[nodiscard]] std::int16_t GetIdCmbTipoGioco() const;
    [[nodiscard]] std::string GetIdCmbTipoGiocoString() const;

    /// Columns of the selected class over the selected numbers; 0 for fewer numbers than the class.
    /// Fails    11: no class is selected
    [[nodiscard]] double ColonneIntegrali() const;

    // ---- the system ----

    /// Selects a number or not.
    /// Fails    9: nNumero outside 1..90
    void SelezionaNumero(std::int16_t nNumero, bool bSelezionato);
    [[nodiscard]] std::int32_t ContaNumeriSel() const;
    /// The selected numbers in ascending order, 0 behind the last.
    [[nodiscard]] NumeriScelti GetNumeriSel() const;

    /// Marks a number in a table of the host's own, which the component keeps and does not read.
    /// Fails    9: nNum outside 1..90
    void SetNum(std::int16_t nNum, bool bValore);

    /// The colours of a number's box in the selector.
    /// Fails    9: nNumero outside 1..90
    void SetcoloreCasellaNumeri(std::int16_t nNumero, Colore nColor, Colore nForeColor);

    /// Draws the strip of picks: 1 to 45 over 46 to 90, the selected ones in green.
    void DisegnaNumeriProno();

    /// The conditions and the board themselves: what is written there counts.
    [[nodiscard]] GrigliaCondizioni& GetGridCond() noexcept { return m_GrdCond; }
    [[nodiscard]] Lista& GetLbQuadroRec() noexcept { return m_Controlli.LbQuadroRec; }
    /// Selects a condition and brings it into view: from the left of it to the left edge; from the right so far
    /// that the one behind it is seen, too.
    /// Fails    9: nId outside 0..2000
    void SetColonnaGrid(std::int32_t nId);

    /// Is there a condition of that key, letters without regard to case?
    [[nodiscard]] bool IsCondizionePresente(std::string_view sNome) const;

    /// Compiles the conditions and looks at their links; shows "Link non valide" when they do not match.
    /// Fails    what compiling raises
    [[nodiscard]] bool VerificaCoerenzaLink();

    /// How many columns the last "Emulatore" condition asks for; 0 without one.
    /// Fails    6: more than 32767
    [[nodiscard]] std::int16_t GetQuantitaColDaEmulareFromGrid() const;

    // ---- what a user does with conditions ----
    //
    // Each shows its dialog through the desktop and writes what was confirmed; a dialog that was cancelled changes
    // nothing. None of them does anything during a run. "Changed" means: the system counts as modified, and its
    // columns no longer belong to it.

    /// Puts a condition into the first free row, or into the hole that InserisciRiga has opened and selected.
    ///
    /// Takes    t        the kind; one that no kind has writes five empty cells
    ///          sParam   empty: the kind's dialog is shown. Else it is filled from the text and not shown: values
    ///                   joined by ",", those for recovery behind "|"; where the dialog has a combo, its entry and
    ///                   a line break in front; a range as "minimum,maximum". "Sequenze" has the pattern in front
    ///                   and the chain lengths behind two more "|"; "Emulatore" takes the lines of its cell,
    ///                   without the first "[". "Peso", the "Somma" kinds, "Formule", "Decine Specifiche",
    ///                   "GruppiDiConsecutivi" and the numerical kinds take no text and insert nothing;
    ///                   "Punti Col." and "LinkClose" are asked for in any case, and "LinkOpen" asks nothing.
    /// Changes  the row, and selects it. With 2000 conditions the headings are written over. Failures are shown
    ///          under "OrdavelSis.InsCondizione"
    void InsCondizione(TipoCondizione t, std::string_view sParam);

    /// Edits the selected condition in its dialog; a "LinkOpen" has none, and nothing happens.
    /// Fails    9: a cell holds a value for which the dialog has no box; 6: a number in it is too large
    void ModificaCondizione();

    /// Opens an empty row at the selected one; what row 2000 held is lost. The system does not count as changed.
    void InserisciRiga();

    /// Deletes the selected condition; with an empty row below the block selected, the last one goes. Changed.
    /// Fails    91: the navigation is open, and what is left has a "LinkClose" without its "LinkOpen"
    void EliminaCondizione();

    /// Asks for a run of conditions and deletes it. The system does not count as changed.
    void EliminaRangeCondizioni();

    /// Asks for points and a run of conditions, and writes the same points into all of them, links excepted. The
    /// system does not count as changed.
    void ApplicaImpostaPunti();

    /// Asks for a text file and makes a "Punti Col." condition of every line that is a column. Beyond row 2000 it
    /// warns "Superato il numero di condizioni impostabili", and the rows in front stay. Changed.
    void InserisciColonneDaFile();

    /// Asks for the recovery board. Changed.
    /// Fails    9: a row names a group outside 0..20, or a board line has fewer than three parts
    void GestQuadroRecuperi();

    /// Asks for a run of conditions and a file, and writes them there.
    void SalvaCondizioni();

    /// Asks for a condition file and puts its rows behind the conditions. The system does not count as changed.
    void InsCondizioni();

    // ---- the toolbar ----

    /// A button was pressed, by its key, case does not count; an unknown one does nothing. Failures that no
    /// operation has trapped are shown under "OrdavelSis.Toolbar2_ButtonClick".
    void Toolbar2_ButtonClick(std::string_view sChiave);
    /// A menu entry was chosen; the same, under "OrdavelSis.Toolbar2_ButtonMenuClick".
    void Toolbar2_ButtonMenuClick(std::string_view sChiave);

    /// The selector of numbers was closed. The system counts as modified.
    void SelnovoNumeri1_Chiuso();
    /// The user selected a condition in the grid; unlike SetColonnaGrid it does not scroll.
    /// Fails    9: nId outside 0..2000
    void GrdCond_EnterCell(std::int32_t nId);
    /// Makes all conditions wider (+1) or narrower (-1) by a letter, from one letter to fifty.
    void VariaLarghezzaColonne(std::int32_t nVerso);
    /// Width of a condition, in pixels.
    [[nodiscard]] std::int32_t LarghezzaColonna(std::int32_t nId) const;
    /// The grid, the strip and the panels have a new size.
    void Resize() { DisegnaNumeriProno(); }

    /// An empty system, in place of the present one, after a question when that was modified.
    void NuovoSistema();

    /// What a user has stated: conditions, numbers and board.
    [[nodiscard]] ContenutoSistema Contenuto() const;
    /// Puts a content in place of the present one, as when a step is undone. Its columns no longer belong to the
    /// system. During a run nothing is done.
    /// Takes    bModificato   whether the system counts as modified then
    void PoniContenuto(const ContenutoSistema& contenuto, bool bModificato);

    // ---- runs ----

    /// Develops the picks into the working column file.
    ///
    /// Refused with a warning when there are fewer numbers than the class, or links do not match, and with the
    /// failure box when the working file cannot be deleted. During the run the panel is visible and Stop is the only command; at the end a box tells the time.
    /// Gives    true when the run was begun, also when it was stopped or failed on its way
    /// Fails    11: no class is selected; what compiling the links and reading the emulated draws raise;
    ///          53, 438: the library of the external engine, or a function of it, is missing
    bool GestSviluppo();

    /// Puts the conditions over the columns of a file; the result goes to the working column file, which may be
    /// the source: it is then moved aside to its name plus ".old". A file without columns is passed over.
    bool GestSviluppoDaFileColonne(const std::string& sFileColonne);

    /// The stop command: asks "Interrompere ?", and on yes the run ends at its next refresh; the external engine is
    /// told to stop. What that fails with is shown under "OrdavelSis.Toolbar2_ButtonClick".
    void Stop();

    /// Shows how far the external engine is, on labels and bar, and lets events run; Timer1 calls it each second.
    /// Fails    53: there is no library; 438: it lacks a function; 11: there was no run; 6: its count is none
    void AggiornaProgressSviluppoDll();

    /// What the last run compiled and counted.
    [[nodiscard]] const StatoSviluppo& UltimoSviluppo() const noexcept { return m_Stato; }

    /// The system as it stands, also during a run, for a count in any thread; ContaSistema.hpp says what it looks at.
    /// Fails    what compiling raises; 6, 9, 57, 70, 75: the file of the draws
    [[nodiscard]] SistemaDaContare PreparaConteggio() const;
    /// Counts it here. Shows nothing, asks nothing, writes nothing; fails as both do, and with 9 without a class.
    [[nodiscard]] std::optional<ConteggioSistema> ContaSistema(const OpzioniConteggio& opzioni = {},
                                                               const ContoAnnullato& annullato = {},
                                                               const StimaPronta& stima = {}) const;

    // ---- columns ----

    /// Columns in the working file, rounded; 0 for none.
    [[nodiscard]] std::int32_t QuantitaColonne();

    /// All columns of the working file.
    /// Gives    always false; what counts is the array: the columns, or one record of zeros when there are none.
    ///          Beyond 1000000 columns a warning is shown and the rest is left out.
    bool GetColonneSviluppo(std::vector<Colonna>& aRetCol);

    /// One column as text, from 1; empty beyond the end.
    [[nodiscard]] std::string GetColonnaSviluppo(std::int32_t nId);
    /// The same from a file that is already open. A place beyond 2^31 bytes is failure 6, shown as a box.
    [[nodiscard]] std::string GetColonnaSviluppoFromFile(std::int32_t nId, FileBinario& file);

    /// Asks for a name and copies the working file there.
    /// Gives    true when it was copied
    bool SalvaFileColonne();

    /// Asks for a name and writes the columns of the working file there as text: a line of two-digit numbers each,
    /// ended by CR and LF. The dialog F_Progress shows how far it is and can end it; what was written stays.
    /// Gives    true when all columns were written; failures are shown under "OrdavelSisA.SalvaFileColonneTesto"
    bool SalvaFileColonneTesto();
    /// Ends a text export at its next look.
    void AnnullaExport() noexcept { m_StopExport = true; }

    /// Reduces a column file into the working file: every column of it has numbers in common with one that stays.
    ///
    /// The internal engine works in memory, and after a stop what it has done by then is kept, or the whole input; its
    /// phase and progress are shown on the dialog F_Riduzione, loaded but not shown. The external one takes its time
    /// and tells nothing of a failure. During a run nothing is done.
    /// Takes    sFileCol          at most 1000000 columns; may be the working file
    ///          nPuntiRichiesti   numbers in common; any number
    /// A missing file, too many columns and failures ("OrdavelSisG.RiduciColonne") are shown.
    void RiduciColonne(const std::string& sFileCol, std::int32_t nPuntiRichiesti);
    /// Ends a reduction by the internal engine at its next look.
    void StopRiduciColonne() noexcept;

    // ---- the system file ----

    /// Writes the system, and its columns when they belong to it.
    ///
    /// The whole system part is made before an older file is deleted.
    /// Takes    sFile              path; when empty it is asked for, and the answer is also the open system's name
    ///          bAzzeraModificato  the system counts as saved from now on
    /// Gives    true when it was written; failures are shown under "OrdavelSis.Salva"
    bool Salva(std::string& sFile, bool bAzzeraModificato);

    /// Asks for a system file and loads it, with its columns.
    /// Gives    true when it was loaded; failures are shown under "OrdavelSis.Apri"
    bool Apri();

    [[nodiscard]] const std::string& FileSistema() const noexcept { return m_FileSistema; }
    [[nodiscard]] const std::string& FileColonne() const noexcept { return m_FileColonne; }
    [[nodiscard]] bool Modificato() const noexcept { return m_Modificato; }
    [[nodiscard]] bool ColonneValide() const noexcept { return m_ColonneValide; }
    /// How often a system was opened or begun anew, and how often one was saved as it then was: whoever follows the
    /// component sees by them that something was, and a dialog that was cancelled is neither.
    [[nodiscard]] std::uint32_t Sistemi() const noexcept { return m_nSistemi; }
    [[nodiscard]] std::uint32_t Salvataggi() const noexcept { return m_nSalvataggi; }
    /// Is a run or a text export on its way?
    [[nodiscard]] bool InCorso() const noexcept { return m_bInCorso; }

    /// The controls, for a view to bind and a test to press.
    [[nodiscard]] ControlliOrdavel& Controlli() noexcept { return m_Controlli; }

private:
    class AvanzamentoPannello;
    class CorsaEsterna;
    class CorsaInVista;
    class ExportInVista;
    class RiduzioneInCorso;
    struct Comando;

    bool CreaPercorsoOAvvisa(const std::string& sPercorso);
    bool PoniPercorso(const std::string& sPercorso, std::string& sCampo, std::string_view sNome);

    // Changes of the controls.
    void LayOutGrid();
    void ImpostaProfiloGioco();
    void CambioClasse();
    void CambioRiduzione();
    void CambioMotore();
    void CambioNumeri();
    void PulisciEtichette();
    void AbilitaComandiSviluppo(bool bInCorso);
    void AggiornaComandiColonne();

    // Conditions.
    void InserisciCondizione(TipoCondizione tipo, std::int32_t& nRiga, std::string_view sParam,
                             std::unique_ptr<DialogoCondizione> dialogo = nullptr);
    void MostraORiempi(DialogoCondizione& dialogo, std::int32_t nRiga, std::string_view sParam);
    void SegnaModificato() noexcept;

    // Settings.
    void Pubblica() noexcept;
    void NotaProprieta(std::string_view sNome) const;

    // Grid and strip.
    void MisuraLarghezze();
    void SommaContatori();
    void PreparaContatori();

    // Commands.
    void EseguiComando(std::string_view sOrigine, std::span<const Comando> aComandi,
                       std::string_view sChiave);
    [[nodiscard]] bool ConfermaPerditaModifiche();
    void PremiOpen();
    void PremiSave();
    void PremiCondizioni();
    void PremiSelNumeri();
    void PremiFiltra();
    void PremiVisualizza();
    void PremiNaviga();
    void PremiEffetto();
    void PremiConfronto();
    void PremiStampa();
    void InserisciDaBarra(TipoCondizione tipo);
    void ScegliDaMenu(TipoCondizione tipo);
    void SalvaConFlag(std::string sFile);
    void ApriFiltroFileColonne();
    void PremiRiduzione();
    [[nodiscard]] F_Riduzione& FinestraRiduzione();
    void RiduciInterno(const std::string& sFileCol, std::int32_t nPuntiRichiesti, std::int64_t nColonne);

    // Runs.
    void MostraFineSviluppo(float nInizio);
    [[nodiscard]] std::int16_t ChiediColonneDaEmulare();
    std::string PreparaEmulatore();
    void CaricaEmulatore();
    void PreparaCorsa();
    void SviluppaCondizionato();
    void SviluppaCondizionatoEsterno(const std::string& sFileEmulatore);
    [[nodiscard]] bool ConsegnaSistema(const std::string& sColonne, std::string sSistema);
    void GetCondizioniFromFile(const std::string& sFile);
    void Timer1_Timer();
    void SviluppaCondizionatoDaFileColonne(const std::string& sFileColonne);

    // Columns.
    void ApriFileColonne(const std::string& sFile);
    void ApriColonne(FileBinario& sistema);
    void AppendiColonneAFileSistema(FileBinario& sistema);
    [[nodiscard]] std::string NomeSuggerito() const;

    // System file.
    bool SalvaSistema(std::string& sFile, bool bAzzeraModificato);
    void ScriviSistema(const std::string& sFile);
    bool LeggiSistema();
    void ImpostaNumeriDaFile(const Tabella<Booleano, 1, kNumeroMassimo>& aNumeri);
    [[nodiscard]] Tabella<Booleano, 1, kNumeroMassimo> LeggiNumeriSelezionati() const;
    void Avvisa(std::string_view sTesto);

    Piattaforma& m_Piattaforma;
    ControlliOrdavel m_Controlli;
    GrigliaCondizioni m_GrdCond;
    StatoSviluppo m_Stato;
    EventiOrdavel m_Eventi;
    std::unique_ptr<Statistica> m_Statistica;
    std::unique_ptr<OspiteDialoghi> m_Ospite;         ///< the component as its dialogs see it
    std::unique_ptr<F_NavigaSistema> m_NavigaSistema; ///< loaded at its first use
    std::shared_ptr<F_Riduzione> m_Riduzione;         ///< loaded at its first use, until it was shown
    std::unique_ptr<StatoRiduzione> m_StatoRiduzione;
    std::unique_ptr<LibreriaSviluppo> m_Esterna; ///< bound at its first call

    std::string m_FileSistema;
    std::string m_FileColonne;
    std::string m_PercorsoTemp;
    std::string m_PercorsoSalvaColonne;
    std::string m_DirSistemi;
    std::string m_FileBdLotto;
    std::string m_FileBd10Lotto;
    std::string m_FileBd10Lotto5M;
    std::string m_FileBdSE;
    std::string m_FileBdWF;
    eMotoreSviluppo m_MotoreSviluppo = eMotoreSviluppo::interno;
    TipoCondizione m_UltimaCondizione = TipoCondizione::nessuno; ///< kind last chosen from the menu
    std::int16_t m_Classe = 5;
    std::int16_t m_NumeroThreadsSviluppo = 0;
    std::vector<std::int32_t> m_SviluppatePerThread; ///< thread 1 at 0
    std::vector<std::int32_t> m_CondizionatePerThread;
    std::int32_t m_LarghezzaCorta = 0;
    std::int32_t m_LarghezzaLunga = 0;
    SegniNumeri m_TabellaNumeri;
    double m_ColonneDaFiltrare = 0; ///< columns of the run, the base of an external run's percentage
    std::uint32_t m_nSistemi = 0;
    std::uint32_t m_nSalvataggi = 0;
    bool m_Modificato = false;
    bool m_ColonneValide = false;
    bool m_StopExport = false;
    bool m_bInCorso = false;               ///< a run or an export is on its way
    bool m_bFiltroPrimaDellaCorsa = false; ///< whether "FiltraSvilPrec" was enabled before the run
};

} // namespace ordavel
