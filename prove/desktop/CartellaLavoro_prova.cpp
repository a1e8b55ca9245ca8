// CartellaLavoro_prova.cpp - two programs do not work in one folder.

#include "desktop/CartellaLavoro.hpp"

#include "comune/CartellaProva.hpp"

#include <QFileInfo>
#include <gtest/gtest.h>

#include <optional>

namespace ordavel::desktop {
namespace {

TEST(CartellaLavoro, IlSecondoHaUnaCartellaPropriaCheSparisce)
{
    const prove::CartellaProva cartella;
    const QString sBase = QString::fromStdString(cartella / "temp");
    std::optional<CartellaLavoro> primo(sBase);
    EXPECT_EQ(primo->Path(), sBase);
    QString sSecondo;
    {
        const CartellaLavoro secondo(sBase);
        sSecondo = secondo.Path();
        EXPECT_EQ(secondo.Base(), sBase);
        EXPECT_TRUE(sSecondo.startsWith(sBase + "/"));
        EXPECT_TRUE(QFileInfo(sSecondo).isDir());
    }
    EXPECT_FALSE(QFileInfo::exists(sSecondo));
    primo.reset();
    EXPECT_EQ(CartellaLavoro(sBase).Path(), sBase);
}

TEST(CartellaLavoro, DoveNonSiPuoScrivereNonCadeNulla)
{
    const prove::CartellaProva cartella;
    prove::ScriviFile(cartella / "file", "x");
    const QString sBase = QString::fromStdString(cartella / "file/temp");
    EXPECT_EQ(CartellaLavoro(sBase).Path(), sBase);
}

} // namespace
} // namespace ordavel::desktop
