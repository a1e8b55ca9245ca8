// F_PuntiSuParametri_prova.cpp - the common dialogs filled by a parameter string.

#include "editor/F_PuntiSu.hpp"
#include "editor/OspiteProva.hpp"

#include <gtest/gtest.h>

namespace ordavel {
namespace {

using prove::Fallimento;
using prove::OspiteProva;
using testing::ElementsAre;
using enum TipoCondizione;

constexpr std::int16_t kClasse = 5;

struct CasoStringa {
    TipoCondizione tipo;
    const char* sParam;
    Condizione attesa;
};

TEST(SetPuntiSuFrm, RiempieComeSeLUtenteAvesseConfermato)
{
    const std::vector<CasoStringa> aCasi{
        {pariDispari, "Dispari\r\n1,3", {"Pari-Dispari", "Dispari", "1-3", "", " "}},
        {resto, "4\r\n0,2|1", {"Resto", "Resto a : 4", "0-2", "1", "1"}},
        {vortice, "Inverso\r\n2|4,5", {"Vortice", "Inverso", "2", "4-5", "1"}},
        {ampiezza, "10,40|5,50", {"Ampiezza", "A\r\nm\r\np\r\ni\r\ne\r\nz\r\nz\r\na", "10-40", "5-50", "1"}},
        {posizioni, "1,9", {"Posizioni", "Casella :\r\n", "1-9", "-", " "}},
        {ponte, "0,1|2", {"Ponte", "P\r\no\r\nn\r\nt\r\ne", "0-1", "2", "1"}},
        {fulcro, "Pari\r\n3|", {"Fulcro", "Pari", "3", "", " "}},
    };
    for (const CasoStringa& caso : aCasi) {
        OspiteProva ospite(kClasse);
        F_PuntiSu dialogo(ospite, caso.tipo);
        dialogo.SetPuntiSuFrm(caso.sParam);
        EXPECT_EQ(dialogo.sTag, "ttt") << caso.sParam;
        EXPECT_EQ(dialogo.GetParametri(), caso.attesa) << caso.sParam;
    }
}

TEST(SetPuntiSuFrm, UnaStringaVuotaNonFaNulla)
{
    OspiteProva ospite(kClasse);
    F_PuntiSu dialogo(ospite, ponte);
    dialogo.SetPuntiSuFrm("");
    EXPECT_EQ(dialogo.sTag, "");
}

TEST(SetPuntiSuFrm, ITipiSenzaRamoNonInserisconoNulla)
{
    for (const TipoCondizione tipo :
         {peso, sommaCadenze, sommaDecine, sommaFigure, sommaNumeretti, sommaComplessiva, decineSpecifiche}) {
        OspiteProva ospite(kClasse);
        F_PuntiSu dialogo(ospite, tipo);
        dialogo.SetPuntiSuFrm("1,2");
        EXPECT_EQ(dialogo.sTag, "") << dialogo.Riga().sNome;
    }
}

TEST(SetPuntiSuFrm, ITipiSenzaComboFallisconoESiFermano)
{
    for (const TipoCondizione tipo : {simmetrieNum, paralleliNum}) {
        OspiteProva ospite(kClasse);
        F_PuntiSu dialogo(ospite, tipo);
        dialogo.SetPuntiSuFrm("x\r\n1,2");
        EXPECT_EQ(dialogo.sTag, "");
        EXPECT_THAT(ospite.desktop.Messaggi(),
                    ElementsAre(Fallimento("OrdavelSis.setPuntiSuFrm", Errore(eErrore::membro, "Combo1"))));
    }
}

TEST(SetPuntiSuFrm, UnValoreOltreLaClasseFallisceESiFerma)
{
    OspiteProva ospite(kClasse);
    F_PuntiSu dialogo(ospite, ponte);
    dialogo.SetPuntiSuFrm("1,6");
    EXPECT_EQ(dialogo.sTag, "");
    EXPECT_TRUE(dialogo.ChkPunti(1).Segnata.Valore());
    EXPECT_THAT(ospite.desktop.Messaggi(),
                ElementsAre(Fallimento("OrdavelSis.setPuntiSuFrm", Errore(eErrore::indice))));
}

TEST(SetPuntiSuFrm, UnaParolaSconosciutaLasciaIParametriVuoti)
{
    OspiteProva ospite(kClasse);
    F_PuntiSu dialogo(ospite, simmetrie);
    dialogo.SetPuntiSuFrm("Storte\r\n1");
    EXPECT_EQ(dialogo.sTag, "ttt");
    EXPECT_EQ(dialogo.GetParametri(), (Condizione{"Simmetrie", "", "1", "", " "}));
}

TEST(SetPuntiSuFrm, SenzaPuntiLaCellaEVuota)
{
    OspiteProva ospite(kClasse);
    F_PuntiSu dialogo(ospite, ponte);
    dialogo.SetPuntiSuFrm("|2");
    EXPECT_EQ(dialogo.sTag, "ttt");
    EXPECT_EQ(dialogo.GetParametri().sPunti, "");
    EXPECT_EQ(dialogo.GetParametri().sRecupero, "2");
}

TEST(SetPuntiSuFrm, GliIntervalliPassanoComeSono)
{
    OspiteProva ospite(kClasse);
    F_PuntiSu dialogo(ospite, baricentro);
    dialogo.SetPuntiSuFrm("50,10");
    EXPECT_EQ(dialogo.sTag, "ttt");
    EXPECT_EQ(dialogo.GetParametri().sPunti, "50-10");
}

} // namespace
} // namespace ordavel
