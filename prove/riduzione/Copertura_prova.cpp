// Copertura_prova.cpp - the three forms of a coverage give the same, whatever the columns.

#include "riduzione/CoperturaFette.hpp"
#include "riduzione/CoperturaSottoinsiemi.hpp"
#include "riduzione/DefinizioneRiduzione.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <numeric>

namespace ordavel {
namespace {

using prove::ColonneCasuali;
using prove::Completo;
using prove::Record;
using testing::ElementsAre;

std::vector<std::int32_t> Iniziali(Copertura& copertura, std::size_t nColonne, std::size_t nPezzo)
{
    std::vector<std::int32_t> aValori(nColonne);
    for (std::size_t nDa = 0; nDa < nColonne; nDa += nPezzo) {
        copertura.ValoriIniziali(nDa, std::span(aValori).subspan(nDa, std::min(nPezzo, nColonne - nDa)));
    }
    return aValori;
}

std::vector<std::int32_t> Valori(Copertura& copertura, std::size_t nColonne)
{
    std::vector<std::int32_t> aValori(nColonne);
    for (std::size_t i = 0; i < nColonne; ++i) {
        aValori[i] = copertura.Valore(i);
    }
    return aValori;
}

std::vector<bool> Coperte(const Copertura& copertura, std::size_t nColonne)
{
    std::vector<bool> aCoperte(nColonne);
    for (std::size_t i = 0; i < nColonne; ++i) {
        aCoperte[i] = copertura.Coperta(i);
    }
    return aCoperte;
}

/// Holds a form against the plain one: values, and what random choices leave, until all is covered.
void Confronta(std::mt19937& caso, Copertura& altra, const ProblemaRiduzione& problema)
{
    const std::size_t nColonne = problema.aColonne.size();
    const auto piana = CreaCopertura(eCopertura::piana, problema);
    ASSERT_EQ(Iniziali(altra, nColonne, 37), Iniziali(*piana, nColonne, nColonne));
    std::vector<std::size_t> aOrdine(nColonne);
    std::iota(aOrdine.begin(), aOrdine.end(), std::size_t{0});
    std::ranges::shuffle(aOrdine, caso);
    aOrdine.resize(std::min<std::size_t>(nColonne, 12));
    for (const std::size_t i : aOrdine) {
        piana->Scegli(i);
        altra.Scegli(i);
        ASSERT_EQ(Coperte(altra, nColonne), Coperte(*piana, nColonne));
        ASSERT_EQ(Valori(altra, nColonne), Valori(*piana, nColonne));
    }
}

void Confronta(std::mt19937& caso, eCopertura forma, const ProblemaRiduzione& problema)
{
    const auto altra = CreaCopertura(forma, problema);
    Confronta(caso, *altra, problema);
}

constexpr std::uint32_t kSeme = 20261121;

void ConfrontaCasuali(eCopertura forma, bool bSporche)
{
    std::mt19937 caso(kSeme);
    int nProvate = 0;
    for (int nGiro = 0; nGiro < 400; ++nGiro) {
        const auto estrai = [&](int nDa, int nA) {
            return std::uniform_int_distribution<int>(nDa, nA)(caso);
        };
        const int nClasse = estrai(1, 10);
        const int nNumeri = estrai(nClasse, std::min(nClasse + 12, 90));
        auto aColonne = ColonneCasuali(caso, {.nNumeri = nNumeri,
                                              .nClasse = nClasse,
                                              .nQuante = static_cast<std::size_t>(estrai(1, 150)),
                                              .nDoppieSuCento = 5});
        if (bSporche) {
            prove::SporcaSenzaRipetere(caso, aColonne, nClasse);
        }
        const ProblemaRiduzione problema{aColonne, static_cast<std::int16_t>(nClasse),
                                         estrai(-1, nClasse + 2)};
        SCOPED_TRACE(testing::Message() << "seme " << kSeme << ", giro " << nGiro << ", classe " << nClasse
                                        << ", punti " << problema.nPunti);
        if (Ammessa(forma, problema)) {
            ++nProvate;
            Confronta(caso, forma, problema);
        }
    }
    EXPECT_GT(nProvate, 200);
}

TEST(Copertura, LeFetteDannoIValoriDellaFormaPiana)
{
    ConfrontaCasuali(eCopertura::fette, false);
}

TEST(Copertura, LeFetteDannoIValoriDellaFormaPianaAncheConNumeriMancantiOAssurdi)
{
    ConfrontaCasuali(eCopertura::fette, true);
}

TEST(Copertura, ISottoinsiemiDannoIValoriDellaFormaPiana)
{
    ConfrontaCasuali(eCopertura::sottoinsiemi, false);
}

TEST(Copertura, ISottoinsiemiDannoIValoriDellaFormaPianaAncheConNumeriMancantiOAssurdi)
{
    ConfrontaCasuali(eCopertura::sottoinsiemi, true);
}

/// More columns than one piece of a row, of which many leave at once: thin rows and crowded ones.
TEST(Copertura, LeFetteContanoOltreUnPezzoRadeOFitte)
{
    std::mt19937 caso(kSeme);
    const auto aColonne = ColonneCasuali(caso, {.nNumeri = 24, .nClasse = 6, .nQuante = 9000});
    for (const std::int32_t nPunti : {1, 2, 4}) {
        SCOPED_TRACE(nPunti);
        const ProblemaRiduzione problema{aColonne, 6, nPunti};
        const auto fette = CreaCopertura(eCopertura::fette, problema);
        const auto insiemi = CreaCopertura(eCopertura::sottoinsiemi, problema);
        EXPECT_EQ(Iniziali(*fette, aColonne.size(), 5000), Iniziali(*insiemi, aColonne.size(), 9000));
        for (const std::size_t i : {std::size_t{8999}, std::size_t{17}, std::size_t{8191}}) {
            fette->Scegli(i);
            insiemi->Scegli(i);
            EXPECT_EQ(Coperte(*fette, aColonne.size()), Coperte(*insiemi, aColonne.size()));
            EXPECT_EQ(Valori(*fette, aColonne.size()), Valori(*insiemi, aColonne.size()));
        }
    }
}

/// What the loops for one instruction set give, so do all that this processor has; classes and points to the limits.
TEST(Copertura, LeFetteDannoLoStessoConOgniNucleoDelProcessore)
{
    std::mt19937 caso(kSeme);
    for (std::uint8_t n = 0; n <= static_cast<std::uint8_t>(NucleoMigliore()); ++n) {
        for (int nClasse = 1; nClasse <= kNumeriColonna; ++nClasse) {
            SCOPED_TRACE(testing::Message() << "nucleo " << int{n} << ", classe " << nClasse);
            const auto aColonne =
                ColonneCasuali(caso, {.nNumeri = nClasse + 6, .nClasse = nClasse, .nQuante = 100});
            for (const std::int32_t nPunti :
                 {0, nClasse / 2, nClasse - 1, nClasse, nClasse + 1, 2147483647}) {
                const ProblemaRiduzione problema{aColonne, static_cast<std::int16_t>(nClasse), nPunti};
                CoperturaFette fette(problema, {}, static_cast<eNucleo>(n));
                Confronta(caso, fette, problema);
            }
        }
    }
}

// Ended before its time.

/// Says false from call nChiamate + 1 on, and counts the calls.
struct Pazienza {
    int nChiamate = 0;
    int nFatte = 0;

