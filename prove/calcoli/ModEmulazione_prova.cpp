// ModEmulazione_prova.cpp - the sets of draws say what the draws say one by one.

#include "calcoli/ModEmulazione.hpp"

#include "comune/ColonneProva.hpp"
#include "comune/Fallimenti.hpp"

#include <rapidcheck/gtest.h>

#include <random>

namespace ordavel {
namespace {

/// Draws of any bytes: some numbers drawn, written as any byte but 0.
std::vector<RigaEmulatore> EstrazioniCasuali(std::mt19937& sorte, std::size_t nRighe)
{
    std::vector<RigaEmulatore> aRighe(nRighe);
    for (RigaEmulatore& aRiga : aRighe) {
        for (std::uint8_t& nByte : aRiga.aElementi) {
            nByte = static_cast<std::uint8_t>(sorte() % 4 == 0 ? 1 + sorte() % 255 : 0);
        }
    }
    return aRighe;
}

Colonna ColonnaCasuale(std::mt19937& sorte)
{
    Colonna colonna;
    for (std::uint8_t& nNumero : colonna.aNumeri) {
        nNumero = static_cast<std::uint8_t>(sorte() % 91);
    }
    return colonna;
}

RC_GTEST_PROP(ModEmulazione, GliInsiemiDiconoQuelloCheDiconoLeRighe, ())
{
    std::mt19937 sorte(*rc::gen::arbitrary<std::uint32_t>());
    const auto nRighe = *rc::gen::inRange<std::size_t>(0, 1200);
    const std::vector<RigaEmulatore> aRighe = EstrazioniCasuali(sorte, nRighe);
    const RigheEmulatore insiemi(aRighe);
    for (std::int16_t nClasse = -1; nClasse <= kNumeriColonna; ++nClasse) {
        const Colonna colonna = ColonnaCasuale(sorte);
        RC_ASSERT(CalcolaEmulatore(nClasse, colonna, insiemi) == CalcolaEmulatore(nClasse, colonna, aRighe));
    }
}

TEST(ModEmulazione, OgniNucleoDelProcessoreContaLoStesso)
{
    std::mt19937 sorte(2);
    const std::vector<RigaEmulatore> aRighe = EstrazioniCasuali(sorte, 700);
    const RigheEmulatore insiemi(aRighe);
    for (std::int16_t nClasse = 0; nClasse <= kNumeriColonna; ++nClasse) {
        const Colonna colonna = ColonnaCasuale(sorte);
        const ContatoriEmulatore aAttesi = CalcolaEmulatore(nClasse, colonna, aRighe);
        for (std::uint8_t n = 0; n <= static_cast<std::uint8_t>(NucleoMigliore()); ++n) {
            EXPECT_EQ(CalcolaEmulatore(nClasse, colonna, insiemi, static_cast<eNucleo>(n)), aAttesi)
                << "nucleo " << int{n} << ", classe " << nClasse;
        }
    }
}

TEST(ModEmulazione, OgniQuantitaDiRigheAiConfiniDelleParole)
{
    std::mt19937 sorte(1);
    for (const std::size_t nRighe : {0U, 1U, 63U, 64U, 65U, 500U, 511U, 512U, 513U, 1024U}) {
        const std::vector<RigaEmulatore> aRighe = EstrazioniCasuali(sorte, nRighe);
        const Colonna colonna = ColonnaCasuale(sorte);
        EXPECT_EQ(CalcolaEmulatore(10, colonna, RigheEmulatore(aRighe)),
                  CalcolaEmulatore(10, colonna, aRighe))
            << nRighe;
    }
}

TEST(ModEmulazione, TreEstrazioniELaColonnaUnoCinque)
{
    std::vector<RigaEmulatore> aRighe(3);
    aRighe[0](1) = aRighe[0](2) = aRighe[0](3) = 1;
    aRighe[1](4) = aRighe[1](5) = aRighe[1](6) = 1;
    aRighe[2](1) = aRighe[2](5) = aRighe[2](7) = 1;
    ContatoriEmulatore aAttesi;
    aAttesi(1) = 2;
    aAttesi(2) = 1;
    EXPECT_EQ(CalcolaEmulatore(2, prove::ColonnaDi({1, 5}).colonna, RigheEmulatore(aRighe)), aAttesi);
}

TEST(ModEmulazione, OgniClassePuoEssereColpitaPerIntero)
{
    std::vector<RigaEmulatore> aRighe(1);
    aRighe[0].aElementi.fill(1);
    const RigheEmulatore insiemi(aRighe);
    Colonna colonna;
    for (std::int16_t n = 1; n <= kNumeriColonna; ++n) {
        colonna[n] = static_cast<std::uint8_t>(n);
    }
    for (std::int16_t nClasse = 0; nClasse <= kNumeriColonna; ++nClasse) {
        ContatoriEmulatore aAttesi;
        aAttesi(nClasse) = 1;
        EXPECT_EQ(CalcolaEmulatore(nClasse, colonna, insiemi), aAttesi) << nClasse;
    }
}

TEST(ModEmulazione, UnNumeroDueVolteColpisceDueVolte)
{
    std::vector<RigaEmulatore> aRighe(1);
    aRighe[0](7) = 1;
    Colonna colonna;
    colonna.aNumeri.fill(7);
    EXPECT_EQ(CalcolaEmulatore(20, colonna, RigheEmulatore(aRighe))(20), 1);
}

TEST(ModEmulazione, SenzaEstrazioniCaricateCEUnaRigaSenzaColpi)
{
    Colonna colonna;
    colonna.aNumeri.fill(90);
    EXPECT_EQ(CalcolaEmulatore(5, colonna, RigheEmulatore())(0), 1);
}

TEST(ModEmulazione, FallisceDoveFallisconoLeRighe)
{
    Colonna colonna;
    colonna.aNumeri[4] = 91;
    EXPECT_EQ(prove::NumeroErrore([&] { (void)CalcolaEmulatore(5, colonna, RigheEmulatore()); }), 9);
    EXPECT_EQ(prove::NumeroErrore([&] { (void)CalcolaEmulatore(4, colonna, RigheEmulatore()); }),
              std::nullopt);
    EXPECT_EQ(prove::NumeroErrore([&] { (void)CalcolaEmulatore(21, Colonna{}, RigheEmulatore()); }), 9);
    const RigheEmulatore tante(std::vector<RigaEmulatore>(32768));
    EXPECT_EQ(prove::NumeroErrore([&] { (void)CalcolaEmulatore(2, Colonna{}, tante); }), 6);
    const RigheEmulatore nessuna(std::vector<RigaEmulatore>{});
    EXPECT_EQ(CalcolaEmulatore(5, colonna, nessuna), ContatoriEmulatore{});
}

} // namespace
} // namespace ordavel
