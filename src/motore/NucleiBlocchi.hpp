// NucleiBlocchi.hpp - the inner loop of the block form, one for each instruction set.

#pragma once

#include "core/ModProcessore.hpp"
#include "motore/Automa.hpp"

namespace ordavel {

/// One number a lane, for eight next-to-last numbers side by side.
using Corsie = std::array<std::uint64_t, kAffiancate>;

/// A condition in a block.
struct VoceBlocco {
    const RigaAutoma* riga = nullptr;
    Corsie aOk{};  ///< columns that passed, to be added up over the lanes
    Corsie aRec{}; ///< columns inside the recovery zone
};

/// A block: all columns that follow a beginning of class - 2 numbers, or a run of them.
struct Blocco {
    std::size_t nPrimo = 0;               ///< first place of the next-to-last number
    std::size_t nScelti = 0;              ///< picks
    bool bIntero = true;                  ///< all columns of the beginning take part
    const MaschereRiga* attive = nullptr; ///< columns that take part
    MaschereRiga tenute; ///< those of them that satisfy every condition; valid from the first place on
};

/// Counts what each condition passes and recovers, and leaves in `tenute` what all of them pass.
using NucleoBlocchi = void (*)(std::span<VoceBlocco> aVoci, Blocco& blocco);

/// The loop for an instruction set.
[[nodiscard]] NucleoBlocchi ScegliNucleoBlocchi(eNucleo nucleo) noexcept;

} // namespace ordavel
