// OrdavelCiclo_prova.cpp - the life of a system from new to saved: its flags, what is enabled, what is asked.

#include "ordavel/Ordavel.hpp"

#include "controllo/ComandiProva.hpp"
#include "editor/F_DelCondizioni.hpp"
#include "editor/F_ImpostaPunti.hpp"
#include "editor/F_InsColonne.hpp"
#include "editor/F_LinkClose.hpp"
#include "editor/F_QuadroRecuperi.hpp"

#include <functional>
#include <utility>

namespace ordavel {
namespace {

using prove::eStato;
using prove::FineSviluppo;
using prove::Foto;
using prove::LeggiFile;
using prove::ScriviFile;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;
using enum TipoCondizione;

class OrdavelCiclo : public prove::ComandiProva {
protected:
    void Premi(std::string_view sChiave) { sistema.Toolbar2_ButtonClick(sChiave); }
    void Voce(std::string_view sChiave) { sistema.Toolbar2_ButtonMenuClick(sChiave); }

    /// Presses a button that asks first, and answers.
    void PremiERispondi(std::string_view sChiave, eRisposta risposta)
    {
        piattaforma.Rispondi(risposta);
        Premi(sChiave);
        EXPECT_THAT(piattaforma.Messaggi(), ElementsAre(kPerdita));
    }

