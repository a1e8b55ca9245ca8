// GeneratoriSistema.hpp - random conditions, lists of conditions with links, and recovery boards.
//
// Everything drawn compiles. Values are drawn narrow and near the metrics' usual results, so that conditions
// pass and fail in good measure; parameters stay where no metric fails (divisors 2 to 9, positions inside the
// class, steps from 1). The functions without «Gen» draw at once and serve inside of properties and generators.

#pragma once

#include "ordavel/GrigliaCondizioni.hpp"
#include "ordavel/records.hpp"

#include "condizioni/ModCatalogo.hpp"
#include "condizioni/ModCompila.hpp"
#include "condizioni/ModTestoCelle.hpp"
#include "core/ModTesti.hpp"

#include <rapidcheck.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <ostream>
#include <span>
#include <string>
#include <vector>

namespace ordavel {

/// Shows a condition in the failure text of a test; "|" is a line break.
inline std::ostream& operator<<(std::ostream& uscita, const Condizione& celle)
{
    return uscita << "{\"" << celle.sCondizione << "\", \"" << Sostituisci(celle.sParametri, kCrLf, "|")
                  << "\", \"" << celle.sPunti << "\", \"" << celle.sRecupero << "\", \"" << celle.sQuadro
                  << "\"}";
}

/// Shows the compiled fields of a record.
inline std::ostream& operator<<(std::ostream& uscita, const RecordCondizione& r)
{
    return uscita << "{Tipo " << static_cast<int>(r.Tipo) << ", Numeri " << UnisciFlag(r.Numeri, " ", false)
                  << ", PuntiOk " << UnisciFlag(r.PuntiOk, " ", false) << ", PuntiRec "
                  << UnisciFlag(r.PuntiRec, " ", false) << ", PuntiOk2 " << UnisciFlag(r.PuntiOk2, " ", false)
                  << ", PuntiRec2 " << UnisciFlag(r.PuntiRec2, " ", false) << ", Parametro " << r.Parametro
                  << ", Ok " << r.OkMin << ".." << r.OkMax << ", Rec " << r.RecMin << ".." << r.RecMax
                  << ", IdRecupero " << r.IdRecupero << ", Passo " << r.Passo << "}";
}

} // namespace ordavel

