// ImportaArchivio.cpp - a draw archive made of a text.

#include "persistenza/ImportaArchivio.hpp"

#include "core/FileBinario.hpp"
#include "persistenza/FileAlPosto.hpp"
#include "persistenza/TestoEstrazioni.hpp"

#include <fstream>

namespace ordavel {

namespace {

std::int64_t Leggi(const std::string& sTesto, const ProfiloGioco& gioco, const RiceviEstrazioni& ricevi)
{
    // Says why it cannot be read, which a stream does not.
    FileBinario(sTesto, eApertura::lettura).Chiudi();
    std::ifstream ingresso(sTesto, std::ios::binary);
    return LeggiTestoEstrazioni(ingresso, sTesto, gioco, ricevi);
}

} // namespace

RiassuntoEstrazioni EsaminaTesto(const std::string& sTesto, const ProfiloGioco& gioco)
{
    RiassuntoEstrazioni riassunto;
    bool bPrima = true;
    riassunto.nEstrazioni = Leggi(sTesto, gioco, [&](const std::vector<Estrazione>& aEstrazioni) {
        if (aEstrazioni.empty()) {
            return;
        }
        if (bPrima) {
            riassunto.prima = aEstrazioni.front();
            bPrima = false;
        }
        riassunto.ultima = aEstrazioni.back();
    });
    return riassunto;
}

std::int64_t CreaArchivio(const std::string& sTesto, const ProfiloGioco& gioco, const std::string& sArchivio)
{
    ControllaUscita(sArchivio, sTesto);
    std::int64_t nEstrazioni = 0;
    ScriviAlPosto(sArchivio, [&](const std::string& sProvvisorio) {
        FileBinario archivio(sProvvisorio, eApertura::scrittura);
        nEstrazioni = Leggi(sTesto, gioco, [&](const std::vector<Estrazione>& aEstrazioni) {
            AccodaEstrazioni(TracciatoDi(gioco), aEstrazioni, archivio);
        });
        archivio.Chiudi();
        return true;
    });
    return nEstrazioni;
}

} // namespace ordavel
