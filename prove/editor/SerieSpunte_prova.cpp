// SerieSpunte_prova.cpp - a control array of check boxes.

#include "editor/SerieSpunte.hpp"

#include "comune/Fallimenti.hpp"

#include <gtest/gtest.h>

#include <vector>

namespace ordavel {
namespace {

using prove::NumeroErrore;

TEST(SerieSpunte, VaDalPrimoValoreAllUltimo)
{
    SerieSpunte serie(1);
    serie.Estendi(3);
    EXPECT_EQ(serie.Primo(), 1);
    EXPECT_EQ(serie.Ultimo(), 3);
    EXPECT_EQ(NumeroErrore([&] { static_cast<void>(serie(0)); }), 9);
    EXPECT_EQ(NumeroErrore([&] { static_cast<void>(serie(4)); }), 9);
}

TEST(SerieSpunte, IlClickDiceIlValore)
{
    SerieSpunte serie;
    serie.Estendi(5);
    std::int32_t nCliccato = -1;
    serie.AlClick([&](std::int32_t nValore) { nCliccato = nValore; });
    serie(4).Segnata.Poni(true);
    EXPECT_EQ(nCliccato, 4);
}

TEST(SerieSpunte, LaVistaSaDelleSpunteCheVengonoEVanno)
{
    SerieSpunte serie;
    std::vector<std::int32_t> aUltimi;
    serie.Ascolta([&] { aUltimi.push_back(serie.Ultimo()); });
    serie.Estendi(5);
    serie.Taglia(2);
    serie(1).Segnata.Poni(true);
    serie.Ascolta({});
    serie.Estendi(4);
    EXPECT_EQ(aUltimi, (std::vector<std::int32_t>{5, 1}));
}

TEST(SerieSpunte, TagliataDimenticaLeSpunteEAllungataLeRifaVuote)
{
    SerieSpunte serie;
    serie.Estendi(5);
    serie(0).Segnata.Poni(true);
    serie(3).Segnata.Poni(true);
    serie.Taglia(1);
    EXPECT_EQ(serie.Ultimo(), 0);
    serie.Estendi(5);
    EXPECT_TRUE(serie(0).Segnata.Valore());
    EXPECT_FALSE(serie(3).Segnata.Valore());
    serie.Taglia(-7);
    EXPECT_EQ(serie.Ultimo(), -1);
    EXPECT_FALSE(serie.Qualcuna());
}

TEST(SerieSpunte, IFlagArrivanoFinoAlValoreChiesto)
{
    SerieSpunte serie;
    serie.Estendi(8);
    serie(2).Segnata.Poni(true);
    serie(7).Segnata.Poni(true);
    EXPECT_EQ(serie.Flag()(7), kVero);
    const FlagNumeri aFlag = serie.Flag(6);
    EXPECT_EQ(aFlag(2), kVero);
    EXPECT_EQ(aFlag(7), kFalso);
}

} // namespace
} // namespace ordavel
