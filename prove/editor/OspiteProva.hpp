// OspiteProva.hpp - the component as a dialog sees it, played by a test.

#pragma once

#include "comune/PiattaformaProva.hpp"
#include "editor/OspiteDialoghi.hpp"

#include <algorithm>
#include <numeric>
#include <utility>
#include <vector>

namespace ordavel::prove {

/// Remembers what it was asked for.
class StatisticaProva : public Statistica {
public:
    void Avvia() override {}
    void Ferma() override {}
    void MostraStatistica(std::int32_t nIdStatistica, std::int16_t nGioco) override
    {
        aMostrate.emplace_back(nIdStatistica, nGioco);
    }

    std::vector<std::pair<std::int32_t, std::int16_t>> aMostrate;
};

class OspiteProva : public OspiteDialoghi {
public:
    explicit OspiteProva(std::int16_t nClasse) : m_nClasse(nClasse) {}

    [[nodiscard]] std::int16_t classe() const override { return m_nClasse; }
    [[nodiscard]] std::int16_t GetIdCmbTipoGioco() const override { return nGioco; }
    [[nodiscard]] NumeriScelti GetNumeriSel() const override
    {
        NumeriScelti aNumeri;
        std::copy(aScelti.begin(), aScelti.end(), aNumeri.aElementi.begin());
        return aNumeri;
    }
    [[nodiscard]] Piattaforma& Desktop() override { return desktop; }
    [[nodiscard]] Statistica& StatisticaSistema() override { return statistica; }

    PiattaformaProva desktop;
    StatisticaProva statistica;
    std::vector<std::int16_t> aScelti;
    std::int16_t nGioco = 0;

private:
    std::int16_t m_nClasse;
};

} // namespace ordavel::prove
