// F_NavigaSistema_vista_prova.cpp - the tree of conditions beside the work on them.

#include "qt/F_NavigaSistema_vista.hpp"

#include "qt/SistemaQtProva.hpp"

#include <QAbstractItemDelegate>
#include <QStyleOptionViewItem>
#include <QTreeWidget>

namespace ordavel::qt {

namespace {

using prove::Trova;

class NavigaSistemaVista : public prove::SistemaQtProva {
protected:
    NavigaSistemaVista()
    {
        Condizioni(5);
        Griglia().Riga(2).sCondizione = "LinkOpen";
        Griglia().Riga(4).sCondizione = "LinkClose";
    }

    F_NavigaSistemaVista& Apri()
    {
        sistema.Toolbar2_ButtonClick("Naviga");
        for (QWidget* finestra : QApplication::topLevelWidgets()) {
            auto* vista = dynamic_cast<F_NavigaSistemaVista*>(finestra);
            if (vista != nullptr && vista->isVisible()) {
                m_Vista = vista;
                return *vista;
            }
        }
        throw std::runtime_error("nessuna finestra");
    }

    F_NavigaSistemaVista* m_Vista = nullptr; ///< the one that was opened last
};

QTreeWidget& AlberoDi(QWidget& vista)
{
    return Trova<QTreeWidget>(vista, "TreeView1");
}

} // namespace

TEST_F(NavigaSistemaVista, LAlberoStaAccantoAlLavoro)
{
    F_NavigaSistemaVista& vista = Apri();
    EXPECT_EQ(vista.windowTitle(), "Naviga sistema");
    EXPECT_FALSE(vista.isModal());
    prove::ExpectNominati(vista);
    QTreeWidget& albero = AlberoDi(vista);
    ASSERT_EQ(albero.topLevelItemCount(), 1);
    QTreeWidgetItem* radice = albero.topLevelItem(0);
    EXPECT_EQ(radice->text(0), "Sistema");
    EXPECT_TRUE(radice->isExpanded());
    ASSERT_EQ(radice->childCount(), 3);
    EXPECT_EQ(radice->child(1)->text(0), "LinkOpen");
    EXPECT_EQ(radice->child(1)->childCount(), 2);
    EXPECT_EQ(&Apri(), &vista) << "una sola";
}

TEST_F(NavigaSistemaVista, UnClicSceglieLaCondizioneEInvioPure)
{
    QTreeWidget& albero = AlberoDi(Apri());
    QTreeWidgetItem* terza = albero.topLevelItem(0)->child(2);
    QTest::mouseClick(albero.viewport(), Qt::LeftButton, {}, albero.visualItemRect(terza).center());
    EXPECT_EQ(Griglia().Corrente(), 5);
    albero.setCurrentItem(albero.topLevelItem(0)->child(0));
    QTest::keyClick(&albero, Qt::Key_Return);
    EXPECT_EQ(Griglia().Corrente(), 1);
}

TEST_F(NavigaSistemaVista, RifattoMostraAncoraQuelCheSiEraAperto)
{
    QTreeWidget& albero = AlberoDi(Apri());
    albero.topLevelItem(0)->child(1)->setExpanded(true);
    albero.setCurrentItem(albero.topLevelItem(0)->child(1)->child(0));
    sistema.SetColonnaGrid(5);
    sistema.Toolbar2_ButtonClick("Delete");
    ASSERT_EQ(albero.topLevelItem(0)->childCount(), 2);
    QTreeWidgetItem* link = albero.topLevelItem(0)->child(1);
    EXPECT_TRUE(QTest::qWaitFor([&] { return link->isExpanded(); }));
    EXPECT_EQ(albero.currentItem(), link->child(0));
}

TEST_F(NavigaSistemaVista, UnLinkSenzaInizioSiDiceEIlRestoSiVede)
{
    Griglia().Riga(2).sCondizione = "LinkClose";
    EXPECT_TRUE(prove::Scatola([this] { Apri(); }).startsWith("91- "));
    const QTreeWidgetItem* radice = AlberoDi(*m_Vista).topLevelItem(0);
    EXPECT_EQ(radice->childCount(), 2) << "fino a lui";
    EXPECT_FALSE(radice->isExpanded());
}

TEST_F(NavigaSistemaVista, IParametriStannoInUnaRiga)
{
    QTreeWidget& albero = AlberoDi(Apri());
    Griglia().Riga(4).sParametri = "L\r\ni";
    sistema.Toolbar2_ButtonClick("Naviga");
    const QModelIndex chiude =
        albero.model()->index(1, 0, albero.model()->index(1, 0, albero.model()->index(0, 0)));
    EXPECT_EQ(albero.itemDelegate()->sizeHint({}, chiude).height(),
              albero.itemDelegate()->sizeHint({}, albero.model()->index(0, 0)).height());
}

TEST_F(NavigaSistemaVista, ChiusaSiRiapre)
{
    F_NavigaSistemaVista& vista = Apri();
    prove::Clicca(vista, "Chiudi");
    EXPECT_FALSE(vista.isVisible());
    EXPECT_TRUE(Apri().isVisible());
    QTest::keyClick(&Apri(), Qt::Key_Escape);
    EXPECT_TRUE(Apri().isVisible());
    Apri().close();
    EXPECT_EQ(AlberoDi(Apri()).topLevelItemCount(), 1);
}

TEST_F(NavigaSistemaVista, FinisceConIlComponente)
{
    const QPointer<QWidget> vista = &Apri();
    sistema.Deinit();
    EXPECT_TRUE(QTest::qWaitFor([&] { return vista.isNull(); }));
}

} // namespace ordavel::qt
