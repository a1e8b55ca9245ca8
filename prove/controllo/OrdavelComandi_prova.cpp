// OrdavelComandi_prova.cpp - every button of the toolbar, in every state in which it can be pressed.

#include "ordavel/Ordavel.hpp"

#include "analisi/F_EffettoCond.hpp"
#include "analisi/F_NavigaSistema.hpp"
#include "analisi/F_Riduzione.hpp"
#include "analisi/F_Spoglio.hpp"
#include "controllo/ComandiProva.hpp"
#include "controllo/F_VisualizzaColonne.hpp"
#include "editor/F_ApriCondizioni.hpp"
#include "editor/F_ImpostaPunti.hpp"
#include "editor/F_LinkClose.hpp"
#include "editor/F_QuadroRecuperi.hpp"

#include <algorithm>
#include <cctype>

namespace ordavel {
namespace {

using prove::Domanda;
using prove::eStato;
using prove::Fallimento;
using prove::FineSviluppo;
using prove::Foto;
using prove::StatoLista;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;
using enum TipoCondizione;

constexpr std::string_view kOrigine = "OrdavelSis.Toolbar2_ButtonClick";

/// A key as it stands, in capitals or in small letters.
std::string Scritta(std::string_view sChiave, eStato stato)
{
    std::string sScritta(sChiave);
    std::transform(sScritta.begin(), sScritta.end(), sScritta.begin(), [stato](unsigned char c) {
        const int nLettera = stato == eStato::aperto ? std::toupper(c) : std::tolower(c);
        return static_cast<char>(stato == eStato::nuovo ? c : nLettera);
    });
    return sScritta;
}

/// Keys are written otherwise in each state: as they stand, in capitals, in small letters.
class OrdavelComandi : public prove::ComandiProva, public testing::WithParamInterface<eStato> {
protected:
    OrdavelComandi() { Porta(GetParam()); }

    void Premi(std::string_view sChiave) { sistema.Toolbar2_ButtonClick(Scritta(sChiave, GetParam())); }

