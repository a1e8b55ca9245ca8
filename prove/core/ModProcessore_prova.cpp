// ModProcessore_prova.cpp - which form of a loop runs, by name and by the environment.

#include "core/ModProcessore.hpp"

#include "comune/Fallimenti.hpp"

#include <gmock/gmock.h>

#include <cstdlib>
#include <string>

namespace ordavel {
namespace {

using prove::NumeroErrore;

/// What the failure of a wrong name says.
std::string Descrizione(std::string_view sNome, eNucleo massimo)
{
    try {
        return "nessun errore: " + std::string(NomeNucleo(NucleoDi(sNome, massimo)));
    } catch (const Errore& errore) {
        return errore.Descrizione();
    }
}

TEST(ModProcessore, OgniNomeIndicaIlSuoNucleo)
{
    for (std::size_t n = 0; n < kNomiNuclei.size(); ++n) {
        const auto nucleo = static_cast<eNucleo>(n);
        EXPECT_EQ(NomeNucleo(nucleo), kNomiNuclei[n]);
        EXPECT_EQ(NucleoDi(kNomiNuclei[n], eNucleo::avx512), nucleo);
        EXPECT_EQ(NucleoDi(kNomiNuclei[n], nucleo), nucleo);
    }
    EXPECT_EQ(NomeNucleo(eNucleo::comune), "comune");
    EXPECT_EQ(NomeNucleo(eNucleo::avx2), "avx2");
    EXPECT_EQ(NomeNucleo(eNucleo::avx512), "avx512");
}

TEST(ModProcessore, IlNomeVuotoEIlPiuLargo)
{
    EXPECT_EQ(NucleoDi("", eNucleo::avx2), eNucleo::avx2);
    EXPECT_EQ(NucleoDi("", eNucleo::comune), eNucleo::comune);
}

TEST(ModProcessore, UnNomeSconosciutoEUnFallimento)
{
    EXPECT_EQ(NumeroErrore([] { static_cast<void>(NucleoDi("pippo", eNucleo::avx512)); }), 5);
    EXPECT_EQ(Descrizione("pippo", eNucleo::avx512),
              "Argomento non valido: ORDAVEL_NUCLEO vale \"pippo\"; può valere comune, avx2, avx512");
    for (const char* sNome : {"AVX2", "comune ", "avx", "avx5120"}) {
        EXPECT_EQ(NumeroErrore([sNome] { static_cast<void>(NucleoDi(sNome, eNucleo::avx512)); }), 5) << sNome;
    }
}

TEST(ModProcessore, UnNucleoCheIlProcessoreNonHaEUnFallimento)
{
    EXPECT_EQ(Descrizione("avx512", eNucleo::avx2),
              "Argomento non valido: ORDAVEL_NUCLEO vale \"avx512\", che questo "
              "processore non ha; può valere comune, avx2");
    EXPECT_EQ(NumeroErrore([] { static_cast<void>(NucleoDi("avx2", eNucleo::comune)); }), 5);
}

/// The environment is read once a process: each of these is one of its own, which ends with the number of the form, or
/// with 100 when the choice failed three times in the same way.
class AmbienteNucleo : public testing::Test {
protected:
    AmbienteNucleo() { GTEST_FLAG_SET(death_test_style, "threadsafe"); }

    [[noreturn]] static void Chiedi(const char* sPrima, const char* sPoi)
    {
        setenv(kVariabileNucleo, sPrima, 1); // NOLINT(concurrency-mt-unsafe)
        int nFallimenti = 0;
        int nNucleo = -1;
        for (int n = 0; n < 3; ++n) {
            nFallimenti += NumeroErrore([&] { nNucleo = static_cast<int>(NucleoMigliore()); }) == 5 ? 1 : 0;
            setenv(kVariabileNucleo, sPoi, 1); // NOLINT(concurrency-mt-unsafe)
        }
        std::_Exit(nFallimenti == 3 ? 100 : nFallimenti > 0 ? 101 : nNucleo);
    }
};

TEST_F(AmbienteNucleo, VuotoVuolDireIlMigliore)
{
    EXPECT_EXIT(Chiedi("", ""), testing::ExitedWithCode(static_cast<int>(CercaNucleo())), "");
}

TEST_F(AmbienteNucleo, IlNomeChiestoGira)
{
    for (std::size_t n = 0; n <= static_cast<std::size_t>(CercaNucleo()); ++n) {
        const std::string sNome(kNomiNuclei[n]);
        EXPECT_EXIT(Chiedi(sNome.c_str(), sNome.c_str()), testing::ExitedWithCode(static_cast<int>(n)), "");
    }
}

TEST_F(AmbienteNucleo, UnNomeSbagliatoFallisceOgniVolta)
{
    EXPECT_EXIT(Chiedi("pippo", "comune"), testing::ExitedWithCode(100), "");
}

TEST_F(AmbienteNucleo, SiLeggeUnaVoltaSola)
{
    EXPECT_EXIT(Chiedi("comune", "pippo"), testing::ExitedWithCode(0), "");
}

} // namespace
} // namespace ordavel
