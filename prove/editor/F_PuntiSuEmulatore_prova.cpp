// F_PuntiSuEmulatore_prova.cpp - the dialog of emulated columns and how often each number of hits may come.

#include "editor/F_PuntiSuEmulatore.hpp"

#include "comune/Fallimenti.hpp"
#include "condizioni/ModTestoCelle.hpp"
#include "editor/UtenteProva.hpp"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace ordavel {
namespace {

using prove::Confermata;
using prove::Fallimento;
using prove::GrigliaCon;
using prove::OspiteProva;
using prove::Riconfermata;
using prove::Riempita;
using prove::Rifiutata;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::int16_t kClasse = 2;
constexpr std::int32_t kMinimo = 1;
constexpr std::int32_t kMassimo = 2;

Condizione Celle(const std::string& sParametri)
{
    return {"Emulatore", sParametri, "", "", ""};
}

class Emulatore : public testing::Test {
protected:
    std::vector<std::string> Colonna(std::int32_t nColonna) const
    {
        std::vector<std::string> aTesti;
        for (std::int32_t nRiga = 0; nRiga < m_Dialogo.MSFlexGrid1.Righe(); ++nRiga) {
            aTesti.push_back(m_Dialogo.MSFlexGrid1.Testo({nRiga, nColonna}));
        }
        return aTesti;
    }

    /// The user goes to a cell.
    void Vai(std::int32_t nRiga, std::int32_t nColonna)
    {
        m_Dialogo.MSFlexGrid1.Corrente.Poni({nRiga, nColonna});
    }

