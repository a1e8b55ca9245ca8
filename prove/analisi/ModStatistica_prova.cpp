// ModStatistica_prova.cpp - distributions over archives counted by hand, and every kind against its metric.

#include "analisi/ModStatistica.hpp"

#include "calcoli/ModCifre.hpp"
#include "calcoli/ModSimmetria.hpp"
#include "comune/CartellaProva.hpp"
#include "core/FileBinario.hpp"
#include "core/ModTabelle.hpp"
#include "persistenza/ModBaseDati.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <map>

namespace ordavel {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

using Numeri = std::vector<std::uint8_t>;

const ProfiloGioco& Gioco(std::string_view sNome)
{
    return *TrovaGioco(sNome);
}

const VoceCatalogo& Voce(TipoCondizione tipo)
{
    return *TrovaTipo(tipo);
}

VarianteStatistica Variante(TipoCondizione tipo, std::int16_t nNumeri, std::size_t nQuale = 0)
{
    return VariantiStatistica(Voce(tipo), nNumeri).at(nQuale);
}

struct Statistiche : testing::Test {
    /// Writes an archive of draws in the order of their records, the wheel's numbers at its place.
    FonteStatistica Archivio(std::string_view sGioco, const std::vector<Numeri>& aEstrazioni,
                             std::int16_t nRuota = 1) const
    {
        const FonteStatistica fonte{
            .gioco = &Gioco(sGioco), .sArchivio = cartella / "a.bd", .nRuota = nRuota};
        std::vector<Estrazione> aRecord;
        for (const Numeri& aNumeri : aEstrazioni) {
            Estrazione record{};
            std::copy(aNumeri.begin(), aNumeri.end(), record.begin() + (nRuota - 1) * kNumeriRuota);
            aRecord.push_back(record);
        }
        FileBinario file(fonte.sArchivio, eApertura::scrittura);
        AccodaEstrazioni(TracciatoDi(*fonte.gioco), aRecord, file);
        file.Chiudi();
        return fonte;
    }

    prove::CartellaProva cartella;
};

BarraStatistica Barra(std::int32_t nDa, std::int32_t nA, std::int64_t nQuante, std::int64_t nUltime,
                      double nQuota, double nQuotaUltime)
{
    return {.nDa = nDa,
            .nA = nA,
            .nQuante = nQuante,
            .nUltime = nUltime,
            .nQuota = nQuota,
            .nQuotaUltime = nQuotaUltime};
}

} // namespace

TEST_F(Statistiche, ContaIConsecutiviDiQuattroEstrazioni)
{
    // 3, 0, 1 and 0 adjacent pairs, the numbers in any order.
    const FonteStatistica fonte =
        Archivio("Lotto", {{4, 1, 3, 2, 90}, {1, 3, 5, 7, 9}, {89, 90, 10, 20, 30}, {2, 4, 6, 8, 10}});
    const EsitoStatistica esito = CalcolaStatistica(Variante(TipoCondizione::consecutivi, 5), fonte, 2);
    EXPECT_TRUE(esito.bArchivio);
    EXPECT_EQ(esito.nUsate, 4);
    EXPECT_EQ(esito.nSaltate, 0);
    EXPECT_EQ(esito.nMinimo, 0);
    EXPECT_EQ(esito.nMassimo, 3);
    EXPECT_DOUBLE_EQ(esito.nMedia, 1.0);
    EXPECT_THAT(esito.aBarre, ElementsAre(Barra(0, 0, 2, 1, 0.5, 0.5), Barra(1, 1, 1, 1, 0.25, 0.5),
                                          Barra(2, 2, 0, 0, 0, 0), Barra(3, 3, 1, 0, 0.25, 0)));
    EXPECT_THAT(esito.aUltime, ElementsAre(UltimaEstrazione{4, 0, {2, 4, 6, 8, 10}},
                                           UltimaEstrazione{3, 1, {10, 20, 30, 89, 90}}));
}

