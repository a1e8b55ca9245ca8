// ModCompila_prova.cpp - what each kind of row puts where, and how lists, ranges and patterns are read.

#include "condizioni/ModCompila.hpp"

#include "comune/ColonneProva.hpp"
#include "comune/GeneratoriSistema.hpp"

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace ordavel {
namespace {

using enum TipoCondizione;
using prove::Compila;
using Record = RecordCondizione;

/// How the cells of points are read.
enum class eLettura { niente, link, lista, intervallo, terna };

/// What the cell "Parametri" of a row puts into its record.
struct RigaCompilata {
    TipoCondizione tipo;
    const char* sChiave;
    eLettura lettura;
    const char* sParametri;
    void (*attesa)(Record&);
};

void Niente(Record& /*r*/) {}

template <int nParametro> void Parametro(Record& r)
{
    r.Parametro = nParametro;
}

template <int nPasso> void Passo(Record& r)
{
    r.Passo = nPasso;
}

template <int nGruppo, int nPasso> void Gruppo(Record& r)
{
    r.Parametro = nGruppo;
    r.Passo = nPasso;
}

/// The numbers from nPrimo to 90, every nOgni-th.
template <int nPrimo, int nOgni> void Numeri(Record& r)
{
    for (int n = nPrimo; n <= kNumeroMassimo; n += nOgni) {
        r.Numeri(n) = kVero;
    }
}

template <int... aIndici> void Segnati(Record& r)
{
    ((r.Numeri(aIndici) = kVero), ...);
}

/// Pattern, step and chains of "P", "D", "P", 2, 1-3 and 2.
void Sequenza(Record& r)
{
    r.Numeri = {.aElementi = {0, 1, 0, -1}};
    r.Parametro = 3;
    r.Passo = 2;
    r.PuntiOk2(1) = r.PuntiOk2(3) = kVero;
    r.PuntiRec2(2) = kVero;
}

void SequenzaSenzaCatene(Record& r)
{
    Sequenza(r);
    r.PuntiOk2 = r.PuntiRec2 = {};
}

void SequenzaDiSoloSchema(Record& r)
{
    SequenzaSenzaCatene(r);
    r.Passo = 0;
}

/// No letter at all: the end mark stands at once.
void SequenzaVuota(Record& r)
{
    r.Numeri(0) = -1;
}

void Emulatore(Record& r)
{
    r.Parametro = 20;
    r.PuntiOk = {.aElementi = {1, 0, 10}};
    r.PuntiRec = {.aElementi = {3, 0, 100}};
}

// clang-format off
const std::vector<RigaCompilata> kRighe = {
//   kind                 key                    points                parameters             into the record
    {linkOpen,            "LinkOpen",            eLettura::niente,     "L\r\ni\r\nn\r\nk",    Niente},
    {linkClose,           "LinkClose",           eLettura::link,       "Passo : 3",           Niente},
    {puntiColonna,        "Punti Col.",          eLettura::lista,      "01-02-03-04-\r\n90",  Segnati<1, 2, 3, 4, 90>},
    {puntiColonna,        "Punti Col.",          eLettura::lista,      "",                    Niente},
    {pariDispari,         "Pari-Dispari",        eLettura::lista,      "Pari",                Numeri<2, 2>},
    {pariDispari,         "Pari-Dispari",        eLettura::lista,      " Dispari ",           Numeri<1, 2>},
    {pariDispari,         "Pari-Dispari",        eLettura::lista,      "pari",                Niente},
    {pariDispari,         "Pari-Dispari",        eLettura::lista,      "",                    Niente},
    {peso,                "Peso",                eLettura::intervallo, "Caselle :\r\n1-2-10", Segnati<1, 2, 10>},
    {peso,                "Peso",                eLettura::intervallo, "1\r\n2-\r\n3",        Segnati<2, 3>},
    {peso,                "Peso",                eLettura::intervallo, "Caselle :\r",         Niente},
    {peso,                "Peso",                eLettura::intervallo, "Caselle :\r\n",       Niente},
    {peso,                "Peso",                eLettura::intervallo, "1-2",                 Niente},
    {resto,               "Resto",               eLettura::lista,      "Resto a : 4",         Parametro<4>},
    {resto,               "Resto",               eLettura::lista,      ":9: 8",               Parametro<9>},
    {resto,               "Resto",               eLettura::lista,      "Resto a 4",           Niente},
    {ampiezza,            "Ampiezza",            eLettura::intervallo, "7",                   Niente},
    {vortice,             "Vortice",             eLettura::lista,      " Diretto ",           Parametro<1>},
    {vortice,             "Vortice",             eLettura::lista,      "Inverso",             Parametro<2>},
    {vortice,             "Vortice",             eLettura::lista,      "diretto",             Parametro<2>},
    {simmetrie,           "Simmetrie",           eLettura::lista,      "Dirette",             Parametro<1>},
    {simmetrie,           "Simmetrie",           eLettura::lista,      "Diretti",             Parametro<2>},
    {simmetrie,           "Simmetrie",           eLettura::lista,      "Inverse",             Parametro<2>},
    {consecutivi,         "Consecutivi",         eLettura::lista,      "C\r\no\r\nn\r\ns",    Niente},
    {consecutivi,         "Consecutivi",         eLettura::lista,      "x\r\nPasso : 3 ",     Passo<3>},
    {consecutivi,         "Consecutivi",         eLettura::lista,      "Passo :3",            Niente},
    {consecutivi,         "Consecutivi",         eLettura::lista,      "Passo :5 Passo : 3",  Niente},
    {interruzioniPD,      "InterruzioniPD",      eLettura::lista,      "Passo : 3",           Niente},
    {baricentro,          "Baricentro",          eLettura::intervallo, "B\r\n3",              Niente},
    {distanzaMinima,      "Distanza Minima",     eLettura::intervallo, "D\r\n3",              Niente},
    {distanzaMassima,     "Distanza Massima",    eLettura::intervallo, "D\r\n3",              Niente},
    {posizioni,           "Posizioni",           eLettura::intervallo, "Casella :\r\n3",      Parametro<3>},
    {posizioni,           "Posizioni",           eLettura::intervallo, "Casella : 3",         Niente},
    {ponte,               "Ponte",               eLettura::lista,      "Passo : 3",           Niente},
    {sequenze,            "Sequenze",            eLettura::lista,
        "P\r\nD\r\nP\r\nPasso : 2\r\nConsec : 1-3\r\nConsecR : 2",                            Sequenza},
    {sequenze,            "Sequenze",            eLettura::lista,
        " P \r\nD\r\nP\r\nPasso : 2\r\nConsec :1-3\r\nConsecR :02",                           Sequenza},
    {sequenze,            "Sequenze",            eLettura::lista,
        "P\r\nD\r\nP\r\nPasso : 2\r\nConsec : ",                                              SequenzaSenzaCatene},
    {sequenze,            "Sequenze",            eLettura::lista,
        "P\r\nD\r\nP\r\nPasso : 2\r\nD\r\nD",                                               SequenzaSenzaCatene},
    {sequenze,            "Sequenze",            eLettura::lista,      "P\r\nD\r\nP",         SequenzaDiSoloSchema},
    {sequenze,            "Sequenze",            eLettura::lista,
        "P\r\nD\r\nP\r\nPasso :2\r\nConsec : ",                                               SequenzaDiSoloSchema},
    {sequenze,            "Sequenze",            eLettura::lista,      "",                    SequenzaVuota},
    {sequenze,            "Sequenze",            eLettura::lista,      "p\r\nd\r\nPD",        SequenzaVuota},
    {paralleli,           "Paralleli",           eLettura::lista,      "Diretti",             Parametro<1>},
    {paralleli,           "Paralleli",           eLettura::lista,      "Dirette",             Parametro<1>},
    {paralleli,           "Paralleli",           eLettura::lista,      "Inversi",             Parametro<2>},
    {paralleli,           "Paralleli",           eLettura::lista,      "Inverse",             Parametro<2>},
    {paralleli,           "Paralleli",           eLettura::lista,      "",                    Parametro<2>},
    {gruppiDiConsecutivi, "GruppiDiConsecutivi", eLettura::lista,
        "\r\nGruppoDa : 3\r\nPasso : 2",                                                      Gruppo<3, 2>},
    {gruppiDiConsecutivi, "GruppiDiConsecutivi", eLettura::lista,
        "GruppoDa : 3\r\nPasso : 2\r\nPasso : 5",                                             Gruppo<3, 2>},
    {gruppiDiConsecutivi, "GruppiDiConsecutivi", eLettura::lista,      "GruppoDa : 3",        Gruppo<3, 0>},
    {gruppiDiConsecutivi, "GruppiDiConsecutivi", eLettura::lista,
        "GruppoDa :3\r\nPasso : 2",                                                           Gruppo<0, 2>},
    {gruppiDiConsecutivi, "GruppiDiConsecutivi", eLettura::lista,
        "GruppoDa : 3\r\nPasso :2",                                                           Gruppo<3, 0>},
    {gruppiDiConsecutivi, "GruppiDiConsecutivi", eLettura::lista,      "3\r\nPasso : 2",      Niente},
    {interruzioni,        "Interruzioni",        eLettura::lista,      "Passo : 3",           Niente},
    {consecutiviPD,       "ConsecutiviPD",       eLettura::lista,      "C\r\no\r\nn\r\ns",    Niente},
    {consecutiviPD,       "ConsecutiviPD",       eLettura::lista,      "x\r\nPasso : 3",      Passo<3>},
    {cadenze,             "Cadenze",             eLettura::lista,      "C\r\n3",              Niente},
    {decine,              "Decine",              eLettura::lista,      "D\r\n3",              Niente},
    {figure,              "Figure",              eLettura::lista,      "F\r\n3",              Niente},
    {formule,             "Formule",             eLettura::terna,      "F\r\n3",              Niente},
    {emulatore,           "Emulatore",           eLettura::niente,
        "[20]\r\nP0)   1 -   3\r\nP1)   0 -   0\r\nP2)  10 - 100\r\n",                        Emulatore},
    {emulatore,           "Emulatore",           eLettura::niente,
        "[20\r\n)1-3)-9\r\nsenza parentesi\r\nP9)10-100",                                      Emulatore},
    {emulatore,           "Emulatore",           eLettura::niente,     "",                    Niente},
    {emulatore,           "Emulatore",           eLettura::niente,     "420]",                Parametro<20>},
    {simmetrieNum,        "SimmetrieNum",        eLettura::lista,      "SimmetrieNum",        Niente},
    {paralleliNum,        "ParalleliNum",        eLettura::lista,      "ParalleliNum",        Niente},
    {fulcro,              "Fulcro",              eLettura::lista,      "Pari",                Parametro<1>},
    {fulcro,              "Fulcro",              eLettura::lista,      "Dispari",             Parametro<2>},
    {sommaCadenze,        "SommaCadenze",        eLettura::intervallo, "Caselle :\r\n1-2-10", Segnati<1, 2, 10>},
    {sommaDecine,         "SommaDecine",         eLettura::intervallo, "Caselle :\r\n1-2-10", Segnati<1, 2, 10>},
    {sommaFigure,         "SommaFigure",         eLettura::intervallo, "Caselle :\r\n1-2-10", Segnati<1, 2, 10>},
    {sommaNumeretti,      "SommaNumeretti",      eLettura::intervallo, "Caselle :\r\n1-2-10", Segnati<1, 2, 10>},
    {sommaComplessiva,    "SommaComplessiva",    eLettura::intervallo, "Caselle :\r\n1-2-10", Segnati<1, 2, 10>},
    {figureSpecifiche,    "Figure Specifiche",   eLettura::lista,      "F\r\ni\r\n4",         Parametro<4>},
    {figureSpecifiche,    "Figure Specifiche",   eLettura::lista,      "",                    Niente},
    {cadenzeSpecifiche,   "Cadenze Specifiche",  eLettura::lista,      "Cadenze 12",          Parametro<2>},
    {decineSpecifiche,    "Decine Specifiche",   eLettura::lista,      "Decine 8",            Parametro<8>},
    {decineSpecifiche,    "Decine Specifiche",   eLettura::lista,      "Decine x",            Niente},
};
// clang-format on

/// Cells of points that this way of reading takes in full, and that another would take otherwise.
Condizione CelleDi(const RigaCompilata& riga)
{
    const bool bIntervallo = riga.lettura == eLettura::intervallo;
    return {riga.sChiave, riga.sParametri, bIntervallo ? "02-40" : "0-2-3", bIntervallo ? "10-5" : "1-04",
            "7"};
}

void PoniPunti(eLettura lettura, Record& r)
{
    r.IdRecupero = lettura == eLettura::niente || lettura == eLettura::link ? 0 : 7;
    if (lettura == eLettura::link) {
        r.Numeri(0) = r.Numeri(2) = r.Numeri(3) = kVero;
    } else if (lettura == eLettura::lista) {
        r.PuntiOk(0) = r.PuntiOk(2) = r.PuntiOk(3) = kVero;
        r.PuntiRec(1) = r.PuntiRec(4) = kVero;
    } else if (lettura == eLettura::intervallo) {
        r.OkMin = 2;
        r.OkMax = 40;
        r.RecMin = 10;
        r.RecMax = 5;
    } else if (lettura == eLettura::terna) {
        r.PuntiOk2 = {.aElementi = {0, 0, 2, 3}};
        r.PuntiRec2 = {.aElementi = {0, 1, 4}};
    }
}

TEST(ModCompila, OgniTipoRiempieISuoiCampiENessunAltro)
{
    std::set<int> tipi;
    for (const RigaCompilata& riga : kRighe) {
        Record attesa;
        attesa.Tipo = riga.tipo;
        riga.attesa(attesa);
        PoniPunti(riga.lettura, attesa);
        EXPECT_EQ(Compila(CelleDi(riga)), attesa) << CelleDi(riga);
        tipi.insert(static_cast<int>(riga.tipo));
    }
    EXPECT_EQ(tipi.size(), kTipiCondizione);
}

/// The compiled form of one list, read as points.
Record Lista(const char* sPunti)
{
    return Compila({"Ponte", "", sPunti, "", ""});
}

TEST(ModCompila, UnaListaSegnaIValoriDelleSueParti)
{
    struct Caso {
        const char* sPunti;
        const char* sSegnati;
    };
    for (const Caso& caso :
         {Caso{"", ""}, Caso{"0-2-3", "0-2-3"}, Caso{"00-02-03", "0-2-3"}, Caso{"10", "10"},
          Caso{"3-3-1", "1-3"}, Caso{"3-", "0-3"}, Caso{"-", "0"}, Caso{" ", "0"}, Caso{"testo-4", "0-4"},
          Caso{"3)-4x", "3-4"}, Caso{" 5 - 6 ", "5-6"}, Caso{"1-\r\n2-3\r\n", "1-2-3"}, Caso{"1\r\n0", "10"},
          Caso{"\r\n", ""}, Caso{"1\n2", "1"}, Caso{"1,5", "1"}, Caso{"1e1", "10"}}) {
        EXPECT_EQ(UnisciFlag(Lista(caso.sPunti).PuntiOk, "-", false), caso.sSegnati) << caso.sPunti;
    }
}

TEST(ModCompila, LeFrazioniVannoAlPiuVicinoELeMetaAlPari)
{
    EXPECT_EQ(UnisciFlag(Lista("0.5-2.5-3.5-5.6").PuntiOk, "-", false), "0-2-4-6");
    EXPECT_EQ(UnisciFlag(Lista("10.5-9.4").PuntiOk, "-", false), "9-10");
    const Record terna = Compila({"Formule", "", "0.5-1.5-2.5", "2.51", "3.5"});
    EXPECT_EQ(terna.PuntiOk2, (FlagPunti{.aElementi = {0, 0, 2, 2}}));
    EXPECT_EQ(terna.PuntiRec2, (FlagPunti{.aElementi = {0, 3}}));
    EXPECT_EQ(terna.IdRecupero, 4);
    EXPECT_EQ(Compila({"Peso", "", "12.5-13.5", "", ""}).OkMin, 12);
    EXPECT_EQ(Compila({"Peso", "", "12.5-13.5", "", ""}).OkMax, 14);
}

TEST(ModCompila, OgniFlagVale1Negato)
{
    FlagNumeri aFlag;
    LeggiListaPunti("0;90", aFlag, ";");
    EXPECT_EQ(aFlag(0), -1);
    EXPECT_EQ(aFlag(90), -1);
    FlagPunti aPunti;
    LeggiListaPunti("10", aPunti, "-");
    EXPECT_EQ(aPunti(10), -1);
}

TEST(ModCompila, UnaListaDiValoriLiMettePerPosto)
{
    FlagPunti aValori;
    LeggiListaValori("5-0-\r\n300--x-1-2-3-4-10", aValori, "-");
    EXPECT_EQ(aValori, (FlagPunti{.aElementi = {0, 5, 0, 300, 0, 0, 1, 2, 3, 4, 10}}));
    LeggiListaValori("", aValori, "-");
    EXPECT_EQ(aValori(1), 5);
    LeggiListaValori("7,8", aValori, ",");
    EXPECT_EQ(aValori(1), 7);
    EXPECT_EQ(aValori(2), 8);
}

TEST(ModCompila, SoloDueLimitiFannoUnIntervallo)
{
    struct Caso {
        const char* sTesto;
        int nMin;
        int nMax;
    };
    for (const Caso& caso :
         {Caso{"12-40", 12, 40}, Caso{"-", 0, 0}, Caso{"-40", 0, 40}, Caso{"012 - 4x", 12, 4},
          Caso{"", -7, -8}, Caso{"12", -7, -8}, Caso{"1-2-3", -7, -8}, Caso{"-1-2", -7, -8},
          Caso{"1-\r\n2", 1, 2}, Caso{"2147483647-0", 2147483647, 0}}) {
        std::int32_t nMin = -7;
        std::int32_t nMax = -8;
        LeggiMinMax(caso.sTesto, nMin, nMax, "-");
        EXPECT_EQ(nMin, caso.nMin) << caso.sTesto;
        EXPECT_EQ(nMax, caso.nMax) << caso.sTesto;
    }
}

TEST(ModCompila, UnIntervalloSenzaTrattinoRestaAZero)
{
    const Record record = Compila({"Ampiezza", "", "40", "50", "1"});
    EXPECT_EQ(record.OkMin, 0);
    EXPECT_EQ(record.OkMax, 0);
    EXPECT_EQ(record.RecMin, 0);
    EXPECT_EQ(record.RecMax, 0);
}

TEST(ModCompila, LoSchemaTieneIlPostoDelleRigheSenzaLettera)
{
    // The letters are counted, the places are those of the lines: the end mark may fall on a letter.
    struct Caso {
        const char* sTesto;
        FlagNumeri aSchema;
        int nLunghezza;
    };
    for (const Caso& caso :
         {Caso{"D;P", {.aElementi = {1, 0, -1, 8}}, 2}, Caso{"D;x;;D", {.aElementi = {1, 8, -1, 1}}, 2},
          Caso{"x;D", {.aElementi = {8, -1, 8, 8}}, 1}, Caso{"", {.aElementi = {-1, 8, 8, 8}}, 0}}) {
        FlagNumeri aSchema = {.aElementi = {8, 8, 8, 8}};
        std::int16_t nLunghezza = 77;
        LeggiSequenzaPD(caso.sTesto, aSchema, nLunghezza, ";");
        EXPECT_EQ(nLunghezza, caso.nLunghezza) << caso.sTesto;
        EXPECT_EQ(aSchema, caso.aSchema) << caso.sTesto;
    }
}

TEST(ModCompila, IlGruppoDiRecuperoSiLeggeDallaQuintaCella)
{
    struct Caso {
        const char* sQuadro;
        int nGruppo;
    };
    for (const Caso& caso : {Caso{"", 0}, Caso{" ", 0}, Caso{"0", 0}, Caso{"1", 1}, Caso{"20", 20},
                             Caso{"21", 21}, Caso{"x", 0}, Caso{"-3", -3}}) {
        EXPECT_EQ(Compila({"Ponte", "", "", "1", caso.sQuadro}).IdRecupero, caso.nGruppo) << caso.sQuadro;
    }
}

TEST(ModCompila, SenzaGruppoIlRecuperoRestaSegnato)
{
    EXPECT_EQ(UnisciFlag(Compila({"Ponte", "", "", "1-2", "0"}).PuntiRec, "-", false), "1-2");
}

TEST(ModCompila, LeCateneDiRecuperoStannoNellaSecondaRiga)
{
    const auto compila = [](const std::string& sCatene) {
        return Compila({"Sequenze", "P\r\nPasso : 1\r\n" + sCatene, "", "", ""});
    };
    EXPECT_EQ(UnisciFlag(compila("ConsecR : 2").PuntiRec2, "-", false), "");
    EXPECT_EQ(UnisciFlag(compila("Consec : 1\r\n\r\nConsecR : 2").PuntiRec2, "-", false), "");
    EXPECT_EQ(UnisciFlag(compila("Consec : 1\r\n2-3").PuntiRec2, "-", false), "2-3");
    EXPECT_EQ(UnisciFlag(compila("Consec : \r\nConsecR : 4").PuntiRec2, "-", false), "4");
    EXPECT_EQ(UnisciFlag(compila("Consec : 1-\r\nConsecR : 4").PuntiOk2, "-", false), "0-1");
}

} // namespace
} // namespace ordavel
