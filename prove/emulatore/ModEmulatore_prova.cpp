// ModEmulatore_prova.cpp - the rows of emulated draws on disk.

#include "emulatore/ModEmulatore.hpp"

#include "comune/CartellaProva.hpp"
#include "comune/Fallimenti.hpp"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

namespace ordavel {
namespace {

using prove::CartellaProva;
using prove::NumeroErrore;
using prove::ScriviFile;

/// The rows of a file of those bytes; one row that flags 77 stood there before.
std::vector<RigaEmulatore> Lette(const std::string& sByte)
{
    const CartellaProva cartella;
    ScriviFile(cartella / "Emulatore.dat", sByte);
    std::vector<RigaEmulatore> aRighe(1);
    aRighe[0](77) = 1;
    LeggiFileEmulatore(cartella / "Emulatore.dat", aRighe);
    return aRighe;
}

TEST(ModEmulatore, QuattromilacinquecentocinquantaByteSonoCinquantaRighe)
{
    EXPECT_EQ(Lette(std::string(4550, '\0')), std::vector<RigaEmulatore>(50));
}

TEST(ModEmulatore, IlByteKDiUnaRigaSegnaIlNumeroK)
{
    std::string sByte(182, '\0');
    sByte[3] = 1;
    sByte[91 + 90] = 1;
    std::vector<RigaEmulatore> aAttese(2);
    aAttese[0](3) = 1;
    aAttese[1](90) = 1;
    EXPECT_EQ(Lette(sByte), aAttese);
}

TEST(ModEmulatore, IlNumeroDiRigheSiArrotondaAlPiuVicino)
{
    EXPECT_EQ(Lette(std::string(91 + 45, 'x')).size(), std::size_t{1});
    const std::vector<RigaEmulatore> aRighe = Lette(std::string(91 + 46, 'x'));
    ASSERT_EQ(aRighe.size(), std::size_t{2});
    EXPECT_EQ(aRighe[1](45), 'x');
    EXPECT_EQ(aRighe[1](46), 0) << "dietro la fine del file";
}

TEST(ModEmulatore, UnFileCheMancaLasciaLeRighe)
{
    const CartellaProva cartella;
    std::vector<RigaEmulatore> aRighe(3);
    LeggiFileEmulatore(cartella / "manca", aRighe);
    EXPECT_EQ(aRighe.size(), std::size_t{3});
}

TEST(ModEmulatore, UnFileSenzaRigheFallisceELasciaLeRighe)
{
    const CartellaProva cartella;
    std::vector<RigaEmulatore> aRighe(3);
    for (const std::size_t nByte : {std::size_t{0}, std::size_t{45}}) {
        ScriviFile(cartella / "corto", std::string(nByte, '\0'));
        EXPECT_EQ(NumeroErrore([&] { LeggiFileEmulatore(cartella / "corto", aRighe); }), 9) << nByte;
    }
    EXPECT_EQ(aRighe.size(), std::size_t{3});
}

TEST(ModEmulatore, UnFileDiTroppeRigheFallisceSenzaCaricarlo)
{
    const CartellaProva cartella;
    std::vector<RigaEmulatore> aRighe(3);
    ScriviFile(cartella / "enorme", "");
    std::filesystem::resize_file(cartella / "enorme", std::uintmax_t{32768} * 91);
    EXPECT_EQ(NumeroErrore([&] { LeggiFileEmulatore(cartella / "enorme", aRighe); }), 6);
    EXPECT_EQ(aRighe.size(), std::size_t{3});
}

} // namespace
} // namespace ordavel
