// ArchivioProprieta.hpp - where a host keeps the settings of a component: texts by their keys.

#pragma once

#include "ordavel/esporta.hpp"

#include <optional>
#include <string>
#include <string_view>

namespace ordavel {

class ORDAVEL_EXPORT ArchivioProprieta {
public:
    ArchivioProprieta() = default;
    ArchivioProprieta(const ArchivioProprieta&) = delete;
    ArchivioProprieta& operator=(const ArchivioProprieta&) = delete;
    virtual ~ArchivioProprieta();

    /// Gives    the value; nothing for a key that was never written
    [[nodiscard]] virtual std::optional<std::string> Leggi(std::string_view sChiave) const = 0;
    virtual void Scrivi(std::string_view sChiave, const std::string& sValore) = 0;
};

} // namespace ordavel
