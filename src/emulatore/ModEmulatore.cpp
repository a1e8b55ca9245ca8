// ModEmulatore.cpp - the rows of emulated draws on disk.

#include "emulatore/ModEmulatore.hpp"

#include "core/FileBinario.hpp"
#include "core/ModFunzGeneriche.hpp"
#include "core/ModGiochi.hpp"
#include "core/ModNumeri.hpp"
#include "persistenza/ModBaseDati.hpp"

#include <algorithm>
#include <span>

namespace ordavel {

static_assert(sizeof(RigaEmulatore) == kByteRigaEmulatore);

namespace {

/// The comparison is exact, and so two games of ten numbers are not found by their name in the list.
const ProfiloGioco* TrovaPerChiave(std::string_view sChiave) noexcept
{
    const auto aGiochi = ProfiliGioco();
    const auto gioco = std::find_if(aGiochi.begin(), aGiochi.end(), [sChiave](const ProfiloGioco& g) {
        return g.sChiaveEmulatore == sChiave;
    });
    return gioco == aGiochi.end() ? nullptr : &*gioco;
}

/// The numbers of a draw that are emulated, from which place on.
std::size_t PrimoEmulato(const ProfiloGioco& gioco, std::int16_t nRuota)
{
    if (gioco.sChiaveEmulatore != "Lotto") {
        return 0;
    }
    if (nRuota < 1 || static_cast<std::size_t>(nRuota) > Ruote().size()) {
        Solleva(eErrore::indice);
    }
    return static_cast<std::size_t>(nRuota - 1) * kNumeriRuota;
}

std::vector<RigaEmulatore> RigheDi(const Estrazioni& estrazioni, const ProfiloGioco& gioco,
                                   std::int16_t nRuota, const std::string& sArchivio)
{
    const std::size_t nPrimo = PrimoEmulato(gioco, nRuota);
    std::vector<RigaEmulatore> aRighe(estrazioni.aEstrazioni.size());
    for (std::size_t i = 0; i < aRighe.size(); ++i) {
        for (std::size_t j = 0; j < static_cast<std::size_t>(gioco.nNumeriEmulati); ++j) {
            const std::uint8_t nNumero = estrazioni.aEstrazioni[i][nPrimo + j];
            if (nNumero > kNumeroMassimo) {
                throw Errore(eErrore::indice, sArchivio);
            }
            aRighe[i][nNumero] = nNumero != 0 ? 1 : 0; // an absent number marks nothing
        }
    }
    return aRighe;
}

} // namespace

void LeggiFileEmulatore(const std::string& sFile, std::vector<RigaEmulatore>& aRighe)
{
    if (!FileEsiste(sFile)) {
        return;
    }
    FileBinario file(sFile, eApertura::lettura);
    const auto nRighe = ComeIntero<std::int16_t>(static_cast<double>(file.Lunghezza()) /
                                                 static_cast<double>(kByteRigaEmulatore));
    if (nRighe < 1) {
        Solleva(eErrore::indice);
    }
    std::vector<RigaEmulatore> aLette(static_cast<std::size_t>(nRighe));
    file.Leggi(1, std::as_writable_bytes(std::span(aLette)));
    aRighe = std::move(aLette);
}

bool CreaDatiEmulatore(const std::string& sFile, std::int16_t nColonne, std::int16_t nRuota,
                       std::string_view sGioco, const std::string& sArchivio, Segnalatore& segnalatore)
{
    const ProfiloGioco* gioco = TrovaPerChiave(sGioco);
    if (gioco == nullptr) {
        return false;
    }
    const TracciatoEstrazione tracciato = TracciatoDi(*gioco);
    const auto nPresenti = ComeIntero<std::int32_t>(ContaEstrazioni(tracciato, sArchivio).value_or(0));
    Estrazioni estrazioni;
    if (nColonne < 1 || nPresenti < nColonne ||
        !LeggiEstrazioni(tracciato, nPresenti - nColonne + 1, nPresenti, estrazioni, sArchivio)) {
        return false;
    }
    const std::vector<RigaEmulatore> aRighe = RigheDi(estrazioni, *gioco, nRuota, sArchivio);
    if (!KillFile(sFile, segnalatore)) {
        return true;
    }
    FileBinario file(sFile, eApertura::scrittura);
    file.Scrivi(1, std::as_bytes(std::span(aRighe)));
    file.Chiudi();
    return true;
}

} // namespace ordavel
