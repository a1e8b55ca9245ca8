// ModLimiti_prova.cpp - the limits of the range dialogs.

#include "editor/ModLimiti.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

namespace ordavel {
namespace {

NumeriScelti Scelti(const std::vector<std::int16_t>& aNumeri)
{
    NumeriScelti aScelti;
    std::copy(aNumeri.begin(), aNumeri.end(), aScelti.aElementi.begin());
    return aScelti;
}

TEST(ModLimiti, LaSommaEDeiPiuBassiEDeiPiuAlti)
{
    EXPECT_EQ(LimitiNumeri(eLimiti::somma, 2, Scelti({1, 4, 9, 20})), (Limiti{5, 29}));
}

TEST(ModLimiti, LaMediaPerdeLaParteDecimale)
{
    EXPECT_EQ(LimitiNumeri(eLimiti::media, 2, Scelti({1, 4, 9, 20})), (Limiti{2, 14}));
}

TEST(ModLimiti, LAmpiezzaMinimaNonEQuellaVera)
{
    // The last start of two neighbours below the second pick is the first: 4 - 1, though 9 and 10 lie closer.
    EXPECT_EQ(LimitiNumeri(eLimiti::ampiezza, 2, Scelti({1, 4, 9, 10})), (Limiti{3, 9}));
}

TEST(ModLimiti, LAmpiezzaFermaLaRicercaAllUltimoInizioPiuBasso)
{
    // Starts 3, 2, 1 of runs of three: the second pick, 2, is the last below the third, 5.
    EXPECT_EQ(LimitiNumeri(eLimiti::ampiezza, 3, Scelti({1, 2, 5, 6, 7})), (Limiti{3, 6}));
}

TEST(ModLimiti, LeCorseComincianoSoloDoveCiSonoAbbastanzaNumeri)
{
    // Three picks in class 3 have one run only, and its start is the first pick.
    EXPECT_EQ(LimitiNumeri(eLimiti::ampiezza, 3, Scelti({1, 2, 5})), (Limiti{4, 4}));
}

TEST(ModLimiti, ConPochiNumeriNonCeNulla)
{
    for (const eLimiti limiti : {eLimiti::somma, eLimiti::ampiezza, eLimiti::media}) {
        EXPECT_FALSE(LimitiNumeri(limiti, 5, Scelti({1, 2, 3, 4})));
        EXPECT_FALSE(LimitiNumeri(limiti, 0, Scelti({1, 2, 3, 4})));
    }
    EXPECT_FALSE(LimitiNumeri(eLimiti::ampiezza, 1, Scelti({1, 2, 3})));
    EXPECT_FALSE(LimitiNumeri(eLimiti::nessuno, 2, Scelti({1, 2, 3})));
}

TEST(ModLimiti, NovantaNumeriRiempionoLaTabella)
{
    std::vector<std::int16_t> aTutti;
    for (std::int16_t n = 1; n <= kNumeroMassimo; ++n) {
        aTutti.push_back(n);
    }
    EXPECT_EQ(LimitiNumeri(eLimiti::somma, 5, Scelti(aTutti)), (Limiti{15, 440}));
}

} // namespace
} // namespace ordavel
