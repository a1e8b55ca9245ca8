// F_PuntisuColonna_prova.cpp - the dialog of numbers and how many of them a column may hold.

#include "editor/F_PuntisuColonna.hpp"

#include "comune/Fallimenti.hpp"
#include "comune/RecordProva.hpp"
#include "condizioni/ModTestoCelle.hpp"
#include "editor/UtenteProva.hpp"

#include <gtest/gtest.h>

#include <numeric>
#include <string>
#include <utility>
#include <vector>

namespace ordavel {
namespace {

using prove::Confermata;
using prove::GrigliaCon;
using prove::OspiteProva;
using prove::Riconfermata;
using prove::Rifiutata;
using prove::Segna;
using prove::Segnate;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::int16_t kClasse = 4;

void Scegli(SelettoreNumeri& selettore, const std::vector<int>& aNumeri)
{
    for (const int nNumero : aNumeri) {
        selettore.Seleziona(nNumero, true);
    }
}

/// The numbers with a yes.
std::vector<int> ConSegno(const SegniNumeri& aSegni)
{
    std::vector<int> aNumeri;
    for (int n = 1; n <= kNumeroMassimo; ++n) {
        if (aSegni(n) != 0) {
            aNumeri.push_back(n);
        }
    }
    return aNumeri;
}

Condizione Celle(const char* sParametri, const char* sPunti, const char* sRecupero, const char* sQuadro)
{
    return {"Punti Col.", sParametri, sPunti, sRecupero, sQuadro};
}

class Colonne : public testing::Test {
protected:
    OspiteProva m_Ospite{kClasse};
    F_PuntisuColonna m_Dialogo{m_Ospite};
};

TEST(FPuntisuColonna, HaNomeTitoloEStatistica)
{
    prove::ControllaCornice<F_PuntisuColonna>("F_PuntisuColonna", "Punti su colonna", 12);
}

TEST_F(Colonne, CaricatoOffreDaZeroAllaClasseENessunNumeroScelto)
{
    EXPECT_EQ(m_Dialogo.ChkPunti.Primo(), 0);
    EXPECT_EQ(m_Dialogo.ChkPunti.Ultimo(), kClasse);
    EXPECT_EQ(m_Dialogo.ChkRecupero.Ultimo(), kClasse);
    EXPECT_EQ(m_Dialogo.SelnovoNumeri1.Conta(), 0);
    EXPECT_EQ(m_Dialogo.CmbRecupero.Testo(), " ");
}

TEST_F(Colonne, SiScelgonoSoloINumeriDelSistema)
{
    SelettoreNumeri sistema;
    Scegli(sistema, {1, 7, 90});
    m_Dialogo.AbilitaNum(sistema);
    EXPECT_THAT(ConSegno(m_Dialogo.SelnovoNumeri1.Abilitati.Valore()), ElementsAre(1, 7, 90));
    EXPECT_EQ(m_Dialogo.SelnovoNumeri1.Conta(), 0);
    m_Dialogo.AbilitaNum(SelettoreNumeri());
    EXPECT_THAT(ConSegno(m_Dialogo.SelnovoNumeri1.Abilitati.Valore()), IsEmpty());
}

TEST_F(Colonne, IlDoppioClickConfermaORifiuta)
{
    m_Dialogo.Visibile.Poni(true);
    m_Dialogo.SelnovoNumeri1_DblClick();
    EXPECT_TRUE(m_Dialogo.Visibile.Valore());
    EXPECT_THAT(m_Ospite.desktop.Messaggi(), ElementsAre(prove::Avviso("Impostare i punti da realizzare")));
    Segna(m_Dialogo.ChkPunti, {1});
    m_Dialogo.SelnovoNumeri1_DblClick();
    EXPECT_EQ(m_Dialogo.sTag, "ooo");
    EXPECT_FALSE(m_Dialogo.Visibile.Valore());
}

TEST_F(Colonne, DelleProveFalliteParlaLUltima)
{
    Scegli(m_Dialogo.SelnovoNumeri1, {1, 2, 3});
    m_Dialogo.CmbRecupero.Indice.Poni(1);
    Rifiutata(m_Ospite, m_Dialogo, "Impostare i punti di recupero");
    Segna(m_Dialogo.ChkRecupero, {1});
    Rifiutata(m_Ospite, m_Dialogo, "Impostare i punti da realizzare");
}

TEST_F(Colonne, NessunNumeroSiAccettaELaCellaEVuota)
{
    Segna(m_Dialogo.ChkPunti, {0});
    EXPECT_EQ(Confermata(m_Dialogo), Celle("", "0", "", " "));
}

TEST_F(Colonne, QuattroNumeriUnaRigaEDopoIlQuartoSiVaACapo)
{
    const std::vector<std::pair<std::vector<int>, const char*>> aCasi{
        {{7}, "07"},
        {{1, 2, 3}, "01-02-03"},
        {{1, 2, 3, 90}, "01-02-03-90"},
        {{5, 1, 2, 3, 4}, "01-02-03-04-\r\n05"},
        {{1, 2, 3, 4, 5, 6, 7, 8}, "01-02-03-04-\r\n05-06-07-08"},
        {{1, 2, 3, 4, 5, 6, 7, 8, 89}, "01-02-03-04-\r\n05-06-07-08-\r\n89"},
    };
    for (const auto& [aNumeri, sParametri] : aCasi) {
        F_PuntisuColonna dialogo(m_Ospite);
        Scegli(dialogo.SelnovoNumeri1, aNumeri);
        EXPECT_EQ(dialogo.GetParametri().sParametri, sParametri);
    }
}

TEST_F(Colonne, IlRecuperoVaNellaCellaColGruppo)
{
    Scegli(m_Dialogo.SelnovoNumeri1, {11, 12});
    Segna(m_Dialogo.ChkPunti, {1, 2});
    m_Dialogo.CmbRecupero.Indice.Poni(8);
    Segna(m_Dialogo.ChkRecupero, {0, 4});
    EXPECT_EQ(Confermata(m_Dialogo), Celle("11-12", "1-2", "0-4", "8"));
    m_Dialogo.CmbRecupero.Indice.Poni(0);
    EXPECT_EQ(m_Dialogo.GetParametri(), Celle("11-12", "1-2", "", " "));
}

TEST_F(Colonne, UnNumeroRilettoRestaSceltoAncheSeIlSistemaNonLoHaPiu)
{
    m_Dialogo.LeggiPunti(GrigliaCon(Celle("11-12", "1", "", " ")));
    SelettoreNumeri sistema;
    Scegli(sistema, {12});
    m_Dialogo.AbilitaNum(sistema);
    EXPECT_EQ(Confermata(m_Dialogo).sParametri, "11-12");
}

TEST_F(Colonne, RilettaEConfermataDaLeStesseCelle)
{
    for (const Condizione& celle : {Celle("", "0", "", " "), Celle("01-02-03-04", "1-4", "", " "),
                                    Celle("01-02-03-04-\r\n05-06-07-08-\r\n90", "2", "0-3", "20")}) {
        EXPECT_EQ(Riconfermata<F_PuntisuColonna>(m_Ospite, celle), celle) << celle.sParametri;
    }
}

TEST_F(Colonne, TuttiINovantaNumeriTornano)
{
    std::vector<int> aTutti(kNumeroMassimo);
    std::iota(aTutti.begin(), aTutti.end(), 1);
    Scegli(m_Dialogo.SelnovoNumeri1, aTutti);
    Segna(m_Dialogo.ChkPunti, {4});
    const Condizione celle = Confermata(m_Dialogo);
    F_PuntisuColonna riletto(m_Ospite);
    riletto.LeggiPunti(GrigliaCon(celle));
    EXPECT_EQ(riletto.SelnovoNumeri1.Conta(), kNumeroMassimo);
    EXPECT_EQ(Confermata(riletto), celle);
}

/// A stored condition on five numbers.
RecordCondizione Record(std::int16_t nGruppo)
{
    RecordCondizione record = prove::Lista(TipoCondizione::puntiColonna, {2, 3}, {1});
    for (const int nNumero : {3, 5, 8, 13, 21}) {
        record.Numeri(nNumero) = kVero;
    }
    record.IdRecupero = nGruppo;
    return record;
}

TEST_F(Colonne, LaRigaDaUnRecordSiRileggeEPerdeGliZeriDavanti)
{
    const Condizione celle = CelleDaRecord(Record(9));
    EXPECT_EQ(celle, Celle("03-05-08-13-\r\n21", "02-03", "01", "9"));
    EXPECT_EQ(Riconfermata<F_PuntisuColonna>(m_Ospite, celle), Celle("03-05-08-13-\r\n21", "2-3", "1", "9"));
}

TEST_F(Colonne, DaUnRecordSenzaGruppoIlRecuperoNonTorna)
{
    const Condizione celle = CelleDaRecord(Record(0));
    EXPECT_EQ(celle.sRecupero, "01");
    EXPECT_EQ(celle.sQuadro, "");
    EXPECT_EQ(Riconfermata<F_PuntisuColonna>(m_Ospite, celle), Celle("03-05-08-13-\r\n21", "2-3", "", " "));
}

TEST_F(Colonne, UnNumeroFuoriDalSelettoreNonSiRilegge)
{
    for (const char* sParametri : {"00", "91", "01-02-\r\n99"}) {
        const auto griglia = GrigliaCon(Celle(sParametri, "1", "", " "));
        EXPECT_EQ(prove::NumeroErrore([&] { m_Dialogo.LeggiPunti(griglia); }), 9) << sParametri;
    }
}

TEST_F(Colonne, LaStringaNonSiGuarda)
{
    EXPECT_TRUE(m_Dialogo.SempreMostrato());
    EXPECT_EQ(prove::Riempita<F_PuntisuColonna>(m_Ospite, "01,02\r\n1|2"),
              std::pair(std::string(), Celle("", "", "", " ")));
    EXPECT_THAT(m_Ospite.desktop.Messaggi(), IsEmpty());
}

} // namespace
} // namespace ordavel
