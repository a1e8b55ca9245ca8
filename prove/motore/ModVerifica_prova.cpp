// ModVerifica_prova.cpp - the column test: what each shape of condition writes in its record.

#include "motore/ModVerifica.hpp"

#include "comune/ColonneProva.hpp"
#include "comune/Fallimenti.hpp"
#include "comune/RecordProva.hpp"
#include "motore/CorsaProva.hpp"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace ordavel {
namespace {

using enum TipoCondizione;
using prove::ColonnaDi;
using prove::ColonnaProva;
using prove::ConParametro;
using prove::Intervallo;
using prove::Lista;
using prove::Manca;
using prove::NumeroErrore;
using prove::Passa;
using prove::Sequenza;
using prove::StatoDi;

/// Gap 1 twice, then 2 and 3; parities 1 0 1 1 0; sum 19.
const ColonnaProva kEsempio = ColonnaDi({1, 2, 3, 5, 8});

bool Verifica(StatoSviluppo& stato, const ColonnaProva& c = kEsempio)
{
    return VerificaColonna(c.nClasse, c.colonna, stato);
}

/// The record as one test of a column leaves it.
RecordCondizione Dopo(const RecordCondizione& record, const ColonnaProva& c = kEsempio)
{
    StatoSviluppo stato = StatoDi({record});
    static_cast<void>(Verifica(stato, c));
    return stato.aCondizioni[0];
}

/// Verdict, recovery verdict and the three counters.
struct Effetto {
    bool bEsito;
    bool bRec;
    double nOk;
    double nKo;
    double nRec;

