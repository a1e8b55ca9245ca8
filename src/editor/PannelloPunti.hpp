// PannelloPunti.hpp - points for many conditions at once: boxes 0 to 10 for accepted values and for recovery.

#pragma once

#include "editor/RegolaEsclusione.hpp"

#include <string>

namespace ordavel {

/// The boxes of a panel that writes the same points into many rows.
class ORDAVEL_EXPORT PannelloPunti {
public:
    /// Makes the boxes and hides those above the class.
    explicit PannelloPunti(std::int16_t nClasse);

    /// The ticked values, hidden boxes too.
    [[nodiscard]] std::string Punti() const;
    [[nodiscard]] std::string Recupero() const;

    SerieSpunte ChkPunti;
    SerieSpunte ChkRecupero;
    Combo CmbRecupero;

private:
    RegolaEsclusione m_Esclusione;
};

} // namespace ordavel
