// ControlloParole.cpp - can the words of a command line be meant?

#include "cli/ControlloParole.hpp"

#include "condizioni/ModCatalogo.hpp"
#include "core/ModGiochi.hpp"
#include "core/ModTesti.hpp"

#include <algorithm>
#include <array>
#include <set>

namespace ordavel::cli {

namespace {

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

void ControllaGioco(const std::string& sGioco)
{
    if (sGioco.empty() || TrovaGioco(sGioco) != nullptr) {
        return;
    }
    std::string sNomi;
    for (const ProfiloGioco& gioco : ProfiliGioco()) {
        sNomi.append(sNomi.empty() ? "" : ", ").append(gioco.sNome);
    }
    throw UsoErrato("gioco sconosciuto \"" + sGioco + "\"; i giochi sono " + sNomi);
}

/// An archive is always that of a game.
void ControllaArchivio(const std::string& sGioco)
{
    if (sGioco.empty()) {
        throw UsoErrato("--gioco vuole il nome di un gioco");
    }
    ControllaGioco(sGioco);
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

void ControllaRuota(const std::string& sRuota)
{
    const auto aRuote = Ruote();
    const bool bRuota = std::any_of(aRuote.begin(), aRuote.end(),
                                    [&](std::string_view sNome) { return UgualiSenzaCaso(sNome, sRuota); });
    if (!sRuota.empty() && !bRuota) {
        throw UsoErrato("ruota sconosciuta \"" + sRuota + "\"; forse \"" +
                        PiuVicina(sRuota, {aRuote.begin(), aRuote.end()}) + "\"");
    }
}

void ControllaMotore(const std::string& sMotore)
{
    if (!sMotore.empty() && sMotore != "interno" && sMotore != "esterno") {
        throw UsoErrato("--motore è \"interno\" o \"esterno\", non \"" + sMotore + "\"");
    }
}

void ControllaCorsa(const Riga& riga)
{
    ControllaMotore(riga.corsa.sMotore);
    ControllaGioco(riga.corsa.sGioco);
    ControllaRuota(riga.corsa.sRuota);
}

void ControllaConta(const Riga& riga)
{
    ControllaGioco(riga.conta.sGioco);
    ControllaRuota(riga.conta.sRuota);
}

/// The winning numbers, between points.
void LeggiVincente(Riga& riga)
{
    ControllaGioco(riga.spoglio.sGioco);
    ControllaRuota(riga.spoglio.sRuota);
    for (const std::string_view sNumero : Dividi(riga.sVincente, ".")) {
        const bool bCifre = !sNumero.empty() && sNumero.size() <= 2 &&
                            sNumero.find_first_not_of("0123456789") == std::string_view::npos;
        const auto nNumero = bCifre ? std::stoi(std::string(sNumero)) : 0;
        auto& aVincente = riga.spoglio.aVincente;
        if (nNumero < 1 || nNumero > kNumeroMassimo ||
            std::find(aVincente.begin(), aVincente.end(), nNumero) != aVincente.end()) {
            throw UsoErrato("--vincente vuole numeri diversi da 1 a 90 separati da punti, non \"" +
                            riga.sVincente + "\"");
        }
        aVincente.push_back(nNumero);
    }
    if (riga.spoglio.aVincente.empty() ||
        riga.spoglio.aVincente.size() > static_cast<std::size_t>(kNumeriColonna)) {
        throw UsoErrato("--vincente vuole da 1 a 20 numeri");
    }
    if (const auto nMinimo = riga.spoglio.nMinimo; nMinimo && (*nMinimo < 1 || *nMinimo > kClasseMassima)) {
        throw UsoErrato("--minimo va da 1 a 10");
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

/// One of two ways: into a named file with so many points, or streaming with so many points given up.
void ControllaRiduci(const Riga& riga)
{
    const OpzioniRiduci& opzioni = riga.riduci;
    if (opzioni.bSequenziale) {
        if (!opzioni.sUscita.empty() || opzioni.nPunti || !opzioni.sMotore.empty() || opzioni.nSecondi) {
            throw UsoErrato("con --sequenziale va solo --riduzione: il file ridotto prende il nome da sé");
        }
        if (opzioni.nRiduzione < 1 || opzioni.nRiduzione > kRiduzioneSequenzialeMassima) {
            throw UsoErrato("--riduzione va da 1 a " + std::to_string(kRiduzioneSequenzialeMassima));
        }
        return;
    }
    if (opzioni.nRiduzione != 0) {
        throw UsoErrato("--riduzione va con --sequenziale");
    }
    if (opzioni.sUscita.empty() || !opzioni.nPunti) {
        throw UsoErrato("servono -o e --punti, oppure --sequenziale e --riduzione");
    }
    ControllaMotore(opzioni.sMotore);
    if (opzioni.nSecondi && (opzioni.sMotore != "esterno" || *opzioni.nSecondi < 0)) {
        throw UsoErrato("--secondi va con --motore esterno, da 0 in su");
    }
}

/// What is looked at for a command.
struct Controllo {
    const char* sComando;
    void (*controlla)(Riga&);
};

} // namespace

std::string PiuVicina(const std::string& sParola, const std::vector<std::string>& aParole)
{
    return *std::min_element(aParole.begin(), aParole.end(), [&](const auto& a, const auto& b) {
        return Distanza(sParola, a) < Distanza(sParola, b);
    });
}

void ControllaParole(const std::string& sComando, Riga& riga)
{
    static constexpr std::array kControlli = std::to_array<Controllo>({
        {"misura", [](Riga& r) { ControllaColonna(r); }},
        {"sviluppa", [](Riga& r) { ControllaCorsa(r); }},
        {"filtra", [](Riga& r) { ControllaCorsa(r); }},
        {"effetto", [](Riga& r) { ControllaCorsa(r); }},
        {"conta", [](Riga& r) { ControllaConta(r); }},
        {"spoglio", [](Riga& r) { LeggiVincente(r); }},
        {"archivio", [](Riga& r) { ControllaArchivio(r.archivio.sGioco); }},
        {"aggiungi", [](Riga& r) { ControllaAggiungi(r); }},
        {"togli", [](Riga& r) { ControllaTratto(r, true); }},
        {"salva-condizioni", [](Riga& r) { ControllaTratto(r, false); }},
        {"quadro", [](Riga& r) { ControllaQuadro(r); }},
        {"vedi", [](Riga& r) { ControllaVedi(r); }},
        {"riduci", [](Riga& r) { ControllaRiduci(r); }},
    });
    for (const Controllo& controllo : kControlli) {
        if (sComando == controllo.sComando) {
            controllo.controlla(riga);
        }
    }
}

} // namespace ordavel::cli
