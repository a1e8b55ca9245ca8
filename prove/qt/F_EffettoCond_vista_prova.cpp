// F_EffettoCond_vista_prova.cpp - what each condition did, and the way to it.

#include "qt/F_EffettoCond_vista.hpp"

#include "qt/SistemaQtProva.hpp"

#include <QTableView>

namespace ordavel::qt {

namespace {

using prove::Trova;

class EffettoCondVista : public prove::SistemaQtProva {
protected:
    EffettoCondVista()
    {
        Condizioni(3);
        Sviluppa(7);
        sistema.SetColonnaGrid(1);
    }

    void NellaFinestra(const std::function<void(F_EffettoCondVista&, QTableView&)>& azione)
    {
        Nella<F_EffettoCondVista>("EffettoCondizioni", [&](F_EffettoCondVista& vista) {
            azione(vista, Trova<QTableView>(vista, "ListView1"));
        });
    }
};

} // namespace

TEST_F(EffettoCondVista, OgniCondizioneHaLaSuaRiga)
{
    NellaFinestra([](F_EffettoCondVista& vista, QTableView& lista) {
        prove::ExpectNominati(vista);
        ASSERT_EQ(lista.model()->rowCount(), 3);
        EXPECT_EQ(lista.model()->index(2, 0).data().toString(), "3");
        EXPECT_EQ(lista.model()->index(2, 1).data().toString(), "Ponte");
        EXPECT_EQ(lista.model()->index(2, 2).data().toString(), "21");
        EXPECT_EQ(lista.model()->index(2, 3).data().toString(), "100");
        EXPECT_TRUE(lista.currentIndex().isValid());
    });
}

TEST_F(EffettoCondVista, IlDoppioClicSceglieLaCondizione)
{
    NellaFinestra([this](F_EffettoCondVista& vista, QTableView& lista) {
        const QPoint qui = lista.visualRect(lista.model()->index(1, 1)).center();
        QTest::mouseClick(lista.viewport(), Qt::LeftButton, {}, qui);
        EXPECT_EQ(Griglia().Corrente(), 1);
        QTest::mouseDClick(lista.viewport(), Qt::LeftButton, {}, qui);
        EXPECT_EQ(Griglia().Corrente(), 2);
        EXPECT_TRUE(vista.isVisible());
    });
}

TEST_F(EffettoCondVista, InvioFaLoStessoEdEscChiude)
{
    NellaFinestra([this](F_EffettoCondVista& vista, QTableView& lista) {
        QTest::keyClick(&lista, Qt::Key_Down);
        QTest::keyClick(&lista, Qt::Key_Down);
        QTest::keyClick(&lista, Qt::Key_Return);
        EXPECT_EQ(Griglia().Corrente(), 3);
        EXPECT_TRUE(vista.isVisible());
        QTest::keyClick(&vista, Qt::Key_Escape);
        EXPECT_FALSE(vista.isVisible());
    });
}

TEST_F(EffettoCondVista, IlPulsanteChiude)
{
    NellaFinestra([](F_EffettoCondVista& vista, QTableView&) {
        prove::Clicca(vista, "Chiudi");
        EXPECT_FALSE(vista.isVisible());
    });
}

} // namespace ordavel::qt
