// ModMetriche.hpp - which metric measures which kind of condition.
//
// The kinds with one or two whole results stand in one table, from kind to function. Formulas and emulators have
// results of another shape and are evaluated apart (ModVerifica.cpp).

#pragma once

#include "ordavel/StatoSviluppo.hpp"

#include "calcoli/ModForma.hpp"

#include <optional>

namespace ordavel {

/// One column under test, with what several conditions share: its parities and its sum, made when first asked for.
class ColonnaInProva {
public:
    /// Fails    9: nClasse above 20
    ColonnaInProva(std::int16_t nClasse, const Colonna& colonna) : m_Colonna(colonna), m_nClasse(nClasse)
    {
        if (nClasse > kNumeriColonna) {
            Solleva(eErrore::indice);
        }
    }

    [[nodiscard]] std::int16_t Classe() const noexcept { return m_nClasse; }
    [[nodiscard]] const Colonna& Numeri() const noexcept { return m_Colonna; }

    [[nodiscard]] const SequenzaParita& Parita()
    {
        if (!m_aParita) {
            m_aParita = CreaSequenzaParita(m_nClasse, m_Colonna);
        }
        return *m_aParita;
    }

    [[nodiscard]] std::int32_t Somma()
    {
        if (!m_nSomma) {
            m_nSomma = SommaColonna(m_nClasse, m_Colonna);
        }
        return *m_nSomma;
    }

private:
    const Colonna& m_Colonna;
    std::int16_t m_nClasse;
    std::optional<std::int32_t> m_nSomma;
    std::optional<SequenzaParita> m_aParita;
};

/// Results of a metric; the second is used by the kinds that compare a pair.
struct ValoriMetrica {
    std::int32_t nValore = 0;
    std::int32_t nValore2 = 0;
};

using Metrica = ValoriMetrica (*)(ColonnaInProva&, const RecordCondizione&);

/// The metric of a kind; nullptr for a kind without one, or measured apart.
[[nodiscard]] Metrica MetricaDiTipo(TipoCondizione tipo) noexcept;

} // namespace ordavel
