// OspiteDialoghi.hpp - what dialogs ask of the component, and nothing more.

#pragma once

#include "ordavel/GrigliaCondizioni.hpp"
#include "ordavel/Piattaforma.hpp"

namespace ordavel {

/// Shows the statistics of a kind of condition over the draws of a game.
class Statistica {
public:
    Statistica() = default;
    Statistica(const Statistica&) = delete;
    Statistica& operator=(const Statistica&) = delete;
    virtual ~Statistica() = default;

    /// Once, at the component's start and at its end.
    virtual void Avvia() = 0;
    virtual void Ferma() = 0;

    /// Takes    nIdStatistica   number of the kind in the statistics' own numbering
    ///          nGioco          game, from 1
    virtual void MostraStatistica(std::int32_t nIdStatistica, std::int16_t nGioco) = 0;
};

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
    [[nodiscard]] virtual Piattaforma& Desktop() = 0;
    [[nodiscard]] virtual Statistica& StatisticaSistema() = 0;
};

} // namespace ordavel
