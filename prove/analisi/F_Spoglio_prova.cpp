// F_Spoglio_prova.cpp - the columns of the working file against a winning column.

#include "analisi/F_Spoglio.hpp"

#include "comune/ColonneProva.hpp"
#include "editor/OspiteProva.hpp"

#include <gtest/gtest.h>

namespace ordavel {
namespace {

using prove::Avviso;
using prove::ColonnaDi;
using prove::Fallimento;
using prove::OspiteProva;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* kNumeri = "Inserire numeri da 1 a 90";
constexpr const char* kMassimo = "La colonna vincente deve contenere massimo 20 numeri";

class Spoglio : public testing::Test {
protected:
    Spoglio()
    {
        m_Ospite.aColonneSviluppo.clear();
        for (const std::vector<int>& aNumeri : std::vector<std::vector<int>>{
                 {5, 12, 30, 40, 50}, {1, 2, 3, 4, 5}, {5, 12, 31, 41, 51}, {6, 7, 8, 9, 10}}) {
            m_Ospite.aColonneSviluppo.push_back(ColonnaDi(aNumeri).colonna);
        }
    }

    /// What the check of a text shows as warnings; nothing when the text passes.
    std::vector<Messaggio> Verifica(const std::string& sTesto)
    {
        F_Spoglio dialogo(m_Ospite);
        dialogo.Text1.Testo.Poni(sTesto);
        const bool bVa = dialogo.verificaCoerenzacolonna();
        auto aMessaggi = m_Ospite.desktop.Messaggi();
        EXPECT_EQ(bVa, aMessaggi.empty());
        return aMessaggi;
    }

    static std::vector<std::string> Testi(const Elenco& elenco)
    {
        std::vector<std::string> aTesti;
        for (const RigaElenco& riga : elenco.Righe.Valore()) {
            aTesti.push_back(riga.sTesto + "|" + riga.aSotto.back());
        }
        return aTesti;
    }

