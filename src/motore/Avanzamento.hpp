// Avanzamento.hpp - what a run asks of whoever started it.

#pragma once

#include "ordavel/errore.hpp"

#include <cstdint>

namespace ordavel {

/// The side of a run that a user sees. The engine calls it at every refresh, never in between.
class Avanzamento : public Segnalatore {
public:
    /// Shows how far the run has come.
    /// Takes    nSviluppate     columns examined
    ///          nCondizionate   columns kept
    ///          nPercentuale    0..100
    virtual void Mostra(std::int32_t nSviluppate, std::int32_t nCondizionate, std::int16_t nPercentuale) = 0;

    /// Lets pending events run; the only place where a stop can arrive.
    virtual void LasciaEventi() = 0;
};

} // namespace ordavel
