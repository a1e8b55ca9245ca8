// F_LinkClose.hpp - "LinkClose": how many of the conditions inside a link may be satisfied.

#pragma once

#include "editor/DialogoCondizione.hpp"

namespace ordavel {

/// Whatever is selected is confirmed, nothing too. It has no recovery, no statistic and takes no string.
class ORDAVEL_EXPORT F_LinkClose : public DialogoCondizione {
public:
    explicit F_LinkClose(OspiteDialoghi& ospite);

    /// Adds "0" to n behind what the list holds; the numbers above 90 are left out. A second call offers every
    /// count again, and the second ones stand for other counts: what counts is the place in the list.
    void LoadchkPunti(std::int32_t n);

    /// Offers as many counts as the link that ends at row nRiga holds conditions.
    void GuardaRighe(const GrigliaCondizioni& griglia, std::int32_t nRiga) override;

    /// The places of the selected entries, joined by "-".
    [[nodiscard]] std::string GetPunti() const;

    [[nodiscard]] Condizione GetParametri() const override;

    [[nodiscard]] bool SempreMostrato() const override { return true; }

    /// Selects the places that the row names; those behind the end of the list are passed over.
    void LeggiPunti(const GrigliaCondizioni& griglia) override;

    ListaMultipla List1; ///< in the frame "Punti"

protected:
    [[nodiscard]] ValoriDialogo Valori() const override { return {}; }
    void MostraStatistica() override {}
};

} // namespace ordavel
