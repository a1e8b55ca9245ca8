// F_PuntiSuGruppiDiConsecutivi_vista_prova.cpp - groups of consecutive numbers, by length and step.

#include "qt/F_PuntiSuGruppiDiConsecutivi_vista.hpp"

#include "qt/DialoghiProva.hpp"

namespace ordavel::qt {

namespace {

using namespace prove;
using enum TipoCondizione;

using FPuntiSuGruppiDiConsecutiviVistaProva = DialoghiProva;

void RiempiTutto(VistaDialogo& vista)
{
    Scegli(vista, "CmbPasso", "4");
    Scegli(vista, "CmbLenGruppo", "3");
    Clicca(vista, "ChkPunti1");
    Scegli(vista, "CmbRecupero", "2");
    Clicca(vista, "ChkRecupero0");
}

} // namespace

TEST_F(FPuntiSuGruppiDiConsecutiviVistaProva, OffrePassiDaUnoEGruppiDaDue)
{
    Apri(gruppiDiConsecutivi, [](VistaDialogo& vista) {
        EXPECT_EQ(Trova<QComboBox>(vista, "CmbPasso").currentText(), "1");
        EXPECT_EQ(Trova<QComboBox>(vista, "CmbPasso").count(), 5);
        EXPECT_EQ(Trova<QComboBox>(vista, "CmbLenGruppo").currentText(), "2");
        EXPECT_EQ(Trova<QComboBox>(vista, "CmbLenGruppo").count(), 4);
    });
}

TEST_F(FPuntiSuGruppiDiConsecutiviVistaProva, ConfermaScriveLeCelleELaModificaLeRimostra)
{
    const Condizione attesa{"GruppiDiConsecutivi", "\r\nGruppoDa : 3\r\nPasso : 4", "1", "0", "2"};
    std::map<QString, QString> prima;
    Apri(gruppiDiConsecutivi, [&](VistaDialogo& vista) {
        RiempiTutto(vista);
        prima = Mostrato(vista);
        Clicca(vista, "Conferma");
    });
    EXPECT_EQ(Riga(1), attesa);
    Modifica(1, [&](VistaDialogo& vista) {
        EXPECT_EQ(Mostrato(vista), prima);
        QTest::keyClick(vista.focusWidget(), Qt::Key_Return);
        EXPECT_FALSE(vista.isVisible());
    });
    EXPECT_EQ(Riga(1), attesa);
}

TEST_F(FPuntiSuGruppiDiConsecutiviVistaProva, ChiudiNonCambiaNulla)
{
    Apri(gruppiDiConsecutivi, [](VistaDialogo& vista) {
        RiempiTutto(vista);
        Clicca(vista, "Chiudi");
    });
    EXPECT_TRUE(sistema.GetGridCond().Vuota(1));
}

} // namespace ordavel::qt
