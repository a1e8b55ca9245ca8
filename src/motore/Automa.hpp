// Automa.hpp - a condition as an automaton over the picks: what follows a beginning, and how much of it.
//
// Words. «place»: index of a pick, from 0. «mask»: one bit for each place, place 0 the highest (bit picks - 1), so that
// a low word serves all places but the first few of many picks. «row»: the masks that follow a beginning of class - 2
// numbers, one for each place of the next-to-last number; each holds the places of the last number, all of them above.
//
// All states are made once, length by length. Each keeps a beginning that leads to it; the verdicts are those of the
// plain form on that beginning, so that nothing is worked out twice and nothing is defined twice. From them the counts
// follow backwards: how many columns behind a state pass and recover, when all further numbers come from some place on.
// Rows are made when they are first asked for.

#pragma once

#include "ordavel/StatoSviluppo.hpp"

#include "motore/Maschera.hpp"
#include "motore/ModChiavi.hpp"

#include <deque>
#include <functional>
#include <limits>
#include <memory>
#include <span>
#include <unordered_map>
#include <vector>

namespace ordavel {

/// How many columns there are of a kind.
struct Conti {
    std::uint64_t nOk = 0;  ///< that pass
    std::uint64_t nRec = 0; ///< inside the recovery zone; of kind 17 only those that do not pass

    [[nodiscard]] friend Conti operator+(Conti a, Conti b) noexcept
    {
        return {a.nOk + b.nOk, a.nRec + b.nRec};
    }
    [[nodiscard]] friend Conti operator-(Conti a, Conti b) noexcept
    {
        return {a.nOk - b.nOk, a.nRec - b.nRec};
    }
    [[nodiscard]] friend bool operator==(Conti, Conti) = default;
};

/// What the last number decides: the places of it that pass, recover and fail.
struct Verdetti {
    Maschera ok;
    Maschera rec;
    Maschera rotti;
};

struct RigaAutoma {
    MaschereRiga ok;
    MaschereRiga rec;       ///< columns inside the recovery zone; of kind 17 only those that do not pass
    Maschera rotti;         ///< next-to-last places of which some column fails
    bool bRecuperi = false; ///< rec is not empty
};

class Automa {
public:
    /// May the work go on? Asked every few microseconds.
    using Continua = std::function<bool()>;

    /// Takes    record     a condition that is no link
    ///          nClasse    2..10
    ///          aScelti    the picks, ascending, at most 90
    ///          stato      draws of the emulator
    Automa(const RecordCondizione& record, std::int16_t nClasse, std::span<const std::uint8_t> aScelti,
           const StatoSviluppo& stato);

    Automa(Automa&&) = default;
    Automa& operator=(Automa&&) = default;
    Automa(const Automa&) = delete;
    Automa& operator=(const Automa&) = delete;
    ~Automa() = default;

    /// Makes the states and the counts. There are none afterwards when the kind has no key, or when they would take too
    /// much.
    /// Takes    nByte      what states, counts and verdicts may take
    /// Gives    false when it was not to go on; the automaton is then without states
    [[nodiscard]] bool Prepara(
        std::size_t nByte, const Continua& continua = [] { return true; });

    /// Are there states? Otherwise a row is made for a beginning, not for a state.
    [[nodiscard]] bool ConStati() const noexcept { return !m_aLivelli.empty(); }

    /// Another one with the same states, which are not copied, and rows of its own. Two threads may use one each.
    [[nodiscard]] Automa Gemello() const { return Automa(*this, Condivisi{}); }

    /// The state before any number.
    static constexpr std::uint32_t kIniziale = 0;

    /// The state behind one more number, as long as less than class - 1 are there.
    /// Takes    nPosto   above those of the beginning, with places enough above for the numbers that are missing
    [[nodiscard]] std::uint32_t Passo(std::uint32_t nStato, std::size_t nPosto) const noexcept
    {
        return m_aPassi[nStato * m_aScelti.size() + nPosto];
    }

    /// Columns behind a state whose further numbers all come from nPosto on, a place above those of the beginning.
    [[nodiscard]] Conti ContiDa(std::uint32_t nStato, std::size_t nPosto) const noexcept
    {
        if (nStato >= m_aLivelli.back()) {
            const Maschera posti = PostiDa(m_aScelti.size(), nPosto);
            const Verdetti& verdetti = VerdettiDi(nStato);
            return {QuantiBit(verdetti.ok & posti), QuantiBit(verdetti.rec & posti)};
        }
        const std::size_t n = nStato * (m_aScelti.size() + 1) + nPosto;
        return {m_aOk[n], m_aRec.empty() ? 0 : m_aRec[n]};
    }
    /// Those of them that pass, behind less than class - 1 numbers.
    [[nodiscard]] std::uint64_t OkDa(std::uint32_t nStato, std::size_t nPosto) const noexcept
    {
        return m_aOk[nStato * (m_aScelti.size() + 1) + nPosto];
    }

    /// Does one of those columns fail?
    [[nodiscard]] bool RottiDa(std::uint32_t nStato, std::size_t nPosto) const noexcept
    {
        return nPosto < m_aRottiFino[nStato];
    }

