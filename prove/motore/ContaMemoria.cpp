// ContaMemoria.cpp - operator new that counts its calls.
//
// A source of its own: where the compiler sees both halves it takes the pair malloc and delete for a mistake.

#include "motore/ContaMemoria.hpp"

#include <cstddef>
#include <cstdlib>
#include <new>

namespace {

std::int64_t nRichieste = 0;

} // namespace

void* operator new(std::size_t nByte)
{
    ++nRichieste;
    if (void* const memoria = std::malloc(nByte == 0 ? 1 : nByte)) {
        return memoria;
    }
    throw std::bad_alloc();
}

void operator delete(void* memoria) noexcept
{
    std::free(memoria);
}

void operator delete(void* memoria, std::size_t /*nByte*/) noexcept
{
    std::free(memoria);
}

namespace ordavel::prove {

std::int64_t RichiesteMemoria() noexcept
{
    return nRichieste;
}

} // namespace ordavel::prove
