// ModConfronto.hpp - one column against every condition, and the names of conditions in the analyses.

#pragma once

#include "ordavel/Controlli.hpp"
#include "ordavel/GrigliaCondizioni.hpp"
#include "ordavel/StatoSviluppo.hpp"

#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace ordavel {

/// Colours of the verdicts: satisfied, recovered, failed.
inline constexpr Colore kColoreSuperata = 65280;
inline constexpr Colore kColoreRecuperata = 65535;
inline constexpr Colore kColoreScartata = 255;

/// The name of a kind in the analyses. The kinds 20 to 26 and 35 to 37 have none, and none is wanted.
[[nodiscard]] std::string_view NomeCondizione(TipoCondizione tipo) noexcept;

/// Numbers of a column: the place of its last one that is not 0, at most 20.
[[nodiscard]] std::int16_t ClasseColonna(const Colonna& colonna) noexcept;

/// Compiles the conditions and tests one column, as it stands, in whatever order its numbers are.
///
/// The list gets a line for each condition: number, name, points, recovery, the value that was reached, "Si" or "No".
/// Links have only the first two. A column of zeros leaves the list empty.
/// Takes    aRigheQuadro   lines of the recovery board
///          stato          draws of the emulator
/// Gives    the indices of the records that cut the column, as RecordCheTagliano does
/// Changes  stato          the compiled conditions with their verdicts
/// Fails    as compiling and VerificaColonna do; 9: an "Emulatore" while no draws were ever loaded
std::vector<std::size_t> ConfrontaCondizioni(const Colonna& colonna, const GrigliaCondizioni& griglia,
                                             std::span<const std::string> aRigheQuadro, StatoSviluppo& stato,
                                             Elenco& oLista);

/// Why the column that was tested last is no column of the system.
///
/// A condition cuts by itself when no link holds it. What stands in a link is counted there, so a link cuts as a
/// whole and is named by its "LinkClose"; of links one in the other the outermost speaks. Without cuts the column
/// passes.
/// Takes    stato   verdicts of a column. Links that do not close one another cut nothing: every record stands
///                  for itself
/// Gives    indices of records, from 0, ascending
/// Fails    9: more satisfied conditions than a link can list
[[nodiscard]] std::vector<std::size_t> RecordCheTagliano(StatoSviluppo& stato);

} // namespace ordavel
