// ModFileCondizioni.hpp - the condition file: rows of the grid as text, apart from any system.
//
// A row is five cells, each followed by "[R]", and one byte 0, in code page 1252. There is no header, no version
// and no count, and nothing escapes the two separators: no cell text holds them. See docs/formati/condizioni.md.

#pragma once

#include "ordavel/GrigliaCondizioni.hpp"
#include "ordavel/records.hpp"

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace ordavel {

/// The largest file that is read or written: 2000 rows of 4096 bytes. The longest row that a dialog fills stays
/// below a quarter of that, and a file of any size could not be held in memory.
inline constexpr std::int64_t kByteFileCondizioniMassimi = std::int64_t{kCondizioniMassime} * 4096;

/// The bytes of a condition file.
/// Takes    aRighe   [any length] rows up to the first one with an empty key; a cell that holds a separator is
///                   written as it stands, and reads back cut there
[[nodiscard]] std::vector<std::byte> ComponiFileCondizioni(std::span<const Condizione> aRighe);

/// The rows that these bytes say, whatever they are. A row may come out with an empty key.
/// Takes    aByte    [any length] behind a byte 0 at the start, or two in succession, nothing is looked at
/// Changes  aRighe   emptied, then one row for each row read
/// Fails    9: more than 2000 rows; the first 2000 stay in aRighe
void LeggiFileCondizioni(std::span<const std::byte> aByte, std::vector<Condizione>& aRighe);

/// Writes a condition file in one piece, in place of an older one. The bytes are composed, and the file is open
/// for writing, before the older content goes.
/// Takes    sPath, and aRighe as ComponiFileCondizioni does
/// Fails    7: more than kByteFileCondizioniMassimi, which nobody could read again; the older file stays
///          53, 57, 61, 70, 75, 76: as FileBinario
void ScriviFileCondizioni(const std::string& sPath, std::span<const Condizione> aRighe);

/// Reads a condition file.
/// Changes  aRighe   emptied, then one row for each row read
/// Fails    7: more than kByteFileCondizioniMassimi, found out before anything is read
///          9: more than 2000 rows; the first 2000 stay in aRighe
///          53, 57, 70, 75, 76: as FileBinario
void LeggiFileCondizioni(const std::string& sPath, std::vector<Condizione>& aRighe);

} // namespace ordavel
