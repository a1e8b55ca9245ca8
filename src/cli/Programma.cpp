// Programma.cpp - the words of the command line, on CLI11.

#include "cli/Programma.hpp"

#include "cli/Colonne.hpp"
#include "cli/Comandi.hpp"
#include "cli/Modifiche.hpp"
#include "cli/PiattaformaCli.hpp"
#include "condizioni/ModCatalogo.hpp"
#include "core/ModFunzGeneriche.hpp"
#include "core/ModGiochi.hpp"
#include "core/ModTesti.hpp"

#include <CLI/CLI.hpp>

#include <algorithm>
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
    "  ordavel sviluppa sistema.sic -o colonne.col\n"
    "  ordavel filtra altro.sic --da colonne.col -o meno.col\n"
    "  ordavel misura 5 3 12 27 28 90\n"
    "  ordavel aggiungi sistema.sic --tipo Pari-Dispari --parametri 'Pari\\n2,3'\n"
    "  ordavel aggiungi sistema.sic --file condizioni.cnd\n"
    "  ordavel quadro sistema.sic --gruppo 1 --minimo 1 --massimo 2\n";

/// A wrong use, in words.
class UsoErrato : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// The words of all commands, and what the one that was given does.
struct Riga {
    OpzioniCorsa corsa;
    OpzioniAggiungi aggiungi;
    OpzioniRighe righe;
    OpzioniQuadro quadro;
    OpzioniVedi vedi;
    std::string sUscita;
    std::string sTesto;
    std::string sSistema;
    std::int16_t nClasse = 0;
    std::vector<std::int16_t> aNumeri;
    bool bJson = false;
    std::function<eUscita()> azione;
};

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

