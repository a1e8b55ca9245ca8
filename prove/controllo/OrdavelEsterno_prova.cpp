// OrdavelEsterno_prova.cpp - developments by the external engine, played: hand-over, progress, stop, what comes back.

#include "ordavel/Ordavel.hpp"

#include "analisi/F_EffettoCond.hpp"
#include "comune/Fallimenti.hpp"
#include "controllo/SistemaProva.hpp"
#include "editor/F_ScegliRuota.hpp"
#include "motore/LibreriaSviluppo.hpp"

#include <gtest/gtest.h>

#include <cstdlib>
#include <stdexcept>

namespace ordavel {
namespace {

using prove::Avviso;
using prove::ByteDi;
using prove::Domanda;
using prove::Fallimento;
using prove::FineSviluppo;
using prove::LeggiFile;
using prove::NumeroErrore;
using prove::ScriviFile;
using testing::ElementsAre;
using testing::IsEmpty;

const Condizione kPari{"Pari-Dispari", "Pari", "0-1-2-3", "", " "};
const Condizione kPeso{"Peso", "Caselle :\r\n1-2-3", "1-200", "-", " "};

class OrdavelEsterno : public testing::Test, protected prove::SistemaProva {
protected:
    OrdavelEsterno()
    {
        Gioca("");
        setenv("ORDAVEL_FINTO_REGISTRO", m_sRegistro.c_str(), 1);
        sistema.Controlli().CmbMotSviluppo.Indice.Poni(1);
        Pronostico(3, 1, 5);
        sistema.GetGridCond().Riga(1) = kPari;
        sistema.GetGridCond().Riga(2) = kPeso;
    }

    static void Gioca(const char* sModo) { setenv("ORDAVEL_FINTO", sModo, 1); }

    Temporizzatore& Timer() { return sistema.Controlli().Timer1; }

    /// No run is on its way.
    void ExpectFermo()
    {
        EXPECT_FALSE(Timer().Acceso.Valore());
        EXPECT_FALSE(sistema.Controlli().PanSviluppo.Visibile.Valore());
        EXPECT_FALSE(Abilitato("Stop"));
        EXPECT_TRUE(Abilitato("SviluppaCond"));
        EXPECT_TRUE(sistema.Controlli().CmbMotSviluppo.Abilitato.Valore());
    }

    /// What the library was handed: the three texts.
    [[nodiscard]] std::string Argomenti(const std::string& sEmulatore) const
    {
        return sistema.PercorsoTemp() + "\n" + Temp("Sviluppo.sic") + "\n" + sEmulatore + "\n";
    }

    /// A run that goes on until `durante`, which is called again and again, has stopped it.
    void SviluppaLento(const std::function<void()>& durante)
    {
        Gioca("lento");
        piattaforma.eventi = [this, durante] {
            if (Timer().Acceso.Valore()) {
                durante();
            }
        };
        EXPECT_TRUE(sistema.GestSviluppo());
        piattaforma.eventi = {};
    }

