// VistaCondizioni.hpp - how the list of conditions looks: a grid on its side, a condition a column.
//
// Column 0 holds the labels of the rows, columns 1 to 2000 the conditions; rows 0 and 1 stay in view. All cells are
// centred. A view paints what this says and tells how many whole columns fit.

#pragma once

#include "ordavel/Controlli.hpp"

#include <array>
#include <string_view>

namespace ordavel {

/// One row of the grid.
struct RigaGriglia {
    std::string_view sEtichetta; ///< its cell in column 0
    std::int32_t nAltezzeTesto;  ///< height in lines of text; 0 for the view's own
};

/// The rows, from the top.
inline constexpr std::array<RigaGriglia, 6> kRigheGriglia{{
    {"Numero", 0},
    {"Condizione", 2},
    {"Parametri", 15},
    {"Punti", 0},
    {"Recupero", 0},
    {"Quadro Rec.", 0},
}};
inline constexpr std::int32_t kRigheFisse = 2;
inline constexpr std::int32_t kColonneFisse = 1;
inline constexpr std::string_view kCarattereGriglia = "Courier New";
inline constexpr std::string_view kCarattereEtichette = "Arial"; ///< column 0 and row 1
inline constexpr Colore kSfondoCondizione = 0xFF8080;            ///< row 1, which is bold as row 0 is
inline constexpr Colore kTestoCondizione = 0xFFFFFF;
/// The texts whose widths are those of a column: at first, of a condition, of a link.
inline constexpr std::string_view kTestoLarghezza = "XXXXXXXXXXXXXXXXX";
inline constexpr std::string_view kTestoLungo = "WWWWWWWWWWW";
inline constexpr std::string_view kTestoCorto = "WWWWW";

/// What of the grid can change.
struct VistaCondizioni : Controllo {
    Stato<std::int32_t> PrimaColonna{1};   ///< the leftmost one
    Stato<std::int32_t> ColonneIntere{10}; ///< how many fit; the view's, 1 or more
    Stato<std::int32_t> Larghezza;         ///< of each condition, in pixels
    Stato<std::int32_t> Evidenziata; ///< the column whose rows 2 to 5 have the highlight's colour, 0 for none

    /// Is a condition on show as a whole?
    [[nodiscard]] ORDAVEL_EXPORT bool IsVisibile(std::int32_t nId) const noexcept;

    /// Brings a condition into view: to the left edge from the left of it; from the right, as far as it and the
    /// one behind it need.
    ORDAVEL_EXPORT void PortaInVista(std::int32_t nId);
};

} // namespace ordavel
