// TabellaDialoghi.hpp - the thirty common condition dialogs as data.
//
// A dialog that differs from the others only by a row of this table has no file of its own; F_PuntiSu plays every
// row. What a row cannot say has a dialog of its own in this folder.

#pragma once

#include "ordavel/records.hpp"

#include <span>
#include <string_view>

namespace ordavel {

/// The control that collects what a kind asks for beside the points.
enum class eControlloParametro : std::uint8_t {
    nessuno,
    combo,    ///< `Combo1` with fixed entries
    divisore, ///< `Combo1` "2" to "9", which decides how many values are offered
    cifra,    ///< a combo "0" to "9", none selected at the start
    caselle,  ///< `ChkCaselle`, a box per position
    casella,  ///< `ObCaselle`, one position of all
};

/// How the points are stated.
enum class eFamigliaPunti : std::uint8_t { lista, intervallo };

/// What `CalcolaLimiti` shows.
enum class eLimiti : std::uint8_t { nessuno, somma, ampiezza, media };

/// How a parameter string fills the dialog. `nessuno` is a gap that is meant: such a dialog takes no string.
enum class eRiempimento : std::uint8_t {
    nessuno,
    conCombo,   ///< two lines: entry of `Combo1`, values
    valori,     ///< values
    intervallo, ///< minimum and maximum
};

/// One dialog.
struct RigaDialogo {
    std::string_view sNome;
    TipoCondizione tipo;
    std::string_view sTitolo; ///< caption
    eControlloParametro parametro;
    std::string_view sVoci; ///< entries of the parameter's combo, joined by "|"
    eFamigliaPunti punti;
    std::int16_t nPrimo; ///< first value offered: 0, or 1 where 0 cannot be
    eLimiti limiti;
    eRiempimento riempimento;
    std::string_view sManca; ///< what is said when no digit was chosen
    bool bSoloCifre;         ///< the boxes of the range take digits alone
};

/// All rows, in the order of the toolbar's menu.
[[nodiscard]] ORDAVEL_EXPORT std::span<const RigaDialogo> TabellaDialoghi() noexcept;

/// The row of a kind; nullptr for a kind whose dialog is special, or that has none.
[[nodiscard]] ORDAVEL_EXPORT const RigaDialogo* TrovaDialogo(TipoCondizione tipo) noexcept;

} // namespace ordavel
