// F_ImpostaPunti_prova.cpp - the same points for many conditions: the panel, and the dialog around it.

#include "editor/F_ImpostaPunti.hpp"

#include "editor/OspiteProva.hpp"

#include <gtest/gtest.h>

#include <initializer_list>
#include <vector>

namespace ordavel {
namespace {

using prove::Avviso;
using prove::OspiteProva;
using testing::ElementsAre;

void Segna(SerieSpunte& serie, std::initializer_list<int> aValori)
{
    for (const int nValore : aValori) {
        serie(nValore).Segnata.Poni(true);
    }
}

std::vector<int> Visibili(const SerieSpunte& serie)
{
    std::vector<int> aValori;
    for (std::int32_t n = serie.Primo(); n <= serie.Ultimo(); ++n) {
        if (serie(n).Visibile.Valore()) {
            aValori.push_back(n);
        }
    }
    return aValori;
}

// --- the panel

TEST(PannelloPunti, HaLeCaselleDaZeroADieci)
{
    const PannelloPunti pannello(20);
    for (const SerieSpunte* serie : {&pannello.ChkPunti, &pannello.ChkRecupero}) {
        EXPECT_EQ(serie->Primo(), 0);
        EXPECT_EQ(serie->Ultimo(), 10);
        EXPECT_EQ(Visibili(*serie).size(), std::size_t{11});
    }
}

TEST(PannelloPunti, LeCaselleOltreLaClasseSiNascondono)
{
    const PannelloPunti pannello(4);
    EXPECT_THAT(Visibili(pannello.ChkPunti), ElementsAre(0, 1, 2, 3, 4));
    EXPECT_THAT(Visibili(pannello.ChkRecupero), ElementsAre(0, 1, 2, 3, 4));
}

TEST(PannelloPunti, SenzaClasseRestaLoZero)
{
    EXPECT_THAT(Visibili(PannelloPunti(0).ChkPunti), ElementsAre(0));
}

TEST(PannelloPunti, InClasseDieciSiVedonoTutte)
{
    EXPECT_EQ(Visibili(PannelloPunti(10).ChkPunti).size(), std::size_t{11});
}

TEST(PannelloPunti, IGruppiVannoDaNessunoAVenti)
{
    const PannelloPunti pannello(6);
    const auto& aVoci = pannello.CmbRecupero.Voci.Valore();
    EXPECT_EQ(aVoci.size(), std::size_t{21});
    EXPECT_EQ(aVoci.front(), " ");
    EXPECT_EQ(aVoci.back(), "20");
    EXPECT_EQ(pannello.CmbRecupero.Testo(), " ");
}

TEST(PannelloPunti, IValoriSegnatiSiUnisconoSenzaZeri)
{
    PannelloPunti pannello(10);
    Segna(pannello.ChkPunti, {0, 2, 10});
    Segna(pannello.ChkRecupero, {1, 3});
    EXPECT_EQ(pannello.Punti(), "0-2-10");
    EXPECT_EQ(pannello.Recupero(), "1-3");
}

TEST(PannelloPunti, SenzaSegniITestiSonoVuoti)
{
    const PannelloPunti pannello(6);
    EXPECT_EQ(pannello.Punti(), "");
    EXPECT_EQ(pannello.Recupero(), "");
}

TEST(PannelloPunti, AllInizioIlRecuperoESpento)
{
    const PannelloPunti pannello(6);
    for (std::int32_t n = 0; n <= 10; ++n) {
        EXPECT_FALSE(pannello.ChkRecupero(n).Abilitato.Valore()) << n;
        EXPECT_TRUE(pannello.ChkPunti(n).Abilitato.Valore()) << n;
    }
}

TEST(PannelloPunti, UnValoreAccettatoNonSiRecupera)
{
    PannelloPunti pannello(6);
    pannello.CmbRecupero.Indice.Poni(1);
    Segna(pannello.ChkRecupero, {2, 3});
    Segna(pannello.ChkPunti, {2});
    EXPECT_EQ(pannello.Recupero(), "3");
    EXPECT_FALSE(pannello.ChkRecupero(2).Abilitato.Valore());
    pannello.ChkPunti(2).Segnata.Poni(false);
    EXPECT_TRUE(pannello.ChkRecupero(2).Abilitato.Valore());
}

TEST(PannelloPunti, SenzaGruppoIlRecuperoSiSvuotaESiSpegne)
{
    PannelloPunti pannello(6);
    pannello.CmbRecupero.Indice.Poni(3);
    Segna(pannello.ChkRecupero, {2});
    pannello.CmbRecupero.Indice.Poni(0);
    EXPECT_EQ(pannello.Recupero(), "");
    EXPECT_FALSE(pannello.ChkRecupero(2).Abilitato.Valore());
}

TEST(PannelloPunti, ConUnGruppoSiRecuperaCioCheNonSiAccetta)
{
    PannelloPunti pannello(6);
    Segna(pannello.ChkPunti, {1});
    pannello.CmbRecupero.Indice.Poni(20);
    EXPECT_FALSE(pannello.ChkRecupero(1).Abilitato.Valore());
    EXPECT_TRUE(pannello.ChkRecupero(0).Abilitato.Valore());
}

// --- the dialog

TEST(FImpostaPunti, HaNomeETitolo)
{
    OspiteProva ospite(6);
    const F_ImpostaPunti dialogo(ospite);
    EXPECT_EQ(dialogo.sNome, "F_ImpostaPunti");
    EXPECT_EQ(dialogo.sTitolo, "Imposta punti");
}

TEST(FImpostaPunti, IlPannelloEDellaClasseDelSistema)
{
    OspiteProva ospite(2);
    const F_ImpostaPunti dialogo(ospite);
    EXPECT_THAT(Visibili(dialogo.Pannello.ChkPunti), ElementsAre(0, 1, 2));
}

TEST(FImpostaPunti, SenzaLimitiNonSiConferma)
{
    OspiteProva ospite(6);
    F_ImpostaPunti dialogo(ospite);
    dialogo.LoadCombo(4);
    Segna(dialogo.Pannello.ChkPunti, {1});
    dialogo.Mostra();
    dialogo.Premi(ePulsanteDialogo::conferma);
    EXPECT_THAT(ospite.desktop.Messaggi(), ElementsAre(Avviso("Impostare i limiti")));
    dialogo.CmbDalla.Indice.Poni(3);
    dialogo.CmbAlla.Indice.Poni(0);
    dialogo.Premi(ePulsanteDialogo::conferma);
    EXPECT_THAT(ospite.desktop.Messaggi(), ElementsAre(Avviso("Parametri incoerenti")));
    EXPECT_TRUE(dialogo.Visibile.Valore());
    EXPECT_EQ(dialogo.sTag, "");
}

TEST(FImpostaPunti, ConILimitiSiConfermaAncheSenzaPunti)
{
    OspiteProva ospite(6);
    F_ImpostaPunti dialogo(ospite);
    dialogo.LoadCombo(4);
    dialogo.CmbDalla.Indice.Poni(0);
    dialogo.CmbAlla.Indice.Poni(3);
    dialogo.Premi(ePulsanteDialogo::conferma);
    EXPECT_EQ(dialogo.sTag, "ooo");
    EXPECT_EQ(dialogo.Dalla(), 1);
    EXPECT_EQ(dialogo.Alla(), 4);
}

TEST(FImpostaPunti, IlDialogoNonToccaLaGriglia)
{
    OspiteProva ospite(6);
    ospite.griglia.Riga(1) = {"Ponte", "", "1", "", " "};
    F_ImpostaPunti dialogo(ospite);
    dialogo.LoadCombo(1);
    dialogo.CmbDalla.Indice.Poni(0);
    dialogo.CmbAlla.Indice.Poni(0);
    Segna(dialogo.Pannello.ChkPunti, {5});
    dialogo.Premi(ePulsanteDialogo::conferma);
    EXPECT_EQ(ospite.griglia.Riga(1).sPunti, "1");
}

} // namespace
} // namespace ordavel
