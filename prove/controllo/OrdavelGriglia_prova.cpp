// OrdavelGriglia_prova.cpp - how the conditions look: rows, widths, the highlight of the selected one.

#include "ordavel/Ordavel.hpp"

#include "comune/Fallimenti.hpp"
#include "controllo/SistemaProva.hpp"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <limits>
#include <map>
#include <set>

namespace ordavel {
namespace {

using prove::Fallimento;
using prove::NumeroErrore;
using testing::ElementsAre;
using testing::IsEmpty;

/// Every letter has that width.
std::function<double(std::string_view)> Lettere(double nLarghezza)
{
    return [nLarghezza](std::string_view sTesto) { return nLarghezza * static_cast<double>(sTesto.size()); };
}

/// What a grid shows in its column 0, and how high its rows are.
TEST(RigheGriglia, HannoLeLoroEtichetteEAltezze)
{
    std::vector<std::pair<std::string_view, std::int32_t>> aRighe;
    for (const RigaGriglia& riga : kRigheGriglia) {
        aRighe.emplace_back(riga.sEtichetta, riga.nAltezzeTesto);
    }
    EXPECT_THAT(aRighe,
                ElementsAre(std::pair("Numero", 0), std::pair("Condizione", 2), std::pair("Parametri", 15),
                            std::pair("Punti", 0), std::pair("Recupero", 0), std::pair("Quadro Rec.", 0)));
}

TEST(RigheGriglia, LeEtichetteSonoLeTestateDellElenco)
{
    const GrigliaCondizioni griglia;
    const Condizione& testate = griglia.Riga(0);
    EXPECT_EQ(testate.sCondizione, kRigheGriglia[1].sEtichetta);
    EXPECT_EQ(testate.sParametri, kRigheGriglia[2].sEtichetta);
    EXPECT_EQ(testate.sPunti, kRigheGriglia[3].sEtichetta);
    EXPECT_EQ(testate.sRecupero, kRigheGriglia[4].sEtichetta);
    EXPECT_EQ(testate.sQuadro, kRigheGriglia[5].sEtichetta);
}

TEST(RigheGriglia, CaratteriColoriETestiDiMisura)
{
    EXPECT_EQ(kRigheFisse, 2);
    EXPECT_EQ(kColonneFisse, 1);
    EXPECT_EQ(kCondizioniMassime, 2000);
    EXPECT_EQ(kCarattereGriglia, "Courier New");
    EXPECT_EQ(kCarattereEtichette, "Arial");
    EXPECT_EQ(kSfondoCondizione, 0xFF8080);
    EXPECT_EQ(kTestoCondizione, 0xFFFFFF);
    EXPECT_EQ(kTestoLarghezza, std::string(17, 'X'));
    EXPECT_EQ(kTestoLungo, std::string(11, 'W'));
    EXPECT_EQ(kTestoCorto, std::string(5, 'W'));
}

TEST(Pannello, HaLeSueScritteFisse)
{
    EXPECT_EQ(kTestoIntegrale, "Integrali :");
    EXPECT_EQ(kTestoSviluppate, "Sviluppate :");
    EXPECT_EQ(kTestoCondizionate, "Condizionate :");
    EXPECT_EQ(kTestoNumSel, "Numeri :");
    EXPECT_EQ(kTestoClasse, "Classe");
    EXPECT_EQ(kTestoRid, "Rid N-K");
    EXPECT_EQ(kTestoMotore, "Motore");
    EXPECT_EQ(kTestoSviluppo, "SVILUPPO IN CORSO");
}

class OrdavelGriglia : public testing::Test, protected prove::SistemaProva {
protected:
    [[nodiscard]] VistaCondizioni& Vista() { return sistema.Controlli().GrdCond; }
    [[nodiscard]] std::int32_t Evidenziata() { return Vista().Evidenziata.Valore(); }

    /// Whatever widths there are among all conditions.
    [[nodiscard]] std::set<std::int32_t> Larghezze() const
    {
        std::set<std::int32_t> larghezze;
        for (std::int32_t nId = 1; nId <= kCondizioniMassime; ++nId) {
            larghezze.insert(sistema.LarghezzaColonna(nId));
        }
        return larghezze;
    }

    /// The grid is laid out again over letters of a width.
    void Disponi(double nLettera)
    {
        piattaforma.larghezza = Lettere(nLettera);
        sistema.NuovoSistema();
    }

