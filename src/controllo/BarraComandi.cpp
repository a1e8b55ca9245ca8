// BarraComandi.cpp - the table of the toolbar.

#include "controllo/BarraComandi.hpp"

#include "core/ModTesti.hpp"

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

struct RigaVoceCondizione {
    std::string_view sTesto;
    std::string_view sChiave;
    TipoCondizione tipo;
};

using enum TipoCondizione;

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

/// A kind of condition, or what the menu "Condizioni" offers beside the kinds.
constexpr std::array kVociCondizioni = std::to_array<RigaVoceCondizione>({
//   caption                                      key                          kind
    {"Punti su colonna",                          "PuntiSuColonna",            puntiColonna},
    {"Punti su colonna (importa colonne da txt)", "PuntiSuColonnaTxt",         nessuno},
    {"Pari - dispari",                            "PuntisuPariDispari",        pariDispari},
    {"Peso",                                      "PuntisuPeso",               peso},
    {"Resto",                                     "PuntiSuResto",              resto},
    {"Ampiezza",                                  "PuntiSuAmpiezza",           ampiezza},
    {"Distanza minima",                           "PuntiSuDistanzaMinima",     distanzaMinima},
    {"Distanza massima",                          "PuntiSuDistanzaMassima",    distanzaMassima},
    {"Vortice",                                   "PuntiSuVortice",            vortice},
    {"SimmetriePD",                               "PuntiSuSimmetrie",          simmetrie},
    {"ParalleliPD",                               "PuntiSuParalleli",          paralleli},
    {"Consecutivi",                               "PuntiSuConsecutivi",        consecutivi},
    {"Interruzioni",                              "PuntiSuInterruzioni",       interruzioni},
    {"ConsecutiviPD",                             "PuntiSuConsecutiviPD",      consecutiviPD},
    {"InterruzioniPD",                            "PuntiSuInterruzioniPD",     interruzioniPD},
    {"Baricentro",                                "PuntiSuBaricentro",         baricentro},
    {"Posizioni",                                 "PuntiSuPosizioni",          posizioni},
    {"Ponte",                                     "PuntiSuPonte",              ponte},
    {"Sequenze",                                  "PuntiSuSequenze",           sequenze},
    {"Gruppi di consecutivi",                     "PuntiSuGruppiDiConsecutivi", gruppiDiConsecutivi},
    {"Cadenze (q max uguali)",                    "PuntiSuCadenze",            cadenze},
    {"Cadenze (q specifica)",                     "PuntiSuCadenzeSpec",        cadenzeSpecifiche},
    {"Decine (q max uguali)",                     "PuntiSuDecine",             decine},
    {"Decine  (q specifica)",                     "PuntiSuDecineSpec",         decineSpecifiche},
    {"Figure (q max uguali)",                     "PuntiSuFigure",             figure},
    {"Figure  (q specifica)",                     "PuntiSuFigureSpec",         figureSpecifiche},
    {"Formule",                                   "PuntiSuFormule",            formule},
    {"Emulatore",                                 "PuntiSuEmulatore",          emulatore},
    {"Simmetrie Numeriche",                       "SimmetrieNumeriche",        simmetrieNum},
    {"Paralleli Numerici",                        "ParalleliNumerici",         paralleliNum},
    {"Fulcro",                                    "Fulcro",                    fulcro},
    {"Somma decine",                              "SommaDecine",               sommaDecine},
    {"Somma cadenze",                             "SommaCadenze",              sommaCadenze},
    {"Somma figure",                              "SommaFigure",               sommaFigure},
    {"Somma numeretti",                           "SommaNumeretti",            sommaNumeretti},
    {"Somma complessiva (dec-cad-num-fig)",       "SommaComplessiva",          sommaComplessiva},
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

PulsanteStrumento PulsanteDi(const RigaPulsante& riga)
{
    PulsanteStrumento pulsante{.sChiave = std::string(riga.sChiave),
                               .sSuggerimento = std::string(riga.sSuggerimento),
                               .sImmagine = std::string(riga.sImmagine),
                               .bTiene = riga.sChiave == "SelNumeri",
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
    if (riga.sChiave == "Condizioni") {
        for (const RigaVoceCondizione& voce : kVociCondizioni) {
            pulsante.aMenu.push_back({.sTesto = std::string(voce.sTesto),
                                      .sChiave = std::string(voce.sChiave),
                                      .Abilitato = Stato<bool>(true)});
        }
    }
    return pulsante;
}

} // namespace

std::vector<PulsanteStrumento> PulsantiOrdavel()
{
    std::vector<PulsanteStrumento> aPulsanti;
    std::transform(kPulsanti.begin(), kPulsanti.end(), std::back_inserter(aPulsanti), PulsanteDi);
    return aPulsanti;
}

TipoCondizione TipoDiVoce(std::string_view sChiave) noexcept
{
    const auto* voce =
        std::find_if(kVociCondizioni.begin(), kVociCondizioni.end(),
                     [sChiave](const RigaVoceCondizione& v) { return UgualiSenzaCaso(v.sChiave, sChiave); });
    return voce == kVociCondizioni.end() ? nessuno : voce->tipo;
}

} // namespace ordavel
