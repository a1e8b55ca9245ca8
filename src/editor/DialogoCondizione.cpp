// DialogoCondizione.cpp - what all condition dialogs share.

#include "editor/DialogoCondizione.hpp"

#include "core/ModGestore.hpp"
#include "core/ModTesti.hpp"

namespace ordavel {

DialogoCondizione::DialogoCondizione(OspiteDialoghi& ospite, TipoCondizione tipo,
                                     std::string_view sTitoloDialogo)
    : sTitolo(sTitoloDialogo), m_Ospite(ospite), m_Tipo(tipo)
{}

void DialogoCondizione::Premi(ePulsanteDialogo pulsante)
{
    switch (pulsante) {
    case ePulsanteDialogo::conferma:
        if (VerificaCoerenza()) {
            sTag = kTagConfermato;
            Visibile.Poni(false);
        }
        return;
    case ePulsanteDialogo::chiudi:
        sTag.clear();
        Visibile.Poni(false);
        return;
    case ePulsanteDialogo::statistica:
        m_Ospite.StatisticaSistema().MostraStatistica(
            TrovaTipo(m_Tipo)->nIdStatistica, static_cast<std::int16_t>(m_Ospite.GetIdCmbTipoGioco() + 1));
        return;
    }
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
    ConGestore(m_Ospite.Desktop(), "OrdavelSis.setPuntiSuFrm", [&] {
        if (Riempi(sParam)) {
            sTag = kTagRiempito;
        }
    });
}

bool DialogoCondizione::VerificaCoerenza()
{
    const std::string sMessaggio = MessaggioCoerenza();
    if (!sMessaggio.empty()) {
        m_Ospite.Desktop().MostraMessaggio(
            {.icona = eIcona::avviso, .sTitolo = {}, .sTesto = sMessaggio, .pulsanti = ePulsanti::ok});
    }
    return sMessaggio.empty();
}

void DialogoCondizione::LoadComboquadroRec()
{
    CmbRecupero.Aggiungi(" ");
    for (std::int16_t nGruppo = 1; nGruppo <= kGruppiRecupero; ++nGruppo) {
        CmbRecupero.Aggiungi(std::to_string(nGruppo));
    }
    CmbRecupero.Indice.Poni(0);
}

bool DialogoCondizione::ConGruppo() const
{
    return !TogliBlank(CmbRecupero.Testo()).empty();
}

std::vector<std::string_view> PezziParametri(std::string_view sParam, std::size_t nPezzi)
{
    std::vector<std::string_view> aPezzi = Dividi(sParam, "|");
    aPezzi.resize(nPezzi);
    return aPezzi;
}

} // namespace ordavel
