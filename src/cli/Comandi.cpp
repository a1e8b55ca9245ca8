// Comandi.cpp - what the commands of the program do.

#include "cli/Comandi.hpp"

#include "analisi/F_EffettoCond.hpp"
#include "cli/Esterno.hpp"
#include "cli/Misure.hpp"
#include "cli/Rispondi.hpp"
#include "cli/Sessione.hpp"
#include "cli/SistemaJson.hpp"
#include "cli/Stampa.hpp"
#include "cli/StampaElenco.hpp"
#include "cli/UsaArchivio.hpp"
#include "core/FileBinario.hpp"
#include "core/ModFunzGeneriche.hpp"
#include "core/ModNumeri.hpp"
#include "persistenza/FileAlPosto.hpp"
#include "persistenza/ModFileColonne.hpp"

#include <algorithm>
#include <chrono>
#include <iostream>
#include <limits>
#include <span>
#include <unistd.h>

namespace ordavel::cli {

namespace {

using Orologio = std::chrono::steady_clock;

/// A text of more than this is no list of conditions, and what it would take in memory is a multiple of it.
constexpr std::int64_t kByteTestoMassimi = 8 * 1024 * 1024;
constexpr const char* kTestoTroppoLungo = "il testo di un sistema non supera 8 MiB";

bool Terminale(int nDescrittore)
{
    return isatty(nDescrittore) == 1;
}

void StampaJson(const nlohmann::ordered_json& oggetto)
{
    std::cout << oggetto.dump(2, ' ', false, nlohmann::ordered_json::error_handler_t::replace) << '\n';
}

/// The standard input may have no end.
std::string LeggiIngresso()
{
    std::string sTesto;
    for (char c = 0; std::cin.get(c);) {
        if (sTesto.size() == static_cast<std::size_t>(kByteTestoMassimi)) {
            throw TestoErrato(kTestoTroppoLungo);
        }
        sTesto += c;
    }
    return sTesto;
}

std::string LeggiTesto(const std::string& sFile)
{
    if (sFile == "-") {
        return LeggiIngresso();
    }
    FileBinario file(sFile, eApertura::lettura);
    const std::int64_t nByte = file.Lunghezza();
    if (nByte > kByteTestoMassimi) {
        throw TestoErrato(kTestoTroppoLungo);
    }
    std::string sTesto(static_cast<std::size_t>(nByte), '\0');
    sTesto.resize(file.Leggi(1, std::as_writable_bytes(std::span(sTesto))));
    return sTesto;
}

/// A row that is empty in the middle hides those behind it from a development.
void AvvisaRigheNascoste(Sessione& sessione)
{
    const auto aRighe = RigheOccupate(sessione.Sistema());
    const auto vuota = std::find_if(aRighe.begin(), aRighe.end(), [](const Condizione& c) {
        return c.sCondizione.find_first_not_of(' ') == std::string::npos;
    });
    if (vuota != aRighe.end()) {
        sessione.Desktop().Avvisa("la riga " + std::to_string(vuota - aRighe.begin() + 1) +
                                  " è vuota: le condizioni che la seguono non contano");
    }
}

bool CreaSistema(Sessione& sessione, const std::string& sTesto, const std::string& sSistema)
{
    Imposta(LeggiTestoSistema(LeggiTesto(sTesto)), sessione.Sistema());
    ControllaUscita(sSistema, sTesto);
    const bool bScritto = SalvaAlPosto(sessione, sSistema);
    if (bScritto) {
        AvvisaRigheNascoste(sessione);
        // A system whose links do not match is worth a word now, and may be mended later.
        static_cast<void>(sessione.Sistema().VerificaCoerenzaLink());
    }
    return bScritto;
}

/// Everything of a run that can be refused before it begins.
bool PreparaCorsa(Sessione& sessione, const OpzioniCorsa& opzioni)
{
    ordavel::Ordavel& sistema = sessione.Sistema();
    ScegliGioco(sessione, opzioni.sGioco);
    if (!opzioni.bEffetto) {
        ControllaUscita(opzioni.sUscita, opzioni.sSistema);
    }
    if (!sessione.Apri(opzioni.sSistema, opzioni.sTemp)) {
        return false;
    }
    UsaArchivio(sessione, opzioni.sArchivio, opzioni.sRuota);
    if (opzioni.sMotore == "esterno") {
        UsaMotoreEsterno(sessione);
    }
    if (opzioni.sOrigine.empty() && sistema.classe() == 0) {
        sessione.Desktop().Avvisa("la classe di " + opzioni.sSistema +
                                  " non è da 2 a 10: forse non è un file di sistema");
        return false;
    }
    return true;
}

/// Says what an odd source means; a source without columns ends the command.
bool ControllaOrigine(Sessione& sessione, const std::string& sOrigine)
{
    FileBinario(sOrigine, eApertura::lettura).Chiudi();
    const std::int64_t nByte = DimensioneFile(sOrigine);
    if (ArrotondaPari(NumeroColonneFile(sOrigine)) == 0) {
        sessione.Desktop().Avvisa(sOrigine + " non contiene colonne");
        return false;
    }
    if (nByte % kByteColonna != 0) {
        sessione.Desktop().Avvisa("la lunghezza di " + sOrigine + " (" +
                                  FormattaNumero(static_cast<double>(nByte)) +
                                  " byte) non è un multiplo di 20: l'ultima colonna può essere incompleta");
    }
    return true;
}

bool Esegui(Sessione& sessione, const OpzioniCorsa& opzioni, EsitoCorsa& esito)
{
    ordavel::Ordavel& sistema = sessione.Sistema();
    BarraTerminale& barra = sessione.Desktop().Barra();
    sessione.Desktop().AdOgniEvento([&] {
        const StatoSviluppo& stato = sistema.UltimoSviluppo();
        if (PiattaformaCli::StopChiesto() && !stato.bStopSviluppo) {
            sistema.Stop();
        }
        if (!SegueMotoreEsterno(sessione)) {
            barra.Aggiorna(stato.nSviluppate, stato.nCondizionate);
        }
    });
    barra.Inizia(esito.nIntegrali);
    const auto inizio = Orologio::now();
    const bool bCorso =
        esito.bDaFile ? sistema.GestSviluppoDaFileColonne(opzioni.sOrigine) : sistema.GestSviluppo();
    const auto durata = std::chrono::duration_cast<std::chrono::milliseconds>(Orologio::now() - inizio);
    barra.Cancella();
    esito.nSecondi = static_cast<double>(durata.count()) / 1000;
    return bCorso;
}

void RaccogliEsito(ordavel::Ordavel& sistema, bool bEsterno, EsitoCorsa& esito)
{
    const StatoSviluppo& stato = sistema.UltimoSviluppo();
    esito.nSviluppate = bEsterno ? SviluppateEsterne() : stato.nSviluppate;
    esito.nCondizionate = ArrotondaPari(NumeroColonneFile(sistema.FileColonne()));
    esito.bInterrotto = stato.bStopSviluppo;
    if (!sistema.GetGridCond().Vuota(1)) {
        esito.aCondizioni = stato.aCondizioni;
    }
}

bool CorriProtetto(Sessione& sessione, const OpzioniCorsa& opzioni, EsitoCorsa& esito)
{
    ordavel::Ordavel& sistema = sessione.Sistema();
    if (!PreparaCorsa(sessione, opzioni) ||
        (esito.bDaFile && !ControllaOrigine(sessione, opzioni.sOrigine))) {
        return false;
    }
    esito.nIntegrali =
        esito.bDaFile ? ArrotondaPari(NumeroColonneFile(opzioni.sOrigine)) : sistema.ColonneIntegrali();
    const bool bEsterno = opzioni.sMotore == "esterno";
    if (!bEsterno && esito.nIntegrali > std::numeric_limits<std::int32_t>::max()) {
        sessione.Desktop().Avvisa("le colonne sono " + FormattaNumero(esito.nIntegrali) +
                                  ": il conto si ferma con un errore dopo 2.147.483.647");
    }
    if (!Esegui(sessione, opzioni, esito)) {
        return false;
    }
    RaccogliEsito(sistema, bEsterno, esito);
    if (bEsterno && !sessione.Desktop().Critico()) {
        ControllaMotoreEsterno(sistema);
    }
    if (opzioni.bEffetto) {
        return !sessione.Desktop().Critico();
    }
    return !sessione.Desktop().Critico() &&
           ScriviAlPosto(sessione.Desktop(), opzioni.sUscita, [&](const std::string& sProvvisorio) {
               sessione.Desktop().RispondiSalva(sProvvisorio);
               return sistema.SalvaFileColonne();
           });
}

} // namespace

eUscita Crea(const std::string& sTesto, const std::string& sSistema)
{
    Sessione sessione(false);
    return Uscita(Protetto(sessione, sTesto, [&] { return CreaSistema(sessione, sTesto, sSistema); }));
}

eUscita Mostra(const std::string& sSistema, bool bJson)
{
    Sessione sessione(false);
    if (!Protetto(sessione, sSistema, [&] { return sessione.Apri(sSistema, {}); })) {
        return eUscita::fallito;
    }
    if (bJson) {
        StampaSistemaJson(std::cout, sessione.Sistema());
    } else {
        StampaSistema(std::cout, sessione.Sistema());
    }
    return eUscita::fatto;
}

eUscita Corri(const OpzioniCorsa& opzioni)
{
    Sessione sessione(Terminale(STDERR_FILENO));
    EsitoCorsa esito;
    esito.bDaFile = !opzioni.sOrigine.empty();
    const bool bFatto =
        Protetto(sessione, opzioni.sSistema, [&] { return CorriProtetto(sessione, opzioni, esito); });
    if (opzioni.bJson) {
        StampaJson(ComeJson(esito, sessione.Desktop().Messaggi()));
    } else if (bFatto) {
        StampaEsito(std::cout, esito);
        std::cout << "\n  " << Riassunto(esito, opzioni.sUscita) << '\n';
    }
    return bFatto && esito.bInterrotto ? eUscita::interrotto : Uscita(bFatto);
}

eUscita Effetto(OpzioniCorsa opzioni)
{
    opzioni.bEffetto = true;
    Sessione sessione(Terminale(STDERR_FILENO));
    EsitoCorsa esito;
    return Uscita(Protetto(sessione, opzioni.sSistema, [&] {
        if (!CorriProtetto(sessione, opzioni, esito)) {
            return false;
        }
        Elenco effetto;
        Rispondi<F_EffettoCond>(sessione, [&](F_EffettoCond& finestra) { effetto = finestra.ListView1; });
        sessione.Sistema().Toolbar2_ButtonClick("EffettoCondizioni");
        if (opzioni.bJson) {
            StampaJson(ElencoComeJson(effetto));
        } else {
            StampaElenco(std::cout, "Effetto condizioni", effetto);
        }
        return !sessione.Desktop().Critico();
    }));
}

eUscita MisuraColonna(std::int16_t nClasse, std::vector<std::int16_t> aNumeri, bool bJson)
{
    std::sort(aNumeri.begin(), aNumeri.end());
    Colonna colonna;
    std::copy(aNumeri.begin(), aNumeri.end(), colonna.aNumeri.begin());
    const nlohmann::ordered_json misure = Misura(nClasse, colonna);
    if (bJson) {
        StampaJson(misure);
    } else {
        StampaMisure(std::cout, misure);
    }
    return eUscita::fatto;
}

} // namespace ordavel::cli