    [[nodiscard]] std::size_t ColonneAttese() { return GetParam() == eStato::nuovo ? 0 : 7; }
};

INSTANTIATE_TEST_SUITE_P(Stati, OrdavelComandi,
                         testing::Values(eStato::nuovo, eStato::aperto, eStato::sviluppato),
                         [](const auto& caso) { return prove::NomeStato(caso.param); });

TEST_P(OrdavelComandi, SiPossonoPremereTuttiMenoQuelliSenzaOggetto)
{
    std::vector<std::string> aSpenti;
    for (const PulsanteStrumento& pulsante : Controlli().Toolbar2.aPulsanti) {
        if (!pulsante.Abilitato.Valore()) {
            aSpenti.push_back(pulsante.sChiave);
        }
    }
    const std::map<eStato, std::vector<std::string>> aAttesi{
        {eStato::nuovo, {"FiltraSvilPrec", "Stop", "VisualizzaColonne"}},
        {eStato::aperto, {"FiltraSvilPrec", "Stop"}},
        {eStato::sviluppato, {"Stop"}}};
    EXPECT_EQ(aSpenti, aAttesi.at(GetParam()));
}

TEST_P(OrdavelComandi, UnaChiaveIgnotaOUnaVoceDiMenuNonFannoNulla)
{
    const Foto prima = Fotografa();
    for (const std::string_view sChiave :
         {"", "Pulisci", "Open ", "Ope", "Salva", "SalvaConNome", "PuntisuPeso", "DelCondizioni"}) {
        Premi(sChiave);
        EXPECT_EQ(Fotografa(), prima) << sChiave;
    }
    EXPECT_THAT(piattaforma.aMostrati, IsEmpty());
    EXPECT_EQ(piattaforma.nBeep, 0);
}

// ---- the system ----

TEST_P(OrdavelComandi, OpenApreIlSistemaScelto)
{
    const std::string sAltro = cartella / "altro.sic";
    ASSERT_TRUE(Salva(sAltro));
    sistema.SelezionaNumero(90, true);
    piattaforma.Scegli(sAltro);
    Premi("Open");
    EXPECT_EQ(sistema.ContaNumeriSel(), 7);
    EXPECT_EQ(sistema.FileSistema(), sAltro);
    EXPECT_TRUE(VoceAbilitata("Salva"));
    EXPECT_FALSE(Abilitato("FiltraSvilPrec"));
    EXPECT_THAT(piattaforma.Dialoghi(), SizeIs(1));
}

TEST_P(OrdavelComandi, OpenRinunciatoNonCambiaNulla)
{
    const Foto prima = Fotografa();
    piattaforma.Scegli("");
    Premi("Open");
    EXPECT_EQ(Fotografa(), prima);
}

TEST_P(OrdavelComandi, SaveRiscriveIlFileApertoOSuona)
{
    const bool bAperto = GetParam() == eStato::aperto;
    const std::string sPrima = prove::LeggiFile(m_sSistema);
    Modifica();
    Premi("Save");
    EXPECT_EQ(piattaforma.nBeep, bAperto ? 0 : 1);
    EXPECT_EQ(sistema.Modificato(), !bAperto);
    EXPECT_EQ(prove::LeggiFile(m_sSistema) != sPrima, bAperto);
    EXPECT_THAT(piattaforma.Dialoghi(), IsEmpty());
}

TEST_P(OrdavelComandi, NewVuotaIlSistemaSenzaChiedereSeNonECambiato)
{
    Premi("New");
    EXPECT_TRUE(Griglia().Vuota(1));
    EXPECT_EQ(sistema.ContaNumeriSel(), 0);
    EXPECT_EQ(sistema.FileSistema(), "");
    EXPECT_EQ(Lettere(), "-----");
}

TEST_P(OrdavelComandi, SelNumeriMostraIlSelettoreFinoACheEPremuto)
{
    Foto prima = Fotografa();
    for (const bool bPremuto : {true, false}) {
        Controlli().Toolbar2.Pulsante("SelNumeri").Premuto.Poni(bPremuto);
        Premi("SelNumeri");
        EXPECT_EQ(Controlli().SelnovoNumeri1.Visibile.Valore(), bPremuto);
    }
    EXPECT_EQ(Fotografa(), prima);
}

// ---- conditions ----

TEST_P(OrdavelComandi, CondizioniSenzaUltimoTipoDaSoloLEvento)
{
    int nEventi = 0;
    sistema.Eventi().CondizioniPressed = [&] { ++nEventi; };
    const Foto prima = Fotografa();
    Premi("Condizioni");
    EXPECT_EQ(nEventi, 1);
    EXPECT_EQ(Fotografa(), prima);
}

TEST_P(OrdavelComandi, CondizioniRipeteLUltimoTipoEPoiDaLEvento)
{
    std::vector<std::string> aVisti;
    sistema.Eventi().CondizioniPressed = [&] { aVisti.push_back(Griglia().Riga(4).sCondizione); };
    Annulla<F_PuntiSu>([](F_PuntiSu& /*dialogo*/) {});
    sistema.Toolbar2_ButtonMenuClick("PuntisuPeso");
    Annulla<F_PuntiSu>([](F_PuntiSu& /*dialogo*/) {});
    Premi("Condizioni");
    ConfermaCelle(prove::RigaScelta(peso));
    Premi("Condizioni");
    EXPECT_THAT(piattaforma.aMostrati, ElementsAre("F_PuntiSuPeso", "F_PuntiSuPeso", "F_PuntiSuPeso"));
    EXPECT_THAT(aVisti, ElementsAre("", "Peso"));
    ExpectModificato(true);
}

TEST_P(OrdavelComandi, CondizioniSenzaChiAscoltaNonFaNulla)
{
    const Foto prima = Fotografa();
    Premi("Condizioni");
    EXPECT_EQ(Fotografa(), prima);
}

TEST_P(OrdavelComandi, PuntiMassiviOffreLeCondizioniENeCambiaIPunti)
{
    StatoLista atteso = Stato();
    Conferma<F_ImpostaPunti>([](F_ImpostaPunti& dialogo) {
        EXPECT_THAT(dialogo.CmbDalla.Voci.Valore(), ElementsAre("1", "2", "3"));
        EXPECT_EQ(dialogo.CmbAlla.Voci.Valore(), dialogo.CmbDalla.Voci.Valore());
        dialogo.CmbDalla.Indice.Poni(1);
        dialogo.CmbAlla.Indice.Poni(2);
        dialogo.Pannello.ChkPunti(2).Segnata.Poni(true);
    });
    Premi("puntimassivi");
    atteso.aRighe[2].sPunti = atteso.aRighe[3].sPunti = "2";
    atteso.aRighe[2].sQuadro = atteso.aRighe[3].sQuadro = " ";
    atteso.nCorrente = 3;
    EXPECT_EQ(Stato(), atteso);
}

TEST_P(OrdavelComandi, PuntiMassiviAnnullatoNonCambiaNulla)
{
    const Foto prima = Fotografa();
    Annulla<F_ImpostaPunti>([](F_ImpostaPunti& dialogo) { dialogo.CmbDalla.Indice.Poni(0); });
    Premi("puntimassivi");
    EXPECT_EQ(Fotografa(), prima);
}

TEST_P(OrdavelComandi, GestCondizioniMostraIFileDiCondizioni)
{
    const Foto prima = Fotografa();
    Annulla<F_ApriCondizioni>([this](F_ApriCondizioni& dialogo) {
        EXPECT_EQ(dialogo.LabPercorso.Testo.Valore(), sistema.DirSistemi());
    });
    Premi("GestCondizioni");
    EXPECT_EQ(Fotografa(), prima);
}

TEST_P(OrdavelComandi, InserisciApreUnaRigaVuotaDovEScelta)
{
    Foto atteso = Fotografa();
    sistema.SetColonnaGrid(2);
    Premi("Inserisci");
    EXPECT_TRUE(Griglia().Vuota(2));
    EXPECT_EQ(Griglia().Riga(4), atteso.lista.aRighe[3]);
    EXPECT_EQ(sistema.Modificato(), atteso.lista.bModificato);
    Premi("Inserisci");
    EXPECT_TRUE(Griglia().Vuota(3));
}

TEST_P(OrdavelComandi, EditRiapreLaCondizioneScelta)
{
    sistema.SetColonnaGrid(3);
    Conferma<F_PuntiSu>([](F_PuntiSu& dialogo) {
        EXPECT_EQ(dialogo.Tipo(), consecutivi);
        for (const int nValore : {0, 1, 2, 3, 4, 5}) {
            EXPECT_TRUE(dialogo.ChkPunti(nValore).Segnata.Valore());
            dialogo.ChkPunti(nValore).Segnata.Poni(false);
        }
    });
    Premi("Edit");
    EXPECT_EQ(Griglia().Riga(3).sPunti, "6");
    ExpectModificato(true);
}

TEST_P(OrdavelComandi, EditDiUnaRigaVuotaNonFaNulla)
{
    sistema.SetColonnaGrid(9);
    const Foto prima = Fotografa();
    Premi("Edit");
    EXPECT_EQ(Fotografa(), prima);
}

TEST_P(OrdavelComandi, UnFallimentoCheNessunoHaFermatoSiMostraColNomeDelComando)
{
    Griglia().Riga(1).sPunti = "7";
    sistema.SetColonnaGrid(1);
    const Foto prima = Fotografa();
    Premi("Edit");
    EXPECT_THAT(piattaforma.Messaggi(), ElementsAre(Fallimento(kOrigine, Errore(eErrore::indice))));
    EXPECT_EQ(Fotografa(), prima);
}

TEST_P(OrdavelComandi, DeleteEliminaLaCondizioneScelta)
{
    sistema.SetColonnaGrid(1);
    Premi("Delete");
    EXPECT_EQ(Griglia().Riga(2).sCondizione, "Consecutivi");
    EXPECT_TRUE(Griglia().Vuota(3));
    ExpectModificato(true);
}

TEST_P(OrdavelComandi, QuadroRecuperiScriveVentiRighe)
{
    Conferma<F_QuadroRecuperi>([](F_QuadroRecuperi& dialogo) {
        dialogo.Gruppo(2).TxtMin.Testo.Poni("1");
        dialogo.Gruppo(2).TxtMax.Testo.Poni("3");
    });
    Premi("QuadroRecuperi");
    ASSERT_THAT(sistema.GetLbQuadroRec().Voci.Valore(), SizeIs(20));
    EXPECT_EQ(sistema.GetLbQuadroRec().Voci.Valore()[1], "1,3,-1");
    ExpectModificato(true);
}

TEST_P(OrdavelComandi, LinkOpenELinkCloseChiudonoUnaParentesi)
{
    Premi("LinkOpen");
    Conferma<F_LinkClose>([](F_LinkClose& dialogo) {
        EXPECT_THAT(dialogo.List1.Voci.Valore(), ElementsAre("0"));
        dialogo.List1.Seleziona(0, true);
    });
    Premi("LinkClose");
    EXPECT_EQ(Griglia().Riga(4).sCondizione, "LinkOpen");
    EXPECT_EQ(Griglia().Riga(5).sCondizione, "LinkClose");
    EXPECT_EQ(Griglia().Riga(5).sPunti, "0");
    EXPECT_TRUE(sistema.VerificaCoerenzaLink());
    ExpectModificato(true);
}

TEST_P(OrdavelComandi, ILinkNonSiRicordanoComeUltimoTipo)
{
    Premi("LinkOpen");
    Premi("Condizioni");
    EXPECT_TRUE(Griglia().Vuota(5));
    EXPECT_THAT(piattaforma.aMostrati, IsEmpty());
}

// ---- runs ----

TEST_P(OrdavelComandi, SviluppaCondSviluppa)
{
    Premi("SviluppaCond");
    EXPECT_THAT(piattaforma.Messaggi(), ElementsAre(FineSviluppo()));
    EXPECT_EQ(ByteColonne().size(), 7U * 20);
    EXPECT_TRUE(Abilitato("FiltraSvilPrec"));
    ExpectModificato(false);
}

TEST_P(OrdavelComandi, FiltraSvilPrecFiltraIlFileDiLavoro)
{
    Griglia().Riga(1).sPunti = "0";
    const std::string sLettere = Lettere();
    Premi("FiltraSvilPrec");
    if (ColonneAttese() == 0) {
        EXPECT_THAT(piattaforma.Messaggi(), IsEmpty()) << "there is no working file";
    } else {
        EXPECT_THAT(piattaforma.Messaggi(), ElementsAre(FineSviluppo()));
        EXPECT_THAT(Conteggi(), ElementsAre("7", "2")) << "only two columns have no bridge";
    }
    EXPECT_EQ(Lettere(), sLettere);
}

TEST_P(OrdavelComandi, StopChiedeEDaFermoNonCambiaNulla)
{
    const Foto prima = Fotografa();
    for (const eRisposta risposta : {eRisposta::no, eRisposta::si}) {
        piattaforma.Rispondi(risposta);
        Premi("Stop");
        EXPECT_THAT(piattaforma.Messaggi(), ElementsAre(Domanda("Interrompere ?")));
    }
    EXPECT_EQ(Fotografa(), prima);
}

// ---- what is only looked at ----

TEST_P(OrdavelComandi, VisualizzaColonneMostraLeColonneDelFileDiLavoro)
{
    const Foto prima = Fotografa();
    Annulla<F_VisualizzaColonne>([this](F_VisualizzaColonne& dialogo) {
        EXPECT_EQ(dialogo.ListView1.Righe.Valore().size(), ColonneAttese());
        EXPECT_EQ(dialogo.Slider1.Abilitato.Valore(), ColonneAttese() > 0);
    });
    Premi("VisualizzaColonne");
    EXPECT_EQ(Fotografa(), prima);
}

TEST_P(OrdavelComandi, IncrGridEDecrGridCambianoLaLarghezzaDiUnaLettera)
{
    Premi("DecrGrid"); // brings all columns to one width
    const std::int32_t nLarghezza = sistema.LarghezzaColonna(1);
    Premi("IncrGrid");
    EXPECT_EQ(sistema.LarghezzaColonna(1), nLarghezza + 8);
    Premi("IncrGrid");
    EXPECT_EQ(sistema.LarghezzaColonna(2000), nLarghezza + 16);
    Premi("DecrGrid");
    EXPECT_EQ(sistema.LarghezzaColonna(1), nLarghezza + 8);
}

TEST_P(OrdavelComandi, NavigaMostraAccantoLeCondizioni)
{
    const Foto prima = Fotografa();
    Premi("Naviga");
    Premi("Naviga");
    EXPECT_THAT(piattaforma.aMostrati, ElementsAre("F_NavigaSistema", "F_NavigaSistema"));
    EXPECT_EQ(Fotografa(), prima);
}

TEST_P(OrdavelComandi, LaRiduzioneSiMostraENonCambiaNulla)
{
    const Foto prima = Fotografa();
    piattaforma.Gioca<F_Riduzione>([](F_Riduzione& /*dialogo*/) {});
    Premi("Riduzione");
    EXPECT_EQ(Fotografa(), prima);
}

TEST_P(OrdavelComandi, LoSpoglioSiMostraENonCambiaNulla)
{
    const Foto prima = Fotografa();
    piattaforma.Gioca<F_Spoglio>([](F_Spoglio& dialogo) { dialogo.XPButton1(1); });
    Premi("ConfrontoCondSuCol");
    EXPECT_EQ(Fotografa(), prima);
}

TEST_P(OrdavelComandi, LEffettoDelleCondizioniSiMostraENonCambiaNulla)
{
    const Foto prima = Fotografa();
    std::size_t nRighe = 0;
    piattaforma.Gioca<F_EffettoCond>(
        [&](F_EffettoCond& dialogo) { nRighe = dialogo.ListView1.Righe.Valore().size(); });
    Premi("EffettoCondizioni");
    const auto& aCondizioni = sistema.UltimoSviluppo().aCondizioni;
    EXPECT_EQ(nRighe, aCondizioni.front().Tipo == TipoCondizione::nessuno ? 0 : aCondizioni.size());
    EXPECT_EQ(Fotografa(), prima);
}

TEST_P(OrdavelComandi, StampaSkDaIlGiocoQuandoCiSonoColonne)
{
    std::vector<std::string> aGiochi;
    sistema.Eventi().StampaSk = [&](std::string& sGioco) { aGiochi.push_back(sGioco); };
    const Foto prima = Fotografa();
    Premi("StampaSk");
    EXPECT_THAT(aGiochi, SizeIs(ColonneAttese() > 0 ? 1 : 0));
    EXPECT_THAT(aGiochi, testing::Each("Lotto"));
    EXPECT_EQ(Fotografa(), prima);
}

// ---- during a run ----

class OrdavelComandiInCorsa : public prove::ComandiProva {
protected:
    OrdavelComandiInCorsa()
    {
        Pronostico(5, 1, 25); // 53130 columns: five refreshes
        Modifica();
        sistema.EliminaCondizione(); // changed: a command that got through would ask
        sistema.Eventi().CondizioniPressed = [this] { ++m_nEventi; };
        sistema.Eventi().StampaSk = [this](std::string&) { ++m_nEventi; };
    }

