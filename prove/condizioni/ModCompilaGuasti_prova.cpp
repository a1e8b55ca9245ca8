// ModCompilaGuasti_prova.cpp - rows and their order, names, the board, what fails, links.

#include "comune/Fallimenti.hpp"
#include "comune/GeneratoriSistema.hpp"
#include "condizioni/ModCompila.hpp"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <optional>
#include <string>
#include <vector>

namespace ordavel {
namespace {

using enum TipoCondizione;
using prove::Compila;
using prove::GrigliaDi;
using prove::NumeroErrore;

std::optional<int> ErroreDi(const Condizione& celle)
{
    return NumeroErrore([&celle] { static_cast<void>(Compila(celle)); });
}

QuadroRecuperi CompilaQuadro(const std::vector<std::string>& aRighe)
{
    std::vector<RecordCondizione> aRecord;
    QuadroRecuperi aQuadro;
    aQuadro(0) = aQuadro(20) = {.Attiva = 9, .MinPunti = 9, .MaxPunti = 9};
    LeggiCondizioniDaGriglia(aRecord, {}, aRighe, aQuadro);
    return aQuadro;
}

std::vector<TipoCondizione> Tipi(const std::vector<RecordCondizione>& aRecord)
{
    std::vector<TipoCondizione> aTipi;
    for (const RecordCondizione& record : aRecord) {
        aTipi.push_back(record.Tipo);
    }
    return aTipi;
}

std::vector<RecordCondizione> RecordDi(const std::vector<TipoCondizione>& aTipi)
{
    std::vector<RecordCondizione> aRecord(aTipi.size());
    for (std::size_t i = 0; i < aTipi.size(); ++i) {
        aRecord[i].Tipo = aTipi[i];
    }
    return aRecord;
}

/// The text of n equal parts with a separator between them.
std::string Ripetuto(const std::string& sParte, const std::string& sSep, int nVolte)
{
    std::string sTesto = sParte;
    for (int i = 1; i < nVolte; ++i) {
        sTesto += sSep + sParte;
    }
    return sTesto;
}

TEST(ModCompila, RigaVuotaNascondeLeSeguenti)
{
    for (const char* sVuota : {"", " ", "   "}) {
        EXPECT_EQ(Tipi(Compila(std::vector<Condizione>{
                      {"Ponte", "", "", "", ""}, {sVuota, "x", "1", "", ""}, {"Peso", "", "", "", ""}})),
                  (std::vector{ponte}));
    }
}

TEST(ModCompila, UnaGrigliaSenzaCondizioniDaUnRecordAZero)
{
    std::vector<RecordCondizione> aRecord(3);
    aRecord[0].Tipo = peso;
    QuadroRecuperi aQuadro;
    LeggiCondizioniDaGriglia(aRecord, {}, {}, aQuadro);
    EXPECT_EQ(aRecord, std::vector<RecordCondizione>(1));
}

TEST(ModCompila, UnNomeIgnotoLasciaUnRecordAZeroESiProsegue)
{
    const auto aRecord = Compila(std::vector<Condizione>{
        {"Ponte", "", "1", "", ""}, {"Pontile", "Pari", "99", "99", "7"}, {"Peso", "", "1-2", "", ""}});
    EXPECT_EQ(Tipi(aRecord), (std::vector{ponte, nessuno, peso}));
    EXPECT_EQ(aRecord[1], RecordCondizione{});
}

TEST(ModCompila, NelNomeContanoLeMaiuscoleENonIBlankAttorno)
{
    for (const VoceCatalogo& voce : Catalogo()) {
        const std::string sChiave(voce.sChiave);
        EXPECT_EQ(Compila({"  " + sChiave + " ", "", "", "", ""}).Tipo, voce.Tipo) << sChiave;
        std::string sAltra = sChiave;
        sAltra.back() = static_cast<char>(sAltra.back() ^ 0x20);
        EXPECT_EQ(Compila({sAltra, "", "", "", ""}), RecordCondizione{}) << sAltra;
    }
    EXPECT_EQ(Compila({"Ponte\t", "", "", "", ""}).Tipo, nessuno);
    EXPECT_EQ(Compila({"PuntiCol.", "", "", "", ""}).Tipo, nessuno);
}

TEST(ModCompila, DuemilaRigheSiCompilanoTutte)
{
    const std::vector<Condizione> aRighe(2000, {"Resto", "Resto a : 3", "1", "", ""});
    const auto aRecord = Compila(aRighe);
    ASSERT_EQ(aRecord.size(), 2000);
    EXPECT_EQ(aRecord.front().Parametro, 3);
    EXPECT_EQ(aRecord.back(), aRecord.front());
}

TEST(ModCompila, OgniRigaDelQuadroVaNelSuoGruppo)
{
    std::vector<std::string> aRighe(20, "-1,-1,-0");
    aRighe[0] = "2,5,-1";
    aRighe[1] = " 03 , 4x,1,7";
    aRighe[19] = "0.5,1.5,2.5";
    QuadroRecuperi aAtteso;
    for (int i = 1; i <= 20; ++i) {
        aAtteso(i) = {.Attiva = 0, .MinPunti = -1, .MaxPunti = -1};
    }
    aAtteso(1) = {.Attiva = -1, .MinPunti = 2, .MaxPunti = 5};
    aAtteso(2) = {.Attiva = 1, .MinPunti = 3, .MaxPunti = 4};
    aAtteso(20) = {.Attiva = 2, .MinPunti = 0, .MaxPunti = 2};
    EXPECT_EQ(CompilaQuadro(aRighe), aAtteso);
}

TEST(ModCompila, UnQuadroSenzaRigheTornaAZero)
{
    EXPECT_EQ(CompilaQuadro({}), QuadroRecuperi{});
}

TEST(ModCompila, UnQuadroSbagliatoFallisce)
{
    const auto errore = [](const std::vector<std::string>& aRighe) {
        return NumeroErrore([&aRighe] { static_cast<void>(CompilaQuadro(aRighe)); });
    };
    EXPECT_EQ(errore(std::vector<std::string>(20, "1,2,-1")), std::nullopt);
    EXPECT_EQ(errore(std::vector<std::string>(21, "1,2,-1")), 9);
    EXPECT_EQ(errore({"1,2"}), 9);
    EXPECT_EQ(errore({"1,2,-1", ""}), 9);
    EXPECT_EQ(errore({"-"}), 9);
    EXPECT_EQ(errore({",,"}), std::nullopt);
    for (const char* sRiga : {"32768,0,0", "0,-32769,0", "0,0,1e9"}) {
        EXPECT_EQ(errore({sRiga}), 6) << sRiga;
    }
    EXPECT_EQ(errore({"32767,-32768,32767.4"}), std::nullopt);
}

TEST(ModCompila, UnIndiceFuoriDallaSuaTabellaFallisceCon9)
{
    const std::string sSchema90 = Ripetuto("D", "\r\n", 90);
    for (const Condizione& celle :
         std::vector<Condizione>{{"Ponte", "", "11", "", ""},
                                 {"Ponte", "", "", "11", ""},
                                 {"Ponte", "", "1-2-10.6", "", ""},
                                 {"Ponte", "", "1\r\n1", "", ""},
                                 {"Punti Col.", "01-91", "", "", ""},
                                 {"Peso", "Caselle :\r\n91", "", "", ""},
                                 {"SommaComplessiva", "x\r\n1-2000000000", "", "", ""},
                                 {"LinkClose", "", "0-91", "", ""},
                                 {"Sequenze", "P\r\nPasso : 1\r\nConsec : 11", "", "", ""},
                                 {"Sequenze", "P\r\nPasso : 1\r\nConsec : 1\r\nConsecR : 11", "", "", ""},
                                 {"Sequenze", sSchema90 + "\r\nD", "", "", ""},
                                 {"Sequenze", sSchema90 + "\r\nx\r\nD", "", "", ""},
                                 {"Formule", "", Ripetuto("1", "-", 11), "", ""},
                                 {"Formule", "", "", Ripetuto("", "-", 11), ""},
                                 {"Emulatore", "[1]\r\nP0)", "", "", ""},
                                 {"Emulatore", "[1]\r\nP0) 5", "", "", ""},
                                 {"Emulatore", "[1]\r\nP0)   1 -   3\r\n)", "", "", ""},
                                 {"Emulatore", "[1]\r\n" + Ripetuto("P)1-3", "\r\n", 12), "", "", ""},
                                 {"Emulatore", "[1]" + Ripetuto("", "\r\n", 13) + "P)1-3", "", "", ""}}) {
        EXPECT_EQ(ErroreDi(celle), 9) << celle;
    }
}

TEST(ModCompila, LUltimoIndiceDiOgniTabellaSiPrende)
{
    EXPECT_EQ(Compila({"Ponte", "", "10", "10.5", ""}).PuntiRec(10), -1);
    EXPECT_EQ(Compila({"Punti Col.", "0-90", "", "", ""}).Numeri(90), -1);
    EXPECT_EQ(Compila({"LinkClose", "", "90", "", ""}).Numeri(90), -1);
    EXPECT_EQ(Compila({"Formule", "", Ripetuto("7", "-", 10), "", ""}).PuntiOk2(10), 7);
    const RecordCondizione schema = Compila({"Sequenze", Ripetuto("D", "\r\n", 90), "", "", ""});
    EXPECT_EQ(schema.Parametro, 90);
    EXPECT_EQ(schema.Numeri(89), 1);
    EXPECT_EQ(schema.Numeri(90), -1);
    const RecordCondizione undici =
        Compila({"Emulatore", "[1]\r\n" + Ripetuto("P)1-3", "\r\n", 11), "", "", ""});
    EXPECT_EQ(undici.PuntiOk(10), 1);
    EXPECT_EQ(undici.PuntiRec(10), 3);
}

TEST(ModCompila, UnNumeroTroppoGrandeFallisceCon6)
{
    for (const Condizione& celle :
         std::vector<Condizione>{{"Ponte", "", "9999999999", "", ""},
                                 {"Ponte", "", "1e400", "", ""},
                                 {"Ponte", "", "", "", "32768"},
                                 {"Ponte", "", "", "", "-32769"},
                                 {"Resto", "Resto a : 40000", "", "", ""},
                                 {"Posizioni", "Casella :\r\n40000", "", "", ""},
                                 {"Consecutivi", "Passo : 40000", "", "", ""},
                                 {"GruppiDiConsecutivi", "GruppoDa : 40000\r\nPasso : 1", "", "", ""},
                                 {"GruppiDiConsecutivi", "GruppoDa : 1\r\nPasso : 40000", "", "", ""},
                                 {"Sequenze", "P\r\nPasso : 40000", "", "", ""},
                                 {"Peso", "", "0-2147483648", "", ""},
                                 {"Peso", "", "", "3000000000-0", ""},
                                 {"Formule", "", "40000", "", ""},
                                 {"Formule", "", "", "40000", ""},
                                 {"Emulatore", "[40000]", "", "", ""},
                                 {"Emulatore", "[1]\r\nP0)40000-1", "", "", ""},
                                 {"Emulatore", "[1]\r\nP0)1-32767.5", "", "", ""}}) {
        EXPECT_EQ(ErroreDi(celle), 6) << celle;
    }
}

TEST(ModCompila, CioCheUnTipoNonLeggeNonFallisce)
{
    for (const Condizione& celle : std::vector<Condizione>{{"LinkOpen", "99", "99", "99", "99999"},
                                                           {"LinkClose", "99", "1", "99", "99999"},
                                                           {"Emulatore", "[1]", "99", "99", "99999"},
                                                           {"Ponte", "Passo : 99999", "1", "1", "1"},
                                                           {"Formule", "99", "99", "99", "1"},
                                                           {"Ampiezza", "99", "99", "1-2-99999999999", "1"},
                                                           {"Inesistente", "99", "99", "99", "99999"}}) {
        EXPECT_EQ(ErroreDi(celle), std::nullopt) << celle;
    }
}

TEST(ModCompila, ISoliRecuperiDelleSequenzeSiEstendono)
{
    RecordCondizione record;
    record.Tipo = sequenze;
    record.PuntiOk(0) = record.PuntiOk(10) = record.PuntiOk2(3) = 1;
    record.PuntiRec(5) = record.PuntiRec2(10) = kVero;
    std::vector<RecordCondizione> aRecord(38, record);
    for (int nTipo = 0; nTipo <= 37; ++nTipo) {
        aRecord[static_cast<std::size_t>(nTipo)].Tipo = static_cast<TipoCondizione>(nTipo);
    }
    auto aAttesi = aRecord;
    RecordCondizione& estesa = aAttesi[17];
    estesa.PuntiRec(0) = estesa.PuntiRec(10) = estesa.PuntiRec2(3) = kVero;
    EstendiRecuperiSequenze(aRecord);
    EXPECT_EQ(aRecord, aAttesi);
}

TEST(ModCompila, ILinkApertiEChiusiSonoCoerenti)
{
    struct Caso {
        std::vector<TipoCondizione> aTipi;
        bool bCoerenti;
    };
    for (const Caso& caso : std::vector<Caso>{{{}, true},
                                              {{nessuno, peso}, true},
                                              {{linkOpen, linkClose}, true},
                                              {{linkOpen, peso, linkOpen, peso, linkClose, linkClose}, true},
                                              {{linkOpen, linkClose, linkOpen, linkClose}, true},
                                              {{linkOpen}, false},
                                              {{linkClose}, false},
                                              {{linkClose, linkOpen}, false},
                                              {{linkOpen, linkOpen, linkClose}, false},
                                              {{linkOpen, linkClose, linkClose, linkOpen}, false}}) {
        EXPECT_EQ(LinkCoerenti(RecordDi(caso.aTipi)), caso.bCoerenti) << caso.aTipi.size();
    }
}

/// The definition, word by word: passes over the list until one changes nothing.
bool LinkCoerentiPerDefinizione(std::vector<TipoCondizione> aTipi)
{
    for (bool bCambiato = true; bCambiato;) {
        bCambiato = false;
        for (std::size_t i = 0; i < aTipi.size(); ++i) {
            std::size_t j = aTipi[i] == linkClose ? i : 0;
            while (j > 0 && aTipi[j - 1] != linkOpen) {
                --j;
            }
            if (j > 0) {
                aTipi[i] = aTipi[j - 1] = nessuno;
                bCambiato = true;
            }
        }
    }
    return std::none_of(aTipi.begin(), aTipi.end(),
                        [](TipoCondizione tipo) { return tipo == linkOpen || tipo == linkClose; });
}

RC_GTEST_PROP(ModCompila, ICoerentiSonoQuelliDellaDefinizione, ())
{
    const auto aTipi = *rc::gen::resize(
        10, rc::gen::container<std::vector<TipoCondizione>>(rc::gen::element(linkOpen, linkClose, peso)));
    const bool bAttesa = LinkCoerentiPerDefinizione(aTipi);
    RC_CLASSIFY(bAttesa);
    RC_ASSERT(LinkCoerenti(RecordDi(aTipi)) == bAttesa);
}

TEST(ModCompila, UnaCondizioneSiTrovaInOgniRigaSenzaBadareAlleMaiuscole)
{
    GrigliaCondizioni griglia = GrigliaDi(std::vector<Condizione>{{"Peso", "", "", "", ""}});
    griglia.Riga(2000).sCondizione = "Emulatore";
    EXPECT_TRUE(IsCondizionePresente(griglia, "Peso"));
    EXPECT_TRUE(IsCondizionePresente(griglia, "EMULATORE"));
    for (const char* sAssente : {"Ponte", "Pes", "Peso ", "Condizione"}) {
        EXPECT_FALSE(IsCondizionePresente(griglia, sAssente)) << sAssente;
    }
    griglia.Riga(2000).sCondizione = " Emulatore";
    EXPECT_FALSE(IsCondizionePresente(griglia, "Emulatore"));
}

} // namespace
} // namespace ordavel
