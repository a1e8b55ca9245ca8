// Archivio.cpp - draw archives made from a text, and made a text again.

#include "cli/Archivio.hpp"

#include "cli/Sessione.hpp"
#include "core/FileBinario.hpp"
#include "core/ModNumeri.hpp"
#include "persistenza/FileAlPosto.hpp"
#include "persistenza/ImportaArchivio.hpp"
#include "persistenza/ModBaseDati.hpp"
#include "persistenza/TestoEstrazioni.hpp"

#include <algorithm>
#include <iostream>
#include <span>

namespace ordavel::cli {

namespace {

bool Importa(Sessione& /*sessione*/, const OpzioniArchivio& opzioni, const ProfiloGioco& gioco)
{
    const std::int64_t nEstrazioni = CreaArchivio(opzioni.sTesto, gioco, opzioni.sArchivio);
    std::cout << opzioni.sArchivio << ": " << FormattaNumero(static_cast<double>(nEstrazioni))
              << " estrazioni di " << gioco.sNome << '\n';
    return true;
}

std::int32_t Quante(const TracciatoEstrazione& tracciato, const std::string& sArchivio)
{
    FileBinario(sArchivio, eApertura::lettura).Chiudi();
    return ComeIntero<std::int32_t>(ContaEstrazioni(tracciato, sArchivio).value_or(0));
}

void Accoda(FileBinario& file, const std::string& sTesto)
{
    file.Accoda(std::as_bytes(std::span(sTesto)));
}

void ScriviTesto(const OpzioniArchivio& opzioni, const ProfiloGioco& gioco, std::int32_t nEstrazioni,
                 FileBinario& testo)
{
    Accoda(testo, IntestazioneEstrazioni(gioco));
    for (std::int32_t nFatte = 0; nFatte < nEstrazioni;) {
        const std::int32_t nPrima = nFatte + 1;
        nFatte += std::min(nEstrazioni - nFatte, kEstrazioniBlocco);
        Estrazioni estrazioni;
        if (!LeggiEstrazioni(TracciatoDi(gioco), nPrima, nFatte, estrazioni, opzioni.sArchivio)) {
            throw Errore(eErrore::dispositivo, opzioni.sArchivio);
        }
        std::string sBlocco;
        for (const Estrazione& estrazione : estrazioni.aEstrazioni) {
            sBlocco += LineaEstrazione(gioco, estrazione);
        }
        Accoda(testo, sBlocco);
    }
}

bool Esporta(Sessione& sessione, const OpzioniArchivio& opzioni, const ProfiloGioco& gioco)
{
    ControllaUscita(opzioni.sTesto, opzioni.sArchivio);
    const std::int32_t nEstrazioni = Quante(TracciatoDi(gioco), opzioni.sArchivio);
    return ScriviAlPosto(sessione.Desktop(), opzioni.sTesto, [&](const std::string& sProvvisorio) {
        FileBinario testo(sProvvisorio, eApertura::scrittura);
        ScriviTesto(opzioni, gioco, nEstrazioni, testo);
        testo.Chiudi();
        return true;
    });
}

/// The numbers of a draw, of each wheel in a line where there are wheels.
void StampaEstrazione(const ProfiloGioco& gioco, const Estrazione& estrazione)
{
    const bool bRuote = gioco.sNome == "Lotto";
    std::cout << "L'ultima:";
    for (std::int32_t i = 0; i < gioco.nNumeriEstrazione; ++i) {
        if (bRuote && i % kNumeriRuota == 0) {
            std::cout << "\n  " << Ruote()[static_cast<std::size_t>(i / kNumeriRuota)];
        }
        std::cout << ' ' << static_cast<int>(estrazione[static_cast<std::size_t>(i)]);
    }
    std::cout << '\n';
}

/// Neither of the two is proof, but an archive of another game shows at least one of them, nearly always.
void ControllaForma(Sessione& sessione, const OpzioniArchivio& opzioni, const ProfiloGioco& gioco,
                    const Estrazione& ultima)
{
    const std::string sDubbio = ": forse non è un archivio di " + std::string(gioco.sNome);
    if (FileBinario(opzioni.sArchivio, eApertura::lettura).Lunghezza() % gioco.nByteEstrazione != 0) {
        sessione.Desktop().Avvisa("la lunghezza di " + opzioni.sArchivio + " non è un multiplo di " +
                                  std::to_string(gioco.nByteEstrazione) + sDubbio);
    }
    if (std::any_of(ultima.begin(), ultima.end(), [](std::uint8_t n) { return n > kNumeroMassimo; })) {
        sessione.Desktop().Avvisa("l'ultima estrazione di " + opzioni.sArchivio + " ha numeri oltre il 90" +
                                  sDubbio);
    }
}

bool Info(Sessione& sessione, const OpzioniArchivio& opzioni, const ProfiloGioco& gioco)
{
    const TracciatoEstrazione tracciato = TracciatoDi(gioco);
    const std::int32_t nEstrazioni = Quante(tracciato, opzioni.sArchivio);
    Estrazioni ultima;
    const bool bLetta =
        nEstrazioni > 0 && LeggiEstrazioni(tracciato, nEstrazioni, nEstrazioni, ultima, opzioni.sArchivio);
    ControllaForma(sessione, opzioni, gioco, ultima.aEstrazioni[0]);
    std::cout << gioco.sNome << ": " << FormattaNumero(nEstrazioni) << " estrazioni di " << tracciato.nNumeri
              << " numeri\n";
    if (bLetta) {
        StampaEstrazione(gioco, ultima.aEstrazioni[0]);
    }
    return true;
}

/// Takes    lavoro   what is done with the game of the options
template <typename Lavoro>
eUscita Esegui(const OpzioniArchivio& opzioni, const std::string& sTitolo, Lavoro lavoro)
{
    Sessione sessione(false);
    return Uscita(
        Protetto(sessione, sTitolo, [&] { return lavoro(sessione, opzioni, *TrovaGioco(opzioni.sGioco)); }));
}

} // namespace

eUscita ImportaArchivio(const OpzioniArchivio& opzioni)
{
    return Esegui(opzioni, opzioni.sTesto, Importa);
}

eUscita EsportaArchivio(const OpzioniArchivio& opzioni)
{
    return Esegui(opzioni, opzioni.sArchivio, Esporta);
}

eUscita InfoArchivio(const OpzioniArchivio& opzioni)
{
    return Esegui(opzioni, opzioni.sArchivio, Info);
}

} // namespace ordavel::cli
