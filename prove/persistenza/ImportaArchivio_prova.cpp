// ImportaArchivio_prova.cpp - a text becomes an archive, or nothing changes.

#include "persistenza/ImportaArchivio.hpp"

#include "comune/CartellaProva.hpp"
#include "comune/Fallimenti.hpp"
#include "core/TestoErrato.hpp"

#include <gtest/gtest.h>

namespace ordavel {
namespace {

constexpr const char* kTesto = "Data;N1;N2;N3;N4;N5;N6\n1/1/26;1;2;3;4;5;6\n;7;8;9;10;11;12\n";

struct ImportaArchivioProva : testing::Test {
    prove::CartellaProva cartella;
    const ProfiloGioco& gioco = *TrovaGioco("SuperEnalotto");
};

TEST_F(ImportaArchivioProva, IlTestoDiventaUnArchivio)
{
    prove::ScriviFile(cartella / "t.csv", kTesto);
    EXPECT_EQ(CreaArchivio(cartella / "t.csv", gioco, cartella / "se.bd"), 2);
    Estrazioni estrazioni;
    ASSERT_TRUE(LeggiEstrazioni(TracciatoDi(gioco), 1, 2, estrazioni, cartella / "se.bd"));
    EXPECT_EQ(estrazioni.aEstrazioni[1][0], 7);
}

TEST_F(ImportaArchivioProva, UnaRigaSbagliataLasciaIlVecchio)
{
    prove::ScriviFile(cartella / "t.csv", std::string(kTesto) + ";1;2;3;4;5;91\n");
    prove::ScriviFile(cartella / "se.bd", "vecchio");
    EXPECT_THROW(CreaArchivio(cartella / "t.csv", gioco, cartella / "se.bd"), TestoErrato);
    EXPECT_EQ(prove::LeggiFile(cartella / "se.bd"), "vecchio");
}

TEST_F(ImportaArchivioProva, IlTestoNonDiventaSeStesso)
{
    prove::ScriviFile(cartella / "t.csv", kTesto);
    EXPECT_EQ(prove::NumeroErrore([&] { CreaArchivio(cartella / "t.csv", gioco, cartella / "t.csv"); }), 5);
    EXPECT_EQ(prove::LeggiFile(cartella / "t.csv"), kTesto);
}

TEST_F(ImportaArchivioProva, EsaminareNonScriveEDiceQuante)
{
    prove::ScriviFile(cartella / "t.csv", kTesto);
    const RiassuntoEstrazioni riassunto = EsaminaTesto(cartella / "t.csv", gioco);
    EXPECT_EQ(riassunto.nEstrazioni, 2);
    EXPECT_EQ(riassunto.prima[5], 6);
    EXPECT_EQ(riassunto.ultima[5], 12);
}

TEST_F(ImportaArchivioProva, UnTestoCheMancaSiDice)
{
    EXPECT_EQ(prove::NumeroErrore([&] { (void)EsaminaTesto(cartella / "manca.csv", gioco); }), 53);
}

} // namespace
} // namespace ordavel
