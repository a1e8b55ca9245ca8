// Sviluppatore.hpp - a development from files to files.

#pragma once

#include "motore/SviluppoTratti.hpp"

#include <string>

namespace ordavel::torvansvilsist {

/// What a development reads and writes.
struct Richiesta {
    std::string sCartella;  ///< where "Sviluppo.col" and "Sviluppo.err" stand
    std::string sSistema;   ///< the system file
    std::string sEmulatore; ///< the draws of the emulator, or "-"
};

/// The threads that the environment grants: ORDAVEL_THREADS, 1 to 256; as many as the machine has when it is missing or
/// anything else, which is said on the error stream.
[[nodiscard]] unsigned FiliConcessi();

/// Runs a whole development; no failure passes.
/// Gives    0, or the number of the failure, whose reason stands in "Sviluppo.err" and on the error stream
[[nodiscard]] int SviluppaFile(const Richiesta& richiesta, ComandiTratti& comandi) noexcept;

} // namespace ordavel::torvansvilsist
