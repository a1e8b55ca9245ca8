// Modifiche.hpp - the commands that change the conditions of a system file, and the one that copies them out.
//
// The program does what a user would do at the component: it answers the dialogs. A system is written only when
// all went well; otherwise its file stays as it was. What the system itself would take and a user would regret
// (a word that is no entry, a value above the class, a file of something else) is refused in words.

#pragma once

#include "ordavel/records.hpp"

#include "cli/Uscite.hpp"

#include <cstdint>
#include <string>
#include <vector>

namespace ordavel::cli {

/// What to add: one of a condition, the rows of a condition file, the columns of a text.
struct OpzioniAggiungi {
    std::string sSistema;
    std::string sTipo;      ///< key of a kind, case does not count
    std::string sParametri; ///< its values as InsCondizione takes them; a line break may be written as "\n"
    std::string sFile;
    std::string sColonne;
    std::vector<std::int32_t> aPunti;    ///< of the columns
    std::vector<std::int32_t> aRecupero; ///< of the columns, with a group
    std::int32_t nQuadro = 0;            ///< recovery group of the columns, 0 for none
};

/// A recovery group's range.
struct OpzioniQuadro {
    std::string sSistema;
    std::int32_t nGruppo = 0;
    std::int32_t nMinimo = -1;
    std::int32_t nMassimo = -1;
    bool bTogli = false; ///< takes the group out of use
};

/// A run of conditions; 0 for the first and the last one.
struct OpzioniRighe {
    std::string sSistema;
    std::string sFile; ///< where to copy them
    std::int32_t nDa = 0;
    std::int32_t nA = 0;
};

[[nodiscard]] eUscita Aggiungi(const OpzioniAggiungi& opzioni);
[[nodiscard]] eUscita Togli(const OpzioniRighe& opzioni);
[[nodiscard]] eUscita ImpostaQuadro(const OpzioniQuadro& opzioni);
[[nodiscard]] eUscita SalvaCondizioni(const OpzioniRighe& opzioni);

} // namespace ordavel::cli
