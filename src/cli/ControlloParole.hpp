// ControlloParole.hpp - what the words of a command line say, and whether they can be meant.

#pragma once

#include "cli/Analisi.hpp"
#include "cli/Archivio.hpp"
#include "cli/Colonne.hpp"
#include "cli/Comandi.hpp"
#include "cli/Conta.hpp"
#include "cli/Modifiche.hpp"
#include "cli/Riduci.hpp"

#include <functional>
#include <stdexcept>
#include <string>
#include <vector>

namespace ordavel::cli {

/// A wrong use, in words.
class UsoErrato : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// The words of all commands, and what the one that was given does.
struct Riga {
    OpzioniCorsa corsa;
    OpzioniConta conta;
    OpzioniAggiungi aggiungi;
    OpzioniRighe righe;
    OpzioniQuadro quadro;
    OpzioniVedi vedi;
    OpzioniSpoglio spoglio;
    OpzioniArchivio archivio;
    OpzioniRiduci riduci;
    OpzioniGaranzia garanzia;
    std::string sVincente;
    std::string sUscita;
    std::string sTesto;
    std::string sSistema;
    std::int16_t nClasse = 0;
    std::vector<std::int16_t> aNumeri;
    bool bJson = false;
    std::function<eUscita()> azione;
};

/// The word of a list that takes the fewest steps of one letter from another one.
/// Takes    aParole   not empty
[[nodiscard]] std::string PiuVicina(const std::string& sParola, const std::vector<std::string>& aParole);

/// What the library cannot see: values beyond their bounds, options that do not go together.
/// Takes    sComando   the command that was given
/// Throws   UsoErrato
void ControllaParole(const std::string& sComando, Riga& riga);

} // namespace ordavel::cli
