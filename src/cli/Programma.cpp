// Programma.cpp - the words of the command line, on CLI11.

#include "cli/Programma.hpp"

#include "cli/Analisi.hpp"
#include "cli/Archivio.hpp"
#include "cli/Colonne.hpp"
#include "cli/Comandi.hpp"
#include "cli/Conta.hpp"
#include "cli/ControlloParole.hpp"
#include "cli/Modifiche.hpp"
#include "cli/PiattaformaCli.hpp"
#include "cli/Riduci.hpp"
#include "condizioni/ModCatalogo.hpp"
#include "core/ModFunzGeneriche.hpp"
#include "core/ModGiochi.hpp"
#include "core/ModProcessore.hpp"
#include "core/ModTesti.hpp"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <array>
#include <functional>
#include <iostream>
#include <map>
#include <memory>
#include <set>

namespace ordavel::cli {

namespace {

constexpr const char* kChiusura =
    "\nUn esempio:\n"
    "  ordavel crea esempi/superenalotto.json sistema.sic\n"
    "  ordavel mostra sistema.sic\n"
    "  ordavel conta sistema.sic\n"
    "  ordavel sviluppa sistema.sic -o colonne.col\n"
    "  ordavel filtra altro.sic --da colonne.col -o meno.col\n"
    "  ordavel misura 5 3 12 27 28 90\n"
    "  ordavel aggiungi sistema.sic --tipo Pari-Dispari --parametri 'Pari\\n2,3'\n"
    "  ordavel aggiungi sistema.sic --file condizioni.cnd\n"
    "  ordavel quadro sistema.sic --gruppo 1 --minimo 1 --massimo 2\n"
    "  ordavel riduci colonne.col -o ridotte.col --punti 4\n"
    "  ordavel garanzia colonne.col ridotte.col --punti 4\n";

void TraduciAiuto(CLI::App& programma)
{
    const auto formato = std::make_shared<CLI::Formatter>();
    const std::map<std::string, std::string> parole{
        {"Usage", "Uso"},           {"Positionals", "Argomenti"}, {"Options", "Opzioni"},
        {"OPTIONS", "OPZIONI"},     {"SUBCOMMAND", "COMANDO"},    {"SUBCOMMANDS", "COMANDI"},
        {"Subcommands", "Comandi"}, {"REQUIRED", "(serve)"},      {"TEXT", "TESTO"},
        {"INT", "NUMERO"},          {"Env", "Ambiente"},          {"Needs", "Con"}};
    for (const auto& [sInglese, sItaliano] : parole) {
        formato->label(sInglese, sItaliano);
    }
    programma.formatter(formato);
    programma.option_defaults()->group("Opzioni");
    programma.set_help_flag("-h,--help", "Mostra questo aiuto");
}

CLI::App* NuovoComando(CLI::App& programma, const std::string& sNome, const std::string& sScopo)
{
    CLI::App* comando = programma.add_subcommand(sNome, sScopo);
    comando->group("Comandi")->footer("");
    comando->get_help_ptr()->group("Opzioni");
    return comando;
}

void AggiungiCrea(CLI::App& programma, Riga& riga)
{
    CLI::App* comando = NuovoComando(programma, "crea", "Fa un sistema da un testo JSON");
    comando->add_option("CELLE", riga.sTesto, "Il testo, o - per leggerlo dall'ingresso")->required();
    comando->add_option("SISTEMA", riga.sSistema, "Il file .sic da scrivere")->required();
    comando->callback([&riga] { riga.azione = [&riga] { return Crea(riga.sTesto, riga.sSistema); }; });
}

void AggiungiMostra(CLI::App& programma, Riga& riga)
{
    CLI::App* comando = NuovoComando(programma, "mostra", "Mostra un sistema");
    comando->add_option("SISTEMA", riga.sSistema, "Il file .sic")->required();
    comando->add_flag("--json", riga.bJson, "Come testo JSON, che \"crea\" sa rileggere");
    comando->callback([&riga] { riga.azione = [&riga] { return Mostra(riga.sSistema, riga.bJson); }; });
}

void AggiungiGioco(CLI::App& comando, std::string& sGioco, std::string& sArchivio, std::string& sRuota)
{
    comando.add_option("--gioco", sGioco, "Nome del gioco");
    comando.add_option("--archivio", sArchivio, "Le estrazioni del gioco, per il filtro emulatore");
    comando.add_option("--ruota", sRuota, "La ruota da emulare, per il Lotto");
}

CLI::App* AggiungiCorsa(CLI::App& programma, Riga& riga, const std::string& sNome, const std::string& sScopo)
{
    CLI::App* comando = NuovoComando(programma, sNome, sScopo);
    comando->add_option("SISTEMA", riga.corsa.sSistema, "Il file .sic")->required();
    comando->add_option("-o,--uscita", riga.corsa.sUscita, "Il file .col da scrivere")->required();
    comando->add_flag("--json", riga.corsa.bJson, "Il risultato come oggetto JSON");
    comando->add_option("--temp", riga.corsa.sTemp, "Cartella dei file temporanei");
    AggiungiGioco(*comando, riga.corsa.sGioco, riga.corsa.sArchivio, riga.corsa.sRuota);
    comando->callback([&riga] { riga.azione = [&riga] { return Corri(riga.corsa); }; });
    return comando;
}

void AggiungiConta(CLI::App& programma, Riga& riga)
{
    OpzioniConta& opzioni = riga.conta;
    CLI::App* comando = NuovoComando(programma, "conta", "Conta le colonne che passano, senza svilupparle");
    comando->add_option("SISTEMA", opzioni.sSistema, "Il file .sic")->required();
    comando->add_flag("--solo-stima", opzioni.bSoloStima,
                      "Non aspetta il conto esatto, quando è lungo: bastano le stime");
    comando->add_flag("--json", opzioni.bJson, "Come oggetto JSON");
    AggiungiGioco(*comando, opzioni.sGioco, opzioni.sArchivio, opzioni.sRuota);
    comando->callback([&riga] { riga.azione = [&riga] { return Conta(riga.conta); }; });
}

void AggiungiEffetto(CLI::App& programma, Riga& riga)
{
    CLI::App* comando = NuovoComando(programma, "effetto", "Sviluppa e dice che cosa fa ogni condizione");
    comando->add_option("SISTEMA", riga.corsa.sSistema, "Il file .sic")->required();
    comando->add_flag("--json", riga.corsa.bJson, "Come elenco JSON");
    AggiungiGioco(*comando, riga.corsa.sGioco, riga.corsa.sArchivio, riga.corsa.sRuota);
    comando->callback([&riga] { riga.azione = [&riga] { return Effetto(riga.corsa); }; });
}

void AggiungiSpoglio(CLI::App& programma, Riga& riga)
{
    OpzioniSpoglio& opzioni = riga.spoglio;
    CLI::App* comando =
        NuovoComando(programma, "spoglio", "Confronta colonne e condizioni con una colonna vincente");
    comando->add_option("SISTEMA", opzioni.sSistema, "Il file .sic")->required();
    comando->add_option("--colonne", opzioni.sColonne,
                        "Il file .col; senza, le colonne che il sistema porta");
    comando->add_option("--vincente", riga.sVincente, "I numeri vincenti, separati da punti")->required();
    AggiungiGioco(*comando, opzioni.sGioco, opzioni.sArchivio, opzioni.sRuota);
    comando->add_option("--minimo", opzioni.nMinimo, "Da quanti punti elencare le colonne, da 1 a 10");
    comando->add_flag("--json", opzioni.bJson, "Come oggetto JSON");
    comando->callback([&riga] { riga.azione = [&riga] { return Spoglio(riga.spoglio); }; });
}

/// One of the three things that are done with an archive.
void AggiungiParteArchivio(CLI::App& comando, Riga& riga, const std::string& sNome, const std::string& sScopo,
                           eUscita (*azione)(const OpzioniArchivio&))
{
    CLI::App* parte = NuovoComando(comando, sNome, sScopo);
    parte->add_option("--gioco", riga.archivio.sGioco, "Nome del gioco");
    if (sNome == "importa") {
        parte->add_option("ESTRAZIONI", riga.archivio.sTesto, "Il testo .csv, la più vecchia per prima")
            ->required();
    }
    parte->add_option("ARCHIVIO", riga.archivio.sArchivio, "Il file dell'archivio")->required();
    if (sNome == "esporta") {
        parte->add_option("ESTRAZIONI", riga.archivio.sTesto, "Il testo .csv da scrivere")->required();
    }
    parte->callback([&riga, azione] { riga.azione = [&riga, azione] { return azione(riga.archivio); }; });
}

void AggiungiArchivio(CLI::App& programma, Riga& riga)
{
    CLI::App* comando =
        NuovoComando(programma, "archivio", "Archivi delle estrazioni, per il filtro emulatore");
    comando->require_subcommand(1);
    comando->footer("\nIl testo ha un'intestazione, \"Data\" e un nome per numero (da Bari1 a Nazionale5 per "
                    "il Lotto, N1, "
                    "N2 ...\nper gli altri), e una riga per estrazione; separano \";\", \",\" o un "
                    "tabulatore. La data serve "
                    "a chi legge:\nnell'archivio non va.\n");
    AggiungiParteArchivio(*comando, riga, "importa", "Fa un archivio da un testo", ImportaArchivio);
    AggiungiParteArchivio(*comando, riga, "esporta", "Scrive un archivio come testo", EsportaArchivio);
    AggiungiParteArchivio(*comando, riga, "info", "Dice quante estrazioni ha un archivio", InfoArchivio);
}

void AggiungiMisura(CLI::App& programma, Riga& riga)
{
    CLI::App* comando = NuovoComando(programma, "misura", "Mostra tutte le misure di una colonna");
    comando->add_option("CLASSE", riga.nClasse, "Quanti numeri ha la colonna")->required();
    comando->add_option("NUMERI", riga.aNumeri, "I numeri, da 1 a 90")->required();
    comando->add_flag("--json", riga.bJson, "Come oggetto JSON");
    comando->callback(
        [&riga] { riga.azione = [&riga] { return MisuraColonna(riga.nClasse, riga.aNumeri, riga.bJson); }; });
}

void AggiungiAggiungi(CLI::App& programma, Riga& riga)
{
    OpzioniAggiungi& opzioni = riga.aggiungi;
    CLI::App* comando = NuovoComando(programma, "aggiungi", "Aggiunge condizioni a un sistema");
    comando->add_option("SISTEMA", opzioni.sSistema, "Il file .sic")->required();
    comando->add_option("--tipo", opzioni.sTipo, "Una condizione, col suo nome");
    comando->add_option(
        "--parametri", opzioni.sParametri,
        "I suoi valori: elenco o \"minimo,massimo\", \"|\" e quelli di recupero; dove serve una "
        "parola, la parola e un a capo (\\n) davanti");
    comando->add_option("--file", opzioni.sFile, "Tutte le condizioni di un file .cnd");
    comando->add_option("--colonne", opzioni.sColonne, "Le colonne di un testo, una condizione l'una");
    comando->add_option("--punti", opzioni.aPunti, "I punti delle colonne, separati da virgole")
        ->delimiter(',');
    comando->add_option("--recupero", opzioni.aRecupero, "I punti di recupero delle colonne")->delimiter(',');
    comando->add_option("--quadro", opzioni.nQuadro, "Il gruppo di recupero delle colonne, da 1 a 20");
    comando->callback([&riga] { riga.azione = [&riga] { return Aggiungi(riga.aggiungi); }; });
}

CLI::App* AggiungiTratto(CLI::App& programma, Riga& riga, const std::string& sNome, const std::string& sScopo)
{
    CLI::App* comando = NuovoComando(programma, sNome, sScopo);
    comando->add_option("SISTEMA", riga.righe.sSistema, "Il file .sic")->required();
    comando->add_option("--da", riga.righe.nDa, "La prima condizione");
    comando->add_option("--a", riga.righe.nA, "L'ultima condizione");
    return comando;
}

void AggiungiTogli(CLI::App& programma, Riga& riga)
{
    CLI::App* comando = AggiungiTratto(programma, riga, "togli", "Toglie condizioni da un sistema");
    comando->get_option("--da")->required();
    comando->get_option("--a")->required();
    comando->callback([&riga] { riga.azione = [&riga] { return Togli(riga.righe); }; });
}

void AggiungiSalvaCondizioni(CLI::App& programma, Riga& riga)
{
    CLI::App* comando =
        AggiungiTratto(programma, riga, "salva-condizioni", "Copia condizioni in un file a parte");
    comando->add_option("FILE", riga.righe.sFile, "Il file .cnd da scrivere")->required();
    comando->callback([&riga] { riga.azione = [&riga] { return SalvaCondizioni(riga.righe); }; });
}

void AggiungiQuadro(CLI::App& programma, Riga& riga)
{
    OpzioniQuadro& opzioni = riga.quadro;
    CLI::App* comando = NuovoComando(programma, "quadro", "Imposta un gruppo del quadro recuperi");
    comando->add_option("SISTEMA", opzioni.sSistema, "Il file .sic")->required();
    comando->add_option("--gruppo", opzioni.nGruppo, "Il gruppo, da 1 a 20")->required();
    comando->add_option("--minimo", opzioni.nMinimo, "Quante condizioni recuperate almeno");
    comando->add_option("--massimo", opzioni.nMassimo, "Quante al massimo");
    comando->add_flag("--togli", opzioni.bTogli, "Mette il gruppo fuori uso");
    comando->callback([&riga] { riga.azione = [&riga] { return ImpostaQuadro(riga.quadro); }; });
}

void AggiungiEsporta(CLI::App& programma, Riga& riga)
{
    CLI::App* comando = NuovoComando(programma, "esporta", "Scrive le colonne di un file come testo");
    comando->add_option("COLONNE", riga.vedi.sFile, "Il file .col")->required();
    comando->add_option("TESTO", riga.sUscita, "Il file .txt da scrivere")->required();
    comando->callback([&riga] { riga.azione = [&riga] { return Esporta(riga.vedi.sFile, riga.sUscita); }; });
}

void AggiungiVedi(CLI::App& programma, Riga& riga)
{
    CLI::App* comando = NuovoComando(programma, "vedi", "Mostra alcune colonne di un file");
    comando->add_option("COLONNE", riga.vedi.sFile, "Il file .col")->required();
    comando->add_option("--da", riga.vedi.nDa, "La prima colonna, da 1");
    comando->add_option("--quante", riga.vedi.nQuante, "Quante colonne");
    comando->callback([&riga] { riga.azione = [&riga] { return Vedi(riga.vedi); }; });
}

void AggiungiRiduci(CLI::App& programma, Riga& riga)
{
    OpzioniRiduci& opzioni = riga.riduci;
    CLI::App* comando = NuovoComando(programma, "riduci", "Riduce un file di colonne con una garanzia");
    comando->add_option("COLONNE", opzioni.sFile, "Il file .col da ridurre")->required();
    comando->add_option("-o,--uscita", opzioni.sUscita, "Il file .col da scrivere");
    comando->add_option("--punti", opzioni.nPunti,
                        "Quanti numeri ogni colonna ha in comune con una di quelle che restano");
    comando->add_option("--motore", opzioni.sMotore,
                        "\"interno\" (di suo), o \"esterno\", che cerca più a lungo e tiene meno colonne");
    comando->add_option("--secondi", opzioni.nSecondi, "Quanto può cercare il motore esterno (60 di suo)");
    comando->add_flag("--sequenziale", opzioni.bSequenziale,
                      "Nell'ordine del file, anche oltre un milione di colonne; scrive accanto al file un "
                      "\"..._Rid_N-K.col\"");
    comando->add_option("--riduzione", opzioni.nRiduzione, "Quanti punti cedere (K), da 1 a 3");
    comando->add_flag("--json", opzioni.bJson, "Il risultato come oggetto JSON");
    comando->callback([&riga] { riga.azione = [&riga] { return Riduci(riga.riduci); }; });
}

void AggiungiGaranzia(CLI::App& programma, Riga& riga)
{
    OpzioniGaranzia& opzioni = riga.garanzia;
    CLI::App* comando = NuovoComando(programma, "garanzia", "Controlla che una riduzione tenga la promessa");
    comando->add_option("COLONNE", opzioni.sFile, "Il file .col che fu ridotto")->required();
    comando->add_option("RIDOTTE", opzioni.sRidotto, "Il file .col ridotto")->required();
    comando->add_option("--punti", opzioni.nPunti, "I numeri in comune promessi")->required();
    comando->add_flag("--json", opzioni.bJson, "Il risultato come oggetto JSON");
    comando->callback([&riga] { riga.azione = [&riga] { return Garanzia(riga.garanzia); }; });
}

/// The name of the instruction set that loops run with; the environment may ask for one that there is not.
std::string Nucleo()
{
    try {
        return std::string(NomeNucleo(NucleoMigliore()));
    } catch (const Errore& errore) {
        throw UsoErrato(errore.Descrizione());
    }
}

void AggiungiComandi(CLI::App& programma, Riga& riga)
{
    TraduciAiuto(programma);
    const auto versione = [] { return "ordavel " ORDAVEL_VERSIONE " (nucleo " + Nucleo() + ")"; };
    programma.set_version_flag("--version", versione, "Mostra la versione e il nucleo di calcolo");
    programma.footer(kChiusura);
    AggiungiCrea(programma, riga);
    AggiungiMostra(programma, riga);
    AggiungiCorsa(programma, riga, "sviluppa", "Sviluppa un sistema in un file di colonne")
        ->add_option("--motore", riga.corsa.sMotore,
                     R"("interno" (di suo), o "esterno", la libreria TorvanSvilSist)");
    AggiungiCorsa(programma, riga, "filtra", "Filtra un file di colonne con le condizioni di un sistema")
        ->add_option("--da", riga.corsa.sOrigine, "Il file .col da filtrare")
        ->required();
    AggiungiConta(programma, riga);
    AggiungiMisura(programma, riga);
    AggiungiAggiungi(programma, riga);
    AggiungiTogli(programma, riga);
    AggiungiQuadro(programma, riga);
    AggiungiSalvaCondizioni(programma, riga);
    AggiungiEsporta(programma, riga);
    AggiungiVedi(programma, riga);
    AggiungiEffetto(programma, riga);
    AggiungiSpoglio(programma, riga);
    AggiungiRiduci(programma, riga);
    AggiungiGaranzia(programma, riga);
    AggiungiArchivio(programma, riga);
}

/// The first word must be a command or an option; a wrong one is named, with the nearest command.
void ControllaComando(CLI::App& programma, int nArgomenti, const char* const* aArgomenti)
{
    const auto aComandi = programma.get_subcommands([](const CLI::App*) { return true; });
    if (nArgomenti < 2) {
        throw UsoErrato("manca il comando");
    }
    const std::string sParola = aArgomenti[1];
    const auto bUguale = [&](const CLI::App* comando) { return comando->get_name() == sParola; };
    if (sParola.starts_with('-') || std::any_of(aComandi.begin(), aComandi.end(), bUguale)) {
        return;
    }
    std::vector<std::string> aNomi;
    std::transform(aComandi.begin(), aComandi.end(), std::back_inserter(aNomi),
                   [](const CLI::App* comando) { return comando->get_name(); });
    throw UsoErrato("comando sconosciuto \"" + sParola + "\"; forse \"" + PiuVicina(sParola, aNomi) + "\"");
}

/// What the library says of a wrong line, in Italian where it is one of the common cases.
std::string Traduci(const CLI::ParseError& errore)
{
    std::string sTesto = errore.what();
    if (dynamic_cast<const CLI::RequiredError*>(&errore) != nullptr) {
        return "manca " + Sostituisci(Sostituisci(sTesto, "A subcommand", "il comando"), " is required", "");
    }
    if (dynamic_cast<const CLI::ExtrasError*>(&errore) != nullptr) {
        return "argomento di troppo: " + sTesto.substr(sTesto.rfind(": ") + 2);
    }
    if (dynamic_cast<const CLI::ConversionError*>(&errore) != nullptr) {
        return "serve un numero: " + Sostituisci(sTesto, "Could not convert: ", "");
    }
    if (dynamic_cast<const CLI::ArgumentMismatch*>(&errore) != nullptr) {
        return "serve un valore, e uno solo: " + sTesto.substr(0, sTesto.find(':'));
    }
    return sTesto;
}

eUscita Interpreta(CLI::App& programma, Riga& riga, int nArgomenti, const char* const* aArgomenti)
{
    ControllaComando(programma, nArgomenti, aArgomenti);
    try {
        programma.parse(nArgomenti, aArgomenti);
    } catch (const CLI::Success& richiesta) {
        programma.exit(richiesta);
        return eUscita::fatto;
    } catch (const CLI::ParseError& errore) {
        throw UsoErrato(Traduci(errore));
    }
    if (!riga.azione) {
        throw UsoErrato("manca il comando");
    }
    ControllaParole(programma.get_subcommands().front()->get_name(), riga);
    static_cast<void>(Nucleo()); // refused before any work, also by commands that count nothing
    return riga.azione();
}

} // namespace

int Esegui(int nArgomenti, const char* const* aArgomenti)
{
    PreparaSegnali();
    CLI::App programma("Sistemi condizionati: dalle condizioni alle colonne.", "ordavel");
    Riga riga;
    eUscita uscita = eUscita::fallito;
    try {
        AggiungiComandi(programma, riga);
        uscita = Interpreta(programma, riga, nArgomenti, aArgomenti);
        std::cout.flush();
    } catch (const UsoErrato& errore) {
        std::cerr << "errore: uso: " << errore.what() << "\nProva \"ordavel --help\".\n";
        uscita = eUscita::uso;
    } catch (const Errore& errore) {
        std::cerr << "errore: ordavel: " << TestoFallimento(errore) << '\n';
    } catch (const std::exception& errore) {
        std::cerr << "errore: ordavel: " << errore.what() << '\n';
    }
    if (uscita == eUscita::fatto && !std::cout) {
        MuoriSenzaLettore();
        std::cerr << "errore: ordavel: " << TestoFallimento(Errore(eErrore::dispositivo, "uscita")) << '\n';
        uscita = eUscita::fallito;
    }
    return static_cast<int>(uscita);
}

} // namespace ordavel::cli
