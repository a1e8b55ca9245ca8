// OrdavelSviluppo_prova.cpp - a development from the command to the box at its end.

#include "ordavel/Ordavel.hpp"

#include "controllo/SistemaProva.hpp"
#include "editor/F_ScegliRuota.hpp"

#include <gtest/gtest.h>

namespace ordavel {
namespace {

using prove::ByteDi;
using prove::Domanda;
using prove::FineSviluppo;
using testing::ElementsAre;

class OrdavelSviluppo : public testing::Test, protected prove::SistemaProva {
protected:
    /// 53130 columns: five refreshes.
    void PronosticoLungo() { Pronostico(5, 1, 25); }

    /// What happens at the first refresh of a run; before the run events are let run once.
    void AlPrimoAggiornamento(std::function<void()> operazione)
    {
        piattaforma.eventi = [this, operazione = std::move(operazione)] {
            if (piattaforma.nEventi == 2) {
                operazione();
            }
        };
    }

    /// A run in which Stop is pressed at the first refresh.
    void SviluppaConStop(eRisposta risposta)
    {
        PronosticoLungo();
        piattaforma.Rispondi(risposta);
        AlPrimoAggiornamento([this] { sistema.Stop(); });
        EXPECT_TRUE(sistema.GestSviluppo());
        EXPECT_THAT(piattaforma.Messaggi(), ElementsAre(Domanda("Interrompere ?"), FineSviluppo()));
    }
};

TEST_F(OrdavelSviluppo, ClasseUgualeAiNumeriDaUnaColonna)
{
    Pronostico(5, 11, 15);
    Sviluppa();
    EXPECT_EQ(ByteColonne(), ByteDi({{11, 12, 13, 14, 15}}));
    EXPECT_THAT(Conteggi(), ElementsAre("1", "1"));
    EXPECT_TRUE(sistema.ColonneValide());
}

TEST_F(OrdavelSviluppo, LeColonneEsconoInOrdine)
{
    Pronostico(2, {20, 3, 12, 7});
    Sviluppa();
    EXPECT_EQ(ByteColonne(), ByteDi({{3, 7}, {3, 12}, {3, 20}, {7, 12}, {7, 20}, {12, 20}}));
}

TEST_F(OrdavelSviluppo, LeCondizioniScelgonoLeColonne)
{
    Pronostico(3, 1, 6);
    sistema.GetGridCond().Riga(1) = {"Peso", "Caselle :\r\n1-2-3", "6-8", "-", " "};
    Sviluppa();
    EXPECT_EQ(ByteColonne(), ByteDi({{1, 2, 3}, {1, 2, 4}, {1, 2, 5}, {1, 3, 4}}));
    EXPECT_THAT(Conteggi(), ElementsAre("20", "4"));
    const StatoSviluppo& stato = sistema.UltimoSviluppo();
    EXPECT_EQ(stato.nSviluppate, 20);
    EXPECT_EQ(stato.nCondizionate, 4);
    ASSERT_EQ(stato.aCondizioni.size(), 1);
    EXPECT_EQ(stato.aCondizioni[0].ContaOk, 4);
    EXPECT_EQ(stato.aCondizioni[0].ContaKo, 16);
}

TEST_F(OrdavelSviluppo, IlQuadroRecuperaLeColonne)
{
    Pronostico(3, 1, 5);
    sistema.GetGridCond().Riga(1) = {"Peso", "Caselle :\r\n1-2-3", "6-7", "8-8", "1"};
    sistema.GetLbQuadroRec().Voci.Poni({"0,1,-1"});
    Sviluppa();
    EXPECT_EQ(ByteColonne(), ByteDi({{1, 2, 3}, {1, 2, 4}, {1, 2, 5}, {1, 3, 4}}));
}

TEST_F(OrdavelSviluppo, LaRiduzioneSfoltisceLeColonneVicine)
{
    // From class 3 less 1 on, two columns that share two numbers are too near.
    Pronostico(3, 1, 5);
    sistema.Controlli().CmbRid.Indice.Poni(1);
    Sviluppa();
    EXPECT_EQ(ByteColonne(), ByteDi({{1, 2, 3}, {1, 4, 5}, {2, 3, 4}}));
    EXPECT_THAT(Conteggi(), ElementsAre("10", "3"));
}

TEST_F(OrdavelSviluppo, SenzaColonneCheRestinoIlFileEVuoto)
{
    Pronostico(3, 1, 5);
    sistema.GetGridCond().Riga(1) = {"Peso", "Caselle :\r\n1-2-3", "1-2", "-", " "};
    Sviluppa();
    EXPECT_TRUE(std::filesystem::exists(sistema.FileColonne()));
    EXPECT_EQ(ByteColonne(), "");
    EXPECT_THAT(Conteggi(), ElementsAre("10", "0"));
    EXPECT_TRUE(sistema.ColonneValide());
}

TEST_F(OrdavelSviluppo, UnNuovoSviluppoSostituisceIlPrecedente)
{
    Pronostico(3, 1, 5);
    Sviluppa();
    sistema.PoniClasse(5);
    Sviluppa();
    EXPECT_EQ(ByteColonne(), ByteDi({{1, 2, 3, 4, 5}}));
}

TEST_F(OrdavelSviluppo, LeEtichetteMostranoLeMigliaia)
{
    PronosticoLungo();
    Sviluppa();
    EXPECT_THAT(Conteggi(), ElementsAre("53.130", "53.130"));
    EXPECT_EQ(sistema.Controlli().ProgBarXP1.Valore.Valore(), 100);
    EXPECT_EQ(sistema.QuantitaColonne(), 53130);
}

TEST_F(OrdavelSviluppo, OgniDiecimilaColonneSiVedeAChePuntoE)
{
    PronosticoLungo();
    sistema.GetGridCond().Riga(1) = {"Pari-Dispari", "Pari", "5", "", " "};
    std::vector<std::string> aVisti;
    piattaforma.eventi = [&] {
        if (piattaforma.nEventi > 1) {
            aVisti.push_back(Conteggi()[0] + " " +
                             std::to_string(sistema.Controlli().ProgBarXP1.Valore.Valore()));
        }
    };
    Sviluppa();
    EXPECT_THAT(aVisti, ElementsAre("10.000 18", "20.000 37", "30.000 56", "40.000 75", "50.000 94"));
    EXPECT_THAT(Conteggi(), ElementsAre("53.130", "792"));
}

TEST_F(OrdavelSviluppo, IlPannelloSiVedeSoloDuranteLaCorsa)
{
    PronosticoLungo();
    auto& controlli = sistema.Controlli();
    controlli.ProgBarXP1.Valore.Poni(55);
    std::vector<bool> aVisibile;
    std::vector<std::int32_t> aBarra;
    piattaforma.eventi = [&] {
        aVisibile.push_back(controlli.PanSviluppo.Visibile.Valore());
        aBarra.push_back(controlli.ProgBarXP1.Valore.Valore());
    };
    Sviluppa();
    EXPECT_EQ(aVisibile, std::vector<bool>(6, true));
    EXPECT_EQ(aBarra.front(), 0);
    EXPECT_FALSE(controlli.PanSviluppo.Visibile.Valore());
}

TEST_F(OrdavelSviluppo, DuranteLaCorsaSoloStopEAbilitato)
{
    PronosticoLungo();
    auto& controlli = sistema.Controlli();
    const std::vector<Combo*> aListe{&controlli.CmbClasse, &controlli.CmbRid, &controlli.CmbMotSviluppo};
    std::vector<std::string> aDurante{"mai"};
    AlPrimoAggiornamento([&] {
        aDurante = Abilitati();
        for (const Combo* combo : aListe) {
            EXPECT_FALSE(combo->Abilitato.Valore());
        }
    });
    Sviluppa();
    EXPECT_THAT(aDurante, ElementsAre("Stop"));
    for (const Combo* combo : aListe) {
        EXPECT_TRUE(combo->Abilitato.Valore());
    }
}

TEST_F(OrdavelSviluppo, AllaFineTuttoEAbilitatoMenoStop)
{
    Pronostico(5, 1, 6);
    EXPECT_FALSE(Abilitato("FiltraSvilPrec"));
    EXPECT_FALSE(Abilitato("VisualizzaColonne"));
    EXPECT_FALSE(VoceAbilitata("SalvaColonne"));
    Sviluppa();
    EXPECT_EQ(Abilitati().size(), sistema.Controlli().Toolbar2.aPulsanti.size() - 1);
    EXPECT_FALSE(Abilitato("Stop"));
    EXPECT_TRUE(VoceAbilitata("SalvaColonne"));
    EXPECT_TRUE(VoceAbilitata("SalvaColonneTesto"));
}

TEST_F(OrdavelSviluppo, GliAltriComandiDuranteLaCorsaSonoRifiutati)
{
    PronosticoLungo();
    const std::string sFile = cartella / "s.sic";
    const std::string sColonne = cartella / "a.col";
    prove::ScriviFile(sColonne, ByteDi({{1, 2, 3, 4, 5}}));
    AlPrimoAggiornamento([&] {
        // None of them asks for a file: an unexpected dialog fails the test.
        EXPECT_FALSE(sistema.GestSviluppo());
        EXPECT_FALSE(sistema.GestSviluppoDaFileColonne(sColonne));
        EXPECT_FALSE(sistema.Apri());
        EXPECT_FALSE(sistema.SalvaFileColonne());
        EXPECT_FALSE(Salva({}));
        EXPECT_FALSE(Salva(sFile));
    });
    Sviluppa();
    EXPECT_FALSE(std::filesystem::exists(sFile));
    EXPECT_THAT(Conteggi(), ElementsAre("53.130", "53.130"));
}

TEST_F(OrdavelSviluppo, FermatoLasciaUnInizioDelleColonne)
{
    SviluppaConStop(eRisposta::si);
    EXPECT_FALSE(sistema.ColonneValide());
    const std::string sParte = ByteColonne();
    // The stop is seen one refresh behind the events that brought it.
    EXPECT_EQ(sParte.size(), 20'000 * 20);
    EXPECT_THAT(Conteggi(), ElementsAre("20.000", "20.000"));
    EXPECT_FALSE(sistema.Controlli().PanSviluppo.Visibile.Valore());
    EXPECT_TRUE(Abilitato("FiltraSvilPrec"));
    piattaforma.eventi = {};
    Sviluppa();
    EXPECT_EQ(sParte, ByteColonne().substr(0, sParte.size()));
    EXPECT_TRUE(sistema.ColonneValide());
}

TEST_F(OrdavelSviluppo, ConUnNoLaCorsaContinua)
{
    SviluppaConStop(eRisposta::no);
    EXPECT_TRUE(sistema.ColonneValide());
    EXPECT_EQ(sistema.QuantitaColonne(), 53130);
}

TEST_F(OrdavelSviluppo, UnoStopSenzaCorsaNonFermaLaProssima)
{
    PronosticoLungo();
    piattaforma.Rispondi(eRisposta::si);
    sistema.Stop();
    EXPECT_THAT(piattaforma.Messaggi(), ElementsAre(Domanda("Interrompere ?")));
    Sviluppa();
    EXPECT_TRUE(sistema.ColonneValide());
}

TEST_F(OrdavelSviluppo, LaFineMostraIlTempoInSecondiInteri)
{
    Pronostico(5, 1, 5);
    struct Caso {
        float nInizio;
        float nFine;
        const char* sTempo;
    };
    for (const Caso& caso :
         {Caso{100, 107, "00:00:07"}, Caso{100.75F, 108.5F, "00:00:07"}, Caso{0, 3725, "01:02:05"},
          Caso{86395, 2, "00:00:07"}, Caso{86399.5F, 0.25F, "00:00:00"}}) {
        piattaforma.Orologio({caso.nInizio, caso.nFine});
        EXPECT_TRUE(sistema.GestSviluppo());
        EXPECT_THAT(piattaforma.Messaggi(), ElementsAre(FineSviluppo(caso.sTempo)));
    }
}

TEST_F(OrdavelSviluppo, IlTempoCominciaDopoGliEventiDellInizio)
{
    Pronostico(5, 1, 5);
    piattaforma.Orologio({100});
    piattaforma.eventi = [&] { piattaforma.Orologio({200, 203}); };
    EXPECT_TRUE(sistema.GestSviluppo());
    EXPECT_THAT(piattaforma.Messaggi(), ElementsAre(FineSviluppo("00:00:03")));
}

TEST_F(OrdavelSviluppo, LaFinestraFinaleSiMostraACorsaConclusa)
{
    Pronostico(5, 1, 5);
    int nFinestre = 0;
    piattaforma.finestra = [&] {
        ++nFinestre;
        EXPECT_FALSE(Abilitato("Stop"));
        EXPECT_TRUE(Abilitato("VisualizzaColonne"));
        EXPECT_TRUE(Abilitato("FiltraSvilPrec"));
        EXPECT_TRUE(sistema.Controlli().PanSviluppo.Visibile.Valore());
    };
    EXPECT_TRUE(sistema.GestSviluppo());
    EXPECT_THAT(piattaforma.Messaggi(), ElementsAre(Messaggio{.icona = eIcona::informazione,
                                                              .sTitolo = "Sviluppo",
                                                              .sTesto = "Fine sviluppo \r\n00:00:00",
                                                              .pulsanti = ePulsanti::ok}));
    EXPECT_EQ(nFinestre, 1);
    EXPECT_FALSE(sistema.Controlli().PanSviluppo.Visibile.Valore());
}

/// Develops a system with an emulator, and answers which wheel.
class OrdavelEmulatore : public OrdavelSviluppo {
protected:
    void SviluppaConRuota(std::int32_t nRuota, bool bCreato)
    {
        piattaforma.Gioca<F_ScegliRuota>([nRuota](F_ScegliRuota& dialogo) {
            dialogo.CmbRuota.Indice.Poni(nRuota - 1);
            dialogo.Premi(ePulsanteDialogo::conferma);
        });
        EXPECT_TRUE(sistema.GestSviluppo());
        std::vector<Messaggio> aAttesi{FineSviluppo()};
        if (!bCreato) {
            aAttesi.insert(aAttesi.begin(), prove::EmulatoreNonCreato());
        }
        EXPECT_THAT(piattaforma.Messaggi(), testing::ElementsAreArray(aAttesi));
    }

    /// An archive of one draw of "Lotto": every wheel w has the numbers 5w-4 to 5w.
    void Archivio()
    {
        std::string sByte(67, '\0');
        for (std::size_t i = 0; i < 55; ++i) {
            sByte[12 + i] = static_cast<char>(i + 1);
        }
        prove::ScriviFile(Temp("lotto.bd"), sByte);
        sistema.PoniFileBdLotto(Temp("lotto.bd"));
    }
};

TEST_F(OrdavelEmulatore, SenzaFileHaUnaRigaDiZeri)
{
    Pronostico(3, 1, 4);
    sistema.GetGridCond().Riga(1) = {"Emulatore", "[1]\r\nP0) 1 - 1\r\nP1) 0 - 0\r\n", "", "", ""};
    SviluppaConRuota(1, false);
    EXPECT_THAT(sistema.UltimoSviluppo().aEmulatore.Righe(), ElementsAre(RigaEmulatore{}));
    EXPECT_EQ(sistema.QuantitaColonne(), 4);
}

TEST_F(OrdavelEmulatore, QuandoNonSiCreaSiLeggeIlFileDiPrima)
{
    // The one draw holds 1 and 2; a column may hit it once and no more.
    std::string sRiga(91, '\0');
    sRiga[1] = sRiga[2] = 1;
    prove::ScriviFile(Temp("Emulatore.dat"), sRiga);
    Pronostico(2, 1, 4);
    sistema.GetGridCond().Riga(1) = {"Emulatore", "[1]\r\nP0) 0 - 0\r\nP1) 1 - 1\r\nP2) 0 - 0\r\n", "", "",
                                     ""};
    SviluppaConRuota(1, false);
    EXPECT_EQ(ByteColonne(), ByteDi({{1, 3}, {1, 4}, {2, 3}, {2, 4}}));
    std::filesystem::remove(Temp("Emulatore.dat"));
    SviluppaConRuota(1, false);
    EXPECT_EQ(ByteColonne(), "");
}

TEST_F(OrdavelEmulatore, LeEstrazioniSonoQuelleDellaRuota)
{
    Archivio();
    Pronostico(2, 5, 7);
    sistema.GetGridCond().Riga(1) = {"Emulatore", "[1]\r\nP0) 0 - 0\r\nP1) 0 - 0\r\nP2) 1 - 1\r\n", "", "",
                                     ""};
    SviluppaConRuota(2, true);
    EXPECT_EQ(ByteColonne(), ByteDi({{6, 7}})) << "wheel 2 has 6 to 10";
    EXPECT_EQ(prove::LeggiFile(Temp("Emulatore.dat")).size(), std::size_t{91});
}

TEST_F(OrdavelEmulatore, AncheUnFiltroLeChiede)
{
    Archivio();
    sistema.GetGridCond().Riga(1) = {"Emulatore", "[1]\r\nP0) 0 - 0\r\nP1) 1 - 1\r\nP2) 0 - 0\r\n", "", "",
                                     ""};
    prove::ScriviFile(Temp("altre.col"), ByteDi({{5, 6}, {6, 7}, {20, 21}}));
    piattaforma.Gioca<F_ScegliRuota>([](F_ScegliRuota&) {});
    EXPECT_TRUE(sistema.GestSviluppoDaFileColonne(Temp("altre.col")));
    EXPECT_THAT(piattaforma.Messaggi(), ElementsAre(FineSviluppo()));
    EXPECT_EQ(ByteColonne(), ByteDi({{5, 6}})) << "wheel 1 has 1 to 5";
}

TEST_F(OrdavelEmulatore, ColDieciELottoNonSiCrea)
{
    Archivio();
    sistema.PoniFileBd10Lotto(Temp("lotto.bd"));
    sistema.Controlli().CmbTipoGioco.Indice.Poni(1);
    Pronostico(2, 1, 3);
    sistema.GetGridCond().Riga(1) = {"Emulatore", "[1]\r\nP0) 0 - 9\r\n", "", "", ""};
    SviluppaConRuota(1, false);
}

} // namespace
} // namespace ordavel
