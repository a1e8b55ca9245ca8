// ModConfronto.hpp - one column against every condition, and the names of conditions in the analyses.

#pragma once

#include "ordavel/Controlli.hpp"
#include "ordavel/GrigliaCondizioni.hpp"
#include "ordavel/StatoSviluppo.hpp"

#include <span>
#include <string>
#include <string_view>

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
/// Changes  stato          the compiled conditions with their verdicts
/// Fails    as compiling and VerificaColonna do; 9: an "Emulatore" while no draws were ever loaded
void ConfrontaCondizioni(const Colonna& colonna, const GrigliaCondizioni& griglia,
                         std::span<const std::string> aRigheQuadro, StatoSviluppo& stato, Elenco& oLista);

} // namespace ordavel
