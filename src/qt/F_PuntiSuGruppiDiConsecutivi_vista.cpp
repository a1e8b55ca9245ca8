// F_PuntiSuGruppiDiConsecutivi_vista.cpp - the window of "Punti su gruppi di consecutivi".

#include "qt/F_PuntiSuGruppiDiConsecutivi_vista.hpp"

#include "qt/Disposizione.hpp"
#include "qt/VistaSpunte.hpp"

#include <QBoxLayout>
#include <QComboBox>

namespace ordavel::qt {

F_PuntiSuGruppiDiConsecutiviVista::F_PuntiSuGruppiDiConsecutiviVista(F_PuntiSuGruppiDiConsecutivi& dialogo,
                                                                     PiattaformaQt& piattaforma,
                                                                     QWidget* padre)
    : VistaDialogo(dialogo, piattaforma, padre)
{
    auto* tutto = new QVBoxLayout(this);
    QFormLayout* modulo = NuovoModulo();
    tutto->addLayout(modulo);
    legami().collega(dialogo.CmbPasso, AggiungiRiga(modulo, "&Passo", "CmbPasso", new QComboBox));
    legami().collega(dialogo.CmbLenGruppo,
                     AggiungiRiga(modulo, "Quantità numeri sin&golo gruppo", "CmbLenGruppo", new QComboBox));
    AggiungiPuntiERecupero(legami(), dialogo, tutto);
    AggiungiPulsanti(dialogo, tutto, true);
}

} // namespace ordavel::qt
