// Archivio.cpp - draw archives made from a text, and made a text again.

#include "cli/Archivio.hpp"

#include "cli/Sessione.hpp"
#include "cli/TestoErrato.hpp"
#include "core/FileBinario.hpp"
#include "core/ModNumeri.hpp"
#include "core/ModTesti.hpp"
#include "persistenza/ModBaseDati.hpp"

#include <algorithm>
#include <fstream>
#include <iostream>
#include <iterator>
#include <set>

namespace ordavel::cli {

namespace {

constexpr std::size_t kByteLinea = 4096;
constexpr std::size_t kEstrazioniBlocco = 10000;
constexpr std::string_view kSeparatori = ";,\t";

/// What is known of the text while it is read.
struct Lettura {
    const ProfiloGioco& gioco;
    TracciatoEstrazione tracciato;
    std::string sFile;
    std::int64_t nLinea = 0;
    char cSeparatore = ';';
};

[[noreturn]] void Rifiuta(const Lettura& lettura, const std::string& sPerche)
{
    throw TestoErrato(lettura.sFile + ", riga " + std::to_string(lettura.nLinea) + ": " + sPerche);
}

/// A line without its end; false behind the last one.
bool LeggiLinea(std::istream& ingresso, Lettura& lettura, std::string& sLinea)
{
    sLinea.clear();
    ++lettura.nLinea;
    char c = 0;
    bool bQualcosa = false;
    while (ingresso.get(c) && c != '\n') {
        bQualcosa = true;
        if (sLinea.size() == kByteLinea) {
            Rifiuta(lettura, "è troppo lunga");
        }
        sLinea += c;
    }
    if (sLinea.ends_with('\r')) {
        sLinea.pop_back();
    }
    return bQualcosa || c == '\n';
}

std::vector<std::string> Parti(const std::string& sLinea, char cSeparatore)
{
    std::vector<std::string> aParti;
    for (const std::string_view sParte : Dividi(sLinea, std::string_view(&cSeparatore, 1))) {
        aParti.push_back(Sostituisci(TogliBlank(sParte), "\"", ""));
    }
    return aParti;
}

/// The names in the heading.
std::vector<std::string> Nomi(const ProfiloGioco& gioco)
{
    std::vector<std::string> aNomi{"Data"};
    for (std::int32_t i = 0; i < gioco.nNumeriEstrazione; ++i) {
        const bool bRuote = gioco.sNome == "Lotto";
        const auto nRuota = static_cast<std::size_t>(i / kNumeriRuota);
        aNomi.push_back(bRuote ? std::string(Ruote()[nRuota]) + std::to_string(i % kNumeriRuota + 1)
                               : "N" + std::to_string(i + 1));
    }
    return aNomi;
}

/// The heading tells the separator.
void LeggiIntestazione(std::istream& ingresso, Lettura& lettura)
{
    constexpr std::string_view kSegnoUtf8 = "\xEF\xBB\xBF";
    std::string sLinea;
    if (!LeggiLinea(ingresso, lettura, sLinea)) {
        Rifiuta(lettura, "il testo è vuoto");
    }
    if (sLinea.starts_with(kSegnoUtf8)) {
        sLinea.erase(0, kSegnoUtf8.size());
    }
    const std::vector<std::string> aNomi = Nomi(lettura.gioco);
    for (const char cSeparatore : kSeparatori) {
        const auto aParti = Parti(sLinea, cSeparatore);
        if (std::equal(aParti.begin(), aParti.end(), aNomi.begin(), aNomi.end(), UgualiSenzaCaso)) {
            lettura.cSeparatore = cSeparatore;
            return;
        }
    }
    Rifiuta(lettura, "l'intestazione deve essere \"" + aNomi[0] + ";" + aNomi[1] + ";...;" + aNomi.back() +
                         "\", " + std::to_string(aNomi.size()) + " nomi");
}

bool Data(const std::string& sData)
{
    return sData.find_first_not_of("0123456789/-.") == std::string::npos;
}

std::uint8_t Numero(const Lettura& lettura, const std::string& sNumero)
{
    const bool bCifre = sNumero.size() <= 2 && sNumero.find_first_not_of("0123456789") == std::string::npos;
    if (!bCifre || LeggiNumero(sNumero) > kNumeroMassimo) {
        Rifiuta(lettura, "\"" + sNumero.substr(0, 20) + "\" non è un numero da 0 a 90");
    }
    return static_cast<std::uint8_t>(LeggiNumero(sNumero));
}

/// No number is drawn twice; on a wheel, for the game of wheels.
void ControllaDoppi(const Lettura& lettura, const Estrazione& estrazione)
{
    const bool bRuote = lettura.gioco.sNome == "Lotto";
    std::set<std::pair<std::int32_t, std::uint8_t>> visti;
    for (std::int32_t i = 0; i < lettura.tracciato.nNumeri; ++i) {
        const std::uint8_t nNumero = estrazione[static_cast<std::size_t>(i)];
        if (nNumero != 0 && !visti.emplace(bRuote ? i / kNumeriRuota : 0, nNumero).second) {
            Rifiuta(lettura, "il " + std::to_string(nNumero) + " è estratto due volte");
        }
    }
}

Estrazione LeggiEstrazione(const Lettura& lettura, const std::string& sLinea)
{
    const auto aParti = Parti(sLinea, lettura.cSeparatore);
    const auto nParti = static_cast<std::size_t>(lettura.tracciato.nNumeri) + 1;
    if (aParti.size() != nParti) {
        Rifiuta(lettura,
                "ha " + std::to_string(aParti.size()) + " parti, ne servono " + std::to_string(nParti));
    }
    if (!Data(aParti[0])) {
        Rifiuta(lettura, "\"" + aParti[0].substr(0, 20) + "\" non è una data");
    }
    Estrazione estrazione{};
    std::transform(aParti.begin() + 1, aParti.end(), estrazione.begin(),
                   [&](const std::string& sNumero) { return Numero(lettura, sNumero); });
    ControllaDoppi(lettura, estrazione);
    return estrazione;
}

/// Reads all draws and hands them to the archive, a block at a time.
/// Gives    how many there were
std::int64_t Trascrivi(std::istream& ingresso, Lettura& lettura, FileBinario& archivio)
{
    std::int64_t nEstrazioni = 0;
    std::vector<Estrazione> aBlocco;
    for (std::string sLinea; LeggiLinea(ingresso, lettura, sLinea);) {
        if (TogliBlank(sLinea).empty()) {
            continue;
        }
        aBlocco.push_back(LeggiEstrazione(lettura, sLinea));
        ++nEstrazioni;
        if (aBlocco.size() == kEstrazioniBlocco) {
            AccodaEstrazioni(lettura.tracciato, aBlocco, archivio);
            aBlocco.clear();
        }
    }
    AccodaEstrazioni(lettura.tracciato, aBlocco, archivio);
    return nEstrazioni;
}

bool Importa(Sessione& sessione, const OpzioniArchivio& opzioni, const ProfiloGioco& gioco)
{
    ControllaUscita(opzioni.sArchivio, opzioni.sTesto);
    FileBinario(opzioni.sTesto, eApertura::lettura).Chiudi();
    std::ifstream ingresso(opzioni.sTesto, std::ios::binary);
    Lettura lettura{.gioco = gioco, .tracciato = TracciatoDi(gioco), .sFile = opzioni.sTesto};
    LeggiIntestazione(ingresso, lettura);
    std::int64_t nEstrazioni = 0;
    const bool bFatto =
        ScriviAlPosto(sessione.Desktop(), opzioni.sArchivio, [&](const std::string& sProvvisorio) {
            FileBinario archivio(sProvvisorio, eApertura::scrittura);
            nEstrazioni = Trascrivi(ingresso, lettura, archivio);
            archivio.Chiudi();
            return true;
        });
    std::cout << opzioni.sArchivio << ": " << FormattaNumero(static_cast<double>(nEstrazioni))
              << " estrazioni di " << gioco.sNome << '\n';
    return bFatto;
}

std::int32_t Quante(const TracciatoEstrazione& tracciato, const std::string& sArchivio)
{
    FileBinario(sArchivio, eApertura::lettura).Chiudi();
    return ComeIntero<std::int32_t>(ContaEstrazioni(tracciato, sArchivio).value_or(0));
}

std::string LineaDi(const TracciatoEstrazione& tracciato, const Estrazione& estrazione)
{
    std::string sLinea;
    for (std::int32_t i = 0; i < tracciato.nNumeri; ++i) {
        sLinea += ";" + std::to_string(estrazione[static_cast<std::size_t>(i)]);
    }
    return sLinea + "\n";
}

std::string IntestazioneDi(const ProfiloGioco& gioco)
{
    std::string sLinea;
    for (const std::string& sNome : Nomi(gioco)) {
        sLinea += (sLinea.empty() ? "" : ";") + sNome;
    }
    return sLinea + "\n";
}

void Accoda(FileBinario& file, const std::string& sTesto)
{
    file.Accoda(std::as_bytes(std::span(sTesto)));
}

void ScriviTesto(const OpzioniArchivio& opzioni, const ProfiloGioco& gioco, std::int32_t nEstrazioni,
                 FileBinario& testo)
{
    const TracciatoEstrazione tracciato = TracciatoDi(gioco);
    Accoda(testo, IntestazioneDi(gioco));
    for (std::int32_t nPrima = 1; nPrima <= nEstrazioni;
         nPrima += static_cast<std::int32_t>(kEstrazioniBlocco)) {
        const std::int32_t nUltima =
            std::min(nEstrazioni, nPrima + static_cast<std::int32_t>(kEstrazioniBlocco) - 1);
        Estrazioni estrazioni;
        if (!LeggiEstrazioni(tracciato, nPrima, nUltima, estrazioni, opzioni.sArchivio)) {
            throw Errore(eErrore::dispositivo, opzioni.sArchivio);
        }
        std::string sBlocco;
        for (const Estrazione& estrazione : estrazioni.aEstrazioni) {
            sBlocco += LineaDi(tracciato, estrazione);
        }
        Accoda(testo, sBlocco);
    }
}

bool Esporta(Sessione& sessione, const OpzioniArchivio& opzioni, const ProfiloGioco& gioco)
{
    ControllaUscita(opzioni.sTesto, opzioni.sArchivio);
    const std::int32_t nEstrazioni = Quante(TracciatoDi(gioco), opzioni.sArchivio);
    return ScriviAlPosto(sessione.Desktop(), opzioni.sTesto, [&](const std::string& sProvvisorio) {
        FileBinario testo(sProvvisorio, eApertura::scrittura);
        ScriviTesto(opzioni, gioco, nEstrazioni, testo);
        testo.Chiudi();
        return true;
    });
}

bool Info(Sessione& sessione, const OpzioniArchivio& opzioni, const ProfiloGioco& gioco)
{
    const TracciatoEstrazione tracciato = TracciatoDi(gioco);
    const std::int32_t nEstrazioni = Quante(tracciato, opzioni.sArchivio);
    const double nEsatte = ContaEstrazioni(tracciato, opzioni.sArchivio).value_or(0);
    if (nEsatte != nEstrazioni) {
        sessione.Desktop().Avvisa("la lunghezza di " + opzioni.sArchivio + " non è un multiplo di " +
                                  std::to_string(tracciato.nByte) + ": forse non è un archivio di " +
                                  std::string(gioco.sNome));
    }
    std::cout << gioco.sNome << ": " << FormattaNumero(nEstrazioni) << " estrazioni di " << tracciato.nNumeri
              << " numeri\n";
    Estrazioni ultima;
    if (LeggiEstrazioni(tracciato, nEstrazioni, nEstrazioni, ultima, opzioni.sArchivio)) {
        std::cout << "L'ultima:" << Sostituisci(LineaDi(tracciato, ultima.aEstrazioni[0]), ";", " ");
    }
    return true;
}

/// Takes    lavoro   what is done with the game of the options
template <typename Lavoro>
eUscita Esegui(const OpzioniArchivio& opzioni, const std::string& sTitolo, Lavoro lavoro)
{
    Sessione sessione(false);
    return Uscita(
        Protetto(sessione, sTitolo, [&] { return lavoro(sessione, opzioni, *TrovaGioco(opzioni.sGioco)); }));
}

} // namespace

eUscita ImportaArchivio(const OpzioniArchivio& opzioni)
{
    return Esegui(opzioni, opzioni.sTesto, Importa);
}

eUscita EsportaArchivio(const OpzioniArchivio& opzioni)
{
    return Esegui(opzioni, opzioni.sArchivio, Esporta);
}

eUscita InfoArchivio(const OpzioniArchivio& opzioni)
{
    return Esegui(opzioni, opzioni.sArchivio, Info);
}

} // namespace ordavel::cli
