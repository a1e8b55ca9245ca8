// Controlli.hpp - the state of controls: what logic reads and writes, and a view shows.
//
// A control is plain state. Logic changes it without knowing whether anybody looks; a view listens to each part
// of it and writes back what the user does. A value rings only when it really changes, so that binding both ways
// comes to rest by itself. Two may listen: the owner's rule (AlCambio), first, and one view (Ascolta).

#pragma once

#include "ordavel/esporta.hpp"
#include "ordavel/records.hpp"

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace ordavel {

/// One value with a change notice.
template <typename T> class Stato {
public:
    explicit Stato(T valore = T{}) : m_Valore(std::move(valore)) {}

    [[nodiscard]] const T& Valore() const noexcept { return m_Valore; }

    /// Takes on a value, and rings when it differs from the one before.
    void Poni(T valore)
    {
        if (m_Valore == valore) {
            return;
        }
        m_Valore = std::move(valore);
        Suona(m_Regola);
        Suona(m_Vista);
    }

    /// Takes on a value without the owner's rule; the view hears of it.
    void PoniSenzaRegola(T valore)
    {
        if (m_Valore != valore) {
            m_Valore = std::move(valore);
            Suona(m_Vista);
        }
    }

    /// What the owner does at each change.
    void AlCambio(std::function<void()> regola) { m_Regola = std::move(regola); }

    /// What the one view does at each change; an empty function takes it away.
    void Ascolta(std::function<void()> vista) { m_Vista = std::move(vista); }

private:
    /// On a copy, since a listener may take itself away.
    static void Suona(const std::function<void()>& ascolto)
    {
        if (ascolto) {
            const auto copia = ascolto;
            copia();
        }
    }

    T m_Valore;
    std::function<void()> m_Regola;
    std::function<void()> m_Vista;
};

/// What every control has.
struct Controllo {
    Stato<bool> Abilitato{true};
    Stato<bool> Visibile{true};
};

/// A text that is only shown.
struct Etichetta : Controllo {
    Stato<std::string> Testo;
    Stato<std::string> Suggerimento; ///< tool tip
};

/// A button with a caption.
struct Pulsante : Controllo {
    Stato<std::string> Testo;
};

/// Calls its owner again and again while it is on. The view brings the ticks, as long as events run.
struct Temporizzatore {
    Stato<bool> Acceso{false};
    std::int32_t nMillisecondi = 0;
    std::function<void()> scatto; ///< one tick
};

/// Does a box for figures take a key? Digits, ",", Enter and Backspace pass.
[[nodiscard]] ORDAVEL_EXPORT bool SoloCifre(char32_t nTasto) noexcept;

/// A text that the user types.
struct CasellaTesto : Controllo {
    Stato<std::string> Testo;
    Stato<std::int32_t> Fuoco; ///< how often logic has asked that the user types here next
    bool bSoloCifre = false;   ///< keys are filtered; a text that logic puts here is not

    /// Does a key pass?
    [[nodiscard]] bool Accetta(char32_t nTasto) const noexcept { return !bSoloCifre || SoloCifre(nTasto); }

    void ChiediFuoco() { Fuoco.Poni(Fuoco.Valore() + 1); }
};

/// A check box.
struct Spunta : Controllo {
    Stato<bool> Segnata{false};
};

/// A progress bar, 0 to 100.
struct Barra : Controllo {
    Stato<std::int32_t> Valore;
};

/// A slider.
struct Cursore : Controllo {
    Stato<std::int32_t> Minimo;
    Stato<std::int32_t> Massimo;
    Stato<std::int32_t> Valore;
};

/// A colour as 0xBBGGRR.
using Colore = std::int32_t;

/// A text at a place of a drawing, in pixels from its upper left corner.
struct Scritta {
    std::int32_t nX = 0;
    std::int32_t nY = 0;
    Colore nColore = 0;
    std::string sTesto;

    [[nodiscard]] friend bool operator==(const Scritta&, const Scritta&) = default;
};

/// A drawing of texts. The view says how high it is.
struct Disegno : Controllo {
    Stato<std::int32_t> Altezza{40};
    Stato<std::vector<Scritta>> Scritte;
};

/// One node of a tree.
struct NodoAlbero {
    std::string sChiave;
    std::string sPadre; ///< key of its parent, empty for the root
    std::string sTesto;
    std::string sEtichetta; ///< its tag
    bool bEspanso = false;

    [[nodiscard]] friend bool operator==(const NodoAlbero&, const NodoAlbero&) = default;
};

/// A tree; a parent stands in front of its children, and these in their order.
struct Albero : Controllo {
    Stato<std::vector<NodoAlbero>> Nodi;
};

/// A list of texts.
struct Lista : Controllo {
    Stato<std::vector<std::string>> Voci;
};

/// A list of texts of which any number may be selected.
struct ListaMultipla : Lista {
    Stato<std::vector<bool>> Scelte; ///< one for each entry

    /// Adds an entry at the end, not selected.
    ORDAVEL_EXPORT void Aggiungi(std::string_view sVoce);

    /// Selects the entry nPosto, from 0, or not.
    /// Fails    9: there is none
    ORDAVEL_EXPORT void Seleziona(std::size_t nPosto, bool bScelta);
};

/// One line of a report list.
struct RigaElenco {
    std::string sChiave;
    std::string sTesto;              ///< first column
    std::vector<std::string> aSotto; ///< the columns behind it
    bool bScelta = false;
    std::size_t nColonnaColorata = 0; ///< the column behind the first, from 1, that has a colour; 0 for none
    Colore nColore = 0;

    [[nodiscard]] friend bool operator==(const RigaElenco&, const RigaElenco&) = default;
};

/// What the heading of a column shows: how the list is sorted by it.
enum class eOrdine : std::uint8_t { nessuno, crescente, decrescente };

/// A report list: headed columns, lines of which any number may be selected.
struct Elenco : Controllo {
    std::vector<std::string> aTestate;
    Stato<std::vector<eOrdine>> Icone; ///< one for each heading, or none at all
    Stato<std::vector<RigaElenco>> Righe;

    /// Selects all lines, or none.
    ORDAVEL_EXPORT void SelezionaTutte(bool bScelte);
};

/// A small sheet of texts with a current cell. Rows and columns count from 0; a negative row is none.
struct Foglio : Controllo {
    struct Posto {
        std::int32_t nRiga = -1;
        std::int32_t nColonna = 0;

        [[nodiscard]] friend bool operator==(const Posto&, const Posto&) = default;
    };

    Stato<std::vector<std::vector<std::string>>> Celle; ///< rows of equal length
    Stato<Posto> Corrente;

    /// Empties the sheet and gives it a size; no cell is current.
    ORDAVEL_EXPORT void Disponi(std::int32_t nRighe, std::int32_t nColonne);

    [[nodiscard]] std::int32_t Righe() const noexcept
    {
        return static_cast<std::int32_t>(Celle.Valore().size());
    }

    /// The text of a cell.
    /// Fails    9: there is no such cell
    [[nodiscard]] ORDAVEL_EXPORT const std::string& Testo(Posto posto) const;
    ORDAVEL_EXPORT void Scrivi(Posto posto, std::string_view sTesto);
};

/// A drop-down list: entries, of which one or none is selected.
struct Combo : Controllo {
    Stato<std::vector<std::string>> Voci;
    Stato<std::int32_t> Indice{-1}; ///< selected entry from 0, -1 for none

    /// Takes out all entries; no selection is left, and the owner's rule does not run.
    ORDAVEL_EXPORT void Svuota();

    /// Adds an entry at the end.
    ORDAVEL_EXPORT void Aggiungi(std::string_view sVoce);

    /// Adds the numbers nPrimo to nUltimo, one entry each; none when nUltimo is the smaller.
    ORDAVEL_EXPORT void AggiungiNumeri(std::int32_t nPrimo, std::int32_t nUltimo);

    /// Selects the first entry, if there is any.
    ORDAVEL_EXPORT void SelezionaPrima();

    /// Text of the selected entry; empty when none is.
    [[nodiscard]] ORDAVEL_EXPORT std::string Testo() const;

    /// Is there an entry of exactly this text?
    [[nodiscard]] ORDAVEL_EXPORT bool Contiene(std::string_view sVoce) const;
};

/// Selects an entry by its text.
///
/// The first entry that begins with the text, letters without regard to case, is selected; when it is not
/// exactly the text, an entry that is takes its place.
/// Gives    true when the selected entry is exactly the text; false when it only begins with it, and when none
///          does, which leaves no selection
ORDAVEL_EXPORT bool SelezionaCombo(std::string_view sTesto, Combo& combo);

/// One entry of a button's menu.
struct VoceMenu {
    std::string sTesto;
    std::string sChiave;
    Stato<bool> Abilitato{true};
};

/// One button of a toolbar.
struct PulsanteStrumento {
    std::string sChiave;
    std::string sSuggerimento; ///< tool tip
    std::string sImmagine;     ///< key of its image
    bool bTiene = false;       ///< a press holds it down, the next one releases it
    Stato<bool> Abilitato{true};
    Stato<bool> Premuto{false}; ///< of a button that holds
    std::vector<VoceMenu> aMenu;
};

/// A toolbar.
struct BarraStrumenti : Controllo {
    std::vector<PulsanteStrumento> aPulsanti;

    /// A button by its key, letters without regard to case.
    /// Fails    438: there is none
    [[nodiscard]] ORDAVEL_EXPORT PulsanteStrumento& Pulsante(std::string_view sChiave);

    /// A menu entry by its key, in whichever button it is.
    /// Fails    438: there is none
    [[nodiscard]] ORDAVEL_EXPORT VoceMenu& Voce(std::string_view sChiave);
};

/// The colours of a number's box; nothing where the view's own stand.
struct ColoriCasella {
    std::optional<Colore> nSfondo;
    std::optional<Colore> nTesto;

    [[nodiscard]] friend bool operator==(const ColoriCasella&, const ColoriCasella&) = default;
};

/// A yes or no for each number.
using SegniNumeri = Tabella<std::uint8_t, 1, kNumeroMassimo>;

/// The same for all numbers.
[[nodiscard]] ORDAVEL_EXPORT SegniNumeri TuttiINumeri(bool bSegno) noexcept;

/// The selector of numbers: 1 to 90, each selected or not.
struct SelettoreNumeri : Controllo {
    Stato<SegniNumeri> Scelti; ///< 1 for a selected number
    Stato<Tabella<ColoriCasella, 1, kNumeroMassimo>> Colori;
    Stato<SegniNumeri> Abilitati{TuttiINumeri(true)}; ///< 1 for a number that the user may select

    /// Fails    9: nNumero outside 1..90
    [[nodiscard]] ORDAVEL_EXPORT bool Scelto(std::int32_t nNumero) const;
    ORDAVEL_EXPORT void Seleziona(std::int32_t nNumero, bool bScelto);

    /// How many are selected.
    [[nodiscard]] ORDAVEL_EXPORT std::int32_t Conta() const noexcept;

    /// Selects none.
    ORDAVEL_EXPORT void Svuota();
};

} // namespace ordavel
