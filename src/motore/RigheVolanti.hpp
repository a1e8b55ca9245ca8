// RigheVolanti.hpp - rows of masks for the kinds without keys, made for one beginning after the other.
//
// Numbers and their partners, and the emulator, remember too much of a beginning for an automaton of few states. Their
// rows are made whole all the same: what a beginning decides is worked out once, and its two last numbers are judged
// many at a time. Each row is what the plain form says of every column of the beginning.

#pragma once

#include "motore/RigheCompagni.hpp"
#include "motore/RigheEmulate.hpp"

#include <variant>

namespace ordavel {

class RigheVolanti {
public:
    /// Is there a fast form for a condition and the draws of a state? None of its columns fails.
    [[nodiscard]] static bool Adatte(const RecordCondizione& record, const StatoSviluppo& stato);

    /// Takes    record    one for which Adatte
    ///          nClasse   2..10
    ///          aScelti   the picks, ascending, 2 to 90 of the numbers 1 to 90
    ///          stato     draws of the emulator; not kept
    ///          nucleo    one that this processor has
    RigheVolanti(const RecordCondizione& record, std::int16_t nClasse, std::span<const std::uint8_t> aScelti,
                 const StatoSviluppo& stato, eNucleo nucleo);

    /// The row of a beginning; it stays until the next call. Beginnings may come in any order; in that of the
    /// enumeration they share their first numbers, which makes the emulator fast.
    /// Takes    inizio   class - 2 of the picks, ascending
    ///          nPrimo   the first place of the next-to-last number; words in front of it hold anything, and all
    ///                   words behind that no column reaches are 0
    [[nodiscard]] const RigaAutoma& Riga(const Colonna& inizio, std::size_t nPrimo)
    {
        return std::visit([&](auto& righe) -> const RigaAutoma& { return righe.Riga(inizio, nPrimo); },
                          m_Righe);
    }

private:
    std::variant<RigheCompagni, RigheEmulate> m_Righe;
};

} // namespace ordavel
