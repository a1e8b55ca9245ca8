// ModGaranzia_prova.cpp - a reduction is checked as a look at every pair would check it.

#include "riduzione/ModGaranzia.hpp"

#include "DefinizioneRiduzione.hpp"
#include "riduzione/ColonneCoprenti.hpp"

#include <rapidcheck/gtest.h>

namespace ordavel {
namespace {

using prove::Byte;
using prove::Colonne;
using prove::Record;

/// What a look at every pair finds.
EsitoGaranzia EsitoAtteso(const Colonne& aColonne, const Colonne& aRidotte, int nPunti)
{
    const std::vector<std::size_t> aScoperte = prove::Scoperte(aColonne, aRidotte, nPunti);
    EsitoGaranzia esito;
    esito.nControllate = std::ssize(aColonne);
    esito.nScoperte = std::ssize(aScoperte);
    if (!aScoperte.empty()) {
        esito.nPrimaScoperta = static_cast<std::int64_t>(aScoperte[0]) + 1;
        esito.primaScoperta = aColonne[aScoperte[0]];
    }
    return esito;
}

class ModGaranzia : public testing::Test {
protected:
    EsitoGaranzia Controlla(const Colonne& aColonne, const Colonne& aRidotte, int nPunti,
                            std::size_t nByte = kByteTabella)
    {
        prove::ScriviNuovo(sFile, Byte(aColonne));
        prove::ScriviNuovo(sRidotto, Byte(aRidotte));
        return ControllaGaranzia(sFile, sRidotto, nPunti, nByte);
    }