TEST_F(Statistiche, IlPesoSiRaccoglieInIntervalli)
{
    // Sums 15, 55, 440: the spread of 425 makes intervals of 20, which begin at 1.
    const FonteStatistica fonte =
        Archivio("Lotto", {{1, 2, 3, 4, 5}, {9, 10, 11, 12, 13}, {86, 87, 88, 89, 90}});
    const EsitoStatistica esito = CalcolaStatistica(Variante(TipoCondizione::peso, 5), fonte, 0);
    ASSERT_THAT(esito.aBarre, SizeIs(22));
    EXPECT_EQ(esito.aBarre[0], Barra(1, 20, 1, 0, 1.0 / 3, 0));
    EXPECT_EQ(esito.aBarre[1].nQuante, 0);
    EXPECT_EQ(esito.aBarre[2], Barra(41, 60, 1, 0, 1.0 / 3, 0));
    EXPECT_EQ(esito.aBarre[21], Barra(421, 440, 1, 0, 1.0 / 3, 0));
    EXPECT_DOUBLE_EQ(esito.nMedia, 170.0);
    EXPECT_THAT(esito.aUltime, IsEmpty());
}

TEST_F(Statistiche, GliIntervalliConUnoZeroComincianoDaZero)
{
    // Sums of the numbers below ten: 0 and 45.
    const FonteStatistica fonte =
        Archivio("WinForLife", {{11, 12, 13, 14, 15, 16, 17, 18, 19, 20}, {1, 2, 3, 4, 5, 6, 7, 8, 9, 20}});
    const EsitoStatistica esito = CalcolaStatistica(Variante(TipoCondizione::sommaNumeretti, 10), fonte, 1);
    EXPECT_EQ(esito.aBarre.front(), Barra(0, 1, 1, 0, 0.5, 0));
    EXPECT_EQ(esito.aBarre.back(), Barra(44, 45, 1, 1, 0.5, 1.0));
}

TEST_F(Statistiche, LeEstrazioniIncompleteSiSaltano)
{
    const FonteStatistica fonte = Archivio("SuperEnalotto", {{1, 2, 3, 4, 5, 6},
                                                             {1, 2, 3, 4, 5, 0},
                                                             {1, 2, 3, 4, 5, 5},
                                                             {1, 2, 3, 4, 5, 91},
                                                             {},
                                                             {1, 10, 20, 30, 40, 50}});
    const EsitoStatistica esito = CalcolaStatistica(Variante(TipoCondizione::consecutivi, 6), fonte, 5);
    EXPECT_EQ(esito.nUsate, 2);
    EXPECT_EQ(esito.nSaltate, 4);
    ASSERT_THAT(esito.aUltime, SizeIs(2));
    EXPECT_EQ(esito.aUltime[0].nEstrazione, 6);
    EXPECT_EQ(esito.aUltime[1].nEstrazione, 1);
}

TEST_F(Statistiche, IlLottoGuardaLaSuaRuota)
{
    FonteStatistica fonte = Archivio("Lotto", {{1, 2, 3, 4, 5}}, 8);
    EXPECT_EQ(CalcolaStatistica(Variante(TipoCondizione::consecutivi, 5), fonte, 1).nMedia, 4);
    fonte.nRuota = 1;
    const EsitoStatistica bari = CalcolaStatistica(Variante(TipoCondizione::consecutivi, 5), fonte, 1);
    EXPECT_TRUE(bari.bArchivio);
    EXPECT_EQ(bari.nUsate, 0);
    EXPECT_EQ(bari.nSaltate, 1);
    EXPECT_THAT(bari.aBarre, IsEmpty());
    fonte.nRuota = 12;
    EXPECT_THROW((void)CalcolaStatistica(Variante(TipoCondizione::consecutivi, 5), fonte, 1), Errore);
}

