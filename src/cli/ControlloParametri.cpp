// ControlloParametri.cpp - is a parameter string what a kind of condition takes?

#include "cli/ControlloParametri.hpp"

#include "core/ModNumeri.hpp"
#include "core/ModTesti.hpp"
#include "core/TestoErrato.hpp"
#include "editor/TabellaDialoghi.hpp"

#include <algorithm>
#include <vector>

namespace ordavel::cli {

namespace {

[[noreturn]] void Rifiuta(std::string_view sServe, std::string_view sParte)
{
    throw TestoErrato("--parametri: serve " + std::string(sServe) + ", non \"" + std::string(sParte) + "\"");
}

bool Cifre(std::string_view sTesto)
{
    constexpr std::size_t kCifreMassime = 5;
    return !sTesto.empty() && sTesto.size() <= kCifreMassime &&
           sTesto.find_first_not_of("0123456789") == std::string_view::npos;
}

void ControllaLista(std::string_view sLista, std::int32_t nPrimo, std::int32_t nUltimo)
{
    const std::string sServe = "un elenco di valori da " + std::to_string(nPrimo) + " a " +
                               std::to_string(nUltimo) + " separati da virgole";
    const auto bValido = [&](std::string_view sValore) {
        return Cifre(sValore) && LeggiNumero(sValore) >= nPrimo && LeggiNumero(sValore) <= nUltimo;
    };
    const auto aValori = Dividi(sLista, ",");
    if (aValori.empty() || !std::all_of(aValori.begin(), aValori.end(), bValido)) {
        Rifiuta(sServe, sLista);
    }
}

void ControllaIntervallo(std::string_view sIntervallo)
{
    const auto aParti = Dividi(sIntervallo, ",");
    if (aParti.size() != 2 || !Cifre(aParti[0]) || !Cifre(aParti[1]) ||
        LeggiNumero(aParti[1]) < LeggiNumero(aParti[0]) || LeggiNumero(aParti[1]) == 0) {
        Rifiuta("un minimo e un massimo separati da una virgola", sIntervallo);
    }
}

/// The pieces between "|", of which a string may have nMassimi.
std::vector<std::string_view> Pezzi(std::string_view sParam, std::size_t nMassimi)
{
    auto aPezzi = Dividi(sParam, "|");
    if (aPezzi.empty() || aPezzi.size() > nMassimi) {
        Rifiuta("un testo di non più di " + std::to_string(nMassimi) + " parti separate da \"|\"", sParam);
    }
    return aPezzi;
}

/// The second line of a piece of two.
std::string_view SecondaRiga(std::string_view sPezzo, std::string_view& sPrima)
{
    const auto aRighe = Dividi(sPezzo, kCrLf);
    if (aRighe.size() != 2) {
        Rifiuta("una parola, un a capo (\\n) e i valori", sPezzo);
    }
    sPrima = aRighe[0];
    return aRighe[1];
}

void ControllaComune(const RigaDialogo& riga, std::string_view sParam, std::int16_t nClasse)
{
    auto aPezzi = Pezzi(sParam, 2);
    std::int32_t nUltimo = nClasse;
    if (riga.riempimento == eRiempimento::conCombo) {
        std::string_view sParola;
        aPezzi[0] = SecondaRiga(aPezzi[0], sParola);
        const auto aVoci = Dividi(riga.sVoci, "|");
        if (std::find(aVoci.begin(), aVoci.end(), sParola) == aVoci.end()) {
            Rifiuta("una di queste parole: " + Sostituisci(riga.sVoci, "|", ", "), sParola);
        }
        if (riga.parametro == eControlloParametro::divisore) {
            nUltimo = LeggiIntero<std::int32_t>(sParola) - 1;
        }
    }
    for (std::size_t i = 0; i < aPezzi.size(); ++i) {
        if (i > 0 && aPezzi[i].empty()) {
            continue;
        }
        if (riga.riempimento == eRiempimento::intervallo) {
            ControllaIntervallo(aPezzi[i]);
        } else {
            ControllaLista(aPezzi[i], riga.nPrimo, nUltimo);
        }
    }
}

void ControllaSequenze(std::string_view sParam, std::int16_t nClasse)
{
    auto aPezzi = Pezzi(sParam, 4);
    std::string_view sSchema;
    aPezzi[0] = SecondaRiga(aPezzi[0], sSchema);
    if (sSchema.empty() || sSchema.size() > static_cast<std::size_t>(nClasse) ||
        sSchema.find_first_not_of("PD") != std::string_view::npos) {
        Rifiuta("uno schema di lettere P e D non più lungo della classe", sSchema);
    }
    const std::int32_t nUltimo = nClasse - static_cast<std::int32_t>(sSchema.size()) + 1;
    for (std::size_t i = 0; i < aPezzi.size(); ++i) {
        if (i == 0 || i == 2 || !aPezzi[i].empty()) {
            ControllaLista(aPezzi[i], 0, nUltimo);
        }
    }
    if (aPezzi.size() < 3) {
        Rifiuta("anche l'elenco delle consecutività, nella terza parte", sParam);
    }
}

void ControllaEmulatore(std::string_view sParam)
{
    constexpr double kColonneMassime = 500;
    const auto aRighe = Dividi(sParam, kCrLf);
    const std::string_view sPrima = aRighe.empty() ? sParam : aRighe[0];
    const std::string_view sNumero = sPrima.substr(0, sPrima.empty() ? 0 : sPrima.size() - 1);
    if (!sPrima.ends_with(']') || !Cifre(sNumero) || LeggiNumero(sNumero) < 1 ||
        LeggiNumero(sNumero) > kColonneMassime) {
        Rifiuta("nella prima riga il numero di colonne da emulare, da 1 a 500, e \"]\"", sPrima);
    }
}

} // namespace

std::string ConRigheIntere(std::string_view sParam)
{
    const std::string sSemplici = Sostituisci(Sostituisci(sParam, "\\n", "\n"), kCrLf, "\n");
    return Sostituisci(sSemplici, "\n", kCrLf);
}

bool PrendeParametri(TipoCondizione tipo)
{
    const RigaDialogo* riga = TrovaDialogo(tipo);
    if (riga == nullptr) {
        return tipo == TipoCondizione::linkOpen || tipo == TipoCondizione::sequenze ||
               tipo == TipoCondizione::emulatore;
    }
    // Two dialogs have a branch that asks for a combo which they have not.
    const bool bSenzaCombo =
        riga->riempimento == eRiempimento::conCombo && riga->parametro == eControlloParametro::nessuno;
    return riga->riempimento != eRiempimento::nessuno && !bSenzaCombo;
}

void ControllaParametri(TipoCondizione tipo, std::string_view sParam, std::int16_t nClasse)
{
    if (tipo == TipoCondizione::linkOpen) {
        if (!sParam.empty()) {
            Rifiuta("nessun parametro per \"LinkOpen\"", sParam);
        }
    } else if (sParam.empty()) {
        throw TestoErrato("mancano i valori della condizione (--parametri)");
    } else if (tipo == TipoCondizione::sequenze) {
        ControllaSequenze(sParam, nClasse);
    } else if (tipo == TipoCondizione::emulatore) {
        ControllaEmulatore(sParam);
    } else if (const RigaDialogo* riga = TrovaDialogo(tipo)) {
        ControllaComune(*riga, sParam, nClasse);
    }
}

} // namespace ordavel::cli
