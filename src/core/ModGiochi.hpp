// ModGiochi.hpp - the five games, and the entries of the lists that depend on them.
//
// All games use the numbers 1 to 90 and the same classes; a game decides the preset class and its archive.

#pragma once

#include "ordavel/records.hpp"

#include <span>
#include <string_view>

namespace ordavel {

/// One game.
struct ProfiloGioco {
    std::string_view sNome;         ///< entry of the list of games
    std::int16_t nClassePreset;     ///< class selected when the game is chosen
    std::string_view sArchivio;     ///< property that holds the path of its draw archive
    std::int32_t nByteEstrazione;   ///< length of a record of that archive
    std::int32_t nNumeriEstrazione; ///< numbers of a record
    std::int32_t nNumeriEmulati; ///< numbers of a draw that the emulator looks at; of one wheel for "Lotto"
    std::string_view sChiaveEmulatore; ///< name by which the emulator builder knows it
};

/// The games in the order of their list; the index is the number that GetIdCmbTipoGioco gives.
[[nodiscard]] std::span<const ProfiloGioco> ProfiliGioco() noexcept;

/// The game of a name, without regard to case; nullptr when there is none.
[[nodiscard]] const ProfiloGioco* TrovaGioco(std::string_view sNome) noexcept;

/// The wheels of "Lotto", in the order of its records.
[[nodiscard]] std::span<const std::string_view> Ruote() noexcept;

/// Entries of the list of classes, "2" to "10".
[[nodiscard]] std::span<const std::string_view> VociClasse() noexcept;

/// Entries of the list of reductions: one blank, which reads as 0, and "1" to "5".
[[nodiscard]] std::span<const std::string_view> VociRiduzione() noexcept;

/// Entries of the list of engines, in the order of eMotoreSviluppo.
[[nodiscard]] std::span<const std::string_view> VociMotore() noexcept;

} // namespace ordavel
