// GruppoParole.hpp - words of masks side by side, as vectors of the compiler.
//
// Loops over them are inline functions, called from one function for each instruction set (ModProcessore.hpp), with
// vectors as wide as its registers: wider ones the compiler would carry through memory. A vector is handed on by
// reference: by value its way would depend on the instruction set.

#pragma once

#include "motore/Maschera.hpp"

#include <cstring>
#include <type_traits>

namespace ordavel {

/// N words in one register.
template <std::size_t N> struct TipoVettore;
template <> struct TipoVettore<2> {
    using Tipo [[gnu::vector_size(16)]] = std::uint64_t;
};
template <> struct TipoVettore<4> {
    using Tipo [[gnu::vector_size(32)]] = std::uint64_t;
};
template <> struct TipoVettore<8> {
    using Tipo [[gnu::vector_size(64)]] = std::uint64_t;
};
template <std::size_t N> using Vettore = typename TipoVettore<N>::Tipo;

/// As many words as the widest vector holds, in memory.
using Corsie = std::array<std::uint64_t, kAffiancate>;

template <typename V> [[gnu::always_inline]] inline void Prendi(V& vettore, const std::uint64_t* aParole)
{
    std::memcpy(&vettore, aParole, sizeof vettore);
}

template <typename V> [[gnu::always_inline]] inline void Posa(const V& vettore, std::uint64_t* aParole)
{
    std::memcpy(aParole, &vettore, sizeof vettore);
}

/// Adds up bits. The widest registers count them for all lanes at once; the others had better take word by word.
template <std::size_t N> class ContaBit {
public:
    [[gnu::always_inline]] void Aggiungi(const Vettore<N>& vettore)
    {
        for (std::size_t i = 0; i < N; ++i) {
            m_Conto[N == kAffiancate ? i : 0] += static_cast<std::uint64_t>(__builtin_popcountll(vettore[i]));
        }
    }
    [[nodiscard, gnu::always_inline]] std::uint64_t Somma() const
    {
        std::uint64_t nSomma = 0;
        for (std::size_t i = 0; i < (N == kAffiancate ? N : 1); ++i) {
            nSomma += m_Conto[i];
        }
        return nSomma;
    }

private:
    std::conditional_t<N == kAffiancate, Vettore<N>, std::array<std::uint64_t, 1>> m_Conto{};
};

/// Is some bit set?
template <typename V> [[nodiscard, gnu::always_inline]] inline bool Qualcuno(const V& vettore)
{
    std::uint64_t nUnione = 0;
    for (std::size_t i = 0; i < sizeof(V) / sizeof(std::uint64_t); ++i) {
        nUnione |= vettore[i];
    }
    return nUnione != 0;
}

/// The words of a block from its first place on: so many, a multiple of kAffiancate.
struct Tratto {
    std::size_t nPrimo;
    std::size_t nParole;
};

/// Low and high words that the rows of a block have.
/// Takes    nPrimo    first place of the next-to-last number
///          nScelti   picks
struct TrattiBlocco {
    TrattiBlocco(std::size_t nPrimo, std::size_t nScelti) noexcept
        // The high word holds something as long as more than 64 places stand above.
        : basse{nPrimo, Parole(nPrimo, nScelti - 1)},
          alte{nPrimo, Parole(nPrimo, nScelti > 65 ? nScelti - 65 : 0)}
    {}

    Tratto basse;
    Tratto alte;

private:
    [[nodiscard]] static std::size_t Parole(std::size_t nPrimo, std::size_t nPosti) noexcept
    {
        return nPosti > nPrimo ? (nPosti - nPrimo + kAffiancate - 1) / kAffiancate * kAffiancate : 0;
    }
};

} // namespace ordavel
