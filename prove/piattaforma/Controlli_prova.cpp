// Controlli_prova.cpp - the state of controls.

#include "ordavel/Controlli.hpp"

#include "comune/Fallimenti.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace ordavel {
namespace {

using prove::NumeroErrore;
using testing::AllOf;
using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

/// Writes down who heard of a value.
template <typename T> struct Ascolti {
    explicit Ascolti(Stato<T>& stato)
    {
        stato.AlCambio([this] { sSentiti += 'r'; });
        stato.Ascolta([this] { sSentiti += 'v'; });
    }
    std::string sSentiti; ///< "r" for each ring of the rule, "v" of the view
};

Combo ComboDi(const std::vector<std::string>& aVoci)
{
    Combo combo;
    combo.Voci.Poni(aVoci);
    return combo;
}

TEST(Stato, SuonaUnaVoltaPrimaLaRegolaPoiLaVista)
{
    Stato<int> stato(1);
    Ascolti ascolti(stato);
    stato.Poni(2);
    EXPECT_EQ(ascolti.sSentiti, "rv");
    EXPECT_EQ(stato.Valore(), 2);
}

TEST(Stato, IlValoreDiPrimaNonSuona)
{
    Stato<int> stato(1);
    Ascolti ascolti(stato);
    stato.Poni(1);
    stato.PoniSenzaRegola(1);
    EXPECT_EQ(ascolti.sSentiti, "");
}

TEST(Stato, SenzaRegolaSuonaSoloLaVista)
{
    Stato<int> stato(1);
    Ascolti ascolti(stato);
    stato.PoniSenzaRegola(2);
    EXPECT_EQ(ascolti.sSentiti, "v");
    EXPECT_EQ(stato.Valore(), 2);
}

TEST(Stato, ChiAscoltaVedeGiaIlValoreNuovo)
{
    Stato<int> stato(1);
    int nVisto = 0;
    stato.Ascolta([&] { nVisto = stato.Valore(); });
    stato.Poni(2);
    EXPECT_EQ(nVisto, 2);
}

TEST(Stato, ChiSiToglieMentreAscoltaNonSentePiu)
{
    Stato<int> stato;
    int nVolte = 0;
    stato.Ascolta([&stato, &nVolte] {
        stato.Ascolta({});
        ++nVolte; // the capture must still be there
    });
    stato.Poni(1);
    stato.Poni(2);
    EXPECT_EQ(nVolte, 1);
}

TEST(Stato, UnaRegolaPuoCorreggereIlValore)
{
    Stato<int> stato;
    std::vector<int> aVisti;
    stato.AlCambio([&] {
        if (stato.Valore() > 5) {
            stato.Poni(5);
        }
    });
    stato.Ascolta([&] { aVisti.push_back(stato.Valore()); });
    stato.Poni(9);
    EXPECT_EQ(stato.Valore(), 5);
    EXPECT_EQ(aVisti.back(), 5);
}

TEST(Stato, DueStatiLegatiNeiDueSensiSiFermano)
{
    Stato<int> uno;
    Stato<int> due;
    int nVolte = 0;
    uno.Ascolta([&] {
        ++nVolte;
        due.Poni(uno.Valore());
    });
    due.Ascolta([&] {
        ++nVolte;
        uno.Poni(due.Valore());
    });
    due.Poni(3);
    EXPECT_EQ(uno.Valore(), 3);
    EXPECT_EQ(nVolte, 2);
}

TEST(Combo, SenzaSelezioneIlTestoEVuoto)
{
    const Combo combo = ComboDi({"a"});
    EXPECT_EQ(combo.Indice.Valore(), -1);
    EXPECT_EQ(combo.Testo(), "");
}

TEST(Combo, UnIndiceOltreLeVociNonHaTesto)
{
    Combo combo = ComboDi({"a", "b"});
    combo.Indice.Poni(1);
    EXPECT_EQ(combo.Testo(), "b");
    combo.Indice.Poni(2);
    EXPECT_EQ(combo.Testo(), "");
}

TEST(Combo, LeVociSiAggiungonoInFondoENonSelezionano)
{
    Combo combo = ComboDi({"a"});
    combo.Aggiungi("b");
    EXPECT_THAT(combo.Voci.Valore(), ElementsAre("a", "b"));
    EXPECT_EQ(combo.Indice.Valore(), -1);
}

TEST(Combo, ContieneSoloTestiEsatti)
{
    const Combo combo = ComboDi({"Lotto", " "});
    EXPECT_TRUE(combo.Contiene("Lotto"));
    EXPECT_TRUE(combo.Contiene(" "));
    EXPECT_FALSE(combo.Contiene("lotto"));
    EXPECT_FALSE(combo.Contiene("Lott"));
    EXPECT_FALSE(combo.Contiene(""));
}

TEST(Combo, SvuotaToglieTuttoSenzaLaRegola)
{
    Combo combo = ComboDi({"a", "b"});
    combo.Indice.Poni(1);
    Ascolti ascolti(combo.Indice);
    combo.Svuota();
    EXPECT_EQ(ascolti.sSentiti, "v");
    EXPECT_EQ(combo.Indice.Valore(), -1);
    EXPECT_THAT(combo.Voci.Valore(), IsEmpty());
}

TEST(Combo, INumeriSiAggiungonoInFondo)
{
    Combo combo = ComboDi({" "});
    combo.AggiungiNumeri(9, 11);
    EXPECT_THAT(combo.Voci.Valore(), ElementsAre(" ", "9", "10", "11"));
    EXPECT_EQ(combo.Indice.Valore(), -1);
}

TEST(Combo, UnNumeroSoloEUnaVoceEUnUltimoMinoreNessuna)
{
    Combo combo;
    combo.AggiungiNumeri(0, 0);
    combo.AggiungiNumeri(1, 0);
    combo.AggiungiNumeri(1, -5);
    EXPECT_THAT(combo.Voci.Valore(), ElementsAre("0"));
}

TEST(Combo, LaPrimaVoceSiSelezionaConLaRegola)
{
    Combo combo = ComboDi({"a", "b"});
    Ascolti ascolti(combo.Indice);
    combo.SelezionaPrima();
    EXPECT_EQ(combo.Testo(), "a");
    EXPECT_EQ(ascolti.sSentiti, "rv");
}

TEST(Combo, SenzaVociNonCEUnaPrima)
{
    Combo combo;
    combo.SelezionaPrima();
    EXPECT_EQ(combo.Indice.Valore(), -1);
}

TEST(SelezionaCombo, IlTestoEsattoSiSceglie)
{
    Combo combo = ComboDi({"5", "6"});
    EXPECT_TRUE(SelezionaCombo("6", combo));
    EXPECT_EQ(combo.Indice.Valore(), 1);
}

TEST(SelezionaCombo, LEsattoVinceSulPrefissoCheVienePrima)
{
    Combo combo = ComboDi({"10", "1"});
    EXPECT_TRUE(SelezionaCombo("1", combo));
    EXPECT_EQ(combo.Indice.Valore(), 1);
}

TEST(SelezionaCombo, SenzaEsattoRestaIlPrimoPrefisso)
{
    Combo combo = ComboDi({"2", "10", "11"});
    EXPECT_FALSE(SelezionaCombo("1", combo));
    EXPECT_EQ(combo.Indice.Valore(), 1);
}

TEST(SelezionaCombo, IlPrefissoNonGuardaLeMaiuscole)
{
    Combo combo = ComboDi({"Esterno", "Interno"});
    EXPECT_FALSE(SelezionaCombo("interno", combo));
    EXPECT_EQ(combo.Indice.Valore(), 1);
}

TEST(SelezionaCombo, LEsattoGuardaLeMaiuscole)
{
    Combo combo = ComboDi({"LOTTO", "Lotto"});
    EXPECT_TRUE(SelezionaCombo("Lotto", combo));
    EXPECT_EQ(combo.Indice.Valore(), 1);
}

TEST(SelezionaCombo, NienteDiSimileToglieLaSelezione)
{
    Combo combo = ComboDi({"2", "3"});
    combo.Indice.Poni(1);
    EXPECT_FALSE(SelezionaCombo("4", combo));
    EXPECT_EQ(combo.Indice.Valore(), -1);
}

TEST(SelezionaCombo, SuonaUnaVoltaSolaESoloSeCambia)
{
    Combo combo = ComboDi({"10", "1"});
    Ascolti ascolti(combo.Indice);
    SelezionaCombo("1", combo);
    SelezionaCombo("1", combo);
    EXPECT_EQ(ascolti.sSentiti, "rv");
}

BarraStrumenti BarraDiDue()
{
    BarraStrumenti barra;
    for (const char* sChiave : {"Open", "Save"}) {
        barra.aPulsanti.push_back({.sChiave = sChiave,
                                   .sSuggerimento = {},
                                   .sImmagine = {},
                                   .Abilitato = Stato<bool>(true),
                                   .Premuto = Stato<bool>(false),
                                   .aMenu = {}});
    }
    barra.aPulsanti[1].aMenu.push_back(
        {.sTesto = "Salva con nome", .sChiave = "SalvaConNome", .Abilitato = Stato<bool>(true)});
    return barra;
}

TEST(BarraStrumenti, LeChiaviSiTrovanoSenzaGuardareLeMaiuscole)
{
    BarraStrumenti barra = BarraDiDue();
    EXPECT_EQ(&barra.Pulsante("sAVE"), &barra.aPulsanti[1]);
    EXPECT_EQ(&barra.Voce("salvaconnome"), &barra.aPulsanti[1].aMenu[0]);
}

TEST(BarraStrumenti, UnaChiaveIgnotaEUnMembroMancante)
{
    BarraStrumenti barra = BarraDiDue();
    EXPECT_EQ(NumeroErrore([&] { (void)barra.Pulsante("SalvaConNome"); }), 438);
    EXPECT_EQ(NumeroErrore([&] { (void)barra.Voce("Save"); }), 438);
    EXPECT_EQ(NumeroErrore([&] { (void)barra.Pulsante(""); }), 438);
}

TEST(SelettoreNumeri, INumeriSiSelezionanoESiTolgono)
{
    SelettoreNumeri selettore;
    selettore.Seleziona(1, true);
    selettore.Seleziona(90, true);
    EXPECT_TRUE(selettore.Scelto(1));
    EXPECT_TRUE(selettore.Scelto(90));
    EXPECT_FALSE(selettore.Scelto(2));
    EXPECT_EQ(selettore.Conta(), 2);
    selettore.Seleziona(1, false);
    EXPECT_FALSE(selettore.Scelto(1));
    EXPECT_EQ(selettore.Conta(), 1);
    selettore.Svuota();
    EXPECT_EQ(selettore.Conta(), 0);
}

TEST(SelettoreNumeri, UnNumeroGiaSceltoNonSuona)
{
    SelettoreNumeri selettore;
    selettore.Seleziona(7, true);
    Ascolti ascolti(selettore.Scelti);
    selettore.Seleziona(7, true);
    EXPECT_EQ(ascolti.sSentiti, "");
    selettore.Seleziona(7, false);
    EXPECT_EQ(ascolti.sSentiti, "rv");
}

TEST(SelettoreNumeri, FuoriDa1A90EUnIndiceSbagliato)
{
    SelettoreNumeri selettore;
    for (const int nNumero : {0, 91, -1}) {
        EXPECT_EQ(NumeroErrore([&] { selettore.Seleziona(nNumero, true); }), 9) << nNumero;
        EXPECT_EQ(NumeroErrore([&] { (void)selettore.Scelto(nNumero); }), 9) << nNumero;
    }
    EXPECT_EQ(selettore.Conta(), 0);
}

TEST(SelettoreNumeri, AllInizioTuttiINumeriSonoAbilitati)
{
    const SelettoreNumeri selettore;
    EXPECT_EQ(selettore.Abilitati.Valore(), TuttiINumeri(true));
    EXPECT_EQ(selettore.Scelti.Valore(), TuttiINumeri(false));
}

TEST(SelettoreNumeri, TuttiINumeriSonoNovanta)
{
    EXPECT_THAT(TuttiINumeri(true).aElementi, AllOf(SizeIs(90), Each(1)));
    EXPECT_THAT(TuttiINumeri(false).aElementi, AllOf(SizeIs(90), Each(0)));
}

TEST(SelettoreNumeri, LaLogicaSceglieAncheUnNumeroSpento)
{
    SelettoreNumeri selettore;
    selettore.Abilitati.Poni(TuttiINumeri(false));
    selettore.Seleziona(5, true);
    EXPECT_TRUE(selettore.Scelto(5));
    selettore.Svuota();
    EXPECT_EQ(selettore.Abilitati.Valore(), TuttiINumeri(false));
}

} // namespace
} // namespace ordavel
