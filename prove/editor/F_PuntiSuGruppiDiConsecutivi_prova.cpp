// F_PuntiSuGruppiDiConsecutivi_prova.cpp - the dialog of groups of consecutive numbers.

#include "editor/F_PuntiSuGruppiDiConsecutivi.hpp"

#include "comune/Fallimenti.hpp"
#include "comune/RecordProva.hpp"
#include "condizioni/ModTestoCelle.hpp"
#include "editor/UtenteProva.hpp"

#include <gtest/gtest.h>

#include <string>
#include <utility>

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

constexpr std::int16_t kClasse = 5;

Condizione Celle(const char* sParametri, const char* sPunti, const char* sRecupero, const char* sQuadro)
{
    return {"GruppiDiConsecutivi", sParametri, sPunti, sRecupero, sQuadro};
}

class GruppiDiConsecutivi : public testing::Test {
protected:
    OspiteProva m_Ospite{kClasse};
    F_PuntiSuGruppiDiConsecutivi m_Dialogo{m_Ospite};
};

TEST(FPuntiSuGruppiDiConsecutivi, HaNomeTitoloEStatistica)
{
    prove::ControllaCornice<F_PuntiSuGruppiDiConsecutivi>("F_PuntiSuGruppiDiConsecutivi",
                                                          "Punti su gruppi di consecutivi", 17);
}

TEST_F(GruppiDiConsecutivi, CaricatoOffreIPassiDaUnoEILunghiDaDue)
{
    EXPECT_THAT(m_Dialogo.CmbPasso.Voci.Valore(), ElementsAre("1", "2", "3", "4", "5"));
    EXPECT_THAT(m_Dialogo.CmbLenGruppo.Voci.Valore(), ElementsAre("2", "3", "4", "5"));
    EXPECT_EQ(m_Dialogo.CmbPasso.Testo(), "1");
    EXPECT_EQ(m_Dialogo.CmbLenGruppo.Testo(), "2");
    EXPECT_EQ(m_Dialogo.ChkPunti.Primo(), 0);
    EXPECT_EQ(m_Dialogo.ChkPunti.Ultimo(), kClasse);
    EXPECT_EQ(m_Dialogo.ChkRecupero.Ultimo(), kClasse);
}

TEST_F(GruppiDiConsecutivi, OgniProvaHaIlSuoMessaggioEParlaLUltima)
{
    Rifiutata(m_Ospite, m_Dialogo, "Impostare i punti da realizzare");
    m_Dialogo.CmbRecupero.Indice.Poni(1);
    Rifiutata(m_Ospite, m_Dialogo, "Impostare i punti di recupero");
    Segna(m_Dialogo.ChkRecupero, {1});
    Rifiutata(m_Ospite, m_Dialogo, "Impostare i punti da realizzare");
    Segna(m_Dialogo.ChkPunti, {0});
    EXPECT_EQ(Confermata(m_Dialogo), Celle("\r\nGruppoDa : 2\r\nPasso : 1", "0", "1", "1"));
}

TEST_F(GruppiDiConsecutivi, LaCellaCominciaConUnaRigaVuota)
{
    m_Dialogo.CmbPasso.Indice.Poni(4);
    m_Dialogo.CmbLenGruppo.Indice.Poni(1);
    Segna(m_Dialogo.ChkPunti, {1, 5});
    EXPECT_EQ(Confermata(m_Dialogo), Celle("\r\nGruppoDa : 3\r\nPasso : 5", "1-5", "", " "));
}

TEST_F(GruppiDiConsecutivi, LEsclusioneValeAncheQui)
{
    m_Dialogo.CmbRecupero.Indice.Poni(1);
    Segna(m_Dialogo.ChkRecupero, {1, 2});
    Segna(m_Dialogo.ChkPunti, {2});
    EXPECT_THAT(Segnate(m_Dialogo.ChkRecupero), ElementsAre(1));
}

