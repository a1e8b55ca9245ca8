// CoperturaFette.hpp - the coverage with a row of bits for each number.
//
// Bit i of the row of a number tells whether column i holds it. The rows of a column's numbers, added as binary
// digits that begin at 2^N - points, overflow exactly where a column has enough numbers in common: some fifty
// operations on bits for 512 columns, whatever the points. Every column leaves the uncovered ones once; then its
// row of verdicts is taken from the values of all, bit by bit when it is thin, as vertical counters when many
// columns leave at once. So the values are always at hand.

#pragma once

#include "riduzione/Copertura.hpp"
#include "riduzione/NucleiFette.hpp"

namespace ordavel {

class CoperturaFette : public Copertura {
public:
    /// Takes    problema   of columns without repetitions
    ///          nucleo     one that this processor has
    explicit CoperturaFette(const ProblemaRiduzione& problema, Continua continua = {},
                            eNucleo nucleo = NucleoMigliore());

    void ValoriIniziali(std::size_t nDa, std::span<std::int32_t> aValori) override;
    [[nodiscard]] std::size_t Blocco() const noexcept override;
    [[nodiscard]] std::int32_t Valore(std::size_t i) override { return m_aValori[i]; }
    void Scegli(std::size_t i) override;
    [[nodiscard]] bool Coperta(std::size_t i) const override;

private:
    /// The pieces, from word nParola on, of the rows of column i's numbers.
    [[nodiscard]] RigheFetta Righe(std::size_t i, std::size_t nParola) const noexcept;
    /// Which columns of the piece from word nParola on column i covers; never itself.
    void Giudica(std::size_t i, std::size_t nParola, Fetta& verdetti) const;
    /// Counts the values of nQuante columns from nDa on while nothing is covered.
    void ContaIniziali(std::size_t nDa, std::size_t nQuante);
    /// Puts the columns that i covers anew, and i itself, into m_aTolte and marks them as covered.
    void Copri(std::size_t i);
    /// Adds nSegno to the values of all columns of a piece that each of aColonne covers, kContatoreMassimo at most.
    void ContaRade(std::span<const std::uint32_t> aColonne, std::int32_t nSegno, std::size_t nParola);
    void ContaFitte(std::span<const std::uint32_t> aColonne, std::int32_t nSegno, std::size_t nParola);
    void ContaTutte(std::span<const std::uint32_t> aColonne, std::int32_t nSegno);
    /// The columns that are still uncovered.
    [[nodiscard]] std::vector<std::uint32_t> Scoperte() const;
    [[nodiscard]] bool Fitte(std::size_t nQuante) const noexcept;

    ProblemaRiduzione m_Problema;
    SogliaFette m_Soglia;
    const NucleiFette& m_Nuclei;
    std::size_t m_nCoppieRighe;             ///< pairs of rows that a column needs
    std::size_t m_nParole;                  ///< words of a row, a multiple of kParoleFetta
    std::vector<std::uint64_t> m_aRighe;    ///< [91 * m_nParole] by number; row 0 is empty
    std::vector<std::uint64_t> m_aScoperte; ///< [m_nParole]
    std::vector<std::int32_t> m_aValori;    ///< [64 * m_nParole] present values
    std::vector<std::uint32_t> m_aTolte;    ///< columns covered by the last choice
    std::size_t m_nScoperte;                ///< columns that are still uncovered
    double m_nCoppie = 0;                   ///< sum of the initial values
};

} // namespace ordavel
