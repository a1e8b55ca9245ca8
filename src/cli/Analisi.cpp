// Analisi.cpp - the commands that look at a result.

#include "cli/Analisi.hpp"

#include "analisi/F_Spoglio.hpp"
#include "cli/Rispondi.hpp"
#include "cli/StampaElenco.hpp"
#include "cli/TestoErrato.hpp"
#include "cli/UsaArchivio.hpp"

#include <algorithm>
#include <iostream>

namespace ordavel::cli {

namespace {

/// The three pages, as the dialog shows them.
struct Pagine {
    Elenco vincite;
    Elenco confronto;
    Elenco riepilogo;
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
    if (opzioni.nMinimo > 0) {
        SelezionaCombo(std::to_string(opzioni.nMinimo), finestra.CmbPuntiMin);
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
}

/// The key of every condition stands in its row; some have no name in the comparison.
void CompletaNomi(ordavel::Ordavel& sistema, Elenco& confronto)
{
    auto aRighe = confronto.Righe.Valore();
    for (std::size_t i = 0; i < aRighe.size(); ++i) {
        aRighe[i].aSotto[0] = sistema.GetGridCond().Riga(static_cast<std::int32_t>(i) + 1).sCondizione;
    }
    confronto.Righe.Poni(std::move(aRighe));
}

/// Which conditions the winning column does not satisfy.
std::vector<std::string> Tagli(const Elenco& confronto)
{
    std::vector<std::string> aTagli;
    for (const RigaElenco& riga : confronto.Righe.Valore()) {
        if (!riga.aSotto.empty() && riga.aSotto.back() == "No") {
            aTagli.push_back(riga.sTesto + " " + riga.aSotto[0]);
        }
    }
    return aTagli;
}

void Stampa(const Pagine& pagine)
{
    StampaElenco(std::cout, "Vincite", pagine.vincite);
    StampaElenco(std::cout, "Confronto condizioni", pagine.confronto);
    StampaElenco(std::cout, "Riepilogo", pagine.riepilogo);
    const std::vector<std::string> aTagli = Tagli(pagine.confronto);
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

nlohmann::ordered_json ComeJson(const Pagine& pagine)
{
    return {{"vincite", ElencoComeJson(pagine.vincite)},
            {"confronto", ElencoComeJson(pagine.confronto)},
            {"riepilogo", ElencoComeJson(pagine.riepilogo)},
            {"tagliata_da", Tagli(pagine.confronto)}};
}

/// The comparison knows the draws that a run has loaded: a filter of the same columns loads them.
void CaricaEstrazioni(Sessione& sessione, const OpzioniSpoglio& opzioni)
{
    if (!sessione.Sistema().IsCondizionePresente("Emulatore")) {
        return;
    }
    if (opzioni.sColonne.empty()) {
        throw TestoErrato("col filtro emulatore le colonne si dicono con --colonne");
    }
    UsaArchivio(sessione, opzioni.sArchivio, opzioni.sRuota);
    sessione.Sistema().GestSviluppoDaFileColonne(opzioni.sColonne);
    sessione.UsaColonne(opzioni.sColonne);
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
    CaricaEstrazioni(sessione, opzioni);
    ordavel::Ordavel& sistema = sessione.Sistema();
    if (sistema.QuantitaColonne() == 0) {
        throw TestoErrato(opzioni.sColonne.empty() ? "il sistema non porta colonne: dille con --colonne"
                                                   : opzioni.sColonne + " non contiene colonne");
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
        if (sessione.Desktop().Critico()) {
            return false;
        }
        CompletaNomi(sessione.Sistema(), pagine.confronto);
        if (opzioni.bJson) {
            std::cout << ComeJson(pagine).dump(2) << '\n';
        } else {
            Stampa(pagine);
        }
        return true;
    }));
}

} // namespace ordavel::cli
