// F_Spoglio_vista_prova.cpp - columns and conditions against a winning column, on three pages.

#include "qt/F_Spoglio_vista.hpp"

#include "qt/SistemaQtProva.hpp"

#include <QComboBox>
#include <QHeaderView>
#include <QTabBar>
#include <QTableView>

namespace ordavel::qt {

namespace {

using prove::Clicca;
using prove::Scatola;
using prove::Trova;

class SpoglioVista : public prove::SistemaQtProva {
protected:
    SpoglioVista()
    {
        Condizioni(1);
        Griglia().Riga(2) = {"LinkOpen", "L\r\ni\r\nn\r\nk", "", "", ""};
        Griglia().Riga(3) = {"Consecutivi", "C", "0-1-2-3-4-5", "", " "};
        Griglia().Riga(4) = {"LinkClose", "L\r\ni\r\nn\r\nk", "1", "", ""};
        Sviluppa(7);
    }

    void NellaFinestra(const std::function<void(F_SpoglioVista&)>& azione)
    {
        Nella<F_SpoglioVista>("ConfrontoCondSuCol", azione);
    }
};

void Verifica(F_SpoglioVista& vista, const char* sColonna)
{
    Trova<QLineEdit>(vista, "Text1").clear();
    QTest::keyClicks(&Trova<QLineEdit>(vista, "Text1"), sColonna);
    QTest::keyClick(&Trova<QLineEdit>(vista, "Text1"), Qt::Key_Return);
}

void PremiTestata(QTableView& lista, int nColonna)
{
    QHeaderView& testata = *lista.horizontalHeader();
    QTest::mouseClick(testata.viewport(), Qt::LeftButton, {},
                      {testata.sectionViewportPosition(nColonna) + testata.sectionSize(nColonna) / 2,
                       testata.height() / 2});
}

QString Cella(const QTableView& lista, int nRiga, int nColonna)
{
    return lista.model()->index(nRiga, nColonna).data().toString();
}

} // namespace

TEST_F(SpoglioVista, UnaPaginaAllaVolta)
{
    NellaFinestra([](F_SpoglioVista& vista) {
        prove::ExpectNominati(vista);
        auto& linguette = Trova<QTabBar>(vista, "TabStrip1");
        ASSERT_EQ(linguette.count(), 3);
        EXPECT_EQ(linguette.tabText(1), "Confronto condizioni");
        for (int nPagina = 0; nPagina < 3; ++nPagina) {
            linguette.setCurrentIndex(nPagina);
            for (int nLista = 0; nLista < 3; ++nLista) {
                const std::string sLista = "ListView" + std::to_string(nLista + 1);
                EXPECT_EQ(Trova<QTableView>(vista, sLista.c_str()).isVisible(), nLista == nPagina);
            }
        }
    });
}

TEST_F(SpoglioVista, LaVerificaRiempieLePagine)
{
    NellaFinestra([](F_SpoglioVista& vista) {
        EXPECT_EQ(Trova<QComboBox>(vista, "CmbPuntiMin").currentText(), "2");
        Verifica(vista, "1.2.3");
        auto& vincite = Trova<QTableView>(vista, "ListView1");
        EXPECT_EQ(vincite.model()->rowCount(), 18 + 0) << "quelle che hanno due punti o più";
        EXPECT_EQ(Cella(vincite, 0, 1), "01 02 03 04 05");
        EXPECT_EQ(Cella(vincite, 0, 2), "3");
        auto& riepilogo = Trova<QTableView>(vista, "ListView3");
        EXPECT_EQ(riepilogo.model()->rowCount(), 4);
        EXPECT_EQ(Cella(riepilogo, 0, 0), "Vincite con 5 punti ");
        auto& confronto = Trova<QTableView>(vista, "ListView2");
        ASSERT_EQ(confronto.model()->rowCount(), 4);
        EXPECT_EQ(Cella(confronto, 0, 1), "Ponte");
        EXPECT_EQ(Cella(confronto, 1, 2), "") << "un link ha solo il nome";
        const QModelIndex effettivi = confronto.model()->index(0, 4);
        EXPECT_EQ(effettivi.data(Qt::BackgroundRole).value<QColor>(), QColor(0, 255, 0));
        EXPECT_EQ(Cella(confronto, 0, 5), "Si");
        EXPECT_FALSE(confronto.model()->index(0, 5).data(Qt::BackgroundRole).isValid());
    });
}

TEST_F(SpoglioVista, UnClicSullaTestataOrdinaEMostraLaFreccia)
{
    NellaFinestra([](F_SpoglioVista& vista) {
        auto& vincite = Trova<QTableView>(vista, "ListView1");
        QHeaderView& testata = *vincite.horizontalHeader();
        PremiTestata(vincite, 2);
        EXPECT_FALSE(testata.isSortIndicatorShown()) << "senza righe non c'è ordine";
        Verifica(vista, "1.2.3");
        PremiTestata(vincite, 2);
        EXPECT_TRUE(testata.isSortIndicatorShown());
        EXPECT_EQ(testata.sortIndicatorSection(), 2);
        const Qt::SortOrder prima = testata.sortIndicatorOrder();
        EXPECT_EQ(Cella(vincite, 0, 2), prima == Qt::AscendingOrder ? "2" : "3");
        PremiTestata(vincite, 2);
        EXPECT_NE(testata.sortIndicatorOrder(), prima);
        EXPECT_EQ(Cella(vincite, 0, 2), prima == Qt::AscendingOrder ? "3" : "2");
        PremiTestata(vincite, 0);
        EXPECT_EQ(testata.sortIndicatorSection(), 0);
        EXPECT_EQ(testata.sortIndicatorOrder(), Qt::AscendingOrder);
        EXPECT_EQ(Cella(vincite, 0, 0), "1");
    });
}

TEST_F(SpoglioVista, SiOrdinaAncheSenzaMouse)
{
    NellaFinestra([](F_SpoglioVista& vista) {
        Verifica(vista, "1.2.3");
        auto& vincite = Trova<QTableView>(vista, "ListView1");
        ASSERT_EQ(vincite.actions().size(), 3);
        EXPECT_EQ(vincite.actions().at(1)->text(), "Ordina per Numeri");
        vincite.actions().at(1)->trigger();
        EXPECT_EQ(vincite.horizontalHeader()->sortIndicatorSection(), 1);
    });
}

TEST_F(SpoglioVista, UnaColonnaErrataSiDice)
{
    NellaFinestra([](F_SpoglioVista& vista) {
        EXPECT_EQ(Scatola([&] { Clicca(vista, "XPButton10"); }), "Inserire numeri da 1 a 90");
        EXPECT_EQ(Scatola([&] { Verifica(vista, "1.91"); }), "Inserire numeri da 1 a 90");
        EXPECT_EQ(Trova<QTableView>(vista, "ListView1").model()->rowCount(), 0);
        Clicca(vista, "XPButton11");
        EXPECT_FALSE(vista.isVisible());
    });
}

TEST_F(SpoglioVista, EscChiudeEIlTabVaComeSiLegge)
{
    NellaFinestra([](F_SpoglioVista& vista) {
        EXPECT_EQ(prove::GiroTab(vista), (std::vector<std::string>{"Text1", "CmbPuntiMin", "TabStrip1",
                                                                   "ListView1", "XPButton10", "XPButton11"}));
        QTest::keyClick(&vista, Qt::Key_Escape);
        EXPECT_FALSE(vista.isVisible());
    });
}

} // namespace ordavel::qt
