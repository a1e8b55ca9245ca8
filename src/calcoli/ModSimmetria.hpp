// ModSimmetria.hpp - metrics that read a column as a string of parities, or as pairs of numbers.
//
// Words. «direction»: 1 direct, any other value inverse. p(k) is the parity at position k, n the class.
//
// Failures common to all: 9 when nClasse is above 20.

#pragma once

#include "calcoli/ModForma.hpp"

#include <string_view>

namespace ordavel {

inline constexpr std::int16_t kDiretto = 1;
inline constexpr std::int16_t kInverso = 2;

/// What the two-ended walk gives.
struct EsitoVortice {
    std::int32_t nPos = 0;     ///< final position, 0..n
    std::int32_t nVortici = 0; ///< hits less one, -1..n-1

    [[nodiscard]] friend bool operator==(const EsitoVortice&, const EsitoVortice&) = default;
};

/// Walks from both ends of the parities.
///
/// Left i starts at 1, right j at n. Search A goes from j down to i for the first k with p(k) = p(i): j becomes
/// k, i rises by 1, the position becomes j. Search B goes from i up to j for the first k with p(k) = p(j): i
/// becomes k, j falls by 1, the position becomes i. Each search that has room (i not above j) hits and counts.
/// Direct: A then B, until i is no longer below j, tested behind B. Inverse: while i is below j, B then A.
/// A class below 2 gives 0 and -1.
[[nodiscard]] EsitoVortice CalcolaVortice(std::int16_t nClasse, const SequenzaParita& aParita,
                                          std::int16_t nDirezione);
[[nodiscard]] std::int32_t CalcolaVorticeDiretto(std::int16_t nClasse, const Colonna& colonna);
[[nodiscard]] std::int32_t CalcolaVorticeInverso(std::int16_t nClasse, const Colonna& colonna);

/// Mirror pairs, k against n+1-k: those of equal parity when direct, of different parity when inverse. The
/// middle of an odd class is in no pair.
[[nodiscard]] std::int32_t CalcolaSimmetrie(std::int16_t nClasse, const SequenzaParita& aParita,
                                            std::int16_t nDirezione);
[[nodiscard]] std::int32_t CalcolaSimmetrieDirette(std::int16_t nClasse, const Colonna& colonna);
[[nodiscard]] std::int32_t CalcolaSimmetrieInverse(std::int16_t nClasse, const Colonna& colonna);

/// Half pairs, k against k+h with h the whole part of n/2: equal parity when direct, different when inverse.
/// The last number of an odd class takes no part.
[[nodiscard]] std::int32_t CalcolaParalleli(std::int16_t nClasse, const SequenzaParita& aParita,
                                            std::int16_t nDirezione);
[[nodiscard]] std::int32_t CalcolaParalleliDiretti(std::int16_t nClasse, const Colonna& colonna);
[[nodiscard]] std::int32_t CalcolaParalleliInversi(std::int16_t nClasse, const Colonna& colonna);

/// Numbers with a later partner that makes 91 with them.
[[nodiscard]] std::int32_t CalcolaSimmetrieNum(std::int16_t nClasse, const Colonna& colonna);

/// Numbers with a later partner 45 away: 45 below a number above 45, else 45 above it.
[[nodiscard]] std::int32_t CalcolaParalleliNum(std::int16_t nClasse, const Colonna& colonna);

/// What a scan for a parity pattern gives.
struct EsitoSequenze {
    std::int32_t nQuante = 0; ///< stretches that match
    std::int32_t nCatena = 0; ///< longest run of stretches that match one after the other along the scan

    [[nodiscard]] friend bool operator==(const EsitoSequenze&, const EsitoSequenze&) = default;
};

/// Looks for a pattern of parities at the places 1, 1+nPasso, 1+2*nPasso ... up to nClasse-nLunghezza+1 (down to
/// it with a negative step). When the first place already passes that bound, both results are 0.
/// Takes    aSchema      pattern from element 0 on, 0 even and 1 odd
///          nLunghezza   its length; a pattern of length 0 matches everywhere
/// Fails    6: nPasso is 0 and there is a place to look at, since the scan would stand still;
///          9: a negative step led out of the column
[[nodiscard]] EsitoSequenze CalcolaSequenzeScansione(std::int16_t nClasse, const SequenzaParita& aParita,
                                                     const FlagNumeri& aSchema, std::int16_t nLunghezza,
                                                     std::int16_t nPasso);

/// Matches of a pattern of letters, "P" even in either case, any other letter odd.
///
/// The letters are stored from element 1 of the pattern, while the scan reads from element 0: the first place
/// of a stretch is compared with an even number, and the last letter has no say. Hosts rely on these values.
/// The scan goes by steps of 1.
/// Fails    9: more than 90 letters
[[nodiscard]] std::int32_t CalcolaSequenze(std::int16_t nClasse, const Colonna& colonna,
                                           std::string_view sSeq);

/// The same, with the longest chain in nRetConsec.
[[nodiscard]] std::int32_t CalcolaPuntiSequenze(std::int16_t nClasse, const Colonna& colonna,
                                                std::string_view sSeq, std::int32_t& nRetConsec);

/// Mean position of the numbers of one parity, rounded down; 0 when there is none.
/// Takes    nParametro   1 for the even numbers, any other value for the odd ones
[[nodiscard]] std::int32_t CalcolaFulcro(std::int16_t nClasse, const SequenzaParita& aParita,
                                         std::int16_t nParametro);

} // namespace ordavel
