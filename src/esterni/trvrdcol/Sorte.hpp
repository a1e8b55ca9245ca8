// Sorte.hpp - chance that comes out the same on every machine.

#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace ordavel::trvrdcol {

/// Numbers that look random (xorshift with a multiplication behind it).
class Sorte {
public:
    explicit Sorte(std::uint64_t nSeme) : m_nStato((nSeme + 1) * 0x9E3779B97F4A7C15U | 1U) {}

    std::uint64_t Numero() noexcept
    {
        m_nStato ^= m_nStato >> 12U;
        m_nStato ^= m_nStato << 25U;
        m_nStato ^= m_nStato >> 27U;
        return m_nStato * 0x2545F4914F6CDD1DU;
    }

    /// 0 to nQuanti - 1.
    std::size_t Sotto(std::size_t nQuanti) noexcept
    {
        return static_cast<std::size_t>(((Numero() >> 32U) * nQuanti) >> 32U);
    }

    /// True nPercento times out of a hundred.
    bool Capita(unsigned nPercento) noexcept { return Sotto(100) < nPercento; }

    template <typename T> void Mescola(std::vector<T>& aVoci) noexcept
    {
        for (std::size_t k = aVoci.size(); k > 1; --k) {
            std::swap(aVoci[k - 1], aVoci[Sotto(k)]);
        }
    }

private:
    std::uint64_t m_nStato;
};

} // namespace ordavel::trvrdcol
