// ContaCamminando.cpp - block by block where that can be, one column after the other where it cannot.

#include "motore/ContaCamminando.hpp"

#include "motore/ContaBlocchi.hpp"
#include "motore/ModIntegrali.hpp"
#include "motore/ModVerifica.hpp"

namespace ordavel {

namespace {

/// A step from one beginning to the next is as much work as so many pieces, for each condition.
constexpr std::size_t kPassiCondizione = 8;

std::int64_t ContaPiano(const NumeriScelti& aNumeri, std::int16_t nClasse, StatoSviluppo& stato,
                        GuardiaConteggio& guardia)
{
    const auto nPassi = static_cast<std::uint32_t>(kPassiCondizione * stato.aCondizioni.size());
    Enumeratore enumeratore(aNumeri, nClasse);
    Colonna colonna;
    std::int64_t nPassano = 0;
    bool bAvanti = enumeratore.Presente();
    while (bAvanti) {
        enumeratore.Componi(colonna);
        nPassano += VerificaColonna(nClasse, colonna, stato) ? 1 : 0;
        guardia.Passa(nPassi);
        bAvanti = enumeratore.Avanza();
    }
    return nPassano;
}

} // namespace

std::int64_t ContaCamminando(const NumeriScelti& aNumeri, std::int16_t nClasse, StatoSviluppo& stato,
                             GuardiaConteggio& guardia)
{
    const std::vector<std::uint8_t> aScelti = Scelti(aNumeri);
    if (!BlocchiPossibili(aScelti.size(), nClasse, stato)) {
        return ContaPiano(aNumeri, nClasse, stato, guardia);
    }
    const CorsaBlocchi corsa{.aScelti = aScelti, .nClasse = nClasse, .nucleo = NucleoMigliore()};
    const auto nPassano = ContaPassano(corsa, stato, [&guardia] {
        guardia.Guarda(); // ends the walk by an exception
        return true;
    });
    return static_cast<std::int64_t>(nPassano.value_or(0));
}

} // namespace ordavel
