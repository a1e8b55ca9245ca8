// AvanzamentoRiduzione.hpp - what a reduction asks of whoever started it.

#pragma once

#include "ordavel/errore.hpp"

#include <cstdint>
#include <string_view>

namespace ordavel {

/// The side of a reduction that a user sees. It is called between pieces of work, never in an inner loop.
class AvanzamentoRiduzione : public Segnalatore {
public:
    /// Shows how far the present phase has come, 0 to 100.
    virtual void MostraPercentuale(std::int16_t nPercentuale) = 0;

    /// Shows the text of a phase; empty when there is none.
    virtual void MostraFase(std::string_view sFase) = 0;

    /// Tells the user that the reduction was stopped.
    virtual void MostraInterruzione() = 0;

    /// Lets pending events run; the only place where a stop can arrive.
    virtual void LasciaEventi() = 0;
};

} // namespace ordavel
