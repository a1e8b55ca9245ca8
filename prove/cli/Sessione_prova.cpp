// Sessione_prova.cpp - private folders, and systems opened in them.

#include "cli/Sessione.hpp"

#include "comune/CartellaProva.hpp"

#include <gtest/gtest.h>

#include <iterator>

namespace ordavel::cli {
namespace {

namespace fs = std::filesystem;

std::ptrdiff_t Voci(const std::string& sCartella)
{
    return std::distance(fs::directory_iterator(sCartella), fs::directory_iterator());
}

TEST(CartellaPrivata, NasceDentroUnAltraESparisceConTutto)
{
    const prove::CartellaProva cartella;
    const std::string sBase = cartella / "nuova/base";
    {
        const CartellaPrivata privata(sBase);
        EXPECT_EQ(privata.Path().find(sBase + "/"), 0U);
        EXPECT_TRUE(privata.Path().ends_with('/'));
        EXPECT_EQ(fs::status(privata.Path()).permissions(), fs::perms::owner_all);
        prove::ScriviFile(privata.Path() + "file", "x");
        EXPECT_EQ(Voci(sBase), 1);
    }
    EXPECT_EQ(Voci(sBase), 0);
}

TEST(CartellaPrivata, DueNonSiIncontrano)
{
    const prove::CartellaProva cartella;
    const CartellaPrivata una(cartella / "");
    const CartellaPrivata altra(cartella / "");
    EXPECT_NE(una.Path(), altra.Path());
}

TEST(CartellaPrivata, NonNasceDentroUnFile)
{
    const prove::CartellaProva cartella;
    prove::ScriviFile(cartella / "file", "x");
    EXPECT_THROW(CartellaPrivata(cartella / "file"), Errore);
    EXPECT_EQ(prove::LeggiFile(cartella / "file"), "x");
}

TEST(Sessione, UnSistemaSiApreConLeEstrazioniEmulateDellaCartella)
{
    const prove::CartellaProva cartella;
    prove::ScriviFile(cartella / "vuoto.sic", "SISTOCX" + std::string(310, '\0'));
    prove::ScriviFile(cartella / "Emulatore.dat", std::string(91, '\1'));
    prove::ScriviFile(cartella / "Sviluppo.col", "di un altro");
    {
        Sessione sessione(false);
        ASSERT_TRUE(sessione.Apri(cartella / "vuoto.sic", cartella / ""));
        EXPECT_EQ(prove::LeggiFile(sessione.Sistema().PercorsoTemp() + "Emulatore.dat"),
                  std::string(91, '\1'));
        EXPECT_EQ(Voci(cartella / ""), 4);
    }
    EXPECT_EQ(Voci(cartella / ""), 3);
    EXPECT_EQ(prove::LeggiFile(cartella / "Sviluppo.col"), "di un altro");
}

} // namespace
} // namespace ordavel::cli
