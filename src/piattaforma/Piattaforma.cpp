// Piattaforma.cpp - the form of a failure box.

#include "ordavel/Piattaforma.hpp"

namespace ordavel {

void Piattaforma::MostraFallimento(std::string_view sOrigine, const Errore& errore)
{
    MostraMessaggio({.icona = eIcona::critico,
                     .sTitolo = std::string(sOrigine),
                     .sTesto = TestoFallimento(errore),
                     .pulsanti = ePulsanti::ok});
}

} // namespace ordavel
