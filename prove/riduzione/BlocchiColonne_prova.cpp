// BlocchiColonne_prova.cpp - columns in blocks.

#include "riduzione/BlocchiColonne.hpp"

#include "DefinizioneRiduzione.hpp"

#include <gtest/gtest.h>

#include <filesystem>

namespace ordavel {
namespace {

using prove::Byte;
using prove::Colonne;
using prove::Record;

class BlocchiColonneProva : public testing::Test {
protected:
    /// The lengths of the blocks; all columns go to aLette.
    std::vector<std::size_t> Leggi(std::int64_t nInizio, std::int64_t nFine)
    {
        FileBinario file(sFile, eApertura::lettura);
        BlocchiColonne blocchi(file, nInizio, nFine);
        std::vector<std::size_t> aBlocchi;
        aLette.clear();
        for (auto aBlocco = blocchi.Prossimo(); !aBlocco.empty(); aBlocco = blocchi.Prossimo()) {
            aBlocchi.push_back(aBlocco.size());
            aLette.insert(aLette.end(), aBlocco.begin(), aBlocco.end());
        }
        return aBlocchi;
    }

    prove::CartellaProva cartella;
    std::string sFile = cartella / "test.col";
    Colonne aLette;
};

TEST_F(BlocchiColonneProva, OgniColonnaUnaVoltaSola)
{
    const Colonne aColonne = prove::Completo(50, 4);
    prove::ScriviFile(sFile, Byte(aColonne));
    EXPECT_EQ(Leggi(0, 230300), (std::vector<std::size_t>{100000, 100000, 30300}));
    EXPECT_TRUE(aLette == aColonne);
    EXPECT_EQ(Leggi(0, 200000), (std::vector<std::size_t>{100000, 100000}));
    EXPECT_TRUE(Leggi(0, 0).empty());
}

TEST_F(BlocchiColonneProva, UnTrattoNelMezzo)
{
    const Colonne aColonne = prove::Completo(8, 3);
    prove::ScriviFile(sFile, Byte(aColonne));
    EXPECT_EQ(Leggi(5, 9), std::vector<std::size_t>{4});
    EXPECT_EQ(aLette, Colonne(aColonne.begin() + 5, aColonne.begin() + 9));
}

TEST_F(BlocchiColonneProva, CioCheIlFileNonHaPiuNonSiLegge)
{
    prove::ScriviFile(sFile, Byte({Record({1, 2}), Record({3, 4})}) + "\x05");
    EXPECT_EQ(Leggi(0, 9), std::vector<std::size_t>{2});
    EXPECT_EQ(aLette, (Colonne{Record({1, 2}), Record({3, 4})}));
}

TEST_F(BlocchiColonneProva, DopoUnRestoIncompletoNonRestaNullaDelBloccoPrima)
{
    Colonne aColonne(100000, Record({1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17, 18, 19, 20}));
    prove::ScriviFile(sFile, Byte(aColonne) + std::string(12, '\x07'));
    EXPECT_EQ(Leggi(0, 100001), (std::vector<std::size_t>{100000, 1}));
    EXPECT_EQ(aLette.back(), Record({7, 7, 7, 7, 7, 7, 7, 7, 7, 7, 7, 7}));
}

TEST_F(BlocchiColonneProva, DaCapo)
{
    prove::ScriviFile(sFile, Byte({Record({1, 2}), Record({3, 4})}));
    FileBinario file(sFile, eApertura::lettura);
    BlocchiColonne blocchi(file, 1, 2);
    EXPECT_EQ(blocchi.Prossimo()[0], Record({3, 4}));
    EXPECT_TRUE(blocchi.Prossimo().empty());
    blocchi.Ricomincia();
    EXPECT_EQ(blocchi.Prossimo()[0], Record({3, 4}));
}

TEST_F(BlocchiColonneProva, IlBufferSiScriveQuandoNonCeNeStaUnAltra)
{
    FileBinario file(sFile, eApertura::scrittura);
    ColonneRidotte ridotte(file, 2);
    const Colonne aColonne = prove::Completo(5, 3);
    for (std::size_t i = 0; i < 5; ++i) {
        ridotte.Tieni(aColonne[i]);
        EXPECT_EQ(ridotte.Quante(), static_cast<std::int64_t>(i) + 1);
        EXPECT_EQ(ridotte.Scritte(), static_cast<std::int64_t>(i / 2 * 2));
    }
    EXPECT_EQ(ridotte.InAttesa().size(), 1U);
    ridotte.ScriviResto();
    ridotte.RiprendiDa(1);
    ridotte.Tieni(aColonne[9]);
    ridotte.ScriviResto();
    EXPECT_EQ(ridotte.Quante(), 2);
    file.Chiudi();
    EXPECT_EQ(prove::LeggiFile(sFile),
              Byte({aColonne[0], aColonne[9], aColonne[2], aColonne[3], aColonne[4]}));
}

} // namespace
} // namespace ordavel
