// Piattaforma_prova.cpp - failure boxes, the busy pointer, the lack of statistics, and the played desktop itself.

#include "ordavel/Piattaforma.hpp"

#include "comune/PiattaformaProva.hpp"

#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

#include <optional>

namespace ordavel {
namespace {

using prove::Domanda;
using prove::PiattaformaProva;
using testing::ElementsAre;

TEST(Piattaforma, UnFallimentoEUnaFinestraCriticaColNomeDellOperazione)
{
    PiattaformaProva piattaforma;
    piattaforma.MostraFallimento("OrdavelSis.Salva", Errore(eErrore::discoPieno));
    EXPECT_THAT(piattaforma.Messaggi(), ElementsAre(Messaggio{.icona = eIcona::critico,
                                                              .sTitolo = "OrdavelSis.Salva",
                                                              .sTesto = "61- Disco pieno",
                                                              .pulsanti = ePulsanti::ok}));
}

TEST(Piattaforma, LaLineaNotaSiMostra)
{
    PiattaformaProva piattaforma;
    piattaforma.MostraFallimento("x", Errore(eErrore::fileNonTrovato, "a.col", 210));
    EXPECT_EQ(piattaforma.Messaggi().at(0).sTesto, "53- File non trovato: a.col Linea errore 210");
}

TEST(Piattaforma, IlPuntatoreTornaNormaleAncheDopoUnFallimento)
{
    PiattaformaProva piattaforma;
    try {
        const PuntatoreInAttesa esterno(piattaforma);
        const PuntatoreInAttesa interno(piattaforma);
        EXPECT_TRUE(piattaforma.Occupato());
        Solleva(eErrore::argomento);
    } catch (const Errore&) {
        EXPECT_FALSE(piattaforma.Occupato());
    }
}

TEST(Piattaforma, SenzaStatisticheLoDiceAChiLeChiede)
{
    PiattaformaProva piattaforma;
    const auto statistica = piattaforma.Piattaforma::CreaStatistica();
    statistica->MostraStatistica(12, 3);
    EXPECT_THAT(piattaforma.Messaggi(), ElementsAre(Messaggio{.icona = eIcona::informazione,
                                                              .sTitolo = "",
                                                              .sTesto = "Statistica non disponibile",
                                                              .pulsanti = ePulsanti::ok}));
}

TEST(Piattaforma, SenzaStatisticheLAvvioELaFineTacciono)
{
    PiattaformaProva piattaforma;
    const auto statistica = piattaforma.Piattaforma::CreaStatistica();
    statistica->Avvia();
    statistica->Ferma();
    EXPECT_THAT(piattaforma.Messaggi(), testing::IsEmpty());
}

TEST(PiattaformaProva, LeRisposteEsconoNellOrdineDelCopione)
{
    PiattaformaProva piattaforma;
    piattaforma.Rispondi(eRisposta::si);
    piattaforma.Rispondi(eRisposta::no);
    EXPECT_EQ(piattaforma.MostraMessaggio(Domanda("uno")), eRisposta::si);
    EXPECT_EQ(piattaforma.MostraMessaggio(Domanda("due")), eRisposta::no);
    EXPECT_THAT(piattaforma.Messaggi(), ElementsAre(Domanda("uno"), Domanda("due")));
}

TEST(PiattaformaProva, UnaRispostaCheMancaFaFallireLaProva)
{
    PiattaformaProva piattaforma;
    EXPECT_NONFATAL_FAILURE((void)piattaforma.MostraMessaggio(Domanda("chi?")), "nessuna risposta");
    EXPECT_NONFATAL_FAILURE((void)piattaforma.DialogoApri({}), "nessuna risposta");
    (void)piattaforma.Messaggi();
}

TEST(PiattaformaProva, CioCheAvanzaFaFallireLaProva)
{
    std::optional<PiattaformaProva> piattaforma;
    piattaforma.emplace().Rispondi(eRisposta::si);
    EXPECT_NONFATAL_FAILURE(piattaforma.reset(), "risposte che nessuno ha chiesto");
    piattaforma.emplace().Scegli("a.sic");
    EXPECT_NONFATAL_FAILURE(piattaforma.reset(), "file che nessuno ha chiesto");
    piattaforma.emplace().MostraMessaggio({});
    EXPECT_NONFATAL_FAILURE(piattaforma.reset(), "finestre che nessuno ha guardato");
    piattaforma.emplace().PuntatoreOccupato(true);
    EXPECT_NONFATAL_FAILURE(piattaforma.reset(), "puntatore lasciato in attesa");
}

TEST(PiattaformaProva, LOrologioLeggeLeOreUnaVoltaCiascuna)
{
    PiattaformaProva piattaforma;
    piattaforma.Orologio({5, 12.5F});
    EXPECT_EQ(piattaforma.SecondiDaMezzanotte(), 5);
    EXPECT_EQ(piattaforma.SecondiDaMezzanotte(), 12.5F);
    EXPECT_EQ(piattaforma.SecondiDaMezzanotte(), 12.5F);
}

} // namespace
} // namespace ordavel