    std::string m_sRegistro = cartella / "registro.txt";
};

TEST_F(OrdavelEsterno, LeColonneDellaLibreriaSonoIlFileDiLavoro)
{
    ScriviFile(sistema.FileColonne(), std::string(1000, 'x'));
    ScriviFile(Temp("Sviluppo.sic"), "di prima");
    Sviluppa();
    EXPECT_EQ(ByteColonne(), ByteDi({{1, 2, 3}, {2, 3, 4}, {3, 4, 5}}));
    EXPECT_THAT(Conteggi(), ElementsAre("30", "3"));
    EXPECT_EQ(sistema.Controlli().ProgBarXP1.Valore.Valore(), 100) << "30 di 10, al massimo 100";
    EXPECT_TRUE(sistema.ColonneValide());
    EXPECT_EQ(sistema.QuantitaColonne(), 3);
    EXPECT_TRUE(Abilitato("FiltraSvilPrec"));
    EXPECT_TRUE(Abilitato("VisualizzaColonne"));
    ExpectFermo();
}

TEST_F(OrdavelEsterno, ColonneScritteDuranteGliEventiDellAvvioSiTolgono)
{
    piattaforma.eventi = [this] {
        if (piattaforma.nEventi == 1) {
            ScriviFile(sistema.FileColonne(), "di un altro");
        }
    };
    Sviluppa();
    EXPECT_EQ(ByteColonne().size(), 60U);
}

TEST_F(OrdavelEsterno, LAggiornamentoLasciaGliEventi)
{
    Sviluppa();
    const int nEventi = piattaforma.nEventi;
    sistema.AggiornaProgressSviluppoDll();
    EXPECT_EQ(piattaforma.nEventi, nEventi + 1);
}

TEST_F(OrdavelEsterno, SenzaEmulatoreIlTerzoTestoEUnTrattino)
{
    ScriviFile(Temp("Emulatore.dat"), "di un altro");
    Sviluppa();
    EXPECT_EQ(LeggiFile(m_sRegistro), Argomenti("-"));
}

TEST_F(OrdavelEsterno, ConLEmulatoreIlTerzoTestoEIlSuoFile)
{
    sistema.GetGridCond().Riga(3).sCondizione = "Emulatore";
    piattaforma.Gioca<F_ScegliRuota>([](F_ScegliRuota&) {});
    EXPECT_TRUE(sistema.GestSviluppo());
    EXPECT_EQ(LeggiFile(m_sRegistro), Argomenti(Temp("Emulatore.dat")));
    EXPECT_THAT(piattaforma.Messaggi(), testing::Contains(FineSviluppo()));
}

TEST_F(OrdavelEsterno, LaLibreriaScriveNeiSuoiTestiENoiNonCeNeAccorgiamo)
{
    const std::string sPercorso = sistema.PercorsoTemp();
    Sviluppa();
    Sviluppa();
    EXPECT_EQ(sistema.PercorsoTemp(), sPercorso);
    EXPECT_EQ(LeggiFile(m_sRegistro), Argomenti("-") + Argomenti("-"));
}

TEST_F(OrdavelEsterno, CartelleConSpaziAccentiEComeSiVoglionoScritte)
{
    for (const std::string_view sNome : {"con spazi e àèìòù €", "senza", "barra/", "\xE0-non-utf8/"}) {
        EXPECT_TRUE(sistema.PoniPercorsoTemp(cartella / sNome));
        std::filesystem::remove(m_sRegistro);
        Sviluppa();
        EXPECT_EQ(LeggiFile(m_sRegistro), Argomenti("-"));
        EXPECT_EQ(sistema.PercorsoTemp().back(), '/');
        EXPECT_EQ(LeggiFile(Temp("Sviluppo.col")).size(), 60U);
        EXPECT_EQ(sistema.QuantitaColonne(), 3);
    }
}

TEST_F(OrdavelEsterno, IlSistemaConsegnatoEQuelloSalvatoSenzaColonne)
{
    ASSERT_TRUE(Apri([this] {
        EXPECT_TRUE(Salva(cartella / "aperto.sic"));
        return cartella / "aperto.sic";
    }()));
    sistema.SelezionaNumero(6, true);
    const bool bModificato = sistema.Modificato();
    Gioca("rinuncia"); // it leaves the file as it was handed over
    EXPECT_TRUE(sistema.GestSviluppo());
    EXPECT_THAT(piattaforma.Messaggi(), ElementsAre(FineSviluppo()));
    EXPECT_EQ(sistema.FileSistema(), cartella / "aperto.sic");
    EXPECT_EQ(sistema.Modificato(), bModificato);
    EXPECT_TRUE(Salva(cartella / "voluto.sic"));
    EXPECT_EQ(LeggiFile(Temp("Sviluppo.sic")), LeggiFile(cartella / "voluto.sic"));
    EXPECT_EQ(LeggiFile(Temp("Sviluppo.sic")).size(), 317U + 2 * 334);
}

TEST_F(OrdavelEsterno, UnSistemaModificatoRestaTaleDopoLaConsegna)
{
    sistema.SelnovoNumeri1_Chiuso();
    ASSERT_TRUE(sistema.Modificato());
    Sviluppa();
    EXPECT_TRUE(sistema.Modificato());
    EXPECT_EQ(sistema.FileSistema(), "");
}

TEST_F(OrdavelEsterno, IContiTornanoESiVedonoNellEffetto)
{
    Sviluppa();
    const StatoSviluppo& stato = sistema.UltimoSviluppo();
    ASSERT_EQ(stato.aCondizioni.size(), 2U);
    EXPECT_EQ(stato.nCondizioni, 2);
    EXPECT_EQ(stato.aCondizioni[1].Tipo, TipoCondizione::peso);
    EXPECT_EQ(stato.aCondizioni[1].ContaKo, 201);
    EXPECT_EQ(stato.aCondizioni[1].ContaOk, 202);
    EXPECT_EQ(stato.aCondizioni[1].ContaRec, 203);
    EXPECT_EQ(stato.nSviluppate, 30);
    EXPECT_EQ(stato.nCondizionate, 3);
    std::vector<RigaElenco> aRighe;
    piattaforma.Gioca<F_EffettoCond>(
        [&](F_EffettoCond& finestra) { aRighe = finestra.ListView1.Righe.Valore(); });
    sistema.Toolbar2_ButtonClick("EffettoCondizioni");
    ASSERT_EQ(aRighe.size(), 2U);
    EXPECT_THAT(aRighe[0].aSotto, ElementsAre("Pari-Dispari", "102", "100", "101", "100", "103", "100"));
}

TEST_F(OrdavelEsterno, UnSistemaSenzaCondizioniTornaSenza)
{
    sistema.GetGridCond().Svuota();
    Sviluppa();
    EXPECT_EQ(sistema.UltimoSviluppo().aCondizioni, std::vector<RecordCondizione>(1));
    EXPECT_EQ(sistema.UltimoSviluppo().nCondizioni, 1);
}

TEST_F(OrdavelEsterno, ChiRinunciaLasciaUnEtichettaVuota)
{
    Sviluppa();
    Gioca("rinuncia");
    EXPECT_TRUE(sistema.GestSviluppo());
    EXPECT_THAT(piattaforma.Messaggi(), ElementsAre(FineSviluppo()));
    EXPECT_THAT(Conteggi(), ElementsAre("0", ""));
    EXPECT_FALSE(std::filesystem::exists(sistema.FileColonne()));
    EXPECT_FALSE(Abilitato("VisualizzaColonne"));
    EXPECT_TRUE(sistema.ColonneValide());
    EXPECT_EQ(sistema.UltimoSviluppo().aCondizioni.at(0).ContaOk, 0) << "i conti di prima non restano";
    ExpectFermo();
}

TEST_F(OrdavelEsterno, UnSistemaCheNonSiRileggeSiDiceColSuoTitolo)
{
    Sviluppa();
    Gioca("rompe");
    EXPECT_TRUE(sistema.GestSviluppo());
    EXPECT_THAT(
        piattaforma.Messaggi(),
        ElementsAre(Avviso("Il sistema scelto è salvato in formato non più supportato"), FineSviluppo()));
    EXPECT_EQ(sistema.UltimoSviluppo().aCondizioni, std::vector<RecordCondizione>(1));
    Gioca("togli");
    EXPECT_TRUE(sistema.GestSviluppo());
    EXPECT_THAT(
        piattaforma.Messaggi(),
        ElementsAre(Fallimento("OrdavelSis.Apri", Errore(eErrore::fileNonTrovato, Temp("Sviluppo.sic"))),
                    FineSviluppo()));
    EXPECT_THAT(Conteggi(), ElementsAre("30", "3"));
    EXPECT_TRUE(sistema.ColonneValide());
    ExpectFermo();
}

TEST_F(OrdavelEsterno, UnaConsegnaCheNonSiPuoScrivereNonComincia)
{
    std::filesystem::create_directories(Temp("Sviluppo.sic/piena"));
    EXPECT_TRUE(sistema.GestSviluppo());
    EXPECT_THAT(piattaforma.Messaggi(),
                ElementsAre(Fallimento("ModFunzGeneriche.KillFile",
                                       Errore(eErrore::accessoPercorso, Temp("Sviluppo.sic"))),
                            FineSviluppo()));
    EXPECT_EQ(LeggiFile(m_sRegistro), "");
    EXPECT_FALSE(sistema.ColonneValide());
    ExpectFermo();
}

TEST_F(OrdavelEsterno, DuranteLaCorsaGliScattiMostranoAQuantoSta)
{
    std::vector<std::string> aViste;
    std::int32_t nBarra = 0;
    bool bNelloScatto = false;
    EXPECT_EQ(Timer().nMillisecondi, 1000);
    SviluppaLento([&] {
        if (bNelloScatto) {
            return; // the tick lets events run, too
        }
        EXPECT_EQ(Abilitati(), std::vector<std::string>{"Stop"});
        EXPECT_FALSE(sistema.ColonneValide());
        EXPECT_FALSE(sistema.GestSviluppo());
        EXPECT_FALSE(Salva(cartella / "no.sic"));
        bNelloScatto = true;
        Timer().scatto();
        bNelloScatto = false;
        aViste = Conteggi();
        nBarra = sistema.Controlli().ProgBarXP1.Valore.Valore();
        if (aViste[0] == "8") {
            LibreriaSviluppo().StopSviluppo();
        }
    });
    EXPECT_THAT(aViste, ElementsAre("8", "0"));
    EXPECT_EQ(nBarra, 80) << "8 di 10";
    EXPECT_THAT(piattaforma.Messaggi(), ElementsAre(FineSviluppo()));
    ExpectFermo();
}

TEST_F(OrdavelEsterno, UnoStopTieneLeColonneEDaUnRisultatoValido)
{
    int nFermate = LibreriaEsterna("TorvanSvilSist").Funzione<int()>("QuanteFermate")();
    SviluppaLento([&] {
        if (LibreriaSviluppo().GetSviluppate() == 8 && !sistema.UltimoSviluppo().bStopSviluppo) {
            piattaforma.Rispondi(eRisposta::no);
            sistema.Toolbar2_ButtonClick("Stop");
            EXPECT_FALSE(sistema.UltimoSviluppo().bStopSviluppo);
            piattaforma.Rispondi(eRisposta::si);
            sistema.Toolbar2_ButtonClick("Stop");
        }
    });
    EXPECT_THAT(piattaforma.Messaggi(),
                ElementsAre(Domanda("Interrompere ?"), Domanda("Interrompere ?"), FineSviluppo()));
    EXPECT_EQ(LibreriaEsterna("TorvanSvilSist").Funzione<int()>("QuanteFermate")(), nFermate + 1);
    EXPECT_EQ(ByteColonne(), ByteDi({{1, 2, 3}}));
    EXPECT_EQ(sistema.Controlli().LabCondizionate.Testo.Valore(), "1");
    EXPECT_TRUE(sistema.ColonneValide());
    EXPECT_TRUE(sistema.UltimoSviluppo().bStopSviluppo);
    EXPECT_EQ(sistema.UltimoSviluppo().aCondizioni.at(0).ContaOk, 102);
    ExpectFermo();
    Gioca("");
    Sviluppa();
    EXPECT_FALSE(sistema.UltimoSviluppo().bStopSviluppo) << "uno stop vale per la sua corsa";
}

TEST_F(OrdavelEsterno, IlMotoreSceltoDuranteLaCorsaValeDallaProssima)
{
    SviluppaLento([&] {
        sistema.PoniMotoreSviluppo(eMotoreSviluppo::interno);
        if (LibreriaSviluppo().GetSviluppate() == 8 && !sistema.UltimoSviluppo().bStopSviluppo) {
            piattaforma.Rispondi(eRisposta::si);
            sistema.Stop();
        }
    });
    EXPECT_THAT(piattaforma.Messaggi(), ElementsAre(Domanda("Interrompere ?"), FineSviluppo()));
    EXPECT_EQ(ByteColonne(), ByteDi({{1, 2, 3}}));
    Sviluppa();
    EXPECT_EQ(sistema.QuantitaColonne(), 10);
}

TEST_F(OrdavelEsterno, UnFallimentoDegliEventiFermaLaLibreriaEPassaOltre)
{
    Gioca("lento");
    piattaforma.eventi = [&] {
        if (Timer().Acceso.Valore() && LibreriaSviluppo().GetSviluppate() == 8) {
            throw Errore(eErrore::dispositivo);
        }
    };
    EXPECT_EQ(NumeroErrore([&] { sistema.GestSviluppo(); }), 57);
    piattaforma.eventi = {};
    EXPECT_FALSE(sistema.ColonneValide());
    ExpectFermo();
}

TEST_F(OrdavelEsterno, LInternoDopoLEsternoVaComeSempre)
{
    Sviluppa();
    sistema.Controlli().CmbMotSviluppo.Indice.Poni(0);
    Sviluppa();
    EXPECT_EQ(sistema.QuantitaColonne(), 10);
    EXPECT_THAT(Conteggi(), ElementsAre("10", "10"));
    EXPECT_EQ(LeggiFile(m_sRegistro), Argomenti("-")) << "la libreria non fu più chiamata";
}

TEST_F(OrdavelEsterno, UnPercorsoTempSenzaBarraNelleProprietaLaRiceve)
{
    struct Archivio : ArchivioProprieta {
        std::string sPercorso;
        [[nodiscard]] std::optional<std::string> Leggi(std::string_view sChiave) const override
        {
            return sChiave == "PercorsoTemp" ? std::optional(sPercorso) : std::nullopt;
        }
        void Scrivi(std::string_view /*sChiave*/, const std::string& /*sValore*/) override {}
    } archivio;
    archivio.sPercorso = cartella / "temp";
    sistema.LeggiProprieta(archivio);
    sistema.PoniMotoreSviluppo(eMotoreSviluppo::esterno);
    Pronostico(3, 1, 5);
    Sviluppa();
    EXPECT_EQ(LeggiFile(m_sRegistro),
              (cartella / "temp/") + "\n" + (cartella / "temp/Sviluppo.sic") + "\n-\n");
    EXPECT_EQ(sistema.QuantitaColonne(), 3);
}

} // namespace
} // namespace ordavel
