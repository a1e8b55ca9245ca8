// ModProcessore.cpp - which form of a loop over bits runs.

#include "core/ModProcessore.hpp"

#include "ordavel/errore.hpp"

#include <algorithm>
#include <cstdlib>
#include <exception>
#include <span>
#include <string>

namespace ordavel {

namespace {

/// What the environment asks for, or the failure that this is.
struct Scelta {
    eNucleo nucleo = eNucleo::comune;
    std::exception_ptr fallimento;
};

std::string Elenco(std::span<const std::string_view> aNomi)
{
    std::string sElenco;
    for (const std::string_view sNome : aNomi) {
        sElenco.append(sElenco.empty() ? "" : ", ").append(sNome);
    }
    return sElenco;
}

Scelta Scegli() noexcept
{
    Scelta scelta;
    try {
        const char* sNome = std::getenv(kVariabileNucleo); // NOLINT(concurrency-mt-unsafe)
        scelta.nucleo = NucleoDi(sNome != nullptr ? sNome : "", CercaNucleo());
    } catch (...) {
        scelta.fallimento = std::current_exception();
    }
    return scelta;
}

} // namespace

eNucleo CercaNucleo() noexcept
{
#if defined(__x86_64__)
    __builtin_cpu_init();
    if (__builtin_cpu_supports("avx512vpopcntdq") && __builtin_cpu_supports("avx512vl") &&
        __builtin_cpu_supports("avx512bw")) {
        return eNucleo::avx512;
    }
    if (__builtin_cpu_supports("avx2") && __builtin_cpu_supports("popcnt")) {
        return eNucleo::avx2;
    }
#endif
    return eNucleo::comune;
}

eNucleo NucleoDi(std::string_view sNome, eNucleo massimo)
{
    if (sNome.empty()) {
        return massimo;
    }
    const auto aAmmessi = std::span(kNomiNuclei).first(static_cast<std::size_t>(massimo) + 1);
    const auto trovato = std::ranges::find(aAmmessi, sNome);
    if (trovato == aAmmessi.end()) {
        const bool bEsiste = std::ranges::find(kNomiNuclei, sNome) != kNomiNuclei.end();
        throw Errore(eErrore::argomento, std::string(kVariabileNucleo) + " vale \"" + std::string(sNome) +
                                             "\"" + (bEsiste ? ", che questo processore non ha" : "") +
                                             "; può valere " + Elenco(aAmmessi));
    }
    return static_cast<eNucleo>(trovato - aAmmessi.begin());
}

eNucleo NucleoMigliore()
{
    static const Scelta scelta = Scegli();
    if (scelta.fallimento) {
        std::rethrow_exception(scelta.fallimento);
    }
    return scelta.nucleo;
}

} // namespace ordavel
