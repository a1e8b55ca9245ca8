// OrdavelCondizioni_prova.cpp - conditions that are put in: from a text, from a dialog, where they go.

#include "ordavel/Ordavel.hpp"

#include "controllo/CondizioniProva.hpp"
#include "editor/F_LinkClose.hpp"
#include "editor/F_PuntiSuEmulatore.hpp"
#include "editor/F_PuntiSuFormule.hpp"
#include "editor/F_PuntiSuGruppiDiConsecutivi.hpp"
#include "editor/F_PuntiSuSequenze.hpp"
#include "editor/F_PuntisuColonna.hpp"

#include <algorithm>
#include <array>
#include <ostream>

namespace ordavel {
namespace {

using prove::Fallimento;
using prove::NomeTipo;
using prove::SegnaUnoEDue;
using prove::StatoLista;
using prove::Verticale;
using testing::ElementsAre;
using testing::IsEmpty;
using enum TipoCondizione;

constexpr std::string_view kInsCondizione = "OrdavelSis.InsCondizione";
constexpr std::string_view kSetPunti = "OrdavelSis.setPuntiSuFrm";

class OrdavelCondizioni : public prove::CondizioniProva {
protected:
    /// A row of five texts, which an insertion has to write over.
    void SporcaPrimaRiga()
    {
        Griglia().Riga(1) = {"", "vecchi", "vecchi", "vecchi", "vecchi"};
        Griglia().PoniAltezza(1, eAltezza::link);
    }
};

/// A kind, a text, and the cells that come of both.
struct CasoTesto {
    TipoCondizione tipo;
    std::string sParam;
    Condizione attese;

