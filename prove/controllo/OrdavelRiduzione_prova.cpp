// OrdavelRiduzione_prova.cpp - the reduction into the working file, by both engines, and its button.

#include "analisi/F_Riduzione.hpp"
#include "controllo/SistemaProva.hpp"

#include <gtest/gtest.h>

namespace ordavel {
namespace {

using prove::Avviso;
using prove::ByteDi;
using prove::Fallimento;
using prove::LeggiFile;
using prove::ScriviFile;
using testing::AnyOf;
using testing::ElementsAre;
using testing::IsEmpty;

const Messaggio kNonEsiste{.icona = eIcona::critico,
                           .sTitolo = {},
                           .sTesto = "Il file delle colonne non esiste",
                           .pulsanti = ePulsanti::ok};
const Messaggio kInterrotto{
    .icona = eIcona::informazione, .sTitolo = {}, .sTesto = "Processo interrotto", .pulsanti = ePulsanti::ok};

class OrdavelRiduzione : public testing::Test, protected prove::SistemaProva {
protected:
    std::string Origine(std::initializer_list<std::vector<int>> aColonne)
    {
        ScriviFile(m_sOrigine, ByteDi(aColonne));
        return m_sOrigine;
    }

    PulsanteStrumento& Pulsante(std::string_view sChiave)
    {
        return sistema.Controlli().Toolbar2.Pulsante(sChiave);
    }

