// Esterno.cpp - a development by the external engine, from the command line.

#include "cli/Esterno.hpp"

#include "core/FileBinario.hpp"
#include "core/ModFunzGeneriche.hpp"
#include "core/TestoErrato.hpp"
#include "motore/LibreriaSviluppo.hpp"

#include <algorithm>
#include <span>

namespace ordavel::cli {

namespace {

constexpr std::int64_t kByteRagione = 4096; ///< of a text that should be a line

/// The text of a file on one line.
std::string Ragione(const std::string& sFile)
{
    FileBinario file(sFile, eApertura::lettura);
    std::string sTesto(static_cast<std::size_t>(std::min(file.Lunghezza(), kByteRagione)), '\0');
    sTesto.resize(file.Leggi(1, std::as_writable_bytes(std::span(sTesto))));
    std::string sRiga;
    for (const char c : sTesto) {
        const bool bControllo = static_cast<unsigned char>(c) < ' ';
        if (!bControllo) {
            sRiga += c;
        } else if (!sRiga.empty() && sRiga.back() != ' ') {
            sRiga += ' ';
        }
    }
    sRiga.erase(sRiga.find_last_not_of(' ') + 1);
    return sRiga;
}

} // namespace

void UsaMotoreEsterno(Sessione& sessione)
{
    try {
        LibreriaSviluppo().Controlla();
    } catch (const Errore& errore) {
        throw TestoErrato(
            TestoFallimento(errore) +
            ": il motore esterno è la libreria TorvanSvilSist, che va messa accanto al programma o "
            "dove il sistema cerca le librerie; senza, si sviluppa con --motore interno");
    }
    sessione.Sistema().PoniMotoreSviluppo(eMotoreSviluppo::esterno);
}

bool SegueMotoreEsterno(Sessione& sessione)
{
    if (!sessione.Sistema().Controlli().Timer1.Acceso.Valore()) {
        return false;
    }
    LibreriaSviluppo libreria;
    if (sessione.Sistema().UltimoSviluppo().bStopSviluppo) {
        libreria.StopSviluppo();
    }
    sessione.Desktop().Barra().Aggiorna(libreria.GetSviluppate(), libreria.GetCondizionate());
    return true;
}

double SviluppateEsterne()
{
    return LibreriaSviluppo().GetSviluppate();
}

void ControllaMotoreEsterno(const ordavel::Ordavel& sistema)
{
    const std::string sRagione = sistema.PercorsoTemp() + "Sviluppo.err";
    if (FileEsiste(sRagione)) {
        throw TestoErrato("il motore esterno dice: " + Ragione(sRagione));
    }
    if (!FileEsiste(sistema.FileColonne())) {
        throw TestoErrato("il motore esterno non ha scritto le colonne");
    }
}

} // namespace ordavel::cli
