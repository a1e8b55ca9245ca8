// ControlloParametri.hpp - is a parameter string what a kind of condition takes?

#pragma once

#include "ordavel/records.hpp"

#include <cstdint>
#include <string>
#include <string_view>

namespace ordavel::cli {

/// A parameter string with its line breaks as the system wants them: CR LF for a lone LF and for "\n" in letters.
[[nodiscard]] std::string ConRigheIntere(std::string_view sParam);

/// Does the kind take a parameter string at all? A "LinkOpen" asks nothing and takes an empty one.
[[nodiscard]] bool PrendeParametri(TipoCondizione tipo);

/// Looks at a string that the component would take as it comes.
/// Throws   TestoErrato: it has not the form of the kind, or a value beyond the class
void ControllaParametri(TipoCondizione tipo, std::string_view sParam, std::int16_t nClasse);

} // namespace ordavel::cli
