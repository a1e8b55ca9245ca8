// ModCifre.cpp - metrics by digit.

#include "calcoli/ModCifre.hpp"

#include "calcoli/ModForma.hpp"
#include "core/ModNumeri.hpp"
#include "core/ModTabelle.hpp"

#include <algorithm>
#include <array>

namespace ordavel {

namespace {

/// What every byte adds to a sum: a column read from a file may hold any of them.
using TabellaAddendi = std::array<std::uint8_t, 256>;

template <typename Addendo> constexpr TabellaAddendi Tabula(Addendo addendo)
{
    TabellaAddendi aAddendi{};
    for (std::size_t n = 0; n < aAddendi.size(); ++n) {
        aAddendi[n] = addendo(static_cast<std::uint8_t>(n));
    }
    return aAddendi;
}

constexpr bool Numeretto(std::uint8_t nNumero)
{
    return nNumero < 10;
}

constexpr std::uint8_t AddendoNumeretto(std::uint8_t nNumero)
{
    return Numeretto(nNumero) ? nNumero : std::uint8_t{0};
}

constexpr std::uint8_t AddendoComplessivo(std::uint8_t nNumero)
{
    const int nSomma = nNumero + Decina(nNumero) + Cadenza(nNumero) + Figura(nNumero);
    return Numeretto(nNumero) ? static_cast<std::uint8_t>(nSomma) : std::uint8_t{0};
}

constexpr TabellaAddendi kAddendiCadenze = Tabula(Cadenza);
constexpr TabellaAddendi kAddendiDecine = Tabula(Decina);
constexpr TabellaAddendi kAddendiFigure = Tabula(Figura);
constexpr TabellaAddendi kAddendiNumeretti = Tabula(AddendoNumeretto);
constexpr TabellaAddendi kAddendiComplessivi = Tabula(AddendoComplessivo);

/// Sum of what the numbers at flagged positions add.
std::int32_t SommaPosizioni(std::int16_t nClasse, const Colonna& colonna, const FlagNumeri& aPosizioni,
                            const TabellaAddendi& aAddendi)
{
    VerificaClasse(nClasse);
    std::int32_t nSomma = 0;
    for (int k = 1; k <= nClasse; ++k) {
        nSomma += aPosizioni[k] != 0 ? aAddendi[colonna[k]] : 0;
    }
    return nSomma;
}

/// Size of the fullest class of a table.
std::int32_t ClassePiuPiena(std::int16_t nClasse, const Colonna& colonna, const TabellaNumeri& aClassi)
{
    VerificaClasse(nClasse);
    std::array<std::uint8_t, 10> aQuanti{};
    std::uint8_t nMassimo = 0;
    for (int k = 1; k <= nClasse; ++k) {
        nMassimo = std::max(nMassimo, ++aQuanti[aClassi(colonna[k])]);
    }
    return nMassimo;
}

int Colpi(std::int16_t nClasse, const Colonna& colonna, const RigaEmulatore& aRiga)
{
    int nColpi = 0;
    for (int k = 1; k <= nClasse; ++k) {
        nColpi += aRiga[colonna[k]] != 0 ? 1 : 0;
    }
    return nColpi;
}

} // namespace

std::int32_t CalcolaCadenze(std::int16_t nClasse, const Colonna& colonna)
{
    return ClassePiuPiena(nClasse, colonna, kTabelle.TabCadenze);
}

std::int32_t CalcolaDecine(std::int16_t nClasse, const Colonna& colonna)
{
    return ClassePiuPiena(nClasse, colonna, kTabelle.TabDecine);
}

std::int32_t CalcolaFigure(std::int16_t nClasse, const Colonna& colonna)
{
    return ClassePiuPiena(nClasse, colonna, kTabelle.TabFigure);
}

ContatoriFormule CalcolaFormule(std::int16_t nClasse, const Colonna& colonna)
{
    VerificaClasse(nClasse);
    ContatoriFormule aQuanti;
    for (int k = 1; k <= nClasse; ++k) {
        ++aQuanti[kTabelle.TabFormule(colonna[k])];
    }
    return aQuanti;
}

std::int32_t CalcolaSommaCadenze(std::int16_t nClasse, const Colonna& colonna, const FlagNumeri& aPosizioni)
{
    return SommaPosizioni(nClasse, colonna, aPosizioni, kAddendiCadenze);
}

std::int32_t CalcolaSommaDecine(std::int16_t nClasse, const Colonna& colonna, const FlagNumeri& aPosizioni)
{
    return SommaPosizioni(nClasse, colonna, aPosizioni, kAddendiDecine);
}

std::int32_t CalcolaSommaFigure(std::int16_t nClasse, const Colonna& colonna, const FlagNumeri& aPosizioni)
{
    return SommaPosizioni(nClasse, colonna, aPosizioni, kAddendiFigure);
}

std::int32_t CalcolaSommaNumeretti(std::int16_t nClasse, const Colonna& colonna, const FlagNumeri& aPosizioni)
{
    return SommaPosizioni(nClasse, colonna, aPosizioni, kAddendiNumeretti);
}

std::int32_t CalcolaSommaComplessiva(std::int16_t nClasse, const Colonna& colonna,
                                     const FlagNumeri& aPosizioni)
{
    return SommaPosizioni(nClasse, colonna, aPosizioni, kAddendiComplessivi);
}

void VerificaNumeri(std::int16_t nClasse, const Colonna& colonna)
{
    for (int k = 1; k <= nClasse; ++k) {
        if (colonna[k] > kNumeroMassimo) {
            Solleva(eErrore::indice);
        }
    }
}

ContatoriEmulatore CalcolaEmulatore(std::int16_t nClasse, const Colonna& colonna,
                                    std::span<const RigaEmulatore> aEmulatore)
{
    VerificaClasse(nClasse);
    if (!aEmulatore.empty()) {
        VerificaNumeri(nClasse, colonna);
    }
    ContatoriEmulatore aContatori;
    for (const RigaEmulatore& aRiga : aEmulatore) {
        Aumenta(aContatori[Colpi(nClasse, colonna, aRiga)], 1);
    }
    return aContatori;
}

} // namespace ordavel
