// VistaGriglia_prova.cpp - the grid by mouse and by keys, and what of it is painted.

#include "qt/VistaGriglia.hpp"

#include "qt/ContoVivo.hpp"
#include "qt/DelegatoGriglia.hpp"
#include "qt/GrigliaProva.hpp"
#include "qt/TestataGriglia.hpp"

#include <QAccessible>
#include <QContextMenuEvent>
#include <QPushButton>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>
#include <QWheelEvent>
#include <gtest/gtest.h>

namespace ordavel::qt {

namespace {

/// Counts the cells that it paints.
class DelegatoContato : public DelegatoGriglia {
public:
    using DelegatoGriglia::DelegatoGriglia;

    void paint(QPainter* penna, const QStyleOptionViewItem& opzioni, const QModelIndex& indice) const override
    {
        ++nDipinte;
        DelegatoGriglia::paint(penna, opzioni, indice);
    }

    mutable int nDipinte = 0;
};

struct VistaGrigliaProva : testing::Test, protected prove::GrigliaProva {
    void Mostra(int nLarga = 900, int nAlta = 600)
    {
        sistema.Controlli().GrdCond.Larghezza.Poni(150);
        vista.aggiorna();
        vista.resize(nLarga, nAlta);
        vista.show();
        static_cast<void>(QTest::qWaitForWindowExposed(&vista));
    }

    [[nodiscard]] VistaCondizioni& Stato() { return sistema.Controlli().GrdCond; }
    [[nodiscard]] QPoint Centro(int nRiga, int nColonna)
    {
        return vista.visualRect(vista.model()->index(nRiga, nColonna)).center();
    }
    void Tasto(Qt::Key nTasto, Qt::KeyboardModifiers tasti = Qt::NoModifier)
    {
        QTest::keyClick(&vista, nTasto, tasti);
    }
    [[nodiscard]] std::pair<int, int> Corrente() const
    {
        return {vista.currentIndex().row(), vista.currentIndex().column()};
    }
    /// The leftmost column that is seen, by the view itself.
    [[nodiscard]] int PrimaVista() const { return vista.columnAt(0); }

