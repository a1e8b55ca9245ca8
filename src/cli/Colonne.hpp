// Colonne.hpp - the commands that show the columns of a file.

#pragma once

#include "cli/Uscite.hpp"

#include <cstdint>
#include <string>

namespace ordavel::cli {

/// Which columns to show.
struct OpzioniVedi {
    std::string sFile;
    std::int32_t nDa = 1;
    std::int32_t nQuante = 21;
};

/// Writes a column file as text, a line each. An older file stays as it was until the new one is whole; Ctrl-C
/// keeps the lines that were written.
[[nodiscard]] eUscita Esporta(const std::string& sColonne, const std::string& sTesto);

/// Prints some columns of a file, each with its number.
[[nodiscard]] eUscita Vedi(const OpzioniVedi& opzioni);

} // namespace ordavel::cli
