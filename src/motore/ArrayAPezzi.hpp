// ArrayAPezzi.hpp - a large array that is made piece by piece, so that no single step takes long.

#pragma once

#include <array>
#include <cstddef>
#include <memory>
#include <vector>

namespace ordavel {

/// An array of zero elements whose pieces are made when they are first touched.
template <typename T> class ArrayAPezzi {
public:
    explicit ArrayAPezzi(std::size_t nElementi = 0) { Allunga(nElementi); }

    /// More elements than before; those that are there stay.
    void Allunga(std::size_t nElementi)
    {
        m_nElementi = nElementi;
        m_aPezzi.resize((nElementi + kPezzo - 1) / kPezzo);
    }

    [[nodiscard]] std::size_t Quanti() const noexcept { return m_nElementi; }

    [[nodiscard]] T& operator[](std::size_t n)
    {
        std::unique_ptr<Pezzo>& pezzo = m_aPezzi[n / kPezzo];
        if (!pezzo) {
            pezzo = std::make_unique<Pezzo>();
        }
        return (*pezzo)[n % kPezzo];
    }

    /// An element that was touched before.
    [[nodiscard]] const T& operator[](std::size_t n) const { return (*m_aPezzi[n / kPezzo])[n % kPezzo]; }

private:
    static constexpr std::size_t kPezzo = 2048;
    using Pezzo = std::array<T, kPezzo>;

    std::size_t m_nElementi = 0;
    std::vector<std::unique_ptr<Pezzo>> m_aPezzi;
};

} // namespace ordavel