TEST_F(Statistiche, IlDieciELottoContaTuttiEVenti)
{
    Numeri aNumeri(20);
    for (std::uint8_t i = 0; i < 20; ++i) {
        aNumeri[i] = static_cast<std::uint8_t>(20 - i);
    }
    for (const std::string_view sGioco : {"10ELotto", "10ELotto5M"}) {
        EXPECT_EQ(NumeriColonnaDi(Gioco(sGioco)), 20);
        const FonteStatistica fonte = Archivio(sGioco, {aNumeri});
        EXPECT_EQ(CalcolaStatistica(Variante(TipoCondizione::consecutivi, 20), fonte, 1).nMedia, 19);
        EXPECT_EQ(CalcolaStatistica(Variante(TipoCondizione::peso, 20), fonte, 1).nMedia, 210);
        std::filesystem::remove(fonte.sArchivio);
    }
}

TEST_F(Statistiche, SenzaArchivioNonCeNullaEUnoVuotoSiLegge)
{
    FonteStatistica fonte{.gioco = &Gioco("SuperEnalotto"), .sArchivio = cartella / "manca.bd", .nRuota = 1};
    const VarianteStatistica variante = Variante(TipoCondizione::ponte, 6);
    EXPECT_EQ(CalcolaStatistica(variante, fonte, 3), EsitoStatistica{});
    fonte.sArchivio.clear();
    EXPECT_FALSE(CalcolaStatistica(variante, fonte, 3).bArchivio);
    fonte.sArchivio = cartella / "vuoto.bd";
    prove::ScriviFile(fonte.sArchivio, "");
    const EsitoStatistica vuoto = CalcolaStatistica(variante, fonte, 3);
    EXPECT_TRUE(vuoto.bArchivio);
    EXPECT_EQ(vuoto.nUsate, 0);
    EXPECT_THAT(vuoto.aBarre, IsEmpty());
}

TEST_F(Statistiche, UnArchivioDiPiuBlocchiSiContaTutto)
{
    const FonteStatistica fonte =
        Archivio("SuperEnalotto", std::vector<Numeri>(25001, Numeri{1, 2, 3, 4, 5, 7}));
    const EsitoStatistica esito = CalcolaStatistica(Variante(TipoCondizione::consecutivi, 6), fonte, 1);
    EXPECT_EQ(esito.nUsate, 25001);
    EXPECT_DOUBLE_EQ(esito.nMedia, 4);
    EXPECT_EQ(esito.aUltime.at(0).nEstrazione, 25001);
}

