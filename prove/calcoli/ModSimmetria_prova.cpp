// ModSimmetria_prova.cpp - metrics on the string of parities and on pairs of numbers.

#include "calcoli/ModSimmetria.hpp"

#include "comune/ColonneProva.hpp"
#include "comune/Fallimenti.hpp"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <cstdint>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

namespace ordavel {

// gtest and RapidCheck find it by the namespace of the type.
std::ostream& operator<<(std::ostream& uscita, const EsitoVortice& esito)
{
    return uscita << esito.nPos << ", " << esito.nVortici;
}

namespace {

using prove::ColonnaConParita;
using prove::ColonnaDi;
using prove::ColonnaProva;
using prove::GeneraColonna;
using prove::GeneraParita;
using prove::NumeroErrore;

SequenzaParita Parita(const ColonnaProva& c)
{
    return CreaSequenzaParita(c.nClasse, c.colonna);
}

EsitoVortice Vortice(std::string_view sParita, std::int16_t nDirezione)
{
    const ColonnaProva c = ColonnaConParita(sParita);
    return CalcolaVortice(c.nClasse, Parita(c), nDirezione);
}

std::int32_t Simmetrie(std::string_view sParita, std::int16_t nDirezione)
{
    const ColonnaProva c = ColonnaConParita(sParita);
    return CalcolaSimmetrie(c.nClasse, Parita(c), nDirezione);
}

std::int32_t Paralleli(std::string_view sParita, std::int16_t nDirezione)
{
    const ColonnaProva c = ColonnaConParita(sParita);
    return CalcolaParalleli(c.nClasse, Parita(c), nDirezione);
}

/// The parities of a column as "P" and "D".
std::string TestoParita(const ColonnaProva& c)
{
    std::string sParita;
    for (const int nNumero : c.Numeri()) {
        sParita += nNumero % 2 == 0 ? 'P' : 'D';
    }
    return sParita;
}

std::string Rovesciato(const std::string& sTesto)
{
    return {sTesto.rbegin(), sTesto.rend()};
}

/// The walk told with searches in the text of the parities, on what lies between the ends.
EsitoVortice VorticeSulTesto(const std::string& sParita, bool bDiretto)
{
    std::size_t nPrimo = 0;
    std::size_t nDopo = sParita.size(); // one behind the right end
    EsitoVortice esito{0, -1};
    bool bDaDestra = bDiretto;
    int nRicerche = 0;
    while (sParita.size() >= 2 && (nRicerche % 2 == 1 || nPrimo + 1 < nDopo)) {
        ++nRicerche;
        if (nPrimo < nDopo) {
            const std::size_t nTrovato = bDaDestra ? sParita.rfind(sParita[nPrimo], nDopo - 1)
                                                   : sParita.find(sParita[nDopo - 1], nPrimo);
            nPrimo = bDaDestra ? nPrimo + 1 : nTrovato;
            nDopo = bDaDestra ? nTrovato + 1 : nDopo - 1;
            esito = {static_cast<std::int32_t>(nTrovato) + 1, esito.nVortici + 1};
        }
        bDaDestra = !bDaDestra;
    }
    return esito;
}

// --- two-ended walk

TEST(ModSimmetria, VorticeDegliEsempi)
{
    struct Riga {
        std::string_view sParita;
        EsitoVortice diretto;
        EsitoVortice inverso;
    };
    const std::vector<Riga> aRighe{
        {"DPDPD", {3, 2}, {3, 2}}, {"DDPPDP", {2, 2}, {4, 1}}, {"PD", {1, 0}, {2, 0}},
        {"DD", {2, 1}, {1, 1}},    {"PPPPP", {3, 3}, {3, 3}},  {"DPPDPDDPDP", {6, 3}, {5, 4}},
    };
    for (const Riga& riga : aRighe) {
        EXPECT_EQ(Vortice(riga.sParita, kDiretto), riga.diretto) << riga.sParita;
        EXPECT_EQ(Vortice(riga.sParita, kInverso), riga.inverso) << riga.sParita;
    }
}

TEST(ModSimmetria, UnNumeroSoloNonFaVortice)
{
    for (const std::int16_t nDirezione : {kDiretto, kInverso}) {
        EXPECT_EQ(Vortice("D", nDirezione), (EsitoVortice{0, -1}));
        EXPECT_EQ(Vortice("", nDirezione), (EsitoVortice{0, -1}));
        EXPECT_EQ(CalcolaVortice(-4, {}, nDirezione), (EsitoVortice{0, -1}));
    }
}

TEST(ModSimmetria, OgniDirezioneDiversaDaUnoEInversa)
{
    for (const int nDirezione : {0, 2, 3, -1}) {
        EXPECT_EQ(Vortice("DDPPDP", static_cast<std::int16_t>(nDirezione)), (EsitoVortice{4, 1}));
        EXPECT_EQ(Simmetrie("DDPPDP", static_cast<std::int16_t>(nDirezione)), 1);
        EXPECT_EQ(Paralleli("DDPPDP", static_cast<std::int16_t>(nDirezione)), 1);
    }
}

TEST(ModSimmetria, LeFormePubblicheDelVorticeDannoLaPosizione)
{
    const ColonnaProva c = ColonnaConParita("DDPPDP");
    EXPECT_EQ(CalcolaVorticeDiretto(c.nClasse, c.colonna), 2);
    EXPECT_EQ(CalcolaVorticeInverso(c.nClasse, c.colonna), 4);
}

RC_GTEST_PROP(ModSimmetria, IlVorticeSiRitrovaCercandoNelTesto, ())
{
    const auto sParita = *GeneraParita(20);
    RC_ASSERT(Vortice(sParita, kDiretto) == VorticeSulTesto(sParita, true));
    RC_ASSERT(Vortice(sParita, kInverso) == VorticeSulTesto(sParita, false));
}

RC_GTEST_PROP(ModSimmetria, IlVorticeStaNeiSuoiLimiti, ())
{
    const auto sParita = *GeneraParita(20);
    const int nClasse = static_cast<int>(sParita.size());
    for (const std::int16_t nDirezione : {kDiretto, kInverso}) {
        const EsitoVortice esito = Vortice(sParita, nDirezione);
        RC_ASSERT(esito.nPos >= (nClasse < 2 ? 0 : 1));
        RC_ASSERT(esito.nPos <= (nClasse < 2 ? 0 : nClasse));
        RC_ASSERT(esito.nVortici >= (nClasse < 2 ? -1 : 0));
        RC_ASSERT(esito.nVortici <= (nClasse < 2 ? -1 : nClasse - 1));
    }
}

RC_GTEST_PROP(ModSimmetria, IlVorticeInversoEIlDirettoAlloSpecchio, ())
{
    const auto sParita = *GeneraParita(20);
    RC_PRE(sParita.size() >= 2U);
    const EsitoVortice diretto = Vortice(sParita, kDiretto);
    const EsitoVortice inverso = Vortice(Rovesciato(sParita), kInverso);
    RC_ASSERT(inverso.nPos == static_cast<int>(sParita.size()) + 1 - diretto.nPos);
    RC_ASSERT(inverso.nVortici == diretto.nVortici);
}

// --- mirror and half pairs

TEST(ModSimmetria, UnNumeroSoloNonHaSimmetrieNeParalleli)
{
    for (const std::int16_t nDirezione : {kDiretto, kInverso}) {
        EXPECT_EQ(Simmetrie("D", nDirezione), 0);
        EXPECT_EQ(Paralleli("D", nDirezione), 0);
        EXPECT_EQ(CalcolaSimmetrie(-5, {}, nDirezione), 0);
        EXPECT_EQ(CalcolaParalleli(-5, {}, nDirezione), 0);
    }
}

TEST(ModSimmetria, ParalleliNonLeggonoLUltimoDiUnaClasseDispari)
{
    EXPECT_EQ(Paralleli("DPD", kDiretto), 0);
    EXPECT_EQ(Paralleli("DPD", kInverso), 1);
}

TEST(ModSimmetria, IlCentroDiUnaClasseDispariNonHaSimmetria)
{
    EXPECT_EQ(Simmetrie("DPD", kDiretto), 1);
    EXPECT_EQ(Simmetrie("DPD", kInverso), 0);
    EXPECT_EQ(Simmetrie("DPP", kInverso), 1);
}

RC_GTEST_PROP(ModSimmetria, DiretteEInverseFannoMetaClasse, ())
{
    const ColonnaProva c = *GeneraColonna();
    RC_ASSERT(CalcolaSimmetrieDirette(c.nClasse, c.colonna) + CalcolaSimmetrieInverse(c.nClasse, c.colonna) ==
              c.nClasse / 2);
    RC_ASSERT(CalcolaParalleliDiretti(c.nClasse, c.colonna) + CalcolaParalleliInversi(c.nClasse, c.colonna) ==
              c.nClasse / 2);
}

RC_GTEST_PROP(ModSimmetria, SimmetrieEParalleliConfrontanoDueMeta, ())
{
    const ColonnaProva c = *GeneraColonna();
    const std::string sParita = TestoParita(c);
    const std::size_t nMeta = sParita.size() / 2;
    const std::string sRovescio = Rovesciato(sParita);
    int nSimmetrie = 0;
    int nParalleli = 0;
    for (std::size_t i = 0; i < nMeta; ++i) {
        nSimmetrie += sParita[i] == sRovescio[i] ? 1 : 0;
        nParalleli += sParita[i] == sParita.substr(nMeta)[i] ? 1 : 0;
    }
    RC_ASSERT(CalcolaSimmetrieDirette(c.nClasse, c.colonna) == nSimmetrie);
    RC_ASSERT(CalcolaParalleliDiretti(c.nClasse, c.colonna) == nParalleli);
}

// --- partners

TEST(ModSimmetria, CoppieDiNumeriDellEsempio)
{
    const ColonnaProva c = ColonnaDi({1, 46, 90});
    EXPECT_EQ(CalcolaSimmetrieNum(c.nClasse, c.colonna), 1);
    EXPECT_EQ(CalcolaParalleliNum(c.nClasse, c.colonna), 1);
}

TEST(ModSimmetria, IlCompagnoDi45E90)
{
    const ColonnaProva c = ColonnaDi({45, 90});
    EXPECT_EQ(CalcolaParalleliNum(c.nClasse, c.colonna), 1);
    EXPECT_EQ(CalcolaSimmetrieNum(c.nClasse, c.colonna), 0);
}

TEST(ModSimmetria, UnNumeroSopra45CercaIlCompagnoPiuBasso)
{
    const ColonnaProva c = ColonnaDi({46, 1});
    EXPECT_EQ(CalcolaParalleliNum(c.nClasse, c.colonna), 1);
}

TEST(ModSimmetria, OgniNumeroContaUnaVoltaSola)
{
    const ColonnaProva c = ColonnaDi({1, 90, 90});
    EXPECT_EQ(CalcolaSimmetrieNum(c.nClasse, c.colonna), 1);
}

TEST(ModSimmetria, SottoDueNumeriNessunCompagno)
{
    for (const int nClasse : {1, 0, -7}) {
        EXPECT_EQ(CalcolaSimmetrieNum(static_cast<std::int16_t>(nClasse), ColonnaDi({1, 90}).colonna), 0);
        EXPECT_EQ(CalcolaParalleliNum(static_cast<std::int16_t>(nClasse), ColonnaDi({1, 46}).colonna), 0);
    }
}

RC_GTEST_PROP(ModSimmetria, IlNumeroDelleCoppieCrescenti, ())
{
    const ColonnaProva c = *GeneraColonna();
    int nSimmetrie = 0;
    int nParalleli = 0;
    for (const int a : c.Numeri()) {
        for (const int b : c.Numeri()) {
            nSimmetrie += a < b && a + b == 91 ? 1 : 0;
            nParalleli += b - a == 45 ? 1 : 0;
        }
    }
    RC_ASSERT(CalcolaSimmetrieNum(c.nClasse, c.colonna) == nSimmetrie);
    RC_ASSERT(CalcolaParalleliNum(c.nClasse, c.colonna) == nParalleli);
}

// --- mean position

TEST(ModSimmetria, IlFulcroEUnaPosizione)
{
    const ColonnaProva c = ColonnaDi({2, 3, 4});
    EXPECT_EQ(CalcolaFulcro(c.nClasse, Parita(c), 1), 2);
    EXPECT_EQ(CalcolaFulcro(c.nClasse, Parita(c), 2), 2);
}

TEST(ModSimmetria, IlFulcroSiTronca)
{
    const ColonnaProva c = ColonnaConParita("PDDP");
    EXPECT_EQ(CalcolaFulcro(c.nClasse, Parita(c), 1), 2); // mean 2.5
    EXPECT_EQ(CalcolaFulcro(c.nClasse, Parita(c), 2), 2);
    EXPECT_EQ(CalcolaFulcro(4, Parita(ColonnaConParita("PPDP")), 1), 2); // mean 7/3
}

TEST(ModSimmetria, OgniParametroDiversoDaUnoScegliIDispari)
{
    const SequenzaParita aParita = Parita(ColonnaConParita("PPD"));
    for (const int nParametro : {0, 2, 3, -1}) {
        EXPECT_EQ(CalcolaFulcro(3, aParita, static_cast<std::int16_t>(nParametro)), 3);
    }
}

TEST(ModSimmetria, SenzaNumeriDellaParitaIlFulcroEZero)
{
    EXPECT_EQ(CalcolaFulcro(3, Parita(ColonnaConParita("PPP")), 2), 0);
    EXPECT_EQ(CalcolaFulcro(3, Parita(ColonnaConParita("DDD")), 1), 0);
    EXPECT_EQ(CalcolaFulcro(0, {}, 1), 0);
    EXPECT_EQ(CalcolaFulcro(-2, {}, 1), 0);
}

RC_GTEST_PROP(ModSimmetria, IlFulcroEIlPavimentoDellaMedia, ())
{
    const auto sParita = *GeneraParita(20);
    const ColonnaProva c = ColonnaConParita(sParita);
    const char cScelta = *rc::gen::element('P', 'D');
    std::vector<int> aPosizioni;
    for (std::size_t i = sParita.find(cScelta); i != std::string::npos; i = sParita.find(cScelta, i + 1)) {
        aPosizioni.push_back(static_cast<int>(i) + 1);
    }
    const int nFulcro = CalcolaFulcro(c.nClasse, Parita(c), cScelta == 'P' ? 1 : 2);
    int nScarto = 0;
    for (const int nPosizione : aPosizioni) {
        nScarto += nPosizione - nFulcro;
    }
    const int nLimite = aPosizioni.empty() ? 1 : static_cast<int>(aPosizioni.size());
    RC_ASSERT(nScarto >= 0);
    RC_ASSERT(nScarto < nLimite);
    RC_ASSERT(nFulcro == 0 || !aPosizioni.empty());
}

// --- class

TEST(ModSimmetria, UnaClasseSopraVentiFallisceOvunque)
{
    const Colonna colonna = ColonnaDi({1, 2, 3}).colonna;
    const SequenzaParita aParita;
    for (auto* metrica :
         {CalcolaVorticeDiretto, CalcolaVorticeInverso, CalcolaSimmetrieDirette, CalcolaSimmetrieInverse,
          CalcolaParalleliDiretti, CalcolaParalleliInversi, CalcolaSimmetrieNum, CalcolaParalleliNum}) {
        EXPECT_EQ(NumeroErrore([&] { (void)metrica(21, colonna); }), 9);
    }
    for (auto* metrica : {CalcolaSimmetrie, CalcolaParalleli, CalcolaFulcro}) {
        EXPECT_EQ(NumeroErrore([&] { (void)metrica(21, aParita, 1); }), 9);
    }
    EXPECT_EQ(NumeroErrore([&] { (void)CalcolaVortice(21, aParita, 1); }), 9);
}

} // namespace
} // namespace ordavel
