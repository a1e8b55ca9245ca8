// F_EffettoCond.hpp - "Effetto condizioni": how many columns each condition let through, cut and could recover.

#pragma once

#include "ordavel/StatoSviluppo.hpp"

#include "editor/DialogoConferma.hpp"

#include <vector>

namespace ordavel {

class ORDAVEL_EXPORT F_EffettoCond : public DialogoConferma {
public:
    explicit F_EffettoCond(OspiteDialoghi& ospite);

    /// Lists the conditions of the last run, up to the first that is none. The percentages are of all columns of the
    /// picks. Links show their name alone.
    /// Fails    11: there is a condition, and no column to take a percentage of
    void LoadList();

    /// A double click on a line, from 0: selects its condition.
    /// Fails    9: there is no such line
    void DblClick(std::size_t nRiga);

    /// "Id", "Condizione", "Superate", "%", "Scartate", "%", "Recuperate", "%"
    Elenco ListView1;
};

} // namespace ordavel
