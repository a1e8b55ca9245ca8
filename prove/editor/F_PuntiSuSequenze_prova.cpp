// F_PuntiSuSequenze_prova.cpp - the dialog of parity patterns.

#include "editor/F_PuntiSuSequenze.hpp"

#include "comune/Fallimenti.hpp"
#include "comune/RecordProva.hpp"
#include "condizioni/ModTestoCelle.hpp"
#include "editor/UtenteProva.hpp"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace ordavel {
namespace {

using prove::Abilitate;
using prove::Confermata;
using prove::Fallimento;
using prove::GrigliaCon;
using prove::OspiteProva;
using prove::Riconfermata;
using prove::Riempita;
using prove::Rifiutata;
using prove::Segna;
using prove::Segnate;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::int16_t kClasse = 6;
constexpr std::int32_t kTastoP = 0;
constexpr std::int32_t kTastoD = 1;
constexpr std::int32_t kTastoCancella = 2;

class Sequenze : public testing::Test {
protected:
    /// A pattern typed key by key.
    void Batti(std::string_view sSchema)
    {
        for (const char nLettera : sSchema) {
            m_Dialogo.Command1(nLettera == 'P' ? kTastoP : kTastoD);
        }
    }

    /// How far all four series go.
    std::vector<std::int32_t> Ultimi() const
    {
        return {m_Dialogo.ChkPunti.Ultimo(), m_Dialogo.ChkRecupero.Ultimo(), m_Dialogo.ChkConsec.Ultimo(),
                m_Dialogo.ChkConsecR.Ultimo()};
    }

