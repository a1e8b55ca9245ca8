// Cadenza_prova.cpp - how often something is done, with a played clock.

#include "core/Cadenza.hpp"

#include <gtest/gtest.h>

#include <limits>

namespace ordavel {
namespace {

using std::chrono::milliseconds;

constexpr Cadenza::Istante Ora(int nMillisecondi)
{
    return Cadenza::Istante(milliseconds(nMillisecondi));
}

TEST(Cadenza, LaPrimaVoltaSubito)
{
    for (const int nAdesso : {0, 1, -1000, std::numeric_limits<int>::min()}) {
        Cadenza cadenza(milliseconds(40));
        EXPECT_TRUE(cadenza.Scaduta(Ora(nAdesso))) << nAdesso;
        EXPECT_FALSE(cadenza.Scaduta(Ora(nAdesso))) << nAdesso;
    }
}

TEST(Cadenza, PoiQuandoETrascorsoIlTempo)
{
    Cadenza cadenza(milliseconds(40));
    EXPECT_TRUE(cadenza.Scaduta(Ora(100)));
    EXPECT_FALSE(cadenza.Scaduta(Ora(139)));
    EXPECT_TRUE(cadenza.Scaduta(Ora(140)));
    EXPECT_FALSE(cadenza.Scaduta(Ora(179)));
    EXPECT_TRUE(cadenza.Scaduta(Ora(1000)));
    EXPECT_FALSE(cadenza.Scaduta(Ora(1039)));
    EXPECT_TRUE(cadenza.Scaduta(Ora(1040)));
}

TEST(Cadenza, ChiLoHaFattoDaSeAspettaDaLi)
{
    Cadenza cadenza(milliseconds(40));
    cadenza.Riparti(Ora(100));
    EXPECT_FALSE(cadenza.Scaduta(Ora(139)));
    EXPECT_TRUE(cadenza.Scaduta(Ora(140)));
}

TEST(Cadenza, NonPrimaDiUnIstante)
{
    Cadenza cadenza(milliseconds(40), Ora(500));
    EXPECT_FALSE(cadenza.Scaduta(Ora(499)));
    EXPECT_TRUE(cadenza.Scaduta(Ora(500)));
    EXPECT_FALSE(cadenza.Scaduta(Ora(539)));
    EXPECT_TRUE(cadenza.Scaduta(Ora(540)));
}

TEST(Cadenza, TrentaVolteAlSecondoEUnoStopEntroVentiMillisecondi)
{
    Cadenza mostra(kOgniMostra);
    Cadenza eventi(kOgniEventi);
    int nMostrate = 0;
    int nEventi = 0;
    for (int nMicro = 0; nMicro < 1'000'000; nMicro += 10) {
        const Cadenza::Istante adesso{std::chrono::microseconds(nMicro)};
        nMostrate += mostra.Scaduta(adesso) ? 1 : 0;
        nEventi += eventi.Scaduta(adesso) ? 1 : 0;
    }
    EXPECT_EQ(nMostrate, 30);
    EXPECT_EQ(nEventi, 200);
}

} // namespace
} // namespace ordavel
