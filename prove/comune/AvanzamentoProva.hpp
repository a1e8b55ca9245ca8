// AvanzamentoProva.hpp - the user's side of a run, recorded.

#pragma once

#include "comune/Fallimenti.hpp"
#include "motore/Avanzamento.hpp"

#include <cstdint>
#include <functional>
#include <ostream>
#include <string_view>
#include <vector>

namespace ordavel::prove {

/// What one refresh showed.
struct Aggiornamento {
    std::int32_t nSviluppate = 0;
    std::int32_t nCondizionate = 0;
    std::int16_t nPercentuale = 0;

    [[nodiscard]] friend bool operator==(const Aggiornamento&, const Aggiornamento&) = default;
    friend std::ostream& operator<<(std::ostream& uscita, const Aggiornamento& a)
    {
        return uscita << a.nSviluppate << '/' << a.nCondizionate << '/' << a.nPercentuale << '%';
    }
};

/// Keeps every refresh and every failure, and does a test's will when events are let run.
class AvanzamentoProva : public Avanzamento {
public:
    void Mostra(std::int32_t nSviluppate, std::int32_t nCondizionate, std::int16_t nPercentuale) override
    {
        aMostrati.push_back({nSviluppate, nCondizionate, nPercentuale});
    }

    void LasciaEventi() override
    {
        ++nEventi;
        if (eventi) {
            eventi();
        }
    }

    void MostraFallimento(std::string_view sOrigine, const Errore& errore) override
    {
        fallimenti.MostraFallimento(sOrigine, errore);
    }

    std::vector<Aggiornamento> aMostrati;
    SegnalatoreProva fallimenti;
    int nEventi = 0;
    std::function<void()> eventi;
};

} // namespace ordavel::prove
