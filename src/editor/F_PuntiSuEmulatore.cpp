// F_PuntiSuEmulatore.cpp - "Punti su emulatore".

#include "editor/F_PuntiSuEmulatore.hpp"

#include "core/ModNumeri.hpp"
#include "core/ModTesti.hpp"

namespace ordavel {

namespace {

constexpr std::int32_t kColonnaMinimo = 1;
constexpr std::int32_t kColonnaMassimo = 2;
constexpr std::int32_t kColonneFoglio = 3;
constexpr double kColonneEmulateMassime = 500;

/// A text without some of its first and last characters; empty when it is shorter.
std::string_view SenzaBordi(std::string_view sTesto, std::size_t nPrimi, std::size_t nUltimi)
{
    return sTesto.size() < nPrimi + nUltimi ? std::string_view()
                                            : sTesto.substr(nPrimi, sTesto.size() - nPrimi - nUltimi);
}

} // namespace

F_PuntiSuEmulatore::F_PuntiSuEmulatore(OspiteDialoghi& ospite)
    : DialogoCondizione(ospite, TipoCondizione::emulatore, "Punti su emulatore")
{
    Text2.bSoloCifre = true;
    Text2.Testo.AlCambio([this] {
        if (!m_bInCarico) {
            PreimpostaMassimi();
        }
    });
    Text1.Testo.AlCambio([this] {
        if (Text1.Visibile.Valore()) {
            MSFlexGrid1.Scrivi(MSFlexGrid1.Corrente.Valore(), Text1.Testo.Valore());
        }
    });
    MSFlexGrid1.Corrente.AlCambio([this] { GestiionePosTxt(); });
    LoadGridPunti();
    GestiionePosTxt();
}

void F_PuntiSuEmulatore::LoadGridPunti()
{
    const std::int32_t nClasse = Ospite().classe();
    MSFlexGrid1.Disponi(nClasse + 2, kColonneFoglio);
    MSFlexGrid1.Scrivi({0, kColonnaMinimo}, "Minimo");
    MSFlexGrid1.Scrivi({0, kColonnaMassimo}, "Massimo");
    for (std::int32_t nPunti = 0; nPunti <= nClasse; ++nPunti) {
        MSFlexGrid1.Scrivi({nPunti + 1, 0}, "P" + std::to_string(nPunti));
    }
    MSFlexGrid1.Corrente.Poni({1, kColonnaMinimo});
}

void F_PuntiSuEmulatore::GestiionePosTxt()
{
    const Foglio::Posto posto = MSFlexGrid1.Corrente.Valore();
    Text1.Visibile.Poni(posto.nRiga > 0);
    if (posto.nRiga > 0) {
        MostraCella();
        Text1.ChiediFuoco();
    }
}

void F_PuntiSuEmulatore::MostraCella()
{
    if (Text1.Visibile.Valore()) {
        Text1.Testo.PoniSenzaRegola(MSFlexGrid1.Testo(MSFlexGrid1.Corrente.Valore()));
    }
}

void F_PuntiSuEmulatore::PreimpostaMassimi()
{
    for (std::int32_t nRiga = 1; nRiga < MSFlexGrid1.Righe(); ++nRiga) {
        MSFlexGrid1.Scrivi({nRiga, kColonnaMassimo}, Text2.Testo.Valore());
    }
    MostraCella();
}

std::string F_PuntiSuEmulatore::MessaggioCoerenza() const
{
    const double nColonne = LeggiNumero(Text2.Testo.Valore());
    if (nColonne == 0) {
        return "Impostare il numero di colonne da emulare";
    }
    return nColonne > kColonneEmulateMassime ? "Il numero di colonne da emulare massimo è 500" : "";
}

ValoriDialogo F_PuntiSuEmulatore::Valori() const
{
    ValoriDialogo valori;
    valori.nColonneEmulate = LeggiIntero<std::int32_t>(Text2.Testo.Valore());
    for (std::int32_t nRiga = 1; nRiga < MSFlexGrid1.Righe(); ++nRiga) {
        valori.aLimitiEmulatore.push_back(
            {MSFlexGrid1.Testo({nRiga, kColonnaMinimo}), MSFlexGrid1.Testo({nRiga, kColonnaMassimo})});
    }
    return valori;
}

/// A line without ")" states nothing.
/// Fails    9: a ")" without "-" behind it, or no such row
void F_PuntiSuEmulatore::ScriviLimiti(std::int32_t nRiga, std::string_view sLinea)
{
    if (sLinea.find(')') == std::string_view::npos) {
        return;
    }
    const auto aParti = Dividi(TogliBlank(Dietro(sLinea, ")")), "-");
    if (aParti.size() < 2) {
        Solleva(eErrore::indice);
    }
    MSFlexGrid1.Scrivi({nRiga, kColonnaMinimo}, TogliBlank(aParti[0]));
    MSFlexGrid1.Scrivi({nRiga, kColonnaMassimo}, TogliBlank(aParti[1]));
}

void F_PuntiSuEmulatore::LeggiPunti(const GrigliaCondizioni& griglia)
{
    const auto aLinee = Dividi(griglia.Riga(griglia.Corrente()).sParametri, kCrLf);
    if (aLinee.empty()) {
        return;
    }
    m_bInCarico = true;
    Text2.Testo.Poni(std::string(SenzaBordi(aLinee[0], 1, 1)));
    m_bInCarico = false;
    // A row that comes from a file has a line for every number of hits up to 10, whatever the class.
    for (std::int32_t nRiga = 1; nRiga < MSFlexGrid1.Righe(); ++nRiga) {
        if (static_cast<std::size_t>(nRiga) < aLinee.size()) {
            ScriviLimiti(nRiga, aLinee[static_cast<std::size_t>(nRiga)]);
        }
    }
    MostraCella();
}

bool F_PuntiSuEmulatore::Riempi(std::string_view sParam)
{
    const auto aLinee = Dividi(sParam, kCrLf);
    // The number is read up to the last character: "12]" and "12)" are 12, and the cell's own "[12]" is 0.
    Text2.Testo.Poni(std::to_string(LeggiIntero<std::int32_t>(SenzaBordi(aLinee[0], 0, 1))));
    for (std::size_t i = 1; i < aLinee.size(); ++i) {
        ScriviLimiti(static_cast<std::int32_t>(i), aLinee[i]);
    }
    MostraCella();
    return true;
}

} // namespace ordavel
