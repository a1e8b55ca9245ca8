// ModCifre.hpp - metrics by digit: fullest class of last digits, tens or figures, thirds, digit sums.
//
// Failures common to all: 9 when nClasse is above 20. Classes and thirds are looked up: a number outside 1..90
// fails with 9. Sums take any number.

#pragma once

#include "ordavel/records.hpp"

#include <span>

namespace ordavel {

/// Size of the largest group of numbers with the same last digit; 0 for a class below 1.
[[nodiscard]] std::int32_t CalcolaCadenze(std::int16_t nClasse, const Colonna& colonna);

/// The same by tens, 1 to 10 together, 11 to 20 together and so on.
[[nodiscard]] std::int32_t CalcolaDecine(std::int16_t nClasse, const Colonna& colonna);

/// The same by figures (ModTabelle.hpp).
[[nodiscard]] std::int32_t CalcolaFigure(std::int16_t nClasse, const Colonna& colonna);

/// Counts of numbers in the thirds 1 to 30, 31 to 60, 61 to 90.
using ContatoriFormule = Tabella<std::int16_t, 1, 3>;
[[nodiscard]] ContatoriFormule CalcolaFormule(std::int16_t nClasse, const Colonna& colonna);

/// Sums over the flagged positions: of last digits, of tens digits, of figures.
/// Takes    aPosizioni   flag per position: element k for position k
[[nodiscard]] std::int32_t CalcolaSommaCadenze(std::int16_t nClasse, const Colonna& colonna,
                                               const FlagNumeri& aPosizioni);
[[nodiscard]] std::int32_t CalcolaSommaDecine(std::int16_t nClasse, const Colonna& colonna,
                                              const FlagNumeri& aPosizioni);
[[nodiscard]] std::int32_t CalcolaSommaFigure(std::int16_t nClasse, const Colonna& colonna,
                                              const FlagNumeri& aPosizioni);

/// Sum of the numbers below 10 at flagged positions.
[[nodiscard]] std::int32_t CalcolaSommaNumeretti(std::int16_t nClasse, const Colonna& colonna,
                                                 const FlagNumeri& aPosizioni);

/// For each number below 10 at a flagged position: the number, its tens digit, its last digit and its figure.
/// Numbers from 10 on add nothing: 1 to 8 add three times themselves, 9 adds 18.
[[nodiscard]] std::int32_t CalcolaSommaComplessiva(std::int16_t nClasse, const Colonna& colonna,
                                                   const FlagNumeri& aPosizioni);

/// Refuses a column of which one of the first nClasse numbers is above 90.
/// Takes    nClasse   at most 20
/// Fails    9
void VerificaNumeri(std::int16_t nClasse, const Colonna& colonna);

/// How often a column would have hit the emulated draws: element h counts the draws with h hits.
using ContatoriEmulatore = Tabella<std::int16_t, 0, kNumeriColonna>;

/// Takes    aEmulatore   draws; a number counts as drawn when its byte is not 0
/// Fails    6: more than 32767 draws with the same hits; 9: a number above 90
[[nodiscard]] ContatoriEmulatore CalcolaEmulatore(std::int16_t nClasse, const Colonna& colonna,
                                                  std::span<const RigaEmulatore> aEmulatore);

} // namespace ordavel
