// ModTabelle_prova.cpp - lookups by number.

#include "core/ModTabelle.hpp"

#include "comune/Fallimenti.hpp"

#include <gtest/gtest.h>

#include <string>

namespace ordavel {
namespace {

using prove::NumeroErrore;

/// Digits of the written number summed until one is left.
int SommaCifre(int nNumero)
{
    int nSomma = 0;
    for (const char c : std::to_string(nNumero)) {
        nSomma += c - '0';
    }
    return nSomma > 9 ? SommaCifre(nSomma) : nSomma;
}

TEST(ModTabelle, LeCadenzeSonoLUltimaCifra)
{
    for (int n = 1; n <= 90; ++n) {
        EXPECT_EQ(kTabelle.TabCadenze(n), std::to_string(n).back() - '0') << n;
    }
}

TEST(ModTabelle, LeDecineCambianoDopoLoZero)
{
    EXPECT_EQ(kTabelle.TabDecine(1), 0);
    EXPECT_EQ(kTabelle.TabDecine(10), 0);
    EXPECT_EQ(kTabelle.TabDecine(11), 1);
    EXPECT_EQ(kTabelle.TabDecine(20), 1);
    EXPECT_EQ(kTabelle.TabDecine(80), 7);
    EXPECT_EQ(kTabelle.TabDecine(81), 8);
    EXPECT_EQ(kTabelle.TabDecine(90), 8);
}

TEST(ModTabelle, LaDecinaScalareELaCifraDelleDecine)
{
    EXPECT_EQ(Decina(9), 0);
    EXPECT_EQ(Decina(10), 1);
    EXPECT_EQ(Decina(90), 9);
}

TEST(ModTabelle, LeFigureDegliEsempi)
{
    EXPECT_EQ(kTabelle.TabFigure(9), 0);
    EXPECT_EQ(kTabelle.TabFigure(10), 1);
    EXPECT_EQ(kTabelle.TabFigure(18), 9);
    EXPECT_EQ(kTabelle.TabFigure(19), 1);
    EXPECT_EQ(kTabelle.TabFigure(79), 7);
    EXPECT_EQ(kTabelle.TabFigure(88), 7);
    EXPECT_EQ(kTabelle.TabFigure(90), 9);
}

TEST(ModTabelle, LaFiguraEDiversaDallaSommaDelleCifreSoloPerNove)
{
    for (int n = 1; n <= 90; ++n) {
        EXPECT_EQ(kTabelle.TabFigure(n), n == 9 ? 0 : SommaCifre(n)) << n;
        EXPECT_EQ(Figura(static_cast<std::uint8_t>(n)), kTabelle.TabFigure(n)) << n;
    }
}

TEST(ModTabelle, LeFormuleDividonoInTerzi)
{
    for (int n = 1; n <= 90; ++n) {
        EXPECT_EQ(kTabelle.TabFormule(n), n <= 30 ? 1 : n <= 60 ? 2 : 3) << n;
    }
}

TEST(ModTabelle, FuoriDa1E90LeTabelleFalliscono)
{
    EXPECT_EQ(NumeroErrore([] { (void)kTabelle.TabFigure(0); }), 9);
    EXPECT_EQ(NumeroErrore([] { (void)kTabelle.TabFigure(91); }), 9);
}

} // namespace
} // namespace ordavel
