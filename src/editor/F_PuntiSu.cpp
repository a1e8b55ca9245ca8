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

void Segna(SerieSpunte& serie, std::string_view sLista, std::string_view sSep)
{
    for (const std::string_view sValore : Dividi(sLista, sSep)) {
        serie(LeggiIntero<std::int32_t>(sValore)).Segnata.Poni(true);
    }
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
    : DialogoCondizione(ospite, tipo, RigaDi(tipo).sTitolo),
      ChkPunti(RigaDi(tipo).nPrimo),
      ChkRecupero(RigaDi(tipo).nPrimo),
      m_Riga(RigaDi(tipo))
{
    CollegaRegole();
    LoadChk();
    LoadComboquadroRec();
    CaricaParametro();
    CalcolaLimiti();
}

void F_PuntiSu::CollegaRegole()
{
    ChkPunti.AlClick([this](std::int32_t nValore) {
        if (ConGruppo()) {
            EscludiRecupero(nValore);
        }
    });
    CmbRecupero.Indice.AlCambio([this] { AbilitaChkRecupero(); });
    if (m_Riga.parametro == eControlloParametro::divisore) {
        Combo1.Indice.AlCambio([this] { MostraDivisore(); });
    }
}

void F_PuntiSu::CaricaParametro()
{
    for (const std::string_view sVoce : Dividi(m_Riga.sVoci, "|")) {
        Combo1.Aggiungi(sVoce);
    }
    if (m_Riga.parametro == eControlloParametro::combo || m_Riga.parametro == eControlloParametro::divisore) {
        Combo1.Indice.Poni(0);
    }
}

void F_PuntiSu::LoadChk()
{
    const std::int16_t nClasse = Ospite().classe();
    if (m_Riga.punti == eFamigliaPunti::lista) {
        const bool bDivisore = m_Riga.parametro == eControlloParametro::divisore;
        for (SerieSpunte* serie : {&ChkPunti, &ChkRecupero}) {
            serie->Estendi(bDivisore ? kUltimoResto : nClasse);
        }
    }
    if (m_Riga.parametro == eControlloParametro::caselle) {
        ChkCaselle.Estendi(nClasse);
    }
    if (m_Riga.parametro == eControlloParametro::casella) {
        for (std::int16_t nPosizione = 1; nPosizione <= nClasse; ++nPosizione) {
            ObCaselle.Aggiungi(std::to_string(nPosizione));
        }
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

void F_PuntiSu::EscludiRecupero(std::int32_t nValore)
{
    const bool bAccettato = ChkPunti(nValore).Segnata.Valore();
    Spunta& recupero = ChkRecupero(nValore);
    if (bAccettato) {
        recupero.Segnata.Poni(false);
    }
    recupero.Abilitato.Poni(!bAccettato);
}

void F_PuntiSu::AbilitaChkRecupero()
{
    const bool bGruppo = ConGruppo();
    for (CasellaTesto& casella : TxtPuntiRec) {
        casella.Abilitato.Poni(bGruppo);
        if (!bGruppo) {
            casella.Testo.Poni({});
        }
    }
    for (std::int32_t n = ChkRecupero.Primo(); n <= ChkRecupero.Ultimo(); ++n) {
        if (bGruppo) {
            EscludiRecupero(n);
        } else {
            ChkRecupero(n).Segnata.Poni(false);
            ChkRecupero(n).Abilitato.Poni(false);
        }
    }
}

ValoriDialogo F_PuntiSu::Valori() const
{
    ValoriDialogo valori;
    const bool bCasella = m_Riga.parametro == eControlloParametro::casella;
    valori.sScelta = bCasella ? ObCaselle.Testo() : Combo1.Testo();
    valori.aNumeri = ChkCaselle.Flag();
    valori.aPunti = ChkPunti.Flag(UltimoValore());
    valori.aRecupero = ChkRecupero.Flag(UltimoValore());
    valori.aRange = TestiRange(TxtPunti);
    valori.aRangeRec = TestiRange(TxtPuntiRec);
    valori.sQuadro = CmbRecupero.Testo();
    return valori;
}

std::string F_PuntiSu::MessaggioCoerenza() const
{
    return m_Riga.punti == eFamigliaPunti::lista ? MessaggioLista() : MessaggioIntervallo();
}

std::string F_PuntiSu::MessaggioLista() const
{
    std::string sMessaggio;
    if (!ChkPunti.Qualcuna()) {
        sMessaggio = kImpostarePunti;
    }
    if (ConGruppo() && !ChkRecupero.Qualcuna()) {
        sMessaggio = "Impostare i punti di recupero";
    }
    if (m_Riga.parametro == eControlloParametro::cifra && Combo1.Indice.Valore() < 0) {
        sMessaggio = m_Riga.sManca;
    }
    return sMessaggio;
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
    if (ConGruppo() && Invertito(TxtPuntiRec)) {
        sMessaggio = "Range punti recupero non valido";
    }
    if (ConGruppo() && Nullo(TxtPuntiRec)) {
        sMessaggio = kImpostarePunti;
    }
    return sMessaggio;
}

void F_PuntiSu::LeggiPunti(const GrigliaCondizioni& griglia)
{
    const Condizione& celle = griglia.Riga(griglia.Corrente());
    LeggiParametro(celle.sParametri);
    if (m_Riga.punti == eFamigliaPunti::lista) {
        Segna(ChkPunti, celle.sPunti, "-");
        Segna(ChkRecupero, celle.sRecupero, "-");
    } else {
        ScriviRange(TxtPunti, celle.sPunti, "-");
        ScriviRange(TxtPuntiRec, celle.sRecupero, "-");
    }
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
        return Segna(ChkCaselle, Dietro(sCella, kCrLf), "-");
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
        const auto aRighe = Dividi(aPezzi[0], kCrLf);
        if (aRighe.size() < 2) {
            Solleva(eErrore::indice);
        }
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

void F_PuntiSu::RiempiValori(std::string_view sPunti, std::string_view sRecupero)
{
    Segna(ChkPunti, sPunti, ",");
    if (!sRecupero.empty()) {
        Segna(ChkRecupero, sRecupero, ",");
        CmbRecupero.Indice.Poni(1);
    }
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
