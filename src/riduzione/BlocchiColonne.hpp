// BlocchiColonne.hpp - columns of a reduction, read and written in blocks, so that no file is too long.

#pragma once

#include "ordavel/records.hpp"

#include "core/FileBinario.hpp"

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace ordavel {

/// Columns read, or written, at once.
inline constexpr std::size_t kColonneBlocco = 100000;

/// Columns in a file: its length divided by 20, to nearest with ties to even. A rest of more than half a column at
/// the end is one, its missing numbers 0.
[[nodiscard]] std::int64_t ColonneArrotondate(FileBinario& file);

/// Reads a stretch of a column file, front to back.
class BlocchiColonne {
public:
    /// Takes    file      stays open as long as this lives
    ///          nInizio   columns in front of the stretch
    ///          nFine     columns in front of its end
    BlocchiColonne(FileBinario& file, std::int64_t nInizio, std::int64_t nFine);

    /// The next columns, at most 100000; none at the end. A file that was cut meanwhile ends earlier.
    /// Fails    57
    [[nodiscard]] std::span<const Colonna> Prossimo();

    /// Goes back to the front.
    void Ricomincia() noexcept { m_nLette = m_nInizio; }

private:
    FileBinario& m_File;
    std::int64_t m_nInizio;
    std::int64_t m_nLette;
    std::int64_t m_nFine;
    std::vector<Colonna> m_aBlocco;
};

/// Writes the columns that a reduction keeps, with a buffer in front of the file.
class ColonneRidotte {
public:
    /// Takes    file     open for writing, stays open as long as this lives; columns go behind each other from its
    ///                   first byte on
    ///          nBuffer  columns that may wait; only tests have a reason for another number
    explicit ColonneRidotte(FileBinario& file, std::size_t nBuffer = kColonneBlocco);

    /// Keeps a column. A full buffer is written first.
    /// Fails    57, 61
    void Tieni(const Colonna& colonna)
    {
        if (m_aBuffer.size() == m_nBuffer) {
            ScriviResto();
        }
        m_aBuffer.push_back(colonna);
    }

    /// Writes what waits.
    /// Fails    57, 61
    void ScriviResto();

    /// Goes back behind the first nColonne: what was kept after them is written over. Nothing may wait.
    void RiprendiDa(std::int64_t nColonne) noexcept { m_nScritte = nColonne; }

    /// All columns kept, written or not.
    [[nodiscard]] std::int64_t Quante() const noexcept
    {
        return m_nScritte + static_cast<std::int64_t>(m_aBuffer.size());
    }

    /// Those in the file.
    [[nodiscard]] std::int64_t Scritte() const noexcept { return m_nScritte; }

    /// Those that wait, in order.
    [[nodiscard]] std::span<const Colonna> InAttesa() const noexcept { return m_aBuffer; }

    [[nodiscard]] FileBinario& File() noexcept { return m_File; }

private:
    FileBinario& m_File;
    std::size_t m_nBuffer;
    std::int64_t m_nScritte = 0;
    std::vector<Colonna> m_aBuffer;
};

} // namespace ordavel
