// UsaArchivio.hpp - a session gets the game, the archive and the wheel that were asked for.

#pragma once

#include "cli/Sessione.hpp"

#include <string>

namespace ordavel::cli {

/// Selects a game; an empty name leaves the first.
/// Takes    sGioco   a game's name, checked before
void ScegliGioco(Sessione& sessione, const std::string& sGioco);

/// Gives the component the archive of its game, and answers which wheel is emulated. Warns when its system asks for
/// an emulator that no archive of that game can feed.
/// Takes    sArchivio   empty for none
///          sRuota      a wheel's name, checked before; empty for the first
/// Fails    53, 57, 70, 75, 76: the archive cannot be read
void UsaArchivio(Sessione& sessione, const std::string& sArchivio, const std::string& sRuota);

} // namespace ordavel::cli
