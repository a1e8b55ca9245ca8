// NucleiBlocchi.hpp - the inner loops of the block form, one set of them for each instruction set.
//
// A block is all columns that follow a beginning of class - 2 numbers. Every operation goes over the words of its rows
// from the first place of the next-to-last number on; words in front of it are neither read nor written.

#pragma once

#include "core/ModProcessore.hpp"
#include "motore/GruppoParole.hpp"
#include "motore/VerdettoBlocchi.hpp"

#include <span>

namespace ordavel {

/// Masks of a block, one row or more, by condition.
using Righe = std::span<const MaschereRiga* const>;

/// What recovery and links read, by record.
struct RigheVerdetto {
    Righe aOk;  ///< columns that satisfy it
    Righe aRec; ///< columns inside its recovery zone
};

struct NucleoBlocchi {
    /// The columns of all rows; at least one row.
    /// Changes  tenute
    /// Gives    false when there are none
    bool (*incrocia)(const TrattiBlocco& tratti, Righe aRighe, MaschereRiga& tenute);
    /// How many columns all rows have in common; at least one row.
    std::uint64_t (*conta)(const TrattiBlocco& tratti, Righe aRighe);
    /// Takes from `tenute` what recovery and links do not let through.
    void (*componi)(const TrattiBlocco& tratti, const PianoVerdetto& piano, const RigheVerdetto& righe,
                    LavoroVerdetto& lavoro, MaschereRiga& tenute);
};

/// The loops for an instruction set.
[[nodiscard]] const NucleoBlocchi& ScegliNucleoBlocchi(eNucleo nucleo) noexcept;

} // namespace ordavel
