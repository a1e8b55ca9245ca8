// Riduci.hpp - the commands that reduce columns, and that check a reduction.

#pragma once

#include "cli/Uscite.hpp"

#include <cstdint>
#include <optional>
#include <string>

namespace ordavel::cli {

inline constexpr std::int32_t kRiduzioneSequenzialeMassima = 3;

struct OpzioniRiduci {
    std::string sFile;
    std::string sUscita;                  ///< of a reduction by points
    std::optional<std::int32_t> nPunti;   ///< numbers in common
    std::string sMotore;                  ///< "interno", "esterno", or empty for the first
    std::optional<std::int32_t> nSecondi; ///< of the external engine
    bool bSequenziale = false;
    std::int32_t nRiduzione = 0; ///< points to give up, in file order
    bool bJson = false;
};

struct OpzioniGaranzia {
    std::string sFile;
    std::string sRidotto;
    std::int32_t nPunti = 0;
    bool bJson = false;
};

/// Reduces a column file. An older output stays as it was until the new one is whole; after a stop the promise holds
/// for what is written.
[[nodiscard]] eUscita Riduci(const OpzioniRiduci& opzioni);

/// Holds a reduction against what was reduced; prints the first column that it leaves uncovered. It fails when there
/// is one.
[[nodiscard]] eUscita Garanzia(const OpzioniGaranzia& opzioni);

} // namespace ordavel::cli
