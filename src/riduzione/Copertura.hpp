// Copertura.hpp - which columns of a reduction cover which others, and which are covered already.
//
// A column covers another when at least so many of the other's numbers stand in it. At the start nothing is covered.
// Choosing a column covers it and all that it covers; the value of a column is how many others it would cover anew.
//
// One promise, three forms. The plain one looks at every pair and is the truth. The other two need columns that hold
// no number twice: one holds a row of bits for each number and looks at 512 columns at once, whatever the points;
// one counts the sets of numbers that columns share, and needs tables that fit in memory.

#pragma once

#include "ordavel/records.hpp"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <span>
#include <utility>
#include <vector>

namespace ordavel {

/// The columns of a reduction, and when one covers another. The columns outlive whoever looks at them.
struct ProblemaRiduzione {
    std::span<const Colonna> aColonne;
    /// 0 to 20: a column is its first nClasse entries, of which 1 to 90 are numbers.
    std::int16_t nClasse = 0;
    /// Numbers in common from which on a column covers; any value.
    std::int32_t nPunti = 0;
};

/// Asked now and then in a long piece of work; when it says false, the work ends where it is, and from then on a
/// coverage may be asked for nothing but who is covered.
using Continua = std::function<bool()>;

class Copertura {
public:
    Copertura(const Copertura&) = delete;
    Copertura& operator=(const Copertura&) = delete;
    virtual ~Copertura() = default;

    /// The values of some columns while nothing is covered. All of them are asked for, each once, before the first
    /// call of Valore.
    /// Takes    nDa        first column, from 0
    ///          aValori    one entry for each column from nDa on
    virtual void ValoriIniziali(std::size_t nDa, std::span<std::int32_t> aValori) = 0;

    /// How many columns to ask for at once, so that a user's stop is not kept waiting.
    [[nodiscard]] virtual std::size_t Blocco() const noexcept = 0;

    /// How many uncovered columns other than i column i covers now.
    [[nodiscard]] virtual std::int32_t Valore(std::size_t i) = 0;

    /// Covers i and all that it covers. Ended before its time, it has covered i, and no column that i does not cover.
    virtual void Scegli(std::size_t i) = 0;

    [[nodiscard]] virtual bool Coperta(std::size_t i) const = 0;

protected:
    explicit Copertura(Continua continua) : m_Continua(std::move(continua)) {}

    /// May the work go on?
    [[nodiscard]] bool Avanti() const { return !m_Continua || m_Continua(); }

private:
    Continua m_Continua;
};

/// The forms of a coverage.
enum class eCopertura : std::uint8_t { piana, fette, sottoinsiemi };

/// Does every column hold each of its numbers once? Only then may another form than the plain one be made.
[[nodiscard]] bool SenzaRipetizioni(std::span<const Colonna> aColonne, std::int16_t nClasse) noexcept;

/// The form that is fastest for a problem.
[[nodiscard]] eCopertura FormaMigliore(const ProblemaRiduzione& problema);

/// May a problem be put to a form? The plain one takes all of them.
[[nodiscard]] bool Ammessa(eCopertura forma, const ProblemaRiduzione& problema);

/// Takes    forma      one that is Ammessa
///          continua   asked from now on; none: nothing ends the work
/// Fails    7
[[nodiscard]] std::unique_ptr<Copertura> CreaCopertura(eCopertura forma, const ProblemaRiduzione& problema,
                                                       Continua continua = {});

} // namespace ordavel
