// Controlli.hpp - the state of controls: what logic reads and writes, and a view shows.
//
// A control is plain state. Logic changes it without knowing whether anybody looks; a view listens to each part
// of it and writes back what the user does. A value rings only when it really changes, so that binding both ways
// comes to rest by itself. Two may listen: the owner's rule (AlCambio), first, and one view (Ascolta).

#pragma once

#include "ordavel/esporta.hpp"
#include "ordavel/records.hpp"

#include <functional>
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
};

/// A text that the user types.
struct CasellaTesto : Controllo {
    Stato<std::string> Testo;
};

/// A check box.
struct Spunta : Controllo {
    Stato<bool> Segnata{false};
};

/// A progress bar, 0 to 100.
struct Barra : Controllo {
    Stato<std::int32_t> Valore;
};

/// A list of texts.
struct Lista : Controllo {
    Stato<std::vector<std::string>> Voci;
};

/// A drop-down list: entries, of which one or none is selected.
struct Combo : Controllo {
    Stato<std::vector<std::string>> Voci;
    Stato<std::int32_t> Indice{-1}; ///< selected entry from 0, -1 for none

    /// Takes out all entries; no selection is left, and the owner's rule does not run.
    ORDAVEL_EXPORT void Svuota();

    /// Adds an entry at the end.
    ORDAVEL_EXPORT void Aggiungi(std::string_view sVoce);

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

/// The selector of numbers: 1 to 90, each selected or not.
struct SelettoreNumeri : Controllo {
    Stato<Tabella<std::uint8_t, 1, kNumeroMassimo>> Scelti; ///< 1 for a selected number

    /// Fails    9: nNumero outside 1..90
    [[nodiscard]] ORDAVEL_EXPORT bool Scelto(std::int32_t nNumero) const;
    ORDAVEL_EXPORT void Seleziona(std::int32_t nNumero, bool bScelto);

    /// How many are selected.
    [[nodiscard]] ORDAVEL_EXPORT std::int32_t Conta() const noexcept;

    /// Selects none.
    ORDAVEL_EXPORT void Svuota();
};

} // namespace ordavel
