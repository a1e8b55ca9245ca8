// Dialogo.cpp - what every dialog has for a desktop.

#include "ordavel/Dialogo.hpp"

namespace ordavel {

Dialogo::Dialogo(std::string_view sNomeDialogo, std::string_view sTitoloDialogo)
    : sNome(sNomeDialogo), sTitolo(sTitoloDialogo)
{}

Dialogo::~Dialogo()
{
    if (m_AlTermine) {
        m_AlTermine();
    }
}

void Dialogo::Mostra()
{
    Visibile.Poni(true);
    AllaMostra();
}

void Dialogo::Nascondi(std::string_view sTagNuovo)
{
    sTag = sTagNuovo;
    Visibile.Poni(false);
}

} // namespace ordavel
