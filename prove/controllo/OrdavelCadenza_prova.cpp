// OrdavelCadenza_prova.cpp - how often a run is shown and lets events run, on a played clock.

#include "ordavel/Ordavel.hpp"

#include "controllo/SistemaProva.hpp"

#include <gtest/gtest.h>

namespace ordavel {
namespace {

using prove::Domanda;
using prove::FineSviluppo;
using std::chrono::microseconds;
using std::chrono::milliseconds;
using testing::ElementsAre;

class OrdavelCadenza : public testing::Test, protected prove::SistemaProva {
protected:
    /// 575757 columns, 57 refreshes, of which only some columns are kept; each question for the time takes a while.
    OrdavelCadenza()
    {
        Pronostico(5, 1, 39);
        sistema.GetGridCond().Riga(1) = {"Pari-Dispari", "Pari", "5", "", " "};
        piattaforma.adesso = [this] {
            m_Ora += domanda;
            return m_Ora;
        };
        sistema.Controlli().LabSviluppate.Testo.Ascolta([this] {
            if (sistema.Controlli().LabSviluppate.Testo.Valore() != "0") {
                aMostrate.push_back(sistema.Controlli().LabSviluppate.Testo.Valore());
            }
        });
    }

    /// What the bar and the labels say at the end.
    void ConfrontaFine()
    {
        EXPECT_THAT(Conteggi(), ElementsAre("575.757", "11.628"));
        EXPECT_EQ(sistema.Controlli().ProgBarXP1.Valore.Valore(), 100);
        EXPECT_EQ(sistema.QuantitaColonne(), 11628);
    }

    /// So many milliseconds pass at an event, beside what the questions take.
    void PassaAllEvento(int nEvento, milliseconds nQuanto)
    {
        piattaforma.eventi = [this, nEvento, nQuanto] {
            if (piattaforma.nEventi == nEvento) {
                m_Ora += nQuanto;
            }
        };
    }

    microseconds domanda{1};
    std::vector<std::string> aMostrate; ///< columns examined, each time they were shown

private:
    std::chrono::steady_clock::time_point m_Ora{std::chrono::hours(1)};
};

TEST_F(OrdavelCadenza, DentroUnMillisecondoSiMostraUnaVoltaEPoiLaFine)
{
    Sviluppa();
    EXPECT_THAT(aMostrate, ElementsAre("10.000", "575.757"));
    EXPECT_EQ(piattaforma.nEventi, 2) << "una volta prima della corsa, una al primo aggiornamento";
    ConfrontaFine();
}

TEST_F(OrdavelCadenza, DopoQuarantaMillisecondiSiMostraDiNuovo)
{
    PassaAllEvento(2, milliseconds(40));
    Sviluppa();
    EXPECT_THAT(aMostrate, ElementsAre("10.000", "20.000", "575.757"));
    EXPECT_EQ(piattaforma.nEventi, 3);
    ConfrontaFine();
}

TEST_F(OrdavelCadenza, DopoDieciMillisecondiGliEventiManonLeCifre)
{
    PassaAllEvento(2, milliseconds(10));
    Sviluppa();
    EXPECT_THAT(aMostrate, ElementsAre("10.000", "575.757"));
    EXPECT_EQ(piattaforma.nEventi, 3);
}

TEST_F(OrdavelCadenza, ConAggiornamentiLentiSiMostraTutto)
{
    domanda = milliseconds(40);
    Sviluppa();
    EXPECT_EQ(aMostrate.size(), 58U);
    EXPECT_EQ(aMostrate[31], "320.000");
    EXPECT_EQ(piattaforma.nEventi, 58);
    ConfrontaFine();
}

TEST_F(OrdavelCadenza, UnoStopSiVedeEntroVentiMillisecondi)
{
    // Two questions a refresh: half a millisecond each. Stop is asked for from 20.000 columns on.
    domanda = microseconds(250);
    piattaforma.Rispondi(eRisposta::si);
    piattaforma.eventi = [this, bFermata = false]() mutable {
        if (!bFermata && sistema.UltimoSviluppo().nSviluppate >= 20000) {
            bFermata = true;
            sistema.Stop();
        }
    };
    EXPECT_TRUE(sistema.GestSviluppo());
    EXPECT_THAT(piattaforma.Messaggi(), ElementsAre(Domanda("Interrompere ?"), FineSviluppo()));
    EXPECT_FALSE(sistema.ColonneValide());
    // The events behind the first are those ten refreshes later; the run sees the stop one refresh behind them.
    EXPECT_EQ(sistema.UltimoSviluppo().nSviluppate, 120000);
    EXPECT_EQ(Conteggi()[0], "120.000");
}

TEST_F(OrdavelCadenza, AncheUnFiltroMostraLeSueUltimeCifre)
{
    Sviluppa();
    prove::ScriviFile(cartella / "tutte.col", ByteColonne() + ByteColonne() + ByteColonne());
    aMostrate.clear();
    piattaforma.nEventi = 0;
    Filtra(cartella / "tutte.col");
    EXPECT_THAT(aMostrate, ElementsAre("10.000", "34.884"));
    EXPECT_EQ(piattaforma.nEventi, 2);
    EXPECT_THAT(Conteggi(), ElementsAre("34.884", "34.884"));
}

TEST_F(OrdavelCadenza, LaFinestraDiUnFallimentoStaSopraLeUltimeCifre)
{
    // The sum 20 leaves no rest by 20; the sum 15 leaves one that no list holds, in the column behind 25.000 others.
    std::string sColonne;
    for (int n = 0; n < 25000; ++n) {
        sColonne += prove::ByteDi({{1, 2, 3, 4, 10}});
    }
    prove::ScriviFile(cartella / "tutte.col", sColonne + prove::ByteDi({{1, 2, 3, 4, 5}}));
    sistema.GetGridCond().Riga(1) = prove::CondizioneGuasta();
    std::vector<std::string> aViste;
    piattaforma.finestra = [&] { aViste.push_back(Conteggi()[0]); };
    EXPECT_TRUE(sistema.GestSviluppoDaFileColonne(cartella / "tutte.col"));
    EXPECT_EQ(piattaforma.Messaggi().size(), 2U);
    EXPECT_THAT(aMostrate, ElementsAre("10.000", "20.000"));
    EXPECT_EQ(aViste.front(), "20.000");
}

TEST_F(OrdavelCadenza, LEsportazioneLasciaEventiOgniTanto)
{
    Sviluppa();
    piattaforma.nEventi = 0;
    std::vector<std::int32_t> aPercentuali;
    sistema.Controlli().PanPerc.Valore.Ascolta(
        [&] { aPercentuali.push_back(sistema.Controlli().PanPerc.Valore.Valore()); });
    piattaforma.Scegli(cartella / "colonne.txt");
    EXPECT_TRUE(sistema.SalvaFileColonneTesto());
    // 11628 lines, a question for each but every hundredth: 11.5 ms.
    EXPECT_EQ(piattaforma.nEventi, 1 + 3);
    EXPECT_THAT(aPercentuali, ElementsAre(100));
    static_cast<void>(piattaforma.Dialoghi());
    static_cast<void>(piattaforma.Messaggi());
}

} // namespace
} // namespace ordavel
