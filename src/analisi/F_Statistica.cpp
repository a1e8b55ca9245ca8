// F_Statistica.cpp - the statistic of a kind of condition over the draws of a game.

#include "analisi/F_Statistica.hpp"

#include "core/ModNumeri.hpp"
#include "persistenza/ModBaseDati.hpp"

#include <algorithm>
#include <array>
#include <charconv>

namespace ordavel {

namespace {

constexpr std::string_view kTitolo = "Statistica";
/// How many of the latest draws may be asked for, and which of the choices stands at the start.
constexpr std::array<std::string_view, 5> kUltime{"10", "20", "50", "100", "500"};
constexpr std::int32_t kUltimePreset = 1;

Messaggio Avviso(std::string sTesto)
{
    return {.icona = eIcona::avviso, .sTitolo = std::string(kTitolo), .sTesto = std::move(sTesto)};
}

const ProfiloGioco* TrovaGiocoNumero(std::int16_t nGioco) noexcept
{
    const auto aGiochi = ProfiliGioco();
    const bool bEsiste = nGioco >= 1 && static_cast<std::size_t>(nGioco) <= aGiochi.size();
    return bEsiste ? &aGiochi[static_cast<std::size_t>(nGioco) - 1] : nullptr;
}

template <typename T> const T& Esistente(const T* cosa)
{
    if (cosa == nullptr) {
        Solleva(eErrore::indice);
    }
    return *cosa;
}

/// What draws alone cannot tell, for the kinds without a statistic.
std::string MancaPer(const VoceCatalogo& voce)
{
    return "Per la condizione " + std::string(voce.sChiave) +
           " non c'è una statistica delle estrazioni: il suo valore " +
           (voce.parametri == eParametri::emulatore ? "nasce dal confronto di una colonna con le estrazioni."
                                                    : "dipende dai numeri scelti nella condizione.");
}

/// Why there are no draws; empty when there are.
std::string MancanoEstrazioni(const ProfiloGioco& gioco, const std::string& sArchivio)
{
    const std::optional<double> nQuante = ContaEstrazioni(TracciatoDi(gioco), sArchivio);
    if (nQuante && ComeIntero<std::int32_t>(*nQuante) > 0) {
        return {};
    }
    return nQuante ? "L'archivio delle estrazioni è vuoto" : "Archivio delle estrazioni non disponibile";
}

/// A number with decimals as it is read here: "12,35".
std::string FormattaDecimale(double nValore, int nDecimali)
{
    std::array<char, 64> aCifre{};
    const auto fine = std::to_chars(aCifre.data(), aCifre.data() + aCifre.size(), nValore,
                                    std::chars_format::fixed, nDecimali);
    std::string sTesto(aCifre.data(), fine.ptr);
    std::replace(sTesto.begin(), sTesto.end(), '.', ',');
    return sTesto;
}

std::string Quante(std::int64_t nQuante)
{
    return FormattaNumero(static_cast<double>(nQuante)) + (nQuante == 1 ? " estrazione" : " estrazioni");
}

std::string TestoUsate(const EsitoStatistica& esito)
{
    return Quante(esito.nUsate) +
           (esito.nSaltate > 0 ? " (" + FormattaNumero(static_cast<double>(esito.nSaltate)) + " incomplete)"
                               : "");
}

} // namespace

std::optional<Messaggio> OstacoloStatistica(std::int32_t nIdStatistica, std::int16_t nGioco,
                                            const std::string& sArchivio)
{
    const VoceCatalogo* voce = TrovaStatistica(nIdStatistica);
    if (voce == nullptr) {
        return Avviso("Statistica non prevista");
    }
    const ProfiloGioco* gioco = TrovaGiocoNumero(nGioco);
    if (gioco == nullptr) {
        return Avviso("Scegliere un gioco");
    }
    if (VariantiStatistica(*voce, NumeriColonnaDi(*gioco)).empty()) {
        return Messaggio{
            .icona = eIcona::informazione, .sTitolo = std::string(kTitolo), .sTesto = MancaPer(*voce)};
    }
    const std::string sManca = MancanoEstrazioni(*gioco, sArchivio);
    if (sManca.empty()) {
        return std::nullopt;
    }
    const std::string sFile = sArchivio.empty() ? "" : "\nFile: " + sArchivio;
    return Avviso(sManca + "\n\nGioco: " + std::string(gioco->sNome) + sFile +
                  "\n\nIl file dell'archivio di ogni gioco si indica nelle Impostazioni.");
}

std::string TestoValori(const BarraStatistica& barra)
{
    const std::string sDa = std::to_string(barra.nDa);
    return barra.nDa == barra.nA ? sDa : sDa + "-" + std::to_string(barra.nA);
}

std::string TestoQuota(double nQuota)
{
    return FormattaDecimale(100 * nQuota, 1) + " %";
}

std::string TestoBarra(const BarraStatistica& barra, std::size_t nUltime)
{
    std::string sTesto = TestoValori(barra) + ": " + Quante(barra.nQuante) + ", " + TestoQuota(barra.nQuota);
    if (nUltime > 0) {
        sTesto += "; ultime " + std::to_string(nUltime) + ": " + std::to_string(barra.nUltime) + ", " +
                  TestoQuota(barra.nQuotaUltime);
    }
    return sTesto;
}

F_Statistica::F_Statistica(std::int32_t nIdStatistica, std::int16_t nGioco, std::string sArchivio)
    : Dialogo("F_Statistica",
              "Statistica: " + std::string(Esistente(TrovaStatistica(nIdStatistica)).sChiave)),
      m_Voce(Esistente(TrovaStatistica(nIdStatistica))),
      m_Fonte{.gioco = &Esistente(TrovaGiocoNumero(nGioco)), .sArchivio = std::move(sArchivio), .nRuota = 1},
      m_aVarianti(VariantiStatistica(m_Voce, NumeriColonnaDi(*m_Fonte.gioco)))
{
    LabGioco.Testo.Poni(std::string(m_Fonte.gioco->sNome) + ", " +
                        std::to_string(NumeriColonnaDi(*m_Fonte.gioco)) + " numeri");
    CmbRuota.Visibile.Poni(HaRuote(*m_Fonte.gioco));
    for (const std::string_view sRuota : Ruote()) {
        CmbRuota.Aggiungi(sRuota);
    }
    CmbVariante.Visibile.Poni(m_aVarianti.size() > 1);
    for (const VarianteStatistica& variante : m_aVarianti) {
        CmbVariante.Aggiungi(variante.sNome);
    }
    for (const std::string_view sUltime : kUltime) {
        CmbUltime.Aggiungi(sUltime);
    }
    CmbRuota.SelezionaPrima();
    CmbVariante.SelezionaPrima();
    CmbUltime.Indice.Poni(kUltimePreset);
    for (Combo* combo : {&CmbRuota, &CmbVariante, &CmbUltime}) {
        combo->Indice.AlCambio([this] { Calcola(); });
    }
    Calcola();
}

void F_Statistica::Calcola()
{
    const auto nVariante = static_cast<std::size_t>(CmbVariante.Indice.Valore());
    if (nVariante >= m_aVarianti.size()) {
        return;
    }
    m_Fonte.nRuota = static_cast<std::int16_t>(CmbRuota.Indice.Valore() + 1);
    const EsitoStatistica esito =
        CalcolaStatistica(m_aVarianti[nVariante], m_Fonte, LeggiIntero<std::int32_t>(CmbUltime.Testo()));
    LabUsate.Testo.Poni(esito.bArchivio ? TestoUsate(esito) : "Archivio delle estrazioni non disponibile");
    const bool bValori = esito.nUsate > 0;
    LabMedia.Testo.Poni(bValori ? FormattaDecimale(esito.nMedia, 2) : "-");
    LabLimiti.Testo.Poni(bValori ? std::to_string(esito.nMinimo) + " - " + std::to_string(esito.nMassimo)
                                 : "-");
    Esito.Poni(esito);
}

std::int32_t F_Statistica::BarraDi(const UltimaEstrazione& ultima) const noexcept
{
    const auto& aBarre = Esito.Valore().aBarre;
    const auto barra = std::find_if(aBarre.begin(), aBarre.end(), [&](const BarraStatistica& b) {
        return b.nDa <= ultima.nValore && ultima.nValore <= b.nA;
    });
    return barra == aBarre.end() ? -1 : static_cast<std::int32_t>(barra - aBarre.begin());
}

double F_Statistica::PostoMedia() const noexcept
{
    const EsitoStatistica& esito = Esito.Valore();
    if (esito.aBarre.empty()) {
        return 0;
    }
    // A value stands in the middle of its place: the mean of a bar's values is the bar's middle.
    const BarraStatistica& prima = esito.aBarre.front();
    return (esito.nMedia - prima.nDa + 0.5) / (prima.nA - prima.nDa + 1);
}

} // namespace ordavel
