// ModSimmetriaSequenze_prova.cpp - scans for a pattern of parities.

#include "calcoli/ModSimmetria.hpp"
#include "comune/ColonneProva.hpp"
#include "comune/Fallimenti.hpp"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <cstdint>
#include <ostream>
#include <string>
#include <string_view>

namespace ordavel {

// gtest and RapidCheck find it by the namespace of the type.
std::ostream& operator<<(std::ostream& uscita, const EsitoSequenze& esito)
{
    return uscita << esito.nQuante << ", " << esito.nCatena;
}

namespace {

using prove::ColonnaConParita;
using prove::ColonnaDi;
using prove::ColonnaProva;
using prove::GeneraParita;
using prove::NumeroErrore;

/// The pattern of a text of "P" and "D", from element 0 on.
FlagNumeri Schema(std::string_view sSchema)
{
    FlagNumeri aSchema;
    std::int64_t i = 0;
    for (const char c : sSchema) {
        aSchema(i++) = c == 'D' ? 1 : 0;
    }
    return aSchema;
}

EsitoSequenze Scansione(std::string_view sParita, std::string_view sSchema, int nPasso)
{
    const ColonnaProva c = ColonnaConParita(sParita);
    return CalcolaSequenzeScansione(c.nClasse, CreaSequenzaParita(c.nClasse, c.colonna), Schema(sSchema),
                                    static_cast<std::int16_t>(sSchema.size()),
                                    static_cast<std::int16_t>(nPasso));
}

EsitoSequenze ScansionePubblica(const ColonnaProva& c, std::string_view sSeq)
{
    EsitoSequenze esito;
    esito.nCatena = -1;
    esito.nQuante = CalcolaPuntiSequenze(c.nClasse, c.colonna, sSeq, esito.nCatena);
    return esito;
}

/// The scan told with substrings: one mark for each place that is looked at, then the runs of marks.
EsitoSequenze ScansioneSulTesto(const std::string& sParita, const std::string& sSchema, std::size_t nPasso)
{
    std::string sEsiti;
    for (std::size_t n = 0; n + sSchema.size() <= sParita.size(); n += nPasso) {
        sEsiti += sParita.compare(n, sSchema.size(), sSchema) == 0 ? '+' : ' ';
    }
    EsitoSequenze esito;
    esito.nQuante = static_cast<std::int32_t>(std::count(sEsiti.begin(), sEsiti.end(), '+'));
    while (sEsiti.find(std::string(static_cast<std::size_t>(esito.nCatena) + 1, '+')) != std::string::npos) {
        ++esito.nCatena;
    }
    return esito;
}

// --- scan for a pattern

TEST(ModSimmetriaSequenze, ScansioneDellEsempio)
{
    EXPECT_EQ(Scansione("DPDPD", "DP", 1), (EsitoSequenze{2, 1}));
    EXPECT_EQ(Scansione("DPDPD", "DP", 2), (EsitoSequenze{2, 2}));
}

TEST(ModSimmetriaSequenze, ITrattiPossonoSovrapporsi)
{
    EXPECT_EQ(Scansione("DDDD", "DD", 1), (EsitoSequenze{3, 3}));
}

TEST(ModSimmetriaSequenze, LaCatenaPiuLungaRestaQuandoSiInterrompe)
{
    EXPECT_EQ(Scansione("DDDPD", "D", 1), (EsitoSequenze{4, 3}));
    EXPECT_EQ(Scansione("DPDDD", "D", 1), (EsitoSequenze{4, 3}));
}

TEST(ModSimmetriaSequenze, UnoSchemaVuotoCoincideOvunque)
{
    EXPECT_EQ(Scansione("DPD", "", 1), (EsitoSequenze{4, 4}));
    EXPECT_EQ(Scansione("DPD", "", 2), (EsitoSequenze{2, 2}));
    EXPECT_EQ(Scansione("", "", 1), (EsitoSequenze{1, 1}));
}

TEST(ModSimmetriaSequenze, UnoSchemaPiuLungoDellaClasseNonSiTrova)
{
    for (const int nPasso : {0, 1, 5}) {
        EXPECT_EQ(Scansione("DP", "DPD", nPasso), (EsitoSequenze{0, 0}));
    }
}

TEST(ModSimmetriaSequenze, LoSchemaLungoQuantoLaClasseHaUnPostoSolo)
{
    EXPECT_EQ(Scansione("DPD", "DPD", 1), (EsitoSequenze{1, 1}));
    EXPECT_EQ(Scansione("DPD", "DPP", 1), (EsitoSequenze{0, 0}));
}

TEST(ModSimmetriaSequenze, UnPassoDiZeroFallisceAncheSenzaCoincidenze)
{
    EXPECT_EQ(NumeroErrore([] { (void)Scansione("DPD", "DP", 0); }), 6);
    EXPECT_EQ(NumeroErrore([] { (void)Scansione("DPD", "PP", 0); }), 6);
}

TEST(ModSimmetriaSequenze, UnPassoNegativoScendeFinoAlLimite)
{
    EXPECT_EQ(Scansione("DPD", "DP", -1), (EsitoSequenze{0, 0}));  // 1 already passes 2
    EXPECT_EQ(Scansione("DPD", "DPD", -1), (EsitoSequenze{1, 1})); // only place 1
    EXPECT_EQ(Scansione("DPD", "PPDP", -9), (EsitoSequenze{0, 0}));
}

TEST(ModSimmetriaSequenze, UnPassoNegativoCheEsceDallaColonnaFallisce)
{
    EXPECT_EQ(NumeroErrore([] { (void)Scansione("DPD", "DPDP", -9); }), 9); // no difference up to position 3
    EXPECT_EQ(NumeroErrore([] { (void)Scansione("DPD", "PPDP", -1); }), 9); // place 0
}

TEST(ModSimmetriaSequenze, UnPassoGrandeGuardaSoloIlPrimoPosto)
{
    EXPECT_EQ(Scansione("DPDPD", "D", 32767), (EsitoSequenze{1, 1}));
}

RC_GTEST_PROP(ModSimmetriaSequenze, LaScansioneConfrontaSottotesti, ())
{
    const auto sParita = *GeneraParita(20);
    const auto sSchema = *GeneraParita(4);
    const auto nPasso = *rc::gen::inRange(1, 6);
    RC_ASSERT(Scansione(sParita, sSchema, nPasso) ==
              ScansioneSulTesto(sParita, sSchema, static_cast<std::size_t>(nPasso)));
}

// --- public sequences

TEST(ModSimmetriaSequenze, LaSequenzaPubblicaParteDaUnPariEPerdeLUltimaLettera)
{
    const ColonnaProva c = ColonnaConParita("PDPDP");
    EXPECT_EQ(CalcolaSequenze(c.nClasse, c.colonna, "DP"), 2); // looks for P D
    EXPECT_EQ(CalcolaSequenze(c.nClasse, c.colonna, "DD"), 2);
    EXPECT_EQ(CalcolaSequenze(c.nClasse, c.colonna, "PD"), 0); // looks for P P
    EXPECT_EQ(CalcolaSequenze(c.nClasse, c.colonna, "D"), 3);  // looks for P
    EXPECT_EQ(CalcolaSequenze(c.nClasse, c.colonna, "P"), 3);
}

TEST(ModSimmetriaSequenze, LaSequenzaPubblicaProcedeDiUno)
{
    EXPECT_EQ(ScansionePubblica(ColonnaConParita("PPPDP"), "P"), (EsitoSequenze{4, 3}));
}

TEST(ModSimmetriaSequenze, LaLetteraPValeInOgniCasoELeAltreSonoDispari)
{
    const ColonnaProva c = ColonnaConParita("PPDPD");
    EXPECT_EQ(ScansionePubblica(c, "pdx"), ScansionePubblica(c, "PDP"));
    EXPECT_EQ(CalcolaSequenze(c.nClasse, c.colonna, "pdx"), 1); // P P D
    EXPECT_EQ(CalcolaSequenze(c.nClasse, c.colonna, "?!?"), 0); // P D D
}

TEST(ModSimmetriaSequenze, UnaSequenzaVuotaCoincideInOgniPosto)
{
    EXPECT_EQ(ScansionePubblica(ColonnaConParita("PDP"), ""), (EsitoSequenze{4, 4}));
}

TEST(ModSimmetriaSequenze, UnaSequenzaPiuLungaDellaClasseDaZero)
{
    const ColonnaProva c = ColonnaConParita("PDP");
    EXPECT_EQ(ScansionePubblica(c, "DPDP"), (EsitoSequenze{0, 0}));
    EXPECT_EQ(ScansionePubblica(c, std::string(90, 'P')), (EsitoSequenze{0, 0}));
}

TEST(ModSimmetriaSequenze, UnaSequenzaDi91LettereFallisce)
{
    const ColonnaProva c = ColonnaConParita("PDP");
    EXPECT_EQ(NumeroErrore([&] { (void)CalcolaSequenze(c.nClasse, c.colonna, std::string(91, 'P')); }), 9);
}

RC_GTEST_PROP(ModSimmetriaSequenze, LaSequenzaPubblicaEUnaScansioneSpostataDiUno, ())
{
    const auto sParita = *GeneraParita(20);
    const auto sSeq = *GeneraParita(4);
    const ColonnaProva c = ColonnaConParita(sParita);
    const std::string sLetta = ("P" + sSeq).substr(0, sSeq.size());
    const EsitoSequenze atteso = ScansioneSulTesto(sParita, sLetta, 1);
    RC_ASSERT(ScansionePubblica(c, sSeq) == atteso);
    RC_ASSERT(CalcolaSequenze(c.nClasse, c.colonna, sSeq) == atteso.nQuante);
}

TEST(ModSimmetriaSequenze, UnaClasseSopraVentiFallisce)
{
    const Colonna colonna = ColonnaDi({1, 2, 3}).colonna;
    EXPECT_EQ(NumeroErrore([] { (void)CalcolaSequenzeScansione(21, {}, {}, 2, 1); }), 9);
    EXPECT_EQ(NumeroErrore([&] { (void)CalcolaSequenze(21, colonna, "P"); }), 9);
}

} // namespace
} // namespace ordavel
