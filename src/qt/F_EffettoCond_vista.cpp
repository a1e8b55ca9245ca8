// F_EffettoCond_vista.cpp - the window of what each condition did.

#include "qt/F_EffettoCond_vista.hpp"

#include "qt/ModelloElenco.hpp"

#include <QBoxLayout>
#include <QTableView>

namespace ordavel::qt {

F_EffettoCondVista::F_EffettoCondVista(F_EffettoCond& dialogo, PiattaformaQt& piattaforma, QWidget* padre)
    : VistaSoloChiudi(dialogo, piattaforma, padre)
{
    auto* tutto = new QVBoxLayout(this);
    tutto->addWidget(NuovoElenco(
        legami(), dialogo.ListView1,
        {.sNome = "ListView1",
         .sLetto = "Effetto delle condizioni",
         .aDestra = {0, 2, 3, 4, 5, 6, 7},
         .nElastica = 1,
         .alDoppioClic = [&dialogo](int nRiga) { dialogo.DblClick(static_cast<std::size_t>(nRiga)); }},
        this));
    AggiungiChiudi(dialogo, tutto);
    const int nSegno = fontMetrics().averageCharWidth();
    resize(120 * nSegno, 60 * nSegno);
}

} // namespace ordavel::qt