    friend bool operator==(const Effetto&, const Effetto&) = default;
    friend std::ostream& operator<<(std::ostream& uscita, const Effetto& e)
    {
        return uscita << "esito " << e.bEsito << " rec " << e.bRec << " conta " << e.nOk << ' ' << e.nKo
                      << ' ' << e.nRec;
    }
};

Effetto EffettoDi(const RecordCondizione& r)
{
    return {r.Esito != kFalso, r.EsitoRec != kFalso, r.ContaOk, r.ContaKo, r.ContaRec};
}

TEST(ModVerifica, SenzaCondizioniOgniColonnaPassa)
{
    StatoSviluppo stato;
    EXPECT_TRUE(Verifica(stato));
    EXPECT_EQ(EffettoDi(stato.aCondizioni[0]), (Effetto{true, false, 0, 0, 0}));
}

struct Misura {
    RecordCondizione record;
    std::int32_t nValore;
};

/// One record of every kind with a value, and what it measures on kEsempio.
std::vector<Misura> OgniMisura()
{
    RecordCondizione terza = Lista(puntiColonna, {});
    terza.Numeri(3) = terza.Numeri(8) = kVero;
    return {
        {terza, 2},
        {prove::Dispari({}), 3},
        {Intervallo(peso, 0, 0), 19},
        {ConParametro(Lista(resto, {}), 7), 5},
        {Intervallo(ampiezza, 0, 0), 7},
        {ConParametro(Lista(vortice, {}), 1), 3},
        {ConParametro(Lista(simmetrie, {}), 1), 0},
        {Lista(consecutivi, {}), 2},
        {Lista(interruzioniPD, {}), 3},
        {Intervallo(baricentro, 0, 0), 3},
        {Intervallo(distanzaMinima, 0, 0), 1},
        {Intervallo(distanzaMassima, 0, 0), 3},
        {ConParametro(Intervallo(posizioni, 0, 0), 4), 5},
        {Lista(ponte, {}), 1},
        {Sequenza({1, 0}, {}), 2},
        {ConParametro(Lista(paralleli, {}), 1), 1},
        {ConParametro(Lista(gruppiDiConsecutivi, {}), 3, 2), 1},
        {Lista(interruzioni, {}), 2},
        {Lista(consecutiviPD, {}), 1},
        {Lista(cadenze, {}), 1},
        {Lista(decine, {}), 5},
        {Lista(figure, {}), 1},
        {Lista(simmetrieNum, {}), 0},
        {Lista(paralleliNum, {}), 0},
        {ConParametro(Lista(fulcro, {}), 1), 3},
        {Intervallo(sommaCadenze, 0, 0), 19},
        {Intervallo(sommaDecine, 0, 0), 0},
        {Intervallo(sommaFigure, 0, 0), 19},
        {Intervallo(sommaNumeretti, 0, 0), 19},
        {Intervallo(sommaComplessiva, 0, 0), 57},
    };
}

TEST(ModVerifica, OgniTipoMisuraLaSuaMetrica)
{
    const std::vector<Misura> aMisure = OgniMisura();
    EXPECT_EQ(aMisure.size(), std::size_t{30});
    for (const Misura& misura : aMisure) {
        SCOPED_TRACE(static_cast<int>(misura.record.Tipo));
        EXPECT_EQ(Dopo(misura.record).Valore, misura.nValore);
        EXPECT_EQ(Dopo(misura.record).ContaOk + Dopo(misura.record).ContaKo, 1);
    }
}

TEST(ModVerifica, UnaListaSegnaIlValoreTrovato)
{
    const RecordCondizione passa = Dopo(Lista(consecutivi, {2}));
    EXPECT_EQ(passa.Valore, 2);
    EXPECT_EQ(EffettoDi(passa), (Effetto{true, false, 1, 0, 0}));
    EXPECT_EQ(EffettoDi(Dopo(Lista(consecutivi, {1, 3}))), (Effetto{false, false, 0, 1, 0}));
}

TEST(ModVerifica, IlRecuperoDiUnaListaNonDipendeDalVerdetto)
{
    EXPECT_EQ(EffettoDi(Dopo(Lista(consecutivi, {2}, {2}))), (Effetto{true, true, 1, 0, 1}));
    EXPECT_EQ(EffettoDi(Dopo(Lista(consecutivi, {}, {2}))), (Effetto{false, true, 0, 1, 1}));
}

TEST(ModVerifica, UnIntervalloComprendeIDueEstremi)
{
    for (const auto& [nMinimo, nMassimo, bPassa] :
         {std::tuple{7, 9, true}, {5, 7, true}, {7, 7, true}, {8, 9, false}, {5, 6, false}, {8, 6, false}}) {
        const Effetto atteso{bPassa, bPassa, bPassa ? 1.0 : 0.0, bPassa ? 0.0 : 1.0, bPassa ? 1.0 : 0.0};
        EXPECT_EQ(EffettoDi(Dopo(Intervallo(ampiezza, nMinimo, nMassimo, nMinimo, nMassimo))), atteso)
            << nMinimo << '-' << nMassimo;
    }
}

TEST(ModVerifica, IlRecuperoDiUnIntervalloNonDipendeDalVerdetto)
{
    EXPECT_EQ(EffettoDi(Dopo(Intervallo(ampiezza, 7, 7, 8, 9))), (Effetto{true, false, 1, 0, 0}));
    EXPECT_EQ(EffettoDi(Dopo(Intervallo(ampiezza, 8, 9, 7, 7))), (Effetto{false, true, 0, 1, 1}));
}

TEST(ModVerifica, IlVorticeConfrontaLaPosizioneFinale)
{
    // Parities 1 1 0 0 1 0: position 2 and count 2 when direct, position 4 and count 1 when inverse.
    const ColonnaProva c = prove::ColonnaConParita("DDPPDP");
    EXPECT_EQ(Dopo(ConParametro(Lista(vortice, {4}), 2), c).Esito, kVero);
    EXPECT_EQ(Dopo(ConParametro(Lista(vortice, {1}), 2), c).Esito, kFalso);
}

TEST(ModVerifica, IlBaricentroSiArrotondaPerDifetto)
{
    EXPECT_EQ(Dopo(Intervallo(baricentro, 0, 90), ColonnaDi({12, 13})).Valore, 12);
    EXPECT_EQ(Dopo(Intervallo(baricentro, 0, 90), ColonnaDi({13, 14})).Valore, 13);
    EXPECT_EQ(Dopo(Intervallo(baricentro, 0, 90), ColonnaDi({10, 13, 15, 17})).Valore, 13);
}

TEST(ModVerifica, UnaPosizioneOltreLaClasseVale0)
{
    EXPECT_EQ(Dopo(ConParametro(Intervallo(posizioni, 0, 0), 20)).Esito, kVero);
}

TEST(ModVerifica, UnaSequenzaVuoleConteggioECatena)
{
    RecordCondizione record = Sequenza({1, 0}, {2});
    EXPECT_EQ(Dopo(record).Valore2, 1);
    EXPECT_EQ(EffettoDi(Dopo(record)), (Effetto{true, false, 1, 0, 0}));
    record.PuntiOk2(1) = kFalso;
    record.PuntiRec2(1) = kFalso;
    record.PuntiRec(2) = kVero;
    EXPECT_EQ(EffettoDi(Dopo(record)), (Effetto{false, false, 0, 1, 0}));
}

TEST(ModVerifica, UnaSequenzaSoddisfattaTieneIlRecuperoDellaColonnaPrima)
{
    StatoSviluppo stato = StatoDi({Sequenza({1, 1}, {1}, {0, 1})});
    RecordCondizione& record = stato.aCondizioni[0];
    EXPECT_TRUE(Verifica(stato));
    EXPECT_EQ(record.EsitoRec, kFalso) << "mai fallita, mai recuperata";
    EXPECT_FALSE(Verifica(stato, ColonnaDi({2, 4})));
    EXPECT_EQ(record.EsitoRec, kVero);
    EXPECT_TRUE(Verifica(stato));
    EXPECT_EQ(record.EsitoRec, kVero) << "il verdetto della colonna prima";
}

TEST(ModVerifica, UnaSequenzaCheRecuperaContaDaContaOkPiu1)
{
    StatoSviluppo stato = StatoDi({Sequenza({1, 1}, {1}, {0})});
    const RecordCondizione& record = stato.aCondizioni[0];
    for (int i = 0; i < 3; ++i) {
        EXPECT_TRUE(Verifica(stato));
    }
    EXPECT_FALSE(Verifica(stato, ColonnaDi({2, 4})));
    EXPECT_EQ(EffettoDi(record), (Effetto{false, true, 3, 1, 4}));
    EXPECT_FALSE(Verifica(stato, ColonnaDi({2, 4})));
    EXPECT_EQ(EffettoDi(record), (Effetto{false, true, 3, 2, 4}));
}

RecordCondizione Formula(const std::vector<int>& aOk, const std::vector<int>& aRec)
{
    RecordCondizione record;
    record.Tipo = formule;
    for (std::size_t i = 0; i < 3; ++i) {
        record.PuntiOk2(static_cast<int>(i) + 1) = static_cast<std::int16_t>(aOk[i]);
        record.PuntiRec2(static_cast<int>(i) + 1) = static_cast<std::int16_t>(aRec[i]);
    }
    return record;
}

TEST(ModVerifica, UnaFormulaVuoleITreConteggiUguali)
{
    const ColonnaProva c = ColonnaDi({30, 31, 60, 61});
    RecordCondizione record = Formula({1, 2, 1}, {2, 1, 1});
    record.Valore = 77;
    EXPECT_EQ(EffettoDi(Dopo(record, c)), (Effetto{true, false, 1, 0, 0}));
    EXPECT_EQ(Dopo(record, c).Valore, 77) << "una formula non ha un valore";
    for (const std::vector<int>& aVicina : {std::vector{0, 2, 1}, {1, 1, 1}, {1, 2, 0}}) {
        EXPECT_EQ(EffettoDi(Dopo(Formula(aVicina, {1, 2, 1}), c)), (Effetto{false, true, 0, 1, 1}));
        EXPECT_EQ(EffettoDi(Dopo(Formula(aVicina, aVicina), c)), (Effetto{false, false, 0, 1, 0}));
    }
}

/// The three draws of the worked example; the column 1, 5 hits them once, once and twice.
StatoSviluppo StatoEmulatore(const RecordCondizione& record)
{
    StatoSviluppo stato = StatoDi({record});
    std::vector<RigaEmulatore> aRighe(3);
    const std::vector<std::vector<int>> aEstrazioni{{1, 2, 3}, {4, 5, 6}, {1, 5, 7}};
    for (std::size_t i = 0; i < aEstrazioni.size(); ++i) {
        for (const int nNumero : aEstrazioni[i]) {
            aRighe[i](nNumero) = 1;
        }
    }
    stato.aEmulatore = RigheEmulatore(std::move(aRighe));
    return stato;
}

RecordCondizione Emulatore(const std::vector<int>& aMinimi, const std::vector<int>& aMassimi)
{
    RecordCondizione record;
    record.Tipo = emulatore;
    for (std::size_t i = 0; i < aMinimi.size(); ++i) {
        record.PuntiOk(static_cast<int>(i)) = static_cast<std::int16_t>(aMinimi[i]);
        record.PuntiRec(static_cast<int>(i)) = static_cast<std::int16_t>(aMassimi[i]);
    }
    return record;
}

TEST(ModVerifica, UnEmulatoreVuoleOgniConteggioFraISuoiLimiti)
{
    const auto Prova = [](const std::vector<int>& aMinimi, const std::vector<int>& aMassimi) {
        StatoSviluppo stato = StatoEmulatore(Emulatore(aMinimi, aMassimi));
        static_cast<void>(Verifica(stato, ColonnaDi({1, 5})));
        return EffettoDi(stato.aCondizioni[0]);
    };
    EXPECT_EQ(Prova({0, 2, 1}, {0, 2, 1}), (Effetto{true, false, 1, 0, 0}));
    EXPECT_EQ(Prova({0, 0, 0}, {3, 3, 3}), (Effetto{true, false, 1, 0, 0}));
    for (const auto& [aMinimi, aMassimi] :
         {std::pair<std::vector<int>, std::vector<int>>{{1, 2, 1}, {1, 2, 1}},
          {{0, 3, 1}, {0, 3, 1}},
          {{0, 0, 0}, {0, 1, 1}},
          {{0, 2, 2}, {0, 2, 2}},
          {{0, 0, 0}, {0, 2, 0}}}) {
        EXPECT_EQ(Prova(aMinimi, aMassimi), (Effetto{false, false, 0, 1, 0}));
    }
}

TEST(ModVerifica, SenzaEstrazioniUnEmulatoreHaUnaRigaSenzaColpi)
{
    EXPECT_EQ(Dopo(Emulatore({1}, {1})).Esito, kVero);
    EXPECT_EQ(Dopo(Emulatore({0}, {0})).Esito, kFalso);
}

TEST(ModVerifica, UnEmulatoreSiFermaAlPrimoConteggioFuori)
{
    const ColonnaProva dodici = ColonnaDi({1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12});
    EXPECT_EQ(Dopo(Emulatore({0}, {0}), dodici).Esito, kFalso);
    EXPECT_EQ(NumeroErrore([&] { Dopo(Emulatore({0}, {1}), dodici); }), 9) << "oltre i limiti da 0 a 10";
}

TEST(ModVerifica, ITipiSenzaMetricaNonRifiutanoENonContano)
{
    for (const int nTipo : {0, 35, 36, 37, 38, -1, 32767}) {
        const RecordCondizione prima = Lista(static_cast<TipoCondizione>(nTipo), {});
        RecordCondizione atteso = prima;
        atteso.Esito = kVero;
        EXPECT_EQ(Dopo(prima), atteso) << nTipo;
    }
}

TEST(ModVerifica, ILinkRestanoComeCompilati)
{
    RecordCondizione aperto = prove::LinkOpen();
    aperto.Esito = 5; // no run writes it: it is there to be found again
    EXPECT_EQ(Dopo(aperto), aperto);
    const RecordCondizione chiuso = prove::LinkClose({0});
    EXPECT_EQ(Dopo(chiuso), chiuso);
}

TEST(ModVerifica, UnaColonnaRifiutataSiMisuraLoStessoConTutte)
{
    StatoSviluppo stato = StatoDi({Manca(), Passa(), Lista(consecutivi, {2}, {2})});
    EXPECT_FALSE(Verifica(stato));
    EXPECT_EQ(EffettoDi(stato.aCondizioni[1]), (Effetto{true, false, 1, 0, 0}));
    EXPECT_EQ(EffettoDi(stato.aCondizioni[2]), (Effetto{true, true, 1, 0, 1}));
}

TEST(ModVerifica, BastaUnaCondizioneMancataDovunqueStia)
{
    for (std::size_t i = 0; i < 3; ++i) {
        std::vector<RecordCondizione> aCondizioni(3, Passa());
        aCondizioni[i] = Manca();
        StatoSviluppo stato = StatoDi(aCondizioni);
        EXPECT_FALSE(Verifica(stato)) << i;
    }
}

struct Guasto {
    RecordCondizione record;
    int nErrore;
};

TEST(ModVerifica, UnValoreFuoriPostoFallisceEPassaOltre)
{
    for (const Guasto& guasto :
         {Guasto{ConParametro(Lista(resto, {}), 12), 9}, Guasto{ConParametro(Lista(resto, {}), 0), 11},
          Guasto{ConParametro(Intervallo(posizioni, 0, 90), 0), 9},
          Guasto{ConParametro(Intervallo(posizioni, 0, 90), 21), 9},
          Guasto{ConParametro(Sequenza({}, {}), 0, 0), 6}}) {
        EXPECT_EQ(NumeroErrore([&] {
                      Dopo(guasto.record, ColonnaDi({4, 7}));
                  }),
                  guasto.nErrore)
            << static_cast<int>(guasto.record.Tipo) << ' ' << guasto.record.Parametro;
    }
    EXPECT_EQ(NumeroErrore([] { Dopo(ConParametro(Intervallo(posizioni, 0, 90), 1)); }), std::nullopt);
}

TEST(ModVerifica, IlValoreFuoriListaRestaScrittoEFermaLeAltre)
{
    StatoSviluppo stato = StatoDi({Passa(), ConParametro(Lista(resto, {}), 12), Passa()});
    EXPECT_EQ(NumeroErrore([&] { Verifica(stato, ColonnaDi({4, 7})); }), 9);
    EXPECT_EQ(EffettoDi(stato.aCondizioni[0]), (Effetto{true, false, 1, 0, 0}));
    EXPECT_EQ(stato.aCondizioni[1].Valore, 11);
    EXPECT_EQ(EffettoDi(stato.aCondizioni[1]), (Effetto{false, false, 0, 0, 0}));
    EXPECT_EQ(EffettoDi(stato.aCondizioni[2]), (Effetto{false, false, 0, 0, 0}));
}

TEST(ModVerifica, UnaClasseOltre20Fallisce)
{
    StatoSviluppo stato = StatoDi({Passa()});
    EXPECT_EQ(NumeroErrore([&] { static_cast<void>(VerificaColonna(21, kEsempio.colonna, stato)); }), 9);
}

} // namespace
} // namespace ordavel
