// OrdavelMenu_prova.cpp - every entry of the toolbar's menus.

#include "ordavel/Ordavel.hpp"

#include "controllo/ComandiProva.hpp"
#include "editor/F_ApriCondizioni.hpp"
#include "editor/F_DelCondizioni.hpp"
#include "editor/F_InsColonne.hpp"
#include "editor/F_PuntiSuEmulatore.hpp"
#include "editor/F_SalvaCondizioni.hpp"

namespace ordavel {
namespace {

using prove::Avviso;
using prove::ByteDi;
using prove::DialogoFile;
using prove::eStato;
using prove::Fallimento;
using prove::FineSviluppo;
using prove::Foto;
using prove::LeggiFile;
using prove::NomeTipo;
using prove::RigaScelta;
using prove::ScriviFile;
using prove::StatoLista;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;
using enum TipoCondizione;

constexpr std::string_view kOrigine = "OrdavelSis.Toolbar2_ButtonMenuClick";

class OrdavelMenu : public prove::ComandiProva {
protected:
    void Voce(std::string_view sChiave) { sistema.Toolbar2_ButtonMenuClick(sChiave); }

    void Rinuncia()
    {
        Annulla<DialogoCondizione>([](DialogoCondizione& /*dialogo*/) {});
    }

    /// The kind that the button "Condizioni" repeats.
    [[nodiscard]] TipoCondizione UltimoTipo()
    {
        TipoCondizione tipo = nessuno;
        Annulla<DialogoCondizione>([&](DialogoCondizione& dialogo) { tipo = dialogo.Tipo(); });
        sistema.Toolbar2_ButtonClick("Condizioni");
        return tipo;
    }

