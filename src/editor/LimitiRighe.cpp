// LimitiRighe.cpp - a dialog that asks for a run of conditions.

#include "editor/LimitiRighe.hpp"

#include "core/ModNumeri.hpp"

namespace ordavel {

void LimitiRighe::LoadCombo(std::int32_t n)
{
    for (Combo* combo : {&CmbDalla, &CmbAlla}) {
        combo->Svuota();
        combo->AggiungiNumeri(1, n);
    }
}

std::int32_t LimitiRighe::Dalla() const
{
    return LeggiIntero<std::int32_t>(CmbDalla.Testo());
}

std::int32_t LimitiRighe::Alla() const
{
    return LeggiIntero<std::int32_t>(CmbAlla.Testo());
}

std::string LimitiRighe::MessaggioCoerenza() const
{
    std::string sMessaggio;
    if (Dalla() <= 0 || Alla() == 0) {
        sMessaggio = "Impostare i limiti";
    }
    if (Alla() < Dalla()) {
        sMessaggio = "Parametri incoerenti";
    }
    return sMessaggio;
}

} // namespace ordavel
