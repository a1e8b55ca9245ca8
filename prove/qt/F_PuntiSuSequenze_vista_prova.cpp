// F_PuntiSuSequenze_vista_prova.cpp - the keys of the pattern, and the boxes that come and go with it.

#include "qt/F_PuntiSuSequenze_vista.hpp"

#include "condizioni/ModTestoCelle.hpp"
#include "qt/DialoghiProva.hpp"

#include <QCheckBox>
#include <QPushButton>

#include <array>

namespace ordavel::qt {

namespace {

using namespace prove;
using enum TipoCondizione;

constexpr std::array<const char*, 4> kSerie{"ChkPunti", "ChkRecupero", "ChkConsec", "ChkConsecR"};

using FPuntiSuSequenzeVistaProva = DialoghiProva;

/// The pattern by its keys, 'P', 'D' and 'C' for "CLEAR".
void Batti(VistaDialogo& vista, const QString& sTasti)
{
    for (const QChar cTasto : sTasti) {
        Clicca(vista, "Command1" + QString::number(QString("PDC").indexOf(cTasto)));
    }
}

/// The last value that all four series offer; -1 when they do not agree.
int Ultimo(const VistaDialogo& vista)
{
    std::array<int, 4> aUltimi{};
    for (std::size_t i = 0; i < kSerie.size(); ++i) {
        const auto casella = [&](int n) {
            return vista.findChild<QCheckBox*>(kSerie.at(i) + QString::number(n));
        };
        int nUltimo = -1;
        while (casella(nUltimo + 1) != nullptr && casella(nUltimo + 1)->isVisible()) {
            ++nUltimo;
        }
        aUltimi.at(i) = nUltimo;
    }
    return std::equal(aUltimi.begin() + 1, aUltimi.end(), aUltimi.begin()) ? aUltimi[0] : -1;
}

void RiempiTutto(VistaDialogo& vista)
{
    Batti(vista, "PD");
    Scegli(vista, "CmbPasso", "2");
    Clicca(vista, "ChkPunti1");
    Clicca(vista, "ChkConsec2");
    Scegli(vista, "CmbRecupero", "7");
    Clicca(vista, "ChkRecupero3");
    Clicca(vista, "ChkConsecR4");
}

} // namespace

TEST_F(FPuntiSuSequenzeVistaProva, ITastiScrivonoEPulisconoLoSchema)
{
    Apri(sequenze, [](VistaDialogo& vista) {
        const auto& schema = Trova<QLineEdit>(vista, "LabSequenza");
        Batti(vista, "PPD");
        EXPECT_EQ(schema.text(), "PPD");
        EXPECT_EQ(Trova(vista, "Command10").accessibleDescription(), "Sequenza: PPD");
        Batti(vista, "C");
        EXPECT_EQ(schema.text(), "");
        QTest::keyClick(&Trova(vista, "Command11"), Qt::Key_Space);
        EXPECT_EQ(schema.text(), "D");
        QTest::keyClicks(&Trova(vista, "LabSequenza"), "P");
        EXPECT_EQ(schema.text(), "D") << "the pattern itself is not written in";
    });
}

TEST_F(FPuntiSuSequenzeVistaProva, LeCaselleSonoIPostiDelloSchema)
{
    Apri(sequenze, [](VistaDialogo& vista) {
        EXPECT_EQ(Ultimo(vista), 5);
        Batti(vista, "P");
        EXPECT_EQ(Ultimo(vista), 5);
        Batti(vista, "DP");
        EXPECT_EQ(Ultimo(vista), 3);
        Batti(vista, "PPPPP");
        EXPECT_EQ(Ultimo(vista), 0);
        Batti(vista, "C");
        EXPECT_EQ(Ultimo(vista), 5);
    });
}

TEST_F(FPuntiSuSequenzeVistaProva, UnoSchemaNuovoToglieTutteLeSpunte)
{
    Apri(sequenze, [](VistaDialogo& vista) {
        RiempiTutto(vista);
        Batti(vista, "D");
        for (const QCheckBox* casella : vista.findChildren<QCheckBox*>()) {
            EXPECT_FALSE(casella->isChecked()) << casella->objectName().toStdString();
        }
        EXPECT_TRUE(Trova(vista, "ChkRecupero1").isEnabled()) << "the group stands";
    });
}

TEST_F(FPuntiSuSequenzeVistaProva, LeCaselleRifatteValgonoComeLePrime)
{
    Apri(sequenze, [](VistaDialogo& vista) {
        Batti(vista, "PDC");
        RiempiTutto(vista);
        Clicca(vista, "ChkRecupero1");
        EXPECT_FALSE(Trova(vista, "ChkRecupero1").isEnabled()) << "1 is accepted";
        Clicca(vista, "Conferma");
        EXPECT_FALSE(vista.isVisible());
    });
    EXPECT_EQ(Riga(1).sPunti, "1");
    EXPECT_EQ(Riga(1).sRecupero, "3");
}

TEST_F(FPuntiSuSequenzeVistaProva, LEsclusioneValeAncheTraLeConsecutivita)
{
    Apri(sequenze, [](VistaDialogo& vista) {
        const auto& recupero = Trova<QCheckBox>(vista, "ChkConsecR2");
        EXPECT_FALSE(recupero.isEnabled());
        Scegli(vista, "CmbRecupero", "1");
        Clicca(vista, "ChkConsecR2");
        EXPECT_TRUE(recupero.isChecked());
        Clicca(vista, "ChkConsec2");
        EXPECT_FALSE(recupero.isChecked());
        EXPECT_FALSE(recupero.isEnabled());
        EXPECT_TRUE(Trova(vista, "ChkRecupero2").isEnabled());
    });
}

TEST_F(FPuntiSuSequenzeVistaProva, LUltimoAvvisoESoloQuello)
{
    Apri(sequenze, [](VistaDialogo& vista) {
        const auto conferma = [&] { return Avviso([&] { Clicca(vista, "Conferma"); }); };
        EXPECT_EQ(conferma(), "Impostare le consecutività");
        Clicca(vista, "ChkConsec0");
        EXPECT_EQ(conferma(), "Impostare i punti da realizzare");
        Scegli(vista, "CmbRecupero", "1");
        EXPECT_EQ(conferma(), "Impostare i punti di recupero");
        EXPECT_TRUE(vista.isVisible());
    });
}

TEST_F(FPuntiSuSequenzeVistaProva, LoSchemaVuotoSiAccetta)
{
    Apri(sequenze, [](VistaDialogo& vista) {
        Clicca(vista, "ChkPunti0");
        Clicca(vista, "ChkConsec0");
        MnemonicaChiude(vista, Qt::Key_C);
    });
    EXPECT_EQ(Riga(1).sParametri.substr(0, 2), "\r\n");
}

TEST_F(FPuntiSuSequenzeVistaProva, ConfermaScriveLeCelleELaModificaLeRimostra)
{
    ValoriDialogo valori;
    valori.sSchema = "PD";
    valori.sPasso = "2";
    valori.sQuadro = "7";
    valori.aPunti(1) = valori.aRecupero(3) = valori.aConsec(2) = valori.aConsecRec(4) = kVero;
    std::map<QString, QString> prima;
    Apri(sequenze, [&](VistaDialogo& vista) {
        RiempiTutto(vista);
        prima = Mostrato(vista);
        Clicca(vista, "Conferma");
    });
    EXPECT_EQ(Riga(1), CelleDaDialogo(sequenze, valori));
    Modifica(1, [&](VistaDialogo& vista) {
        EXPECT_EQ(Mostrato(vista)["LabSequenza"], "PD");
        EXPECT_EQ(Mostrato(vista)["CmbPasso"], "2");
        for (const char* sSpunta : {"ChkPunti1", "ChkRecupero3", "ChkConsec2", "ChkConsecR4"}) {
            EXPECT_EQ(Mostrato(vista)[sSpunta], prima[sSpunta]) << sSpunta;
        }
        Clicca(vista, "Conferma");
    });
    EXPECT_EQ(Riga(1), CelleDaDialogo(sequenze, valori));
}

TEST_F(FPuntiSuSequenzeVistaProva, ChiudiNonCambiaNulla)
{
    Apri(sequenze, [](VistaDialogo& vista) {
        RiempiTutto(vista);
        Clicca(vista, "Chiudi");
    });
    EXPECT_TRUE(sistema.GetGridCond().Vuota(1));
}

} // namespace ordavel::qt
