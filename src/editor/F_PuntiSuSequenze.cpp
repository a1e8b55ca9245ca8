// F_PuntiSuSequenze.cpp - "Punti su sequenze".

#include "editor/F_PuntiSuSequenze.hpp"

#include "condizioni/ModParole.hpp"
#include "core/ModNumeri.hpp"
#include "core/ModTesti.hpp"

#include <array>

namespace ordavel {

namespace {

constexpr std::array<std::string_view, 3> kTasti{"P", "D", "CLEAR"};

/// What stands between a label and the next one, or the end, without blanks and line breaks around it.
std::string Tratto(std::string_view sCella, std::string_view sDa, std::string_view sA)
{
    const std::string_view sDietro = Dietro(sCella, sDa);
    const std::string sTratto = Sostituisci(sDietro.substr(0, sDietro.find(sA)), kCrLf, "");
    return std::string(TogliBlank(sTratto));
}

} // namespace

F_PuntiSuSequenze::F_PuntiSuSequenze(OspiteDialoghi& ospite)
    : DialogoLista(ospite, TipoCondizione::sequenze, "Punti su sequenze", 0),
      m_EsclusioneConsec(ChkConsec, ChkConsecR, CmbRecupero)
{
    LoadChk();
    LabSequenza.Testo.AlCambio([this] {
        if (!m_bInLettura) {
            LoadChk();
        }
    });
    CmbPasso.AggiungiNumeri(1, ospite.classe() - 1);
    CmbPasso.SelezionaPrima();
}

void F_PuntiSuSequenze::Command1(std::int32_t nIndice)
{
    if (nIndice < 0 || static_cast<std::size_t>(nIndice) >= kTasti.size()) {
        Solleva(eErrore::indice);
    }
    const std::string_view sTasto = kTasti[static_cast<std::size_t>(nIndice)];
    LabSequenza.Testo.Poni(sTasto == "CLEAR" ? std::string()
                                             : LabSequenza.Testo.Valore() + std::string(sTasto));
}

void F_PuntiSuSequenze::LoadChk()
{
    // The places where the pattern can begin.
    const auto nSchema = static_cast<std::int32_t>(LabSequenza.Testo.Valore().size());
    const std::int32_t nUltimo = Ospite().classe() - (nSchema == 0 ? 0 : nSchema - 1);
    CaricaSpunte(nUltimo);
    m_EsclusioneConsec.Carica(nUltimo);
}

void F_PuntiSuSequenze::AbilitaChkRecupero()
{
    DialogoLista::AbilitaChkRecupero();
    m_EsclusioneConsec.AbilitaChkRecupero();
}

ValoriDialogo F_PuntiSuSequenze::Valori() const
{
    ValoriDialogo valori = DialogoLista::Valori();
    valori.sSchema = LabSequenza.Testo.Valore();
    valori.sPasso = std::to_string(LeggiIntero<std::int32_t>(CmbPasso.Testo())); // 0 without a selection
    valori.aConsec = ChkConsec.Flag();
    valori.aConsecRec = ChkConsecR.Flag();
    return valori;
}

std::string F_PuntiSuSequenze::MessaggioCoerenza() const
{
    std::string sMessaggio;
    if (!ChkPunti.Qualcuna()) {
        sMessaggio = "Impostare i punti da realizzare";
    }
    if (!ChkConsec.Qualcuna()) {
        sMessaggio = "Impostare le consecutività";
    }
    if (ConGruppo(CmbRecupero) && !ChkRecupero.Qualcuna()) {
        sMessaggio = "Impostare i punti di recupero";
    }
    return sMessaggio;
}

void F_PuntiSuSequenze::LeggiPunti(const GrigliaCondizioni& griglia)
{
    m_bInLettura = true;
    try {
        DialogoLista::LeggiPunti(griglia);
    } catch (...) {
        m_bInLettura = false;
        throw;
    }
    m_bInLettura = false;
}

void F_PuntiSuSequenze::LeggiParametro(std::string_view sCella)
{
    LabSequenza.Testo.Poni(Sostituisci(sCella.substr(0, sCella.find(kCercaPasso)), kCrLf, ""));
    SelezionaCombo(Tratto(sCella, kCercaPasso, kCercaConsec), CmbPasso);
    SegnaLista(ChkConsec, Tratto(sCella, kCercaConsec, kCercaConsecR), "-");
    SegnaLista(ChkConsecR, Tratto(sCella, kCercaConsecR, kCrLf), "-");
}

bool F_PuntiSuSequenze::Riempi(std::string_view sParam)
{
    const auto aPezzi = PezziParametri(sParam, 4);
    const auto aRighe = DueRighe(aPezzi[0]);
    LabSequenza.Testo.Poni(std::string(aRighe[0]));
    RiempiValori(aRighe[1], aPezzi[1]);
    SegnaLista(ChkConsec, aPezzi[2], ",");
    SegnaLista(ChkConsecR, aPezzi[3], ",");
    return true;
}

} // namespace ordavel
