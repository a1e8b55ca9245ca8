// ModGiochi.cpp - the table of the games.

#include "core/ModGiochi.hpp"

#include "core/ModTesti.hpp"

#include <algorithm>

namespace ordavel {

namespace {

// clang-format off
constexpr std::array kGiochi = std::to_array<ProfiloGioco>({
//   name              class  archive            record  numbers  emulated  emulator key
    {"Lotto",           5,    "FileBdLotto",      67,    55,       5,       "Lotto"},
    {"10ELotto",       10,    "FileBd10Lotto",    32,    20,      10,       "10Lotto"},
    {"10ELotto5M",     10,    "FileBd10Lotto5M",  32,    20,      10,       "10Lotto5M"},
    {"SuperEnalotto",   6,    "FileBdSE",         18,     6,       6,       "SuperEnalotto"},
    {"WinForLife",     10,    "FileBdWF",         28,    10,      10,       "WinForLife"},
});
// clang-format on

constexpr std::array<std::string_view, 11> kRuote{"Bari",   "Cagliari", "Firenze",  "Genova",
                                                  "Milano", "Napoli",   "Palermo",  "Roma",
                                                  "Torino", "Venezia",  "Nazionale"};
constexpr std::array<std::string_view, 9> kVociClasse{"2", "3", "4", "5", "6", "7", "8", "9", "10"};
constexpr std::array<std::string_view, 6> kVociRiduzione{" ", "1", "2", "3", "4", "5"};
constexpr std::array<std::string_view, 2> kVociMotore{"Interno", "Esterno"};

} // namespace

std::span<const ProfiloGioco> ProfiliGioco() noexcept
{
    return kGiochi;
}

const ProfiloGioco* TrovaGioco(std::string_view sNome) noexcept
{
    const auto* gioco = std::find_if(kGiochi.begin(), kGiochi.end(), [sNome](const ProfiloGioco& g) {
        return UgualiSenzaCaso(g.sNome, sNome);
    });
    return gioco == kGiochi.end() ? nullptr : gioco;
}

std::span<const std::string_view> Ruote() noexcept
{
    return kRuote;
}

std::span<const std::string_view> VociClasse() noexcept
{
    return kVociClasse;
}

std::span<const std::string_view> VociRiduzione() noexcept
{
    return kVociRiduzione;
}

std::span<const std::string_view> VociMotore() noexcept
{
    return kVociMotore;
}

} // namespace ordavel
