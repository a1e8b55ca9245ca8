// OrdavelSviluppoGuasti_prova.cpp - developments that are refused, or fail on their way.

#include "ordavel/Ordavel.hpp"

#include "comune/Fallimenti.hpp"
#include "controllo/SistemaProva.hpp"

#include <gtest/gtest.h>

namespace ordavel {
namespace {

using prove::Avviso;
using prove::ByteDi;
using prove::Fallimento;
using prove::FineSviluppo;
using prove::NumeroErrore;
using testing::ElementsAre;

constexpr std::string_view kInit = "ModSistemiCond.InitSviluppoSistCondizionato";

class OrdavelSviluppoGuasti : public testing::Test, protected prove::SistemaProva {
protected:
    OrdavelSviluppoGuasti() { prove::ScriviFile(sistema.FileColonne(), kVecchie); }

    /// Nothing was begun: the earlier columns stand, the panel was never seen.
    void ExpectNonCominciato()
    {
        EXPECT_EQ(ByteColonne(), kVecchie);
        EXPECT_EQ(piattaforma.nEventi, 0);
        ExpectFermo();
    }

    /// No run is on its way.
    void ExpectFermo()
    {
        EXPECT_FALSE(sistema.Controlli().PanSviluppo.Visibile.Valore());
        EXPECT_FALSE(Abilitato("Stop"));
        EXPECT_TRUE(Abilitato("SviluppaCond"));
        EXPECT_TRUE(sistema.Controlli().CmbClasse.Abilitato.Valore());
    }

