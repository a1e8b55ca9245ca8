// ModForma.hpp - metrics of a column's shape: sums, gaps, parity changes, flagged numbers and positions.
//
// A metric is a pure function of one column. It trusts the order of the numbers (ascending) and reads the first
// nClasse of them; it allocates nothing. Positions count from 1.
//
// Words. «adjacent pair»: positions k and k+1, for k from 1 to nClasse-1; none when nClasse is below 2.
//
// Failures common to all: 9 when nClasse is above 20. Numbers are not checked but where a flag of theirs is read.

#pragma once

#include "ordavel/records.hpp"

namespace ordavel {

/// Refuses a class that no column holds. Every metric asks once and then reads its positions unchecked.
/// Fails    9: nClasse above 20
constexpr void VerificaClasse(std::int16_t nClasse)
{
    if (nClasse > kNumeriColonna) {
        Solleva(eErrore::indice);
    }
}

/// Parity of each position of a column: 1 odd, 0 even; the positions behind the class stay 0.
using SequenzaParita = Tabella<std::int16_t, 1, kNumeriColonna>;

/// The parities of the first nClasse numbers.
[[nodiscard]] SequenzaParita CreaSequenzaParita(std::int16_t nClasse, const Colonna& colonna);

/// Sum of the first nClasse numbers; 0 for a class below 1.
[[nodiscard]] std::int32_t SommaColonna(std::int16_t nClasse, const Colonna& colonna);

/// How many numbers of the column are flagged.
/// Takes    aNumeri   flag per number, 0..90
/// Fails    9: a number above 90
[[nodiscard]] std::int32_t ContaPuntiColonna(std::int16_t nClasse, const Colonna& colonna,
                                             const FlagNumeri& aNumeri);

/// Sum of the numbers at flagged positions.
/// Takes    aPosizioni   flag per position: element k for position k
[[nodiscard]] std::int32_t CalcolaPeso(std::int16_t nClasse, const Colonna& colonna,
                                       const FlagNumeri& aPosizioni);

/// Remainder of a column's sum.
/// Fails    11: nParametro is 0
[[nodiscard]] std::int32_t Resto(std::int32_t nSomma, std::int16_t nParametro);

/// Last number minus first number.
/// Fails    6: the last is below the first; 9: nClasse outside 1..20
[[nodiscard]] std::int32_t CalcolaAmpiezza(std::int16_t nClasse, const Colonna& colonna);

/// Smallest gap of an adjacent pair; 1000 when there is no pair.
/// Fails    6: a number is below its predecessor
[[nodiscard]] std::int32_t CalcolaDistanzaMinima(std::int16_t nClasse, const Colonna& colonna);

/// Largest gap of an adjacent pair; 0 when there is no pair.
/// Fails    6: a number is below its predecessor
[[nodiscard]] std::int32_t CalcolaDistanzaMassima(std::int16_t nClasse, const Colonna& colonna);

/// Adjacent pairs with gap 1.
[[nodiscard]] std::int32_t CalcolaConsecutivi(std::int16_t nClasse, const Colonna& colonna);

/// Adjacent pairs with gap 2.
[[nodiscard]] std::int32_t CalcolaPonte(std::int16_t nClasse, const Colonna& colonna);

/// Adjacent pairs with a gap other than 1. With CalcolaConsecutivi it adds up to the number of pairs.
[[nodiscard]] std::int32_t CalcolaInterruzioni(std::int16_t nClasse, const Colonna& colonna);

/// Adjacent pairs of equal parity.
[[nodiscard]] std::int32_t CalcolaConsecutiviPD(std::int16_t nClasse, const SequenzaParita& aParita);

/// Adjacent pairs of different parity. With CalcolaConsecutiviPD it adds up to the number of pairs.
[[nodiscard]] std::int32_t CalcolaInterruzioniPD(std::int16_t nClasse, const SequenzaParita& aParita);

/// The same of a column whose parities were not built yet.
[[nodiscard]] std::int32_t CalcolaInterruzioniPD(std::int16_t nClasse, const Colonna& colonna);

/// Mean of the numbers, rounded to nearest with ties to even. The public form; the column test rounds down.
/// Fails    11: nClasse is 0
[[nodiscard]] std::int32_t CalcolaBaricentro(std::int16_t nClasse, const Colonna& colonna);

/// Mean of the numbers, rounded down: the form of the column test, which differs from the public one on purpose.
/// Fails    11: nClasse is 0
[[nodiscard]] std::int32_t BaricentroInferiore(std::int16_t nClasse, std::int32_t nSomma);

/// Groups of consecutive numbers of exactly nGruppo numbers.
///
/// A group counts on the first number that breaks it, or behind the end. After a count the reading goes on
/// nPasso-1 places from the breaking number: with step 1 it is looked at again, with step 2 the next one is, and
/// larger steps skip numbers; none of them continues a group. With nGruppo 1 every number that is looked at
/// counts, the first before any group has closed, and the end counts once more: 1, 3 with step 2 gives 3. A class
/// below 1 gives 0, with nGruppo 1 it gives 1.
/// Fails    6: the count passes 32767, as with nGruppo 1 and nPasso 1, where the reading stands still;
///          9: a step below 1 moved the reading in front of the column
[[nodiscard]] std::int32_t CalcolaGruppiDiConsecutivi(std::int16_t nClasse, const Colonna& colonna,
                                                      std::int16_t nGruppo, std::int16_t nPasso);

} // namespace ordavel
