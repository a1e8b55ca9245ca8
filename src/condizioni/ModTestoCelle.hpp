// ModTestoCelle.hpp - the text of every cell of a condition, from a dialog's values and from a stored record.
//
// The text is a format: dialogs write it, the compilation parses it (ModCompila.hpp), editors read it back. The
// two directions are not exact mirrors: a record has forgotten a few things that a dialog knew, so the text
// from a record differs in leading zeros, in the words of "Paralleli", in the blank that means no group, in the
// first line of "GruppiDiConsecutivi" and in the lines of an "Emulatore" beyond the class. It compiles to the
// same condition, but for what no cell keeps: the recovery range of a row without a group, the sections of
// "Formule" that hold 0, and a step that someone typed into "Consecutivi".

#pragma once

#include "ordavel/GrigliaCondizioni.hpp"

#include "condizioni/ModCatalogo.hpp"
#include "core/ModNumeri.hpp"

#include <array>
#include <span>
#include <string>
#include <string_view>

namespace ordavel {

/// A text in pieces of nLunghezza characters (bytes), joined by line breaks; none at the end.
/// Takes    nLunghezza   1 or more
[[nodiscard]] std::string ScriviVerticale(std::string_view sTesto, std::int32_t nLunghezza);

/// Joins texts; a separator stands between any two of them.
class Unione {
public:
    explicit Unione(std::string_view sSep) : m_sSep(sSep) {}
    void Aggiungi(std::string_view sParte);
    [[nodiscard]] const std::string& Testo() const noexcept { return m_sTesto; }

private:
    std::string_view m_sSep;
    std::string m_sTesto;
    bool m_bPrima = true;
};

/// A number of a list, with two digits when bFormato is set.
[[nodiscard]] std::string NumeroDiLista(std::int64_t nNumero, bool bFormato);

/// The indices of the flags that are set, from the lower bound to the upper, joined by sSep; empty when none is.
/// Takes    bFormato   numbers of two digits
template <int Basso, int Alto>
[[nodiscard]] std::string UnisciFlag(const Tabella<std::int16_t, Basso, Alto>& aFlag, std::string_view sSep,
                                     bool bFormato)
{
    Unione unione(sSep);
    for (int i = Basso; i <= Alto; ++i) {
        if (aFlag[i] != 0) {
            unione.Aggiungi(NumeroDiLista(i, bFormato));
        }
    }
    return unione.Testo();
}

/// The same with the values that are not 0 in place of the indices.
template <int Basso, int Alto>
[[nodiscard]] std::string UnisciValori(const Tabella<std::int16_t, Basso, Alto>& aValori,
                                       std::string_view sSep, bool bFormato)
{
    Unione unione(sSep);
    for (int i = Basso; i <= Alto; ++i) {
        if (aValori[i] != 0) {
            unione.Aggiungi(NumeroDiLista(aValori[i], bFormato));
        }
    }
    return unione.Testo();
}

/// A trimmed value, padded to the length of a mask with the mask's own characters.
/// Takes    bDestra   the value stands at the right, the padding at the left
/// Gives    the mask for an empty value, the value alone when it is not shorter than the mask
[[nodiscard]] std::string AllineaTesto(std::string_view sValore, std::string_view sMaschera, bool bDestra);

/// What a dialog has collected; each kind uses what its row of the catalogue asks for.
struct ValoriDialogo {
    std::string sScelta;                  ///< entry of the parameter's combo: word, divisor, digit, position
    FlagNumeri aNumeri;                   ///< chosen numbers, or positions
    FlagNumeri aPunti;                    ///< accepted values of a list
    FlagNumeri aRecupero;                 ///< values accepted for recovery
    std::array<std::string, 2> aRange;    ///< minimum and maximum as typed
    std::array<std::string, 2> aRangeRec; ///< the same for recovery
    std::string sQuadro = " ";            ///< entry of the recovery combo: one blank, or "1" to "20"
    std::string sSchema;                  ///< parity pattern, letters "P" and "D"
    std::string sPasso;                   ///< step
    std::string sGruppo;                  ///< length of a group
    FlagNumeri aConsec;                   ///< required chain lengths
    FlagNumeri aConsecRec;                ///< chain lengths accepted for recovery
    std::array<std::string, 3> aTerna;    ///< the three counts of a formula
    std::array<std::string, 3> aTernaRec; ///< the same for recovery; empty ones are left out
    std::int32_t nColonneEmulate = 0;     ///< draws to emulate
    std::vector<std::array<std::string, 2>> aLimitiEmulatore; ///< minimum and maximum for 0, 1, 2 ... hits
};

/// The five cells that a dialog writes.
[[nodiscard]] Condizione CelleDaDialogo(TipoCondizione tipo, const ValoriDialogo& valori);

/// The five cells of a stored record; five empty ones for a record of no kind.
[[nodiscard]] Condizione CelleDaRecord(const RecordCondizione& record);

/// Writes record nIndice of an array into row nRiga of a grid, and gives the row its height.
/// Takes    nIndice   from 0
/// Fails    9: no such record or row
void CondizioneSuGriglia(std::int32_t nRiga, std::int32_t nIndice, GrigliaCondizioni& griglia,
                         std::span<const RecordCondizione> aCondizioni);

/// The parameters of an emulator record: "[", draws, "]", and a line per number of hits from 0 to 10.
[[nodiscard]] std::string TestoEmulatore(const RecordCondizione& record);

/// The parity pattern of a sequence record as letters, "P" even and "D" odd, up to its length or end mark.
[[nodiscard]] std::string ComponiSequenzaPD(const RecordCondizione& record);

} // namespace ordavel
