// trvrdcol.cpp - the three functions that a host calls.

#include "trvrdcol.h"

#include "Archivio.hpp"
#include "Riduttore.hpp"

#include <atomic>
#include <new>
#include <string>

namespace {

using ordavel::trvrdcol::Comandi;
using ordavel::trvrdcol::eGuasto;
using ordavel::trvrdcol::Guasto;
using ordavel::trvrdcol::Indice;
using ordavel::trvrdcol::LeggiRecord;
using ordavel::trvrdcol::Record;
using ordavel::trvrdcol::Riduci;
using ordavel::trvrdcol::SecondiConcessi;
using ordavel::trvrdcol::Uscita;

Comandi& ComandiComuni()
{
    static Comandi comandi;
    return comandi;
}

/// Set while a reduction runs.
std::atomic<bool>& InCorso()
{
    static std::atomic<bool> bInCorso{false};
    return bInCorso;
}

void RiduciFile(const std::string& sInput, const std::string& sOutput, std::int32_t nPunti)
{
    const std::vector<Record> aRecord = LeggiRecord(sInput);
    Uscita uscita(sOutput);
    std::vector<Record> aRidotti;
    for (const Indice r : Riduci(aRecord, nPunti, SecondiConcessi(), ComandiComuni())) {
        aRidotti.push_back(aRecord[r]);
    }
    uscita.Scrivi(aRidotti);
    uscita.Conferma();
}

/// Runs a piece of work; no failure passes.
/// Gives    its number, or 0
template <typename Lavoro> int Numero(const Lavoro& lavoro) noexcept
{
    try {
        lavoro();
        return 0;
    } catch (const Guasto& guasto) {
        return static_cast<int>(guasto.nNumero);
    } catch (const std::bad_alloc&) {
        return static_cast<int>(eGuasto::memoria);
    } catch (...) {
        return static_cast<int>(eGuasto::dispositivo);
    }
}

} // namespace

#define TRVRDCOL_ESPORTA __attribute__((visibility("default")))

TRVRDCOL_ESPORTA int RiduzioneColonneDll(const char** psInput, const char** psOutput,
                                         const std::int32_t* pnPuntiRichiesti)
{
    if (psInput == nullptr || psOutput == nullptr || pnPuntiRichiesti == nullptr || *psInput == nullptr ||
        *psOutput == nullptr) {
        return static_cast<int>(eGuasto::argomento);
    }
    if (InCorso().exchange(true)) {
        return static_cast<int>(eGuasto::permesso);
    }
    ComandiComuni().bFerma = false;
    ComandiComuni().nPercentuale = 0;
    const int nNumero = Numero([&] { RiduciFile(*psInput, *psOutput, *pnPuntiRichiesti); });
    ComandiComuni().nPercentuale = 100;
    InCorso() = false;
    return nNumero;
}

TRVRDCOL_ESPORTA std::int16_t GetPercProgRiduzione()
{
    return ComandiComuni().nPercentuale;
}

TRVRDCOL_ESPORTA void StopRiduzioneDll()
{
    ComandiComuni().bFerma = true;
}
