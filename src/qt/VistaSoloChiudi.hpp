// VistaSoloChiudi.hpp - a window that only shows: its one button closes it.

#pragma once

#include "qt/VistaDialogo.hpp"

namespace ordavel::qt {

class VistaSoloChiudi : public VistaDialogo {
    Q_OBJECT

public:
    using VistaDialogo::VistaDialogo;

protected:
    /// Adds the button "CHIUDI" below everything.
    void AggiungiChiudi(DialogoConferma& dialogo, QBoxLayout* sotto);
};

} // namespace ordavel::qt
