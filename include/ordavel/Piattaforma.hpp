// Piattaforma.hpp - what the system asks of a desktop.
//
// The one way by which logic reaches a user: message boxes, dialogs, choice of files and folders, statistics,
// pending events, pointer, clock. A window system, the command line and the tests each bring their own.

#pragma once

#include "ordavel/Dialogo.hpp"
#include "ordavel/errore.hpp"
#include "ordavel/esporta.hpp"

#include <chrono>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

namespace ordavel {

enum class eIcona : std::uint8_t { nessuna, critico, avviso, informazione, domanda };
enum class ePulsanti : std::uint8_t { ok, siNo };
enum class eRisposta : std::uint8_t { ok, si, no };

/// A message box.
struct Messaggio {
    eIcona icona = eIcona::nessuna;
    std::string sTitolo; ///< empty for none of its own
    std::string sTesto;
    ePulsanti pulsanti = ePulsanti::ok;
};

/// A dialog for the name of a file.
struct RichiestaFile {
    std::string sTitolo;
    std::string sFiltro;     ///< description and pattern joined by "|": "File colonne (*.col)|*.col"
    std::string sEstensione; ///< default extension, with its "."
    std::string sNomeFile;   ///< name shown at the start
    std::string sCartella;   ///< folder shown at the start
};

/// Shows what a kind of condition did over the draws of a game. One serves a component for its life.
class ORDAVEL_EXPORT Statistica {
public:
    Statistica() = default;
    Statistica(const Statistica&) = delete;
    Statistica& operator=(const Statistica&) = delete;
    virtual ~Statistica();

    /// Once, at the component's start and at its end.
    virtual void Avvia() = 0;
    virtual void Ferma() = 0;

    /// Takes    nIdStatistica   number of the kind in the statistics' own numbering
    ///          nGioco          game, from 1
    virtual void MostraStatistica(std::int32_t nIdStatistica, std::int16_t nGioco) = 0;
};

class ORDAVEL_EXPORT Piattaforma : public Segnalatore {
public:
    /// Shows a box and waits for its answer: `ok`, or `si` or `no` where these are asked for.
    virtual eRisposta MostraMessaggio(const Messaggio& messaggio) = 0;

    /// Ask for a file to read, or to write.
    /// Gives    its path; empty when the user gave up
    virtual std::string DialogoApri(const RichiestaFile& richiesta) = 0;
    virtual std::string DialogoSalva(const RichiestaFile& richiesta) = 0;

    /// Asks for a folder.
    /// Takes    sCartella   the one shown at the start
    /// Gives    its path; empty when the user gave up
    virtual std::string ScegliCartella(const std::string& sCartella) = 0;

    /// Shows a dialog, alone in front of the others, until it hides itself or its window is closed, which leaves
    /// its tag as it is.
    virtual void MostraModale(Dialogo& dialogo) = 0;

    /// Shows a dialog without waiting. It stays until it hides itself or is no more.
    virtual void MostraAccanto(Dialogo& dialogo) { dialogo.Mostra(); }

    /// A short sound.
    virtual void Beep() {}

    /// Width and height of a text in the component's font, in pixels.
    [[nodiscard]] virtual double LarghezzaTesto(std::string_view sTesto) const
    {
        return 8.0 * static_cast<double>(sTesto.size());
    }
    [[nodiscard]] virtual double AltezzaTesto(std::string_view /*sTesto*/) const { return 16.0; }

    /// The statistics that a component asks for; made once, when it starts. Without any the user is told so.
    [[nodiscard]] virtual std::unique_ptr<Statistica> CreaStatistica();

    /// Lets pending events run. Commands may arrive inside.
    virtual void LasciaEventi() = 0;

    /// Shows the busy pointer, or the normal one again. Calls come in pairs, and pairs nest.
    virtual void PuntatoreOccupato(bool bOccupato) = 0;

    /// Seconds since midnight, local time, with fractions.
    [[nodiscard]] virtual float SecondiDaMezzanotte() = 0;

    /// A clock that never goes back, for how often things are shown. It is asked many times a millisecond.
    [[nodiscard]] virtual std::chrono::steady_clock::time_point Adesso()
    {
        return std::chrono::steady_clock::now();
    }

    /// The failure box: critical, titled with the operation that trapped the failure.
    void MostraFallimento(std::string_view sOrigine, const Errore& errore) override;
};

/// The busy pointer for as long as it lives.
class PuntatoreInAttesa {
public:
    explicit PuntatoreInAttesa(Piattaforma& piattaforma) : m_Piattaforma(piattaforma)
    {
        m_Piattaforma.PuntatoreOccupato(true);
    }
    PuntatoreInAttesa(const PuntatoreInAttesa&) = delete;
    PuntatoreInAttesa& operator=(const PuntatoreInAttesa&) = delete;
    ~PuntatoreInAttesa() { m_Piattaforma.PuntatoreOccupato(false); }

private:
    Piattaforma& m_Piattaforma;
};

} // namespace ordavel
