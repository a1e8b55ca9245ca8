// F_PuntisuColonna_vista_prova.cpp - the numbers of a condition: the system's, chosen in the selector.

#include "qt/F_PuntisuColonna_vista.hpp"

#include "qt/DialoghiProva.hpp"
#include "qt/VistaNumeri.hpp"

namespace ordavel::qt {

namespace {

using namespace prove;
using enum TipoCondizione;

using FPuntisuColonnaVistaProva = DialoghiProva;

VistaNumeri& Numeri(VistaDialogo& vista)
{
    return Trova<VistaNumeri>(vista, "SelnovoNumeri1");
}

void ScegliNumeri(VistaDialogo& vista, std::initializer_list<int> aNumeri)
{
    for (const int nNumero : aNumeri) {
        QTest::mouseClick(&Numeri(vista), Qt::LeftButton, {}, Numeri(vista).Casella(nNumero).center());
    }
}

} // namespace

TEST_F(FPuntisuColonnaVistaProva, ConfermaScriveNumeriEPunti)
{
    Apri(puntiColonna, [](VistaDialogo& vista) {
        ScegliNumeri(vista, {1, 5, 7, 11, 20});
        Clicca(vista, "ChkPunti2");
        Scegli(vista, "CmbRecupero", "7");
        Clicca(vista, "ChkRecupero3");
        Clicca(vista, "Conferma");
        EXPECT_FALSE(vista.isVisible());
    });
    EXPECT_EQ(Riga(1), (Condizione{"Punti Col.", "01-05-07-11-\r\n20", "2", "3", "7"}));
}

TEST_F(FPuntisuColonnaVistaProva, SoloINumeriDelSistemaSiScelgono)
{
    Apri(puntiColonna, [](VistaDialogo& vista) {
        ScegliNumeri(vista, {20, 21, 90});
        EXPECT_EQ(Numeri(vista).accessibleName(), "Numeri scelti: 1");
        EXPECT_EQ(Numeri(vista).accessibleDescription(), "Numero 90, non disponibile");
    });
}

TEST_F(FPuntisuColonnaVistaProva, UnDoppioClicConferma)
{
    Apri(puntiColonna, [](VistaDialogo& vista) {
        ScegliNumeri(vista, {3});
        const auto doppio = [&] {
            ScegliNumeri(vista, {4});
            QTest::mouseDClick(&Numeri(vista), Qt::LeftButton, {}, Numeri(vista).Casella(4).center());
        };
        EXPECT_EQ(Avviso(doppio), "Impostare i punti da realizzare");
        EXPECT_TRUE(vista.isVisible());
        Clicca(vista, "ChkPunti1");
        ScegliNumeri(vista, {4});
        doppio();
        EXPECT_FALSE(vista.isVisible());
    });
    EXPECT_EQ(Riga(1).sParametri, "03-04");
}

TEST_F(FPuntisuColonnaVistaProva, SoloConLaTastieraEInvioConferma)
{
    Apri(puntiColonna, [](VistaDialogo& vista) {
        QWidget& numeri = Numeri(vista);
        numeri.setFocus();
        QTest::keyClick(&numeri, Qt::Key_Down);
        QTest::keyClick(&numeri, Qt::Key_Space);
        QTest::keyClick(&numeri, Qt::Key_Tab);
        QTest::keyClick(vista.focusWidget(), Qt::Key_Space);
        QTest::keyClick(&numeri, Qt::Key_Return);
        EXPECT_FALSE(vista.isVisible());
    });
    EXPECT_EQ(Riga(1), (Condizione{"Punti Col.", "11", "0", "", " "}));
}

TEST_F(FPuntisuColonnaVistaProva, NessunNumeroSiAccetta)
{
    Apri(puntiColonna, [](VistaDialogo& vista) {
        Clicca(vista, "ChkPunti0");
        Clicca(vista, "Conferma");
    });
    EXPECT_EQ(Riga(1).sParametri, "");
    EXPECT_EQ(Riga(1).sCondizione, "Punti Col.");
}

TEST_F(FPuntisuColonnaVistaProva, LaModificaMostraGliStessiNumeri)
{
    Apri(puntiColonna, [](VistaDialogo& vista) {
        ScegliNumeri(vista, {2, 4, 6, 8, 10});
        Clicca(vista, "ChkPunti2");
        Clicca(vista, "Conferma");
    });
    Modifica(1, [](VistaDialogo& vista) {
        EXPECT_EQ(Numeri(vista).accessibleName(), "Numeri scelti: 5");
        EXPECT_EQ(Mostrato(vista)["ChkPunti2"], "X");
        ScegliNumeri(vista, {2, 1});
        Clicca(vista, "Conferma");
    });
    EXPECT_EQ(Riga(1).sParametri, "01-04-06-08-\r\n10");
}

TEST_F(FPuntisuColonnaVistaProva, ChiudiNonCambiaNulla)
{
    Apri(puntiColonna, [](VistaDialogo& vista) {
        ScegliNumeri(vista, {2});
        Clicca(vista, "ChkPunti2");
        Clicca(vista, "Chiudi");
    });
    EXPECT_TRUE(sistema.GetGridCond().Vuota(1));
    EXPECT_EQ(sistema.ContaNumeriSel(), 20);
}

} // namespace ordavel::qt
