// RangoColonne.cpp - from the number of a column to its places.

#include "motore/RangoColonne.hpp"

#include "core/ModBinomiali.hpp"

#include <algorithm>

namespace ordavel {

std::int64_t QuanteColonne(std::size_t nScelti, std::size_t nClasse, std::size_t nDati,
                           std::size_t nDa) noexcept
{
    return static_cast<std::int64_t>(kBinomiali[nScelti - nDa][nClasse - nDati]);
}

PostiColonna PostiDi(std::size_t nScelti, std::size_t nClasse, std::int64_t nColonna) noexcept
{
    PostiColonna aPosti{};
    std::size_t p = 0;
    for (std::size_t k = 0; k < nClasse; ++k, ++p) {
        std::int64_t nQui = QuanteColonne(nScelti, nClasse, k + 1, p + 1);
        while (nColonna >= nQui) {
            nColonna -= nQui;
            ++p;
            nQui = QuanteColonne(nScelti, nClasse, k + 1, p + 1);
        }
        aPosti[k] = p;
    }
    return aPosti;
}

void SegnaColonne(std::size_t nScelti, std::size_t nPrimo, std::int64_t nDa, std::int64_t nA,
                  MaschereRiga& maschere) noexcept
{
    std::int64_t nDavanti = 0; // columns of the places in front
    for (std::size_t y = nPrimo; y < nScelti; ++y) {
        const auto nSopra = static_cast<std::int64_t>(nScelti - 1 - y);
        const auto dopo = [&](std::int64_t nQuante) { // all but the first nQuante columns of the place
            return PostiSopra(nScelti,
                              y + static_cast<std::size_t>(std::clamp<std::int64_t>(nQuante, 0, nSopra)));
        };
        maschere.Poni(y, Senza(dopo(nDa - nDavanti), dopo(nA - nDavanti)));
        nDavanti += nSopra;
    }
}

} // namespace ordavel
