// PiattaformaCli.hpp - the desktop of the command line: boxes go to the error stream, answers come from options.

#pragma once

#include "ordavel/Piattaforma.hpp"

#include "cli/BarraTerminale.hpp"

#include <functional>
#include <string>
#include <vector>

namespace ordavel::cli {

/// Takes over the signals of the process: Ctrl-C and the polite kill ask for a stop (another one a second later
/// ends the process), and a file that may not grow or a reader that has gone is an error of the write instead of
/// a death.
void PreparaSegnali();

/// Has the reader of a stream gone? Then the process ends as it would have without PreparaSegnali.
void MuoriSenzaLettore();

class PiattaformaCli : public Piattaforma {
public:
    /// Takes    bBarra   whether a progress bar may be drawn
    explicit PiattaformaCli(bool bBarra) : m_Barra(bBarra) {}

    eRisposta MostraMessaggio(const Messaggio& messaggio) override;
    std::string DialogoApri(const RichiestaFile& richiesta) override;
    std::string DialogoSalva(const RichiestaFile& richiesta) override;
    std::string ScegliCartella(const std::string& sCartella) override { return sCartella; }
    /// Does what RispondiDialogo says; without that, nobody confirms.
    void MostraModale(Dialogo& dialogo) override;
    void LasciaEventi() override;
    void PuntatoreOccupato(bool /*bOccupato*/) override {}
    [[nodiscard]] float SecondiDaMezzanotte() override;

    /// What the next file dialog answers.
    void RispondiApri(std::string sFile) { m_sApri = std::move(sFile); }
    void RispondiSalva(std::string sFile) { m_sSalva = std::move(sFile); }

    /// What the program does with the next dialogs, in the user's place.
    void RispondiDialogo(std::function<void(Dialogo&)> azione) { m_Dialogo = std::move(azione); }

    /// From now on messages call a provisional file by the name that the user knows.
    void ChiamaFile(std::string sProvvisorio, std::string sFile);

    /// What runs each time events may.
    void AdOgniEvento(std::function<void()> azione) { m_Evento = std::move(azione); }

    /// Did the user ask for a stop?
    [[nodiscard]] static bool StopChiesto() noexcept;

    /// A message of the program itself, in the form of the boxes.
    void Avvisa(const std::string& sTesto);
    void Errata(const std::string& sTitolo, const std::string& sTesto);

    [[nodiscard]] BarraTerminale& Barra() noexcept { return m_Barra; }
    /// Every box that was shown, in order.
    [[nodiscard]] const std::vector<Messaggio>& Messaggi() const noexcept { return m_aMessaggi; }
    /// Was there a critical one?
    [[nodiscard]] bool Critico() const noexcept;

private:
    BarraTerminale m_Barra;
    std::string m_sApri;
    std::string m_sSalva;
    std::string m_sProvvisorio;
    std::string m_sFile;
    std::function<void()> m_Evento;
    std::function<void(Dialogo&)> m_Dialogo;
    std::vector<Messaggio> m_aMessaggi;
};

} // namespace ordavel::cli
