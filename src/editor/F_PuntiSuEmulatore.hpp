// F_PuntiSuEmulatore.hpp - "Punti su emulatore": how many draws, and how often each number of hits may come.

#pragma once

#include "editor/DialogoCondizione.hpp"

namespace ordavel {

class ORDAVEL_EXPORT F_PuntiSuEmulatore : public DialogoCondizione {
public:
    /// Height of a row of the sheet below its heading, in twentieths of a point.
    static constexpr std::int32_t kAltezzaRiga = 600;

    explicit F_PuntiSuEmulatore(OspiteDialoghi& ospite);

    /// Writes the number of draws as the maximum of every row.
    void PreimpostaMassimi();

    /// Lays out the sheet and makes row 1, column 1 current.
    void LoadGridPunti();

    /// Puts the box over the current cell, with the cell's text; hides it when there is none.
    void GestiionePosTxt();

    void LeggiPunti(const GrigliaCondizioni& griglia) override;

    CasellaTesto Text2; ///< number of draws; a change presets all maxima
    Foglio
        MSFlexGrid1; ///< row 0 the headings; row p+1 the minimum and the maximum for p hits, p from 0 to class
    CasellaTesto Text1; ///< floats over the current cell and edits it

protected:
    [[nodiscard]] ValoriDialogo Valori() const override;
    [[nodiscard]] std::string MessaggioCoerenza() const override;
    bool Riempi(std::string_view sParam) override;
    void AllaMostra() override { Text1.ChiediFuoco(); }

private:
    void MostraCella();
    void ScriviLimiti(std::int32_t nRiga, std::string_view sLinea);

    bool m_bInCarico = false; ///< Text2 is filled from a row, whose maxima stay
};

} // namespace ordavel
