// GrigliaCondizioni.hpp - the conditions as text: five cells each, the one form in which a user's work exists.
//
// On the screen the grid lies on its side, a condition a grid column; here a row is a condition. Row 0 holds
// the headings, rows 1 to 2000 conditions. A row is empty when its first cell is; the filled rows form one
// block from row 1, but for the one empty row that an insertion may open inside it.

#pragma once

#include "ordavel/esporta.hpp"
#include "ordavel/records.hpp"

#include <cstdint>
#include <string>
#include <vector>

namespace ordavel {

/// The cells of a row, by the grid row in which they are shown.
enum class eCella : std::uint8_t { condizione = 1, parametri = 2, punti = 3, recupero = 4, quadro = 5 };

/// One condition.
struct Condizione {
    std::string sCondizione; ///< key of the kind; empty for an empty row
    std::string sParametri;  ///< what the kind asks for beside the points
    std::string sPunti;      ///< accepted values
    std::string sRecupero;   ///< values accepted for recovery
    std::string sQuadro;     ///< recovery group, "1" to "20"

    [[nodiscard]] friend bool operator==(const Condizione&, const Condizione&) = default;
};

/// How much room a row takes on the screen: as much as all were given together, that of a condition that was
/// inserted, or that of a link, which needs less. The looks give it in pixels.
enum class eAltezza : std::uint8_t { comune, normale, link };

/// The list of conditions.
class ORDAVEL_EXPORT GrigliaCondizioni {
public:
    GrigliaCondizioni();

    /// A row, 0 the headings.
    /// Fails    9: nRiga outside 0..2000
    [[nodiscard]] const Condizione& Riga(std::int32_t nRiga) const;
    [[nodiscard]] Condizione& Riga(std::int32_t nRiga);

    /// Grows whenever anybody may have written: who watches the conditions need not compare them until it does.
    [[nodiscard]] std::uint64_t Revisione() const noexcept { return m_nRevisione; }

    /// Is a row without a condition? Rows outside 1..2000 count as empty.
    [[nodiscard]] bool Vuota(std::int32_t nRiga) const noexcept;

    /// Empties all rows, gives them the common height and selects row 1.
    void Svuota();

    /// Gives all rows the common height.
    void PareggiaAltezze();

    /// The height of a row. It belongs to the place: texts that move leave it behind.
    /// Fails    9: nRiga outside 0..2000
    [[nodiscard]] eAltezza Altezza(std::int32_t nRiga) const;
    void PoniAltezza(std::int32_t nRiga, eAltezza altezza);

    /// The selected row.
    [[nodiscard]] std::int32_t Corrente() const noexcept { return m_nCorrente; }

    /// Selects a row.
    /// Fails    9: nRiga outside 0..2000
    void PoniCorrente(std::int32_t nRiga);

private:
    std::vector<Condizione> m_aRighe;
    std::vector<eAltezza> m_aAltezze;
    std::int32_t m_nCorrente = 1;
    std::uint64_t m_nRevisione = 0;
};

} // namespace ordavel
