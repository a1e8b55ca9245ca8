// Dialogo_prova.cpp - what every dialog has: name, caption, whether it is shown, tag.

#include "ordavel/Dialogo.hpp"

#include "comune/PiattaformaProva.hpp"

#include <gtest/gtest.h>

#include <vector>

namespace ordavel {
namespace {

using prove::PiattaformaProva;
using testing::ElementsAre;

/// Counts how often it came to the front, and whether it was on show then.
class DialogoAttivato : public Dialogo {
public:
    DialogoAttivato() : Dialogo("F_Prova", "Una prova") {}

    std::vector<bool> aAttivazioni;

protected:
    void AllaMostra() override { aAttivazioni.push_back(Visibile.Valore()); }
};

TEST(Dialogo, NasceNascostoESenzaTag)
{
    const DialogoAttivato dialogo;
    EXPECT_EQ(dialogo.sNome, "F_Prova");
    EXPECT_EQ(dialogo.sTitolo, "Una prova");
    EXPECT_EQ(dialogo.sTag, "");
    EXPECT_FALSE(dialogo.Visibile.Valore());
}

TEST(Dialogo, OgniVoltaCheSiMostraSiAttiva)
{
    DialogoAttivato dialogo;
    dialogo.Mostra();
    dialogo.Nascondi("x");
    dialogo.Mostra();
    EXPECT_THAT(dialogo.aAttivazioni, ElementsAre(true, true));
}

TEST(Dialogo, MostratoDiNuovoTieneLaSuaRisposta)
{
    DialogoAttivato dialogo;
    dialogo.Nascondi("ooo");
    dialogo.Mostra();
    EXPECT_EQ(dialogo.sTag, "ooo");
    EXPECT_TRUE(dialogo.Visibile.Valore());
}

TEST(Dialogo, SiNascondeConLaSuaRisposta)
{
    DialogoAttivato dialogo;
    dialogo.Mostra();
    dialogo.Nascondi("ooo");
    EXPECT_EQ(dialogo.sTag, "ooo");
    EXPECT_FALSE(dialogo.Visibile.Valore());
    dialogo.Nascondi({});
    EXPECT_EQ(dialogo.sTag, "");
}

TEST(Dialogo, ChiAscoltaVedeGiaLaRisposta)
{
    DialogoAttivato dialogo;
    dialogo.Mostra();
    std::string sVista;
    dialogo.Visibile.Ascolta([&] { sVista = dialogo.sTag; });
    dialogo.Nascondi("ooo");
    EXPECT_EQ(sVista, "ooo");
}

TEST(Dialogo, UnaFinestraChiusaLasciaIlTagComEra)
{
    PiattaformaProva piattaforma;
    DialogoAttivato dialogo;
    piattaforma.Gioca<DialogoAttivato>([](DialogoAttivato& d) { EXPECT_TRUE(d.Visibile.Valore()); });
    piattaforma.MostraModale(dialogo);
    EXPECT_FALSE(dialogo.Visibile.Valore());
    EXPECT_EQ(dialogo.sTag, "");
    EXPECT_THAT(piattaforma.aMostrati, ElementsAre("F_Prova"));
}

} // namespace
} // namespace ordavel
