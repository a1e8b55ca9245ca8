// F_InsColonne_vista_prova.cpp - columns of a text become conditions.

#include "qt/F_InsColonne_vista.hpp"

#include "qt/SistemaQtProva.hpp"

#include <QCheckBox>
#include <QComboBox>
#include <QTableView>

namespace ordavel::qt {

namespace {

using prove::Clicca;
using prove::ConFile;
using prove::Scatola;
using prove::Trova;

class InsColonneVista : public prove::SistemaQtProva {
protected:
    InsColonneVista() { ordavel::prove::ScriviFile(m_sFile, "1 2 3\nnulla\n04.05.06\n7 8\n"); }

    /// With the file open.
    void ConLeColonne(const std::function<void(F_InsColonneVista&, QTableView&)>& azione)
    {
        Nella<F_InsColonneVista>("PuntiSuColonnaTxt", [&](F_InsColonneVista& vista) {
            EXPECT_TRUE(ConFile(m_sFile, [&] { Clicca(vista, "open"); }));
            vista.activateWindow();
            EXPECT_TRUE(QTest::qWaitForWindowActive(&vista));
            azione(vista, Trova<QTableView>(vista, "ListView1"));
        });
    }

    const std::string m_sFile = cartella / "colonne.txt";
};

QString Cella(const QTableView& lista, int nRiga, int nColonna)
{
    return lista.model()->index(nRiga, nColonna).data().toString();
}

void ScegliRiga(QTableView& lista, int nRiga, Qt::KeyboardModifiers tasti = {})
{
    const QPoint qui = lista.visualRect(lista.model()->index(nRiga, 1)).center();
    QTest::mouseClick(lista.viewport(), Qt::LeftButton, tasti, qui);
}

} // namespace

TEST_F(InsColonneVista, LeRigheDelFileStannoNellElenco)
{
    ConLeColonne([](F_InsColonneVista& vista, QTableView& lista) {
        ASSERT_EQ(lista.model()->rowCount(), 3);
        EXPECT_EQ(Cella(lista, 0, 0), "1");
        EXPECT_EQ(Cella(lista, 1, 1), "04.05.06");
        EXPECT_EQ(lista.model()->headerData(4, Qt::Horizontal).toString(), "Quadro Rec");
        EXPECT_FALSE(Trova<QWidget>(vista, "PanPunti").isVisible());
        prove::ExpectNominati(vista);
    });
}

TEST_F(InsColonneVista, IPuntiVannoAlleRigheScelteELaConfermaInserisce)
{
    ConLeColonne([](F_InsColonneVista& vista, QTableView& lista) {
        ScegliRiga(lista, 0);
        ScegliRiga(lista, 2, Qt::ControlModifier);
        Clicca(vista, "punti");
        EXPECT_TRUE(Trova<QWidget>(vista, "PanPunti").isVisible());
        EXPECT_EQ(vista.focusWidget()->objectName(), "ChkPunti0");
        prove::ExpectNominati(vista);
        QTest::keyClick(&Trova<QCheckBox>(vista, "ChkPunti2"), Qt::Key_Space);
        QTest::keyClicks(&Trova<QComboBox>(vista, "CmbRecupero"), "4");
        QTest::keyClick(&Trova<QCheckBox>(vista, "ChkRecupero1"), Qt::Key_Space);
        Clicca(vista, "XPButton2");
        EXPECT_FALSE(Trova<QWidget>(vista, "PanPunti").isVisible());
        EXPECT_EQ(Cella(lista, 0, 2), "2");
        EXPECT_EQ(Cella(lista, 1, 2), "");
        EXPECT_EQ(Cella(lista, 2, 3), "1");
        EXPECT_EQ(Cella(lista, 2, 4), "4");
        EXPECT_EQ(lista.selectionModel()->selectedRows().size(), 2) << "la scelta resta";
        Clicca(vista, "Conferma");
        EXPECT_FALSE(vista.isVisible());
    });
    EXPECT_EQ(Griglia().Riga(1).sCondizione, "Punti Col.");
    EXPECT_EQ(Griglia().Riga(1).sPunti, "2");
    EXPECT_EQ(Griglia().Riga(2).sPunti, "");
    EXPECT_EQ(Griglia().Riga(3).sRecupero, "1");
    EXPECT_EQ(Griglia().Riga(3).sQuadro, "4");
    EXPECT_TRUE(Griglia().Vuota(4));
}

TEST_F(InsColonneVista, LAnnullaDelPannelloNonScriveNulla)
{
    ConLeColonne([](F_InsColonneVista& vista, QTableView& lista) {
        lista.selectAll();
        Clicca(vista, "punti");
        QTest::keyClick(&Trova<QCheckBox>(vista, "ChkPunti2"), Qt::Key_Space);
        Clicca(vista, "XPButton3");
        EXPECT_FALSE(Trova<QWidget>(vista, "PanPunti").isVisible());
        EXPECT_EQ(Cella(lista, 0, 2), "");
    });
    EXPECT_TRUE(Griglia().Vuota(1));
}

TEST_F(InsColonneVista, IlTastoCancElimina)
{
    ConLeColonne([](F_InsColonneVista& vista, QTableView& lista) {
        ScegliRiga(lista, 1);
        QTest::keyClick(&lista, Qt::Key_Delete);
        ASSERT_EQ(lista.model()->rowCount(), 2);
        EXPECT_EQ(Cella(lista, 1, 0), "3");
        EXPECT_TRUE(lista.selectionModel()->selectedRows().isEmpty());
        lista.setFocus();
        QTest::keyClick(&lista, Qt::Key_A, Qt::ControlModifier);
        Clicca(vista, "delete");
        EXPECT_EQ(lista.model()->rowCount(), 0);
        Clicca(vista, "Conferma");
        EXPECT_TRUE(vista.isVisible()) << "senza righe non dice nulla e resta";
        QTest::keyClick(&vista, Qt::Key_Escape);
        EXPECT_FALSE(vista.isVisible());
    });
    EXPECT_TRUE(Griglia().Vuota(1));
}

} // namespace ordavel::qt
