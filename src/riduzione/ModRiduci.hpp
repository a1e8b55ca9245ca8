// ModRiduci.hpp - the reduction in memory: columns that cover the most others are chosen first.
//
// Every column of the input has at least the wanted numbers in common with a column of the output. The columns are
// put in order of how many others they cover, with the system's own quicksort, so that ties have an order; then, from
// the greatest number down, a column that covers exactly so many uncovered others is chosen. A chosen column is covered
// from that moment on. What is chosen, or covered by nobody, is the output.

#pragma once

#include "ordavel/records.hpp"

#include "riduzione/AvanzamentoRiduzione.hpp"
#include "riduzione/Copertura.hpp"

#include <optional>
#include <string>
#include <vector>

namespace ordavel {

/// What a reduction and its user share.
struct StatoRiduzione {
    bool StopRiduzione = false; ///< the reduction ends at its next look; cleared when one begins
};

/// A column on its way through a reduction.
struct RecordRiduzione {
    std::int32_t Punteggio = 0; ///< other columns that it covers
    std::int32_t IdColonna = 0; ///< its place in the file, from 1
};

/// Reduces a column file.
///
/// A stop while the columns are looked at or sorted leaves aColonneRidotte as it is; later it keeps what is chosen by
/// then and all that is not covered yet, so that the guarantee holds. Failures are shown under
/// "ModRiduci.RiduzioneColonne".
/// Takes    sFileCol          the columns; as many as its length holds records of 20 bytes, rounded to nearest
///          nPuntiRichiesti   numbers in common; 0 or less: every column covers all, above the class: none another
/// Changes  aColonneRidotte   holds the whole input; then the output
///          stato             StopRiduzione is looked at after events
void RiduzioneColonne(const std::string& sFileCol, std::int32_t nPuntiRichiesti,
                      std::vector<Colonna>& aColonneRidotte, StatoRiduzione& stato,
                      AvanzamentoRiduzione& avanzamento);

/// The same on columns in memory, with a form of the coverage of one's own choice.
/// Takes    forma   one that is admitted, or none for the fastest
/// Gives    the reduced columns; nothing after a stop that leaves the input as it is
/// Fails    7
[[nodiscard]] std::optional<std::vector<Colonna>> RiduciInMemoria(std::span<const Colonna> aColonne,
                                                                  std::int32_t nPuntiRichiesti,
                                                                  std::optional<eCopertura> forma,
                                                                  const StatoRiduzione& stato,
                                                                  AvanzamentoRiduzione& avanzamento);

/// The class of a reduction: the place of the last entry of its first column that is not 0, 0 for none.
[[nodiscard]] std::int16_t ClasseRiduzione(std::span<const Colonna> aColonne) noexcept;

} // namespace ordavel
