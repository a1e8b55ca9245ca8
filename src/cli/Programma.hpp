// Programma.hpp - the command line: words in, exit code out.

#pragma once

namespace ordavel::cli {

/// Reads the words of a command line and does what they say.
/// Gives    the exit code, a value of eUscita
[[nodiscard]] int Esegui(int nArgomenti, const char* const* aArgomenti);

} // namespace ordavel::cli
