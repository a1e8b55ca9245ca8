// NucleiEmulate.hpp - hits of many columns in the emulated draws at once, one kernel for each instruction set.
//
// Words. «place»: index of a pick, from 0. «lane»: one last number; lane b is the place picks - 1 - b, so that the lanes
// above a place are the first ones, and lane b becomes bit b of a mask. «hits»: numbers that a draw shares with a
// beginning.
//
// A beginning of class - 2 numbers is a stem and one more number z. Behind them stand y, the next-to-last, and x, the last
// number. One more number moves the draws that have it from j hits to j + 1. Let n(k) be the draws of k hits behind the
// stem, n(k|x) those behind the stem and x, and so on; q(k|yx) those of the n(k) that have both y and x. Then
//
//     n(k|yx)  = n(k|y) + n(k|x) - n(k) + f(k|yx),        f(k|yx) = q(k|yx) - 2 q(k-1|yx) + q(k-2|yx)
//     n(k|zyx) = n(k|zy) + n(k|zx) - n(k|z) + f(k|yx) - r(k) + 3 r(k-1) - 3 r(k-2) + r(k-3)
//
// with r(k) the draws of k hits behind the stem that have z, y and x. All f are made once for a stem, and serve every z.
// The n(k|zx) are the first line with z for y. What remains for a y are the r: those of at least one hit are added up
// draw by draw, for all x at once, and such draws are few; those of no hit, most draws, are what these leave of the
// draws that have z, y and x, whatever the stem.

#pragma once

#include "core/ModProcessore.hpp"
#include "motore/Automa.hpp"

namespace ordavel {

/// A count for each last number.
struct alignas(64) Fila {
    static constexpr std::size_t kCorsie = 96;
    std::array<std::uint16_t, kCorsie> aConti{};
};

/// The draws, as the picks see them. At most 65535, so that no count passes 16 bits.
struct EstrazioniPerPosto {
    std::size_t nScelti = 0;
    std::size_t nParole = 0;              ///< words of a set of draws
    std::vector<Fila> aEstrazioni;        ///< by draw: 1 for each last number that it has
    std::vector<Fila> aCoppie;            ///< by place: draws that have it and the last number
    std::vector<Fila> aTerne;             ///< by two places, the lower first: the same for both
    std::vector<std::uint64_t> aInsiemi;  ///< [places * words]: the draws that have a place
    std::vector<std::uint16_t> aPresenze; ///< by place: how many they are

    [[nodiscard]] const std::uint64_t* Insieme(std::size_t nPosto) const noexcept
    {
        return aInsiemi.data() + nPosto * nParole;
    }
    /// The triples of a place and all places above it, which stand at their distance less 1.
    [[nodiscard]] const Fila* Terne(std::size_t nPosto) const noexcept
    {
        return aTerne.data() + nPosto * (2 * nScelti - nPosto - 1) / 2;
    }
};

/// A word of a set that is not 0.
struct Pezzo {
    std::uint64_t nBit = 0;
    std::size_t nParola = 0;
};

/// Words of sets by hits, for at least one hit.
using Pezzi = std::array<std::vector<Pezzo>, static_cast<std::size_t>(kClasseMassima)>;
/// Draws by hits.
using QuanteEstrazioni = std::array<std::uint16_t, static_cast<std::size_t>(kClasseMassima) + 1>;

/// The draws behind some numbers.
struct Tappa {
    std::size_t nDati = 0;               ///< so many numbers
    std::vector<std::uint64_t> aInsiemi; ///< [hits * words]
    Pezzi aPezzi;                        ///< the same, words that are not 0
    QuanteEstrazioni aQuante{};          ///< how many draws
    std::vector<Fila> aConti;            ///< by hits: how many of them have a last number
};

/// Bounds of a count that may be broken.
struct Soglia {
    std::size_t nColpi = 0;
    std::uint16_t nMinimo = 0;
    std::uint16_t nAmpiezza = 0; ///< upper bound less the lower one
};

/// What a stem gives for each of its bounds. Counts stand less their lower bound.
struct FileTronco {
    std::vector<Fila> aConti;    ///< [bounds]: n(k|x)
    std::vector<Fila> aIntrecci; ///< [bounds * places]: f(k|yx)
};

/// A beginning whose row is wanted.
struct InizioEmulate {
    std::span<const std::size_t> aSoglie; ///< bounds that it may break, among those of the stem
    std::size_t nPrimo = 0;               ///< first place of the next-to-last number
    bool bConZeta = false;                ///< there is a number behind the stem
    std::size_t nZeta = 0;                ///< its place
};

/// A bound of a beginning, with all that a next-to-last place asks of it. Counts stand less their lower bound.
struct SogliaInizio {
    const Fila* conti = nullptr;    ///< n(k|zx)
    const Fila* aggiunte = nullptr; ///< n(k|zy) - n(k|z), at the lane of y
    const Fila* intrecci = nullptr; ///< by place: f(k|yx)
    std::size_t nColpi = 0;
    std::uint16_t nAmpiezza = 0;
    std::uint16_t nSenzaColpi = 0; ///< what a draw of no hits that has z, y and x adds
};

/// Up to 16 draws of as many hits: for each pick, which of them have it.
struct GruppoEstrazioni {
    std::size_t nColpi = 0;
    Fila maschere;
};

/// Room for what a kernel makes on its way.
struct LavoroEmulate {
    std::vector<std::uint32_t> aElenco; ///< draws, ordered by hits
    std::vector<GruppoEstrazioni> aGruppi;
    Fila colpiti;             ///< not 0 where some group has y
    std::vector<Fila> aConti; ///< [2 * bounds]: to what SogliaInizio points
    std::vector<SogliaInizio> aSoglie;
};

struct NucleoEmulate {
    /// Adds a place to a stage.
    void (*avanza)(const EstrazioniPerPosto& estrazioni, const Tappa& prima, std::size_t nPosto,
                   LavoroEmulate& lavoro, Tappa& dopo);
    /// Makes what a stem gives to the places from nPrimo on.
    void (*tronco)(const EstrazioniPerPosto& estrazioni, const Tappa& tappa, std::span<const Soglia> aSoglie,
                   std::size_t nPrimo, LavoroEmulate& lavoro, FileTronco& file);
    /// The masks of the last numbers that keep all bounds, for each next-to-last place of a beginning.
    void (*riga)(const EstrazioniPerPosto& estrazioni, const Tappa& tappa, std::span<const Soglia> aSoglie,
                 const FileTronco& file, const InizioEmulate& inizio, LavoroEmulate& lavoro,
                 MaschereRiga& ok);
};

/// The kernel for an instruction set.
[[nodiscard]] const NucleoEmulate& ScegliNucleoEmulate(eNucleo nucleo) noexcept;

} // namespace ordavel
