// F_EffettoCond_vista.hpp - the window of what each condition did.

#pragma once

#include "analisi/F_EffettoCond.hpp"
#include "qt/VistaSoloChiudi.hpp"

namespace ordavel::qt {

class F_EffettoCondVista : public VistaSoloChiudi {
    Q_OBJECT

public:
    F_EffettoCondVista(F_EffettoCond& dialogo, PiattaformaQt& piattaforma, QWidget* padre);
};

} // namespace ordavel::qt
