// ModProcessore.hpp - which instruction sets this processor has, and how a function is compiled for one.
//
// A loop over words of bits is written once, as an inline function over vectors of the compiler, and called from one
// function for each instruction set. Which of them runs is chosen once, when it is first needed: the widest that the
// processor has, or the one that the environment variable ORDAVEL_NUCLEO names.

#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

// Both compilers prefer half of the width that the widest form exists for, and each is told otherwise in its own words.
#if defined(__x86_64__)
#    define ORDAVEL_AVX2 [[gnu::target("popcnt,avx2")]]
#    if defined(__clang__)
#        define ORDAVEL_AVX512                                                                               \
            [[gnu::target("avx512f,avx512vl,avx512bw,avx512vpopcntdq,popcnt"), clang::min_vector_width(512)]]
#    else
#        define ORDAVEL_AVX512                                                                               \
            [[gnu::target("avx512f,avx512vl,avx512bw,avx512vpopcntdq,popcnt,prefer-vector-width=512")]]
#    endif
#else
#    define ORDAVEL_AVX2
#    define ORDAVEL_AVX512
#endif

namespace ordavel {

/// Forms of a loop over bits, from the plainest on. A processor that has one has those in front of it as well.
enum class eNucleo : std::uint8_t { comune, avx2, avx512 };

/// Their names, by eNucleo.
inline constexpr std::array<std::string_view, 3> kNomiNuclei{"comune", "avx2", "avx512"};

/// The variable that forces a form. Empty is as good as missing.
inline constexpr const char* kVariabileNucleo = "ORDAVEL_NUCLEO";

[[nodiscard]] constexpr std::string_view NomeNucleo(eNucleo nucleo) noexcept
{
    return kNomiNuclei[static_cast<std::size_t>(nucleo)];
}

/// The widest form that this processor has, whatever is forced.
[[nodiscard]] eNucleo CercaNucleo() noexcept;

/// The form of a name.
/// Takes    sNome      empty for the widest
///          massimo    the widest form that there is
/// Fails    5: no such name, or a form beyond the widest; the description names the variable and what it may hold
[[nodiscard]] eNucleo NucleoDi(std::string_view sNome, eNucleo massimo);

/// The form that runs: the widest of this processor, unless the environment forces another. The environment is read at
/// the first call alone.
/// Fails    5: as NucleoDi, at every call
[[nodiscard]] eNucleo NucleoMigliore();

} // namespace ordavel
