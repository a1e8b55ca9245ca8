// Dialogo.hpp - what every dialog has for a desktop: its name, its caption, whether it is shown, its tag.
//
// A dialog is made, filled, shown and read by whoever needs its answer; it lives for one use. The tag is the
// answer in short: empty for a dialog that was cancelled or not yet confirmed, anything else for a confirmed one.

#pragma once

#include "ordavel/Controlli.hpp"

#include <functional>
#include <string>
#include <string_view>
#include <utility>

namespace ordavel {

class ORDAVEL_EXPORT Dialogo {
public:
    /// Takes    sNomeDialogo     the name by which a view knows it, "F_PuntiSuPeso"
    ///          sTitoloDialogo   caption
    Dialogo(std::string_view sNomeDialogo, std::string_view sTitoloDialogo);
    Dialogo(const Dialogo&) = delete;
    Dialogo& operator=(const Dialogo&) = delete;
    virtual ~Dialogo();

    /// The desktop shows it; then, and again when it is shown again, its activation runs.
    void Mostra();

    /// Hides it, with its answer.
    void Nascondi(std::string_view sTagNuovo);

    /// May its window be closed now? A desktop asks before it lets a user close it.
    [[nodiscard]] virtual bool PuoChiudersi() const { return true; }

    /// What its window does when the dialog is no more; its controls are gone by then.
    void AlTermine(std::function<void()> azione) { m_AlTermine = std::move(azione); }

    const std::string sNome;
    const std::string sTitolo;
    Stato<bool> Visibile{false};
    std::string sTag;
    bool bSempreDavanti = false; ///< it stays on top of all other windows

protected:
    /// What happens when it comes to the front.
    virtual void AllaMostra() {}

private:
    std::function<void()> m_AlTermine;
};

} // namespace ordavel
