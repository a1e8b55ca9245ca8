// VerdettoBlocchi.hpp - recovery and links over words of columns, one bit a column.
//
// How the links collapse depends on their order alone, so it is worked out once, as a list of blocks, each with the
// slots that it counts. A slot is a condition or a block that has collapsed before.

#pragma once

#include "ordavel/StatoSviluppo.hpp"

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace ordavel {

class VerdettoBlocchi {
public:
    /// Takes    stato   compiled conditions and the board; outlives it
    explicit VerdettoBlocchi(const StatoSviluppo& stato);

    /// Can every column be judged this way? Not when a count may fall outside a link's list, nor when a record's group
    /// is none.
    [[nodiscard]] bool Possibile() const noexcept { return m_bPossibile; }

    /// Does every condition have to hold by itself?
    [[nodiscard]] bool Semplice() const noexcept { return m_bSemplice; }

    /// The columns that pass.
    /// Takes    aOk, aRec   a word for each record: columns that satisfy it, columns inside its recovery zone
    /// Changes  aOk         recovered columns count as satisfied
    [[nodiscard]] std::uint64_t Giudica(std::span<std::uint64_t> aOk, std::span<const std::uint64_t> aRec);

private:
    /// A link: which slots it counts, and the list that it is judged by.
    struct BloccoLink {
        std::vector<std::size_t> aPosti;
        const FlagNumeri* aLista = nullptr;
    };
    struct GruppoRecupero {
        std::vector<std::size_t> aMembri;
        std::int32_t nMinimo = 0;
        std::int32_t nMassimo = 0;
    };
    /// A count for each bit, as binary digits.
    using Cifre = std::vector<std::uint64_t>;

    void PreparaGruppi(const StatoSviluppo& stato);
    void PreparaLink(const StatoSviluppo& stato);
    void ContaBit(std::span<const std::size_t> aPosti, std::span<const std::uint64_t> aParole);
    [[nodiscard]] std::uint64_t Almeno(std::int64_t nValore) const;
    [[nodiscard]] std::uint64_t Uguale(std::size_t nValore) const;

    bool m_bPossibile = true;
    bool m_bSemplice = true;
    std::vector<GruppoRecupero> m_aGruppi;
    std::vector<BloccoLink> m_aLink;
    std::vector<std::size_t> m_aFinali; ///< slots that must hold in the end
    std::vector<std::uint64_t> m_aPosti;
    Cifre m_aCifre;
};

} // namespace ordavel
