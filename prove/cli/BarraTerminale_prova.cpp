// BarraTerminale_prova.cpp - the text of the progress bar, and when it is drawn.

#include "cli/BarraTerminale.hpp"

#include <gtest/gtest.h>

#include <thread>

namespace ordavel::cli {
namespace {

TEST(TestoBarra, MostraParteContoETempo)
{
    const Avanzato avanzato{.nFatte = 600, .nTotale = 1000, .nTenute = 1234, .nSecondi = 90};
    EXPECT_EQ(TestoBarra(avanzato, 10), "[######----] 60 %  1.234 tenute  resta 00:01:00");
}

TEST(TestoBarra, AllInizioNonIndovinaIlTempo)
{
    EXPECT_EQ(TestoBarra({.nFatte = 0, .nTotale = 1000, .nTenute = 0, .nSecondi = 3}, 4),
              "[----] 0 %  0 tenute");
}

TEST(TestoBarra, AllaFineEPiena)
{
    const Avanzato avanzato{.nFatte = 7, .nTotale = 7, .nTenute = 7, .nSecondi = 1};
    EXPECT_EQ(TestoBarra(avanzato, 5), "[#####] 100 %  7 tenute  resta 00:00:00");
}

TEST(TestoBarra, OltreIlTuttoRestaPienaENonVaIndietroNelTempo)
{
    const Avanzato avanzato{.nFatte = 30, .nTotale = 20, .nTenute = 1, .nSecondi = 5};
    EXPECT_EQ(TestoBarra(avanzato, 3), "[###] 100 %  1 tenute  resta 00:00:00");
}

TEST(TestoBarra, SenzaTuttoNonDivide)
{
    EXPECT_EQ(TestoBarra({.nFatte = 0, .nTotale = 0, .nTenute = 0, .nSecondi = 0}, 2),
              "[##] 100 %  0 tenute");
}

TEST(TestoBarra, UnTempoSenzaFineSiScriveLoStesso)
{
    const Avanzato avanzato{.nFatte = 1, .nTotale = 1e18, .nTenute = 0, .nSecondi = 1e6};
    EXPECT_EQ(TestoBarra(avanzato, 1), "[-] 0 %  0 tenute  resta 277777:46:40");
}

/// What a bar writes on the error stream while a run of two steps goes on.
std::string Disegnata(bool bAccesa, std::chrono::milliseconds attesa)
{
    testing::internal::CaptureStderr();
    {
        BarraTerminale barra(bAccesa);
        barra.Inizia(100);
        std::this_thread::sleep_for(attesa);
        barra.Aggiorna(50, 12);
        barra.Aggiorna(51, 13); // too soon behind the other to be drawn
    }
    return testing::internal::GetCapturedStderr();
}

TEST(BarraTerminale, SiDisegnaDopoMezzoSecondoESiCancella)
{
    const std::string sScritto = Disegnata(true, std::chrono::milliseconds(510));
    EXPECT_NE(sScritto.find("50 %  12 tenute"), std::string::npos) << sScritto;
    EXPECT_EQ(sScritto.find("51 %"), std::string::npos) << sScritto;
    EXPECT_TRUE(sScritto.ends_with("\r\x1b[K")) << sScritto;
}

TEST(BarraTerminale, SpentaNonScriveNulla)
{
    EXPECT_EQ(Disegnata(false, std::chrono::milliseconds(510)), "");
}

TEST(BarraTerminale, SenzaDisegnoNonCEDaCancellare)
{
    testing::internal::CaptureStderr();
    {
        BarraTerminale barra(true);
        barra.Inizia(100);
        barra.Cancella();
    }
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

} // namespace
} // namespace ordavel::cli
