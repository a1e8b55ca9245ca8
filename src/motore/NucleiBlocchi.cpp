// NucleiBlocchi.cpp - conditions over the masks of eight next-to-last numbers at once.

#include "motore/NucleiBlocchi.hpp"

#include <algorithm>
#include <cstring>

namespace ordavel {

namespace {

using Gruppo [[gnu::vector_size(kAffiancate * sizeof(std::uint64_t))]] = std::uint64_t;

[[gnu::always_inline]] inline void Prendi(Gruppo& gruppo, const std::uint64_t* aParole)
{
    std::memcpy(&gruppo, aParole, sizeof gruppo);
}

[[gnu::always_inline]] inline void Posa(const Gruppo& gruppo, std::uint64_t* aParole)
{
    std::memcpy(aParole, &gruppo, sizeof gruppo);
}

[[gnu::always_inline]] inline void ContaBit(const Gruppo& gruppo, Gruppo& conto)
{
    for (std::size_t i = 0; i < kAffiancate; ++i) {
        conto[i] += static_cast<std::uint64_t>(__builtin_popcountll(gruppo[i]));
    }
}

/// The words of a block from its first place on, so many groups of them.
struct Tratto {
    std::size_t nPrimo;
    std::size_t nGruppi;
};

[[gnu::always_inline]] inline void Copia(const std::uint64_t* aDa, std::uint64_t* aVerso, Tratto tratto)
{
    for (std::size_t g = 0; g < tratto.nGruppi; ++g) {
        Gruppo gruppo;
        Prendi(gruppo, aDa + tratto.nPrimo + g * kAffiancate);
        Posa(gruppo, aVerso + tratto.nPrimo + g * kAffiancate);
    }
}

/// Adds to a count the columns of a row that take part, and takes the others from `tenute` when it is given.
template <bool Intero, bool Taglia>
[[gnu::always_inline]] inline void Conta(const std::uint64_t* aRiga, const std::uint64_t* aAttive,
                                         std::uint64_t* aTenute, Tratto tratto, Gruppo& conto)
{
    for (std::size_t g = 0; g < tratto.nGruppi; ++g) {
        const std::size_t nPosto = tratto.nPrimo + g * kAffiancate;
        Gruppo riga;
        Prendi(riga, aRiga + nPosto);
        if constexpr (!Intero) {
            Gruppo attive;
            Prendi(attive, aAttive + nPosto);
            riga &= attive;
        }
        ContaBit(riga, conto);
        if constexpr (Taglia) {
            Gruppo tenute;
            Prendi(tenute, aTenute + nPosto);
            Posa(tenute & riga, aTenute + nPosto);
        }
    }
}

template <bool Intero, bool Taglia>
[[gnu::always_inline]] inline void ContaRiga(const MaschereRiga& riga, Blocco& blocco, Tratto basse,
                                             Tratto alte, Corsie& aConti)
{
    Gruppo conto;
    Prendi(conto, aConti.data());
    Conta<Intero, Taglia>(riga.aBasse.data(), blocco.attive->aBasse.data(), blocco.tenute.aBasse.data(),
                          basse, conto);
    Conta<Intero, Taglia>(riga.aAlte.data(), blocco.attive->aAlte.data(), blocco.tenute.aAlte.data(), alte,
                          conto);
    Posa(conto, aConti.data());
}

template <bool Intero>
[[gnu::always_inline]] inline void GiudicaTratti(std::span<VoceBlocco> aVoci, Blocco& blocco, Tratto basse,
                                                 Tratto alte)
{
    for (VoceBlocco& voce : aVoci) {
        ContaRiga<Intero, true>(voce.riga->ok, blocco, basse, alte, voce.aOk);
        if (voce.riga->bRecuperi) {
            ContaRiga<Intero, false>(voce.riga->rec, blocco, basse, alte, voce.aRec);
        }
    }
}

[[gnu::always_inline]] inline void Giudica(std::span<VoceBlocco> aVoci, Blocco& blocco)
{
    const auto gruppi = [&blocco](std::size_t nPosti) {
        return nPosti > blocco.nPrimo ? (nPosti - blocco.nPrimo + kAffiancate - 1) / kAffiancate : 0;
    };
    // The high word holds something as long as more than 64 places stand above.
    const std::size_t nAlti = blocco.nScelti > 65 ? blocco.nScelti - 65 : 0;
    const Tratto basse{blocco.nPrimo, gruppi(blocco.nScelti - 1)};
    const Tratto alte{blocco.nPrimo, gruppi(nAlti)};
    Copia(blocco.attive->aBasse.data(), blocco.tenute.aBasse.data(), basse);
    Copia(blocco.attive->aAlte.data(), blocco.tenute.aAlte.data(), alte);
    if (blocco.bIntero) {
        GiudicaTratti<true>(aVoci, blocco, basse, alte);
    } else {
        GiudicaTratti<false>(aVoci, blocco, basse, alte);
    }
}

void GiudicaComune(std::span<VoceBlocco> aVoci, Blocco& blocco)
{
    Giudica(aVoci, blocco);
}

ORDAVEL_AVX2 void GiudicaAvx2(std::span<VoceBlocco> aVoci, Blocco& blocco)
{
    Giudica(aVoci, blocco);
}

ORDAVEL_AVX512 void GiudicaAvx512(std::span<VoceBlocco> aVoci, Blocco& blocco)
{
    Giudica(aVoci, blocco);
}

/// By eNucleo.
constexpr std::array<NucleoBlocchi, 3> kNuclei{GiudicaComune, GiudicaAvx2, GiudicaAvx512};

} // namespace

NucleoBlocchi ScegliNucleoBlocchi(eNucleo nucleo) noexcept
{
    return kNuclei[static_cast<std::size_t>(nucleo)];
}

} // namespace ordavel