    OspiteProva m_Ospite{5};
};

TEST_F(Spoglio, AlCaricamento)
{
    F_Spoglio dialogo(m_Ospite);
    EXPECT_EQ(dialogo.sTitolo, "Spoglio vincite");
    EXPECT_EQ(dialogo.CmbPuntiMin.Testo(), "2");
    EXPECT_THAT(dialogo.TabStrip1.Voci.Valore(), ElementsAre("Vincite", "Confronto condizioni", "Riepilogo"));
    m_Ospite.nGioco = 3;
    EXPECT_EQ(F_Spoglio(m_Ospite).CmbPuntiMin.Testo(), "3");
}

TEST_F(Spoglio, SiMostraUnaPaginaAllaVolta)
{
    F_Spoglio dialogo(m_Ospite);
    for (std::int32_t nPagina = 0; nPagina < 3; ++nPagina) {
        dialogo.TabStrip1.Indice.Poni(nPagina);
        EXPECT_EQ(dialogo.ListView1.Visibile.Valore(), nPagina == 0);
        EXPECT_EQ(dialogo.ListView2.Visibile.Valore(), nPagina == 1);
        EXPECT_EQ(dialogo.ListView3.Visibile.Valore(), nPagina == 2);
    }
}

TEST_F(Spoglio, INumeriStannoDaUnoANovanta)
{
    EXPECT_THAT(Verifica("5.12.30"), IsEmpty());
    EXPECT_THAT(Verifica("1.90"), IsEmpty());
    EXPECT_THAT(Verifica("5,12,30"), IsEmpty()) << "one piece that begins with 5";
    for (const char* sTesto : {"", "0", "91", "5.0", "5.91.7", "x", "5.", "-3"}) {
        EXPECT_THAT(Verifica(sTesto), ElementsAre(Avviso(kNumeri))) << sTesto;
    }
}

TEST_F(Spoglio, VentunoNumeriSonoTroppi)
{
    std::string sVenti = "1";
    for (int n = 2; n <= 20; ++n) {
        sVenti += "." + std::to_string(n);
    }
    EXPECT_THAT(Verifica(sVenti), IsEmpty());
    EXPECT_THAT(Verifica(sVenti + ".21"), ElementsAre(Avviso(kMassimo)));
    EXPECT_THAT(Verifica(sVenti + ".99"), ElementsAre(Avviso(kMassimo))) << "it replaces the first message";
}

TEST_F(Spoglio, SiContanoIPuntiDiOgniColonna)
{
    F_Spoglio dialogo(m_Ospite);
    dialogo.Text1.Testo.Poni("5.12.30");
    dialogo.VerificaVincite(1);
    EXPECT_THAT(Testi(dialogo.ListView1), ElementsAre("1|3", "2|1", "3|2"));
    EXPECT_EQ(dialogo.ListView1.Righe.Valore()[0].aSotto[0], "05 12 30 40 50");
    EXPECT_THAT(Testi(dialogo.ListView3),
                ElementsAre("Vincite con 5 punti |0", "Vincite con 4 punti |0", "Vincite con 3 punti |1",
                            "Vincite con 2 punti |1", "Vincite con 1 punti |1"));
}

TEST_F(Spoglio, ConLeVirgoleSiGiocaIlPrimoNumero)
{
    F_Spoglio dialogo(m_Ospite);
    dialogo.Text1.Testo.Poni("5,12,30");
    dialogo.VerificaVincite(1);
    EXPECT_THAT(Testi(dialogo.ListView1), ElementsAre("1|1", "2|1", "3|1"));
}

TEST_F(Spoglio, IPuntiContanoIPostiELaClasseDiceQuanti)
{
    // A number that a column has twice scores twice; what stands behind the class does not.
    m_Ospite.aColonneSviluppo = {ColonnaDi({5, 5, 1, 2, 3, 12}).colonna, ColonnaDi({1, 2, 3, 4, 12}).colonna};
    F_Spoglio dialogo(m_Ospite);
    dialogo.Text1.Testo.Poni("5.5.12.12");
    dialogo.VerificaVincite(1);
    EXPECT_THAT(Testi(dialogo.ListView1), ElementsAre("1|2", "2|1"));
}

TEST_F(Spoglio, IlNovantaSiGiocaEUnNumeroConDecimaliNo)
{
    m_Ospite.aColonneSviluppo = {ColonnaDi({86, 87, 88, 89, 90}).colonna};
    F_Spoglio dialogo(m_Ospite);
    dialogo.Text1.Testo.Poni("90.885e-1");
    dialogo.VerificaVincite(1);
    EXPECT_THAT(Testi(dialogo.ListView1), ElementsAre("1|1"));
}

TEST_F(Spoglio, UnFallimentoDelControlloHaIlSuoNome)
{
    F_Spoglio dialogo(m_Ospite);
    dialogo.Text1.Testo.Poni("5");
    dialogo.VerificaVincite(-1);
    EXPECT_THAT(m_Ospite.desktop.Messaggi(),
                ElementsAre(Fallimento("F_Spoglio.VerificaVincite", Errore(eErrore::indice))));
}

TEST_F(Spoglio, UnMinimoSopraLaClasseNonRiepilogaNulla)
{
    F_Spoglio dialogo(m_Ospite);
    dialogo.Text1.Testo.Poni("5");
    dialogo.VerificaVincite(6);
    EXPECT_THAT(dialogo.ListView3.Righe.Valore(), IsEmpty());
    EXPECT_THAT(dialogo.ListView1.Righe.Valore(), IsEmpty());
}

TEST_F(Spoglio, SenzaColonneNonSiConta)
{
    m_Ospite.aColonneSviluppo = {Colonna{}};
    F_Spoglio dialogo(m_Ospite);
    dialogo.Text1.Testo.Poni("5");
    dialogo.VerificaVincite(1);
    EXPECT_THAT(dialogo.ListView1.Righe.Valore(), IsEmpty());
    EXPECT_EQ(Testi(dialogo.ListView3).back(), "Vincite con 1 punti |0");
}

TEST_F(Spoglio, LOrdineSceltoRestaAlControlloDopo)
{
    F_Spoglio dialogo(m_Ospite);
    dialogo.Text1.Testo.Poni("5.12.30");
    dialogo.VerificaVincite(1);
    dialogo.ListView1_ColumnClick(3);
    EXPECT_THAT(Testi(dialogo.ListView1), ElementsAre("2|1", "3|2", "1|3"));
    dialogo.ListView1_ColumnClick(3);
    EXPECT_THAT(Testi(dialogo.ListView1), ElementsAre("1|3", "3|2", "2|1"));
    dialogo.VerificaVincite(2);
    EXPECT_THAT(Testi(dialogo.ListView1), ElementsAre("1|3", "3|2"));
    dialogo.ListView1_ColumnClick(3);
    dialogo.VerificaVincite(2);
    EXPECT_THAT(Testi(dialogo.ListView1), ElementsAre("3|2", "1|3"));
    dialogo.ListView1_ColumnClick(2);
    dialogo.ListView1_ColumnClick(2);
    dialogo.VerificaVincite(2);
    EXPECT_THAT(Testi(dialogo.ListView1), ElementsAre("3|2", "1|3")) << "05 12 31 before 05 12 30";
}

TEST_F(Spoglio, IlConfrontoLeggeLeVirgole)
{
    m_Ospite.griglia.Riga(1) = {"Ampiezza", "", "1-89", "-", " "};
    F_Spoglio dialogo(m_Ospite);
    dialogo.Text1.Testo.Poni("5,12,30");
    dialogo.GestioneConfrontoCond();
    EXPECT_EQ(dialogo.ListView2.Righe.Valore().at(0).aSotto[3], "25") << "30 less 5";
    dialogo.Text1.Testo.Poni("5.12.30");
    dialogo.GestioneConfrontoCond();
    EXPECT_EQ(dialogo.ListView2.Righe.Valore().at(0).aSotto[3], "0") << "one number, 5.12 stored as 5";
}

TEST_F(Spoglio, IlConfrontoDiceCheCosaTaglia)
{
    m_Ospite.griglia.Riga(1) = {"Ampiezza", "", "1-89", "-", " "};
    m_Ospite.griglia.Riga(2) = {"Ampiezza", "", "1-2", "-", " "};
    F_Spoglio dialogo(m_Ospite);
    EXPECT_FALSE(dialogo.Tagli.has_value());
    dialogo.Text1.Testo.Poni("5,12,30");
    dialogo.GestioneConfrontoCond();
    EXPECT_EQ(dialogo.Tagli, std::vector<std::size_t>{1});
    dialogo.Text1.Testo.Poni("300");
    dialogo.GestioneConfrontoCond();
    EXPECT_FALSE(dialogo.Tagli.has_value()) << "the comparison failed";
    EXPECT_EQ(m_Ospite.desktop.Messaggi().size(), std::size_t{1});
}

TEST_F(Spoglio, UnNumeroCheNonStaInUnByteFallisce)
{
    F_Spoglio dialogo(m_Ospite);
    for (const char* sTesto : {"1,256", "-1"}) {
        dialogo.Text1.Testo.Poni(sTesto);
        dialogo.GestioneConfrontoCond();
    }
    const Messaggio troppo = Fallimento("F_Spoglio.GestioneConfrontoCond", Errore(eErrore::overflow));
    EXPECT_THAT(m_Ospite.desktop.Messaggi(), ElementsAre(troppo, troppo));
}

TEST_F(Spoglio, INumeriDelConfrontoNonSiOrdinano)
{
    m_Ospite.griglia.Riga(1) = {"Posizioni", "Casella :\r\n1", "1-90", "-", " "};
    F_Spoglio dialogo(m_Ospite);
    dialogo.Text1.Testo.Poni("30,5,12.5");
    dialogo.GestioneConfrontoCond();
    EXPECT_EQ(dialogo.ListView2.Righe.Valore().at(0).aSotto[3], "30");
    m_Ospite.griglia.Riga(1).sParametri = "Casella :\r\n3";
    dialogo.GestioneConfrontoCond();
    EXPECT_EQ(dialogo.ListView2.Righe.Valore().at(0).aSotto[3], "12") << "12.5 is nearest to an even 12";
}

TEST_F(Spoglio, SenzaEstrazioniCaricateIlConfrontoDiUnEmulatoreFallisce)
{
    m_Ospite.griglia.Riga(1) = {"Emulatore", "[1]\r\nP0) 0 - 9\r\n", "", "", ""};
    F_Spoglio dialogo(m_Ospite);
    dialogo.Text1.Testo.Poni("5");
    dialogo.GestioneConfrontoCond();
    EXPECT_THAT(m_Ospite.desktop.Messaggi(),
                ElementsAre(Fallimento("F_Spoglio.GestioneConfrontoCond", Errore(eErrore::indice))));
    m_Ospite.stato.bEmulatoreCaricato = true;
    dialogo.GestioneConfrontoCond();
    EXPECT_EQ(dialogo.ListView2.Righe.Valore().size(), std::size_t{1});
}

TEST_F(Spoglio, IlConfrontoUsaLeEstrazioniDellUltimaCorsa)
{
    std::vector<RigaEmulatore> aRighe(2);
    aRighe[0](5) = aRighe[1](5) = 1;
    m_Ospite.stato.aEmulatore = RigheEmulatore(aRighe);
    m_Ospite.stato.bEmulatoreCaricato = true;
    m_Ospite.griglia.Riga(1) = {"Emulatore", "[2]\r\nP0) 0 - 0\r\nP1) 2 - 2\r\n", "", "", ""};
    F_Spoglio dialogo(m_Ospite);
    dialogo.Text1.Testo.Poni("5");
    dialogo.GestioneConfrontoCond();
    EXPECT_EQ(dialogo.ListView2.Righe.Valore().at(0).aSotto.back(), "Si");
}

TEST_F(Spoglio, PiuDiVentiNumeriConLeVirgoleFallisconoColLoroNome)
{
    F_Spoglio dialogo(m_Ospite);
    std::string sVentuno = "1";
    for (int n = 0; n < 20; ++n) {
        sVentuno += ",1";
    }
    dialogo.Text1.Testo.Poni(sVentuno);
    dialogo.GestioneConfrontoCond();
    EXPECT_THAT(m_Ospite.desktop.Messaggi(),
                ElementsAre(Fallimento("F_Spoglio.GestioneConfrontoCond", Errore(eErrore::indice))));
}

TEST_F(Spoglio, IContatoriDellUltimaCorsaRestano)
{
    m_Ospite.stato.aCondizioni.assign(1, RecordCondizione{});
    m_Ospite.stato.aCondizioni[0].ContaOk = 77;
    m_Ospite.griglia.Riga(1) = {"Ponte", "", "0", "", ""};
    F_Spoglio dialogo(m_Ospite);
    dialogo.Text1.Testo.Poni("1,2,3,4,5");
    dialogo.GestioneConfrontoCond();
    EXPECT_EQ(m_Ospite.stato.aCondizioni[0].ContaOk, 77);
}

TEST_F(Spoglio, IPulsanti)
{
    F_Spoglio dialogo(m_Ospite);
    dialogo.Visibile.Poni(true);
    dialogo.Text1.Testo.Poni("0");
    dialogo.XPButton1(0);
    EXPECT_THAT(m_Ospite.desktop.Messaggi(), ElementsAre(Avviso(kNumeri)));
    dialogo.Text1.Testo.Poni("5");
    dialogo.XPButton1(0);
    EXPECT_EQ(Testi(dialogo.ListView3).size(), std::size_t{4});
    dialogo.XPButton1(1);
    EXPECT_FALSE(dialogo.Visibile.Valore());
}

} // namespace
} // namespace ordavel
