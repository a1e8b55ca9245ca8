// EtichettaConto_prova.cpp - counts in words, and the line that shows them.

#include "qt/EtichettaConto.hpp"

#include "qt/ContoVivo.hpp"
#include "qt/GrigliaProva.hpp"
#include "qt/TestoConto.hpp"

#include <QTest>
#include <gtest/gtest.h>

namespace ordavel::qt {

namespace {

ConteggioSistema Esatto(double nColonne, double nPassano)
{
    ConteggioSistema conto;
    conto.nColonne = nColonne;
    conto.nPassano = nPassano;
    conto.bEsatto = true;
    return conto;
}

ConteggioSistema Stima(double nColonne, double nPassano, double nErrore)
{
    ConteggioSistema conto = Esatto(nColonne, nPassano);
    conto.nErrore = nErrore;
    conto.bEsatto = false;
    return conto;
}

} // namespace

TEST(TestoConto, UnContoEsattoDiceSuQuante)
{
    const ConteggioSistema conto = Esatto(43949268, 1234567);
    EXPECT_EQ(TestoPassano(conto), "Passano: 1.234.567 su 43.949.268 (2,81 %)");
    EXPECT_EQ(TestoPassano(Esatto(120, 0)), "Passano: 0 su 120 (0,00 %)");
    EXPECT_EQ(TestoPassano(Esatto(43949268, 3)), "Passano: 3 su 43.949.268 (< 0,01 %)");
}

TEST(TestoConto, UnaStimaHaLeCifreCheMerita)
{
    const ConteggioSistema conto = Stima(43949268, 1234321, 12000);
    EXPECT_EQ(TestoPassano(conto), "Passano circa 1.234.000 (± 12.000)");
    EXPECT_EQ(TestoPassanoIntero(conto), "Passano circa 1.234.000 (± 12.000) su 43.949.268, circa 2,81 %");
    EXPECT_EQ(TestoPassano(Stima(100, 7.4, 2.5)), "Passano circa 7 (± 3)");
}

TEST(TestoConto, LArticoloEQuelloCheSiDice)
{
    const std::vector<std::pair<double, const char*>> aCasi{
        {0.632, "Taglia il 63,2 %"}, {0.08, "Taglia l'8,0 %"},   {0.815, "Taglia l'81,5 %"},
        {0.11, "Taglia l'11,0 %"},   {0.004, "Taglia lo 0,4 %"}, {0.0001, "Taglia meno dello 0,1 %"},
        {1, "Taglia il 100,0 %"},    {0, "Taglia lo 0,0 %"},     {0.01, "Taglia l'1,0 %"}};
    for (const auto& [nQuota, sAtteso] : aCasi) {
        EXPECT_EQ(TestoTaglio(nQuota, true), sAtteso);
    }
    EXPECT_EQ(TestoTaglio(0.5, false), "Taglia circa il 50,0 %");
}

namespace {

struct EtichettaContoProva : testing::Test, protected prove::GrigliaProva {
    EtichettaContoProva() { etichetta.segui(conto); }

    ContoVivo conto{sistema};
    EtichettaConto etichetta;
};

} // namespace

TEST_F(EtichettaContoProva, MostraCheContaEPoiIlConto)
{
    Pronostico(3, 1, 10);
    conto.controlla();
    EXPECT_EQ(etichetta.text(), "Passano: …");
    EXPECT_EQ(etichetta.accessibleName(), "Passano:, conto in corso");
    ASSERT_TRUE(QTest::qWaitFor([&] { return !conto.occupato(); }));
    EXPECT_EQ(etichetta.text(), "Passano: 120 su 120 (100,00 %)");
    EXPECT_EQ(etichetta.accessibleName(), etichetta.text());
}

TEST_F(EtichettaContoProva, DicePercheNonCeUnConto)
{
    Pronostico(5, 1, 4);
    conto.controlla();
    ASSERT_TRUE(QTest::qWaitFor([&] { return !conto.occupato(); }));
    EXPECT_EQ(etichetta.text(), "Nessun conto: numeri insufficienti");
}

} // namespace ordavel::qt