    VistaGriglia vista{sistema, piattaforma};
};

using Posto = std::pair<int, int>;

} // namespace

TEST_F(VistaGrigliaProva, UnaCellaEQuellaCorrenteAncheNelVuoto)
{
    EXPECT_EQ(Corrente(), Posto(rigaParametri, 1));
    Mostra();
    EXPECT_EQ(Corrente(), Posto(rigaParametri, 1));
    EXPECT_EQ(Stato().Evidenziata.Valore(), 0) << "nessuno ha scelto nulla";
    sistema.GrdCond_EnterCell(40);
    sistema.NuovoSistema();
    vista.aggiorna();
    EXPECT_EQ(Corrente(), Posto(rigaParametri, 1));
}

TEST_F(VistaGrigliaProva, DiceQuanteColonneStanno)
{
    Mostra();
    EXPECT_EQ(Stato().ColonneIntere.Valore(), vista.viewport()->width() / 150);
    vista.resize(1500, 600);
    EXPECT_EQ(Stato().ColonneIntere.Valore(), vista.viewport()->width() / 150);
    sistema.Controlli().GrdCond.Larghezza.Poni(50);
    QCoreApplication::processEvents();
    EXPECT_EQ(Stato().ColonneIntere.Valore(), vista.viewport()->width() / 50);
}

TEST_F(VistaGrigliaProva, LaPrimaColonnaSegueNeiDueVersi)
{
    Mostra();
    EXPECT_EQ(PrimaVista(), 1);
    Stato().PrimaColonna.Poni(100);
    EXPECT_EQ(PrimaVista(), 100);
    vista.horizontalScrollBar()->setValue(vista.horizontalScrollBar()->value() + 3);
    EXPECT_EQ(Stato().PrimaColonna.Valore(), 103);
    EXPECT_EQ(PrimaVista(), 103);
    sistema.SetColonnaGrid(50);
    EXPECT_EQ(PrimaVista(), 50);
    EXPECT_EQ(Corrente().second, 50);
    sistema.SetColonnaGrid(2000);
    EXPECT_EQ(Stato().PrimaColonna.Valore() + Stato().ColonneIntere.Valore() - 1, 2000);
    EXPECT_TRUE(vista.viewport()->rect().contains(vista.visualRect(vista.model()->index(rigaQuadro, 2000))));
}

TEST_F(VistaGrigliaProva, LaPrimaColonnaPostaPrimaDiMostrareResta)
{
    Stato().PrimaColonna.Poni(30);
    Mostra();
    EXPECT_EQ(Stato().PrimaColonna.Valore(), 30);
    EXPECT_EQ(PrimaVista(), 30);
}

TEST_F(VistaGrigliaProva, LeLarghezzeSonoQuelleDelComponente)
{
    Riempi(prove::DodiciCondizioni());
    Mostra();
    for (int j = 1; j <= 20; ++j) {
        EXPECT_EQ(vista.columnWidth(j), sistema.LarghezzaColonna(j)) << j;
    }
    sistema.VariaLarghezzaColonne(1);
    vista.aggiorna();
    for (int j = 1; j <= 2000; ++j) {
        ASSERT_EQ(vista.columnWidth(j), sistema.LarghezzaColonna(j)) << j;
    }
}

TEST_F(VistaGrigliaProva, AllargandoLaPrimaColonnaResta)
{
    Mostra();
    Stato().PrimaColonna.Poni(100);
    for (const int nVerso : {1, 1, -1, -1, -1}) {
        sistema.VariaLarghezzaColonne(nVerso);
        vista.aggiorna();
        EXPECT_EQ(PrimaVista(), 100);
        EXPECT_EQ(Stato().PrimaColonna.Valore(), 100);
        EXPECT_EQ(Stato().ColonneIntere.Valore(), vista.viewport()->width() / vista.columnWidth(100));
    }
}

TEST_F(VistaGrigliaProva, AllaFineAllargarePortaAncoraAllUltima)
{
    Mostra();
    sistema.SetColonnaGrid(2000);
    for (const int nVerso : {1, 1, -1, -1, -1}) {
        sistema.VariaLarghezzaColonne(nVerso);
        vista.aggiorna();
        QCoreApplication::processEvents();
        EXPECT_GE(PrimaVista(), 1990);
        EXPECT_LE(std::abs(PrimaVista() - Stato().PrimaColonna.Valore()), 1);
        Tasto(Qt::Key_Home);
        Tasto(Qt::Key_End, Qt::ControlModifier);
        const QRect posto = vista.visualRect(vista.currentIndex());
        EXPECT_LT(posto.right(), vista.viewport()->width());
        EXPECT_GE(posto.right(), vista.viewport()->width() - 2) << "senza vuoto dietro";
    }
}

TEST_F(VistaGrigliaProva, UnaCondizioneLargaADestraSiVedeTutta)
{
    Mostra();
    for (int j = 1; j <= 40; ++j) {
        sistema.GetGridCond().PoniAltezza(j, j < 20 ? eAltezza::link : eAltezza::comune);
    }
    vista.aggiorna();
    for (int j = 1; j <= 40; ++j) {
        sistema.SetColonnaGrid(j);
        const QRect posto = vista.visualRect(vista.model()->index(rigaParametri, j));
        EXPECT_GE(posto.left(), 0) << j;
        EXPECT_LE(posto.right(), vista.viewport()->width()) << j;
    }
}

TEST_F(VistaGrigliaProva, IlClicSceglieLaCondizione)
{
    Riempi(prove::DodiciCondizioni());
    Mostra();
    const QSignalSpy spia(&vista, &VistaGriglia::condizioneScelta);
    QTest::mouseClick(vista.viewport(), Qt::LeftButton, {}, Centro(rigaPunti, 1));
    EXPECT_EQ(Stato().Evidenziata.Valore(), 1) << "anche se era già quella corrente";
    QTest::mouseClick(vista.viewport(), Qt::LeftButton, {}, Centro(rigaPunti, 4));
    EXPECT_EQ(Stato().Evidenziata.Valore(), 4);
    EXPECT_EQ(sistema.GetGridCond().Corrente(), 4);
    EXPECT_EQ(Corrente(), Posto(rigaPunti, 4));
    EXPECT_GE(spia.count(), 2);
}

TEST_F(VistaGrigliaProva, IlClicSuUnaColonnaTagliataNonScorre)
{
    Mostra(vista.verticalHeader()->width() + 410);
    const int nTagliata = 3;
    const QPoint punto(vista.viewport()->width() - 5, 20);
    ASSERT_EQ(vista.columnAt(punto.x()), nTagliata);
    QTest::mouseClick(vista.viewport(), Qt::LeftButton, {}, punto);
    EXPECT_EQ(Stato().Evidenziata.Valore(), nTagliata);
    EXPECT_EQ(PrimaVista(), 1);
}

TEST_F(VistaGrigliaProva, LaTestataSceglieAncheLei)
{
    Riempi(prove::DodiciCondizioni());
    Mostra();
    QHeaderView* testata = vista.horizontalHeader();
    const QPoint punto(testata->sectionViewportPosition(3) + 5, 5);
    const QSignalSpy spia(&vista, &VistaGriglia::modificaChiesta);
    QTest::mouseClick(testata->viewport(), Qt::LeftButton, {}, punto);
    EXPECT_EQ(Stato().Evidenziata.Valore(), 3);
    EXPECT_EQ(Corrente().second, 3);
    QTest::mouseDClick(testata->viewport(), Qt::LeftButton, {}, punto);
    EXPECT_EQ(spia.count(), 1);
}

TEST_F(VistaGrigliaProva, LeFrecceCamminanoELaVistaLeSegue)
{
    Riempi(prove::DodiciCondizioni());
    Mostra();
    for (int j = 2; j <= 30; ++j) {
        Tasto(Qt::Key_Right);
        ASSERT_EQ(Stato().Evidenziata.Valore(), j);
        const QRect posto = vista.visualRect(vista.currentIndex());
        ASSERT_TRUE(posto.left() >= 0 && posto.right() < vista.viewport()->width()) << j;
    }
    for (int j = 29; j >= 1; --j) {
        Tasto(Qt::Key_Left);
        ASSERT_EQ(Stato().Evidenziata.Valore(), j);
        ASSERT_GE(vista.visualRect(vista.currentIndex()).left(), 0) << j;
    }
    EXPECT_EQ(Stato().PrimaColonna.Valore(), 1);
    Tasto(Qt::Key_Left);
    EXPECT_EQ(Corrente(), Posto(rigaParametri, 1));
    for (const int nRiga : {rigaPunti, rigaRecupero, rigaQuadro, rigaQuadro}) {
        Tasto(Qt::Key_Down);
        EXPECT_EQ(Corrente(), Posto(nRiga, 1));
    }
    for (int i = 0; i < 5; ++i) {
        Tasto(Qt::Key_Up);
    }
    EXPECT_EQ(Corrente(), Posto(rigaParametri, 1));
}

TEST_F(VistaGrigliaProva, InizioFineEPagine)
{
    Riempi(prove::DodiciCondizioni());
    Mostra(600);
    Tasto(Qt::Key_End);
    EXPECT_EQ(Corrente().second, 12);
    Tasto(Qt::Key_End);
    EXPECT_EQ(Corrente().second, 13) << "dove si inserisce";
    Tasto(Qt::Key_End, Qt::ControlModifier);
    EXPECT_EQ(Corrente().second, 2000);
    EXPECT_TRUE(Stato().IsVisibile(2000));
    Tasto(Qt::Key_Home);
    EXPECT_EQ(Corrente().second, 1);
    const int nPagina = Stato().ColonneIntere.Valore();
    Tasto(Qt::Key_PageDown);
    EXPECT_EQ(Corrente().second, 1 + nPagina);
    Tasto(Qt::Key_PageUp);
    EXPECT_EQ(Corrente().second, 1);
    Tasto(Qt::Key_D);
    EXPECT_EQ(Corrente().second, 8) << "Distanza Massima";
}

TEST_F(VistaGrigliaProva, ITastiChiedonoELaCondizioneEScelta)
{
    Riempi(prove::DodiciCondizioni());
    Mostra();
    QSignalSpy modifica(&vista, &VistaGriglia::modificaChiesta);
    const QSignalSpy elimina(&vista, &VistaGriglia::eliminaChiesta);
    const QSignalSpy inserisci(&vista, &VistaGriglia::inserisciChiesta);
    for (const Qt::Key nTasto : {Qt::Key_F2, Qt::Key_Return, Qt::Key_Enter}) {
        Tasto(nTasto);
        EXPECT_EQ(modifica.count(), 1);
        modifica.clear();
    }
    EXPECT_EQ(Stato().Evidenziata.Valore(), 1);
    Tasto(Qt::Key_Delete);
    Tasto(Qt::Key_Insert);
    EXPECT_EQ(elimina.count(), 1);
    EXPECT_EQ(inserisci.count(), 1);
    QTest::mouseDClick(vista.viewport(), Qt::LeftButton, {}, Centro(rigaPunti, 2));
    EXPECT_EQ(modifica.count(), 1);
    EXPECT_EQ(sistema.GetGridCond().Corrente(), 2);
}

TEST_F(VistaGrigliaProva, IlTabEsceDallaGriglia)
{
    QWidget finestra;
    auto* prima = new QPushButton("a", &finestra);
    vista.setParent(&finestra);
    auto* dopo = new QPushButton("b", &finestra);
    QWidget::setTabOrder(prima, &vista);
    QWidget::setTabOrder(&vista, dopo);
    finestra.show();
    finestra.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&finestra));
    vista.setFocus();
    QTest::keyClick(&vista, Qt::Key_Tab);
    EXPECT_TRUE(dopo->hasFocus());
    vista.setParent(nullptr);
}

