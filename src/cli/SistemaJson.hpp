// SistemaJson.hpp - a system as JSON text, in both directions.
//
//     {"classe":5,"riduzione":0,"numeri":[1,2,...],
//      "righe":[["Peso","Caselle :\r\n1-2","10-40","-"," "],...],
//      "quadro":["2,5,-1",...]}
//
// A row is the five cells of a condition. What is written can be read again; "colonne", the count of the columns
// that a system carries, is written and passed over when read.

#pragma once

#include "ordavel/Ordavel.hpp"

#include "core/TestoErrato.hpp"

#include <nlohmann/json.hpp>

#include <ostream>
#include <string>
#include <string_view>
#include <vector>

namespace ordavel::cli {

/// A system as a text states it.
struct TestoSistema {
    std::int16_t nClasse = 0;
    std::int16_t nRiduzione = 0;
    std::vector<std::int16_t> aNumeri;
    std::vector<Condizione> aRighe;
    std::vector<std::string> aQuadro;
};

/// Reads a system.
/// Fails    TestoErrato: no JSON (with line and column), a missing or unknown key, a wrong type, a class outside
///          2..10, a reduction outside 0..5, a number outside 1..90 or stated twice, a row of other than five
///          texts, an unknown kind of condition, more than 2000 rows or 20 lines of the board, a line of the
///          board that is not three whole numbers
[[nodiscard]] TestoSistema LeggiTestoSistema(std::string_view sJson);

/// Puts a stated system into an empty component.
void Imposta(const TestoSistema& testo, ordavel::Ordavel& sistema);

/// The system of a component.
[[nodiscard]] nlohmann::ordered_json ComeJson(ordavel::Ordavel& sistema);

/// The same for people: each condition on a line of its own.
void StampaSistemaJson(std::ostream& uscita, ordavel::Ordavel& sistema);

/// The rows of a component up to the last one that is not empty.
[[nodiscard]] std::vector<Condizione> RigheOccupate(ordavel::Ordavel& sistema);

} // namespace ordavel::cli
