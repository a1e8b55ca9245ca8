// Conta.cpp - counting a system, and showing what is exact and what is not.

#include "cli/Conta.hpp"

#include "cli/Sessione.hpp"
#include "cli/Stampa.hpp"
#include "cli/StampaElenco.hpp"
#include "cli/UsaArchivio.hpp"
#include "condizioni/ModCatalogo.hpp"
#include "core/ModGiochi.hpp"
#include "core/ModNumeri.hpp"
#include "core/ModTesti.hpp"
#include "emulatore/ModEmulatore.hpp"

#include <algorithm>
#include <cmath>
#include <iostream>
#include <unistd.h>

namespace ordavel::cli {

namespace {

using nlohmann::ordered_json;

/// A count, and how it came about.
struct EsitoConta {
    ConteggioSistema conto;
    std::vector<RecordCondizione> aCondizioni; ///< empty for a system without any
    bool bInterrotto = false;
};

std::string_view NomeTipo(const RecordCondizione& record)
{
    const VoceCatalogo* voce = TrovaTipo(record.Tipo);
    return voce == nullptr ? std::string_view() : voce->sChiave;
}

/// A number, with its error when it is an estimate. One that rounds to nothing is a 0 all the same.
std::string Testo(double nValore, double nErrore, bool bEsatto)
{
    const std::string sValore = FormattaNumero(std::round(nValore));
    return bEsatto ? sValore : "circa " + sValore + " ± " + FormattaNumero(std::ceil(nErrore));
}

/// The estimate on the terminal, as long as the exact count goes on.
class StimaInVista {
public:
    StimaInVista() = default;
    StimaInVista(const StimaInVista&) = delete;
    StimaInVista& operator=(const StimaInVista&) = delete;
    ~StimaInVista()
    {
        if (m_bMostrata) {
            std::cerr << "\r\x1b[K" << std::flush;
        }
    }

