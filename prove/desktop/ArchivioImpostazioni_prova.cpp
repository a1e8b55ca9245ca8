// ArchivioImpostazioni_prova.cpp - settings are kept, strangers among them left alone, failures told.

#include "desktop/ArchivioImpostazioni.hpp"

#include "comune/CartellaProva.hpp"

#include <QFile>
#include <gtest/gtest.h>

namespace ordavel::desktop {
namespace {

struct ArchivioImpostazioniProva : testing::Test {
    prove::CartellaProva cartella;
    const std::string sFile = cartella / "nuova/ordavel.ini";
    const QString File = QString::fromStdString(sFile);
};

TEST_F(ArchivioImpostazioniProva, QuelCheSiScriveSiRilegge)
{
    {
        ArchivioImpostazioni archivio(File);
        EXPECT_TRUE(archivio.Vuoto());
        EXPECT_EQ(archivio.Leggi("Classe"), std::nullopt);
        archivio.Scrivi("Classe", "7");
        archivio.Scrivi("PercorsoTemp", "/tmp/perché, sì; \"no\"/");
        archivio.Scrivi("PercorsoSalvaColonne", "");
        archivio.Poni("Altro", QStringList{"a", "b"});
        EXPECT_TRUE(archivio.Salva());
        EXPECT_TRUE(archivio.Guasto().isEmpty());
    }
    const ArchivioImpostazioni archivio(File);
    EXPECT_FALSE(archivio.Vuoto());
    EXPECT_EQ(archivio.Leggi("Classe"), "7");
    EXPECT_EQ(archivio.Leggi("PercorsoTemp"), "/tmp/perché, sì; \"no\"/");
    EXPECT_EQ(archivio.Leggi("PercorsoSalvaColonne"), "");
    EXPECT_EQ(archivio.Valore("Altro").toStringList(), (QStringList{"a", "b"}));
}

TEST_F(ArchivioImpostazioniProva, LeChiaviSconosciuteRestano)
{
    std::filesystem::create_directories(cartella / "nuova");
    prove::ScriviFile(sFile, "[General]\nClasse=6\nDiDomani=vale\n\n[Gruppo]\nChiave=7\n");
    {
        ArchivioImpostazioni archivio(File);
        archivio.Scrivi("Classe", "8");
        EXPECT_TRUE(archivio.Salva());
    }
    const std::string sTesto = prove::LeggiFile(sFile);
    EXPECT_NE(sTesto.find("Classe=8"), std::string::npos);
    EXPECT_NE(sTesto.find("DiDomani=vale"), std::string::npos);
    EXPECT_NE(sTesto.find("[Gruppo]\nChiave=7"), std::string::npos);
}

TEST_F(ArchivioImpostazioniProva, QuelCheNonSiPuoScrivereSiDice)
{
    prove::ScriviFile(cartella / "file", "x");
    ArchivioImpostazioni archivio(QString::fromStdString(cartella / "file/ordavel.ini"));
    archivio.Scrivi("Classe", "8");
    EXPECT_FALSE(archivio.Salva());
    EXPECT_TRUE(archivio.Guasto().startsWith("Le impostazioni non si possono conservare in "));
    EXPECT_EQ(prove::LeggiFile(cartella / "file"), "x");
}

TEST_F(ArchivioImpostazioniProva, UnFileRovinatoSiDiceESiConserva)
{
    std::filesystem::create_directories(cartella / "nuova");
    prove::ScriviFile(sFile, "[General]\nClasse=6\nsenza uguale\n");
    const ArchivioImpostazioni archivio(File);
    EXPECT_TRUE(archivio.Guasto().contains("rovinato"));
    EXPECT_EQ(archivio.Leggi("Classe"), "6");
    EXPECT_EQ(prove::LeggiFile(sFile + ".rovinato"), "[General]\nClasse=6\nsenza uguale\n");
}

} // namespace
} // namespace ordavel::desktop
