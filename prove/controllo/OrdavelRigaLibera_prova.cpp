// OrdavelRigaLibera_prova.cpp - where a new condition goes, what is on show then, and the life of the statistics.

#include "ordavel/Ordavel.hpp"

#include "controllo/CondizioniProva.hpp"

namespace ordavel {
namespace {

using prove::StatoLista;
using prove::Verticale;
using testing::ElementsAre;
using enum TipoCondizione;

const Condizione kNuova{"Consecutivi", Verticale("Consecutivi"), "1", "", " "};

class OrdavelRigaLibera : public prove::CondizioniProva {
protected:
    void InserisciNuova() { sistema.InsCondizione(consecutivi, "1"); }
    void AnnullaNuova()
    {
        Annulla<F_PuntiSu>(prove::SegnaUnoEDue);
        sistema.InsCondizione(consecutivi, "");
    }
    void InVista(std::int32_t nPrima) { sistema.Controlli().GrdCond.PrimaColonna.Poni(nPrima); }
};

TEST_F(OrdavelRigaLibera, LeCondizioniSiAccodano)
{
    Riempi(3);
    for (const std::int32_t nCorrente : {1, 3, 4, 2000}) {
        Griglia().PoniCorrente(nCorrente);
        Griglia().Riga(4) = {};
        InserisciNuova();
        EXPECT_EQ(Griglia().Riga(4), kNuova) << nCorrente;
        EXPECT_EQ(Griglia().Corrente(), 4);
    }
    EXPECT_THAT(Punti(5), ElementsAre("1", "2", "3", "1", ""));
}

TEST_F(OrdavelRigaLibera, NelBucoApertoEScelto)
{
    Riempi(5);
    sistema.SetColonnaGrid(3);
    sistema.InserisciRiga();
    InserisciNuova();
    EXPECT_THAT(Punti(7), ElementsAre("1", "2", "1", "3", "4", "5", ""));
    EXPECT_EQ(Griglia().Corrente(), 3);
}

TEST_F(OrdavelRigaLibera, UnBucoNonSceltoResta)
{
    Riempi(5);
    sistema.SetColonnaGrid(3);
    sistema.InserisciRiga();
    sistema.SetColonnaGrid(2);
    InserisciNuova();
    EXPECT_THAT(Punti(7), ElementsAre("1", "2", "", "3", "4", "5", "1"));
}

TEST_F(OrdavelRigaLibera, UnBucoInPrimaRigaEDietroLeIntestazioni)
{
    Riempi(2);
    sistema.SetColonnaGrid(1);
    sistema.InserisciRiga();
    InserisciNuova();
    EXPECT_THAT(Punti(4), ElementsAre("1", "1", "2", ""));
    EXPECT_EQ(Griglia().Riga(1), kNuova);
}

TEST_F(OrdavelRigaLibera, LUltimaRigaSiRiempie)
{
    Riempi(1999);
    InserisciNuova();
    EXPECT_EQ(Griglia().Riga(2000), kNuova);
    EXPECT_EQ(Griglia().Corrente(), 2000);
    EXPECT_EQ(Griglia().Riga(0).sCondizione, "Condizione");
}

TEST_F(OrdavelRigaLibera, ConDuemilaCondizioniSiScriveSulleIntestazioni)
{
    Riempi(2000);
    InVista(500);
    StatoLista atteso = Stato();
    InserisciNuova();
    atteso.aRighe[0] = kNuova;
    atteso.aAltezze[0] = eAltezza::normale;
    atteso.nCorrente = 0;
    atteso.nPrimaInVista = 1;
    atteso.bModificato = true;
    atteso.bColonneValide = false;
    EXPECT_EQ(Stato(), atteso);
    sistema.InsCondizione(linkOpen, "");
    EXPECT_EQ(Griglia().Riga(0).sCondizione, "LinkOpen");
    EXPECT_EQ(Griglia().Altezza(0), eAltezza::link);
}

TEST_F(OrdavelRigaLibera, UnaCondizioneNuovaHaLAltezzaNormale)
{
    Griglia().PoniAltezza(1, eAltezza::link);
    Griglia().PoniAltezza(2, eAltezza::link);
    InserisciNuova();
    EXPECT_EQ(Griglia().Altezza(1), eAltezza::normale);
    EXPECT_EQ(Griglia().Altezza(2), eAltezza::link) << "the height of a row that was not written";
}

TEST_F(OrdavelRigaLibera, UnaRigaInVistaNonScorre)
{
    Riempi(8);
    InserisciNuova();
    EXPECT_EQ(PrimaInVista(), 1) << "rows 1 to 10";
    InserisciNuova();
    EXPECT_EQ(PrimaInVista(), 2) << "the row behind it is wanted too";
}

TEST_F(OrdavelRigaLibera, UnaRigaFuoriVistaDiventaLaPrima)
{
    Riempi(30);
    InserisciNuova();
    EXPECT_EQ(PrimaInVista(), 31);
    Griglia().Riga(3) = {};
    Griglia().PoniCorrente(3);
    InserisciNuova();
    EXPECT_EQ(PrimaInVista(), 3);
    EXPECT_EQ(Griglia().Riga(3), kNuova);
}

TEST_F(OrdavelRigaLibera, LaVistaScorreAncheSePoiSiAnnulla)
{
    Riempi(30);
    StatoLista atteso = Stato();
    AnnullaNuova();
    atteso.nPrimaInVista = 31;
    atteso.aAltezze[31] = eAltezza::normale;
    EXPECT_EQ(Stato(), atteso);
}

TEST_F(OrdavelRigaLibera, IlDialogoVedeGiaLaRigaInVista)
{
    Riempi(30);
    Griglia().PoniAltezza(31, eAltezza::link);
    Annulla<F_PuntiSu>([this](F_PuntiSu&) {
        EXPECT_EQ(PrimaInVista(), 31);
        EXPECT_EQ(Griglia().Altezza(31), eAltezza::normale);
        EXPECT_EQ(Griglia().Corrente(), 1) << "selected only once it is written";
    });
    sistema.InsCondizione(consecutivi, "");
}

TEST_F(OrdavelRigaLibera, UnSecondoEmulatoreSiInserisceLoStesso)
{
    sistema.InsCondizione(emulatore, "3]");
    sistema.InsCondizione(emulatore, "4]");
    EXPECT_EQ(Griglia().Riga(2).sCondizione, "Emulatore");
    EXPECT_EQ(sistema.GetQuantitaColDaEmulareFromGrid(), 4);
}

TEST(OrdavelStatistica, NasceEFinisceConIlSistema)
{
    prove::PiattaformaProva piattaforma;
    {
        const Ordavel sistema(piattaforma);
        EXPECT_EQ(piattaforma.statistica.nAvvii, 1);
        EXPECT_EQ(piattaforma.statistica.nFermate, 0);
    }
    EXPECT_EQ(piattaforma.statistica.nAvvii, 1);
    EXPECT_EQ(piattaforma.statistica.nFermate, 1);
}

} // namespace
} // namespace ordavel