    [[nodiscard]] std::vector<std::string> Etichette()
    {
        ControlliOrdavel& c = Controlli();
        return {c.LabIntegrale.Testo.Valore(), c.LabNumSel.Testo.Valore(), c.LabSviluppate.Testo.Valore(),
                c.LabCondizionate.Testo.Valore()};
    }
};

// ---- what is enabled: Salva, FiltraSvilPrec, VisualizzaColonne, SalvaColonne, SalvaColonneTesto ----

TEST_F(OrdavelCiclo, UnSistemaVuotoNonHaNullaDaSalvareNeDaMostrare)
{
    prove::SistemaProva altro;
    for (const std::string_view sVoce : {"Salva", "SalvaColonne", "SalvaColonneTesto"}) {
        EXPECT_FALSE(altro.VoceAbilitata(sVoce)) << sVoce;
    }
    EXPECT_FALSE(altro.Abilitato("FiltraSvilPrec"));
    EXPECT_FALSE(altro.Abilitato("VisualizzaColonne"));
}

TEST_F(OrdavelCiclo, IComandiSeguonoLoStatoDelSistema)
{
    Premi("New");
    EXPECT_EQ(Lettere(), "-----");
    ASSERT_TRUE(Salva(m_sSistema));
    ASSERT_TRUE(Apri(m_sSistema));
    EXPECT_EQ(Lettere(), "S----") << "opened, without columns";
    Pronostico(6, 1, 7);
    Sviluppa();
    EXPECT_EQ(Lettere(), "SFVCT") << "developed";
    ASSERT_TRUE(Apri(m_sSistema));
    EXPECT_EQ(Lettere(), "S-VCT") << "opened, beside a working file";
    Premi("New");
    EXPECT_EQ(Lettere(), "-----");
    Pronostico(6, 1, 7);
    Sviluppa();
    EXPECT_EQ(Lettere(), "-FVCT") << "new and developed";
}

TEST_F(OrdavelCiclo, UnFiltroLasciaIlSuoComandoComEra)
{
    Premi("New");
    ScriviFile(cartella / "altre.col", prove::ByteDi({{1, 2, 3}}));
    Filtra(cartella / "altre.col");
    EXPECT_EQ(Lettere(), "--VCT");
    Pronostico(6, 1, 7);
    Sviluppa();
    Filtra(cartella / "altre.col");
    EXPECT_EQ(Lettere(), "-FVCT");
}

TEST_F(OrdavelCiclo, DuranteLaCorsaSalvaRestaComEra)
{
    Porta(eStato::aperto);
    Pronostico(5, 1, 25);
    std::vector<std::string> aDurante;
    piattaforma.eventi = [&] { aDurante.push_back(Lettere()); };
    Sviluppa();
    EXPECT_THAT(aDurante, ElementsAre("S-VCT", "S----", "S----", "S----", "S----", "S----"));
    EXPECT_EQ(Lettere(), "SFVCT");
}

TEST_F(OrdavelCiclo, ISalvataggiNonToccanoIComandi)
{
    for (const eStato stato : {eStato::nuovo, eStato::aperto, eStato::sviluppato}) {
        Porta(stato);
        const std::vector<std::string> aPrima = Accesi();
        piattaforma.Scegli(cartella / "altro.sic");
        Voce("SalvaConNome");
        EXPECT_EQ(Accesi(), aPrima) << prove::NomeStato(stato);
    }
}

// ---- new ----

TEST_F(OrdavelCiclo, NewSvuotaTuttoMenoClasseGiocoEMotore)
{
    Porta(eStato::aperto);
    sistema.PoniClasse(4);
    Controlli().CmbRid.Indice.Poni(2);
    sistema.GetLbQuadroRec().Voci.Poni({"1,2,-1"});
    sistema.SetColonnaGrid(3);
    Premi("New");
    EXPECT_TRUE(Griglia().Vuota(1));
    EXPECT_EQ(Griglia().Corrente(), 1);
    EXPECT_EQ(Controlli().GrdCond.Evidenziata.Valore(), 0);
    EXPECT_EQ(sistema.ContaNumeriSel(), 0);
    EXPECT_THAT(sistema.GetLbQuadroRec().Voci.Valore(), IsEmpty());
    EXPECT_THAT(Etichette(), testing::Each(""));
    EXPECT_EQ(Controlli().CmbRid.Indice.Valore(), 0);
    EXPECT_EQ(sistema.classe(), 4);
    EXPECT_EQ(sistema.FileSistema(), "");
    EXPECT_FALSE(std::filesystem::exists(sistema.FileColonne()));
    EXPECT_TRUE(std::filesystem::exists(m_sSistema));
}

TEST_F(OrdavelCiclo, NewRidisegnaINumeriTuttiNonScelti)
{
    sistema.DisegnaNumeriProno();
    Premi("New");
    const auto& aScritte = Controlli().PicProno.Scritte.Valore();
    ASSERT_THAT(aScritte, SizeIs(90));
    EXPECT_THAT(aScritte, testing::Each(testing::Field(&Scritta::nColore, 0xAA1111)));
}

TEST_F(OrdavelCiclo, NewDimenticaLUltimoTipo)
{
    Annulla<DialogoCondizione>([](DialogoCondizione& /*dialogo*/) {});
    Voce("PuntisuPeso");
    Premi("New");
    Premi("Condizioni");
    EXPECT_THAT(piattaforma.aMostrati, SizeIs(1));
}

TEST_F(OrdavelCiclo, NewSenzaCartellaTemporaneaNonProtesta)
{
    prove::PiattaformaProva desktop;
    Ordavel altro(desktop);
    altro.Toolbar2_ButtonClick("New");
    EXPECT_THAT(desktop.Messaggi(), IsEmpty());
}

TEST_F(OrdavelCiclo, NewRifiutatoNonCambiaNulla)
{
    Porta(eStato::aperto);
    Modifica();
    const Foto prima = Fotografa();
    PremiERispondi("New", eRisposta::no);
    EXPECT_EQ(Fotografa(), prima);
}

TEST_F(OrdavelCiclo, NewConfermatoLasciaIlSistemaCambiatoECosiRichiede)
{
    Modifica();
    PremiERispondi("New", eRisposta::si);
    EXPECT_TRUE(sistema.Modificato());
    EXPECT_TRUE(Griglia().Vuota(1));
    PremiERispondi("New", eRisposta::si);
    PremiERispondi("Open", eRisposta::no);
    EXPECT_THAT(piattaforma.Dialoghi(), IsEmpty());
}

TEST_F(OrdavelCiclo, NewSuUnSistemaNonCambiatoNonChiede)
{
    Premi("New");
    Premi("New");
    EXPECT_FALSE(sistema.Modificato());
}

// ---- open ----

TEST_F(OrdavelCiclo, OpenSuUnSistemaCambiatoChiede)
{
    ASSERT_TRUE(Salva(m_sSistema));
    Modifica();
    const Foto prima = Fotografa();
    PremiERispondi("Open", eRisposta::no);
    EXPECT_EQ(Fotografa(), prima);
    piattaforma.Scegli("");
    PremiERispondi("Open", eRisposta::si);
    EXPECT_EQ(Fotografa(), prima) << "no file was chosen";
    piattaforma.Scegli(m_sSistema);
    PremiERispondi("Open", eRisposta::si);
    EXPECT_FALSE(sistema.Modificato());
    EXPECT_EQ(Lettere(), "S-VCT");
}

TEST_F(OrdavelCiclo, OpenFallitoLasciaIlSistemaCambiato)
{
    Modifica();
    ScriviFile(cartella / "corto.sic", std::string(316, '\0'));
    piattaforma.Rispondi(eRisposta::si);
    piattaforma.Scegli(cartella / "corto.sic");
    Premi("Open");
    EXPECT_THAT(piattaforma.Messaggi(), SizeIs(2));
    EXPECT_TRUE(sistema.Modificato());
    EXPECT_EQ(Lettere(), "--VCT");
}

TEST_F(OrdavelCiclo, LeColonneDiUnSistemaApertoVannoSalvateSoloSeEranoValide)
{
    ASSERT_TRUE(Salva(m_sSistema));
    const std::string sConColonne = LeggiFile(m_sSistema);
    ASSERT_TRUE(Apri(m_sSistema));
    Premi("Save");
    EXPECT_EQ(LeggiFile(m_sSistema), sConColonne);
    Modifica();
    piattaforma.Rispondi(eRisposta::si);
    piattaforma.Scegli(m_sSistema);
    Premi("Open");
    EXPECT_THAT(piattaforma.Messaggi(), SizeIs(1));
    Premi("Save");
    EXPECT_EQ(LeggiFile(m_sSistema).size(), 317U);
}

// ---- save ----

TEST_F(OrdavelCiclo, SaveSenzaNomeOConUnFileSparitoSuonaSoltanto)
{
    Modifica();
    Premi("Save");
    EXPECT_EQ(piattaforma.nBeep, 1);
    piattaforma.Scegli(m_sSistema);
    Voce("SalvaConNome");
    std::filesystem::remove(m_sSistema);
    Modifica();
    Premi("Save");
    EXPECT_EQ(piattaforma.nBeep, 2);
    EXPECT_TRUE(sistema.Modificato());
    EXPECT_FALSE(std::filesystem::exists(m_sSistema));
}

TEST_F(OrdavelCiclo, SaveRiscriveIlFileEIlSistemaNonEPiuCambiato)
{
    Porta(eStato::aperto);
    Modifica();
    Premi("Save");
    EXPECT_FALSE(sistema.Modificato());
    EXPECT_FALSE(sistema.ColonneValide()) << "the columns are still those of another";
    EXPECT_EQ(piattaforma.nBeep, 0);
    Premi("New"); // and asks nothing
    EXPECT_TRUE(Griglia().Vuota(1));
}

TEST_F(OrdavelCiclo, UnSalvataggioFallitoLasciaIlSistemaCambiato)
{
    Modifica();
    std::filesystem::create_directories(cartella / "cartella.sic/piena");
    piattaforma.Scegli(cartella / "cartella.sic");
    Voce("SalvaConNome");
    EXPECT_THAT(piattaforma.Messaggi(), testing::Not(IsEmpty()));
    EXPECT_TRUE(sistema.Modificato());
}

// ---- flags ----

using Lavoro = std::pair<std::string, std::function<void()>>;

class OrdavelCicloFlag : public OrdavelCiclo {
protected:
    OrdavelCicloFlag() { Riprendi(); }

