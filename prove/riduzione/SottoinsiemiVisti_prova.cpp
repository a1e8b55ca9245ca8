// SottoinsiemiVisti_prova.cpp - the table holds the sets that were put in, and no others.

#include "riduzione/SottoinsiemiVisti.hpp"

#include "DefinizioneRiduzione.hpp"
#include "riduzione/PostiColonna.hpp"

#include <gtest/gtest.h>

#include <set>

namespace ordavel {
namespace {

using Posti = std::vector<std::uint8_t>;

constexpr std::uint64_t kTanti = std::uint64_t{1} << 40U;

Posti PostiCasuali(std::mt19937& sorte, std::size_t nPosti)
{
    std::set<std::uint8_t> posti;
    while (posti.size() < nPosti) {
        posti.insert(static_cast<std::uint8_t>(sorte() % kPosti));
    }
    return {posti.begin(), posti.end()};
}

/// Puts columns in as long as there is room and asks for others, beside a plain set of ranks.
void Confronta(SottoinsiemiVisti& visti, std::size_t nGrandezza, std::size_t nPosti)
{
    std::mt19937 sorte(static_cast<unsigned>(nGrandezza * 100 + nPosti));
    std::set<std::uint64_t> ranghi;
    for (int i = 0; i < 300; ++i) {
        const Posti aPosti = PostiCasuali(sorte, nPosti);
        bool bAttesa = false;
        PerOgniSottoinsieme(aPosti, nGrandezza,
                            [&](std::uint64_t n) { bAttesa = bAttesa || ranghi.contains(n); });
        ASSERT_EQ(visti.Contiene(aPosti), bAttesa) << nGrandezza << " di " << nPosti << ", " << i;
        if (sorte() % 4 != 0 && visti.Aggiungi(aPosti)) {
            PerOgniSottoinsieme(aPosti, nGrandezza, [&](std::uint64_t n) { ranghi.insert(n); });
        }
    }
}

TEST(SottoinsiemiVisti, ABitOARanghiDiceLoStesso)
{
    for (std::size_t nGrandezza = 0; nGrandezza <= kSottoinsiemeMassimo; ++nGrandezza) {
        for (const std::size_t nPosti : {nGrandezza, nGrandezza + 1, nGrandezza + 2}) {
            for (const std::size_t nByte : {0U, 8U, 400U, 4000U, 8000000U}) {
                SottoinsiemiVisti visti(nGrandezza, 4096, nByte);
                Confronta(visti, nGrandezza, nPosti);
                visti.Svuota();
                Confronta(visti, nGrandezza, nPosti);
            }
        }
    }
    SottoinsiemiVisti visti(5, kTanti, kByteTabella);
    EXPECT_TRUE(visti.ABit());
    Confronta(visti, 5, 6);
}

TEST(SottoinsiemiVisti, LaFormaSiScegliePerMemoriaEPerLavoro)
{
    EXPECT_TRUE(SottoinsiemiVisti(4, 1, kByteTabella).ABit());      // 320 KB: always
    EXPECT_FALSE(SottoinsiemiVisti(4, 1, 100000).ABit());           // more than there is
    EXPECT_FALSE(SottoinsiemiVisti(5, 1000, kByteTabella).ABit());  // 6 MB for a small job
    EXPECT_TRUE(SottoinsiemiVisti(5, kTanti, kByteTabella).ABit()); // 6 MB for a large one
    EXPECT_TRUE(SottoinsiemiVisti(6, kTanti, kByteTabella).ABit());
    EXPECT_FALSE(SottoinsiemiVisti(7, kTanti, kByteTabella).ABit()); // 1 GB
}

TEST(SottoinsiemiVisti, UnaTabellaDiRanghiTieneQuantoLeServeEPoiLoDice)
{
    SottoinsiemiVisti visti(7, 20, kByteTabella);
    std::mt19937 sorte(1);
    for (int i = 0; i < 20; ++i) {
        EXPECT_TRUE(visti.Aggiungi(PostiCasuali(sorte, 7))) << i;
    }
    const Posti aAltri = PostiCasuali(sorte, 7);
    EXPECT_FALSE(visti.Aggiungi(aAltri));
    EXPECT_FALSE(visti.Contiene(aAltri));
    visti.Svuota();
    EXPECT_TRUE(visti.Aggiungi(aAltri));
    EXPECT_TRUE(visti.Contiene(aAltri));
}

TEST(SottoinsiemiVisti, GliInsiemiGiaPresentiNonPrendonoPosto)
{
    SottoinsiemiVisti visti(7, 16, kByteTabella);
    const Posti aPosti{1, 2, 3, 4, 5, 6, 7, 8};
    for (int i = 0; i < 5; ++i) {
        EXPECT_TRUE(visti.Aggiungi(aPosti)) << i;
    }
    EXPECT_TRUE(visti.Aggiungi(Posti{11, 12, 13, 14, 15, 16, 17, 18}));
    EXPECT_FALSE(visti.Aggiungi(Posti{21, 22, 23, 24, 25, 26, 27, 28}));
}

TEST(SottoinsiemiVisti, BastaDiceSeUnaColonnaCiSta)
{
    EXPECT_TRUE(SottoinsiemiVisti(4, 0, kByteTabella).Basta(20));
    EXPECT_TRUE(SottoinsiemiVisti(1, 1, kByteTabella).Basta(10));
    EXPECT_FALSE(SottoinsiemiVisti(2, 1000, 8).Basta(2));
    EXPECT_FALSE(SottoinsiemiVisti(2, 1000, 32).Basta(4));
    EXPECT_TRUE(SottoinsiemiVisti(2, 1000, 72).Basta(4));
    EXPECT_TRUE(SottoinsiemiVisti(2, 1000, 8).Basta(1));
}

TEST(SottoinsiemiVisti, InsiemiSenzaRangoNonCiSonoMai)
{
    SottoinsiemiVisti visti(11, kTanti, kByteTabella);
    Posti aPosti(20);
    std::iota(aPosti.begin(), aPosti.end(), std::uint8_t{1});
    EXPECT_TRUE(visti.Basta(20));
    EXPECT_TRUE(visti.Aggiungi(aPosti));
    EXPECT_FALSE(visti.Contiene(aPosti));
}

TEST(PostiColonna, INumeriDiversiInOrdine)
{
    const auto In = [](std::initializer_list<int> aNumeri, std::uint8_t nPrimo, std::int16_t nClasse) {
        const Colonna colonna = prove::Record(aNumeri);
        const PostiColonna posti(colonna, nPrimo, nClasse);
        std::vector<int> aPosti(posti.Posti().begin(), posti.Posti().end());
        aPosti.push_back(posti.Ripetuti() ? 1 : 0);
        return aPosti;
    };
    using V = std::vector<int>;
    EXPECT_EQ(In({1, 2, 90}, 1, 3), (V{1, 2, 90, 0}));
    EXPECT_EQ(In({1, 2, 90, 90}, 1, 3), (V{1, 2, 90, 0}));
    EXPECT_EQ(In({90, 2, 1}, 1, 3), (V{1, 2, 90, 0}));
    EXPECT_EQ(In({1, 2, 91}, 1, 3), (V{1, 2, 0}));
    EXPECT_EQ(In({1, 91, 91}, 1, 3), (V{1, 0}));
    EXPECT_EQ(In({1, 2, 2}, 1, 3), (V{1, 2, 1}));
    EXPECT_EQ(In({0, 1, 2}, 0, 3), (V{0, 1, 2, 0}));
    EXPECT_EQ(In({0, 1, 2}, 1, 3), (V{1, 2, 0}));
    EXPECT_EQ(In({0, 0, 2}, 0, 3), (V{0, 2, 1}));
    EXPECT_EQ(In({0, 0, 2}, 1, 3), (V{2, 0}));
    EXPECT_EQ(In({5}, 1, 0), (V{0}));
}

} // namespace
} // namespace ordavel
