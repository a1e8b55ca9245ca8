// TabellaDialoghi.cpp - the rows of the common dialogs.

#include "editor/TabellaDialoghi.hpp"

#include <algorithm>

namespace ordavel {

namespace {

using enum TipoCondizione;
using C = eControlloParametro;
using P = eFamigliaPunti;
using L = eLimiti;
using R = eRiempimento;

constexpr std::string_view kDivisori = "2|3|4|5|6|7|8|9";
constexpr std::string_view kCifre = "0|1|2|3|4|5|6|7|8|9";

// clang-format off
constexpr std::array kDialoghi = std::to_array<RigaDialogo>({
//   name                         kind               caption                          parameter    entries             points         first  limits        fill           missing digit            digits
    {"F_PuntiSuPariDisp",         pariDispari,       "Punti su pari dispari",         C::combo,    "Pari|Dispari",     P::lista,      0,     L::nessuno,   R::conCombo,   "",                      false},
    {"F_PuntiSuPeso",             peso,              "Punti su peso",                 C::caselle,  "",                 P::intervallo, 0,     L::somma,     R::nessuno,    "",                      false},
    {"F_PuntiSuResto",            resto,             "Punti su resto",                C::divisore, kDivisori,          P::lista,      0,     L::nessuno,   R::conCombo,   "",                      false},
    {"F_PuntiSuAmpiezza",         ampiezza,          "Ampiezza",                      C::nessuno,  "",                 P::intervallo, 0,     L::ampiezza,  R::intervallo, "",                      true},
    {"F_PuntiSudistanzaMinima",   distanzaMinima,    "Distanza minima",               C::nessuno,  "",                 P::intervallo, 0,     L::nessuno,   R::intervallo, "",                      false},
    {"F_PuntiSudistanzaMassima",  distanzaMassima,   "Distanza massima",              C::nessuno,  "",                 P::intervallo, 0,     L::nessuno,   R::intervallo, "",                      false},
    {"F_PuntiSuVortice",          vortice,           "Vortice",                       C::combo,    "Diretto|Inverso",  P::lista,      1,     L::nessuno,   R::conCombo,   "",                      false},
    {"F_PuntiSuSimmetrie",        simmetrie,         "Punti su simmetrie",            C::combo,    "Dirette|Inverse",  P::lista,      0,     L::nessuno,   R::conCombo,   "",                      false},
    {"F_PuntiSuParalleli",        paralleli,         "Punti su paralleli",            C::combo,    "Diretti|Inversi",  P::lista,      0,     L::nessuno,   R::conCombo,   "",                      false},
    {"F_PuntiSuConsecutivi",      consecutivi,       "Punti su consecutivi",          C::nessuno,  "",                 P::lista,      0,     L::nessuno,   R::valori,     "",                      false},
    {"F_PuntiSuInterruzioni",     interruzioni,      "Punti su interruzioni",         C::nessuno,  "",                 P::lista,      0,     L::nessuno,   R::valori,     "",                      false},
    {"F_PuntiSuConsecutiviPD",    consecutiviPD,     "Punti su consecutivi PD",       C::nessuno,  "",                 P::lista,      0,     L::nessuno,   R::valori,     "",                      false},
    {"F_PuntiSuInterruzioniPD",   interruzioniPD,    "Punti su interruzioni PD",      C::nessuno,  "",                 P::lista,      0,     L::nessuno,   R::valori,     "",                      false},
    {"F_PuntiSuBaricentro",       baricentro,        "Baricentro",                    C::nessuno,  "",                 P::intervallo, 0,     L::media,     R::intervallo, "",                      false},
    {"F_PuntiSuPosizione",        posizioni,         "Punti su posizione",            C::casella,  "",                 P::intervallo, 0,     L::nessuno,   R::intervallo, "",                      false},
    {"F_PuntiSuPonte",            ponte,             "Punti su ponte",                C::nessuno,  "",                 P::lista,      0,     L::nessuno,   R::valori,     "",                      false},
    {"F_PuntiSuCadenze",          cadenze,           "Punti su Cadenze",              C::nessuno,  "",                 P::lista,      0,     L::nessuno,   R::valori,     "",                      false},
    {"F_PuntiSuCadenzeSpec",      cadenzeSpecifiche, "Punti su Cadenze specifiche",   C::cifra,    kCifre,             P::lista,      0,     L::nessuno,   R::valori,     "Specificare la cadenza", false},
    {"F_PuntiSuDecine",           decine,            "Punti su decine",               C::nessuno,  "",                 P::lista,      0,     L::nessuno,   R::valori,     "",                      false},
    {"F_PuntiSuDecinaSpec",       decineSpecifiche,  "Punti su Decine specifiche",    C::cifra,    kCifre,             P::lista,      0,     L::nessuno,   R::nessuno,    "Specificare la decina",  false},
    {"F_PuntiSuFigure",           figure,            "Punti su figure",               C::nessuno,  "",                 P::lista,      0,     L::nessuno,   R::valori,     "",                      false},
    {"F_PuntiSuFigureSpec",       figureSpecifiche,  "Punti su Figure specifiche",    C::cifra,    kCifre,             P::lista,      0,     L::nessuno,   R::valori,     "Specificare la figura",  false},
    {"F_PuntiSuSimmetrieNum",     simmetrieNum,      "Punti su simmetrie numeriche",  C::nessuno,  "",                 P::lista,      0,     L::nessuno,   R::conCombo,   "",                      false},
    {"F_PuntiSuParalleliNum",     paralleliNum,      "Punti su paralleli numerici",   C::nessuno,  "",                 P::lista,      0,     L::nessuno,   R::conCombo,   "",                      false},
    {"F_PuntiSuFulcro",           fulcro,            "Punti su fulcro",               C::combo,    "Pari|Dispari",     P::lista,      0,     L::nessuno,   R::conCombo,   "",                      false},
    {"F_PuntiSuSommaDecine",      sommaDecine,       "Punti su somma decine",         C::caselle,  "",                 P::intervallo, 0,     L::somma,     R::nessuno,    "",                      false},
    {"F_PuntiSuSommaCadenze",     sommaCadenze,      "Punti su peso",                 C::caselle,  "",                 P::intervallo, 0,     L::somma,     R::nessuno,    "",                      false},
    {"F_PuntiSuSommaFigure",      sommaFigure,       "Punti su somma figure",         C::caselle,  "",                 P::intervallo, 0,     L::somma,     R::nessuno,    "",                      false},
    {"F_PuntiSuSommaNumeretti",   sommaNumeretti,    "Punti su somma numeretti",      C::caselle,  "",                 P::intervallo, 0,     L::somma,     R::nessuno,    "",                      false},
    {"F_PuntiSuSommaComplessiva", sommaComplessiva,  "Punti su somma complessiva",    C::caselle,  "",                 P::intervallo, 0,     L::somma,     R::nessuno,    "",                      false},
});
// clang-format on

constexpr bool TipiDiversi()
{
    for (std::size_t i = 0; i < kDialoghi.size(); ++i) {
        for (std::size_t j = 0; j < i; ++j) {
            if (kDialoghi[i].tipo == kDialoghi[j].tipo || kDialoghi[i].sNome == kDialoghi[j].sNome) {
                return false;
            }
        }
    }
    return true;
}
static_assert(kDialoghi.size() == 30 && TipiDiversi());

} // namespace

std::span<const RigaDialogo> TabellaDialoghi() noexcept
{
    return kDialoghi;
}

const RigaDialogo* TrovaDialogo(TipoCondizione tipo) noexcept
{
    const auto* riga = std::find_if(kDialoghi.begin(), kDialoghi.end(),
                                    [tipo](const RigaDialogo& r) { return r.tipo == tipo; });
    return riga == kDialoghi.end() ? nullptr : riga;
}

} // namespace ordavel
