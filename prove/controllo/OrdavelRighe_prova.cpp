// OrdavelRighe_prova.cpp - rows that are opened and deleted, and what a run refuses.

#include "ordavel/Ordavel.hpp"

#include "comune/Fallimenti.hpp"
#include "controllo/CondizioniProva.hpp"
#include "editor/F_DelCondizioni.hpp"

#include <functional>

namespace ordavel {
namespace {

using prove::Avviso;
using prove::StatoLista;
using testing::ElementsAre;
using testing::IsEmpty;

class OrdavelRighe : public prove::CondizioniProva {
protected:
    /// Deletes the rows nDalla to nAlla through the dialog.
    void EliminaRange(std::int32_t nDalla, std::int32_t nAlla)
    {
        Conferma<F_DelCondizioni>([=](F_DelCondizioni& dialogo) {
            dialogo.CmbDalla.Indice.Poni(nDalla - 1);
            dialogo.CmbAlla.Indice.Poni(nAlla - 1);
        });
        sistema.EliminaRangeCondizioni();
    }

    /// How many rows the dialog offers.
    std::size_t Offerte()
    {
        std::size_t nOfferte = 0;
        Annulla<F_DelCondizioni>([&](F_DelCondizioni& dialogo) {
            EXPECT_EQ(dialogo.CmbDalla.Voci.Valore(), dialogo.CmbAlla.Voci.Valore());
            nOfferte = dialogo.CmbDalla.Voci.Valore().size();
        });
        sistema.EliminaRangeCondizioni();
        return nOfferte;
    }
};

TEST_F(OrdavelRighe, UnaRigaSiApreDovEScelta)
{
    Riempi(4);
    Griglia().PoniAltezza(2, eAltezza::link);
    sistema.SetColonnaGrid(2);
    sistema.InserisciRiga();
    EXPECT_THAT(Punti(6), ElementsAre("1", "", "2", "3", "4", ""));
    EXPECT_EQ(Griglia().Riga(2), Condizione{});
    EXPECT_EQ(Griglia().Altezza(2), eAltezza::link) << "heights belong to their places";
    EXPECT_EQ(Griglia().Altezza(3), eAltezza::comune);
    EXPECT_EQ(Griglia().Corrente(), 2);
    ExpectModificato(false);
}

TEST_F(OrdavelRighe, ConLaListaPienaLUltimaCondizioneVaPersa)
{
    Riempi(2000);
    sistema.SetColonnaGrid(1999);
    sistema.InserisciRiga();
    EXPECT_EQ(Griglia().Riga(2000).sPunti, "1999");
    EXPECT_TRUE(Griglia().Vuota(1999));
    EXPECT_EQ(Griglia().Riga(1998).sPunti, "1998");
    ExpectModificato(false);
}

TEST_F(OrdavelRighe, AprireLaRigaDietroLUltimaNonCambiaNulla)
{
    Riempi(4);
    sistema.SetColonnaGrid(5);
    const StatoLista prima = Stato();
    sistema.InserisciRiga();
    EXPECT_EQ(Stato(), prima);
}

TEST_F(OrdavelRighe, EliminareRisaleLeRigheEHaCambiatoIlSistema)
{
    Riempi(4);
    Griglia().PoniAltezza(2, eAltezza::link);
    Griglia().PoniAltezza(3, eAltezza::link);
    sistema.SetColonnaGrid(2);
    sistema.EliminaCondizione();
    EXPECT_THAT(Punti(4), ElementsAre("1", "3", "4", ""));
    EXPECT_EQ(Griglia().Riga(4), Condizione{});
    EXPECT_EQ(Griglia().Altezza(2), eAltezza::normale);
    EXPECT_EQ(Griglia().Altezza(3), eAltezza::link) << "heights belong to their places";
    EXPECT_EQ(Griglia().Corrente(), 2);
    ExpectModificato(true);
}

TEST_F(OrdavelRighe, EliminareUnaRigaVuotaInFondoTogliLUltimaCondizione)
{
    Riempi(4);
    sistema.SetColonnaGrid(9);
    sistema.EliminaCondizione();
    EXPECT_THAT(Punti(5), ElementsAre("1", "2", "3", "", ""));
    ExpectModificato(true);
}

TEST_F(OrdavelRighe, EliminareDaUnaListaVuotaHaCambiatoIlSistemaSoltanto)
{
    sistema.SetColonnaGrid(3);
    Griglia().PoniAltezza(3, eAltezza::link);
    StatoLista atteso = Stato();
    sistema.EliminaCondizione();
    atteso.bModificato = true;
    atteso.bColonneValide = false;
    EXPECT_EQ(Stato(), atteso);
}

TEST_F(OrdavelRighe, EliminareUnBucoLoChiude)
{
    Riempi(4);
    sistema.SetColonnaGrid(2);
    const StatoLista prima = Stato();
    sistema.InserisciRiga();
    sistema.EliminaCondizione();
    EXPECT_EQ(Stato().aRighe, prima.aRighe);
}

// ---- runs of rows ----

TEST_F(OrdavelRighe, UnTrattoSiEliminaSenzaCambiareIlSistema)
{
    Riempi(10);
    Griglia().PoniAltezza(3, eAltezza::link);
    StatoLista atteso = Stato();
    EliminaRange(3, 5);
    for (std::size_t nRiga = 3; nRiga <= 10; ++nRiga) {
        atteso.aRighe[nRiga] = nRiga <= 7 ? atteso.aRighe[nRiga + 3] : Condizione{};
    }
    atteso.nCorrente = 7;
    EXPECT_EQ(Stato(), atteso);
    ExpectModificato(false);
}

TEST_F(OrdavelRighe, EliminareTuttoSceglieLeIntestazioni)
{
    Riempi(30);
    sistema.SetColonnaGrid(30);
    EliminaRange(1, 30);
    EXPECT_TRUE(Griglia().Vuota(1));
    EXPECT_EQ(Griglia().Corrente(), 0);
    EXPECT_EQ(PrimaInVista(), 1);
    EXPECT_EQ(Griglia().Riga(0).sCondizione, "Condizione");
}

TEST_F(OrdavelRighe, LeRigheDietroUnBucoNonRisalgono)
{
    Riempi(7);
    Griglia().Riga(5) = {};
    EliminaRange(2, 3);
    EXPECT_THAT(Punti(8), ElementsAre("1", "4", "", "", "", "6", "7", ""));
    EXPECT_EQ(Griglia().Corrente(), 2);
}

TEST_F(OrdavelRighe, SiOffronoLeRigheDavantiAllaRigaLibera)
{
    EXPECT_EQ(Offerte(), 0U);
    Riempi(7);
    EXPECT_EQ(Offerte(), 7U);
    sistema.SetColonnaGrid(4);
    sistema.InserisciRiga();
    EXPECT_EQ(Offerte(), 3U) << "the hole is the free row";
    sistema.SetColonnaGrid(2);
    EXPECT_EQ(Offerte(), 8U);
}

TEST_F(OrdavelRighe, UnaListaPienaNonOffreRighe)
{
    Riempi(2000);
    EXPECT_EQ(Offerte(), 0U);
}

TEST_F(OrdavelRighe, ILimitiSiControllanoPrimaDiEliminare)
{
    Riempi(4);
    const StatoLista prima = Stato();
    piattaforma.Gioca<F_DelCondizioni>([](F_DelCondizioni& dialogo) {
        dialogo.Premi(ePulsanteDialogo::conferma);
        dialogo.CmbDalla.Indice.Poni(2);
        dialogo.CmbAlla.Indice.Poni(1);
        dialogo.Premi(ePulsanteDialogo::conferma);
        EXPECT_TRUE(dialogo.Visibile.Valore());
        dialogo.Premi(ePulsanteDialogo::chiudi);
    });
    sistema.EliminaRangeCondizioni();
    EXPECT_THAT(piattaforma.Messaggi(),
                ElementsAre(Avviso("Impostare i limiti"), Avviso("Parametri incoerenti")));
    EXPECT_EQ(Stato(), prima);
}

TEST_F(OrdavelRighe, AnnullatoNonElimina)
{
    Riempi(4);
    const StatoLista prima = Stato();
    Annulla<F_DelCondizioni>([](F_DelCondizioni& dialogo) {
        dialogo.CmbDalla.Indice.Poni(0);
        dialogo.CmbAlla.Indice.Poni(1);
    });
    sistema.EliminaRangeCondizioni();
    EXPECT_EQ(Stato(), prima);
}

// ---- during a run ----

class OrdavelRigheInCorsa : public prove::CondizioniProva {
protected:
    OrdavelRigheInCorsa()
    {
        Pronostico(5, 1, 25);
        for (std::int32_t nRiga = 1; nRiga <= 3; ++nRiga) {
            Griglia().Riga(nRiga) = prove::RigaScelta(TipoCondizione::peso);
        }
        sistema.SetColonnaGrid(2);
    }

