// DialogoConferma.hpp - a dialog of the system: a way to the component, and the buttons CONFERMA and CHIUDI.

#pragma once

#include "ordavel/Dialogo.hpp"

#include "editor/OspiteDialoghi.hpp"

#include <cstdint>
#include <string>
#include <string_view>

namespace ordavel {

/// Tags of a confirmed dialog: by the user, by a parameter string.
inline constexpr std::string_view kTagConfermato = "ooo";
inline constexpr std::string_view kTagRiempito = "ttt";

/// The buttons, by their indices; only the dialogs of conditions have the third.
enum class ePulsanteDialogo : std::uint8_t { conferma = 0, chiudi = 1, statistica = 2 };

class ORDAVEL_EXPORT DialogoConferma : public Dialogo {
public:
    DialogoConferma(OspiteDialoghi& ospite, std::string_view sNomeDialogo, std::string_view sTitoloDialogo);

    /// A button. CONFERMA: when the coherence test passes, the dialog hides with its tag. CHIUDI: it hides without
    /// one. STATISTICA: shows the statistic of the kind, and changes nothing.
    void Premi(ePulsanteDialogo pulsante);

    /// Tests the state and shows the last of the messages that it has collected.
    [[nodiscard]] virtual bool VerificaCoerenza();

protected:
    /// The message of the last failing test; empty when all pass.
    [[nodiscard]] virtual std::string MessaggioCoerenza() const { return {}; }
    /// What CONFERMA does once the test has passed.
    virtual void Conferma() { Nascondi(kTagConfermato); }
    virtual void MostraStatistica() {}

    [[nodiscard]] OspiteDialoghi& Ospite() const noexcept { return m_Ospite; }

private:
    OspiteDialoghi& m_Ospite;
};

} // namespace ordavel
