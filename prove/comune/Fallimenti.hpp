// Fallimenti.hpp - what tests ask of failures: which number was thrown, which boxes were shown.

#pragma once

#include "ordavel/errore.hpp"

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

namespace ordavel::prove {

/// The number of the failure that an operation throws; nothing when it ends well.
template <typename Operazione> std::optional<int> NumeroErrore(Operazione&& operazione)
{
    try {
        operazione();
        return std::nullopt;
    } catch (const Errore& errore) {
        return static_cast<int>(errore.Numero());
    }
}

/// Keeps every box that was shown.
class SegnalatoreProva : public Segnalatore {
public:
    struct Mostrato {
        std::string sOrigine;
        int nNumero = 0;
        std::string sTesto;
    };

    void MostraFallimento(std::string_view sOrigine, const Errore& errore) override
    {
        aMostrati.push_back(
            {std::string(sOrigine), static_cast<int>(errore.Numero()), TestoFallimento(errore)});
    }

    std::vector<Mostrato> aMostrati;
};

} // namespace ordavel::prove