namespace {

using Misura = std::function<std::int32_t(std::int16_t, const Colonna&)>;

/// One way of each kind, named, with the plain metric that it must agree with.
struct Confronto {
    TipoCondizione Tipo;
    std::string sNome;
    Misura misura;
};

template <typename Funzione> Misura ConParita(Funzione funzione)
{
    return [funzione](std::int16_t n, const Colonna& c) { return funzione(n, CreaSequenzaParita(n, c)); };
}

FlagNumeri Caselle(std::int16_t nDa, std::int16_t nA)
{
    FlagNumeri aFlag;
    for (std::int16_t k = nDa; k <= nA; ++k) {
        aFlag[k] = kVero;
    }
    return aFlag;
}

Misura ConCaselle(std::int32_t (*funzione)(std::int16_t, const Colonna&, const FlagNumeri&), std::int16_t nDa,
                  std::int16_t nA)
{
    return [=](std::int16_t n, const Colonna& c) { return funzione(n, c, Caselle(nDa, nA)); };
}

Misura QuantiNumeri(const std::function<bool(std::uint8_t)>& scelta)
{
    return [scelta](std::int16_t n, const Colonna& c) {
        return static_cast<std::int32_t>(std::count_if(c.aNumeri.begin(), c.aNumeri.begin() + n, scelta));
    };
}

Misura Schema(const std::string& sSchema)
{
    return ConParita([sSchema](std::int16_t n, const SequenzaParita& aParita) {
        FlagNumeri aSchema;
        for (std::size_t i = 0; i < sSchema.size(); ++i) {
            aSchema[static_cast<std::int64_t>(i)] = sSchema[i] == 'D' ? 1 : 0;
        }
        return CalcolaSequenzeScansione(n, aParita, aSchema, static_cast<std::int16_t>(sSchema.size()), 1)
            .nQuante;
    });
}

Misura PerDirezione(std::int32_t (*funzione)(std::int16_t, const SequenzaParita&, std::int16_t),
                    std::int16_t nDirezione)
{
    return ConParita([=](std::int16_t n, const SequenzaParita& p) { return funzione(n, p, nDirezione); });
}

Misura Terzo(std::int32_t nTerzo)
{
    return [nTerzo](std::int16_t n, const Colonna& c) { return std::int32_t{CalcolaFormule(n, c)(nTerzo)}; };
}

Misura RestoA(std::int16_t nDivisore)
{
    return [=](std::int16_t n, const Colonna& c) { return Resto(SommaColonna(n, c), nDivisore); };
}

Misura GruppiDi(std::int16_t nGruppo)
{
    return [=](std::int16_t n, const Colonna& c) { return CalcolaGruppiDiConsecutivi(n, c, nGruppo, 2); };
}

Misura NumeroIn(std::int16_t nPosto)
{
    return [=](std::int16_t, const Colonna& c) { return std::int32_t{c(nPosto)}; };
}

Misura ConFigura(std::uint8_t nFigura)
{
    return QuantiNumeri([=](std::uint8_t n) { return Figura(n) == nFigura; });
}

std::vector<Confronto> Confronti(std::int16_t nNumeri)
{
    using enum TipoCondizione;
    return {
        {pariDispari, "Pari", QuantiNumeri([](std::uint8_t n) { return n % 2 == 0; })},
        {pariDispari, "Dispari", QuantiNumeri([](std::uint8_t n) { return n % 2 == 1; })},
        {peso, "Tutte le caselle", SommaColonna},
        {peso, "Casella 2", NumeroIn(2)},
        {resto, "Resto a 2", RestoA(2)},
        {resto, "Resto a 9", RestoA(9)},
        {ampiezza, "", CalcolaAmpiezza},
        {vortice, "Diretto", CalcolaVorticeDiretto},
        {vortice, "Inverso", CalcolaVorticeInverso},
        {simmetrie, "Dirette", PerDirezione(CalcolaSimmetrie, kDiretto)},
        {simmetrie, "Inverse", PerDirezione(CalcolaSimmetrie, kInverso)},
        {consecutivi, "", CalcolaConsecutivi},
        {interruzioniPD, "",
         ConParita([](std::int16_t n, const SequenzaParita& p) { return CalcolaInterruzioniPD(n, p); })},
        {baricentro, "", [](std::int16_t n, const Colonna& c) { return SommaColonna(n, c) / n; }},
        {distanzaMinima, "", CalcolaDistanzaMinima},
        {distanzaMassima, "", CalcolaDistanzaMassima},
        {posizioni, "Casella 1", NumeroIn(1)},
        {posizioni, "Casella " + std::to_string(nNumeri), NumeroIn(nNumeri)},
        {ponte, "", CalcolaPonte},
        {sequenze, "PP", Schema("PP")},
        {sequenze, "DP", Schema("DP")},
        {sequenze, "PDD", Schema("PDD")},
        {paralleli, "Diretti", PerDirezione(CalcolaParalleli, kDiretto)},
        {paralleli, "Inversi", PerDirezione(CalcolaParalleli, kInverso)},
        {gruppiDiConsecutivi, "Gruppi di 2", GruppiDi(2)},
        {gruppiDiConsecutivi, "Gruppi di 3", GruppiDi(3)},
        {interruzioni, "", CalcolaInterruzioni},
        {consecutiviPD, "", ConParita(CalcolaConsecutiviPD)},
        {cadenze, "", CalcolaCadenze},
        {decine, "", CalcolaDecine},
        {figure, "", CalcolaFigure},
        {formule, "Da 1 a 30", Terzo(1)},
        {formule, "Da 31 a 60", Terzo(2)},
        {formule, "Da 61 a 90", Terzo(3)},
        {simmetrieNum, "", CalcolaSimmetrieNum},
        {paralleliNum, "", CalcolaParalleliNum},
        {fulcro, "Pari", PerDirezione(CalcolaFulcro, 1)},
        {fulcro, "Dispari", PerDirezione(CalcolaFulcro, 2)},
        {sommaCadenze, "Tutte le caselle", ConCaselle(CalcolaSommaCadenze, 1, nNumeri)},
        {sommaCadenze, "Casella 3", ConCaselle(CalcolaSommaCadenze, 3, 3)},
        {sommaDecine, "Tutte le caselle", ConCaselle(CalcolaSommaDecine, 1, nNumeri)},
        {sommaFigure, "Tutte le caselle", ConCaselle(CalcolaSommaFigure, 1, nNumeri)},
        {sommaNumeretti, "Tutte le caselle", ConCaselle(CalcolaSommaNumeretti, 1, nNumeri)},
        {sommaComplessiva, "Tutte le caselle", ConCaselle(CalcolaSommaComplessiva, 1, nNumeri)},
        {figureSpecifiche, "Figure 0", ConFigura(0)},
        {figureSpecifiche, "Figure 9", ConFigura(9)},
        {cadenzeSpecifiche, "Cadenze 7", QuantiNumeri([](std::uint8_t n) { return n % 10 == 7; })},
        {decineSpecifiche, "Decine 0", QuantiNumeri([](std::uint8_t n) { return n <= 10; })},
        {decineSpecifiche, "Decine 8", QuantiNumeri([](std::uint8_t n) { return n >= 81; })},
    };
}

/// Draws that look like chance and are the same each time.
std::vector<Numeri> EstrazioniSparse(std::int16_t nNumeri)
{
    std::vector<Numeri> aEstrazioni;
    std::uint32_t nSeme = 12345;
    for (int i = 0; i < 300; ++i) {
        Numeri aNumeri;
        while (aNumeri.size() < static_cast<std::size_t>(nNumeri)) {
            nSeme = nSeme * 1664525U + 1013904223U;
            const auto nNumero = static_cast<std::uint8_t>((nSeme >> 16U) % 90U + 1U);
            if (std::find(aNumeri.begin(), aNumeri.end(), nNumero) == aNumeri.end()) {
                aNumeri.push_back(nNumero);
            }
        }
        aEstrazioni.push_back(std::move(aNumeri));
    }
    return aEstrazioni;
}

Colonna Ordinata(Numeri aNumeri)
{
    std::sort(aNumeri.begin(), aNumeri.end());
    Colonna colonna;
    std::copy(aNumeri.begin(), aNumeri.end(), colonna.aNumeri.begin());
    return colonna;
}

const VarianteStatistica* ConNome(const std::vector<VarianteStatistica>& aVarianti, const std::string& sNome)
{
    const auto variante = std::find_if(aVarianti.begin(), aVarianti.end(),
                                       [&](const VarianteStatistica& v) { return v.sNome == sNome; });
    return variante == aVarianti.end() ? nullptr : &*variante;
}

} // namespace

