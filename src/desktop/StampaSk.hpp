// StampaSk.hpp - the columns of the component on slips: looked at, printed, or in a PDF.

#pragma once

#include <QString>

#include <cstdint>

class QWidget;

namespace ordavel {
class Ordavel;
class Segnalatore;
} // namespace ordavel

namespace ordavel::desktop {

enum class eStampa : std::uint8_t { anteprima, stampante, pdf };

/// Takes    sGioco        name of the game; empty for the component's
///          segnalatore   where failures of the column file are shown
/// Gives    false when there are no columns
/// Fails    57, 70, 75: the columns cannot be read; as the printing does
bool StampaColonne(eStampa come, Ordavel& ordavel, const QString& sGioco, Segnalatore& segnalatore,
                   QWidget* padre);

} // namespace ordavel::desktop
