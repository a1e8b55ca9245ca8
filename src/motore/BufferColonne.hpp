// BufferColonne.hpp - columns kept and not yet written, and the thinning of near neighbours.

#pragma once

#include "ordavel/records.hpp"

#include "core/FileBinario.hpp"
#include "motore/ModIntegrali.hpp"

#include <span>
#include <vector>

namespace ordavel {

/// A buffer of 10000 columns in front of a file.
///
/// The candidate is built in the first free slot, so that a column that is kept is not copied again.
class BufferColonne {
public:
    /// Takes    file      open for writing; blocks go behind its last byte
    ///          nClasse   numbers of a column
    ///          nLimite   a column that shares this many numbers, or more, with the one before is thinned out;
    ///                    0 or below thins nothing
    BufferColonne(FileBinario& file, std::int16_t nClasse, std::int16_t nLimite);

    /// The slot of the candidate.
    /// Fails    9: the buffer is full, since its count has missed the threshold of Tieni
    [[nodiscard]] Colonna& Candidata()
    {
        if (m_nIndice > kColonneBuffer) {
            Solleva(eErrore::indice);
        }
        return m_aColonne[static_cast<std::size_t>(m_nIndice - 1)];
    }

    /// Does the candidate survive the comparison with the column before it in the buffer? The first column behind
    /// a flush has none and survives.
    [[nodiscard]] bool SuperaRiduzione() const
    {
        if (m_nLimite <= 0 || m_nIndice <= 1) {
            return true;
        }
        const auto nQui = static_cast<std::size_t>(m_nIndice - 1);
        return ContaNumeriComuni(m_nClasse, m_aColonne[nQui], m_aColonne[nQui - 1]) < m_nLimite;
    }

    /// Keeps the candidate, and writes the buffer when it then holds exactly nSoglia columns.
    /// Fails    57, 61
    void Tieni(std::int32_t nSoglia)
    {
        ++m_nInAttesa;
        if (m_nInAttesa == nSoglia) {
            Scrivi(nSoglia);
            m_nInAttesa = 0;
            m_nIndice = 0;
        }
        ++m_nIndice;
    }

    /// Is there a limit to what a column shares with the one before?
    [[nodiscard]] bool Riduce() const noexcept { return m_nLimite > 0; }

    /// The slots up to the next flush, to be filled from the first on when nothing is thinned out.
    [[nodiscard]] std::span<Colonna> Liberi() noexcept
    {
        return std::span(m_aColonne).subspan(static_cast<std::size_t>(m_nInAttesa));
    }

    /// Keeps the first nQuante columns of Liberi.
    /// Fails    57, 61
    void TieniLiberi(std::size_t nQuante)
    {
        m_nInAttesa += static_cast<std::int32_t>(nQuante);
        if (m_nInAttesa == kColonneBuffer) {
            Scrivi(kColonneBuffer);
            m_nInAttesa = 0;
        }
        m_nIndice = m_nInAttesa + 1;
    }

    /// Writes what is left.
    /// Fails    57, 61
    void ScriviResto();

    /// Place of the next free slot, from 1.
    [[nodiscard]] std::int32_t Indice() const noexcept { return m_nIndice; }

private:
    void Scrivi(std::int32_t nQuante);

    FileBinario& m_File;
    std::int16_t m_nClasse;
    std::int16_t m_nLimite;
    std::int32_t m_nIndice = 1;
    std::int32_t m_nInAttesa = 0;
    std::vector<Colonna> m_aColonne;
};

} // namespace ordavel
