// UtenteProva.hpp - what a user does with a condition dialog, and what he finds in its row afterwards.

#pragma once

#include "editor/DialogoCondizione.hpp"
#include "editor/OspiteProva.hpp"
#include "editor/SerieSpunte.hpp"

#include <gtest/gtest.h>

#include <initializer_list>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace ordavel::prove {

/// Ticks some values.
inline void Segna(SerieSpunte& serie, std::initializer_list<int> aValori)
{
    for (const int nValore : aValori) {
        serie(nValore).Segnata.Poni(true);
    }
}

/// The ticked values.
inline std::vector<int> Segnate(const SerieSpunte& serie)
{
    std::vector<int> aValori;
    for (int n = serie.Primo(); n <= serie.Ultimo(); ++n) {
        if (serie(n).Segnata.Valore()) {
            aValori.push_back(n);
        }
    }
    return aValori;
}

/// The values whose boxes the user may change.
inline std::vector<int> Abilitate(const SerieSpunte& serie)
{
    std::vector<int> aValori;
    for (int n = serie.Primo(); n <= serie.Ultimo(); ++n) {
        if (serie(n).Abilitato.Valore()) {
            aValori.push_back(n);
        }
    }
    return aValori;
}

/// A grid in which a row somewhere holds these cells and is selected.
inline GrigliaCondizioni GrigliaCon(const Condizione& celle)
{
    constexpr std::int32_t kRiga = 7;
    GrigliaCondizioni griglia;
    griglia.Riga(kRiga) = celle;
    griglia.PoniCorrente(kRiga);
    return griglia;
}

/// CONFERMA, which the dialog takes; the cells.
inline Condizione Confermata(DialogoCondizione& dialogo)
{
    dialogo.Visibile.Poni(true);
    dialogo.Premi(ePulsanteDialogo::conferma);
    EXPECT_EQ(dialogo.sTag, "ooo");
    EXPECT_FALSE(dialogo.Visibile.Valore());
    return dialogo.GetParametri();
}

/// CONFERMA, which the dialog refuses with one message; it stays as it was.
inline void Rifiutata(OspiteProva& ospite, DialogoCondizione& dialogo, std::string_view sMessaggio)
{
    dialogo.Visibile.Poni(true);
    dialogo.Premi(ePulsanteDialogo::conferma);
    EXPECT_EQ(dialogo.sTag, "");
    EXPECT_TRUE(dialogo.Visibile.Valore());
    EXPECT_THAT(ospite.desktop.Messaggi(), testing::ElementsAre(Avviso(sMessaggio)));
}

/// A row opened for an edit and confirmed as it is.
template <typename Finestra> Condizione Riconfermata(OspiteProva& ospite, const Condizione& celle)
{
    Finestra dialogo(ospite);
    dialogo.LeggiPunti(GrigliaCon(celle));
    return Confermata(dialogo);
}

/// What a parameter string does: the tag, and the cells that the dialog then gives.
template <typename Finestra>
std::pair<std::string, Condizione> Riempita(OspiteProva& ospite, std::string_view sParam)
{
    Finestra dialogo(ospite);
    dialogo.SetPuntiSuFrm(sParam);
    EXPECT_FALSE(dialogo.Visibile.Valore());
    return {dialogo.sTag, dialogo.GetParametri()};
}

/// Name, caption and statistic of a dialog; the statistic changes nothing, and CHIUDI leaves no tag.
template <typename Finestra>
void ControllaCornice(std::string_view sNome, std::string_view sTitolo, std::int32_t nIdStatistica)
{
    OspiteProva ospite(5);
    ospite.nGioco = 2;
    Finestra dialogo(ospite);
    dialogo.Visibile.Poni(true);
    EXPECT_EQ(dialogo.sNome, sNome);
    EXPECT_EQ(dialogo.sTitolo, sTitolo);
    const Condizione prima = dialogo.GetParametri();
    dialogo.Premi(ePulsanteDialogo::statistica);
    EXPECT_TRUE(dialogo.Visibile.Valore());
    EXPECT_EQ(dialogo.GetParametri(), prima);
    dialogo.Premi(ePulsanteDialogo::chiudi);
    EXPECT_EQ(dialogo.sTag, "");
    EXPECT_FALSE(dialogo.Visibile.Valore());
    EXPECT_THAT(ospite.desktop.statistica.aMostrate,
                testing::ElementsAre(std::pair(nIdStatistica, std::int16_t{3})));
}

} // namespace ordavel::prove
