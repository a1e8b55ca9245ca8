// F_Progress_prova.cpp - the progress of an export and its cancel button.

#include "controllo/F_Progress.hpp"

#include "editor/OspiteProva.hpp"

#include <gtest/gtest.h>

namespace ordavel {
namespace {

using prove::Domanda;
using prove::OspiteProva;
using testing::ElementsAre;

class F_ProgressProva : public testing::Test {
protected:
    void Annulla(eRisposta risposta)
    {
        ospite.desktop.Rispondi(risposta);
        dialogo.Annulla();
        EXPECT_THAT(ospite.desktop.Messaggi(), ElementsAre(Domanda("Annullare ?")));
    }

    OspiteProva ospite{5};
    F_Progress dialogo{ospite};
};

TEST_F(F_ProgressProva, StaDavantiATutteLeAltreEParteDaZero)
{
    EXPECT_EQ(dialogo.sNome, "F_Progress");
    EXPECT_TRUE(dialogo.bSempreDavanti);
    EXPECT_EQ(dialogo.ProgBarXP1.Valore.Valore(), 0);
}

TEST_F(F_ProgressProva, ColSiFermaLExport)
{
    Annulla(eRisposta::si);
    EXPECT_TRUE(ospite.bExportAnnullato);
}

TEST_F(F_ProgressProva, ColNoLExportVaAvanti)
{
    Annulla(eRisposta::no);
    EXPECT_FALSE(ospite.bExportAnnullato);
}

TEST_F(F_ProgressProva, AnnullareNonChiudeLaFinestra)
{
    dialogo.Mostra();
    Annulla(eRisposta::si);
    EXPECT_TRUE(dialogo.Visibile.Valore());
    EXPECT_EQ(dialogo.sTag, "");
}

} // namespace
} // namespace ordavel
