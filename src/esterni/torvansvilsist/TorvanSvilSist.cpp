// TorvanSvilSist.cpp - the four functions that a host calls.

#include "TorvanSvilSist.h"

#include "Sviluppatore.hpp"
#include "core/ModFunzGeneriche.hpp"

#include <new>

namespace {

using ordavel::ComandiTratti;
using ordavel::ConSeparatore;
using ordavel::eErrore;
using ordavel::torvansvilsist::SviluppaFile;

ComandiTratti& ComandiComuni()
{
    static ComandiTratti comandi;
    return comandi;
}

/// Set while a development runs.
std::atomic<bool>& InCorso()
{
    static std::atomic<bool> bInCorso{false};
    return bInCorso;
}

int Sviluppa(const char* sCartella, const char* sSistema, const char* sEmulatore) noexcept
{
    try {
        return SviluppaFile({ConSeparatore(sCartella), sSistema, sEmulatore}, ComandiComuni());
    } catch (...) {
        return static_cast<int>(eErrore::memoria);
    }
}

} // namespace

#define TORVANSVILSIST_ESPORTA __attribute__((visibility("default")))

TORVANSVILSIST_ESPORTA int InitSviluppo(char* percorsoTemp, char* fileSistema, char* fileEmulatore)
{
    if (percorsoTemp == nullptr || fileSistema == nullptr || fileEmulatore == nullptr) {
        return static_cast<int>(eErrore::argomento);
    }
    if (InCorso().exchange(true)) {
        return static_cast<int>(eErrore::permesso);
    }
    ComandiComuni().bFerma = false;
    ComandiComuni().nSviluppate = 0;
    ComandiComuni().nCondizionate = 0;
    const int nNumero = Sviluppa(percorsoTemp, fileSistema, fileEmulatore);
    InCorso() = false;
    return nNumero;
}

TORVANSVILSIST_ESPORTA double GetSviluppate()
{
    return static_cast<double>(ComandiComuni().nSviluppate.load());
}

TORVANSVILSIST_ESPORTA double GetCondizionate()
{
    return static_cast<double>(ComandiComuni().nCondizionate.load());
}

TORVANSVILSIST_ESPORTA void StopSviluppo()
{
    ComandiComuni().bFerma = true;
}
