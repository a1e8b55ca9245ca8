// DialogoConferma.cpp - the two buttons that every dialog has.

#include "editor/DialogoConferma.hpp"

namespace ordavel {

DialogoConferma::DialogoConferma(OspiteDialoghi& ospite, std::string_view sNomeDialogo,
                                 std::string_view sTitoloDialogo)
    : Dialogo(sNomeDialogo, sTitoloDialogo), m_Ospite(ospite)
{}

void DialogoConferma::Premi(ePulsanteDialogo pulsante)
{
    switch (pulsante) {
    case ePulsanteDialogo::conferma:
        if (VerificaCoerenza()) {
            Conferma();
        }
        return;
    case ePulsanteDialogo::chiudi:
        return Nascondi({});
    case ePulsanteDialogo::statistica:
        return MostraStatistica();
    }
}

bool DialogoConferma::VerificaCoerenza()
{
    const std::string sMessaggio = MessaggioCoerenza();
    if (!sMessaggio.empty()) {
        m_Ospite.Desktop().MostraMessaggio(
            {.icona = eIcona::avviso, .sTitolo = {}, .sTesto = sMessaggio, .pulsanti = ePulsanti::ok});
    }
    return sMessaggio.empty();
}

} // namespace ordavel
