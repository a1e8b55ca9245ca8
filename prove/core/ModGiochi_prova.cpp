// ModGiochi_prova.cpp - the table of the games and the lists.

#include "core/ModGiochi.hpp"

#include "core/ModNumeri.hpp"

#include <gtest/gtest.h>

#include <string_view>
#include <vector>

namespace ordavel {
namespace {

std::vector<std::string_view> Voci(std::span<const std::string_view> aVoci)
{
    return {aVoci.begin(), aVoci.end()};
}

TEST(ModGiochi, ICinqueGiochiStannoNelLoroOrdine)
{
    struct Riga {
        std::string_view sNome;
        int nClasse;
        std::string_view sArchivio;
        int nByte;
        std::string_view sChiave;
    };
    const std::vector<Riga> aAttesi{
        {"Lotto", 5, "FileBdLotto", 67, "Lotto"},
        {"10ELotto", 10, "FileBd10Lotto", 32, "10Lotto"},
        {"10ELotto5M", 10, "FileBd10Lotto5M", 32, "10Lotto5M"},
        {"SuperEnalotto", 6, "FileBdSE", 18, "SuperEnalotto"},
        {"WinForLife", 10, "FileBdWF", 28, "WinForLife"},
    };
    const auto aGiochi = ProfiliGioco();
    ASSERT_EQ(aGiochi.size(), aAttesi.size());
    for (std::size_t i = 0; i < aAttesi.size(); ++i) {
        EXPECT_EQ(aGiochi[i].sNome, aAttesi[i].sNome);
        EXPECT_EQ(aGiochi[i].nClassePreset, aAttesi[i].nClasse);
        EXPECT_EQ(aGiochi[i].sArchivio, aAttesi[i].sArchivio);
        EXPECT_EQ(aGiochi[i].nByteEstrazione, aAttesi[i].nByte);
        EXPECT_EQ(aGiochi[i].sChiaveEmulatore, aAttesi[i].sChiave);
    }
}

TEST(ModGiochi, UnGiocoSiTrovaSenzaGuardareIlCaso)
{
    ASSERT_NE(TrovaGioco("superENALOTTO"), nullptr);
    EXPECT_EQ(TrovaGioco("superENALOTTO")->nClassePreset, 6);
    EXPECT_EQ(TrovaGioco("10elotto5m"), &ProfiliGioco()[2]);
}

TEST(ModGiochi, UnNomeDiversoNonSiTrova)
{
    for (const std::string_view sNome : {"", " Lotto", "Lotto ", "10Lotto", "10ELotto5"}) {
        EXPECT_EQ(TrovaGioco(sNome), nullptr) << sNome;
    }
}

TEST(ModGiochi, LeClassiVannoDa2A10)
{
    EXPECT_EQ(Voci(VociClasse()),
              (std::vector<std::string_view>{"2", "3", "4", "5", "6", "7", "8", "9", "10"}));
    EXPECT_EQ(LeggiIntero<std::int16_t>(VociClasse().front()), kClasseMinima);
    EXPECT_EQ(LeggiIntero<std::int16_t>(VociClasse().back()), kClasseMassima);
}

TEST(ModGiochi, LaClassePresetStaAlPostoPresetMenoDue)
{
    for (const ProfiloGioco& gioco : ProfiliGioco()) {
        const auto nPosto = static_cast<std::size_t>(gioco.nClassePreset - 2);
        ASSERT_LT(nPosto, VociClasse().size());
        EXPECT_EQ(LeggiIntero<std::int16_t>(VociClasse()[nPosto]), gioco.nClassePreset) << gioco.sNome;
    }
}

TEST(ModGiochi, LaRiduzioneBiancaVaLettaZero)
{
    EXPECT_EQ(Voci(VociRiduzione()), (std::vector<std::string_view>{" ", "1", "2", "3", "4", "5"}));
    EXPECT_EQ(LeggiIntero<std::int16_t>(VociRiduzione().front()), 0);
}

TEST(ModGiochi, IMotoriStannoNellOrdineDeiLoroValori)
{
    ASSERT_EQ(Voci(VociMotore()), (std::vector<std::string_view>{"Interno", "Esterno"}));
    EXPECT_EQ(static_cast<int>(eMotoreSviluppo::interno), 1);
    EXPECT_EQ(static_cast<int>(eMotoreSviluppo::esterno), 2);
}

} // namespace
} // namespace ordavel
