// ModelloElenco_prova.cpp - a report list and its table show the same, however long it is.

#include "qt/ModelloElenco.hpp"

#include "ordavel/errore.hpp"

#include <QAbstractItemModelTester>
#include <QElapsedTimer>
#include <QHeaderView>
#include <QScrollBar>
#include <QTableView>

namespace ordavel::qt {

namespace {

struct SegnalatoreMuto : Segnalatore {
    void MostraFallimento(std::string_view /*sOrigine*/, const Errore& /*errore*/) override { ++nMostrati; }

    int nMostrati = 0;
};

std::vector<RigaElenco> Righe(int nQuante)
{
    std::vector<RigaElenco> aRighe(static_cast<std::size_t>(nQuante));
    for (int i = 0; i < nQuante; ++i) {
        aRighe[static_cast<std::size_t>(i)].sTesto = std::to_string(i + 1);
        aRighe[static_cast<std::size_t>(i)].aSotto = {"01 02 03 04 05", "2"};
    }
    return aRighe;
}

class ModelloElencoProva : public testing::Test {
protected:
    ModelloElencoProva() { elenco.aTestate = {"Colonna", "Numeri", "Punti"}; }

    QTableView& Mostra(const AspettoElenco& aspetto)
    {
        QTableView* vista = NuovoElenco(legami, elenco, aspetto, &finestra);
        vista->resize(400, 300);
        finestra.show();
        return *vista;
    }

