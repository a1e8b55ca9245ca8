// SottoinsiemiVisti.cpp - sets as bits, or as ranks in open addressing.

#include "riduzione/SottoinsiemiVisti.hpp"

#include <algorithm>
#include <array>
#include <utility>

namespace ordavel {

namespace {

constexpr std::uint64_t kBitParola = 64;
/// A table of bits as small as this needs no reason.
constexpr std::uint64_t kByteSempre = std::uint64_t{1} << 20U;

/// Sets of some numbers; none where they have no rank.
std::uint64_t QuantiInsiemi(std::size_t nPosti, std::size_t nGrandezza) noexcept
{
    return nGrandezza > kSottoinsiemeMassimo ? 0 : NumeroSottoinsiemi(nPosti, nGrandezza);
}

/// Of four words one stays free, so that a search is short and always ends at a free one.
std::uint64_t ParolePerRanghi(std::uint64_t nRanghi) noexcept
{
    return nRanghi + nRanghi / 3 + 1;
}

std::uint64_t RanghiPerParole(std::uint64_t nParole) noexcept
{
    return nParole - nParole / 4 - (nParole > 0 ? 1 : 0);
}

/// Where the search for a rank begins: its product with 2^64 over the golden ratio, cut down to the table's length.
std::size_t PrimoPosto(std::uint64_t nRango, std::size_t nParole) noexcept
{
    const std::uint64_t nSparso = nRango * 0x9E3779B97F4A7C15U;
    __extension__ using Doppio = unsigned __int128;
    return static_cast<std::size_t>((static_cast<Doppio>(nSparso) * nParole) >> 64U);
}

/// The word that holds nParola, or the free one where it would go. There is always a free one.
std::size_t Posto(const std::vector<std::uint64_t>& aParole, std::uint64_t nParola) noexcept
{
    std::size_t nPosto = PrimoPosto(nParola, aParole.size());
    while (aParole[nPosto] != nParola && aParole[nPosto] != 0) {
        nPosto = nPosto + 1 == aParole.size() ? 0 : nPosto + 1;
    }
    return nPosto;
}

/// Is prova(rank) true for some set of S of the first nPosti places? It is not asked further after the first.
template <std::size_t S, typename Prova>
[[gnu::always_inline]] inline bool Qualcuno(const std::uint8_t* aPosti, std::size_t nPosti,
                                            std::uint64_t nRango, const Prova& prova)
{
    if constexpr (S == 0) {
        return prova(nRango);
    } else {
        for (std::size_t j = S; j <= nPosti; ++j) {
            if (Qualcuno<S - 1>(aPosti, j - 1, nRango + kBinomiali[aPosti[j - 1]][S], prova)) {
                return true;
            }
        }
        return false;
    }
}

} // namespace

SottoinsiemiVisti::SottoinsiemiVisti(std::size_t nGrandezza, std::uint64_t nAttesi, std::size_t nByte)
    : m_nGrandezza(nGrandezza)
{
    const std::uint64_t nParole = nByte / sizeof(std::uint64_t);
    const std::uint64_t nParoleBit = (QuantiInsiemi(kPosti, nGrandezza) + kBitParola - 1) / kBitParola;
    const std::uint64_t nParoleRanghi = std::min(nParole, ParolePerRanghi(nAttesi));
    const bool bPiccola = nParoleBit * sizeof(std::uint64_t) <= kByteSempre;
    m_bBit = nParoleBit <= nParole && (bPiccola || nParoleBit <= nParoleRanghi);
    m_aParole.resize(nGrandezza > kSottoinsiemeMassimo ? 0 : m_bBit ? nParoleBit : nParoleRanghi);
    m_nCapienza = RanghiPerParole(m_aParole.size());
    m_pContiene = Scegli();
}

bool SottoinsiemiVisti::Basta(std::size_t nPosti) const noexcept
{
    return m_bBit || QuantiInsiemi(nPosti, m_nGrandezza) <= m_nCapienza;
}

void SottoinsiemiVisti::Svuota() noexcept
{
    std::fill(m_aParole.begin(), m_aParole.end(), 0);
    m_nPresenti = 0;
}

bool SottoinsiemiVisti::Aggiungi(std::span<const std::uint8_t> aPosti) noexcept
{
    if (m_bBit) {
        PerOgniSottoinsieme(aPosti, m_nGrandezza, [this](std::uint64_t nRango) {
            m_aParole[nRango / kBitParola] |= std::uint64_t{1} << (nRango % kBitParola);
        });
        return true;
    }
    if (QuantiInsiemi(aPosti.size(), m_nGrandezza) > m_nCapienza - m_nPresenti) {
        return false;
    }
    PerOgniSottoinsieme(aPosti, m_nGrandezza, [this](std::uint64_t nRango) { MettiRango(nRango); });
    return true;
}

/// A rank stands in the table as itself plus one: 0 is a free word.
void SottoinsiemiVisti::MettiRango(std::uint64_t nRango) noexcept
{
    std::uint64_t& nParola = m_aParole[Posto(m_aParole, nRango + 1)];
    m_nPresenti += nParola == 0 ? 1 : 0;
    nParola = nRango + 1;
}

template <std::size_t S>
bool SottoinsiemiVisti::ContieneBit(std::span<const std::uint8_t> aPosti) const noexcept
{
    const std::uint64_t* const aParole = m_aParole.data();
    return Qualcuno<S>(aPosti.data(), aPosti.size(), 0, [aParole](std::uint64_t nRango) {
        return (aParole[nRango / kBitParola] >> (nRango % kBitParola) & 1U) != 0;
    });
}

template <std::size_t S>
bool SottoinsiemiVisti::ContieneRango(std::span<const std::uint8_t> aPosti) const noexcept
{
    return m_nPresenti > 0 && Qualcuno<S>(aPosti.data(), aPosti.size(), 0, [this](std::uint64_t nRango) {
               return m_aParole[Posto(m_aParole, nRango + 1)] != 0;
           });
}

SottoinsiemiVisti::Ricerca SottoinsiemiVisti::Scegli() const noexcept
{
    if (m_nGrandezza > kSottoinsiemeMassimo) {
        return &SottoinsiemiVisti::ContieneRango<0>; // in a table where nothing is ever present
    }
    return [this]<std::size_t... S>(std::index_sequence<S...>)
    {
        constexpr std::array<Ricerca, sizeof...(S)> kBit{&SottoinsiemiVisti::ContieneBit<S>...};
        constexpr std::array<Ricerca, sizeof...(S)> kRanghi{&SottoinsiemiVisti::ContieneRango<S>...};
        return m_bBit ? kBit[m_nGrandezza] : kRanghi[m_nGrandezza];
    }
    (std::make_index_sequence<kSottoinsiemeMassimo + 1>{});
}

} // namespace ordavel