    OspiteProva m_Ospite{kClasse};
    F_PuntiSuEmulatore m_Dialogo{m_Ospite};
};

TEST(FPuntiSuEmulatore, HaNomeTitoloEStatistica)
{
    prove::ControllaCornice<F_PuntiSuEmulatore>("F_PuntiSuEmulatore", "Punti su emulatore", 26);
}

TEST_F(Emulatore, CaricatoHaTestataUnaRigaPerPuntiELaPrimaCellaCorrente)
{
    EXPECT_THAT(Colonna(0), ElementsAre("", "P0", "P1", "P2"));
    EXPECT_THAT(Colonna(kMinimo), ElementsAre("Minimo", "", "", ""));
    EXPECT_THAT(Colonna(kMassimo), ElementsAre("Massimo", "", "", ""));
    EXPECT_EQ(m_Dialogo.MSFlexGrid1.Celle.Valore().front().size(), std::size_t{3});
    EXPECT_EQ(m_Dialogo.MSFlexGrid1.Corrente.Valore(), (Foglio::Posto{1, kMinimo}));
    EXPECT_TRUE(m_Dialogo.Text1.Visibile.Valore());
    EXPECT_EQ(m_Dialogo.Text2.Testo.Valore(), "");
    EXPECT_EQ(F_PuntiSuEmulatore::kAltezzaRiga, 600);
}

TEST_F(Emulatore, IlQuadroDiRecuperoRestaVuoto)
{
    EXPECT_THAT(m_Dialogo.CmbRecupero.Voci.Valore(), IsEmpty());
}

TEST_F(Emulatore, IlNumeroDiColonneAccettaSoloCifre)
{
    EXPECT_TRUE(m_Dialogo.Text2.Accetta('7'));
    EXPECT_TRUE(m_Dialogo.Text2.Accetta(','));
    EXPECT_FALSE(m_Dialogo.Text2.Accetta('-'));
    EXPECT_FALSE(m_Dialogo.Text2.Accetta('a'));
    EXPECT_TRUE(m_Dialogo.Text1.Accetta('a'));
}

TEST_F(Emulatore, IMassimiSeguonoIlNumeroDiColonneEIMinimiNo)
{
    m_Dialogo.MSFlexGrid1.Scrivi({2, kMinimo}, "4");
    m_Dialogo.Text2.Testo.Poni("12");
    EXPECT_THAT(Colonna(kMassimo), ElementsAre("Massimo", "12", "12", "12"));
    EXPECT_THAT(Colonna(kMinimo), ElementsAre("Minimo", "", "4", ""));
}

TEST_F(Emulatore, UnMassimoCorrettoDuraFinoAlProssimoCambio)
{
    m_Dialogo.Text2.Testo.Poni("12");
    Vai(2, kMassimo);
    m_Dialogo.Text1.Testo.Poni("5");
    EXPECT_THAT(Colonna(kMassimo), ElementsAre("Massimo", "12", "5", "12"));
    m_Dialogo.Text2.Testo.Poni("13");
    EXPECT_THAT(Colonna(kMassimo), ElementsAre("Massimo", "13", "13", "13"));
    EXPECT_EQ(m_Dialogo.Text1.Testo.Valore(), "13");
}

TEST_F(Emulatore, LaCasellaScriveNellaCellaCorrenteESoloLi)
{
    m_Dialogo.Text1.Testo.Poni("3");
    Vai(3, kMinimo);
    EXPECT_EQ(m_Dialogo.Text1.Testo.Valore(), "");
    m_Dialogo.Text1.Testo.Poni("8");
    EXPECT_THAT(Colonna(kMinimo), ElementsAre("Minimo", "3", "", "8"));
    Vai(1, kMinimo);
    EXPECT_EQ(m_Dialogo.Text1.Testo.Valore(), "3");
    EXPECT_THAT(Colonna(kMinimo), ElementsAre("Minimo", "3", "", "8"));
}

TEST_F(Emulatore, OgniSpostamentoChiedeIlFuocoPerLaCasella)
{
    const std::int32_t nPrima = m_Dialogo.Text1.Fuoco.Valore();
    Vai(2, kMinimo);
    EXPECT_EQ(m_Dialogo.Text1.Fuoco.Valore(), nPrima + 1);
    m_Dialogo.Mostra();
    EXPECT_EQ(m_Dialogo.Text1.Fuoco.Valore(), nPrima + 2);
}

TEST_F(Emulatore, SullaTestataLaCasellaSiNascondeESullaRigaTorna)
{
    for (const std::int32_t nRiga : {0, -1}) {
        Vai(nRiga, kMinimo);
        EXPECT_FALSE(m_Dialogo.Text1.Visibile.Valore()) << nRiga;
        Vai(1, kMassimo);
        EXPECT_TRUE(m_Dialogo.Text1.Visibile.Valore());
    }
    EXPECT_THAT(Colonna(kMinimo), ElementsAre("Minimo", "", "", ""));
}

TEST_F(Emulatore, SenzaColonneNonSiConferma)
{
    for (const char* sTesto : {"", "0", "000", ",5", "x"}) {
        m_Dialogo.Text2.Testo.Poni(sTesto);
        Rifiutata(m_Ospite, m_Dialogo, "Impostare il numero di colonne da emulare");
    }
}

TEST_F(Emulatore, CinquecentoColonnePassanoECinquecentounoNo)
{
    m_Dialogo.Text2.Testo.Poni("501");
    Rifiutata(m_Ospite, m_Dialogo, "Il numero di colonne da emulare massimo è 500");
    EXPECT_EQ(m_Dialogo.Text2.Testo.Valore(), "501");
    m_Dialogo.Text2.Testo.Poni("500");
    EXPECT_EQ(Confermata(m_Dialogo), Celle("[500]\r\nP0)   0 - 500\r\nP1)   0 - 500\r\nP2)   0 - 500\r\n"));
}

TEST_F(Emulatore, IMinimiEIMassimiNonSiProvano)
{
    m_Dialogo.Text2.Testo.Poni("1");
    m_Dialogo.MSFlexGrid1.Scrivi({1, kMinimo}, "9");
    m_Dialogo.MSFlexGrid1.Scrivi({2, kMassimo}, "");
    m_Dialogo.MSFlexGrid1.Scrivi({3, kMassimo}, "x");
    EXPECT_EQ(Confermata(m_Dialogo), Celle("[1]\r\nP0)   9 -   1\r\nP1)   0 -   0\r\nP2)   0 -   0\r\n"));
}

TEST_F(Emulatore, INumeriLunghiNonSiTagliano)
{
    m_Dialogo.Text2.Testo.Poni("012");
    m_Dialogo.MSFlexGrid1.Scrivi({1, kMinimo}, "007");
    m_Dialogo.MSFlexGrid1.Scrivi({2, kMinimo}, "12345");
    EXPECT_EQ(m_Dialogo.GetParametri(),
              Celle("[12]\r\nP0)   7 -  12\r\nP1) 12345 -  12\r\nP2)   0 -  12\r\n"));
}

const Condizione kTreRighe = Celle("[30]\r\nP0)   1 -  20\r\nP1)   0 -   9\r\nP2)  10 - 100\r\n");

TEST_F(Emulatore, LaRigaRilettaRiempieTuttoEIMassimiRestanoISuoi)
{
    m_Dialogo.LeggiPunti(GrigliaCon(kTreRighe));
    EXPECT_EQ(m_Dialogo.Text2.Testo.Valore(), "30");
    EXPECT_THAT(Colonna(kMinimo), ElementsAre("Minimo", "1", "0", "10"));
    EXPECT_THAT(Colonna(kMassimo), ElementsAre("Massimo", "20", "9", "100"));
    EXPECT_EQ(m_Dialogo.Text1.Testo.Valore(), "1");
    m_Dialogo.Text2.Testo.Poni("31");
    EXPECT_THAT(Colonna(kMassimo), ElementsAre("Massimo", "31", "31", "31"));
}

TEST_F(Emulatore, RilettaEConfermataDaLeStesseCelle)
{
    EXPECT_EQ(Riconfermata<F_PuntiSuEmulatore>(m_Ospite, kTreRighe), kTreRighe);
}

TEST_F(Emulatore, UnaLineaSenzaParentesiLasciaLaSuaRigaComEra)
{
    m_Dialogo.LeggiPunti(GrigliaCon(Celle("[4]\r\nP0 1-2\r\nP1) 3-4\r\n")));
    EXPECT_THAT(Colonna(kMinimo), ElementsAre("Minimo", "", "3", ""));
    EXPECT_THAT(Colonna(kMassimo), ElementsAre("Massimo", "", "4", ""));
}

TEST_F(Emulatore, UnaLineaSenzaTrattinoFallisce)
{
    const auto griglia = GrigliaCon(Celle("[4]\r\nP0) 12\r\n"));
    EXPECT_EQ(prove::NumeroErrore([&] { m_Dialogo.LeggiPunti(griglia); }), 9);
}

TEST_F(Emulatore, UnaCellaVuotaNonCambiaNulla)
{
    m_Dialogo.Text2.Testo.Poni("6");
    m_Dialogo.LeggiPunti(GrigliaCon(Celle("")));
    EXPECT_EQ(m_Dialogo.Text2.Testo.Valore(), "6");
    EXPECT_THAT(Colonna(kMassimo), ElementsAre("Massimo", "6", "6", "6"));
}

TEST_F(Emulatore, LaRigaDaUnRecordHaUndiciLineeESiRileggonoQuelleDellaClasse)
{
    RecordCondizione record;
    record.Tipo = TipoCondizione::emulatore;
    record.Parametro = 40;
    record.PuntiOk(1) = 2;
    record.PuntiRec(0) = record.PuntiRec(1) = record.PuntiRec(2) = 40;
    const Condizione celle = CelleDaRecord(record);
    EXPECT_TRUE(celle.sParametri.ends_with("P10)   0 -   0\r\n"));
    EXPECT_EQ(Riconfermata<F_PuntiSuEmulatore>(m_Ospite, celle),
              Celle("[40]\r\nP0)   0 -  40\r\nP1)   2 -  40\r\nP2)   0 -  40\r\n"));
}

TEST_F(Emulatore, LaStringaSiDivideInLineeELaPrimaPerdeLUltimoCarattere)
{
    const std::string sLinee = "\r\nP0) 1-2\r\nP1)  3 - 4 \r\n";
    const auto attesa = Celle("[12]\r\nP0)   1 -   2\r\nP1)   3 -   4\r\nP2)   0 -  12\r\n");
    for (const char* sPrima : {"12]", "12)", "12|"}) {
        EXPECT_EQ(Riempita<F_PuntiSuEmulatore>(m_Ospite, sPrima + sLinee),
                  std::pair(std::string("ttt"), attesa))
            << sPrima;
    }
}

TEST_F(Emulatore, LaPrimaLineaDellaCellaStessaDaZero)
{
    const auto [sTag, celle] = Riempita<F_PuntiSuEmulatore>(m_Ospite, kTreRighe.sParametri);
    EXPECT_EQ(sTag, "ttt");
    EXPECT_EQ(celle, Celle("[0]\r\nP0)   1 -  20\r\nP1)   0 -   9\r\nP2)  10 - 100\r\n"));
}

TEST_F(Emulatore, LaStringaDiUnaLineaPreimpostaIMassimi)
{
    EXPECT_EQ(
        Riempita<F_PuntiSuEmulatore>(m_Ospite, "7]"),
        std::pair(std::string("ttt"), Celle("[7]\r\nP0)   0 -   7\r\nP1)   0 -   7\r\nP2)   0 -   7\r\n")));
}

TEST_F(Emulatore, LaStringaNonSiProvaOltreCinquecento)
{
    const auto [sTag, celle] = Riempita<F_PuntiSuEmulatore>(m_Ospite, "501]");
    EXPECT_EQ(sTag, "ttt");
    EXPECT_TRUE(celle.sParametri.starts_with("[501]\r\n"));
}

TEST_F(Emulatore, LaStringaFallitaNonArrivaAllaTarga)
{
    // A range without "-", and a line for a number of hits beyond the class.
    for (const char* sParam : {"5]\r\nP0) 12", "5]\r\n0)1-2\r\n1)1-2\r\n2)1-2\r\n3)1-2"}) {
        EXPECT_EQ(Riempita<F_PuntiSuEmulatore>(m_Ospite, sParam).first, "") << sParam;
        EXPECT_THAT(m_Ospite.desktop.Messaggi(),
                    ElementsAre(Fallimento("OrdavelSis.setPuntiSuFrm", Errore(eErrore::indice))));
    }
}

} // namespace
} // namespace ordavel