    SegnalatoreMuto segnalatore;
    Elenco elenco;
    Legami legami{segnalatore, "F_Prova"};
    QWidget finestra;
};

const AspettoElenco kUna{.sNome = "ListView1", .sLetto = "Vincite", .aDestra = {0}};
const AspettoElenco kMolte{.sNome = "ListView1", .sLetto = "Vincite", .bMolte = true};

std::vector<bool> Scelte(const Elenco& elenco)
{
    std::vector<bool> aScelte;
    for (const RigaElenco& riga : elenco.Righe.Valore()) {
        aScelte.push_back(riga.bScelta);
    }
    return aScelte;
}

} // namespace

TEST_F(ModelloElencoProva, IlModelloTieneIPatti)
{
    QTableView& vista = Mostra(kUna);
    const QAbstractItemModelTester arbitro(vista.model(),
                                           QAbstractItemModelTester::FailureReportingMode::Fatal);
    elenco.Righe.Poni(Righe(5));
    elenco.Righe.Poni(Righe(3));
    elenco.Righe.Poni({});
    elenco.Righe.Poni(Righe(2));
    EXPECT_EQ(vista.model()->rowCount(), 2);
}

TEST_F(ModelloElencoProva, TestateERighe)
{
    elenco.Righe.Poni(Righe(2));
    elenco.Righe.Poni([&] {
        std::vector<RigaElenco> aRighe = elenco.Righe.Valore();
        aRighe[1].aSotto = {"solo questo"};
        return aRighe;
    }());
    const QAbstractItemModel& modello = *Mostra(kUna).model();
    EXPECT_EQ(modello.headerData(1, Qt::Horizontal).toString(), "Numeri");
    EXPECT_EQ(modello.index(0, 2).data().toString(), "2");
    EXPECT_EQ(modello.index(1, 2).data().toString(), "") << "quel che manca è vuoto";
    EXPECT_EQ(modello.index(0, 0).data(Qt::TextAlignmentRole).toInt(),
              static_cast<int>(Qt::AlignRight | Qt::AlignVCenter));
}

TEST_F(ModelloElencoProva, IlColoreStaNellaSuaColonna)
{
    std::vector<RigaElenco> aRighe = Righe(1);
    aRighe[0].nColonnaColorata = 2;
    aRighe[0].nColore = 0x0000FF;
    elenco.Righe.Poni(std::move(aRighe));
    const QAbstractItemModel& modello = *Mostra(kUna).model();
    EXPECT_EQ(modello.index(0, 2).data(Qt::BackgroundRole).value<QColor>(), QColor(255, 0, 0));
    EXPECT_EQ(modello.index(0, 2).data(Qt::ForegroundRole).value<QColor>(), QColor(Qt::black));
    EXPECT_FALSE(modello.index(0, 0).data(Qt::BackgroundRole).isValid());
    EXPECT_FALSE(modello.index(0, 1).data(Qt::BackgroundRole).isValid());
}

TEST_F(ModelloElencoProva, LaSceltaSegueNeiDueVersi)
{
    elenco.Righe.Poni(Righe(3));
    QTableView& vista = Mostra(kMolte);
    vista.selectRow(1);
    EXPECT_EQ(Scelte(elenco), (std::vector<bool>{false, true, false}));
    elenco.SelezionaTutte(true);
    EXPECT_EQ(vista.selectionModel()->selectedRows().size(), 3);
    elenco.SelezionaTutte(false);
    EXPECT_TRUE(vista.selectionModel()->selectedRows().isEmpty());
    vista.selectAll();
    EXPECT_EQ(Scelte(elenco), (std::vector<bool>{true, true, true}));
}

TEST_F(ModelloElencoProva, RinfrescatoRestaDovESiGuarda)
{
    elenco.Righe.Poni(Righe(200));
    QTableView& vista = Mostra(kUna);
    vista.verticalScrollBar()->setValue(50);
    elenco.Righe.Poni(Righe(199));
    EXPECT_EQ(vista.verticalScrollBar()->value(), 50);
    std::vector<RigaElenco> aAltre = Righe(199);
    std::reverse(aAltre.begin(), aAltre.end());
    elenco.Righe.Poni(std::move(aAltre));
    EXPECT_EQ(vista.verticalScrollBar()->value(), 50);
    EXPECT_EQ(vista.model()->index(0, 0).data().toString(), "199");
    elenco.Righe.Poni(Righe(3));
    EXPECT_EQ(vista.verticalScrollBar()->value(), 0);
}

TEST_F(ModelloElencoProva, CESempreUnaRigaCorrente)
{
    QTableView& vista = Mostra(kUna);
    EXPECT_FALSE(vista.currentIndex().isValid());
    elenco.Righe.Poni(Righe(3));
    EXPECT_TRUE(vista.currentIndex().isValid());
    vista.setCurrentIndex(vista.model()->index(2, 0));
    elenco.Righe.Poni(Righe(2));
    EXPECT_EQ(vista.currentIndex().row(), 1);
}

TEST_F(ModelloElencoProva, LaFrecciaSegueLoStatoENonIlClic)
{
    elenco.Righe.Poni(Righe(3));
    int nTitolo = -1;
    AspettoElenco aspetto = kUna;
    aspetto.alTitolo = [&](int nColonna) { nTitolo = nColonna; };
    QHeaderView& testata = *Mostra(aspetto).horizontalHeader();
    elenco.Icone.Poni({eOrdine::nessuno, eOrdine::decrescente, eOrdine::nessuno});
    EXPECT_TRUE(testata.isSortIndicatorShown());
    EXPECT_EQ(testata.sortIndicatorSection(), 1);
    EXPECT_EQ(testata.sortIndicatorOrder(), Qt::DescendingOrder);
    QTest::mouseClick(testata.viewport(), Qt::LeftButton, {}, {testata.sectionViewportPosition(2) + 8, 5});
    EXPECT_EQ(nTitolo, 2);
    EXPECT_EQ(testata.sortIndicatorSection(), 1);
    elenco.Icone.Poni({});
    EXPECT_FALSE(testata.isSortIndicatorShown());
}

TEST_F(ModelloElencoProva, TagliatiILegamiLaTabellaTace)
{
    elenco.Righe.Poni(Righe(3));
    QTableView& vista = Mostra(kUna);
    legami.Taglia();
    EXPECT_FALSE(vista.model()->index(0, 0).data().isValid());
    EXPECT_FALSE(vista.model()->headerData(0, Qt::Horizontal).isValid());
    EXPECT_EQ(segnalatore.nMostrati, 0);
}

TEST_F(ModelloElencoProva, UnMilioneDiRigheSiApreSubito)
{
    std::vector<RigaElenco> aRighe = Righe(1'000'000);
    QElapsedTimer tempo;
    tempo.start();
    QTableView& vista = Mostra(kUna);
    elenco.Righe.Poni(std::move(aRighe));
    vista.grab();
    vista.scrollToBottom();
    vista.grab();
    EXPECT_LT(tempo.elapsed(), 2000);
    EXPECT_GE(vista.columnWidth(0), vista.fontMetrics().horizontalAdvance("1000000"));
}

} // namespace ordavel::qt
