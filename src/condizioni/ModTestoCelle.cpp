// ModTestoCelle.cpp - the text of the cells.

#include "condizioni/ModTestoCelle.hpp"

#include "condizioni/ModParole.hpp"
#include "core/ModTesti.hpp"

#include <algorithm>

namespace ordavel {

namespace {

constexpr std::int32_t kNumeriPerRiga = 4;
constexpr std::int32_t kCaratteriPerNumero = 3;

std::string Verticale(std::string_view sTesto)
{
    return ScriviVerticale(sTesto, 1);
}

/// A list behind a heading and a line break. Without any value the last character of the text is cut as if it
/// were a list's last separator, so that the cell ends in a bare carriage return.
std::string TestoCaselle(const FlagNumeri& aPosizioni)
{
    const std::string sLista = UnisciFlag(aPosizioni, "-", false);
    return std::string(kCaselle) + (sLista.empty() ? std::string("\r") : std::string(kCrLf) + sLista);
}

std::string TestoCasella(std::string_view sPosizione)
{
    return std::string(kCasella).append(kCrLf).append(sPosizione);
}

std::string TestoGruppo(std::string_view sGruppo, std::string_view sPasso)
{
    return std::string(kGruppoDa).append(sGruppo).append(kCrLf).append(kPasso).append(sPasso);
}

std::string TestoSequenza(std::string_view sSchema, std::string_view sPasso, const std::string& sConsec,
                          const std::string& sConsecRec)
{
    std::string sTesto = Verticale(sSchema).append(kCrLf).append(kPasso).append(sPasso);
    sTesto.append(kCrLf).append(kConsec).append(sConsec);
    if (!sConsecRec.empty()) {
        sTesto.append(kCrLf).append(kConsecR).append(sConsecRec);
    }
    return sTesto;
}

std::string TestoEmulatore(std::int32_t nColonne, std::span<const std::array<std::string, 2>> aLimiti)
{
    constexpr std::string_view kMaschera = "   ";
    std::string sTesto = "[" + std::to_string(nColonne) + "]" + std::string(kCrLf);
    int nPunti = 0;
    for (const auto& aLimite : aLimiti) {
        sTesto += "P" + std::to_string(nPunti++) + ") ";
        sTesto +=
            AllineaTesto(aLimite[0], kMaschera, true) + " - " + AllineaTesto(aLimite[1], kMaschera, true);
        sTesto += kCrLf;
    }
    return sTesto;
}

/// The chosen numbers, four a line; each line but the last ends in the separator.
std::string TestoNumeri(const FlagNumeri& aNumeri)
{
    return ScriviVerticale(UnisciFlag(aNumeri, "-", true), kNumeriPerRiga * kCaratteriPerNumero);
}

std::string Range(std::string_view sMinimo, std::string_view sMassimo)
{
    return std::string(sMinimo).append("-").append(sMassimo);
}

std::string Range(std::int32_t nMinimo, std::int32_t nMassimo)
{
    return Range(std::to_string(nMinimo), std::to_string(nMassimo));
}

/// A typed number as a number: an empty box is "0".
std::string ComeNumero(std::string_view sTesto)
{
    return std::to_string(LeggiIntero<std::int32_t>(sTesto));
}

std::string TestoParametri(const VoceCatalogo& voce, const ValoriDialogo& valori)
{
    switch (voce.parametri) {
    case eParametri::nessuno:
    case eParametri::passo:
        return Verticale(voce.sParametri);
    case eParametri::chiave:
        return std::string(voce.sParametri);
    case eParametri::numeri:
        return TestoNumeri(valori.aNumeri);
    case eParametri::parita:
    case eParametri::direzione:
        return valori.sScelta;
    case eParametri::resto:
        return std::string(kRestoA) + valori.sScelta;
    case eParametri::caselle:
        return TestoCaselle(valori.aNumeri);
    case eParametri::casella:
        return TestoCasella(valori.sScelta);
    case eParametri::cifra:
        return Verticale(std::string(voce.sParametri) + valori.sScelta);
    case eParametri::gruppo:
        return std::string(kCrLf) + TestoGruppo(valori.sGruppo, valori.sPasso);
    case eParametri::sequenza:
        return TestoSequenza(valori.sSchema, valori.sPasso, UnisciFlag(valori.aConsec, "-", false),
                             UnisciFlag(valori.aConsecRec, "-", false));
    case eParametri::emulatore: {
        auto aLimiti = valori.aLimitiEmulatore;
        for (auto& aLimite : aLimiti) {
            std::transform(aLimite.begin(), aLimite.end(), aLimite.begin(), ComeNumero);
        }
        return TestoEmulatore(valori.nColonneEmulate, aLimiti);
    }
    }
    return {};
}

/// "Pari" when the first flagged number is even, else "Dispari". A record that flags no number came from a cell
/// that named neither, and an empty cell compiles to it again.
std::string ParolaParita(const VoceCatalogo& voce, const FlagNumeri& aNumeri)
{
    const std::string sLista = UnisciFlag(aNumeri, "-", true);
    if (sLista.empty()) {
        return {};
    }
    const auto nPrimo = LeggiIntero<std::int32_t>(sLista.substr(0, sLista.find('-')));
    return std::string(nPrimo % 2 == 0 ? voce.sParametri : voce.sInverso);
}

std::string ParolaDirezione(const VoceCatalogo& voce, std::int16_t nParametro)
{
    const VoceCatalogo& parole = VoceParoleSalvate(voce);
    return std::string(nParametro == 1 ? parole.sParametri : parole.sInverso);
}

std::string TestoParametri(const VoceCatalogo& voce, const RecordCondizione& record)
{
    const std::string sParametro = std::to_string(record.Parametro);
    switch (voce.parametri) {
    case eParametri::nessuno:
    case eParametri::passo:
        return Verticale(voce.sParametri);
    case eParametri::chiave:
        return std::string(voce.sParametri);
    case eParametri::numeri:
        return TestoNumeri(record.Numeri);
    case eParametri::parita:
        return ParolaParita(voce, record.Numeri);
    case eParametri::direzione:
        return ParolaDirezione(voce, record.Parametro);
    case eParametri::resto:
        return std::string(kRestoA) + sParametro;
    case eParametri::caselle:
        return TestoCaselle(record.Numeri);
    case eParametri::casella:
        return TestoCasella(sParametro);
    case eParametri::cifra:
        return Verticale(std::string(voce.sParametri) + sParametro);
    case eParametri::gruppo:
        return TestoGruppo(sParametro, std::to_string(record.Passo));
    case eParametri::sequenza:
        return TestoSequenza(ComponiSequenzaPD(record), std::to_string(record.Passo),
                             UnisciFlag(record.PuntiOk2, "-", true), UnisciFlag(record.PuntiRec2, "-", true));
    case eParametri::emulatore:
        return TestoEmulatore(record);
    }
    return {};
}

bool SenzaQuadro(const ValoriDialogo& valori)
{
    return TogliBlank(valori.sQuadro).empty();
}

std::string UnisciTerna(const std::array<std::string, 3>& aTerna, bool bSoloPiene)
{
    Unione unione("-");
    for (const std::string& sValore : aTerna) {
        if (!bSoloPiene || !sValore.empty()) {
            unione.Aggiungi(sValore);
        }
    }
    return unione.Testo();
}

void ScriviPunti(const VoceCatalogo& voce, const ValoriDialogo& valori, Condizione& celle)
{
    switch (voce.punti) {
    case ePunti::nessuno:
        return;
    case ePunti::link:
        celle.sPunti = UnisciFlag(valori.aPunti, "-", false);
        return;
    case ePunti::lista:
        celle.sPunti = UnisciFlag(valori.aPunti, "-", false);
        celle.sRecupero = SenzaQuadro(valori) ? std::string() : UnisciFlag(valori.aRecupero, "-", false);
        break;
    case ePunti::intervallo:
        celle.sPunti = Range(valori.aRange[0], valori.aRange[1]);
        celle.sRecupero = Range(valori.aRangeRec[0], valori.aRangeRec[1]);
        break;
    case ePunti::terna:
        celle.sPunti = UnisciTerna(valori.aTerna, false);
        celle.sRecupero = UnisciTerna(valori.aTernaRec, true);
        break;
    }
    celle.sQuadro = valori.sQuadro;
}

void ScriviPunti(const VoceCatalogo& voce, const RecordCondizione& record, Condizione& celle)
{
    switch (voce.punti) {
    case ePunti::nessuno:
        return;
    case ePunti::link:
        celle.sPunti = UnisciFlag(record.Numeri, "-", voce.bDueCifre);
        return;
    case ePunti::lista:
        celle.sPunti = UnisciFlag(record.PuntiOk, "-", voce.bDueCifre);
        celle.sRecupero = UnisciFlag(record.PuntiRec, "-", voce.bDueCifre);
        break;
    case ePunti::intervallo:
        celle.sPunti = Range(record.OkMin, record.OkMax);
        celle.sRecupero = record.IdRecupero >= 1 ? Range(record.RecMin, record.RecMax) : std::string();
        break;
    case ePunti::terna:
        celle.sPunti = UnisciValori(record.PuntiOk2, "-", voce.bDueCifre);
        celle.sRecupero = UnisciValori(record.PuntiRec2, "-", voce.bDueCifre);
        break;
    }
    celle.sQuadro = record.IdRecupero >= 1 ? std::to_string(record.IdRecupero) : std::string();
}

/// The five cells from either source: a dialog's values or a record.
template <typename Fonte> Condizione Celle(TipoCondizione tipo, const Fonte& fonte)
{
    Condizione celle;
    if (const VoceCatalogo* voce = TrovaTipo(tipo)) {
        celle.sCondizione = voce->sChiave;
        celle.sParametri = TestoParametri(*voce, fonte);
        ScriviPunti(*voce, fonte, celle);
    }
    return celle;
}

} // namespace

std::string ScriviVerticale(std::string_view sTesto, std::int32_t nLunghezza)
{
    const auto nPezzo = static_cast<std::size_t>(nLunghezza);
    Unione unione(kCrLf);
    for (std::size_t i = 0; i < sTesto.size(); i += nPezzo) {
        unione.Aggiungi(sTesto.substr(i, nPezzo));
    }
    return unione.Testo();
}

void Unione::Aggiungi(std::string_view sParte)
{
    if (!m_bPrima) {
        m_sTesto += m_sSep;
    }
    m_bPrima = false;
    m_sTesto += sParte;
}

std::string NumeroDiLista(std::int64_t nNumero, bool bFormato)
{
    return bFormato ? Formatta00(nNumero) : std::to_string(nNumero);
}

std::string AllineaTesto(std::string_view sValore, std::string_view sMaschera, bool bDestra)
{
    const std::string_view sTesto = TogliBlank(sValore);
    if (sTesto.size() >= sMaschera.size()) {
        return std::string(sTesto);
    }
    const std::size_t nMancano = sMaschera.size() - sTesto.size();
    return bDestra ? std::string(sMaschera.substr(0, nMancano)).append(sTesto)
                   : std::string(sTesto).append(sMaschera.substr(sTesto.size()));
}

Condizione CelleDaDialogo(TipoCondizione tipo, const ValoriDialogo& valori)
{
    return Celle(tipo, valori);
}

Condizione CelleDaRecord(const RecordCondizione& record)
{
    return Celle(record.Tipo, record);
}

void CondizioneSuGriglia(std::int32_t nRiga, std::int32_t nIndice, GrigliaCondizioni& griglia,
                         std::span<const RecordCondizione> aCondizioni)
{
    if (nIndice < 0 || static_cast<std::size_t>(nIndice) >= aCondizioni.size()) {
        Solleva(eErrore::indice);
    }
    const RecordCondizione& record = aCondizioni[static_cast<std::size_t>(nIndice)];
    const bool bLink = record.Tipo == TipoCondizione::linkOpen || record.Tipo == TipoCondizione::linkClose;
    griglia.Riga(nRiga) = CelleDaRecord(record);
    griglia.PoniAltezza(nRiga, bLink ? eAltezza::link : eAltezza::normale);
}

std::string TestoEmulatore(const RecordCondizione& record)
{
    std::vector<std::array<std::string, 2>> aLimiti;
    for (int i = FlagPunti::kBasso; i <= FlagPunti::kAlto; ++i) {
        aLimiti.push_back({std::to_string(record.PuntiOk[i]), std::to_string(record.PuntiRec[i])});
    }
    return TestoEmulatore(record.Parametro, aLimiti);
}

std::string ComponiSequenzaPD(const RecordCondizione& record)
{
    std::string sSchema;
    for (int i = 0; i < record.Parametro && i <= FlagNumeri::kAlto && record.Numeri[i] != kFineSequenza;
         ++i) {
        sSchema += record.Numeri[i] == 0 ? 'P' : 'D';
    }
    return sSchema;
}

} // namespace ordavel
