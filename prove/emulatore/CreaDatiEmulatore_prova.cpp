// CreaDatiEmulatore_prova.cpp - the file of the latest draws of a game.

#include "comune/CartellaProva.hpp"
#include "comune/Fallimenti.hpp"
#include "comune/PiattaformaProva.hpp"
#include "core/FileBinario.hpp"
#include "emulatore/ModEmulatore.hpp"
#include "persistenza/ModBaseDati.hpp"

#include <gtest/gtest.h>

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
    EXPECT_TRUE(Crea("Lotto", 1) || LeggiFile(m_sFile).empty());
}

TEST_F(CreaDati, LoZeroNonSegnaNulla)
{
    ScriviFile(m_sArchivio, std::string(18, '\0'));
    ASSERT_TRUE(Crea("SuperEnalotto", 1));
    EXPECT_EQ(Righe(), (std::vector<std::set<int>>{{}}));
}

TEST_F(CreaDati, UnNumeroOltreNovantaEUnaRuotaCheNonCEFalliscono)
{
    ScriviFile(m_sArchivio, std::string(67, '\xFF'));
    EXPECT_EQ(NumeroErrore([&] { (void)Crea("Lotto", 1); }), 9);
    Archivio("Lotto", 0);
    for (const std::int16_t nRuota : {std::int16_t{0}, std::int16_t{12}}) {
        EXPECT_EQ(NumeroErrore([&] { (void)Crea("Lotto", 1, nRuota); }), 9);
    }
}

} // namespace
} // namespace ordavel
