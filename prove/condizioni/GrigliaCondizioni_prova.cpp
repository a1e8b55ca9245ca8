// GrigliaCondizioni_prova.cpp - the rows of the grid and the selected one.

#include "ordavel/GrigliaCondizioni.hpp"

#include "comune/Fallimenti.hpp"
#include "comune/GeneratoriSistema.hpp"

#include <gtest/gtest.h>

#include <array>

namespace ordavel {
namespace {

using prove::NumeroErrore;

constexpr std::array kFuori = {-1, 2001, -2147483647, 2147483647};

TEST(GrigliaCondizioni, LaRigaZeroPortaLeIntestazioni)
{
    const Condizione intestazioni{"Condizione", "Parametri", "Punti", "Recupero", "Quadro Rec."};
    GrigliaCondizioni griglia;
    EXPECT_EQ(griglia.Riga(0), intestazioni);
    griglia.Riga(0) = {};
    griglia.Svuota();
    EXPECT_EQ(griglia.Riga(0), intestazioni);
}

TEST(GrigliaCondizioni, NasceVuotaConLaPrimaRigaScelta)
{
    const GrigliaCondizioni griglia;
    for (int nRiga = 1; nRiga <= 2000; ++nRiga) {
        EXPECT_TRUE(griglia.Vuota(nRiga)) << nRiga;
        EXPECT_EQ(griglia.Riga(nRiga), Condizione{}) << nRiga;
    }
    EXPECT_EQ(griglia.Corrente(), 1);
}

TEST(GrigliaCondizioni, LaPrimaELUltimaRigaTengonoUnaCondizione)
{
    GrigliaCondizioni griglia;
    const Condizione ponte{"Ponte", "P", "1-2", "", " "};
    for (const int nRiga : {1, 2000}) {
        griglia.Riga(nRiga) = ponte;
        EXPECT_EQ(griglia.Riga(nRiga), ponte);
        EXPECT_FALSE(griglia.Vuota(nRiga));
    }
}

TEST(GrigliaCondizioni, UnaRigaFuoriDaiLimitiFallisceCon9)
{
    GrigliaCondizioni griglia;
    const GrigliaCondizioni& costante = griglia;
    for (const int nRiga : kFuori) {
        EXPECT_EQ(NumeroErrore([&] { griglia.Riga(nRiga).sPunti = "1"; }), 9) << nRiga;
        EXPECT_EQ(NumeroErrore([&] { static_cast<void>(costante.Riga(nRiga)); }), 9) << nRiga;
        EXPECT_TRUE(griglia.Vuota(nRiga)) << nRiga;
    }
    EXPECT_TRUE(griglia.Vuota(0));
}

TEST(GrigliaCondizioni, UnaRigaEVuotaQuandoLoELaSuaPrimaCella)
{
    GrigliaCondizioni griglia;
    griglia.Riga(1) = {"", "testo", "1", "2", "3"};
    griglia.Riga(2) = {" ", "", "", "", ""};
    EXPECT_TRUE(griglia.Vuota(1));
    EXPECT_FALSE(griglia.Vuota(2));
}

TEST(GrigliaCondizioni, SvuotareToglieOgniRigaESceglieLaPrima)
{
    GrigliaCondizioni griglia;
    griglia.Riga(1) = griglia.Riga(2000) = {"Ponte", "P", "1", "2", "3"};
    griglia.PoniCorrente(7);
    griglia.Svuota();
    EXPECT_EQ(griglia.Riga(1), Condizione{});
    EXPECT_EQ(griglia.Riga(2000), Condizione{});
    EXPECT_EQ(griglia.Corrente(), 1);
}

TEST(GrigliaCondizioni, SiScegliePerfinoLaRigaZeroMaNessunaFuori)
{
    GrigliaCondizioni griglia;
    for (const int nRiga : {2000, 0, 5}) {
        griglia.PoniCorrente(nRiga);
        EXPECT_EQ(griglia.Corrente(), nRiga);
    }
    for (const int nRiga : kFuori) {
        EXPECT_EQ(NumeroErrore([&] { griglia.PoniCorrente(nRiga); }), 9) << nRiga;
    }
    EXPECT_EQ(griglia.Corrente(), 5);
}

TEST(GrigliaCondizioni, LeCelleHannoIlNumeroDellaLoroRigaSulloSchermo)
{
    int nCella = 0;
    for (const eCella cella :
         {eCella::condizione, eCella::parametri, eCella::punti, eCella::recupero, eCella::quadro}) {
        EXPECT_EQ(static_cast<int>(cella), ++nCella);
    }
}

} // namespace
} // namespace ordavel
