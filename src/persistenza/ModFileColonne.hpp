// ModFileColonne.hpp - the column file: a plain run of 20-byte columns, no header, no trailer.
//
// The count of columns is the length divided by 20, the n-th column one seek away. Nothing in the file tells the
// class; it is read off the first column. See docs/formati/colonne.md.

#pragma once

#include "ordavel/records.hpp"

#include "core/FileBinario.hpp"

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace ordavel {

/// The most columns that are loaded into memory at once.
inline constexpr std::int32_t kColonneInMemoria = 1000000;

/// Length of a column file divided by 20, not rounded; 0 for a missing file.
[[nodiscard]] double NumeroColonneFile(const std::string& sPath);

/// The same; nothing when the file does not exist. Failures are shown under
/// "Mod_Sviluppo.GetNumeroColonneInFile" and give nothing.
[[nodiscard]] std::optional<double> GetNumeroColonneInFile(const std::string& sPath,
                                                           Segnalatore& segnalatore);

/// Class of the first column: the last position of 1 to 10 whose number is not 0; 0 when there is none or no
/// file. Failures are shown under "Mod_Sviluppo.GetNumeroColonneInFile" and give 0.
[[nodiscard]] std::int16_t GetClasseColonneInFile(const std::string& sPath, Segnalatore& segnalatore);

/// A column as text: numbers of two digits with a blank between them, "03 11 90".
/// Takes    aNumeri   [any length] the numbers
///          bTutti    also show the zeros, as "00"
/// Gives    an empty text for a column of zeros without bTutti
[[nodiscard]] std::string FormattaColonna(std::span<const std::uint8_t> aNumeri, bool bTutti);

/// The same, put behind what a text holds.
void AccodaColonnaFormattata(std::span<const std::uint8_t> aNumeri, bool bTutti, std::string& sTesto);

/// Column nId of an open column file, from 1. What the file does not hold reads as 0.
/// Fails    57: also when nId is below 1
[[nodiscard]] ORDAVEL_EXPORT Colonna LeggiColonna(FileBinario& file, std::int64_t nId);

/// The first nColonne columns of a file; what it does not hold reads as 0.
/// Takes    nColonne   0 or more; the caller sets the limit, kColonneInMemoria or its own
/// Fails    5: nColonne below 0; 53, 57, 70, 75, 76
[[nodiscard]] std::vector<Colonna> LeggiColonne(const std::string& sPath, std::int64_t nColonne);

/// Appends columns to an open file in one write.
/// Fails    57, 61
void AccodaColonne(FileBinario& file, std::span<const Colonna> aColonne);

/// Bytes of the marker that stands between a system and its columns.
inline constexpr std::string_view kMarcaColonne = "COLONNE";

/// Where the columns of a system file begin.
///
/// The marker is looked for in the first 66800 bytes, letters without regard to case; the first hit counts.
/// Gives    1-based position of the first column; 0 when there is no marker
[[nodiscard]] std::int64_t TrovaInizioColonne(FileBinario& sistema);

/// Bytes of a system file in front of its marker, or its whole length when it has none.
///
/// The marker is looked for exactly as written, as far as the longest system part reaches (2000 conditions),
/// so that a long system opens although its columns are out of reach.
[[nodiscard]] std::int64_t LunghezzaParteSistema(FileBinario& sistema);

/// Appends the marker and all columns of a column file to an open system file.
/// Fails    as CopiaBlocco and opening
void AppendiColonne(const std::string& sFileColonne, FileBinario& sistema);

/// Copies everything from nDa of a system file to a new column file. An old file of that name must be gone.
/// Takes    nDa   1-based position of the first column
void EstraiColonne(FileBinario& sistema, std::int64_t nDa, const std::string& sFileColonne);

} // namespace ordavel
