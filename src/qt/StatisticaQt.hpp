// StatisticaQt.hpp - the statistics of a component on Qt's desktop: a window with the chart of a kind.

#pragma once

#include "ordavel/Piattaforma.hpp"

#include <cstdint>
#include <functional>
#include <string>

namespace ordavel::qt {

class PiattaformaQt;

class StatisticaQt : public Statistica {
public:
    /// The path of the archive of a game, from 1; empty when none is set.
    using ArchivioDi = std::function<std::string(std::int16_t nGioco)>;

    /// Takes    piattaforma   outlives it
    StatisticaQt(PiattaformaQt& piattaforma, ArchivioDi archivioDi);

    void Avvia() override {}
    void Ferma() override {}

    /// Shows the window and waits until it is closed; a box when there is nothing to show.
    void MostraStatistica(std::int32_t nIdStatistica, std::int16_t nGioco) override;

private:
    PiattaformaQt& m_Piattaforma;
    ArchivioDi m_ArchivioDi;
};

} // namespace ordavel::qt
