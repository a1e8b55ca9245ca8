// F_Riduzione_prova.cpp - the dialog that reduces a file into one beside it, and what STOP does there.

#include "analisi/F_Riduzione.hpp"

#include "comune/CartellaProva.hpp"
#include "comune/ColonneProva.hpp"
#include "editor/OspiteProva.hpp"

#include <gtest/gtest.h>

#include <chrono>

namespace ordavel {
namespace {

using prove::CartellaProva;
using prove::ColonnaDi;
using prove::Fallimento;
using prove::LeggiFile;
using prove::OspiteProva;
using testing::ElementsAre;
using testing::IsEmpty;

std::string ByteDi(const std::vector<std::vector<int>>& aColonne)
{
    std::string sByte;
    for (const std::vector<int>& aNumeri : aColonne) {
        const Colonna colonna = ColonnaDi(aNumeri).colonna;
        sByte.append(colonna.aNumeri.begin(), colonna.aNumeri.end());
    }
    return sByte;
}

Messaggio Fine(std::string_view sTempo)
{
    return {.icona = eIcona::informazione,
            .sTitolo = {},
            .sTesto = "Fine\r\n" + std::string(sTempo),
            .pulsanti = ePulsanti::ok};
}

class Riduzione : public testing::Test {
protected:
    Riduzione() { prove::ScriviFile(m_sFile, ByteDi({{1, 2, 3}, {1, 2, 4}, {5, 6, 7}})); }

    std::string Uscita(int n) { return m_Cartella / ("test_Rid_N-" + std::to_string(n) + ".col"); }

    std::string Abilitati(const F_Riduzione& dialogo)
    {
        std::string sFin;
        for (const Controllo* controllo : {static_cast<const Controllo*>(&dialogo.Command1),
                                           static_cast<const Controllo*>(&dialogo.cmbRiduzione),
                                           static_cast<const Controllo*>(&dialogo.CmbMotoreRid),
                                           static_cast<const Controllo*>(&dialogo.XPButton1[0]),
                                           static_cast<const Controllo*>(&dialogo.XPButton1[1])}) {
            sFin += controllo->Abilitato.Valore() ? '1' : '0';
        }
        return sFin;
    }

