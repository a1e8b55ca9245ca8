// ModGaranzia.hpp - does a reduced file keep its promise?
//
// The promise: each column of the file that was reduced has at least a number of points in common with some column of
// the reduced one, however that was made.
//
// The class is the last position, 20 downward, of the first column that is not 0. The numbers of a column are its
// first entries, as many as the class says, of 1 to 90; a number that stands twice in a column of the first file
// counts twice.

#pragma once

#include "riduzione/AvanzamentoRiduzione.hpp"
#include "riduzione/SottoinsiemiVisti.hpp"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>

namespace ordavel {

/// What a check found.
struct EsitoGaranzia {
    std::int64_t nControllate = 0;   ///< columns of the file
    std::int64_t nScoperte = 0;      ///< those that no reduced column covers
    std::int64_t nPrimaScoperta = 0; ///< the first of them, from 1; 0 when there is none
    Colonna primaScoperta;           ///< its numbers

    [[nodiscard]] friend bool operator==(const EsitoGaranzia&, const EsitoGaranzia&) = default;
};

/// Holds a column file against its reduction.
///
/// The reduced columns are taken as many at once as the memory holds, and the file is read once for each such part.
/// Takes    sFile          the columns that were reduced
///          sFileRidotto   what was kept of them
///          nPunti         points promised; with 0 or less any reduced column covers all
///          nByte          memory for the reduced columns
/// Fails    53, 57, 70, 75, 76
/// Cost     about C(class, nPunti) look-ups for each column of both files; a look at each reduced column where that
///          is above 252 or a number stands twice. Besides nByte, one bit a column of the file
[[nodiscard]] EsitoGaranzia ControllaGaranzia(const std::string& sFile, const std::string& sFileRidotto,
                                              std::int32_t nPunti, std::size_t nByte = kByteTabella);

/// The same; shows a percentage and lets events run behind each block of 100000 columns. The last percentage is 0.
[[nodiscard]] EsitoGaranzia ControllaGaranzia(const std::string& sFile, const std::string& sFileRidotto,
                                              std::int32_t nPunti, AvanzamentoRiduzione& avanzamento,
                                              std::size_t nByte = kByteTabella);

/// The same over columns in memory.
/// Gives    the place of the first column that is not covered, from 0; nothing when all are
[[nodiscard]] std::optional<std::size_t> PrimaScoperta(std::span<const Colonna> aColonne,
                                                       std::span<const Colonna> aRidotte, std::int32_t nPunti,
                                                       std::size_t nByte = kByteTabella);

} // namespace ordavel
