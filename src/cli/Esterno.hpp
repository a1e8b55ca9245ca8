// Esterno.hpp - a development by the external engine, from the command line.

#pragma once

#include "cli/Sessione.hpp"

namespace ordavel::cli {

/// Chooses the external engine for the next development.
/// Throws   TestoErrato, with what to do: there is no library, or it lacks a function
void UsaMotoreEsterno(Sessione& sessione);

/// One round of events: while a run of the external engine is on its way, the bar shows how far it is and a stop that
/// was asked for reaches it. It may have come before the engine was ready for it, so it is told again.
/// Gives    false when no such run is on its way
bool SegueMotoreEsterno(Sessione& sessione);

/// Columns that the external engine has examined in its last run.
[[nodiscard]] double SviluppateEsterne();

/// Looks at what the external engine has left: "Sviluppo.err" says in its own words what went wrong.
/// Throws   TestoErrato: it has left that file, or no columns file
void ControllaMotoreEsterno(const ordavel::Ordavel& sistema);

} // namespace ordavel::cli
