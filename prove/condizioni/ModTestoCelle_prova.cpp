// ModTestoCelle_prova.cpp - the pieces that cells are made of, and the cells with a turn of their own.

#include "condizioni/ModTestoCelle.hpp"

#include "comune/ColonneProva.hpp"
#include "comune/Fallimenti.hpp"
#include "comune/GeneratoriSistema.hpp"
#include "core/ModTesti.hpp"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <array>
#include <string>
#include <string_view>
#include <vector>

namespace ordavel {
namespace {

using enum TipoCondizione;
using prove::FlagDi;
using prove::NumeroErrore;

std::string ParametriDialogo(TipoCondizione tipo, const ValoriDialogo& valori)
{
    return CelleDaDialogo(tipo, valori).sParametri;
}

RecordCondizione RecordDi(TipoCondizione tipo)
{
    RecordCondizione record;
    record.Tipo = tipo;
    return record;
}

std::string ParametriRecord(TipoCondizione tipo, const FlagNumeri& aNumeri)
{
    RecordCondizione record = RecordDi(tipo);
    record.Numeri = aNumeri;
    return CelleDaRecord(record).sParametri;
}

constexpr std::array kConCaselle = {peso,        sommaCadenze,   sommaDecine,
                                    sommaFigure, sommaNumeretti, sommaComplessiva};

TEST(ModTestoCelle, IlTestoVerticaleHaUnaLetteraPerRiga)
{
    EXPECT_EQ(ScriviVerticale("Ponte", 1), "P\r\no\r\nn\r\nt\r\ne");
    EXPECT_EQ(ScriviVerticale("a b", 1), "a\r\n \r\nb");
    const std::string sLink = ScriviVerticale("LinkOpen", 1);
    EXPECT_EQ(Dividi(sLink, "\r\n").size(), 8);
}

TEST(ModTestoCelle, IPezziDelTestoVerticaleHannoLaLunghezzaChiesta)
{
    EXPECT_EQ(ScriviVerticale("", 1), "");
    EXPECT_EQ(ScriviVerticale("abcdef", 3), "abc\r\ndef");
    EXPECT_EQ(ScriviVerticale("abcdefg", 3), "abc\r\ndef\r\ng");
    EXPECT_EQ(ScriviVerticale("ab", 3), "ab");
}

RC_GTEST_PROP(ModTestoCelle, IlTestoVerticaleDivisoTornaComeEra, ())
{
    const auto sTesto = *rc::gen::container<std::string>(rc::gen::inRange(' ', '~'));
    const int nLunghezza = *rc::gen::inRange(1, 15);
    const std::string sVerticale = ScriviVerticale(sTesto, nLunghezza);
    std::string sTornato;
    for (const std::string_view sPezzo : Dividi(sVerticale, kCrLf)) {
        RC_ASSERT(sTornato.size() % static_cast<std::size_t>(nLunghezza) == 0);
        RC_ASSERT(!sPezzo.empty() && sPezzo.size() <= static_cast<std::size_t>(nLunghezza));
        sTornato += sPezzo;
    }
    RC_ASSERT(sTornato == sTesto);
}

TEST(ModTestoCelle, UnisciFlagScriveGliIndiciDaiDueEstremi)
{
    EXPECT_EQ(UnisciFlag(FlagDi({0, 9, 10, 90}), "-", false), "0-9-10-90");
    EXPECT_EQ(UnisciFlag(FlagDi({0, 9, 10, 90}), "-", true), "00-09-10-90");
    EXPECT_EQ(UnisciFlag(FlagDi({7}), "-", false), "7");
    EXPECT_EQ(UnisciFlag(FlagDi({1, 2}), ", ", false), "1, 2");
    EXPECT_EQ(UnisciFlag(FlagNumeri{}, "-", true), "");
}

TEST(ModTestoCelle, UnisciFlagPrendeOgniValoreDiversoDaZero)
{
    const Tabella<std::int16_t, 3, 6> aFlag = {.aElementi = {-1, 0, 256, 1}};
    EXPECT_EQ(UnisciFlag(aFlag, "-", false), "3-5-6");
}

TEST(ModTestoCelle, UnisciValoriScriveIValoriESaltaGliZeri)
{
    const Tabella<std::int16_t, 1, 4> aValori = {.aElementi = {2, 0, 14, -3}};
    EXPECT_EQ(UnisciValori(aValori, "-", false), "2-14--3");
    EXPECT_EQ(UnisciValori(aValori, "-", true), "02-14--03");
    EXPECT_EQ(UnisciValori(aValori, ";", false), "2;14;-3");
    EXPECT_EQ(UnisciValori(Tabella<std::int16_t, 1, 4>{}, "-", true), "");
}

TEST(ModTestoCelle, AllineaTestoRiempieConLaMaschera)
{
    struct Caso {
        std::string_view sValore;
        std::string_view sMaschera;
        bool bDestra;
        std::string_view sAtteso;
    };
    for (const Caso& caso : std::vector<Caso>{{"5", "   ", true, "  5"},
                                              {"5", "   ", false, "5  "},
                                              {" 5 ", "   ", true, "  5"},
                                              {"", "abc", true, "abc"},
                                              {"  ", "abc", false, "abc"},
                                              {"5", "abc", true, "ab5"},
                                              {"5", "abc", false, "5bc"},
                                              {"123", "abc", true, "123"},
                                              {" 1234 ", "abc", false, "1234"},
                                              {"7", "", true, "7"}}) {
        EXPECT_EQ(AllineaTesto(caso.sValore, caso.sMaschera, caso.bDestra), caso.sAtteso)
            << caso.sValore << caso.sMaschera << caso.bDestra;
    }
}

TEST(ModTestoCelle, PuntiColVaACapoOgniQuattroNumeri)
{
    struct Caso {
        FlagNumeri aNumeri;
        std::string_view sAtteso;
    };
    for (const Caso& caso :
         {Caso{FlagDi({}), ""}, Caso{FlagDi({90}), "90"}, Caso{FlagDi({1, 2, 3, 4}), "01-02-03-04"},
          Caso{FlagDi({1, 2, 3, 4, 5}), "01-02-03-04-\r\n05"},
          Caso{FlagDi({1, 2, 3, 4, 10, 20, 30, 40}), "01-02-03-04-\r\n10-20-30-40"},
          Caso{FlagDi({1, 2, 3, 4, 10, 20, 30, 40, 90}), "01-02-03-04-\r\n10-20-30-40-\r\n90"}}) {
        ValoriDialogo valori;
        valori.aNumeri = caso.aNumeri;
        EXPECT_EQ(ParametriDialogo(puntiColonna, valori), caso.sAtteso);
        EXPECT_EQ(ParametriRecord(puntiColonna, caso.aNumeri), caso.sAtteso);
    }
}

TEST(ModTestoCelle, LeCaselleSenzaPosizioniFinisconoConUnRitornoNudo)
{
    for (const TipoCondizione tipo : kConCaselle) {
        EXPECT_EQ(ParametriDialogo(tipo, {}), "Caselle :\r");
        EXPECT_EQ(ParametriRecord(tipo, {}), "Caselle :\r");
    }
}

TEST(ModTestoCelle, LaSequenzaSenzaCateneDiRecuperoNonNeHaLaRiga)
{
    ValoriDialogo valori;
    valori.sSchema = "D";
    valori.sPasso = "1";
    EXPECT_EQ(ParametriDialogo(sequenze, valori), "D\r\nPasso : 1\r\nConsec : ");
    valori.aConsec = FlagDi({0, 10});
    EXPECT_EQ(ParametriDialogo(sequenze, valori), "D\r\nPasso : 1\r\nConsec : 0-10");
    RecordCondizione record = RecordDi(sequenze);
    record.Numeri = {.aElementi = {1, -1}};
    record.Parametro = record.Passo = 1;
    EXPECT_EQ(CelleDaRecord(record).sParametri, "D\r\nPasso : 1\r\nConsec : ");
    record.PuntiOk2(0) = record.PuntiOk2(10) = kVero;
    EXPECT_EQ(CelleDaRecord(record).sParametri, "D\r\nPasso : 1\r\nConsec : 00-10");
}

TEST(ModTestoCelle, LeCateneDiRecuperoRestanoAncheSenzaGruppo)
{
    ValoriDialogo valori;
    valori.sSchema = "PP";
    valori.sPasso = "3";
    valori.aRecupero = valori.aConsecRec = FlagDi({2});
    EXPECT_EQ(CelleDaDialogo(sequenze, valori),
              (Condizione{"Sequenze", "P\r\nP\r\nPasso : 3\r\nConsec : \r\nConsecR : 2", "", "", " "}));
}

TEST(ModTestoCelle, LoSchemaDiUnRecordFinisceConLaLunghezzaOConIlSegno)
{
    RecordCondizione record = RecordDi(sequenze);
    record.Numeri = {.aElementi = {0, 1, 1, 0, -1, 1}};
    record.Parametro = 3;
    EXPECT_EQ(ComponiSequenzaPD(record), "PDD");
    record.Parametro = 6;
    EXPECT_EQ(ComponiSequenzaPD(record), "PDDP");
    for (const int nVuota : {0, -1, -32768}) {
        record.Parametro = static_cast<std::int16_t>(nVuota);
        EXPECT_EQ(ComponiSequenzaPD(record), "") << nVuota;
    }
    record.Numeri = {};
    record.Parametro = 32767;
    EXPECT_EQ(ComponiSequenzaPD(record), std::string(91, 'P'));
}

TEST(ModTestoCelle, PariDispariPrendeLaParolaDalPrimoNumero)
{
    EXPECT_EQ(ParametriRecord(pariDispari, FlagDi({2, 3})), "Pari");
    EXPECT_EQ(ParametriRecord(pariDispari, FlagDi({1, 2})), "Dispari");
    EXPECT_EQ(ParametriRecord(pariDispari, FlagDi({0, 1})), "Pari");
    EXPECT_EQ(ParametriRecord(pariDispari, FlagDi({89, 90})), "Dispari");
}

TEST(ModTestoCelle, PariDispariSenzaNumeriNonHaParola)
{
    EXPECT_EQ(ParametriRecord(pariDispari, {}), "");
}

TEST(ModTestoCelle, LaParolaDiUnRecordEDirettaSoloConParametroUno)
{
    struct Caso {
        TipoCondizione tipo;
        std::string_view sDiretta;
        std::string_view sInversa;
    };
    for (const Caso& caso : {Caso{vortice, "Diretto", "Inverso"}, Caso{simmetrie, "Dirette", "Inverse"},
                             Caso{paralleli, "Dirette", "Inverse"}, Caso{fulcro, "Pari", "Dispari"}}) {
        for (const int nParametro : {-1, 0, 1, 2, 3}) {
            RecordCondizione record = RecordDi(caso.tipo);
            record.Parametro = static_cast<std::int16_t>(nParametro);
            EXPECT_EQ(CelleDaRecord(record).sParametri, nParametro == 1 ? caso.sDiretta : caso.sInversa);
        }
    }
}

TEST(ModTestoCelle, LeFormuleUnisconoTuttiIPuntiESoloIRecuperiPieni)
{
    ValoriDialogo valori;
    valori.aTerna = {"0", "0", "0"};
    EXPECT_EQ(CelleDaDialogo(formule, valori).sPunti, "0-0-0");
    EXPECT_EQ(CelleDaDialogo(formule, valori).sRecupero, "");
    valori.aTernaRec = {"", "0", ""};
    EXPECT_EQ(CelleDaDialogo(formule, valori).sRecupero, "0");
    valori.aTernaRec = {"1", "2", "3"};
    EXPECT_EQ(CelleDaDialogo(formule, valori).sRecupero, "1-2-3");
    EXPECT_EQ(CelleDaDialogo(formule, valori).sQuadro, " ");
}

TEST(ModTestoCelle, LeFormuleDiUnRecordPerdonoLeSezioniAZero)
{
    RecordCondizione record = RecordDi(formule);
    record.PuntiOk2 = {.aElementi = {0, 2, 0, 4}};
    EXPECT_EQ(CelleDaRecord(record).sPunti, "02-04");
    EXPECT_EQ(CelleDaRecord(record).sRecupero, "");
    record.PuntiRec2 = {.aElementi = {0, 0, 0, 10}};
    EXPECT_EQ(CelleDaRecord(record).sRecupero, "10");
}

TEST(ModTestoCelle, LEmulatoreAllineaINumeriInTreBlank)
{
    ValoriDialogo valori;
    EXPECT_EQ(ParametriDialogo(emulatore, valori), "[0]\r\n");
    valori.nColonneEmulate = 1000;
    valori.aLimitiEmulatore = {{"007", " 12"}, {"", "1000"}, {"testo", "3,5"}};
    EXPECT_EQ(ParametriDialogo(emulatore, valori),
              "[1000]\r\nP0)   7 -  12\r\nP1)   0 - 1000\r\nP2)   0 -   3\r\n");
}

TEST(ModTestoCelle, LEmulatoreDiUnRecordHaUndiciRighe)
{
    RecordCondizione record = RecordDi(emulatore);
    record.Parametro = 5;
    record.PuntiOk(0) = 1;
    record.PuntiRec(10) = 300;
    record.IdRecupero = 4;
    const std::string sTesto = TestoEmulatore(record);
    EXPECT_EQ(sTesto, "[5]\r\nP0)   1 -   0\r\nP1)   0 -   0\r\nP2)   0 -   0\r\nP3)   0 -   0\r\n"
                      "P4)   0 -   0\r\nP5)   0 -   0\r\nP6)   0 -   0\r\nP7)   0 -   0\r\n"
                      "P8)   0 -   0\r\nP9)   0 -   0\r\nP10)   0 - 300\r\n");
    EXPECT_EQ(CelleDaRecord(record), (Condizione{"Emulatore", sTesto, "", "", ""}));
}

TEST(ModTestoCelle, CondizioneSuGrigliaFuoriDaiLimitiFallisceCon9)
{
    const std::vector<RecordCondizione> aRecord(2);
    GrigliaCondizioni griglia;
    const auto scrivi = [&](int nRiga, int nIndice) {
        return NumeroErrore([&] { CondizioneSuGriglia(nRiga, nIndice, griglia, aRecord); });
    };
    EXPECT_EQ(scrivi(1, 2), 9);
    EXPECT_EQ(scrivi(1, -1), 9);
    EXPECT_EQ(scrivi(2001, 0), 9);
    EXPECT_EQ(scrivi(-1, 0), 9);
    EXPECT_EQ(scrivi(2000, 1), std::nullopt);
}

} // namespace
} // namespace ordavel
