// Riduci.cpp - the commands that reduce columns, and that check a reduction.

#include "cli/Riduci.hpp"

#include "analisi/F_Riduzione.hpp"
#include "cli/Rispondi.hpp"
#include "cli/Sessione.hpp"
#include "core/FileBinario.hpp"
#include "core/ModFunzGeneriche.hpp"
#include "core/ModNumeri.hpp"
#include "core/TestoErrato.hpp"
#include "persistenza/FileAlPosto.hpp"
#include "persistenza/ModFileColonne.hpp"
#include "riduzione/LibreriaRiduzione.hpp"
#include "riduzione/ModGaranzia.hpp"

#include <nlohmann/json.hpp>

#include <chrono>
#include <cstdlib>
#include <iostream>
#include <unistd.h>

namespace ordavel::cli {

namespace {

/// What a reduction came to.
struct EsitoRiduzione {
    std::string sUscita;
    double nColonne = 0;
    double nRidotte = 0;
    double nSecondi = 0;
    bool bInterrotto = false;
};

/// The columns of a file that can be read and holds some.
double ColonneDi(const std::string& sFile)
{
    FileBinario(sFile, eApertura::lettura).Chiudi();
    const double nColonne = ArrotondaPari(NumeroColonneFile(sFile));
    if (nColonne == 0) {
        throw TestoErrato(sFile + " non contiene colonne");
    }
    return nColonne;
}

void Misura(EsitoRiduzione& esito, const std::function<void()>& corsa)
{
    using Orologio = std::chrono::steady_clock;
    const auto inizio = Orologio::now();
    corsa();
    esito.nSecondi = std::chrono::duration<double>(Orologio::now() - inizio).count();
}

/// Passes a stop on to the engine, once, and draws how far the external one is.
void SegueMotore(Sessione& sessione, bool bEsterno)
{
    sessione.Desktop().AdOgniEvento([&sessione, bEsterno, bFermata = false]() mutable {
        LibreriaRiduzione libreria;
        if (bEsterno) {
            sessione.Desktop().Barra().Aggiorna(libreria.GetPercProgRiduzione(), 0);
        }
        if (PiattaformaCli::StopChiesto() && !bFermata) {
            bFermata = true;
            bEsterno ? libreria.StopRiduzioneDll() : sessione.Sistema().StopRiduciColonne();
        }
    });
}

/// Says how long the external engine may take, to it alone.
void PoniSecondi(std::int32_t nSecondi)
{
    setenv("ORDAVEL_RIDUZIONE_SECONDI", std::to_string(nSecondi).c_str(), 1); // NOLINT(concurrency-mt-unsafe)
}

bool RiduciPerPunti(Sessione& sessione, const OpzioniRiduci& opzioni, EsitoRiduzione& esito)
{
    ControllaUscita(opzioni.sUscita, opzioni.sFile);
    esito.nColonne = ColonneDi(opzioni.sFile);
    esito.sUscita = opzioni.sUscita;
    const bool bEsterno = opzioni.sMotore == "esterno";
    if (opzioni.nSecondi) {
        PoniSecondi(*opzioni.nSecondi);
    }
    ordavel::Ordavel& sistema = sessione.Sistema();
    sessione.UsaCartellaPropria();
    sistema.PoniMotoreSviluppo(bEsterno ? eMotoreSviluppo::esterno : eMotoreSviluppo::interno);
    SegueMotore(sessione, bEsterno);
    sessione.Desktop().Barra().Inizia(100);
    Misura(esito, [&] { sistema.RiduciColonne(opzioni.sFile, *opzioni.nPunti); });
    sessione.Desktop().Barra().Cancella();
    if (sessione.Desktop().Critico()) {
        return false;
    }
    // A warning ends it without a file, and so does an external engine that gives up.
    if (!FileEsiste(sistema.FileColonne())) {
        if (sessione.Desktop().Messaggi().empty()) {
            throw TestoErrato("il motore esterno non ha ridotto le colonne");
        }
        return false;
    }
    esito.nRidotte = ArrotondaPari(NumeroColonneFile(sistema.FileColonne()));
    return ScriviAlPosto(sessione.Desktop(), opzioni.sUscita, [&](const std::string& sProvvisorio) {
        sessione.Desktop().RispondiSalva(sProvvisorio);
        return sistema.SalvaFileColonne();
    });
}

/// Plays the user at the dialog, which names the file; the new one is written beside an older one.
bool Gioca(Sessione& sessione, F_Riduzione& finestra, const OpzioniRiduci& opzioni, EsitoRiduzione& esito)
{
    finestra.labFile.Testo.Poni(opzioni.sFile);
    finestra.CmbMotoreRid.Indice.Poni(0);
    finestra.cmbRiduzione.Indice.Poni(opzioni.nRiduzione - 1);
    esito.sUscita = finestra.LabFileRidotto.Testo.Valore();
    ControllaUscita(esito.sUscita, opzioni.sFile);
    sessione.Desktop().AdOgniEvento(
        [&] { sessione.Desktop().Barra().Aggiorna(finestra.PanPerc.Valore.Valore(), 0); });
    return ScriviAlPosto(sessione.Desktop(), esito.sUscita, [&](const std::string& sProvvisorio) {
        finestra.LabFileRidotto.Testo.Poni(sProvvisorio);
        finestra.XPButton1_Click(0);
        return !sessione.Desktop().Critico();
    });
}

bool RiduciInOrdine(Sessione& sessione, const OpzioniRiduci& opzioni, EsitoRiduzione& esito)
{
    esito.nColonne = ColonneDi(opzioni.sFile);
    sessione.UsaCartellaPropria();
    sessione.Desktop().Barra().Inizia(100);
    bool bFatto = false;
    Rispondi<F_Riduzione>(sessione,
                          [&](F_Riduzione& finestra) { bFatto = Gioca(sessione, finestra, opzioni, esito); });
    Misura(esito, [&] { sessione.Sistema().Toolbar2_ButtonClick("Riduzione"); });
    sessione.Desktop().Barra().Cancella();
    sessione.Desktop().AdOgniEvento({});
    esito.nRidotte = NumeroColonneFile(esito.sUscita);
    return bFatto;
}

void Stampa(const EsitoRiduzione& esito, bool bJson)
{
    if (bJson) {
        const nlohmann::ordered_json testo{{"uscita", esito.sUscita},
                                           {"colonne", esito.nColonne},
                                           {"ridotte", esito.nRidotte},
                                           {"secondi", esito.nSecondi},
                                           {"interrotto", esito.bInterrotto}};
        std::cout << testo.dump(2) << '\n';
        return;
    }
    std::cout << esito.sUscita << ": " << FormattaNumero(esito.nRidotte) << " colonne di "
              << FormattaNumero(esito.nColonne) << (esito.bInterrotto ? " (interrotto)" : "") << '\n';
}

void Stampa(const OpzioniGaranzia& opzioni, const EsitoGaranzia& esito)
{
    if (opzioni.bJson) {
        nlohmann::ordered_json testo{
            {"punti", opzioni.nPunti}, {"controllate", esito.nControllate}, {"scoperte", esito.nScoperte}};
        if (esito.nPrimaScoperta > 0) {
            testo["prima"] = {{"colonna", esito.nPrimaScoperta},
                              {"numeri", FormattaColonna(esito.primaScoperta.aNumeri, false)}};
        }
        std::cout << testo.dump(2) << '\n';
        return;
    }
    const std::string sControllate = FormattaNumero(static_cast<double>(esito.nControllate));
    if (esito.nPrimaScoperta == 0) {
        std::cout << "Garantiti " << opzioni.nPunti << " punti: " << sControllate << " colonne controllate\n";
        return;
    }
    std::cout << "Non garantiti " << opzioni.nPunti << " punti: scoperte "
              << FormattaNumero(static_cast<double>(esito.nScoperte)) << " colonne di " << sControllate
              << "\nLa prima è la " << FormattaNumero(static_cast<double>(esito.nPrimaScoperta)) << ": "
              << FormattaColonna(esito.primaScoperta.aNumeri, false) << '\n';
}

} // namespace

eUscita Riduci(const OpzioniRiduci& opzioni)
{
    Sessione sessione(isatty(STDERR_FILENO) == 1);
    EsitoRiduzione esito;
    const bool bFatto = Protetto(sessione, opzioni.sFile, [&] {
        return opzioni.bSequenziale ? RiduciInOrdine(sessione, opzioni, esito)
                                    : RiduciPerPunti(sessione, opzioni, esito);
    });
    esito.bInterrotto = PiattaformaCli::StopChiesto() && !opzioni.bSequenziale;
    if (bFatto) {
        Stampa(esito, opzioni.bJson);
    }
    return bFatto && esito.bInterrotto ? eUscita::interrotto : Uscita(bFatto);
}

eUscita Garanzia(const OpzioniGaranzia& opzioni)
{
    Sessione sessione(false);
    return Uscita(Protetto(sessione, opzioni.sFile, [&] {
        const EsitoGaranzia esito = ControllaGaranzia(opzioni.sFile, opzioni.sRidotto, opzioni.nPunti);
        Stampa(opzioni, esito);
        return esito.nScoperte == 0;
    }));
}

} // namespace ordavel::cli
