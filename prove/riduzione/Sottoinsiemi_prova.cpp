// Sottoinsiemi_prova.cpp - ranks of the sets of numbers in a column.

#include "riduzione/Sottoinsiemi.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <numeric>
#include <vector>

namespace ordavel {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::vector<std::uint64_t> Ranghi(const std::vector<std::uint8_t>& aPosti, std::size_t nGrandezza)
{
    std::vector<std::uint64_t> aRanghi;
    PerOgniSottoinsieme(aPosti, nGrandezza, [&](std::uint64_t n) { aRanghi.push_back(n); });
    return aRanghi;
}

TEST(Sottoinsiemi, OgniInsiemeHaUnRangoSuoSenzaVuoti)
{
    std::vector<std::uint8_t> aPosti(14);
    std::iota(aPosti.begin(), aPosti.end(), std::uint8_t{0});
    for (std::size_t s = 0; s <= kSottoinsiemeMassimo; ++s) {
        std::vector<std::uint64_t> aRanghi = Ranghi(aPosti, s);
        std::ranges::sort(aRanghi);
        std::vector<std::uint64_t> aAttesi(NumeroSottoinsiemi(aPosti.size(), s));
        std::iota(aAttesi.begin(), aAttesi.end(), std::uint64_t{0});
        EXPECT_EQ(aRanghi, aAttesi) << s;
    }
}

TEST(Sottoinsiemi, LUltimoInsiemeDiNovantaNumeriHaLUltimoRango)
{
    EXPECT_THAT(Ranghi({80, 81, 82, 83, 84, 85, 86, 87, 88, 89}, 10),
                ElementsAre(NumeroSottoinsiemi(90, 10) - 1));
    EXPECT_EQ(NumeroSottoinsiemi(90, 6), 622614630U);
}

TEST(Sottoinsiemi, PiuNumeriDiQuantiCeNeSonoNonNeDanno)
{
    EXPECT_THAT(Ranghi({1, 2, 3}, 4), IsEmpty());
    EXPECT_THAT(Ranghi({1, 2, 3}, kSottoinsiemeMassimo + 1), IsEmpty());
}

TEST(Sottoinsiemi, LInsiemeVuotoStaInOgniColonnaUnaVolta)
{
    EXPECT_THAT(Ranghi({}, 0), ElementsAre(0U));
    EXPECT_THAT(Ranghi({5, 9}, 0), ElementsAre(0U));
}

} // namespace
} // namespace ordavel
