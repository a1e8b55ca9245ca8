// AnteprimaCondizioni_prova.cpp - conditions on their side, to be looked at.

#include "qt/AnteprimaCondizioni.hpp"

#include <QAbstractItemModelTester>

namespace ordavel::qt {

namespace {

GrigliaCondizioni DueCondizioni()
{
    GrigliaCondizioni griglia;
    griglia.Riga(1) = {"Ponte", "P\r\no", "1-2", "3", "4"};
    griglia.Riga(2) = {"Peso", "Caselle :\r\n1-2", "100-150", "-", " "};
    griglia.Riga(4) = {"Resto", "", "", "", ""};
    return griglia;
}

} // namespace

TEST(AnteprimaCondizioniProva, UnaColonnaPerCondizioneFinoAllaVuota)
{
    AnteprimaCondizioni anteprima;
    const QAbstractItemModelTester arbitro(anteprima.model(),
                                           QAbstractItemModelTester::FailureReportingMode::Fatal);
    anteprima.Mostra(DueCondizioni());
    const QAbstractItemModel& modello = *anteprima.model();
    ASSERT_EQ(modello.columnCount(), 2);
    ASSERT_EQ(modello.rowCount(), 5);
    EXPECT_EQ(modello.headerData(0, Qt::Vertical).toString(), "Condizione");
    EXPECT_EQ(modello.headerData(4, Qt::Vertical).toString(), "Quadro Rec.");
    EXPECT_EQ(modello.headerData(1, Qt::Horizontal).toInt(), 2);
    EXPECT_EQ(modello.index(1, 0).data().toString(), "P\no");
    EXPECT_EQ(modello.index(4, 0).data().toString(), "4");
}

TEST(AnteprimaCondizioniProva, ChiNonVedeSenteDiCheCondizioneEIlTesto)
{
    AnteprimaCondizioni anteprima;
    anteprima.Mostra(DueCondizioni());
    EXPECT_EQ(anteprima.model()->index(1, 1).data(Qt::AccessibleTextRole).toString(),
              "2, Parametri: Caselle : 1-2");
}

TEST(AnteprimaCondizioniProva, SiRifaSoloQuandoLaGrigliaCambia)
{
    AnteprimaCondizioni anteprima;
    GrigliaCondizioni griglia = DueCondizioni();
    anteprima.Mostra(griglia);
    const QSignalSpy spia(anteprima.model(), &QAbstractItemModel::modelReset);
    anteprima.Mostra(griglia);
    EXPECT_EQ(spia.count(), 0);
    griglia.Svuota();
    anteprima.Mostra(griglia);
    EXPECT_EQ(spia.count(), 1);
    EXPECT_EQ(anteprima.model()->columnCount(), 0);
    EXPECT_FALSE(anteprima.currentIndex().isValid());
}

TEST(AnteprimaCondizioniProva, LeRigheHannoPostoPerIParametri)
{
    AnteprimaCondizioni anteprima;
    anteprima.Mostra(DueCondizioni());
    EXPECT_GE(anteprima.rowHeight(1), 15 * anteprima.fontMetrics().height() / 2);
    EXPECT_GE(anteprima.sizeHint().height(), anteprima.rowHeight(1) + 4 * anteprima.rowHeight(2));
}

} // namespace ordavel::qt
