// ModForma.cpp - metrics of a column's shape.

#include "calcoli/ModForma.hpp"

#include "core/ModNumeri.hpp"

#include <algorithm>

namespace ordavel {

namespace {

/// Adjacent pairs that a condition holds for.
/// Takes    aValori   a column or its parities
template <typename Valori, typename Condizione>
std::int32_t ContaCoppie(std::int16_t nClasse, const Valori& aValori, Condizione condizione)
{
    VerificaClasse(nClasse);
    std::int32_t nQuante = 0;
    for (int k = 1; k < nClasse; ++k) {
        nQuante += condizione(aValori[k], aValori[k + 1]) ? 1 : 0;
    }
    return nQuante;
}

/// Sum of the numbers at the positions that a condition holds for.
template <typename Condizione>
std::int32_t SommaDove(std::int16_t nClasse, const Colonna& colonna, Condizione condizione)
{
    VerificaClasse(nClasse);
    std::int32_t nSomma = 0;
    for (int k = 1; k <= nClasse; ++k) {
        nSomma += condizione(k) ? colonna[k] : 0;
    }
    return nSomma;
}

/// The gap that wins over all others and over nIniziale. A descent is noted on the way and raised once, behind
/// the loop: no value comes out of a column that has one.
template <typename Scelta>
std::int32_t Distanza(std::int16_t nClasse, const Colonna& colonna, int nIniziale, Scelta scelta)
{
    VerificaClasse(nClasse);
    int nScelta = nIniziale;
    bool bScende = false;
    for (int k = 1; k < nClasse; ++k) {
        const int nDistanza = colonna[k + 1] - colonna[k];
        bScende |= nDistanza < 0;
        nScelta = scelta(nScelta, nDistanza);
    }
    if (bScende) {
        Solleva(eErrore::overflow);
    }
    return nScelta;
}

/// Mean of a sum as a double, for either rounding.
double Media(std::int32_t nSomma, std::int16_t nClasse)
{
    if (nClasse == 0) {
        Solleva(eErrore::divisione);
    }
    return static_cast<double>(nSomma) / nClasse;
}

} // namespace

SequenzaParita CreaSequenzaParita(std::int16_t nClasse, const Colonna& colonna)
{
    VerificaClasse(nClasse);
    // All 20 places, so that the compiler makes a few vector operations of it; the tail is masked out.
    SequenzaParita aParita;
    for (std::int16_t k = 1; k <= kNumeriColonna; ++k) {
        aParita[k] = k <= nClasse ? colonna[k] & 1 : 0;
    }
    return aParita;
}

std::int32_t SommaColonna(std::int16_t nClasse, const Colonna& colonna)
{
    return SommaDove(nClasse, colonna, [](int) { return true; });
}

std::int32_t ContaPuntiColonna(std::int16_t nClasse, const Colonna& colonna, const FlagNumeri& aNumeri)
{
    VerificaClasse(nClasse);
    std::int32_t nPunti = 0;
    for (int k = 1; k <= nClasse; ++k) {
        nPunti += aNumeri(colonna[k]) != 0 ? 1 : 0;
    }
    return nPunti;
}

std::int32_t CalcolaPeso(std::int16_t nClasse, const Colonna& colonna, const FlagNumeri& aPosizioni)
{
    return SommaDove(nClasse, colonna, [&aPosizioni](int k) { return aPosizioni[k] != 0; });
}

std::int32_t Resto(std::int32_t nSomma, std::int16_t nParametro)
{
    if (nParametro == 0) {
        Solleva(eErrore::divisione);
    }
    return nSomma % nParametro;
}

std::int32_t CalcolaAmpiezza(std::int16_t nClasse, const Colonna& colonna)
{
    const std::int32_t nAmpiezza = colonna(nClasse) - colonna[1];
    if (nAmpiezza < 0) {
        Solleva(eErrore::overflow);
    }
    return nAmpiezza;
}

std::int32_t CalcolaDistanzaMinima(std::int16_t nClasse, const Colonna& colonna)
{
    constexpr int kNessunaCoppia = 1000;
    return Distanza(nClasse, colonna, kNessunaCoppia, [](int a, int b) { return std::min(a, b); });
}

std::int32_t CalcolaDistanzaMassima(std::int16_t nClasse, const Colonna& colonna)
{
    return Distanza(nClasse, colonna, 0, [](int a, int b) { return std::max(a, b); });
}

std::int32_t CalcolaConsecutivi(std::int16_t nClasse, const Colonna& colonna)
{
    return ContaCoppie(nClasse, colonna, [](int a, int b) { return a + 1 == b; });
}

std::int32_t CalcolaPonte(std::int16_t nClasse, const Colonna& colonna)
{
    return ContaCoppie(nClasse, colonna, [](int a, int b) { return a + 2 == b; });
}

std::int32_t CalcolaInterruzioni(std::int16_t nClasse, const Colonna& colonna)
{
    return ContaCoppie(nClasse, colonna, [](int a, int b) { return a != b - 1; });
}

std::int32_t CalcolaConsecutiviPD(std::int16_t nClasse, const SequenzaParita& aParita)
{
    return ContaCoppie(nClasse, aParita, [](int a, int b) { return a == b; });
}

std::int32_t CalcolaInterruzioniPD(std::int16_t nClasse, const SequenzaParita& aParita)
{
    return ContaCoppie(nClasse, aParita, [](int a, int b) { return a != b; });
}

std::int32_t CalcolaInterruzioniPD(std::int16_t nClasse, const Colonna& colonna)
{
    return CalcolaInterruzioniPD(nClasse, CreaSequenzaParita(nClasse, colonna));
}

std::int32_t CalcolaBaricentro(std::int16_t nClasse, const Colonna& colonna)
{
    return ComeIntero<std::int32_t>(Media(SommaColonna(nClasse, colonna), nClasse));
}

std::int32_t BaricentroInferiore(std::int16_t nClasse, std::int32_t nSomma)
{
    return ComeIntero<std::int32_t>(Pavimento(Media(nSomma, nClasse)));
}

std::int32_t CalcolaGruppiDiConsecutivi(std::int16_t nClasse, const Colonna& colonna, std::int16_t nGruppo,
                                        std::int16_t nPasso)
{
    constexpr int kNessuno = -100; // no number follows it
    VerificaClasse(nClasse);
    std::int16_t nQuanti = 0;
    int nLunghezza = 1;
    int nPrecedente = kNessuno;
    // Without a count k rises by 1, so that only counts can hold it back: their overflow ends any standstill.
    for (int k = 1; k <= nClasse; ++k) {
        const int nNumero = colonna(k);
        if (nNumero - 1 == nPrecedente) {
            ++nLunghezza;
            nPrecedente = nNumero;
            continue;
        }
        nPrecedente = nNumero;
        if (nLunghezza == nGruppo) {
            Aumenta(nQuanti, 1);
            nPrecedente = kNessuno;
            k += nPasso - 2;
        }
        nLunghezza = 1;
    }
    if (nLunghezza == nGruppo) {
        Aumenta(nQuanti, 1);
    }
    return nQuanti;
}

} // namespace ordavel
