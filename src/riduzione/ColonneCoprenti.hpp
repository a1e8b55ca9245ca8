// ColonneCoprenti.hpp - reduced columns, ready to say whether they cover another.

#pragma once

#include "riduzione/PostiColonna.hpp"
#include "riduzione/SottoinsiemiVisti.hpp"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace ordavel {

/// The numbers of a column as bits: bit n of the pair is number n.
struct MascheraColonna {
    std::uint64_t nBassa = 0; ///< 0 to 63
    std::uint64_t nAlta = 0;  ///< 64 to 127

    [[nodiscard]] bool Contiene(std::uint8_t nNumero) const noexcept
    {
        const std::uint64_t nParola = nNumero < 64 ? nBassa : nAlta;
        return nNumero < 128 && ((nParola >> (nNumero % 64U)) & 1U) != 0;
    }
};

/// Reduced columns, as many as the memory holds.
///
/// What counts of a reduced column is the set of its numbers, 1 to 90. A table of their sets of nPunti answers for a
/// column without repetition; where there are too many such sets, or a number stands twice, masks are gone through.
class ColonneCoprenti {
public:
    /// Takes    nClasse    0 to 20
    ///          nPunti     0 or more
    ///          nColonne   the most that will be added
    ///          nByte      half of it for the table, half for masks
    ColonneCoprenti(std::int16_t nClasse, std::int32_t nPunti, std::int64_t nColonne, std::size_t nByte);

    /// Does one of them have nPunti numbers in common with a column?
    [[nodiscard]] bool Copre(const Colonna& colonna) const
    {
        const PostiColonna posti(colonna, 1, m_nClasse);
        return m_bTabella && !posti.Ripetuti() ? m_Visti.Contiene(posti.Posti()) : CopreUnaMaschera(colonna);
    }

    /// Adds a reduced column. The first one after the start or after Svuota() always finds room.
    /// Gives    false when there is no room; then nothing was added
    [[nodiscard]] bool Aggiungi(const Colonna& ridotta);

    void Svuota() noexcept;

    [[nodiscard]] bool ATabella() const noexcept { return m_bTabella; }

private:
    [[nodiscard]] bool CopreUnaMaschera(const Colonna& colonna) const;

    std::int16_t m_nClasse;
    std::int32_t m_nPunti;
    bool m_bTabella;
    SottoinsiemiVisti m_Visti;
    std::size_t m_nMaschereMassime;
    std::vector<MascheraColonna> m_aMaschere;
};

} // namespace ordavel
