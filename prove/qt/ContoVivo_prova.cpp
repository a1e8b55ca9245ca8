// ContoVivo_prova.cpp - the count follows every change, and never stands in the way.

#include "qt/ContoVivo.hpp"

#include "qt/GrigliaProva.hpp"

#include <QElapsedTimer>
#include <QSignalSpy>
#include <QTest>
#include <gtest/gtest.h>

namespace ordavel::qt {

namespace {

struct ContoVivoProva : testing::Test, protected prove::GrigliaProva {
    ContoVivoProva()
    {
        QObject::connect(&*conto, &ContoVivo::stima,
                         [this](const ConteggioSistema& c) { aStime.push_back(c); });
        QObject::connect(&*conto, &ContoVivo::esatto,
                         [this](const ConteggioSistema& c) { aEsatti.push_back(c); });
        QObject::connect(&*conto, &ContoVivo::nessuno, [this](const QString& s) { aMotivi += s; });
    }

    /// Looks at the system, and waits for what is said of it.
    void Conta()
    {
        conto->controlla();
        EXPECT_TRUE(QTest::qWaitFor([this] { return !conto->occupato(); }, 20000));
    }

    /// A system that only a long walk counts: partners among the numbers have no short way.
    void SistemaLungo()
    {
        Pronostico(6, 1, 90);
        for (std::int32_t n = 1; n <= 40; ++n) {
            sistema.GetGridCond().Riga(n) = {"SimmetrieNum", "SimmetrieNum", "0-1-2", "-", " "};
        }
    }