    /// The button repeats nothing.
    void ExpectNessunUltimoTipo()
    {
        piattaforma.aMostrati.clear();
        sistema.Toolbar2_ButtonClick("Condizioni");
        EXPECT_THAT(piattaforma.aMostrati, IsEmpty());
    }
};

// ---- kinds ----

class MenuDeiTipi : public OrdavelMenu, public testing::WithParamInterface<TipoCondizione> {};

std::vector<TipoCondizione> TuttiMenoILink()
{
    std::vector<TipoCondizione> aTipi;
    for (std::int16_t nTipo = 3; nTipo <= kTipiCondizione; ++nTipo) {
        aTipi.push_back(static_cast<TipoCondizione>(nTipo));
    }
    return aTipi;
}

INSTANTIATE_TEST_SUITE_P(Tipi, MenuDeiTipi, testing::ValuesIn(TuttiMenoILink()),
                         [](const auto& caso) { return NomeTipo(caso.param); });

TEST_P(MenuDeiTipi, LaVoceApreIlSuoDialogoEScriveLeSueCelle)
{
    ConfermaCelle(RigaScelta(GetParam(), true));
    Voce(TrovaTipo(GetParam())->sMenu);
    EXPECT_THAT(piattaforma.aMostrati, ElementsAre(TrovaTipo(GetParam())->sDialogo));
    EXPECT_EQ(Griglia().Riga(1), RigaScelta(GetParam(), true));
    EXPECT_TRUE(Griglia().Vuota(2));
    ExpectModificato(true);
}

TEST_P(MenuDeiTipi, LaVoceSiRicordaAncheSeAnnullata)
{
    const Foto prima = Fotografa();
    Rinuncia();
    Voce(TrovaTipo(GetParam())->sMenu);
    EXPECT_EQ(UltimoTipo(), GetParam());
    EXPECT_EQ(UltimoTipo(), GetParam());
    Foto dopo = Fotografa();
    dopo.lista.aAltezze = prima.lista.aAltezze; // the row was made ready
    EXPECT_EQ(dopo, prima);
}

TEST_F(OrdavelMenu, ContaLUltimaVoceScelta)
{
    for (const std::string_view sChiave : {"puntisupeso", "SOMMADECINE"}) {
        Rinuncia();
        Voce(sChiave);
    }
    EXPECT_EQ(UltimoTipo(), sommaDecine);
}

TEST_F(OrdavelMenu, UnaCondizioneInseritaDalProgrammaNonSiRicorda)
{
    sistema.InsCondizione(consecutivi, "1");
    ExpectNessunUltimoTipo();
}

TEST_F(OrdavelMenu, UnNumeroTroppoGrandeSiMostraColNomeDelMenu)
{
    Conferma<F_PuntiSuEmulatore>([](F_PuntiSuEmulatore& dialogo) {
        dialogo.Text2.Testo.Poni("5");
        dialogo.MSFlexGrid1.Scrivi({1, 1}, "99999999999");
    });
    Voce("PuntiSuEmulatore");
    EXPECT_THAT(piattaforma.Messaggi(), ElementsAre(Fallimento(kOrigine, Errore(eErrore::overflow))));
    EXPECT_TRUE(Griglia().Vuota(1));
    ExpectModificato(false);
}

// ---- one emulator ----

TEST_F(OrdavelMenu, UnSecondoEmulatoreSiRifiutaELUltimoTipoResta)
{
    Rinuncia();
    Voce("PuntisuPeso");
    Chiavi({"Ponte", "eMULATORE"});
    piattaforma.aMostrati.clear();
    const Foto prima = Fotografa();
    Voce("PuntiSuEmulatore");
    EXPECT_THAT(piattaforma.Messaggi(), ElementsAre(Avviso("Si può inserire un solo filtro emulatore")));
    EXPECT_THAT(piattaforma.aMostrati, IsEmpty());
    EXPECT_EQ(Fotografa(), prima);
    EXPECT_EQ(UltimoTipo(), peso);
}

TEST_F(OrdavelMenu, IlRifiutoNonRicordaLEmulatore)
{
    Chiavi({"Emulatore"});
    Voce("PuntiSuEmulatore");
    EXPECT_THAT(piattaforma.Messaggi(), SizeIs(1));
    ExpectNessunUltimoTipo();
}

TEST_F(OrdavelMenu, IlPulsanteRipeteLEmulatoreSenzaGuardare)
{
    ConfermaCelle(RigaScelta(emulatore));
    Voce("PuntiSuEmulatore");
    EXPECT_TRUE(sistema.IsCondizionePresente("Emulatore"));
    EXPECT_EQ(UltimoTipo(), emulatore);
}

// ---- columns of a text ----

TEST_F(OrdavelMenu, LeColonneDaTestoDimenticanoLUltimoTipo)
{
    ScriviFile(cartella / "colonne.txt", "1 2 3\n4 5 6\n");
    Rinuncia();
    Voce("PuntisuPeso");
    piattaforma.Scegli(cartella / "colonne.txt");
    Conferma<F_InsColonne>([](F_InsColonne& dialogo) { dialogo.Toolbar1("open"); });
    Voce("puntisucolonnatxt");
    EXPECT_EQ(Griglia().Riga(1).sParametri, "01-02-03");
    EXPECT_EQ(Griglia().Riga(2).sParametri, "04-05-06");
    ExpectModificato(true);
    ExpectNessunUltimoTipo();
}

TEST_F(OrdavelMenu, AncheAnnullateDimenticanoLUltimoTipo)
{
    Rinuncia();
    Voce("PuntisuPeso");
    Annulla<F_InsColonne>([](F_InsColonne& /*dialogo*/) {});
    Voce("PuntiSuColonnaTxt");
    ExpectNessunUltimoTipo();
    ExpectModificato(false);
}

// ---- the system file ----

DialogoFile SalvaSistema(const std::string& sNome, const std::string& sCartella)
{
    return {true,
            {.sTitolo = "Salva sistema",
             .sFiltro = "Sistemi condizionati (*.sic)|*.sic",
             .sEstensione = ".sic",
             .sNomeFile = sNome,
             .sCartella = sCartella}};
}

TEST_F(OrdavelMenu, SalvaRiscriveIlFileApertoSenzaChiedere)
{
    Porta(eStato::aperto);
    Modifica();
    Voce("Salva");
    EXPECT_THAT(piattaforma.Dialoghi(), IsEmpty());
    EXPECT_FALSE(sistema.Modificato());
    EXPECT_EQ(LeggiFile(m_sSistema).size(), 317U + 4 * 334) << "no columns: they are another system's";
}

TEST_F(OrdavelMenu, SalvaSenzaNomeLoChiede)
{
    Modifica();
    piattaforma.Scegli(m_sSistema);
    Voce("SALVA");
    EXPECT_THAT(piattaforma.Dialoghi(), ElementsAre(SalvaSistema("", sistema.DirSistemi())));
    EXPECT_FALSE(sistema.Modificato());
    EXPECT_EQ(sistema.FileSistema(), m_sSistema);
}

TEST_F(OrdavelMenu, SalvaDiUnFileSparitoLoRifa)
{
    Porta(eStato::aperto);
    std::filesystem::remove(m_sSistema);
    Modifica();
    Voce("Salva");
    EXPECT_FALSE(sistema.Modificato());
    EXPECT_TRUE(std::filesystem::exists(m_sSistema));
}

TEST_F(OrdavelMenu, SalvaConNomeChiedeSempreELoTiene)
{
    Porta(eStato::aperto);
    Modifica();
    piattaforma.Scegli(cartella / "altro.sic");
    Voce("SalvaConNome");
    EXPECT_THAT(piattaforma.Dialoghi(), ElementsAre(SalvaSistema(m_sSistema, sistema.DirSistemi())));
    EXPECT_EQ(sistema.FileSistema(), cartella / "altro.sic");
    EXPECT_FALSE(sistema.Modificato());
    EXPECT_GT(LeggiFile(cartella / "altro.sic").size(), 317U);
}

TEST_F(OrdavelMenu, SalvaConNomeAnnullatoLasciaIlSistemaSenzaNome)
{
    Porta(eStato::aperto);
    Modifica();
    piattaforma.Scegli("");
    Voce("SalvaConNome");
    EXPECT_EQ(sistema.FileSistema(), "");
    EXPECT_TRUE(sistema.Modificato());
    sistema.Toolbar2_ButtonClick("Save");
    EXPECT_EQ(piattaforma.nBeep, 1);
}

// ---- columns ----

TEST_F(OrdavelMenu, SalvaColonneCopiaIlFileDiLavoro)
{
    const Foto prima = Fotografa();
    piattaforma.Scegli(cartella / "copia.col");
    Voce("SalvaColonne");
    EXPECT_EQ(LeggiFile(cartella / "copia.col"), ByteColonne());
    EXPECT_THAT(piattaforma.Dialoghi(),
                ElementsAre(DialogoFile{true,
                                        {.sTitolo = "Salva colonne",
                                         .sFiltro = "File colonne (*.col)|*.col",
                                         .sEstensione = ".col",
                                         .sNomeFile = "NuovoSistema.col",
                                         .sCartella = sistema.PercorsoSalvaColonne()}}));
    EXPECT_EQ(Fotografa(), prima);
}

TEST_F(OrdavelMenu, SalvaColonneTestoScriveUnaRigaPerColonna)
{
    const Foto prima = Fotografa();
    piattaforma.Scegli(cartella / "copia.txt");
    Voce("SalvaColonneTesto");
    EXPECT_EQ(LeggiFile(cartella / "copia.txt").substr(0, 38), "01 02 03 04 05 06\r\n01 02 03 04 05 07\r\n");
    EXPECT_EQ(piattaforma.Dialoghi().at(0).richiesta.sTitolo, "Salva colonne formato testo");
    EXPECT_EQ(Fotografa(), prima);
}

class MenuFiltraFile : public OrdavelMenu {
protected:
    MenuFiltraFile() { ScriviFile(m_sFile, ByteDi({{1, 2, 3}, {1, 3, 90}, {3, 4, 5}})); }

