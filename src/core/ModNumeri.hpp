// ModNumeri.hpp - numbers from text and to text, the two roundings, counters that may not wrap.
//
// A text is read by its longest numeric prefix, so that a text without a number is 0. The locale plays no part.

#pragma once

#include "ordavel/errore.hpp"

#include <cstdint>
#include <limits>
#include <string>
#include <string_view>
#include <type_traits>

namespace ordavel {

/// The number that a text begins with.
/// Takes    sTesto   leading blanks, an optional sign, digits, an optional "." with digits, an optional exponent
///                   ("e" or "E", optional sign, digits); whatever follows is ignored
/// Gives    its value; 0 when nothing is readable; an infinity when it is too large for a double
[[nodiscard]] double LeggiNumero(std::string_view sTesto) noexcept;

/// Rounded to the nearest integer, ties to the even one.
[[nodiscard]] double ArrotondaPari(double nValore) noexcept;

/// The largest integer not above the value.
[[nodiscard]] double Pavimento(double nValore) noexcept;

/// A double as a whole number of type T, to nearest with ties to even.
/// Fails    6: the rounded value does not fit T, or is not a number
template <typename T> [[nodiscard]] T ComeIntero(double nValore)
{
    static_assert(std::is_integral_v<T> && sizeof(T) <= 4);
    const double nIntero = ArrotondaPari(nValore);
    if (!(nIntero >= std::numeric_limits<T>::min() && nIntero <= std::numeric_limits<T>::max())) {
        Solleva(eErrore::overflow);
    }
    return static_cast<T>(nIntero);
}

/// A text as a whole number: ComeIntero of LeggiNumero.
/// Fails    6: too large for T
template <typename T> [[nodiscard]] T LeggiIntero(std::string_view sTesto)
{
    return ComeIntero<T>(LeggiNumero(sTesto));
}

/// Adds nQuanto to a counter.
/// Fails    6: the sum does not fit; the counter stays as it was
template <typename T> void Aumenta(T& nContatore, std::type_identity_t<T> nQuanto)
{
    T nSomma{};
    if (__builtin_add_overflow(nContatore, nQuanto, &nSomma)) {
        Solleva(eErrore::overflow);
    }
    nContatore = nSomma;
}

/// A count for display: "." between thousands, "1.234.567"; "0" for zero. A fraction is rounded to nearest with
/// ties to even, and a value that is not 0 but rounds to it gives an empty text.
[[nodiscard]] ORDAVEL_EXPORT std::string FormattaNumero(double nValore);

/// A number with at least two digits: 7 gives "07".
[[nodiscard]] ORDAVEL_EXPORT std::string Formatta00(std::int64_t nValore);

/// How far a job has come: floor(100 * nFatte / nTotale), at most 100.
/// Fails    11: nTotale is 0
[[nodiscard]] std::int16_t PercentualeProgress(double nFatte, double nTotale);

/// Seconds between two readings of a clock that starts again at midnight; a run may pass one midnight.
/// Takes    nInizio, nFine   seconds since midnight
[[nodiscard]] float SecondiTrascorsi(float nInizio, float nFine) noexcept;

/// A duration as hours, minutes and seconds: 3725 gives "01:02:05".
/// Takes    nSecondi   whole seconds, 0 or more
[[nodiscard]] std::string FormattaTempo(std::int64_t nSecondi);

} // namespace ordavel
