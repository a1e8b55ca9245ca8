// Maschera.hpp - sets of places as bits, and rows of them.
//
// «place»: index of a pick, from 0. Place 0 is the highest bit (bit picks - 1), so that a low word serves all places but
// the first few of many picks, and the order of the columns is that of the bits from the highest down.

#pragma once

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>

namespace ordavel {

inline constexpr std::uint64_t kTuttiBit = ~std::uint64_t{0};

/// A mask in two words: the places from the 65th last on, and the last 64.
struct Maschera {
    std::uint64_t nAlta = 0;
    std::uint64_t nBassa = 0;

    [[nodiscard]] constexpr bool Vuota() const noexcept { return (nAlta | nBassa) == 0; }
    [[nodiscard]] friend constexpr Maschera operator&(Maschera a, Maschera b) noexcept
    {
        return {a.nAlta & b.nAlta, a.nBassa & b.nBassa};
    }
    [[nodiscard]] friend constexpr Maschera operator|(Maschera a, Maschera b) noexcept
    {
        return {a.nAlta | b.nAlta, a.nBassa | b.nBassa};
    }
    [[nodiscard]] friend constexpr bool operator==(Maschera, Maschera) = default;
};

/// The bits of a that are not in b.
[[nodiscard]] constexpr Maschera Senza(Maschera a, Maschera b) noexcept
{
    return {a.nAlta & ~b.nAlta, a.nBassa & ~b.nBassa};
}

[[nodiscard]] constexpr std::uint64_t QuantiBit(Maschera maschera) noexcept
{
    return static_cast<std::uint64_t>(std::popcount(maschera.nAlta)) +
           static_cast<std::uint64_t>(std::popcount(maschera.nBassa));
}

/// The last place of a mask alone: the lowest bit.
[[nodiscard]] constexpr Maschera Ultima(Maschera maschera) noexcept
{
    const auto basso = [](std::uint64_t n) { return n & (~n + 1); };
    return maschera.nBassa != 0 ? Maschera{0, basso(maschera.nBassa)} : Maschera{basso(maschera.nAlta), 0};
}

/// The places in front of the only one of a mask: the bits above.
[[nodiscard]] constexpr Maschera Davanti(Maschera bit) noexcept
{
    const auto sopra = [](std::uint64_t n) { return ~(n | (n - 1)); };
    return bit.nBassa != 0 ? Maschera{kTuttiBit, sopra(bit.nBassa)} : Maschera{sopra(bit.nAlta), 0};
}

/// The bit of a place among nScelti picks.
[[nodiscard]] constexpr Maschera BitDelPosto(std::size_t nScelti, std::size_t nPosto) noexcept
{
    const std::size_t nBit = nScelti - 1 - nPosto;
    return nBit >= 64 ? Maschera{std::uint64_t{1} << (nBit - 64), 0} : Maschera{0, std::uint64_t{1} << nBit};
}

/// All places from one on; none from nScelti on.
[[nodiscard]] constexpr Maschera PostiDa(std::size_t nScelti, std::size_t nPosto) noexcept
{
    const std::size_t nQuanti = nScelti - nPosto;
    const auto sotto = [](std::size_t n) { return n >= 64 ? kTuttiBit : (std::uint64_t{1} << n) - 1; };
    return {nQuanti > 64 ? sotto(nQuanti - 64) : 0, sotto(nQuanti)};
}

/// All places above one.
[[nodiscard]] constexpr Maschera PostiSopra(std::size_t nScelti, std::size_t nPosto) noexcept
{
    return PostiDa(nScelti, nPosto + 1);
}

/// Is a place in a mask?
[[nodiscard]] constexpr bool Contiene(Maschera maschera, std::size_t nScelti, std::size_t nPosto) noexcept
{
    return !(maschera & BitDelPosto(nScelti, nPosto)).Vuota();
}

/// Eight places of next-to-last numbers are looked at together, from any place on: so much stands behind the last.
inline constexpr std::size_t kAffiancate = 8;
inline constexpr std::size_t kPostiRiga = 96 + kAffiancate;
/// Places of which the high word can hold anything: with 90 picks, those up to 25.
inline constexpr std::size_t kPostiAlti = 32 + kAffiancate;

/// Masks that follow a beginning, by place of the next-to-last number.
struct MaschereRiga {
    std::array<std::uint64_t, kPostiRiga> aBasse{};
    std::array<std::uint64_t, kPostiAlti> aAlte{};

    void Poni(std::size_t nPosto, Maschera maschera) noexcept
    {
        aBasse[nPosto] = maschera.nBassa;
        if (nPosto < kPostiAlti) {
            aAlte[nPosto] = maschera.nAlta;
        }
    }
    [[nodiscard]] Maschera operator[](std::size_t nPosto) const noexcept
    {
        return {nPosto < kPostiAlti ? aAlte[nPosto] : 0, aBasse[nPosto]};
    }
};

} // namespace ordavel
