// F_Statistica_prova.cpp - what a user is told and shown of a statistic.

#include "analisi/F_Statistica.hpp"

#include "comune/CartellaProva.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace ordavel {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::SizeIs;

constexpr std::int16_t kLotto = 1;
constexpr std::int16_t kSuperEnalotto = 4;
constexpr std::int32_t kStatConsecutivi = 3;
constexpr std::int32_t kStatResto = 14;

/// A record of "SuperEnalotto".
std::string Record(const std::string& sNumeri)
{
    return std::string(12, '\0') + sNumeri;
}

struct FinestraStatistica : testing::Test {
    std::string Archivio(const std::string& sContenuto) const
    {
        prove::ScriviFile(cartella / "a.bd", sContenuto);
        return cartella / "a.bd";
    }

    prove::CartellaProva cartella;
};

std::string TestoOstacolo(std::int32_t nIdStatistica, std::int16_t nGioco, const std::string& sArchivio)
{
    const std::optional<Messaggio> messaggio = OstacoloStatistica(nIdStatistica, nGioco, sArchivio);
    return messaggio ? messaggio->sTesto : "";
}

} // namespace

TEST_F(FinestraStatistica, SenzaArchivioDiceIlGiocoIlFileECheFare)
{
    EXPECT_EQ(TestoOstacolo(kStatConsecutivi, kLotto, cartella / "manca.bd"),
              "Archivio delle estrazioni non disponibile\n\nGioco: Lotto\nFile: " + (cartella / "manca.bd") +
                  "\n\nIl file dell'archivio di ogni gioco si indica nelle Impostazioni.");
    EXPECT_EQ(TestoOstacolo(kStatConsecutivi, kSuperEnalotto, ""),
              "Archivio delle estrazioni non disponibile\n\nGioco: SuperEnalotto"
              "\n\nIl file dell'archivio di ogni gioco si indica nelle Impostazioni.");
    EXPECT_THAT(TestoOstacolo(kStatConsecutivi, kLotto, Archivio("")),
                HasSubstr("L'archivio delle estrazioni è vuoto"));
}

TEST_F(FinestraStatistica, CioCheNonSiPuoMisurareSiDice)
{
    const std::string sArchivio = Archivio(Record("\1\2\3\4\5\6"));
    EXPECT_EQ(TestoOstacolo(99, kSuperEnalotto, sArchivio), "Statistica non prevista");
    EXPECT_EQ(TestoOstacolo(kStatConsecutivi, 0, sArchivio), "Scegliere un gioco");
    EXPECT_EQ(TestoOstacolo(kStatConsecutivi, 6, sArchivio), "Scegliere un gioco");
    EXPECT_THAT(TestoOstacolo(12, kSuperEnalotto, sArchivio), HasSubstr("Punti Col."));
    EXPECT_THAT(TestoOstacolo(26, kSuperEnalotto, sArchivio), HasSubstr("Emulatore"));
    EXPECT_EQ(TestoOstacolo(kStatConsecutivi, kSuperEnalotto, sArchivio), "");
    EXPECT_THROW(F_Statistica(99, kSuperEnalotto, sArchivio), Errore);
    EXPECT_THROW(F_Statistica(kStatConsecutivi, 0, sArchivio), Errore);
}

TEST_F(FinestraStatistica, MostraSubitoLaMisuraNaturale)
{
    F_Statistica finestra(
        kStatConsecutivi, kSuperEnalotto,
        Archivio(Record("\1\2\3\4\5\6") + Record("\1\2\4\6\10\20") + Record(std::string(6, '\0'))));
    EXPECT_EQ(finestra.sTitolo, "Statistica: Consecutivi");
    EXPECT_EQ(finestra.LabGioco.Testo.Valore(), "SuperEnalotto, 6 numeri");
    EXPECT_FALSE(finestra.CmbRuota.Visibile.Valore());
    EXPECT_FALSE(finestra.CmbVariante.Visibile.Valore());
    EXPECT_EQ(finestra.CmbUltime.Testo(), "20");
    EXPECT_EQ(finestra.LabUsate.Testo.Valore(), "2 estrazioni (1 incomplete)");
    EXPECT_EQ(finestra.LabMedia.Testo.Valore(), "3,00");
    EXPECT_EQ(finestra.LabLimiti.Testo.Valore(), "1 - 5");
    EXPECT_DOUBLE_EQ(finestra.PostoMedia(), 2.5);
    const EsitoStatistica& esito = finestra.Esito.Valore();
    EXPECT_THAT(esito.aBarre, SizeIs(5));
    EXPECT_EQ(finestra.BarraDi(esito.aUltime.at(0)), 0);
    EXPECT_EQ(finestra.BarraDi(esito.aUltime.at(1)), 4);
    EXPECT_EQ(finestra.BarraDi({.nEstrazione = 1, .nValore = 9, .aNumeri = {}}), -1);
}

TEST_F(FinestraStatistica, LaVarianteELaRuotaCambianoLaMisura)
{
    std::string sRecord(67, '\0');
    sRecord.replace(12, 5, "\1\2\3\4\5");
    sRecord.replace(17, 5, "\1\2\3\4\6");
    F_Statistica finestra(kStatResto, kLotto, Archivio(sRecord));
    EXPECT_TRUE(finestra.CmbRuota.Visibile.Valore());
    EXPECT_TRUE(finestra.CmbVariante.Visibile.Valore());
    EXPECT_EQ(finestra.LabMedia.Testo.Valore(), "1,00");
    finestra.CmbRuota.Indice.Poni(1);
    EXPECT_EQ(finestra.LabMedia.Testo.Valore(), "0,00");
    finestra.CmbVariante.Indice.Poni(7);
    EXPECT_EQ(finestra.LabMedia.Testo.Valore(), "7,00");
    finestra.CmbRuota.Indice.Poni(10);
    EXPECT_EQ(finestra.LabMedia.Testo.Valore(), "-");
    EXPECT_EQ(finestra.LabLimiti.Testo.Valore(), "-");
    EXPECT_EQ(finestra.LabUsate.Testo.Valore(), "0 estrazioni (1 incomplete)");
}

TEST_F(FinestraStatistica, LeUltimeSonoQuanteSeNeChiedono)
{
    std::string sArchivio;
    for (char c = 7; c < 37; ++c) {
        sArchivio += Record(std::string("\1\2\3\4\5") + c);
    }
    F_Statistica finestra(kStatConsecutivi, kSuperEnalotto, Archivio(sArchivio));
    EXPECT_THAT(finestra.Esito.Valore().aUltime, SizeIs(20));
    finestra.CmbUltime.Indice.Poni(0);
    EXPECT_THAT(finestra.Esito.Valore().aUltime, SizeIs(10));
    EXPECT_EQ(finestra.Esito.Valore().aUltime.front().nEstrazione, 30);
}

TEST(TestiStatistica, UnaBarraSiLegge)
{
    const BarraStatistica barra{
        .nDa = 11, .nA = 20, .nQuante = 1234, .nUltime = 3, .nQuota = 0.1234, .nQuotaUltime = 0.15};
    EXPECT_EQ(TestoBarra(barra, 20), "11-20: 1.234 estrazioni, 12,3 %; ultime 20: 3, 15,0 %");
    const BarraStatistica una{.nDa = 4, .nA = 4, .nQuante = 1, .nUltime = 0, .nQuota = 1, .nQuotaUltime = 0};
    EXPECT_EQ(TestoBarra(una, 0), "4: 1 estrazione, 100,0 %");
}

} // namespace ordavel
