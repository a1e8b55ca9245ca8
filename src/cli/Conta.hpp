// Conta.hpp - the command that counts a system without developing it.

#pragma once

#include "cli/Uscite.hpp"

#include <string>

namespace ordavel::cli {

struct OpzioniConta {
    std::string sSistema;
    std::string sGioco;      ///< name of a game; empty for the first
    std::string sArchivio;   ///< its draw archive, for an emulator; empty for none
    std::string sRuota;      ///< wheel of "Lotto" that is emulated; empty for the first
    bool bSoloStima = false; ///< does not wait for what takes long
    bool bJson = false;
};

/// Prints how many columns a system passes and what each condition does; no column file is written.
///
/// While the exact count takes long the estimate stands on the terminal. A stop ends with the estimate.
[[nodiscard]] eUscita Conta(const OpzioniConta& opzioni);

} // namespace ordavel::cli
