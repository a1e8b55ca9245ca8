// CoperturaPiana.hpp - the coverage by its definition: every pair is looked at.

#pragma once

#include "riduzione/Copertura.hpp"
#include "riduzione/NumeriComuni.hpp"

namespace ordavel {

class CoperturaPiana : public Copertura {
public:
    explicit CoperturaPiana(const ProblemaRiduzione& problema, Continua continua = {});

    void ValoriIniziali(std::size_t nDa, std::span<std::int32_t> aValori) override;
    [[nodiscard]] std::size_t Blocco() const noexcept override;
    [[nodiscard]] std::int32_t Valore(std::size_t i) override;
    void Scegli(std::size_t i) override;
    [[nodiscard]] bool Coperta(std::size_t i) const override { return m_aCoperte[i]; }

private:
    /// Calls azione(m) for each uncovered column m other than i that i covers, in ascending order.
    template <typename Azione> void PerOgniCoperta(std::size_t i, const Azione& azione);

    ProblemaRiduzione m_Problema;
    NumeriMarcati m_Marcati;
    std::vector<bool> m_aCoperte;
};

} // namespace ordavel
