// F_PuntiSuSequenze.hpp - "Punti su sequenze": a parity pattern, a step, places and chain lengths.

#pragma once

#include "editor/DialogoLista.hpp"

namespace ordavel {

class ORDAVEL_EXPORT F_PuntiSuSequenze : public DialogoLista {
public:
    explicit F_PuntiSuSequenze(OspiteDialoghi& ospite);

    /// The keys of the pattern, by index: 0 "P" and 1 "D" put their letter behind it, 2 "CLEAR" empties it.
    /// Fails    9: there is no such key
    void Command1(std::int32_t nIndice);

    void LeggiPunti(const GrigliaCondizioni& griglia) override;

    Etichetta LabSequenza;  ///< the pattern, letters "P" and "D"; a change clears all boxes
    Combo CmbPasso;         ///< step, 1 to class - 1
    SerieSpunte ChkConsec;  ///< required chain lengths
    SerieSpunte ChkConsecR; ///< chain lengths accepted for recovery

protected:
    [[nodiscard]] ValoriDialogo Valori() const override;
    [[nodiscard]] std::string MessaggioCoerenza() const override;
    bool Riempi(std::string_view sParam) override;
    void LeggiParametro(std::string_view sCella) override;
    void AbilitaChkRecupero() override;

private:
    void LoadChk();

    RegolaEsclusione m_EsclusioneConsec;
    bool m_bInLettura = false; ///< the pattern comes from a row, whose boxes stay
};

} // namespace ordavel
