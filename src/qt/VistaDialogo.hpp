// VistaDialogo.hpp - the window of a dialog: shown while its dialog is, closed only when that may be.

#pragma once

#include "editor/DialogoConferma.hpp"
#include "qt/Legami.hpp"

#include <QDialog>

#include <cstdint>

class QBoxLayout;
class QPushButton;

namespace ordavel::qt {

class PiattaformaQt;

/// What every window of a dialog shares. A view derives from it, lays its widgets out and binds each through
/// legami(); it decides nothing.
class VistaDialogo : public QDialog {
    Q_OBJECT

public:
    /// Takes    dialogo       may end before its window, which is then cut off and goes; so is an older window of
    ///                        it, now
    ///          piattaforma   outlives it
    VistaDialogo(Dialogo& dialogo, PiattaformaQt& piattaforma, QWidget* padre);
    ~VistaDialogo() override;

    /// Is its dialog no more?
    [[nodiscard]] bool Finita() const noexcept { return m_Dialogo == nullptr; }

    /// Esc, and the window's own button: as the user may close it.
    void reject() override;

protected:
    [[nodiscard]] Legami& legami() noexcept { return m_Legami; }
    [[nodiscard]] PiattaformaQt& piattaforma() const noexcept { return m_Piattaforma; }

    void closeEvent(QCloseEvent* evento) override;

    /// Adds the row of buttons below everything: "CONFERMA" (the default), "CHIUDI" and, on wish, "STATISTICA" in
    /// front of them.
    void AggiungiPulsanti(DialogoConferma& dialogo, QBoxLayout* sotto, bool bStatistica = false);

    /// A button of its own, named for tests and for who cannot see it.
    /// Takes    sNome    object name
    ///          sTesto   caption, with its mnemonic
    QPushButton* NuovoPulsante(const QString& sNome, const QString& sTesto);

private:
    void TagliaAltre();
    void SegueVisibile(bool bVisibile);
    void DialogoFinito();

    Dialogo* m_Dialogo; ///< null once it is no more
    PiattaformaQt& m_Piattaforma;
    Legami m_Legami;
};

} // namespace ordavel::qt
