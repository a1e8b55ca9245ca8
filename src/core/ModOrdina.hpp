// ModOrdina.hpp - the system's quicksort, whose order of equal elements is part of what it gives.

#pragma once

#include <algorithm>
#include <cstddef>
#include <utility>
#include <vector>

namespace ordavel {

/// Brings the elements from i to j, places from 1, in front of a pivot and behind it.
///
/// Elements that neither stand in front of the pivot nor behind it are swapped too, so that equal ones end in an
/// order of their own: the sort is not stable.
/// Changes  i, j   the first place of the part behind, the last one of the part in front
/// Gives    false when `fermo` has ended it
template <typename T, typename Davanti, typename Fermo>
bool Spartisci(std::vector<T>& aElementi, const T& pivot, std::size_t& i, std::size_t& j,
               const Davanti& davanti, const Fermo& fermo)
{
    const auto elemento = [&](std::size_t n) -> T& { return aElementi[n - 1]; };
    while (i <= j) {
        while (davanti(elemento(i), pivot)) {
            ++i;
        }
        while (davanti(pivot, elemento(j))) {
            --j;
        }
        if (i <= j) {
            std::swap(elemento(i), elemento(j));
            ++i;
            --j;
        }
        if (fermo()) {
            return false;
        }
    }
    return true;
}

/// Sorts aElementi from nSinistra to nDestra, places from 1.
///
/// The pivot is a copy of the element at floor((L+R)/2 + 1), the upper middle; the call returns at once when that is
/// below 2 or behind the last element. The shorter part is sorted by a call and the longer one by going on, so that
/// no order of the elements needs many calls within each other.
/// Takes    davanti   davanti(a, b): does a belong in front of b?
///          fermo     asked between two swaps; once it is true it stays so, and the sort ends where it is
template <typename T, typename Davanti, typename Fermo>
void OrdinaRapido(std::vector<T>& aElementi, std::size_t nSinistra, std::size_t nDestra,
                  const Davanti& davanti, const Fermo& fermo)
{
    for (;;) {
        const std::size_t nMedio = (nSinistra + nDestra) / 2 + 1;
        if (nMedio < 2 || nMedio > aElementi.size()) {
            return;
        }
        std::size_t i = nSinistra;
        std::size_t j = nDestra;
        if (!Spartisci(aElementi, T(aElementi[nMedio - 1]), i, j, davanti, fermo)) {
            return;
        }
        const std::size_t nPrima = std::max(j, nSinistra) - nSinistra;
        const std::size_t nDopo = nDestra - std::min(i, nDestra);
        const bool bPrimaCorta = nPrima < nDopo;
        if (std::min(nPrima, nDopo) > 0) {
            OrdinaRapido(aElementi, bPrimaCorta ? nSinistra : i, bPrimaCorta ? j : nDestra, davanti, fermo);
        }
        if (std::max(nPrima, nDopo) == 0) {
            return;
        }
        (bPrimaCorta ? nSinistra : nDestra) = bPrimaCorta ? i : j;
    }
}

/// Sorts all of them.
template <typename T, typename Davanti> void OrdinaRapido(std::vector<T>& aElementi, const Davanti& davanti)
{
    if (!aElementi.empty()) {
        OrdinaRapido(aElementi, 1, aElementi.size(), davanti, [] { return false; });
    }
}

} // namespace ordavel
