// DoppioControllo.hpp - a second opinion on the block form, for builds that are made to find faults.
//
// It owns a state of its own and walks through the same columns with the plain form, one by one. What the block form says
// of them must be the same; a difference is a fault of this library and ends the run. It costs what the plain form
// costs, so that the engine holds one only where kDoppioControllo says so.

#pragma once

#include "ordavel/StatoSviluppo.hpp"

#include "motore/ModSviluppo.hpp"

#include <cstdint>
#include <string>
#include <vector>

namespace ordavel {

#if defined(ORDAVEL_DOPPIO_CONTROLLO)
inline constexpr bool kDoppioControllo = true;
#else
inline constexpr bool kDoppioControllo = false;
#endif

/// What of the records is compared: a refresh may leave the values of the last column to the end of the run.
enum class eConfronto : std::uint8_t { tutto, soliConti };

class DoppioControllo {
public:
    /// Takes    aNumeri   the picks, compact and ascending
    ///          nClasse   1..20
    ///          stato     as it is before the first column
    DoppioControllo(const NumeriScelti& aNumeri, std::int16_t nClasse, StatoSviluppo stato);

    /// A column that passes, in order, before it is thinned.
    void Passa(const Colonna& colonna) { m_aPassate.push_back(colonna); }

    /// Lets the plain form catch up and compares: exactly the columns handed over since the last time pass, and the
    /// records are alike.
    /// Takes    stato         of the block form; only its conditions are looked at
    ///          nSviluppate   columns examined since the start of the run
    /// Fails    std::logic_error, which no handler of failures traps: what differs, in which condition, at which column
    void Confronta(const StatoSviluppo& stato, std::int64_t nSviluppate,
                   eConfronto confronto = eConfronto::tutto);

    /// The same at the end of a run that nobody stopped: no column may be left.
    void Concludi(const StatoSviluppo& stato, std::int64_t nSviluppate);

private:
    void Esamina();
    [[nodiscard]] bool PassaOmbra();
    void ConfrontaPassata(bool bPassa);
    void ConfrontaRecord(const StatoSviluppo& stato, std::size_t nIndice, eConfronto confronto) const;
    [[nodiscard]] std::string Posto() const;

    std::int16_t m_nClasse;
    StatoSviluppo m_Ombra;
    Enumeratore m_Enumeratore;
    bool m_bPresente;                ///< there is a column at the enumerator's place
    std::int64_t m_nEsaminate = 0;   ///< by the plain form
    Colonna m_Colonna;               ///< the last of them
    std::vector<Colonna> m_aPassate; ///< handed over, not yet compared
    std::size_t m_nConfrontate = 0;  ///< of m_aPassate
};

} // namespace ordavel
