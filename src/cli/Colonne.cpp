// Colonne.cpp - the commands that show the columns of a file.

#include "cli/Colonne.hpp"

#include "cli/Sessione.hpp"
#include "core/ModNumeri.hpp"
#include "core/TestoErrato.hpp"
#include "persistenza/FileAlPosto.hpp"

#include <algorithm>
#include <iostream>
#include <unistd.h>

namespace ordavel::cli {

namespace {

/// Exports the working file; a stop ends it with the lines that were written.
bool EsportaDove(Sessione& sessione, const std::string& sTesto)
{
    sessione.Desktop().AdOgniEvento([&] {
        if (PiattaformaCli::StopChiesto()) {
            sessione.Sistema().AnnullaExport();
        }
    });
    return ScriviAlPosto(sessione.Desktop(), sTesto, [&](const std::string& sProvvisorio) {
        sessione.Desktop().RispondiSalva(sProvvisorio);
        const bool bTutte = sessione.Sistema().SalvaFileColonneTesto();
        return !sessione.Desktop().Critico() && (bTutte || PiattaformaCli::StopChiesto());
    });
}

void ScriviColonne(Sessione& sessione, const OpzioniVedi& opzioni, std::int32_t nColonne)
{
    const std::int64_t nFine =
        std::min<std::int64_t>(nColonne, std::int64_t{opzioni.nDa} + opzioni.nQuante - 1);
    const std::size_t nLarghezza = FormattaNumero(static_cast<double>(nFine)).size();
    for (std::int64_t n = opzioni.nDa; n <= nFine && std::cout && !PiattaformaCli::StopChiesto(); ++n) {
        const std::string sNumero = FormattaNumero(static_cast<double>(n));
        std::cout << std::string(nLarghezza - sNumero.size(), ' ') << sNumero << "  "
                  << sessione.Sistema().GetColonnaSviluppo(static_cast<std::int32_t>(n)) << '\n';
    }
}

/// A stop is no failure, and yet not the whole work.
eUscita UscitaConStop(bool bFatto)
{
    return bFatto && PiattaformaCli::StopChiesto() ? eUscita::interrotto : Uscita(bFatto);
}

} // namespace

eUscita Esporta(const std::string& sColonne, const std::string& sTesto)
{
    Sessione sessione(isatty(STDERR_FILENO) == 1);
    const bool bFatto = Protetto(sessione, sColonne, [&] {
        ControllaUscita(sTesto, sColonne);
        sessione.UsaColonne(sColonne);
        const std::int32_t nColonne = sessione.Sistema().QuantitaColonne();
        if (sessione.Desktop().Critico() || !EsportaDove(sessione, sTesto)) {
            return false;
        }
        std::cout << sTesto << ": "
                  << (PiattaformaCli::StopChiesto() ? "interrotto" : FormattaNumero(nColonne) + " colonne")
                  << '\n';
        return true;
    });
    return UscitaConStop(bFatto);
}

eUscita Vedi(const OpzioniVedi& opzioni)
{
    Sessione sessione(false);
    const bool bFatto = Protetto(sessione, opzioni.sFile, [&] {
        sessione.UsaColonne(opzioni.sFile);
        const std::int32_t nColonne = sessione.Sistema().QuantitaColonne();
        if (sessione.Desktop().Critico()) {
            return false;
        }
        if (opzioni.nDa > nColonne) {
            throw TestoErrato("il file ha " + FormattaNumero(nColonne) + " colonne");
        }
        ScriviColonne(sessione, opzioni, nColonne);
        return !sessione.Desktop().Critico();
    });
    return UscitaConStop(bFatto);
}

} // namespace ordavel::cli
