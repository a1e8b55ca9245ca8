// Programma_prova.cpp - what the command line asks for.

#include "desktop/Programma.hpp"

#include "desktop/ArchivioImpostazioni.hpp"

#include <gtest/gtest.h>

namespace ordavel::desktop {
namespace {

TEST(ProgrammaDesktop, UnFileSiApre)
{
    const Richiesta richiesta = LeggiArgomenti({"ordavel-desktop", "mio.sic"});
    EXPECT_EQ(richiesta.sFile, "mio.sic");
    EXPECT_EQ(richiesta.sImpostazioni, ArchivioImpostazioni::FileUtente());
    EXPECT_TRUE(richiesta.sTesto.isEmpty());
}

TEST(ProgrammaDesktop, LeImpostazioniStannoDoveSiDice)
{
    EXPECT_EQ(LeggiArgomenti({"ordavel-desktop", "--impostazioni", "/tmp/a.ini"}).sImpostazioni,
              "/tmp/a.ini");
}

TEST(ProgrammaDesktop, AiutoEVersioneSiStampano)
{
    EXPECT_TRUE(LeggiArgomenti({"ordavel-desktop", "--help"}).sTesto.startsWith("Uso: ordavel-desktop"));
    EXPECT_TRUE(LeggiArgomenti({"ordavel-desktop", "-v"}).sTesto.startsWith("ordavel-desktop "));
}

TEST(ProgrammaDesktop, QuelCheNonVaSiDice)
{
    for (const QStringList& aArgomenti : {QStringList{"o", "--strana"}, QStringList{"o", "a.sic", "b.sic"}}) {
        const Richiesta richiesta = LeggiArgomenti(aArgomenti);
        EXPECT_TRUE(richiesta.bErrata);
        EXPECT_TRUE(richiesta.sTesto.contains("--help"));
    }
}

} // namespace
} // namespace ordavel::desktop
