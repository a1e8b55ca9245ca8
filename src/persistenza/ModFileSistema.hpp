// ModFileSistema.hpp - the system file: header, recovery table, compiled conditions, and perhaps columns.
//
// There is no version and no count: the number of conditions follows from the length of the part in front of
// the columns, (length - 317) / 334. Any length that does not fit is a format no longer supported.
// See docs/formati/sistema.md.

#pragma once

#include "ordavel/records.hpp"

#include "core/FileBinario.hpp"

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace ordavel {

/// What is said of a length that does not fit.
inline constexpr std::string_view kFormatoNonSupportato =
    "Il sistema scelto è salvato in formato non più supportato";

/// The system part of a file, everything but the columns.
struct ParteSistema {
    std::int16_t nClasse = 0;
    std::int16_t nRiduzione = 0;
    Tabella<Booleano, 1, kNumeroMassimo> aNumeri; ///< per number, -1 picked and 0 not
    QuadroRecuperi aQuadroRec;
    std::vector<RecordCondizione> aCondizioni; ///< empty for a system without conditions

    [[nodiscard]] friend bool operator==(const ParteSistema&, const ParteSistema&) = default;
};

/// The bytes of a system part: 317 + 334 for each condition, marked "SISTOCX" at the start.
/// Takes    aCondizioni   apart from the rest, so that a caller's array need not be copied
[[nodiscard]] std::vector<std::byte> ComponiParteSistema(const ParteSistema& parte,
                                                         std::span<const RecordCondizione> aCondizioni);

/// The system part that these bytes are; no columns may follow. The mark at their start is not compared, and
/// the fields are taken as they stand, sensible or not.
/// Gives    nothing when their number is not 317 + N * 334, with N from 0 to 2000
[[nodiscard]] std::optional<ParteSistema> LeggiParteSistema(std::span<const std::byte> aByte);

/// The same from an open file, whatever its length: what stands in front of its columns is read, or nothing.
/// Gives    nothing when the length in front of the columns is not 317 + N * 334, with N from 0 to 2000
/// Fails    57
[[nodiscard]] std::optional<ParteSistema> LeggiParteSistema(FileBinario& file);

} // namespace ordavel
