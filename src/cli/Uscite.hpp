// Uscite.hpp - how the program ends.

#pragma once

namespace ordavel::cli {

/// Exit codes.
enum class eUscita : int {
    fatto = 0,        ///< all went well
    fallito = 1,      ///< a critical box, or a warning that ended the command
    uso = 2,          ///< the command line is wrong
    interrotto = 130, ///< stopped by the user; what was kept is written
};

/// The exit code of a command that did its work, or did not.
[[nodiscard]] constexpr eUscita Uscita(bool bFatto) noexcept
{
    return bFatto ? eUscita::fatto : eUscita::fallito;
}

} // namespace ordavel::cli
