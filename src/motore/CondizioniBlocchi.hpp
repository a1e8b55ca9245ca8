// CondizioniBlocchi.hpp - all conditions of a run, on their way down the beginnings.
//
// A condition takes part in three ways. It may rule out what follows a beginning before anybody looks at it, by the
// counts of its automaton. It gives its row of masks to a block that is looked at. And it counts: by its automaton, up to
// any column, without the walk; or, when its counts do not follow from the numbers alone, in each block.
//
// Two kinds of walk use it. One goes from the first column to the last. Several others, each with conditions of its own,
// take stretches of the enumeration (DividiInTratti): they may begin anywhere and pass over what needs no look, and what
// they count in blocks is handed out (PrendiConti) and summed up by whoever knows the order.

#pragma once

#include "motore/ContiAutoma.hpp"
#include "motore/ContiCompagni.hpp"
#include "motore/NucleiBlocchi.hpp"
#include "motore/RigheVolanti.hpp"

#include <deque>
#include <optional>
#include <span>
#include <vector>

namespace ordavel {

/// What a condition that counts in each block has counted on a stretch.
struct ContiTratto {
    Conti conti;
    std::uint64_t nOkAlRecupero = 0; ///< of a pair: `nOk` at the last column that recovered
    bool bRiporto = false;           ///< of a pair: recovery verdict of the last column, if one does not pass
};

class CondizioniBlocchi {
public:
    /// Takes    aScelti   the picks, ascending, at least nClasse and at most 90
    ///          nClasse   2..10
    ///          stato     compiled conditions, as they are before the first column; outlives it
    ///          nByte     what the automata of all conditions may take together
    ///          continua  as for Automa::Prepara; once it says no, nothing may be asked for but Interrotte
    ///          modello   another one of the same run, for the same stretches of work by another thread: its automata
    ///                    are shared, and `nByte` and `continua` have no say
    CondizioniBlocchi(std::span<const std::uint8_t> aScelti, std::int16_t nClasse, StatoSviluppo& stato,
                      eNucleo nucleo, std::size_t nByte, const Automa::Continua& continua,
                      const CondizioniBlocchi* modello = nullptr);

    [[nodiscard]] bool Interrotte() const noexcept { return m_bInterrotte; }

    /// Is it known that no column passes?
    [[nodiscard]] bool Vuote() const noexcept { return m_bVuote; }

    /// Is it known that some column of the run fails?
    [[nodiscard]] bool Falliscono() const noexcept { return m_bFalliscono; }
    /// The first such column; nothing when none is known.
    [[nodiscard]] std::optional<PostiColonna> PrimaRotta() const;

    /// Must every block be looked at, for the counters of some condition?
    [[nodiscard]] bool OgniBlocco() const noexcept { return m_bOgniBlocco; }

    /// Is there a condition whose verdict on a column hangs on all columns in front of it, and cannot be known without
    /// them? Then stretches must be walked one behind the other.
    [[nodiscard]] bool InCatena() const;

    /// From now on stretches are walked.
    /// Takes    bGuardaTutto   conditions that count in blocks alone must see every block
    /// Gives    false when some of them then do not
    [[nodiscard]] bool DividiInTratti(bool bGuardaTutto);

    /// A stretch goes on behind so many columns, of which others saw the last.
    /// Takes    aUltimi   places of the last of them
    void RiprendiDa(std::uint64_t nColonne, const PostiColonna& aUltimi);
    /// Is RiprendiDa of any use?
    [[nodiscard]] bool DaRiprendere() const noexcept { return !m_aSempre.empty(); }

    /// What was counted in blocks since the last time, by condition.
    [[nodiscard]] std::vector<ContiTratto> PrendiConti();

    /// Puts in place what all stretches counted in blocks, for PoniConti.
    /// Takes    aConti      as PrendiConti gives them
    ///          nGuardate   columns of all blocks that were looked at
    void PoniContiTratti(std::span<const ContiTratto> aConti, std::uint64_t nGuardate);

    /// What a number more means to the columns behind it.
    struct Seguito {
        bool bVuoto = false; ///< none of them passes
        bool bPieno = false; ///< all of them pass
    };
    /// One more number behind a beginning.
    /// Takes    nDati    numbers there are, up to class - 3
    ///          nPosto   place of the new one
    ///          prima    what was known of the beginning without it
    [[nodiscard]] Seguito Passo(std::size_t nDati, std::size_t nPosto, Seguito prima);

    /// Has the row of each condition ready that counts in every block.
    /// Takes    inizio   class - 2 numbers
    ///          nPrimo   first place that may follow
    /// Gives    false when some column of the block fails
    [[nodiscard]] bool PrendiRighe(const Colonna& inizio, std::size_t nPrimo);

    /// The columns of the block that pass, from PrendiRighe on.
    /// Gives    false when there are none; then `tenute` is not to be read
    [[nodiscard]] bool Giudica(std::size_t nPrimo, MaschereRiga& tenute);
    [[nodiscard]] std::uint64_t QuantePassano(std::size_t nPrimo);

