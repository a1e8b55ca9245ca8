// BarraComandi_prova.cpp - the toolbar of an empty system.

#include "controllo/BarraComandi.hpp"

#include "comune/Fallimenti.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cctype>
#include <numeric>
#include <ostream>
#include <set>
#include <string>
#include <string_view>

namespace ordavel {
namespace {

using prove::NumeroErrore;

using RigaAttesa = std::array<std::string_view, 3>;

/// An entry of the menu "Condizioni"; its kind is 0 where it inserts none.
struct VoceAttesa {
    std::string_view sTesto;
    std::string_view sChiave;
    int nTipo;

    [[nodiscard]] friend bool operator==(const VoceAttesa&, const VoceAttesa&) = default;
    friend std::ostream& operator<<(std::ostream& uscita, const VoceAttesa& voce)
    {
        return uscita << voce.sTesto << ", " << voce.sChiave << ", " << voce.nTipo;
    }
};

// clang-format off
constexpr auto kPulsanti = std::to_array<RigaAttesa>({
//   key                   tip                               image
    {"Open",               "Apri sistema",                   "open"},
    {"Save",               "Salva sistema",                  "save"},
    {"New",                "Nuovo",                          "New"},
    {"SelNumeri",          "Selezione numeri",               "selnumeri"},
    {"Condizioni",         "Condizioni",                     "condizioni"},
    {"puntimassivi",       "Imposta punti",                  "puntimassivi"},
    {"GestCondizioni",     "Gestione condizioni",            "GestCondizioni"},
    {"Inserisci",          "Inserisci condizione",           "inserisci"},
    {"Edit",               "Edit condizione",                "edit"},
    {"Delete",             "Elimina condizione",             "delete"},
    {"QuadroRecuperi",     "Quadro recuperi",                "quadrorecuperi"},
    {"LinkOpen",           "Link Open",                      "linkopen"},
    {"LinkClose",          "Link Close",                     "linkclose"},
    {"SviluppaCond",       "Sviluppa sistema",               "sviluppacond"},
    {"FiltraSvilPrec",     "Filtra sviluppo precedente",     "sviluppadafile"},
    {"Stop",               "Stop",                           "stop"},
    {"VisualizzaColonne",  "Visualizza colonne",             "VisualizzaColonne"},
    {"DecrGrid",           "Decrementa larghezza colonne",   "decrgrid"},
    {"IncrGrid",           "Incrementa larghezza colonne",   "incrgrid"},
    {"Naviga",             "Naviga sistema",                 "naviga"},
    {"EffettoCondizioni",  "Effetto condizioni",             "effettocond"},
    {"ConfrontoCondSuCol", "Confronto condizioni su colonna", "confrontocondizioni"},
    {"Riduzione",          "Riduzione colonne",              "Riduzione"},
    {"StampaSk",           "Stampa schedine",                "StampaSk"},
});

constexpr auto kVoci = std::to_array<RigaAttesa>({
//   button            caption                   key
    {"Save",           "Salva",                  "Salva"},
    {"Save",           "Salva con nome",         "SalvaConNome"},
    {"Save",           "SalvaColonne",           "SalvaColonne"},
    {"Save",           "Salva colonne in testo", "SalvaColonneTesto"},
    {"GestCondizioni", "Salva condizioni",       "SalvaCondizioni"},
    {"GestCondizioni", "Inserisci condizioni",   "InsCondizioni"},
    {"Delete",         "Rimuovi condizioni",     "DelCondizioni"},
    {"SviluppaCond",   "Filtra file colonne",    "FiltraFileCol"},
});

constexpr auto kVociCondizioni = std::to_array<VoceAttesa>({
//   caption                                      key                           kind
    {"Punti su colonna",                          "PuntiSuColonna",             3},
    {"Punti su colonna (importa colonne da txt)", "PuntiSuColonnaTxt",          0},
    {"Pari - dispari",                            "PuntisuPariDispari",         4},
    {"Peso",                                      "PuntisuPeso",                5},
    {"Resto",                                     "PuntiSuResto",               6},
    {"Ampiezza",                                  "PuntiSuAmpiezza",            7},
    {"Distanza minima",                           "PuntiSuDistanzaMinima",      13},
    {"Distanza massima",                          "PuntiSuDistanzaMassima",     14},
    {"Vortice",                                   "PuntiSuVortice",             8},
    {"SimmetriePD",                               "PuntiSuSimmetrie",           9},
    {"ParalleliPD",                               "PuntiSuParalleli",           18},
    {"Consecutivi",                               "PuntiSuConsecutivi",         10},
    {"Interruzioni",                              "PuntiSuInterruzioni",        20},
    {"ConsecutiviPD",                             "PuntiSuConsecutiviPD",       21},
    {"InterruzioniPD",                            "PuntiSuInterruzioniPD",      11},
    {"Baricentro",                                "PuntiSuBaricentro",          12},
    {"Posizioni",                                 "PuntiSuPosizioni",           15},
    {"Ponte",                                     "PuntiSuPonte",               16},
    {"Sequenze",                                  "PuntiSuSequenze",            17},
    {"Gruppi di consecutivi",                     "PuntiSuGruppiDiConsecutivi", 19},
    {"Cadenze (q max uguali)",                    "PuntiSuCadenze",             22},
    {"Cadenze (q specifica)",                     "PuntiSuCadenzeSpec",         36},
    {"Decine (q max uguali)",                     "PuntiSuDecine",              23},
    {"Decine  (q specifica)",                     "PuntiSuDecineSpec",          37},
    {"Figure (q max uguali)",                     "PuntiSuFigure",              24},
    {"Figure  (q specifica)",                     "PuntiSuFigureSpec",          35},
    {"Formule",                                   "PuntiSuFormule",             25},
    {"Emulatore",                                 "PuntiSuEmulatore",           26},
    {"Simmetrie Numeriche",                       "SimmetrieNumeriche",         27},
    {"Paralleli Numerici",                        "ParalleliNumerici",          28},
    {"Fulcro",                                    "Fulcro",                     29},
    {"Somma decine",                              "SommaDecine",                31},
    {"Somma cadenze",                             "SommaCadenze",               30},
    {"Somma figure",                              "SommaFigure",                32},
    {"Somma numeretti",                           "SommaNumeretti",             33},
    {"Somma complessiva (dec-cad-num-fig)",       "SommaComplessiva",           34},
});
// clang-format on

BarraStrumenti Barra()
{
    BarraStrumenti barra;
    barra.aPulsanti = PulsantiOrdavel();
    return barra;
}

std::string Maiuscole(std::string_view sTesto)
{
    std::string sGrande(sTesto);
    std::transform(sGrande.begin(), sGrande.end(), sGrande.begin(),
                   [](unsigned char c) { return static_cast<char>(std::toupper(c)); });
    return sGrande;
}

TEST(BarraComandi, IPulsantiStannoNelLoroOrdine)
{
    const auto aPulsanti = PulsantiOrdavel();
    ASSERT_EQ(aPulsanti.size(), kPulsanti.size());
    for (std::size_t i = 0; i < kPulsanti.size(); ++i) {
        const auto& pulsante = aPulsanti[i];
        EXPECT_EQ((RigaAttesa{pulsante.sChiave, pulsante.sSuggerimento, pulsante.sImmagine}), kPulsanti[i]);
    }
}

TEST(BarraComandi, LeVociStannoNeiLoroMenu)
{
    std::vector<RigaAttesa> aVoci;
    const auto aPulsanti = PulsantiOrdavel();
    for (const PulsanteStrumento& pulsante : aPulsanti) {
        for (const VoceMenu& voce : pulsante.aMenu) {
            if (pulsante.sChiave != "Condizioni") {
                aVoci.push_back({pulsante.sChiave, voce.sTesto, voce.sChiave});
            }
        }
    }
    EXPECT_THAT(aVoci, testing::ElementsAreArray(kVoci));
}

TEST(BarraComandi, IlMenuDelleCondizioniHaUnaVocePerTipo)
{
    BarraStrumenti barra = Barra();
    std::vector<VoceAttesa> aVoci;
    for (const VoceMenu& voce : barra.Pulsante("Condizioni").aMenu) {
        aVoci.push_back({voce.sTesto, voce.sChiave, static_cast<int>(TipoDiVoce(voce.sChiave))});
    }
    EXPECT_THAT(aVoci, testing::ElementsAreArray(kVociCondizioni));
}

TEST(BarraComandi, OgniTipoMenoILinkHaUnaSolaVoce)
{
    std::multiset<int> aTipi;
    for (const VoceAttesa& voce : kVociCondizioni) {
        aTipi.insert(static_cast<int>(TipoDiVoce(voce.sChiave)));
    }
    std::vector<int> aAttesi(kTipiCondizione - 1);
    std::iota(aAttesi.begin(), aAttesi.end(), 2);
    aAttesi.front() = 0; // the columns out of a text
    EXPECT_THAT(aTipi, testing::ElementsAreArray(aAttesi));
}

TEST(BarraComandi, IlTipoDiUnaVoceNonBadaAlleMaiuscole)
{
    for (const VoceAttesa& voce : kVociCondizioni) {
        EXPECT_EQ(static_cast<int>(TipoDiVoce(Maiuscole(voce.sChiave))), voce.nTipo);
    }
}

TEST(BarraComandi, UnAltraChiaveNonHaTipo)
{
    for (const std::string_view sChiave : {"", "Peso", "LinkOpen", "Salva", "PuntiSu", "PuntisuPeso "}) {
        EXPECT_EQ(TipoDiVoce(sChiave), TipoCondizione::nessuno) << sChiave;
    }
}

TEST(BarraComandi, OgniChiaveSiTrovaScrittaComeSiVuole)
{
    BarraStrumenti barra = Barra();
    for (const RigaAttesa& riga : kPulsanti) {
        EXPECT_EQ(barra.Pulsante(Maiuscole(riga[0])).sChiave, riga[0]);
    }
    for (const RigaAttesa& riga : kVoci) {
        EXPECT_EQ(barra.Voce(Maiuscole(riga[2])).sTesto, riga[1]);
    }
    for (const VoceAttesa& voce : kVociCondizioni) {
        EXPECT_EQ(barra.Voce(Maiuscole(voce.sChiave)).sTesto, voce.sTesto);
    }
}

TEST(BarraComandi, UnaChiaveIgnotaEUnMembroMancante)
{
    BarraStrumenti barra = Barra();
    EXPECT_EQ(NumeroErrore([&] { (void)barra.Pulsante("Pulisci"); }), 438);
    EXPECT_EQ(NumeroErrore([&] { (void)barra.Voce("Stop"); }), 438);
}

TEST(BarraComandi, NessunPulsanteNascePremuto)
{
    for (const PulsanteStrumento& pulsante : PulsantiOrdavel()) {
        EXPECT_FALSE(pulsante.Premuto.Valore()) << pulsante.sChiave;
    }
}

TEST(BarraComandi, NasconoSpentiSoloIComandiSenzaOggetto)
{
    const auto aPulsanti = PulsantiOrdavel();
    std::vector<std::string> aSpenti;
    for (const PulsanteStrumento& pulsante : aPulsanti) {
        if (!pulsante.Abilitato.Valore()) {
            aSpenti.push_back(pulsante.sChiave);
        }
        for (const VoceMenu& voce : pulsante.aMenu) {
            if (!voce.Abilitato.Valore()) {
                aSpenti.push_back(voce.sChiave);
            }
        }
    }
    EXPECT_THAT(aSpenti, testing::ElementsAre("Salva", "SalvaColonne", "SalvaColonneTesto", "FiltraSvilPrec",
                                              "Stop", "VisualizzaColonne"));
}

} // namespace
} // namespace ordavel
