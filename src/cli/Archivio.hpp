// Archivio.hpp - draw archives made from a text, and made a text again.
//
// The text has a heading, "Data" and a name for each number of the record ("Bari1" to "Nazionale5" for "Lotto", else
// "N1", "N2" ...), and a line for each draw, oldest first. ";", "," or a tab stands between the parts; an absent
// number is 0 or nothing. The date is for the reader: an archive keeps none, and none comes out of it.

#pragma once

#include "cli/Uscite.hpp"

#include <string>

namespace ordavel::cli {

struct OpzioniArchivio {
    std::string sGioco = "Lotto"; ///< name of a game
    std::string sTesto;
    std::string sArchivio;
};

/// Makes an archive. A wrong line ends it, and the older archive stays as it was.
[[nodiscard]] eUscita ImportaArchivio(const OpzioniArchivio& opzioni);

/// Writes an archive as text.
[[nodiscard]] eUscita EsportaArchivio(const OpzioniArchivio& opzioni);

/// Says how many draws an archive has, and shows the latest.
[[nodiscard]] eUscita InfoArchivio(const OpzioniArchivio& opzioni);

} // namespace ordavel::cli
