// Sessione.hpp - one component for one command: its desktop, its folder, its files written safely.

#pragma once

#include "ordavel/Ordavel.hpp"

#include "cli/PiattaformaCli.hpp"

#include <functional>
#include <optional>
#include <string>

namespace ordavel::cli {

/// A folder of the process's own inside another one, gone at the end.
class CartellaPrivata {
public:
    /// Takes    sBase   the folder that it stands in, made when it is missing; empty for the system's temporary one
    /// Fails    57, 61, 70, 75, 76: it cannot be made
    explicit CartellaPrivata(const std::string& sBase);
    CartellaPrivata(const CartellaPrivata&) = delete;
    CartellaPrivata& operator=(const CartellaPrivata&) = delete;
    ~CartellaPrivata();

    [[nodiscard]] const std::string& Path() const noexcept { return m_sPath; }

private:
    std::string m_sPath;
};

/// A component with its desktop and working folder.
class Sessione {
public:
    /// Takes    bBarra   whether a progress bar may be drawn
    explicit Sessione(bool bBarra);

    [[nodiscard]] PiattaformaCli& Desktop() noexcept { return m_Piattaforma; }
    [[nodiscard]] ordavel::Ordavel& Sistema() noexcept { return m_Ordavel; }

    /// Opens a system file. The columns that it carries go to a private folder, and so does all else that a run
    /// writes: two runs never meet, and what the user has in sTemp stays. Emulated draws that stand in sTemp are
    /// taken along.
    /// Takes    sTemp   folder of the private one; empty for the system's temporary one
    /// Gives    whether it is open, and wholly
    /// Fails    as CartellaPrivata does, and as copying a file does
    bool Apri(const std::string& sFile, const std::string& sTemp);

    /// Works in a private folder in the system's temporary one; there is no working file.
    /// Fails    as CartellaPrivata does
    void UsaCartellaPropria();

    /// Makes a column file the working file of the session, without copying it.
    /// Fails    53, 57, 70, 75, 76: it cannot be read; and as CartellaPrivata does
    void UsaColonne(const std::string& sFile);

private:
    std::optional<CartellaPrivata> m_Cartella;
    PiattaformaCli m_Piattaforma;
    ordavel::Ordavel m_Ordavel;
};

/// ScriviAlPosto of the floors below; boxes that are shown meanwhile call the file by its own name.
/// Gives    whether the new file is in place
/// Fails    as that does
bool ScriviAlPosto(PiattaformaCli& desktop, const std::string& sFile,
                   const std::function<bool(const std::string& sProvvisorio)>& scrivi);

/// Writes the session's system in the place of the file, safely.
/// Gives    whether it is in place; a failure was shown
bool SalvaAlPosto(Sessione& sessione, const std::string& sSistema);

/// Runs a command's work; what it throws becomes a box.
/// Gives    what the work gives; false when it failed
bool Protetto(Sessione& sessione, const std::string& sTitolo, const std::function<bool()>& lavoro);

} // namespace ordavel::cli
