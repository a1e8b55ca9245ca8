// LibreriaEsterna_prova.cpp - a library beside the program, one that is missing, a call that blocks.

#include "core/LibreriaEsterna.hpp"

#include "comune/CartellaProva.hpp"
#include "comune/Fallimenti.hpp"

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <stdexcept>
#include <thread>

namespace ordavel {
namespace {

using prove::NumeroErrore;

TEST(LibreriaEsterna, StaAccantoAlProgramma)
{
    LibreriaEsterna libreria("trvrdcol");
    EXPECT_EQ(libreria.Funzione<std::int16_t()>("GetPercProgRiduzione")(), 42);
    // Loaded once, whoever asks.
    LibreriaEsterna altra("trvrdcol");
    EXPECT_GE(altra.Funzione<int()>("QuanteChieste")(), 1);
}

/// A program that the shell finds is called by a word without a folder.
TEST(LibreriaEsterna, NonSiCercaNellaCartellaDiLavoroComunqueSiChiamiIlProgramma)
{
    LibreriaEsterna accanto("trvrdcol");
    LibreriaEsterna qui("LibreriaNellaCartellaDiLavoro");
    EXPECT_EQ(accanto.Funzione<std::int16_t()>("GetPercProgRiduzione")(), 42);
    EXPECT_EQ(NumeroErrore([&] { (void)qui.Funzione<std::int16_t()>("GetPercProgRiduzione"); }), 53);
    constexpr const char* kFiglio = "ORDAVEL_PROVA_FIGLIO";
    if (std::getenv(kFiglio) != nullptr) {
        return;
    }
    const prove::CartellaProva cartella;
    const auto programma = std::filesystem::read_symlink("/proc/self/exe");
    std::filesystem::copy_file(programma.parent_path() / "trvrdcol.so",
                               cartella / "LibreriaNellaCartellaDiLavoro.so");
    const std::string sComando = "cd '" + (cartella / "") + "' && " + kFiglio + "=1 PATH='" +
                                 programma.parent_path().string() + "' " + programma.filename().string() +
                                 " --gtest_filter=LibreriaEsterna.NonSiCerca* --gtest_output= >&2";
    EXPECT_EQ(std::system(sComando.c_str()), 0); // NOLINT(cert-env33-c): the shell is what is tried
}

TEST(LibreriaEsterna, SeMancaLoDiceLaPrimaChiamata)
{
    LibreriaEsterna libreria("LibreriaCheNonCe");
    EXPECT_EQ(NumeroErrore([&] { (void)libreria.Funzione<void()>("Qualcosa"); }), 53);
    try {
        (void)libreria.Funzione<void()>("Qualcosa");
        FAIL();
    } catch (const Errore& errore) {
        EXPECT_EQ(errore.Descrizione(), "File non trovato: LibreriaCheNonCe");
    }
}

TEST(LibreriaEsterna, UnaFunzioneCheMancaEUnFallimentoDiNome)
{
    LibreriaEsterna libreria("trvrdcol");
    EXPECT_EQ(NumeroErrore([&] { (void)libreria.Funzione<void()>("NonCe"); }), 438);
}

TEST(ChiamaConEventi, GliEventiGiranoFinoAllaFineDellaChiamata)
{
    std::atomic<bool> bVia{false};
    int nEventi = 0;
    ChiamaConEventi(
        [&] {
            while (!bVia) {
                std::this_thread::sleep_for(std::chrono::milliseconds(1));
            }
        },
        [&] { bVia = ++nEventi >= 3; });
    EXPECT_GE(nEventi, 3);
}

TEST(ChiamaConEventi, GliEventiGiranoAncheSeLaChiamataEGiaFinita)
{
    int nEventi = 0;
    ChiamaConEventi([] {}, [&] { ++nEventi; });
    EXPECT_GE(nEventi, 1);
}

TEST(ChiamaConEventi, UnFallimentoDegliEventiAspettaLaChiamata)
{
    std::atomic<bool> bFinita{false};
    const auto chiama = [&] {
        ChiamaConEventi(
            [&] {
                std::this_thread::sleep_for(std::chrono::milliseconds(20));
                bFinita = true;
            },
            [] { throw std::runtime_error("eventi"); });
    };
    EXPECT_THROW(chiama(), std::runtime_error);
    EXPECT_TRUE(bFinita);
}

} // namespace
} // namespace ordavel
