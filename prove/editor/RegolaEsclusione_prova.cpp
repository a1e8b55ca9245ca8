// RegolaEsclusione_prova.cpp - a value is accepted, or it may be recovered, never both.

#include "editor/RegolaEsclusione.hpp"

#include "comune/Fallimenti.hpp"
#include "editor/UtenteProva.hpp"

#include <gtest/gtest.h>

namespace ordavel {
namespace {

using prove::Abilitate;
using prove::NumeroErrore;
using prove::Segna;
using prove::Segnate;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::int32_t kUltimo = 3;

class UnaRegola : public testing::Test {
protected:
    UnaRegola()
    {
        LoadComboquadroRec(m_Gruppo);
        m_Regola.Carica(kUltimo);
    }

    void ScegliGruppo(std::int32_t nIndice)
    {
        m_Gruppo.Indice.Poni(nIndice);
        m_Regola.AbilitaChkRecupero();
    }

    SerieSpunte m_Punti;
    SerieSpunte m_Recupero;
    Combo m_Gruppo;
    RegolaEsclusione m_Regola{m_Punti, m_Recupero, m_Gruppo};
};

TEST(LoadComboquadroRec, OffreUnBlankEIVentiGruppiEScegliIlPrimo)
{
    Combo combo;
    LoadComboquadroRec(combo);
    ASSERT_EQ(combo.Voci.Valore().size(), std::size_t{21});
    EXPECT_EQ(combo.Voci.Valore().front(), " ");
    EXPECT_EQ(combo.Voci.Valore()[1], "1");
    EXPECT_EQ(combo.Voci.Valore().back(), "20");
    EXPECT_EQ(combo.Indice.Valore(), 0);
}

TEST(ConGruppo, IlBlankELaMancanzaDiSceltaNonSonoGruppi)
{
    Combo combo;
    LoadComboquadroRec(combo);
    EXPECT_FALSE(ConGruppo(combo));
    combo.Indice.Poni(-1);
    EXPECT_FALSE(ConGruppo(combo));
    combo.Indice.Poni(20);
    EXPECT_TRUE(ConGruppo(combo));
}

TEST_F(UnaRegola, AlCaricamentoIlRecuperoESpento)
{
    EXPECT_THAT(Abilitate(m_Punti), ElementsAre(0, 1, 2, 3));
    EXPECT_THAT(Abilitate(m_Recupero), IsEmpty());
}

TEST_F(UnaRegola, SenzaGruppoIlClickNonToccaIlRecupero)
{
    Segna(m_Recupero, {1});
    Segna(m_Punti, {1});
    EXPECT_THAT(Segnate(m_Recupero), ElementsAre(1));
    m_Punti(1).Segnata.Poni(false);
    EXPECT_THAT(Abilitate(m_Recupero), IsEmpty());
}

TEST_F(UnaRegola, ColGruppoLaSpuntaCancellaESpegneSoloIlSuoValore)
{
    ScegliGruppo(4);
    Segna(m_Recupero, {1, 2});
    Segna(m_Punti, {1});
    EXPECT_THAT(Segnate(m_Recupero), ElementsAre(2));
    EXPECT_THAT(Abilitate(m_Recupero), ElementsAre(0, 2, 3));
}

TEST_F(UnaRegola, ColGruppoLaSpuntaToltaRiaccendeMaNonRisegna)
{
    ScegliGruppo(1);
    Segna(m_Recupero, {1});
    Segna(m_Punti, {1});
    m_Punti(1).Segnata.Poni(false);
    EXPECT_THAT(Abilitate(m_Recupero), ElementsAre(0, 1, 2, 3));
    EXPECT_THAT(Segnate(m_Recupero), IsEmpty());
}

TEST_F(UnaRegola, LaSpuntaDelRecuperoNonToccaGliAccettati)
{
    ScegliGruppo(1);
    Segna(m_Punti, {0});
    Segna(m_Recupero, {2});
    EXPECT_THAT(Segnate(m_Punti), ElementsAre(0));
    EXPECT_THAT(Abilitate(m_Punti), ElementsAre(0, 1, 2, 3));
}

TEST_F(UnaRegola, IlGruppoSceltoAccendeSoloINonAccettati)
{
    Segna(m_Punti, {0, 3});
    Segna(m_Recupero, {2, 3});
    ScegliGruppo(1);
    EXPECT_THAT(Abilitate(m_Recupero), ElementsAre(1, 2));
    EXPECT_THAT(Segnate(m_Recupero), ElementsAre(2));
}

TEST_F(UnaRegola, DaUnGruppoAllAltroLeSpunteRestano)
{
    ScegliGruppo(1);
    Segna(m_Punti, {0});
    Segna(m_Recupero, {2});
    ScegliGruppo(9);
    EXPECT_THAT(Segnate(m_Recupero), ElementsAre(2));
    EXPECT_THAT(Abilitate(m_Recupero), ElementsAre(1, 2, 3));
}

TEST_F(UnaRegola, IlBlankCancellaESpegneTuttoIlRecupero)
{
    ScegliGruppo(1);
    Segna(m_Punti, {0});
    Segna(m_Recupero, {1, 2});
    ScegliGruppo(0);
    EXPECT_THAT(Segnate(m_Recupero), IsEmpty());
    EXPECT_THAT(Abilitate(m_Recupero), IsEmpty());
    EXPECT_THAT(Segnate(m_Punti), ElementsAre(0));
}

TEST_F(UnaRegola, RicaricataPerdeTutteLeSpunteEAncheLoZero)
{
    ScegliGruppo(1);
    Segna(m_Punti, {0, 2});
    Segna(m_Recupero, {1});
    m_Regola.Carica(kUltimo);
    EXPECT_THAT(Segnate(m_Punti), IsEmpty());
    EXPECT_THAT(Segnate(m_Recupero), IsEmpty());
    EXPECT_THAT(Abilitate(m_Recupero), ElementsAre(0, 1, 2, 3));
}

TEST_F(UnaRegola, LaSerieDaZeroTieneSempreLoZero)
{
    m_Regola.Carica(-4);
    EXPECT_EQ(m_Punti.Ultimo(), 0);
    EXPECT_EQ(m_Recupero.Ultimo(), 0);
}

TEST(RegolaEsclusione, LaSerieDaUnoPuoRestareVuota)
{
    SerieSpunte punti(1);
    SerieSpunte recupero(1);
    Combo gruppo;
    RegolaEsclusione regola(punti, recupero, gruppo);
    regola.Carica(0);
    EXPECT_EQ(punti.Ultimo(), 0);
    EXPECT_EQ(NumeroErrore([&] { static_cast<void>(punti(0)); }), 9);
    regola.Carica(2);
    EXPECT_THAT(Abilitate(punti), ElementsAre(1, 2));
}

TEST_F(UnaRegola, SegnaListaLeggeINumeriSenzaZeriDavanti)
{
    SegnaLista(m_Punti, "00-02-3", "-");
    EXPECT_THAT(Segnate(m_Punti), ElementsAre(0, 2, 3));
}

TEST_F(UnaRegola, SegnaListaSegnaNullaDalTestoVuotoELoZeroDallaParteVuota)
{
    SegnaLista(m_Punti, "", "-");
    EXPECT_THAT(Segnate(m_Punti), IsEmpty());
    SegnaLista(m_Punti, "1,,2", ",");
    EXPECT_THAT(Segnate(m_Punti), ElementsAre(0, 1, 2));
}

TEST_F(UnaRegola, SegnaListaSiFermaAlValoreSenzaCasella)
{
    EXPECT_EQ(NumeroErrore([&] { SegnaLista(m_Punti, "1-4-2", "-"); }), 9);
    EXPECT_THAT(Segnate(m_Punti), ElementsAre(1));
}

TEST_F(UnaRegola, SegnaListaColGruppoSegueLaRegola)
{
    ScegliGruppo(1);
    Segna(m_Recupero, {1, 2});
    SegnaLista(m_Punti, "1", "-");
    EXPECT_THAT(Segnate(m_Recupero), ElementsAre(2));
}

} // namespace
} // namespace ordavel