    std::string m_sOrigine = cartella / "origine.col";
};

TEST_F(OrdavelRiduzione, DaUnFileAlFileDiLavoro)
{
    ScriviFile(sistema.FileColonne(), std::string(1000, 'x'));
    sistema.RiduciColonne(Origine({{1, 2, 3}, {1, 2, 4}, {5, 6, 7}}), 2);
    EXPECT_THAT(ByteColonne(), AnyOf(ByteDi({{1, 2, 3}, {5, 6, 7}}), ByteDi({{1, 2, 4}, {5, 6, 7}})));
    EXPECT_EQ(LeggiFile(m_sOrigine), ByteDi({{1, 2, 3}, {1, 2, 4}, {5, 6, 7}}));
    EXPECT_EQ(sistema.Controlli().LabCondizionate.Testo.Valore(), "2");
    EXPECT_TRUE(Pulsante("VisualizzaColonne").Abilitato.Valore());
    EXPECT_THAT(piattaforma.Messaggi(), IsEmpty());
}

TEST_F(OrdavelRiduzione, IlFileDiLavoroStessoSiRiduce)
{
    ScriviFile(sistema.FileColonne(), ByteDi({{1, 2, 3}, {1, 2, 4}, {5, 6, 7}}));
    sistema.RiduciColonne(sistema.FileColonne(), 1);
    EXPECT_EQ(ByteColonne().size(), 40U);
}

TEST_F(OrdavelRiduzione, UnFileCheMancaSiDiceENonSiToccaNulla)
{
    ScriviFile(sistema.FileColonne(), "resta");
    sistema.RiduciColonne(m_sOrigine, 2);
    EXPECT_EQ(ByteColonne(), "resta");
    EXPECT_THAT(piattaforma.Messaggi(), ElementsAre(kNonEsiste));
}

TEST_F(OrdavelRiduzione, UnMilioneDiColonneVaUnaDiPiuNo)
{
    ScriviFile(sistema.FileColonne(), "resta");
    prove::ScriviFileRado(m_sOrigine, 20'000'020);
    sistema.RiduciColonne(m_sOrigine, 2);
    EXPECT_EQ(ByteColonne(), "resta");
    EXPECT_THAT(piattaforma.Messaggi(), ElementsAre(Avviso("Le colonne da ridurre superano il limite massimo "
                                                           "gestibile di 1000000")));
    prove::ScriviFileRado(m_sOrigine, 20'000'000);
    sistema.RiduciColonne(m_sOrigine, 0); // all zeros: with no points wanted, the first covers the others
    EXPECT_EQ(ByteColonne(), std::string(20, '\0'));
    EXPECT_THAT(piattaforma.Messaggi(), IsEmpty());
}

TEST_F(OrdavelRiduzione, UnFallimentoSiMostra)
{
    std::filesystem::create_directory(m_sOrigine);
    sistema.RiduciColonne(m_sOrigine, 2);
    EXPECT_THAT(
        piattaforma.Messaggi(),
        ElementsAre(Fallimento("OrdavelSisG.RiduciColonne", Errore(eErrore::accessoPercorso, m_sOrigine))));
}

TEST_F(OrdavelRiduzione, UnoStopNellAnalisiCopiaTutteLeColonne)
{
    piattaforma.eventi = [this] { sistema.StopRiduciColonne(); };
    sistema.RiduciColonne(Origine({{1, 2, 3}, {1, 2, 4}, {5, 6, 7}}), 2);
    EXPECT_EQ(ByteColonne(), LeggiFile(m_sOrigine));
    EXPECT_EQ(sistema.Controlli().LabCondizionate.Testo.Valore(), "3");
    EXPECT_THAT(piattaforma.Messaggi(), ElementsAre(kInterrotto));
    // An old stop does not reach the next one.
    piattaforma.eventi = {};
    sistema.StopRiduciColonne();
    sistema.RiduciColonne(m_sOrigine, 2);
    EXPECT_EQ(ByteColonne().size(), 40U);
}

TEST_F(OrdavelRiduzione, DuranteLaRiduzioneNientAltroComincia)
{
    ScriviFile(sistema.FileColonne(), "resta");
    int nEventi = 0;
    piattaforma.eventi = [&] {
        ++nEventi;
        EXPECT_FALSE(sistema.GestSviluppo());
        sistema.RiduciColonne(cartella / "manca.col", 2);
        sistema.Toolbar2_ButtonClick("Riduzione");
        EXPECT_EQ(ByteColonne(), "resta");
    };
    sistema.RiduciColonne(Origine({{1, 2, 3}}), 2);
    EXPECT_GT(nEventi, 0);
    EXPECT_EQ(ByteColonne(), ByteDi({{1, 2, 3}}));
}

TEST_F(OrdavelRiduzione, IlMotoreEsternoScriveNelFileDiLavoro)
{
    ScriviFile(sistema.FileColonne(), std::string(1000, 'x'));
    sistema.PoniMotoreSviluppo(eMotoreSviluppo::esterno);
    sistema.RiduciColonne(Origine({{1, 2, 3}, {1, 2, 4}, {5, 6, 7}}), 2);
    EXPECT_EQ(ByteColonne(), ByteDi({{1, 2, 3}}));
    EXPECT_EQ(sistema.Controlli().LabCondizionate.Testo.Valore(), "1");
    EXPECT_EQ(sistema.FileColonne(), Temp("Sviluppo.col"));
    EXPECT_THAT(piattaforma.Messaggi(), IsEmpty());
}

TEST_F(OrdavelRiduzione, DelMotoreEsternoNonSiSaSeFallisce)
{
    ScriviFile(sistema.FileColonne(), ByteDi({{7, 8, 9}}));
    sistema.PoniMotoreSviluppo(eMotoreSviluppo::esterno);
    sistema.RiduciColonne(Origine({{1, 2, 3}}), 21);
    EXPECT_EQ(ByteColonne(), ByteDi({{7, 8, 9}}));
    EXPECT_EQ(sistema.Controlli().LabCondizionate.Testo.Valore(), "1");
}

TEST_F(OrdavelRiduzione, GliEventiGiranoFinoAllaFineDelMotoreEsterno)
{
    sistema.PoniMotoreSviluppo(eMotoreSviluppo::esterno);
    LibreriaRiduzione libreria;
    int nEventi = 0;
    piattaforma.eventi = [&] {
        EXPECT_FALSE(sistema.GestSviluppo());
        if (++nEventi > 2) {
            libreria.StopRiduzioneDll();
        }
    };
    sistema.RiduciColonne(Origine({{1, 2, 3}, {1, 2, 4}}), -1); // the played engine works until it is stopped
    EXPECT_GT(nEventi, 2);
    EXPECT_EQ(ByteColonne(), ByteDi({{1, 2, 3}}));
}

TEST_F(OrdavelRiduzione, IlPulsanteMostraIlFileDiLavoro)
{
    ScriviFile(sistema.FileColonne(), ByteDi({{1, 2, 3}, {1, 2, 4}}));
    piattaforma.Gioca<F_Riduzione>([&](F_Riduzione& dialogo) {
        EXPECT_EQ(dialogo.labFile.Testo.Valore(), sistema.FileColonne());
        EXPECT_EQ(dialogo.LabFileRidotto.Testo.Valore(), Temp("Sviluppo_Rid_N-1.col"));
        std::filesystem::remove(sistema.FileColonne());
    });
    Pulsante("VisualizzaColonne").Abilitato.Poni(true);
    sistema.Toolbar2_ButtonClick("Riduzione");
    EXPECT_FALSE(Pulsante("VisualizzaColonne").Abilitato.Valore());
}

TEST_F(OrdavelRiduzione, IlPulsanteSenzaFileDiLavoroMostraIlDialogoVuoto)
{
    piattaforma.Gioca<F_Riduzione>(
        [&](F_Riduzione& dialogo) { EXPECT_EQ(dialogo.labFile.Testo.Valore(), ""); });
    sistema.Toolbar2_ButtonClick("Riduzione");
}

/// The dialog is loaded for the reduction in memory, and the one that is loaded is the one that is shown.
TEST_F(OrdavelRiduzione, IlDialogoCaricatoDallaRiduzioneSiMostraPoiCosiComE)
{
    sistema.RiduciColonne(Origine({{1, 2, 3}}), 2);
    sistema.PoniMotoreSviluppo(eMotoreSviluppo::esterno);
    const auto guarda = [&](std::string_view sMotore) {
        piattaforma.Gioca<F_Riduzione>(
            [sMotore](F_Riduzione& dialogo) { EXPECT_EQ(dialogo.CmbMotoreRid.Testo(), sMotore); });
        sistema.Toolbar2_ButtonClick("Riduzione");
    };
    guarda("Interno"); // as it was loaded
    guarda("Esterno"); // closed and loaded again
}

TEST_F(OrdavelRiduzione, LoStopDelDialogoLoChiudeQuandoLaCorsaEFinita)
{
    ScriviFile(sistema.FileColonne(), ByteDi({{1, 2, 3}, {1, 2, 4}, {5, 6, 7}}));
    piattaforma.Gioca<F_Riduzione>([&](F_Riduzione& dialogo) {
        int nEventi = 0;
        piattaforma.eventi = [&] {
            if (++nEventi == 2) {
                dialogo.XPButton1_Click(0);
            }
        };
        dialogo.XPButton1_Click(0);
        EXPECT_GE(nEventi, 2);
        EXPECT_FALSE(dialogo.Visibile.Valore());
        EXPECT_EQ(dialogo.LabColonneRid.Testo.Valore(), "2");
        piattaforma.eventi = {};
    });
    sistema.Toolbar2_ButtonClick("Riduzione");
    EXPECT_EQ(LeggiFile(Temp("Sviluppo_Rid_N-1.col")), ByteDi({{1, 2, 3}, {5, 6, 7}}));
    EXPECT_EQ(piattaforma.Messaggi().size(), 1U);
}

TEST_F(OrdavelRiduzione, UnoStopPrimaDellaCorsaNonChiudeIlDialogo)
{
    ScriviFile(sistema.FileColonne(), ByteDi({{1, 2, 3}}));
    piattaforma.Gioca<F_Riduzione>([&](F_Riduzione& dialogo) {
        int nEventi = 0;
        piattaforma.eventi = [&] {
            if (++nEventi == 1) {
                dialogo.XPButton1_Click(0);
            }
        };
        dialogo.XPButton1_Click(0);
        EXPECT_TRUE(dialogo.Visibile.Valore());
        piattaforma.eventi = {};
    });
    sistema.Toolbar2_ButtonClick("Riduzione");
    EXPECT_EQ(piattaforma.Messaggi().size(), 1U);
}

TEST_F(OrdavelRiduzione, UnDialogoInMostraOInCorsaNonSiMostraDiNuovo)
{
    ScriviFile(sistema.FileColonne(), ByteDi({{1, 2, 3}, {1, 2, 4}, {5, 6, 7}}));
    piattaforma.Gioca<F_Riduzione>([&](F_Riduzione& dialogo) {
        sistema.Toolbar2_ButtonClick("Riduzione");
        piattaforma.eventi = [&] {
            dialogo.Nascondi({});
            if (!dialogo.PuoChiudersi()) {
                sistema.Toolbar2_ButtonClick("Riduzione");
            }
        };
        dialogo.XPButton1_Click(0);
        piattaforma.eventi = {};
        EXPECT_EQ(dialogo.LabColonneRid.Testo.Valore(), "2");
    });
    sistema.Toolbar2_ButtonClick("Riduzione");
    EXPECT_EQ(piattaforma.Messaggi().size(), 1U);
}

TEST_F(OrdavelRiduzione, ChiusoPrimaDellaCorsaERimostratoIlDialogoFinisceLaSua)
{
    ScriviFile(sistema.FileColonne(), ByteDi({{1, 2, 3}, {1, 2, 4}, {5, 6, 7}}));
    piattaforma.Gioca<F_Riduzione>([&](F_Riduzione& dialogo) {
        int nEventi = 0;
        piattaforma.eventi = [&] {
            if (++nEventi == 1) {
                dialogo.Nascondi({});
                sistema.Toolbar2_ButtonClick("Riduzione");
            }
        };
        dialogo.XPButton1_Click(0);
        piattaforma.eventi = {};
        EXPECT_EQ(dialogo.LabColonneRid.Testo.Valore(), "2");
    });
    piattaforma.Gioca<F_Riduzione>([](F_Riduzione& dialogo) { dialogo.Nascondi({}); });
    sistema.Toolbar2_ButtonClick("Riduzione");
    EXPECT_EQ(piattaforma.Messaggi().size(), 1U);
}

TEST_F(OrdavelRiduzione, GliScattiChiedonoAlMotoreEsternoAQuantoSta)
{
    piattaforma.Gioca<F_Riduzione>([](F_Riduzione& dialogo) {
        dialogo.Timer1.scatto();
        EXPECT_EQ(dialogo.PanPerc.Valore.Valore(), 42);
    });
    sistema.Toolbar2_ButtonClick("Riduzione");
}

} // namespace
} // namespace ordavel
