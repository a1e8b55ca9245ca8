// F_PuntiSu_vista.hpp - the window of the thirty common condition dialogs: what a row of their table asks for.

#pragma once

#include "editor/F_PuntiSu.hpp"
#include "qt/VistaDialogo.hpp"

#include <array>

class QComboBox;
class QFormLayout;
class QGroupBox;
class QLayout;

namespace ordavel::qt {

class F_PuntiSuVista : public VistaDialogo {
    Q_OBJECT

public:
    F_PuntiSuVista(F_PuntiSu& dialogo, PiattaformaQt& piattaforma, QWidget* padre);

private:
    void AggiungiParametro(QBoxLayout* sotto);
    void AggiungiCombo(QBoxLayout* sotto, const QString& sEtichetta, const QString& sNome);
    [[nodiscard]] QLayout* Posizioni();
    void AggiungiIntervalli(QBoxLayout* sotto);
    [[nodiscard]] QGroupBox* RiquadroIntervallo(const QString& sTitolo);
    [[nodiscard]] QGroupBox* RiquadroRecupero(const QString& sTitolo);
    QLineEdit* NuovoEstremo(CasellaTesto& casella, const QString& sNome, const QString& sLetto);
    [[nodiscard]] QLayout* ConLimite(QLineEdit* estremo, Etichetta& limite, const QString& sNome);

    F_PuntiSu& m_Logica;
};

} // namespace ordavel::qt
