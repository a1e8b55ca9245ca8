// ImportaArchivio.hpp - a draw archive made of a text.

#pragma once

#include "core/ModGiochi.hpp"
#include "persistenza/ModBaseDati.hpp"

#include <cstdint>
#include <string>

namespace ordavel {

/// What a text of draws holds.
struct RiassuntoEstrazioni {
    std::int64_t nEstrazioni = 0;
    Estrazione prima{};
    Estrazione ultima{};
};

/// Reads a text to its end and keeps nothing of it: for who wants to see before he replaces.
/// Fails    53, 57, 70, 75, 76: the text cannot be read; TestoErrato: what is wrong with a line of it
[[nodiscard]] RiassuntoEstrazioni EsaminaTesto(const std::string& sTesto, const ProfiloGioco& gioco);

/// Makes an archive of a text; an older one is replaced in one step, and stays as it was when anything fails.
/// Gives    how many draws it has
/// Fails    as EsaminaTesto and ControllaUscita do; 57, 61: it cannot be written
std::int64_t CreaArchivio(const std::string& sTesto, const ProfiloGioco& gioco, const std::string& sArchivio);

} // namespace ordavel
