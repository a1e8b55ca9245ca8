// ModProcessore.hpp - which instruction sets this processor has, and how a function is compiled for one.
//
// A loop over words of bits is written once, as an inline function over vectors of the compiler, and called from one
// function for each instruction set. Which of them runs is chosen once, when it is first needed.

#pragma once

#include <cstdint>

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

/// Forms of a loop over bits, from the plainest on.
enum class eNucleo : std::uint8_t { comune, avx2, avx512 };

/// Asks the processor for the widest form that it has.
[[nodiscard]] inline eNucleo CercaNucleo() noexcept
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

/// The widest form that this processor has; it has the plainer ones as well.
[[nodiscard]] inline eNucleo NucleoMigliore() noexcept
{
    static const eNucleo nucleo = CercaNucleo();
    return nucleo;
}

} // namespace ordavel
