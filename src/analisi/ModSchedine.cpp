// ModSchedine.cpp - where everything stands on a printed page of slips.

#include "analisi/ModSchedine.hpp"

#include "core/ModTesti.hpp"

#include <algorithm>
#include <array>
#include <cmath>

namespace ordavel {

namespace {

constexpr std::array kSchedine = std::to_array<ProfiloSchedina>({
    {"Lotto", 1},
    {"10ELotto", 1},
    {"10ELotto5M", 1},
    {"SuperEnalotto", 5},
    {"WinForLife", 4},
});

constexpr double kPannelloMm = kNumeriRiga * kCasellaMm;

constexpr double LarghezzaSchedina(std::int32_t nPannelli) noexcept
{
    return nPannelli * kPannelloMm + (nPannelli + 1) * kBordoMm;
}

constexpr double kAltezzaSchedina = kTestataMm + kTestataPannelloMm + kRigheNumeri * kCasellaMm + kBordoMm;

/// How many things of a length, so far apart, fit; at least one.
std::int32_t QuantiStanno(double nSpazio, double nLungo, double nDistanza) noexcept
{
    // A hair more, so that what fits exactly is not lost to a rounding.
    constexpr double kPelo = 1e-6;
    return std::max(
        1, static_cast<std::int32_t>(std::floor((nSpazio + nDistanza + kPelo) / (nLungo + nDistanza))));
}

/// Where the first of them begins when all together are centred; never outside the sheet.
double Inizio(double nFoglio, std::int32_t nQuanti, double nLungo) noexcept
{
    return std::max(0.0, (nFoglio - nQuanti * nLungo - (nQuanti - 1) * kDistanzaMm) / 2);
}

} // namespace

ProfiloSchedina ProfiloSchedinaDi(std::string_view sGioco) noexcept
{
    const auto* profilo =
        std::find_if(kSchedine.begin(), kSchedine.end(),
                     [sGioco](const ProfiloSchedina& p) { return UgualiSenzaCaso(p.sGioco, sGioco); });
    return profilo == kSchedine.end() ? ProfiloSchedina{sGioco, 1} : *profilo;
}

PaginaSchedine::PaginaSchedine(const FoglioMm& foglio, std::string_view sGioco) noexcept
{
    const double nLargo = foglio.nLarghezza - 2 * foglio.nMargine;
    const double nAlto = foglio.nAltezza - 2 * foglio.nMargine;
    m_nPannelli = std::min(ProfiloSchedinaDi(sGioco).nPannelli,
                           QuantiStanno(nLargo - 2 * kBordoMm, kPannelloMm, kBordoMm));
    m_nPerRiga = QuantiStanno(nLargo, LarghezzaSchedina(m_nPannelli), kDistanzaMm);
    m_nRighe = QuantiStanno(nAlto, kAltezzaSchedina, kDistanzaMm);
    m_nSinistra = Inizio(foglio.nLarghezza, m_nPerRiga, LarghezzaSchedina(m_nPannelli));
    m_nAlto = Inizio(foglio.nAltezza, m_nRighe, kAltezzaSchedina);
}

std::int64_t PaginaSchedine::Pagine(std::int64_t nColonne) const noexcept
{
    return (nColonne + Colonne() - 1) / Colonne();
}

std::int64_t PaginaSchedine::SchedineTotali(std::int64_t nColonne) const noexcept
{
    return (nColonne + m_nPannelli - 1) / m_nPannelli;
}

RettangoloMm PaginaSchedine::Schedina(std::int32_t nSchedina) const noexcept
{
    const double nLargo = LarghezzaSchedina(m_nPannelli);
    const std::int32_t nRiga = nSchedina / m_nPerRiga;
    return {.nX = m_nSinistra + nSchedina % m_nPerRiga * (nLargo + kDistanzaMm),
            .nY = m_nAlto + nRiga * (kAltezzaSchedina + kDistanzaMm),
            .nLarghezza = nLargo,
            .nAltezza = kAltezzaSchedina};
}

RettangoloMm PaginaSchedine::Testata(std::int32_t nSchedina) const noexcept
{
    RettangoloMm testata = Schedina(nSchedina);
    testata.nAltezza = kTestataMm;
    return testata;
}

RettangoloMm PaginaSchedine::TestataPannello(std::int32_t nSchedina, std::int32_t nPannello) const noexcept
{
    const RettangoloMm schedina = Schedina(nSchedina);
    return {.nX = schedina.nX + kBordoMm + nPannello * (kPannelloMm + kBordoMm),
            .nY = schedina.nY + kTestataMm,
            .nLarghezza = kPannelloMm,
            .nAltezza = kTestataPannelloMm};
}

RettangoloMm PaginaSchedine::Casella(std::int32_t nSchedina, std::int32_t nPannello,
                                     std::int32_t nNumero) const noexcept
{
    const RettangoloMm testata = TestataPannello(nSchedina, nPannello);
    const std::int32_t nRiga = (nNumero - 1) / kNumeriRiga;
    return {.nX = testata.nX + (nNumero - 1) % kNumeriRiga * kCasellaMm,
            .nY = testata.nY + kTestataPannelloMm + nRiga * kCasellaMm,
            .nLarghezza = kCasellaMm,
            .nAltezza = kCasellaMm};
}

} // namespace ordavel
