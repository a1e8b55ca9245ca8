// SerieSpunte.hpp - a control array of check boxes, by their values.

#pragma once

#include "ordavel/Controlli.hpp"

#include <deque>
#include <functional>

namespace ordavel {

/// Check boxes for the values nPrimo, nPrimo+1 ... Boxes are added and taken away at the end; one that is there may
/// be hidden.
class ORDAVEL_EXPORT SerieSpunte {
public:
    explicit SerieSpunte(std::int32_t nPrimo = 0) : m_nPrimo(nPrimo), m_nUltimo(nPrimo - 1) {}

    /// Makes the series end at nUltimo; new boxes are visible, enabled and clear.
    void Estendi(std::int32_t nUltimo);

    /// Takes all boxes away from nDa on.
    void Taglia(std::int32_t nDa);

    [[nodiscard]] std::int32_t Primo() const noexcept { return m_nPrimo; }
    [[nodiscard]] std::int32_t Ultimo() const noexcept { return m_nUltimo; }

    /// The box of a value.
    /// Fails    9: there is none
    [[nodiscard]] Spunta& operator()(std::int64_t nValore);
    [[nodiscard]] const Spunta& operator()(std::int64_t nValore) const;

    /// What happens when a box changes; it is told the value.
    void AlClick(std::function<void(std::int32_t)> regola);

    /// What the one view does whenever boxes have come or gone; an empty function takes it away.
    void Ascolta(std::function<void()> vista);

    /// Is any box ticked?
    [[nodiscard]] bool Qualcuna() const noexcept;

    /// The ticked values up to nUltimo as flags.
    /// Fails    9: a ticked value above 90
    [[nodiscard]] FlagNumeri Flag(std::int32_t nUltimo) const;
    [[nodiscard]] FlagNumeri Flag() const { return Flag(m_nUltimo); }

private:
    void AvvisaVista() const;

    std::int32_t m_nPrimo;
    std::int32_t m_nUltimo;
    std::deque<Spunta> m_aSpunte; ///< a deque, so that boxes stay where a view has bound them
    std::function<void(std::int32_t)> m_Regola;
    std::function<void()> m_Vista;
};

} // namespace ordavel
