// NucleiFette.cpp - sums of rows of bits, 512 columns at a time where the processor can.

#include "riduzione/NucleiFette.hpp"

#include <cstring>
#include <utility>

namespace ordavel {

namespace {

constexpr std::size_t kGruppo = 8;
using Gruppo [[gnu::vector_size(kGruppo * sizeof(std::uint64_t))]] = std::uint64_t;

[[gnu::always_inline]] inline void Prendi(Gruppo& gruppo, const std::uint64_t* aParole)
{
    std::memcpy(&gruppo, aParole, sizeof gruppo);
}

[[gnu::always_inline]] inline void Posa(const Gruppo& gruppo, std::uint64_t* aParole)
{
    std::memcpy(aParole, &gruppo, sizeof gruppo);
}

template <std::size_t Coppie>
[[gnu::always_inline]] inline void GiudicaPezzo(const RigheFetta& aRighe, const SogliaFette& soglia,
                                                Fetta& verdetti)
{
    constexpr std::size_t kCifre = CifreFette(Coppie);
    for (std::size_t nParola = 0; nParola < kParoleFetta; nParola += kGruppo) {
        std::array<Gruppo, kCifre> cifre{};
        for (std::size_t c = 0; c < kCifre; ++c) {
            cifre[c] = Gruppo{} + soglia.aCifre[Coppie - 1][c];
        }
        Gruppo oltre = Gruppo{} + soglia.nSempre;
        for (std::size_t p = 0; p < Coppie; ++p) {
            Gruppo prima;
            Gruppo seconda;
            Prendi(prima, aRighe[2 * p] + nParola);
            Prendi(seconda, aRighe[2 * p + 1] + nParola);
            const Gruppo diversi = prima ^ seconda;
            Gruppo riporto = (prima & seconda) | (cifre[0] & diversi);
            cifre[0] ^= diversi;
            for (std::size_t c = 1; c < kCifre; ++c) {
                const Gruppo nuovo = cifre[c] & riporto;
                cifre[c] ^= riporto;
                riporto = nuovo;
            }
            oltre |= riporto;
        }
        Posa(oltre, verdetti.data() + nParola);
    }
}

[[gnu::always_inline]] inline std::int32_t ContaComuni(const Fetta& prima, const Fetta& seconda)
{
    std::int32_t nQuante = 0;
    for (std::size_t nParola = 0; nParola < kParoleFetta; ++nParola) {
        nQuante += __builtin_popcountll(prima[nParola] & seconda[nParola]);
    }
    return nQuante;
}

[[gnu::always_inline]] inline void AccumulaPezzo(const Fetta& fetta, ContatoriFetta& contatori)
{
    for (std::size_t nParola = 0; nParola < kParoleFetta; nParola += kGruppo) {
        Gruppo riporto;
        Prendi(riporto, fetta.data() + nParola);
        for (Fetta& cifra : contatori) {
            Gruppo valore;
            Prendi(valore, cifra.data() + nParola);
            Posa(valore ^ riporto, cifra.data() + nParola);
            riporto &= valore;
        }
    }
}

// One set of functions for each instruction set; the loops above become part of them.

struct Comune {
    template <std::size_t Coppie>
    static void Giudica(const RigheFetta& aRighe, const SogliaFette& soglia, Fetta& verdetti)
    {
        GiudicaPezzo<Coppie>(aRighe, soglia, verdetti);
    }
    static std::int32_t Conta(const Fetta& prima, const Fetta& seconda)
    {
        return ContaComuni(prima, seconda);
    }
    static void Accumula(const Fetta& fetta, ContatoriFetta& contatori) { AccumulaPezzo(fetta, contatori); }
};

struct Avx2 {
    template <std::size_t Coppie>
    ORDAVEL_AVX2 static void Giudica(const RigheFetta& aRighe, const SogliaFette& soglia, Fetta& verdetti)
    {
        GiudicaPezzo<Coppie>(aRighe, soglia, verdetti);
    }
    ORDAVEL_AVX2 static std::int32_t Conta(const Fetta& prima, const Fetta& seconda)
    {
        return ContaComuni(prima, seconda);
    }
    ORDAVEL_AVX2 static void Accumula(const Fetta& fetta, ContatoriFetta& contatori)
    {
        AccumulaPezzo(fetta, contatori);
    }
};

struct Avx512 {
    template <std::size_t Coppie>
    ORDAVEL_AVX512 static void Giudica(const RigheFetta& aRighe, const SogliaFette& soglia, Fetta& verdetti)
    {
        GiudicaPezzo<Coppie>(aRighe, soglia, verdetti);
    }
    ORDAVEL_AVX512 static std::int32_t Conta(const Fetta& prima, const Fetta& seconda)
    {
        return ContaComuni(prima, seconda);
    }
    ORDAVEL_AVX512 static void Accumula(const Fetta& fetta, ContatoriFetta& contatori)
    {
        AccumulaPezzo(fetta, contatori);
    }
};

template <typename Insieme> constexpr NucleiFette CreaNuclei()
{
    return []<std::size_t... P>(std::index_sequence<P...>)
    {
        return NucleiFette{{Insieme::template Giudica<P + 1>...}, Insieme::Conta, Insieme::Accumula};
    }
    (std::make_index_sequence<kCoppieRighe>{});
}

/// By eNucleo.
constexpr std::array<NucleiFette, 3> kNuclei{CreaNuclei<Comune>(), CreaNuclei<Avx2>(), CreaNuclei<Avx512>()};

} // namespace

SogliaFette CreaSoglia(std::int32_t nPunti) noexcept
{
    SogliaFette soglia;
    soglia.nSempre = nPunti <= 0 ? ~std::uint64_t{0} : 0;
    for (std::size_t p = 0; p < kCoppieRighe; ++p) {
        const std::int64_t nLimite = std::int64_t{1} << CifreFette(p + 1);
        const std::int64_t nInizio = nPunti > 0 && nPunti < nLimite ? nLimite - nPunti : 0;
        for (std::size_t c = 0; c < SogliaFette::kCifreMassime; ++c) {
            soglia.aCifre[p][c] = ((nInizio >> c) & 1) != 0 ? ~std::uint64_t{0} : 0;
        }
    }
    return soglia;
}

const NucleiFette& ScegliNuclei(eNucleo nucleo) noexcept
{
    return kNuclei[static_cast<std::size_t>(nucleo)];
}

} // namespace ordavel
