// CamminataTratto.hpp - the columns of a stretch of the enumeration that pass, block by block.

#pragma once

#include "motore/SviluppoBlocchi.hpp"

#include <atomic>
#include <chrono>

namespace ordavel {

/// When a stretch is cut off where it has come to.
struct LimitiTratto {
    std::size_t nTenute = 100000;            ///< columns that pass; those of one block may come on top
    std::chrono::microseconds durata{10000}; ///< time that it takes, about
};

/// A stretch that was walked.
struct TrattoFatto {
    std::int64_t nFine = 0;          ///< one behind its last column
    std::int64_t nGuardate = 0;      ///< columns of the blocks that were looked at
    std::vector<Colonna> aTenute;    ///< that pass, in order, before they are thinned
    std::vector<ContiTratto> aConti; ///< of conditions that count in blocks
    bool bFallisce = false;          ///< the block behind it holds a column that fails
    bool bLungo = false;             ///< it took a good part of the time that it may
};

/// One who walks stretches, in any order. Several may walk at once, each with an object of its own.
class CamminataTratto {
public:
    /// Takes    corsa    of which BlocchiPossibili is true
    ///          stato    as it is before the first column; outlives the object, and stays as it is while stretches are
    ///                   walked
    ///          bFerma   once it is set every stretch is cut off, and the making of the object as well
    ///          modello   one of the same run that was not interrupted: what can be shared is shared
    CamminataTratto(const CorsaBlocchi& corsa, StatoSviluppo& stato, const LimitiTratto& limiti,
                    const std::atomic<bool>& bFerma, const CamminataTratto* modello = nullptr);

    /// The conditions; of no use when they were interrupted.
    [[nodiscard]] CondizioniBlocchi& Condizioni() noexcept { return m_Condizioni; }

    /// Walks the columns nDa to nA - 1, or those in front of a limit. At least one block is looked at, unless it fails or
    /// a stop has come.
    [[nodiscard]] TrattoFatto Cammina(std::int64_t nDa, std::int64_t nA);

private:
    using Seguito = CondizioniBlocchi::Seguito;
    using Orologio = std::chrono::steady_clock;

    [[nodiscard]] bool Basta();
    [[nodiscard]] bool Scendi(std::size_t nDati, std::size_t nDa, std::int64_t nInizio, Seguito seguito);
    [[nodiscard]] bool GuardaBlocco(std::size_t nPrimo, std::int64_t nInizio, Seguito seguito);
    void Tieni(std::size_t nPrimo, const MaschereRiga& attive);
    void TieniParola(Colonna& colonna, std::uint64_t nParola, const std::uint8_t* aNumeri);

    std::vector<std::uint8_t> m_aScelti;
    std::size_t m_nClasse;
    const LimitiTratto& m_Limiti;
    const std::atomic<bool>& m_bFerma;
    CondizioniBlocchi m_Condizioni;
    std::array<std::uint8_t, 128> m_aPerBit{}; ///< number of each bit of a mask
    MaschereRiga m_Tutte;                      ///< all columns of a beginning
    MaschereRiga m_Alcune;                     ///< some of them
    MaschereRiga m_Tenute;
    Colonna m_Inizio;           ///< the numbers of the present beginning
    std::int64_t m_nRango = 0;  ///< the next column
    std::int64_t m_nInizio = 0; ///< the first of the stretch
    std::int64_t m_nFine = 0;   ///< one behind the last
    bool m_bRiprendi = false;   ///< blocks were passed over, or not walked here
    std::size_t m_nPassi = 0;
    Orologio::time_point m_Partenza;
    TrattoFatto m_Fatto;
};

} // namespace ordavel
