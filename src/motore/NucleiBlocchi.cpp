// NucleiBlocchi.cpp - conditions over the masks of several next-to-last numbers at once.

#include "motore/NucleiBlocchi.hpp"

#include "motore/NucleoVerdetto.hpp"

namespace ordavel {

namespace {

/// Low words of a row, or high ones.
[[gnu::always_inline]] inline const std::uint64_t* Parole(const MaschereRiga& riga, bool bAlte)
{
    return bAlte ? riga.aAlte.data() : riga.aBasse.data();
}

[[gnu::always_inline]] inline std::uint64_t* Parole(MaschereRiga& riga, bool bAlte)
{
    return bAlte ? riga.aAlte.data() : riga.aBasse.data();
}

template <std::size_t N>
[[gnu::always_inline]] inline void Comuni(Righe aRighe, bool bAlte, std::size_t nPosto, Vettore<N>& comuni)
{
    Prendi(comuni, Parole(*aRighe[0], bAlte) + nPosto);
    for (std::size_t c = 1; c < aRighe.size(); ++c) {
        Vettore<N> riga;
        Prendi(riga, Parole(*aRighe[c], bAlte) + nPosto);
        comuni &= riga;
    }
}

template <std::size_t N>
[[gnu::always_inline]] inline bool Incrocia(const TrattiBlocco& tratti, Righe aRighe, MaschereRiga& tenute)
{
    Vettore<N> unione{};
    const auto incrocia = [&](const Tratto& tratto, bool bAlte) {
        for (std::size_t n = tratto.nPrimo; n < tratto.nPrimo + tratto.nParole; n += N) {
            Vettore<N> comuni;
            Comuni<N>(aRighe, bAlte, n, comuni);
            unione |= comuni;
            Posa(comuni, Parole(tenute, bAlte) + n);
        }
    };
    incrocia(tratti.basse, false);
    incrocia(tratti.alte, true);
    return Qualcuno(unione);
}

template <std::size_t N>
[[gnu::always_inline]] inline std::uint64_t Conta(const TrattiBlocco& tratti, Righe aRighe)
{
    ContaBit<N> conto;
    const auto conta = [&](const Tratto& tratto, bool bAlte) {
        for (std::size_t n = tratto.nPrimo; n < tratto.nPrimo + tratto.nParole; n += N) {
            Vettore<N> comuni;
            Comuni<N>(aRighe, bAlte, n, comuni);
            conto.Aggiungi(comuni);
        }
    };
    conta(tratti.basse, false);
    conta(tratti.alte, true);
    return conto.Somma();
}

template <std::size_t N>
[[gnu::always_inline]] inline void Componi(const TrattiBlocco& tratti, const PianoVerdetto& piano,
                                           const RigheVerdetto& righe, LavoroVerdetto& lavoro,
                                           MaschereRiga& tenute)
{
    const auto componi = [&](const Tratto& tratto, bool bAlte) {
        for (std::size_t n = tratto.nPrimo; n < tratto.nPrimo + tratto.nParole; n += N) {
            for (const std::size_t i : piano.aUsati) {
                std::memcpy(lavoro.aPosti[i].data(), Parole(*righe.aOk[i], bAlte) + n, sizeof(Vettore<N>));
                std::memcpy(lavoro.aRec[i].data(), Parole(*righe.aRec[i], bAlte) + n, sizeof(Vettore<N>));
            }
            Vettore<N> tieni;
            Prendi(tieni, Parole(tenute, bAlte) + n);
            Giudica(piano, lavoro, tieni);
            Posa(tieni, Parole(tenute, bAlte) + n);
        }
    };
    componi(tratti.basse, false);
    componi(tratti.alte, true);
}

// One set of functions a processor: the bodies above, compiled for it. An attribute stands in no parentheses.
// NOLINTBEGIN(bugprone-macro-parentheses)
#define ORDAVEL_NUCLEI_BLOCCHI(PROCESSORE, NOME, N)                                                          \
    PROCESSORE bool Incrocia##NOME(const TrattiBlocco& tratti, Righe aRighe, MaschereRiga& tenute)           \
    {                                                                                                        \
        return Incrocia<N>(tratti, aRighe, tenute);                                                          \
    }                                                                                                        \
    PROCESSORE std::uint64_t Conta##NOME(const TrattiBlocco& tratti, Righe aRighe)                           \
    {                                                                                                        \
        return Conta<N>(tratti, aRighe);                                                                     \
    }                                                                                                        \
    PROCESSORE void Componi##NOME(const TrattiBlocco& tratti, const PianoVerdetto& piano,                    \
                                  const RigheVerdetto& righe, LavoroVerdetto& lavoro, MaschereRiga& tenute)  \
    {                                                                                                        \
        Componi<N>(tratti, piano, righe, lavoro, tenute);                                                    \
    }

ORDAVEL_NUCLEI_BLOCCHI(, Comune, 2)
ORDAVEL_NUCLEI_BLOCCHI(ORDAVEL_AVX2, Avx2, 4)
ORDAVEL_NUCLEI_BLOCCHI(ORDAVEL_AVX512, Avx512, 8)
#undef ORDAVEL_NUCLEI_BLOCCHI
// NOLINTEND(bugprone-macro-parentheses)

/// By eNucleo.
constexpr std::array<NucleoBlocchi, 3> kNuclei{{{IncrociaComune, ContaComune, ComponiComune},
                                                {IncrociaAvx2, ContaAvx2, ComponiAvx2},
                                                {IncrociaAvx512, ContaAvx512, ComponiAvx512}}};

} // namespace

const NucleoBlocchi& ScegliNucleoBlocchi(eNucleo nucleo) noexcept
{
    return kNuclei[static_cast<std::size_t>(nucleo)];
}

} // namespace ordavel
