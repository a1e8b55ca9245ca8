// Stampa.cpp - results for people to read.

#include "cli/Stampa.hpp"

#include "cli/SistemaJson.hpp"
#include "condizioni/ModCatalogo.hpp"
#include "condizioni/ModRighe.hpp"
#include "core/ModNumeri.hpp"
#include "core/ModTesti.hpp"

#include <algorithm>
#include <array>
#include <cmath>

namespace ordavel::cli {

namespace {

using nlohmann::ordered_json;

constexpr std::array<std::string_view, 5> kIcone{"nessuna", "critico", "avviso", "informazione", "domanda"};

std::string_view NomeTipo(TipoCondizione tipo)
{
    const VoceCatalogo* voce = TrovaTipo(tipo);
    return voce == nullptr ? std::string_view() : voce->sChiave;
}

std::int64_t Intero(double nValore)
{
    return static_cast<std::int64_t>(ArrotondaPari(nValore));
}

ordered_json ComeJson(const RecordCondizione& record, std::size_t nId)
{
    return {{"id", nId},
            {"tipo", static_cast<std::int16_t>(record.Tipo)},
            {"nome", NomeTipo(record.Tipo)},
            {"ok", Intero(record.ContaOk)},
            {"ko", Intero(record.ContaKo)},
            {"rec", Intero(record.ContaRec)},
            {"valore", record.Valore},
            {"valore2", record.Valore2},
            {"esito", record.Esito != kFalso},
            {"esitoRec", record.EsitoRec != kFalso}};
}

/// Characters of a UTF-8 text.
std::size_t Lunghezza(std::string_view sTesto)
{
    return static_cast<std::size_t>(
        std::count_if(sTesto.begin(), sTesto.end(), [](char c) { return (c & 0xC0) != 0x80; }));
}

std::string Riempito(const std::string& sTesto, std::size_t nLarghezza, bool bDestra)
{
    const std::string sBlank(nLarghezza - std::min(nLarghezza, Lunghezza(sTesto)), ' ');
    return bDestra ? sBlank + sTesto : sTesto + sBlank;
}

using RigaTesti = std::vector<std::string>;

/// Columns as wide as their widest text; the first nSinistra ones left-aligned, the others right-aligned.
void StampaTabella(std::ostream& uscita, const std::vector<RigaTesti>& aRighe, std::size_t nSinistra)
{
    std::vector<std::size_t> aLarghezze(aRighe.front().size(), 0);
    for (const RigaTesti& riga : aRighe) {
        for (std::size_t i = 0; i < riga.size(); ++i) {
            aLarghezze[i] = std::max(aLarghezze[i], Lunghezza(riga[i]));
        }
    }
    for (const RigaTesti& riga : aRighe) {
        std::string sRiga = " ";
        for (std::size_t i = 0; i < riga.size(); ++i) {
            sRiga +=
                " " + Riempito(riga[i], aLarghezze[i], i >= nSinistra) + (i + 1 < riga.size() ? " " : "");
        }
        uscita << sRiga.substr(0, sRiga.find_last_not_of(' ') + 1) << '\n';
    }
}

/// Tenths as a number with one decimal: 318 gives "31,8".
std::string UnDecimale(double nDecimi)
{
    const auto nInteri = static_cast<std::int64_t>(std::llround(nDecimi));
    return std::to_string(nInteri / 10) + "," + std::to_string(nInteri % 10);
}

/// A count and its share, in two columns; a kind that does not count has "-".
void AggiungiQuota(RigaTesti& riga, double nParte, double nTutto, bool bConta)
{
    riga.push_back(bConta ? FormattaNumero(nParte) : "-");
    riga.push_back(bConta ? Percento(nParte, nTutto) : "");
}

RigaTesti RigaCondizione(const RecordCondizione& record, std::size_t nId, double nSviluppate)
{
    const bool bConta = SiMisura(record.Tipo);
    RigaTesti riga{std::to_string(nId), std::string(NomeTipo(record.Tipo))};
    AggiungiQuota(riga, record.ContaOk, nSviluppate, bConta);
    AggiungiQuota(riga, record.ContaKo, nSviluppate, bConta);
    // Without a recovery group nothing can be recovered; a count of 0 would only be noise.
    AggiungiQuota(riga, record.ContaRec, nSviluppate,
                  bConta && (record.IdRecupero != 0 || record.ContaRec != 0));
    return riga;
}

void StampaCondizioni(std::ostream& uscita, const EsitoCorsa& esito)
{
    std::vector<RigaTesti> aRighe{{"N", "Condizione", "passate", "", "tagliate", "", "recuperabili", ""}};
    for (const RecordCondizione& record : esito.aCondizioni) {
        aRighe.push_back(RigaCondizione(record, aRighe.size(), esito.nSviluppate));
    }
    uscita << '\n';
    StampaTabella(uscita, aRighe, 2);
}

/// A short run in seconds with one decimal, a long one in hours, minutes and seconds.
std::string TestoTempo(double nSecondi)
{
    constexpr double kMinuto = 60;
    if (nSecondi >= kMinuto) {
        return FormattaTempo(static_cast<std::int64_t>(nSecondi));
    }
    return UnDecimale(nSecondi * 10) + " s";
}

std::string Unisci(const NumeriScelti& aNumeri)
{
    std::string sTesto;
    for (const std::int16_t n : aNumeri.aElementi) {
        sTesto += n > 0 ? (sTesto.empty() ? "" : " ") + Formatta00(n) : "";
    }
    return sTesto;
}

/// A measured value on one line: "Pari 3, Dispari 2".
std::string TestoMisura(const ordered_json& valore)
{
    if (!valore.is_object()) {
        return valore.is_string() ? valore.get<std::string>() : valore.dump();
    }
    std::string sTesto;
    for (const auto& [sChiave, parte] : valore.items()) {
        sTesto += (sTesto.empty() ? "" : ", ") + sChiave + " ";
        sTesto += parte.is_object() ? "(" + TestoMisura(parte) + ")" : TestoMisura(parte);
    }
    return sTesto;
}

void StampaQuadro(std::ostream& uscita, const std::vector<std::string>& aQuadro)
{
    int nGruppo = 0;
    for (const std::string& sLinea : aQuadro) {
        ++nGruppo;
        const RigaQuadro riga = LeggiRigaQuadro(sLinea);
        if (riga.bInUso) {
            uscita << "Gruppo di recupero " << nGruppo
                   << ": perdona quando le condizioni in recupero sono da " << riga.sMinimo << " a "
                   << riga.sMassimo << '\n';
        }
    }
}

} // namespace

std::string Percento(double nParte, double nTutto)
{
    if (nTutto <= 0) {
        return "-";
    }
    return UnDecimale(nParte * 1000 / nTutto) + " %";
}

std::string CellaSuUnaRiga(std::string_view sCella)
{
    const auto aRighe = Dividi(sCella, kCrLf);
    const bool bVerticale =
        std::all_of(aRighe.begin(), aRighe.end(), [](std::string_view sRiga) { return sRiga.size() <= 1; });
    std::string sTesto;
    for (const std::string_view sRiga : aRighe) {
        const bool bStacca = !sTesto.empty() && !(bVerticale || sTesto.ends_with('-'));
        sTesto.append(bStacca ? " " : "").append(sRiga);
    }
    sTesto.erase(std::remove(sTesto.begin(), sTesto.end(), '\r'), sTesto.end());
    return sTesto;
}

nlohmann::ordered_json ComeJson(const EsitoCorsa& esito, const std::vector<Messaggio>& aMessaggi)
{
    ordered_json uscita{{"integrali", Intero(esito.nIntegrali)},
                        {"sviluppate", Intero(esito.nSviluppate)},
                        {"condizionate", Intero(esito.nCondizionate)},
                        {"secondi", esito.nSecondi},
                        {"interrotto", esito.bInterrotto},
                        {"messaggi", ordered_json::array()},
                        {"condizioni", ordered_json::array()}};
    for (const Messaggio& m : aMessaggi) {
        uscita["messaggi"].push_back({{"icona", kIcone[static_cast<std::size_t>(m.icona)]},
                                      {"titolo", m.sTitolo},
                                      {"testo", m.sTesto}});
    }
    for (const RecordCondizione& record : esito.aCondizioni) {
        uscita["condizioni"].push_back(ComeJson(record, uscita["condizioni"].size() + 1));
    }
    return uscita;
}

void StampaEsito(std::ostream& uscita, const EsitoCorsa& esito)
{
    StampaTabella(
        uscita,
        {{esito.bDaFile ? "Colonne nel file" : "Colonne integrali", FormattaNumero(esito.nIntegrali), ""},
         {"Colonne esaminate", FormattaNumero(esito.nSviluppate),
          Percento(esito.nSviluppate, esito.nIntegrali)},
         {"Colonne tenute", FormattaNumero(esito.nCondizionate),
          Percento(esito.nCondizionate, esito.nSviluppate)},
         {"Tempo", TestoTempo(esito.nSecondi), ""}},
        1);
    if (!esito.aCondizioni.empty()) {
        StampaCondizioni(uscita, esito);
    }
    if (esito.bInterrotto) {
        uscita << "\n  Interrotto: le colonne tenute fin qui sono salve.\n";
    }
}

std::string Riassunto(const EsitoCorsa& esito, const std::string& sUscita)
{
    const bool bUna = esito.nCondizionate == 1;
    return "Di " + FormattaNumero(esito.nSviluppate) + " colonne esaminate " +
           (bUna ? "ne resta 1, scritta in "
                 : "ne restano " + FormattaNumero(esito.nCondizionate) + ", scritte in ") +
           sUscita;
}

void StampaMisure(std::ostream& uscita, const ordered_json& misure)
{
    std::vector<RigaTesti> aRighe;
    for (const auto& [sNome, valore] : misure.items()) {
        aRighe.push_back({sNome, TestoMisura(valore)});
    }
    StampaTabella(uscita, aRighe, 2);
}

void StampaSistema(std::ostream& uscita, ordavel::Ordavel& sistema)
{
    uscita << "Classe " << sistema.classe() << ", riduzione " << sistema.Riduzione() << '\n';
    uscita << "Numeri (" << sistema.ContaNumeriSel() << "): " << Unisci(sistema.GetNumeriSel()) << '\n';
    const auto aCelle = RigheOccupate(sistema);
    if (!aCelle.empty()) {
        std::vector<RigaTesti> aRighe{{"N", "Condizione", "Parametri", "Punti", "Recupero", "Quadro Rec."}};
        for (const Condizione& c : aCelle) {
            aRighe.push_back({std::to_string(aRighe.size()), c.sCondizione, CellaSuUnaRiga(c.sParametri),
                              CellaSuUnaRiga(c.sPunti), CellaSuUnaRiga(c.sRecupero), c.sQuadro});
        }
        StampaTabella(uscita, aRighe, aRighe.front().size());
    }
    StampaQuadro(uscita, sistema.GetLbQuadroRec().Voci.Valore());
    uscita << "Colonne nel file: " << FormattaNumero(sistema.QuantitaColonne()) << '\n';
}

} // namespace ordavel::cli
