// F_ScegliRuota_prova.cpp - the choice of a wheel.

#include "editor/F_ScegliRuota.hpp"

#include "editor/OspiteProva.hpp"

#include <gtest/gtest.h>

namespace ordavel {
namespace {

using prove::OspiteProva;
using testing::ElementsAre;

TEST(FScegliRuota, LeUndiciRuoteNelLoroOrdine)
{
    OspiteProva ospite(5);
    F_ScegliRuota dialogo(ospite);
    EXPECT_EQ(dialogo.sTitolo, "Scegli ruota per Emulatore");
    EXPECT_THAT(dialogo.CmbRuota.Voci.Valore(),
                ElementsAre("Bari", "Cagliari", "Firenze", "Genova", "Milano", "Napoli", "Palermo", "Roma",
                            "Torino", "Venezia", "Nazionale"));
    EXPECT_EQ(dialogo.Ruota(), 1);
}

TEST(FScegliRuota, LaRuotaEIlPostoNellElencoPiuUno)
{
    OspiteProva ospite(5);
    F_ScegliRuota dialogo(ospite);
    dialogo.CmbRuota.Indice.Poni(10);
    dialogo.Premi(ePulsanteDialogo::conferma);
    EXPECT_FALSE(dialogo.Visibile.Valore());
    EXPECT_EQ(dialogo.Ruota(), 11);
}

} // namespace
} // namespace ordavel
