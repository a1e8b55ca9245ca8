// ModTesti.cpp - small operations on texts.

#include "core/ModTesti.hpp"

#include <algorithm>

namespace ordavel {

namespace {

char Minuscola(char c)
{
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

bool StessaLettera(char a, char b)
{
    return Minuscola(a) == Minuscola(b);
}

} // namespace

std::vector<std::string_view> Dividi(std::string_view sTesto, std::string_view sSeparatore)
{
    std::vector<std::string_view> aParti;
    if (sTesto.empty()) {
        return aParti;
    }
    std::size_t nDa = 0;
    for (std::size_t nFine = 0; (nFine = sTesto.find(sSeparatore, nDa)) != std::string_view::npos;) {
        aParti.push_back(sTesto.substr(nDa, nFine - nDa));
        nDa = nFine + sSeparatore.size();
    }
    aParti.push_back(sTesto.substr(nDa));
    return aParti;
}

std::string_view TogliBlank(std::string_view sTesto) noexcept
{
    const std::size_t nInizio = sTesto.find_first_not_of(' ');
    if (nInizio == std::string_view::npos) {
        return {};
    }
    return sTesto.substr(nInizio, sTesto.find_last_not_of(' ') - nInizio + 1);
}

std::string Sostituisci(std::string_view sTesto, std::string_view sVecchio, std::string_view sNuovo)
{
    std::string sRisultato;
    std::size_t nDa = 0;
    for (std::size_t nTrovato = 0; (nTrovato = sTesto.find(sVecchio, nDa)) != std::string_view::npos;) {
        sRisultato.append(sTesto.substr(nDa, nTrovato - nDa)).append(sNuovo);
        nDa = nTrovato + sVecchio.size();
    }
    return sRisultato.append(sTesto.substr(nDa));
}

bool UgualiSenzaCaso(std::string_view sUno, std::string_view sDue) noexcept
{
    return sUno.size() == sDue.size() && IniziaSenzaCaso(sUno, sDue);
}

bool IniziaSenzaCaso(std::string_view sTesto, std::string_view sInizio) noexcept
{
    return sTesto.size() >= sInizio.size() &&
           std::equal(sInizio.begin(), sInizio.end(), sTesto.begin(), StessaLettera);
}

std::size_t CercaSenzaCaso(std::string_view sTesto, std::string_view sCercato) noexcept
{
    const auto trovato =
        std::search(sTesto.begin(), sTesto.end(), sCercato.begin(), sCercato.end(), StessaLettera);
    return trovato == sTesto.end() && !sCercato.empty() ? std::string_view::npos
                                                        : static_cast<std::size_t>(trovato - sTesto.begin());
}

std::string_view Dietro(std::string_view sTesto, std::string_view sCercato) noexcept
{
    const std::size_t nPosto = sTesto.find(sCercato);
    return nPosto == std::string_view::npos ? std::string_view() : sTesto.substr(nPosto + sCercato.size());
}

} // namespace ordavel
