// ModEmulazione.cpp - hits of a column in the emulated draws, for 64 draws at once.

#include "calcoli/ModEmulazione.hpp"

#include "calcoli/ModForma.hpp"
#include "core/ModProcessore.hpp"

#include <algorithm>
#include <array>
#include <cstring>
#include <limits>
#include <numeric>
#include <span>

namespace ordavel {

namespace {

constexpr std::size_t kGruppo = RigheEmulatore::kGruppo;
constexpr std::size_t kCifre = 5; ///< binary digits of a count up to 20
/// Counts of hits are gathered four to a word, 16 bits each: at most 32767 draws are counted here, so that no sum
/// passes into the next field.
constexpr std::size_t kCampi = 4;
constexpr std::size_t kBitCampo = 16;

/// As many words as are asked together: one vector register where there are wide ones.
using Gruppo [[gnu::vector_size(kGruppo * sizeof(std::uint64_t))]] = std::uint64_t;
using Cifre = std::array<Gruppo, kCifre>;
using Raccolte = std::array<Gruppo, kNumeriColonna / kCampi>;

/// Adds one to the counts of the draws in a set.
template <std::size_t N>
[[gnu::always_inline]] inline void Somma(Cifre& cifre, const std::uint64_t* aEstrazioni)
{
    Gruppo riporto;
    std::memcpy(&riporto, aEstrazioni, sizeof riporto);
    for (std::size_t c = 0; c < N; ++c) {
        const Gruppo nuovo = cifre[c] & riporto;
        cifre[c] ^= riporto;
        riporto = nuovo;
    }
}

/// Adds the draws that have the count h.
template <std::size_t N>
[[gnu::always_inline]] inline void Raccogli(const Cifre& cifre, std::size_t h, Raccolte& raccolte)
{
    Gruppo uguali = ~Gruppo{};
    for (std::size_t c = 0; c < N; ++c) {
        uguali &= ((h >> c) & 1U) != 0 ? cifre[c] : ~cifre[c];
    }
    Gruppo quante{};
    for (std::size_t i = 0; i < kGruppo; ++i) {
        quante[i] = static_cast<std::uint64_t>(__builtin_popcountll(uguali[i]));
    }
    raccolte[(h - 1) / kCampi] += quante << ((h - 1) % kCampi * kBitCampo);
}

/// The gathered count of the draws with h hits.
[[gnu::always_inline]] inline std::int16_t Raccolto(const Raccolte& raccolte, std::size_t h)
{
    const Gruppo& raccolta = raccolte[(h - 1) / kCampi];
    std::uint64_t nSomma = 0;
    for (std::size_t i = 0; i < kGruppo; ++i) {
        nSomma += raccolta[i];
    }
    return static_cast<std::int16_t>((nSomma >> ((h - 1) % kCampi * kBitCampo)) & 0xFFFFU);
}

/// Takes    N         digits that the class needs
///          nClasse   as many counts as they can tell
template <std::size_t N>
[[gnu::always_inline]] inline void Conta(std::int16_t nClasse, const Colonna& colonna,
                                         const RigheEmulatore& righe, ContatoriEmulatore& aContatori)
{
    constexpr std::size_t kMassimo = std::min<std::size_t>((std::size_t{1} << N) - 1, kNumeriColonna);
    Raccolte raccolte{};
    for (std::size_t nParola = 0; nParola < righe.Parole(); nParola += kGruppo) {
        Cifre cifre{};
        for (std::int16_t k = 1; k <= nClasse; ++k) {
            Somma<N>(cifre, righe.Estrazioni(colonna[k]) + nParola);
        }
        // All counts that the digits can tell, so that the loop has a known length; those above the class are 0.
        for (std::size_t h = 1; h <= kMassimo; ++h) {
            Raccogli<N>(cifre, h, raccolte);
        }
    }
    for (std::size_t h = 1; h <= kMassimo; ++h) {
        aContatori[static_cast<int>(h)] = Raccolto(raccolte, h);
    }
}

[[gnu::always_inline]] inline void ContaClasse(std::int16_t nClasse, const Colonna& colonna,
                                               const RigheEmulatore& righe, ContatoriEmulatore& aContatori)
{
    if (nClasse <= 7) {
        Conta<3>(nClasse, colonna, righe, aContatori);
    } else if (nClasse <= 15) {
        Conta<4>(nClasse, colonna, righe, aContatori);
    } else {
        Conta<kCifre>(nClasse, colonna, righe, aContatori);
    }
}

using Nucleo = void (*)(std::int16_t, const Colonna&, const RigheEmulatore&, ContatoriEmulatore&);

void NucleoComune(std::int16_t nClasse, const Colonna& colonna, const RigheEmulatore& righe,
                  ContatoriEmulatore& aContatori)
{
    ContaClasse(nClasse, colonna, righe, aContatori);
}

ORDAVEL_AVX2 void NucleoAvx2(std::int16_t nClasse, const Colonna& colonna, const RigheEmulatore& righe,
                             ContatoriEmulatore& aContatori)
{
    ContaClasse(nClasse, colonna, righe, aContatori);
}

ORDAVEL_AVX512 void NucleoAvx512(std::int16_t nClasse, const Colonna& colonna, const RigheEmulatore& righe,
                                 ContatoriEmulatore& aContatori)
{
    ContaClasse(nClasse, colonna, righe, aContatori);
}

/// By eNucleo.
constexpr std::array<Nucleo, 3> kNuclei{NucleoComune, NucleoAvx2, NucleoAvx512};

} // namespace

ContatoriEmulatore CalcolaEmulatore(std::int16_t nClasse, const Colonna& colonna, const RigheEmulatore& righe,
                                    eNucleo nucleo)
{
    const std::size_t nRighe = righe.Righe().size();
    if (nRighe > static_cast<std::size_t>(std::numeric_limits<std::int16_t>::max())) {
        return CalcolaEmulatore(nClasse, colonna, std::span(righe.Righe()));
    }
    VerificaClasse(nClasse);
    if (nRighe > 0) {
        VerificaNumeri(nClasse, colonna);
    }
    ContatoriEmulatore aContatori;
    kNuclei[static_cast<std::size_t>(nucleo)](nClasse, colonna, righe, aContatori);
    const auto nColpite =
        std::accumulate(aContatori.aElementi.begin() + 1, aContatori.aElementi.end(), std::size_t{0},
                        [](std::size_t nFin, std::int16_t n) { return nFin + static_cast<std::size_t>(n); });
    aContatori[0] = static_cast<std::int16_t>(nRighe - nColpite);
    return aContatori;
}

} // namespace ordavel
