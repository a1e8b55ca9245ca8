// Stampa.hpp - results for people to read, and the same results as JSON.

#pragma once

#include "ordavel/Ordavel.hpp"

#include <nlohmann/json.hpp>

#include <ostream>
#include <string>
#include <vector>

namespace ordavel::cli {

/// What a run has come to.
struct EsitoCorsa {
    double nIntegrali = 0;    ///< columns of the whole system, or of the source
    double nSviluppate = 0;   ///< columns examined
    double nCondizionate = 0; ///< columns kept
    double nSecondi = 0;
    bool bInterrotto = false;
    bool bDaFile = false;                      ///< filtered from a file
    std::vector<RecordCondizione> aCondizioni; ///< compiled conditions as they stand after the run
};

/// A run as one object; numbers are whole but for the seconds.
[[nodiscard]] nlohmann::ordered_json ComeJson(const EsitoCorsa& esito,
                                              const std::vector<Messaggio>& aMessaggi);

/// A run as a short table: counts, then what each condition passed, cut and could recover.
void StampaEsito(std::ostream& uscita, const EsitoCorsa& esito);

/// A run in one sentence.
/// Takes    sUscita   the file that was written
[[nodiscard]] std::string Riassunto(const EsitoCorsa& esito, const std::string& sUscita);

/// A system as text: class, picks, conditions, recovery groups in force.
void StampaSistema(std::ostream& uscita, ordavel::Ordavel& sistema);

/// The metrics of a column, a line each.
/// Takes    misure   an object as Misura gives it
void StampaMisure(std::ostream& uscita, const nlohmann::ordered_json& misure);

/// A share with one decimal, "31,8 %"; "-" of nothing.
[[nodiscard]] std::string Percento(double nParte, double nTutto);

/// A cell on one line: a text written one letter a line becomes a word again.
[[nodiscard]] std::string CellaSuUnaRiga(std::string_view sCella);

} // namespace ordavel::cli
