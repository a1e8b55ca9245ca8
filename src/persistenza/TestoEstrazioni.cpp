// TestoEstrazioni.cpp - draws as a text.

#include "persistenza/TestoEstrazioni.hpp"

#include "core/ModNumeri.hpp"
#include "core/ModTesti.hpp"
#include "core/TestoErrato.hpp"

#include <algorithm>
#include <set>
#include <string_view>
#include <utility>

namespace ordavel {

namespace {

constexpr std::size_t kByteLinea = 4096;
constexpr std::string_view kSeparatori = ";,\t";

/// What is known of the text while it is read.
struct Lettura {
    std::istream& ingresso;
    const ProfiloGioco& gioco;
    const std::string& sNome;
    std::int64_t nLinea = 0;
    char cSeparatore = ';';
};

[[noreturn]] void Rifiuta(const Lettura& lettura, const std::string& sPerche)
{
    throw TestoErrato("riga " + std::to_string(lettura.nLinea) + ": " + sPerche);
}

/// A line without its end; false behind the last one.
bool LeggiLinea(Lettura& lettura, std::string& sLinea)
{
    sLinea.clear();
    ++lettura.nLinea;
    char c = 0;
    bool bQualcosa = false;
    while (lettura.ingresso.get(c) && c != '\n') {
        bQualcosa = true;
        if (sLinea.size() == kByteLinea) {
            Rifiuta(lettura, "è troppo lunga");
        }
        sLinea += c;
    }
    if (lettura.ingresso.bad()) {
        // A disk that fails looks like the end of the text.
        throw Errore(eErrore::dispositivo, lettura.sNome);
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

bool HaRuote(const ProfiloGioco& gioco)
{
    return gioco.sNome == "Lotto";
}

/// The names in the heading.
std::vector<std::string> Nomi(const ProfiloGioco& gioco)
{
    std::vector<std::string> aNomi{"Data"};
    for (std::int32_t i = 0; i < gioco.nNumeriEstrazione; ++i) {
        const auto nRuota = static_cast<std::size_t>(i / kNumeriRuota);
        aNomi.push_back(HaRuote(gioco) ? std::string(Ruote()[nRuota]) + std::to_string(i % kNumeriRuota + 1)
                                       : "N" + std::to_string(i + 1));
    }
    return aNomi;
}

/// The heading tells the separator.
void LeggiIntestazione(Lettura& lettura)
{
    constexpr std::string_view kSegnoUtf8 = "\xEF\xBB\xBF";
    std::string sLinea;
    if (!LeggiLinea(lettura, sLinea)) {
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
    std::set<std::pair<std::int32_t, std::uint8_t>> visti;
    for (std::int32_t i = 0; i < lettura.gioco.nNumeriEstrazione; ++i) {
        const std::uint8_t nNumero = estrazione[static_cast<std::size_t>(i)];
        if (nNumero != 0 && !visti.emplace(HaRuote(lettura.gioco) ? i / kNumeriRuota : 0, nNumero).second) {
            Rifiuta(lettura, "il " + std::to_string(nNumero) + " è estratto due volte");
        }
    }
}

Estrazione LeggiEstrazione(const Lettura& lettura, const std::string& sLinea)
{
    const auto aParti = Parti(sLinea, lettura.cSeparatore);
    const auto nParti = static_cast<std::size_t>(lettura.gioco.nNumeriEstrazione) + 1;
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

} // namespace

std::int64_t LeggiTestoEstrazioni(std::istream& ingresso, const std::string& sNome, const ProfiloGioco& gioco,
                                  const RiceviEstrazioni& ricevi)
{
    Lettura lettura{.ingresso = ingresso, .gioco = gioco, .sNome = sNome};
    LeggiIntestazione(lettura);
    std::int64_t nEstrazioni = 0;
    std::vector<Estrazione> aBlocco;
    for (std::string sLinea; LeggiLinea(lettura, sLinea);) {
        if (TogliBlank(sLinea).empty()) {
            continue;
        }
        aBlocco.push_back(LeggiEstrazione(lettura, sLinea));
        ++nEstrazioni;
        if (std::ssize(aBlocco) == kEstrazioniBlocco) {
            ricevi(aBlocco);
            aBlocco.clear();
        }
    }
    ricevi(aBlocco);
    return nEstrazioni;
}

std::string IntestazioneEstrazioni(const ProfiloGioco& gioco)
{
    std::string sLinea;
    for (const std::string& sNome : Nomi(gioco)) {
        sLinea += (sLinea.empty() ? "" : ";") + sNome;
    }
    return sLinea + "\n";
}

std::string LineaEstrazione(const ProfiloGioco& gioco, const Estrazione& estrazione)
{
    std::string sLinea;
    for (std::int32_t i = 0; i < gioco.nNumeriEstrazione; ++i) {
        sLinea += ";" + std::to_string(estrazione[static_cast<std::size_t>(i)]);
    }
    return sLinea + "\n";
}

} // namespace ordavel
