// Fili.hpp - the same work on several threads.

#pragma once

#include <exception>
#include <mutex>
#include <thread>
#include <vector>

namespace ordavel {

/// Calls azione(0), azione(1), ..., azione(nFili - 1), each on a thread of its own, the first on the caller's. What the
/// first failing one throws is thrown when all have ended. A thread that the system does not grant is left out.
template <typename Azione> void InParallelo(unsigned nFili, const Azione& azione)
{
    std::exception_ptr fallimento;
    std::mutex serratura;
    const auto lavora = [&](unsigned nFilo) {
        try {
            azione(nFilo);
        } catch (...) {
            const std::scoped_lock presa(serratura);
            if (!fallimento) {
                fallimento = std::current_exception();
            }
        }
    };
    std::vector<std::jthread> aFili;
    try {
        aFili.reserve(nFili);
        for (unsigned n = 1; n < nFili; ++n) {
            aFili.emplace_back(lavora, n);
        }
    } catch (const std::exception&) {
        // Fewer threads do the same work: it is handed out piece by piece.
    }
    lavora(0);
    aFili.clear();
    if (fallimento) {
        std::rethrow_exception(fallimento);
    }
}

} // namespace ordavel