    CartellaProva m_Cartella;
    std::string m_sFile = m_Cartella / "test.col";
    OspiteProva m_Ospite{5};
    prove::PiattaformaProva& m_Desktop = m_Ospite.desktop;
};

TEST_F(Riduzione, AlCaricamento)
{
    const F_Riduzione dialogo(m_Ospite);
    EXPECT_EQ(dialogo.sTitolo, "Riduzione colonne");
    EXPECT_THAT(dialogo.cmbRiduzione.Voci.Valore(), ElementsAre("N - 1", "N - 2", "N - 3"));
    EXPECT_EQ(dialogo.cmbRiduzione.Testo(), "N - 1");
    EXPECT_THAT(dialogo.CmbMotoreRid.Voci.Valore(), ElementsAre("Interno", "Esterno"));
    EXPECT_EQ(dialogo.CmbMotoreRid.Testo(), "Interno");
    EXPECT_EQ(dialogo.LabInfo.Testo.Valore(), "");
    EXPECT_EQ(dialogo.XPButton1[0].Testo.Valore(), "ESEGUI");
    EXPECT_EQ(dialogo.Timer1.nMillisecondi, 500);
    EXPECT_FALSE(dialogo.Timer1.Acceso.Valore());
    m_Ospite.motore = eMotoreSviluppo::esterno;
    EXPECT_EQ(F_Riduzione(m_Ospite).CmbMotoreRid.Testo(), "Esterno");
}

TEST_F(Riduzione, IlFileScelto)
{
    F_Riduzione dialogo(m_Ospite);
    m_Ospite.sPercorsoSalvaColonne = "/colonne/";
    m_Desktop.Scegli(m_sFile);
    dialogo.Command1_Click();
    const RichiestaFile attesa{.sTitolo = "Apri file",
                               .sFiltro = "File colonne (*.col)|*.col)",
                               .sEstensione = ".col",
                               .sNomeFile = "*.col",
                               .sCartella = "/colonne/"};
    EXPECT_THAT(m_Desktop.Dialoghi(), ElementsAre(prove::DialogoFile{false, attesa}));
    EXPECT_EQ(dialogo.labFile.Testo.Valore(), m_sFile);
    EXPECT_EQ(dialogo.labFile.Suggerimento.Valore(), m_sFile);
    EXPECT_EQ(dialogo.LabColonne.Testo.Valore(), "3");
    EXPECT_EQ(dialogo.LabClasse.Testo.Valore(), "3");
    EXPECT_EQ(dialogo.LabFileRidotto.Testo.Valore(), Uscita(1));
}

TEST_F(Riduzione, UnFileCheNonCeNonCambiaNulla)
{
    F_Riduzione dialogo(m_Ospite);
    dialogo.labFile.Testo.Poni(m_sFile);
    for (const std::string& sScelto : {std::string(), m_Cartella / "manca.col"}) {
        m_Desktop.Scegli(sScelto);
        dialogo.Command1_Click();
        EXPECT_EQ(dialogo.labFile.Testo.Valore(), m_sFile);
        EXPECT_EQ(dialogo.LabFileRidotto.Testo.Valore(), Uscita(1));
    }
}

TEST_F(Riduzione, IlNomeDellUscitaSegueFileERiduzione)
{
    F_Riduzione dialogo(m_Ospite);
    dialogo.cmbRiduzione.Indice.Poni(1);
    EXPECT_EQ(dialogo.LabFileRidotto.Testo.Valore(), "");
    dialogo.labFile.Testo.Poni(m_sFile);
    EXPECT_EQ(dialogo.LabFileRidotto.Testo.Valore(), Uscita(2));
    dialogo.LabColonneRid.Testo.Poni("12");
    dialogo.XPButton1[0].Abilitato.Poni(false);
    dialogo.cmbRiduzione.Indice.Poni(2);
    EXPECT_EQ(dialogo.LabFileRidotto.Testo.Valore(), Uscita(3));
    EXPECT_EQ(dialogo.LabColonneRid.Testo.Valore(), "");
    EXPECT_TRUE(dialogo.XPButton1[0].Abilitato.Valore());
    const std::string sPunti = m_Cartella / "con.due.punti";
    prove::ScriviFile(sPunti, ByteDi({{1, 2}}));
    dialogo.labFile.Testo.Poni(sPunti);
    EXPECT_EQ(dialogo.LabFileRidotto.Testo.Valore(), m_Cartella / "con.due_Rid_N-3.col");
}

TEST_F(Riduzione, EsegueEDiceQuantoEDurata)
{
    F_Riduzione dialogo(m_Ospite);
    dialogo.labFile.Testo.Poni(m_sFile);
    prove::ScriviFile(Uscita(1), std::string(1000, 'x')); // an older one is replaced
    m_Desktop.Orologio({86390.0F, 3.6F});
    dialogo.Mostra();
    dialogo.XPButton1_Click(0);
    EXPECT_EQ(LeggiFile(Uscita(1)), ByteDi({{1, 2, 3}, {5, 6, 7}}));
    EXPECT_EQ(dialogo.LabColonneRid.Testo.Valore(), "2");
    EXPECT_EQ(dialogo.PanPerc.Valore.Valore(), 0);
    EXPECT_EQ(dialogo.XPButton1[0].Testo.Valore(), "ESEGUI");
    EXPECT_EQ(Abilitati(dialogo), "11111");
    EXPECT_TRUE(dialogo.Visibile.Valore());
    EXPECT_THAT(m_Desktop.Messaggi(), ElementsAre(Fine("00:00:14")));
}

TEST_F(Riduzione, ConTutteLeTreCeduteRestaLaPrimaSola)
{
    F_Riduzione dialogo(m_Ospite);
    dialogo.labFile.Testo.Poni(m_sFile);
    dialogo.cmbRiduzione.Indice.Poni(2);
    dialogo.XPButton1_Click(0);
    EXPECT_EQ(LeggiFile(Uscita(3)), ByteDi({{1, 2, 3}}));
    EXPECT_THAT(m_Desktop.Messaggi(), ElementsAre(Fine("00:00:00")));
}

TEST_F(Riduzione, DuranteLaCorsaSiPuoSoloFermare)
{
    F_Riduzione dialogo(m_Ospite);
    dialogo.labFile.Testo.Poni(m_sFile);
    int nEventi = 0;
    m_Desktop.eventi = [&] {
        EXPECT_EQ(dialogo.XPButton1[0].Testo.Valore(), "STOP");
        EXPECT_EQ(Abilitati(dialogo), "00010");
        EXPECT_EQ(m_Ospite.motore, eMotoreSviluppo::interno);
        EXPECT_EQ(dialogo.PuoChiudersi(), nEventi++ == 0); // the run begins behind the first events
        dialogo.XPButton1_Click(1);
    };
    dialogo.Mostra();
    dialogo.XPButton1_Click(0);
    EXPECT_GT(nEventi, 1);
    EXPECT_TRUE(dialogo.Visibile.Valore());
    EXPECT_TRUE(dialogo.PuoChiudersi());
    EXPECT_EQ(m_Desktop.Messaggi().size(), 1U);
    dialogo.XPButton1_Click(1);
    EXPECT_FALSE(dialogo.Visibile.Valore());
}

TEST_F(Riduzione, GliEventiPassanoOgniTantoNonAOgniPasso)
{
    // Three steps of 10000 columns.
    std::string sByte;
    for (int n = 0; n < 30000; ++n) {
        sByte += static_cast<char>(1 + n % 3);
        sByte += "\x05\x06" + std::string(17, '\0');
    }
    prove::ScriviFile(m_sFile, sByte);
    F_Riduzione dialogo(m_Ospite);
    m_Desktop.Scegli(m_sFile);
    dialogo.Command1_Click();
    m_Desktop.nEventi = 0;
    dialogo.XPButton1_Click(0);
    EXPECT_EQ(m_Desktop.nEventi, 1 + 3)
        << "una volta prima della corsa, poi a ogni passo, perché il tempo passa";
    m_Desktop.adesso = [] { return std::chrono::steady_clock::time_point::max() - std::chrono::hours(1); };
    m_Desktop.nEventi = 0;
    dialogo.XPButton1_Click(0);
    EXPECT_EQ(m_Desktop.nEventi, 1 + 1) << "il tempo sta fermo";
    EXPECT_EQ(m_Desktop.Messaggi().size(), 2U);
    static_cast<void>(m_Desktop.Dialoghi());
}

TEST_F(Riduzione, UnFileCambiatoDuranteLaCorsaValePerLaProssima)
{
    F_Riduzione dialogo(m_Ospite);
    dialogo.labFile.Testo.Poni(m_sFile);
    const std::string sAltro = m_Cartella / "altro_dal_nome_piu_lungo_di_ogni_testo_breve.col";
    prove::ScriviFile(sAltro, ByteDi({{1, 2}}));
    m_Desktop.eventi = [&] {
        if (!dialogo.PuoChiudersi()) {
            dialogo.labFile.Testo.Poni(sAltro);
        }
    };
    dialogo.XPButton1_Click(0);
    EXPECT_EQ(dialogo.LabColonneRid.Testo.Valore(), "2");
    EXPECT_EQ(LeggiFile(Uscita(1)), ByteDi({{1, 2, 3}, {5, 6, 7}}));
    EXPECT_EQ(m_Desktop.Messaggi().size(), 1U);
}

TEST_F(Riduzione, ConEsternoIlMotoreCambiaPerLaCorsaEIlTempoGira)
{
    F_Riduzione dialogo(m_Ospite);
    dialogo.labFile.Testo.Poni(m_sFile);
    dialogo.CmbMotoreRid.Indice.Poni(1);
    bool bGirava = false;
    m_Desktop.eventi = [&] {
        EXPECT_EQ(m_Ospite.motore, eMotoreSviluppo::esterno);
        bGirava = dialogo.Timer1.Acceso.Valore();
    };
    dialogo.XPButton1_Click(0);
    EXPECT_TRUE(bGirava);
    EXPECT_FALSE(dialogo.Timer1.Acceso.Valore());
    EXPECT_EQ(m_Ospite.motore, eMotoreSviluppo::interno);
    EXPECT_EQ(LeggiFile(Uscita(1)), ByteDi({{1, 2, 3}, {5, 6, 7}})); // the same reduction
    EXPECT_EQ(m_Desktop.Messaggi().size(), 1U);
}

TEST_F(Riduzione, SenzaLibreriaIlPrimoScattoLoDiceESiFerma)
{
    F_Riduzione dialogo(m_Ospite);
    dialogo.Timer1.Acceso.Poni(true);
    dialogo.Timer1.scatto();
    EXPECT_FALSE(dialogo.Timer1.Acceso.Valore());
    EXPECT_THAT(m_Desktop.Messaggi(), ElementsAre(Fallimento("F_Riduzione.Timer1_Timer",
                                                             Errore(eErrore::fileNonTrovato, "trvrdcol"))));
}

TEST_F(Riduzione, SenzaLibreriaLoStopFallisceELaCorsaFinisce)
{
    F_Riduzione dialogo(m_Ospite);
    dialogo.labFile.Testo.Poni(m_sFile);
    int nEventi = 0;
    m_Desktop.eventi = [&] {
        if (++nEventi == 2) {
            dialogo.XPButton1_Click(0);
        }
    };
    dialogo.Mostra();
    dialogo.XPButton1_Click(0);
    EXPECT_EQ(m_Ospite.nStopRiduzione, 0);
    EXPECT_TRUE(dialogo.Visibile.Valore());
    EXPECT_EQ(LeggiFile(Uscita(1)), ByteDi({{1, 2, 3}, {5, 6, 7}}));
    EXPECT_THAT(m_Desktop.Messaggi(), ElementsAre(Fallimento("F_Riduzione.GestioneEseguiRid",
                                                             Errore(eErrore::fileNonTrovato, "trvrdcol")),
                                                  Fine("00:00:00")));
}

TEST_F(Riduzione, UnFallimentoSiMostraEIlDialogoTornaLibero)
{
    F_Riduzione dialogo(m_Ospite);
    dialogo.labFile.Testo.Poni(m_sFile);
    std::filesystem::remove(m_sFile);
    dialogo.XPButton1_Click(0);
    EXPECT_THAT(m_Desktop.Messaggi(), ElementsAre(Fallimento("F_Riduzione.GestioneEseguiRid",
                                                             Errore(eErrore::fileNonTrovato, m_sFile))));
    EXPECT_EQ(Abilitati(dialogo), "11111");
    EXPECT_EQ(dialogo.XPButton1[0].Testo.Valore(), "ESEGUI");
    EXPECT_EQ(dialogo.LabColonneRid.Testo.Valore(), "");
    EXPECT_TRUE(dialogo.PuoChiudersi());
}

} // namespace
} // namespace ordavel
