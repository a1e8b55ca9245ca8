// BarraComandi.cpp - the table of the toolbar.

#include "controllo/BarraComandi.hpp"

#include <algorithm>
#include <array>
#include <string_view>

namespace ordavel {

namespace {

struct RigaPulsante {
    std::string_view sChiave;
    std::string_view sSuggerimento;
    std::string_view sImmagine;
    bool bAbilitato;
};

struct RigaVoce {
    std::string_view sPulsante;
    std::string_view sTesto;
    std::string_view sChiave;
    bool bAbilitata;
};

// clang-format off
constexpr std::array kPulsanti = std::to_array<RigaPulsante>({
//   key                   tip                                 image                   enabled
    {"Open",               "Apri sistema",                     "open",                 true},
    {"Save",               "Salva sistema",                    "save",                 true},
    {"New",                "Nuovo",                            "New",                  true},
    {"SelNumeri",          "Selezione numeri",                 "selnumeri",            true},
    {"Condizioni",         "Condizioni",                       "condizioni",           true},
    {"puntimassivi",       "Imposta punti",                    "puntimassivi",         true},
    {"GestCondizioni",     "Gestione condizioni",              "GestCondizioni",       true},
    {"Inserisci",          "Inserisci condizione",             "inserisci",            true},
    {"Edit",               "Edit condizione",                  "edit",                 true},
    {"Delete",             "Elimina condizione",               "delete",               true},
    {"QuadroRecuperi",     "Quadro recuperi",                  "quadrorecuperi",       true},
    {"LinkOpen",           "Link Open",                        "linkopen",             true},
    {"LinkClose",          "Link Close",                       "linkclose",            true},
    {"SviluppaCond",       "Sviluppa sistema",                 "sviluppacond",         true},
    {"FiltraSvilPrec",     "Filtra sviluppo precedente",       "sviluppadafile",       false},
    {"Stop",               "Stop",                             "stop",                 false},
    {"VisualizzaColonne",  "Visualizza colonne",               "VisualizzaColonne",    false},
    {"DecrGrid",           "Decrementa larghezza colonne",     "decrgrid",             true},
    {"IncrGrid",           "Incrementa larghezza colonne",     "incrgrid",             true},
    {"Naviga",             "Naviga sistema",                   "naviga",               true},
    {"EffettoCondizioni",  "Effetto condizioni",               "effettocond",          true},
    {"ConfrontoCondSuCol", "Confronto condizioni su colonna",  "confrontocondizioni",  true},
    {"Riduzione",          "Riduzione colonne",                "Riduzione",            true},
    {"StampaSk",           "Stampa schedine",                  "StampaSk",             true},
});

constexpr std::array kVoci = std::to_array<RigaVoce>({
//   button            caption                   key                  enabled
    {"Save",           "Salva",                  "Salva",             false},
    {"Save",           "Salva con nome",         "SalvaConNome",      true},
    {"Save",           "SalvaColonne",           "SalvaColonne",      false},
    {"Save",           "Salva colonne in testo", "SalvaColonneTesto", false},
    {"GestCondizioni", "Salva condizioni",       "SalvaCondizioni",   true},
    {"GestCondizioni", "Inserisci condizioni",   "InsCondizioni",     true},
    {"Delete",         "Rimuovi condizioni",     "DelCondizioni",     true},
    {"SviluppaCond",   "Filtra file colonne",    "FiltraFileCol",     true},
});
// clang-format on

PulsanteStrumento Pulsante(const RigaPulsante& riga)
{
    PulsanteStrumento pulsante{.sChiave = std::string(riga.sChiave),
                               .sSuggerimento = std::string(riga.sSuggerimento),
                               .sImmagine = std::string(riga.sImmagine),
                               .Abilitato = Stato<bool>(riga.bAbilitato),
                               .Premuto = Stato<bool>(false),
                               .aMenu = {}};
    for (const RigaVoce& voce : kVoci) {
        if (voce.sPulsante == riga.sChiave) {
            pulsante.aMenu.push_back({.sTesto = std::string(voce.sTesto),
                                      .sChiave = std::string(voce.sChiave),
                                      .Abilitato = Stato<bool>(voce.bAbilitata)});
        }
    }
    return pulsante;
}

} // namespace

std::vector<PulsanteStrumento> PulsantiOrdavel()
{
    std::vector<PulsanteStrumento> aPulsanti;
    std::transform(kPulsanti.begin(), kPulsanti.end(), std::back_inserter(aPulsanti), Pulsante);
    return aPulsanti;
}

} // namespace ordavel
