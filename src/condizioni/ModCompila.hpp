// ModCompila.hpp - from the cells of the grid and the lines of the board to records.
//
// The grid stays the truth: whoever needs records compiles it afresh. Numbers are read by their longest numeric
// prefix, an empty part of a list reads as 0, fractions round to nearest with ties to even.

#pragma once

#include "ordavel/GrigliaCondizioni.hpp"
#include "ordavel/StatoSviluppo.hpp"

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace ordavel {

/// Compiles the rows of a grid and the lines of a recovery board.
///
/// Rows are read from 1 on; the first one whose trimmed key is empty ends the list and hides all behind it. A key
/// that no kind has leaves a zero record in place. A grid without conditions gives one zero record.
/// Takes    aRigheQuadro   [at most 20] "minimum,maximum,flag" of group 1, 2 ...
/// Changes  aCondizioni and aQuadroRec, replaced whole; after a failure they hold what was read so far
/// Fails    9: a flag, value or count outside its array; a board of more than 20 lines, or a line of fewer than
///          three parts; an emulator line without a range. 6: a number too large for its field
void LeggiCondizioniDaGriglia(std::vector<RecordCondizione>& aCondizioni, const GrigliaCondizioni& griglia,
                              std::span<const std::string> aRigheQuadro, QuadroRecuperi& aQuadroRec);

/// Makes each accepted value and chain of a sequence count for its recovery as well. Only this kind is so.
void EstendiRecuperiSequenze(std::span<RecordCondizione> aCondizioni) noexcept;

/// Sets the flag of every number in a list.
/// Takes    sTesto   numbers joined by sSep; line breaks are passed over; an empty text sets nothing
/// Fails    9: a number outside the array
void LeggiListaPunti(std::string_view sTesto, FlagNumeri& aFlag, std::string_view sSep);
void LeggiListaPunti(std::string_view sTesto, FlagPunti& aFlag, std::string_view sSep);

/// Stores the k-th number of a list, from 0, at index k+1.
/// Fails    9: more than 10 numbers; 6: a number too large
void LeggiListaValori(std::string_view sTesto, FlagPunti& aValori, std::string_view sSep);

/// Reads two bounds; with fewer or more than two parts both stay as they were.
/// Fails    6: a bound too large
void LeggiMinMax(std::string_view sTesto, std::int32_t& nMin, std::int32_t& nMax, std::string_view sSep);

/// Reads a parity pattern, one letter a part: "P" stores 0 and "D" stores 1 at the part's place; any other part
/// leaves its place as it is.
/// Changes  nLunghezza, the count of letters; the entry at that count becomes the end mark
/// Fails    9: more letters than places
void LeggiSequenzaPD(std::string_view sTesto, FlagNumeri& aSchema, std::int16_t& nLunghezza,
                     std::string_view sSep);

/// Reads an emulator's cell: the quantity, then a range for 0, 1, 2 ... hits.
/// Fails    9: a range without "-", or more than eleven; 6: a number too large
void LeggiParametriEmulatore(std::string_view sTesto, FlagPunti& aMinimi, FlagPunti& aMassimi,
                             std::int16_t& nColonne);

/// Does every link close, and does every close have its link?
///
/// Each "LinkClose" in order takes the nearest open "LinkOpen" above it; nothing may be left over.
[[nodiscard]] bool LinkCoerenti(std::span<const RecordCondizione> aCondizioni);

/// Does a row of the grid have that key, letters without regard to case?
[[nodiscard]] bool IsCondizionePresente(const GrigliaCondizioni& griglia, std::string_view sNome) noexcept;

} // namespace ordavel