    std::unique_ptr<ContoVivo> conto = std::make_unique<ContoVivo>(sistema);
    std::vector<ConteggioSistema> aStime;
    std::vector<ConteggioSistema> aEsatti;
    QStringList aMotivi;
};

} // namespace

TEST_F(ContoVivoProva, ContaComeUnoSviluppo)
{
    Riempi({{"Peso", "Caselle :\r\n1-2-3-4-5", "50-60", "40-49", "1"},
            {"Consecutivi", "Consecutivi", "0-1", "2", "1"}});
    sistema.GetLbQuadroRec().Voci.Poni({"1,1,-1"});
    Pronostico(5, 1, 22);
    Conta();
    ASSERT_EQ(aEsatti.size(), 1U);
    Sviluppa();
    EXPECT_EQ(aEsatti.back().nPassano, sistema.UltimoSviluppo().nCondizionate);
    EXPECT_EQ(aEsatti.back().aCondizioni[0].nKo, sistema.UltimoSviluppo().aCondizioni[0].ContaKo);
}

TEST_F(ContoVivoProva, SenzaCambiNonContaDiNuovo)
{
    Pronostico(3, 1, 10);
    Conta();
    const QSignalSpy spia(&*conto, &ContoVivo::cominciato);
    conto->controlla();
    static_cast<void>(sistema.GetGridCond().Riga(1));
    conto->controlla();
    sistema.SetColonnaGrid(7);
    conto->controlla();
    EXPECT_EQ(spia.count(), 0);
    EXPECT_FALSE(conto->occupato());
}

TEST_F(ContoVivoProva, OgniCambioSiConta)
{
    Pronostico(3, 1, 10);
    Conta();
    sistema.GetGridCond().Riga(1) = {"Consecutivi", "Consecutivi", "0", "-", " "};
    Conta();
    sistema.SelezionaNumero(10, false);
    Conta();
    sistema.PoniClasse(4);
    Conta();
    sistema.GetGridCond().Riga(1) = {"Consecutivi", "Consecutivi", "9", "9", "1"};
    Conta();
    sistema.GetLbQuadroRec().Voci.Poni({"0,1,-1"});
    Conta();
    ASSERT_EQ(aEsatti.size(), 6U);
    EXPECT_EQ(aEsatti[0].nPassano, 120);
    EXPECT_EQ(aEsatti[1].nPassano, 56);
    EXPECT_EQ(aEsatti[2].nPassano, 35);
    EXPECT_EQ(aEsatti[3].nPassano, 15);
    EXPECT_EQ(aEsatti[5].nPassano, sistema.ContaSistema()->nPassano);
}

TEST_F(ContoVivoProva, PrimaLaStimaPoiIlContoEsatto)
{
    SistemaLungo();
    sistema.PoniClasse(5);
    for (std::int16_t n = 61; n <= 90; ++n) {
        sistema.SelezionaNumero(n, false);
    }
    conto->poniOpzioni({.attesa = std::chrono::milliseconds(0)});
    Conta();
    ASSERT_EQ(aStime.size(), 1U);
    ASSERT_EQ(aEsatti.size(), 1U);
    EXPECT_FALSE(aStime[0].bEsatto);
    EXPECT_NEAR(aStime[0].nPassano, aEsatti[0].nPassano, 3 * aStime[0].nErrore + 1);
}

TEST_F(ContoVivoProva, UnCambioAnnullaIlContoDiPrima)
{
    SistemaLungo();
    conto->controlla();
    ASSERT_TRUE(QTest::qWaitFor([this] { return !aStime.empty(); }, 20000));
    aStime.clear();
    sistema.GetGridCond().Svuota();
    for (std::int16_t n = 11; n <= 90; ++n) {
        sistema.SelezionaNumero(n, false);
    }
    sistema.PoniClasse(3);
    Conta();
    EXPECT_TRUE(aStime.empty());
    ASSERT_EQ(aEsatti.size(), 1U);
    EXPECT_EQ(aEsatti[0].nPassano, 120);
}

TEST_F(ContoVivoProva, DistruttoAMetaFinisceSubito)
{
    SistemaLungo();
    conto->controlla();
    ASSERT_TRUE(QTest::qWaitFor([this] { return !aStime.empty(); }, 20000));
    ASSERT_TRUE(conto->occupato());
    QElapsedTimer orologio;
    orologio.start();
    conto.reset();
    EXPECT_LT(orologio.elapsed(), 200);
}

TEST_F(ContoVivoProva, DistruttoSubitoDopoIlCambio)
{
    for (int i = 0; i < 20; ++i) {
        ContoVivo breve(sistema);
        Pronostico(5, 1, static_cast<std::int16_t>(10 + i));
        breve.controlla();
        QTest::qWait(i);
    }
    conto->controlla();
}

TEST_F(ContoVivoProva, NonContaDuranteUnaCorsa)
{
    Pronostico(5, 1, 30);
    Conta();
    bool bVista = false;
    piattaforma.eventi = [&] {
        bVista = bVista || sistema.InCorso();
        conto->controlla();
        EXPECT_FALSE(sistema.InCorso() && conto->occupato());
    };
    Sviluppa();
    EXPECT_TRUE(bVista);
    EXPECT_EQ(aMotivi, QStringList("elaborazione in corso"));
    EXPECT_EQ(aEsatti.size(), 1U);
    Conta();
    EXPECT_EQ(aEsatti.size(), 2U) << "dopo la corsa si conta di nuovo";
}

TEST_F(ContoVivoProva, UnaCorsaFermaIlContoAncheSeNessunoGuarda)
{
    SistemaLungo();
    conto->controlla();
    ASSERT_TRUE(QTest::qWaitFor([this] { return !aStime.empty(); }, 20000));
    sistema.GetGridCond().Svuota();
    for (std::int16_t n = 31; n <= 90; ++n) {
        sistema.SelezionaNumero(n, false);
    }
    bool bFermato = false;
    piattaforma.eventi = [&] {
        bFermato = bFermato || QTest::qWaitFor([&] { return !conto->occupato(); }, 5000);
    };
    Sviluppa();
    EXPECT_TRUE(bFermato);
    EXPECT_EQ(aMotivi, QStringList("elaborazione in corso"));
    EXPECT_TRUE(aEsatti.empty());
}

TEST_F(ContoVivoProva, UnSistemaCheNonSiContaDicePerche)
{
    Pronostico(5, 1, 4);
    Conta();
    sistema.SelezionaNumero(5, true);
    sistema.GetGridCond().Riga(1) = {"Consecutivi", "Consecutivi", "999", "-", " "};
    Conta();
    sistema.GetGridCond().Riga(1) = prove::CondizioneGuasta();
    Pronostico(5, 1, 30);
    Conta();
    sistema.Controlli().CmbClasse.Indice.Poni(-1);
    Conta();
    ASSERT_EQ(aMotivi.size(), 4);
    EXPECT_EQ(aMotivi[0], "numeri insufficienti");
    EXPECT_TRUE(aMotivi[1].contains("condizione 1 Consecutivi")) << aMotivi[1].toStdString();
    EXPECT_FALSE(aMotivi[2].isEmpty());
    EXPECT_EQ(aMotivi[3], "nessuna classe");
    EXPECT_TRUE(piattaforma.Messaggi().empty());
}

} // namespace ordavel::qt
