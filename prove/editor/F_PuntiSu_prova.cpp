// F_PuntiSu_prova.cpp - every common dialog played by the same user.

#include "editor/F_PuntiSu.hpp"

#include "comune/Fallimenti.hpp"
#include "condizioni/ModCompila.hpp"
#include "editor/OspiteProva.hpp"

#include <gtest/gtest.h>

#include <string>

namespace ordavel {
namespace {

using prove::Avviso;
using prove::OspiteProva;
using testing::ElementsAre;
using enum TipoCondizione;

constexpr std::int16_t kClasse = 6;

/// What the user chooses for the parameter, whatever control the row gives.
void ScegliParametro(F_PuntiSu& dialogo)
{
    switch (dialogo.Riga().parametro) {
    case eControlloParametro::nessuno:
        break;
    case eControlloParametro::combo:
        dialogo.Combo1.Indice.Poni(1);
        break;
    case eControlloParametro::divisore:
    case eControlloParametro::cifra:
        dialogo.Combo1.Indice.Poni(4);
        break;
    case eControlloParametro::caselle:
        dialogo.ChkCaselle(1).Segnata.Poni(true);
        dialogo.ChkCaselle(3).Segnata.Poni(true);
        break;
    case eControlloParametro::casella:
        dialogo.ObCaselle.Indice.Poni(2);
        break;
    }
}

void ScegliPunti(F_PuntiSu& dialogo, bool bRecupero)
{
    if (bRecupero) {
        dialogo.CmbRecupero.Indice.Poni(3);
    }
    if (dialogo.Riga().punti == eFamigliaPunti::lista) {
        dialogo.ChkPunti(1).Segnata.Poni(true);
        dialogo.ChkPunti(2).Segnata.Poni(true);
        if (bRecupero) {
            dialogo.ChkRecupero(3).Segnata.Poni(true);
        }
    } else {
        dialogo.TxtPunti[0].Testo.Poni("10");
        dialogo.TxtPunti[1].Testo.Poni("20");
        if (bRecupero) {
            dialogo.TxtPuntiRec[0].Testo.Poni("5");
            dialogo.TxtPuntiRec[1].Testo.Poni("25");
        }
    }
}

/// One dialog, from load to the five cells.
Condizione Gioca(OspiteProva& ospite, TipoCondizione tipo, bool bRecupero)
{
    F_PuntiSu dialogo(ospite, tipo);
    dialogo.Visibile.Poni(true);
    ScegliParametro(dialogo);
    ScegliPunti(dialogo, bRecupero);
    dialogo.Premi(ePulsanteDialogo::conferma);
    EXPECT_EQ(dialogo.sTag, "ooo") << dialogo.Riga().sNome;
    EXPECT_FALSE(dialogo.Visibile.Valore());
    return dialogo.GetParametri();
}

class DialogoComune : public testing::TestWithParam<TipoCondizione> {
protected:
    DialogoComune() : m_Ospite(kClasse) { m_Ospite.aScelti = {1, 5, 9, 14, 22, 30, 41, 57, 66, 80}; }

