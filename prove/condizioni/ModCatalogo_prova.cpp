// ModCatalogo_prova.cpp - the numbers, keys and names of the 37 kinds.

#include "condizioni/ModCatalogo.hpp"

#include <gtest/gtest.h>

#include <array>
#include <limits>
#include <set>
#include <string>
#include <string_view>

namespace ordavel {
namespace {

struct RigaAttesa {
    int nTipo;
    std::string_view sChiave;
    std::string_view sDialogo;
    std::string_view sMenu;
    int nIdStatistica;
};

// clang-format off
constexpr std::array kAttese = std::to_array<RigaAttesa>({
//   kind key                   dialog                           menu key                      statistics
    {1,  "LinkOpen",            "",                              "LinkOpen",                   0},
    {2,  "LinkClose",           "F_LinkClose",                   "LinkClose",                  0},
    {3,  "Punti Col.",          "F_PuntisuColonna",              "PuntiSuColonna",             12},
    {4,  "Pari-Dispari",        "F_PuntiSuPariDisp",             "PuntisuPariDispari",         8},
    {5,  "Peso",                "F_PuntiSuPeso",                 "PuntisuPeso",                9},
    {6,  "Resto",               "F_PuntiSuResto",                "PuntiSuResto",               14},
    {7,  "Ampiezza",            "F_PuntiSuAmpiezza",             "PuntiSuAmpiezza",            1},
    {8,  "Vortice",             "F_PuntiSuVortice",              "PuntiSuVortice",             16},
    {9,  "Simmetrie",           "F_PuntiSuSimmetrie",            "PuntiSuSimmetrie",           15},
    {10, "Consecutivi",         "F_PuntiSuConsecutivi",          "PuntiSuConsecutivi",         3},
    {11, "InterruzioniPD",      "F_PuntiSuInterruzioniPD",       "PuntiSuInterruzioniPD",      6},
    {12, "Baricentro",          "F_PuntiSuBaricentro",           "PuntiSuBaricentro",          2},
    {13, "Distanza Minima",     "F_PuntiSudistanzaMinima",       "PuntiSuDistanzaMinima",      5},
    {14, "Distanza Massima",    "F_PuntiSudistanzaMassima",      "PuntiSuDistanzaMassima",     4},
    {15, "Posizioni",           "F_PuntiSuPosizione",            "PuntiSuPosizioni",           11},
    {16, "Ponte",               "F_PuntiSuPonte",                "PuntiSuPonte",               10},
    {17, "Sequenze",            "F_PuntiSuSequenze",             "PuntiSuSequenze",            13},
    {18, "Paralleli",           "F_PuntiSuParalleli",            "PuntiSuParalleli",           7},
    {19, "GruppiDiConsecutivi", "F_PuntiSuGruppiDiConsecutivi",  "PuntiSuGruppiDiConsecutivi", 17},
    {20, "Interruzioni",        "F_PuntiSuInterruzioni",         "PuntiSuInterruzioni",        18},
    {21, "ConsecutiviPD",       "F_PuntiSuConsecutiviPD",        "PuntiSuConsecutiviPD",       19},
    {22, "Cadenze",             "F_PuntiSuCadenze",              "PuntiSuCadenze",             20},
    {23, "Decine",              "F_PuntiSuDecine",               "PuntiSuDecine",              21},
    {24, "Figure",              "F_PuntiSuFigure",               "PuntiSuFigure",              22},
    {25, "Formule",             "F_PuntiSuFormule",              "PuntiSuFormule",             25},
    {26, "Emulatore",           "F_PuntiSuEmulatore",            "PuntiSuEmulatore",           26},
    {27, "SimmetrieNum",        "F_PuntiSuSimmetrieNum",         "SimmetrieNumeriche",         27},
    {28, "ParalleliNum",        "F_PuntiSuParalleliNum",         "ParalleliNumerici",          28},
    {29, "Fulcro",              "F_PuntiSuFulcro",               "Fulcro",                     29},
    {30, "SommaCadenze",        "F_PuntiSuSommaCadenze",         "SommaCadenze",               30},
    {31, "SommaDecine",         "F_PuntiSuSommaDecine",          "SommaDecine",                31},
    {32, "SommaFigure",         "F_PuntiSuSommaFigure",          "SommaFigure",                32},
    {33, "SommaNumeretti",      "F_PuntiSuSommaNumeretti",       "SommaNumeretti",             33},
    {34, "SommaComplessiva",    "F_PuntiSuSommaComplessiva",     "SommaComplessiva",           34},
    {35, "Figure Specifiche",   "F_PuntiSuFigureSpec",           "PuntiSuFigureSpec",          35},
    {36, "Cadenze Specifiche",  "F_PuntiSuCadenzeSpec",          "PuntiSuCadenzeSpec",         36},
    {37, "Decine Specifiche",   "F_PuntiSuDecinaSpec",           "PuntiSuDecineSpec",          37},
});
// clang-format on

TEST(ModCatalogo, OgniTipoHaNumeroChiaveDialogoMenuEStatistica)
{
    ASSERT_EQ(Catalogo().size(), kAttese.size());
    for (std::size_t i = 0; i < kAttese.size(); ++i) {
        const VoceCatalogo& voce = Catalogo()[i];
        SCOPED_TRACE(kAttese[i].sChiave);
        EXPECT_EQ(static_cast<int>(voce.Tipo), kAttese[i].nTipo);
        EXPECT_EQ(voce.sChiave, kAttese[i].sChiave);
        EXPECT_EQ(voce.sDialogo, kAttese[i].sDialogo);
        EXPECT_EQ(voce.sMenu, kAttese[i].sMenu);
        EXPECT_EQ(voce.nIdStatistica, kAttese[i].nIdStatistica);
    }
}

TEST(ModCatalogo, OgniNumeroDiStatisticaServeUnTipoSoloEIl23EIl24Nessuno)
{
    std::multiset<int> numeri;
    for (const VoceCatalogo& voce : Catalogo()) {
        numeri.insert(voce.nIdStatistica);
    }
    EXPECT_EQ(numeri.count(0), 2);
    for (int n = 1; n <= kTipiCondizione; ++n) {
        EXPECT_EQ(numeri.count(n), n == 23 || n == 24 ? 0 : 1) << n;
    }
}

TEST(ModCatalogo, OgniTipoSiConfrontaNellaSuaForma)
{
    // One letter a kind: link, list, interval, pair, triple, histogram, none.
    constexpr std::string_view kForme = "LLllililllliiiilpllllllltellliiiiinnn";
    constexpr std::string_view kLettere = "nLlipte";
    std::string sForme;
    for (const VoceCatalogo& voce : Catalogo()) {
        sForme += kLettere[static_cast<std::size_t>(voce.forma)];
    }
    EXPECT_EQ(sForme, kForme);
}

TEST(ModCatalogo, UnTipoSiTrovaColSuoNumero)
{
    for (const RigaAttesa& attesa : kAttese) {
        const VoceCatalogo* voce = TrovaTipo(static_cast<TipoCondizione>(attesa.nTipo));
        ASSERT_NE(voce, nullptr) << attesa.nTipo;
        EXPECT_EQ(voce->sChiave, attesa.sChiave);
    }
}

TEST(ModCatalogo, UnNumeroDiNessunTipoNonSiTrova)
{
    for (const int nTipo : {0, -1, 38, int{std::numeric_limits<std::int16_t>::min()},
                            int{std::numeric_limits<std::int16_t>::max()}}) {
        EXPECT_EQ(TrovaTipo(static_cast<TipoCondizione>(nTipo)), nullptr) << nTipo;
    }
}

TEST(ModCatalogo, UnTipoSiTrovaConLaSuaChiave)
{
    for (const RigaAttesa& attesa : kAttese) {
        const VoceCatalogo* voce = TrovaChiave(attesa.sChiave);
        ASSERT_NE(voce, nullptr) << attesa.sChiave;
        EXPECT_EQ(static_cast<int>(voce->Tipo), attesa.nTipo);
    }
}

TEST(ModCatalogo, LaChiaveContaMaiuscoleEBlank)
{
    for (const RigaAttesa& attesa : kAttese) {
        std::string sMinuscola(attesa.sChiave);
        sMinuscola.front() = static_cast<char>(sMinuscola.front() - 'A' + 'a');
        EXPECT_EQ(TrovaChiave(sMinuscola), nullptr) << sMinuscola;
        EXPECT_EQ(TrovaChiave(std::string(attesa.sChiave) + " "), nullptr) << attesa.sChiave;
    }
    for (const std::string_view sEstranea : {"", " ", "PESO", "PuntiSuColonna", "Somma", "DistanzaMin"}) {
        EXPECT_EQ(TrovaChiave(sEstranea), nullptr) << sEstranea;
    }
}

} // namespace
} // namespace ordavel
