// ModEmulatore.hpp - the rows of emulated draws on disk.

#pragma once

#include "ordavel/records.hpp"

#include <string>
#include <vector>

namespace ordavel {

inline constexpr std::int64_t kByteRigaEmulatore = 91;

/// Reads a file of emulated draws, 91 bytes each.
/// Gives    its rows, as many as its length divided by 91, to nearest with ties to even
/// Changes  nothing when the file does not exist
/// Fails    9: the file holds no row; 6: it holds more than 32767, the most that a condition can ask for;
///          57, 70, 75
void LeggiFileEmulatore(const std::string& sFile, std::vector<RigaEmulatore>& aRighe);

} // namespace ordavel
