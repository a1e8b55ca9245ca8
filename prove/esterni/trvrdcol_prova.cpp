// trvrdcol_prova.cpp - the module from outside: its symbols, its promise, its failures, its stop.

#include "RiduzioneProva.hpp"
#include "comune/SenzaPrivilegi.hpp"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <atomic>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <sstream>
#include <thread>

namespace ordavel::prove {
namespace {

class Trvrdcol : public testing::Test {
protected:
    /// Reduces columns and hands back the output.
    FileColonne Ridotte(const FileColonne& aInput, std::int32_t nPunti)
    {
        ScriviColonne(m_Cartella / "da.col", aInput);
        EXPECT_EQ(m_Modulo.Riduci(m_Cartella / "da.col", m_Cartella / "a.col", nPunti), 0);
        return LeggiTutte(m_Cartella / "a.col");
    }

    CartellaProva m_Cartella;
    ModuloRiduzione m_Modulo;
};

/// What a command prints.
std::string Stampa(const std::string& sComando)
{
    struct Chiudi {
        void operator()(std::FILE* file) const { pclose(file); }
    };
    const std::unique_ptr<std::FILE, Chiudi> tubo(popen(sComando.c_str(), "r"));
    std::string sTutto;
    std::array<char, 256> aByte{};
    while (tubo && std::fgets(aByte.data(), aByte.size(), tubo.get()) != nullptr) {
        sTutto += aByte.data();
    }
    return sTutto;
}

} // namespace

TEST(TrvrdcolSimboli, ThreeFunctionsAndNothingElse)
{
    std::istringstream righe(Stampa("nm -D --defined-only " ORDAVEL_TRVRDCOL));
    std::set<std::string> aNomi;
    for (std::string sIndirizzo, sTipo, sNome; righe >> sIndirizzo >> sTipo >> sNome;) {
        aNomi.insert(sTipo.append(" ").append(sNome));
    }
    EXPECT_EQ(aNomi, (std::set<std::string>{"T GetPercProgRiduzione", "T RiduzioneColonneDll",
                                            "T StopRiduzioneDll"}));
}

TEST_F(Trvrdcol, WithoutTimeItIsACoverNotLargerThanTheGreedyOne)
{
    const SecondiConcessi secondi("0");
    const bool bTutte = rc::check("every form of file", [&] {
        const auto forma = static_cast<eForma>(*rc::gen::inRange(0, kForme));
        const auto nSeme = *rc::gen::arbitrary<std::uint32_t>();
        const FileColonne aInput = FileACaso(forma, nSeme);
        const auto nClasse = static_cast<int>(ClasseDi(aInput));
        const auto nPunti = *rc::gen::inRange(-1, nClasse + 2);
        const FileColonne aOutput = Ridotte(aInput, nPunti);
        RC_ASSERT(Difetto(aInput, aOutput, nPunti) == "");
        RC_ASSERT(aOutput.size() <= QuanteAvido(aInput, nPunti));
    });
    EXPECT_TRUE(bTutte);
}

TEST_F(Trvrdcol, WithTimeItIsACoverNotLargerThanTheGreedyOne)
{
    const SecondiConcessi secondi("0.1");
    for (int n = 0; n < 3 * kForme; ++n) {
        const FileColonne aInput = FileACaso(static_cast<eForma>(n % kForme), static_cast<std::uint32_t>(n));
        const int nPunti = std::max(1, static_cast<int>(ClasseDi(aInput)) - 1 - n / kForme);
        const FileColonne aOutput = Ridotte(aInput, nPunti);
        EXPECT_EQ(Difetto(aInput, aOutput, nPunti), "") << n;
        EXPECT_LE(aOutput.size(), QuanteAvido(aInput, nPunti)) << n;
    }
}

TEST_F(Trvrdcol, ASecondOnAllSixesOfTenIsACoverNotLargerThanTheGreedyOne)
{
    const SecondiConcessi secondi("1");
    const FileColonne aInput = TutteLeColonne(10, 6);
    const FileColonne aOutput = Ridotte(aInput, 5);
    EXPECT_EQ(Difetto(aInput, aOutput, 5), "");
    EXPECT_LE(aOutput.size(), QuanteAvido(aInput, 5));
}

TEST_F(Trvrdcol, NearlyAllColumnsAreCoveredByColumnsThatAreThere)
{
    const SecondiConcessi secondi("1");
    FileColonne aInput = TutteLeColonne(9, 5);
    std::mt19937 sorte(5);
    std::ranges::shuffle(aInput, sorte);
    aInput.resize(aInput.size() - 11);
    const FileColonne aOutput = Ridotte(aInput, 4);
    EXPECT_EQ(Difetto(aInput, aOutput, 4), "");
    EXPECT_LE(aOutput.size(), QuanteAvido(aInput, 4));
}

TEST_F(Trvrdcol, NoPointsNeedOneColumnAndTooManyNeedAll)
{
    const SecondiConcessi secondi("0");
    const FileColonne aInput{{1, 2, 3}, {4, 5, 6}, {4, 5, 6}};
    EXPECT_EQ(Ridotte(aInput, 0), FileColonne{aInput[0]});
    EXPECT_EQ(Ridotte(aInput, -2147483647 - 1), FileColonne{aInput[0]});
    EXPECT_EQ(Ridotte(aInput, 3), (FileColonne{aInput[0], aInput[1]}));
    EXPECT_EQ(Ridotte(aInput, 4), aInput);
    EXPECT_EQ(Ridotte(aInput, 2147483647), aInput);
    EXPECT_EQ(Ridotte({}, 0), FileColonne{});
    EXPECT_EQ(Ridotte({}, 5), FileColonne{});
}

TEST_F(Trvrdcol, AFirstColumnOfZerosLeavesEverything)
{
    const FileColonne aInput{{}, {1, 2, 3}, {1, 2, 3}};
    EXPECT_EQ(Ridotte(aInput, 1), aInput);
    EXPECT_EQ(Ridotte(aInput, 0).size(), 1U);
}

TEST_F(Trvrdcol, NumbersBehindTheClassOfTheFirstColumnDoNotCount)
{
    const SecondiConcessi secondi("0");
    const FileColonne aInput{{1, 2, 3}, {4, 5, 6, 1, 2, 3}, {1, 2, 9, 4, 5, 6}};
    EXPECT_EQ(Ridotte(aInput, 2).size(), 2U);
}

TEST_F(Trvrdcol, OutputMayTakeThePlaceOfTheInput)
{
    const SecondiConcessi secondi("0");
    const FileColonne aInput = TutteLeColonne(8, 4);
    ScriviColonne(m_Cartella / "x.col", aInput);
    EXPECT_EQ(m_Modulo.Riduci(m_Cartella / "x.col", m_Cartella / "x.col", 3), 0);
    const FileColonne aOutput = LeggiTutte(m_Cartella / "x.col");
    EXPECT_LT(aOutput.size(), aInput.size());
    EXPECT_EQ(Difetto(aInput, aOutput, 3), "");
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(m_Cartella / ""), {}), 1);
}

