// ColonneBanco.hpp - columns for the benchmarks of the reductions, and a user who looks at nothing.

#pragma once

#include "ordavel/records.hpp"

#include "riduzione/AvanzamentoRiduzione.hpp"

#include <algorithm>
#include <cstdint>
#include <functional>
#include <numeric>
#include <random>
#include <vector>

namespace ordavel::banco {

class SenzaUtente : public AvanzamentoRiduzione {
public:
    void MostraPercentuale(std::int16_t /*nPercentuale*/) override {}
    void MostraFase(std::string_view /*sFase*/) override {}
    void MostraInterruzione() override {}
    void LasciaEventi() override {}
    void MostraFallimento(std::string_view /*sOrigine*/, const Errore& /*errore*/) override {}
};

/// The column 1, 2, ... of a class.
inline Colonna PrimaColonna(std::size_t nClasse)
{
    Colonna colonna;
    std::iota(colonna.aNumeri.begin(), colonna.aNumeri.begin() + static_cast<std::ptrdiff_t>(nClasse),
              std::uint8_t{1});
    return colonna;
}

/// Makes a column of numbers up to nNumeri the one that follows it in lexicographic order.
/// Gives    false behind the last one
inline bool Prossima(Colonna& colonna, std::size_t nClasse, std::size_t nNumeri)
{
    std::size_t i = nClasse;
    while (i > 0 && colonna.aNumeri[i - 1] == nNumeri - (nClasse - i)) {
        --i;
    }
    if (i == 0) {
        return false;
    }
    const auto inizio = colonna.aNumeri.begin();
    std::iota(inizio + static_cast<std::ptrdiff_t>(i - 1), inizio + static_cast<std::ptrdiff_t>(nClasse),
              static_cast<std::uint8_t>(colonna.aNumeri[i - 1] + 1));
    return true;
}

/// The first nMassimo columns, in order, that a test lets through.
inline std::vector<Colonna> ColonneTenute(std::size_t nNumeri, std::size_t nClasse, std::size_t nMassimo,
                                          const std::function<bool(const Colonna&)>& tieni)
{
    std::vector<Colonna> aColonne;
    Colonna colonna = PrimaColonna(nClasse);
    do {
        if (tieni(colonna)) {
            aColonne.push_back(colonna);
        }
    } while (aColonne.size() < nMassimo && Prossima(colonna, nClasse, nNumeri));
    return aColonne;
}

/// Gives a column random numbers up to 90, different and ascending.
inline void Sorteggia(Colonna& colonna, std::size_t nClasse, std::mt19937& sorte)
{
    const auto inizio = colonna.aNumeri.begin();
    const auto fine = inizio + static_cast<std::ptrdiff_t>(nClasse);
    do {
        std::generate(inizio, fine, [&] { return static_cast<std::uint8_t>(sorte() % kNumeroMassimo + 1); });
        std::sort(inizio, fine);
    } while (std::adjacent_find(inizio, fine) != fine);
}

/// Random columns, always the same ones.
inline std::vector<Colonna> ColonneCasuali(std::size_t nColonne, std::size_t nClasse)
{
    std::mt19937 sorte(1);
    std::vector<Colonna> aColonne(nColonne);
    for (Colonna& colonna : aColonne) {
        Sorteggia(colonna, nClasse, sorte);
    }
    return aColonne;
}

inline std::int32_t SommaDi(const Colonna& colonna)
{
    return std::accumulate(colonna.aNumeri.begin(), colonna.aNumeri.end(), 0);
}

} // namespace ordavel::banco
