// SviluppoTratti.hpp - a development by several threads, each of which walks stretches of the enumeration.
//
// What it leaves is what SviluppaColonne leaves: the same file, byte for byte, the same counters and last values, the
// same failure at the same column. It differs where that one ends: more than 2147483647 columns are no failure, progress
// can be read and a stop asked for at any moment, and a stop comes into force at once.

#pragma once

#include "motore/TrattiInOrdine.hpp"

#include <atomic>

namespace ordavel {

/// What other threads say to a development and read of it.
struct ComandiTratti {
    std::atomic<bool> bFerma{false};
    std::atomic<std::int64_t> nSviluppate{0};   ///< columns examined
    std::atomic<std::int64_t> nCondizionate{0}; ///< columns kept
};

/// How a development is divided. Only speed and memory hang on it, but for the last entry.
struct OpzioniTratti {
    unsigned nFili = 1;
    eNucleo nucleo = NucleoMigliore();
    std::size_t nByteAutomi = std::size_t{512}
                              << 20; ///< what states and rows may take, about; rows for each thread
    LimitiTratto limiti{};
    LimitiCoda coda{};
    /// Conditions that can only be counted by looking at each column, the emulator above all, are so in systems of up
    /// to so many columns. In larger ones they count the columns that were looked at.
    std::int64_t nColonneGuardate = 10'000'000'000;
};

/// What stands beside a development that did not fail.
struct FineTratti {
    bool bContatori = true; ///< the counters of all conditions are those of all columns
};

/// Develops the picks.
/// Takes    aNumeri   the picks, compact and ascending
///          nClasse   numbers of a column, 1..20
///          nLimite   required common limit: class minus reduction
///          file      open for writing; columns go behind its last byte
///          stato     compiled conditions
///          comandi   counters of 0
/// Gives    the kept columns, also after a stop
/// Changes  stato: counters and last values of every condition, up to the last column examined; comandi: counters
/// Fails    9: class outside 1..20; 11: fewer picks than the class; what VerificaColonna and writing raise. Blocks already
///          written stay; the columns in the buffer are lost. The counters are then those up to the column that failed,
///          or, when writing failed, up to the last stretch that was handed over whole.
FineTratti SviluppaTratti(const NumeriScelti& aNumeri, std::int16_t nClasse, std::int16_t nLimite,
                          FileBinario& file, StatoSviluppo& stato, ComandiTratti& comandi,
                          const OpzioniTratti& opzioni);

} // namespace ordavel
