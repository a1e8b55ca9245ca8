// F_SalvaCondizioni.cpp - "Salva condizioni".

#include "editor/F_SalvaCondizioni.hpp"

#include "condizioni/ModTestoCelle.hpp"
#include "core/ModGestore.hpp"
#include "persistenza/ModFileCondizioni.hpp"

namespace ordavel {

namespace {

std::vector<Condizione> RigheFinoAllaVuota(const GrigliaCondizioni& griglia)
{
    std::vector<Condizione> aRighe;
    for (std::int32_t nRiga = 1; !griglia.Vuota(nRiga); ++nRiga) {
        aRighe.push_back(griglia.Riga(nRiga));
    }
    return aRighe;
}

} // namespace

F_SalvaCondizioni::F_SalvaCondizioni(OspiteDialoghi& ospite)
    : DialogoConferma(ospite, "F_SalvaCondizioni", "Salva condizioni")
{
    LoadComboCondizioni();
    for (Combo* combo : {&CmbCondInizio, &CmbCondFine}) {
        combo->Indice.AlCambio([this] { CopiaCondizioni(); });
    }
}

void F_SalvaCondizioni::LoadComboCondizioni()
{
    const GrigliaCondizioni& griglia = Ospite().GetGridCond();
    std::vector<std::string> aVoci;
    for (std::int32_t nRiga = 1; !griglia.Vuota(nRiga); ++nRiga) {
        aVoci.push_back(AllineaTesto(std::to_string(nRiga), "    ", true) + " - " +
                        griglia.Riga(nRiga).sCondizione);
    }
    CmbCondInizio.Voci.Poni(aVoci);
    CmbCondFine.Voci.Poni(std::move(aVoci));
}

void F_SalvaCondizioni::CopiaCondizioni()
{
    const std::int32_t nInizio = CmbCondInizio.Indice.Valore();
    const std::int32_t nFine = CmbCondFine.Indice.Valore();
    if (nInizio < 0 || nFine < 0) {
        return;
    }
    GrdCond.Svuota();
    for (std::int32_t nRiga = nInizio; nRiga <= nFine; ++nRiga) {
        GrdCond.Riga(nRiga - nInizio + 1) = Ospite().GetGridCond().Riga(nRiga + 1);
    }
}

std::string F_SalvaCondizioni::MessaggioCoerenza() const
{
    return GrdCond.Vuota(1) ? "Impostare le condizioni da salvare" : "";
}

void F_SalvaCondizioni::Salva()
{
    ConGestore(Ospite().Desktop(), "F_SalvaCondizioni.Salva", [&] {
        const std::string sFile =
            Ospite().Desktop().DialogoSalva({.sTitolo = "Apri file",
                                             .sFiltro = std::string(kFiltroCondizioni),
                                             .sEstensione = std::string(kEstensioneCondizioni),
                                             .sNomeFile = {},
                                             .sCartella = Ospite().DirSistemi()});
        if (!sFile.empty()) {
            ScriviFileCondizioni(sFile, RigheFinoAllaVuota(GrdCond));
            Nascondi(kTagConfermato);
        }
    });
}

} // namespace ordavel
