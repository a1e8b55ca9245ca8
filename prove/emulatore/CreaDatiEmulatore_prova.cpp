// CreaDatiEmulatore_prova.cpp - the file of the latest draws of a game.

#include "comune/CartellaProva.hpp"
#include "comune/Fallimenti.hpp"
#include "comune/PiattaformaProva.hpp"
#include "core/FileBinario.hpp"
#include "emulatore/ModEmulatore.hpp"
#include "persistenza/ModBaseDati.hpp"

#include <gtest/gtest.h>

#include <filesystem>
#include <set>

namespace ordavel {
namespace {

using prove::CartellaProva;
using prove::LeggiFile;
using prove::NumeroErrore;
using prove::ScriviFile;

class CreaDati : public testing::Test {
protected:
    /// An archive of draws; draw d has the numbers d+1, d+2 ... in the order of its record.
    void Archivio(std::string_view sGioco, std::size_t nEstrazioni)
    {
        const auto tracciato = TracciatoDi(*TrovaGioco(sGioco));
        std::vector<Estrazione> aEstrazioni(nEstrazioni);
        for (std::size_t d = 0; d < nEstrazioni; ++d) {
            for (std::size_t i = 0; i < static_cast<std::size_t>(tracciato.nNumeri); ++i) {
                aEstrazioni[d][i] = static_cast<std::uint8_t>(d + i + 1);
            }
        }
        FileBinario file(m_sArchivio, eApertura::scrittura);
        AccodaEstrazioni(tracciato, aEstrazioni, file);
        file.Chiudi();
    }

    bool Crea(std::string_view sGioco, std::int16_t nColonne, std::int16_t nRuota = 1)
    {
        return CreaDatiEmulatore(m_sFile, nColonne, nRuota, sGioco, m_sArchivio, m_Piattaforma);
    }

    /// The numbers of each row of the file.
    std::vector<std::set<int>> Righe()
    {
        const std::string sByte = LeggiFile(m_sFile);
        std::vector<std::set<int>> aRighe(sByte.size() / 91);
        for (std::size_t i = 0; i < sByte.size(); ++i) {
            if (sByte[i] != 0) {
                aRighe[i / 91].insert(static_cast<int>(i % 91));
            }
        }
        return aRighe;
    }

