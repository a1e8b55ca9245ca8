// Analisi.cpp - the commands that look at a result.

#include "cli/Analisi.hpp"

#include "analisi/F_Spoglio.hpp"
#include "cli/Rispondi.hpp"
#include "cli/StampaElenco.hpp"
#include "cli/UsaArchivio.hpp"
#include "core/ModNumeri.hpp"
#include "core/TestoErrato.hpp"

#include <algorithm>
#include <iostream>
#include <optional>

namespace ordavel::cli {

namespace {

/// The three pages, as the dialog shows them, and which conditions cut the winning column.
struct Pagine {
    Elenco vincite;
    Elenco confronto;
    Elenco riepilogo;
    std::optional<std::vector<std::size_t>> aTagli; ///< nothing when the comparison failed
    bool bPronte = false;
};

std::string Unisci(const std::vector<std::int32_t>& aNumeri, char cSeparatore)
{
    std::string sTesto;
    for (const std::int32_t nNumero : aNumeri) {
        sTesto += (sTesto.empty() ? "" : std::string(1, cSeparatore)) + std::to_string(nNumero);
    }
    return sTesto;
}

/// Plays the dialog. The two sides read their numbers between other marks, so each gets its own text.
void Gioca(F_Spoglio& finestra, const OpzioniSpoglio& opzioni, Pagine& pagine)
{
    auto aVincente = opzioni.aVincente;
    std::sort(aVincente.begin(), aVincente.end());
    if (opzioni.nMinimo) {
        SelezionaCombo(std::to_string(*opzioni.nMinimo), finestra.CmbPuntiMin);
    }
    finestra.Text1.Testo.Poni(Unisci(aVincente, '.'));
    if (!finestra.verificaCoerenzacolonna()) {
        return;
    }
    finestra.VerificaVincite(finestra.CmbPuntiMin.Indice.Valore() + 1);
    finestra.Text1.Testo.Poni(Unisci(aVincente, ','));
    finestra.GestioneConfrontoCond();
    pagine.vincite = finestra.ListView1;
    pagine.confronto = finestra.ListView2;
    pagine.riepilogo = finestra.ListView3;
    pagine.aTagli = finestra.Tagli;
    pagine.bPronte = true;
}

/// The key of the condition that a row of the comparison is about; some have no name there.
std::string NomeIn(ordavel::Ordavel& sistema, const std::string& sNumero)
{
    return sistema.GetGridCond().Riga(LeggiIntero<std::int32_t>(sNumero)).sCondizione;
}

void CompletaNomi(ordavel::Ordavel& sistema, Elenco& confronto)
{
    auto aRighe = confronto.Righe.Valore();
    for (RigaElenco& riga : aRighe) {
        riga.aSotto[0] = NomeIn(sistema, riga.sTesto);
    }
    confronto.Righe.Poni(std::move(aRighe));
}

/// What cuts the winning column, by number and name.
std::vector<std::string> NomiTagli(ordavel::Ordavel& sistema, const std::vector<std::size_t>& aTagli)
{
    std::vector<std::string> aNomi;
    for (const std::size_t nIndice : aTagli) {
        const std::string sNumero = std::to_string(nIndice + 1);
        aNomi.push_back(sNumero + " " + NomeIn(sistema, sNumero));
    }
    return aNomi;
}

void StampaTagli(const std::vector<std::string>& aTagli)
{
    std::cout << "\nLa colonna vincente ";
    if (aTagli.empty()) {
        std::cout << "supera tutte le condizioni\n";
        return;
    }
    std::cout << "non supera";
    for (const std::string& sTaglio : aTagli) {
        std::cout << (&sTaglio == &aTagli.front() ? ": " : ", ") << sTaglio;
    }
    std::cout << '\n';
}

void Stampa(ordavel::Ordavel& sistema, const Pagine& pagine)
{
    StampaElenco(std::cout, "Vincite", pagine.vincite);
    StampaElenco(std::cout, "Confronto condizioni", pagine.confronto);
    StampaElenco(std::cout, "Riepilogo", pagine.riepilogo);
    if (pagine.aTagli) {
        StampaTagli(NomiTagli(sistema, *pagine.aTagli));
    }
}

nlohmann::ordered_json ComeJson(ordavel::Ordavel& sistema, const Pagine& pagine)
{
    nlohmann::ordered_json oggetto{{"vincite", ElencoComeJson(pagine.vincite)},
                                   {"confronto", ElencoComeJson(pagine.confronto)},
                                   {"riepilogo", ElencoComeJson(pagine.riepilogo)},
                                   {"tagliata_da", nullptr}};
    if (pagine.aTagli) {
        oggetto["tagliata_da"] = NomiTagli(sistema, *pagine.aTagli);
    }
    return oggetto;
}

/// The comparison knows the draws that a run has loaded: a filter of the same columns loads them.
/// Gives    whether they are there, or nobody asks for them
bool CaricaEstrazioni(Sessione& sessione, const OpzioniSpoglio& opzioni)
{
    if (!sessione.Sistema().IsCondizionePresente("Emulatore")) {
        return true;
    }
    if (opzioni.sColonne.empty()) {
        throw TestoErrato("col filtro emulatore le colonne si dicono con --colonne");
    }
    UsaArchivio(sessione, opzioni.sArchivio, opzioni.sRuota);
    const bool bCaricate = sessione.Sistema().GestSviluppoDaFileColonne(opzioni.sColonne);
    sessione.UsaColonne(opzioni.sColonne);
    return bCaricate && !sessione.Desktop().Critico();
}

bool ApriPerSpoglio(Sessione& sessione, const OpzioniSpoglio& opzioni)
{
    ScegliGioco(sessione, opzioni.sGioco);
    if (!sessione.Apri(opzioni.sSistema, {})) {
        return false;
    }
    if (!opzioni.sColonne.empty()) {
        sessione.UsaColonne(opzioni.sColonne);
    }
    ordavel::Ordavel& sistema = sessione.Sistema();
    if (sistema.QuantitaColonne() == 0) {
        throw TestoErrato(opzioni.sColonne.empty() ? "il sistema non porta colonne: dille con --colonne"
                                                   : opzioni.sColonne + " non contiene colonne");
    }
    if (!CaricaEstrazioni(sessione, opzioni)) {
        return false;
    }
    const auto nClasse = static_cast<std::size_t>(sistema.classe());
    if (opzioni.aVincente.size() != nClasse) {
        sessione.Desktop().Avvisa("la colonna vincente ha " + std::to_string(opzioni.aVincente.size()) +
                                  " numeri e il sistema ne ha " + std::to_string(nClasse) +
                                  " per colonna: il confronto delle condizioni è sui numeri dati");
    }
    return true;
}

} // namespace

eUscita Spoglio(const OpzioniSpoglio& opzioni)
{
    Sessione sessione(false);
    return Uscita(Protetto(sessione, opzioni.sSistema, [&] {
        if (!ApriPerSpoglio(sessione, opzioni)) {
            return false;
        }
        Pagine pagine;
        Rispondi<F_Spoglio>(sessione, [&](F_Spoglio& finestra) { Gioca(finestra, opzioni, pagine); });
        sessione.Sistema().Toolbar2_ButtonClick("ConfrontoCondSuCol");
        if (!pagine.bPronte) {
            return false;
        }
        // Pages that did not fail are shown beside the failure, as in the dialog.
        CompletaNomi(sessione.Sistema(), pagine.confronto);
        if (opzioni.bJson) {
            std::cout << ComeJson(sessione.Sistema(), pagine).dump(2) << '\n';
        } else {
            Stampa(sessione.Sistema(), pagine);
        }
        return !sessione.Desktop().Critico();
    }));
}

} // namespace ordavel::cli