    /// Presses a button of the toolbar until it changes nothing any more.
    std::int32_t FinoInFondo(std::string_view sPulsante)
    {
        std::int32_t nPrima = 0;
        while (nPrima != sistema.LarghezzaColonna(1)) {
            nPrima = sistema.LarghezzaColonna(1);
            sistema.Toolbar2_ButtonClick(sPulsante);
        }
        return nPrima;
    }

    /// From now on, every column that is painted.
    void GuardaEvidenza()
    {
        Vista().Evidenziata.Ascolta([this] { aEvidenziate.push_back(Evidenziata()); });
    }

    std::vector<std::int32_t> aEvidenziate;
};

TEST_F(OrdavelGriglia, AllaNascitaTutteSonoLargheDiciassetteLettere)
{
    EXPECT_THAT(Larghezze(), ElementsAre(17 * 8));
    EXPECT_EQ(Vista().Larghezza.Valore(), 17 * 8);
    EXPECT_EQ(Vista().PrimaColonna.Valore(), 1);
    EXPECT_EQ(Evidenziata(), 0);
    EXPECT_EQ(sistema.Controlli().LabColoreColSel.Valore(), kColoreEvidenza);
}

TEST_F(OrdavelGriglia, LaLarghezzaSiArrotondaAlPari)
{
    for (const auto& [nLettera, nLarghezza] :
         std::map<double, std::int32_t>{{10, 170}, {10.3, 175}, {0.5, 8}, {1.5, 26}, {2.5, 42}, {3.5, 60}}) {
        Disponi(nLettera);
        EXPECT_THAT(Larghezze(), ElementsAre(nLarghezza)) << nLettera;
    }
}

TEST_F(OrdavelGriglia, UnNuovoSistemaRiparteDaCapo)
{
    sistema.GetGridCond().Riga(3).sCondizione = "Ponte";
    sistema.GetGridCond().PoniAltezza(3, eAltezza::link);
    sistema.SetColonnaGrid(300);
    sistema.VariaLarghezzaColonne(1);
    sistema.NuovoSistema();
    EXPECT_THAT(Larghezze(), ElementsAre(136));
    EXPECT_EQ(Vista().PrimaColonna.Valore(), 1);
    EXPECT_EQ(Evidenziata(), 0);
    EXPECT_EQ(sistema.GetGridCond().Corrente(), 1);
    EXPECT_TRUE(sistema.GetGridCond().Vuota(3));
}

TEST_F(OrdavelGriglia, UnaMisuraImpossibileSiMostraELaGrigliaRestaVuota)
{
    sistema.GetGridCond().Riga(1).sCondizione = "Ponte";
    piattaforma.larghezza = [](std::string_view sTesto) {
        return sTesto == kTestoLarghezza ? std::numeric_limits<double>::infinity() : 8.0;
    };
    sistema.NuovoSistema();
    EXPECT_THAT(piattaforma.Messaggi(),
                ElementsAre(Fallimento("F_EleEst.LayOutGrid", Errore(eErrore::overflow))));
    EXPECT_THAT(Larghezze(), ElementsAre(136));
    EXPECT_TRUE(sistema.GetGridCond().Vuota(1));
}

TEST_F(OrdavelGriglia, OgniTipoDiAltezzaHaLaSuaLarghezza)
{
    sistema.GetGridCond().PoniAltezza(2, eAltezza::normale);
    sistema.GetGridCond().PoniAltezza(3, eAltezza::link);
    EXPECT_EQ(sistema.LarghezzaColonna(1), 136);
    EXPECT_EQ(sistema.LarghezzaColonna(2), 11 * 8);
    EXPECT_EQ(sistema.LarghezzaColonna(3), 5 * 8);
    EXPECT_EQ(sistema.LarghezzaColonna(2000), 136);
}

TEST_F(OrdavelGriglia, FuoriDallaGrigliaNonCeLarghezza)
{
    EXPECT_EQ(NumeroErrore([&] { (void)sistema.LarghezzaColonna(-1); }), 9);
    EXPECT_EQ(NumeroErrore([&] { (void)sistema.LarghezzaColonna(2001); }), 9);
}

TEST_F(OrdavelGriglia, LeLarghezzeDelleCondizioniSiMisuranoAlCaricamento)
{
    class Vuoto : public ArchivioProprieta {
        [[nodiscard]] std::optional<std::string> Leggi(std::string_view /*sChiave*/) const override
        {
            return {};
        }
        void Scrivi(std::string_view /*sChiave*/, const std::string& /*sValore*/) override {}
    };
    sistema.GetGridCond().PoniAltezza(2, eAltezza::normale);
    sistema.GetGridCond().PoniAltezza(3, eAltezza::link);
    piattaforma.larghezza = Lettere(10.5);
    EXPECT_EQ(sistema.LarghezzaColonna(2), 88);
    sistema.LeggiProprieta(Vuoto());
    EXPECT_EQ(sistema.LarghezzaColonna(2), 116);
    EXPECT_EQ(sistema.LarghezzaColonna(3), 52);
    EXPECT_EQ(sistema.LarghezzaColonna(1), 136);
}

TEST_F(OrdavelGriglia, UnaCondizioneEUnLinkPrendonoLaLoroLarghezza)
{
    sistema.InsCondizione(TipoCondizione::ponte, "1");
    sistema.InsCondizione(TipoCondizione::linkOpen, "");
    EXPECT_EQ(sistema.LarghezzaColonna(1), 88);
    EXPECT_EQ(sistema.LarghezzaColonna(2), 40);
    EXPECT_EQ(sistema.LarghezzaColonna(3), 136);
}

TEST_F(OrdavelGriglia, IPulsantiAllarganoEStringonoDiUnaLettera)
{
    sistema.Toolbar2_ButtonClick("IncrGrid");
    EXPECT_THAT(Larghezze(), ElementsAre(144));
    sistema.Toolbar2_ButtonClick("DecrGrid");
    sistema.Toolbar2_ButtonClick("DecrGrid");
    EXPECT_THAT(Larghezze(), ElementsAre(128));
}

TEST_F(OrdavelGriglia, TutteDiventanoLargheComeLaPrimaEUnaLettera)
{
    sistema.GetGridCond().PoniAltezza(1, eAltezza::link);
    sistema.GetGridCond().PoniAltezza(7, eAltezza::normale);
    sistema.VariaLarghezzaColonne(1);
    EXPECT_THAT(Larghezze(), ElementsAre(48));
}

TEST_F(OrdavelGriglia, QuandoLaVistaLoSenteTutteSonoGiaLarghe)
{
    sistema.GetGridCond().PoniAltezza(7, eAltezza::link);
    std::set<std::int32_t> viste;
    Vista().Larghezza.Ascolta([&] { viste = Larghezze(); });
    sistema.VariaLarghezzaColonne(-1);
    EXPECT_THAT(viste, ElementsAre(128));
}

TEST_F(OrdavelGriglia, SiStringeFinoASopraUnaLetteraESiAllargaFinoACinquanta)
{
    EXPECT_EQ(FinoInFondo("DecrGrid"), 16);
    EXPECT_EQ(FinoInFondo("IncrGrid"), 400);
    EXPECT_THAT(piattaforma.Messaggi(), IsEmpty());
}

TEST_F(OrdavelGriglia, ILimitiValgonoAncheConLettereSpezzate)
{
    Disponi(2.5);
    EXPECT_EQ(sistema.LarghezzaColonna(1), 42);
    EXPECT_EQ(FinoInFondo("DecrGrid"), 4);
    EXPECT_EQ(FinoInFondo("IncrGrid"), 124);
}

TEST_F(OrdavelGriglia, AlLimiteNonCambiaNulla)
{
    FinoInFondo("IncrGrid");
    sistema.GetGridCond().PoniAltezza(2, eAltezza::link);
    sistema.VariaLarghezzaColonne(1);
    EXPECT_THAT(Larghezze(), ElementsAre(40, 400));
    sistema.GetGridCond().PoniAltezza(1, eAltezza::link);
    piattaforma.larghezza = Lettere(20);
    sistema.VariaLarghezzaColonne(-1);
    EXPECT_THAT(Larghezze(), ElementsAre(40, 400));
}

TEST_F(OrdavelGriglia, OgniVariazioneSiArrotondaAlPari)
{
    Disponi(2.5);
    std::vector<std::int32_t> aLarghezze;
    for (const int nVerso : {1, 1, -1, -1, -1}) {
        sistema.VariaLarghezzaColonne(nVerso);
        aLarghezze.push_back(sistema.LarghezzaColonna(1));
    }
    EXPECT_THAT(aLarghezze, ElementsAre(44, 46, 44, 42, 40));
}

RC_GTEST_FIXTURE_PROP(OrdavelGriglia, LaLarghezzaStaSempreFraILimiti, (std::vector<bool> aVersi))
{
    const int nLettera = *rc::gen::inRange(1, 30);
    piattaforma.larghezza = Lettere(nLettera);
    sistema.NuovoSistema();
    for (const bool bPiu : aVersi) {
        sistema.VariaLarghezzaColonne(bPiu ? 1 : -1);
        RC_ASSERT(sistema.LarghezzaColonna(1) > nLettera);
        RC_ASSERT(sistema.LarghezzaColonna(1) <= 50 * nLettera);
    }
}

TEST_F(OrdavelGriglia, LaColonnaSceltaSiEvidenziaUnaVolta)
{
    GuardaEvidenza();
    for (const std::int32_t nId : {3, 3, 3, 7, 7, 3}) {
        sistema.GrdCond_EnterCell(nId);
        EXPECT_EQ(sistema.GetGridCond().Corrente(), nId);
    }
    EXPECT_THAT(aEvidenziate, ElementsAre(3, 7, 3));
}

TEST_F(OrdavelGriglia, AncheLaPrimaSiEvidenziaInUnaGrigliaNuova)
{
    GuardaEvidenza();
    sistema.GrdCond_EnterCell(1);
    sistema.NuovoSistema();
    sistema.SetColonnaGrid(1);
    EXPECT_THAT(aEvidenziate, ElementsAre(1, 0, 1));
}

TEST_F(OrdavelGriglia, UnaCondizioneInseritaSiEvidenzia)
{
    GuardaEvidenza();
    sistema.InsCondizione(TipoCondizione::ponte, "1");
    sistema.InsCondizione(TipoCondizione::ponte, "2");
    EXPECT_THAT(aEvidenziate, ElementsAre(1, 2));
}

TEST_F(OrdavelGriglia, UnSistemaApertoEvidenziaLaPrimaColonna)
{
    ASSERT_TRUE(Salva(cartella / "s.sic"));
    sistema.SetColonnaGrid(5);
    GuardaEvidenza();
    ASSERT_TRUE(Apri(cartella / "s.sic"));
    EXPECT_THAT(aEvidenziate, ElementsAre(0, 1));
}

TEST_F(OrdavelGriglia, LaSceltaDellUtenteNonScorreQuellaDelSistemaSi)
{
    Vista().ColonneIntere.Poni(4);
    sistema.GrdCond_EnterCell(9);
    EXPECT_EQ(Vista().PrimaColonna.Valore(), 1);
    sistema.SetColonnaGrid(9);
    EXPECT_EQ(Vista().PrimaColonna.Valore(), 7);
    sistema.SetColonnaGrid(8);
    EXPECT_EQ(Vista().PrimaColonna.Valore(), 7);
    sistema.SetColonnaGrid(2);
    EXPECT_EQ(Vista().PrimaColonna.Valore(), 2);
}

TEST_F(OrdavelGriglia, UnaColonnaCheNonCeNonCambiaNulla)
{
    sistema.SetColonnaGrid(4);
    for (const std::int32_t nId : {-1, 2001}) {
        EXPECT_EQ(NumeroErrore([&] { sistema.GrdCond_EnterCell(nId); }), 9);
        EXPECT_EQ(NumeroErrore([&] { sistema.SetColonnaGrid(nId); }), 9);
    }
    EXPECT_EQ(sistema.GetGridCond().Corrente(), 4);
    EXPECT_EQ(Evidenziata(), 4);
    EXPECT_EQ(Vista().PrimaColonna.Valore(), 1);
}

TEST_F(OrdavelGriglia, LeTestateSiScelgonoSenzaEvidenza)
{
    sistema.SetColonnaGrid(4);
    sistema.SetColonnaGrid(0);
    EXPECT_EQ(sistema.GetGridCond().Corrente(), 0);
    EXPECT_EQ(Evidenziata(), 0);
    EXPECT_EQ(Vista().PrimaColonna.Valore(), 1);
}

} // namespace
} // namespace ordavel
