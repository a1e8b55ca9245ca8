// Impostazioni.hpp - what a user sets once: folders, draw archives, engine; kept, and given to the component.

#pragma once

#include <QString>

#include <array>

namespace ordavel::qt {
class OrdavelWidget;
} // namespace ordavel::qt

namespace ordavel::desktop {

class ArchivioImpostazioni;

/// One archive a game, in the order of ProfiliGioco().
inline constexpr std::size_t kArchivi = 5;

struct Impostazioni {
    QString sDirSistemi;
    QString sPercorsoSalvaColonne;
    QString sPercorsoTemp; ///< of the user's choice; the program may work in a folder inside it
    std::array<QString, kArchivi> aArchivi;
    int nThread = 5;
    bool bMotoreEsterno = false;

    friend bool operator==(const Impostazioni&, const Impostazioni&) = default;
};

/// The folders of a first start: below the documents, and in the user's cache.
[[nodiscard]] Impostazioni Predefinite();

/// What was kept; where nothing was, what a first start has.
[[nodiscard]] Impostazioni LeggiImpostazioni(const ArchivioImpostazioni& archivio);

/// Into the archive, not yet on the disk.
void ScriviImpostazioni(const Impostazioni& impostazioni, ArchivioImpostazioni& archivio);

/// Gives them to the component, which makes the folders.
/// Takes    sLavoro   the folder in which it works, sPercorsoTemp or one inside
void ApplicaImpostazioni(const Impostazioni& impostazioni, const QString& sLavoro,
                         qt::OrdavelWidget& ordavel);

} // namespace ordavel::desktop
