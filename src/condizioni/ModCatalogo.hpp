// ModCatalogo.hpp - the 37 kinds of condition, one row of data each.
//
// Everything that differs from kind to kind by a name or a form stands in this table; the texts of the cells,
// their compilation and the column test read it. What a kind measures stands in motore/ModMetriche.

#pragma once

#include "ordavel/records.hpp"

#include <span>
#include <string_view>

namespace ordavel {

/// What the cell "Parametri" says, and where it goes in the record.
enum class eParametri : std::uint8_t {
    nessuno,   ///< vertical text, for the eye only
    chiave,    ///< the key as it stands, for the eye only
    numeri,    ///< numbers, flagged in `Numeri`
    parita,    ///< "Pari" or "Dispari": flags the even or the odd numbers in `Numeri`
    direzione, ///< a word: `Parametro` 1 when it is the direct one, else 2
    resto,     ///< "Resto a : " and the divisor, in `Parametro`
    caselle,   ///< "Caselle :", line break, positions flagged in `Numeri`
    casella,   ///< "Casella :", line break, the position, in `Parametro`
    passo,     ///< vertical text, perhaps with a step, in `Passo`
    cifra,     ///< vertical text that ends in a digit, in `Parametro`
    gruppo,    ///< length of the group in `Parametro`, step in `Passo`
    sequenza,  ///< parity pattern in `Numeri`, step, and chain lengths in `PuntiOk2` and `PuntiRec2`
    emulatore, ///< quantity in `Parametro`, bounds in `PuntiOk` and `PuntiRec`
};

/// What the cells "Punti" and "Recupero" say.
enum class ePunti : std::uint8_t {
    nessuno,    ///< nothing
    lista,      ///< values, flagged in `PuntiOk` and `PuntiRec`
    intervallo, ///< minimum and maximum, in `OkMin` to `RecMax`
    terna,      ///< three counts, in `PuntiOk2` and `PuntiRec2` at 1 to 3
    link,       ///< accepted counts, flagged in `Numeri`
};

/// How the metric's result is compared with the record.
enum class eForma : std::uint8_t {
    nessuna,    ///< always satisfied, no counter moves
    link,       ///< passed over; links collapse after all conditions were judged
    lista,      ///< one value in `PuntiOk`
    intervallo, ///< one value from `OkMin` to `OkMax`
    coppia,     ///< two values, in `PuntiOk` and `PuntiOk2`
    terna,      ///< three values equal to `PuntiOk2` at 1 to 3
    istogramma, ///< one value per hit count, between `PuntiOk` and `PuntiRec`
};

/// One kind.
struct VoceCatalogo {
    TipoCondizione Tipo;
    std::string_view sChiave;   ///< the cell "Condizione"
    std::string_view sDialogo;  ///< dialog that collects it; empty for none
    std::string_view sMenu;     ///< key of the menu entry or button that inserts it
    std::int32_t nIdStatistica; ///< number that its dialog hands to the statistics object; 0 for none
    eParametri parametri;
    std::string_view sParametri; ///< vertical text, or direct word, of the cell "Parametri"
    std::string_view sInverso;   ///< inverse word of the cell "Parametri"
    ePunti punti;
    bool bDueCifre; ///< lists written from a record have two digits per number
    eForma forma;
};

/// All kinds, in the order of their numbers; the kind n stands at index n-1.
[[nodiscard]] std::span<const VoceCatalogo> Catalogo() noexcept;

/// The row of a kind; nullptr for a number that no kind has.
[[nodiscard]] const VoceCatalogo* TrovaTipo(TipoCondizione tipo) noexcept;

/// The shape in which a kind is compared; eForma::nessuna for a number that no kind has.
[[nodiscard]] eForma FormaDiTipo(TipoCondizione tipo) noexcept;

/// Is there something to measure? Not in links, nor in kinds that every column satisfies.
[[nodiscard]] bool SiMisura(TipoCondizione tipo) noexcept;

/// The row of a key, letter case included; nullptr when no kind has it.
[[nodiscard]] const VoceCatalogo* TrovaChiave(std::string_view sChiave) noexcept;

/// The same, letters taken without regard to case: how a key is compared while the user works on the list.
[[nodiscard]] const VoceCatalogo* TrovaChiaveSenzaCaso(std::string_view sChiave) noexcept;

} // namespace ordavel