    /// All commands that work on conditions.
    [[nodiscard]] std::vector<std::function<void()>> Comandi()
    {
        return {[this] { sistema.InsCondizione(TipoCondizione::consecutivi, "1"); },
                [this] { sistema.InsCondizione(TipoCondizione::peso, ""); },
                [this] { sistema.InsCondizione(TipoCondizione::linkOpen, ""); },
                [this] { sistema.ModificaCondizione(); },
                [this] { sistema.InserisciRiga(); },
                [this] { sistema.EliminaCondizione(); },
                [this] { sistema.EliminaRangeCondizioni(); },
                [this] { sistema.ApplicaImpostaPunti(); },
                [this] { sistema.InserisciColonneDaFile(); },
                [this] { sistema.GestQuadroRecuperi(); },
                [this] { sistema.SalvaCondizioni(); },
                [this] { sistema.InsCondizioni(); }};
    }

    /// Gives every command whenever events are let run, and expects nothing of it.
    void ComandaDuranteLaCorsa()
    {
        piattaforma.eventi = [this] {
            const StatoLista prima = Stato();
            for (const auto& comando : Comandi()) {
                comando();
                EXPECT_EQ(Stato(), prima);
            }
            ++m_nProve;
        };
    }

    int m_nProve = 0;
};

TEST_F(OrdavelRigheInCorsa, NessunComandoFaNullaDuranteUnoSviluppo)
{
    const StatoLista prima = Stato();
    ComandaDuranteLaCorsa();
    Sviluppa();
    EXPECT_EQ(m_nProve, 6);
    EXPECT_THAT(piattaforma.aMostrati, IsEmpty());
    EXPECT_EQ(Stato(), prima);
}

TEST_F(OrdavelRigheInCorsa, NessunComandoFaNullaDuranteUnFiltro)
{
    const std::vector<Condizione> aPrima = Stato().aRighe;
    prove::ScriviFile(cartella / "fonte.col", prove::ByteDi({{1, 2, 3, 4, 5}}));
    ComandaDuranteLaCorsa();
    Filtra(cartella / "fonte.col");
    EXPECT_GE(m_nProve, 1);
    EXPECT_THAT(piattaforma.aMostrati, IsEmpty());
    EXPECT_EQ(Stato().aRighe, aPrima);
}

TEST_F(OrdavelRigheInCorsa, DopoLaCorsaIComandiTornano)
{
    ComandaDuranteLaCorsa();
    Sviluppa();
    sistema.EliminaCondizione();
    sistema.InsCondizione(TipoCondizione::consecutivi, "1");
    EXPECT_EQ(Griglia().Riga(3).sCondizione, "Consecutivi");
    ExpectModificato(true);
}

} // namespace
} // namespace ordavel