    [[nodiscard]] Continua Chiesta()
    {
        return [this] { return nFatte++ < nChiamate; };
    }
};

TEST(Copertura, LeFetteChiedonoSpessoSeContinuareETengonoLeCoperteDaFermate)
{
    std::mt19937 caso(kSeme);
    const auto aColonne = ColonneCasuali(caso, {.nNumeri = 24, .nClasse = 6, .nQuante = 9000});
    const ProblemaRiduzione problema{aColonne, 6, 2};
    const auto intera = CreaCopertura(eCopertura::fette, problema);
    intera->Scegli(17);
    Pazienza pazienza{.nChiamate = 1000000};
    CreaCopertura(eCopertura::fette, problema, pazienza.Chiesta())->Scegli(17);
    const int nChieste = pazienza.nFatte;
    EXPECT_GE(nChieste,
              2 * 3000 / 255); // at least three thousand columns go or stay, over two pieces of rows
    for (const int nChiamate : {0, 1, nChieste / 2}) {
        pazienza = {.nChiamate = nChiamate};
        const auto fermata = CreaCopertura(eCopertura::fette, problema, pazienza.Chiesta());
        fermata->Scegli(17);
        EXPECT_EQ(pazienza.nFatte, nChiamate + 1);
        EXPECT_EQ(Coperte(*fermata, aColonne.size()), Coperte(*intera, aColonne.size()));
    }
}

TEST(Copertura, IValoriInizialiDelleFetteSiFermanoTraUnPezzoELAltro)
{
    std::mt19937 caso(kSeme);
    const auto aColonne = ColonneCasuali(caso, {.nNumeri = 24, .nClasse = 6, .nQuante = 9000});
    Pazienza pazienza{.nChiamate = 1};
    const auto fette = CreaCopertura(eCopertura::fette, {aColonne, 6, 2}, pazienza.Chiesta());
    Iniziali(*fette, aColonne.size(), aColonne.size());
    EXPECT_EQ(pazienza.nFatte, 2);
}

TEST(Copertura, ISottoinsiemiNonSiCercanoOltreLaFine)
{
    std::mt19937 caso(kSeme);
    const auto aColonne = ColonneCasuali(caso, {.nNumeri = 30, .nClasse = 6, .nQuante = 9000});
    const ProblemaRiduzione problema{aColonne, 6, 4};
    Pazienza pazienza{.nChiamate = 1000000};
    EXPECT_TRUE(InsiemiCondivisi(problema, pazienza.Chiesta()).Completi());
    const int nChieste = pazienza.nFatte;
    EXPECT_GE(nChieste, (3 + 1 + 1) * 9000 / 4096); // tables of sets of 4, 5 and 6, and lists both ways
    for (int nChiamate = 0; nChiamate < nChieste; ++nChiamate) {
        pazienza = {.nChiamate = nChiamate};
        const InsiemiCondivisi insiemi(problema, pazienza.Chiesta());
        EXPECT_FALSE(insiemi.Completi());
        EXPECT_EQ(pazienza.nFatte, nChiamate + 1);
        pazienza = {.nChiamate = nChiamate};
        const CoperturaSottoinsiemi copertura(problema, pazienza.Chiesta());
        EXPECT_FALSE(copertura.Coperta(8999));
    }
}

/// Sets of 7 out of 90 numbers have more ranks than a table of their own would hold.
TEST(Copertura, ISottoinsiemiSiCercanoAncheSenzaUnPostoPerOgniRango)
{
    std::mt19937 caso(kSeme);
    auto aColonne = ColonneCasuali(caso, {.nNumeri = 80, .nClasse = 8, .nQuante = 150});
    for (int i = 0; i < 150; ++i) {
        aColonne.push_back(aColonne[static_cast<std::size_t>(i)]);
        aColonne.back()[1 + i % 8] = static_cast<std::uint8_t>(81 + i % 10);
    }
    for (const std::int32_t nPunti : {7, 8}) {
        Confronta(caso, eCopertura::sottoinsiemi, {aColonne, 8, nPunti});
    }
}

TEST(Copertura, UnNumeroRipetutoContaDueVolteSoloNellAltraColonna)
{
    const auto aColonne = std::vector<Colonna>{Record({5, 5, 7}), Record({5, 6, 7})};
    const ProblemaRiduzione problema{aColonne, 3, 3};
    EXPECT_FALSE(SenzaRipetizioni(aColonne, 3));
    EXPECT_FALSE(Ammessa(eCopertura::fette, problema));
    EXPECT_FALSE(Ammessa(eCopertura::sottoinsiemi, problema));
    EXPECT_EQ(FormaMigliore(problema), eCopertura::piana);
    const auto piana = CreaCopertura(eCopertura::piana, problema);
    EXPECT_THAT(Iniziali(*piana, 2, 2), ElementsAre(0, 1));
}

TEST(Copertura, ZeriENumeriOltreNovantaRipetutiNonContano)
{
    EXPECT_TRUE(SenzaRipetizioni(std::vector<Colonna>{Record({0, 0, 7}), Record({91, 91, 255})}, 3));
    EXPECT_TRUE(SenzaRipetizioni(std::vector<Colonna>{Record({1, 2, 3, 3})}, 3));
}

TEST(Copertura, ColonneFitteDiPocheClassiVannoAlleFetteMolteAiSottoinsiemi)
{
    EXPECT_EQ(FormaMigliore({Completo(10, 5), 5, 3}), eCopertura::fette);
    std::mt19937 caso(kSeme);
    const auto aMolte = ColonneCasuali(caso, {.nNumeri = 30, .nClasse = 5, .nQuante = 60000});
    EXPECT_EQ(FormaMigliore({aMolte, 5, 4}), eCopertura::sottoinsiemi);
    EXPECT_EQ(FormaMigliore({aMolte, 5, 0}), eCopertura::fette);
    EXPECT_EQ(FormaMigliore({aMolte, 5, 6}), eCopertura::fette);
}

} // namespace
} // namespace ordavel
