// ModBaseDati.cpp - the draw archives.

#include "persistenza/ModBaseDati.hpp"

#include "core/FileBinario.hpp"
#include "core/ModFunzGeneriche.hpp"

#include <algorithm>
#include <cstring>
#include <span>

namespace ordavel {

namespace {

constexpr std::int32_t kTestata = 12;
/// "WinForLife" has a text of five characters behind the head.
constexpr std::int32_t kTestoWinForLife = 5;

/// More draws than any game has had, and few enough to be held.
constexpr std::int64_t kEstrazioniMassime = 10'000'000;

void LeggiTutte(const TracciatoEstrazione& tracciato, std::int32_t nPrima, std::int32_t nUltima,
                Estrazioni& estrazioni, const std::string& sPath)
{
    const std::int64_t nQuante = std::int64_t{nUltima} - nPrima + 1;
    if (nQuante > kEstrazioniMassime) {
        Solleva(eErrore::memoria);
    }
    estrazioni.nPrima = nPrima;
    estrazioni.aEstrazioni.assign(static_cast<std::size_t>(nQuante), Estrazione{});
    FileBinario file(sPath, eApertura::lettura);
    const auto nByte = static_cast<std::size_t>(tracciato.nByte);
    std::vector<std::byte> aByte(static_cast<std::size_t>(nQuante) * nByte);
    file.Leggi(PosizioneEstrazione(tracciato, std::max(nPrima, 1)), aByte);
    for (std::size_t i = 0; i < estrazioni.aEstrazioni.size(); ++i) {
        std::memcpy(estrazioni.aEstrazioni[i].data(),
                    aByte.data() + i * nByte + static_cast<std::size_t>(tracciato.nPrimo),
                    static_cast<std::size_t>(tracciato.nNumeri));
    }
}

} // namespace

TracciatoEstrazione TracciatoDi(const ProfiloGioco& gioco) noexcept
{
    const std::int32_t nPrimo = kTestata + (gioco.sChiaveEmulatore == "WinForLife" ? kTestoWinForLife : 0);
    return {.nByte = gioco.nByteEstrazione, .nPrimo = nPrimo, .nNumeri = gioco.nNumeriEstrazione};
}

std::optional<double> ContaEstrazioni(const TracciatoEstrazione& tracciato, const std::string& sPath)
{
    try {
        FileBinario file(sPath, eApertura::lettura);
        return static_cast<double>(file.Lunghezza()) / tracciato.nByte;
    } catch (const Errore&) {
        return std::nullopt;
    }
}

std::int64_t PosizioneEstrazione(const TracciatoEstrazione& tracciato, std::int64_t nEstrazione) noexcept
{
    return (nEstrazione - 1) * tracciato.nByte + 1;
}

bool LeggiEstrazioni(const TracciatoEstrazione& tracciato, std::int32_t nPrima, std::int32_t nUltima,
                     Estrazioni& estrazioni, const std::string& sPath)
{
    if (!FileEsiste(sPath) || nUltima < nPrima) {
        return false;
    }
    try {
        LeggiTutte(tracciato, nPrima, nUltima, estrazioni, sPath);
        return true;
    } catch (const std::exception&) {
        // What went wrong is told by whoever wanted the draws: to the user there are none.
        estrazioni = Estrazioni{};
        return false;
    }
}

void AccodaEstrazioni(const TracciatoEstrazione& tracciato, const std::vector<Estrazione>& aEstrazioni,
                      FileBinario& file)
{
    std::vector<std::byte> aByte(aEstrazioni.size() * static_cast<std::size_t>(tracciato.nByte));
    std::byte* posto = aByte.data();
    for (const Estrazione& estrazione : aEstrazioni) {
        std::memcpy(posto + tracciato.nPrimo, estrazione.data(), static_cast<std::size_t>(tracciato.nNumeri));
        posto += tracciato.nByte;
    }
    file.Accoda(aByte);
}

} // namespace ordavel
