// OrdavelContenuto_prova.cpp - what a user has stated, taken out and put back.

#include "controllo/SistemaProva.hpp"

#include <gtest/gtest.h>

namespace ordavel {

namespace {

const Condizione kPrima{"Peso", "Caselle :\r\n1-2", "10-20", "-", " "};
const Condizione kSeconda{"Ponte", "-", "1", "-", " "};

using namespace prove;

struct OrdavelContenuto : testing::Test {
    PiattaformaProva piattaforma;
    Ordavel sistema{piattaforma};
};

} // namespace

TEST_F(OrdavelContenuto, UnSistemaVuotoNonHaRighe)
{
    EXPECT_TRUE(sistema.Contenuto().aCondizioni.empty());
}

TEST_F(OrdavelContenuto, UnaRigaVuotaInMezzoRestaAlSuoPosto)
{
    sistema.GetGridCond().Riga(1) = kPrima;
    sistema.GetGridCond().Riga(3) = kSeconda;
    const std::vector<Condizione> attese{kPrima, Condizione{}, kSeconda};
    EXPECT_EQ(sistema.Contenuto().aCondizioni, attese);
}

TEST_F(OrdavelContenuto, QuelCheSiRimetteEQuelCheSiEraPreso)
{
    sistema.GetGridCond().Riga(1) = kPrima;
    sistema.SelezionaNumero(7, true);
    sistema.GetLbQuadroRec().Voci.Poni({"1,2,1"});
    const ContenutoSistema prima = sistema.Contenuto();
    sistema.GetGridCond().Riga(1) = kSeconda;
    sistema.GetGridCond().Riga(2) = kPrima;
    sistema.SelezionaNumero(7, false);
    sistema.GetLbQuadroRec().Voci.Poni({});
    ASSERT_FALSE(sistema.Contenuto() == prima);
    sistema.PoniContenuto(prima, true);
    EXPECT_EQ(sistema.Contenuto(), prima);
    EXPECT_TRUE(sistema.Modificato());
    EXPECT_EQ(sistema.ContaNumeriSel(), 1);
}

TEST_F(OrdavelContenuto, RimettereQuelCheFuSalvatoNonContaComeModifica)
{
    const ContenutoSistema prima = sistema.Contenuto();
    sistema.GetGridCond().Riga(1) = kPrima;
    sistema.PoniContenuto(prima, false);
    EXPECT_FALSE(sistema.Modificato());
    EXPECT_FALSE(sistema.ColonneValide());
}

TEST_F(OrdavelContenuto, LaRevisioneCresceAOgniScrittura)
{
    const std::uint64_t nPrima = sistema.GetGridCond().Revisione();
    sistema.GetGridCond().Riga(1) = kPrima;
    EXPECT_GT(sistema.GetGridCond().Revisione(), nPrima);
}

} // namespace ordavel
