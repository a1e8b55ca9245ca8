// records.hpp - what every part of a development speaks in: columns, compiled conditions, recovery entries.
//
// Widths are those of the files: 16 bits for classes, positions and flags, 32 for counts, doubles for what may
// pass 2^31. A boolean is a signed 16-bit number, 0 false and -1 true; «set» means not 0. In memory the
// records are natural structs; their packed layout in a file stands in one place, persistenza/CampiRecord.hpp.
//
// Words. «column»: one combination of the picks. «class»: how many numbers a column holds. «position k»: the
// k-th number of a column, k from 1.

#pragma once

#include "ordavel/errore.hpp"

#include <array>
#include <cstddef>
#include <cstdint>

namespace ordavel {

inline constexpr std::int16_t kNumeroMassimo = 90;
inline constexpr std::int16_t kClasseMinima = 2;
inline constexpr std::int16_t kClasseMassima = 10;
inline constexpr std::int16_t kNumeriColonna = 20;
inline constexpr std::int32_t kCondizioniMassime = 2000;
inline constexpr std::int16_t kGruppiRecupero = 20;
inline constexpr std::int32_t kValoreListaMassimo = 10;
/// Columns that wait in memory before they are written, and columns examined between two refreshes.
inline constexpr std::int32_t kColonneBuffer = 10000;
inline constexpr std::int32_t kColonneAggiornamento = 10000;
inline constexpr std::int64_t kByteColonna = 20;
inline constexpr std::int64_t kByteRecordCondizione = 334;

/// Signed 16-bit boolean of records and files.
using Booleano = std::int16_t;
inline constexpr Booleano kVero = -1;
inline constexpr Booleano kFalso = 0;

[[nodiscard]] constexpr Booleano ComeBooleano(bool bValore) noexcept
{
    return bValore ? kVero : kFalso;
}

/// An array with explicit bounds, Basso to Alto inclusive.
///
/// operator() checks its index and fails with 9; operator[] does not check, and is for loops whose bounds
/// were proved before. Both take the index as it is written in the definitions, from Basso on.
template <typename T, int Basso, int Alto> struct Tabella {
    static_assert(Basso <= Alto);
    static constexpr int kBasso = Basso;
    static constexpr int kAlto = Alto;
    static constexpr std::size_t kElementi = static_cast<std::size_t>(Alto - Basso) + 1;

    std::array<T, kElementi> aElementi{};

    [[nodiscard]] static constexpr bool Contiene(std::int64_t nIndice) noexcept
    {
        return nIndice >= Basso && nIndice <= Alto;
    }

    [[nodiscard]] constexpr const T& operator()(std::int64_t nIndice) const
    {
        if (!Contiene(nIndice)) {
            Solleva(eErrore::indice);
        }
        return (*this)[nIndice];
    }

    [[nodiscard]] constexpr T& operator()(std::int64_t nIndice)
    {
        if (!Contiene(nIndice)) {
            Solleva(eErrore::indice);
        }
        return (*this)[nIndice];
    }

    [[nodiscard]] constexpr const T& operator[](std::int64_t nIndice) const noexcept
    {
        return aElementi[static_cast<std::size_t>(nIndice - Basso)];
    }

    [[nodiscard]] constexpr T& operator[](std::int64_t nIndice) noexcept
    {
        return aElementi[static_cast<std::size_t>(nIndice - Basso)];
    }

    [[nodiscard]] friend constexpr bool operator==(const Tabella&, const Tabella&) = default;
};

/// One column: 20 unsigned bytes, the first `classe` of them its numbers in ascending order, the others 0.
/// It is the record of the column file, byte for byte.
struct Colonna {
    std::array<std::uint8_t, kNumeriColonna> aNumeri{};

    /// The number at position nPosizione, from 1; 0 behind the class.
    /// Fails    9: nPosizione outside 1..20
    [[nodiscard]] constexpr std::uint8_t operator()(std::int64_t nPosizione) const
    {
        if (nPosizione < 1 || nPosizione > kNumeriColonna) {
            Solleva(eErrore::indice);
        }
        return (*this)[nPosizione];
    }

    /// The same without a check.
    [[nodiscard]] constexpr std::uint8_t operator[](std::int64_t nPosizione) const noexcept
    {
        return aNumeri[static_cast<std::size_t>(nPosizione - 1)];
    }

    [[nodiscard]] constexpr std::uint8_t& operator[](std::int64_t nPosizione) noexcept
    {
        return aNumeri[static_cast<std::size_t>(nPosizione - 1)];
    }

