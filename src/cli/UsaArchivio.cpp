// UsaArchivio.cpp - a session gets the game, the archive and the wheel that were asked for.

#include "cli/UsaArchivio.hpp"

#include "cli/Rispondi.hpp"
#include "core/FileBinario.hpp"
#include "core/ModGiochi.hpp"
#include "editor/F_ScegliRuota.hpp"

#include <array>

namespace ordavel::cli {

namespace {

/// The emulator knows some games by another name than the list does, and so never finds them.
void AvvisaGioco(Sessione& sessione, const ProfiloGioco& gioco)
{
    if (sessione.Sistema().IsCondizionePresente("Emulatore") && gioco.sChiaveEmulatore != gioco.sNome) {
        sessione.Desktop().Avvisa("il filtro emulatore non si crea per il gioco " + std::string(gioco.sNome) +
                                  ", con nessun archivio");
    }
}

} // namespace

void ScegliGioco(Sessione& sessione, const std::string& sGioco)
{
    if (!sGioco.empty()) {
        ControlliOrdavel& controlli = sessione.Sistema().Controlli();
        controlli.CmbTipoGioco.Indice.Poni(
            static_cast<std::int32_t>(TrovaGioco(sGioco) - ProfiliGioco().data()));
        SelezionaCombo(" ", controlli.CmbRid);
    }
}

void UsaArchivio(Sessione& sessione, const std::string& sArchivio, const std::string& sRuota)
{
    using Setter = void (ordavel::Ordavel::*)(std::string);
    constexpr std::array<Setter, 5> kArchivi{
        &ordavel::Ordavel::PoniFileBdLotto, &ordavel::Ordavel::PoniFileBd10Lotto,
        &ordavel::Ordavel::PoniFileBd10Lotto5M, &ordavel::Ordavel::PoniFileBdSE,
        &ordavel::Ordavel::PoniFileBdWF};
    if (!sArchivio.empty()) {
        FileBinario(sArchivio, eApertura::lettura).Chiudi();
        const auto nGioco = static_cast<std::size_t>(sessione.Sistema().GetIdCmbTipoGioco());
        (sessione.Sistema().*kArchivi.at(nGioco))(sArchivio);
        AvvisaGioco(sessione, ProfiliGioco()[nGioco]);
    }
    Rispondi<F_ScegliRuota>(sessione, [sRuota](F_ScegliRuota& finestra) {
        if (!sRuota.empty()) {
            SelezionaCombo(sRuota, finestra.CmbRuota);
        }
    });
}

} // namespace ordavel::cli
