// ModRighePunti_prova.cpp - points for many rows, columns as rows, draws to emulate, and the board's lines.

#include "comune/Fallimenti.hpp"
#include "comune/GeneratoriSistema.hpp"
#include "condizioni/ModCompila.hpp"
#include "condizioni/ModRighe.hpp"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <array>
#include <string>
#include <utility>
#include <vector>

namespace ordavel {
namespace {

using prove::GrigliaDi;
using prove::NumeroErrore;
using prove::Tra;

NumeriScelti NumeriDi(const std::vector<std::int16_t>& aValori)
{
    NumeriScelti aNumeri;
    std::copy(aValori.begin(), aValori.end(), aNumeri.aElementi.begin());
    return aNumeri;
}

TEST(ModRighe, IPuntiMassiviSaltanoILink)
{
    const std::vector<Condizione> aPrima = {
        {"Peso", "c", "1-2", "-", " "},    {"LinkOpen", "L", "", "", ""},   {"Ponte", "P", "1", "", ""},
        {"LinkClose", "L", "1", "", ""},   {"MioLinkato", "x", "", "", ""}, {"lin", "x", "", "", ""},
        {"Cadenze", "C\r\n3", "2", "", ""}};
    GrigliaCondizioni griglia = GrigliaDi(aPrima);
    griglia.Riga(9) = {"linkclose", "x", "", "", ""};
    ApplicaImpostaPunti(griglia, 1, 6, "1-2-3", "4", "7");
    ApplicaImpostaPunti(griglia, 9, 9, "1-2-3", "4", "7");
    EXPECT_EQ(griglia.Riga(9).sPunti, "") << "case does not count";
    for (const std::int32_t nRiga : {2, 4, 5, 7}) {
        EXPECT_EQ(griglia.Riga(nRiga), aPrima[static_cast<std::size_t>(nRiga) - 1]);
    }
    EXPECT_EQ(griglia.Riga(1), (Condizione{"Peso", "c", "1-2-3", "4", "7"}));
    EXPECT_EQ(griglia.Riga(3), (Condizione{"Ponte", "P", "1-2-3", "4", "7"}));
    EXPECT_EQ(griglia.Riga(6), (Condizione{"lin", "x", "1-2-3", "4", "7"}));
    EXPECT_EQ(griglia.Riga(8), Condizione{});
}

TEST(ModRighe, IPuntiMassiviPossonoEssereVuoti)
{
    const std::vector<Condizione> aPrima = {{"Peso", "c", "1-2", "3-4", "5"}};
    GrigliaCondizioni griglia = GrigliaDi(aPrima);
    ApplicaImpostaPunti(griglia, 1, 1, "", "", " ");
    EXPECT_EQ(griglia.Riga(1), (Condizione{"Peso", "c", "", "", " "}));
}

TEST(ModRighe, UnaColonnaDiventaUnaRigaColSuoRecuperoAncheSenzaGruppo)
{
    GrigliaCondizioni griglia;
    const std::vector<ColonnaInGriglia> aColonne = {{NumeriDi({1, 2, 30, 90}), "0-1", "2"},
                                                    {NumeriDi({5, 6, 7, 8, 9}), "", ""}};
    EXPECT_EQ(InserisciColonne(griglia, 3, aColonne, " "), 2);
    EXPECT_EQ(griglia.Riga(2), Condizione{});
    EXPECT_EQ(griglia.Riga(3), (Condizione{"Punti Col.", "01-02-30-90", "0-1", "2", " "}));
    EXPECT_EQ(griglia.Riga(4), (Condizione{"Punti Col.", "05-06-07-08-\r\n09", "", "", " "}));
}

TEST(ModRighe, LeColonneOltreLUltimaRigaSiPerdono)
{
    GrigliaCondizioni griglia;
    const std::vector<ColonnaInGriglia> aColonne(5, {NumeriDi({7}), "1", ""});
    EXPECT_EQ(InserisciColonne(griglia, 1999, aColonne, "3"), 2);
    EXPECT_EQ(griglia.Riga(1998), Condizione{});
    for (const std::int32_t nRiga : {1999, 2000}) {
        EXPECT_EQ(griglia.Riga(nRiga), (Condizione{"Punti Col.", "07", "1", "", "3"}));
    }
    EXPECT_EQ(InserisciColonne(griglia, 1996, aColonne, "4"), 5);
    EXPECT_EQ(griglia.Riga(2000).sQuadro, "4");
    EXPECT_EQ(InserisciColonne(griglia, 2001, aColonne, "5"), 0);
    EXPECT_EQ(InserisciColonne(griglia, 1, {}, "5"), 0);
    EXPECT_EQ(griglia.Riga(2000).sQuadro, "4");
}

TEST(ModRighe, LaRigaZeroDiUnaGrigliaPienaSiScriveSulleIntestazioni)
{
    GrigliaCondizioni griglia;
    const std::vector<ColonnaInGriglia> aColonne(1, {NumeriDi({7}), "1", ""});
    EXPECT_EQ(InserisciColonne(griglia, 0, aColonne, ""), 1);
    EXPECT_EQ(griglia.Riga(0), (Condizione{"Punti Col.", "07", "1", "", ""}));
    EXPECT_EQ(NumeroErrore([&] { static_cast<void>(InserisciColonne(griglia, -1, aColonne, "")); }), 9);
}

TEST(ModRighe, UnaColonnaConNumeriImpossibiliFallisceCon9)
{
    for (const std::int16_t nNumero : {std::int16_t{91}, std::int16_t{-1}}) {
        GrigliaCondizioni griglia;
        const std::vector<ColonnaInGriglia> aColonne = {{NumeriDi({7}), "1", ""},
                                                        {NumeriDi({nNumero}), "1", ""}};
        EXPECT_EQ(NumeroErrore([&] { static_cast<void>(InserisciColonne(griglia, 1, aColonne, "")); }), 9);
        EXPECT_FALSE(griglia.Vuota(1));
        EXPECT_TRUE(griglia.Vuota(2)) << nNumero;
    }
}

TEST(ModRighe, LUltimoEmulatoreDiceQuanteColonne)
{
    GrigliaCondizioni griglia;
    EXPECT_EQ(GetQuantitaColDaEmulareFromGrid(griglia), 0);
    griglia.Riga(1) = {"Emulatore", "[12]\r\nP0)   1 -   2\r\n", "", "", ""};
    EXPECT_EQ(GetQuantitaColDaEmulareFromGrid(griglia), 12);
    griglia.Riga(2000) = {"Emulatore", "[500]", "", "", ""};
    EXPECT_EQ(GetQuantitaColDaEmulareFromGrid(griglia), 500) << "a gap hides nothing";
    griglia.Riga(2000).sCondizione = "emulatore";
    EXPECT_EQ(GetQuantitaColDaEmulareFromGrid(griglia), 500) << "case does not count";
    griglia.Riga(2000).sCondizione = "Emulatori";
    EXPECT_EQ(GetQuantitaColDaEmulareFromGrid(griglia), 12);
}

TEST(ModRighe, LaQuantitaPerdeIlPrimoELUltimoCarattereDellaPrimaRiga)
{
    const std::vector<std::pair<std::string, int>> aCasi = {
        {"", 0},           {"7", 0},   {"78", 0},  {"x7", 0},       {"789", 8},         {"[]", 0},
        {"[007]", 7},      {"[12", 1}, {"12]", 2}, {"\r\n[12]", 0}, {"[12]\n[13]", 12}, {"[ 9 ]", 9},
        {"[32767]", 32767}};
    for (const auto& [sParametri, nAttesa] : aCasi) {
        GrigliaCondizioni griglia;
        griglia.Riga(1) = {"Emulatore", "[99]", "", "", ""};
        griglia.Riga(2) = {"Emulatore", sParametri, "", "", ""};
        EXPECT_EQ(GetQuantitaColDaEmulareFromGrid(griglia), nAttesa) << sParametri;
    }
}

TEST(ModRighe, UnaQuantitaTroppoGrandeFallisceCon6)
{
    GrigliaCondizioni griglia;
    griglia.Riga(1) = {"Emulatore", "[32768]", "", "", ""};
    griglia.Riga(2) = {"Emulatore", "[1]", "", "", ""};
    EXPECT_EQ(NumeroErrore([&] { static_cast<void>(GetQuantitaColDaEmulareFromGrid(griglia)); }), 6);
}

TEST(ModRighe, UnGruppoInUsoRiscriveINumeri)
{
    EXPECT_EQ(ScriviRigaQuadro("2", "5"), "2,5,-1");
    EXPECT_EQ(ScriviRigaQuadro("003", " 010 "), "3,10,-1");
    EXPECT_EQ(ScriviRigaQuadro("5", "2"), "5,2,-1") << "nobody compares them";
    EXPECT_EQ(ScriviRigaQuadro("0", "abc"), "0,0,-1");
    EXPECT_EQ(ScriviRigaQuadro("-0", "2.5"), "0,2.5,-1");
    EXPECT_EQ(ScriviRigaQuadro("100000", "30000000000"), "100000,30000000000,-1");
}

TEST(ModRighe, UnGruppoSenzaMinimoOMassimoNonEInUso)
{
    for (const auto& [sMinimo, sMassimo] :
         std::vector<std::array<std::string, 2>>{{"", ""}, {"2", ""}, {"", "5"}, {"2", "  "}, {" ", "5"}}) {
        EXPECT_EQ(ScriviRigaQuadro(sMinimo, sMassimo), "-1,-1,-0") << sMinimo << '/' << sMassimo;
    }
}

TEST(ModRighe, UnNumeroEnormeRestaTroppoGrandePerChiLoLegge)
{
    const std::string sRiga = ScriviRigaQuadro("1", std::string(400, '9'));
    EXPECT_TRUE(sRiga.ends_with(",-1"));
    std::vector<RecordCondizione> aRecord;
    QuadroRecuperi aQuadro;
    const std::vector<std::string> aRighe = {sRiga};
    EXPECT_EQ(NumeroErrore([&] { LeggiCondizioniDaGriglia(aRecord, {}, aRighe, aQuadro); }), 6);
}

TEST(ModRighe, UnaRigaDelQuadroSiRileggeComeTesto)
{
    EXPECT_EQ(LeggiRigaQuadro("2,5,-1"), (RigaQuadro{"2", "5", true}));
    EXPECT_EQ(LeggiRigaQuadro("-1,-1,-0"), (RigaQuadro{"-1", "-1", false}));
    EXPECT_EQ(LeggiRigaQuadro("03, 4 ,1,resto"), (RigaQuadro{"03", " 4 ", true}));
    EXPECT_EQ(LeggiRigaQuadro(",,"), (RigaQuadro{"", "", false}));
}

TEST(ModRighe, UnaRigaDelQuadroConMenoDiTrePartiFallisceCon9)
{
    for (const char* const sRiga : {"", "2", "2,5", ","}) {
        EXPECT_EQ(NumeroErrore([&] { static_cast<void>(LeggiRigaQuadro(sRiga)); }), 9) << sRiga;
    }
    EXPECT_EQ(NumeroErrore([] { static_cast<void>(LeggiRigaQuadro("1,2,99999")); }), 6);
}

TEST(ModRighe, IRecuperiSiContanoPerGruppo)
{
    GrigliaCondizioni griglia;
    const std::array<const char*, 8> aGruppi = {"3", " 03 ", "20", "3x", "", " ", "0", "x"};
    for (std::size_t i = 0; i < aGruppi.size(); ++i) {
        griglia.Riga(static_cast<std::int32_t>(i) + 1).sQuadro = aGruppi[i];
    }
    griglia.Riga(2000).sQuadro = "1";
    ConteggioRecuperi aAttesi;
    aAttesi(0) = 1995; // the others, those without a number included
    aAttesi(1) = 1;
    aAttesi(3) = 3;
    aAttesi(20) = 1;
    EXPECT_EQ(ContaRecuperi(griglia).aElementi, aAttesi.aElementi);
}

TEST(ModRighe, UnGruppoImpossibileFallisce)
{
    const std::vector<std::pair<std::string, int>> aCasi = {
        {"21", 9}, {"-1", 9}, {"20.6", 9}, {"2147483647", 9}, {"9999999999", 6}};
    for (const auto& [sGruppo, nErrore] : aCasi) {
        GrigliaCondizioni griglia;
        griglia.Riga(1700).sQuadro = sGruppo;
        EXPECT_EQ(NumeroErrore([&] { static_cast<void>(ContaRecuperi(griglia)); }), nErrore) << sGruppo;
    }
}

RC_GTEST_PROP(ModRighe, UnaRigaDelQuadroScrittaELettaTieneISuoiValori, ())
{
    const int nMinimo = Tra(0, 32767);
    const int nMassimo = Tra(0, 32767);
    const std::string sZeri(static_cast<std::size_t>(Tra(0, 3)), '0');
    const std::string sRiga = ScriviRigaQuadro(sZeri + std::to_string(nMinimo), std::to_string(nMassimo));
    RC_ASSERT(LeggiRigaQuadro(sRiga) ==
              (RigaQuadro{std::to_string(nMinimo), std::to_string(nMassimo), true}));
    std::vector<RecordCondizione> aRecord;
    QuadroRecuperi aQuadro;
    LeggiCondizioniDaGriglia(aRecord, {}, std::vector<std::string>{sRiga}, aQuadro);
    RC_ASSERT(aQuadro(1).Attiva == kVero);
    RC_ASSERT(aQuadro(1).MinPunti == nMinimo);
    RC_ASSERT(aQuadro(1).MaxPunti == nMassimo);
}

RC_GTEST_PROP(ModRighe, LeColonneInseriteSiCompilanoNeiLoroNumeri, ())
{
    const auto aValori = *rc::gen::unique<std::vector<std::int16_t>>(rc::gen::inRange<std::int16_t>(1, 91));
    const std::vector<ColonnaInGriglia> aColonne = {{NumeriDi(aValori), "0-2", "1"}};
    GrigliaCondizioni griglia;
    RC_ASSERT(InserisciColonne(griglia, 1, aColonne, "4") == 1);
    const RecordCondizione record = prove::Compila(griglia.Riga(1));
    RC_ASSERT(record.Tipo == TipoCondizione::puntiColonna);
    RC_ASSERT(record.IdRecupero == 4);
    for (std::int16_t n = 0; n <= kNumeroMassimo; ++n) {
        const bool bAtteso = std::find(aValori.begin(), aValori.end(), n) != aValori.end();
        RC_ASSERT((record.Numeri[n] != 0) == bAtteso);
    }
}

} // namespace
} // namespace ordavel
