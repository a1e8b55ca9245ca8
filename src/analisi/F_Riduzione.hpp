// F_Riduzione.hpp - "Riduzione colonne": a column file chosen by the user is reduced into a new one beside it.
//
// The run is the streaming reduction, whatever engine is shown; "Esterno" only starts the asking for the progress of
// the external one, which goes to the same panel. STOP has no say over the run either: once it has ended, the dialog
// closes. The reduction in memory shows its phase and progress here as well, shown or not.

#pragma once

#include "core/Cadenza.hpp"
#include "editor/DialogoConferma.hpp"
#include "riduzione/AvanzamentoRiduzione.hpp"
#include "riduzione/LibreriaRiduzione.hpp"

#include <array>
#include <cstdint>
#include <string>

namespace ordavel {

class ORDAVEL_EXPORT F_Riduzione : public DialogoConferma {
public:
    explicit F_Riduzione(OspiteDialoghi& ospite);

    /// Picks the input file.
    void Command1_Click();

    /// The buttons: 0 runs the reduction, or stops it; 1 closes.
    void XPButton1_Click(std::size_t nIndice);

    /// Takes the progress of the external engine. A failure is shown, and the timer goes off.
    void Timer1_Timer();

    /// Not during a run.
    [[nodiscard]] bool PuoChiudersi() const override { return !m_bInEsecuzione; }

    /// Shows a reduction on the dialog's panel and label.
    [[nodiscard]] AvanzamentoRiduzione& Avanzamento() noexcept { return m_Avanzamento; }

    Etichetta labFile;        ///< the input
    Pulsante Command1;        ///< picks it
    Etichetta LabColonne;     ///< its columns
    Etichetta LabClasse;      ///< its class
    Combo cmbRiduzione;       ///< "N - 1" to "N - 3"
    Etichetta LabFileRidotto; ///< the output
    Etichetta LabColonneRid;  ///< its columns, after a run
    Combo CmbMotoreRid;       ///< "Interno", "Esterno"
    Etichetta LabInfo;        ///< phase of a reduction in memory
    Barra PanPerc;            ///< progress
    Temporizzatore Timer1;
    std::array<Pulsante, 2> XPButton1;

private:
    class AvanzamentoFinestra : public AvanzamentoRiduzione {
    public:
        explicit AvanzamentoFinestra(F_Riduzione& finestra) : m_Finestra(finestra) {}

        void MostraPercentuale(std::int16_t nPercentuale) override;
        void MostraFase(std::string_view sFase) override;
        void MostraInterruzione() override;
        void LasciaEventi() override;
        void MostraFallimento(std::string_view sOrigine, const Errore& errore) override;

    private:
        F_Riduzione& m_Finestra;
        Cadenza m_Eventi{kOgniEventi};
    };

    void LoadCmbRid();
    void CambioFile();
    void ModificaNomeOutput();
    void GestioneEseguiRid();
    void Esegui();
    void Ferma();
    [[nodiscard]] bool Riduci();
    void AbilitaComandi(bool bAbilita);
    /// The chosen reduction, 1 to 3; 0 when none is selected.
    [[nodiscard]] std::int32_t Riduzione() const { return cmbRiduzione.Indice.Valore() + 1; }

    AvanzamentoFinestra m_Avanzamento{*this};
    LibreriaRiduzione m_Libreria;
    bool m_bInEsecuzione = false;
    bool m_bInterrotto = false;
};

} // namespace ordavel
