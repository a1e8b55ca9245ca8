// ModLimiti.cpp - the limits that a range dialog shows.

#include "editor/ModLimiti.hpp"

#include <algorithm>
#include <numeric>
#include <span>

namespace ordavel {

namespace {

using Scelti = std::span<const std::int16_t>;

std::int32_t Somma(Scelti aNumeri)
{
    return std::accumulate(aNumeri.begin(), aNumeri.end(), std::int32_t{0});
}

std::optional<Limiti> Ampiezza(Scelti aNumeri, std::size_t nClasse)
{
    const std::int16_t nUltimoDeiPrimi = aNumeri[nClasse - 1];
    for (std::size_t i = aNumeri.size() - nClasse + 1; i-- > 0;) {
        if (aNumeri[i] < nUltimoDeiPrimi) {
            return Limiti{.nMin = nUltimoDeiPrimi - aNumeri[i], .nMax = aNumeri.back() - aNumeri.front()};
        }
    }
    return std::nullopt;
}

} // namespace

std::optional<Limiti> LimitiNumeri(eLimiti limiti, std::int16_t nClasse, const NumeriScelti& aNumeri)
{
    const auto& aTutti = aNumeri.aElementi;
    const auto nScelti =
        static_cast<std::size_t>(std::find(aTutti.begin(), aTutti.end(), 0) - aTutti.begin());
    const auto nPerColonna = static_cast<std::size_t>(nClasse);
    if (nClasse < 1 || nScelti < nPerColonna || limiti == eLimiti::nessuno) {
        return std::nullopt;
    }
    const Scelti aScelti(aTutti.data(), nScelti);
    if (limiti == eLimiti::ampiezza) {
        return Ampiezza(aScelti, nPerColonna);
    }
    const std::int32_t nDivisore = limiti == eLimiti::media ? nClasse : 1;
    return Limiti{.nMin = Somma(aScelti.first(nPerColonna)) / nDivisore,
                  .nMax = Somma(aScelti.last(nPerColonna)) / nDivisore};
}

} // namespace ordavel
