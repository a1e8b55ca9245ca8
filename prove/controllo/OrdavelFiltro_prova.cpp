// OrdavelFiltro_prova.cpp - the conditions over the columns of a file.

#include "ordavel/Ordavel.hpp"

#include "comune/Fallimenti.hpp"
#include "controllo/SistemaProva.hpp"

#include <gtest/gtest.h>

namespace ordavel {
namespace {

using prove::Avviso;
using prove::ByteDi;
using prove::Domanda;
using prove::Fallimento;
using prove::FineSviluppo;
using prove::LeggiFile;
using prove::ScriviFile;
using testing::ElementsAre;
using testing::IsEmpty;

class OrdavelFiltro : public testing::Test, protected prove::SistemaProva {
protected:
    OrdavelFiltro()
    {
        ScriviFile(sFile, ByteDi({{1, 2, 3}, {1, 2, 4}, {20, 30, 40}}));
        sistema.GetGridCond().Riga(1) = {"Peso", "Caselle :\r\n1-2-3", "7-100", "-", " "};
    }

    const std::string sFile = cartella / "a.col";
    const std::string sPassate = ByteDi({{1, 2, 4}, {20, 30, 40}});
};

TEST_F(OrdavelFiltro, LeColonneChePassanoVannoNelFileDiLavoro)
{
    Filtra(sFile);
    EXPECT_EQ(ByteColonne(), sPassate);
    EXPECT_EQ(LeggiFile(sFile).size(), 60);
    EXPECT_THAT(Conteggi(), ElementsAre("3", "2"));
    EXPECT_TRUE(sistema.ColonneValide());
    EXPECT_TRUE(Abilitato("VisualizzaColonne"));
    EXPECT_FALSE(sistema.Controlli().PanSviluppo.Visibile.Valore());
}

TEST_F(OrdavelFiltro, LaClasseVieneDalFileENonDallaLista)
{
    // In class 2, the list's, only the first two numbers would be counted.
    sistema.PoniClasse(2);
    sistema.GetGridCond().Riga(1) = {"Pari-Dispari", "Pari", "2", "", " "};
    Filtra(sFile);
    EXPECT_EQ(ByteColonne(), ByteDi({{1, 2, 4}}));
}

TEST_F(OrdavelFiltro, LaRiduzioneSiTogliDallaClasseDelFile)
{
    // Class 3 less 2: two columns that share one number are too near.
    sistema.GetGridCond().Svuota();
    sistema.Controlli().CmbRid.Indice.Poni(2);
    Filtra(sFile);
    EXPECT_EQ(ByteColonne(), ByteDi({{1, 2, 3}, {20, 30, 40}}));
}

TEST_F(OrdavelFiltro, IlFileDiLavoroSiFiltraMessoDaParte)
{
    ScriviFile(Temp("Sviluppo.col"), LeggiFile(sFile));
    ScriviFile(Temp("Sviluppo.col.old"), "un risultato più vecchio");
    Filtra(Temp("Sviluppo.col"));
    EXPECT_EQ(ByteColonne(), sPassate);
    EXPECT_EQ(LeggiFile(Temp("Sviluppo.col.old")), LeggiFile(sFile));
}

TEST_F(OrdavelFiltro, IlFileDiLavoroSiRiconosceComunqueSiScriva)
{
    std::filesystem::create_symlink(Temp("Sviluppo.col"), cartella / "legame.col");
    for (const std::string& sNome : {Temp("./Sviluppo.col"), cartella / "legame.col"}) {
        ScriviFile(Temp("Sviluppo.col"), LeggiFile(sFile));
        Filtra(sNome);
        EXPECT_EQ(ByteColonne(), sPassate) << sNome;
        EXPECT_EQ(LeggiFile(Temp("Sviluppo.col.old")), LeggiFile(sFile)) << sNome;
    }
}

TEST_F(OrdavelFiltro, UnAltroFileDalNomeSimileEUnAltroFile)
{
    ScriviFile(Temp("Sviluppo.col"), ByteDi({{5, 6, 7}}));
    ScriviFile(Temp("sviluppo.COL"), LeggiFile(sFile));
    Filtra(Temp("sviluppo.COL"));
    EXPECT_EQ(ByteColonne(), sPassate);
    EXPECT_EQ(LeggiFile(Temp("sviluppo.COL")), LeggiFile(sFile));
    EXPECT_FALSE(std::filesystem::exists(Temp("Sviluppo.col.old")));
}

TEST_F(OrdavelFiltro, DueFiltriDiSeguitoStringonoIlRisultato)
{
    Filtra(sFile);
    sistema.GetGridCond().Riga(2) = {"Peso", "Caselle :\r\n1-2-3", "7-7", "-", " "};
    Filtra(sistema.FileColonne());
    EXPECT_EQ(ByteColonne(), ByteDi({{1, 2, 4}}));
    EXPECT_EQ(LeggiFile(Temp("Sviluppo.col.old")), sPassate);
}

TEST_F(OrdavelFiltro, UnFileVuotoOMancanteNonCambiaNulla)
{
    Filtra(sFile);
    const int nEventi = piattaforma.nEventi;
    ScriviFile(cartella / "vuoto.col", "");
    sistema.GetGridCond().Riga(1).sCondizione = "LinkOpen"; // not even looked at
    for (const std::string& sNome :
         {cartella / "vuoto.col", cartella / "manca.col", cartella / "temp", Temp("")}) {
        EXPECT_FALSE(sistema.GestSviluppoDaFileColonne(sNome));
        EXPECT_THAT(piattaforma.Messaggi(), IsEmpty());
    }
    EXPECT_EQ(piattaforma.nEventi, nEventi);
    EXPECT_EQ(ByteColonne(), sPassate);
    EXPECT_THAT(Conteggi(), ElementsAre("3", "2"));
    EXPECT_TRUE(sistema.ColonneValide());
}

TEST_F(OrdavelFiltro, LinkSpaiatiNonFiltrano)
{
    Filtra(sFile);
    sistema.GetGridCond().Riga(1).sCondizione = "LinkOpen";
    EXPECT_FALSE(sistema.GestSviluppoDaFileColonne(sFile));
    EXPECT_THAT(piattaforma.Messaggi(), ElementsAre(Avviso("Link non valide")));
    EXPECT_EQ(ByteColonne(), sPassate);
    EXPECT_TRUE(sistema.ColonneValide());
}

TEST_F(OrdavelFiltro, IlComandoDelFiltroRestaComeEra)
{
    Filtra(sFile);
    EXPECT_FALSE(Abilitato("FiltraSvilPrec"));
    Pronostico(3, 1, 4);
    Sviluppa();
    EXPECT_TRUE(Abilitato("FiltraSvilPrec"));
    Filtra(sFile);
    EXPECT_TRUE(Abilitato("FiltraSvilPrec"));
}

TEST_F(OrdavelFiltro, IlMotoreEsternoNonServe)
{
    sistema.PoniMotoreSviluppo(eMotoreSviluppo::esterno);
    Filtra(sFile);
    EXPECT_EQ(ByteColonne(), sPassate);
}

TEST_F(OrdavelFiltro, UnaColonnaATrattiSiFiltraComeUna)
{
    // 19 bytes are most of a column.
    ScriviFile(sFile, ByteDi({{1, 2, 4}}).substr(0, 19));
    Filtra(sFile);
    EXPECT_EQ(ByteColonne(), ByteDi({{1, 2, 4}}));
}

TEST_F(OrdavelFiltro, FermatoLasciaUnInizioDelleColonne)
{
    sistema.GetGridCond().Svuota();
    Pronostico(5, 1, 25);
    Sviluppa();
    const std::string sTutte = ByteColonne();
    piattaforma.Rispondi(eRisposta::si);
    piattaforma.nEventi = 0;
    piattaforma.eventi = [&] {
        if (piattaforma.nEventi == 2) {
            EXPECT_THAT(Abilitati(), ElementsAre("Stop"));
            EXPECT_TRUE(sistema.Controlli().PanSviluppo.Visibile.Valore());
            EXPECT_FALSE(sistema.GestSviluppo());
            sistema.Stop();
        }
    };
    EXPECT_TRUE(sistema.GestSviluppoDaFileColonne(sistema.FileColonne()));
    EXPECT_THAT(piattaforma.Messaggi(), ElementsAre(Domanda("Interrompere ?"), FineSviluppo()));
    EXPECT_EQ(ByteColonne(), sTutte.substr(0, 10'000 * 20));
    EXPECT_THAT(Conteggi(), ElementsAre("10.000", "10.000"));
    EXPECT_FALSE(sistema.ColonneValide());
    EXPECT_TRUE(Abilitato("FiltraSvilPrec"));
}

TEST_F(OrdavelFiltro, IlTempoSiMostraComeInUnoSviluppo)
{
    piattaforma.Orologio({86390, 5});
    EXPECT_TRUE(sistema.GestSviluppoDaFileColonne(sFile));
    EXPECT_THAT(piattaforma.Messaggi(), ElementsAre(FineSviluppo("00:00:15")));
}

TEST_F(OrdavelFiltro, UnaCorsaFallitaSiMostraETornaFerma)
{
    ScriviFile(sFile, ByteDi({{1, 2, 12}}));
    sistema.GetGridCond().Riga(1) = prove::CondizioneGuasta();
    EXPECT_TRUE(sistema.GestSviluppoDaFileColonne(sFile));
    EXPECT_THAT(piattaforma.Messaggi(),
                ElementsAre(Fallimento("ModSistemiCond.FiltraFile", prove::ErroreGuasta()), FineSviluppo()));
    EXPECT_THAT(Conteggi(), ElementsAre("0", "0"));
    EXPECT_FALSE(sistema.Controlli().PanSviluppo.Visibile.Valore());
    EXPECT_FALSE(Abilitato("Stop"));
    EXPECT_TRUE(Abilitato("SviluppaCond"));
}

TEST_F(OrdavelFiltro, UnVecchioRisultatoCheNonSiSpostaLasciaTuttoComEra)
{
    ScriviFile(Temp("Sviluppo.col"), LeggiFile(sFile));
    std::filesystem::create_directories(Temp("Sviluppo.col.old/piena"));
    EXPECT_TRUE(sistema.GestSviluppoDaFileColonne(Temp("Sviluppo.col")));
    const Errore vecchio(eErrore::accessoPercorso, Temp("Sviluppo.col.old"));
    const Errore lavoro(eErrore::accessoPercorso, Temp("Sviluppo.col"));
    EXPECT_THAT(piattaforma.Messaggi(),
                ElementsAre(Fallimento("ModFunzGeneriche.KillFile", vecchio),
                            Fallimento("OrdavelSisE.SviluppaCondizionatoDaFileColonne", lavoro),
                            FineSviluppo()));
    EXPECT_EQ(ByteColonne(), LeggiFile(sFile));
    EXPECT_FALSE(sistema.Controlli().PanSviluppo.Visibile.Valore());
    EXPECT_TRUE(Abilitato("SviluppaCond"));
}

TEST_F(OrdavelFiltro, UnFileDiLavoroCheNonSiCancellaNonSiMescola)
{
    std::filesystem::create_directories(Temp("Sviluppo.col/piena"));
    EXPECT_TRUE(sistema.GestSviluppoDaFileColonne(sFile));
    EXPECT_THAT(piattaforma.Messaggi(),
                ElementsAre(Fallimento("ModFunzGeneriche.KillFile",
                                       Errore(eErrore::accessoPercorso, sistema.FileColonne())),
                            FineSviluppo()));
    EXPECT_FALSE(sistema.ColonneValide());
}

TEST_F(OrdavelFiltro, UnaColonnaDiZeriHaClasseZero)
{
    const std::string sZeri(20, '\0');
    ScriviFile(sFile, sZeri);
    sistema.GetGridCond().Riga(1) = {"Peso", "Caselle :\r\n1-2-3", "0-0", "-", " "};
    Filtra(sFile);
    EXPECT_EQ(ByteColonne(), sZeri);
    EXPECT_THAT(Conteggi(), ElementsAre("1", "1"));
}

} // namespace
} // namespace ordavel
