// OspiteDialoghi.hpp - what dialogs ask of the component, and nothing more.

#pragma once

#include "ordavel/GrigliaCondizioni.hpp"
#include "ordavel/Piattaforma.hpp"
#include "ordavel/StatoSviluppo.hpp"

namespace ordavel {

/// The component as a dialog sees it.
class ORDAVEL_EXPORT OspiteDialoghi {
public:
    OspiteDialoghi() = default;
    OspiteDialoghi(const OspiteDialoghi&) = delete;
    OspiteDialoghi& operator=(const OspiteDialoghi&) = delete;
    virtual ~OspiteDialoghi() = default;

    [[nodiscard]] virtual std::int16_t classe() const = 0;
    /// List index of the game, from 0.
    [[nodiscard]] virtual std::int16_t GetIdCmbTipoGioco() const = 0;
    /// The picks, compact and ascending.
    [[nodiscard]] virtual NumeriScelti GetNumeriSel() const = 0;
    /// The conditions themselves.
    [[nodiscard]] virtual GrigliaCondizioni& GetGridCond() = 0;
    /// Folders of systems and of column files.
    [[nodiscard]] virtual const std::string& DirSistemi() const = 0;
    [[nodiscard]] virtual const std::string& PercorsoSalvaColonne() const = 0;
    /// Columns of the selected class over the picks.
    [[nodiscard]] virtual double ColonneIntegrali() const = 0;
    /// The recovery board.
    [[nodiscard]] virtual const Lista& GetLbQuadroRec() = 0;
    /// What the last run compiled and counted.
    [[nodiscard]] virtual const StatoSviluppo& UltimoSviluppo() const = 0;
    /// All columns of the working file; one record of zeros when there is none.
    virtual bool GetColonneSviluppo(std::vector<Colonna>& aRetCol) = 0;
    /// A column of the working file as text, from 1; empty behind the end.
    [[nodiscard]] virtual std::string GetColonnaSviluppo(std::int32_t nId) = 0;
    /// Selects a condition and brings it into view.
    virtual void SetColonnaGrid(std::int32_t nId) = 0;
    /// The engine of the next development.
    [[nodiscard]] virtual eMotoreSviluppo MotoreSviluppo() const = 0;
    virtual void PoniMotoreSviluppo(eMotoreSviluppo motore) = 0;
    /// Ends a reduction in memory at its next look.
    virtual void StopRiduciColonne() = 0;
    /// Ends a text export at its next look.
    virtual void AnnullaExport() = 0;
    [[nodiscard]] virtual Piattaforma& Desktop() = 0;
    /// Fails    91: the component is at its end
    [[nodiscard]] virtual Statistica& StatisticaSistema() = 0;
};

} // namespace ordavel
