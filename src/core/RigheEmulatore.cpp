// RigheEmulatore.cpp - the emulated draws as sets.

#include "ordavel/RigheEmulatore.hpp"

#include <utility>

namespace ordavel {

namespace {

constexpr std::size_t kEstrazioniGruppo = RigheEmulatore::kGruppo * 64;

} // namespace

RigheEmulatore::RigheEmulatore(std::vector<RigaEmulatore> aRighe)
    : m_aRighe(std::move(aRighe)),
      m_nParole((m_aRighe.size() + kEstrazioniGruppo - 1) / kEstrazioniGruppo * kGruppo),
      m_aBit(m_nParole * RigaEmulatore::kElementi)
{
    for (std::size_t nRiga = 0; nRiga < m_aRighe.size(); ++nRiga) {
        const std::uint64_t nBit = std::uint64_t{1} << (nRiga % 64);
        for (std::size_t n = 0; n < RigaEmulatore::kElementi; ++n) {
            if (m_aRighe[nRiga].aElementi[n] != 0) {
                m_aBit[n * m_nParole + nRiga / 64] |= nBit;
            }
        }
    }
}

} // namespace ordavel