    prove::CartellaProva cartella;
    std::string sFile = cartella / "test.col";
    std::string sRidotto = cartella / "ridotto.col";
    prove::AvanzamentoRiduzioneProva avanzamento;
};

TEST_F(ModGaranzia, LaPrimaScopertaHaPostoENumeri)
{
    const Colonne aColonne{Record({1, 2, 3}), Record({1, 2, 4}), Record({5, 6, 7}), Record({8, 9, 10})};
    const EsitoGaranzia esito = Controlla(aColonne, {Record({1, 2, 5})}, 2);
    EXPECT_EQ(esito.nControllate, 4);
    EXPECT_EQ(esito.nScoperte, 2);
    EXPECT_EQ(esito.nPrimaScoperta, 3);
    EXPECT_EQ(esito.primaScoperta, Record({5, 6, 7}));
}

TEST_F(ModGaranzia, QuandoTutteSonoCoperteNonCeNePrima)
{
    EXPECT_EQ(Controlla({Record({1, 2, 3})}, {Record({9, 8, 7}), Record({1, 2, 4})}, 2),
              (EsitoGaranzia{.nControllate = 1, .nScoperte = 0, .nPrimaScoperta = 0, .primaScoperta = {}}));
}

TEST_F(ModGaranzia, ConZeroPuntiBastaUnaRidottaQualunque)
{
    const Colonne aColonne{Record({1, 2, 3}), Record({4, 5, 6})};
    for (const int nPunti : {0, -1, -2147483647 - 1}) {
        EXPECT_EQ(Controlla(aColonne, {Record({})}, nPunti).nScoperte, 0) << nPunti;
        EXPECT_EQ(Controlla(aColonne, {}, nPunti).nScoperte, 2) << nPunti;
        EXPECT_EQ(Controlla(aColonne, {}, nPunti).nPrimaScoperta, 1) << nPunti;
    }
}

TEST_F(ModGaranzia, PiuPuntiDellaClasseNonLiHaNessuna)
{
    for (int nClasse = 1; nClasse <= 20; ++nClasse) {
        const Colonne aColonne = prove::Completo(nClasse, nClasse);
        for (const int nPunti : {nClasse + 1, 11, 21, 2147483647}) {
            EXPECT_EQ(Controlla(aColonne, aColonne, nPunti).nScoperte, nPunti > nClasse ? 1 : 0);
        }
    }
}

TEST_F(ModGaranzia, UnFileVuotoNonHaNullaDiScoperto)
{
    EXPECT_EQ(Controlla({}, {Record({1})}, 1), EsitoGaranzia{});
    EXPECT_EQ(PrimaScoperta({}, {}, 1), std::nullopt);
}

TEST_F(ModGaranzia, LoZeroNonEUnNumero)
{
    const Colonne aColonne{Record({1, 2, 3}), Record({4, 5})};
    EXPECT_EQ(Controlla(aColonne, {Record({1, 2, 3}), Record({4, 6})}, 2).nPrimaScoperta, 2);
}

TEST_F(ModGaranzia, UnNumeroRipetutoConta2VolteNelFileENonNelRidotto)
{
    EXPECT_EQ(Controlla({Record({7, 7, 8})}, {Record({7, 1, 2})}, 2).nScoperte, 0);
    EXPECT_EQ(Controlla({Record({7, 1, 2})}, {Record({7, 7, 8})}, 2).nScoperte, 1);
}

TEST_F(ModGaranzia, INumeriOltre90NonSonoComuniANessuno)
{
    EXPECT_EQ(Controlla({Record({7, 91, 200})}, {Record({7, 91, 200})}, 2).nScoperte, 1);
    EXPECT_EQ(Controlla({Record({7, 7, 200})}, {Record({7, 72, 80})}, 2).nScoperte, 0);
    EXPECT_EQ(Controlla({Record({7, 7, 200})}, {Record({7, 72, 80})}, 3).nScoperte, 1);
}

TEST_F(ModGaranzia, LaClasseArrivaAVentiPosizioni)
{
    const Colonne aColonne = prove::Completo(22, 20);
    EXPECT_EQ(Controlla(aColonne, {aColonne[0]}, 18), EsitoAtteso(aColonne, {aColonne[0]}, 18));
    EXPECT_EQ(Controlla(aColonne, {aColonne[0]}, 19), EsitoAtteso(aColonne, {aColonne[0]}, 19));
    EXPECT_EQ(Controlla(aColonne, {aColonne[0]}, 20).nScoperte, 230);
}

TEST_F(ModGaranzia, SenzaUnFileFallisce)
{
    prove::ScriviFile(sFile, "");
    EXPECT_EQ(prove::NumeroErrore([&] { (void)ControllaGaranzia(sFile, sRidotto, 1); }), 53);
    EXPECT_EQ(prove::NumeroErrore([&] { (void)ControllaGaranzia(sRidotto, sFile, 1); }), 53);
}

TEST_F(ModGaranzia, IlFileNonCambia)
{
    const Colonne aColonne = prove::Completo(8, 4);
    static_cast<void>(Controlla(aColonne, {aColonne[3]}, 2));
    EXPECT_EQ(prove::LeggiFile(sFile), Byte(aColonne));
    EXPECT_EQ(prove::LeggiFile(sRidotto), Byte({aColonne[3]}));
}

TEST_F(ModGaranzia, MoltiBlocchiEMoltePartiComeInMemoria)
{
    std::mt19937 sorte(2);
    const Colonne aColonne = prove::ColonneCasuali(sorte, {.nNumeri = 40, .nClasse = 5, .nQuante = 230000});
    Colonne aRidotte = prove::ColonneCasuali(sorte, {.nNumeri = 40, .nClasse = 5, .nQuante = 1500});
    for (const std::size_t nByte : {std::size_t{30000}, std::size_t{200000}, kByteTabella}) {
        const EsitoGaranzia esito = Controlla(aColonne, aRidotte, 4, nByte);
        const auto prima = PrimaScoperta(aColonne, aRidotte, 4);
        ASSERT_TRUE(prima.has_value());
        EXPECT_EQ(esito.nPrimaScoperta, static_cast<std::int64_t>(*prima) + 1);
        EXPECT_EQ(esito.primaScoperta, aColonne[*prima]);
        EXPECT_EQ(esito.nControllate, 230000);
        EXPECT_EQ(esito, Controlla(aColonne, aRidotte, 4));
        EXPECT_GT(esito.nScoperte, 1000);
        EXPECT_LT(esito.nScoperte, 229000);
    }
}

TEST_F(ModGaranzia, LUltimaDelFileEAncheControllata)
{
    Colonne aColonne(200001, Record({1, 2, 3}));
    aColonne.back() = Record({4, 5, 6});
    EXPECT_EQ(Controlla(aColonne, {Record({1, 2, 3})}, 3).nPrimaScoperta, 200001);
    EXPECT_EQ(PrimaScoperta(aColonne, Colonne{Record({1, 2, 3})}, 3), 200000U);
}

TEST_F(ModGaranzia, LaPercentualeSaleEAllaFineTornaAZero)
{
    std::mt19937 sorte(2);
    prove::ScriviFile(sFile, Byte(Colonne(200001, Record({1, 2, 3}))));
    prove::ScriviFile(sRidotto, Byte(prove::ColonneCasuali(sorte, {.nClasse = 3, .nQuante = 400})));
    static_cast<void>(ControllaGaranzia(sFile, sRidotto, 3, avanzamento));
    EXPECT_EQ(avanzamento.aPercentuali, (std::vector<std::int16_t>{49, 99, 100, 0}));
    EXPECT_EQ(avanzamento.nEventi, 3);
    avanzamento.aPercentuali.clear();
    static_cast<void>(ControllaGaranzia(sFile, sRidotto, 3, avanzamento, 3200)); // masks for 100 at once
    EXPECT_EQ(avanzamento.aPercentuali,
              (std::vector<std::int16_t>{12, 24, 25, 37, 49, 50, 62, 74, 75, 87, 99, 100, 0}));
}

TEST_F(ModGaranzia, MoltiCasiComeOgniCoppia)
{
    for (unsigned nSeme = 1; nSeme <= 1500; ++nSeme) {
        std::mt19937 sorte(nSeme);
        prove::MisturaColonne mistura;
        mistura.nClasse = static_cast<int>(1 + nSeme % 18);
        mistura.nNumeri = std::array{mistura.nClasse + 4, 30, 90}[sorte() % 3];
        mistura.nQuante = 1 + sorte() % 60;
        mistura.nIrregolariSuCento = std::array{0U, 10U, 80U}[sorte() % 3];
        const Colonne aColonne = prove::ColonneCasuali(sorte, mistura);
        mistura.nQuante = sorte() % 40;
        const Colonne aRidotte = prove::ColonneCasuali(sorte, mistura);
        const int nPunti = static_cast<int>(sorte() % static_cast<unsigned>(mistura.nClasse + 2));
        const std::size_t nByte =
            std::array<std::size_t, 6>{0, 64, 500, 4000, 40000, kByteTabella / 32}[sorte() % 6];
        const EsitoGaranzia atteso = EsitoAtteso(aColonne, aRidotte, nPunti);
        ASSERT_EQ(Controlla(aColonne, aRidotte, nPunti, nByte), atteso)
            << "seme " << nSeme << " punti " << nPunti << " byte " << nByte;
        const auto prima = PrimaScoperta(aColonne, aRidotte, nPunti, nByte);
        ASSERT_EQ(prima.has_value(), atteso.nScoperte > 0) << nSeme;
        ASSERT_EQ(prima.value_or(0) + (prima ? 1U : 0U), static_cast<std::size_t>(atteso.nPrimaScoperta));
    }
}

TEST(ColonneCoprenti, LaTabellaServeDoveGliInsiemiSonoPochi)
{
    EXPECT_TRUE(ColonneCoprenti(10, 5, 100, kByteTabella).ATabella());
    EXPECT_FALSE(ColonneCoprenti(12, 6, 100, kByteTabella).ATabella());
    EXPECT_FALSE(ColonneCoprenti(20, 18, 100, kByteTabella).ATabella()); // no ranks
    EXPECT_FALSE(ColonneCoprenti(10, 5, 100, 2000).ATabella());          // not even one column
    EXPECT_TRUE(ColonneCoprenti(10, 11, 100, kByteTabella).ATabella());  // there is nothing to look up
}

} // namespace
} // namespace ordavel
