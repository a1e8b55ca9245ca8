// ModEmulatore.hpp - the rows of emulated draws on disk.

#pragma once

#include "ordavel/records.hpp"

#include <string>
#include <string_view>
#include <vector>

namespace ordavel {

inline constexpr std::int64_t kByteRigaEmulatore = 91;

/// Reads a file of emulated draws, 91 bytes each.
/// Gives    its rows, as many as its length divided by 91, to nearest with ties to even
/// Changes  nothing when the file does not exist
/// Fails    9: the file holds no row; 6: it holds more than 32767, the most that a condition can ask for;
///          57, 70, 75
void LeggiFileEmulatore(const std::string& sFile, std::vector<RigaEmulatore>& aRighe);

/// Builds the file of the latest draws of a game.
/// Takes    sFile       the file, replaced
///          nColonne    how many draws
///          nRuota      wheel of "Lotto", 1..11; no other game looks at it
///          sGioco      the game's name in the list of games. It must be the very name by which the builder knows
///                      the game, which those of "10ELotto" are not
///          sArchivio   the game's archive
/// Gives    false when there is no such game, or the archive has not as many draws; the older file then stays
/// Fails    9: a number above 90 in the archive, which is named, or a wheel outside 1..11; 57, 61, 70, 75, 76 of the file
[[nodiscard]] bool CreaDatiEmulatore(const std::string& sFile, std::int16_t nColonne, std::int16_t nRuota,
                                     std::string_view sGioco, const std::string& sArchivio,
                                     Segnalatore& segnalatore);

} // namespace ordavel
