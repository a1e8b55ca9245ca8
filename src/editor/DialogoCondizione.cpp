// DialogoCondizione.cpp - what all condition dialogs share.

#include "editor/DialogoCondizione.hpp"

#include "core/ModGestore.hpp"
#include "core/ModTesti.hpp"

namespace ordavel {

DialogoCondizione::DialogoCondizione(OspiteDialoghi& ospite, TipoCondizione tipo,
                                     std::string_view sTitoloDialogo)
    : DialogoConferma(ospite, TrovaTipo(tipo)->sDialogo, sTitoloDialogo), m_Tipo(tipo)
{}

void DialogoCondizione::MostraStatistica()
{
    Ospite().StatisticaSistema().MostraStatistica(
        TrovaTipo(m_Tipo)->nIdStatistica, static_cast<std::int16_t>(Ospite().GetIdCmbTipoGioco() + 1));
}

Condizione DialogoCondizione::GetParametri() const
{
    return CelleDaDialogo(m_Tipo, Valori());
}

void DialogoCondizione::SetPuntiSuFrm(std::string_view sParam)
{
    if (sParam.empty()) {
        return;
    }
    ConGestore(Ospite().Desktop(), "OrdavelSis.setPuntiSuFrm", [&] {
        if (Riempi(sParam)) {
            sTag = kTagRiempito;
        }
    });
}

std::vector<std::string_view> PezziParametri(std::string_view sParam, std::size_t nPezzi)
{
    std::vector<std::string_view> aPezzi = Dividi(sParam, "|");
    aPezzi.resize(nPezzi);
    return aPezzi;
}

std::vector<std::string_view> DueRighe(std::string_view sPezzo)
{
    auto aRighe = Dividi(sPezzo, kCrLf);
    if (aRighe.size() < 2) {
        Solleva(eErrore::indice);
    }
    return aRighe;
}

} // namespace ordavel
