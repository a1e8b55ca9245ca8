// ModConfronto.cpp - one column against every condition.

#include "analisi/ModConfronto.hpp"

#include "condizioni/ModCatalogo.hpp"
#include "condizioni/ModCompila.hpp"
#include "condizioni/ModTestoCelle.hpp"
#include "motore/ModVerifica.hpp"

#include <algorithm>

namespace ordavel {

namespace {

bool IsLink(const RecordCondizione& record) noexcept
{
    return record.Tipo == TipoCondizione::linkOpen || record.Tipo == TipoCondizione::linkClose;
}

/// The list when it has entries; else the range when either bound is not 0; else a dash.
std::string TestoPunti(const FlagPunti& aLista, std::int32_t nMin, std::int32_t nMax)
{
    std::string sLista = UnisciFlag(aLista, "-", false);
    if (!sLista.empty()) {
        return sLista;
    }
    return nMin != 0 || nMax != 0 ? std::to_string(nMin) + "-" + std::to_string(nMax) : "-";
}

Colore ColoreEsito(const RecordCondizione& record) noexcept
{
    if (record.Esito != 0) {
        return kColoreSuperata;
    }
    return record.EsitoRec != 0 ? kColoreRecuperata : kColoreScartata;
}

RigaElenco RigaConfronto(const RecordCondizione& record, std::size_t nIndice)
{
    constexpr std::size_t kPuntiEffettivi = 4;
    RigaElenco riga{.sChiave = {},
                    .sTesto = std::to_string(nIndice + 1),
                    .aSotto = {std::string(NomeCondizione(record.Tipo))},
                    .bScelta = false};
    if (!IsLink(record)) {
        const bool bSi = record.Esito != 0 || record.EsitoRec != 0;
        riga.aSotto.push_back(TestoPunti(record.PuntiOk, record.OkMin, record.OkMax));
        riga.aSotto.push_back(TestoPunti(record.PuntiRec, record.RecMin, record.RecMax));
        riga.aSotto.push_back(std::to_string(record.Valore));
        riga.aSotto.emplace_back(bSi ? "Si" : "No");
        riga.nColonnaColorata = kPuntiEffettivi;
        riga.nColore = ColoreEsito(record);
    }
    return riga;
}

bool ConEmulatore(const StatoSviluppo& stato) noexcept
{
    return std::any_of(stato.aCondizioni.begin(), stato.aCondizioni.end(),
                       [](const RecordCondizione& r) { return r.Tipo == TipoCondizione::emulatore; });
}

std::vector<std::size_t> TagliDeiRecord(const std::vector<RecordCondizione>& aCondizioni)
{
    std::vector<std::size_t> aTagli;
    for (std::size_t i = 0; i < aCondizioni.size(); ++i) {
        if (!IsLink(aCondizioni[i]) && aCondizioni[i].Esito == kFalso) {
            aTagli.push_back(i);
        }
    }
    return aTagli;
}

/// The links' working copy holds, in order, a verdict for each condition that is in no link and for each outermost
/// link, which ends where no link is open any more.
std::vector<std::size_t> TagliDeiBlocchi(const StatoSviluppo& stato)
{
    std::vector<std::size_t> aTagli;
    auto verdetto = stato.aLavoroLink.begin();
    std::int32_t nAperti = 0;
    for (std::size_t i = 0; i < stato.aCondizioni.size(); ++i) {
        nAperti += stato.aCondizioni[i].Tipo == TipoCondizione::linkOpen ? 1 : 0;
        nAperti -= stato.aCondizioni[i].Tipo == TipoCondizione::linkClose ? 1 : 0;
        if (nAperti == 0 && verdetto++->Esito == kFalso) {
            aTagli.push_back(i);
        }
    }
    return aTagli;
}

} // namespace

std::string_view NomeCondizione(TipoCondizione tipo) noexcept
{
    const auto nTipo = static_cast<std::int16_t>(tipo);
    const bool bSenzaNome = (nTipo >= 20 && nTipo <= 26) || nTipo >= 35;
    const VoceCatalogo* voce = TrovaTipo(tipo);
    return voce == nullptr || bSenzaNome ? std::string_view() : voce->sChiave;
}

std::int16_t ClasseColonna(const Colonna& colonna) noexcept
{
    const auto ultimo = std::find_if(colonna.aNumeri.rbegin(), colonna.aNumeri.rend(),
                                     [](std::uint8_t nNumero) { return nNumero != 0; });
    return static_cast<std::int16_t>(colonna.aNumeri.rend() - ultimo);
}

std::vector<std::size_t> RecordCheTagliano(StatoSviluppo& stato)
{
    if (ValutaLink(stato)) {
        return {};
    }
    return std::any_of(stato.aCondizioni.begin(), stato.aCondizioni.end(), IsLink) &&
                   LinkCoerenti(stato.aCondizioni)
               ? TagliDeiBlocchi(stato)
               : TagliDeiRecord(stato.aCondizioni);
}

std::vector<std::size_t> ConfrontaCondizioni(const Colonna& colonna, const GrigliaCondizioni& griglia,
                                             std::span<const std::string> aRigheQuadro, StatoSviluppo& stato,
                                             Elenco& oLista)
{
    oLista.Righe.Poni({});
    const std::int16_t nClasse = ClasseColonna(colonna);
    if (nClasse == 0) {
        return {};
    }
    LeggiCondizioniDaGriglia(stato.aCondizioni, griglia, aRigheQuadro, stato.aQuadroRec);
    if (ConEmulatore(stato) && !stato.bEmulatoreCaricato) {
        Solleva(eErrore::indice);
    }
    static_cast<void>(VerificaColonna(nClasse, colonna, stato));
    std::vector<RigaElenco> aRighe;
    for (std::size_t i = 0; i < stato.aCondizioni.size(); ++i) {
        if (stato.aCondizioni[i].Tipo != TipoCondizione::nessuno) {
            aRighe.push_back(RigaConfronto(stato.aCondizioni[i], i));
        }
    }
    oLista.Righe.Poni(std::move(aRighe));
    return RecordCheTagliano(stato);
}

} // namespace ordavel
