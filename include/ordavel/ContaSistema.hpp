// ContaSistema.hpp - how many columns a system passes, and what each condition does, without a file.
//
// A count gives what a development would show at its end, and writes nothing. It follows a user who is still typing:
// exact numbers come at once where they can, an estimate with its error where they take longer, and whoever has changed
// the system meanwhile cancels. Nothing is limited to the 2147483647 columns that a development can examine.

#pragma once

#include "ordavel/StatoSviluppo.hpp"
#include "ordavel/esporta.hpp"

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <vector>

namespace ordavel {

/// A system as a count needs it. It stands for itself, so that another thread may count it.
///
/// A component gives its own (Ordavel::PreparaConteggio): conditions and board as they are at that moment. Links that do
/// not match, which a development refuses, are counted as the column test takes them. An "Emulatore" condition is
/// counted over "Emulatore.dat" in the folder of temporary files, as the last run has left it: nobody is asked for the
/// wheel, and no draws are made. Without that file there is one draw of no number.
struct SistemaDaContare {
    /// Compiled conditions, board and emulated draws; what was counted before plays no part.
    StatoSviluppo stato;
    NumeriScelti aNumeri;     ///< the picks, compact and ascending
    std::int16_t nClasse = 0; ///< numbers of a column
};

/// What a condition does: the counters of its record behind a development.
struct ContoCondizione {
    double nOk = 0;
    double nKo = 0;
    double nRec = 0;
    double nErrore = 0; ///< the counters are off by so much at most, 95 times of 100; 0 for exact ones
    bool bEsatto = false;
};

/// What a system comes to.
struct ConteggioSistema {
    double nColonne = 0; ///< of the whole system
    double nPassano = 0; ///< columns that pass, before any thinning
    double nErrore = 0;  ///< off by so much at most, 95 times of 100; 0 for an exact number
    bool bEsatto = false;
    /// One for each record; links and kinds that count nothing have 0.
    std::vector<ContoCondizione> aCondizioni;
};

struct OpzioniConteggio {
    /// What is not exact when the estimate is due stays an estimate.
    bool bSoloStima = false;
    /// From when on the estimate is made, which takes another 35 ms.
    std::chrono::milliseconds attesa{20};
    /// Where there is no shorter way, the columns are walked through when they are no more than these.
    double nColonneMassime = 2147483647;
    std::size_t nNodi = 2'000'000; ///< room of the short way: nodes of decision diagrams
    std::uint64_t nSeme = 1;       ///< another seed draws other columns for the estimate
};

/// Asked whether to cancel; empty for never.
using ContoAnnullato = std::function<bool()>;
/// Gets an estimate; empty for nobody.
using StimaPronta = std::function<void(const ConteggioSistema&)>;

/// Counts a system.
///
/// Conditions that depend on the order of the columns (a sequence inside a recovery group in force), the emulator and
/// partners among the numbers have no short way to the columns that pass, nor has a class outside 2 to 10.
/// Takes    annullato   asked every fraction of a millisecond; true ends the count
///          stima       gets the estimate, at most once and in this thread, when the exact count takes longer
/// Gives    nothing when it was cancelled; an estimate when there is no exact way or none was wanted
/// Fails    9: class outside 1..20; and with what a development fails with. Fewer picks than the class are a count of 0
[[nodiscard]] ORDAVEL_EXPORT std::optional<ConteggioSistema>
ContaSistema(const SistemaDaContare& sistema, const OpzioniConteggio& opzioni = {},
             const ContoAnnullato& annullato = {}, const StimaPronta& stima = {});

} // namespace ordavel
