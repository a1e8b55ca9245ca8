// F_PuntiSu_vista_prova.cpp - the windows of the thirty common dialogs, each filled by keys and mouse.

#include "qt/F_PuntiSu_vista.hpp"

#include "condizioni/ModTestoCelle.hpp"
#include "qt/DialoghiProva.hpp"

#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>

namespace ordavel::qt {

namespace {

using namespace prove;
using enum TipoCondizione;

const QString kImpostarePunti = "Impostare i punti da realizzare";

/// The name of the combo that a dialog has for its parameter; empty for none.
QString NomeCombo(const RigaDialogo& riga)
{
    switch (riga.tipo) {
    case cadenzeSpecifiche:
        return "cmbCadenza";
    case figureSpecifiche:
        return "cmbFigura";
    case decineSpecifiche:
        return "cmbDecina";
    default:
        return riga.sVoci.empty() ? "" : "Combo1";
    }
}

/// The entry that the user of these tests chooses: the last one, or 4.
std::string Scelta(const RigaDialogo& riga)
{
    if (riga.parametro != eControlloParametro::combo) {
        return "4";
    }
    return std::string(riga.sVoci.substr(riga.sVoci.find('|') + 1));
}

void RiempiParametro(VistaDialogo& vista, const RigaDialogo& riga)
{
    if (const QString sCombo = NomeCombo(riga); !sCombo.isEmpty()) {
        Scegli(vista, sCombo, Testo(Scelta(riga)));
    } else if (riga.parametro == eControlloParametro::caselle) {
        Clicca(vista, "ChkCaselle1");
        QTest::keyClick(&Trova(vista, "ChkCaselle3"), Qt::Key_Space);
    } else if (riga.parametro == eControlloParametro::casella) {
        Clicca(vista, "ObCaselle4");
    }
}

void RiempiPunti(VistaDialogo& vista, const RigaDialogo& riga)
{
    if (riga.punti == eFamigliaPunti::lista) {
        Clicca(vista, "ChkPunti1");
        QTest::keyClick(&Trova(vista, "ChkPunti2"), Qt::Key_Space);
    } else {
        Scrivi(vista, "TxtPunti0", "10");
        Scrivi(vista, "TxtPunti1", "20");
    }
}

void RiempiRecupero(VistaDialogo& vista, const RigaDialogo& riga)
{
    Scegli(vista, "CmbRecupero", "7");
    if (riga.punti == eFamigliaPunti::lista) {
        Clicca(vista, "ChkRecupero3");
    } else {
        Scrivi(vista, "TxtPuntiRec0", "5");
        Scrivi(vista, "TxtPuntiRec1", "25");
    }
}

void Riempi(VistaDialogo& vista, const RigaDialogo& riga)
{
    RiempiParametro(vista, riga);
    RiempiPunti(vista, riga);
    RiempiRecupero(vista, riga);
}

/// The cells of the same choice, without any window.
Condizione Attese(const RigaDialogo& riga, bool bRecupero)
{
    ValoriDialogo valori;
    valori.sScelta = Scelta(riga);
    valori.aNumeri(1) = valori.aNumeri(3) = kVero;
    valori.aPunti(1) = valori.aPunti(2) = kVero;
    valori.aRange = {"10", "20"};
    if (bRecupero) {
        valori.aRecupero(3) = kVero;
        valori.aRangeRec = {"5", "25"};
        valori.sQuadro = "7";
    }
    return CelleDaDialogo(riga.tipo, valori);
}

class FPuntiSuVista : public DialoghiProva, public testing::WithParamInterface<RigaDialogo> {
protected:
    static QStringList Titoli(const VistaDialogo& vista)
    {
        QStringList aTitoli;
        for (const QGroupBox* riquadro : vista.findChildren<QGroupBox*>()) {
            aTitoli << riquadro->title();
        }
        return aTitoli;
    }
};

INSTANTIATE_TEST_SUITE_P(Tutti, FPuntiSuVista,
                         testing::ValuesIn(TabellaDialoghi().begin(), TabellaDialoghi().end()),
                         [](const auto& caso) { return std::string(caso.param.sNome.substr(2)); });

QStringList TitoliAttesi(const RigaDialogo& riga)
{
    switch (riga.parametro) {
    case eControlloParametro::caselle:
        return {"Caselle", "Punti", "Punti"};
    case eControlloParametro::casella:
        return {"Caselle", "Numeri", "Punti"};
    default:
        return {"Punti", "Recupero"};
    }
}

} // namespace

TEST_P(FPuntiSuVista, HaITitoliDellaTabella)
{
    Apri(GetParam().tipo, [](VistaDialogo& vista) {
        EXPECT_EQ(vista.windowTitle(), Testo(GetParam().sTitolo));
        EXPECT_EQ(Titoli(vista), TitoliAttesi(GetParam()));
    });
}

TEST_P(FPuntiSuVista, ConfermaScriveQuelCheSiEScelto)
{
    Apri(GetParam().tipo, [](VistaDialogo& vista) {
        Riempi(vista, GetParam());
        Clicca(vista, "Conferma");
        EXPECT_FALSE(vista.isVisible());
    });
    EXPECT_EQ(Riga(1), Attese(GetParam(), true));
    EXPECT_TRUE(sistema.Modificato());
}

TEST_P(FPuntiSuVista, InvioConferma)
{
    Apri(GetParam().tipo, [](VistaDialogo& vista) {
        RiempiParametro(vista, GetParam());
        RiempiPunti(vista, GetParam());
        QTest::keyClick(vista.focusWidget(), Qt::Key_Return);
        EXPECT_FALSE(vista.isVisible());
    });
    EXPECT_EQ(Riga(1), Attese(GetParam(), false));
}

TEST_P(FPuntiSuVista, LaModificaMostraGliStessiValori)
{
    std::map<QString, QString> prima;
    Apri(GetParam().tipo, [&](VistaDialogo& vista) {
        Riempi(vista, GetParam());
        prima = Mostrato(vista);
        Clicca(vista, "Conferma");
    });
    Modifica(1, [&](VistaDialogo& vista) {
        EXPECT_EQ(Mostrato(vista), prima);
        Clicca(vista, "Conferma");
    });
    EXPECT_EQ(Riga(1), Attese(GetParam(), true));
    EXPECT_TRUE(sistema.GetGridCond().Vuota(2));
}

TEST_P(FPuntiSuVista, ChiudiEdEscNonCambianoNulla)
{
    const std::vector<Azione> aModi{
        [](VistaDialogo& vista) { Clicca(vista, "Chiudi"); },
        [](VistaDialogo& vista) { QTest::keyClick(vista.focusWidget(), Qt::Key_Escape); },
        [](VistaDialogo& vista) { vista.close(); },
    };
    for (const Azione& modo : aModi) {
        Apri(GetParam().tipo, [&](VistaDialogo& vista) {
            Riempi(vista, GetParam());
            modo(vista);
            EXPECT_FALSE(vista.isVisible());
        });
    }
    EXPECT_TRUE(sistema.GetGridCond().Vuota(1));
    EXPECT_FALSE(sistema.Modificato());
}

TEST_P(FPuntiSuVista, ConfermaSenzaPuntiAvvisaERestaAperta)
{
    const QString sManca = GetParam().sManca.empty() ? kImpostarePunti : Testo(GetParam().sManca);
    Apri(GetParam().tipo, [&](VistaDialogo& vista) {
        const auto prima = Mostrato(vista);
        EXPECT_EQ(Avviso([&] { Clicca(vista, "Conferma"); }), sManca);
        EXPECT_TRUE(vista.isVisible());
        EXPECT_EQ(Mostrato(vista), prima);
    });
    EXPECT_TRUE(sistema.GetGridCond().Vuota(1));
}

TEST_P(FPuntiSuVista, IlRecuperoSiAbilitaConUnQuadroESiSvuotaSenza)
{
    const bool bLista = GetParam().punti == eFamigliaPunti::lista;
    const QString sControllo = bLista ? "ChkRecupero3" : "TxtPuntiRec1";
    Apri(GetParam().tipo, [&](VistaDialogo& vista) {
        RiempiParametro(vista, GetParam());
        EXPECT_FALSE(Trova(vista, sControllo).isEnabled());
        RiempiRecupero(vista, GetParam());
        EXPECT_TRUE(Trova(vista, sControllo).isEnabled());
        EXPECT_FALSE(Mostrato(vista)[sControllo].isEmpty());
        Scegli(vista, "CmbRecupero", " ");
        EXPECT_FALSE(Trova(vista, sControllo).isEnabled());
        EXPECT_TRUE(Mostrato(vista)[sControllo].isEmpty());
    });
}

using FPuntiSuVistaCasi = DialoghiProva;

TEST_F(FPuntiSuVistaCasi, UnValoreAccettatoNonSiPuoRecuperare)
{
    Apri(consecutivi, [](VistaDialogo& vista) {
        const auto& recupero = Trova<QCheckBox>(vista, "ChkRecupero2");
        Scegli(vista, "CmbRecupero", "1");
        Clicca(vista, "ChkRecupero2");
        EXPECT_TRUE(recupero.isChecked());
        Clicca(vista, "ChkPunti2");
        EXPECT_FALSE(recupero.isChecked());
        EXPECT_FALSE(recupero.isEnabled());
        Clicca(vista, "ChkPunti2");
        EXPECT_TRUE(recupero.isEnabled());
    });
}

TEST_F(FPuntiSuVistaCasi, ConIlQuadroSenzaRecuperoAvvisaDelRecupero)
{
    Apri(consecutivi, [](VistaDialogo& vista) {
        Scegli(vista, "CmbRecupero", "1");
        EXPECT_EQ(Avviso([&] { Clicca(vista, "Conferma"); }), "Impostare i punti di recupero");
    });
    Apri(peso, [](VistaDialogo& vista) {
        RiempiPunti(vista, *TrovaDialogo(peso));
        Scegli(vista, "CmbRecupero", "1");
        EXPECT_EQ(Avviso([&] { Clicca(vista, "Conferma"); }), kImpostarePunti);
        Scrivi(vista, "TxtPuntiRec0", "9");
        EXPECT_EQ(Avviso([&] { Clicca(vista, "Conferma"); }), "Range punti recupero non valido");
        Scrivi(vista, "TxtPunti0", "21");
        Scegli(vista, "CmbRecupero", " ");
        EXPECT_EQ(Avviso([&] { Clicca(vista, "Conferma"); }), "Range punti non valido");
    });
}

TEST_F(FPuntiSuVistaCasi, IlRestoMostraTanteCaselleQuantoIlDivisore)
{
    const auto visibili = [](const VistaDialogo& vista) {
        int nVisibili = 0;
        for (int n = 0; n <= 8; ++n) {
            const QString sValore = QString::number(n);
            const bool bPunti = Trova(vista, "ChkPunti" + sValore).isVisible();
            EXPECT_EQ(bPunti, Trova(vista, "ChkRecupero" + sValore).isVisible());
            nVisibili += bPunti ? 1 : 0;
        }
        return nVisibili;
    };
    Apri(resto, [&](VistaDialogo& vista) {
        for (const int nDivisore : {2, 9, 3, 5, 2}) {
            Scegli(vista, "Combo1", QString::number(nDivisore));
            EXPECT_EQ(visibili(vista), nDivisore);
        }
    });
}

TEST_F(FPuntiSuVistaCasi, IlDivisoreAbbassatoToglieLaSpuntaNascosta)
{
    Apri(resto, [](VistaDialogo& vista) {
        Scegli(vista, "Combo1", "9");
        Clicca(vista, "ChkPunti0");
        Clicca(vista, "ChkPunti7");
        Scegli(vista, "Combo1", "3");
        Scegli(vista, "Combo1", "9");
        EXPECT_FALSE(Trova<QCheckBox>(vista, "ChkPunti7").isChecked());
        EXPECT_TRUE(Trova<QCheckBox>(vista, "ChkPunti0").isChecked());
        Clicca(vista, "Conferma");
    });
    EXPECT_EQ(Riga(1).sPunti, "0");
}

TEST_F(FPuntiSuVistaCasi, IlVorticeNonHaLoZero)
{
    Apri(vortice, [](VistaDialogo& vista) {
        EXPECT_EQ(vista.findChild<QCheckBox*>("ChkPunti0"), nullptr);
        EXPECT_NE(vista.findChild<QCheckBox*>("ChkPunti5"), nullptr);
        EXPECT_EQ(vista.findChild<QCheckBox*>("ChkPunti6"), nullptr);
    });
}

TEST_F(FPuntiSuVistaCasi, ILimitiSiVedonoESiLeggono)
{
    Apri(peso, [](VistaDialogo& vista) {
        EXPECT_EQ(Trova<QLabel>(vista, "LabMin").text(), "15");
        EXPECT_EQ(Trova<QLabel>(vista, "LabMax").text(), "90");
        EXPECT_EQ(Trova(vista, "TxtPunti1").accessibleDescription(), "limite 90");
    });
    sistema.PoniClasse(6);
    for (std::int16_t n = 6; n <= 20; ++n) {
        sistema.SelezionaNumero(n, false);
    }
    Apri(ampiezza, [](VistaDialogo& vista) { EXPECT_EQ(Trova<QLabel>(vista, "LabMin").text(), ""); });
}

TEST_F(FPuntiSuVistaCasi, SoloLAmpiezzaRifiutaLeLettere)
{
    for (const auto& [tipo, sAtteso] : {std::pair(ampiezza, "12"), std::pair(baricentro, "1x2")}) {
        const QString sTesto = sAtteso;
        Apri(tipo, [sTesto](VistaDialogo& vista) {
            Scrivi(vista, "TxtPunti0", "1x2");
            EXPECT_EQ(Trova<QLineEdit>(vista, "TxtPunti0").text(), sTesto);
        });
    }
}

TEST_F(FPuntiSuVistaCasi, LeMnemonicheConfermanoEChiudono)
{
    Apri(consecutivi, [](VistaDialogo& vista) {
        Clicca(vista, "ChkPunti0");
        MnemonicaChiude(vista, Qt::Key_H);
    });
    EXPECT_TRUE(sistema.GetGridCond().Vuota(1));
    Apri(consecutivi, [](VistaDialogo& vista) {
        Clicca(vista, "ChkPunti0");
        MnemonicaChiude(vista, Qt::Key_C);
    });
    EXPECT_EQ(Riga(1).sPunti, "0");
}

TEST_F(FPuntiSuVistaCasi, LaClassePiuPiccolaOffreFinoADue)
{
    sistema.PoniClasse(kClasseMinima);
    Apri(ponte, [](VistaDialogo& vista) {
        EXPECT_NE(vista.findChild<QCheckBox*>("ChkPunti2"), nullptr);
        EXPECT_EQ(vista.findChild<QCheckBox*>("ChkPunti3"), nullptr);
    });
}

} // namespace ordavel::qt
