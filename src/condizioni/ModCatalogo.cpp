// ModCatalogo.cpp - the table of the kinds.

#include "condizioni/ModCatalogo.hpp"

#include "core/ModTesti.hpp"

#include <algorithm>

namespace ordavel {

namespace {

using enum TipoCondizione;
using P = eParametri;
using V = ePunti;
using F = eForma;

// clang-format off
constexpr std::array kCatalogo = std::to_array<VoceCatalogo>({
//   kind                 key                    dialog                          menu key                      stat  parameters     text or word       inverse     points         00     shape
    {linkOpen,            "LinkOpen",            "",                             "LinkOpen",                    0, P::nessuno,   "LinkOpen",        "",         V::nessuno,    false, F::link},
    {linkClose,           "LinkClose",           "F_LinkClose",                  "LinkClose",                   0, P::nessuno,   "LinkClose",       "",         V::link,       true,  F::link},
    {puntiColonna,        "Punti Col.",          "F_PuntisuColonna",             "PuntiSuColonna",             12, P::numeri,    "",                "",         V::lista,      true,  F::lista},
    {pariDispari,         "Pari-Dispari",        "F_PuntiSuPariDisp",            "PuntisuPariDispari",          8, P::parita,    "Pari",            "Dispari",  V::lista,      true,  F::lista},
    {peso,                "Peso",                "F_PuntiSuPeso",                "PuntisuPeso",                 9, P::caselle,   "",                "",         V::intervallo, false, F::intervallo},
    {resto,               "Resto",               "F_PuntiSuResto",               "PuntiSuResto",               14, P::resto,     "",                "",         V::lista,      false, F::lista},
    {ampiezza,            "Ampiezza",            "F_PuntiSuAmpiezza",            "PuntiSuAmpiezza",             1, P::nessuno,   "Ampiezza",        "",         V::intervallo, false, F::intervallo},
    {vortice,             "Vortice",             "F_PuntiSuVortice",             "PuntiSuVortice",             16, P::direzione, "Diretto",         "Inverso",  V::lista,      false, F::lista},
    {simmetrie,           "Simmetrie",           "F_PuntiSuSimmetrie",           "PuntiSuSimmetrie",           15, P::direzione, "Dirette",         "Inverse",  V::lista,      false, F::lista},
    {consecutivi,         "Consecutivi",         "F_PuntiSuConsecutivi",         "PuntiSuConsecutivi",          3, P::passo,     "Consecutivi",     "",         V::lista,      true,  F::lista},
    {interruzioniPD,      "InterruzioniPD",      "F_PuntiSuInterruzioniPD",      "PuntiSuInterruzioniPD",       6, P::nessuno,   "InterruzioniPD",  "",         V::lista,      true,  F::lista},
    {baricentro,          "Baricentro",          "F_PuntiSuBaricentro",          "PuntiSuBaricentro",           2, P::nessuno,   "Baricentro",      "",         V::intervallo, false, F::intervallo},
    {distanzaMinima,      "Distanza Minima",     "F_PuntiSudistanzaMinima",      "PuntiSuDistanzaMinima",       5, P::nessuno,   "DistanzaMin",     "",         V::intervallo, false, F::intervallo},
    {distanzaMassima,     "Distanza Massima",    "F_PuntiSudistanzaMassima",     "PuntiSuDistanzaMassima",      4, P::nessuno,   "DistanzaMax",     "",         V::intervallo, false, F::intervallo},
    {posizioni,           "Posizioni",           "F_PuntiSuPosizione",           "PuntiSuPosizioni",           11, P::casella,   "",                "",         V::intervallo, false, F::intervallo},
    {ponte,               "Ponte",               "F_PuntiSuPonte",               "PuntiSuPonte",               10, P::nessuno,   "Ponte",           "",         V::lista,      true,  F::lista},
    {sequenze,            "Sequenze",            "F_PuntiSuSequenze",            "PuntiSuSequenze",            13, P::sequenza,  "",                "",         V::lista,      true,  F::coppia},
    {paralleli,           "Paralleli",           "F_PuntiSuParalleli",           "PuntiSuParalleli",            7, P::direzione, "Diretti",         "Inversi",  V::lista,      false, F::lista},
    {gruppiDiConsecutivi, "GruppiDiConsecutivi", "F_PuntiSuGruppiDiConsecutivi", "PuntiSuGruppiDiConsecutivi", 17, P::gruppo,    "",                "",         V::lista,      false, F::lista},
    {interruzioni,        "Interruzioni",        "F_PuntiSuInterruzioni",        "PuntiSuInterruzioni",        18, P::nessuno,   "Interruzioni",    "",         V::lista,      true,  F::lista},
    {consecutiviPD,       "ConsecutiviPD",       "F_PuntiSuConsecutiviPD",       "PuntiSuConsecutiviPD",       19, P::passo,     "ConsecutiviPD",   "",         V::lista,      true,  F::lista},
    {cadenze,             "Cadenze",             "F_PuntiSuCadenze",             "PuntiSuCadenze",             20, P::nessuno,   "Cadenze",         "",         V::lista,      true,  F::lista},
    {decine,              "Decine",              "F_PuntiSuDecine",              "PuntiSuDecine",              21, P::nessuno,   "Decine",          "",         V::lista,      true,  F::lista},
    {figure,              "Figure",              "F_PuntiSuFigure",              "PuntiSuFigure",              22, P::nessuno,   "Figure",          "",         V::lista,      true,  F::lista},
    {formule,             "Formule",             "F_PuntiSuFormule",             "PuntiSuFormule",             25, P::nessuno,   "Formule",         "",         V::terna,      true,  F::terna},
    {emulatore,           "Emulatore",           "F_PuntiSuEmulatore",           "PuntiSuEmulatore",           26, P::emulatore, "",                "",         V::nessuno,    false, F::istogramma},
    {simmetrieNum,        "SimmetrieNum",        "F_PuntiSuSimmetrieNum",        "SimmetrieNumeriche",         27, P::chiave,    "SimmetrieNum",    "",         V::lista,      false, F::lista},
    {paralleliNum,        "ParalleliNum",        "F_PuntiSuParalleliNum",        "ParalleliNumerici",          28, P::chiave,    "ParalleliNum",    "",         V::lista,      false, F::lista},
    {fulcro,              "Fulcro",              "F_PuntiSuFulcro",              "Fulcro",                     29, P::direzione, "Pari",            "Dispari",  V::lista,      false, F::lista},
    {sommaCadenze,        "SommaCadenze",        "F_PuntiSuSommaCadenze",        "SommaCadenze",               30, P::caselle,   "",                "",         V::intervallo, false, F::intervallo},
    {sommaDecine,         "SommaDecine",         "F_PuntiSuSommaDecine",         "SommaDecine",                31, P::caselle,   "",                "",         V::intervallo, false, F::intervallo},
    {sommaFigure,         "SommaFigure",         "F_PuntiSuSommaFigure",         "SommaFigure",                32, P::caselle,   "",                "",         V::intervallo, false, F::intervallo},
    {sommaNumeretti,      "SommaNumeretti",      "F_PuntiSuSommaNumeretti",      "SommaNumeretti",             33, P::caselle,   "",                "",         V::intervallo, false, F::intervallo},
    {sommaComplessiva,    "SommaComplessiva",    "F_PuntiSuSommaComplessiva",    "SommaComplessiva",           34, P::caselle,   "",                "",         V::intervallo, false, F::intervallo},
    {figureSpecifiche,    "Figure Specifiche",   "F_PuntiSuFigureSpec",          "PuntiSuFigureSpec",          35, P::cifra,     "Figure ",         "",         V::lista,      true,  F::nessuna},
    {cadenzeSpecifiche,   "Cadenze Specifiche",  "F_PuntiSuCadenzeSpec",         "PuntiSuCadenzeSpec",         36, P::cifra,     "Cadenze ",        "",         V::lista,      true,  F::nessuna},
    {decineSpecifiche,    "Decine Specifiche",   "F_PuntiSuDecinaSpec",          "PuntiSuDecineSpec",          37, P::cifra,     "Decine ",         "",         V::lista,      true,  F::nessuna},
});
// clang-format on

constexpr bool TipiInOrdine()
{
    for (std::size_t i = 0; i < kCatalogo.size(); ++i) {
        if (static_cast<std::size_t>(kCatalogo[i].Tipo) != i + 1) {
            return false;
        }
    }
    return true;
}
static_assert(kCatalogo.size() == kTipiCondizione && TipiInOrdine());

} // namespace

std::span<const VoceCatalogo> Catalogo() noexcept
{
    return kCatalogo;
}

const VoceCatalogo* TrovaTipo(TipoCondizione tipo) noexcept
{
    const auto nTipo = static_cast<std::int16_t>(tipo);
    return nTipo < 1 || nTipo > kTipiCondizione ? nullptr : &kCatalogo[static_cast<std::size_t>(nTipo) - 1];
}

eForma FormaDiTipo(TipoCondizione tipo) noexcept
{
    const VoceCatalogo* voce = TrovaTipo(tipo);
    return voce == nullptr ? eForma::nessuna : voce->forma;
}

bool SiMisura(TipoCondizione tipo) noexcept
{
    const eForma forma = FormaDiTipo(tipo);
    return forma != eForma::nessuna && forma != eForma::link;
}

const VoceCatalogo* TrovaChiave(std::string_view sChiave) noexcept
{
    const auto* voce = std::find_if(kCatalogo.begin(), kCatalogo.end(),
                                    [sChiave](const VoceCatalogo& v) { return v.sChiave == sChiave; });
    return voce == kCatalogo.end() ? nullptr : voce;
}

const VoceCatalogo* TrovaChiaveSenzaCaso(std::string_view sChiave) noexcept
{
    const auto* voce = std::find_if(kCatalogo.begin(), kCatalogo.end(), [sChiave](const VoceCatalogo& v) {
        return UgualiSenzaCaso(v.sChiave, sChiave);
    });
    return voce == kCatalogo.end() ? nullptr : voce;
}

} // namespace ordavel
