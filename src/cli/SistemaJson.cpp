// SistemaJson.cpp - a system as JSON text.

#include "cli/SistemaJson.hpp"

#include "condizioni/ModCatalogo.hpp"
#include "condizioni/ModRighe.hpp"
#include "core/ModTesti.hpp"

#include <algorithm>
#include <array>
#include <limits>
#include <set>

namespace ordavel::cli {

namespace {

using nlohmann::json;

constexpr std::int64_t kRiduzioneMassima = 5;
constexpr std::size_t kCelle = 5;
constexpr std::array<std::string_view, 6> kChiavi{"classe", "riduzione", "numeri",
                                                  "righe",  "quadro",    "colonne"};

std::string Virgolette(std::string_view sTesto)
{
    return std::string("\"").append(sTesto).append("\"");
}

/// Line and column of a byte, both from 1.
std::string Posto(std::string_view sTesto, std::size_t nByte)
{
    const std::string_view sPrima = sTesto.substr(0, std::min(nByte, sTesto.size()));
    const auto nRiga = std::count(sPrima.begin(), sPrima.end(), '\n') + 1;
    const std::size_t nInizio = sPrima.rfind('\n');
    const std::size_t nColonna =
        nInizio == std::string_view::npos ? sPrima.size() : sPrima.size() - nInizio - 1;
    return "riga " + std::to_string(nRiga) + ", colonna " +
           std::to_string(std::max<std::size_t>(nColonna, 1));
}

json LeggiJson(std::string_view sTesto)
{
    try {
        return json::parse(sTesto);
    } catch (const json::parse_error& errore) {
        throw TestoErrato("JSON non valido alla " + Posto(sTesto, errore.byte));
    } catch (const json::out_of_range&) {
        throw TestoErrato("JSON non valido: un numero è troppo grande");
    }
}

/// A value as a message quotes it. Lists and objects may be deep and are only named.
std::string Citato(const json& valore)
{
    constexpr std::size_t kLunghezzaMassima = 60;
    if (valore.is_structured()) {
        return valore.is_array() ? "un elenco" : "un oggetto";
    }
    const std::string sTesto = valore.dump(-1, ' ', true);
    return sTesto.size() <= kLunghezzaMassima ? sTesto : sTesto.substr(0, kLunghezzaMassima) + "...";
}

std::int64_t Intero(const json& valore, const std::string& sNome, std::int64_t nMin, std::int64_t nMax)
{
    const std::string sAtteso = sNome + ": serve un numero intero da " + std::to_string(nMin) + " a " +
                                std::to_string(nMax) + ", non ";
    if (!valore.is_number_integer()) {
        throw TestoErrato(sAtteso + Citato(valore));
    }
    // A number beyond a signed 64-bit one must not wrap into the range.
    const bool bGrande =
        valore.is_number_unsigned() && valore.get<std::uint64_t>() > static_cast<std::uint64_t>(nMax);
    const std::int64_t nValore = bGrande ? nMax : valore.get<std::int64_t>();
    if (bGrande || nValore < nMin || nValore > nMax) {
        throw TestoErrato(sAtteso + Citato(valore));
    }
    return nValore;
}

const json& Elenco(const json& valore, const std::string& sNome, std::size_t nMassimo)
{
    if (!valore.is_array()) {
        throw TestoErrato(sNome + ": serve un elenco");
    }
    if (valore.size() > nMassimo) {
        throw TestoErrato(sNome + ": al massimo " + std::to_string(nMassimo) + " elementi, non " +
                          std::to_string(valore.size()));
    }
    return valore;
}

std::string Testo(const json& valore, const std::string& sNome)
{
    if (!valore.is_string()) {
        throw TestoErrato(sNome + ": serve un testo, non " + Citato(valore));
    }
    return valore.get<std::string>();
}

std::string NomeElemento(std::string_view sElenco, std::size_t nIndice)
{
    return std::string(sElenco) + " " + std::to_string(nIndice + 1);
}

std::vector<std::int16_t> LeggiNumeri(const json& valore)
{
    std::vector<std::int16_t> aNumeri;
    std::set<std::int16_t> visti;
    for (const json& numero : Elenco(valore, Virgolette("numeri"), kNumeroMassimo)) {
        const auto n = static_cast<std::int16_t>(Intero(numero, Virgolette("numeri"), 1, kNumeroMassimo));
        if (!visti.insert(n).second) {
            throw TestoErrato("\"numeri\": il " + std::to_string(n) + " compare due volte");
        }
        aNumeri.push_back(n);
    }
    return aNumeri;
}

/// The text of a cell. Its lines end in CR and LF, and here in a lone LF too: another line break would join them.
std::string Cella(const json& valore, const std::string& sNome)
{
    return Sostituisci(Sostituisci(Testo(valore, sNome), kCrLf, "\n"), "\n", kCrLf);
}

Condizione LeggiRiga(const json& riga, const std::string& sNome)
{
    if (!riga.is_array() || riga.size() != kCelle) {
        throw TestoErrato(sNome + ": servono i cinque testi di una condizione");
    }
    Condizione celle{Cella(riga[0], sNome), Cella(riga[1], sNome), Cella(riga[2], sNome),
                     Cella(riga[3], sNome), Cella(riga[4], sNome)};
    const std::string_view sChiave = TogliBlank(celle.sCondizione);
    if (!sChiave.empty() && TrovaChiave(sChiave) == nullptr) {
        throw TestoErrato(sNome + ": condizione sconosciuta " + Virgolette(sChiave));
    }
    return celle;
}

std::vector<Condizione> LeggiRighe(const json& valore)
{
    std::vector<Condizione> aRighe;
    for (const json& riga : Elenco(valore, Virgolette("righe"), kCondizioniMassime)) {
        aRighe.push_back(LeggiRiga(riga, NomeElemento("riga", aRighe.size())));
    }
    return aRighe;
}

bool InteroPiccolo(std::string_view sParte)
{
    constexpr std::size_t kCifreMassime = 5;
    if (sParte.starts_with('-')) {
        sParte.remove_prefix(1);
    }
    return !sParte.empty() && sParte.size() <= kCifreMassime &&
           sParte.find_first_not_of("0123456789") == std::string_view::npos;
}

std::vector<std::string> LeggiQuadro(const json& valore)
{
    std::vector<std::string> aQuadro;
    for (const json& linea : Elenco(valore, Virgolette("quadro"), kGruppiRecupero)) {
        const std::string sNome = NomeElemento("quadro", aQuadro.size());
        const std::string sLinea = Testo(linea, sNome);
        const auto aParti = Dividi(sLinea, ",");
        if (aParti.size() != 3 || !std::all_of(aParti.begin(), aParti.end(), InteroPiccolo)) {
            throw TestoErrato(sNome + ": serve " + Virgolette("minimo,massimo,attivo") + ", non " +
                              Virgolette(sLinea));
        }
        aQuadro.push_back(sLinea);
    }
    return aQuadro;
}

void ControllaChiavi(const json& sistema)
{
    if (!sistema.is_object()) {
        throw TestoErrato(R"(serve un oggetto JSON con "classe", "numeri" e "righe")");
    }
    for (const auto& [sChiave, valore] : sistema.items()) {
        if (std::find(kChiavi.begin(), kChiavi.end(), sChiave) == kChiavi.end()) {
            throw TestoErrato("chiave sconosciuta " + Virgolette(sChiave));
        }
    }
    for (const std::string_view sChiave : {"classe", "numeri"}) {
        if (!sistema.contains(sChiave)) {
            throw TestoErrato("manca " + Virgolette(sChiave));
        }
    }
}

/// An array with an element a line.
std::string ElencoPerRighe(const nlohmann::ordered_json& elenco)
{
    std::string sTesto;
    for (const auto& elemento : elenco) {
        sTesto += (sTesto.empty() ? "\n    " : ",\n    ") + elemento.dump();
    }
    return sTesto.empty() ? "[]" : "[" + sTesto + "\n  ]";
}

} // namespace

TestoSistema LeggiTestoSistema(std::string_view sJson)
{
    const json sistema = LeggiJson(sJson);
    ControllaChiavi(sistema);
    TestoSistema testo;
    testo.nClasse = static_cast<std::int16_t>(
        Intero(sistema.at("classe"), Virgolette("classe"), kClasseMinima, kClasseMassima));
    testo.aNumeri = LeggiNumeri(sistema.at("numeri"));
    if (sistema.contains("riduzione")) {
        testo.nRiduzione = static_cast<std::int16_t>(
            Intero(sistema.at("riduzione"), Virgolette("riduzione"), 0, kRiduzioneMassima));
    }
    if (sistema.contains("righe")) {
        testo.aRighe = LeggiRighe(sistema.at("righe"));
    }
    if (sistema.contains("quadro")) {
        testo.aQuadro = LeggiQuadro(sistema.at("quadro"));
    }
    return testo;
}

void Imposta(const TestoSistema& testo, ordavel::Ordavel& sistema)
{
    sistema.PoniClasse(testo.nClasse);
    SelezionaCombo(testo.nRiduzione == 0 ? " " : std::to_string(testo.nRiduzione),
                   sistema.Controlli().CmbRid);
    for (const std::int16_t n : testo.aNumeri) {
        sistema.SelezionaNumero(n, true);
    }
    std::int32_t nRiga = 0;
    for (const Condizione& celle : testo.aRighe) {
        sistema.GetGridCond().Riga(++nRiga) = celle;
    }
    sistema.GetLbQuadroRec().Voci.Poni(testo.aQuadro);
}

std::vector<Condizione> RigheOccupate(ordavel::Ordavel& sistema)
{
    std::vector<Condizione> aRighe;
    const std::int32_t nUltima = UltimaRigaOccupata(sistema.GetGridCond());
    for (std::int32_t nRiga = 1; nRiga <= nUltima; ++nRiga) {
        aRighe.push_back(sistema.GetGridCond().Riga(nRiga));
    }
    return aRighe;
}

nlohmann::ordered_json ComeJson(ordavel::Ordavel& sistema)
{
    nlohmann::ordered_json uscita;
    uscita["classe"] = sistema.classe();
    uscita["riduzione"] = sistema.Riduzione();
    uscita["numeri"] = nlohmann::ordered_json::array();
    for (const std::int16_t n : sistema.GetNumeriSel().aElementi) {
        if (n > 0) {
            uscita["numeri"].push_back(n);
        }
    }
    uscita["righe"] = nlohmann::ordered_json::array();
    for (const Condizione& celle : RigheOccupate(sistema)) {
        uscita["righe"].push_back(
            {celle.sCondizione, celle.sParametri, celle.sPunti, celle.sRecupero, celle.sQuadro});
    }
    uscita["quadro"] = sistema.GetLbQuadroRec().Voci.Valore();
    uscita["colonne"] = sistema.QuantitaColonne();
    return uscita;
}

void StampaSistemaJson(std::ostream& uscita, ordavel::Ordavel& sistema)
{
    const nlohmann::ordered_json oggetto = ComeJson(sistema);
    std::string sTesto;
    for (const auto& [sChiave, valore] : oggetto.items()) {
        sTesto += (sTesto.empty() ? "{\n  " : ",\n  ") + Virgolette(sChiave) + ": ";
        sTesto += sChiave == "righe" ? ElencoPerRighe(valore) : valore.dump();
    }
    uscita << sTesto << "\n}\n";
}

} // namespace ordavel::cli