TEST_F(VistaGrigliaProva, IlMenuNasceSullaCondizioneSceltaPrima)
{
    Riempi(prove::DodiciCondizioni());
    Mostra();
    int nScelta = 0;
    QPoint punto;
    QObject::connect(&vista, &QWidget::customContextMenuRequested, [&](const QPoint& p) {
        nScelta = Stato().Evidenziata.Valore();
        punto = p;
    });
    const QPoint centro = Centro(rigaPunti, 4);
    QContextMenuEvent mouse(QContextMenuEvent::Mouse, centro, vista.viewport()->mapToGlobal(centro));
    QApplication::sendEvent(vista.viewport(), &mouse);
    EXPECT_EQ(nScelta, 4);
    EXPECT_EQ(punto, centro);
    Tasto(Qt::Key_Left);
    QContextMenuEvent tasto(QContextMenuEvent::Keyboard, QPoint(), QPoint());
    QApplication::sendEvent(&vista, &tasto);
    EXPECT_EQ(nScelta, 3);
    EXPECT_EQ(punto, vista.visualRect(vista.currentIndex()).center());
}

TEST_F(VistaGrigliaProva, DipingeSoloQuelCheSiVede)
{
    RiempiTutta();
    DelegatoContato delegato;
    vista.setItemDelegate(&delegato);
    Mostra();
    delegato.nDipinte = 0;
    vista.viewport()->repaint();
    const int nMassime = 4 * (Stato().ColonneIntere.Valore() + 2);
    EXPECT_GT(delegato.nDipinte, 0);
    EXPECT_LE(delegato.nDipinte, nMassime);
    delegato.nDipinte = 0;
    sistema.GetGridCond().Riga(1500).sPunti = "1";
    vista.aggiorna();
    QCoreApplication::processEvents();
    EXPECT_LE(delegato.nDipinte, nMassime);
    vista.setItemDelegate(new DelegatoGriglia(&vista));
}

