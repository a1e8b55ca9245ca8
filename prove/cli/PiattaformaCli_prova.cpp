// PiattaformaCli_prova.cpp - boxes on the error stream, answers from options.

#include "cli/PiattaformaCli.hpp"

#include <gtest/gtest.h>

namespace ordavel::cli {
namespace {

/// What a box writes on the error stream.
std::string Scritto(PiattaformaCli& desktop, const Messaggio& messaggio)
{
    testing::internal::CaptureStderr();
    desktop.MostraMessaggio(messaggio);
    return testing::internal::GetCapturedStderr();
}

TEST(PiattaformaCli, ErroriEAvvisiSuUnaRiga)
{
    PiattaformaCli desktop(false);
    EXPECT_EQ(Scritto(desktop, {eIcona::critico, "Chi", "uno\r\ndue", ePulsanti::ok}),
              "errore: Chi: uno due\n");
    EXPECT_EQ(Scritto(desktop, {eIcona::avviso, "", "uno\r\ndue", ePulsanti::ok}), "avviso: uno due\n");
}

TEST(PiattaformaCli, InformazioniEDomandeNonSiScrivono)
{
    PiattaformaCli desktop(false);
    EXPECT_EQ(Scritto(desktop, {eIcona::informazione, "Sviluppo", "Fine", ePulsanti::ok}), "");
    EXPECT_EQ(Scritto(desktop, {eIcona::domanda, "", "Interrompere ?", ePulsanti::siNo}), "");
    EXPECT_EQ(desktop.Messaggi().size(), 2U);
}

TEST(PiattaformaCli, UnaFinestraFaQuelloCheIlProgrammaDice)
{
    PiattaformaCli desktop(false);
    Dialogo dialogo("F_Prova", "Prova");
    desktop.MostraModale(dialogo);
    EXPECT_EQ(dialogo.sTag, "") << "nobody confirms";
    desktop.RispondiDialogo(
        [](Dialogo& mostrata) { mostrata.sTag = mostrata.Visibile.Valore() ? "ooo" : ""; });
    desktop.MostraModale(dialogo);
    EXPECT_EQ(dialogo.sTag, "ooo");
    EXPECT_FALSE(dialogo.Visibile.Valore());
}

TEST(PiattaformaCli, ARispondereEIlProgramma)
{
    PiattaformaCli desktop(false);
    EXPECT_EQ(desktop.MostraMessaggio({eIcona::domanda, "", "?", ePulsanti::siNo}), eRisposta::si);
    EXPECT_EQ(desktop.MostraMessaggio({eIcona::informazione, "", "!", ePulsanti::ok}), eRisposta::ok);
    desktop.RispondiApri("a.sic");
    desktop.RispondiSalva("b.col");
    EXPECT_EQ(desktop.DialogoApri({}), "a.sic");
    EXPECT_EQ(desktop.DialogoSalva({}), "b.col");
}

TEST(PiattaformaCli, SoloUnErroreECritico)
{
    PiattaformaCli desktop(false);
    testing::internal::CaptureStderr();
    desktop.Avvisa("attento");
    EXPECT_FALSE(desktop.Critico());
    desktop.Errata("Chi", "che cosa");
    EXPECT_TRUE(desktop.Critico());
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "avviso: attento\nerrore: Chi: che cosa\n");
}

TEST(PiattaformaCli, UnFileProvvisorioHaIlNomeDelSuo)
{
    PiattaformaCli desktop(false);
    desktop.ChiamaFile("/a/.x.tmp", "/a/vero.col");
    EXPECT_EQ(Scritto(desktop, {eIcona::critico, "Chi", "61- Disco pieno: /a/.x.tmp", ePulsanti::ok}),
              "errore: Chi: 61- Disco pieno: /a/vero.col\n");
    EXPECT_EQ(desktop.Messaggi().front().sTesto, "61- Disco pieno: /a/vero.col");
}

TEST(PiattaformaCli, AOgniEventoFaQuantoDetto)
{
    PiattaformaCli desktop(false);
    int nVolte = 0;
    desktop.LasciaEventi();
    desktop.AdOgniEvento([&nVolte] { ++nVolte; });
    desktop.LasciaEventi();
    desktop.LasciaEventi();
    EXPECT_EQ(nVolte, 2);
}

TEST(PiattaformaCli, LOraStaNelGiorno)
{
    PiattaformaCli desktop(false);
    EXPECT_GE(desktop.SecondiDaMezzanotte(), 0.0F);
    EXPECT_LE(desktop.SecondiDaMezzanotte(), 86401.0F);
}

} // namespace
} // namespace ordavel::cli
