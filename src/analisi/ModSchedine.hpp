// ModSchedine.hpp - where everything stands on a printed page of slips, in millimetres.
//
// A page has as many slips as fit, row by row, centred between its margins. A slip has a heading and panels side by
// side; a panel is a box of the ninety numbers, ten in a row, with a heading of its own, and shows one column. The
// columns of a file fill the panels in their order.

#pragma once

#include "ordavel/records.hpp"

#include <cstdint>
#include <string_view>
#include <vector>

namespace ordavel {

/// In millimetres, from the upper left corner of the page.
struct RettangoloMm {
    double nX = 0;
    double nY = 0;
    double nLarghezza = 0;
    double nAltezza = 0;

    [[nodiscard]] friend bool operator==(const RettangoloMm&, const RettangoloMm&) = default;
};

/// A sheet, in millimetres.
struct FoglioMm {
    double nLarghezza = 210;
    double nAltezza = 297;
    double nMargine = 10; ///< on every side
};

/// The slip of a game.
struct ProfiloSchedina {
    std::string_view sGioco;
    std::int32_t nPannelli; ///< columns of one slip
};

/// The slip of a game by its name, without regard to case; of a game that is none, one of a single panel.
[[nodiscard]] ProfiloSchedina ProfiloSchedinaDi(std::string_view sGioco) noexcept;

inline constexpr std::int32_t kNumeriRiga = 10;
inline constexpr std::int32_t kRigheNumeri = 9;
inline constexpr double kCasellaMm = 4;         ///< side of the box of a number
inline constexpr double kTestataMm = 7;         ///< height of a slip's heading
inline constexpr double kTestataPannelloMm = 5; ///< height of a panel's heading
inline constexpr double kBordoMm = 2;           ///< from a slip's edge to its panels, and between these
inline constexpr double kDistanzaMm = 4;        ///< between slips

/// A page of slips for a sheet and a game.
class ORDAVEL_EXPORT PaginaSchedine {
public:
    /// The panels are at most the game's, fewer when the sheet is narrower; a sheet smaller than a slip of one panel
    /// has it anyhow, and it is cut.
    PaginaSchedine(const FoglioMm& foglio, std::string_view sGioco) noexcept;

    [[nodiscard]] std::int32_t Pannelli() const noexcept { return m_nPannelli; }
    [[nodiscard]] std::int32_t SchedinePerRiga() const noexcept { return m_nPerRiga; }
    [[nodiscard]] std::int32_t RigheSchedine() const noexcept { return m_nRighe; }
    [[nodiscard]] std::int32_t Schedine() const noexcept { return m_nPerRiga * m_nRighe; }
    [[nodiscard]] std::int32_t Colonne() const noexcept { return Schedine() * m_nPannelli; }

    /// Pages for so many columns; 0 for none.
    [[nodiscard]] std::int64_t Pagine(std::int64_t nColonne) const noexcept;
    /// Slips for so many columns.
    [[nodiscard]] std::int64_t SchedineTotali(std::int64_t nColonne) const noexcept;

    /// A slip of the page, from 0.
    [[nodiscard]] RettangoloMm Schedina(std::int32_t nSchedina) const noexcept;
    /// The heading of a slip.
    [[nodiscard]] RettangoloMm Testata(std::int32_t nSchedina) const noexcept;
    /// The heading of a panel, which says the column's number.
    [[nodiscard]] RettangoloMm TestataPannello(std::int32_t nSchedina, std::int32_t nPannello) const noexcept;
    /// The box of a number, 1 to 90.
    [[nodiscard]] RettangoloMm Casella(std::int32_t nSchedina, std::int32_t nPannello,
                                       std::int32_t nNumero) const noexcept;

private:
    std::int32_t m_nPannelli = 1;
    std::int32_t m_nPerRiga = 1;
    std::int32_t m_nRighe = 1;
    double m_nSinistra = 0; ///< of the first slip
    double m_nAlto = 0;
};

} // namespace ordavel
