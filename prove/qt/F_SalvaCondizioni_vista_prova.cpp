// F_SalvaCondizioni_vista_prova.cpp - conditions into a file and back, each in its window with its preview.

#include "qt/F_SalvaCondizioni_vista.hpp"

#include "qt/F_ApriCondizioni_vista.hpp"
#include "qt/SistemaQtProva.hpp"

#include <QComboBox>
#include <QLabel>
#include <QTableView>

namespace ordavel::qt {

namespace {

using prove::Clicca;
using prove::ConFile;
using prove::Scatola;
using prove::Trova;

class FileCondizioniVista : public prove::SistemaQtProva {
protected:
    FileCondizioniVista()
    {
        Condizioni(4);
        Griglia().Riga(2) = {"Peso", "Caselle :\r\n1-2", "100-150", "-", " "};
    }

    /// Conditions 2 and 3 into a file of the folder of systems.
    void Salva()
    {
        Nella<F_SalvaCondizioniVista>("SalvaCondizioni", [&](F_SalvaCondizioniVista& vista) {
            Trova<QComboBox>(vista, "CmbCondInizio").setCurrentIndex(1);
            Trova<QComboBox>(vista, "CmbCondFine").setCurrentIndex(2);
            EXPECT_TRUE(ConFile(m_sFile, [&] { Clicca(vista, "Conferma"); }));
            EXPECT_FALSE(vista.isVisible());
        });
    }

    const std::string m_sFile = cartella / "sistemi/mie.cnd";
};

QString Cella(const QTableView& griglia, int nRiga, int nColonna)
{
    return griglia.model()->index(nRiga, nColonna).data().toString();
}

} // namespace

TEST_F(FileCondizioniVista, LAnteprimaSegueLaScelta)
{
    Nella<F_SalvaCondizioniVista>("SalvaCondizioni", [](F_SalvaCondizioniVista& vista) {
        prove::ExpectNominati(vista);
        auto& inizio = Trova<QComboBox>(vista, "CmbCondInizio");
        EXPECT_EQ(inizio.itemText(1), "   2 - Peso");
        auto& anteprima = Trova<QTableView>(vista, "GrdCond");
        QTest::keyClick(&inizio, Qt::Key_Down);
        EXPECT_EQ(anteprima.model()->columnCount(), 0);
        QTest::keyClick(&Trova<QComboBox>(vista, "CmbCondFine"), Qt::Key_End);
        ASSERT_EQ(anteprima.model()->columnCount(), 4);
        EXPECT_EQ(Cella(anteprima, 0, 1), "Peso");
        EXPECT_EQ(Cella(anteprima, 1, 1), "Caselle :\n1-2");
        EXPECT_TRUE(anteprima.currentIndex().isValid());
        QTest::keyClick(&inizio, Qt::Key_End);
        QTest::keyClick(&Trova<QComboBox>(vista, "CmbCondFine"), Qt::Key_Home);
        EXPECT_EQ(anteprima.model()->columnCount(), 0) << "la fine sta davanti all'inizio";
    });
}

TEST_F(FileCondizioniVista, SenzaCondizioniLoDice)
{
    Nella<F_SalvaCondizioniVista>("SalvaCondizioni", [](F_SalvaCondizioniVista& vista) {
        EXPECT_EQ(Scatola([&] { Clicca(vista, "Conferma"); }), "Impostare le condizioni da salvare");
        EXPECT_TRUE(vista.isVisible());
        QTest::keyClick(&vista, Qt::Key_Escape);
        EXPECT_FALSE(vista.isVisible());
    });
    Nella<F_ApriCondizioniVista>("InsCondizioni", [](F_ApriCondizioniVista& vista) {
        EXPECT_EQ(Scatola([&] { Clicca(vista, "Conferma"); }), "Impostare le condizioni da salvare");
        Clicca(vista, "Chiudi");
        EXPECT_FALSE(vista.isVisible());
    });
    EXPECT_TRUE(Griglia().Vuota(5));
}

TEST_F(FileCondizioniVista, SenzaUnNomeLaFinestraResta)
{
    Nella<F_SalvaCondizioniVista>("SalvaCondizioni", [](F_SalvaCondizioniVista& vista) {
        QTest::keyClick(&Trova<QComboBox>(vista, "CmbCondInizio"), Qt::Key_Home);
        QTest::keyClick(&Trova<QComboBox>(vista, "CmbCondFine"), Qt::Key_End);
        EXPECT_TRUE(prove::Quando<QFileDialog>(
            [](QFileDialog& finestra) {
                EXPECT_EQ(finestra.windowTitle(), "Apri file");
                finestra.reject();
            },
            [&] { Clicca(vista, "Conferma"); }));
        EXPECT_TRUE(vista.isVisible());
    });
}

TEST_F(FileCondizioniVista, QuelCheSiSalvaSiRiapreInFondo)
{
    Salva();
    Nella<F_ApriCondizioniVista>("InsCondizioni", [&](F_ApriCondizioniVista& vista) {
        prove::ExpectNominati(vista);
        EXPECT_EQ(Trova<QLabel>(vista, "LabPercorso").text(), Testo(sistema.DirSistemi()));
        auto& file = Trova<QComboBox>(vista, "CmbCondizioni");
        ASSERT_EQ(file.count(), 1);
        EXPECT_EQ(file.itemText(0), "mie");
        QTest::keyClick(&file, Qt::Key_Down);
        auto& anteprima = Trova<QTableView>(vista, "GrdCond");
        ASSERT_EQ(anteprima.model()->columnCount(), 2);
        EXPECT_EQ(Cella(anteprima, 0, 0), "Peso");
        Clicca(vista, "Conferma");
        EXPECT_FALSE(vista.isVisible());
    });
    EXPECT_EQ(Griglia().Riga(5), Griglia().Riga(2));
    EXPECT_EQ(Griglia().Riga(6), Griglia().Riga(3));
    EXPECT_TRUE(Griglia().Vuota(7));
}

TEST_F(FileCondizioniVista, UnAltraCartellaHaAltriFile)
{
    Salva();
    Nella<F_ApriCondizioniVista>("InsCondizioni", [&](F_ApriCondizioniVista& vista) {
        EXPECT_TRUE(ConFile(cartella / "temp", [&] { Clicca(vista, "Command1"); }));
        EXPECT_EQ(Trova<QLabel>(vista, "LabPercorso").text(), Testo(cartella / "temp/"));
        EXPECT_EQ(Trova<QComboBox>(vista, "CmbCondizioni").count(), 0);
    });
}

} // namespace ordavel::qt