    /// All keys of buttons and menus, but those in `aMeno`.
    std::vector<std::string> Chiavi(const std::vector<std::string>& aMeno)
    {
        std::vector<std::string> aChiavi;
        for (const PulsanteStrumento& pulsante : Controlli().Toolbar2.aPulsanti) {
            aChiavi.push_back(pulsante.sChiave);
            for (const VoceMenu& voce : pulsante.aMenu) {
                aChiavi.push_back(voce.sChiave);
            }
        }
        std::erase_if(aChiavi, [&](const std::string& sChiave) {
            return std::find(aMeno.begin(), aMeno.end(), sChiave) != aMeno.end();
        });
        return aChiavi;
    }

    /// Gives every key to both dispatchers, and expects nothing of it.
    void PremiTutto()
    {
        Controlli().Toolbar2.Pulsante("SelNumeri").Premuto.Poni(true);
        const Foto prima = Fotografa();
        for (const std::string& sChiave : Chiavi({"Stop"})) {
            sistema.Toolbar2_ButtonClick(sChiave);
            sistema.Toolbar2_ButtonMenuClick(sChiave);
        }
        EXPECT_EQ(Fotografa(), prima);
        EXPECT_THAT(piattaforma.aMostrati, IsEmpty());
        EXPECT_EQ(m_nEventi, 0);
        EXPECT_EQ(piattaforma.nBeep, 0);
    }

