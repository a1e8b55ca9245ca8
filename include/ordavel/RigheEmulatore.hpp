// RigheEmulatore.hpp - the emulated draws, as they stand in their file and as one set of draws a number.
//
// A row says which numbers a draw had. The metric asks the other way round, which draws had a number, and answers
// for 64 draws at once.

#pragma once

#include "ordavel/esporta.hpp"
#include "ordavel/records.hpp"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace ordavel {

class ORDAVEL_EXPORT RigheEmulatore {
public:
    /// One row of no number: what stands for draws that were not loaded.
    RigheEmulatore() : RigheEmulatore(std::vector<RigaEmulatore>(1)) {}

    /// A number counts as drawn when its byte is not 0.
    explicit RigheEmulatore(std::vector<RigaEmulatore> aRighe);

    [[nodiscard]] const std::vector<RigaEmulatore>& Righe() const noexcept { return m_aRighe; }

    /// Words that are asked together; every set has a multiple of them.
    static constexpr std::size_t kGruppo = 8;

    /// Words of 64 draws in one set; draw r, from 0, is the bit r mod 64 of the word r / 64, and the bits behind the
    /// last draw are 0.
    [[nodiscard]] std::size_t Parole() const noexcept { return m_nParole; }

    /// The draws that had a number.
    /// Takes    nNumero   0..90, not checked
    [[nodiscard]] const std::uint64_t* Estrazioni(std::size_t nNumero) const noexcept
    {
        return m_aBit.data() + nNumero * m_nParole;
    }

private:
    std::vector<RigaEmulatore> m_aRighe;
    std::size_t m_nParole = 0;
    std::vector<std::uint64_t> m_aBit;
};

} // namespace ordavel
