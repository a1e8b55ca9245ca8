// ContiCompagni.hpp - what a condition on numbers and their partners has counted up to a column of the enumeration.
//
// Such a condition sees how many pairs of partners a column holds. How many columns behind a beginning hold so many
// follows from how many of the picks behind it wait for a partner in the beginning, have theirs among each other, or
// have none: so the columns in front of one are counted without a walk, at each position those whose number there is a
// smaller one.

#pragma once

#include "motore/ContiAutoma.hpp"

#include <span>
#include <vector>

namespace ordavel {

class ContiCompagni {
public:
    /// Is a condition one of these?
    [[nodiscard]] static bool Adatta(TipoCondizione tipo) noexcept;

    /// Takes    record    one for which Adatta
    ///          nClasse   2..10
    ///          aScelti   the picks, ascending, at least nClasse and at most 90
    ContiCompagni(const RecordCondizione& record, std::int16_t nClasse,
                  std::span<const std::uint8_t> aScelti);

    /// Counts of all columns up to one, that one included.
    /// Takes    aPosti   [class] the places of the column
    [[nodiscard]] Conti FinoA(const PostiColonna& aPosti) const;

private:
    [[nodiscard]] Conti Dietro(std::span<const std::size_t> aInizio) const;
    [[nodiscard]] Conti Quante(std::size_t nCoppie, std::uint64_t nColonne) const;

    std::size_t m_nClasse;
    FlagPunti m_aOk;
    FlagPunti m_aRec;
    std::vector<std::size_t>
        m_aCompagni; ///< by place: the place of the partner; picks when it was not picked
};

} // namespace ordavel