CLI::App* AggiungiCorsa(CLI::App& programma, Riga& riga, const std::string& sNome, const std::string& sScopo)
{
    CLI::App* comando = NuovoComando(programma, sNome, sScopo);
    comando->add_option("SISTEMA", riga.corsa.sSistema, "Il file .sic")->required();
    comando->add_option("-o,--uscita", riga.corsa.sUscita, "Il file .col da scrivere")->required();
    comando->add_flag("--json", riga.corsa.bJson, "Il risultato come oggetto JSON");
    comando->add_option("--temp", riga.corsa.sTemp, "Cartella dei file temporanei");
    comando->add_option("--gioco", riga.corsa.sGioco, "Nome del gioco");
    comando->callback([&riga] { riga.azione = [&riga] { return Corri(riga.corsa); }; });
    return comando;
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

void AggiungiComandi(CLI::App& programma, Riga& riga)
{
    TraduciAiuto(programma);
    programma.set_version_flag("--version", "ordavel " ORDAVEL_VERSIONE, "Mostra la versione");
    programma.footer(kChiusura);
    AggiungiCrea(programma, riga);
    AggiungiMostra(programma, riga);
    AggiungiCorsa(programma, riga, "sviluppa", "Sviluppa un sistema in un file di colonne");
    AggiungiCorsa(programma, riga, "filtra", "Filtra un file di colonne con le condizioni di un sistema")
        ->add_option("--da", riga.corsa.sOrigine, "Il file .col da filtrare")
        ->required();
    AggiungiMisura(programma, riga);
    AggiungiAggiungi(programma, riga);
    AggiungiTogli(programma, riga);
    AggiungiQuadro(programma, riga);
    AggiungiSalvaCondizioni(programma, riga);
    AggiungiEsporta(programma, riga);
    AggiungiVedi(programma, riga);
}

/// Steps of one letter (put in, taken out, changed) from one word to another.
std::size_t Distanza(std::string_view sUno, std::string_view sDue)
{
    std::vector<std::size_t> aRiga(sDue.size() + 1);
    for (std::size_t j = 0; j <= sDue.size(); ++j) {
        aRiga[j] = j;
    }
    for (std::size_t i = 1; i <= sUno.size(); ++i) {
        std::size_t nDiagonale = aRiga[0];
        aRiga[0] = i;
        for (std::size_t j = 1; j <= sDue.size(); ++j) {
            const std::size_t nCambio = nDiagonale + (sUno[i - 1] == sDue[j - 1] ? 0 : 1);
            nDiagonale = aRiga[j];
            aRiga[j] = std::min({nCambio, aRiga[j] + 1, aRiga[j - 1] + 1});
        }
    }
    return aRiga.back();
}

/// The word of a list that takes the fewest steps.
std::string PiuVicina(const std::string& sParola, const std::vector<std::string>& aParole)
{
    return *std::min_element(aParole.begin(), aParole.end(), [&](const auto& a, const auto& b) {
        return Distanza(sParola, a) < Distanza(sParola, b);
    });
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

void ControllaGioco(const Riga& riga)
{
    if (riga.corsa.sGioco.empty() || TrovaGioco(riga.corsa.sGioco) != nullptr) {
        return;
    }
    std::string sNomi;
    for (const ProfiloGioco& gioco : ProfiliGioco()) {
        sNomi.append(sNomi.empty() ? "" : ", ").append(gioco.sNome);
    }
    throw UsoErrato("gioco sconosciuto \"" + riga.corsa.sGioco + "\"; i giochi sono " + sNomi);
}

void ControllaGruppo(std::int32_t nGruppo, std::int32_t nMinimo)
{
    if (nGruppo < nMinimo || nGruppo > kGruppiRecupero) {
        throw UsoErrato("i gruppi di recupero vanno da 1 a " + std::to_string(kGruppiRecupero) + ", non " +
                        std::to_string(nGruppo));
    }
}

void ControllaTipo(const std::string& sTipo)
{
    if (sTipo.empty() || TrovaChiaveSenzaCaso(sTipo) != nullptr) {
        return;
    }
    std::vector<std::string> aChiavi;
    for (const VoceCatalogo& voce : Catalogo()) {
        aChiavi.emplace_back(voce.sChiave);
    }
    throw UsoErrato("condizione sconosciuta \"" + sTipo + "\"; forse \"" + PiuVicina(sTipo, aChiavi) + "\"");
}

void ControllaAggiungi(const Riga& riga)
{
    const OpzioniAggiungi& opzioni = riga.aggiungi;
    const int nFonti = (opzioni.sTipo.empty() ? 0 : 1) + (opzioni.sFile.empty() ? 0 : 1) +
                       (opzioni.sColonne.empty() ? 0 : 1);
    if (nFonti != 1) {
        throw UsoErrato("serve una sola cosa tra --tipo, --file e --colonne");
    }
    ControllaTipo(opzioni.sTipo);
    if (!opzioni.sParametri.empty() && opzioni.sTipo.empty()) {
        throw UsoErrato("--parametri va con --tipo");
    }
    const bool bPunti = !opzioni.aPunti.empty() || !opzioni.aRecupero.empty() || opzioni.nQuadro != 0;
    if (bPunti && opzioni.sColonne.empty()) {
        throw UsoErrato("--punti, --recupero e --quadro vanno con --colonne");
    }
    if (!opzioni.sColonne.empty() && opzioni.aPunti.empty()) {
        throw UsoErrato("--colonne vuole --punti");
    }
    if (opzioni.aRecupero.empty() != (opzioni.nQuadro == 0)) {
        throw UsoErrato("--recupero e --quadro vanno insieme");
    }
    ControllaGruppo(opzioni.nQuadro, 0);
    for (const std::int32_t nValore : opzioni.aRecupero) {
        if (std::find(opzioni.aPunti.begin(), opzioni.aPunti.end(), nValore) != opzioni.aPunti.end()) {
            throw UsoErrato("il " + std::to_string(nValore) + " non può stare tra i punti e nel recupero");
        }
    }
}

void ControllaTratto(const Riga& riga, bool bServe)
{
    const std::int32_t nMinimo = bServe ? 1 : 0;
    if (riga.righe.nDa < nMinimo || riga.righe.nA < nMinimo) {
        throw UsoErrato("le condizioni si contano da 1");
    }
}

void ControllaVedi(const Riga& riga)
{
    if (riga.vedi.nDa < 1 || riga.vedi.nQuante < 1) {
        throw UsoErrato("le colonne si contano da 1");
    }
}

void ControllaQuadro(const Riga& riga)
{
    const OpzioniQuadro& opzioni = riga.quadro;
    ControllaGruppo(opzioni.nGruppo, 1);
    const bool bLimiti = opzioni.nMinimo >= 0 && opzioni.nMassimo >= 0;
    if (opzioni.bTogli == bLimiti || (!bLimiti && (opzioni.nMinimo >= 0 || opzioni.nMassimo >= 0))) {
        throw UsoErrato("servono --minimo e --massimo, oppure --togli");
    }
    if (opzioni.nMassimo < opzioni.nMinimo || opzioni.nMassimo > kCondizioniMassime) {
        throw UsoErrato("il minimo non supera il massimo, e il massimo non supera " +
                        std::to_string(kCondizioniMassime));
    }
}

void ControllaColonna(const Riga& riga)
{
    if (riga.nClasse < 1 || riga.nClasse > kNumeriColonna) {
        throw UsoErrato("la classe va da 1 a " + std::to_string(kNumeriColonna));
    }
    if (riga.aNumeri.size() != static_cast<std::size_t>(riga.nClasse)) {
        throw UsoErrato("la classe è " + std::to_string(riga.nClasse) + ", i numeri dati sono " +
                        std::to_string(riga.aNumeri.size()));
    }
    std::set<std::int16_t> visti;
    for (const std::int16_t n : riga.aNumeri) {
        if (n < 1 || n > kNumeroMassimo || !visti.insert(n).second) {
            throw UsoErrato("servono numeri diversi da 1 a 90, non " + std::to_string(n));
        }
    }
}

/// What the library says of a wrong line, in Italian where it is one of the common cases.
std::string Traduci(const CLI::ParseError& errore)
{
    std::string sTesto = errore.what();
    if (dynamic_cast<const CLI::RequiredError*>(&errore) != nullptr) {
        return "manca " + Sostituisci(sTesto, " is required", "");
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

/// What the library cannot see: values beyond their bounds, options that do not go together.
void Controlla(const CLI::App& programma, const Riga& riga)
{
    const std::vector<std::pair<const char*, std::function<void()>>> aControlli{{"misura", [&] { ControllaColonna(riga); }},
                                                                                {"sviluppa", [&] { ControllaGioco(riga); }},
                                                                                {"filtra", [&] { ControllaGioco(riga); }},
                                                                                {"aggiungi", [&] { ControllaAggiungi(riga); }},
                                                                                {"togli", [&] { ControllaTratto(riga, true); }},
                                                                                {"salva-condizioni", [&] { ControllaTratto(riga, false); }},
                                                                                {"quadro", [&] { ControllaQuadro(riga); }},
                                                                                {"vedi", [&] { ControllaVedi(riga); }}};
    for (const auto& [sComando, controlla] : aControlli) {
        if (programma.got_subcommand(sComando)) {
            controlla();
        }
    }
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
    Controlla(programma, riga);
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
