// StampaSk.cpp - the columns of the component on slips.

#include "desktop/StampaSk.hpp"

#include "ordavel/Ordavel.hpp"

#include "persistenza/ModFileColonne.hpp"
#include "qt/Legami.hpp"
#include "qt/StampaSchedine.hpp"

#include <array>

namespace ordavel::desktop {

bool StampaColonne(eStampa come, Ordavel& ordavel, const QString& sGioco, Segnalatore& segnalatore,
                   QWidget* padre)
{
    using qt::Testo;
    using Azione = void (qt::StampaSchedine::*)(QWidget*);
    constexpr std::array<Azione, 3> kAzioni{&qt::StampaSchedine::Anteprima,
                                            &qt::StampaSchedine::ChiediEStampa,
                                            &qt::StampaSchedine::ChiediEStampaPdf};
    const std::string& sFile = ordavel.FileColonne();
    if (NumeroColonneFile(sFile) < 1) {
        return false;
    }
    // Of the columns, not of the list of classes: they may have come from a file.
    const std::int16_t nClasse = GetClasseColonneInFile(sFile, segnalatore);
    if (nClasse < 1) {
        return false;
    }
    qt::StampaSchedine stampa(Testo(sFile), nClasse,
                              sGioco.isEmpty() ? Testo(ordavel.GetIdCmbTipoGiocoString()) : sGioco);
    (stampa.*kAzioni.at(static_cast<std::size_t>(come)))(padre);
    return true;
}

} // namespace ordavel::desktop
