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
using testing::IsEmpty;

class Confronto : public testing::Test {
protected:
    void Confronta(const std::vector<int>& aNumeri)
    {
        m_aTagli = ConfrontaCondizioni(ColonnaDi(aNumeri).colonna, m_Griglia, m_aQuadro, m_Stato, m_Lista);
    }

    [[nodiscard]] std::vector<std::string> Celle(std::size_t nRiga) const
    {
        return m_Lista.Righe.Valore().at(nRiga).aSotto;
    }

    GrigliaCondizioni m_Griglia;
    std::vector<std::string> m_aQuadro;
    StatoSviluppo m_Stato;
    Elenco m_Lista;
    std::vector<std::size_t> m_aTagli;
};

TEST(NomeCondizione, OgniTipoHaIlSuoNomeEAlcuniNessuno)
{
    const std::vector<std::string> aNomi{"",
                                         "LinkOpen",
                                         "LinkClose",
                                         "Punti Col.",
                                         "Pari-Dispari",
                                         "Peso",
                                         "Resto",
                                         "Ampiezza",
                                         "Vortice",
                                         "Simmetrie",
                                         "Consecutivi",
                                         "InterruzioniPD",
                                         "Baricentro",
                                         "Distanza Minima",
                                         "Distanza Massima",
                                         "Posizioni",
                                         "Ponte",
                                         "Sequenze",
                                         "Paralleli",
                                         "GruppiDiConsecutivi",
                                         "",
                                         "",
                                         "",
                                         "",
                                         "",
                                         "",
                                         "",
                                         "SimmetrieNum",
                                         "ParalleliNum",
                                         "Fulcro",
                                         "SommaCadenze",
                                         "SommaDecine",
                                         "SommaFigure",
                                         "SommaNumeretti",
                                         "SommaComplessiva",
                                         "",
                                         "",
                                         "",
                                         ""};
    for (std::size_t nTipo = 0; nTipo < aNomi.size(); ++nTipo) {
        EXPECT_EQ(NomeCondizione(static_cast<TipoCondizione>(nTipo)), aNomi[nTipo]) << nTipo;
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
    m_Griglia.Riga(3) = {"Consecutivi", "", "0", "2", "2"};
    m_Griglia.Riga(4) = {"Consecutivi", "", "0", "", ""};
    Confronta({1, 2, 3, 40, 60});
    std::vector<Colore> aColori;
    std::vector<std::string> aEsiti;
    for (const RigaElenco& riga : m_Lista.Righe.Valore()) {
        aColori.push_back(riga.nColore);
        aEsiti.push_back(riga.aSotto.back());
        EXPECT_EQ(riga.nColonnaColorata, std::size_t{4});
    }
    EXPECT_THAT(aEsiti, ElementsAre("Si", "Si", "Si", "No"));
    EXPECT_THAT(aColori, ElementsAre(65280, 65280, 65535, 255)) << "green, recovered, recoverable, failed";
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

TEST_F(Confronto, UnTrattoConUnSoloLimiteDiversoDaZeroSiVede)
{
    m_Griglia.Riga(1) = {"Peso", "Caselle :\r\n1", "0-10", "5-0", "1"};
    Confronta({1, 2, 3, 40, 60});
    EXPECT_THAT(Celle(0), ElementsAre("Peso", "0-10", "5-0", "1", "Si"));
}

TEST_F(Confronto, UnEmulatoreSenzaEstrazioniFallisce)
{
    m_Griglia.Riga(1) = {"Emulatore", "[1]\r\nP0) 0 - 9\r\n", "", "", ""};
    EXPECT_EQ(NumeroErrore([&] { Confronta({1, 2, 3, 40, 60}); }), 9);
    m_Stato.bEmulatoreCaricato = true;
    EXPECT_EQ(NumeroErrore([&] { Confronta({1, 2, 3, 40, 60}); }), std::nullopt);
}

TEST_F(Confronto, TaglianoLeCondizioniNonSuperateFuoriDaiLink)
{
    m_aQuadro.assign(20, "-1,-1,-0");
    m_Griglia.Riga(1) = {"Consecutivi", "", "2", "", ""};
    m_Griglia.Riga(2) = {"Consecutivi", "", "0", "2", "1"};
    m_Griglia.Riga(3) = {"Ampiezza", "", "1-10", "-", " "};
    Confronta({1, 2, 3, 40, 60});
    EXPECT_THAT(m_aTagli, ElementsAre(1, 2)) << "the recoverable one is not recovered";
    m_aQuadro[0] = "1,1,-1";
    Confronta({1, 2, 3, 40, 60});
    EXPECT_THAT(m_aTagli, ElementsAre(2));
    m_Griglia.Riga(3).sPunti = "1-89";
    Confronta({1, 2, 3, 40, 60});
    EXPECT_THAT(m_aTagli, IsEmpty());
}

TEST_F(Confronto, UnLinkTagliaTuttoInsieme)
{
    m_Griglia.Riga(1) = {"LinkOpen", "", "", "", ""};
    m_Griglia.Riga(2) = {"Consecutivi", "", "2", "", ""};
    m_Griglia.Riga(3) = {"Consecutivi", "", "0", "", ""};
    m_Griglia.Riga(4) = {"LinkClose", "", "1", "", ""};
    m_Griglia.Riga(5) = {"Consecutivi", "", "0", "", ""};
    Confronta({1, 2, 3, 40, 60});
    EXPECT_THAT(m_aTagli, ElementsAre(4)) << "one of two is what the link asks for";
    m_Griglia.Riga(3).sPunti = "2";
    Confronta({1, 2, 3, 40, 60});
    EXPECT_THAT(m_aTagli, ElementsAre(3, 4)) << "both are one too many";
    m_Griglia.Riga(5).sPunti = "2";
    Confronta({1, 2, 3, 40, 60});
    EXPECT_THAT(m_aTagli, ElementsAre(3)) << "although every condition holds";
}

TEST_F(Confronto, DeiLinkUnoDentroLAltroParlaQuelloDiFuori)
{
    m_Griglia.Riga(1) = {"Consecutivi", "", "0", "", ""};
    m_Griglia.Riga(2) = {"LinkOpen", "", "", "", ""};
    m_Griglia.Riga(3) = {"LinkOpen", "", "", "", ""};
    m_Griglia.Riga(4) = {"Consecutivi", "", "0", "", ""};
    m_Griglia.Riga(5) = {"LinkClose", "", "2", "", ""};
    m_Griglia.Riga(6) = {"Consecutivi", "", "2", "", ""};
    m_Griglia.Riga(7) = {"LinkClose", "", "1", "", ""};
    m_Griglia.Riga(8) = {"Consecutivi", "", "0", "", ""};
    Confronta({1, 2, 3, 40, 60});
    EXPECT_THAT(m_aTagli, ElementsAre(0, 6, 7)) << "the outer link is judged by the list of the inner one";
    m_Griglia.Riga(5).sPunti = "1";
    Confronta({1, 2, 3, 40, 60});
    EXPECT_THAT(m_aTagli, ElementsAre(0, 7));
}

TEST_F(Confronto, LinkCheNonSiChiudonoNonTagliano)
{
    m_Griglia.Riga(1) = {"Consecutivi", "", "0", "", ""};
    m_Griglia.Riga(2) = {"LinkClose", "", "1", "", ""};
    m_Griglia.Riga(3) = {"LinkOpen", "", "", "", ""};
    m_Griglia.Riga(4) = {"Consecutivi", "", "0", "", ""};
    Confronta({1, 2, 3, 40, 60});
    EXPECT_THAT(m_aTagli, ElementsAre(0, 3));
}

} // namespace
} // namespace ordavel
