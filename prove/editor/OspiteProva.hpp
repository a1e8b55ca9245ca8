// OspiteProva.hpp - the component as a dialog sees it, played by a test.

#pragma once

#include "comune/PiattaformaProva.hpp"
#include "editor/OspiteDialoghi.hpp"

#include <algorithm>
#include <numeric>
#include <string>
#include <vector>

namespace ordavel::prove {

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
    [[nodiscard]] GrigliaCondizioni& GetGridCond() override { return griglia; }
    [[nodiscard]] const std::string& DirSistemi() const override { return sDirSistemi; }
    [[nodiscard]] const std::string& PercorsoSalvaColonne() const override { return sPercorsoSalvaColonne; }
    [[nodiscard]] Statistica& StatisticaSistema() override { return m_Statistica; }
    [[nodiscard]] double ColonneIntegrali() const override { return nIntegrali; }
    [[nodiscard]] const ordavel::Lista& GetLbQuadroRec() override { return listaQuadro; }
    [[nodiscard]] const StatoSviluppo& UltimoSviluppo() const override { return stato; }
    bool GetColonneSviluppo(std::vector<Colonna>& aRetCol) override
    {
        aRetCol = aColonneSviluppo;
        return false;
    }
    [[nodiscard]] std::string GetColonnaSviluppo(std::int32_t nId) override
    {
        ++nColonneLette;
        const auto nPosto = static_cast<std::size_t>(nId) - 1;
        return nPosto < aColonne.size() ? aColonne[nPosto] : std::string();
    }
    void SetColonnaGrid(std::int32_t nId) override { griglia.PoniCorrente(nId); }
    void AnnullaExport() override { bExportAnnullato = true; }
    [[nodiscard]] eMotoreSviluppo MotoreSviluppo() const override { return motore; }
    void PoniMotoreSviluppo(eMotoreSviluppo nuovo) override { motore = nuovo; }
    void StopRiduciColonne() override { ++nStopRiduzione; }

    PiattaformaProva desktop;
    GrigliaCondizioni griglia;
    double nIntegrali = 0;
    ordavel::Lista listaQuadro;
    StatoSviluppo stato;
    std::vector<Colonna> aColonneSviluppo{Colonna{}};
    std::vector<std::string> aColonne; ///< of the working file, as text
    int nColonneLette = 0;
    bool bExportAnnullato = false;
    eMotoreSviluppo motore = eMotoreSviluppo::interno;
    int nStopRiduzione = 0;
    std::string sDirSistemi;
    std::string sPercorsoSalvaColonne;
    std::vector<std::int16_t> aScelti;
    std::int16_t nGioco = 0;

private:
    std::int16_t m_nClasse;
    StatisticaProva m_Statistica{desktop.statistica};
};

} // namespace ordavel::prove