    /// Three conditions, not changed, with columns of their own; the first condition selected.
    void Riprendi()
    {
        Griglia().Svuota();
        Porta(eStato::sviluppato);
        auto sFile = std::string(cartella / "ripresa.sic");
        ASSERT_TRUE(sistema.Salva(sFile, true));
        sistema.SetColonnaGrid(1);
    }

    void ExpectDopo(const Lavoro& lavoro, bool bModificato)
    {
        Riprendi();
        lavoro.second();
        EXPECT_EQ(sistema.Modificato(), bModificato) << lavoro.first;
        EXPECT_EQ(sistema.ColonneValide(), !bModificato) << lavoro.first;
    }

    template <typename Finestra> void ConfermaTratto()
    {
        Conferma<Finestra>([](Finestra& dialogo) {
            dialogo.CmbDalla.Indice.Poni(0);
            dialogo.CmbAlla.Indice.Poni(0);
        });
    }
};

TEST_F(OrdavelCicloFlag, CioCheCambiaIlSistemaNeTogliLeColonne)
{
    ScriviFile(cartella / "colonne.txt", "1 2 3\n");
    const std::vector<Lavoro> aLavori{
        {"testo", [this] { sistema.InsCondizione(consecutivi, "1"); }},
        {"voce",
         [this] {
             ConfermaCelle(prove::RigaScelta(peso));
             Voce("PuntisuPeso");
         }},
        {"LinkOpen", [this] { Premi("LinkOpen"); }},
        {"LinkClose",
         [this] {
             Conferma<F_LinkClose>([](F_LinkClose& /*dialogo*/) {});
             Premi("LinkClose");
         }},
        {"Edit",
         [this] {
             Conferma<DialogoCondizione>([](DialogoCondizione& /*dialogo*/) {});
             Premi("Edit");
         }},
        {"Delete", [this] { Premi("Delete"); }},
        {"PuntiSuColonnaTxt",
         [this] {
             piattaforma.Scegli(cartella / "colonne.txt");
             Conferma<F_InsColonne>([](F_InsColonne& dialogo) { dialogo.ApriFile(); });
             Voce("PuntiSuColonnaTxt");
         }},
        {"QuadroRecuperi",
         [this] {
             Conferma<F_QuadroRecuperi>([](F_QuadroRecuperi& /*dialogo*/) {});
             Premi("QuadroRecuperi");
         }},
        {"selettore", [this] { sistema.SelnovoNumeri1_Chiuso(); }},
    };
    for (const Lavoro& lavoro : aLavori) {
        ExpectDopo(lavoro, true);
    }
}

TEST_F(OrdavelCicloFlag, IlRestoLasciaIFlagComErano)
{
    const std::vector<Lavoro> aLavori{
        {"Inserisci", [this] { Premi("Inserisci"); }},
        {"DelCondizioni",
         [this] {
             ConfermaTratto<F_DelCondizioni>();
             Voce("DelCondizioni");
         }},
        {"puntimassivi",
         [this] {
             ConfermaTratto<F_ImpostaPunti>();
             Premi("puntimassivi");
         }},
        {"classe", [this] { sistema.PoniClasse(3); }},
        {"gioco", [this] { Controlli().CmbTipoGioco.Indice.Poni(3); }},
        {"riduzione", [this] { Controlli().CmbRid.Indice.Poni(1); }},
        {"numero", [this] { sistema.SelezionaNumero(90, true); }},
        {"IncrGrid", [this] { Premi("IncrGrid"); }},
        {"Naviga", [this] { Premi("Naviga"); }},
        {"New", [this] { Premi("New"); }},
    };
    for (const Lavoro& lavoro : aLavori) {
        ExpectDopo(lavoro, false);
    }
}

TEST_F(OrdavelCicloFlag, UnoSviluppoDaColonneValideAUnSistemaCambiato)
{
    Modifica();
    sistema.EliminaCondizione();
    ASSERT_FALSE(sistema.ColonneValide());
    Sviluppa();
    EXPECT_TRUE(sistema.ColonneValide());
    EXPECT_TRUE(sistema.Modificato());
}

// ---- the selector ----

TEST_F(OrdavelCiclo, ChiudereIlSelettoreRilasciaIlPulsanteELoNasconde)
{
    PulsanteStrumento& pulsante = Controlli().Toolbar2.Pulsante("SelNumeri");
    pulsante.Premuto.Poni(true);
    Premi("SelNumeri");
    sistema.SelezionaNumero(90, true);
    EXPECT_EQ(Controlli().LabNumSel.Testo.Valore(), "8");
    EXPECT_FALSE(sistema.Modificato()) << "not before it is closed";
    sistema.SelnovoNumeri1_Chiuso();
    EXPECT_FALSE(pulsante.Premuto.Valore());
    EXPECT_FALSE(Controlli().SelnovoNumeri1.Visibile.Valore());
    EXPECT_EQ(Controlli().PicProno.Scritte.Valore().at(89).nColore, 0x00FF00);
    ExpectModificato(true);
}

TEST_F(OrdavelCiclo, RilasciareIlPulsanteLoNascondeSenzaCambiareIlSistema)
{
    PulsanteStrumento& pulsante = Controlli().Toolbar2.Pulsante("SelNumeri");
    for (const bool bPremuto : {true, false}) {
        pulsante.Premuto.Poni(bPremuto);
        Premi("SelNumeri");
    }
    EXPECT_FALSE(Controlli().SelnovoNumeri1.Visibile.Valore());
    ExpectModificato(false);
}

// ---- events ----

TEST_F(OrdavelCiclo, LOspitePuoCambiareIlNomeDelGiocoPerSe)
{
    Controlli().CmbTipoGioco.Indice.Poni(3);
    std::string sRicevuto;
    sistema.Eventi().StampaSk = [&](std::string& sGioco) { sRicevuto = std::exchange(sGioco, "altro"); };
    Premi("StampaSk");
    EXPECT_EQ(sRicevuto, "SuperEnalotto");
    EXPECT_EQ(sistema.GetIdCmbTipoGiocoString(), "SuperEnalotto");
    Premi("StampaSk");
    EXPECT_EQ(sRicevuto, "SuperEnalotto") << "each event takes the list's own text";
}

TEST_F(OrdavelCiclo, SenzaChiAscoltaGliEventiNonFannoNulla)
{
    const Foto prima = Fotografa();
    Premi("StampaSk");
    Premi("Condizioni");
    EXPECT_EQ(Fotografa(), prima);
}

TEST_F(OrdavelCiclo, SenzaFileDiLavoroNonSiStampa)
{
    std::filesystem::remove(sistema.FileColonne());
    int nEventi = 0;
    sistema.Eventi().StampaSk = [&](std::string&) { ++nEventi; };
    Premi("StampaSk");
    EXPECT_EQ(nEventi, 0);
}

} // namespace
} // namespace ordavel