    void Mostra(const ConteggioSistema& stima)
    {
        if (isatty(STDERR_FILENO) == 1) {
            std::cerr << "\r\x1b[KPassano " + Testo(stima.nPassano, stima.nErrore, stima.bEsatto) +
                             " colonne; il conto esatto è in corso"
                      << std::flush;
            m_bMostrata = true;
        }
    }

private:
    bool m_bMostrata = false;
};

/// The draws of an emulator, as a development would make them.
void CreaEstrazioni(Sessione& sessione, const OpzioniConta& opzioni)
{
    ordavel::Ordavel& sistema = sessione.Sistema();
    if (!sistema.IsCondizionePresente("Emulatore")) {
        return;
    }
    UsaArchivio(sessione, opzioni.sArchivio, opzioni.sRuota);
    const auto aRuote = Ruote();
    const auto ruota = std::ranges::find_if(
        aRuote, [&](std::string_view sNome) { return UgualiSenzaCaso(sNome, opzioni.sRuota); });
    const auto nRuota = static_cast<std::int16_t>(ruota == aRuote.end() ? 1 : ruota - aRuote.begin() + 1);
    if (!CreaDatiEmulatore(sistema.PercorsoTemp() + "Emulatore.dat",
                           sistema.GetQuantitaColDaEmulareFromGrid(), nRuota,
                           sistema.GetIdCmbTipoGiocoString(), opzioni.sArchivio, sessione.Desktop())) {
        sessione.Desktop().Avvisa("Filtro emulatore non creato");
    }
}

/// Everything that can be refused before the count begins.
bool Prepara(Sessione& sessione, const OpzioniConta& opzioni)
{
    ScegliGioco(sessione, opzioni.sGioco);
    if (!sessione.Apri(opzioni.sSistema, {})) {
        return false;
    }
    if (sessione.Sistema().classe() == 0) {
        sessione.Desktop().Avvisa("la classe di " + opzioni.sSistema +
                                  " non è da 2 a 10: forse non è un file di sistema");
        return false;
    }
    if (!sessione.Sistema().VerificaCoerenzaLink()) {
        return false;
    }
    CreaEstrazioni(sessione, opzioni);
    return !sessione.Desktop().Critico();
}

/// A count that was stopped ends with the estimate, made now when there was none.
void Esegui(Sessione& sessione, const OpzioniConta& opzioni, EsitoConta& esito)
{
    const SistemaDaContare sistema = sessione.Sistema().PreparaConteggio();
    if (!sessione.Sistema().GetGridCond().Vuota(1)) {
        esito.aCondizioni = sistema.stato.aCondizioni;
    }
    StimaInVista vista;
    std::optional<ConteggioSistema> stima;
    auto conto = ContaSistema(
        sistema, {.bSoloStima = opzioni.bSoloStima}, [] { return PiattaformaCli::StopChiesto(); },
        [&](const ConteggioSistema& fatta) {
            stima = fatta;
            vista.Mostra(fatta);
        });
    esito.bInterrotto = !conto;
    if (!conto) {
        conto = stima ? stima : ContaSistema(sistema, {.bSoloStima = true, .attesa = {}});
    }
    esito.conto = std::move(*conto);
}

/// A count and its share; a kind that does not count has "-".
void AggiungiQuota(RigaElenco& riga, double nParte, double nTutto, bool bConta)
{
    riga.aSotto.push_back(bConta ? FormattaNumero(std::round(nParte)) : "-");
    riga.aSotto.push_back(bConta ? Percento(nParte, nTutto) : "");
}

Elenco ElencoDi(const EsitoConta& esito)
{
    Elenco elenco;
    elenco.aTestate = {"N", "Condizione", "passate", "", "tagliate", "", "recuperabili", "", ""};
    std::vector<RigaElenco> aRighe;
    for (std::size_t i = 0; i < esito.aCondizioni.size(); ++i) {
        const RecordCondizione& record = esito.aCondizioni[i];
        const ContoCondizione& conto = esito.conto.aCondizioni[i];
        RigaElenco riga;
        riga.sTesto = std::to_string(i + 1);
        riga.aSotto = {std::string(NomeTipo(record))};
        AggiungiQuota(riga, conto.nOk, esito.conto.nColonne, SiMisura(record.Tipo));
        AggiungiQuota(riga, conto.nKo, esito.conto.nColonne, SiMisura(record.Tipo));
        AggiungiQuota(riga, conto.nRec, esito.conto.nColonne,
                      SiMisura(record.Tipo) && (record.IdRecupero != 0 || conto.nRec != 0));
        riga.aSotto.push_back(conto.bEsatto ? "" : "± " + FormattaNumero(std::ceil(conto.nErrore)));
        aRighe.push_back(std::move(riga));
    }
    elenco.Righe.Poni(std::move(aRighe));
    return elenco;
}

void Stampa(const EsitoConta& esito)
{
    const ConteggioSistema& conto = esito.conto;
    std::cout << "  Colonne integrali    " << FormattaNumero(conto.nColonne) << '\n'
              << "  Colonne che passano  " << Testo(conto.nPassano, conto.nErrore, conto.bEsatto) << "  "
              << Percento(conto.nPassano, conto.nColonne) << '\n';
    if (!esito.aCondizioni.empty()) {
        std::cout << '\n';
        StampaElenco(std::cout, "Condizioni", ElencoDi(esito));
    }
    if (esito.bInterrotto) {
        std::cout << "\n  Interrotto: i numeri non esatti sono stime.\n";
    }
}

std::int64_t Intero(double nValore)
{
    return static_cast<std::int64_t>(std::round(nValore));
}

ordered_json ComeJson(const EsitoConta& esito)
{
    const ConteggioSistema& conto = esito.conto;
    ordered_json uscita{{"integrali", Intero(conto.nColonne)},
                        {"passano", Intero(conto.nPassano)},
                        {"errore", Intero(std::ceil(conto.nErrore))},
                        {"esatto", conto.bEsatto},
                        {"interrotto", esito.bInterrotto},
                        {"condizioni", ordered_json::array()}};
    for (std::size_t i = 0; i < esito.aCondizioni.size(); ++i) {
        const ContoCondizione& contata = conto.aCondizioni[i];
        uscita["condizioni"].push_back({{"id", i + 1},
                                        {"tipo", static_cast<std::int16_t>(esito.aCondizioni[i].Tipo)},
                                        {"nome", NomeTipo(esito.aCondizioni[i])},
                                        {"ok", Intero(contata.nOk)},
                                        {"ko", Intero(contata.nKo)},
                                        {"rec", Intero(contata.nRec)},
                                        {"errore", Intero(std::ceil(contata.nErrore))},
                                        {"esatto", contata.bEsatto}});
    }
    return uscita;
}

} // namespace

eUscita Conta(const OpzioniConta& opzioni)
{
    Sessione sessione(false);
    EsitoConta esito;
    const bool bFatto = Protetto(sessione, opzioni.sSistema, [&] {
        if (!Prepara(sessione, opzioni)) {
            return false;
        }
        Esegui(sessione, opzioni, esito);
        return true;
    });
    if (!bFatto) {
        return eUscita::fallito;
    }
    if (opzioni.bJson) {
        std::cout << ComeJson(esito).dump(2) << '\n';
    } else {
        Stampa(esito);
    }
    return esito.bInterrotto ? eUscita::interrotto : eUscita::fatto;
}

} // namespace ordavel::cli
