// Comandi.hpp - what the commands of the program do, apart from how their words are read.

#pragma once

#include "cli/Uscite.hpp"

#include <cstdint>
#include <string>
#include <vector>

namespace ordavel::cli {

/// Options of a run.
struct OpzioniCorsa {
    std::string sSistema;
    std::string sOrigine;  ///< column file to filter; empty for a development
    std::string sUscita;   ///< column file to write
    std::string sTemp;     ///< folder of the temporary files; empty for the system's
    std::string sGioco;    ///< name of a game; empty for the first
    std::string sArchivio; ///< its draw archive, for an emulator; empty for none
    std::string sRuota;    ///< wheel of "Lotto" that is emulated; empty for the first
    std::string sMotore;   ///< "interno", "esterno", or empty for the first
    bool bEffetto = false; ///< shows the effect of the conditions and writes no columns
    bool bJson = false;
};

/// Makes a system file from a text; "-" reads the standard input. The file appears only when all went well.
[[nodiscard]] eUscita Crea(const std::string& sTesto, const std::string& sSistema);

/// Shows a system file.
[[nodiscard]] eUscita Mostra(const std::string& sSistema, bool bJson);

/// Develops a system, or filters a column file with it, into a column file. An older file of that name stays
/// as it was unless the run was begun and no critical box was shown.
[[nodiscard]] eUscita Corri(const OpzioniCorsa& opzioni);

/// Develops a system and shows what each condition did, as the dialog shows it; no column file is written.
[[nodiscard]] eUscita Effetto(OpzioniCorsa opzioni);

/// Prints every metric of a column.
/// Takes    aNumeri   in any order; they are sorted
[[nodiscard]] eUscita MisuraColonna(std::int16_t nClasse, std::vector<std::int16_t> aNumeri, bool bJson);

} // namespace ordavel::cli
