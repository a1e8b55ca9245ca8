// ConfrontoPiano_prova.cpp - the plain form, with what waits and what stands in the file.

#include "riduzione/ConfrontoPiano.hpp"

#include "DefinizioneRiduzione.hpp"

#include <gtest/gtest.h>

namespace ordavel {
namespace {

using prove::Byte;
using prove::Colonne;
using prove::Record;

TEST(ConfrontoPiano, ConBufferEBlocchiDiOgniLunghezzaComeLaDefinizione)
{
    const prove::CartellaProva cartella;
    std::mt19937 sorte(5);
    for (int nGiro = 0; nGiro < 60; ++nGiro) {
        const Colonne aColonne = prove::ColonneCasuali(
            sorte, {.nNumeri = 20, .nClasse = 4, .nQuante = 120, .nIrregolariSuCento = 20});
        const std::int16_t nClasse = prove::UltimaPosizione(aColonne.front(), kClasseMassima);
        const std::string sFile = cartella / ("ridotto" + std::to_string(nGiro));
        FileBinario file(sFile, eApertura::scrittura);
        ColonneRidotte ridotte(file, 1 + sorte() % 9);
        ConfrontoPiano confronto(ridotte, nClasse, nClasse - 1, 1 + sorte() % 9);
        for (const Colonna& colonna : aColonne) {
            confronto.ConfrontaColonnaRidotta(colonna);
        }
        ridotte.ScriviResto();
        file.Chiudi();
        ASSERT_EQ(prove::LeggiFile(sFile), Byte(prove::RiduciInFila(aColonne, 1))) << nGiro;
    }
}

/// 250000 columns kept: 50000 wait, two whole blocks stand in the file. Each of the first and last places is found, in
/// the buffer, in both blocks.
TEST(ConfrontoPiano, TrovaCiascunaDi250000Tenute)
{
    const prove::CartellaProva cartella;
    FileBinario file(cartella / "ridotto.col", eApertura::scrittura);
    ColonneRidotte ridotte(file);
    const Colonne aColonne = prove::Completo(52, 4);
    constexpr std::size_t kTenute = 250000;
    for (std::size_t i = 0; i < kTenute; ++i) {
        ridotte.Tieni(aColonne[i]);
    }
    EXPECT_EQ(ridotte.Scritte(), 200000);
    ConfrontoPiano confronto(ridotte, 4, 4);
    for (const std::size_t i : {0U, 1U, 49999U, 50000U, 99999U, 100000U, 199999U, 200000U, 249999U}) {
        confronto.ConfrontaColonnaRidotta(aColonne[i]);
        EXPECT_EQ(ridotte.Quante(), 250000) << i;
    }
    confronto.ConfrontaColonnaRidotta(aColonne[kTenute]);
    EXPECT_EQ(ridotte.Quante(), 250001);
}

/// As above with a file that is no multiple of a block: the one read last is shorter.
TEST(ConfrontoPiano, LUltimoBloccoLettoEPiuCorto)
{
    const prove::CartellaProva cartella;
    FileBinario file(cartella / "ridotto.col", eApertura::scrittura);
    ColonneRidotte ridotte(file);
    const Colonne aColonne = prove::Completo(52, 4);
    for (std::size_t i = 0; i < 130001; ++i) {
        ridotte.Tieni(aColonne[i]);
    }
    ridotte.ScriviResto();
    ConfrontoPiano confronto(ridotte, 4, 4);
    for (const std::size_t i : {0U, 30000U, 30001U, 130000U}) {
        confronto.ConfrontaColonnaRidotta(aColonne[i]);
        EXPECT_EQ(ridotte.Quante(), 130001) << i;
    }
    confronto.ConfrontaColonnaRidotta(aColonne[130001]);
    ridotte.ScriviResto();
    file.Chiudi();
    EXPECT_TRUE(prove::LeggiFile(cartella / "ridotto.col") ==
                Byte(Colonne(aColonne.begin(), aColonne.begin() + 130002)));
}

} // namespace
} // namespace ordavel
