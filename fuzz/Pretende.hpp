// Pretende.hpp - a claim that a fuzzer makes; where it does not hold, the fuzzer stops and keeps its input.

#pragma once

#include <cstdio>
#include <cstdlib>

namespace ordavel::fuzz {

inline void Pretende(bool bVero, const char* sPretesa)
{
    if (!bVero) {
        std::fprintf(stderr, "non vale: %s\n", sPretesa);
        std::abort();
    }
}

} // namespace ordavel::fuzz