    int m_nEventi = 0;
};

TEST_F(OrdavelComandiInCorsa, SoloStopFaQualcosa)
{
    piattaforma.nEventi = 0;
    piattaforma.eventi = [this] {
        PremiTutto();
        if (piattaforma.nEventi == 3) {
            EXPECT_THAT(Abilitati(), ElementsAre("Stop"));
            piattaforma.Rispondi(eRisposta::si);
            sistema.Toolbar2_ButtonClick("sTOP");
        }
    };
    sistema.Toolbar2_ButtonClick("SviluppaCond");
    EXPECT_THAT(piattaforma.Messaggi(), ElementsAre(Domanda("Interrompere ?"), FineSviluppo()));
    EXPECT_EQ(ByteColonne().size(), 30'000U * 20) << "the stop is seen one refresh behind";
    ExpectModificato(true);
}

TEST_F(OrdavelComandiInCorsa, AncheDuranteUnFiltro)
{
    sistema.Toolbar2_ButtonClick("SviluppaCond");
    piattaforma.nEventi = 0;
    piattaforma.eventi = [this] { PremiTutto(); };
    sistema.Toolbar2_ButtonClick("FiltraSvilPrec");
    EXPECT_EQ(piattaforma.nEventi, 6);
    EXPECT_THAT(piattaforma.Messaggi(), ElementsAre(FineSviluppo(), FineSviluppo()));
}

TEST_F(OrdavelComandiInCorsa, AncheDuranteUnExportDiTesto)
{
    piattaforma.eventi = [this] {
        piattaforma.aMostrati.clear(); // the progress
        PremiTutto();
    };
    piattaforma.Scegli(cartella / "colonne.txt");
    sistema.Toolbar2_ButtonMenuClick("SalvaColonneTesto");
    EXPECT_GE(piattaforma.nEventi, 7);
    EXPECT_EQ(prove::LeggiFile(cartella / "colonne.txt").size(), 7U * 19);
}

} // namespace
} // namespace ordavel
