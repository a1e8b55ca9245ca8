// Misure_prova.cpp - every metric of a column by name.

#include "cli/Misure.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <initializer_list>

namespace ordavel::cli {
namespace {

using nlohmann::ordered_json;

ordered_json MisuraDi(std::initializer_list<std::uint8_t> aNumeri)
{
    Colonna colonna;
    std::copy(aNumeri.begin(), aNumeri.end(), colonna.aNumeri.begin());
    return Misura(static_cast<std::int16_t>(aNumeri.size()), colonna);
}

TEST(Misura, LeFormeDellaColonna12358)
{
    const ordered_json misure = MisuraDi({1, 2, 3, 5, 8});
    const ordered_json attese{
        {"SequenzaParita", "DPDDP"}, {"SommaColonna", 19},        {"CalcolaAmpiezza", 7},
        {"CalcolaBaricentro", 4},    {"Baricentro", 3},           {"CalcolaDistanzaMinima", 1},
        {"CalcolaConsecutivi", 2},   {"CalcolaPonte", 1},         {"CalcolaInterruzioni", 2},
        {"CalcolaConsecutiviPD", 1}, {"CalcolaInterruzioniPD", 3}};
    for (const auto& [sNome, attesa] : attese.items()) {
        EXPECT_EQ(misure.at(sNome), attesa) << sNome;
    }
}

TEST(Misura, IDueBaricentriArrotondanoInModoDiverso)
{
    const ordered_json misure = MisuraDi({13, 14}); // mean 13.5
    EXPECT_EQ(misure.at("CalcolaBaricentro"), 14);
    EXPECT_EQ(misure.at("Baricentro"), 13);
}

TEST(Misura, IPuntiSiContanoPerPariEPerDispari)
{
    EXPECT_EQ(MisuraDi({2, 4, 89}).at("ContaPuntiColonna"), (ordered_json{{"Pari", 2}, {"Dispari", 1}}));
}

TEST(Misura, LeSommePrendonoTutteLePosizioni)
{
    const ordered_json misure = MisuraDi({5, 9, 45});
    EXPECT_EQ(misure.at("CalcolaPeso"), 59);
    EXPECT_EQ(misure.at("CalcolaSommaCadenze"), 19);
    EXPECT_EQ(misure.at("CalcolaSommaNumeretti"), 14);
    EXPECT_EQ(misure.at("CalcolaSommaComplessiva"), 33);
}

TEST(Misura, IlVorticeHaPostoEConto)
{
    const ordered_json attesa{{"Diretto", {{"Pos", 2}, {"Vortici", 2}}},
                              {"Inverso", {{"Pos", 4}, {"Vortici", 1}}}};
    EXPECT_EQ(MisuraDi({1, 3, 4, 6, 7, 8}).at("CalcolaVortice"), attesa);
}

TEST(Misura, LeSequenzeDiDueLettere)
{
    const ordered_json scansioni = MisuraDi({1, 2, 3, 4, 5}).at("CalcolaSequenzeScansione"); // D P D P D
    EXPECT_EQ(scansioni.size(), 4U);
    EXPECT_EQ(scansioni.at("DP"), (ordered_json{{"quante", 2}, {"catena", 1}}));
    EXPECT_EQ(scansioni.at("PD"), (ordered_json{{"quante", 2}, {"catena", 1}}));
    EXPECT_EQ(scansioni.at("PP"), (ordered_json{{"quante", 0}, {"catena", 0}}));
}

TEST(Misura, RestiGruppiEPosizioniPerParametro)
{
    const ordered_json misure = MisuraDi({1, 2, 3, 7, 8});
    EXPECT_EQ(misure.at("Resto"),
              (ordered_json{{"2", 1}, {"3", 0}, {"4", 1}, {"5", 1}, {"6", 3}, {"7", 0}, {"8", 5}, {"9", 3}}));
    EXPECT_EQ(misure.at("CalcolaGruppiDiConsecutivi"),
              (ordered_json{{"2", 1}, {"3", 1}, {"4", 0}, {"5", 0}}));
    EXPECT_EQ(misure.at("Posizioni"), (ordered_json{{"1", 1}, {"2", 2}, {"3", 3}, {"4", 7}, {"5", 8}}));
    EXPECT_EQ(misure.at("CalcolaFormule"), (ordered_json{5, 0, 0}));
}

TEST(Misura, UnNumeroSoloNonHaGruppi)
{
    const ordered_json misure = MisuraDi({9});
    EXPECT_EQ(misure.at("CalcolaGruppiDiConsecutivi"), ordered_json::object());
    EXPECT_EQ(misure.at("CalcolaDistanzaMinima"), 1000);
    EXPECT_EQ(misure.at("CalcolaFulcro"), (ordered_json{{"Pari", 0}, {"Dispari", 1}}));
}

} // namespace
} // namespace ordavel::cli