TEST_F(VistaGrigliaProva, DovePocoSpazioCeTuttoSiRaggiunge)
{
    Riempi({{"Ampiezza", prove::InGiu("Ampiezza"), "20-80", "-", " "}});
    Mostra(900, 900);
    const int nTesto = QFontMetrics(vista.modello().carattere(rigaParametri, 1)).height();
    EXPECT_GE(vista.rowHeight(rigaParametri), 15 * nTesto);
    EXPECT_EQ(vista.verticalScrollBar()->maximum(), 0);
    vista.resize(900, 350);
    QCoreApplication::processEvents();
    EXPECT_LT(vista.rowHeight(rigaParametri), 15 * nTesto);
    EXPECT_GE(vista.rowHeight(rigaParametri), 8 * nTesto);
    vista.resize(900, 200);
    QCoreApplication::processEvents();
    EXPECT_GE(vista.rowHeight(rigaParametri), 8 * nTesto);
    EXPECT_GT(vista.verticalScrollBar()->maximum(), 0);
    Tasto(Qt::Key_Down);
    Tasto(Qt::Key_Down);
    Tasto(Qt::Key_Down);
    EXPECT_TRUE(vista.viewport()->rect().contains(vista.visualRect(vista.currentIndex())));
}

TEST_F(VistaGrigliaProva, LeBarreVengonoDalConto)
{
    Riempi({{"Consecutivi", "Consecutivi", "0", "-", " "}});
    Pronostico(3, 1, 10);
    ContoVivo conto(sistema);
    vista.segui(conto);
    Mostra();
    conto.controlla();
    ASSERT_TRUE(QTest::qWaitFor([&] { return vista.modello().taglio(1).has_value(); }));
    EXPECT_DOUBLE_EQ(vista.modello().taglio(1)->nQuota, 64.0 / 120);
    EXPECT_TRUE(vista.modello().taglio(1)->bEsatto);
}

