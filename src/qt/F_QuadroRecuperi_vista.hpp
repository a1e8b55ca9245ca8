// F_QuadroRecuperi_vista.hpp - the window of the recovery board.

#pragma once

#include "editor/F_QuadroRecuperi.hpp"
#include "qt/VistaDialogo.hpp"

class QGroupBox;

namespace ordavel::qt {

class F_QuadroRecuperiVista : public VistaDialogo {
    Q_OBJECT

public:
    F_QuadroRecuperiVista(F_QuadroRecuperi& dialogo, PiattaformaQt& piattaforma, QWidget* padre);

private:
    /// Ten groups under their headings.
    QGroupBox* NuovoBlocco(F_QuadroRecuperi& dialogo, std::int32_t nPrimo);
};

} // namespace ordavel::qt
