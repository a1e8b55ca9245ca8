// OrdavelModifica_prova.cpp - conditions that are edited: every kind, and the rows that no dialog takes.

#include "ordavel/Ordavel.hpp"

#include "comune/Fallimenti.hpp"
#include "controllo/CondizioniProva.hpp"
#include "editor/F_LinkClose.hpp"
#include "editor/F_PuntiSuEmulatore.hpp"
#include "editor/F_PuntiSuFormule.hpp"
#include "editor/F_PuntiSuSequenze.hpp"
#include "editor/F_PuntisuColonna.hpp"

#include <algorithm>
#include <cctype>

namespace ordavel {
namespace {

using prove::NomeTipo;
using prove::NumeroErrore;
using prove::RigaScelta;
using prove::StatoLista;
using prove::Verticale;
using testing::ElementsAre;
using testing::IsEmpty;
using enum TipoCondizione;

/// The letters of a key the other way round.
std::string CasoScambiato(std::string sChiave)
{
    std::transform(sChiave.begin(), sChiave.end(), sChiave.begin(), [](unsigned char c) {
        return static_cast<char>(std::isupper(c) != 0 ? std::tolower(c) : std::toupper(c));
    });
    return sChiave;
}

/// CONFERMA, whatever dialog it is.
void Premi(DialogoCondizione& dialogo)
{
    dialogo.Premi(ePulsanteDialogo::conferma);
}

class OrdavelModifica : public prove::CondizioniProva {
protected:
    /// Puts a row at the end of a list of four, and selects it.
    void Scegli(const Condizione& celle)
    {
        Riempi(3);
        Griglia().Riga(4) = celle;
        Griglia().PoniAltezza(4, eAltezza::link);
        sistema.SetColonnaGrid(4);
    }

    /// Opens the selected row and confirms it as it is.
    void Conferma()
    {
        piattaforma.Gioca<DialogoCondizione>(Premi);
        sistema.ModificaCondizione();
    }

