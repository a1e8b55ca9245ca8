// F_QuadroRecuperi.hpp - "Quadro recuperi": how many points each recovery group may have.

#pragma once

#include "ordavel/records.hpp"

#include "editor/DialogoConferma.hpp"

#include <array>

namespace ordavel {

inline constexpr std::string_view kTagQuadro = "ddd";

class ORDAVEL_EXPORT F_QuadroRecuperi : public DialogoConferma {
public:
    /// One line of the board.
    struct Linea {
        Etichetta LabQuadroRec;   ///< the group, fixed
        Etichetta LabRecInseriti; ///< rows in the group, empty for none; its change enables the boxes or not
        CasellaTesto TxtMin;      ///< takes digits alone
        CasellaTesto TxtMax;      ///< takes digits alone
    };

    explicit F_QuadroRecuperi(OspiteDialoghi& ospite);

    /// Shows how many rows name each group, and the ranges of the groups in use.
    /// Fails    9: a group outside 0..20, or a board line of fewer than three parts; 6: a number too large
    void LeggiRecuperiInseriti(const GrigliaCondizioni& griglia, const Lista& listaQuadro);

    /// The board that the boxes say, a line for each group from 1. A group is in use when both its boxes hold
    /// something, whether rows name it or not.
    [[nodiscard]] std::vector<std::string> RigheQuadro() const;

    /// The line of a group.
    /// Fails    9: nGruppo outside 1..20
    [[nodiscard]] Linea& Gruppo(std::int32_t nGruppo);

protected:
    void Conferma() override { Nascondi(kTagQuadro); }

private:
    std::array<Linea, kGruppiRecupero> m_aLinee;
};

} // namespace ordavel