    [[nodiscard]] friend constexpr bool operator==(const Colonna&, const Colonna&) = default;
};
static_assert(sizeof(Colonna) == kByteColonna);

/// The kinds of condition. The numbers stand in system files.
enum class TipoCondizione : std::int16_t {
    nessuno = 0,
    linkOpen = 1,
    linkClose = 2,
    puntiColonna = 3,
    pariDispari = 4,
    peso = 5,
    resto = 6,
    ampiezza = 7,
    vortice = 8,
    simmetrie = 9,
    consecutivi = 10,
    interruzioniPD = 11,
    baricentro = 12,
    distanzaMinima = 13,
    distanzaMassima = 14,
    posizioni = 15,
    ponte = 16,
    sequenze = 17,
    paralleli = 18,
    gruppiDiConsecutivi = 19,
    interruzioni = 20,
    consecutiviPD = 21,
    cadenze = 22,
    decine = 23,
    figure = 24,
    formule = 25,
    emulatore = 26,
    simmetrieNum = 27,
    paralleliNum = 28,
    fulcro = 29,
    sommaCadenze = 30,
    sommaDecine = 31,
    sommaFigure = 32,
    sommaNumeretti = 33,
    sommaComplessiva = 34,
    figureSpecifiche = 35,
    cadenzeSpecifiche = 36,
    decineSpecifiche = 37,
};
inline constexpr std::int16_t kTipiCondizione = 37;

/// Who develops: this library, or the external one.
enum class eMotoreSviluppo : std::int32_t { interno = 1, esterno = 2 };

using FlagNumeri = Tabella<std::int16_t, 0, kNumeroMassimo>;
using FlagPunti = Tabella<std::int16_t, 0, kValoreListaMassimo>;

/// One compiled condition, with what the last run counted for it. The fields stand in the order of the file.
struct RecordCondizione {
    TipoCondizione Tipo = TipoCondizione::nessuno;
    std::int16_t Riservato = 0; ///< kept as read
    FlagNumeri Numeri;          ///< flag per number or position, parity pattern, or a LinkClose's counts
    FlagPunti PuntiOk;          ///< flag per value that satisfies; for an emulator the lower bound per hits
    FlagPunti PuntiRec;         ///< flag per value that recovers; for an emulator the upper bound per hits
    FlagPunti PuntiOk2;         ///< second accepted list: chains of a sequence, triple of a formula (1 to 3)
    FlagPunti PuntiRec2;        ///< second recovery list, same use
    std::int16_t Parametro = 0; ///< modulus, position, direct or inverse, length; by kind
    std::int32_t OkMin = 0;     ///< accepted range, both ends inclusive
    std::int32_t OkMax = 0;
    std::int32_t RecMin = 0; ///< recovery range, both ends inclusive
    std::int32_t RecMax = 0;
    std::int16_t IdRecupero = 0; ///< recovery group 0..20, 0 for none
    std::int16_t Passo = 0;      ///< step of the kinds that have one
    std::int32_t Valore = 0;     ///< metric value of the last column tested
    std::int32_t Valore2 = 0;    ///< second metric value of the last column tested
    double ContaKo = 0;          ///< columns that failed it, before recovery
    double ContaOk = 0;          ///< columns that passed it, before recovery
    double ContaRec = 0;         ///< columns for which the recovery test held
    Booleano Esito = kFalso;     ///< verdict for the last column, after recovery
    Booleano EsitoRec = kFalso;  ///< recovery test for the last column
    Booleano EsitoLink = kFalso; ///< stored with the record; nothing reads it

    [[nodiscard]] friend bool operator==(const RecordCondizione&, const RecordCondizione&) = default;
};

/// One line of the compiled recovery board.
struct VoceRecupero {
    std::int16_t Attiva = 0; ///< not 0: the group is in force
    std::int16_t MinPunti = 0;
    std::int16_t MaxPunti = 0;

    [[nodiscard]] friend bool operator==(const VoceRecupero&, const VoceRecupero&) = default;
};

/// The compiled board; entry 0 is never used.
using QuadroRecuperi = Tabella<VoceRecupero, 0, kGruppiRecupero>;

/// The picks, compact: entry k is the k-th picked number in ascending order, 0 behind the last.
using NumeriScelti = Tabella<std::int16_t, 1, kNumeroMassimo>;

/// One emulated draw: byte n is 1 when number n was drawn. Byte 0 is always 0.
using RigaEmulatore = Tabella<std::uint8_t, 0, kNumeroMassimo>;

} // namespace ordavel
