// ModRighe.hpp - what moves, counts and overwrites whole rows of the grid, and the lines of the board.
//
// Only texts move here; heights stay with their places (see GrigliaCondizioni.hpp). Nothing here selects a row
// or marks a system as changed: an operation tells which row to select, and its caller knows what it changed.
// Row 0 may be the selected one, and is then a row like the others: an insertion or a deletion there moves the
// headings.
//
// Words. «filled»: the cell "Condizione" is not empty, as it stands; the headings in row 0 count as filled. Keys are
// compared without regard to case.
// «board line»: "minimum,maximum,flag", the stored form of one recovery group; the n-th line is group n.

#pragma once

#include "ordavel/GrigliaCondizioni.hpp"

#include <span>
#include <string>
#include <string_view>

namespace ordavel {

/// The row for a new condition.
/// Gives    the selected row when it is empty behind a filled one, so that an insertion lands in the hole that
///          was opened for it; else the last such row of the grid; 0 when there is none, for a full grid
[[nodiscard]] std::int32_t TrovaRigaLibera(const GrigliaCondizioni& griglia);

/// The last filled row; 0 for an empty grid.
[[nodiscard]] std::int32_t UltimaRigaOccupata(const GrigliaCondizioni& griglia);

/// Rows from nRiga upward to the first "LinkOpen", which is not counted, or to row 1. Every other row counts,
/// inner links and empty rows too.
/// Takes    nRiga   the row above a "LinkClose"; below 1 gives 0
/// Fails    9: nRiga above 2000
[[nodiscard]] std::int16_t ContaCondizioniLink(const GrigliaCondizioni& griglia, std::int32_t nRiga);

/// Opens an empty row at the selected one: it and all behind it move one row on, and what row 2000 held is lost.
void InserisciRiga(GrigliaCondizioni& griglia);

/// Deletes the selected row: those behind it, up to the last filled one, move one row back.
///
/// The last filled row is emptied wherever the selected one is: with an empty row below the block selected, no
/// row moves and the last condition is gone. A grid without a filled row stays as it is.
/// Changes  the height of the selected row, which becomes normal
void EliminaCondizione(GrigliaCondizioni& griglia);

/// Deletes rows nDalla to nAlla: the filled rows behind them, up to the first empty one, move to their place.
/// Takes    nDalla, nAlla   1..2000
/// Gives    the row to select, in front of the first one that was not filled again; 0 is the headings
/// Fails    9: a row outside 1..2000; 5: nAlla below nDalla. Then nothing was changed
[[nodiscard]] std::int32_t EliminaRangeCondizioni(GrigliaCondizioni& griglia, std::int32_t nDalla,
                                                  std::int32_t nAlla);

/// Writes the same points, recovery and group into rows nDalla to nAlla, whatever their kind; rows with "Link"
/// in their key stay as they are.
/// Fails    as EliminaRangeCondizioni
void ApplicaImpostaPunti(GrigliaCondizioni& griglia, std::int32_t nDalla, std::int32_t nAlla,
                         std::string_view sPunti, std::string_view sRecupero, std::string_view sQuadro);

/// A column that becomes a "Punti Col." condition.
struct ColonnaInGriglia {
    NumeriScelti aNumeri;  ///< its numbers from place 1 on, 0 behind the last
    std::string sPunti;    ///< cell "Punti"
    std::string sRecupero; ///< cell "Recupero", written whatever the group says
};

/// Writes columns as "Punti Col." conditions into rows nRiga, nRiga+1 ..., over whatever stands there.
/// Takes    nRiga     0 or more. A full grid gives 0 as its free row; the first column then goes over the
///                    headings and the others over rows 1, 2 ...
///          sQuadro   recovery group, the same for all
/// Gives    how many were written; less than all when row 2000 was passed
/// Fails    9: nRiga below 0, or a number outside 0..90. Columns in front of it stay written
[[nodiscard]] std::int32_t InserisciColonne(GrigliaCondizioni& griglia, std::int32_t nRiga,
                                            std::span<const ColonnaInGriglia> aColonne,
                                            std::string_view sQuadro);

/// How many columns the last "Emulatore" row asks for; 0 without one.
/// Fails    6: a row, the last or not, asks for more than 32767
[[nodiscard]] std::int16_t GetQuantitaColDaEmulareFromGrid(const GrigliaCondizioni& griglia);

/// One recovery group as its two boxes show it.
struct RigaQuadro {
    std::string sMinimo;
    std::string sMassimo;
    bool bInUso = false;

    [[nodiscard]] friend bool operator==(const RigaQuadro&, const RigaQuadro&) = default;
};

/// The board line of two boxes: in use when both hold more than blanks, whatever stands in them.
/// Gives    the values written back as numbers ("003" is "3"), as "2,5,-1"; "-1,-1,-0" for a group not in use
[[nodiscard]] std::string ScriviRigaQuadro(std::string_view sMinimo, std::string_view sMassimo);

/// The first three parts of a board line; in use when the third is not 0.
/// Fails    9: fewer than three parts; 6: the flag is too large
[[nodiscard]] RigaQuadro LeggiRigaQuadro(std::string_view sRiga);

/// Rows per recovery group.
using ConteggioRecuperi = Tabella<std::int32_t, 0, kGruppiRecupero>;

/// How many of the rows 1 to 2000 name each recovery group; cells without a number count at 0.
/// Fails    9: a group outside 0..20; 6: a number too large
[[nodiscard]] ConteggioRecuperi ContaRecuperi(const GrigliaCondizioni& griglia);

} // namespace ordavel
