// VerdettoBlocchi.hpp - how recovery and links judge, worked out once for all columns.
//
// How the links collapse depends on their order alone, so it becomes a list of blocks, each with the slots that it
// counts. A slot is a condition or a block that has collapsed before.

#pragma once

#include "ordavel/StatoSviluppo.hpp"

#include "motore/GruppoParole.hpp"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace ordavel {

/// What a record means to the verdict by itself.
enum class eRuolo : std::uint8_t {
    libero,         ///< nothing: it is counted by a link, or never rejects
    indispensabile, ///< a column that does not satisfy it is rejected
    recuperabile,   ///< the same, unless its group forgives it
};

struct PianoVerdetto {
    struct GruppoRecupero {
        std::vector<std::size_t> aMembri; ///< records
        std::int64_t nMinimo = 0;
        std::int64_t nMassimo = 0;
    };
    struct BloccoLink {
        std::vector<std::size_t> aPosti;     ///< slots that it counts
        std::vector<std::size_t> aAccettati; ///< counts that pass
    };

    std::vector<eRuolo> aRuoli;      ///< by record
    std::vector<std::size_t> aUsati; ///< records that groups and links read
    std::vector<GruppoRecupero> aGruppi;
    std::vector<BloccoLink> aLink;
    std::vector<std::size_t> aFinali; ///< slots that must hold, but those of aRuoli::indispensabile
    std::size_t nCifre = 0;           ///< binary digits of the largest count

    /// Does every condition have to hold by itself, and nothing else?
    [[nodiscard]] bool Semplice() const noexcept { return aFinali.empty(); }

    /// Is a record a member of a recovery group in force?
    [[nodiscard]] bool InGruppo(std::size_t nRecord) const;
};

/// Memory for the judgement of a group of words.
struct LavoroVerdetto {
    explicit LavoroVerdetto(const PianoVerdetto& piano)
        : aPosti(piano.aRuoli.size() + piano.aLink.size()), aRec(piano.aRuoli.size()), aCifre(piano.nCifre)
    {}

    std::vector<Corsie> aPosti; ///< by slot: columns that satisfy it
    std::vector<Corsie> aRec;   ///< by record: columns inside its recovery zone
    std::vector<Corsie> aCifre; ///< a count for each bit, as binary digits
};

/// May a column make recovery or links fail? Then a count falls outside a link's list, or a record's group is none.
[[nodiscard]] bool VerdettoPuoFallire(const StatoSviluppo& stato);

/// Takes    stato   compiled conditions and the board, of which VerdettoPuoFallire is false
[[nodiscard]] PianoVerdetto PianificaVerdetto(const StatoSviluppo& stato);

} // namespace ordavel