TEST_F(Statistiche, OgniTipoDaIValoriDellaSuaMetrica)
{
    for (const std::string_view sGioco : {"Lotto", "SuperEnalotto", "WinForLife", "10ELotto"}) {
        const std::int16_t nNumeri = NumeriColonnaDi(Gioco(sGioco));
        const std::vector<Numeri> aEstrazioni = EstrazioniSparse(nNumeri);
        const FonteStatistica fonte = Archivio(sGioco, aEstrazioni, 1);
        for (const Confronto& confronto : Confronti(nNumeri)) {
            SCOPED_TRACE(std::string(sGioco) + " " + std::string(Voce(confronto.Tipo).sChiave) + " " +
                         confronto.sNome);
            const auto aVarianti = VariantiStatistica(Voce(confronto.Tipo), nNumeri);
            const VarianteStatistica* variante = ConNome(aVarianti, confronto.sNome);
            ASSERT_NE(variante, nullptr);
            const EsitoStatistica esito = CalcolaStatistica(*variante, fonte, 300);
            ASSERT_THAT(esito.aUltime, SizeIs(300));
            std::map<std::int32_t, std::int64_t> aQuante;
            std::int64_t nSomma = 0;
            for (std::size_t i = 0; i < aEstrazioni.size(); ++i) {
                const std::int32_t nValore = confronto.misura(nNumeri, Ordinata(aEstrazioni[i]));
                ASSERT_EQ(esito.aUltime[299 - i].nValore, nValore) << i;
                ++aQuante[nValore];
                nSomma += nValore;
            }
            EXPECT_DOUBLE_EQ(esito.nMedia, static_cast<double>(nSomma) / 300);
            EXPECT_EQ(esito.nMinimo, aQuante.begin()->first);
            EXPECT_EQ(esito.nMassimo, aQuante.rbegin()->first);
            EXPECT_LE(esito.aBarre.size(), 30U);
            for (const BarraStatistica& barra : esito.aBarre) {
                std::int64_t nQuante = 0;
                for (std::int32_t n = barra.nDa; n <= barra.nA; ++n) {
                    nQuante += aQuante[n];
                }
                EXPECT_EQ(barra.nQuante, nQuante);
                EXPECT_EQ(barra.nUltime, nQuante);
            }
        }
        std::filesystem::remove(fonte.sArchivio);
    }
}

