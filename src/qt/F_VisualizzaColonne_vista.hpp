// F_VisualizzaColonne_vista.hpp - the window of the columns, 21 at a time.

#pragma once

#include "controllo/F_VisualizzaColonne.hpp"
#include "qt/VistaSoloChiudi.hpp"

class QSlider;
class QTableView;

namespace ordavel::qt {

class F_VisualizzaColonneVista : public VistaSoloChiudi {
    Q_OBJECT

public:
    F_VisualizzaColonneVista(F_VisualizzaColonne& dialogo, PiattaformaQt& piattaforma, QWidget* padre);

    /// Keys and wheel over the list move the slider.
    bool eventFilter(QObject* oggetto, QEvent* evento) override;

private:
    QSlider* m_Cursore;
    QTableView* m_Lista;
};

} // namespace ordavel::qt
