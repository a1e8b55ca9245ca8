// Problema.hpp - the columns of a file as sets of numbers, and what is asked of their reduction.
//
// Two columns with the same numbers cover and are covered alike, so they are one set here, with the first of them to
// stand for all. Columns with fewer numbers than are required cover nothing, not even themselves: they stay in the
// output and are no part of the search.
//
// Words. «place»: a number by its rank among those that occur, the rarest first, so that the places of v numbers are
// 0 to v-1. «cover»: a set covers another when they have the required numbers in common; this is mutual.

#pragma once

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace ordavel::trvrdcol {

inline constexpr std::size_t kByteRecord = 20;
inline constexpr std::size_t kPostiMassimi = 90;

/// A column as it stands in a file.
using Record = std::array<std::uint8_t, kByteRecord>;

/// Index of a set or of a record.
using Indice = std::uint32_t;
inline constexpr Indice kNessuno = ~Indice{0};

/// A set of places: bit p of 128.
struct Maschera {
    std::uint64_t nBassa = 0;
    std::uint64_t nAlta = 0;

    friend bool operator==(const Maschera&, const Maschera&) = default;

    void Metti(unsigned nPosto) noexcept
    {
        (nPosto < 64 ? nBassa : nAlta) |= std::uint64_t{1} << (nPosto & 63U);
    }
    [[nodiscard]] bool Contiene(unsigned nPosto) const noexcept
    {
        return (((nPosto < 64 ? nBassa : nAlta) >> (nPosto & 63U)) & 1U) != 0;
    }
    [[nodiscard]] int Quanti() const noexcept { return std::popcount(nBassa) + std::popcount(nAlta); }
};

/// How many places two sets have in common.
[[nodiscard]] inline int Comuni(const Maschera& a, const Maschera& b) noexcept
{
    return std::popcount(a.nBassa & b.nBassa) + std::popcount(a.nAlta & b.nAlta);
}

/// The places of a set, ascending.
struct Posti {
    std::array<std::uint8_t, kByteRecord> aPosti{};
    std::size_t nPosti = 0;

    explicit Posti(const Maschera& insieme) noexcept
    {
        for (std::uint64_t n = insieme.nBassa; n != 0; n &= n - 1) {
            aPosti[nPosti++] = static_cast<std::uint8_t>(std::countr_zero(n));
        }
        for (std::uint64_t n = insieme.nAlta; n != 0; n &= n - 1) {
            aPosti[nPosti++] = static_cast<std::uint8_t>(64 + std::countr_zero(n));
        }
    }
};

/// The class of a file: the last position of its first record whose byte is not 0, from 1; 0 when there is none.
[[nodiscard]] std::size_t ClasseRecord(std::span<const Record> aRecord) noexcept;

/// How many numbers two records have in common, each counted once. This is the plain definition that every result is
/// checked against.
[[nodiscard]] int NumeriComuni(const Record& a, const Record& b, std::size_t nClasse) noexcept;

/// The search that a file asks for.
struct Problema {
    /// Takes    aRecord   the whole file
    ///          nPunti    1 to nClasse: the numbers that must be in common
    ///          nClasse   1 to 20
    Problema(std::span<const Record> aRecord, int nPuntiRichiesti, std::size_t nClasse);

    [[nodiscard]] std::size_t Quanti() const noexcept { return aInsiemi.size(); }

    /// Adds the missing sets behind the others, when these are nearly all the sets of their size.
    /// Gives    false when they are not, or none is missing: nothing is changed then
    bool Completa();

    int nPunti;
    unsigned nPosti = 0;                      ///< different numbers that occur
    int nGrandezza = 0;                       ///< of the largest set
    bool bStessaGrandezza = true;             ///< have all sets that many places?
    std::vector<Maschera> aInsiemi;           ///< all different
    std::vector<std::uint32_t> aMolteplicita; ///< records with the numbers of a set
    std::vector<Indice> aRecordDi;            ///< the first of them
    std::vector<Indice> aInsiemeDi;           ///< the set of each record, or kNessuno
    std::vector<Indice> aFissi;               ///< records without a set, ascending
};

/// Finds sets by their places.
class Dizionario {
public:
    Dizionario() = default;
    explicit Dizionario(std::size_t nQuanti);

    /// The index of a set among aInsiemi, or kNessuno.
    [[nodiscard]] Indice Trova(std::span<const Maschera> aInsiemi, const Maschera& insieme) const noexcept
    {
        return m_aCelle[Cella(aInsiemi, insieme)];
    }

    /// Makes nIndice known as the index of aInsiemi[nIndice], unless an equal set is known.
    /// Gives    the index that is known for such a set
    Indice Aggiungi(std::span<const Maschera> aInsiemi, Indice nIndice) noexcept;

private:
    [[nodiscard]] std::size_t Cella(std::span<const Maschera> aInsiemi,
                                    const Maschera& insieme) const noexcept;

    std::vector<Indice> m_aCelle{kNessuno, kNessuno};
};

} // namespace ordavel::trvrdcol
