// DialogoLista.cpp - a condition dialog that states its points as boxes.

#include "editor/DialogoLista.hpp"

namespace ordavel {

DialogoLista::DialogoLista(OspiteDialoghi& ospite, TipoCondizione tipo, std::string_view sTitoloDialogo,
                           std::int16_t nPrimo)
    : DialogoCondizione(ospite, tipo, sTitoloDialogo),
      ChkPunti(nPrimo),
      ChkRecupero(nPrimo),
      m_Esclusione(ChkPunti, ChkRecupero, CmbRecupero)
{
    LoadComboquadroRec(CmbRecupero);
    CmbRecupero.Indice.AlCambio([this] { AbilitaChkRecupero(); });
}

void DialogoLista::LeggiPunti(const GrigliaCondizioni& griglia)
{
    const Condizione& celle = griglia.Riga(griglia.Corrente());
    LeggiParametro(celle.sParametri);
    SegnaLista(ChkPunti, celle.sPunti, "-");
    SegnaLista(ChkRecupero, celle.sRecupero, "-");
    SelezionaCombo(celle.sQuadro, CmbRecupero);
}

ValoriDialogo DialogoLista::Valori() const
{
    ValoriDialogo valori;
    valori.aPunti = ChkPunti.Flag(UltimoValore());
    valori.aRecupero = ChkRecupero.Flag(UltimoValore());
    valori.sQuadro = CmbRecupero.Testo();
    return valori;
}

std::string DialogoLista::MessaggioCoerenza() const
{
    std::string sMessaggio;
    if (!ChkPunti.Qualcuna()) {
        sMessaggio = "Impostare i punti da realizzare";
    }
    if (ConGruppo(CmbRecupero) && !ChkRecupero.Qualcuna()) {
        sMessaggio = "Impostare i punti di recupero";
    }
    return sMessaggio;
}

void DialogoLista::RiempiValori(std::string_view sPunti, std::string_view sRecupero)
{
    SegnaLista(ChkPunti, sPunti, ",");
    if (!sRecupero.empty()) {
        SegnaLista(ChkRecupero, sRecupero, ",");
        CmbRecupero.Indice.Poni(1);
    }
}

} // namespace ordavel
