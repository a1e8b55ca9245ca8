// F_PuntiSuFormule_vista_prova.cpp - the counts of the three thirds.

#include "qt/F_PuntiSuFormule_vista.hpp"

#include "qt/DialoghiProva.hpp"

namespace ordavel::qt {

namespace {

using namespace prove;
using enum TipoCondizione;

using FPuntiSuFormuleVistaProva = DialoghiProva;

void Terna(VistaDialogo& vista, const QString& sNome, const QStringList& aVoci)
{
    for (int i = 0; i < 3; ++i) {
        Scegli(vista, sNome + QString::number(i + 1), aVoci.at(i));
    }
}

} // namespace

TEST_F(FPuntiSuFormuleVistaProva, NessunaVoceESceltaAllInizio)
{
    Apri(formule, [](VistaDialogo& vista) {
        for (const char* sNome : {"CmbFormula1", "CmbFormula2", "CmbFormula3", "CmbFormulaR1"}) {
            const auto& combo = Trova<QComboBox>(vista, sNome);
            EXPECT_EQ(combo.currentIndex(), -1);
            EXPECT_EQ(combo.count(), 6);
        }
    });
}

TEST_F(FPuntiSuFormuleVistaProva, LaSommaDeveDareLaClasse)
{
    Apri(formule, [](VistaDialogo& vista) {
        const QString sResto = "in modo che la somma delle 3 sezioni dia la classe di sviluppo";
        Terna(vista, "CmbFormula", {"2", "2", "2"});
        EXPECT_EQ(Avviso([&] { Clicca(vista, "Conferma"); }), "Impostare la formula " + sResto);
        Terna(vista, "CmbFormula", {"2", "2", "1"});
        Scegli(vista, "CmbRecupero", "3");
        EXPECT_EQ(Avviso([&] { Clicca(vista, "Conferma"); }), "Impostare la formula in recupero " + sResto);
        EXPECT_TRUE(vista.isVisible());
        Terna(vista, "CmbFormulaR", {"0", "0", "5"});
        Clicca(vista, "Conferma");
        EXPECT_FALSE(vista.isVisible());
    });
    EXPECT_EQ(Riga(1), (Condizione{"Formule", "F\r\no\r\nr\r\nm\r\nu\r\nl\r\ne", "2-2-1", "0-0-5", "3"}));
}

TEST_F(FPuntiSuFormuleVistaProva, SenzaQuadroIlRecuperoSiSvuotaESiDisabilita)
{
    Apri(formule, [](VistaDialogo& vista) {
        const auto& recupero = Trova<QComboBox>(vista, "CmbFormulaR2");
        EXPECT_FALSE(recupero.isEnabled());
        Scegli(vista, "CmbRecupero", "3");
        EXPECT_TRUE(recupero.isEnabled());
        Scegli(vista, "CmbFormulaR2", "4");
        Scegli(vista, "CmbRecupero", " ");
        EXPECT_FALSE(recupero.isEnabled());
        EXPECT_EQ(recupero.currentIndex(), -1);
    });
}

TEST_F(FPuntiSuFormuleVistaProva, LaModificaMostraGliStessiValori)
{
    std::map<QString, QString> prima;
    Apri(formule, [&](VistaDialogo& vista) {
        Terna(vista, "CmbFormula", {"5", "0", "0"});
        Scegli(vista, "CmbRecupero", "20");
        Terna(vista, "CmbFormulaR", {"1", "3", "1"});
        prima = Mostrato(vista);
        QTest::keyClick(&Trova(vista, "CmbFormulaR3"), Qt::Key_Return);
        EXPECT_FALSE(vista.isVisible());
    });
    const Condizione celle = Riga(1);
    Modifica(1, [&](VistaDialogo& vista) {
        EXPECT_EQ(Mostrato(vista), prima);
        Clicca(vista, "Conferma");
    });
    EXPECT_EQ(Riga(1), celle);
    EXPECT_EQ(celle.sPunti, "5-0-0");
    EXPECT_EQ(celle.sRecupero, "1-3-1");
}

TEST_F(FPuntiSuFormuleVistaProva, ChiudiNonCambiaNulla)
{
    Apri(formule, [](VistaDialogo& vista) {
        Terna(vista, "CmbFormula", {"5", "0", "0"});
        Clicca(vista, "Chiudi");
    });
    EXPECT_TRUE(sistema.GetGridCond().Vuota(1));
}

} // namespace ordavel::qt
