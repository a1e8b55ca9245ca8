// ContaSistema_prova.cpp - counts without a file, against what a development leaves.

#include "ordavel/ContaSistema.hpp"

#include "comune/Fallimenti.hpp"
#include "comune/GeneratoriSistema.hpp"
#include "comune/RecordProva.hpp"
#include "condizioni/ModCompila.hpp"
#include "motore/ConteggiProva.hpp"

#include <gmock/gmock.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

namespace ordavel {
namespace {

using prove::CorsaProva;
using prove::Dispari;
using prove::Fila;
using prove::Intervallo;
using prove::kMai;
using prove::LinkClose;
using prove::LinkOpen;
using prove::Lista;
using prove::Ok;
using prove::Sistema;
using prove::Tra;
using testing::ElementsAre;

// ---- known counts ----

/// Sum in a range, exactly three odd numbers, one consecutive pair at most, over 90 numbers.
ConteggioSistema ContaTre(int nClasse, int nMinimo, int nMassimo)
{
    const auto conto = ContaSistema(Sistema(Fila(1, 90), nClasse,
                                            {Intervallo(TipoCondizione::peso, nMinimo, nMassimo),
                                             Dispari({3}), Lista(TipoCondizione::consecutivi, {0, 1})}),
                                    {.attesa = kMai});
    EXPECT_TRUE(conto && conto->bEsatto);
    return conto.value_or(ConteggioSistema{});
}

TEST(ContaSistema, TreCondizioniInClasse5)
{
    const ConteggioSistema conto = ContaTre(5, 200, 255);
    EXPECT_EQ(conto.nColonne, 43949268);
    EXPECT_EQ(conto.nPassano, 5082009);
    EXPECT_EQ(conto.nErrore, 0);
    EXPECT_THAT(Ok(conto), ElementsAre(16183140, 14048100, 43320522));
    EXPECT_EQ(conto.aCondizioni[0].nKo, 43949268 - 16183140);
    EXPECT_TRUE(conto.aCondizioni[0].bEsatto);
    EXPECT_EQ(conto.aCondizioni[0].nErrore, 0);
}

TEST(ContaSistema, TreCondizioniInClasse6)
{
    const ConteggioSistema conto = ContaTre(6, 243, 303);
    EXPECT_EQ(conto.nPassano, 72589877);
    EXPECT_THAT(Ok(conto), ElementsAre(230372738, 201356100, 601361145));
}

TEST(ContaSistema, TreCondizioniInClasse8)
{
    const ConteggioSistema conto = ContaTre(8, 334, 394);
    EXPECT_EQ(conto.nPassano, 5017761100);
    EXPECT_THAT(Ok(conto), ElementsAre(25495838415, 17336760210, 68506657362));
}

TEST(ContaSistema, TreCondizioniInClasse10)
{
    const ConteggioSistema conto = ContaTre(10, 425, 485);
    EXPECT_EQ(conto.nColonne, 5720645481903);
    EXPECT_EQ(conto.nPassano, 158402076833);
    EXPECT_THAT(Ok(conto), ElementsAre(1718524206917, 643936807800, 4226382916470));
}

// ---- against a development ----

struct Caso {
    SistemaDaContare sistema;
    std::vector<int> aScelti;
};

std::vector<int> SceltiCasuali(int nQuanti)
{
    auto aScelti =
        *rc::gen::unique<std::vector<int>>(static_cast<std::size_t>(nQuanti), rc::gen::inRange(1, 91));
    std::ranges::sort(aScelti);
    return aScelti;
}

RigheEmulatore EstrazioniCasuali()
{
    std::vector<RigaEmulatore> aRighe(static_cast<std::size_t>(Tra(1, 70)));
    for (RigaEmulatore& aRiga : aRighe) {
        for (int n = 0; n < 12; ++n) {
            aRiga(Tra(1, 90)) = 1;
        }
    }
    return RigheEmulatore(std::move(aRighe));
}

/// So many picks that a run has some thousand columns at most, seldom fewer than the class.
int QuantiScelti(int nClasse)
{
    return Tra(nClasse, nClasse + (nClasse <= 3 ? 25 : nClasse <= 5 ? 9 : 6));
}

Caso CasoDi(int nClasse, const std::vector<Condizione>& aRighe)
{
    Caso caso;
    caso.aScelti = SceltiCasuali(QuantiScelti(nClasse));
    caso.sistema = Sistema(caso.aScelti, nClasse, {});
    StatoSviluppo& stato = caso.sistema.stato;
    LeggiCondizioniDaGriglia(stato.aCondizioni, prove::GrigliaDi(aRighe), *prove::GenQuadro(),
                             stato.aQuadroRec);
    EstendiRecuperiSequenze(stato.aCondizioni);
    stato.aEmulatore = EstrazioniCasuali();
    return caso;
}

Caso CasoCasuale(int nMassime)
{
    const int nClasse = Tra(2, 10);
    return CasoDi(nClasse, *prove::GenCondizioni(static_cast<std::int16_t>(nClasse), nMassime));
}

void Confronta(const Caso& caso, const OpzioniConteggio& opzioni = {.attesa = kMai})
{
    CorsaProva corsa;
    corsa.stato = caso.sistema.stato;
    const auto nErrore = prove::NumeroErrore([&] { corsa.Sviluppa(caso.aScelti, caso.sistema.nClasse); });
    std::optional<ConteggioSistema> conto;
    const auto nErroreConto = prove::NumeroErrore([&] { conto = ContaSistema(caso.sistema, opzioni); });
    RC_ASSERT(nErroreConto == nErrore);
    if (nErrore) {
        return;
    }
    RC_ASSERT(conto.has_value());
    RC_ASSERT(conto->bEsatto);
    RC_ASSERT(conto->nColonne == static_cast<double>(corsa.stato.nSviluppate));
    RC_ASSERT(conto->nPassano == static_cast<double>(corsa.stato.nCondizionate));
    RC_ASSERT(conto->aCondizioni.size() == corsa.stato.aCondizioni.size());
    for (std::size_t i = 0; i < conto->aCondizioni.size(); ++i) {
        const RecordCondizione& record = corsa.stato.aCondizioni[i];
        const ContoCondizione& condizione = conto->aCondizioni[i];
        RC_LOG() << "record " << i << ": " << record << '\n';
        RC_ASSERT(condizione.bEsatto);
        RC_ASSERT(condizione.nOk == record.ContaOk);
        RC_ASSERT(condizione.nKo == record.ContaKo);
        RC_ASSERT(condizione.nRec == record.ContaRec);
    }
}

RC_GTEST_PROP(ContaSistema, UnaCondizioneComeUnoSviluppo, ())
{
    Confronta(CasoCasuale(1));
}

RC_GTEST_PROP(ContaSistema, PocheCondizioniComeUnoSviluppo, ())
{
    Confronta(CasoCasuale(6));
}

RC_GTEST_PROP(ContaSistema, SistemiInteriComeUnoSviluppo, ())
{
    Confronta(CasoCasuale(40));
}

/// Nothing but kinds that have a short way, so that no column is walked through.
RC_GTEST_PROP(ContaSistema, SenzaCamminareComeUnoSviluppo, ())
{
    const int nClasse = Tra(2, 10);
    auto aRighe = *prove::GenCondizioni(static_cast<std::int16_t>(nClasse), 12);
    std::erase_if(aRighe, [](const Condizione& celle) {
        return celle.sCondizione == "Emulatore" || celle.sCondizione == "SimmetrieNum" ||
               celle.sCondizione == "ParalleliNum" || celle.sCondizione == "Sequenze";
    });
    Confronta(CasoDi(nClasse, aRighe), {.attesa = kMai, .nColonneMassime = 0});
}

/// The counters of every kind but the emulator come without a walk.
RC_GTEST_PROP(ContaSistema, ContatoriSenzaCamminare, ())
{
    const Caso caso = CasoCasuale(1);
    RC_PRE(caso.sistema.stato.aCondizioni[0].Tipo != TipoCondizione::emulatore);
    CorsaProva corsa;
    corsa.stato = caso.sistema.stato;
    corsa.Sviluppa(caso.aScelti, caso.sistema.nClasse);
    const auto conto = ContaSistema(caso.sistema, {.attesa = kMai, .nColonneMassime = 0});
    RC_ASSERT(conto.has_value() && conto->aCondizioni[0].bEsatto);
    RC_ASSERT(conto->aCondizioni[0].nOk == corsa.stato.aCondizioni[0].ContaOk);
    RC_ASSERT(conto->aCondizioni[0].nRec == corsa.stato.aCondizioni[0].ContaRec);
}

RC_GTEST_PROP(ContaSistema, ConPocoPostoComeUnoSviluppo, ())
{
    Confronta(CasoCasuale(6), {.attesa = kMai, .nNodi = static_cast<std::size_t>(Tra(0, 50))});
}

RC_GTEST_PROP(ContaSistema, FallisceComeUnoSviluppo, ())
{
    Caso caso = CasoCasuale(6);
    RecordCondizione guasta = prove::Compila(Condizione{"Resto", "Resto a : 20", "1", "2", ""});
    auto& aCondizioni = caso.sistema.stato.aCondizioni;
    aCondizioni.insert(aCondizioni.begin() + Tra(0, static_cast<int>(aCondizioni.size())), guasta);
    Confronta(caso);
}

/// A record whose group is none fails at the first column that it would recover.
RC_GTEST_PROP(ContaSistema, GruppoFuoriDalQuadroComeUnoSviluppo, ())
{
    Caso caso = CasoCasuale(4);
    for (RecordCondizione& record : caso.sistema.stato.aCondizioni) {
        record.IdRecupero = static_cast<std::int16_t>(Tra(0, 24));
    }
    Confronta(caso);
}

// ---- recovery, links, and what has no short way ----

/// A sequence in a group in force may take its recovery verdict over from the column in front.
RC_GTEST_PROP(ContaSistema, SequenzeInUnGruppoComeUnoSviluppo, ())
{
    Caso caso = CasoDi(Tra(2, 6), {});
    auto& aCondizioni = caso.sistema.stato.aCondizioni;
    aCondizioni = {prove::Sequenza({1, 0}, {1}, {0}), prove::Sequenza({0}, {1, 2}, {0, 3}),
                   prove::Sequenza({1}, {0, 2}, {1})};
    for (RecordCondizione& record : aCondizioni) {
        record.IdRecupero = 1;
    }
    EstendiRecuperiSequenze(aCondizioni);
    const auto nMinimo = static_cast<std::int16_t>(Tra(1, 2));
    caso.sistema.stato.aQuadroRec[1] = {-1, nMinimo, static_cast<std::int16_t>(nMinimo + Tra(0, 1))};
    Confronta(caso);
}

/// The verdict with which a link's own record was compiled counts with those inside.
RC_GTEST_PROP(ContaSistema, LinkConUnVerdettoProprioComeUnoSviluppo, ())
{
    Caso caso = CasoDi(Tra(2, 6), {});
    auto& aCondizioni = caso.sistema.stato.aCondizioni;
    aCondizioni = {LinkOpen(), Dispari({1}), Lista(TipoCondizione::consecutivi, {0}), LinkClose({1}),
                   LinkClose({2})};
    aCondizioni[0].Esito = ComeBooleano(prove::UnaVoltaSu(2));
    aCondizioni[3].Esito = ComeBooleano(prove::UnaVoltaSu(2));
    aCondizioni[4].Esito = ComeBooleano(prove::UnaVoltaSu(2));
    Confronta(caso, {.attesa = kMai, .nColonneMassime = 0});
}

/// What failed is told as a development tells it: of two conditions the one that fails at an earlier column.
TEST(ContaSistema, DiDueCondizioniGuasteSiDiceLaPrima)
{
    const auto resto = [](std::int16_t nModulo) {
        return prove::ConParametro(Lista(TipoCondizione::resto, {1}), nModulo);
    };
    for (const auto& aModuli :
         {std::pair{std::int16_t{80}, std::int16_t{12}}, {std::int16_t{12}, std::int16_t{80}}}) {
        const std::vector<RecordCondizione> aCondizioni{resto(aModuli.first), resto(aModuli.second)};
        const auto descrizione = [](auto&& operazione) -> std::string {
            try {
                operazione();
            } catch (const Errore& errore) {
                return errore.Descrizione();
            }
            return {};
        };
        // The sums begin with 85, 86 ... 95: the rest by 80 leaves the list at 91, that by 12 at 95.
        CorsaProva corsa(aCondizioni);
        const auto aScelti = std::vector<int>{1, 40, 44, 45, 46, 47, 48, 49, 50, 51, 52, 53, 54};
        const std::string sAttesa = descrizione([&] { corsa.Sviluppa(aScelti, 3); });
        EXPECT_THAT(sAttesa, testing::HasSubstr("condizione"));
        EXPECT_EQ(descrizione([&] { static_cast<void>(ContaSistema(Sistema(aScelti, 3, aCondizioni))); }),
                  sAttesa);
    }
}

/// One column alone: a sequence passes, and what it recovered in an older run would make one member too many.
TEST(ContaSistema, IlRecuperoDiUnAltraCorsaNonEntra)
{
    auto sequenza = prove::Sequenza({1}, {2}, {2});
    auto mancata = Lista(TipoCondizione::consecutivi, {2}, {0});
    sequenza.IdRecupero = mancata.IdRecupero = 1;
    sequenza.EsitoRec = kVero;
    SistemaDaContare sistema = Sistema({1, 3}, 2, {sequenza, mancata});
    sistema.stato.aQuadroRec[1] = {-1, 1, 1};
    const auto conto = ContaSistema(sistema, {.attesa = kMai});
    ASSERT_TRUE(conto && conto->bEsatto);
    EXPECT_EQ(conto->aCondizioni[0].nOk, 1);
    EXPECT_EQ(conto->nPassano, 1);
}

TEST(ContaSistema, RecuperoELinkSenzaCamminare)
{
    auto somma = Intervallo(TipoCondizione::peso, 200, 255, 180, 199);
    auto dispari = Lista(TipoCondizione::consecutivi, {0}, {1});
    somma.IdRecupero = dispari.IdRecupero = 1;
    SistemaDaContare sistema = Sistema(Fila(1, 30), 5,
                                       {somma, dispari, LinkOpen(), Dispari({2, 3}),
                                        Intervallo(TipoCondizione::ampiezza, 10, 25), LinkClose({1})});
    sistema.stato.aQuadroRec[1] = {-1, 1, 1};
    CorsaProva corsa;
    corsa.stato = sistema.stato;
    corsa.Sviluppa(Fila(1, 30), 5);
    const auto conto = ContaSistema(sistema, {.attesa = kMai, .nColonneMassime = 0});
    ASSERT_TRUE(conto && conto->bEsatto);
    EXPECT_EQ(conto->nPassano, corsa.stato.nCondizionate);
}

TEST(ContaSistema, ClassiSenzaBlocchi)
{
    for (const int nClasse : {1, 11, 12, 20}) {
        const auto aScelti = Fila(1, std::max(nClasse + 1, 5));
        CorsaProva corsa({Intervallo(TipoCondizione::ampiezza, 0, 19)});
        corsa.Sviluppa(aScelti, nClasse);
        const auto conto = ContaSistema(
            Sistema(aScelti, nClasse, {Intervallo(TipoCondizione::ampiezza, 0, 19)}), {.attesa = kMai});
        ASSERT_TRUE(conto && conto->bEsatto);
        EXPECT_EQ(conto->nPassano, corsa.stato.nCondizionate);
        EXPECT_EQ(conto->aCondizioni[0].nOk, corsa.stato.aCondizioni[0].ContaOk);
    }
}

TEST(ContaSistema, ClasseFuoriDaiLimiti)
{
    for (const int nClasse : {-1, 0, 21}) {
        EXPECT_EQ(
            prove::NumeroErrore([&] { static_cast<void>(ContaSistema(Sistema(Fila(1, 30), nClasse, {}))); }),
            9);
    }
}

TEST(ContaSistema, MenoNumeriDellaClasse)
{
    const auto conto = ContaSistema(Sistema(Fila(1, 4), 5, {prove::Passa()}));
    ASSERT_TRUE(conto && conto->bEsatto);
    EXPECT_EQ(conto->nColonne, 0);
    EXPECT_EQ(conto->nPassano, 0);
    EXPECT_EQ(conto->aCondizioni[0].nKo, 0);
}

TEST(ContaSistema, SenzaCondizioniPassanoTutte)
{
    const auto conto = ContaSistema(Sistema(Fila(1, 90), 10, {}), {.attesa = kMai});
    ASSERT_TRUE(conto && conto->bEsatto);
    EXPECT_EQ(conto->nPassano, 5720645481903);
    ASSERT_EQ(conto->aCondizioni.size(), 1U);
    EXPECT_EQ(conto->aCondizioni[0].nOk, 0) << "il record che sta per nessuna condizione non conta";
}

TEST(ContaSistema, QuelCheEraContatoNonEntra)
{
    auto contata = Dispari({3});
    contata.ContaOk = contata.ContaKo = contata.ContaRec = 1000;
    contata.EsitoRec = kVero;
    const SistemaDaContare sistema = Sistema(Fila(1, 20), 5, {contata});
    const auto conto = ContaSistema(sistema, {.attesa = kMai});
    ASSERT_TRUE(conto.has_value());
    EXPECT_EQ(conto->aCondizioni[0].nOk, 5400);
    EXPECT_EQ(conto->aCondizioni[0].nRec, 0);
    EXPECT_EQ(sistema.stato.aCondizioni[0], contata) << "il sistema resta com'era";
}

} // namespace
} // namespace ordavel
