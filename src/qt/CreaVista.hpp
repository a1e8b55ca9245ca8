// CreaVista.hpp - from a dialog to its window, by the dialog's name.

#pragma once

#include "qt/VistaDialogo.hpp"

#include <memory>
#include <span>
#include <string_view>

namespace ordavel::qt {

/// Makes the window of a dialog, laid out and bound, not yet shown.
/// Fails    438: there is none for a dialog of that name
[[nodiscard]] std::unique_ptr<VistaDialogo> CreaVista(Dialogo& dialogo, PiattaformaQt& piattaforma,
                                                      QWidget* padre);

/// One row of a table of windows.
struct RigaVista {
    std::string_view sNome; ///< of the dialog
    std::unique_ptr<VistaDialogo> (*crea)(Dialogo& dialogo, PiattaformaQt& piattaforma, QWidget* padre);
};

/// What makes a `Vista` of a `Logica`. The name of a dialog tells its type.
template <typename Vista, typename Logica>
std::unique_ptr<VistaDialogo> Crea(Dialogo& dialogo, PiattaformaQt& piattaforma, QWidget* padre)
{
    return std::make_unique<Vista>(static_cast<Logica&>(dialogo), piattaforma, padre);
}

/// The windows of the special dialogs of conditions; the common ones share one, by TabellaDialoghi().
[[nodiscard]] std::span<const RigaVista> VisteEditor() noexcept;
/// The windows of all other dialogs.
[[nodiscard]] std::span<const RigaVista> VisteSistema() noexcept;

} // namespace ordavel::qt
