// ConfrontoPiano.hpp - the streaming reduction as it is defined: each column against all that were kept before it.
//
// This is the truth that the reduction by tables is held against, and what runs when there is no memory to give to a
// table. Its cost is the product of columns and columns kept.

#pragma once

#include "riduzione/BlocchiColonne.hpp"
#include "riduzione/NumeriComuni.hpp"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace ordavel {

class ConfrontoPiano {
public:
    /// Takes    ridotte   where columns are kept, and those kept so far
    ///          nClasse   0 to 20
    ///          nPunti    numbers in common from which a column is dropped
    ///          nBlocco   columns of the output that are read back at once
    ConfrontoPiano(ColonneRidotte& ridotte, std::int16_t nClasse, std::int32_t nPunti,
                   std::size_t nBlocco = kColonneBlocco);

    /// Keeps a column that has fewer than nPunti numbers in common with each one kept before it: first those that
    /// wait, from the newest to the oldest, then those in the file, block by block from its end.
    /// Fails    57, 61
    void ConfrontaColonnaRidotta(const Colonna& colonna);

private:
    [[nodiscard]] bool Copre(std::span<const Colonna> aTenute) const;
    [[nodiscard]] bool CopreIlFile();

    ColonneRidotte& m_Ridotte;
    NumeriMarcati m_Marcati;
    std::int32_t m_nPunti;
    std::int64_t m_nBlocco;
    std::vector<Colonna> m_aBlocco; ///< empty until something is read back
};

} // namespace ordavel
