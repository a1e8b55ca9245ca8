// Impostazioni_prova.cpp - folders, archives and engine: kept, preset, and given to the component.

#include "desktop/Impostazioni.hpp"

#include "FinestraInProva.hpp"

namespace ordavel::desktop {
namespace {

Impostazioni Esempio()
{
    Impostazioni esempio;
    esempio.sDirSistemi = "/a/sistemi";
    esempio.sPercorsoSalvaColonne = "/a/colonne";
    esempio.sPercorsoTemp = "/a/temp";
    esempio.aArchivi = {"/lotto.bd", "/10.bd", "/10-5.bd", "/se.bd", "/wf.bd"};
    esempio.nThread = 3;
    esempio.bMotoreEsterno = true;
    return esempio;
}

using ImpostazioniProva = FinestraInProva;

TEST_F(ImpostazioniProva, QuelCheSiConservaSiRilegge)
{
    ScriviImpostazioni(Esempio(), archivio);
    ASSERT_TRUE(archivio.Salva());
    const ArchivioImpostazioni altro(In("ordavel.ini"));
    EXPECT_EQ(LeggiImpostazioni(altro), Esempio());
}

TEST_F(ImpostazioniProva, LaPrimaVoltaCiSonoCartelleSensate)
{
    const ArchivioImpostazioni vuoto(In("altro.ini"));
    const Impostazioni prime = LeggiImpostazioni(vuoto);
    EXPECT_EQ(prime, Predefinite());
    EXPECT_TRUE(prime.sDirSistemi.endsWith("/Ordavel/Sistemi"));
    EXPECT_TRUE(prime.sPercorsoSalvaColonne.endsWith("/Ordavel/Colonne"));
    EXPECT_TRUE(prime.sPercorsoTemp.endsWith("/ordavel"));
    EXPECT_EQ(prime.nThread, 5);
    EXPECT_FALSE(prime.bMotoreEsterno);
}

TEST_F(ImpostazioniProva, ValoriSenzaSensoNonContano)
{
    archivio.Poni("NumeroThreadsSviluppo", -3);
    archivio.Poni("MotoreSviluppo", "boh");
    const Impostazioni lette = LeggiImpostazioni(archivio);
    EXPECT_EQ(lette.nThread, 5);
    EXPECT_FALSE(lette.bMotoreEsterno);
}

TEST_F(ImpostazioniProva, IlComponenteRiceveTuttoEFaLeCartelle)
{
    Impostazioni scelte = Esempio();
    scelte.sDirSistemi = In("s");
    scelte.sPercorsoSalvaColonne = In("c");
    scelte.sPercorsoTemp = In("t");
    ApplicaImpostazioni(scelte, In("t/mia"), Finestra().Componente());
    EXPECT_EQ(Componente().DirSistemi(), cartella / "s/");
    EXPECT_EQ(Componente().PercorsoSalvaColonne(), cartella / "c/");
    EXPECT_EQ(Componente().FileColonne(), cartella / "t/mia/Sviluppo.col");
    EXPECT_TRUE(std::filesystem::is_directory(cartella / "t/mia"));
    EXPECT_EQ(Componente().FileBd10Lotto5M(), "/10-5.bd");
    EXPECT_EQ(Componente().NumeroThreadsSviluppo(), 3);
    EXPECT_EQ(Componente().MotoreSviluppo(), eMotoreSviluppo::esterno);
    EXPECT_EQ(Componente().Controlli().CmbMotSviluppo.Indice.Valore(), 1);
}

} // namespace
} // namespace ordavel::desktop
