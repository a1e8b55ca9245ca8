// F_ImpostaPunti_vista_prova.cpp - the same points for a run of conditions.

#include "qt/F_ImpostaPunti_vista.hpp"

#include "qt/SistemaQtProva.hpp"

#include <QCheckBox>
#include <QComboBox>

namespace ordavel::qt {

namespace {

using prove::Clicca;
using prove::Scatola;
using prove::Trova;

class ImpostaPuntiVista : public prove::SistemaQtProva {
protected:
    ImpostaPuntiVista() { Condizioni(3); }

    void NellaFinestra(const std::function<void(F_ImpostaPuntiVista&)>& azione)
    {
        Nella<F_ImpostaPuntiVista>("puntimassivi", azione);
    }
};

void Spunta(QWidget& vista, const char* sNome)
{
    QTest::keyClick(&Trova<QCheckBox>(vista, sNome), Qt::Key_Space);
}

} // namespace

TEST_F(ImpostaPuntiVista, IPuntiSiScrivonoNelleCondizioniScelte)
{
    NellaFinestra([](F_ImpostaPuntiVista& vista) {
        prove::ExpectNominati(vista);
        Spunta(vista, "ChkPunti1");
        Spunta(vista, "ChkPunti4");
        QTest::keyClicks(&Trova<QComboBox>(vista, "CmbRecupero"), "7");
        Spunta(vista, "ChkRecupero0");
        QTest::keyClicks(&Trova<QComboBox>(vista, "CmbDalla"), "2");
        QTest::keyClicks(&Trova<QComboBox>(vista, "CmbAlla"), "3");
        Clicca(vista, "Conferma");
        EXPECT_FALSE(vista.isVisible());
    });
    EXPECT_EQ(Griglia().Riga(1).sPunti, "0-1-2-3-4-5");
    for (const std::int32_t n : {2, 3}) {
        EXPECT_EQ(Griglia().Riga(n).sPunti, "1-4");
        EXPECT_EQ(Griglia().Riga(n).sRecupero, "0");
        EXPECT_EQ(Griglia().Riga(n).sQuadro, "7");
    }
}

TEST_F(ImpostaPuntiVista, OltreLaClasseNonCiSonoCaselle)
{
    NellaFinestra([](F_ImpostaPuntiVista& vista) {
        for (int n = 0; n <= 10; ++n) {
            const std::string sNumero = std::to_string(n);
            EXPECT_EQ(Trova<QCheckBox>(vista, ("ChkPunti" + sNumero).c_str()).isVisible(), n <= 5);
            EXPECT_EQ(Trova<QCheckBox>(vista, ("ChkRecupero" + sNumero).c_str()).isVisible(), n <= 5);
        }
    });
}

TEST_F(ImpostaPuntiVista, UnPuntoAccettatoNonSiRecupera)
{
    NellaFinestra([](F_ImpostaPuntiVista& vista) {
        auto& recupero = Trova<QCheckBox>(vista, "ChkRecupero3");
        EXPECT_FALSE(recupero.isEnabled()) << "senza gruppo";
        QTest::keyClicks(&Trova<QComboBox>(vista, "CmbRecupero"), "1");
        EXPECT_TRUE(recupero.isEnabled());
        Spunta(vista, "ChkRecupero3");
        Spunta(vista, "ChkPunti3");
        EXPECT_FALSE(recupero.isEnabled());
        EXPECT_FALSE(recupero.isChecked());
    });
}

TEST_F(ImpostaPuntiVista, SenzaLimitiLoDiceEConEscNonCambiaNulla)
{
    NellaFinestra([](F_ImpostaPuntiVista& vista) {
        Spunta(vista, "ChkPunti1");
        EXPECT_EQ(Scatola([&] { Clicca(vista, "Conferma"); }), "Impostare i limiti");
        EXPECT_TRUE(vista.isVisible());
        QTest::keyClick(&vista, Qt::Key_Escape);
        EXPECT_FALSE(vista.isVisible());
    });
    EXPECT_EQ(Griglia().Riga(1).sPunti, "0-1-2-3-4-5");
}

} // namespace ordavel::qt
