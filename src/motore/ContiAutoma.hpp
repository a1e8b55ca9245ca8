// ContiAutoma.hpp - what an automaton has counted up to a column of the enumeration.
//
// The counts of all columns in front of one follow from those behind the states on its way, so that no column has to be
// looked at: at each position, the columns whose number there is a smaller one.

#pragma once

#include "motore/Automa.hpp"

#include <cstddef>
#include <optional>

namespace ordavel {

/// A column by the places of its numbers, ascending.
using PostiColonna = std::array<std::size_t, static_cast<std::size_t>(kClasseMassima)>;

class ContiAutoma {
public:
    /// Takes    automa   prepared, with states; outlives it
    explicit ContiAutoma(const Automa& automa) noexcept : m_Automa(&automa) {}

    /// Counts of all columns up to one, that one included.
    /// Takes    aPosti     [class] the places of the column
    ///          nDiversi   from which position on they differ from those of the call before; 0 at first
    [[nodiscard]] Conti FinoA(const PostiColonna& aPosti, std::size_t nDiversi) noexcept;

    /// Columns that pass in front of the one that is number nRec of those that recover.
    /// Takes    nRec   from 1
    [[nodiscard]] std::uint64_t OkDavanti(std::uint64_t nRec) const;

    /// Does the last column that does not pass recover?
    /// Takes    nColonne   columns examined, from the first on
    ///          conti      of all of them
    /// Gives    nothing when all of them pass
    [[nodiscard]] std::optional<bool> UltimaRecupera(std::uint64_t nColonne, Conti conti) const;

    /// The first column that fails.
    /// Gives    nothing when none does
    [[nodiscard]] std::optional<PostiColonna> PrimaRotta() const;

private:
    /// Which columns are looked for.
    enum class eQuali : std::uint8_t { recuperate, scartate };

    [[nodiscard]] Conti Ultimo(std::size_t nDa, std::size_t nPosto) const noexcept;
    [[nodiscard]] std::uint64_t QuanteDa(eQuali quali, std::size_t nDati, std::uint32_t nStato,
                                         std::size_t nPosto) const noexcept;
    [[nodiscard]] PostiColonna Trova(eQuali quali, std::uint64_t nQuale) const;

    const Automa* m_Automa;
    std::array<std::uint32_t, static_cast<std::size_t>(kClasseMassima)>
        m_aStati{};                                                           ///< in front of each position
    std::array<Conti, static_cast<std::size_t>(kClasseMassima)> m_aDavanti{}; ///< in front of each position
};

} // namespace ordavel
