// F_Progress_vista.hpp - the window of the progress of a text export.

#pragma once

#include "controllo/F_Progress.hpp"
#include "qt/VistaDialogo.hpp"

namespace ordavel::qt {

class F_ProgressVista : public VistaDialogo {
    Q_OBJECT

public:
    F_ProgressVista(F_Progress& dialogo, PiattaformaQt& piattaforma, QWidget* padre);

    /// Esc and the window's own button are the cancel button: it asks, and the export goes on until it has the answer.
    void reject() override;

protected:
    void closeEvent(QCloseEvent* evento) override;

private:
    void Annulla();

    F_Progress& m_Progress; ///< not to be touched once it is no more
};

} // namespace ordavel::qt
