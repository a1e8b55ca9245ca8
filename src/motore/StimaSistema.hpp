// StimaSistema.hpp - what a system passes, estimated from columns drawn at random.

#pragma once

#include "ordavel/StatoSviluppo.hpp"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <vector>

namespace ordavel {

/// A share of all columns, and half the width of the interval in which it lies 95 times of 100.
struct Quota {
    double nQuota = 0;
    double nErrore = 0;
};

/// The share that so many hits stand for. A share of nothing has an error as well.
/// Takes    nProve   columns seen, above 0
[[nodiscard]] Quota QuotaDi(std::int64_t nColpi, std::int64_t nProve) noexcept;

/// What was drawn.
struct Campione {
    std::int64_t nProve = 0;
    std::int64_t nPassano = 0;
    std::vector<std::int64_t> aOk; ///< a count for each record
    std::vector<std::int64_t> aRec;
    std::optional<Errore> guasto; ///< what a column failed with; nothing was drawn behind it
};

/// Draws columns and judges them by the plain form.
///
/// The same seed draws the same columns. A pair that passes takes its recovery verdict over from the column in front
/// of it; of those in front no more than 64 are asked.
/// Takes    stato       compiled conditions, whatever they have counted
///          aScelti    the picks, ascending, no fewer than the class
///          nClasse    1..20
///          nSeme      where the drawing begins
///          continua   asked every few columns, with how many were seen, whether to go on
[[nodiscard]] Campione Sorteggia(const StatoSviluppo& stato, std::span<const std::uint8_t> aScelti,
                                 std::int16_t nClasse, std::uint64_t nSeme,
                                 const std::function<bool(std::int64_t nProve)>& continua);

} // namespace ordavel
