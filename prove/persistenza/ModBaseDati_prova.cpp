// ModBaseDati_prova.cpp - the draw archives of the five games.

#include "persistenza/ModBaseDati.hpp"

#include "comune/CartellaProva.hpp"
#include "core/FileBinario.hpp"

#include <gtest/gtest.h>

#include <string>

namespace ordavel {
namespace {

using prove::CartellaProva;
using prove::LeggiFile;
using prove::ScriviFile;

TracciatoEstrazione Tracciato(std::string_view sGioco)
{
    return TracciatoDi(*TrovaGioco(sGioco));
}

/// An archive of records whose bytes count up, record after record.
std::string ByteCrescenti(std::int32_t nEstrazioni, const TracciatoEstrazione& tracciato)
{
    std::string sByte;
    for (std::int32_t i = 0; i < nEstrazioni * tracciato.nByte; ++i) {
        sByte += static_cast<char>(i % 91);
    }
    return sByte;
}

TEST(ModBaseDati, OgniGiocoHaIlSuoTracciato)
{
    const auto lotto = Tracciato("Lotto");
    EXPECT_EQ(lotto.nByte, 67);
    EXPECT_EQ(lotto.nPrimo, 12);
    EXPECT_EQ(lotto.nNumeri, 55);
    EXPECT_EQ(Tracciato("10ELotto").nByte, 32);
    EXPECT_EQ(Tracciato("10ELotto5M").nNumeri, 20);
    EXPECT_EQ(Tracciato("SuperEnalotto").nByte, 18);
    EXPECT_EQ(Tracciato("SuperEnalotto").nNumeri, 6);
    const auto win = Tracciato("WinForLife");
    EXPECT_EQ(win.nByte, 28);
    EXPECT_EQ(win.nPrimo, 17);
    EXPECT_EQ(win.nNumeri, 10);
}

TEST(ModBaseDati, SeicentosettantaByteSonoDieciEstrazioniEDallaSestaSiLeggeDal336)
{
    const CartellaProva cartella;
    const auto tracciato = Tracciato("Lotto");
    ScriviFile(cartella / "a", ByteCrescenti(10, tracciato));
    EXPECT_EQ(ContaEstrazioni(tracciato, cartella / "a"), 10.0);
    EXPECT_EQ(PosizioneEstrazione(tracciato, 6), 336);
    Estrazioni estrazioni;
    ASSERT_TRUE(LeggiEstrazioni(tracciato, 6, 10, estrazioni, cartella / "a"));
    ASSERT_EQ(estrazioni.aEstrazioni.size(), std::size_t{5});
    EXPECT_EQ(estrazioni.nPrima, 6);
    EXPECT_EQ(estrazioni.aEstrazioni[0][0], (335 + 12) % 91);
    EXPECT_EQ(estrazioni.aEstrazioni[4][54], (669) % 91);
}

TEST(ModBaseDati, IlNumeroJDellaRuotaWStaA12PiuCinqueVolteWMenoUnoPiuJMenoUno)
{
    const CartellaProva cartella;
    const auto tracciato = Tracciato("Lotto");
    ScriviFile(cartella / "a", ByteCrescenti(2, tracciato));
    Estrazioni estrazioni;
    ASSERT_TRUE(LeggiEstrazioni(tracciato, 2, 2, estrazioni, cartella / "a"));
    for (std::size_t w = 1; w <= 11; ++w) {
        for (std::size_t j = 1; j <= 5; ++j) {
            const std::size_t nByte = 67 + 12 + (w - 1) * 5 + (j - 1);
            EXPECT_EQ(estrazioni.aEstrazioni[0][(w - 1) * 5 + (j - 1)], nByte % 91) << w << ' ' << j;
        }
    }
}

TEST(ModBaseDati, IDieciNumeriDiWinForLifeStannoDietroIlTesto)
{
    const CartellaProva cartella;
    const auto tracciato = Tracciato("WinForLife");
    ScriviFile(cartella / "a", ByteCrescenti(2, tracciato));
    Estrazioni estrazioni;
    ASSERT_TRUE(LeggiEstrazioni(tracciato, 2, 2, estrazioni, cartella / "a"));
    EXPECT_EQ(estrazioni.aEstrazioni[0][0], 28 + 17);
    EXPECT_EQ(estrazioni.aEstrazioni[0][9], 28 + 26);
    EXPECT_EQ(estrazioni.aEstrazioni[0][10], 0) << "the last byte is no number";
}

TEST(ModBaseDati, OgniEstrazioneHaLaSuaPosizione)
{
    EXPECT_EQ(PosizioneEstrazione(Tracciato("WinForLife"), 1), 1);
    EXPECT_EQ(PosizioneEstrazione(Tracciato("WinForLife"), 3), 57);
    EXPECT_EQ(PosizioneEstrazione(Tracciato("Lotto"), 2147483647), std::int64_t{2147483646} * 67 + 1);
}

TEST(ModBaseDati, UnFileCheMancaNonHaConteggioNeEstrazioni)
{
    const CartellaProva cartella;
    Estrazioni estrazioni;
    EXPECT_EQ(ContaEstrazioni(Tracciato("Lotto"), cartella / "manca"), std::nullopt);
    EXPECT_FALSE(LeggiEstrazioni(Tracciato("Lotto"), 1, 2, estrazioni, cartella / "manca"));
    EXPECT_EQ(ContaEstrazioni(Tracciato("Lotto"), cartella / ""), std::nullopt) << "a folder";
}

TEST(ModBaseDati, UnRecordMonchoSiLeggeFinDoveArriva)
{
    const CartellaProva cartella;
    const auto tracciato = Tracciato("SuperEnalotto");
    ScriviFile(cartella / "a", ByteCrescenti(2, tracciato).substr(0, 18 + 14));
    EXPECT_NEAR(*ContaEstrazioni(tracciato, cartella / "a"), 32.0 / 18, 1e-12);
    Estrazioni estrazioni;
    ASSERT_TRUE(LeggiEstrazioni(tracciato, 2, 2, estrazioni, cartella / "a"));
    EXPECT_EQ(estrazioni.aEstrazioni[0][1], 31);
    EXPECT_EQ(estrazioni.aEstrazioni[0][2], 0) << "behind the end of the file";
}

TEST(ModBaseDati, UnaPrimaSottoUnoSiLeggeDallaPrimaESenzaCambiareILimiti)
{
    const CartellaProva cartella;
    const auto tracciato = Tracciato("SuperEnalotto");
    ScriviFile(cartella / "a", ByteCrescenti(3, tracciato));
    Estrazioni estrazioni;
    ASSERT_TRUE(LeggiEstrazioni(tracciato, -1, 2, estrazioni, cartella / "a"));
    EXPECT_EQ(estrazioni.nPrima, -1);
    ASSERT_EQ(estrazioni.aEstrazioni.size(), std::size_t{4});
    EXPECT_EQ(estrazioni.aEstrazioni[0][0], 12) << "the first draw of the file";
    EXPECT_EQ(estrazioni.aEstrazioni[3], Estrazione{});
}

TEST(ModBaseDati, LUltimaSottoLaPrimaETroppeEstrazioniNonSiLeggono)
{
    const CartellaProva cartella;
    const auto tracciato = Tracciato("SuperEnalotto");
    ScriviFile(cartella / "a", ByteCrescenti(3, tracciato));
    Estrazioni estrazioni;
    EXPECT_FALSE(LeggiEstrazioni(tracciato, 3, 2, estrazioni, cartella / "a"));
    estrazioni.aEstrazioni.resize(7);
    EXPECT_FALSE(LeggiEstrazioni(tracciato, 1, 2147483647, estrazioni, cartella / "a"));
    EXPECT_EQ(estrazioni, Estrazioni{}) << "a failure leaves one draw of no number";
}

TEST(ModBaseDati, QuelloCheSiAccodaSiRilegge)
{
    const CartellaProva cartella;
    for (const ProfiloGioco& gioco : ProfiliGioco()) {
        const auto tracciato = TracciatoDi(gioco);
        std::vector<Estrazione> aEstrazioni(2);
        for (std::int32_t i = 0; i < tracciato.nNumeri; ++i) {
            aEstrazioni[1][static_cast<std::size_t>(i)] = static_cast<std::uint8_t>(90 - i);
        }
        const std::string sFile = cartella / gioco.sNome;
        FileBinario file(sFile, eApertura::scrittura);
        AccodaEstrazioni(tracciato, aEstrazioni, file);
        file.Chiudi();
        EXPECT_EQ(LeggiFile(sFile).size(), static_cast<std::size_t>(2 * tracciato.nByte));
        Estrazioni lette;
        ASSERT_TRUE(LeggiEstrazioni(tracciato, 1, 2, lette, sFile));
        EXPECT_EQ(lette.aEstrazioni, aEstrazioni) << gioco.sNome;
    }
}

} // namespace
} // namespace ordavel
