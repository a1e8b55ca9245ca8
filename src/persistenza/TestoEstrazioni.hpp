// TestoEstrazioni.hpp - draws as a text, read with a check of every line, and written.
//
// The text has a heading, "Data" and a name for each number of the record ("Bari1" to "Nazionale5" for "Lotto", else
// "N1", "N2" ...), and a line for each draw, oldest first. ";", "," or a tab stands between the parts; an absent
// number is 0 or nothing. The date is for the reader: an archive keeps none, and none comes out of it.

#pragma once

#include "core/ModGiochi.hpp"
#include "persistenza/ModBaseDati.hpp"

#include <cstdint>
#include <functional>
#include <istream>
#include <string>
#include <vector>

namespace ordavel {

/// Draws that are held at once, out of however many.
inline constexpr std::int32_t kEstrazioniBlocco = 10000;

/// What is done with draws that were read, at most kEstrazioniBlocco at a time.
using RiceviEstrazioni = std::function<void(const std::vector<Estrazione>&)>;

/// Reads a text of draws to its end.
/// Takes    sNome    what the text is called when it cannot be read
///          ricevi   gets the draws in their order
/// Gives    how many there were
/// Fails    TestoErrato: what is wrong with a line, and its number; 57: the text cannot be read to its end; as `ricevi` does
[[nodiscard]] std::int64_t LeggiTestoEstrazioni(std::istream& ingresso, const std::string& sNome,
                                                const ProfiloGioco& gioco, const RiceviEstrazioni& ricevi);

/// The heading, with its line end.
[[nodiscard]] std::string IntestazioneEstrazioni(const ProfiloGioco& gioco);

/// The line of a draw, without a date, with its line end.
[[nodiscard]] std::string LineaEstrazione(const ProfiloGioco& gioco, const Estrazione& estrazione);

} // namespace ordavel
