// ColonneProva.hpp - columns for tests: written out, or drawn at random.

#pragma once

#include "ordavel/records.hpp"

#include <rapidcheck.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

namespace ordavel::prove {

/// A column with its class.
struct ColonnaProva {
    std::int16_t nClasse = 0;
    Colonna colonna;

    [[nodiscard]] std::vector<int> Numeri() const
    {
        return {colonna.aNumeri.begin(), colonna.aNumeri.begin() + nClasse};
    }

    friend std::ostream& operator<<(std::ostream& uscita, const ColonnaProva& c)
    {
        for (const int nNumero : c.Numeri()) {
            uscita << nNumero << ' ';
        }
        return uscita << "(classe " << c.nClasse << ")";
    }
};

/// The column of some numbers, at most 20, in the order given.
inline ColonnaProva ColonnaDi(const std::vector<int>& aNumeri)
{
    ColonnaProva c;
    for (const int nNumero : aNumeri) {
        c.colonna[++c.nClasse] = static_cast<std::uint8_t>(nNumero);
    }
    return c;
}

/// A column whose parities are those of a text of "P" (even) and "D" (odd).
inline ColonnaProva ColonnaConParita(std::string_view sParita)
{
    std::vector<int> aNumeri;
    for (const char c : sParita) {
        const int nDopo = aNumeri.empty() ? 1 : aNumeri.back() + 1;
        aNumeri.push_back(nDopo + ((nDopo % 2 == 0) == (c == 'P') ? 0 : 1));
    }
    return ColonnaDi(aNumeri);
}

/// A random ascending column of nMinima to 20 numbers. Half of them are crowded into few numbers, so that
/// neighbours are not rare.
inline rc::Gen<ColonnaProva> GeneraColonna(int nMinima = 0)
{
    return rc::gen::mapcat(rc::gen::element(24, int{kNumeroMassimo}), [nMinima](int nMassimo) {
        return rc::gen::mapcat(rc::gen::inRange(nMinima, kNumeriColonna + 1), [nMassimo](int nClasse) {
            const auto numeri = rc::gen::unique<std::vector<int>>(static_cast<std::size_t>(nClasse),
                                                                  rc::gen::inRange(1, nMassimo + 1));
            return rc::gen::map(numeri, [](std::vector<int> aNumeri) {
                std::sort(aNumeri.begin(), aNumeri.end());
                return ColonnaDi(aNumeri);
            });
        });
    });
}

/// A random text of up to nMassimo letters "P" and "D".
inline rc::Gen<std::string> GeneraParita(std::size_t nMassimo)
{
    return rc::gen::mapcat(rc::gen::inRange<std::size_t>(0, nMassimo + 1), [](std::size_t nLettere) {
        return rc::gen::container<std::string>(nLettere, rc::gen::element('P', 'D'));
    });
}

/// Flags 0..90, of which those in aIndici are set.
inline FlagNumeri FlagDi(std::initializer_list<int> aIndici)
{
    FlagNumeri aFlag;
    for (const int i : aIndici) {
        aFlag(i) = 1;
    }
    return aFlag;
}

/// Random flags 0..90; those that are set hold any value but 0.
inline rc::Gen<FlagNumeri> GeneraFlag()
{
    const auto flag = rc::gen::element<std::int16_t>(0, 0, 1, -1, 256);
    return rc::gen::map(rc::gen::container<std::vector<std::int16_t>>(FlagNumeri::kElementi, flag),
                        [](const std::vector<std::int16_t>& aValori) {
                            FlagNumeri aFlag;
                            std::copy(aValori.begin(), aValori.end(), aFlag.aElementi.begin());
                            return aFlag;
                        });
}

} // namespace ordavel::prove
