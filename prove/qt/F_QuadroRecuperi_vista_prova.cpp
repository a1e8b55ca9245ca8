// F_QuadroRecuperi_vista_prova.cpp - the recovery board as its user fills it.

#include "qt/F_QuadroRecuperi_vista.hpp"

#include "qt/SistemaQtProva.hpp"

#include <QLabel>

namespace ordavel::qt {

namespace {

using prove::Clicca;
using prove::ExpectNominati;
using prove::Trova;

class QuadroRecuperiVista : public prove::SistemaQtProva {
protected:
    QuadroRecuperiVista()
    {
        Condizioni(3);
        Griglia().Riga(1).sQuadro = Griglia().Riga(2).sQuadro = "2";
        Griglia().Riga(3).sQuadro = "20";
    }

    void NelQuadro(const std::function<void(F_QuadroRecuperiVista&)>& azione)
    {
        Nella<F_QuadroRecuperiVista>("QuadroRecuperi", azione);
    }

    [[nodiscard]] const std::vector<std::string>& Quadro() { return sistema.GetLbQuadroRec().Voci.Valore(); }
};

} // namespace

TEST_F(QuadroRecuperiVista, SiScriveSoloNeiGruppiConRighe)
{
    NelQuadro([](F_QuadroRecuperiVista& vista) {
        for (int n = 1; n <= 20; ++n) {
            const std::string sGruppo = std::to_string(n);
            EXPECT_EQ(Trova<QLineEdit>(vista, ("TxtMin" + sGruppo).c_str()).isEnabled(), n == 2 || n == 20);
            EXPECT_EQ(Trova<QLineEdit>(vista, ("TxtMax" + sGruppo).c_str()).isEnabled(), n == 2 || n == 20);
        }
        EXPECT_EQ(Trova<QLabel>(vista, "LabRecInseriti2").text(), "2");
        EXPECT_TRUE(Trova<QLabel>(vista, "LabRecInseriti2").font().bold());
        EXPECT_EQ(Trova<QLabel>(vista, "LabRecInseriti3").text(), "");
        EXPECT_FALSE(Trova<QLabel>(vista, "LabRecInseriti3").font().bold());
        ExpectNominati(vista);
    });
}

TEST_F(QuadroRecuperiVista, QuelCheSiScriveESiConfermaEIlQuadro)
{
    NelQuadro([](F_QuadroRecuperiVista& vista) {
        QTest::keyClicks(&Trova<QLineEdit>(vista, "TxtMin2"), "0a0-3");
        QTest::keyClicks(&Trova<QLineEdit>(vista, "TxtMax2"), "5");
        QTest::keyClicks(&Trova<QLineEdit>(vista, "TxtMin20"), "1");
        Clicca(vista, "Conferma");
        EXPECT_FALSE(vista.isVisible());
    });
    ASSERT_EQ(Quadro().size(), 20U);
    EXPECT_EQ(Quadro()[1], "3,5,-1");
    EXPECT_EQ(Quadro()[19], "-1,-1,-0") << "senza massimo";
    EXPECT_TRUE(sistema.Modificato());
}

TEST_F(QuadroRecuperiVista, ConEscEConChiudiNonCambiaNulla)
{
    NelQuadro([](F_QuadroRecuperiVista& vista) {
        QTest::keyClicks(&Trova<QLineEdit>(vista, "TxtMin2"), "1");
        QTest::keyClick(&vista, Qt::Key_Escape);
        EXPECT_FALSE(vista.isVisible());
    });
    NelQuadro([](F_QuadroRecuperiVista& vista) {
        QTest::keyClicks(&Trova<QLineEdit>(vista, "TxtMin2"), "1");
        Clicca(vista, "Chiudi");
        EXPECT_FALSE(vista.isVisible());
    });
    EXPECT_TRUE(Quadro().empty());
    EXPECT_FALSE(sistema.Modificato());
}

TEST_F(QuadroRecuperiVista, IlTabVaComeSiLegge)
{
    NelQuadro([](F_QuadroRecuperiVista& vista) {
        EXPECT_EQ(prove::GiroTab(vista), (std::vector<std::string>{"TxtMin2", "TxtMax2", "TxtMin20",
                                                                   "TxtMax20", "Conferma", "Chiudi"}));
    });
}

TEST_F(QuadroRecuperiVista, QuelCheCEraSiRivede)
{
    NelQuadro([](F_QuadroRecuperiVista& vista) {
        QTest::keyClicks(&Trova<QLineEdit>(vista, "TxtMin2"), "1");
        QTest::keyClicks(&Trova<QLineEdit>(vista, "TxtMax2"), "2");
        QTest::keyClick(&vista, Qt::Key_Return);
    });
    NelQuadro([](F_QuadroRecuperiVista& vista) {
        EXPECT_EQ(Trova<QLineEdit>(vista, "TxtMin2").text(), "1");
        EXPECT_EQ(Trova<QLineEdit>(vista, "TxtMax2").text(), "2");
    });
}

} // namespace ordavel::qt