    const std::string kVecchie = ByteDi({{1, 2}, {3, 4}});
};

TEST_F(OrdavelSviluppoGuasti, SenzaNumeriSiChiedeIlPronostico)
{
    EXPECT_FALSE(sistema.GestSviluppo());
    EXPECT_THAT(piattaforma.Messaggi(), ElementsAre(Messaggio{.icona = eIcona::avviso,
                                                              .sTitolo = "",
                                                              .sTesto = "Impostare il pronostico",
                                                              .pulsanti = ePulsanti::ok}));
    ExpectNonCominciato();
}

TEST_F(OrdavelSviluppoGuasti, MenoNumeriDellaClasseNonBastano)
{
    Pronostico(5, 1, 4);
    EXPECT_FALSE(sistema.GestSviluppo());
    EXPECT_THAT(piattaforma.Messaggi(), ElementsAre(Avviso("Impostare il pronostico")));
    ExpectNonCominciato();
}

TEST_F(OrdavelSviluppoGuasti, LinkSpaiatiNonSiSviluppano)
{
    Pronostico(3, 1, 4);
    sistema.GetGridCond().Riga(1).sCondizione = "LinkClose";
    sistema.GetGridCond().Riga(2).sCondizione = "LinkOpen";
    EXPECT_FALSE(sistema.GestSviluppo());
    EXPECT_THAT(piattaforma.Messaggi(), ElementsAre(Avviso("Link non valide")));
    ExpectNonCominciato();
}

TEST_F(OrdavelSviluppoGuasti, IlPronosticoSiGuardaPrimaDeiLink)
{
    sistema.GetGridCond().Riga(1).sCondizione = "LinkOpen";
    EXPECT_FALSE(sistema.GestSviluppo());
    EXPECT_THAT(piattaforma.Messaggi(), ElementsAre(Avviso("Impostare il pronostico")));
}

TEST_F(OrdavelSviluppoGuasti, UnaGrigliaCheNonSiCompilaNonComincia)
{
    Pronostico(3, 1, 4);
    sistema.GetGridCond().Riga(1) = {"Cadenze", "", "11", "", ""};
    EXPECT_EQ(NumeroErrore([&] { sistema.GestSviluppo(); }), 9);
    ExpectNonCominciato();
}

TEST_F(OrdavelSviluppoGuasti, SenzaClasseLaCorsaFallisceEIlPannelloSiChiude)
{
    Pronostico(3, 1, 4);
    Sviluppa();
    ASSERT_TRUE(Abilitato("VisualizzaColonne"));
    sistema.Controlli().CmbClasse.Indice.Poni(-1);
    EXPECT_EQ(NumeroErrore([&] { sistema.GestSviluppo(); }), 11);
    EXPECT_FALSE(std::filesystem::exists(sistema.FileColonne()));
    EXPECT_FALSE(Abilitato("VisualizzaColonne"));
    ExpectFermo();
}

TEST_F(OrdavelSviluppoGuasti, UnaCorsaFallitaSiMostraETornaFerma)
{
    Pronostico(5, 1, 6);
    sistema.GetGridCond().Riga(1) = prove::CondizioneGuasta();
    EXPECT_TRUE(sistema.GestSviluppo());
    EXPECT_THAT(piattaforma.Messaggi(),
                ElementsAre(Fallimento(kInit, prove::ErroreGuasta()), FineSviluppo()));
    EXPECT_FALSE(sistema.ColonneValide());
    EXPECT_THAT(Conteggi(), ElementsAre("0", "0"));
    EXPECT_EQ(ByteColonne(), "");
    EXPECT_TRUE(Abilitato("FiltraSvilPrec"));
    ExpectFermo();
}

TEST_F(OrdavelSviluppoGuasti, CioCheFuScrittoPrimaDelFallimentoResta)
{
    Pronostico(5, 1, 25);
    sistema.GetGridCond().Riga(1) = {"Posizioni", "Casella :\r\n1", "1-2", "-", " "};
    piattaforma.eventi = [&] {
        if (piattaforma.nEventi == 3) {
            throw Errore(eErrore::dispositivo);
        }
    };
    EXPECT_TRUE(sistema.GestSviluppo());
    EXPECT_THAT(piattaforma.Messaggi(),
                ElementsAre(Fallimento(kInit, Errore(eErrore::dispositivo)), FineSviluppo()));
    // Of 20000 columns 10626 begin with 1 and 8855 with 2: one block of them had been written.
    EXPECT_EQ(ByteColonne().size(), 10'000 * 20);
    EXPECT_THAT(Conteggi(), ElementsAre("20.000", "10.000"));
    EXPECT_FALSE(sistema.ColonneValide());
    ExpectFermo();
}

TEST_F(OrdavelSviluppoGuasti, DopoUnaCorsaFallitaSeNeFaUnAltra)
{
    Pronostico(5, 1, 6);
    sistema.GetGridCond().Riga(1) = prove::CondizioneGuasta();
    EXPECT_TRUE(sistema.GestSviluppo());
    EXPECT_EQ(piattaforma.Messaggi().size(), 2);
    sistema.GetGridCond().Svuota();
    Sviluppa();
    EXPECT_TRUE(sistema.ColonneValide());
    EXPECT_EQ(sistema.QuantitaColonne(), 6);
}

TEST_F(OrdavelSviluppoGuasti, UnFileDEmulatoreSenzaRigheFallisceEIlPannelloSiChiude)
{
    Pronostico(3, 1, 4);
    prove::ScriviFile(Temp("Emulatore.dat"), std::string(91 * 2, '\1'));
    Sviluppa();
    EXPECT_EQ(sistema.UltimoSviluppo().aEmulatore.Righe().size(), std::size_t{2});
    prove::ScriviFile(Temp("Emulatore.dat"), "");
    EXPECT_EQ(NumeroErrore([&] { sistema.GestSviluppo(); }), 9);
    EXPECT_EQ(sistema.UltimoSviluppo().aEmulatore.Righe(), std::vector<RigaEmulatore>(1))
        << "draws of an earlier run are gone";
    EXPECT_EQ(NumeroErrore([&] { sistema.GestSviluppoDaFileColonne(Temp("Emulatore.dat")); }), std::nullopt);
    ExpectFermo();
    std::filesystem::remove(Temp("Emulatore.dat"));
    Sviluppa();
}

TEST_F(OrdavelSviluppoGuasti, UnFileDiLavoroCheNonSiCancellaNonSiMescola)
{
    std::filesystem::remove(sistema.FileColonne());
    std::filesystem::create_directories(Temp("Sviluppo.col/piena"));
    Pronostico(3, 1, 4);
    EXPECT_FALSE(sistema.GestSviluppo());
    EXPECT_THAT(piattaforma.Messaggi(),
                ElementsAre(Fallimento("ModFunzGeneriche.KillFile",
                                       Errore(eErrore::accessoPercorso, sistema.FileColonne()))));
    EXPECT_FALSE(sistema.ColonneValide());
    ExpectFermo();
}

} // namespace
} // namespace ordavel
