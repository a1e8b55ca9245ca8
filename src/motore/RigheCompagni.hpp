// RigheCompagni.hpp - rows of the conditions that count numbers together with their partner.

#pragma once

#include "core/ModProcessore.hpp"
#include "motore/Automa.hpp"

namespace ordavel {

/// Partners as masks: for each place the only place that may hold the partner of its number.
struct TabelleCompagni {
    std::size_t nScelti = 0;
    MaschereRiga bit;      ///< the place itself
    MaschereRiga compagni; ///< the place of the partner, when it was picked
    MaschereRiga sopra;    ///< all places above; nothing from the last place on
};

/// What a beginning leaves to its two last numbers.
struct InizioCompagni {
    std::size_t nPrimo = 0; ///< first place of the next-to-last number
    Maschera attesi;        ///< partners of the numbers of the beginning
    /// By how many pairs more there are, 0 to 2: all bits, or none, when that satisfies or recovers.
    std::array<std::uint64_t, 3> aOk{};
    std::array<std::uint64_t, 3> aRec{};
};

class RigheCompagni {
public:
    /// Takes    record    of kind 27 or 28
    ///          nClasse   2..10
    ///          aScelti   the picks, ascending, 2 to 90 of the numbers 1 to 90
    ///          nucleo    one that this processor has
    RigheCompagni(const RecordCondizione& record, std::int16_t nClasse, std::span<const std::uint8_t> aScelti,
                  eNucleo nucleo);

    /// The row of a beginning; it stays until the next call.
    /// Takes    inizio   class - 2 of the picks, ascending
    ///          nPrimo   the first place of the next-to-last number; words in front of it hold anything
    [[nodiscard]] const RigaAutoma& Riga(const Colonna& inizio, std::size_t nPrimo);

private:
    using Nucleo = void (*)(const TabelleCompagni&, const InizioCompagni&, RigaAutoma&);

    static const std::array<Nucleo, 3> kNuclei; ///< by eNucleo

    std::int16_t m_nClasse;
    FlagPunti m_aOk;
    FlagPunti m_aRec;
    Nucleo m_Nucleo;
    Tabella<std::uint8_t, 0, kNumeroMassimo> m_aPosti; ///< by number: its place among the picks
    TabelleCompagni m_Tabelle;
    InizioCompagni m_Inizio;
    RigaAutoma m_Riga;
};

} // namespace ordavel
