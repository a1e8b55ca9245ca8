// RigheEmulate.hpp - rows of the emulator, made for one beginning after the other.

#pragma once

#include "motore/NucleiEmulate.hpp"

namespace ordavel {

class RigheEmulate {
public:
    /// Is there a fast form for so many draws? The metric itself takes another way with more.
    [[nodiscard]] static bool Adatte(const RigheEmulatore& righe) noexcept;

    /// Takes    record    of kind 26
    ///          nClasse   2..10
    ///          aScelti   the picks, ascending, 2 to 90 of the numbers 1 to 90
    ///          righe     draws for which Adatte; not kept
    ///          nucleo    one that this processor has
    RigheEmulate(const RecordCondizione& record, std::int16_t nClasse, std::span<const std::uint8_t> aScelti,
                 const RigheEmulatore& righe, eNucleo nucleo);

    /// The row of a beginning; it stays until the next call. What the beginning shares with that of the call before is
    /// not worked out again.
    /// Takes    inizio   class - 2 of the picks, ascending
    ///          nPrimo   the first place of the next-to-last number; words in front of it hold anything
    [[nodiscard]] const RigaAutoma& Riga(const Colonna& inizio, std::size_t nPrimo);

private:
    void LeggiSoglie(const RecordCondizione& record);
    void LeggiEstrazioni(const RigheEmulatore& righe, std::span<const std::uint8_t> aScelti);
    void ContaCoppie();
    void ContaTerne();
    void CreaTappe();
    void Segui(const Colonna& inizio);
    void CreaTronco(std::size_t nPrimo);
    [[nodiscard]] bool ScegliSoglie(const QuanteEstrazioni& aQuante);
    [[nodiscard]] QuanteEstrazioni QuanteDietro(std::size_t nPosto) const;
    void Riempi(std::size_t nPrimo, bool bTutte);

    LavoroEmulate m_Lavoro;
    EstrazioniPerPosto m_Estrazioni;
    std::size_t m_nEstrazioni;
    std::size_t m_nTronco; ///< numbers of a stem
    const NucleoEmulate* m_Nucleo;
    std::vector<Soglia> m_aSoglie;            ///< bounds that some column might break
    std::vector<std::size_t> m_aSoglieInizio; ///< those that some column of the beginning might break
    std::vector<Tappa> m_aTappe;              ///< of the stem: behind 0, 1 ... numbers
    FileTronco m_File;
    std::size_t m_nFatti = 0; ///< so many numbers of the last stem have their stage
    RigaAutoma m_Riga;
    Colonna m_Inizio; ///< the last beginning
    std::int16_t m_nClasse;
    bool m_bMai = false;                               ///< no count keeps its bounds
    bool m_bTronco = false;                            ///< m_File is made
    Tabella<std::uint8_t, 0, kNumeroMassimo> m_aPosti; ///< by number: its place among the picks
};

} // namespace ordavel
