// archivio.cpp - any bytes as the draw archive of any game: counted, read, made an emulator's draws, read again.
//
// The first three bytes are the game, how many draws are wanted, and the wheel; the others are the archive.

#include "PathProvvisorio.hpp"
#include "Pretende.hpp"
#include "core/FileBinario.hpp"
#include "core/ModNumeri.hpp"
#include "emulatore/ModEmulatore.hpp"
#include "persistenza/ModBaseDati.hpp"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace {

using namespace ordavel;
using fuzz::PathProvvisorio;
using fuzz::Pretende;

constexpr std::size_t kByteRichiesta = 3;

class SenzaUditore : public Segnalatore {
public:
    void MostraFallimento(std::string_view /*sOrigine*/, const Errore& /*errore*/) override
    {
        Pretende(false, "il file si lascia cancellare");
    }
};

void Scrivi(const std::string& sPath, std::span<const std::byte> aByte)
{
    FileBinario file(sPath, eApertura::scrittura);
    file.Accoda(aByte);
    file.Chiudi();
}

/// Every number is the byte at its place, or 0 behind the end.
void ProvaNumeri(const TracciatoEstrazione& tracciato, const Estrazioni& estrazioni,
                 std::span<const std::byte> aByte)
{
    for (std::size_t d = 0; d < estrazioni.aEstrazioni.size(); ++d) {
        for (std::size_t i = 0; i < kNumeriEstrazione; ++i) {
            const bool bNumero = i < static_cast<std::size_t>(tracciato.nNumeri);
            const std::size_t nPosto = d * static_cast<std::size_t>(tracciato.nByte) +
                                       static_cast<std::size_t>(tracciato.nPrimo) + i;
            const auto nAtteso =
                bNumero && nPosto < aByte.size() ? std::to_integer<std::uint8_t>(aByte[nPosto]) : 0;
            Pretende(estrazioni.aEstrazioni[d][i] == nAtteso, "i numeri sono i byte");
        }
    }
}

std::int32_t ProvaLettura(const TracciatoEstrazione& tracciato, const std::string& sPath,
                          std::span<const std::byte> aByte)
{
    const auto nQuante = ContaEstrazioni(tracciato, sPath);
    Pretende(nQuante.has_value(), "un file che c'è si conta");
    const auto nIntere = ComeIntero<std::int32_t>(*nQuante);
    Estrazioni tutte;
    Pretende(LeggiEstrazioni(tracciato, 1, nIntere, tutte, sPath) == (nIntere > 0), "si leggono tutte");
    if (nIntere > 0) {
        Pretende(std::ssize(tutte.aEstrazioni) == nIntere, "sono quante si contano");
        ProvaNumeri(tracciato, tutte, aByte);
    }
    return nIntere;
}

void ProvaEmulatore(const ProfiloGioco& gioco, std::int16_t nColonne, std::int16_t nRuota,
                    const std::string& sPath, std::int32_t nPresenti)
{
    const PathProvvisorio emulate("emulate");
    SenzaUditore segnalatore;
    bool bFatto = false;
    try {
        bFatto =
            CreaDatiEmulatore(emulate.Testo(), nColonne, nRuota, gioco.sChiaveEmulatore, sPath, segnalatore);
    } catch (const Errore& errore) {
        Pretende(errore.Numero() == eErrore::indice, "fallisce per un numero o per la ruota");
        return;
    }
    Pretende(bFatto == (nColonne > 0 && nColonne <= nPresenti), "si crea quando le estrazioni bastano");
    std::vector<RigaEmulatore> aRighe;
    LeggiFileEmulatore(emulate.Testo(), aRighe);
    Pretende(std::ssize(aRighe) == (bFatto ? nColonne : 0), "una riga per estrazione");
    for (const RigaEmulatore& aRiga : aRighe) {
        const auto nSegnati = std::count(aRiga.aElementi.begin(), aRiga.aElementi.end(), 1);
        Pretende(aRiga[0] == 0 && nSegnati <= gioco.nNumeriEmulati, "i numeri di un'estrazione");
    }
}

void Prova(std::span<const std::uint8_t> aRichiesta, std::span<const std::byte> aByte)
{
    const ProfiloGioco& gioco = ProfiliGioco()[aRichiesta[0] % ProfiliGioco().size()];
    const PathProvvisorio archivio("archivio");
    Scrivi(archivio.Testo(), aByte);
    const std::int32_t nPresenti = ProvaLettura(TracciatoDi(gioco), archivio.Testo(), aByte);
    ProvaEmulatore(gioco, static_cast<std::int8_t>(aRichiesta[1]), static_cast<std::int8_t>(aRichiesta[2]),
                   archivio.Testo(), nPresenti);
    std::vector<RigaEmulatore> aRighe;
    try {
        LeggiFileEmulatore(archivio.Testo(), aRighe);
    } catch (const Errore& errore) {
        Pretende(errore.Numero() == eErrore::indice && aByte.size() < kByteRigaEmulatore, "non ha una riga");
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* aDati, std::size_t nDati)
{
    if (nDati >= kByteRichiesta) {
        const std::span aTutti(aDati, nDati);
        Prova(aTutti.first(kByteRichiesta), std::as_bytes(aTutti.subspan(kByteRichiesta)));
    }
    return 0;
}
