// ModGestore.hpp - the one form in which a failure is trapped: shown, cleared, and the operation returns.

#pragma once

#include "ordavel/errore.hpp"

#include <new>
#include <stdexcept>
#include <string_view>
#include <utility>

namespace ordavel {

/// Runs an operation and shows its failure, if any, under sOrigine. Memory that cannot be had is failure 7.
/// Gives    true when the operation ended without a failure
template <typename Operazione>
bool ConGestore(Segnalatore& segnalatore, std::string_view sOrigine, Operazione&& operazione)
{
    try {
        std::forward<Operazione>(operazione)();
        return true;
    } catch (const Errore& errore) {
        segnalatore.MostraFallimento(sOrigine, errore);
    } catch (const std::bad_alloc&) {
        segnalatore.MostraFallimento(sOrigine, Errore(eErrore::memoria));
    } catch (const std::length_error&) {
        segnalatore.MostraFallimento(sOrigine, Errore(eErrore::memoria));
    }
    return false;
}

} // namespace ordavel
