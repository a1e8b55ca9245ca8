// F_InsColonne_vista.hpp - the window that takes columns from a text.

#pragma once

#include "editor/F_InsColonne.hpp"
#include "qt/VistaDialogo.hpp"

class QBoxLayout;
class QTableView;

namespace ordavel::qt {

class F_InsColonneVista : public VistaDialogo {
    Q_OBJECT

public:
    F_InsColonneVista(F_InsColonne& dialogo, PiattaformaQt& piattaforma, QWidget* padre);

private:
    void AggiungiBarra(F_InsColonne& dialogo, QBoxLayout* sotto);
    void AggiungiPannello(F_InsColonne& dialogo, QBoxLayout* sotto);
    void AggiungiElenco(F_InsColonne& dialogo, QBoxLayout* sotto);
};

} // namespace ordavel::qt
