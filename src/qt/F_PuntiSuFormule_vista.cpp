// F_PuntiSuFormule_vista.cpp - the window of "Punti su formule".

#include "qt/F_PuntiSuFormule_vista.hpp"

#include "qt/Disposizione.hpp"
#include "qt/VistaSpunte.hpp"

#include <QBoxLayout>
#include <QComboBox>
#include <QGroupBox>

namespace ordavel::qt {

namespace {

using Etichette = std::array<const char*, 3>;

// The same words on both sides, with other keys.
constexpr Etichette kPunti{"Da &1 a 30", "Da &31 a 60", "Da &61 a 90"};
constexpr Etichette kRecupero{"&Da 1 a 30", "D&a 31 a 60", "Da 61 a &90"};

void AggiungiTerna(Legami& legami, QFormLayout* modulo, std::array<Combo, 3>& aCombo,
                   const Etichette& aEtichette, const QString& sNome, const QString& sDietro)
{
    for (std::size_t i = 0; i < aCombo.size(); ++i) {
        const QString sEtichetta = aEtichette[i];
        const QString sNomeCombo = sNome + QString::number(i + 1);
        legami.collega(aCombo[i], AggiungiRiga(modulo, sEtichetta, sNomeCombo,
                                               SenzaMnemonica(sEtichetta) + sDietro, new QComboBox));
    }
}

} // namespace

F_PuntiSuFormuleVista::F_PuntiSuFormuleVista(F_PuntiSuFormule& dialogo, PiattaformaQt& piattaforma,
                                             QWidget* padre)
    : VistaDialogo(dialogo, piattaforma, padre)
{
    QFormLayout* punti = NuovoModulo();
    AggiungiTerna(legami(), punti, dialogo.CmbFormula, kPunti, "CmbFormula", {});
    QFormLayout* recupero = NuovoModulo();
    AggiungiQuadroRec(legami(), dialogo.CmbRecupero, recupero);
    AggiungiTerna(legami(), recupero, dialogo.CmbFormulaR, kRecupero, "CmbFormulaR", ", recupero");
    auto* tutto = new QVBoxLayout(this);
    tutto->addLayout(Affianca({NuovoRiquadro("Punti", punti), NuovoRiquadro("Recupero", recupero)}));
    AggiungiPulsanti(dialogo, tutto, true);
}

} // namespace ordavel::qt
