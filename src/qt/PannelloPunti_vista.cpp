// PannelloPunti_vista.cpp - the boxes of a panel of points.

#include "qt/PannelloPunti_vista.hpp"

#include "qt/Disposizione.hpp"
#include "qt/VistaSpunte.hpp"

#include <QBoxLayout>
#include <QComboBox>
#include <QFormLayout>
#include <QGroupBox>

namespace ordavel::qt {

QBoxLayout* NuovoPannelloPunti(Legami& legami, PannelloPunti& pannello)
{
    auto* sinistra = new QVBoxLayout;
    sinistra->addWidget(new VistaSpunte(legami, pannello.ChkPunti, "ChkPunti", "Punti"));
    sinistra->addStretch();
    auto* destra = new QVBoxLayout;
    QFormLayout* modulo = NuovoModulo();
    destra->addLayout(modulo);
    AggiungiQuadroRec(legami, pannello.CmbRecupero, modulo);
    destra->addWidget(new VistaSpunte(legami, pannello.ChkRecupero, "ChkRecupero", "Recupero"));
    destra->addStretch();
    return Affianca({NuovoRiquadro("Punti", sinistra), NuovoRiquadro("Recupero", destra)});
}

} // namespace ordavel::qt
