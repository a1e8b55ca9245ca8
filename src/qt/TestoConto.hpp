// TestoConto.hpp - counts in words: how many columns pass, and what a condition cuts.

#pragma once

#include "ordavel/ContaSistema.hpp"

#include <QString>

namespace ordavel::qt {

/// A share as a percentage, "2,81 %"; one that is not 0 but would read so is "< 0,01 %".
/// Takes    nQuota      0 to 1
///          nDecimali   figures behind the comma
[[nodiscard]] QString TestoPercentuale(double nQuota, int nDecimali);

/// "Passano: 1.234.567 su 43.949.268 (2,81 %)", or, of an estimate, "Passano circa 1.234.000 (± 12.000)".
[[nodiscard]] QString TestoPassano(const ConteggioSistema& conto);

/// The same with all that is known, also of an estimate: out of how many, and the share.
[[nodiscard]] QString TestoPassanoIntero(const ConteggioSistema& conto);

/// "Taglia il 63,2 %" or, of an estimate, "Taglia circa il 63,2 %".
/// Takes    nQuota   of the columns examined, those that a condition rejects; 0 to 1
[[nodiscard]] QString TestoTaglio(double nQuota, bool bEsatto);

} // namespace ordavel::qt
