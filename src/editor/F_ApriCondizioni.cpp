// F_ApriCondizioni.cpp - "Apri condizioni".

#include "editor/F_ApriCondizioni.hpp"

#include "core/ModFunzGeneriche.hpp"
#include "core/ModGestore.hpp"
#include "editor/F_SalvaCondizioni.hpp"
#include "persistenza/ModFileCondizioni.hpp"

#include <algorithm>
#include <filesystem>
#include <system_error>

namespace ordavel {

namespace {

namespace fs = std::filesystem;

bool IsFileCondizioni(const fs::directory_entry& voce)
{
    std::error_code codice;
    return voce.path().extension() == kEstensioneCondizioni && voce.is_regular_file(codice);
}

/// The names are sorted, since a folder has no order that a user would know. One that is missing has none.
std::vector<std::string> NomiCondizioni(const std::string& sCartella)
{
    std::vector<std::string> aNomi;
    if (!FileEsiste(sCartella)) {
        return aNomi;
    }
    std::error_code codice;
    for (fs::directory_iterator voce(sCartella, codice), fine; !codice && voce != fine;
         voce.increment(codice)) {
        if (IsFileCondizioni(*voce)) {
            aNomi.push_back(voce->path().stem().string());
        }
    }
    if (codice) {
        throw ErroreDiSistema(codice.value(), sCartella);
    }
    std::sort(aNomi.begin(), aNomi.end());
    return aNomi;
}

/// The first row without a condition; the first of all when there is none.
std::int32_t PrimaRigaVuota(const GrigliaCondizioni& griglia)
{
    std::int32_t nRiga = 1;
    while (nRiga <= kCondizioniMassime && !griglia.Vuota(nRiga)) {
        ++nRiga;
    }
    return nRiga <= kCondizioniMassime ? nRiga : 1;
}

} // namespace

F_ApriCondizioni::F_ApriCondizioni(OspiteDialoghi& ospite)
    : DialogoConferma(ospite, "F_ApriCondizioni", "Apri condizioni")
{
    LabPercorso.Testo.AlCambio([this] { LoadComboCondizioni(); });
    CmbCondizioni.Indice.AlCambio([this] {
        if (CmbCondizioni.Indice.Valore() >= 0) {
            Apri();
        }
    });
    LabPercorso.Testo.Poni(ospite.DirSistemi());
}

void F_ApriCondizioni::LoadComboCondizioni()
{
    CmbCondizioni.Svuota();
    ConGestore(Ospite().Desktop(), "F_ApriCondizioni.LoadComboCondizioni",
               [&] { CmbCondizioni.Voci.Poni(NomiCondizioni(LabPercorso.Testo.Valore())); });
}

void F_ApriCondizioni::Command1()
{
    const std::string sCartella = Ospite().Desktop().ScegliCartella(LabPercorso.Testo.Valore());
    if (!sCartella.empty()) {
        LabPercorso.Testo.Poni(ConSeparatore(sCartella));
    }
}

void F_ApriCondizioni::Apri()
{
    Apri(LabPercorso.Testo.Valore() + CmbCondizioni.Testo() + std::string(kEstensioneCondizioni));
}

void F_ApriCondizioni::Apri(const std::string& sFile)
{
    GrdCond.Svuota();
    std::vector<Condizione> aRighe;
    ConGestore(Ospite().Desktop(), "F_ApriCondizioni.Apri", [&] { LeggiFileCondizioni(sFile, aRighe); });
    std::int32_t nRiga = 0;
    for (Condizione& riga : aRighe) {
        GrdCond.Riga(++nRiga) = std::move(riga);
    }
}

std::string F_ApriCondizioni::MessaggioCoerenza() const
{
    // It loads and does not save; the words are those of its twin.
    return GrdCond.Vuota(1) ? "Impostare le condizioni da salvare" : "";
}

void F_ApriCondizioni::Conferma()
{
    Inserisci();
    Nascondi(kTagConfermato);
}

/// Appends the preview. Beyond row 2000 it fails with 9, and the rows in front stay.
void F_ApriCondizioni::Inserisci()
{
    ConGestore(Ospite().Desktop(), "F_ApriCondizioni.Inserisci", [&] {
        GrigliaCondizioni& griglia = Ospite().GetGridCond();
        std::int32_t nDestinazione = PrimaRigaVuota(griglia);
        for (std::int32_t nRiga = 1; !GrdCond.Vuota(nRiga); ++nRiga) {
            griglia.Riga(nDestinazione++) = GrdCond.Riga(nRiga);
        }
    });
}

} // namespace ordavel
