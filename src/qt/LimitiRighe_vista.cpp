// LimitiRighe_vista.cpp - the rows of a run of conditions.

#include "qt/LimitiRighe_vista.hpp"

#include "qt/Disposizione.hpp"

#include <QComboBox>

namespace ordavel::qt {

namespace {

/// As wide as the greatest number, also where there are no conditions yet.
constexpr int kCifre = 4;

void AggiungiLimite(Legami& legami, Combo& combo, const QString& sEtichetta, const QString& sNome,
                    QFormLayout* modulo)
{
    auto* widget = AggiungiRiga(modulo, sEtichetta, sNome, new QComboBox);
    widget->setMinimumContentsLength(kCifre);
    legami.collega(combo, widget);
}

} // namespace

QFormLayout* NuoviLimiti(Legami& legami, LimitiRighe& dialogo)
{
    QFormLayout* modulo = NuovoModulo();
    AggiungiLimite(legami, dialogo.CmbDalla, "&Dalla N", "CmbDalla", modulo);
    AggiungiLimite(legami, dialogo.CmbAlla, "&Alla N", "CmbAlla", modulo);
    return modulo;
}

} // namespace ordavel::qt