    void Filtra(const std::string& sFile)
    {
        piattaforma.Scegli(sFile);
        Voce("FiltraFileCol");
    }

    [[nodiscard]] std::vector<std::string> Etichette()
    {
        return {Controlli().LabIntegrale.Testo.Valore(), Controlli().LabNumSel.Testo.Valore()};
    }

    const std::string m_sFile = cartella / "altre.col";
};

TEST_F(MenuFiltraFile, ChiedeUnFileDiColonne)
{
    const Foto prima = Fotografa();
    Filtra("");
    EXPECT_THAT(piattaforma.Dialoghi(),
                ElementsAre(DialogoFile{false,
                                        {.sTitolo = "Apri file",
                                         .sFiltro = "File colonne (*.col)|*.col)",
                                         .sEstensione = ".col",
                                         .sNomeFile = "*.col",
                                         .sCartella = sistema.PercorsoSalvaColonne()}}));
    EXPECT_EQ(Fotografa(), prima);
}

TEST_F(MenuFiltraFile, LeEtichetteDiconoIlFileEIlFiltroSiFa)
{
    Griglia().Riga(1) = {"Ponte", "", "0", "", " "};
    Filtra(m_sFile);
    EXPECT_THAT(Etichette(), ElementsAre("3", "File"));
    EXPECT_THAT(Conteggi(), ElementsAre("3", "2"));
    EXPECT_THAT(piattaforma.Messaggi(), ElementsAre(FineSviluppo()));
    EXPECT_TRUE(sistema.ColonneValide());
}

TEST_F(MenuFiltraFile, LeMigliaiaHannoIlPunto)
{
    prove::ScriviFileRado(m_sFile, 1234U * 20);
    Griglia().Riga(1) = {"Ponte", "", "1", "", " "};
    Filtra(m_sFile);
    EXPECT_EQ(Etichette().at(0), "1.234");
    EXPECT_THAT(piattaforma.Messaggi(), ElementsAre(FineSviluppo()));
}

TEST_F(MenuFiltraFile, UnFileCheNonCENonCambiaNulla)
{
    const Foto prima = Fotografa();
    Filtra(cartella / "manca.col");
    EXPECT_EQ(Fotografa(), prima);
}

TEST_F(MenuFiltraFile, UnFileVuotoSiDiceENonSiFiltra)
{
    ScriviFile(m_sFile, "");
    const std::string sColonne = ByteColonne();
    Filtra(m_sFile);
    EXPECT_THAT(Etichette(), ElementsAre("0", "File"));
    EXPECT_EQ(ByteColonne(), sColonne);
    EXPECT_THAT(piattaforma.Messaggi(), IsEmpty());
}

TEST_F(MenuFiltraFile, ConLinkSpaiatiLeEtichetteCambianoESiAvvisa)
{
    Chiavi({"LinkOpen"});
    Filtra(m_sFile);
    EXPECT_THAT(Etichette(), ElementsAre("3", "File"));
    EXPECT_THAT(piattaforma.Messaggi(), ElementsAre(Avviso("Link non valide")));
    EXPECT_TRUE(sistema.ColonneValide()) << "the columns are still those of the system";
}

TEST_F(MenuFiltraFile, UnNumeroOUnaClasseRidannoLeLoroEtichette)
{
    Filtra(m_sFile);
    EXPECT_THAT(piattaforma.Messaggi(), SizeIs(1));
    sistema.PoniClasse(5);
    EXPECT_THAT(Etichette(), ElementsAre("21", "File"));
    sistema.SelezionaNumero(8, true);
    EXPECT_THAT(Etichette(), ElementsAre("56", "8"));
}

// ---- runs of conditions ----

TEST_F(OrdavelMenu, DelCondizioniOffreLeCondizioniENeEliminaUnTratto)
{
    Riempi(5);
    StatoLista atteso = Stato();
    Conferma<F_DelCondizioni>([](F_DelCondizioni& dialogo) {
        EXPECT_THAT(dialogo.CmbDalla.Voci.Valore(), ElementsAre("1", "2", "3", "4", "5"));
        dialogo.CmbDalla.Indice.Poni(1);
        dialogo.CmbAlla.Indice.Poni(2);
    });
    Voce("DELCONDIZIONI");
    EXPECT_THAT(Punti(4), ElementsAre("1", "4", "5", ""));
    ExpectModificato(false);
}

TEST_F(OrdavelMenu, DelCondizioniSenzaCondizioniNonOffreNulla)
{
    const Foto prima = Fotografa();
    Annulla<F_DelCondizioni>(
        [](F_DelCondizioni& dialogo) { EXPECT_THAT(dialogo.CmbAlla.Voci.Valore(), IsEmpty()); });
    Voce("DelCondizioni");
    EXPECT_EQ(Fotografa(), prima);
}

TEST_F(OrdavelMenu, LeCondizioniSalvateSiReinserisconoInCoda)
{
    Riempi(2);
    piattaforma.Scegli(cartella / "sistemi/tratto.cnd");
    Conferma<F_SalvaCondizioni>([](F_SalvaCondizioni& dialogo) {
        dialogo.CmbCondInizio.Indice.Poni(1);
        dialogo.CmbCondFine.Indice.Poni(1);
    });
    Voce("SalvaCondizioni");
    Conferma<F_ApriCondizioni>([](F_ApriCondizioni& dialogo) { dialogo.CmbCondizioni.Indice.Poni(0); });
    Voce("InsCondizioni");
    EXPECT_THAT(piattaforma.aMostrati, ElementsAre("F_SalvaCondizioni", "F_ApriCondizioni"));
    EXPECT_THAT(Punti(4), ElementsAre("1", "2", "2", ""));
    ExpectModificato(false);
}

// ---- other keys ----

TEST_F(OrdavelMenu, UnaChiaveIgnotaOUnPulsanteNonFannoNulla)
{
    Modifica();
    const Foto prima = Fotografa();
    for (const std::string_view sChiave :
         {"", "Open", "New", "Save", "LinkOpen", "Stop", "Delete", "SviluppaCond", "Salva "}) {
        Voce(sChiave);
        EXPECT_EQ(Fotografa(), prima) << sChiave;
    }
    EXPECT_THAT(piattaforma.aMostrati, IsEmpty());
}

} // namespace
} // namespace ordavel
