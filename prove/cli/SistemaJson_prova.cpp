// SistemaJson_prova.cpp - systems from text and to text.

#include "cli/SistemaJson.hpp"

#include "cli/PiattaformaCli.hpp"

#include <gtest/gtest.h>

#include <array>

namespace ordavel::cli {
namespace {

using nlohmann::ordered_json;

/// What is said of a wrong text; empty of a right one.
std::string Rimprovero(std::string_view sJson)
{
    try {
        static_cast<void>(LeggiTestoSistema(sJson));
        return {};
    } catch (const TestoErrato& errore) {
        return errore.what();
    }
}

TEST(LeggiTestoSistema, LeggeTutteLeChiavi)
{
    const TestoSistema testo = LeggiTestoSistema(
        R"({"classe":5,"riduzione":2,"numeri":[90,1],"quadro":["1,2,-1","0,0,0"],"colonne":77,
            "righe":[["Peso","Caselle :\r\n1-2","10-40","-"," "],["Ponte","Ponte","0","",""]]})");
    EXPECT_EQ(testo.nClasse, 5);
    EXPECT_EQ(testo.nRiduzione, 2);
    EXPECT_EQ(testo.aNumeri, (std::vector<std::int16_t>{90, 1}));
    EXPECT_EQ(testo.aQuadro, (std::vector<std::string>{"1,2,-1", "0,0,0"}));
    ASSERT_EQ(testo.aRighe.size(), 2U);
    EXPECT_EQ(testo.aRighe[0], (Condizione{"Peso", "Caselle :\r\n1-2", "10-40", "-", " "}));
    EXPECT_EQ(testo.aRighe[1].sCondizione, "Ponte");
}

TEST(LeggiTestoSistema, BastanoClasseENumeri)
{
    const TestoSistema testo = LeggiTestoSistema(R"({"classe":10,"numeri":[]})");
    EXPECT_EQ(testo.nRiduzione, 0);
    EXPECT_TRUE(testo.aNumeri.empty() && testo.aRighe.empty() && testo.aQuadro.empty());
}

TEST(LeggiTestoSistema, UnAcapoSempliceDiventaQuelloDelleCelle)
{
    const TestoSistema testo =
        LeggiTestoSistema(R"({"classe":5,"numeri":[],"righe":[["Peso","A\nB\r\nC\r","","",""]]})");
    EXPECT_EQ(testo.aRighe.at(0).sParametri, "A\r\nB\r\nC\r");
}

TEST(LeggiTestoSistema, DiceDoveIlTestoNonEJson)
{
    EXPECT_EQ(Rimprovero("{\n  \"classe\": 5,\n  numeri"), "JSON non valido alla riga 3, colonna 5");
    EXPECT_EQ(Rimprovero(""), "JSON non valido alla riga 1, colonna 1");
    EXPECT_EQ(Rimprovero("{\"classe\": 1e999}"), "JSON non valido: un numero è troppo grande");
}

struct CasoErrato {
    const char* sNome;
    const char* sTesto;
    const char* sRimprovero;
};

class TestiErrati : public testing::TestWithParam<CasoErrato> {};

TEST_P(TestiErrati, SiRifiutanoConParoleGiuste)
{
    EXPECT_EQ(Rimprovero(GetParam().sTesto), GetParam().sRimprovero);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Tabella, TestiErrati, testing::ValuesIn(std::to_array<CasoErrato>({
    {"Elenco",         R"([])",                                     R"(serve un oggetto JSON con "classe", "numeri" e "righe")"},
    {"SenzaClasse",    R"({"numeri":[]})",                          R"(manca "classe")"},
    {"SenzaNumeri",    R"({"classe":5})",                           R"(manca "numeri")"},
    {"Chiave",         R"({"classe":5,"numeri":[],"riga":[]})",     R"(chiave sconosciuta "riga")"},
    {"ClasseBassa",    R"({"classe":1,"numeri":[]})",               R"("classe": serve un numero intero da 2 a 10, non 1)"},
    {"ClasseAlta",     R"({"classe":11,"numeri":[]})",              R"("classe": serve un numero intero da 2 a 10, non 11)"},
    {"ClasseOltre",    R"({"classe":18446744073709551615,"numeri":[]})", R"("classe": serve un numero intero da 2 a 10, non 18446744073709551615)"},
    {"ClasseNegativa", R"({"classe":-9223372036854775808,"numeri":[]})", R"("classe": serve un numero intero da 2 a 10, non -9223372036854775808)"},
    {"ClasseRotta",    R"({"classe":5.5,"numeri":[]})",             R"("classe": serve un numero intero da 2 a 10, non 5.5)"},
    {"ClasseElenco",   R"({"classe":[[[5]]],"numeri":[]})",         R"("classe": serve un numero intero da 2 a 10, non un elenco)"},
    {"ClasseOggetto",  R"({"classe":{},"numeri":[]})",              R"("classe": serve un numero intero da 2 a 10, non un oggetto)"},
    {"Riduzione",      R"({"classe":5,"numeri":[],"riduzione":6})", R"("riduzione": serve un numero intero da 0 a 5, non 6)"},
    {"NumeroZero",     R"({"classe":5,"numeri":[0]})",              R"("numeri": serve un numero intero da 1 a 90, non 0)"},
    {"NumeroAlto",     R"({"classe":5,"numeri":[91]})",             R"("numeri": serve un numero intero da 1 a 90, non 91)"},
    {"NumeroDoppio",   R"({"classe":5,"numeri":[7,8,7]})",          R"("numeri": il 7 compare due volte)"},
    {"NumeroTesto",    R"({"classe":5,"numeri":["7"]})",            R"("numeri": serve un numero intero da 1 a 90, non "7")"},
    {"NumeriSolo",     R"({"classe":5,"numeri":7})",                R"("numeri": serve un elenco)"},
    {"RigaCorta",      R"({"classe":5,"numeri":[],"righe":[["Peso"]]})",           "riga 1: servono i cinque testi di una condizione"},
    {"RigaNumero",     R"({"classe":5,"numeri":[],"righe":[["Peso",1,"","",""]]})", "riga 1: serve un testo, non 1"},
    {"RigaTipo",       R"({"classe":5,"numeri":[],"righe":[["Nulla","","","",""]]})", R"(riga 1: condizione sconosciuta "Nulla")"},
    {"QuadroParti",    R"({"classe":5,"numeri":[],"quadro":["1,1,1","1,2"]})",     R"(quadro 2: serve "minimo,massimo,attivo", non "1,2")"},
    {"QuadroParole",   R"({"classe":5,"numeri":[],"quadro":["1,due,3"]})",         R"(quadro 1: serve "minimo,massimo,attivo", non "1,due,3")"},
})), [](const auto& caso) { return std::string(caso.param.sNome); });
// clang-format on

TEST(LeggiTestoSistema, UnTestoLungoSiCitaInBreve)
{
    const std::string sLungo(1000, 'x');
    const std::string sDetto = Rimprovero(R"({"numeri":[],"classe":")" + sLungo + "\"}");
    EXPECT_TRUE(sDetto.ends_with("xxx..."));
    EXPECT_LT(sDetto.size(), 200U);
}

