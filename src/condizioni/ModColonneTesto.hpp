// ModColonneTesto.hpp - columns out of any text: a line is a column when a number from 1 to 90 stands in it.
//
// There is no fixed format. Runs of digits are the numbers, whatever stands between them: "1 2 3", "01.02.03"
// and "n. 7, 8" are all columns. Runs that are no number from 1 to 90 are dropped, and so are doubles.

#pragma once

#include "ordavel/records.hpp"

#include "core/FileBinario.hpp"

#include <functional>
#include <istream>
#include <string_view>

namespace ordavel {

/// The numbers of one line.
/// Changes  aNumeri, replaced whole: the numbers in ascending order from place 1 on, each once, 0 behind the
///          last; bTrovati, whether there is any
void GetArrayNumFromColonna(std::string_view sRiga, NumeriScelti& aNumeri, bool& bTrovati);

/// Bytes of a line that are kept to be shown.
inline constexpr std::size_t kByteRigaMostrata = 1024;

/// Takes one line with numbers in it.
/// Takes    sTesto    the line without its end, at most kByteRigaMostrata bytes of it; gone after the call. A
///                    longer line is not cut inside a UTF-8 character
///          aNumeri   the numbers of the whole line, as GetArrayNumFromColonna gives them
/// Gives    whether to read on
using RicevutaColonna = std::function<bool(std::string_view sTesto, const NumeriScelti& aNumeri)>;

/// Hands over every line of a text that has a number in it; the others are passed over. CR and LF, alone or
/// together, end a line, and so does the end of the text.
/// Takes    file   read from its start
/// Fails    57; whatever `ricevuta` throws. The lines in front of the failure were handed over
/// Cost     memory of one block and one shown line, whatever the length of the text and of its lines
void LeggiColonneTesto(std::istream& ingresso, const RicevutaColonna& ricevuta);
void LeggiColonneTesto(FileBinario& file, const RicevutaColonna& ricevuta);

} // namespace ordavel