    friend std::ostream& operator<<(std::ostream& uscita, const CasoTesto& caso)
    {
        return uscita << caso.attese;
    }
};

class InserimentoDaTesto : public OrdavelCondizioni, public testing::WithParamInterface<CasoTesto> {};

std::vector<CasoTesto> CasiTesto()
{
    const std::string sEmulati =
        "[12]\r\nP0)   3 -   5\r\nP1)   0 -  12\r\nP2)   1 -   2\r\nP3)   0 -  12\r\n"
        "P4)   0 -  12\r\nP5)   0 -  12\r\nP6)   0 -  12\r\n";
    const std::string sSequenza = "P\r\nD\r\nPasso : 1\r\nConsec : 2-3\r\nConsecR : 4";
    return {
        {linkOpen, "1", {"LinkOpen", Verticale("LinkOpen"), "", "", ""}},
        {pariDispari, "Dispari\r\n1,2|3", {"Pari-Dispari", "Dispari", "1-2", "3", "1"}},
        {resto, "9\r\n0,8|3", {"Resto", "Resto a : 9", "0-8", "3", "1"}},
        {vortice, "Inverso\r\n1,6|3", {"Vortice", "Inverso", "1-6", "3", "1"}},
        {simmetrie, "Inverse\r\n1,2|3", {"Simmetrie", "Inverse", "1-2", "3", "1"}},
        {paralleli, "Inversi\r\n1,2|3", {"Paralleli", "Inversi", "1-2", "3", "1"}},
        {fulcro, "Pari\r\n1,2", {"Fulcro", "Pari", "1-2", "", " "}},
        {ampiezza, "10,20|5,25", {"Ampiezza", Verticale("Ampiezza"), "10-20", "5-25", "1"}},
        {distanzaMinima, "1,2", {"Distanza Minima", Verticale("DistanzaMin"), "1-2", "-", " "}},
        {distanzaMassima, "1,2|3,4", {"Distanza Massima", Verticale("DistanzaMax"), "1-2", "3-4", "1"}},
        {baricentro, "20,10", {"Baricentro", Verticale("Baricentro"), "20-10", "-", " "}},
        {posizioni, "7,9|1,2", {"Posizioni", "Casella :\r\n", "7-9", "1-2", "1"}},
        {consecutivi, "1,2|3", {"Consecutivi", Verticale("Consecutivi"), "1-2", "3", "1"}},
        {interruzioni, "0,6", {"Interruzioni", Verticale("Interruzioni"), "0-6", "", " "}},
        {consecutiviPD, "2,1|3,4", {"ConsecutiviPD", Verticale("ConsecutiviPD"), "1-2", "3-4", "1"}},
        {interruzioniPD, "5|", {"InterruzioniPD", Verticale("InterruzioniPD"), "5", "", " "}},
        {ponte, "|1", {"Ponte", Verticale("Ponte"), "", "1", "1"}},
        {cadenze, "1,2|3", {"Cadenze", Verticale("Cadenze"), "1-2", "3", "1"}},
        {decine, "1,2|3", {"Decine", Verticale("Decine"), "1-2", "3", "1"}},
        {figure, "1,2|3", {"Figure", Verticale("Figure"), "1-2", "3", "1"}},
        {cadenzeSpecifiche, "1|3", {"Cadenze Specifiche", Verticale("Cadenze "), "1", "3", "1"}},
        {figureSpecifiche, "1|3", {"Figure Specifiche", Verticale("Figure "), "1", "3", "1"}},
        {sequenze, "PD\r\n1,5|3|2,3|4", {"Sequenze", sSequenza, "1-5", "3", "1"}},
        {emulatore, "12]\r\nP0) 3 - 5\r\n\r\nP2)1-2", {"Emulatore", sEmulati, "", "", ""}},
    };
}

TEST_P(InserimentoDaTesto, ScriveLeCinqueCelleSenzaMostrareNulla)
{
    SporcaPrimaRiga();
    sistema.InsCondizione(GetParam().tipo, GetParam().sParam);
    EXPECT_EQ(Griglia().Riga(1), GetParam().attese);
    EXPECT_EQ(Griglia().Altezza(1), GetParam().tipo == linkOpen ? eAltezza::link : eAltezza::normale);
    EXPECT_EQ(Griglia().Corrente(), 1);
    EXPECT_THAT(piattaforma.aMostrati, IsEmpty());
    ExpectModificato(true);
}

INSTANTIATE_TEST_SUITE_P(Tipi, InserimentoDaTesto, testing::ValuesIn(CasiTesto()),
                         [](const auto& caso) { return NomeTipo(caso.param.tipo); });

TEST_F(OrdavelCondizioni, IlTestoDellaCellaDellEmulatoreNeDaZeroColonne)
{
    sistema.InsCondizione(emulatore, "[12]\r\n");
    EXPECT_EQ(Griglia().Riga(1).sParametri.substr(0, 21), "[0]\r\nP0)   0 -   0\r\nP");
}

TEST_F(OrdavelCondizioni, UnaVoceCheLaListaNonHaLasciaVuotiIParametri)
{
    sistema.InsCondizione(pariDispari, "Misti\r\n1");
    EXPECT_EQ(Griglia().Riga(1), (Condizione{"Pari-Dispari", "", "1", "", " "}));
}

TEST_F(OrdavelCondizioni, ITipiSenzaTestoNonInserisconoNulla)
{
    SporcaPrimaRiga();
    Griglia().PoniCorrente(5);
    StatoLista atteso = Stato();
    atteso.aAltezze[1] = eAltezza::normale;
    for (const TipoCondizione tipo : {peso, sommaCadenze, sommaDecine, sommaFigure, sommaNumeretti,
                                      sommaComplessiva, formule, decineSpecifiche, gruppiDiConsecutivi}) {
        sistema.InsCondizione(tipo, "1,2|3");
        EXPECT_EQ(Stato(), atteso) << NomeTipo(tipo);
    }
    EXPECT_THAT(piattaforma.aMostrati, IsEmpty());
}

TEST_F(OrdavelCondizioni, ITipiNumericiFallisconoENonInserisconoNulla)
{
    StatoLista prima = Stato();
    prima.aAltezze[1] = eAltezza::normale;
    const Messaggio riquadro = Fallimento(kSetPunti, Errore(eErrore::membro, "Combo1"));
    for (const TipoCondizione tipo : {simmetrieNum, paralleliNum}) {
        sistema.InsCondizione(tipo, "Dirette\r\n1");
        EXPECT_THAT(piattaforma.Messaggi(), ElementsAre(riquadro)) << NomeTipo(tipo);
    }
    EXPECT_EQ(Stato(), prima);
}

TEST_F(OrdavelCondizioni, UnTestoConUnValoreSenzaCasellaFallisceENonInserisceNulla)
{
    StatoLista prima = Stato();
    prima.aAltezze[1] = eAltezza::normale;
    sistema.InsCondizione(consecutivi, "1,7");
    EXPECT_THAT(piattaforma.Messaggi(), ElementsAre(Fallimento(kSetPunti, Errore(eErrore::indice))));
    sistema.InsCondizione(fulcro, "Pari");
    EXPECT_THAT(piattaforma.Messaggi(), ElementsAre(Fallimento(kSetPunti, Errore(eErrore::indice))));
    EXPECT_EQ(Stato(), prima);
}

TEST_F(OrdavelCondizioni, UnTipoCheNonEsisteScriveCinqueCelleVuote)
{
    SporcaPrimaRiga();
    for (const int nTipo : {0, 38, -1}) {
        Griglia().Riga(1).sPunti = "vecchi";
        sistema.InsCondizione(static_cast<TipoCondizione>(nTipo), "1");
        EXPECT_EQ(Griglia().Riga(1), Condizione{}) << nTipo;
    }
    EXPECT_EQ(Griglia().Altezza(1), eAltezza::normale);
    ExpectModificato(true);
}

// ---- dialogs ----

class InserimentoDaDialogo : public OrdavelCondizioni, public testing::WithParamInterface<TipoCondizione> {};

/// Points, and a digit where one is asked for.
void Scegli(F_PuntiSu& dialogo)
{
    if (dialogo.Riga().punti == eFamigliaPunti::intervallo) {
        dialogo.TxtPunti[1].Testo.Poni("40");
    } else {
        SegnaUnoEDue(dialogo);
    }
    if (dialogo.Riga().parametro == eControlloParametro::cifra) {
        dialogo.Combo1.Indice.Poni(4);
    }
}

TEST_P(InserimentoDaDialogo, ConfermatoScriveLeSueCelle)
{
    Condizione attese;
    piattaforma.Gioca<F_PuntiSu>([&](F_PuntiSu& dialogo) {
        Scegli(dialogo);
        attese = dialogo.GetParametri();
        dialogo.Premi(ePulsanteDialogo::conferma);
    });
    sistema.InsCondizione(GetParam(), "");
    EXPECT_EQ(Griglia().Riga(1), attese);
    EXPECT_THAT(piattaforma.aMostrati, ElementsAre(TrovaTipo(GetParam())->sDialogo));
    ExpectModificato(true);
}

TEST_P(InserimentoDaDialogo, AnnullatoONonConfermatoLasciaLaRiga)
{
    SporcaPrimaRiga();
    StatoLista atteso = Stato();
    atteso.aAltezze[1] = eAltezza::normale;
    Annulla<F_PuntiSu>(Scegli);
    sistema.InsCondizione(GetParam(), "");
    EXPECT_EQ(Stato(), atteso);
    piattaforma.Gioca<F_PuntiSu>(Scegli);
    sistema.InsCondizione(GetParam(), "");
    EXPECT_EQ(Stato(), atteso) << "its window was closed";
}

TEST_P(InserimentoDaDialogo, LaStatisticaRiceveIlTipoEIlGiocoPiuUno)
{
    sistema.Controlli().CmbTipoGioco.Indice.Poni(3);
    Annulla<F_PuntiSu>([](F_PuntiSu& dialogo) { dialogo.Premi(ePulsanteDialogo::statistica); });
    sistema.InsCondizione(GetParam(), "");
    const auto attesa = std::pair(TrovaTipo(GetParam())->nIdStatistica, std::int16_t{4});
    EXPECT_THAT(piattaforma.statistica.aMostrate, ElementsAre(attesa));
    EXPECT_TRUE(Griglia().Vuota(1));
}

std::vector<TipoCondizione> TipiComuni()
{
    std::vector<TipoCondizione> aTipi;
    std::transform(TabellaDialoghi().begin(), TabellaDialoghi().end(), std::back_inserter(aTipi),
                   [](const RigaDialogo& riga) { return riga.tipo; });
    return aTipi;
}

INSTANTIATE_TEST_SUITE_P(Tipi, InserimentoDaDialogo, testing::ValuesIn(TipiComuni()),
                         [](const auto& caso) { return NomeTipo(caso.param); });

TEST_F(OrdavelCondizioni, LaSequenzaSiComponeNelDialogo)
{
    Conferma<F_PuntiSuSequenze>([](F_PuntiSuSequenze& dialogo) {
        dialogo.Command1(0);
        dialogo.Command1(1);
        dialogo.CmbPasso.Indice.Poni(1);
        SegnaUnoEDue(dialogo);
        dialogo.ChkConsec(0).Segnata.Poni(true);
    });
    sistema.InsCondizione(sequenze, "");
    EXPECT_EQ(Griglia().Riga(1),
              (Condizione{"Sequenze", "P\r\nD\r\nPasso : 2\r\nConsec : 0", "1-2", "", " "}));
}

TEST_F(OrdavelCondizioni, IGruppiDiConsecutiviComincianoConUnaRigaVuota)
{
    Conferma<F_PuntiSuGruppiDiConsecutivi>([](F_PuntiSuGruppiDiConsecutivi& dialogo) {
        dialogo.CmbLenGruppo.Indice.Poni(1);
        dialogo.CmbRecupero.Indice.Poni(20);
        SegnaUnoEDue(dialogo);
        dialogo.ChkRecupero(0).Segnata.Poni(true);
    });
    sistema.InsCondizione(gruppiDiConsecutivi, "");
    EXPECT_EQ(Griglia().Riga(1),
              (Condizione{"GruppiDiConsecutivi", "\r\nGruppoDa : 3\r\nPasso : 1", "1-2", "0", "20"}));
}

TEST_F(OrdavelCondizioni, LaFormulaDeveFareLaClasse)
{
    piattaforma.Gioca<F_PuntiSuFormule>([](F_PuntiSuFormule& dialogo) {
        dialogo.CmbFormula[0].Indice.Poni(2);
        dialogo.CmbFormula[2].Indice.Poni(3);
        dialogo.Premi(ePulsanteDialogo::conferma);
        EXPECT_TRUE(dialogo.Visibile.Valore());
        dialogo.CmbFormula[1].Indice.Poni(1);
        dialogo.Premi(ePulsanteDialogo::conferma);
    });
    sistema.InsCondizione(formule, "");
    EXPECT_THAT(piattaforma.Messaggi(), testing::SizeIs(1));
    EXPECT_EQ(Griglia().Riga(1), (Condizione{"Formule", Verticale("Formule"), "2-1-3", "", " "}));
}

TEST_F(OrdavelCondizioni, UnNumeroTroppoGrandeNellEmulatoreEUnFallimentoDellInserimento)
{
    StatoLista prima = Stato();
    prima.aAltezze[1] = eAltezza::normale;
    Conferma<F_PuntiSuEmulatore>([](F_PuntiSuEmulatore& dialogo) {
        dialogo.Text2.Testo.Poni("500");
        dialogo.MSFlexGrid1.Scrivi({1, 1}, "99999999999");
    });
    sistema.InsCondizione(emulatore, "");
    EXPECT_THAT(piattaforma.Messaggi(), ElementsAre(Fallimento(kInsCondizione, Errore(eErrore::overflow))));
    EXPECT_EQ(Stato(), prima);
}

TEST_F(OrdavelCondizioni, LaColonnaOffreSoloINumeriDelSistema)
{
    Conferma<F_PuntisuColonna>([](F_PuntisuColonna& dialogo) {
        std::vector<int> aOfferti;
        for (std::int32_t n = 1; n <= kNumeroMassimo; ++n) {
            if (dialogo.SelnovoNumeri1.Abilitati.Valore()(n) != 0) {
                aOfferti.push_back(n);
            }
        }
        EXPECT_THAT(aOfferti, ElementsAre(1, 2, 3, 4, 5, 6, 7));
        for (std::int32_t n = 1; n <= 5; ++n) {
            dialogo.SelnovoNumeri1.Seleziona(n, true);
        }
        SegnaUnoEDue(dialogo);
    });
    sistema.InsCondizione(puntiColonna, "");
    EXPECT_EQ(Griglia().Riga(1), (Condizione{"Punti Col.", "01-02-03-04-\r\n05", "1-2", "", " "}));
}

TEST_F(OrdavelCondizioni, LaColonnaSiChiedeAncheConUnTesto)
{
    Conferma<F_PuntisuColonna>(SegnaUnoEDue);
    sistema.InsCondizione(puntiColonna, "3|4");
    EXPECT_THAT(piattaforma.aMostrati, ElementsAre("F_PuntisuColonna"));
    EXPECT_EQ(Griglia().Riga(1), (Condizione{"Punti Col.", "", "1-2", "", " "}));
}

// ---- ends of links ----

class InserimentoLink : public OrdavelCondizioni {
protected:
    /// What the dialog offers at the end of these rows; `aScelte` are selected.
    std::vector<std::string> Chiudi(const std::vector<std::string>& aChiavi,
                                    const std::vector<std::size_t>& aScelte)
    {
        std::vector<std::string> aOfferti;
        Chiavi(aChiavi);
        Griglia().PoniCorrente(kCondizioniMassime);
        Conferma<F_LinkClose>([&](F_LinkClose& dialogo) {
            aOfferti = dialogo.List1.Voci.Valore();
            for (const std::size_t nPosto : aScelte) {
                dialogo.List1.Seleziona(nPosto, true);
            }
        });
        sistema.InsCondizione(linkClose, "1|2");
        return aOfferti;
    }
};

TEST_F(InserimentoLink, LaFineOffreQuanteCondizioniStannoDentro)
{
    EXPECT_THAT(Chiudi({"Peso", "LinkOpen", "Peso", "Ponte"}, {0, 2}), ElementsAre("0", "1", "2"));
    EXPECT_EQ(Griglia().Riga(5), (Condizione{"LinkClose", Verticale("LinkClose"), "0-2", "", ""}));
    EXPECT_EQ(Griglia().Altezza(5), eAltezza::link);
    EXPECT_EQ(Griglia().Corrente(), 5);
    ExpectModificato(true);
}

TEST_F(InserimentoLink, AppenaDopoLInizioOffreSoloZero)
{
    EXPECT_THAT(Chiudi({"LinkOpen"}, {}), ElementsAre("0"));
    EXPECT_EQ(Griglia().Riga(2).sPunti, "") << "nothing selected is legal";
}

TEST_F(InserimentoLink, SenzaInizioContaTutteLeRighe)
{
    EXPECT_THAT(Chiudi({"Peso", "LinkClose"}, {1}), ElementsAre("0", "1", "2"));
    EXPECT_EQ(Griglia().Riga(3).sCondizione, "LinkClose");
}

TEST_F(InserimentoLink, OltreNovantaLaListaSiFerma)
{
    EXPECT_THAT(Chiudi(std::vector<std::string>(120, "Peso"), {90}), testing::SizeIs(91));
    EXPECT_EQ(Griglia().Riga(121).sPunti, "90");
}

TEST_F(InserimentoLink, AnnullatoLasciaLaRigaConLAltezzaNormale)
{
    SporcaPrimaRiga();
    StatoLista atteso = Stato();
    atteso.aAltezze[1] = eAltezza::normale;
    Annulla<F_LinkClose>([](F_LinkClose& dialogo) { dialogo.List1.Seleziona(0, true); });
    sistema.InsCondizione(linkClose, "");
    EXPECT_EQ(Stato(), atteso);
}

} // namespace
} // namespace ordavel
