// ModBaseDati.hpp - the draw archives, one a game: plain runs of records of fixed size, oldest draw first.
//
// A record begins with 12 bytes that nothing here reads; then come the numbers, one byte each, 0 for an absent one.
// See docs/formati/archivi.md.

#pragma once

#include "ordavel/records.hpp"

#include "core/ModGiochi.hpp"

#include <array>
#include <optional>
#include <string>
#include <vector>

namespace ordavel {

class FileBinario;

/// The most numbers of a record: eleven wheels of five.
inline constexpr std::size_t kNumeriEstrazione = 55;
inline constexpr std::int32_t kNumeriRuota = 5;

/// The record of a game's archive.
struct TracciatoEstrazione {
    std::int32_t nByte = 0;   ///< of one record
    std::int32_t nPrimo = 0;  ///< bytes in front of the numbers
    std::int32_t nNumeri = 0; ///< how many there are
};

[[nodiscard]] TracciatoEstrazione TracciatoDi(const ProfiloGioco& gioco) noexcept;

/// The numbers of one draw, in the order of its record.
using Estrazione = std::array<std::uint8_t, kNumeriEstrazione>;

/// The draws nPrima, nPrima + 1 ...
struct Estrazioni {
    std::int32_t nPrima = 0;
    std::vector<Estrazione> aEstrazioni{1};

    [[nodiscard]] friend bool operator==(const Estrazioni&, const Estrazioni&) = default;
};

/// Draws in an archive: its length divided by the record's, not rounded.
/// Gives    nothing when the file is missing or cannot be measured
[[nodiscard]] std::optional<double> ContaEstrazioni(const TracciatoEstrazione& tracciato,
                                                    const std::string& sPath);

/// Where draw n stands, from 1; the first byte of the file is 1.
[[nodiscard]] std::int64_t PosizioneEstrazione(const TracciatoEstrazione& tracciato,
                                               std::int64_t nEstrazione) noexcept;

/// Reads the draws nPrima to nUltima.
///
/// A first number below 1 leaves the bounds as they are and is then read as 1: the array begins with the file's
/// first draw. What the file does not hold is 0.
/// Gives    false when the file does not exist, nUltima is below nPrima, or anything fails; a failure leaves one
///          draw of no number
[[nodiscard]] bool LeggiEstrazioni(const TracciatoEstrazione& tracciato, std::int32_t nPrima,
                                   std::int32_t nUltima, Estrazioni& estrazioni, const std::string& sPath);

/// Appends draws to an open archive, their other bytes 0.
/// Fails    57, 61
void AccodaEstrazioni(const TracciatoEstrazione& tracciato, const std::vector<Estrazione>& aEstrazioni,
                      FileBinario& file);

} // namespace ordavel