TEST(VariantiStatistiche, OgniNumeroTrovaIlSuoTipo)
{
    for (const VoceCatalogo& voce : Catalogo()) {
        if (voce.nIdStatistica != 0) {
            EXPECT_EQ(TrovaStatistica(voce.nIdStatistica), &voce);
        }
    }
    for (const std::int32_t nIdStatistica : {0, -1, 23, 24, 38}) {
        EXPECT_EQ(TrovaStatistica(nIdStatistica), nullptr);
    }
}

TEST(VariantiStatistiche, SoloLeSpecieSenzaMisuraNonNeHanno)
{
    for (const VoceCatalogo& voce : Catalogo()) {
        const bool bSenza = voce.nIdStatistica == 0 || voce.Tipo == TipoCondizione::puntiColonna ||
                            voce.Tipo == TipoCondizione::emulatore;
        EXPECT_EQ(VariantiStatistica(voce, 5).empty(), bSenza) << voce.sChiave;
        for (const VarianteStatistica& variante : VariantiStatistica(voce, 5)) {
            EXPECT_NE(variante.metrica, nullptr) << voce.sChiave;
            EXPECT_EQ(variante.bIntervalli, voce.forma == eForma::intervallo) << voce.sChiave;
        }
    }
}

TEST(LarghezzaDegliIntervalli, ETondaELaPiuPiccolaCheBasti)
{
    EXPECT_EQ(LarghezzaIntervalli(0, 0), 1);
    EXPECT_EQ(LarghezzaIntervalli(1, 29), 1);
    EXPECT_EQ(LarghezzaIntervalli(1, 30), 2);
    EXPECT_EQ(LarghezzaIntervalli(1, 90), 5);
    EXPECT_EQ(LarghezzaIntervalli(15, 440), 20);
    EXPECT_EQ(LarghezzaIntervalli(210, 1610), 50);
    EXPECT_EQ(LarghezzaIntervalli(0, 10000), 500);
}

} // namespace ordavel