    CartellaProva m_Cartella;
    prove::PiattaformaProva m_Piattaforma;
    std::string m_sFile = m_Cartella / "Emulatore.dat";
    std::string m_sArchivio = m_Cartella / "archivio";
};

TEST_F(CreaDati, DelLottoSiPrendonoICinqueNumeriDellaRuota)
{
    Archivio("Lotto", 3);
    ASSERT_TRUE(Crea("Lotto", 2, 11));
    EXPECT_EQ(Righe(), (std::vector<std::set<int>>{{52, 53, 54, 55, 56}, {53, 54, 55, 56, 57}}));
    ASSERT_TRUE(Crea("Lotto", 1, 1));
    EXPECT_EQ(Righe(), (std::vector<std::set<int>>{{3, 4, 5, 6, 7}}));
}

TEST_F(CreaDati, DegliAltriGiochiTuttiITirati)
{
    Archivio("SuperEnalotto", 1);
    ASSERT_TRUE(Crea("SuperEnalotto", 1, 99));
    EXPECT_EQ(Righe(), (std::vector<std::set<int>>{{1, 2, 3, 4, 5, 6}}));
}

TEST_F(CreaDati, DeiDieciNumeriSiGuardaLaPrimaMeta)
{
    Archivio("10ELotto", 1);
    ASSERT_TRUE(Crea("10Lotto", 1));
    EXPECT_EQ(Righe(), (std::vector<std::set<int>>{{1, 2, 3, 4, 5, 6, 7, 8, 9, 10}}));
}

TEST_F(CreaDati, ColNomeDellElencoIDieciNumeriNonSiTrovano)
{
    Archivio("10ELotto", 1);
    EXPECT_FALSE(Crea("10ELotto", 1));
    EXPECT_FALSE(Crea("10ELotto5M", 1));
    EXPECT_FALSE(Crea("lotto", 1)) << "the comparison is exact";
}

TEST_F(CreaDati, TanteColonneQuanteEstrazioniDallaPrima)
{
    Archivio("WinForLife", 4);
    ASSERT_TRUE(Crea("WinForLife", 4));
    EXPECT_EQ(Righe().size(), std::size_t{4});
    EXPECT_EQ(*Righe().front().begin(), 1);
}

TEST_F(CreaDati, UnaColonnaDiTroppoLasciaIlFileDiPrima)
{
    Archivio("WinForLife", 4);
    ScriviFile(m_sFile, "di prima");
    EXPECT_FALSE(Crea("WinForLife", 5));
    EXPECT_FALSE(Crea("WinForLife", 0));
    EXPECT_FALSE(Crea("WinForLife", -1));
    EXPECT_EQ(LeggiFile(m_sFile), "di prima");
}

TEST_F(CreaDati, SenzaArchivioNonSiCrea)
{
    EXPECT_FALSE(Crea("Lotto", 1));
    ScriviFile(m_sArchivio, "");
    EXPECT_FALSE(Crea("Lotto", 1));
    EXPECT_FALSE(std::filesystem::exists(m_sFile));
}

TEST_F(CreaDati, UnaLunghezzaCheNonTornaSiArrotondaAiPari)
{
    // Numbers 1 to 6 in every draw; half a record has none of them, three quarters have the first one.
    const std::string sEstrazione = std::string(12, '\0') + "\1\2\3\4\5\6";
    const auto Quante = [&](std::size_t nByte) {
        ScriviFile(m_sArchivio, (sEstrazione + sEstrazione + sEstrazione).substr(0, nByte));
        std::int16_t nQuante = 0;
        while (Crea("SuperEnalotto", static_cast<std::int16_t>(nQuante + 1))) {
            ++nQuante;
        }
        return nQuante;
    };
    EXPECT_EQ(Quante(8), 0);
    EXPECT_EQ(Quante(9), 0) << "0.5 is nearest to an even 0";
    EXPECT_EQ(Quante(26), 1);
    EXPECT_EQ(Quante(27), 2) << "1.5 is nearest to an even 2";
    EXPECT_EQ(Righe(), (std::vector<std::set<int>>{{1, 2, 3, 4, 5, 6}, {}}));
    EXPECT_EQ(Quante(31), 2);
    EXPECT_EQ(Righe(), (std::vector<std::set<int>>{{1, 2, 3, 4, 5, 6}, {1}})) << "as far as it goes";
    EXPECT_EQ(Quante(45), 2) << "2.5 is nearest to an even 2";
}

TEST_F(CreaDati, LoZeroNonSegnaNulla)
{
    ScriviFile(m_sArchivio, std::string(18, '\0'));
    ASSERT_TRUE(Crea("SuperEnalotto", 1));
    EXPECT_EQ(Righe(), (std::vector<std::set<int>>{{}}));
}

TEST_F(CreaDati, UnNumeroOltreNovantaFallisceEDiceQualeArchivio)
{
    ScriviFile(m_sFile, "di prima");
    for (const char nNumero : {'\x5B', '\xFF'}) {
        ScriviFile(m_sArchivio, std::string(12, '\0') + std::string(6, nNumero));
        try {
            (void)Crea("SuperEnalotto", 1);
            ADD_FAILURE() << "nothing was thrown";
        } catch (const Errore& errore) {
            EXPECT_EQ(errore.Numero(), eErrore::indice);
            EXPECT_NE(TestoFallimento(errore).find(m_sArchivio), std::string::npos);
        }
    }
    ScriviFile(m_sArchivio, std::string(12, '\0') + std::string(6, '\x5A'));
    EXPECT_EQ(LeggiFile(m_sFile), "di prima");
    EXPECT_TRUE(Crea("SuperEnalotto", 1)) << "90 is a number";
}

TEST_F(CreaDati, UnaRuotaCheNonCEFallisce)
{
    Archivio("Lotto", 1);
    for (const std::int16_t nRuota : {std::int16_t{-1}, std::int16_t{0}, std::int16_t{12}}) {
        EXPECT_EQ(NumeroErrore([&] { (void)Crea("Lotto", 1, nRuota); }), 9);
    }
}

TEST_F(CreaDati, UnFileDiPrimaCheNonSiCancellaSiDiceEResta)
{
    Archivio("SuperEnalotto", 1);
    std::filesystem::create_directories(m_sFile + "/piena");
    EXPECT_TRUE(Crea("SuperEnalotto", 1));
    ASSERT_EQ(m_Piattaforma.Messaggi().size(), std::size_t{1});
    EXPECT_TRUE(std::filesystem::exists(m_sFile + "/piena"));
}

} // namespace
} // namespace ordavel
