// LimitiRighe.hpp - a dialog that asks for a run of conditions: "Dalla N", "Alla N".

#pragma once

#include "editor/DialogoConferma.hpp"

namespace ordavel {

class ORDAVEL_EXPORT LimitiRighe : public DialogoConferma {
public:
    using DialogoConferma::DialogoConferma;

    /// Offers the rows 1 to n in both combos; none when n is below 1.
    void LoadCombo(std::int32_t n);

    /// The chosen rows; 0 where none is.
    [[nodiscard]] std::int32_t Dalla() const;
    [[nodiscard]] std::int32_t Alla() const;

    Combo CmbDalla;
    Combo CmbAlla;

protected:
    [[nodiscard]] std::string MessaggioCoerenza() const override;
};

} // namespace ordavel