    /// Opens a row that no dialog takes: nothing is shown, and nothing changes.
    void ExpectNulla(const Condizione& celle)
    {
        Scegli(celle);
        const StatoLista prima = Stato();
        sistema.ModificaCondizione();
        EXPECT_EQ(Stato(), prima) << celle;
        EXPECT_THAT(piattaforma.aMostrati, IsEmpty());
    }
};

class ModificaDiOgniTipo : public OrdavelModifica, public testing::WithParamInterface<TipoCondizione> {};

TEST_P(ModificaDiOgniTipo, ConfermatoComEDaLeStesseCelle)
{
    for (const bool bRecupero : {false, true}) {
        Scegli(RigaScelta(GetParam(), bRecupero));
        Conferma();
        EXPECT_EQ(Griglia().Riga(4), RigaScelta(GetParam(), bRecupero));
    }
    EXPECT_THAT(piattaforma.aMostrati, testing::Each(TrovaTipo(GetParam())->sDialogo));
    EXPECT_EQ(Griglia().Altezza(4), eAltezza::normale);
    EXPECT_EQ(Griglia().Corrente(), 4);
    EXPECT_THAT(Punti(3), ElementsAre("1", "2", "3"));
    ExpectModificato(true);
}

TEST_P(ModificaDiOgniTipo, AnnullatoLasciaLaRiga)
{
    Scegli(RigaScelta(GetParam(), true));
    StatoLista atteso = Stato();
    Annulla<DialogoCondizione>([](DialogoCondizione& dialogo) { dialogo.CmbRecupero.Indice.Poni(1); });
    sistema.ModificaCondizione();
    atteso.aAltezze[4] = eAltezza::normale;
    EXPECT_EQ(Stato(), atteso);
}

TEST_P(ModificaDiOgniTipo, LeMaiuscoleDellaChiaveNonContano)
{
    Condizione celle = RigaScelta(GetParam());
    celle.sCondizione = CasoScambiato(celle.sCondizione);
    Scegli(celle);
    Conferma();
    EXPECT_EQ(Griglia().Riga(4), RigaScelta(GetParam()));
}

TEST_P(ModificaDiOgniTipo, IlGruppoDiRecuperoSiCambia)
{
    Scegli(RigaScelta(GetParam(), true));
    piattaforma.Gioca<DialogoCondizione>([](DialogoCondizione& dialogo) {
        dialogo.CmbRecupero.Indice.Poni(dialogo.CmbRecupero.Indice.Valore() < 0 ? -1 : 12);
        Premi(dialogo);
    });
    sistema.ModificaCondizione();
    Condizione attese = RigaScelta(GetParam(), true);
    attese.sQuadro = GetParam() == emulatore ? "" : "12";
    EXPECT_EQ(Griglia().Riga(4), attese);
}

/// All kinds but the links.
std::vector<TipoCondizione> TipiConDialogo()
{
    std::vector<TipoCondizione> aTipi;
    for (int n = 3; n <= kTipiCondizione; ++n) {
        aTipi.push_back(static_cast<TipoCondizione>(n));
    }
    return aTipi;
}

INSTANTIATE_TEST_SUITE_P(Tipi, ModificaDiOgniTipo, testing::ValuesIn(TipiConDialogo()),
                         [](const auto& caso) { return NomeTipo(caso.param); });

TEST_F(OrdavelModifica, UnInizioDiLinkNonSiModifica)
{
    ExpectNulla(RigaScelta(linkOpen));
    ExpectNulla({"linkopen", "", "", "", ""});
}

TEST_F(OrdavelModifica, UnaRigaVuotaOSconosciutaNonSiModifica)
{
    ExpectNulla({});
    ExpectNulla({"", Verticale("Ponte"), "1-2", "", " "});
    ExpectNulla({"Peso ", "Caselle :\r\n1", "1-2", "-", " "});
    ExpectNulla({"Condizione", "", "", "", ""});
}

TEST_F(OrdavelModifica, LeIntestazioniNonSiModificano)
{
    sistema.SetColonnaGrid(0);
    const StatoLista prima = Stato();
    sistema.ModificaCondizione();
    EXPECT_EQ(Stato(), prima);
}

TEST_F(OrdavelModifica, UnaRigaFuoriVistaDiventaLaPrima)
{
    Riempi(40);
    Griglia().Riga(35) = RigaScelta(peso);
    Griglia().PoniCorrente(35);
    Conferma();
    EXPECT_EQ(PrimaInVista(), 35);
}

TEST_F(OrdavelModifica, UnValoreSenzaCasellaFallisceCon9ELasciaLaRiga)
{
    Scegli({"Ponte", Verticale("Ponte"), "1-7", "", " "});
    const StatoLista prima = Stato();
    EXPECT_EQ(NumeroErrore([&] { sistema.ModificaCondizione(); }), 9);
    EXPECT_EQ(Stato(), prima);
    EXPECT_THAT(piattaforma.aMostrati, IsEmpty());
}

TEST_F(OrdavelModifica, UnNumeroTroppoGrandeFallisceCon6)
{
    Scegli({"Ponte", Verticale("Ponte"), "99999999999", "", " "});
    EXPECT_EQ(NumeroErrore([&] { sistema.ModificaCondizione(); }), 6);
}

TEST_F(OrdavelModifica, UnaModificaGuastaSiPuoRifare)
{
    Scegli({"Punti Col.", "01-91", "1", "", " "});
    EXPECT_EQ(NumeroErrore([&] { sistema.ModificaCondizione(); }), 9);
    Griglia().Riga(4).sParametri = "01-90";
    Conferma();
    EXPECT_EQ(Griglia().Riga(4).sParametri, "01-90");
}

TEST_F(OrdavelModifica, LeParoleDaUnRecordNonSiRitrovanoNeiParalleli)
{
    Scegli({"Paralleli", "Dirette", "1-2", "", ""});
    Conferma();
    EXPECT_EQ(Griglia().Riga(4), (Condizione{"Paralleli", "", "1-2", "", " "}));
}

TEST_F(OrdavelModifica, IlRestoRileggePrimaIlDivisore)
{
    Scegli({"Resto", "Resto a : 9", "0-8", "7", "3"});
    Conferma();
    EXPECT_EQ(Griglia().Riga(4), (Condizione{"Resto", "Resto a : 9", "0-8", "7", "3"}));
}

TEST_F(OrdavelModifica, GliZeriDavantiDiUnRecordSparisconoEIlGruppoVuotoTornaUnBlank)
{
    Scegli({"Decine", Verticale("Decine"), "01-02", "", ""});
    Conferma();
    EXPECT_EQ(Griglia().Riga(4), (Condizione{"Decine", Verticale("Decine"), "1-2", "", " "}));
}

TEST_F(OrdavelModifica, LaColonnaMostraAncheINumeriUscitiDalSistema)
{
    Scegli({"Punti Col.", "01-02-80-90", "1", "", " "});
    piattaforma.Gioca<F_PuntisuColonna>([](F_PuntisuColonna& dialogo) {
        EXPECT_TRUE(dialogo.SelnovoNumeri1.Scelto(90));
        EXPECT_EQ(dialogo.SelnovoNumeri1.Abilitati.Valore()(90), 0);
        dialogo.SelnovoNumeri1.Seleziona(3, true);
        dialogo.SelnovoNumeri1_DblClick();
    });
    sistema.ModificaCondizione();
    EXPECT_EQ(Griglia().Riga(4).sParametri, "01-02-03-80-\r\n90");
}

TEST_F(OrdavelModifica, LEmulatoreTieneISuoiMassimi)
{
    Scegli(RigaScelta(emulatore));
    piattaforma.Gioca<F_PuntiSuEmulatore>([](F_PuntiSuEmulatore& dialogo) {
        EXPECT_EQ(dialogo.Text2.Testo.Valore(), "12");
        EXPECT_EQ(dialogo.MSFlexGrid1.Testo({1, 2}), "9");
        dialogo.Text2.Testo.Poni("30");
        Premi(dialogo);
    });
    sistema.ModificaCondizione();
    EXPECT_EQ(Griglia().Riga(4).sParametri.substr(0, 36), "[30]\r\nP0)   0 -  30\r\nP1)   1 -  30\r\n");
}

// ---- ends of links ----

class ModificaLink : public OrdavelModifica {
protected:
    /// A link around three conditions, whose end is selected and accepts these counts.
    void Link(const std::string& sPunti)
    {
        Chiavi({"Peso", "LinkOpen", "Peso", "Ponte", "Decine"});
        Griglia().Riga(6) = {"LinkClose", Verticale("LinkClose"), sPunti, "", ""};
        sistema.SetColonnaGrid(6);
    }

