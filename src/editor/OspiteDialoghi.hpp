// OspiteDialoghi.hpp - what dialogs ask of the component, and nothing more.

#pragma once

#include "ordavel/GrigliaCondizioni.hpp"
#include "ordavel/Piattaforma.hpp"

namespace ordavel {

/// The component as a dialog sees it.
class OspiteDialoghi {
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
    [[nodiscard]] virtual Piattaforma& Desktop() = 0;
    [[nodiscard]] virtual Statistica& StatisticaSistema() = 0;
};

} // namespace ordavel