    /// What the last number decides behind a state of class - 1 numbers. Valid for places above those of the beginning.
    [[nodiscard]] const Verdetti& VerdettiDi(std::uint32_t nStato) const noexcept
    {
        return m_aVerdetti[nStato - m_aLivelli.back()];
    }

    /// The row of a state behind class - 2 numbers.
    [[nodiscard]] const RigaAutoma& Riga(std::uint32_t nStato)
    {
        const RigaAutoma* riga = m_aRighe[nStato - m_aLivelli[Livelli() - 2]];
        return riga != nullptr ? *riga : NuovaRiga(nStato);
    }

    /// The row of a beginning of class - 2 numbers whose last place is in front of nPrimo, for a kind without states.
    /// It stays until the next call.
    [[nodiscard]] const RigaAutoma& RigaDi(const Colonna& inizio, std::size_t nPrimo);

    [[nodiscard]] std::size_t Scelti() const noexcept { return m_aScelti.size(); }
    [[nodiscard]] std::size_t Classe() const noexcept { return static_cast<std::size_t>(m_nClasse); }

private:
    static constexpr std::uint32_t kIgnoto = std::numeric_limits<std::uint32_t>::max();

    /// A beginning that leads to a state.
    struct Stato {
        Colonna inizio;
        std::uint64_t nChiave = 0;
        std::size_t nPrimo = 0; ///< the first place that may follow any of the beginnings that lead here
    };
    /// States of the length that is being made, by key.
    struct Indice {
        std::vector<std::uint32_t> aPiccole; ///< keys below its size
        std::unordered_map<std::uint64_t, std::uint32_t> aGrandi;
    };
    /// What does not change any more once it is made.
    struct Tavole {
        std::vector<std::uint32_t> aPassi;
        std::vector<std::uint64_t> aOk;
        std::vector<std::uint64_t> aRec;
        std::vector<std::uint8_t> aRottiFino;
        std::vector<Verdetti> aVerdetti;
    };
    struct Condivisi {};
    /// What each place adds to the key at the present position; empty when that depends on the beginning.
    using Aggiunte = std::vector<std::uint64_t>;

    Automa(const Automa& altro, Condivisi condivisi);

    void Esponi() noexcept;
    [[nodiscard]] std::size_t Livelli() const noexcept { return m_aLivelli.size(); }
    [[nodiscard]] std::size_t FinePosti(std::size_t nDati) const noexcept;
    [[nodiscard]] bool CreaStati(std::size_t nByte, const Continua& continua);
    [[nodiscard]] bool CreaLivello(std::size_t nDati, std::size_t nByte, const Continua& continua);
    [[nodiscard]] std::size_t ByteUsati() const noexcept;
    [[nodiscard]] Aggiunte AggiunteDi(std::size_t nDati) const;
    [[nodiscard]] std::uint64_t ChiaveDopo(const Stato& stato, const Colonna& dopo, std::size_t nDati,
                                           std::size_t nPosto, const Aggiunte& aAggiunte) const;
    [[nodiscard]] static std::uint32_t& Trova(Indice& indice, std::uint64_t nChiave);
    void CreaPassi(std::uint32_t nStato, std::size_t nDati, const Aggiunte& aAggiunte, Indice& indice);
    [[nodiscard]] bool CreaVerdetti(const Continua& continua);
    [[nodiscard]] bool CreaConti(const Continua& continua);
    void ContaVerdetti(std::uint32_t nStato);
    void ContaStato(std::uint32_t nStato, std::size_t nDati);
    void PoniConti(std::uint32_t nStato, std::size_t nPosto, Conti conti) noexcept;
    void Abbandona();
    const RigaAutoma& NuovaRiga(std::uint32_t nStato);
    [[nodiscard]] Verdetti Giudica(const Colonna& inizio, std::size_t nDa);
    void Unisci(RigaAutoma& riga, std::size_t nPosto, const Verdetti& verdetti) const;

    std::int16_t m_nClasse;
    eChiave m_Forma;
    std::vector<std::uint8_t> m_aScelti;
    StatoSviluppo m_Prova; ///< the one condition, for the plain form
    std::vector<Stato> m_aStati;
    std::vector<std::uint32_t> m_aLivelli; ///< first state of each length
    std::shared_ptr<Tavole> m_Tavole = std::make_shared<Tavole>();
    // What the tables hold, where they are read.
    std::span<const std::uint32_t> m_aPassi; ///< [states * picks]
    std::span<const std::uint64_t>
        m_aOk; ///< [states up to length class - 2, * (picks + 1)], from each place on
    std::span<const std::uint64_t> m_aRec; ///< the same, or empty when there are none
    std::span<const std::uint8_t> m_aRottiFino;
    std::span<const Verdetti> m_aVerdetti;   ///< [states of length class - 1]
    std::vector<const RigaAutoma*> m_aRighe; ///< [states of length class - 2]
    std::deque<RigaAutoma> m_aFatte;
    RigaAutoma m_Volante;
};

} // namespace ordavel
