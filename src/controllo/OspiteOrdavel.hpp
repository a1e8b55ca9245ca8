// OspiteOrdavel.hpp - the component as its dialogs see it.

#pragma once

#include "ordavel/Ordavel.hpp"

#include "editor/OspiteDialoghi.hpp"

namespace ordavel {

class OspiteOrdavel : public OspiteDialoghi {
public:
    /// All three outlive it; the statistics may be gone before.
    OspiteOrdavel(Ordavel& ordavel, Piattaforma& piattaforma, const std::unique_ptr<Statistica>& statistica)
        : m_Ordavel(ordavel), m_Piattaforma(piattaforma), m_Statistica(statistica)
    {}

    [[nodiscard]] std::int16_t classe() const override { return m_Ordavel.classe(); }
    [[nodiscard]] std::int16_t GetIdCmbTipoGioco() const override { return m_Ordavel.GetIdCmbTipoGioco(); }
    [[nodiscard]] NumeriScelti GetNumeriSel() const override { return m_Ordavel.GetNumeriSel(); }
    [[nodiscard]] GrigliaCondizioni& GetGridCond() override { return m_Ordavel.GetGridCond(); }
    [[nodiscard]] const std::string& DirSistemi() const override { return m_Ordavel.DirSistemi(); }
    [[nodiscard]] const std::string& PercorsoSalvaColonne() const override
    {
        return m_Ordavel.PercorsoSalvaColonne();
    }
    [[nodiscard]] double ColonneIntegrali() const override { return m_Ordavel.ColonneIntegrali(); }
    [[nodiscard]] const Lista& GetLbQuadroRec() override { return m_Ordavel.GetLbQuadroRec(); }
    [[nodiscard]] const StatoSviluppo& UltimoSviluppo() const override { return m_Ordavel.UltimoSviluppo(); }
    bool GetColonneSviluppo(std::vector<Colonna>& aRetCol) override
    {
        return m_Ordavel.GetColonneSviluppo(aRetCol);
    }
    [[nodiscard]] std::string GetColonnaSviluppo(std::int32_t nId) override
    {
        return m_Ordavel.GetColonnaSviluppo(nId);
    }
    void SetColonnaGrid(std::int32_t nId) override { m_Ordavel.SetColonnaGrid(nId); }
    [[nodiscard]] eMotoreSviluppo MotoreSviluppo() const override { return m_Ordavel.MotoreSviluppo(); }
    void PoniMotoreSviluppo(eMotoreSviluppo motore) override { m_Ordavel.PoniMotoreSviluppo(motore); }
    void StopRiduciColonne() override { m_Ordavel.StopRiduciColonne(); }
    void AnnullaExport() override { m_Ordavel.AnnullaExport(); }
    [[nodiscard]] Piattaforma& Desktop() override { return m_Piattaforma; }
    [[nodiscard]] Statistica& StatisticaSistema() override
    {
        if (!m_Statistica) {
            throw Errore(eErrore::oggetto, "Statistica");
        }
        return *m_Statistica;
    }

private:
    Ordavel& m_Ordavel;
    Piattaforma& m_Piattaforma;
    const std::unique_ptr<Statistica>& m_Statistica;
};

} // namespace ordavel