TEST_F(Trvrdcol, TheLengthOfTheInputIsRoundedToColumns)
{
    const SecondiConcessi secondi("0");
    const std::string sUna(20, '\1');
    const auto quante = [&](const std::string& sByte) {
        ScriviFile(m_Cartella / "da.col", sByte);
        EXPECT_EQ(m_Modulo.Riduci(m_Cartella / "da.col", m_Cartella / "a.col", 21), 0);
        return LeggiTutte(m_Cartella / "a.col").size();
    };
    EXPECT_EQ(quante(sUna + sUna + "123456789"), 2U);
    EXPECT_EQ(quante(sUna + sUna + "1234567890"), 2U);
    EXPECT_EQ(quante(sUna + "1234567890"), 2U);
    EXPECT_EQ(quante("1234567890"), 0U);
    EXPECT_EQ(quante("12345678901"), 1U);
}

TEST_F(Trvrdcol, FailuresHaveTheirNumbersAndLeaveTheOutputAlone)
{
    const SecondiConcessi secondi("0");
    const std::string sDa = m_Cartella / "da.col";
    const std::string sA = m_Cartella / "a.col";
    ScriviFile(sA, "vecchio");
    EXPECT_EQ(m_Modulo.Riduci(sDa, sA, 2), 53);
    EXPECT_EQ(m_Modulo.Riduci(m_Cartella / "", sA, 2), 75);
    ScriviColonne(sDa, {{1, 2, 3}});
    EXPECT_EQ(m_Modulo.Riduci(sDa, m_Cartella / "", 2), 75);
    EXPECT_EQ(m_Modulo.Riduci(sDa, m_Cartella / "manca/a.col", 2), 76);
    EXPECT_EQ(LeggiFile(sA), "vecchio");
    EXPECT_GE(m_Modulo.Percentuale(), 0);
    EXPECT_LE(m_Modulo.Percentuale(), 100);
}