TEST(LeggiTestoSistema, LimitiDegliElenchi)
{
    ordered_json sistema{{"classe", 5}, {"numeri", ordered_json::array()}};
    sistema["quadro"] = ordered_json::array();
    for (int n = 1; n <= kGruppiRecupero; ++n) {
        sistema["quadro"].push_back("-1,-1,-0");
    }
    EXPECT_EQ(LeggiTestoSistema(sistema.dump()).aQuadro.size(), 20U);
    sistema["quadro"].push_back("1,1,1");
    EXPECT_EQ(Rimprovero(sistema.dump()), "\"quadro\": al massimo 20 elementi, non 21");
}

/// A component of its own for each test.
class SistemaDaTesto : public testing::Test {
protected:
    void Leggi(const ordered_json& testo) { Imposta(LeggiTestoSistema(testo.dump()), m_Sistema); }

    ordavel::Ordavel& Sistema() { return m_Sistema; }

private:
    PiattaformaCli m_Desktop{false};
    ordavel::Ordavel m_Sistema{m_Desktop};
};

TEST_F(SistemaDaTesto, QuelloCheSiScriveSiRilegge)
{
    ordered_json testo{
        {"classe", 7},
        {"riduzione", 3},
        {"numeri", {1, 45, 90}},
        {"righe", {{"Peso", "Caselle :\r\n1-2", "10-40", "-", " "}, {"Ponte", "Ponte", "0", "", ""}}},
        {"quadro", {"1,2,-1"}}};
    Leggi(testo);
    testo["colonne"] = 0;
    EXPECT_EQ(ComeJson(Sistema()), testo);
}

TEST_F(SistemaDaTesto, RiduzioneZeroELaVoceVuota)
{
    Leggi({{"classe", 4}, {"numeri", ordered_json::array()}});
    EXPECT_EQ(Sistema().Riduzione(), 0);
    EXPECT_EQ(Sistema().classe(), 4);
}

TEST_F(SistemaDaTesto, LeRigheOccupateArrivanoAllUltimaPiena)
{
    const ordered_json vuota{"", "", "", "", ""};
    const ordered_json piena{"Ponte", "Ponte", "0", "", ""};
    Leggi({{"classe", 5}, {"numeri", {1}}, {"righe", {piena, vuota, piena, vuota}}});
    const auto aRighe = RigheOccupate(Sistema());
    ASSERT_EQ(aRighe.size(), 3U);
    EXPECT_EQ(aRighe[1], Condizione{});
    EXPECT_EQ(aRighe[2].sCondizione, "Ponte");
}

TEST_F(SistemaDaTesto, SenzaRigheNonCeNeSono)
{
    EXPECT_TRUE(RigheOccupate(Sistema()).empty());
}

} // namespace
} // namespace ordavel::cli
