// UtenteCasuale.hpp - a user who ticks, chooses and types at random, and the record that his choices ask for.
//
// Every dialog has its Gioca, which moves only what a user can move, and its Atteso, which reads the controls and
// never a cell.

#pragma once

#include "comune/GeneratoriSistema.hpp"
#include "editor/F_LinkClose.hpp"
#include "editor/F_PuntiSu.hpp"
#include "editor/F_PuntiSuEmulatore.hpp"
#include "editor/F_PuntiSuFormule.hpp"
#include "editor/F_PuntiSuGruppiDiConsecutivi.hpp"
#include "editor/F_PuntiSuSequenze.hpp"
#include "editor/F_PuntisuColonna.hpp"

#include <algorithm>
#include <array>
#include <string>

namespace ordavel::prove {

/// Ticks some of the boxes that the user can reach, and clears the others.
inline void SpuntaACaso(SerieSpunte& serie, int nPercento)
{
    for (int n = serie.Primo(); n <= serie.Ultimo(); ++n) {
        if (serie(n).Abilitato.Valore() && serie(n).Visibile.Valore()) {
            serie(n).Segnata.Poni(Tra(1, 100) <= nPercento);
        }
    }
}

/// Any entry; none where the combo has none.
inline void Scegli(Combo& combo)
{
    if (const auto nVoci = static_cast<int>(combo.Voci.Valore().size()); nVoci > 0) {
        combo.Indice.Poni(Tra(0, nVoci - 1));
    }
}

/// The recovery group: none as often as one.
inline void ScegliGruppo(Combo& combo)
{
    combo.Indice.Poni(UnaVoltaSu(2) ? 0 : Tra(1, kGruppiRecupero));
}

/// Both series, the group before them or between.
inline void GiocaPunti(DialogoLista& dialogo)
{
    if (UnaVoltaSu(2)) {
        ScegliGruppo(dialogo.CmbRecupero);
    }
    SpuntaACaso(dialogo.ChkPunti, 40);
    SpuntaACaso(dialogo.ChkRecupero, 60);
    if (UnaVoltaSu(2)) {
        ScegliGruppo(dialogo.CmbRecupero);
        SpuntaACaso(dialogo.ChkRecupero, 60);
    }
}

/// Numbers as typed, mostly a range that holds something.
inline void Digita(std::array<CasellaTesto, 2>& aCaselle)
{
    const int nMinimo = Tra(0, 40);
    aCaselle[0].Testo.Poni(Digitato(nMinimo));
    aCaselle[1].Testo.Poni(Digitato(nMinimo + Tra(UnaVoltaSu(8) ? -nMinimo : 0, 60)));
}

inline void Gioca(F_PuntiSu& dialogo)
{
    Scegli(dialogo.Combo1);
    Scegli(dialogo.ObCaselle);
    SpuntaACaso(dialogo.ChkCaselle, 50);
    if (dialogo.Riga().punti == eFamigliaPunti::lista) {
        return GiocaPunti(dialogo);
    }
    ScegliGruppo(dialogo.CmbRecupero);
    Digita(dialogo.TxtPunti);
    if (ConGruppo(dialogo.CmbRecupero)) {
        Digita(dialogo.TxtPuntiRec);
    }
}

inline void Gioca(F_PuntiSuSequenze& dialogo)
{
    for (int nTasti = Tra(0, 12); nTasti > 0; --nTasti) {
        dialogo.Command1(UnaVoltaSu(12) ? 2 : Tra(0, 1));
    }
    Scegli(dialogo.CmbPasso);
    SpuntaACaso(dialogo.ChkConsec, 60);
    GiocaPunti(dialogo);
    SpuntaACaso(dialogo.ChkConsecR, 40);
}

inline void Gioca(F_PuntiSuGruppiDiConsecutivi& dialogo)
{
    Scegli(dialogo.CmbPasso);
    Scegli(dialogo.CmbLenGruppo);
    GiocaPunti(dialogo);
}

inline void Gioca(F_PuntisuColonna& dialogo)
{
    const int nPercento = *rc::gen::element(0, 5, 50, 100);
    for (int n = 1; n <= kNumeroMassimo; ++n) {
        dialogo.SelnovoNumeri1.Seleziona(n, Tra(1, 100) <= nPercento);
    }
    GiocaPunti(dialogo);
}

/// Counts that add up to the class but for a seldom mistake; a count of 0 may be left unchosen.
inline void Scegli(std::array<Combo, 3>& aCombo)
{
    const auto nClasse = static_cast<std::int16_t>(aCombo[0].Voci.Valore().size() - 1);
    const auto aTerna = TernaCasuale(nClasse);
    for (std::size_t i = 0; i < aCombo.size(); ++i) {
        const bool bNessuna = UnaVoltaSu(aTerna[i] == "0" ? 2 : 20);
        aCombo[i].Indice.Poni(bNessuna ? -1 : std::stoi(aTerna[i]));
    }
}

inline void Gioca(F_PuntiSuFormule& dialogo)
{
    Scegli(dialogo.CmbFormula);
    ScegliGruppo(dialogo.CmbRecupero);
    if (ConGruppo(dialogo.CmbRecupero)) {
        Scegli(dialogo.CmbFormulaR);
    }
}

inline void Gioca(F_PuntiSuEmulatore& dialogo)
{
    dialogo.Text2.Testo.Poni(std::to_string(UnaVoltaSu(10) ? Tra(495, 505) : Tra(0, 40)));
    for (int nMosse = Tra(0, 20); nMosse > 0; --nMosse) {
        dialogo.MSFlexGrid1.Corrente.Poni({Tra(1, dialogo.MSFlexGrid1.Righe() - 1), Tra(1, 2)});
        dialogo.Text1.Testo.Poni(Digitato(Tra(0, 1200)));
    }
}

inline void Gioca(F_LinkClose& dialogo)
{
    dialogo.LoadchkPunti(Tra(0, 8));
    for (std::size_t i = 0; i < dialogo.List1.Voci.Valore().size(); ++i) {
        dialogo.List1.Seleziona(i, UnaVoltaSu(2));
    }
}

template <typename Flag> void Segna(const SerieSpunte& serie, Flag& aFlag)
{
    for (int n = serie.Primo(); n <= serie.Ultimo(); ++n) {
        aFlag(n) = ComeBooleano(serie(n).Segnata.Valore());
    }
}

/// The number in a box of figures; an empty one is 0.
inline int Numero(const std::string& sTesto)
{
    return sTesto.empty() ? 0 : std::stoi(sTesto);
}

/// What all dialogs with two series ask for.
inline RecordCondizione AttesoLista(const DialogoLista& dialogo)
{
    RecordCondizione record;
    record.Tipo = dialogo.Tipo();
    record.IdRecupero = static_cast<std::int16_t>(dialogo.CmbRecupero.Indice.Valore());
    Segna(dialogo.ChkPunti, record.PuntiOk);
    Segna(dialogo.ChkRecupero, record.PuntiRec);
    return record;
}

/// Where the parameter goes that one choice of many states.
inline void PoniScelta(const F_PuntiSu& dialogo, RecordCondizione& record)
{
    const auto nScelta = static_cast<std::int16_t>(dialogo.Combo1.Indice.Valore());
    switch (dialogo.Riga().parametro) {
    case eControlloParametro::combo:
        record.Parametro = static_cast<std::int16_t>(nScelta + 1);
        break;
    case eControlloParametro::divisore:
        record.Parametro = static_cast<std::int16_t>(nScelta + 2);
        break;
    case eControlloParametro::cifra:
        record.Parametro = nScelta;
        break;
    case eControlloParametro::casella:
        record.Parametro = static_cast<std::int16_t>(dialogo.ObCaselle.Indice.Valore() + 1);
        break;
    default:
        break;
    }
}

inline RecordCondizione Atteso(const F_PuntiSu& dialogo)
{
    RecordCondizione record = AttesoLista(dialogo);
    PoniScelta(dialogo, record);
    Segna(dialogo.ChkCaselle, record.Numeri);
    if (dialogo.Tipo() == TipoCondizione::pariDispari) {
        for (int n = 3 - record.Parametro; n <= kNumeroMassimo; n += 2) {
            record.Numeri(n) = kVero;
        }
        record.Parametro = 0;
    }
    record.OkMin = Numero(dialogo.TxtPunti[0].Testo.Valore());
    record.OkMax = Numero(dialogo.TxtPunti[1].Testo.Valore());
    record.RecMin = Numero(dialogo.TxtPuntiRec[0].Testo.Valore());
    record.RecMax = Numero(dialogo.TxtPuntiRec[1].Testo.Valore());
    return record;
}

inline RecordCondizione Atteso(const F_PuntiSuSequenze& dialogo)
{
    RecordCondizione record = AttesoLista(dialogo);
    for (const char nLettera : dialogo.LabSequenza.Testo.Valore()) {
        record.Numeri(record.Parametro++) = nLettera == 'P' ? 0 : 1;
    }
    record.Numeri(record.Parametro) = -1;
    record.Passo = static_cast<std::int16_t>(dialogo.CmbPasso.Indice.Valore() + 1);
    Segna(dialogo.ChkConsec, record.PuntiOk2);
    Segna(dialogo.ChkConsecR, record.PuntiRec2);
    return record;
}

inline RecordCondizione Atteso(const F_PuntiSuGruppiDiConsecutivi& dialogo)
{
    RecordCondizione record = AttesoLista(dialogo);
    record.Passo = static_cast<std::int16_t>(dialogo.CmbPasso.Indice.Valore() + 1);
    record.Parametro = static_cast<std::int16_t>(dialogo.CmbLenGruppo.Indice.Valore() + 2);
    return record;
}

inline RecordCondizione Atteso(const F_PuntisuColonna& dialogo)
{
    RecordCondizione record = AttesoLista(dialogo);
    for (int n = 1; n <= kNumeroMassimo; ++n) {
        record.Numeri(n) = ComeBooleano(dialogo.SelnovoNumeri1.Scelto(n));
    }
    return record;
}

/// The accepted counts in their places; those of recovery without the gaps that an unchosen one leaves.
inline RecordCondizione Atteso(const F_PuntiSuFormule& dialogo)
{
    RecordCondizione record;
    record.Tipo = dialogo.Tipo();
    record.IdRecupero = static_cast<std::int16_t>(dialogo.CmbRecupero.Indice.Valore());
    int nPosto = 0;
    int nPostoRec = 0;
    for (std::size_t i = 0; i < 3; ++i) {
        record.PuntiOk2(++nPosto) =
            static_cast<std::int16_t>(std::max(dialogo.CmbFormula[i].Indice.Valore(), 0));
        if (const std::int32_t nScelta = dialogo.CmbFormulaR[i].Indice.Valore(); nScelta >= 0) {
            record.PuntiRec2(++nPostoRec) = static_cast<std::int16_t>(nScelta);
        }
    }
    return record;
}

inline RecordCondizione Atteso(const F_PuntiSuEmulatore& dialogo)
{
    RecordCondizione record;
    record.Tipo = dialogo.Tipo();
    record.Parametro = static_cast<std::int16_t>(Numero(dialogo.Text2.Testo.Valore()));
    for (int nRiga = 1; nRiga < dialogo.MSFlexGrid1.Righe(); ++nRiga) {
        record.PuntiOk(nRiga - 1) = static_cast<std::int16_t>(Numero(dialogo.MSFlexGrid1.Testo({nRiga, 1})));
        record.PuntiRec(nRiga - 1) = static_cast<std::int16_t>(Numero(dialogo.MSFlexGrid1.Testo({nRiga, 2})));
    }
    return record;
}

inline RecordCondizione Atteso(const F_LinkClose& dialogo)
{
    RecordCondizione record;
    record.Tipo = dialogo.Tipo();
    for (std::size_t i = 0; i < dialogo.List1.Scelte.Valore().size(); ++i) {
        record.Numeri(static_cast<int>(i)) = ComeBooleano(dialogo.List1.Scelte.Valore()[i]);
    }
    return record;
}

/// Plays a dialog if it is of one type.
template <typename Finestra> bool GiocaSe(DialogoCondizione& dialogo, RecordCondizione& atteso)
{
    auto* finestra = dynamic_cast<Finestra*>(&dialogo);
    if (finestra != nullptr) {
        Gioca(*finestra);
        atteso = Atteso(*finestra);
    }
    return finestra != nullptr;
}

/// Plays a dialog that is of one of these types.
template <typename... Finestre> RecordCondizione GiocaUna(DialogoCondizione& dialogo)
{
    RecordCondizione atteso;
    RC_ASSERT((GiocaSe<Finestre>(dialogo, atteso) || ...));
    return atteso;
}

/// Plays a dialog of any kind; the record that its cells must compile to.
inline RecordCondizione GiocaACaso(DialogoCondizione& dialogo)
{
    return GiocaUna<F_PuntiSu, F_PuntiSuSequenze, F_PuntiSuGruppiDiConsecutivi, F_PuntisuColonna,
                    F_PuntiSuFormule, F_PuntiSuEmulatore, F_LinkClose>(dialogo);
}

} // namespace ordavel::prove