TEST_F(GruppiDiConsecutivi, RilettaEConfermataDaLeStesseCelle)
{
    for (const Condizione& celle : {Celle("\r\nGruppoDa : 2\r\nPasso : 1", "0-1", "", " "),
                                    Celle("\r\nGruppoDa : 5\r\nPasso : 3", "2", "0-1", "20")}) {
        EXPECT_EQ(Riconfermata<F_PuntiSuGruppiDiConsecutivi>(m_Ospite, celle), celle) << celle.sParametri;
    }
}

TEST(FPuntiSuGruppiDiConsecutivi, ConLaClasseDieciUnoEDieciSonoDueVoci)
{
    OspiteProva ospite(10);
    for (const Condizione& celle : {Celle("\r\nGruppoDa : 10\r\nPasso : 1", "1", "", " "),
                                    Celle("\r\nGruppoDa : 2\r\nPasso : 10", "10", "", " ")}) {
        EXPECT_EQ(Riconfermata<F_PuntiSuGruppiDiConsecutivi>(ospite, celle), celle) << celle.sParametri;
    }
}

RecordCondizione Record(std::int16_t nGruppoDa, std::int16_t nPasso)
{
    return prove::ConParametro(prove::Lista(TipoCondizione::gruppiDiConsecutivi, {0, 2}, {1}), nGruppoDa,
                               nPasso);
}

TEST_F(GruppiDiConsecutivi, LaRigaDaUnRecordSiRileggeERiprendeLaRigaVuota)
{
    RecordCondizione record = Record(4, 2);
    record.IdRecupero = 6;
    const Condizione celle = CelleDaRecord(record);
    EXPECT_EQ(celle, Celle("GruppoDa : 4\r\nPasso : 2", "0-2", "1", "6"));
    EXPECT_EQ(Riconfermata<F_PuntiSuGruppiDiConsecutivi>(m_Ospite, celle),
              Celle("\r\nGruppoDa : 4\r\nPasso : 2", "0-2", "1", "6"));
}

TEST_F(GruppiDiConsecutivi, DaUnRecordSenzaGruppoIlRecuperoNonTorna)
{
    const Condizione celle = CelleDaRecord(Record(2, 1));
    EXPECT_EQ(celle, Celle("GruppoDa : 2\r\nPasso : 1", "0-2", "1", ""));
    EXPECT_EQ(Riconfermata<F_PuntiSuGruppiDiConsecutivi>(m_Ospite, celle),
              Celle("\r\nGruppoDa : 2\r\nPasso : 1", "0-2", "", " "));
}

TEST_F(GruppiDiConsecutivi, INumeriFuoriClasseNonSiTrovanoEDiventanoZero)
{
    m_Dialogo.LeggiPunti(GrigliaCon(CelleDaRecord(Record(6, 9))));
    EXPECT_EQ(m_Dialogo.CmbLenGruppo.Indice.Valore(), -1);
    EXPECT_EQ(m_Dialogo.CmbPasso.Indice.Valore(), -1);
    EXPECT_EQ(Confermata(m_Dialogo).sParametri, "\r\nGruppoDa : 0\r\nPasso : 0");
}

TEST_F(GruppiDiConsecutivi, UnValoreOltreLaClasseNonSiRilegge)
{
    const auto griglia = GrigliaCon(Celle("\r\nGruppoDa : 2\r\nPasso : 1", "6", "", " "));
    EXPECT_EQ(prove::NumeroErrore([&] { m_Dialogo.LeggiPunti(griglia); }), 9);
}

TEST_F(GruppiDiConsecutivi, LaStringaNonInserisceNulla)
{
    EXPECT_EQ(prove::Riempita<F_PuntiSuGruppiDiConsecutivi>(m_Ospite, "2\r\n1,2|0"),
              std::pair(std::string(), Celle("\r\nGruppoDa : 2\r\nPasso : 1", "", "", " ")));
    EXPECT_THAT(m_Ospite.desktop.Messaggi(), IsEmpty());
}

} // namespace
} // namespace ordavel
