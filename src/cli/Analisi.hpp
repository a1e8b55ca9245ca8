// Analisi.hpp - the commands that look at a result: against a winning column, and condition by condition.

#pragma once

#include "cli/Uscite.hpp"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace ordavel::cli {

struct OpzioniSpoglio {
    std::string sSistema;
    std::string sColonne; ///< column file; empty for the columns that the system carries
    std::vector<std::int32_t> aVincente;
    std::string sGioco;                  ///< name of a game; empty for the first
    std::string sArchivio;               ///< its draw archive, for an emulator; empty for none
    std::string sRuota;                  ///< wheel of "Lotto" that is emulated; empty for the first
    std::optional<std::int32_t> nMinimo; ///< least score to list; empty for the game's own
    bool bJson = false;
};

/// Prints the three pages of the check, and which conditions cut the winning column.
[[nodiscard]] eUscita Spoglio(const OpzioniSpoglio& opzioni);

} // namespace ordavel::cli