    /// Opens it, and confirms when `aScelte` are selected as well.
    void Aggiungi(const std::vector<std::size_t>& aScelte)
    {
        piattaforma.Gioca<F_LinkClose>([&](F_LinkClose& dialogo) {
            EXPECT_THAT(dialogo.List1.Voci.Valore(), ElementsAre("0", "1", "2", "3", "0", "1", "2", "3"));
            for (const std::size_t nPosto : aScelte) {
                dialogo.List1.Seleziona(nPosto, true);
            }
            Premi(dialogo);
        });
        sistema.ModificaCondizione();
    }
};

TEST_F(ModificaLink, IConteggiSiOffronoDueVolteEContaIlPosto)
{
    Link("1-3");
    Aggiungi({5});
    EXPECT_EQ(Griglia().Riga(6), (Condizione{"LinkClose", Verticale("LinkClose"), "1-3-5", "", ""}));
    EXPECT_EQ(Griglia().Altezza(6), eAltezza::link);
    EXPECT_EQ(Griglia().Corrente(), 6);
    ExpectModificato(true);
}

TEST_F(ModificaLink, UnPostoOltreIPrimiConteggiVaPerso)
{
    Link("0-3-5");
    Aggiungi({});
    EXPECT_EQ(Griglia().Riga(6).sPunti, "0-3") << "read while the counts stood there once";
}

TEST_F(ModificaLink, AnnullatoLasciaLaRigaConLAltezzaNormale)
{
    Link("1");
    Griglia().PoniAltezza(6, eAltezza::link);
    StatoLista atteso = Stato();
    Annulla<F_LinkClose>([](F_LinkClose& dialogo) { dialogo.List1.Seleziona(0, true); });
    sistema.ModificaCondizione();
    atteso.aAltezze[6] = eAltezza::normale;
    EXPECT_EQ(Stato(), atteso);
}

} // namespace
} // namespace ordavel
