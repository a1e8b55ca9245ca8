// OrdavelConta_prova.cpp - the component counts its system, and nothing of it moves.

#include "ordavel/Ordavel.hpp"

#include "comune/ColonneProva.hpp"
#include "comune/Fallimenti.hpp"
#include "condizioni/ModTestoCelle.hpp"
#include "controllo/SistemaProva.hpp"

#include <gtest/gtest.h>

namespace ordavel {
namespace {

class OrdavelConta : public testing::Test, protected prove::SistemaProva {
protected:
    /// A count, which shows nothing.
    ConteggioSistema Conta()
    {
        const int nEventi = piattaforma.nEventi;
        const auto conto = sistema.ContaSistema({.attesa = std::chrono::hours(1)});
        EXPECT_TRUE(piattaforma.Messaggi().empty());
        EXPECT_EQ(piattaforma.nEventi, nEventi);
        return conto.value_or(ConteggioSistema{});
    }
};

/// A sequence, whose recoveries count in a way of their own.
Condizione Sequenza()
{
    ValoriDialogo valori;
    valori.sSchema = "PD";
    valori.sPasso = "1";
    valori.aPunti = valori.aConsec = prove::FlagDi({1, 2});
    valori.aRecupero = valori.aConsecRec = prove::FlagDi({0, 1});
    return CelleDaDialogo(TipoCondizione::sequenze, valori);
}

TEST_F(OrdavelConta, ComeUnoSviluppo)
{
    Pronostico(5, 1, 22);
    sistema.GetGridCond().Riga(1) = {"Peso", "Caselle :\r\n1-2-3-4-5", "50-60", "40-49", "1"};
    sistema.GetGridCond().Riga(2) = {"Consecutivi", "Consecutivi", "0-1", "2", "1"};
    sistema.GetGridCond().Riga(3) = Sequenza();
    sistema.GetLbQuadroRec().Voci.Poni({"1,1,-1"});
    const ConteggioSistema conto = Conta();
    Sviluppa();
    const StatoSviluppo& stato = sistema.UltimoSviluppo();
    EXPECT_TRUE(conto.bEsatto);
    EXPECT_EQ(conto.nPassano, stato.nCondizionate);
    EXPECT_EQ(conto.nColonne, sistema.ColonneIntegrali());
    ASSERT_EQ(conto.aCondizioni.size(), stato.aCondizioni.size());
    for (std::size_t i = 0; i < conto.aCondizioni.size(); ++i) {
        EXPECT_EQ(conto.aCondizioni[i].nOk, stato.aCondizioni[i].ContaOk) << i;
        EXPECT_EQ(conto.aCondizioni[i].nKo, stato.aCondizioni[i].ContaKo) << i;
        EXPECT_EQ(conto.aCondizioni[i].nRec, stato.aCondizioni[i].ContaRec) << i;
    }
}

TEST_F(OrdavelConta, LUltimoSviluppoResta)
{
    Pronostico(3, 1, 10);
    Sviluppa();
    const auto aPrima = sistema.UltimoSviluppo().aCondizioni;
    const std::string sByte = ByteColonne();
    sistema.GetGridCond().Riga(1) = {"Consecutivi", "Consecutivi", "0", "-", " "};
    EXPECT_EQ(Conta().nPassano, 56);
    EXPECT_EQ(sistema.UltimoSviluppo().aCondizioni, aPrima);
    EXPECT_EQ(sistema.UltimoSviluppo().nCondizionate, 120);
    EXPECT_EQ(ByteColonne(), sByte);
    EXPECT_FALSE(sistema.Modificato());
}

TEST_F(OrdavelConta, LaRiduzioneNonEntra)
{
    Pronostico(3, 1, 10);
    sistema.Controlli().CmbRid.Indice.Poni(2);
    EXPECT_EQ(Conta().nPassano, 120);
}

TEST_F(OrdavelConta, PreparatoNonSegueIlComponente)
{
    Pronostico(3, 1, 10);
    const SistemaDaContare preparato = sistema.PreparaConteggio();
    sistema.SelezionaNumero(10, false);
    EXPECT_EQ(ContaSistema(preparato)->nPassano, 120);
    EXPECT_EQ(Conta().nPassano, 84);
}

TEST_F(OrdavelConta, MenoNumeriDellaClasse)
{
    Pronostico(5, 1, 4);
    EXPECT_EQ(Conta().nPassano, 0);
    EXPECT_TRUE(Conta().bEsatto);
}

TEST_F(OrdavelConta, SenzaClasse)
{
    sistema.Controlli().CmbClasse.Indice.Poni(-1);
    EXPECT_EQ(prove::NumeroErrore([&] { static_cast<void>(sistema.ContaSistema()); }), 9);
}

TEST_F(OrdavelConta, LEmulatoreGuardaLeEstrazioniDellUltimoSviluppo)
{
    Pronostico(2, 1, 5);
    sistema.GetGridCond().Riga(1) = {"Emulatore", "[1]\r\nP0) 0 - 9\r\nP1) 0 - 9\r\nP2) 1 - 9\r\n", "", "",
                                     ""};
    EXPECT_EQ(Conta().nPassano, 0) << "nessuna estrazione";
    std::string sRiga(91, '\0');
    sRiga[2] = sRiga[4] = sRiga[5] = 1;
    prove::ScriviFile(Temp("Emulatore.dat"), sRiga);
    EXPECT_EQ(Conta().nPassano, 3) << "2-4, 2-5, 4-5";
}

TEST_F(OrdavelConta, UnaCondizioneGuastaFallisce)
{
    Pronostico(5, 1, 20);
    sistema.GetGridCond().Riga(1) = prove::CondizioneGuasta();
    EXPECT_EQ(prove::NumeroErrore([&] { static_cast<void>(sistema.ContaSistema()); }), 9);
}

} // namespace
} // namespace ordavel
