// F_PuntiSu.cpp - the common condition dialogs.

#include "editor/F_PuntiSu.hpp"

#include "core/ModNumeri.hpp"
#include "core/ModTesti.hpp"
#include "editor/ModLimiti.hpp"

namespace ordavel {

namespace {

constexpr std::int32_t kUltimoResto = 8;
constexpr std::string_view kImpostarePunti = "Impostare i punti da realizzare";

const RigaDialogo& RigaDi(TipoCondizione tipo)
{
    const RigaDialogo* riga = TrovaDialogo(tipo);
    if (riga == nullptr) {
        Solleva(eErrore::argomento);
    }
    return *riga;
}

/// Puts the first two parts of a text into two boxes.
void ScriviRange(std::array<CasellaTesto, 2>& aCaselle, std::string_view sTesto, std::string_view sSep)
{
    auto aParti = Dividi(sTesto, sSep);
    aParti.resize(aCaselle.size());
    for (std::size_t i = 0; i < aCaselle.size(); ++i) {
        aCaselle[i].Testo.Poni(std::string(aParti[i]));
    }
}

std::array<std::string, 2> TestiRange(const std::array<CasellaTesto, 2>& aCaselle)
{
    return {aCaselle[0].Testo.Valore(), aCaselle[1].Testo.Valore()};
}

bool Invertito(const std::array<CasellaTesto, 2>& aCaselle)
{
    return LeggiNumero(aCaselle[1].Testo.Valore()) < LeggiNumero(aCaselle[0].Testo.Valore());
}

bool Nullo(const std::array<CasellaTesto, 2>& aCaselle)
{
    return LeggiNumero(aCaselle[0].Testo.Valore()) == 0 && LeggiNumero(aCaselle[1].Testo.Valore()) == 0;
}

} // namespace

F_PuntiSu::F_PuntiSu(OspiteDialoghi& ospite, TipoCondizione tipo)
    : DialogoLista(ospite, tipo, RigaDi(tipo).sTitolo, RigaDi(tipo).nPrimo), m_Riga(RigaDi(tipo))
{
    for (auto* caselle : {&TxtPunti, &TxtPuntiRec}) {
        for (CasellaTesto& casella : *caselle) {
            casella.bSoloCifre = m_Riga.bSoloCifre;
        }
    }
    if (m_Riga.parametro == eControlloParametro::divisore) {
        Combo1.Indice.AlCambio([this] { MostraDivisore(); });
    }
    LoadChk();
    F_PuntiSu::AbilitaChkRecupero();
    CaricaParametro();
    CalcolaLimiti();
}

void F_PuntiSu::CaricaParametro()
{
    for (const std::string_view sVoce : Dividi(m_Riga.sVoci, "|")) {
        Combo1.Aggiungi(sVoce);
    }
    if (m_Riga.parametro == eControlloParametro::combo || m_Riga.parametro == eControlloParametro::divisore) {
        Combo1.SelezionaPrima();
    }
}

void F_PuntiSu::LoadChk()
{
    const std::int16_t nClasse = Ospite().classe();
    if (m_Riga.punti == eFamigliaPunti::lista) {
        const bool bDivisore = m_Riga.parametro == eControlloParametro::divisore;
        CaricaSpunte(bDivisore ? kUltimoResto : nClasse);
    }
    if (m_Riga.parametro == eControlloParametro::caselle) {
        ChkCaselle.Estendi(nClasse);
    }
    if (m_Riga.parametro == eControlloParametro::casella) {
        ObCaselle.AggiungiNumeri(1, nClasse);
    }
}

void F_PuntiSu::MostraDivisore()
{
    const std::int32_t nUltimo = UltimoValore();
    for (SerieSpunte* serie : {&ChkPunti, &ChkRecupero}) {
        // Box 0 is a remainder of every divisor and keeps its tick.
        for (std::int32_t n = serie->Ultimo(); n >= 1; --n) {
            (*serie)(n).Segnata.Poni(false);
        }
        for (std::int32_t n = serie->Primo(); n <= serie->Ultimo(); ++n) {
            (*serie)(n).Visibile.Poni(n <= nUltimo);
        }
    }
}

std::int32_t F_PuntiSu::UltimoValore() const
{
    return m_Riga.parametro == eControlloParametro::divisore ? LeggiIntero<std::int32_t>(Combo1.Testo()) - 1
                                                             : ChkPunti.Ultimo();
}

void F_PuntiSu::CalcolaLimiti()
{
    if (m_Riga.limiti == eLimiti::nessuno) {
        return;
    }
    const std::int16_t nClasse = Ospite().classe();
    if (nClasse <= 0 && m_Riga.limiti != eLimiti::somma) {
        Ospite().Desktop().MostraMessaggio(
            {.icona = eIcona::critico,
             .sTitolo = {},
             .sTesto = "Impostare il numero di elementi per ciascuna combinazione",
             .pulsanti = ePulsanti::ok});
        return;
    }
    if (const auto limiti = LimitiNumeri(m_Riga.limiti, nClasse, Ospite().GetNumeriSel())) {
        LabMin.Testo.Poni(std::to_string(limiti->nMin));
        LabMax.Testo.Poni(std::to_string(limiti->nMax));
    }
}

void F_PuntiSu::AbilitaChkRecupero()
{
    DialogoLista::AbilitaChkRecupero();
    const bool bGruppo = ConGruppo(CmbRecupero);
    for (CasellaTesto& casella : TxtPuntiRec) {
        casella.Abilitato.Poni(bGruppo);
        if (!bGruppo) {
            casella.Testo.Poni({});
        }
    }
}

ValoriDialogo F_PuntiSu::Valori() const
{
    ValoriDialogo valori = DialogoLista::Valori();
    const bool bCasella = m_Riga.parametro == eControlloParametro::casella;
    valori.sScelta = bCasella ? ObCaselle.Testo() : Combo1.Testo();
    valori.aNumeri = ChkCaselle.Flag();
    valori.aRange = TestiRange(TxtPunti);
    valori.aRangeRec = TestiRange(TxtPuntiRec);
    return valori;
}

std::string F_PuntiSu::MessaggioCoerenza() const
{
    if (m_Riga.punti == eFamigliaPunti::intervallo) {
        return MessaggioIntervallo();
    }
    const bool bSenzaCifra = m_Riga.parametro == eControlloParametro::cifra && Combo1.Indice.Valore() < 0;
    return bSenzaCifra ? std::string(m_Riga.sManca) : DialogoLista::MessaggioCoerenza();
}

std::string F_PuntiSu::MessaggioIntervallo() const
{
    std::string sMessaggio;
    if (Invertito(TxtPunti)) {
        sMessaggio = "Range punti non valido";
    }
    if (Nullo(TxtPunti)) {
        sMessaggio = kImpostarePunti;
    }
    if (ConGruppo(CmbRecupero) && Invertito(TxtPuntiRec)) {
        sMessaggio = "Range punti recupero non valido";
    }
    if (ConGruppo(CmbRecupero) && Nullo(TxtPuntiRec)) {
        sMessaggio = kImpostarePunti;
    }
    return sMessaggio;
}

void F_PuntiSu::LeggiPunti(const GrigliaCondizioni& griglia)
{
    if (m_Riga.punti == eFamigliaPunti::lista) {
        return DialogoLista::LeggiPunti(griglia);
    }
    const Condizione& celle = griglia.Riga(griglia.Corrente());
    LeggiParametro(celle.sParametri);
    ScriviRange(TxtPunti, celle.sPunti, "-");
    ScriviRange(TxtPuntiRec, celle.sRecupero, "-");
    SelezionaCombo(celle.sQuadro, CmbRecupero);
}

void F_PuntiSu::LeggiParametro(std::string_view sCella)
{
    switch (m_Riga.parametro) {
    case eControlloParametro::nessuno:
        return;
    case eControlloParametro::combo:
        SelezionaCombo(sCella, Combo1);
        return;
    case eControlloParametro::divisore:
        SelezionaCombo(TogliBlank(Dietro(sCella, ":")), Combo1);
        return;
    case eControlloParametro::cifra:
        SelezionaCombo(sCella.substr(sCella.empty() ? 0 : sCella.size() - 1), Combo1);
        return;
    case eControlloParametro::caselle:
        return SegnaLista(ChkCaselle, Dietro(sCella, kCrLf), "-");
    case eControlloParametro::casella:
        for (const std::string_view sPosizione : Dividi(Dietro(sCella, kCrLf), "-")) {
            SelezionaCombo(std::to_string(LeggiIntero<std::int32_t>(sPosizione)), ObCaselle);
        }
        return;
    }
}

bool F_PuntiSu::Riempi(std::string_view sParam)
{
    const auto aPezzi = PezziParametri(sParam, 2);
    switch (m_Riga.riempimento) {
    case eRiempimento::nessuno:
        return false;
    case eRiempimento::conCombo: {
        if (m_Riga.parametro == eControlloParametro::nessuno) {
            throw Errore(eErrore::membro, "Combo1");
        }
        const auto aRighe = DueRighe(aPezzi[0]);
        SelezionaCombo(aRighe[0], Combo1);
        RiempiValori(aRighe[1], aPezzi[1]);
        return true;
    }
    case eRiempimento::valori:
        RiempiValori(aPezzi[0], aPezzi[1]);
        return true;
    case eRiempimento::intervallo:
        RiempiIntervallo(aPezzi[0], aPezzi[1]);
        return true;
    }
    return false;
}

void F_PuntiSu::RiempiIntervallo(std::string_view sPunti, std::string_view sRecupero)
{
    ScriviRange(TxtPunti, sPunti, ",");
    if (!sRecupero.empty()) {
        // The group first: choosing one is what enables the boxes, and a blank one would empty them.
        CmbRecupero.Indice.Poni(1);
        ScriviRange(TxtPuntiRec, sRecupero, ",");
    }
}

} // namespace ordavel