    OspiteProva m_Ospite;
};

TEST_P(DialogoComune, DalCaricamentoAlleCinqueCelle)
{
    const bool bLista = TrovaDialogo(GetParam())->punti == eFamigliaPunti::lista;
    const Condizione senza = Gioca(m_Ospite, GetParam(), false);
    EXPECT_EQ(senza.sCondizione, TrovaTipo(GetParam())->sChiave);
    EXPECT_EQ(senza.sPunti, bLista ? "1-2" : "10-20");
    EXPECT_EQ(senza.sRecupero, bLista ? "" : "-");
    EXPECT_EQ(senza.sQuadro, " ");
    const Condizione con = Gioca(m_Ospite, GetParam(), true);
    EXPECT_EQ(con.sParametri, senza.sParametri);
    EXPECT_EQ(con.sRecupero, bLista ? "3" : "5-25");
    EXPECT_EQ(con.sQuadro, "3");
}

TEST_P(DialogoComune, RilettoEConfermatoDaLeStesseCelle)
{
    for (const bool bRecupero : {false, true}) {
        GrigliaCondizioni griglia;
        griglia.Riga(7) = Gioca(m_Ospite, GetParam(), bRecupero);
        griglia.PoniCorrente(7);
        F_PuntiSu riletto(m_Ospite, GetParam());
        riletto.LeggiPunti(griglia);
        riletto.Premi(ePulsanteDialogo::conferma);
        EXPECT_EQ(riletto.GetParametri(), griglia.Riga(7)) << riletto.Riga().sNome << bRecupero;
    }
}

TEST_P(DialogoComune, LeSpunteCompilanoNegliStessiValori)
{
    GrigliaCondizioni griglia;
    griglia.Riga(1) = Gioca(m_Ospite, GetParam(), true);
    std::vector<RecordCondizione> aCondizioni;
    QuadroRecuperi aQuadro;
    LeggiCondizioniDaGriglia(aCondizioni, griglia, {}, aQuadro);
    const RecordCondizione& record = aCondizioni.front();
    EXPECT_EQ(record.Tipo, GetParam());
    EXPECT_EQ(record.IdRecupero, 3);
    if (TrovaDialogo(GetParam())->punti == eFamigliaPunti::lista) {
        EXPECT_TRUE(record.PuntiOk(1) != 0 && record.PuntiOk(2) != 0 && record.PuntiRec(3) != 0);
        EXPECT_TRUE(record.PuntiOk(3) == 0 && record.PuntiRec(1) == 0);
    } else {
        EXPECT_EQ(record.OkMin, 10);
        EXPECT_EQ(record.OkMax, 20);
        EXPECT_EQ(record.RecMin, 5);
        EXPECT_EQ(record.RecMax, 25);
    }
}

TEST_P(DialogoComune, SenzaPuntiNonSiConferma)
{
    F_PuntiSu dialogo(m_Ospite, GetParam());
    ScegliParametro(dialogo);
    dialogo.Premi(ePulsanteDialogo::conferma);
    EXPECT_EQ(dialogo.sTag, "");
    EXPECT_THAT(m_Ospite.desktop.Messaggi(), ElementsAre(Avviso("Impostare i punti da realizzare")));
}

TEST_P(DialogoComune, LaStatisticaNonCambiaNulla)
{
    m_Ospite.nGioco = 3;
    F_PuntiSu dialogo(m_Ospite, GetParam());
    dialogo.Visibile.Poni(true);
    dialogo.Premi(ePulsanteDialogo::statistica);
    const auto attesa = std::pair(TrovaTipo(GetParam())->nIdStatistica, std::int16_t{4});
    EXPECT_THAT(m_Ospite.desktop.statistica.aMostrate, ElementsAre(attesa));
    EXPECT_TRUE(dialogo.Visibile.Valore());
    EXPECT_EQ(dialogo.sTag, "");
    dialogo.Premi(ePulsanteDialogo::chiudi);
    EXPECT_EQ(dialogo.sTag, "");
    EXPECT_FALSE(dialogo.Visibile.Valore());
}

std::vector<TipoCondizione> TuttiITipi()
{
    std::vector<TipoCondizione> aTipi;
    for (const RigaDialogo& riga : TabellaDialoghi()) {
        aTipi.push_back(riga.tipo);
    }
    return aTipi;
}

INSTANTIATE_TEST_SUITE_P(Tabella, DialogoComune, testing::ValuesIn(TuttiITipi()), [](const auto& caso) {
    return std::string(TrovaDialogo(caso.param)->sNome).substr(2);
});

TEST(FPuntiSu, UnTipoSpecialeNonHaDialogoComune)
{
    OspiteProva ospite(kClasse);
    EXPECT_EQ(prove::NumeroErrore([&] { F_PuntiSu dialogo(ospite, sequenze); }), 5);
}

TEST(FPuntiSu, InClasseUnoSiOffreZeroEUnoEIlVorticeSoloUno)
{
    OspiteProva ospite(1);
    F_PuntiSu ponteDialogo(ospite, ponte);
    EXPECT_EQ(ponteDialogo.ChkPunti.Primo(), 0);
    EXPECT_EQ(ponteDialogo.ChkPunti.Ultimo(), 1);
    F_PuntiSu vorticeDialogo(ospite, vortice);
    EXPECT_EQ(vorticeDialogo.ChkPunti.Primo(), 1);
    EXPECT_EQ(vorticeDialogo.ChkPunti.Ultimo(), 1);
}

TEST(FPuntiSu, UnValoreAccettatoNonSiRecupera)
{
    OspiteProva ospite(kClasse);
    F_PuntiSu dialogo(ospite, ponte);
    dialogo.CmbRecupero.Indice.Poni(1);
    dialogo.ChkRecupero(2).Segnata.Poni(true);
    dialogo.ChkPunti(2).Segnata.Poni(true);
    EXPECT_FALSE(dialogo.ChkRecupero(2).Segnata.Valore());
    EXPECT_FALSE(dialogo.ChkRecupero(2).Abilitato.Valore());
    dialogo.ChkPunti(2).Segnata.Poni(false);
    EXPECT_TRUE(dialogo.ChkRecupero(2).Abilitato.Valore());
}

TEST(FPuntiSu, SenzaGruppoIlRecuperoESpentoEVuoto)
{
    OspiteProva ospite(kClasse);
    F_PuntiSu dialogo(ospite, ponte);
    EXPECT_FALSE(dialogo.ChkRecupero(1).Abilitato.Valore());
    dialogo.CmbRecupero.Indice.Poni(2);
    EXPECT_TRUE(dialogo.ChkRecupero(1).Abilitato.Valore());
    dialogo.ChkRecupero(1).Segnata.Poni(true);
    dialogo.CmbRecupero.Indice.Poni(0);
    EXPECT_FALSE(dialogo.ChkRecupero(1).Segnata.Valore());
    EXPECT_FALSE(dialogo.ChkRecupero(1).Abilitato.Valore());
}

TEST(FPuntiSu, IlGruppoTogliDalRecuperoIValoriGiaAccettati)
{
    OspiteProva ospite(kClasse);
    F_PuntiSu dialogo(ospite, ponte);
    dialogo.ChkPunti(1).Segnata.Poni(true);
    dialogo.ChkRecupero(1).Segnata.Poni(true);
    dialogo.CmbRecupero.Indice.Poni(1);
    EXPECT_FALSE(dialogo.ChkRecupero(1).Segnata.Valore());
    EXPECT_FALSE(dialogo.ChkRecupero(1).Abilitato.Valore());
}

TEST(FPuntiSu, DelleProveFalliteParlaLUltima)
{
    OspiteProva ospite(kClasse);
    F_PuntiSu dialogo(ospite, cadenzeSpecifiche);
    dialogo.CmbRecupero.Indice.Poni(1);
    dialogo.Premi(ePulsanteDialogo::conferma);
    EXPECT_THAT(ospite.desktop.Messaggi(), ElementsAre(Avviso("Specificare la cadenza")));
    dialogo.Combo1.Indice.Poni(0);
    dialogo.Premi(ePulsanteDialogo::conferma);
    EXPECT_THAT(ospite.desktop.Messaggi(), ElementsAre(Avviso("Impostare i punti di recupero")));
    dialogo.ChkRecupero(1).Segnata.Poni(true);
    dialogo.Premi(ePulsanteDialogo::conferma);
    EXPECT_THAT(ospite.desktop.Messaggi(), ElementsAre(Avviso("Impostare i punti da realizzare")));
}

TEST(FPuntiSu, OgniSpecificaHaIlSuoMessaggio)
{
    OspiteProva ospite(kClasse);
    for (const auto& [tipo, sMessaggio] : {std::pair(figureSpecifiche, "Specificare la figura"),
                                           std::pair(decineSpecifiche, "Specificare la decina")}) {
        F_PuntiSu dialogo(ospite, tipo);
        dialogo.ChkPunti(1).Segnata.Poni(true);
        EXPECT_FALSE(dialogo.VerificaCoerenza());
        EXPECT_THAT(ospite.desktop.Messaggi(), ElementsAre(Avviso(sMessaggio)));
    }
}

struct CasoIntervallo {
    const char* sMin;
    const char* sMax;
    const char* sMinRec;
    const char* sMaxRec;
    const char* sMessaggio; ///< of the failing test, with a recovery group
};

TEST(FPuntiSu, LaCoerenzaDegliIntervalli)
{
    OspiteProva ospite(kClasse);
    for (const CasoIntervallo& caso :
         {CasoIntervallo{"5", "4", "1", "2", "Range punti non valido"},
          CasoIntervallo{"", "", "1", "2", "Impostare i punti da realizzare"},
          CasoIntervallo{"1", "2", "5", "4", "Range punti recupero non valido"},
          CasoIntervallo{"1", "2", "", "x", "Impostare i punti da realizzare"},
          CasoIntervallo{"5", "4", "7", "6", "Range punti recupero non valido"}}) {
        F_PuntiSu dialogo(ospite, ampiezza);
        dialogo.CmbRecupero.Indice.Poni(1);
        dialogo.TxtPunti[0].Testo.Poni(caso.sMin);
        dialogo.TxtPunti[1].Testo.Poni(caso.sMax);
        dialogo.TxtPuntiRec[0].Testo.Poni(caso.sMinRec);
        dialogo.TxtPuntiRec[1].Testo.Poni(caso.sMaxRec);
        EXPECT_FALSE(dialogo.VerificaCoerenza());
        EXPECT_THAT(ospite.desktop.Messaggi(), ElementsAre(Avviso(caso.sMessaggio)));
    }
}

TEST(FPuntiSu, IlRangeDiRecuperoSiApreColGruppo)
{
    OspiteProva ospite(kClasse);
    F_PuntiSu dialogo(ospite, peso);
    EXPECT_FALSE(dialogo.TxtPuntiRec[0].Abilitato.Valore());
    dialogo.CmbRecupero.Indice.Poni(1);
    EXPECT_TRUE(dialogo.TxtPuntiRec[1].Abilitato.Valore());
    dialogo.TxtPuntiRec[1].Testo.Poni("9");
    dialogo.CmbRecupero.Indice.Poni(0);
    EXPECT_EQ(dialogo.TxtPuntiRec[1].Testo.Valore(), "");
}

TEST(FPuntiSu, IlDivisoreAbbassatoTogliLaSpuntaDelSette)
{
    OspiteProva ospite(kClasse);
    F_PuntiSu dialogo(ospite, resto);
    SelezionaCombo("9", dialogo.Combo1);
    dialogo.ChkPunti(7).Segnata.Poni(true);
    EXPECT_TRUE(dialogo.ChkPunti(8).Visibile.Valore());
    SelezionaCombo("3", dialogo.Combo1);
    EXPECT_FALSE(dialogo.ChkPunti(7).Segnata.Valore());
    EXPECT_FALSE(dialogo.ChkPunti(3).Visibile.Valore());
    EXPECT_TRUE(dialogo.ChkPunti(2).Visibile.Valore());
}

TEST(FPuntiSu, IlRestoLeggeSoloISuoiValori)
{
    OspiteProva ospite(kClasse);
    F_PuntiSu dialogo(ospite, resto);
    dialogo.ChkPunti(1).Segnata.Poni(true);
    dialogo.ChkPunti(6).Segnata.Poni(true);
    EXPECT_EQ(dialogo.GetParametri().sPunti, "1");
    EXPECT_EQ(dialogo.GetParametri().sParametri, "Resto a : 2");
}

TEST(FPuntiSu, ILimitiSonoQuelliDeiNumeriScelti)
{
    OspiteProva ospite(2);
    ospite.aScelti = {1, 4, 9, 20};
    const F_PuntiSu dialogo(ospite, sommaDecine);
    EXPECT_EQ(dialogo.LabMin.Testo.Valore(), "5");
    EXPECT_EQ(dialogo.LabMax.Testo.Valore(), "29");
}

TEST(FPuntiSu, SenzaClasseLAmpiezzaChiedeGliElementi)
{
    OspiteProva ospite(0);
    const F_PuntiSu dialogo(ospite, ampiezza);
    const auto aMessaggi = ospite.desktop.Messaggi();
    ASSERT_EQ(aMessaggi.size(), std::size_t{1});
    EXPECT_EQ(aMessaggi[0].icona, eIcona::critico);
    EXPECT_EQ(aMessaggi[0].sTesto, "Impostare il numero di elementi per ciascuna combinazione");
}

TEST(FPuntiSu, IParalleliRiapertiPerdonoLaParola)
{
    OspiteProva ospite(kClasse);
    GrigliaCondizioni griglia;
    griglia.Riga(1) = {"Paralleli", "Dirette", "1", "", ""};
    F_PuntiSu dialogo(ospite, paralleli);
    dialogo.LeggiPunti(griglia);
    EXPECT_EQ(dialogo.Combo1.Indice.Valore(), -1);
    dialogo.Premi(ePulsanteDialogo::conferma);
    EXPECT_EQ(dialogo.GetParametri().sParametri, "");
}

TEST(FPuntiSu, UnValoreOltreLaClasseNonSiRilegge)
{
    OspiteProva ospite(3);
    GrigliaCondizioni griglia;
    griglia.Riga(1) = {"Ponte", "", "4", "", ""};
    F_PuntiSu dialogo(ospite, ponte);
    EXPECT_EQ(prove::NumeroErrore([&] { dialogo.LeggiPunti(griglia); }), 9);
}

} // namespace
} // namespace ordavel
