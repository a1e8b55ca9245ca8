// AndataRitorno_prova.cpp - from dialog to cells to record and back, and texts and records that nobody wrote.

#include "comune/Fallimenti.hpp"
#include "comune/GeneratoriSistema.hpp"
#include "condizioni/ModCompila.hpp"
#include "condizioni/ModTestoCelle.hpp"
#include "core/ModTesti.hpp"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace ordavel {
namespace {

using prove::Compila;
using prove::NumeroErrore;
using prove::Tra;

bool Uno(std::string_view sChiave, const std::set<std::string_view>& aChiavi)
{
    return aChiavi.contains(sChiave);
}

bool ADueCifre(std::string_view sChiave)
{
    return Uno(sChiave, {"Consecutivi", "Interruzioni", "ConsecutiviPD", "InterruzioniPD", "Ponte", "Cadenze",
                         "Decine", "Figure", "Cadenze Specifiche", "Figure Specifiche", "Decine Specifiche",
                         "Sequenze", "LinkClose", "Pari-Dispari", "Punti Col.", "Formule"});
}

bool DIntervallo(std::string_view sChiave)
{
    return Uno(sChiave, {"Peso", "Ampiezza", "Baricentro", "Distanza Minima", "Distanza Massima", "Posizioni",
                         "SommaCadenze", "SommaDecine", "SommaFigure", "SommaNumeretti", "SommaComplessiva"});
}

/// The parts of a list, each changed by an operation; parts that become empty are left out.
template <typename Operazione> std::string PerParti(const std::string& sLista, Operazione operazione)
{
    Unione unione("-");
    for (const std::string_view sParte : Dividi(sLista, "-")) {
        if (const std::string sNuova = operazione(std::string(sParte)); !sNuova.empty()) {
            unione.Aggiungi(sNuova);
        }
    }
    return unione.Testo();
}

std::string DueCifre(const std::string& sNumero)
{
    return sNumero.size() == 1 ? "0" + sNumero : sNumero;
}

/// A number as a number: no leading zero, and nothing typed is "0".
std::string Pulito(const std::string& sNumero)
{
    const std::size_t nPrima = sNumero.find_first_not_of('0');
    return nPrima == std::string::npos ? "0" : sNumero.substr(nPrima);
}

std::string SenzaZero(const std::string& sNumero)
{
    return sNumero == "0" ? std::string() : DueCifre(sNumero);
}

/// Parameters of a sequence with two digits in the chains.
std::string CateneADueCifre(const std::string& sParametri)
{
    Unione unione(kCrLf);
    for (const std::string_view sRiga : Dividi(sParametri, kCrLf)) {
        const std::size_t nLista = sRiga.starts_with("Consec") ? sRiga.find(": ") + 2 : sRiga.size();
        unione.Aggiungi(std::string(sRiga.substr(0, nLista)) +
                        PerParti(std::string(sRiga.substr(nLista)), DueCifre));
    }
    return unione.Testo();
}

std::string ParametriSalvati(const Condizione& celle, std::int16_t nClasse)
{
    std::string sParametri = celle.sParametri;
    if (celle.sCondizione == "Paralleli") {
        return sParametri == "Diretti" ? "Dirette" : "Inverse";
    }
    if (celle.sCondizione == "GruppiDiConsecutivi") {
        return sParametri.substr(2);
    }
    if (celle.sCondizione == "Sequenze") {
        return CateneADueCifre(sParametri);
    }
    for (int i = nClasse + 1; celle.sCondizione == "Emulatore" && i <= 10; ++i) {
        sParametri += "P" + std::to_string(i) + ")   0 -   0\r\n";
    }
    return sParametri;
}

/// What the format lets become of a dialog's cells when the row has been stored as a record.
Condizione CelleSalvate(Condizione celle, std::int16_t nClasse)
{
    celle.sParametri = ParametriSalvati(celle, nClasse);
    celle.sQuadro = celle.sQuadro == " " ? "" : celle.sQuadro;
    if (DIntervallo(celle.sCondizione)) {
        const auto pulite = [](const std::string& sRange) {
            const std::size_t nTrattino = sRange.find('-');
            return Pulito(sRange.substr(0, nTrattino)) + "-" + Pulito(sRange.substr(nTrattino + 1));
        };
        celle.sPunti = pulite(celle.sPunti);
        celle.sRecupero = celle.sQuadro.empty() ? "" : pulite(celle.sRecupero);
    } else if (ADueCifre(celle.sCondizione)) {
        auto* operazione = celle.sCondizione == "Formule" ? SenzaZero : DueCifre;
        celle.sPunti = PerParti(celle.sPunti, operazione);
        celle.sRecupero = PerParti(celle.sRecupero, operazione);
    }
    return celle;
}

/// The values of a triple without its zeros.
FlagPunti TernaSalvata(const FlagPunti& aTerna)
{
    FlagPunti aSalvata;
    std::remove_copy(aTerna.aElementi.begin() + 1, aTerna.aElementi.end(), aSalvata.aElementi.begin() + 1, 0);
    return aSalvata;
}

/// What a record has lost when it comes back from its own cells.
RecordCondizione RecordSalvato(RecordCondizione record)
{
    if (record.Tipo == TipoCondizione::formule) {
        record.PuntiOk2 = TernaSalvata(record.PuntiOk2);
        record.PuntiRec2 = TernaSalvata(record.PuntiRec2);
    }
    if (record.IdRecupero == 0) {
        record.RecMin = record.RecMax = 0;
    }
    return record;
}

void ControllaRitorno(const Condizione& scritta, std::int16_t nClasse)
{
    const RecordCondizione record = Compila(scritta);
    const Condizione riscritta = CelleDaRecord(record);
    const RecordCondizione tornato = Compila(riscritta);
    RC_ASSERT(riscritta == CelleSalvate(scritta, nClasse));
    RC_ASSERT(tornato == RecordSalvato(record));
    RC_ASSERT(CelleDaRecord(tornato) == riscritta);
}

RC_GTEST_PROP(ModTestoCelle, DalDialogoAlRecordERitornoSiPerdeSoloQuantoIlFormatoDice, ())
{
    const auto nClasse = static_cast<std::int16_t>(Tra(2, 10));
    for (const VoceCatalogo& voce : Catalogo()) {
        ControllaRitorno(CelleDaDialogo(voce.Tipo, prove::ValoriCasuali(voce.Tipo, nClasse)), nClasse);
    }
}

/// A flag for every part of a list, read without the compiler.
FlagPunti FlagAttesi(const FlagNumeri& aScelti)
{
    FlagPunti aFlag;
    std::copy_n(aScelti.aElementi.begin(), FlagPunti::kElementi, aFlag.aElementi.begin());
    return aFlag;
}

RC_GTEST_PROP(ModCompila, LeScelteDelDialogoArrivanoNelRecord, ())
{
    const auto nClasse = static_cast<std::int16_t>(Tra(2, 10));
    const TipoCondizione tipo = *rc::gen::element(TipoCondizione::puntiColonna, TipoCondizione::sequenze);
    const ValoriDialogo valori = prove::ValoriCasuali(tipo, nClasse);
    const RecordCondizione record = Compila(CelleDaDialogo(tipo, valori));
    const bool bSequenze = tipo == TipoCondizione::sequenze;
    const bool bGruppo = valori.sQuadro != " ";
    RC_ASSERT(record.PuntiOk == FlagAttesi(valori.aPunti));
    RC_ASSERT(record.PuntiRec == (bGruppo ? FlagAttesi(valori.aRecupero) : FlagPunti{}));
    RC_ASSERT(record.IdRecupero == (bGruppo ? std::stoi(valori.sQuadro) : 0));
    RC_ASSERT(bSequenze || record.Numeri == valori.aNumeri);
    RC_ASSERT(!bSequenze || ComponiSequenzaPD(record) == valori.sSchema);
    RC_ASSERT(record.PuntiOk2 == (bSequenze ? FlagAttesi(valori.aConsec) : FlagPunti{}));
    RC_ASSERT(record.PuntiRec2 == (bSequenze ? FlagAttesi(valori.aConsecRec) : FlagPunti{}));
}

RC_GTEST_PROP(ModCompila, UnSistemaCasualeSiCompilaEHaLinkCoerenti, ())
{
    const auto nClasse = static_cast<std::int16_t>(Tra(2, 10));
    const auto aRighe = *prove::GenCondizioni(nClasse, 12);
    const auto aQuadro = *prove::GenQuadro();
    std::vector<RecordCondizione> aRecord;
    QuadroRecuperi aVoci;
    LeggiCondizioniDaGriglia(aRecord, prove::GrigliaDi(aRighe), aQuadro, aVoci);
    RC_CLASSIFY(std::any_of(aRighe.begin(), aRighe.end(),
                            [](const Condizione& celle) { return celle.sCondizione == "LinkClose"; }));
    RC_ASSERT(aRecord.size() == std::max<std::size_t>(aRighe.size(), 1));
    RC_ASSERT(LinkCoerenti(aRecord));
    for (std::size_t i = 0; i < aRighe.size(); ++i) {
        RC_ASSERT(TrovaTipo(aRecord[i].Tipo)->sChiave == aRighe[i].sCondizione);
    }
    for (std::size_t i = 0; i < aQuadro.size(); ++i) {
        RC_ASSERT((aVoci(static_cast<int>(i) + 1).Attiva != 0) == aQuadro[i].ends_with(",-1"));
    }
}

/// A text made of what the reading looks for, and of what it does not expect.
rc::Gen<std::string> GenTestoOstile()
{
    const auto pezzo = rc::gen::element<std::string>(
        "-", "\r\n", "\r", "\n", " ", ")", ":", ",", "[", "]", ".", "e", "+", "P", "D", "0", "1", "7", "10",
        "11", "90", "91", "2.5", "40000", "99999999999", "1e400", "1e-400",
        "Passo : ", "Passo :", "Consec : ", "ConsecR : ", "GruppoDa : ", "Resto a : ", "Caselle :\r\n",
        "Pari", "Dirette", std::string(1, '\0'), "\xC3\xA8", "\xFF");
    return rc::gen::map(rc::gen::container<std::vector<std::string>>(pezzo), [](const auto& aPezzi) {
        std::string sTesto;
        for (const std::string& sPezzo : aPezzi) {
            sTesto += sPezzo;
        }
        return sTesto;
    });
}

std::string ChiaveCasuale()
{
    return std::string(Catalogo()[static_cast<std::size_t>(Tra(0, kTipiCondizione - 1))].sChiave);
}

/// A row of any kind with cells that nobody would write.
Condizione CondizioneOstile()
{
    const auto testo = rc::gen::resize(6, GenTestoOstile());
    return {ChiaveCasuale(), *testo, *testo, *testo, *testo};
}

RC_GTEST_PROP(ModCompila, CelleOstiliSiCompilanoOFallisconoCon6OCon9, ())
{
    const Condizione celle = CondizioneOstile();
    std::vector<RecordCondizione> aRecord;
    QuadroRecuperi aVoci;
    const auto errore = NumeroErrore([&] {
        LeggiCondizioniDaGriglia(aRecord, prove::GrigliaDi({&celle, 1}), {}, aVoci);
    });
    RC_TAG(errore.value_or(0));
    RC_ASSERT(!errore || errore == 6 || errore == 9);
    RC_ASSERT(aRecord.size() == 1);
    RC_ASSERT(TrovaTipo(aRecord.front().Tipo)->sChiave == celle.sCondizione);
}

RC_GTEST_PROP(ModCompila, UnQuadroOstileSiCompilaOFallisceCon6OCon9, ())
{
    const auto testo = rc::gen::resize(8, GenTestoOstile());
    const auto intera = rc::gen::map(testo, [](const std::string& sTesto) { return sTesto + ",1,"; });
    const auto riga = rc::gen::weightedOneOf<std::string>({{1, testo}, {4, intera}});
    const auto aQuadro = *rc::gen::resize(5, rc::gen::container<std::vector<std::string>>(riga));
    std::vector<RecordCondizione> aRecord;
    QuadroRecuperi aVoci;
    const auto errore = NumeroErrore([&] { LeggiCondizioniDaGriglia(aRecord, {}, aQuadro, aVoci); });
    RC_TAG(errore.value_or(0));
    RC_ASSERT(!errore || errore == 6 || errore == 9);
    RC_ASSERT(aVoci(0) == VoceRecupero{});
}

RC_GTEST_PROP(ModCompila, CelleOstiliRiscritteTengonoIPuntiAccettati, ())
{
    const Condizione celle = CondizioneOstile();
    RecordCondizione record;
    RC_PRE(!NumeroErrore([&] { record = Compila(celle); }));
    const Condizione riscritta = CelleDaRecord(record);
    RC_ASSERT(riscritta.sCondizione == celle.sCondizione);
    RC_ASSERT(Compila(riscritta).PuntiOk == record.PuntiOk);
}

/// Numbers that a file may hold at any place.
rc::Gen<std::int16_t> GenValoreOstile()
{
    return rc::gen::element<std::int16_t>(0, 0, 0, 1, -1, 7, 90, 256, 32767, -32768);
}

template <int Basso, int Alto> void PoniOstile(Tabella<std::int16_t, Basso, Alto>& aValori)
{
    const auto aCasuali =
        *rc::gen::container<std::vector<std::int16_t>>(aValori.kElementi, GenValoreOstile());
    std::copy(aCasuali.begin(), aCasuali.end(), aValori.aElementi.begin());
}

RC_GTEST_PROP(ModTestoCelle, UnRecordQualunqueDaCelleDelSuoTipoONessuna, ())
{
    RecordCondizione record;
    record.Tipo = static_cast<TipoCondizione>(Tra(-1, 38));
    PoniOstile(record.Numeri);
    for (FlagPunti* aPunti : {&record.PuntiOk, &record.PuntiRec, &record.PuntiOk2, &record.PuntiRec2}) {
        PoniOstile(*aPunti);
    }
    record.Parametro = *GenValoreOstile();
    record.Passo = *GenValoreOstile();
    record.IdRecupero = *GenValoreOstile();
    record.OkMin = *rc::gen::arbitrary<std::int32_t>();
    record.RecMax = *rc::gen::arbitrary<std::int32_t>();
    const VoceCatalogo* voce = TrovaTipo(record.Tipo);
    const Condizione celle = CelleDaRecord(record);
    RC_ASSERT(celle.sCondizione == (voce == nullptr ? "" : voce->sChiave));
    RC_ASSERT(voce != nullptr || celle == Condizione{});
}

} // namespace
} // namespace ordavel
