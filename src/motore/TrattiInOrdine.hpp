// TrattiInOrdine.hpp - who walks which stretch of an enumeration, and when what it gave is written.
//
// Several threads ask for their next task. One of them at a time writes the stretch in front, when it is done; the others
// take the first stretch that nobody has. They wait when they are too far ahead of the writing. A stretch that was cut
// off leaves its rest to whoever comes next, and tells how long the next ones had better be.

#pragma once

#include "motore/CamminataTratto.hpp"

#include <condition_variable>
#include <list>
#include <mutex>

namespace ordavel {

/// How stretches are cut and held.
struct LimitiCoda {
    std::int64_t nPrimoTratto = 20000;    ///< columns of the first stretches
    std::size_t nTenuteInAttesa = 800000; ///< columns that pass and may wait for the writing, about
    std::size_t nTrattiInAttesa = 1000;   ///< the same, of stretches
};

class TrattiInOrdine {
public:
    /// Takes    nColonne   of the whole enumeration
    ///          bFerma     once it is set every task is the last; outlives the object
    TrattiInOrdine(std::int64_t nColonne, const LimitiCoda& limiti, const std::atomic<bool>& bFerma);

    enum class eStato : std::uint8_t { libero, preso, fatto, inScrittura };
    struct Tratto {
        std::int64_t nDa = 0;
        std::int64_t nA = 0; ///< one behind the last column
        eStato stato = eStato::libero;
        TrattoFatto fatto{};
    };

    /// The next task. It blocks as long as there is none and others may make one.
    /// Gives    a stretch to walk («preso»), one to write («inScrittura»), or null at the end
    [[nodiscard]] Tratto* Prossimo();

    /// A stretch was walked.
    void Camminato(Tratto& tratto, TrattoFatto fatto);
    /// A stretch was written.
    void Scritto();
    /// Nothing more is to be done.
    void Finisci();

private:
    using Posto = std::list<Tratto>::iterator;

    [[nodiscard]] Posto Scegli();
    [[nodiscard]] bool Troppi() const noexcept;
    void Spezza(Posto tratto, std::int64_t nA);

    LimitiCoda m_Limiti;
    const std::atomic<bool>& m_bFerma;
    std::mutex m_Serratura;
    std::condition_variable m_Cambiato;
    std::list<Tratto> m_aTratti; ///< without a gap, up to the last column
    std::int64_t m_nTratto;      ///< columns of the next stretch
    std::size_t m_nInAttesa = 0; ///< columns that wait for the writing
    bool m_bFinito = false;
};

} // namespace ordavel
