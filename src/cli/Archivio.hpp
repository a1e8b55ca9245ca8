// Archivio.hpp - draw archives made from a text, and made a text again.
//
// What the text looks like is told in persistenza/TestoEstrazioni.hpp.

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