    /// Counts the block, or some columns of it, where conditions count in every block; behind the judgement of it.
    void ContaBlocco(std::size_t nPrimo, const MaschereRiga& attive);

    /// Writes the counters into the records.
    /// Takes    nColonne   columns examined
    ///          aPosti     places of the last of them
    void PoniConti(std::uint64_t nColonne, const PostiColonna& aPosti);

    /// Writes what the last column left in each record but the counters.
    void PoniUltimiValori(const Colonna& ultima);

    /// Takes over from the records what a stretch of columns through the plain form left.
    void RiprendiConti();

private:
    struct Condizione {
        explicit Condizione(Automa automaNuovo) : automa(std::move(automaNuovo)), conti(automa) {}

        std::optional<RigheVolanti> volanti;   ///< of a kind without keys, when there is a fast form
        std::optional<ContiCompagni> compagni; ///< of stretches: counts numbers and their partners
        Automa automa;
        ContiAutoma conti;
        MaschereRiga tramandati;           ///< of a pair: recovery verdicts, those handed on included
        std::vector<std::uint32_t> aStati; ///< state behind each number of the beginning
        const RigaAutoma* riga = nullptr;  ///< of the present block
        std::size_t nRecord = 0;
        Conti contati;                   ///< up to the last column
        std::uint64_t nOkAlRecupero = 0; ///< of a pair: `nOk` at the last column that recovered
        eRuolo ruolo = eRuolo::libero;
        bool bCoppia = false;     ///< its recovery verdict may be that of the column before
        bool bOgniBlocco = false; ///< has its row ready for every block
        bool bContata = false;    ///< counts in every block
        bool bRiporto = false;    ///< of a pair: recovery verdict of the last column
    };

    void CreaCondizioni(std::span<const std::uint8_t> aScelti, eNucleo nucleo, std::size_t nByte,
                        const Automa::Continua& continua, const CondizioniBlocchi* modello);
    [[nodiscard]] Automa CreaAutoma(std::size_t nRecord, std::span<const std::uint8_t> aScelti,
                                    std::size_t nByte, const Automa::Continua& continua);
    void OrdinaCondizioni();
    [[nodiscard]] const RigaAutoma& RigaDi(Condizione& condizione) const;
    [[nodiscard]] const RigaAutoma& RigaDelBlocco(Condizione& condizione, const Colonna& inizio,
                                                  std::size_t nPrimo) const;
    void RaccogliRighe();
    void RaccogliVerdetto(std::size_t nPrimo);
    void CreaRigheFisse();
    void Tramanda(Condizione& condizione, std::size_t nPrimo) const;
    void ContaCoppia(Condizione& condizione, std::size_t nPrimo, const MaschereRiga& attive) const;
    void ContaRighe(Condizione& condizione, std::size_t nPrimo, const MaschereRiga& attive) const;
    static void ContaFinoA(Condizione& condizione, const PostiColonna& aPosti, std::size_t nDiversi);
    [[nodiscard]] bool RiportoDopo(const Condizione& condizione, std::uint64_t nColonne, Conti conti) const;
    void PoniConti(const Condizione& condizione);

    StatoSviluppo& m_Stato;
    std::vector<RecordCondizione> m_aPrima; ///< the records before the first column
    PianoVerdetto m_Piano;
    LavoroVerdetto m_Lavoro;
    const NucleoBlocchi& m_Nucleo;
    std::vector<std::uint8_t> m_aScelti;
    std::size_t m_nScelti;
    std::int16_t m_nClasse;
    std::deque<Condizione> m_aCondizioni; ///< they stay where they are
    std::vector<Condizione*> m_aPassi;    ///< with states, counted by them; those that rule out most in front
    std::vector<Condizione*> m_aSempre;   ///< with states, counted in every block
    std::vector<Condizione*> m_aOgniBlocco;
    std::vector<Condizione*> m_aContate; ///< counted in every block
    std::vector<Condizione*> m_aIndispensabili;
    std::vector<Condizione*> m_aNelVerdetto; ///< that groups and links read
    MaschereRiga m_Tutte;                    ///< all columns of a beginning
    MaschereRiga m_Nessuna;
    MaschereRiga m_Tenute;
    std::vector<const MaschereRiga*> m_aRighe; ///< of the block, of conditions that must hold
    std::vector<const MaschereRiga*> m_aOk;    ///< of the block, by record
    std::vector<const MaschereRiga*> m_aRec;
    std::uint64_t m_nColonne = 0; ///< of the last PoniConti
    std::optional<std::uint64_t>
        m_nGuardate;         ///< columns that conditions counted in blocks have seen, if not all
    PostiColonna m_Ultimi{}; ///< the same
    bool m_bInterrotte = false;
    bool m_bVuote = false;
    bool m_bPiene = false; ///< may all columns behind a beginning be known to pass?
    bool m_bFalliscono = false;
    bool m_bOgniBlocco = false;
};

} // namespace ordavel
