// ModCompila.cpp - from cells to records.

#include "condizioni/ModCompila.hpp"

#include "condizioni/ModCatalogo.hpp"
#include "condizioni/ModParole.hpp"
#include "core/ModNumeri.hpp"
#include "core/ModTesti.hpp"

namespace ordavel {

namespace {

constexpr std::string_view kSep = "-";

std::string SenzaALinea(std::string_view sTesto)
{
    return Sostituisci(sTesto, kCrLf, "");
}

/// The text from the first sCercato on; empty when it is not there.
std::string_view DaQui(std::string_view sTesto, std::string_view sCercato)
{
    const std::size_t nPosto = sTesto.find(sCercato);
    return nPosto == std::string_view::npos ? std::string_view() : sTesto.substr(nPosto);
}

template <typename Flag> void SegnaLista(std::string_view sTesto, Flag& aFlag, std::string_view sSep)
{
    const std::string sRiga = SenzaALinea(sTesto);
    for (const std::string_view sParte : Dividi(sRiga, sSep)) {
        aFlag(LeggiIntero<std::int32_t>(sParte)) = kVero;
    }
}

/// A labelled number: the label is removed where it stands whole, and the rest is read.
std::int16_t NumeroConEtichetta(std::string_view sTesto, std::string_view sEtichetta)
{
    return LeggiIntero<std::int16_t>(Sostituisci(sTesto, sEtichetta, ""));
}

void CompilaParita(const VoceCatalogo& voce, std::string_view sTesto, FlagNumeri& aNumeri)
{
    const std::string_view sParola = TogliBlank(sTesto);
    if (sParola != voce.sParametri && sParola != voce.sInverso) {
        return;
    }
    for (int n = sParola == voce.sParametri ? 2 : 1; n <= kNumeroMassimo; n += 2) {
        aNumeri[n] = kVero;
    }
}

std::int16_t CompilaDirezione(const VoceCatalogo& voce, std::string_view sTesto)
{
    const std::string_view sParola = TogliBlank(sTesto);
    const bool bDiretto = sParola == voce.sParametri || sParola == VoceParoleSalvate(voce).sParametri;
    return bDiretto ? 1 : 2;
}

std::int16_t CompilaCifra(std::string_view sTesto)
{
    return sTesto.empty() ? std::int16_t{0} : LeggiIntero<std::int16_t>(sTesto.substr(sTesto.size() - 1));
}

void CompilaGruppo(std::string_view sTesto, RecordCondizione& record)
{
    const auto aRighe = Dividi(DaQui(sTesto, kCercaGruppoDa), kCrLf);
    if (!aRighe.empty()) {
        record.Parametro = NumeroConEtichetta(aRighe[0], kGruppoDa);
    }
    if (aRighe.size() > 1) {
        record.Passo = NumeroConEtichetta(aRighe[1], kPasso);
    }
}

void CompilaCatene(std::string_view sTesto, RecordCondizione& record)
{
    const auto aRighe = Dividi(sTesto, kCrLf);
    if (!aRighe.empty()) {
        LeggiListaPunti(TogliBlank(Sostituisci(aRighe[0], kCercaConsec, "")), record.PuntiOk2, kSep);
    }
    if (aRighe.size() > 1) {
        LeggiListaPunti(TogliBlank(Sostituisci(aRighe[1], kCercaConsecR, "")), record.PuntiRec2, kSep);
    }
}

void CompilaSequenza(std::string_view sTesto, RecordCondizione& record)
{
    const std::string_view sPasso = DaQui(sTesto, kCercaPasso);
    const std::string_view sSchema = sTesto.substr(0, sTesto.size() - sPasso.size());
    LeggiSequenzaPD(sSchema, record.Numeri, record.Parametro, kCrLf);
    record.Passo = NumeroConEtichetta(sPasso.substr(0, sPasso.find(kCrLf)), kPasso);
    CompilaCatene(DaQui(sTesto, kCercaConsec), record);
}

void CompilaParametri(const VoceCatalogo& voce, std::string_view sTesto, RecordCondizione& record)
{
    switch (voce.parametri) {
    case eParametri::nessuno:
    case eParametri::chiave:
        return;
    case eParametri::numeri:
        return LeggiListaPunti(sTesto, record.Numeri, kSep);
    case eParametri::parita:
        return CompilaParita(voce, sTesto, record.Numeri);
    case eParametri::direzione:
        record.Parametro = CompilaDirezione(voce, sTesto);
        return;
    case eParametri::resto:
        record.Parametro = LeggiIntero<std::int16_t>(Dietro(sTesto, ":"));
        return;
    case eParametri::caselle:
        return LeggiListaPunti(Dietro(sTesto, kCrLf), record.Numeri, kSep);
    case eParametri::casella:
        record.Parametro = LeggiIntero<std::int16_t>(Dietro(sTesto, kCrLf));
        return;
    case eParametri::passo:
        record.Passo = NumeroConEtichetta(DaQui(TogliBlank(sTesto), kCercaPasso), kPasso);
        return;
    case eParametri::cifra:
        record.Parametro = CompilaCifra(sTesto);
        return;
    case eParametri::gruppo:
        return CompilaGruppo(sTesto, record);
    case eParametri::sequenza:
        return CompilaSequenza(sTesto, record);
    case eParametri::emulatore:
        return LeggiParametriEmulatore(sTesto, record.PuntiOk, record.PuntiRec, record.Parametro);
    }
}

void CompilaPunti(const VoceCatalogo& voce, const Condizione& celle, RecordCondizione& record)
{
    switch (voce.punti) {
    case ePunti::nessuno:
        return;
    case ePunti::link:
        return LeggiListaPunti(celle.sPunti, record.Numeri, kSep);
    case ePunti::lista:
        LeggiListaPunti(celle.sPunti, record.PuntiOk, kSep);
        LeggiListaPunti(celle.sRecupero, record.PuntiRec, kSep);
        break;
    case ePunti::intervallo:
        LeggiMinMax(celle.sPunti, record.OkMin, record.OkMax, kSep);
        LeggiMinMax(celle.sRecupero, record.RecMin, record.RecMax, kSep);
        break;
    case ePunti::terna:
        LeggiListaValori(celle.sPunti, record.PuntiOk2, kSep);
        LeggiListaValori(celle.sRecupero, record.PuntiRec2, kSep);
        break;
    }
    record.IdRecupero = LeggiIntero<std::int16_t>(celle.sQuadro);
}

void CompilaRiga(const Condizione& celle, RecordCondizione& record)
{
    const VoceCatalogo* voce = TrovaChiave(TogliBlank(celle.sCondizione));
    if (voce == nullptr) {
        return;
    }
    record.Tipo = voce->Tipo;
    CompilaParametri(*voce, celle.sParametri, record);
    CompilaPunti(*voce, celle, record);
}

/// Compiles a row; a failure tells which one it was.
void CompilaRigaNumero(std::int32_t nRiga, const Condizione& celle, RecordCondizione& record)
{
    try {
        CompilaRiga(celle, record);
    } catch (const Errore& errore) {
        throw Errore(errore.Numero(), "condizione " + std::to_string(nRiga) + " " + celle.sCondizione);
    }
}

VoceRecupero CompilaVoce(std::string_view sRiga)
{
    const auto aParti = Dividi(sRiga, ",");
    if (aParti.size() < 3) {
        Solleva(eErrore::indice);
    }
    return {.Attiva = LeggiIntero<std::int16_t>(aParti[2]),
            .MinPunti = LeggiIntero<std::int16_t>(aParti[0]),
            .MaxPunti = LeggiIntero<std::int16_t>(aParti[1])};
}

} // namespace

void LeggiCondizioniDaGriglia(std::vector<RecordCondizione>& aCondizioni, const GrigliaCondizioni& griglia,
                              std::span<const std::string> aRigheQuadro, QuadroRecuperi& aQuadroRec)
{
    aCondizioni.assign(1, RecordCondizione{});
    aQuadroRec = {};
    for (std::int32_t nRiga = 1; nRiga <= kCondizioniMassime; ++nRiga) {
        const Condizione& celle = griglia.Riga(nRiga);
        if (TogliBlank(celle.sCondizione).empty()) {
            break;
        }
        aCondizioni.resize(static_cast<std::size_t>(nRiga));
        CompilaRigaNumero(nRiga, celle, aCondizioni.back());
    }
    std::int32_t nGruppo = 0;
    for (const std::string& sRiga : aRigheQuadro) {
        aQuadroRec(++nGruppo) = CompilaVoce(sRiga);
    }
}

void EstendiRecuperiSequenze(std::span<RecordCondizione> aCondizioni) noexcept
{
    for (RecordCondizione& record : aCondizioni) {
        if (record.Tipo != TipoCondizione::sequenze) {
            continue;
        }
        for (int i = FlagPunti::kBasso; i <= FlagPunti::kAlto; ++i) {
            record.PuntiRec[i] = record.PuntiOk[i] != 0 ? kVero : record.PuntiRec[i];
            record.PuntiRec2[i] = record.PuntiOk2[i] != 0 ? kVero : record.PuntiRec2[i];
        }
    }
}

void LeggiListaPunti(std::string_view sTesto, FlagNumeri& aFlag, std::string_view sSep)
{
    SegnaLista(sTesto, aFlag, sSep);
}

void LeggiListaPunti(std::string_view sTesto, FlagPunti& aFlag, std::string_view sSep)
{
    SegnaLista(sTesto, aFlag, sSep);
}

void LeggiListaValori(std::string_view sTesto, FlagPunti& aValori, std::string_view sSep)
{
    const std::string sRiga = SenzaALinea(sTesto);
    std::int32_t nIndice = 0;
    for (const std::string_view sParte : Dividi(sRiga, sSep)) {
        aValori(++nIndice) = LeggiIntero<std::int16_t>(sParte);
    }
}

void LeggiMinMax(std::string_view sTesto, std::int32_t& nMin, std::int32_t& nMax, std::string_view sSep)
{
    const std::string sRiga = SenzaALinea(sTesto);
    const auto aParti = Dividi(sRiga, sSep);
    if (aParti.size() == 2) {
        nMin = LeggiIntero<std::int32_t>(aParti[0]);
        nMax = LeggiIntero<std::int32_t>(aParti[1]);
    }
}

void LeggiSequenzaPD(std::string_view sTesto, FlagNumeri& aSchema, std::int16_t& nLunghezza,
                     std::string_view sSep)
{
    std::int32_t nPosto = 0;
    nLunghezza = 0;
    for (const std::string_view sParte : Dividi(sTesto, sSep)) {
        const std::string_view sLettera = TogliBlank(sParte);
        if (sLettera == "P" || sLettera == "D") {
            aSchema(nPosto) = sLettera == "P" ? 0 : 1;
            ++nLunghezza;
        }
        ++nPosto;
    }
    aSchema(nLunghezza) = kFineSequenza;
}

void LeggiParametriEmulatore(std::string_view sTesto, FlagPunti& aMinimi, FlagPunti& aMassimi,
                             std::int16_t& nColonne)
{
    std::int32_t nPunti = -1;
    for (const std::string_view sRiga : Dividi(sTesto, kCrLf)) {
        if (nPunti < 0) {
            nColonne = LeggiIntero<std::int16_t>(sRiga.substr(sRiga.empty() ? 0 : 1));
        } else if (sRiga.find(')') != std::string_view::npos) {
            const auto aLimiti = Dividi(TogliBlank(Dietro(sRiga, ")")), kSep);
            if (aLimiti.size() < 2) {
                Solleva(eErrore::indice);
            }
            aMinimi(nPunti) = LeggiIntero<std::int16_t>(aLimiti[0]);
            aMassimi(nPunti) = LeggiIntero<std::int16_t>(aLimiti[1]);
        }
        ++nPunti;
    }
}

bool LinkCoerenti(std::span<const RecordCondizione> aCondizioni)
{
    // Nearest open link first is what a bracket counter does: a close without an open one can never be matched
    // by an open that comes later.
    std::int32_t nAperti = 0;
    for (const RecordCondizione& record : aCondizioni) {
        nAperti += record.Tipo == TipoCondizione::linkOpen ? 1 : 0;
        nAperti -= record.Tipo == TipoCondizione::linkClose ? 1 : 0;
        if (nAperti < 0) {
            return false;
        }
    }
    return nAperti == 0;
}

bool IsCondizionePresente(const GrigliaCondizioni& griglia, std::string_view sNome) noexcept
{
    for (std::int32_t nRiga = 1; nRiga <= kCondizioniMassime; ++nRiga) {
        if (UgualiSenzaCaso(griglia.Riga(nRiga).sCondizione, sNome)) {
            return true;
        }
    }
    return false;
}

} // namespace ordavel
