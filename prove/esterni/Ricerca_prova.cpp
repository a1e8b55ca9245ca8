// Ricerca_prova.cpp - the parts of the search, each against its plain definition.

#include "RiduzioneProva.hpp"
#include "core/Fili.hpp"
#include "esterni/trvrdcol/Avido.hpp"
#include "esterni/trvrdcol/Guadagni.hpp"
#include "esterni/trvrdcol/Incidenza.hpp"
#include "esterni/trvrdcol/Regioni.hpp"
#include "esterni/trvrdcol/RicercaLocale.hpp"
#include "esterni/trvrdcol/Riduttore.hpp"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

namespace ordavel::trvrdcol {
namespace {

/// A problem from a file of some form, with a number of points that leaves it something to do.
struct ACaso {
    prove::FileColonne aColonne;
    std::size_t nClasse;
    int nPunti;

    explicit ACaso(std::uint32_t nSeme)
        : aColonne(prove::FileACaso(static_cast<prove::eForma>(nSeme % prove::kForme), nSeme)),
          nClasse(prove::ClasseDi(aColonne)),
          nPunti(nClasse == 0 ? 1 : 1 + static_cast<int>(nSeme / prove::kForme % nClasse))
    {}
};

std::vector<Indice> ViciniLetterali(const Problema& problema, Indice i)
{
    std::vector<Indice> aVicini;
    for (Indice j = 0; j < problema.Quanti(); ++j) {
        if (Comuni(problema.aInsiemi[i], problema.aInsiemi[j]) >= problema.nPunti) {
            aVicini.push_back(j);
        }
    }
    return aVicini;
}

bool CopreTutto(const Incidenza& incidenza, const std::vector<Indice>& aScelti)
{
    std::vector<bool> aCoperti(incidenza.Elementi());
    for (const Indice c : aScelti) {
        std::ranges::for_each(incidenza.copre[c], [&](Indice e) { aCoperti[e] = true; });
    }
    return std::ranges::find(aCoperti, false) == aCoperti.end();
}

std::uint64_t Costo(const Incidenza& incidenza, const std::vector<Indice>& aScelti)
{
    return std::accumulate(aScelti.begin(), aScelti.end(), std::uint64_t{0},
                           [&](std::uint64_t n, Indice c) { return n + incidenza.aCosto[c]; });
}

/// The cheapest cover by trying all.
std::uint64_t Minimo(const Incidenza& incidenza)
{
    std::uint64_t nMinimo = ~std::uint64_t{0};
    for (std::uint32_t nQuali = 0; nQuali < 1U << incidenza.Candidati(); ++nQuali) {
        std::vector<Indice> aScelti;
        for (Indice c = 0; c < incidenza.Candidati(); ++c) {
            if ((nQuali >> c & 1U) != 0) {
                aScelti.push_back(c);
            }
        }
        if (CopreTutto(incidenza, aScelti)) {
            nMinimo = std::min(nMinimo, Costo(incidenza, aScelti));
        }
    }
    return nMinimo;
}

/// A small problem whose candidates are not its elements.
Incidenza IncidenzaACaso(std::uint32_t nSeme)
{
    Sorte sorte(nSeme);
    Incidenza incidenza;
    const std::size_t nElementi = 1 + sorte.Sotto(14);
    const std::size_t nCandidati = 1 + sorte.Sotto(12);
    for (std::size_t c = 0; c < nCandidati; ++c) {
        std::vector<Indice> aRiga;
        for (Indice e = 0; e < nElementi; ++e) {
            if (c == e % nCandidati || sorte.Capita(25)) {
                aRiga.push_back(e);
            }
        }
        incidenza.copre.Accoda(aRiga);
        incidenza.aCosto.push_back(static_cast<std::uint32_t>(1 + sorte.Sotto(4)));
    }
    incidenza.coperta = Trasposta(incidenza.copre, nElementi);
    return incidenza;
}

std::vector<Indice> Ordinati(std::vector<Indice> aIndici)
{
    std::ranges::sort(aIndici);
    return aIndici;
}

} // namespace

RC_GTEST_PROP(TrvrdcolVicini, AreThoseOfAllPairs, (std::uint32_t nSeme))
{
    const ACaso caso(nSeme);
    const Problema problema(caso.aColonne, caso.nPunti, caso.nClasse);
    const Vicini vicini(problema);
    Segni segni(problema.Quanti());
    std::vector<Indice> aTrovati;
    for (Indice i = 0; i < problema.Quanti(); ++i) {
        vicini.Trova(i, segni, aTrovati);
        RC_ASSERT(Ordinati(aTrovati) == ViciniLetterali(problema, i));
    }
}

RC_GTEST_PROP(TrvrdcolGuadagni, ThreeWaysToOneValue, (std::uint32_t nSeme))
{
    const ACaso caso(nSeme);
    const Problema problema(caso.aColonne, caso.nPunti, caso.nClasse);
    Comandi comandi;
    const Tempo tempo(comandi, 0);
    const Vicini vicini(problema);
    const Incidenza incidenza = ScriviIncidenza(problema, vicini, 1000000, 2, tempo).value();
    GuadagniScritti scritti(problema, incidenza);
    GuadagniCercati cercati(problema, vicini);
    RC_PRE(GuadagniContati::Possibile(problema));
    GuadagniContati contati(problema, vicini);
    for (Indice i = 0; i < problema.Quanti(); i += 3) {
        for (Indice j = 0; j < problema.Quanti(); ++j) {
            RC_ASSERT(scritti.Valore(j) == cercati.Valore(j));
            RC_ASSERT(contati.Valore(j) == cercati.Valore(j));
        }
        scritti.Copri(i);
        cercati.Copri(i);
        contati.Copri(i);
        RC_ASSERT(scritti.Scoperti() == contati.Scoperti());
    }
}

RC_GTEST_PROP(TrvrdcolAvido, TakesWhatTheLiteralGreedyTakes, (std::uint32_t nSeme))
{
    const ACaso caso(nSeme);
    const Problema problema(caso.aColonne, caso.nPunti, caso.nClasse);
    Comandi comandi;
    const Tempo tempo(comandi, 0);
    const Vicini vicini(problema);
    const std::size_t nScelti = CopriAvido(problema, vicini, nullptr, tempo).size();
    RC_ASSERT(nScelti + problema.aFissi.size() == prove::QuanteAvido(caso.aColonne, caso.nPunti));
}

RC_GTEST_PROP(TrvrdcolAvido, RepairsWhateverItIsGiven, (std::uint32_t nSeme))
{
    const ACaso caso(nSeme);
    const Problema problema(caso.aColonne, caso.nPunti, caso.nClasse);
    Comandi comandi;
    const Tempo tempo(comandi, 0);
    const Vicini vicini(problema);
    std::vector<Indice> aScelti;
    for (Indice i = nSeme % 5; i < problema.Quanti(); i += 5) {
        aScelti.push_back(i);
    }
    const std::vector<Indice> aTestimoni =
        Testimoni(problema, vicini, Ripara(problema, vicini, aScelti, tempo));
    RC_ASSERT(std::ranges::find(aTestimoni, kNessuno) == aTestimoni.end());
}

RC_GTEST_PROP(TrvrdcolAvido, AStopBeforeTheStartStillGivesACover, (std::uint32_t nSeme))
{
    const ACaso caso(nSeme);
    Comandi comandi;
    comandi.bFerma = true;
    prove::FileColonne aOutput;
    for (const Indice r : Riduci(caso.aColonne, caso.nPunti, 60, comandi)) {
        aOutput.push_back(caso.aColonne[r]);
    }
    RC_ASSERT(prove::Difetto(caso.aColonne, aOutput, caso.nPunti) == "");
}

RC_GTEST_PROP(TrvrdcolProblema, CompletingAddsWhatIsMissingBehind, (std::uint32_t nSeme))
{
    prove::FileColonne aColonne = prove::TutteLeColonne(6 + static_cast<int>(nSeme % 4), 4);
    std::mt19937 sorte(nSeme);
    std::ranges::shuffle(aColonne, sorte);
    const std::size_t nTutte = aColonne.size();
    aColonne.resize(nTutte - sorte() % (nTutte / 3));
    const Problema prima(aColonne, 3, 4);
    Problema dopo = prima;
    const bool bVicina = aColonne.size() < nTutte && nTutte - aColonne.size() <= aColonne.size() / 4;
    RC_PRE(prima.nPosti == 6 + nSeme % 4);
    RC_ASSERT(dopo.Completa() == bVicina);
    RC_ASSERT(dopo.Quanti() == (bVicina ? nTutte : aColonne.size()));
    RC_ASSERT(std::ranges::equal(prima.aInsiemi, std::span(dopo.aInsiemi).first(prima.Quanti())));
    std::set<std::pair<std::uint64_t, std::uint64_t>> aDiversi;
    for (const Maschera& insieme : dopo.aInsiemi) {
        RC_ASSERT(insieme.Quanti() == 4);
        aDiversi.emplace(insieme.nBassa, insieme.nAlta);
    }
    RC_ASSERT(aDiversi.size() == dopo.Quanti());
}

RC_GTEST_PROP(TrvrdcolIncidenza, TwiceTransposedIsAsBefore, (std::uint32_t nSeme))
{
    const Incidenza incidenza = IncidenzaACaso(nSeme);
    const Righe due = Trasposta(incidenza.coperta, incidenza.Candidati());
    RC_ASSERT(due.aInizio == incidenza.copre.aInizio);
    RC_ASSERT(due.aVoci == incidenza.copre.aVoci);
}

RC_GTEST_PROP(TrvrdcolIncidenza, NoCoverIsSmallerThanTheBound, (std::uint32_t nSeme))
{
    Incidenza incidenza = IncidenzaACaso(nSeme);
    std::ranges::fill(incidenza.aCosto, 1U);
    RC_ASSERT(LimiteInferiore(incidenza) <= Minimo(incidenza));
}

TEST(TrvrdcolIncidenza, TooManyNeighboursAreNotWrittenOut)
{
    const prove::FileColonne aColonne = prove::TutteLeColonne(9, 4);
    const Problema problema(aColonne, 1, 4);
    const Vicini vicini(problema);
    Comandi comandi;
    const Tempo tempo(comandi, 0);
    EXPECT_FALSE(ScriviIncidenza(problema, vicini, 5000, 2, tempo));
    EXPECT_TRUE(ScriviIncidenza(problema, vicini, 20000, 2, tempo));
}

RC_GTEST_PROP(TrvrdcolRicercaLocale, FindsTheCheapestCoverOfSmallProblems, (std::uint32_t nSeme))
{
    const Incidenza incidenza = IncidenzaACaso(nSeme);
    RicercaLocale ricerca(incidenza, nSeme);
    ricerca.Parti({});
    const std::uint64_t nMinimo = Minimo(incidenza);
    for (int n = 0; n < 100 && ricerca.CostoMigliore() > nMinimo; ++n) {
        ricerca.Cerca(100);
        RC_ASSERT(CopreTutto(incidenza, ricerca.Migliore()));
        RC_ASSERT(Costo(incidenza, ricerca.Migliore()) == ricerca.CostoMigliore());
    }
    RC_ASSERT(ricerca.CostoMigliore() == nMinimo);
}

TEST(TrvrdcolRicercaLocale, GoesOnFromACoverAndNeverLosesIt)
{
    const prove::FileColonne aColonne = prove::TutteLeColonne(10, 5);
    const Problema problema(aColonne, 4, 5);
    const Vicini vicini(problema);
    Comandi comandi;
    const Tempo tempo(comandi, 0);
    const Incidenza incidenza = ScriviIncidenza(problema, vicini, 1000000, 2, tempo).value();
    const std::vector<Indice> aAvidi = CopriAvido(problema, vicini, &incidenza, tempo);
    RicercaLocale ricerca(incidenza, 1);
    ricerca.Parti(aAvidi);
    EXPECT_EQ(Ordinati(ricerca.Migliore()), Ordinati(aAvidi));
    ricerca.Cerca(20000);
    EXPECT_TRUE(CopreTutto(incidenza, ricerca.Migliore()));
    EXPECT_LT(ricerca.CostoMigliore(), aAvidi.size());
}

TEST(TrvrdcolRicercaLocale, TheSameSeedMakesTheSameMoves)
{
    const Incidenza incidenza = IncidenzaACaso(11);
    RicercaLocale una(incidenza, 4);
    RicercaLocale altra(incidenza, 4);
    una.Parti({});
    altra.Parti({});
    una.Cerca(500);
    altra.Cerca(500);
    EXPECT_EQ(una.Migliore(), altra.Migliore());
}

TEST(TrvrdcolRegioni, TwoThreadsOnOneCoverLeaveACoverThatIsNotLarger)
{
    const prove::FileColonne aColonne = prove::TutteLeColonne(11, 6);
    const Problema problema(aColonne, 5, 6);
    const Vicini vicini(problema);
    Comandi comandi;
    const Tempo tempo(comandi, 1e9);
    const Incidenza incidenza = ScriviIncidenza(problema, vicini, 1000000, 2, tempo).value();
    std::vector<Indice> aTutti(problema.Quanti());
    std::iota(aTutti.begin(), aTutti.end(), Indice{0});
    const std::vector<Indice> aAvidi = CopriAvido(problema, vicini, &incidenza, tempo);
    for (const std::vector<Indice>& aInizio : {aTutti, aAvidi}) {
        CoperturaComune copertura(problema.Quanti());
        InParallelo(2, [&](unsigned nFilo) {
            const Incidenza* const scritta = nFilo == 0 ? &incidenza : nullptr;
            RicercaRegioni ricerca(copertura, Fonte(vicini, scritta, problema.Quanti()), nFilo);
            ricerca.Parti(aInizio);
            for (int n = 0; n < 40; ++n) {
                ricerca.Prova(tempo);
            }
        });
        EXPECT_TRUE(CopreTutto(incidenza, copertura.aScelti));
        EXPECT_LE(copertura.aScelti.size(), aAvidi.size());
        for (Indice e = 0; e < problema.Quanti(); ++e) {
            EXPECT_EQ(copertura.aQuanti[e], std::ranges::count_if(incidenza.copre[e], [&](Indice c) {
                          return copertura.aPosto[c] != kNessuno;
                      }));
        }
    }
}

} // namespace ordavel::trvrdcol
