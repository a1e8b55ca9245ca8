// BarraComandi_prova.cpp - the toolbar of an empty system.

#include "controllo/BarraComandi.hpp"

#include "comune/Fallimenti.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cctype>
#include <string>
#include <string_view>

namespace ordavel {
namespace {

using prove::NumeroErrore;

using RigaAttesa = std::array<std::string_view, 3>;

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
            aVoci.push_back({pulsante.sChiave, voce.sTesto, voce.sChiave});
        }
    }
    EXPECT_THAT(aVoci, testing::ElementsAreArray(kVoci));
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
