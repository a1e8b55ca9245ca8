// ModSistemiCond.hpp - a whole run: compile, develop or filter, report.

#pragma once

#include "ordavel/GrigliaCondizioni.hpp"
#include "ordavel/StatoSviluppo.hpp"

#include "motore/Avanzamento.hpp"

#include <span>
#include <string>

namespace ordavel {

/// What both forms of a run need.
struct RichiestaSviluppo {
    std::int16_t nClasse = 0;
    std::int16_t nLimite = 0; ///< required common limit: class minus reduction
    const GrigliaCondizioni& griglia;
    std::span<const std::string> aRigheQuadro; ///< lines of the recovery board
    const std::string& sFile;                  ///< destination; made when it is missing
};

/// Develops the picks into the destination.
/// Gives    true when the run ended without a stop and without a failure; failures are shown under
///          "ModSistemiCond.InitSviluppoSistCondizionato"
bool InitSviluppoSistCondizionato(const RichiestaSviluppo& richiesta, const NumeriScelti& aNumeri,
                                  StatoSviluppo& stato, Avanzamento& avanzamento);

/// Filters the columns of sOrigine into the destination. A failure of the filter itself, which FiltraFile has
/// shown, leaves the run as completed.
bool InitSviluppoSistCondizionato(const RichiestaSviluppo& richiesta, const std::string& sOrigine,
                                  StatoSviluppo& stato, Avanzamento& avanzamento);

} // namespace ordavel
