// F_Statistica_vista.hpp - the window of a statistic: chart, latest draws, choices.

#pragma once

#include "analisi/F_Statistica.hpp"
#include "qt/VistaDialogo.hpp"

class QComboBox;
class QFormLayout;
class QLayout;
class QTreeWidget;

namespace ordavel::qt {

class GraficoBarre;

class F_StatisticaVista : public VistaDialogo {
    Q_OBJECT

public:
    F_StatisticaVista(F_Statistica& dialogo, PiattaformaQt& piattaforma, QWidget* padre);

private:
    [[nodiscard]] QLayout* Scelte(F_Statistica& dialogo);
    [[nodiscard]] QWidget* Ultime(F_Statistica& dialogo);
    [[nodiscard]] QLayout* Riassunto(F_Statistica& dialogo);
    void AggiungiCombo(QFormLayout* sotto, const QString& sNome, const QString& sEtichetta, Combo& combo);
    void MostraEsito(const F_Statistica& dialogo);

    GraficoBarre* m_Grafico;
    QTreeWidget* m_Ultime;
    QLabel* m_Barra; ///< the highlighted bar in words
};

} // namespace ordavel::qt
