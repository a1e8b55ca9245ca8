// ModTestoCelleTipi_prova.cpp - the five cells of every kind, from a dialog and from a record.

#include "comune/ColonneProva.hpp"
#include "comune/GeneratoriSistema.hpp"
#include "condizioni/ModTestoCelle.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

namespace ordavel {
namespace {

using enum TipoCondizione;
using prove::FlagDi;

/// What the dialogs of these tests have collected: each kind takes what it asks for.
ValoriDialogo ValoriEsempio(std::string_view sScelta)
{
    ValoriDialogo valori;
    valori.sScelta = sScelta;
    valori.aNumeri = FlagDi({1, 2, 5, 7, 10});
    valori.aPunti = FlagDi({0, 2, 3});
    valori.aRecupero = FlagDi({1, 4});
    valori.aRange = {"12", "40"};
    valori.aRangeRec = {"10", "50"};
    valori.sQuadro = "7";
    valori.sSchema = "PDP";
    valori.sPasso = "2";
    valori.sGruppo = "3";
    valori.aConsec = FlagDi({1, 3});
    valori.aConsecRec = FlagDi({2});
    valori.aTerna = {"2", "0", "4"};
    valori.aTernaRec = {"1", "", "3"};
    valori.nColonneEmulate = 20;
    valori.aLimitiEmulatore = {{"1", "3"}, {"", ""}, {"10", "100"}};
    return valori;
}

/// The same in a record.
RecordCondizione RecordEsempio(TipoCondizione tipo, int nParametro)
{
    RecordCondizione record;
    record.Tipo = tipo;
    record.Numeri = FlagDi({1, 2, 5, 7, 10});
    for (const int i : {0, 2, 3}) {
        record.PuntiOk(i) = kVero;
    }
    record.PuntiRec(1) = record.PuntiRec(4) = kVero;
    record.PuntiOk2(1) = record.PuntiOk2(3) = kVero;
    record.PuntiRec2(2) = kVero;
    record.Parametro = static_cast<std::int16_t>(nParametro);
    record.OkMin = 12;
    record.OkMax = 40;
    record.RecMin = 10;
    record.RecMax = 50;
    record.IdRecupero = 7;
    record.Passo = 2;
    return record;
}

/// The records of the kinds that use the fields in their own way.
RecordCondizione RecordDelTipo(TipoCondizione tipo, int nParametro)
{
    RecordCondizione record = RecordEsempio(tipo, nParametro);
    if (tipo == sequenze) {
        record.Numeri = {.aElementi = {0, 1, 0, -1}};
    } else if (tipo == formule) {
        record.PuntiOk2 = {.aElementi = {0, 2, 0, 4}};
        record.PuntiRec2 = {.aElementi = {0, 1, 3}};
    } else if (tipo == emulatore) {
        record.PuntiOk = {.aElementi = {1, 0, 10}};
        record.PuntiRec = {.aElementi = {3, 0, 100}};
    }
    return record;
}

struct RigaDialogo {
    TipoCondizione tipo;
    std::string_view sScelta;
    Condizione attese;
};

struct RigaRecord {
    TipoCondizione tipo;
    int nParametro;
    Condizione attese;
};

constexpr const char* kEmulatore =
    "[20]\r\nP0)   1 -   3\r\nP1)   0 -   0\r\nP2)  10 - 100\r\nP3)   0 -   0\r\n"
    "P4)   0 -   0\r\nP5)   0 -   0\r\nP6)   0 -   0\r\nP7)   0 -   0\r\n"
    "P8)   0 -   0\r\nP9)   0 -   0\r\nP10)   0 -   0\r\n";

// clang-format off
const std::vector<RigaDialogo> kDaDialogo = {
//   kind, choice, cells
    {linkOpen, "", {"LinkOpen", "L\r\ni\r\nn\r\nk\r\nO\r\np\r\ne\r\nn", "", "", ""}},
    {linkClose, "", {"LinkClose", "L\r\ni\r\nn\r\nk\r\nC\r\nl\r\no\r\ns\r\ne", "0-2-3", "", ""}},
    {puntiColonna, "", {"Punti Col.", "01-02-05-07-\r\n10", "0-2-3", "1-4", "7"}},
    {pariDispari, "Pari", {"Pari-Dispari", "Pari", "0-2-3", "1-4", "7"}},
    {peso, "", {"Peso", "Caselle :\r\n1-2-5-7-10", "12-40", "10-50", "7"}},
    {resto, "4", {"Resto", "Resto a : 4", "0-2-3", "1-4", "7"}},
    {ampiezza, "", {"Ampiezza", "A\r\nm\r\np\r\ni\r\ne\r\nz\r\nz\r\na", "12-40", "10-50", "7"}},
    {vortice, "Diretto", {"Vortice", "Diretto", "0-2-3", "1-4", "7"}},
    {simmetrie, "Inverse", {"Simmetrie", "Inverse", "0-2-3", "1-4", "7"}},
    {consecutivi, "", {"Consecutivi",
        "C\r\no\r\nn\r\ns\r\ne\r\nc\r\nu\r\nt\r\ni\r\nv\r\ni",
        "0-2-3", "1-4", "7"}},
    {interruzioniPD, "", {"InterruzioniPD",
        "I\r\nn\r\nt\r\ne\r\nr\r\nr\r\nu\r\nz\r\ni\r\no\r\nn\r\ni\r\nP\r\nD",
        "0-2-3", "1-4", "7"}},
    {baricentro, "", {"Baricentro", "B\r\na\r\nr\r\ni\r\nc\r\ne\r\nn\r\nt\r\nr\r\no", "12-40", "10-50", "7"}},
    {distanzaMinima, "", {"Distanza Minima",
        "D\r\ni\r\ns\r\nt\r\na\r\nn\r\nz\r\na\r\nM\r\ni\r\nn",
        "12-40", "10-50", "7"}},
    {distanzaMassima, "", {"Distanza Massima",
        "D\r\ni\r\ns\r\nt\r\na\r\nn\r\nz\r\na\r\nM\r\na\r\nx",
        "12-40", "10-50", "7"}},
    {posizioni, "3", {"Posizioni", "Casella :\r\n3", "12-40", "10-50", "7"}},
    {ponte, "", {"Ponte", "P\r\no\r\nn\r\nt\r\ne", "0-2-3", "1-4", "7"}},
    {sequenze, "", {"Sequenze",
        "P\r\nD\r\nP\r\nPasso : 2\r\nConsec : 1-3\r\nConsecR : 2",
        "0-2-3", "1-4", "7"}},
    {paralleli, "Diretti", {"Paralleli", "Diretti", "0-2-3", "1-4", "7"}},
    {gruppiDiConsecutivi, "", {"GruppiDiConsecutivi", "\r\nGruppoDa : 3\r\nPasso : 2", "0-2-3", "1-4", "7"}},
    {interruzioni, "", {"Interruzioni",
        "I\r\nn\r\nt\r\ne\r\nr\r\nr\r\nu\r\nz\r\ni\r\no\r\nn\r\ni",
        "0-2-3", "1-4", "7"}},
    {consecutiviPD, "", {"ConsecutiviPD",
        "C\r\no\r\nn\r\ns\r\ne\r\nc\r\nu\r\nt\r\ni\r\nv\r\ni\r\nP\r\nD",
        "0-2-3", "1-4", "7"}},
    {cadenze, "", {"Cadenze", "C\r\na\r\nd\r\ne\r\nn\r\nz\r\ne", "0-2-3", "1-4", "7"}},
    {decine, "", {"Decine", "D\r\ne\r\nc\r\ni\r\nn\r\ne", "0-2-3", "1-4", "7"}},
    {figure, "", {"Figure", "F\r\ni\r\ng\r\nu\r\nr\r\ne", "0-2-3", "1-4", "7"}},
    {formule, "", {"Formule", "F\r\no\r\nr\r\nm\r\nu\r\nl\r\ne", "2-0-4", "1-3", "7"}},
    {emulatore, "", {"Emulatore", "[20]\r\nP0)   1 -   3\r\nP1)   0 -   0\r\nP2)  10 - 100\r\n", "", "", ""}},
    {simmetrieNum, "", {"SimmetrieNum", "SimmetrieNum", "0-2-3", "1-4", "7"}},
    {paralleliNum, "", {"ParalleliNum", "ParalleliNum", "0-2-3", "1-4", "7"}},
    {fulcro, "Dispari", {"Fulcro", "Dispari", "0-2-3", "1-4", "7"}},
    {sommaCadenze, "", {"SommaCadenze", "Caselle :\r\n1-2-5-7-10", "12-40", "10-50", "7"}},
    {sommaDecine, "", {"SommaDecine", "Caselle :\r\n1-2-5-7-10", "12-40", "10-50", "7"}},
    {sommaFigure, "", {"SommaFigure", "Caselle :\r\n1-2-5-7-10", "12-40", "10-50", "7"}},
    {sommaNumeretti, "", {"SommaNumeretti", "Caselle :\r\n1-2-5-7-10", "12-40", "10-50", "7"}},
    {sommaComplessiva, "", {"SommaComplessiva", "Caselle :\r\n1-2-5-7-10", "12-40", "10-50", "7"}},
    {figureSpecifiche, "4", {"Figure Specifiche",
        "F\r\ni\r\ng\r\nu\r\nr\r\ne\r\n \r\n4",
        "0-2-3", "1-4", "7"}},
    {cadenzeSpecifiche, "0", {"Cadenze Specifiche",
        "C\r\na\r\nd\r\ne\r\nn\r\nz\r\ne\r\n \r\n0",
        "0-2-3", "1-4", "7"}},
    {decineSpecifiche, "8", {"Decine Specifiche",
        "D\r\ne\r\nc\r\ni\r\nn\r\ne\r\n \r\n8",
        "0-2-3", "1-4", "7"}},
};

const std::vector<RigaRecord> kDaRecord = {
//   kind, parameter, cells
    {linkOpen, 0, {"LinkOpen", "L\r\ni\r\nn\r\nk\r\nO\r\np\r\ne\r\nn", "", "", ""}},
    {linkClose, 0, {"LinkClose", "L\r\ni\r\nn\r\nk\r\nC\r\nl\r\no\r\ns\r\ne", "01-02-05-07-10", "", ""}},
    {puntiColonna, 0, {"Punti Col.", "01-02-05-07-\r\n10", "00-02-03", "01-04", "7"}},
    {pariDispari, 0, {"Pari-Dispari", "Dispari", "00-02-03", "01-04", "7"}},
    {peso, 0, {"Peso", "Caselle :\r\n1-2-5-7-10", "12-40", "10-50", "7"}},
    {resto, 4, {"Resto", "Resto a : 4", "0-2-3", "1-4", "7"}},
    {ampiezza, 0, {"Ampiezza", "A\r\nm\r\np\r\ni\r\ne\r\nz\r\nz\r\na", "12-40", "10-50", "7"}},
    {vortice, 1, {"Vortice", "Diretto", "0-2-3", "1-4", "7"}},
    {simmetrie, 2, {"Simmetrie", "Inverse", "0-2-3", "1-4", "7"}},
    {consecutivi, 0, {"Consecutivi",
        "C\r\no\r\nn\r\ns\r\ne\r\nc\r\nu\r\nt\r\ni\r\nv\r\ni",
        "00-02-03", "01-04", "7"}},
    {interruzioniPD, 0, {"InterruzioniPD",
        "I\r\nn\r\nt\r\ne\r\nr\r\nr\r\nu\r\nz\r\ni\r\no\r\nn\r\ni\r\nP\r\nD",
        "00-02-03", "01-04", "7"}},
    {baricentro, 0, {"Baricentro", "B\r\na\r\nr\r\ni\r\nc\r\ne\r\nn\r\nt\r\nr\r\no", "12-40", "10-50", "7"}},
    {distanzaMinima, 0, {"Distanza Minima",
        "D\r\ni\r\ns\r\nt\r\na\r\nn\r\nz\r\na\r\nM\r\ni\r\nn",
        "12-40", "10-50", "7"}},
    {distanzaMassima, 0, {"Distanza Massima",
        "D\r\ni\r\ns\r\nt\r\na\r\nn\r\nz\r\na\r\nM\r\na\r\nx",
        "12-40", "10-50", "7"}},
    {posizioni, 3, {"Posizioni", "Casella :\r\n3", "12-40", "10-50", "7"}},
    {ponte, 0, {"Ponte", "P\r\no\r\nn\r\nt\r\ne", "00-02-03", "01-04", "7"}},
    {sequenze, 3, {"Sequenze",
        "P\r\nD\r\nP\r\nPasso : 2\r\nConsec : 01-03\r\nConsecR : 02",
        "00-02-03", "01-04", "7"}},
    {paralleli, 1, {"Paralleli", "Dirette", "0-2-3", "1-4", "7"}},
    {gruppiDiConsecutivi, 3, {"GruppiDiConsecutivi", "GruppoDa : 3\r\nPasso : 2", "0-2-3", "1-4", "7"}},
    {interruzioni, 0, {"Interruzioni",
        "I\r\nn\r\nt\r\ne\r\nr\r\nr\r\nu\r\nz\r\ni\r\no\r\nn\r\ni",
        "00-02-03", "01-04", "7"}},
    {consecutiviPD, 0, {"ConsecutiviPD",
        "C\r\no\r\nn\r\ns\r\ne\r\nc\r\nu\r\nt\r\ni\r\nv\r\ni\r\nP\r\nD",
        "00-02-03", "01-04", "7"}},
    {cadenze, 0, {"Cadenze", "C\r\na\r\nd\r\ne\r\nn\r\nz\r\ne", "00-02-03", "01-04", "7"}},
    {decine, 0, {"Decine", "D\r\ne\r\nc\r\ni\r\nn\r\ne", "00-02-03", "01-04", "7"}},
    {figure, 0, {"Figure", "F\r\ni\r\ng\r\nu\r\nr\r\ne", "00-02-03", "01-04", "7"}},
    {formule, 0, {"Formule", "F\r\no\r\nr\r\nm\r\nu\r\nl\r\ne", "02-04", "01-03", "7"}},
    {emulatore, 20, {"Emulatore", kEmulatore, "", "", ""}},
    {simmetrieNum, 0, {"SimmetrieNum", "SimmetrieNum", "0-2-3", "1-4", "7"}},
    {paralleliNum, 0, {"ParalleliNum", "ParalleliNum", "0-2-3", "1-4", "7"}},
    {fulcro, 2, {"Fulcro", "Dispari", "0-2-3", "1-4", "7"}},
    {sommaCadenze, 0, {"SommaCadenze", "Caselle :\r\n1-2-5-7-10", "12-40", "10-50", "7"}},
    {sommaDecine, 0, {"SommaDecine", "Caselle :\r\n1-2-5-7-10", "12-40", "10-50", "7"}},
    {sommaFigure, 0, {"SommaFigure", "Caselle :\r\n1-2-5-7-10", "12-40", "10-50", "7"}},
    {sommaNumeretti, 0, {"SommaNumeretti", "Caselle :\r\n1-2-5-7-10", "12-40", "10-50", "7"}},
    {sommaComplessiva, 0, {"SommaComplessiva", "Caselle :\r\n1-2-5-7-10", "12-40", "10-50", "7"}},
    {figureSpecifiche, 4, {"Figure Specifiche",
        "F\r\ni\r\ng\r\nu\r\nr\r\ne\r\n \r\n4",
        "00-02-03", "01-04", "7"}},
    {cadenzeSpecifiche, 0, {"Cadenze Specifiche",
        "C\r\na\r\nd\r\ne\r\nn\r\nz\r\ne\r\n \r\n0",
        "00-02-03", "01-04", "7"}},
    {decineSpecifiche, 8, {"Decine Specifiche",
        "D\r\ne\r\nc\r\ni\r\nn\r\ne\r\n \r\n8",
        "00-02-03", "01-04", "7"}},
};
// clang-format on

/// Does a table hold every kind once, in order?
template <typename Riga> bool TuttiITipi(const std::vector<Riga>& aRighe)
{
    int nTipo = 0;
    return aRighe.size() == kTipiCondizione &&
           std::all_of(aRighe.begin(), aRighe.end(),
                       [&nTipo](const Riga& riga) { return static_cast<int>(riga.tipo) == ++nTipo; });
}

/// The kinds whose expected points cell is a given one.
template <typename Riga>
std::vector<Riga> ConPunti(const std::vector<Riga>& aRighe, std::initializer_list<std::string_view> aPunti)
{
    std::vector<Riga> aScelte;
    std::copy_if(aRighe.begin(), aRighe.end(), std::back_inserter(aScelte), [&aPunti](const Riga& riga) {
        return std::find(aPunti.begin(), aPunti.end(), riga.attese.sPunti) != aPunti.end();
    });
    return aScelte;
}

TEST(ModTestoCelle, OgniTipoScriveLeSueCelleDalDialogo)
{
    ASSERT_TRUE(TuttiITipi(kDaDialogo));
    for (const RigaDialogo& riga : kDaDialogo) {
        EXPECT_EQ(CelleDaDialogo(riga.tipo, ValoriEsempio(riga.sScelta)), riga.attese);
    }
}

TEST(ModTestoCelle, OgniTipoScriveLeSueCelleDalRecord)
{
    ASSERT_TRUE(TuttiITipi(kDaRecord));
    for (const RigaRecord& riga : kDaRecord) {
        EXPECT_EQ(CelleDaRecord(RecordDelTipo(riga.tipo, riga.nParametro)), riga.attese);
    }
}

TEST(ModTestoCelle, UnaListaDalDialogoSenzaGruppoNonHaRecupero)
{
    const auto aListe = ConPunti(kDaDialogo, {"0-2-3"});
    ASSERT_EQ(aListe.size(), 23);
    for (const RigaDialogo& riga : aListe) {
        if (riga.tipo == linkClose) {
            continue;
        }
        ValoriDialogo valori = ValoriEsempio(riga.sScelta);
        valori.sQuadro = " ";
        Condizione attese = riga.attese;
        attese.sRecupero = "";
        attese.sQuadro = " ";
        EXPECT_EQ(CelleDaDialogo(riga.tipo, valori), attese);
    }
}

TEST(ModTestoCelle, UnIntervalloDalDialogoTieneICampiDelRecuperoComeSono)
{
    const auto aIntervalli = ConPunti(kDaDialogo, {"12-40"});
    ASSERT_EQ(aIntervalli.size(), 11);
    for (const RigaDialogo& riga : aIntervalli) {
        ValoriDialogo valori = ValoriEsempio(riga.sScelta);
        valori.sQuadro = " ";
        valori.aRangeRec = {"", ""};
        EXPECT_EQ(CelleDaDialogo(riga.tipo, valori).sRecupero, "-");
        EXPECT_EQ(CelleDaDialogo(riga.tipo, valori).sQuadro, " ");
        valori.aRange = {"012 ", ""};
        valori.aRangeRec = {"", " 5"};
        EXPECT_EQ(CelleDaDialogo(riga.tipo, valori).sPunti, "012 -");
        EXPECT_EQ(CelleDaDialogo(riga.tipo, valori).sRecupero, "- 5");
    }
}

TEST(ModTestoCelle, UnaListaDalRecordSenzaGruppoTieneIlRecupero)
{
    const auto aListe = ConPunti(kDaRecord, {"0-2-3", "00-02-03"});
    ASSERT_EQ(aListe.size(), 22);
    for (const RigaRecord& riga : aListe) {
        RecordCondizione record = RecordDelTipo(riga.tipo, riga.nParametro);
        record.IdRecupero = 0;
        Condizione attese = riga.attese;
        attese.sQuadro = "";
        EXPECT_EQ(CelleDaRecord(record), attese);
    }
}

TEST(ModTestoCelle, UnIntervalloDalRecordSenzaGruppoNonHaRecupero)
{
    const auto aIntervalli = ConPunti(kDaRecord, {"12-40"});
    ASSERT_EQ(aIntervalli.size(), 11);
    for (const RigaRecord& riga : aIntervalli) {
        RecordCondizione record = RecordDelTipo(riga.tipo, riga.nParametro);
        for (const int nGruppo : {0, -1}) {
            record.IdRecupero = static_cast<std::int16_t>(nGruppo);
            Condizione attese = riga.attese;
            attese.sRecupero = attese.sQuadro = "";
            EXPECT_EQ(CelleDaRecord(record), attese);
        }
    }
}

TEST(ModTestoCelle, SenzaNienteDiSceltoLeListeSonoVuote)
{
    for (const RigaDialogo& riga : ConPunti(kDaDialogo, {"0-2-3"})) {
        const Condizione celle = CelleDaDialogo(riga.tipo, {});
        EXPECT_EQ(celle.sPunti, "") << celle;
        EXPECT_EQ(celle.sRecupero, "") << celle;
    }
    for (const RigaRecord& riga : ConPunti(kDaRecord, {"0-2-3", "00-02-03"})) {
        RecordCondizione record;
        record.Tipo = riga.tipo;
        EXPECT_EQ(CelleDaRecord(record).sPunti, "");
        EXPECT_EQ(CelleDaRecord(record).sRecupero, "");
    }
}

TEST(ModTestoCelle, UnaRigaDiIntervalloSenzaRecuperoSiSvuotaDopoIlSalvataggio)
{
    ValoriDialogo valori = ValoriEsempio("3");
    valori.aRangeRec = {};
    valori.sQuadro = " ";
    const Condizione scritta = CelleDaDialogo(posizioni, valori);
    EXPECT_EQ(scritta, (Condizione{"Posizioni", "Casella :\r\n3", "12-40", "-", " "}));
    EXPECT_EQ(CelleDaRecord(prove::Compila(scritta)),
              (Condizione{"Posizioni", "Casella :\r\n3", "12-40", "", ""}));
}

TEST(ModTestoCelle, UnTipoIgnotoScriveCinqueCelleVuote)
{
    for (const int nTipo : {0, -1, 38, 32767, -32768}) {
        const auto tipo = static_cast<TipoCondizione>(nTipo);
        EXPECT_EQ(CelleDaDialogo(tipo, ValoriEsempio("1")), Condizione{}) << nTipo;
        EXPECT_EQ(CelleDaRecord(RecordEsempio(tipo, 1)), Condizione{}) << nTipo;
    }
}

TEST(ModTestoCelle, CondizioneSuGrigliaScriveIlRecordNellaRiga)
{
    const std::vector<RecordCondizione> aRecord = {{}, RecordEsempio(ampiezza, 0), RecordEsempio(resto, 4)};
    GrigliaCondizioni griglia;
    griglia.Riga(2000) = {"Ponte", "x", "x", "x", "x"};
    CondizioneSuGriglia(2000, 2, griglia, aRecord);
    EXPECT_EQ(griglia.Riga(2000), (Condizione{"Resto", "Resto a : 4", "0-2-3", "1-4", "7"}));
    CondizioneSuGriglia(2000, 0, griglia, aRecord);
    EXPECT_EQ(griglia.Riga(2000), Condizione{});
}

} // namespace
} // namespace ordavel