TEST_F(Trvrdcol, AnOutputThatMayNotBeWrittenStays)
{
    const SecondiConcessi secondi("0");
    const std::string sDa = m_Cartella / "da.col";
    const std::string sA = m_Cartella / "a.col";
    ScriviColonne(sDa, {{1, 2, 3}});
    ScriviFile(sA, "vecchio");
    std::filesystem::permissions(sA, std::filesystem::perms(0444));
    int nNumero = 0;
    {
        const SenzaPrivilegi io;
        ASSERT_TRUE(io.Riuscito());
        nNumero = m_Modulo.Riduci(sDa, sA, 2);
    }
    EXPECT_EQ(nNumero, 70);
    EXPECT_EQ(LeggiFile(sA), "vecchio");
}

TEST_F(Trvrdcol, NothingGivenIsAnArgumentFailure)
{
    const auto riduci = [this](const char** psDa, const char** psA, const std::int32_t* pnPunti) {
        void* const modulo = dlopen(ORDAVEL_TRVRDCOL, RTLD_NOW);
        decltype(&RiduzioneColonneDll) funzione = nullptr;
        void* const simbolo = dlsym(modulo, "RiduzioneColonneDll");
        std::memcpy(&funzione, &simbolo, sizeof simbolo);
        const int nNumero = funzione(psDa, psA, pnPunti);
        dlclose(modulo);
        return nNumero;
    };
    const char* sNiente = nullptr;
    const std::int32_t nPunti = 1;
    EXPECT_EQ(riduci(nullptr, nullptr, nullptr), 5);
    EXPECT_EQ(riduci(&sNiente, &sNiente, &nPunti), 5);
}

TEST_F(Trvrdcol, AStopAtAnyMomentLeavesACover)
{
    const SecondiConcessi secondi("20");
    const FileColonne aInput = TutteLeColonne(12, 6);
    std::mt19937 sorte(3);
    for (int n = 0; n < 8; ++n) {
        std::atomic<bool> bFinita{false};
        std::thread fermata([&] {
            std::this_thread::sleep_for(std::chrono::microseconds(sorte() % (n % 2 == 0 ? 300000 : 5000)));
            while (!bFinita) { // a stop before the start would be lost
                m_Modulo.Ferma();
                const std::int16_t nPercentuale = m_Modulo.Percentuale();
                EXPECT_TRUE(nPercentuale >= 0 && nPercentuale <= 100) << nPercentuale;
                std::this_thread::yield();
            }
        });
        const FileColonne aOutput = Ridotte(aInput, 5);
        bFinita = true;
        fermata.join();
        EXPECT_EQ(Difetto(aInput, aOutput, 5), "");
        EXPECT_EQ(m_Modulo.Percentuale(), 100);
    }
}

TEST_F(Trvrdcol, AStopWithoutAReductionDoesNothing)
{
    const SecondiConcessi secondi("0");
    const FileColonne aInput = TutteLeColonne(9, 4);
    const FileColonne aPrima = Ridotte(aInput, 3);
    m_Modulo.Ferma();
    EXPECT_EQ(Ridotte(aInput, 3), aPrima);
}

TEST_F(Trvrdcol, ASecondReductionMeanwhileIsRefused)
{
    const SecondiConcessi secondi("20");
    ScriviColonne(m_Cartella / "grande.col", TutteLeColonne(13, 6));
    ScriviColonne(m_Cartella / "piccolo.col", {{1, 2, 3}});
    std::thread lunga([&] {
        int nNumero = 70;
        while (nNumero == 70) { // the small one may have come first
            nNumero = m_Modulo.Riduci(m_Cartella / "grande.col", m_Cartella / "g.col", 5);
        }
        EXPECT_EQ(nNumero, 0);
    });
    int nNumero = 0;
    while (nNumero == 0) { // until the large one runs
        nNumero = m_Modulo.Riduci(m_Cartella / "piccolo.col", m_Cartella / "p.col", 2);
    }
    m_Modulo.Ferma();
    lunga.join();
    EXPECT_EQ(nNumero, 70);
}

} // namespace ordavel::prove