    OspiteProva m_Ospite{kClasse};
    F_PuntiSuSequenze m_Dialogo{m_Ospite};
};

TEST(FPuntiSuSequenze, HaNomeTitoloEStatistica)
{
    prove::ControllaCornice<F_PuntiSuSequenze>("F_PuntiSuSequenze", "Punti su sequenze", 13);
}

TEST_F(Sequenze, CaricatoOffreIPassiEILuoghiDellaClasse)
{
    EXPECT_THAT(m_Dialogo.CmbPasso.Voci.Valore(), ElementsAre("1", "2", "3", "4", "5"));
    EXPECT_EQ(m_Dialogo.CmbPasso.Indice.Valore(), 0);
    EXPECT_EQ(m_Dialogo.LabSequenza.Testo.Valore(), "");
    EXPECT_THAT(Ultimi(), ElementsAre(6, 6, 6, 6));
    EXPECT_EQ(m_Dialogo.CmbRecupero.Testo(), " ");
    EXPECT_THAT(Abilitate(m_Dialogo.ChkRecupero), IsEmpty());
    EXPECT_THAT(Abilitate(m_Dialogo.ChkConsecR), IsEmpty());
}

TEST_F(Sequenze, ITastiScrivonoLoSchemaECancellanoTutto)
{
    Batti("PDD");
    EXPECT_EQ(m_Dialogo.LabSequenza.Testo.Valore(), "PDD");
    m_Dialogo.Command1(kTastoCancella);
    EXPECT_EQ(m_Dialogo.LabSequenza.Testo.Valore(), "");
    for (const std::int32_t nTasto : {-1, 3}) {
        EXPECT_EQ(prove::NumeroErrore([&] { m_Dialogo.Command1(nTasto); }), 9);
    }
}

TEST_F(Sequenze, ILuoghiSonoQuelliDoveLoSchemaPuoCominciare)
{
    Batti("P");
    EXPECT_THAT(Ultimi(), ElementsAre(6, 6, 6, 6));
    Batti("D");
    EXPECT_THAT(Ultimi(), ElementsAre(5, 5, 5, 5));
    Batti("PPPP");
    EXPECT_THAT(Ultimi(), ElementsAre(1, 1, 1, 1));
    m_Dialogo.Command1(kTastoCancella);
    EXPECT_THAT(Ultimi(), ElementsAre(6, 6, 6, 6));
}

TEST_F(Sequenze, LoSchemaPiuLungoDellaClasseLasciaSoloLoZero)
{
    Batti("PDPDPDPDP");
    EXPECT_THAT(Ultimi(), ElementsAre(0, 0, 0, 0));
}

TEST_F(Sequenze, OgniCambioDelloSchemaPerdeLeSpunte)
{
    m_Dialogo.CmbRecupero.Indice.Poni(1);
    Segna(m_Dialogo.ChkPunti, {0, 1});
    Segna(m_Dialogo.ChkRecupero, {2});
    Segna(m_Dialogo.ChkConsec, {0, 1});
    Segna(m_Dialogo.ChkConsecR, {3});
    m_Dialogo.Command1(kTastoP);
    for (const SerieSpunte* serie :
         {&m_Dialogo.ChkPunti, &m_Dialogo.ChkRecupero, &m_Dialogo.ChkConsec, &m_Dialogo.ChkConsecR}) {
        EXPECT_THAT(Segnate(*serie), IsEmpty());
    }
    EXPECT_EQ(m_Dialogo.CmbRecupero.Testo(), "1");
}

TEST_F(Sequenze, LEsclusioneValePerIPuntiEPerLeConsecutivitaOgnunaPerSe)
{
    m_Dialogo.CmbRecupero.Indice.Poni(2);
    Segna(m_Dialogo.ChkRecupero, {1, 2});
    Segna(m_Dialogo.ChkConsecR, {1, 2});
    Segna(m_Dialogo.ChkPunti, {1});
    EXPECT_THAT(Segnate(m_Dialogo.ChkRecupero), ElementsAre(2));
    EXPECT_THAT(Segnate(m_Dialogo.ChkConsecR), ElementsAre(1, 2));
    Segna(m_Dialogo.ChkConsec, {2});
    EXPECT_THAT(Segnate(m_Dialogo.ChkConsecR), ElementsAre(1));
    EXPECT_THAT(Segnate(m_Dialogo.ChkRecupero), ElementsAre(2));
    EXPECT_THAT(Abilitate(m_Dialogo.ChkConsecR), ElementsAre(0, 1, 3, 4, 5, 6));
}

TEST_F(Sequenze, IlGruppoTogliDalleConsecutivitaDiRecuperoQuelleRichieste)
{
    Segna(m_Dialogo.ChkConsec, {1});
    Segna(m_Dialogo.ChkConsecR, {1, 2});
    m_Dialogo.CmbRecupero.Indice.Poni(1);
    EXPECT_THAT(Segnate(m_Dialogo.ChkConsecR), ElementsAre(2));
    m_Dialogo.CmbRecupero.Indice.Poni(0);
    EXPECT_THAT(Segnate(m_Dialogo.ChkConsecR), IsEmpty());
    EXPECT_THAT(Abilitate(m_Dialogo.ChkConsecR), IsEmpty());
}

TEST_F(Sequenze, OgniProvaHaIlSuoMessaggio)
{
    Segna(m_Dialogo.ChkConsec, {1});
    Rifiutata(m_Ospite, m_Dialogo, "Impostare i punti da realizzare");
    Segna(m_Dialogo.ChkPunti, {1});
    m_Dialogo.ChkConsec(1).Segnata.Poni(false);
    Rifiutata(m_Ospite, m_Dialogo, "Impostare le consecutività");
    Segna(m_Dialogo.ChkConsec, {1});
    m_Dialogo.CmbRecupero.Indice.Poni(1);
    Rifiutata(m_Ospite, m_Dialogo, "Impostare i punti di recupero");
    Segna(m_Dialogo.ChkRecupero, {0});
    EXPECT_EQ(Confermata(m_Dialogo).sRecupero, "0");
}

TEST_F(Sequenze, DelleProveFalliteParlaLUltima)
{
    Rifiutata(m_Ospite, m_Dialogo, "Impostare le consecutività");
    m_Dialogo.CmbRecupero.Indice.Poni(1);
    Rifiutata(m_Ospite, m_Dialogo, "Impostare i punti di recupero");
    Segna(m_Dialogo.ChkConsec, {1});
    Rifiutata(m_Ospite, m_Dialogo, "Impostare i punti di recupero");
    Segna(m_Dialogo.ChkRecupero, {2});
    Rifiutata(m_Ospite, m_Dialogo, "Impostare i punti da realizzare");
}

TEST_F(Sequenze, LeConsecutivitaDiRecuperoNonSonoRichieste)
{
    Segna(m_Dialogo.ChkPunti, {1});
    Segna(m_Dialogo.ChkConsec, {2});
    m_Dialogo.CmbRecupero.Indice.Poni(1);
    Segna(m_Dialogo.ChkRecupero, {3});
    EXPECT_EQ(Confermata(m_Dialogo), (Condizione{"Sequenze", "\r\nPasso : 1\r\nConsec : 2", "1", "3", "1"}));
}

TEST_F(Sequenze, LoSchemaVuotoSiAccettaELaCellaCominciaConUnACapo)
{
    Segna(m_Dialogo.ChkPunti, {0, 6});
    Segna(m_Dialogo.ChkConsec, {1});
    EXPECT_EQ(Confermata(m_Dialogo), (Condizione{"Sequenze", "\r\nPasso : 1\r\nConsec : 1", "0-6", "", " "}));
}

TEST_F(Sequenze, LeCinqueCelleConTutto)
{
    Batti("PD");
    m_Dialogo.CmbPasso.Indice.Poni(2);
    m_Dialogo.CmbRecupero.Indice.Poni(20);
    Segna(m_Dialogo.ChkPunti, {1, 2});
    Segna(m_Dialogo.ChkRecupero, {0, 5});
    Segna(m_Dialogo.ChkConsec, {1, 3});
    Segna(m_Dialogo.ChkConsecR, {0, 2});
    EXPECT_EQ(
        Confermata(m_Dialogo),
        (Condizione{"Sequenze", "P\r\nD\r\nPasso : 3\r\nConsec : 1-3\r\nConsecR : 0-2", "1-2", "0-5", "20"}));
}

TEST_F(Sequenze, SenzaGruppoIlRecuperoTaceELeSueConsecutivitaNo)
{
    Segna(m_Dialogo.ChkPunti, {1});
    Segna(m_Dialogo.ChkRecupero, {2});
    Segna(m_Dialogo.ChkConsec, {1});
    Segna(m_Dialogo.ChkConsecR, {4});
    EXPECT_EQ(Confermata(m_Dialogo),
              (Condizione{"Sequenze", "\r\nPasso : 1\r\nConsec : 1\r\nConsecR : 4", "1", "", " "}));
}

TEST(FPuntiSuSequenze, ConClasseUnoNonCePassoEIlPassoEZero)
{
    OspiteProva ospite(1);
    F_PuntiSuSequenze dialogo(ospite);
    EXPECT_THAT(dialogo.CmbPasso.Voci.Valore(), IsEmpty());
    EXPECT_EQ(dialogo.GetParametri().sParametri, "\r\nPasso : 0\r\nConsec : ");
}

const Condizione kConTutto{"Sequenze", "P\r\nD\r\nD\r\nPasso : 2\r\nConsec : 1-3\r\nConsecR : 0-2", "1-2",
                           "0-4", "7"};

TEST_F(Sequenze, LaRigaRilettaRiempieOgniControllo)
{
    m_Dialogo.LeggiPunti(GrigliaCon(kConTutto));
    EXPECT_EQ(m_Dialogo.LabSequenza.Testo.Valore(), "PDD");
    EXPECT_EQ(m_Dialogo.CmbPasso.Testo(), "2");
    EXPECT_THAT(Segnate(m_Dialogo.ChkPunti), ElementsAre(1, 2));
    EXPECT_THAT(Segnate(m_Dialogo.ChkRecupero), ElementsAre(0, 4));
    EXPECT_THAT(Segnate(m_Dialogo.ChkConsec), ElementsAre(1, 3));
    EXPECT_THAT(Segnate(m_Dialogo.ChkConsecR), ElementsAre(0, 2));
    EXPECT_EQ(m_Dialogo.CmbRecupero.Testo(), "7");
    EXPECT_THAT(Abilitate(m_Dialogo.ChkRecupero), ElementsAre(0, 3, 4, 5, 6));
}

TEST_F(Sequenze, LaLetturaNonRifaLeCaselleMaIlTastoDopoSi)
{
    m_Dialogo.LeggiPunti(GrigliaCon(kConTutto));
    EXPECT_THAT(Ultimi(), ElementsAre(6, 6, 6, 6));
    m_Dialogo.Command1(kTastoP);
    EXPECT_THAT(Ultimi(), ElementsAre(3, 3, 3, 3));
    EXPECT_THAT(Segnate(m_Dialogo.ChkPunti), IsEmpty());
}

TEST_F(Sequenze, AncheDopoUnaLetturaFallitaIlTastoRifaLeCaselle)
{
    Condizione guasta = kConTutto;
    guasta.sPunti = "7";
    EXPECT_EQ(prove::NumeroErrore([&] { m_Dialogo.LeggiPunti(GrigliaCon(guasta)); }), 9);
    m_Dialogo.Command1(kTastoCancella);
    EXPECT_THAT(Segnate(m_Dialogo.ChkConsec), IsEmpty());
}

TEST_F(Sequenze, RilettaEConfermataDaLeStesseCelle)
{
    const std::vector<Condizione> aRighe{
        kConTutto,
        {"Sequenze", "P\r\nPasso : 5\r\nConsec : 0", "0-6", "", " "},
        {"Sequenze", "\r\nPasso : 1\r\nConsec : 1", "1", "", " "},
        {"Sequenze", "D\r\nPasso : 1\r\nConsec : 1", "1", "2", "20"},
        {"Sequenze", "D\r\nPasso : 1\r\nConsec : 1\r\nConsecR : 1-4", "1", "", " "},
    };
    for (const Condizione& celle : aRighe) {
        EXPECT_EQ(Riconfermata<F_PuntiSuSequenze>(m_Ospite, celle), celle) << celle.sParametri;
    }
}

/// A stored pattern "DP" with everything.
RecordCondizione RecordConTutto()
{
    RecordCondizione record = prove::Lista(TipoCondizione::sequenze, {1, 2}, {4});
    record.Numeri(0) = 1;
    record.Numeri(2) = -1;
    record.Parametro = 2;
    record.Passo = 3;
    record.PuntiOk2(0) = record.PuntiOk2(2) = kVero;
    record.PuntiRec2(5) = kVero;
    record.IdRecupero = 2;
    return record;
}

TEST_F(Sequenze, LaRigaDaUnRecordSiRileggeEPerdeGliZeriDavanti)
{
    const Condizione celle = CelleDaRecord(RecordConTutto());
    EXPECT_EQ(celle, (Condizione{"Sequenze", "D\r\nP\r\nPasso : 3\r\nConsec : 00-02\r\nConsecR : 05", "01-02",
                                 "04", "2"}));
    EXPECT_EQ(
        Riconfermata<F_PuntiSuSequenze>(m_Ospite, celle),
        (Condizione{"Sequenze", "D\r\nP\r\nPasso : 3\r\nConsec : 0-2\r\nConsecR : 5", "1-2", "4", "2"}));
}

TEST_F(Sequenze, DaUnRecordSenzaGruppoIlRecuperoNonTorna)
{
    RecordCondizione record = RecordConTutto();
    record.IdRecupero = 0;
    const Condizione celle = CelleDaRecord(record);
    EXPECT_EQ(celle.sRecupero, "04");
    const Condizione riconfermata = Riconfermata<F_PuntiSuSequenze>(m_Ospite, celle);
    EXPECT_EQ(riconfermata.sRecupero, "");
    EXPECT_EQ(riconfermata.sQuadro, " ");
}

TEST_F(Sequenze, UnPassoFuoriClasseNonSiTrovaEDiventaZero)
{
    RecordCondizione record = RecordConTutto();
    record.Passo = 9;
    m_Dialogo.LeggiPunti(GrigliaCon(CelleDaRecord(record)));
    EXPECT_EQ(m_Dialogo.CmbPasso.Indice.Valore(), -1);
    EXPECT_EQ(Confermata(m_Dialogo).sParametri, "D\r\nP\r\nPasso : 0\r\nConsec : 0-2\r\nConsecR : 5");
}

TEST_F(Sequenze, SenzaEtichetteTuttaLaCellaELoSchema)
{
    m_Dialogo.LeggiPunti(GrigliaCon({"Sequenze", "P\r\nD", "1", "", ""}));
    EXPECT_EQ(m_Dialogo.LabSequenza.Testo.Valore(), "PD");
    EXPECT_THAT(Segnate(m_Dialogo.ChkConsec), IsEmpty());
}

TEST_F(Sequenze, LaStringaRiempieComeSeLUtenteAvesseConfermato)
{
    const std::vector<std::pair<const char*, Condizione>> aCasi{
        {"PD\r\n1,2|0,3|1|2,4",
         {"Sequenze", "P\r\nD\r\nPasso : 1\r\nConsec : 1\r\nConsecR : 2-4", "1-2", "0-3", "1"}},
        {"D\r\n6||0,6", {"Sequenze", "D\r\nPasso : 1\r\nConsec : 0-6", "6", "", " "}},
        {"D\r\n1||1|2", {"Sequenze", "D\r\nPasso : 1\r\nConsec : 1\r\nConsecR : 2", "1", "", " "}},
        {"\r\n1", {"Sequenze", "\r\nPasso : 1\r\nConsec : ", "1", "", " "}},
        {"P\r\n|2", {"Sequenze", "P\r\nPasso : 1\r\nConsec : ", "", "2", "1"}},
    };
    for (const auto& [sParam, attesa] : aCasi) {
        EXPECT_EQ(Riempita<F_PuntiSuSequenze>(m_Ospite, sParam), std::pair(std::string("ttt"), attesa))
            << sParam;
    }
}

TEST_F(Sequenze, LaStringaFallitaNonArrivaAllaTarga)
{
    // One line alone, and values beyond the places of the pattern in each of the four lists.
    for (const char* sParam :
         {"PD", "PD\r\n6", "PD\r\n1|6", "PD\r\n1|2|6", "PD\r\n1|2|1|6", "PD\r\n1|2|-1"}) {
        EXPECT_EQ(Riempita<F_PuntiSuSequenze>(m_Ospite, sParam).first, "") << sParam;
        EXPECT_THAT(m_Ospite.desktop.Messaggi(),
                    ElementsAre(Fallimento("OrdavelSis.setPuntiSuFrm", Errore(eErrore::indice))))
            << sParam;
    }
}

} // namespace
} // namespace ordavel
