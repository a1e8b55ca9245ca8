// F_PuntiSu.hpp - the thirty common condition dialogs, one for each row of TabellaDialoghi.hpp.

#pragma once

#include "editor/DialogoLista.hpp"
#include "editor/TabellaDialoghi.hpp"

#include <array>

namespace ordavel {

/// A common dialog. A control that its row does not give it stays empty and unused.
class ORDAVEL_EXPORT F_PuntiSu : public DialogoLista {
public:
    /// Loads the dialog of a kind: boxes as long as the class, combos filled, limits shown.
    /// Fails    5: the kind has no common dialog
    F_PuntiSu(OspiteDialoghi& ospite, TipoCondizione tipo);

    void LeggiPunti(const GrigliaCondizioni& griglia) override;

    [[nodiscard]] const RigaDialogo& Riga() const noexcept { return m_Riga; }

    std::array<CasellaTesto, 2> TxtPunti;    ///< accepted minimum and maximum
    std::array<CasellaTesto, 2> TxtPuntiRec; ///< the same for recovery
    Combo Combo1;                            ///< word, divisor or digit
    SerieSpunte ChkCaselle{1};               ///< positions
    Combo ObCaselle;                         ///< the one position, an entry per position
    Etichetta LabMin;
    Etichetta LabMax;

protected:
    [[nodiscard]] ValoriDialogo Valori() const override;
    [[nodiscard]] std::string MessaggioCoerenza() const override;
    bool Riempi(std::string_view sParam) override;
    [[nodiscard]] std::int32_t UltimoValore() const override;
    void LeggiParametro(std::string_view sCella) override;
    void AbilitaChkRecupero() override;

private:
    void CaricaParametro();
    void LoadChk();
    void MostraDivisore();
    void CalcolaLimiti();
    [[nodiscard]] std::string MessaggioIntervallo() const;
    void RiempiIntervallo(std::string_view sPunti, std::string_view sRecupero);

    const RigaDialogo& m_Riga;
};

} // namespace ordavel
