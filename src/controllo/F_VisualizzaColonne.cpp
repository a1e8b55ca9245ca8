// F_VisualizzaColonne.cpp - the columns of the working file.

#include "controllo/F_VisualizzaColonne.hpp"

#include "core/ModFunzGeneriche.hpp"
#include "core/ModNumeri.hpp"
#include "persistenza/ModFileColonne.hpp"

#include <algorithm>
#include <limits>

namespace ordavel {

F_VisualizzaColonne::F_VisualizzaColonne(OspiteDialoghi& ospite, std::string sFileColonne)
    : DialogoConferma(ospite, "F_VisualizzaColonne", "Visualizza colonne"),
      m_sFileColonne(std::move(sFileColonne))
{
    ListView1.aTestate = {"Colonna", "Numeri"};
    Slider1.Minimo.Poni(1);
    Slider1.Valore.Poni(1);
    Slider1.Abilitato.Poni(FileEsiste(m_sFileColonne));
    const double nColonne = ArrotondaPari(NumeroColonneFile(m_sFileColonne));
    Slider1.Massimo.Poni(static_cast<std::int32_t>(
        std::min(nColonne, static_cast<double>(std::numeric_limits<std::int32_t>::max()))));
    Slider1.Valore.AlCambio([this] { CaricaLista(); });
    CaricaLista();
}

void F_VisualizzaColonne::CaricaLista()
{
    std::vector<RigaElenco> aRighe;
    const std::int32_t nPrima = Slider1.Valore.Valore();
    // A file that has gone is an empty list, and not a failure for each of its rows.
    for (std::int32_t i = 0; i < kRigheMostrate && FileEsiste(m_sFileColonne); ++i) {
        if (nPrima > std::numeric_limits<std::int32_t>::max() - i) {
            break;
        }
        const std::string sColonna = Ospite().GetColonnaSviluppo(nPrima + i);
        if (!sColonna.empty()) {
            aRighe.push_back({.sChiave = {},
                              .sTesto = std::to_string(nPrima + i),
                              .aSotto = {sColonna},
                              .bScelta = false});
        }
    }
    ListView1.Righe.Poni(std::move(aRighe));
}

} // namespace ordavel
