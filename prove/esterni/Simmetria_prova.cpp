// Simmetria_prova.cpp - fields, groups and orbits.

#include "RiduzioneProva.hpp"
#include "esterni/trvrdcol/Campo.hpp"
#include "esterni/trvrdcol/Orbite.hpp"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

namespace ordavel::trvrdcol {
namespace {

/// All fives of eight numbers, or those with as many odd ones as even ones give or take one, and their symmetry.
struct Regolari {
    explicit Regolari(bool bTutte)
        : aColonne(Colonne(bTutte)), problema(aColonne, 4, 5), vicini(problema), dizionario(problema.Quanti())
    {
        for (Indice i = 0; i < problema.Quanti(); ++i) {
            dizionario.Aggiungi(problema.aInsiemi, i);
        }
        aClassi = ClassiDiPosti(problema, dizionario);
    }

    static prove::FileColonne Colonne(bool bTutte)
    {
        prove::FileColonne aColonne = prove::TutteLeColonne(8, 5);
        std::erase_if(aColonne, [&](const prove::RecordColonna& c) {
            const auto nDispari = std::ranges::count_if(c, [](std::uint8_t n) { return n % 2 != 0; });
            return !bTutte && (nDispari < 2 || nDispari > 3);
        });
        return aColonne;
    }

    [[nodiscard]] Terreno Dove() const { return {problema, vicini, nullptr, dizionario, aClassi}; }

    prove::FileColonne aColonne;
    Problema problema;
    Vicini vicini;
    Dizionario dizionario;
    std::vector<Classe> aClassi;
};

} // namespace

TEST(TrvrdcolCampo, ExistsForPowersOfPrimesOnly)
{
    std::set<unsigned> aCampi;
    for (unsigned q = 0; q <= 32; ++q) {
        if (Campo::Esiste(q)) {
            aCampi.insert(q);
        }
    }
    EXPECT_EQ(aCampi, (std::set<unsigned>{2, 3, 4, 5, 7, 8, 9, 11, 13, 16, 17, 19, 23, 25, 27, 29, 31, 32}));
}

TEST(TrvrdcolCampo, ObeysTheLawsOfAField)
{
    for (unsigned q = 2; q <= 32; ++q) {
        if (!Campo::Esiste(q)) {
            continue;
        }
        const Campo campo(q);
        for (unsigned a = 0; a < q; ++a) {
            EXPECT_EQ(campo.Somma(a, 0), a);
            EXPECT_EQ(campo.Somma(a, campo.Opposto(a)), 0U);
            EXPECT_EQ(campo.Prodotto(a, 1), a);
            EXPECT_TRUE(a == 0 || campo.Prodotto(a, campo.Inverso(a)) == 1) << q << ' ' << a;
            for (unsigned b = 0; b < q; ++b) {
                const unsigned c = (a + 2 * b + 1) % q;
                EXPECT_EQ(campo.Prodotto(a, campo.Somma(b, c)),
                          campo.Somma(campo.Prodotto(a, b), campo.Prodotto(a, c)));
            }
        }
    }
}

TEST(TrvrdcolGruppi, NumbersThatMayBeExchangedMakeAClass)
{
    EXPECT_EQ(Regolari(true).aClassi, (std::vector<Classe>{{0, 1, 2, 3, 4, 5, 6, 7}}));
    const std::vector<Classe> aMiste = Regolari(false).aClassi;
    ASSERT_EQ(aMiste.size(), 2U);
    EXPECT_EQ(aMiste[0].size(), 4U);
    EXPECT_EQ(aMiste[1].size(), 4U);
}

RC_GTEST_PROP(TrvrdcolGruppi, KeepTheClasses, (std::uint32_t nSeme))
{
    const std::vector<Classe> aClassi{{0, 2, 4, 6, 8, 10, 12, 14, 16}, {1, 3, 5}, {7, 9, 11, 13, 15, 17, 18}};
    Sorte sorte(nSeme);
    Gruppo gruppo = GruppoACaso(aClassi, sorte);
    RC_ASSERT(!gruppo.empty());
    gruppo = sorte.Capita(50) ? Sottogruppo(gruppo, sorte) : gruppo;
    for (const Permutazione& permutazione : gruppo) {
        for (const Classe& classe : aClassi) {
            Classe immagine = classe;
            std::ranges::for_each(immagine, [&](std::uint8_t& p) { p = permutazione[p]; });
            std::ranges::sort(immagine);
            RC_ASSERT(immagine == classe);
        }
    }
}

RC_GTEST_PROP(TrvrdcolOrbite, CoverEachOtherWhollyOrNotAtAll, (std::uint32_t nSeme))
{
    const Regolari regolari(nSeme % 2 == 0);
    const Terreno terreno = regolari.Dove();
    Sorte sorte(nSeme);
    const auto orbite = DividiInOrbite(terreno, GruppoACaso(regolari.aClassi, sorte));
    RC_ASSERT(orbite.has_value());
    Comandi comandi;
    const Tempo tempo(comandi, 1e9);
    Fonte fonte(regolari.vicini, nullptr, regolari.problema.Quanti());
    const auto incidenza = IncidenzaOrbite(*orbite, fonte, tempo);
    RC_ASSERT(incidenza.has_value());
    std::vector<std::set<Indice>> aCoperte(orbite->Quante());
    std::vector<std::uint32_t> aGrandezza(orbite->Quante(), 0);
    for (Indice i = 0; i < regolari.problema.Quanti(); ++i) {
        std::set<Indice> aMie;
        for (Indice j = 0; j < regolari.problema.Quanti(); ++j) {
            if (Comuni(regolari.problema.aInsiemi[i], regolari.problema.aInsiemi[j]) >= 4) {
                aMie.insert(orbite->aOrbitaDi[j]);
            }
        }
        const Indice o = orbite->aOrbitaDi[i];
        RC_ASSERT(++aGrandezza[o] == 1 || aCoperte[o] == aMie);
        aCoperte[o] = aMie;
    }
    RC_ASSERT(aGrandezza == incidenza->aCosto);
    for (std::size_t o = 0; o < orbite->Quante(); ++o) {
        const auto aRiga = incidenza->copre[o];
        RC_ASSERT(std::set<Indice>(aRiga.begin(), aRiga.end()) == aCoperte[o]);
    }
}

TEST(TrvrdcolOrbite, AGroupThatLeavesTheProblemIsRefused)
{
    const Regolari regolari(false);
    Permutazione scambio{};
    std::iota(scambio.begin(), scambio.end(), std::uint8_t{0});
    std::swap(scambio[regolari.aClassi[0][0]], scambio[regolari.aClassi[1][0]]);
    EXPECT_FALSE(DividiInOrbite(regolari.Dove(), {scambio}));
}

TEST(TrvrdcolOrbite, EveryCoverFoundWithAGroupIsACover)
{
    const Regolari regolari(true);
    const Terreno terreno = regolari.Dove();
    Comandi comandi;
    const Tempo tempo(comandi, 1e9);
    RicercaSimmetrica ricerca(terreno, 1);
    for (int n = 0; n < 60; ++n) {
        const std::vector<Indice> aScelti = ricerca.Prova(regolari.problema.Quanti(), tempo);
        for (const Maschera& insieme : regolari.problema.aInsiemi) {
            ASSERT_TRUE(aScelti.empty() || std::ranges::any_of(aScelti, [&](Indice i) {
                            return Comuni(insieme, regolari.problema.aInsiemi[i]) >= 4;
                        }));
        }
    }
}

} // namespace ordavel::trvrdcol
