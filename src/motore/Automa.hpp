// Automa.hpp - a condition as an automaton over the picks, with masks of what follows a beginning.
//
// Words. «place»: index of a pick, from 0. «mask»: one bit for each place, place 0 the highest (bit picks - 1), so that
// a low word serves all places but the first few of many picks. «row»: the masks that follow a beginning of class - 2
// numbers, one for each place of the next-to-last number; each holds the places of the last number, all of them above.
//
// States are made when they are first asked for. Each keeps a beginning that leads to it; the verdicts are those of
// the plain form on that beginning, so that nothing is worked out twice and nothing is defined twice.

#pragma once

#include "ordavel/StatoSviluppo.hpp"

#include "motore/ModChiavi.hpp"

#include <array>
#include <cstddef>
#include <cstdint>
#include <deque>
#include <memory>
#include <span>
#include <unordered_map>
#include <vector>

namespace ordavel {

/// A mask in two words: the places from the 65th last on, and the last 64.
struct Maschera {
    std::uint64_t nAlta = 0;
    std::uint64_t nBassa = 0;

    [[nodiscard]] bool Vuota() const noexcept { return (nAlta | nBassa) == 0; }
    [[nodiscard]] friend constexpr Maschera operator&(Maschera a, Maschera b) noexcept
    {
        return {a.nAlta & b.nAlta, a.nBassa & b.nBassa};
    }
};

/// The bit of a place among nScelti picks.
[[nodiscard]] constexpr Maschera BitDelPosto(std::size_t nScelti, std::size_t nPosto) noexcept
{
    const std::size_t nBit = nScelti - 1 - nPosto;
    return nBit >= 64 ? Maschera{std::uint64_t{1} << (nBit - 64), 0} : Maschera{0, std::uint64_t{1} << nBit};
}

/// All places above one.
[[nodiscard]] constexpr Maschera PostiSopra(std::size_t nScelti, std::size_t nPosto) noexcept
{
    const std::size_t nBit = nScelti - 1 - nPosto; // so many places stand above
    const auto sotto = [](std::size_t n) {
        return n >= 64 ? ~std::uint64_t{0} : (std::uint64_t{1} << n) - 1;
    };
    return {nBit > 64 ? sotto(nBit - 64) : 0, sotto(nBit)};
}

/// Eight places of next-to-last numbers are looked at together, from any place on: so much stands behind the last.
inline constexpr std::size_t kAffiancate = 8;
inline constexpr std::size_t kPostiRiga = 96 + kAffiancate;
/// Places of which the high word can hold anything: with 90 picks, those up to 25.
inline constexpr std::size_t kPostiAlti = 32 + kAffiancate;

/// Masks that follow a beginning, by place of the next-to-last number.
struct MaschereRiga {
    std::array<std::uint64_t, kPostiRiga> aBasse{};
    std::array<std::uint64_t, kPostiAlti> aAlte{};

    void Poni(std::size_t nPosto, Maschera maschera) noexcept
    {
        aBasse[nPosto] = maschera.nBassa;
        if (nPosto < kPostiAlti) {
            aAlte[nPosto] = maschera.nAlta;
        }
    }
    [[nodiscard]] Maschera operator[](std::size_t nPosto) const noexcept
    {
        return {nPosto < kPostiAlti ? aAlte[nPosto] : 0, aBasse[nPosto]};
    }
};

struct RigaAutoma {
    MaschereRiga ok;
    MaschereRiga rec;       ///< columns inside the recovery zone; of kind 17 only those that do not pass
    Maschera rotti;         ///< next-to-last places of which some column fails
    bool bRecuperi = false; ///< rec is not empty
};

class Automa {
public:
    /// Takes    record     a condition that is no link
    ///          nClasse    2..10
    ///          aScelti    the picks, ascending, at most 90
    ///          stato      draws of the emulator
    ///          nByte      what the states may take; beyond that no more are kept
    Automa(const RecordCondizione& record, std::int16_t nClasse, std::span<const std::uint8_t> aScelti,
           const StatoSviluppo& stato, std::size_t nByte);

    Automa(Automa&&) = default;
    Automa& operator=(Automa&&) = default;
    Automa(const Automa&) = delete;
    Automa& operator=(const Automa&) = delete;
    ~Automa() = default;

    /// Are there states? Otherwise a row is made for a beginning, not for a state. Once there are too many of them, there
    /// are none any more.
    [[nodiscard]] bool ConStati() const noexcept
    {
        return m_Forma != eChiave::nessuna && m_nByte <= m_nByteMassimi;
    }

    /// The state before any number.
    static constexpr std::uint32_t kIniziale = 0;

    /// The state behind one more number.
    [[nodiscard]] std::uint32_t Passo(std::uint32_t nStato, std::size_t nPosto)
    {
        const std::uint32_t nDopo = m_aPassi[nStato * m_aScelti.size() + nPosto];
        return nDopo != kIgnoto ? nDopo : NuovoPasso(nStato, nPosto);
    }

    /// The row of a state behind class - 2 numbers.
    [[nodiscard]] const RigaAutoma& Riga(std::uint32_t nStato)
    {
        const RigaAutoma* riga = m_aRighe[nStato];
        return riga != nullptr ? *riga : NuovaRiga(nStato);
    }

    /// The row of a beginning of class - 2 numbers whose last place is nUltimo (from -1 for none), for a kind without
    /// states. It stays until the next call.
    [[nodiscard]] const RigaAutoma& RigaDi(const Colonna& inizio, std::ptrdiff_t nUltimo);

private:
    static constexpr std::uint32_t kIgnoto = 0xFFFFFFFFU;

    /// A beginning that leads to a state.
    struct Stato {
        Colonna inizio;
        std::int16_t nDati = 0;
    };
    /// What the last number decides.
    struct Verdetti {
        Maschera ok;
        Maschera rec;
        Maschera rotti;
    };

    std::uint32_t NuovoPasso(std::uint32_t nStato, std::size_t nPosto);
    std::uint32_t StatoDi(const Stato& stato);
    const RigaAutoma& NuovaRiga(std::uint32_t nStato);
    const Verdetti& VerdettiDi(std::uint32_t nStato);
    [[nodiscard]] Verdetti Giudica(const Stato& stato, std::size_t nDa);
    void Unisci(RigaAutoma& riga, std::size_t nPosto, const Verdetti& verdetti) const;
    [[nodiscard]] std::size_t PrimoPosto(const Stato& stato) const;

    std::int16_t m_nClasse;
    eChiave m_Forma;
    std::size_t m_nByteMassimi;
    std::size_t m_nByte = 0; ///< of the states and rows, about
    std::vector<std::uint8_t> m_aScelti;
    StatoSviluppo m_Prova; ///< the one condition, for the plain form
    std::vector<Stato> m_aStati;
    std::vector<std::uint32_t> m_aPassi; ///< [states * picks]
    std::vector<const RigaAutoma*> m_aRighe;
    std::deque<RigaAutoma> m_aFatte;
    std::vector<std::unique_ptr<Verdetti>> m_aVerdetti;            ///< by state behind class - 1 numbers
    std::unordered_map<std::uint64_t, std::uint32_t> m_aPerChiave; ///< length and key to state
    RigaAutoma m_Volante;
};

} // namespace ordavel
