// CoperturaSottoinsiemi.hpp - the coverage by counting the sets of numbers that columns share.
//
// Let B(s) be how many pairs (uncovered column, set of s numbers) a column shares with others. A column that shares c
// numbers with it is counted C(c,s) times in B(s), and so
//
//     columns that share t numbers or more  =  sum over s from t of (-1)^(s-t) C(s-1, t-1) B(s),
//
// which is inclusion and exclusion. With a counter for each shared set, weighted by its size, a value is the sum of the
// counters of a column: at most 22 of them for 4 points out of 6 numbers, whatever the number of columns. Sums wrap
// around: what they hold in between may pass 32 bits, a value does not.

#pragma once

#include "riduzione/Copertura.hpp"
#include "riduzione/InsiemiCondivisi.hpp"

#include <array>

namespace ordavel {

class CoperturaSottoinsiemi : public Copertura {
public:
    /// Takes    problema   one that is InsiemiCondivisi::Ammesso
    explicit CoperturaSottoinsiemi(const ProblemaRiduzione& problema, const Continua& continua = {});

    void ValoriIniziali(std::size_t nDa, std::span<std::int32_t> aValori) override;
    [[nodiscard]] std::size_t Blocco() const noexcept override { return 1 << 16; }
    [[nodiscard]] std::int32_t Valore(std::size_t i) override;
    void Scegli(std::size_t i) override;
    [[nodiscard]] bool Coperta(std::size_t i) const override { return m_aCoperte[i] != 0; }

private:
    [[nodiscard]] std::uint32_t Peso(std::uint32_t nVoce) const noexcept
    {
        return m_aPesi[InsiemiCondivisi::Grandezza(nVoce)];
    }
    /// What column i itself adds to its own counters.
    [[nodiscard]] std::uint32_t Proprio(std::size_t i) const noexcept;
    /// Marks i as covered and takes it from the counters, unless it is covered already.
    void Copri(std::size_t i);

    InsiemiCondivisi m_Insiemi;
    std::array<std::uint32_t, kSottoinsiemeMassimo + 1> m_aPesi{}; ///< (-1)^(s-t) C(s-1, t-1) by s
    std::vector<std::uint32_t> m_aContatori; ///< uncovered columns that hold a set, weighted
    std::vector<std::uint8_t> m_aCoperte;
};

} // namespace ordavel
