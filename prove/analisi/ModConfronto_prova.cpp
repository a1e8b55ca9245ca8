// ModConfronto_prova.cpp - one column against every condition.

#include "analisi/ModConfronto.hpp"

#include "comune/ColonneProva.hpp"
#include "comune/Fallimenti.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace ordavel {
namespace {

using prove::ColonnaDi;
using prove::NumeroErrore;
using testing::ElementsAre;

class Confronto : public testing::Test {
protected:
    void Confronta(const std::vector<int>& aNumeri)
    {
        ConfrontaCondizioni(ColonnaDi(aNumeri).colonna, m_Griglia, m_aQuadro, m_Stato, m_Lista);
    }

    [[nodiscard]] std::vector<std::string> Celle(std::size_t nRiga) const
    {
        return m_Lista.Righe.Valore().at(nRiga).aSotto;
    }

    GrigliaCondizioni m_Griglia;
    std::vector<std::string> m_aQuadro;
    StatoSviluppo m_Stato;
    Elenco m_Lista;
};

TEST(NomeCondizione, IVentiEITrentacinqueNonHannoNome)
{
    EXPECT_EQ(NomeCondizione(TipoCondizione::peso), "Peso");
    EXPECT_EQ(NomeCondizione(TipoCondizione::linkClose), "LinkClose");
    EXPECT_EQ(NomeCondizione(TipoCondizione::sommaComplessiva), "SommaComplessiva");
    for (const int nTipo : {0, 20, 21, 22, 23, 24, 25, 26, 35, 36, 37, 38}) {
        EXPECT_EQ(NomeCondizione(static_cast<TipoCondizione>(nTipo)), "") << nTipo;
    }
}

TEST(ClasseColonna, EIlPostoDellUltimoNumero)
{
    EXPECT_EQ(ClasseColonna(Colonna{}), 0);
    EXPECT_EQ(ClasseColonna(ColonnaDi({5, 0, 7}).colonna), 3);
    Colonna piena;
    piena.aNumeri.fill(1);
    EXPECT_EQ(ClasseColonna(piena), 20);
}

TEST_F(Confronto, UnaListaUnIntervalloERecupero)
{
    m_Griglia.Riga(1) = {"Consecutivi", "", "0-1", "2", "1"};
    m_Griglia.Riga(2) = {"Peso", "Caselle :\r\n1-2", "10-20", "5-30", "2"};
    Confronta({1, 2, 3, 40, 60});
    EXPECT_EQ(m_Lista.Righe.Valore()[0].sTesto, "1");
    EXPECT_THAT(Celle(0), ElementsAre("Consecutivi", "0-1", "2", "2", "Si"));
    EXPECT_THAT(Celle(1), ElementsAre("Peso", "10-20", "5-30", "3", "No"));
}

TEST_F(Confronto, IColoriDiconoLEsito)
{
    m_aQuadro.assign(20, "-1,-1,-0");
    m_aQuadro[0] = "1,1,-1";
    m_Griglia.Riga(1) = {"Consecutivi", "", "2", "", ""};
    m_Griglia.Riga(2) = {"Consecutivi", "", "0", "2", "1"};
    m_Griglia.Riga(3) = {"Consecutivi", "", "0", "", ""};
    Confronta({1, 2, 3, 40, 60});
    std::vector<Colore> aColori;
    std::vector<std::string> aEsiti;
    for (const RigaElenco& riga : m_Lista.Righe.Valore()) {
        aColori.push_back(riga.nColore);
        aEsiti.push_back(riga.aSotto.back());
        EXPECT_EQ(riga.nColonnaColorata, std::size_t{4});
    }
    EXPECT_EQ(aEsiti[0], "Si");
    EXPECT_EQ(aColori[0], kColoreSuperata);
    EXPECT_EQ(aEsiti[1], "Si");
    EXPECT_EQ(aEsiti[2], "No");
    EXPECT_EQ(aColori[2], kColoreScartata);
}

TEST_F(Confronto, ILinkHannoSoloIlNome)
{
    m_Griglia.Riga(1) = {"LinkOpen", "", "", "", ""};
    m_Griglia.Riga(2) = {"Ponte", "", "0", "", ""};
    m_Griglia.Riga(3) = {"LinkClose", "", "0-1", "", ""};
    Confronta({1, 2, 3, 40, 60});
    EXPECT_THAT(Celle(0), ElementsAre("LinkOpen"));
    EXPECT_EQ(Celle(1).size(), std::size_t{5});
    EXPECT_THAT(Celle(2), ElementsAre("LinkClose"));
}

TEST_F(Confronto, UnaColonnaDiZeriLasciaLElencoVuoto)
{
    m_Griglia.Riga(1) = {"Ponte", "", "0", "", ""};
    Confronta({});
    EXPECT_TRUE(m_Lista.Righe.Valore().empty());
}

TEST_F(Confronto, SenzaPuntiCEUnTratto)
{
    m_Griglia.Riga(1) = {"Peso", "Caselle :\r\n1", "-", "-", " "};
    Confronta({1, 2, 3, 40, 60});
    EXPECT_THAT(Celle(0), ElementsAre("Peso", "-", "-", "1", "No"));
}

TEST_F(Confronto, UnEmulatoreSenzaEstrazioniFallisce)
{
    m_Griglia.Riga(1) = {"Emulatore", "[1]\r\nP0) 0 - 9\r\n", "", "", ""};
    EXPECT_EQ(NumeroErrore([&] { Confronta({1, 2, 3, 40, 60}); }), 9);
    m_Stato.bEmulatoreCaricato = true;
    EXPECT_EQ(NumeroErrore([&] { Confronta({1, 2, 3, 40, 60}); }), std::nullopt);
}

} // namespace
} // namespace ordavel
