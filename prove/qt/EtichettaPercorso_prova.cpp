// EtichettaPercorso_prova.cpp - a long path does not make a window wide, and is not lost.

#include "qt/EtichettaPercorso.hpp"

#include <QHelpEvent>
#include <QToolTip>

namespace ordavel::qt {

TEST(EtichettaPercorsoProva, UnPercorsoLungoNonAllargaLaFinestra)
{
    EtichettaPercorso etichetta;
    const QSize corta = etichetta.minimumSizeHint();
    etichetta.setText("/una/cartella" + QString(500, 'x') + "/colonne.col");
    EXPECT_EQ(etichetta.minimumSizeHint(), corta);
    EXPECT_EQ(etichetta.text().size(), 525) << "il testo resta intero";
    EXPECT_LT(etichetta.sizeHint().width(), 1000);
}

TEST(EtichettaPercorsoProva, IlSuggerimentoLoDiceIntero)
{
    EtichettaPercorso etichetta;
    etichetta.setText("/una/cartella/colonne.col");
    etichetta.show();
    QHelpEvent evento(QEvent::ToolTip, {1, 1}, etichetta.mapToGlobal(QPoint(1, 1)));
    QCoreApplication::sendEvent(&etichetta, &evento);
    EXPECT_EQ(QToolTip::text(), "/una/cartella/colonne.col");
    QToolTip::hideText();
}

} // namespace ordavel::qt
