// DialogoLista.hpp - a condition dialog that states its points as boxes, one for each value.

#pragma once

#include "editor/DialogoCondizione.hpp"
#include "editor/RegolaEsclusione.hpp"

namespace ordavel {

class ORDAVEL_EXPORT DialogoLista : public DialogoCondizione {
public:
    /// Takes    nPrimo   first value offered
    DialogoLista(OspiteDialoghi& ospite, TipoCondizione tipo, std::string_view sTitoloDialogo,
                 std::int16_t nPrimo);

    void LeggiPunti(const GrigliaCondizioni& griglia) override;

    SerieSpunte ChkPunti;    ///< accepted values
    SerieSpunte ChkRecupero; ///< values accepted for recovery

protected:
    [[nodiscard]] ValoriDialogo Valori() const override;
    [[nodiscard]] std::string MessaggioCoerenza() const override;
    /// The last value whose boxes count.
    [[nodiscard]] virtual std::int32_t UltimoValore() const { return ChkPunti.Ultimo(); }
    /// Takes the cell "Parametri" of a row.
    virtual void LeggiParametro(std::string_view sCella) = 0;
    /// Brings the recovery side in line with the group.
    virtual void AbilitaChkRecupero() { m_Esclusione.AbilitaChkRecupero(); }

    /// Builds the boxes up to nUltimo, all clear.
    void CaricaSpunte(std::int32_t nUltimo) { m_Esclusione.Carica(nUltimo); }
    /// Takes the two lists of a parameter string; the second, when there is one, chooses the first group.
    void RiempiValori(std::string_view sPunti, std::string_view sRecupero);

private:
    RegolaEsclusione m_Esclusione;
};

} // namespace ordavel
