// F_NavigaSistema.cpp - "Naviga sistema".

#include "analisi/F_NavigaSistema.hpp"

#include "condizioni/ModCatalogo.hpp"
#include "core/ModNumeri.hpp"
#include "core/ModTesti.hpp"

#include <algorithm>

namespace ordavel {

namespace {

constexpr std::string_view kRadice = "sistema";

bool IsChiave(const Condizione& celle, TipoCondizione tipo)
{
    return UgualiSenzaCaso(celle.sCondizione, TrovaTipo(tipo)->sChiave);
}

const NodoAlbero& Nodo(const std::vector<NodoAlbero>& aNodi, std::string_view sChiave)
{
    const auto nodo = std::find_if(aNodi.begin(), aNodi.end(),
                                   [sChiave](const NodoAlbero& n) { return n.sChiave == sChiave; });
    if (nodo == aNodi.end()) {
        Solleva(eErrore::indice);
    }
    return *nodo;
}

} // namespace

void F_NavigaSistema::LoadTree()
{
    std::vector<NodoAlbero> aNodi{{.sChiave = std::string(kRadice),
                                   .sPadre = {},
                                   .sTesto = "Sistema",
                                   .sEtichetta = {},
                                   .bEspanso = false}};
    try {
        AggiungiNodi(aNodi);
    } catch (const Errore&) {
        TreeView1.Nodi.Poni(std::move(aNodi));
        throw;
    }
    aNodi.front().bEspanso = true;
    TreeView1.Nodi.Poni(std::move(aNodi));
}

void F_NavigaSistema::AggiungiNodi(std::vector<NodoAlbero>& aNodi) const
{
    const GrigliaCondizioni& griglia = Ospite().GetGridCond();
    std::vector<std::string> aAperti{std::string(kRadice)}; // the present parent is the last one
    for (std::int32_t nRiga = 1; !griglia.Vuota(nRiga); ++nRiga) {
        const Condizione& celle = griglia.Riga(nRiga);
        const std::string sNumero = std::to_string(nRiga);
        aNodi.push_back({.sChiave = sNumero + "Cond",
                         .sPadre = aAperti.back(),
                         .sTesto = celle.sCondizione,
                         .sEtichetta = sNumero,
                         .bEspanso = false});
        if (IsChiave(celle, TipoCondizione::linkOpen)) {
            aAperti.push_back(aNodi.back().sChiave);
        } else if (IsChiave(celle, TipoCondizione::linkClose)) {
            aAperti.pop_back();
            if (aAperti.empty()) {
                throw Errore(eErrore::oggetto, celle.sCondizione + " " + sNumero);
            }
            aNodi.back().sTesto += " (" + celle.sParametri + ")";
        }
    }
}

void F_NavigaSistema::Clic(std::string_view sChiave)
{
    Ospite().SetColonnaGrid(LeggiIntero<std::int32_t>(Nodo(TreeView1.Nodi.Valore(), sChiave).sEtichetta));
}

} // namespace ordavel
