// StampaElenco.hpp - a report list for people to read, and as JSON.

#pragma once

#include "ordavel/Controlli.hpp"

#include <nlohmann/json.hpp>

#include <ostream>
#include <string_view>

namespace ordavel::cli {

/// A list under a title, its columns aligned.
void StampaElenco(std::ostream& uscita, std::string_view sTitolo, const Elenco& elenco);

/// An array of objects, one a line, by the headings; headings that come again get the one in front of them as well.
[[nodiscard]] nlohmann::ordered_json ElencoComeJson(const Elenco& elenco);

} // namespace ordavel::cli
