// ModStatistica.hpp - what a kind of condition measured over the draws of a game.
//
// A draw is read as a column: its numbers in ascending order. "Lotto" takes the five numbers of one wheel,
// "10ELotto" and "10ELotto5M" all twenty of the draw (the emulator reads ten of them), "SuperEnalotto" its six,
// "WinForLife" its ten. A draw that lacks a number, has one twice or one above 90 is passed over. The value is the one
// that the column test compares. The kinds of specific digits, which no column test measures, count the numbers of
// that digit.

#pragma once

#include "condizioni/ModCatalogo.hpp"
#include "core/ModGiochi.hpp"
#include "motore/ModMetriche.hpp"

#include <cstdint>
#include <string>
#include <vector>

namespace ordavel {

/// One of the ways to measure a kind: with which parameter.
struct VarianteStatistica {
    std::string sNome; ///< "Resto a 3"; empty for a kind without parameter
    Metrica metrica = nullptr;
    RecordCondizione record;
    bool bIntervalli = false; ///< values are gathered in intervals
};

/// One bar: the values nDa to nA, and the draws that had one of them.
struct BarraStatistica {
    std::int32_t nDa = 0;
    std::int32_t nA = 0;
    std::int64_t nQuante = 0;
    std::int64_t nUltime = 0; ///< of the latest draws
    double nQuota = 0;        ///< of all draws used, 0 to 1
    double nQuotaUltime = 0;  ///< of the latest draws, 0 to 1

    [[nodiscard]] friend bool operator==(const BarraStatistica&, const BarraStatistica&) = default;
};

/// One of the latest draws.
struct UltimaEstrazione {
    std::int32_t nEstrazione = 0; ///< its number in the archive, from 1
    std::int32_t nValore = 0;
    std::vector<std::uint8_t> aNumeri; ///< ascending

    [[nodiscard]] friend bool operator==(const UltimaEstrazione&, const UltimaEstrazione&) = default;
};

/// The distribution of a metric.
struct EsitoStatistica {
    bool bArchivio = false;                ///< could the archive be read?
    std::vector<BarraStatistica> aBarre;   ///< ascending, without a gap between them
    std::vector<UltimaEstrazione> aUltime; ///< newest first
    std::int64_t nUsate = 0;               ///< draws measured
    std::int64_t nSaltate = 0;             ///< draws passed over
    std::int32_t nMinimo = 0;
    std::int32_t nMassimo = 0;
    double nMedia = 0;

    [[nodiscard]] friend bool operator==(const EsitoStatistica&, const EsitoStatistica&) = default;
};

/// Where the draws are.
struct FonteStatistica {
    const ProfiloGioco* gioco = nullptr;
    std::string sArchivio;
    std::int16_t nRuota = 1; ///< of "Lotto", from 1
};

/// The kind of a number of the statistics; nullptr when none has it.
[[nodiscard]] const VoceCatalogo* TrovaStatistica(std::int32_t nIdStatistica) noexcept;

/// Do the records of a game hold wheels, of which one is chosen?
[[nodiscard]] bool HaRuote(const ProfiloGioco& gioco) noexcept;

/// How many numbers of a draw make the column.
[[nodiscard]] std::int16_t NumeriColonnaDi(const ProfiloGioco& gioco) noexcept;

/// The ways to measure a kind on draws of nNumeri numbers, the natural one first.
/// Gives    none for a kind that wants more than a draw has: chosen numbers, emulated columns, other conditions
[[nodiscard]] std::vector<VarianteStatistica> VariantiStatistica(const VoceCatalogo& voce,
                                                                 std::int16_t nNumeri);

/// Measures every draw of an archive.
/// Takes    nUltime   how many of the latest draws are told one by one, 0 or more
/// Fails    9: a wheel that is none
/// Cost     the archive read once, block by block; memory for a block, the different values and the latest draws
[[nodiscard]] EsitoStatistica CalcolaStatistica(const VarianteStatistica& variante,
                                                const FonteStatistica& fonte, std::int32_t nUltime);

/// Width of the intervals for values from nMinimo to nMassimo: 1, 2 or 5 times a power of ten, the smallest that
/// makes at most kBarreMassime of them.
inline constexpr std::int32_t kBarreMassime = 30;
[[nodiscard]] std::int32_t LarghezzaIntervalli(std::int32_t nMinimo, std::int32_t nMassimo) noexcept;

} // namespace ordavel
