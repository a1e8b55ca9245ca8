// ModIntegrali.cpp - counts of whole systems and of shared numbers.

#include "motore/ModIntegrali.hpp"

#include <algorithm>

namespace ordavel {

double CalcolaIntegrali(std::int32_t nNumeri, std::int32_t nClasse)
{
    if (nNumeri < nClasse) {
        return 0;
    }
    const std::int32_t nResto = nNumeri - nClasse;
    const double nDivisore = Fattoriale(nClasse) * (nResto >= 1 ? Fattoriale(nResto) : 1.0);
    if (nDivisore == 0) {
        Solleva(eErrore::divisione);
    }
    return Fattoriale(nNumeri) / nDivisore;
}

double Fattoriale(std::int32_t nValore) noexcept
{
    double nProdotto = 1;
    for (std::int32_t i = 1; i < nValore; ++i) {
        nProdotto *= i;
    }
    return nProdotto * nValore;
}

std::int32_t ContaNumeriComuni(std::int16_t nClasse, const Colonna& prima, const Colonna& seconda)
{
    Tabella<std::uint8_t, 0, kNumeroMassimo> aPresenti;
    for (std::int16_t k = 1; k <= nClasse; ++k) {
        aPresenti(seconda(k)) = 1;
    }
    std::int32_t nComuni = 0;
    for (std::int16_t k = 1; k <= nClasse; ++k) {
        nComuni += aPresenti(prima[k]);
    }
    return nComuni;
}

std::int16_t ContaNumeri(const NumeriScelti& aNumeri) noexcept
{
    return static_cast<std::int16_t>(std::count_if(aNumeri.aElementi.begin(), aNumeri.aElementi.end(),
                                                   [](std::int16_t n) { return n > 0; }));
}

std::vector<std::uint8_t> Scelti(const NumeriScelti& aNumeri)
{
    const std::int16_t nScelti = ContaNumeri(aNumeri);
    std::vector<std::uint8_t> aScelti;
    aScelti.reserve(static_cast<std::size_t>(nScelti));
    for (std::int16_t k = 1; k <= nScelti; ++k) {
        aScelti.push_back(static_cast<std::uint8_t>(aNumeri[k]));
    }
    return aScelti;
}

} // namespace ordavel
