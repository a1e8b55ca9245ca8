// ModIntegrali_prova.cpp - counts of whole systems and of shared numbers.

#include "motore/ModIntegrali.hpp"

#include "comune/ColonneProva.hpp"
#include "comune/Fallimenti.hpp"
#include "motore/CorsaProva.hpp"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <iterator>

namespace ordavel {
namespace {

using prove::ColonnaDi;
using prove::NumeroErrore;

TEST(ModIntegrali, ISistemiInteriNotiTornano)
{
    EXPECT_NEAR(CalcolaIntegrali(90, 5), 43949268, 1e-6);
    EXPECT_NEAR(CalcolaIntegrali(90, 6), 622614630, 1e-5);
    EXPECT_NEAR(CalcolaIntegrali(90, 10), 5720645481903, 0.1);
    EXPECT_EQ(CalcolaIntegrali(4, 2), 6);
}

TEST(ModIntegrali, TantiNumeriQuantaLaClasseDannoUnaColonna)
{
    for (int n = 1; n <= kNumeroMassimo; ++n) {
        EXPECT_EQ(CalcolaIntegrali(n, n), 1) << n;
    }
}

TEST(ModIntegrali, MenoNumeriDellaClasseDanno0)
{
    EXPECT_EQ(CalcolaIntegrali(4, 5), 0);
    EXPECT_EQ(CalcolaIntegrali(0, 2), 0);
}

TEST(ModIntegrali, LaClasse0FallisceNellaDivisione)
{
    EXPECT_EQ(NumeroErrore([] { static_cast<void>(CalcolaIntegrali(5, 0)); }), 11);
}

TEST(ModIntegrali, IlFattorialeDi0Vale0)
{
    EXPECT_EQ(Fattoriale(0), 0);
    EXPECT_EQ(Fattoriale(1), 1);
    EXPECT_EQ(Fattoriale(5), 120);
}

RC_GTEST_PROP(ModIntegrali, OgniNumeroInPiuAggiungeLeColonneCheLoTengono, ())
{
    const int n = *rc::gen::inRange(3, 60);
    const int k = *rc::gen::inRange(2, std::min(n, 11));
    const double nSomma = CalcolaIntegrali(n - 1, k) + CalcolaIntegrali(n - 1, k - 1);
    RC_ASSERT(std::abs(CalcolaIntegrali(n, k) - nSomma) <= nSomma * 1e-12);
}

TEST(ModIntegrali, INumeriComuniStannoInTutteEDue)
{
    const auto prima = ColonnaDi({3, 7, 12, 90});
    const auto seconda = ColonnaDi({7, 11, 12, 89});
    EXPECT_EQ(ContaNumeriComuni(4, prima.colonna, seconda.colonna), 2);
    EXPECT_EQ(ContaNumeriComuni(2, prima.colonna, seconda.colonna), 1) << "solo le prime due posizioni";
    EXPECT_EQ(ContaNumeriComuni(4, prima.colonna, prima.colonna), 4);
}

TEST(ModIntegrali, UnNumeroOltre90FallisceDaOgniParte)
{
    const auto buona = ColonnaDi({3, 7});
    const auto guasta = ColonnaDi({3, 91});
    EXPECT_EQ(NumeroErrore([&] { static_cast<void>(ContaNumeriComuni(2, buona.colonna, guasta.colonna)); }),
              9);
    EXPECT_EQ(NumeroErrore([&] { static_cast<void>(ContaNumeriComuni(2, guasta.colonna, buona.colonna)); }),
              9);
}

TEST(ModIntegrali, UnaClasseOltre20Fallisce)
{
    EXPECT_EQ(NumeroErrore([] { static_cast<void>(ContaNumeriComuni(21, Colonna{}, Colonna{})); }), 9);
}

RC_GTEST_PROP(ModIntegrali, INumeriComuniSonoLIntersezione, ())
{
    const auto prima = *prove::GeneraColonna(20);
    const auto seconda = *prove::GeneraColonna(20);
    const auto nClasse = static_cast<std::int16_t>(*rc::gen::inRange(1, 21));
    std::vector<int> aUno = prima.Numeri();
    std::vector<int> aDue = seconda.Numeri();
    aUno.resize(static_cast<std::size_t>(nClasse));
    aDue.resize(static_cast<std::size_t>(nClasse));
    std::vector<int> aComuni;
    std::set_intersection(aUno.begin(), aUno.end(), aDue.begin(), aDue.end(), std::back_inserter(aComuni));
    RC_ASSERT(ContaNumeriComuni(nClasse, prima.colonna, seconda.colonna) == static_cast<int>(aComuni.size()));
}

TEST(ModIntegrali, ContaNumeriContaIScelti)
{
    EXPECT_EQ(ContaNumeri(NumeriScelti{}), 0);
    EXPECT_EQ(ContaNumeri(prove::Pronostico({3, 7, 90})), 3);
    EXPECT_EQ(ContaNumeri(prove::Pronostico(prove::Fila(1, 90))), 90);
}

} // namespace
} // namespace ordavel
