// ModOrdina_prova.cpp - the quicksort: sorted, with the order of equal elements that its partition gives.

#include "core/ModOrdina.hpp"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <numeric>
#include <string>

namespace ordavel {
namespace {

/// A key, and the place that the element had at first.
using Elemento = std::pair<int, int>;

bool Davanti(const Elemento& a, const Elemento& b)
{
    return a.first < b.first;
}

std::vector<Elemento> Numerati(const std::vector<int>& aChiavi)
{
    std::vector<Elemento> aElementi;
    for (const int nChiave : aChiavi) {
        aElementi.emplace_back(nChiave, static_cast<int>(aElementi.size()));
    }
    return aElementi;
}

/// The partition written down step by step, places from 1, and both parts sorted by calls.
void OrdinaLetterale(std::vector<Elemento>& a, int nL, int nR)
{
    const int nMedio = (nL + nR) / 2 + 1;
    if (nMedio < 2 || nMedio > static_cast<int>(a.size())) {
        return;
    }
    const auto chiave = [&a](int n) { return a.at(static_cast<std::size_t>(n) - 1).first; };
    const int nPivot = chiave(nMedio);
    int i = nL;
    int j = nR;
    do {
        while (chiave(i) < nPivot) {
            ++i;
        }
        while (chiave(j) > nPivot) {
            --j;
        }
        if (i <= j) {
            std::swap(a.at(static_cast<std::size_t>(i) - 1), a.at(static_cast<std::size_t>(j) - 1));
            ++i;
            --j;
        }
    } while (i <= j);
    if (nL < j) {
        OrdinaLetterale(a, nL, j);
    }
    if (i < nR) {
        OrdinaLetterale(a, i, nR);
    }
}

std::vector<Elemento> Letterale(std::vector<Elemento> aElementi)
{
    OrdinaLetterale(aElementi, 1, static_cast<int>(aElementi.size()));
    return aElementi;
}

std::vector<Elemento> Rapido(std::vector<Elemento> aElementi)
{
    OrdinaRapido(aElementi, Davanti);
    return aElementi;
}

/// Rises to its middle and falls again: the greatest element is the pivot, time after time.
std::vector<int> Canne(int nQuante)
{
    std::vector<int> aChiavi(static_cast<std::size_t>(nQuante));
    std::iota(aChiavi.begin(), aChiavi.begin() + nQuante / 2, 0);
    std::iota(aChiavi.rbegin(), aChiavi.rend() - nQuante / 2, 0);
    return aChiavi;
}

TEST(ModOrdina, SenzaElementiNonFaNulla)
{
    EXPECT_TRUE(Rapido({}).empty());
}

TEST(ModOrdina, UnElementoSoloResta)
{
    EXPECT_EQ(Rapido(Numerati({7})), Numerati({7}));
}

TEST(ModOrdina, DueUgualiSiScambiano)
{
    EXPECT_EQ(Rapido(Numerati({5, 5})), (std::vector<Elemento>{{5, 1}, {5, 0}}));
}

TEST(ModOrdina, GliUgualiPrendonoLOrdineDellaPartizione)
{
    // Worked out by hand: pivot in place 3, two swaps around it, then each half by itself.
    EXPECT_EQ(Rapido(Numerati({1, 1, 1, 1})), (std::vector<Elemento>{{1, 2}, {1, 3}, {1, 0}, {1, 1}}));
    EXPECT_EQ(Rapido(Numerati({2, 1, 2})), (std::vector<Elemento>{{1, 1}, {2, 2}, {2, 0}}));
}

TEST(ModOrdina, OrdinaSoloDaUnPostoAllAltro)
{
    auto aElementi = Numerati({9, 8, 7, 6, 5, 4});
    OrdinaRapido(aElementi, 2, 4, Davanti, [] { return false; });
    EXPECT_EQ(aElementi, (std::vector<Elemento>{{9, 0}, {6, 3}, {7, 2}, {8, 1}, {5, 4}, {4, 5}}));
}

TEST(ModOrdina, UnConfrontoAllaRovesciaDaLOrdineDecrescente)
{
    std::vector<int> aNumeri{3, 1, 2, 5, 4};
    OrdinaRapido(aNumeri, [](int a, int b) { return a > b; });
    EXPECT_EQ(aNumeri, (std::vector<int>{5, 4, 3, 2, 1}));
}

TEST(ModOrdina, FermoDaSubitoCEUnoScambioSolo)
{
    auto aElementi = Numerati({4, 3, 2, 1});
    OrdinaRapido(aElementi, 1, 4, Davanti, [] { return true; });
    EXPECT_EQ(aElementi, (std::vector<Elemento>{{1, 3}, {3, 1}, {2, 2}, {4, 0}}));
}

TEST(ModOrdina, LOrdinePeggioreNonEsaurisceLoStack)
{
    const auto aElementi = Rapido(Numerati(Canne(60000)));
    EXPECT_TRUE(std::is_sorted(aElementi.begin(), aElementi.end(), Davanti));
}

TEST(ModOrdina, LOrdinePeggioreHaGliUgualiAlLoroPosto)
{
    EXPECT_EQ(Rapido(Numerati(Canne(1001))), Letterale(Numerati(Canne(1001))));
}

RC_GTEST_PROP(ModOrdina, OrdinaComeQuellaDiLibreria, ())
{
    auto aNumeri = *rc::gen::arbitrary<std::vector<int>>();
    auto aAttesi = aNumeri;
    std::sort(aAttesi.begin(), aAttesi.end());
    OrdinaRapido(aNumeri, [](int a, int b) { return a < b; });
    RC_ASSERT(aNumeri == aAttesi);
}

RC_GTEST_PROP(ModOrdina, GliUgualiStannoComeDiceLaPartizione, ())
{
    const auto nChiavi = *rc::gen::inRange(1, 8);
    const auto aElementi = Numerati(*rc::gen::container<std::vector<int>>(rc::gen::inRange(0, nChiavi)));
    RC_ASSERT(Rapido(aElementi) == Letterale(aElementi));
}

RC_GTEST_PROP(ModOrdina, DaFermoNonSiPerdeNessuno, ())
{
    const auto aPrima = Numerati(*rc::gen::container<std::vector<int>>(rc::gen::inRange(0, 20)));
    RC_PRE(!aPrima.empty());
    const int nFino = *rc::gen::inRange(1, 50);
    int nChiesto = 0;
    auto aElementi = aPrima;
    OrdinaRapido(aElementi, 1, aElementi.size(), Davanti, [&] { return ++nChiesto >= nFino; });
    RC_ASSERT(nChiesto <= nFino + 8); // at most once more for each call that is still open
    std::sort(aElementi.begin(), aElementi.end(),
              [](const auto& a, const auto& b) { return a.second < b.second; });
    RC_ASSERT(aElementi == aPrima);
}

} // namespace
} // namespace ordavel
