// RegolaEsclusione.hpp - a value is accepted, or it may be recovered, never both.
//
// Two series of boxes for the same values and a combo with the recovery group. Without a group nothing can be
// recovered. With one, a value that is accepted has its box in the other series cleared and disabled.

#pragma once

#include "editor/SerieSpunte.hpp"

namespace ordavel {

/// Fills a combo with " " and the recovery groups 1 to 20, and selects the first entry.
void LoadComboquadroRec(Combo& combo);

/// Is a recovery group chosen?
[[nodiscard]] bool ConGruppo(const Combo& combo);

class ORDAVEL_EXPORT RegolaEsclusione {
public:
    /// Listens to the boxes of punti; all three outlive the rule.
    RegolaEsclusione(SerieSpunte& punti, SerieSpunte& recupero, const Combo& gruppo);
    RegolaEsclusione(const RegolaEsclusione&) = delete;
    RegolaEsclusione& operator=(const RegolaEsclusione&) = delete;
    ~RegolaEsclusione() = default;

    /// Makes both series new for the values from their first one to nUltimo, all clear. A series that starts at
    /// 0 keeps its box 0 whatever nUltimo is.
    void Carica(std::int32_t nUltimo);

    /// Brings all boxes in line with the group.
    void AbilitaChkRecupero();

private:
    void Escludi(std::int32_t nValore);

    SerieSpunte& m_Punti;
    SerieSpunte& m_Recupero;
    const Combo& m_Gruppo;
};

/// Ticks the values of a list.
/// Fails    9: a value without a box; those in front of it stay ticked
void SegnaLista(SerieSpunte& serie, std::string_view sLista, std::string_view sSep);

} // namespace ordavel
