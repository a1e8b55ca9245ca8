// F_PuntiSuFormule_prova.cpp - the dialog of the counts in each third of 1 to 90.

#include "editor/F_PuntiSuFormule.hpp"

#include "condizioni/ModTestoCelle.hpp"
#include "editor/UtenteProva.hpp"

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <utility>
#include <vector>

namespace ordavel {
namespace {

using prove::Confermata;
using prove::GrigliaCon;
using prove::OspiteProva;
using prove::Riconfermata;
using prove::Rifiutata;
using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::int16_t kClasse = 6;
constexpr const char* kFormulaErrata =
    "Impostare la formula in modo che la somma delle 3 sezioni dia la classe di sviluppo";
constexpr const char* kRecuperoErrato =
    "Impostare la formula in recupero in modo che la somma delle 3 sezioni dia la classe di sviluppo";

using Terna = std::array<Combo, 3>;

const std::string kVerticale = "F\r\no\r\nr\r\nm\r\nu\r\nl\r\ne";

/// Chooses three counts; -1 for none.
void Scegli(Terna& aCombo, std::array<std::int32_t, 3> aConteggi)
{
    for (std::size_t i = 0; i < aCombo.size(); ++i) {
        aCombo[i].Indice.Poni(aConteggi[i]);
    }
}

std::vector<std::string> Testi(const Terna& aCombo)
{
    return {aCombo[0].Testo(), aCombo[1].Testo(), aCombo[2].Testo()};
}

std::vector<bool> Abilitate(const Terna& aCombo)
{
    return {aCombo[0].Abilitato.Valore(), aCombo[1].Abilitato.Valore(), aCombo[2].Abilitato.Valore()};
}

Condizione Celle(const char* sPunti, const char* sRecupero, const char* sQuadro)
{
    return {"Formule", kVerticale, sPunti, sRecupero, sQuadro};
}

class Formule : public testing::Test {
protected:
    OspiteProva m_Ospite{kClasse};
    F_PuntiSuFormule m_Dialogo{m_Ospite};
};

TEST(FPuntiSuFormule, HaNomeTitoloEStatistica)
{
    prove::ControllaCornice<F_PuntiSuFormule>("F_PuntiSuFormule", "Punti su formule", 25);
}

TEST_F(Formule, CaricatoOffreDaZeroAllaClasseSenzaSceltaEIlRecuperoESpento)
{
    for (const Terna* aCombo : {&m_Dialogo.CmbFormula, &m_Dialogo.CmbFormulaR}) {
        for (const Combo& combo : *aCombo) {
            EXPECT_THAT(combo.Voci.Valore(), ElementsAre("0", "1", "2", "3", "4", "5", "6"));
        }
        EXPECT_THAT(Testi(*aCombo), Each(""));
    }
    EXPECT_THAT(Abilitate(m_Dialogo.CmbFormula), Each(true));
    EXPECT_THAT(Abilitate(m_Dialogo.CmbFormulaR), Each(false));
    EXPECT_EQ(m_Dialogo.CmbRecupero.Testo(), " ");
}

TEST_F(Formule, IlGruppoAccendeIlRecuperoEIlBlankLoCancellaELoSpegne)
{
    Scegli(m_Dialogo.CmbFormula, {2, 2, 2});
    m_Dialogo.CmbRecupero.Indice.Poni(5);
    EXPECT_THAT(Abilitate(m_Dialogo.CmbFormulaR), Each(true));
    Scegli(m_Dialogo.CmbFormulaR, {1, 2, 3});
    m_Dialogo.CmbRecupero.Indice.Poni(6);
    EXPECT_THAT(Testi(m_Dialogo.CmbFormulaR), ElementsAre("1", "2", "3"));
    m_Dialogo.CmbRecupero.Indice.Poni(0);
    EXPECT_THAT(Testi(m_Dialogo.CmbFormulaR), Each(""));
    EXPECT_THAT(Abilitate(m_Dialogo.CmbFormulaR), Each(false));
    EXPECT_THAT(Testi(m_Dialogo.CmbFormula), Each("2"));
}

TEST_F(Formule, LaSommaDelleTreSezioniELaClasse)
{
    for (const auto& aGiusta : {std::array{2, 2, 2}, std::array{6, 0, 0}, std::array{-1, 6, -1}}) {
        Scegli(m_Dialogo.CmbFormula, aGiusta);
        EXPECT_TRUE(m_Dialogo.VerificaCoerenza());
    }
    for (const auto& aErrata : {std::array{2, 2, 1}, std::array{-1, -1, -1}, std::array{6, 1, 0}}) {
        Scegli(m_Dialogo.CmbFormula, aErrata);
        Rifiutata(m_Ospite, m_Dialogo, kFormulaErrata);
    }
}

TEST_F(Formule, ColGruppoAncheIlRecuperoDaLaClasse)
{
    Scegli(m_Dialogo.CmbFormula, {2, 2, 2});
    m_Dialogo.CmbRecupero.Indice.Poni(1);
    Rifiutata(m_Ospite, m_Dialogo, kRecuperoErrato);
    Scegli(m_Dialogo.CmbFormulaR, {3, 3, 1});
    Rifiutata(m_Ospite, m_Dialogo, kRecuperoErrato);
    Scegli(m_Dialogo.CmbFormulaR, {3, 3, 0});
    EXPECT_EQ(Confermata(m_Dialogo), Celle("2-2-2", "3-3-0", "1"));
}

TEST_F(Formule, DelleDueProveFalliteParlaQuellaDelRecupero)
{
    m_Dialogo.CmbRecupero.Indice.Poni(1);
    Rifiutata(m_Ospite, m_Dialogo, kRecuperoErrato);
    Scegli(m_Dialogo.CmbFormulaR, {0, 0, 6});
    Rifiutata(m_Ospite, m_Dialogo, kFormulaErrata);
}

TEST_F(Formule, SenzaGruppoIlRecuperoNonSiGuarda)
{
    Scegli(m_Dialogo.CmbFormula, {1, 2, 3});
    EXPECT_EQ(Confermata(m_Dialogo), Celle("1-2-3", "", " "));
}

TEST_F(Formule, LaSezioneNonSceltaRestaVuotaNeiPuntiESparisceDalRecupero)
{
    EXPECT_EQ(m_Dialogo.GetParametri(), Celle("--", "", " "));
    m_Dialogo.CmbRecupero.Indice.Poni(3);
    Scegli(m_Dialogo.CmbFormula, {2, -1, 4});
    Scegli(m_Dialogo.CmbFormulaR, {-1, 5, 1});
    EXPECT_EQ(Confermata(m_Dialogo), Celle("2--4", "5-1", "3"));
}

TEST_F(Formule, LaRigaRilettaScegliLeVociInOrdine)
{
    m_Dialogo.LeggiPunti(GrigliaCon(Celle("1-0-5", "6-0-0", "12")));
    EXPECT_THAT(Testi(m_Dialogo.CmbFormula), ElementsAre("1", "0", "5"));
    EXPECT_THAT(Testi(m_Dialogo.CmbFormulaR), ElementsAre("6", "0", "0"));
    EXPECT_EQ(m_Dialogo.CmbRecupero.Testo(), "12");
    EXPECT_THAT(Abilitate(m_Dialogo.CmbFormulaR), Each(true));
}

TEST_F(Formule, RilettaEConfermataDaLeStesseCelle)
{
    for (const Condizione& celle : {Celle("1-2-3", "", " "), Celle("1-2-3", "0-0-6", "20"),
                                    Celle("2--4", "5-1", "3"), Celle("-6-", "6", "1")}) {
        EXPECT_EQ(Riconfermata<F_PuntiSuFormule>(m_Ospite, celle), celle) << celle.sPunti;
    }
}

TEST(FPuntiSuFormule, ConLaClasseDieciUnoEDieciSonoDueVoci)
{
    OspiteProva ospite(10);
    for (const Condizione& celle : {Celle("1-9-0", "", " "), Celle("10-0-0", "0-0-10", "1")}) {
        EXPECT_EQ(Riconfermata<F_PuntiSuFormule>(ospite, celle), celle) << celle.sPunti;
    }
}

/// A stored formula.
RecordCondizione Record(std::array<std::int16_t, 3> aPunti, std::array<std::int16_t, 3> aRecupero,
                        std::int16_t nGruppo)
{
    RecordCondizione record;
    record.Tipo = TipoCondizione::formule;
    record.IdRecupero = nGruppo;
    for (int i = 0; i < 3; ++i) {
        record.PuntiOk2(i + 1) = aPunti[static_cast<std::size_t>(i)];
        record.PuntiRec2(i + 1) = aRecupero[static_cast<std::size_t>(i)];
    }
    return record;
}

TEST_F(Formule, LaRigaDaUnRecordSiRileggeEPerdeGliZeriDavanti)
{
    const Condizione celle = CelleDaRecord(Record({1, 2, 3}, {2, 2, 2}, 4));
    EXPECT_EQ(celle, Celle("01-02-03", "02-02-02", "4"));
    EXPECT_EQ(Riconfermata<F_PuntiSuFormule>(m_Ospite, celle), Celle("1-2-3", "2-2-2", "4"));
}

TEST_F(Formule, LoZeroPersoNelRecordSpostaLeSezioni)
{
    const Condizione celle = CelleDaRecord(Record({2, 0, 4}, {0, 0, 6}, 1));
    EXPECT_EQ(celle, Celle("02-04", "06", "1"));
    m_Dialogo.LeggiPunti(GrigliaCon(celle));
    EXPECT_THAT(Testi(m_Dialogo.CmbFormula), ElementsAre("2", "4", ""));
    EXPECT_EQ(Confermata(m_Dialogo), Celle("2-4-", "6", "1"));
}

TEST_F(Formule, UnaSezioneOltreLaClasseRestaSenzaScelta)
{
    m_Dialogo.LeggiPunti(GrigliaCon(Celle("07-1-2", "", "")));
    EXPECT_THAT(Testi(m_Dialogo.CmbFormula), ElementsAre("", "1", "2"));
    Rifiutata(m_Ospite, m_Dialogo, kFormulaErrata);
}

TEST_F(Formule, UnaCellaVuotaNonScegliNulla)
{
    Scegli(m_Dialogo.CmbFormula, {2, 2, 2});
    m_Dialogo.LeggiPunti(GrigliaCon(Celle("", "", "")));
    EXPECT_THAT(Testi(m_Dialogo.CmbFormula), Each(""));
    EXPECT_EQ(m_Dialogo.CmbRecupero.Testo(), " ");
}

TEST_F(Formule, LaStringaNonInserisceNulla)
{
    EXPECT_EQ(prove::Riempita<F_PuntiSuFormule>(m_Ospite, "2,2,2|3,3,0"),
              std::pair(std::string(), Celle("--", "", " ")));
    EXPECT_THAT(m_Ospite.desktop.Messaggi(), IsEmpty());
}

} // namespace
} // namespace ordavel
