// ModRiduci2.hpp - the streaming reduction: first fit, in the order of the file, whatever its length.
//
// Of the columns of a file those are kept, in order, that have fewer than a number of points in common with every
// column kept before. What was kept is not scanned: a table of its sets of that many numbers says whether a new
// column shares one (SottoinsiemiVisti.hpp).
//
// A table may fill up. From there on what it does not rule out is written behind the columns kept, in order, as
// candidates, and takes part in a next pass with an empty table: those kept in earlier passes have already been asked.
// So each pass settles at least the first candidate, candidates move to the front in place, and memory stays bounded
// without a second file.

#pragma once

#include "riduzione/AvanzamentoRiduzione.hpp"
#include "riduzione/SottoinsiemiVisti.hpp"

#include <cstddef>
#include <cstdint>
#include <string>

namespace ordavel {

/// Reduces a column file into another.
///
/// The class is that of the first column, nPunti the class minus nRiduzione. The first column is always kept; nPunti
/// of 0 or less keeps no other. The numbers of a column are its first entries, as many as the class says, and a 0
/// among them is a number like others. Numbers above 90 are in common with nothing. A number that stands twice in a
/// column counts twice for those that come after it.
///
/// Shows a percentage and lets events run every 10000 columns and behind each block of 100000; the last percentage is
/// 0. Nothing stops it.
/// Takes    sFileInput     a column file; a rest of more than half a column at its end is one
///          sFileOutput    deleted first
///          nRiduzione     points that one is ready to give up; any number
///          nByteTabella   what the table may take; 0 for none, each column against all those kept
/// Fails    5: both are the same file, or the output's name holds a "*", which would delete others; 70: the output
///          cannot be deleted (also shown by KillFile); in all these nothing was deleted or written.
///          53, 57, 61, 70, 75, 76: reading, writing; the output is then not a reduction.
/// Cost     about C(class, nPunti) look-ups a column, for each time that the table fills up
void RiduzioneSequenziale(const std::string& sFileInput, const std::string& sFileOutput,
                          std::int32_t nRiduzione, AvanzamentoRiduzione& avanzamento,
                          std::size_t nByteTabella = kByteTabella);

} // namespace ordavel