namespace ordavel::prove {

/// A number from nMinimo to nMassimo, all alike at every size of the test; it shrinks to the lowest.
inline int Tra(int nMinimo, int nMassimo)
{
    return *rc::gen::resize(rc::kNominalSize, rc::gen::inRange(nMinimo, nMassimo + 1));
}

inline bool UnaVoltaSu(int nVolte)
{
    return Tra(1, nVolte) == nVolte;
}

/// Flags from nBasso to nAlto, each set nPercento times of a hundred.
inline FlagNumeri FlagCasuali(int nBasso, int nAlto, int nPercento)
{
    FlagNumeri aFlag;
    for (int i = nBasso; i <= nAlto; ++i) {
        aFlag(i) = ComeBooleano(Tra(1, 100) > 100 - nPercento);
    }
    return aFlag;
}

/// Values of a list: near what a column of that class can give, and never outside 0..10.
inline FlagNumeri ListaCasuale(std::int16_t nClasse)
{
    return FlagCasuali(0, std::min<int>(nClasse, kValoreListaMassimo), 50);
}

/// A number as a user types it: seldom with a leading zero, seldom not at all.
inline std::string Digitato(int nNumero)
{
    switch (Tra(0, 11)) {
    case 10:
        return "0" + std::to_string(nNumero);
    case 11:
        return {};
    default:
        return std::to_string(nNumero);
    }
}

/// What a range kind usually measures, for one position where it adds up positions.
inline int MisuraConsueta(TipoCondizione tipo)
{
    switch (tipo) {
    case TipoCondizione::distanzaMinima:
        return 8;
    case TipoCondizione::distanzaMassima:
        return 30;
    case TipoCondizione::ampiezza:
        return 70;
    case TipoCondizione::sommaCadenze:
    case TipoCondizione::sommaDecine:
    case TipoCondizione::sommaFigure:
        return 5;
    case TipoCondizione::sommaNumeretti:
        return 9;
    case TipoCondizione::sommaComplessiva:
        return 18;
    default:
        return 40;
    }
}

inline std::array<std::string, 2> RangeCasuale(int nMisura)
{
    const int nMinimo = Tra(0, nMisura * 2 / 3);
    return {Digitato(nMinimo), Digitato(nMinimo + Tra(0, nMisura))};
}

/// Three counts that add up to the class, as often as not in fewer than three thirds.
inline std::array<std::string, 3> TernaCasuale(std::int16_t nClasse)
{
    std::array<int, 3> aConteggi{};
    const int nTerzi = Tra(1, 3);
    for (int i = 0; i < nClasse; ++i) {
        ++aConteggi[static_cast<std::size_t>(Tra(0, nTerzi - 1))];
    }
    return {std::to_string(aConteggi[0]), std::to_string(aConteggi[1]), std::to_string(aConteggi[2])};
}

inline std::string SchemaCasuale(std::int16_t nClasse)
{
    std::string sSchema(static_cast<std::size_t>(Tra(1, nClasse)), 'P');
    std::generate(sSchema.begin(), sSchema.end(), [] { return UnaVoltaSu(2) ? 'D' : 'P'; });
    return sSchema;
}

inline void PoniSceltaCasuale(const VoceCatalogo& voce, std::int16_t nClasse, ValoriDialogo& valori)
{
    switch (voce.parametri) {
    case eParametri::parita:
    case eParametri::direzione:
        valori.sScelta = UnaVoltaSu(2) ? voce.sInverso : voce.sParametri;
        break;
    case eParametri::resto:
        valori.sScelta = std::to_string(Tra(2, 9));
        break;
    case eParametri::casella:
        valori.sScelta = std::to_string(Tra(1, nClasse));
        break;
    case eParametri::cifra:
        valori.sScelta = std::to_string(Tra(0, 9));
        break;
    default:
        break;
    }
}

inline void PoniEmulatoreCasuale(std::int16_t nClasse, ValoriDialogo& valori)
{
    valori.nColonneEmulate = Tra(1, 30);
    for (int i = 0; i <= nClasse; ++i) {
        valori.aLimitiEmulatore.push_back({Digitato(UnaVoltaSu(3) ? Tra(0, 2) : 0), Digitato(Tra(1, 30))});
    }
}

/// Numbers of the column, or positions in it, and the ranges that suit them.
inline void PoniNumeriCasuali(const VoceCatalogo& voce, std::int16_t nClasse, ValoriDialogo& valori)
{
    const bool bCaselle = voce.parametri == eParametri::caselle;
    valori.aNumeri =
        bCaselle ? FlagCasuali(1, nClasse, 60) : FlagCasuali(1, kNumeroMassimo, *rc::gen::element(5, 30, 50));
    const auto nCaselle =
        static_cast<int>(std::count(valori.aNumeri.aElementi.begin(), valori.aNumeri.aElementi.end(), kVero));
    const int nMisura = MisuraConsueta(voce.Tipo) * (bCaselle ? nCaselle : 1);
    valori.aRange = RangeCasuale(nMisura);
    valori.aRangeRec = RangeCasuale(nMisura);
}

inline void PoniSequenzaCasuale(std::int16_t nClasse, ValoriDialogo& valori)
{
    valori.sSchema = SchemaCasuale(nClasse);
    valori.aConsec = ListaCasuale(nClasse);
    valori.aConsecRec = UnaVoltaSu(2) ? FlagNumeri{} : ListaCasuale(nClasse);
}

inline void PoniTerneCasuali(std::int16_t nClasse, ValoriDialogo& valori)
{
    valori.aTerna = TernaCasuale(nClasse);
    if (!UnaVoltaSu(3)) {
        valori.aTernaRec = TernaCasuale(nClasse);
    }
    if (UnaVoltaSu(6)) {
        valori.aTernaRec[1].clear();
    }
}

/// The entry of the recovery combo: few groups, so that conditions share them.
inline std::string GruppoCasuale()
{
    if (UnaVoltaSu(2)) {
        return " ";
    }
    return std::to_string(Tra(1, UnaVoltaSu(8) ? kGruppiRecupero : 3));
}

/// What a dialog of that kind may have collected.
inline ValoriDialogo ValoriCasuali(TipoCondizione tipo, std::int16_t nClasse)
{
    const VoceCatalogo& voce = *TrovaTipo(tipo);
    ValoriDialogo valori;
    PoniSceltaCasuale(voce, nClasse, valori);
    PoniNumeriCasuali(voce, nClasse, valori);
    PoniSequenzaCasuale(nClasse, valori);
    PoniTerneCasuali(nClasse, valori);
    PoniEmulatoreCasuale(nClasse, valori);
    valori.aPunti = ListaCasuale(nClasse);
    valori.aRecupero = ListaCasuale(nClasse);
    valori.sQuadro = GruppoCasuale();
    valori.sPasso = std::to_string(Tra(1, 3));
    valori.sGruppo = std::to_string(Tra(2, 4));
    return valori;
}

/// A kind that judges columns: any but the links.
inline TipoCondizione TipoCasuale()
{
    return static_cast<TipoCondizione>(Tra(3, kTipiCondizione));
}

inline Condizione CondizioneCasuale(std::int16_t nClasse)
{
    const TipoCondizione tipo = TipoCasuale();
    return CelleDaDialogo(tipo, ValoriCasuali(tipo, nClasse));
}

/// The end of a link around nDentro rows.
inline Condizione LinkCloseCasuale(int nDentro)
{
    ValoriDialogo valori;
    valori.aPunti = FlagCasuali(0, std::min<int>(nDentro, kNumeroMassimo), 60);
    return CelleDaDialogo(TipoCondizione::linkClose, valori);
}

/// A list of at most nMassime conditions whose links are coherent, nested ones included.
inline std::vector<Condizione> CondizioniCasuali(std::int16_t nClasse, int nMassime)
{
    std::vector<Condizione> aRighe;
    std::vector<int> aAperti; // where the open links stand
    const int nRighe = Tra(0, nMassime);
    for (int i = 0; i < nRighe; ++i) {
        const int nRestano = nRighe - i;
        const int nAperti = static_cast<int>(aAperti.size());
        if (nAperti > 0 && (nRestano == nAperti || UnaVoltaSu(4))) {
            aRighe.push_back(LinkCloseCasuale(i - aAperti.back() - 1));
            aAperti.pop_back();
        } else if (nRestano >= nAperti + 2 && UnaVoltaSu(6)) {
            aRighe.push_back(CelleDaDialogo(TipoCondizione::linkOpen, {}));
            aAperti.push_back(i);
        } else {
            aRighe.push_back(CondizioneCasuale(nClasse));
        }
    }
    return aRighe;
}

/// The lines of a recovery board: none, or all twenty, the first groups in use more often than the others.
inline std::vector<std::string> QuadroCasuale()
{
    std::vector<std::string> aRighe(UnaVoltaSu(6) ? 0 : kGruppiRecupero, "-1,-1,-0");
    for (std::size_t i = 0; i < aRighe.size(); ++i) {
        if (UnaVoltaSu(i < 3 ? 2 : 5)) {
            const int nMinimo = Tra(0, 2);
            aRighe[i] = std::to_string(nMinimo) + "," + std::to_string(nMinimo + Tra(0, 3)) + ",-1";
        }
    }
    return aRighe;
}

inline rc::Gen<Condizione> GenCondizione(std::int16_t nClasse)
{
    return rc::gen::exec([nClasse] { return CondizioneCasuale(nClasse); });
}

inline rc::Gen<std::vector<Condizione>> GenCondizioni(std::int16_t nClasse, int nMassime)
{
    return rc::gen::exec([nClasse, nMassime] { return CondizioniCasuali(nClasse, nMassime); });
}

inline rc::Gen<std::vector<std::string>> GenQuadro()
{
    return rc::gen::exec([] { return QuadroCasuale(); });
}

/// A grid with these conditions from row 1 on.
inline GrigliaCondizioni GrigliaDi(std::span<const Condizione> aRighe)
{
    GrigliaCondizioni griglia;
    std::int32_t nRiga = 0;
    for (const Condizione& celle : aRighe) {
        griglia.Riga(++nRiga) = celle;
    }
    return griglia;
}

/// The records of some conditions, without a board.
inline std::vector<RecordCondizione> Compila(std::span<const Condizione> aRighe)
{
    std::vector<RecordCondizione> aRecord;
    QuadroRecuperi aQuadro;
    LeggiCondizioniDaGriglia(aRecord, GrigliaDi(aRighe), {}, aQuadro);
    return aRecord;
}

/// The record of one condition.
inline RecordCondizione Compila(const Condizione& celle)
{
    return Compila(std::span(&celle, 1)).front();
}

} // namespace ordavel::prove
