// F_VisualizzaColonne_vista_prova.cpp - the columns of a file of any size, 21 at a time.

#include "qt/F_VisualizzaColonne_vista.hpp"

#include "qt/SistemaQtProva.hpp"

#include <QSlider>
#include <QTableView>
#include <QWheelEvent>

#include <filesystem>

namespace ordavel::qt {

namespace {

using prove::Trova;

class VisualizzaColonneVista : public prove::SistemaQtProva {
protected:
    void NellaFinestra(const std::function<void(QWidget&, QSlider&, QTableView&)>& azione)
    {
        Nella<F_VisualizzaColonneVista>("VisualizzaColonne", [&](F_VisualizzaColonneVista& vista) {
            azione(vista, Trova<QSlider>(vista, "Slider1"), Trova<QTableView>(vista, "ListView1"));
        });
    }

    /// A working file of so many columns, all of which are 1.
    void Colonne(std::uintmax_t nColonne)
    {
        ordavel::prove::ScriviFile(sistema.FileColonne(), "\x01");
        std::filesystem::resize_file(sistema.FileColonne(), nColonne * 20);
    }
};

QString Cella(const QTableView& lista, int nRiga, int nColonna)
{
    return lista.model()->index(nRiga, nColonna).data().toString();
}

void Gira(QWidget& widget, int nVerso)
{
    const QPointF qui = widget.rect().center();
    QWheelEvent evento(qui, widget.mapToGlobal(qui), {}, {0, 120 * nVerso}, Qt::NoButton, Qt::NoModifier,
                       Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&widget, &evento);
}

} // namespace

TEST_F(VisualizzaColonneVista, TastiERotellaMuovonoIlCursore)
{
    Condizioni(1);
    Sviluppa(9);
    NellaFinestra([](QWidget& vista, QSlider& cursore, QTableView& lista) {
        prove::ExpectNominati(vista);
        EXPECT_EQ(cursore.maximum(), 126);
        EXPECT_EQ(lista.model()->rowCount(), 21);
        EXPECT_EQ(Cella(lista, 0, 1), "01 02 03 04 05");
        for (QWidget* dove : {static_cast<QWidget*>(&cursore), static_cast<QWidget*>(&lista)}) {
            QTest::keyClick(dove, Qt::Key_Home);
            EXPECT_EQ(cursore.value(), 1);
            QTest::keyClick(dove, Qt::Key_Down);
            EXPECT_EQ(cursore.value(), 2);
            EXPECT_EQ(Cella(lista, 0, 0), "2");
            QTest::keyClick(dove, Qt::Key_PageDown);
            EXPECT_EQ(cursore.value(), 23);
            QTest::keyClick(dove, Qt::Key_PageUp);
            QTest::keyClick(dove, Qt::Key_Up);
            EXPECT_EQ(cursore.value(), 1);
        }
        Gira(*lista.viewport(), -1);
        EXPECT_GT(cursore.value(), 1);
        EXPECT_EQ(Cella(lista, 0, 0), QString::number(cursore.value()));
        Gira(cursore, 1);
        EXPECT_EQ(cursore.value(), 1);
    });
}

TEST_F(VisualizzaColonneVista, InFondoLeRigheSonoMeno)
{
    Condizioni(1);
    Sviluppa(9);
    NellaFinestra([](QWidget& vista, QSlider& cursore, QTableView& lista) {
        QTest::keyClick(&cursore, Qt::Key_End);
        EXPECT_EQ(lista.model()->rowCount(), 1);
        EXPECT_EQ(Cella(lista, 0, 0), "126");
        EXPECT_EQ(Cella(lista, 0, 1), "05 06 07 08 09");
        QTest::keyClick(&cursore, Qt::Key_PageUp);
        EXPECT_EQ(lista.model()->rowCount(), 21);
        prove::Clicca(vista, "Chiudi");
        EXPECT_FALSE(vista.isVisible());
    });
}

TEST_F(VisualizzaColonneVista, TutteLeRigheStannoNellaFinestra)
{
    Condizioni(1);
    Sviluppa(9);
    NellaFinestra([](QWidget&, QSlider&, QTableView& lista) {
        EXPECT_GE(lista.viewport()->height(), lista.visualRect(lista.model()->index(20, 0)).bottom());
    });
}

TEST_F(VisualizzaColonneVista, SenzaFileNonSiMuoveNulla)
{
    NellaFinestra([](QWidget& vista, QSlider& cursore, QTableView& lista) {
        EXPECT_FALSE(cursore.isEnabled());
        EXPECT_EQ(lista.model()->rowCount(), 0);
        QTest::keyClick(&vista, Qt::Key_Escape);
        EXPECT_FALSE(vista.isVisible());
    });
}

TEST_F(VisualizzaColonneVista, DieciMilioniSiSfoglianoSubito)
{
    Colonne(10'000'000);
    QElapsedTimer tempo;
    tempo.start();
    NellaFinestra([](QWidget&, QSlider& cursore, QTableView& lista) {
        EXPECT_EQ(cursore.maximum(), 10'000'000);
        for (int i = 1; i <= 100; ++i) {
            cursore.setValue(i * 99'999);
        }
        EXPECT_EQ(cursore.value(), 9'999'900);
        EXPECT_LE(lista.model()->rowCount(), 21);
    });
    EXPECT_LT(tempo.elapsed(), 5000) << "cento pagine";
}

} // namespace ordavel::qt
