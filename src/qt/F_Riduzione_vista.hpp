// F_Riduzione_vista.hpp - the window of the reduction of a file.

#pragma once

#include "analisi/F_Riduzione.hpp"
#include "qt/VistaDialogo.hpp"

#include <cstddef>

class QBoxLayout;
class QFormLayout;
class QPushButton;

namespace ordavel::qt {

class F_RiduzioneVista : public VistaDialogo {
    Q_OBJECT

public:
    F_RiduzioneVista(F_Riduzione& dialogo, PiattaformaQt& piattaforma, QWidget* padre);

private:
    void AggiungiFile(F_Riduzione& dialogo, QFormLayout* modulo);
    void AggiungiScelte(F_Riduzione& dialogo, QFormLayout* modulo);
    void AggiungiAvanzamento(F_Riduzione& dialogo, QBoxLayout* sotto);
    void AggiungiComandi(F_Riduzione& dialogo, QBoxLayout* sotto);
    /// A button whose caption follows its state.
    /// Takes    nMnemonica   the letter of the caption that stands for it
    QPushButton* NuovoComando(F_Riduzione& dialogo, std::size_t nIndice, qsizetype nMnemonica);
};

} // namespace ordavel::qt