TEST_F(VistaGrigliaProva, LaBarraELungaQuantoTaglia)
{
    Riempi({{"Consecutivi", "Consecutivi", "0", "-", " "}});
    Mostra();
    ConteggioSistema conto;
    conto.aCondizioni = {{.nOk = 25, .nKo = 75, .nRec = 0, .nErrore = 0, .bEsatto = true}};
    vista.modello().poniConto(conto);
    QHeaderView* testata = vista.horizontalHeader();
    const QImage figura = testata->viewport()->grab().toImage();
    const QRect sezione(testata->sectionViewportPosition(1), 0, testata->sectionSize(1), testata->height());
    const QRect posto = static_cast<TestataGriglia*>(testata)->postoTaglio(sezione);
    int nPiene = 0;
    for (int nX = posto.left(); nX <= posto.right(); ++nX) {
        nPiene += figura.pixelColor(nX, posto.center().y()) == vista.palette().color(QPalette::Highlight);
    }
    EXPECT_NEAR(nPiene, 0.75 * sezione.width(), 4);
}

TEST_F(VistaGrigliaProva, LaRotellaScorreDiLatoDoveNonCeAltro)
{
    Mostra(900, 900);
    const QPointF centro = vista.viewport()->rect().center();
    QWheelEvent giro(centro, vista.viewport()->mapToGlobal(centro), {}, {0, -120}, Qt::NoButton, {},
                     Qt::NoScrollPhase, false);
    QApplication::sendEvent(vista.viewport(), &giro);
    EXPECT_GT(Stato().PrimaColonna.Valore(), 1);
}

TEST_F(VistaGrigliaProva, UnLettoreDiSchermoTrovaOgniCella)
{
    Riempi(prove::DodiciCondizioni());
    Mostra();
    QAccessibleInterface* interfaccia = QAccessible::queryAccessibleInterface(&vista);
    ASSERT_NE(interfaccia, nullptr);
    EXPECT_EQ(interfaccia->text(QAccessible::Name), "Condizioni");
    QAccessibleTableInterface* tabella = interfaccia->tableInterface();
    ASSERT_NE(tabella, nullptr);
    ASSERT_EQ(tabella->rowCount(), 6);
    for (int nRiga = 0; nRiga < 6; ++nRiga) {
        for (int j = 0; j <= 13; ++j) {
            QAccessibleInterface* cella = tabella->cellAt(nRiga, j);
            ASSERT_NE(cella, nullptr);
            EXPECT_EQ(cella->text(QAccessible::Name),
                      vista.model()->index(nRiga, j).data(Qt::AccessibleTextRole).toString());
        }
    }
}

} // namespace ordavel::qt
