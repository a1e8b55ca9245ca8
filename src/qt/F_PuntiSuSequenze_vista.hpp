// F_PuntiSuSequenze_vista.hpp - the window of "Punti su sequenze": a pattern by its keys, places and chain lengths.

#pragma once

#include "editor/F_PuntiSuSequenze.hpp"
#include "qt/VistaDialogo.hpp"

#include <vector>

class QFormLayout;

namespace ordavel::qt {

class F_PuntiSuSequenzeVista : public VistaDialogo {
    Q_OBJECT

public:
    F_PuntiSuSequenzeVista(F_PuntiSuSequenze& dialogo, PiattaformaQt& piattaforma, QWidget* padre);

private:
    void AggiungiSchema(F_PuntiSuSequenze& dialogo, QFormLayout* modulo);
    [[nodiscard]] QBoxLayout* Tasti(F_PuntiSuSequenze& dialogo);
    [[nodiscard]] QWidget* Consecutivita(SerieSpunte& serie, const QString& sNome, const QString& sLetto);

    std::vector<QPushButton*> m_aTasti;
};

} // namespace ordavel::qt
