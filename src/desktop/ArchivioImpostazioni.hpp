// ArchivioImpostazioni.hpp - the program's settings in a file of the user's, those of the component among them.

#pragma once

#include "ordavel/ArchivioProprieta.hpp"

#include "qt/ArchivioQSettings.hpp"

#include <QSettings>
#include <QString>
#include <QVariant>

namespace ordavel::desktop {

/// Keys that nobody here knows stay as they are.
class ArchivioImpostazioni : public ArchivioProprieta {
public:
    /// Where a user's settings are when nobody says otherwise.
    [[nodiscard]] static QString FileUtente();

    /// Opens the settings of a file, which is made when something is first kept. One that cannot be read as
    /// settings is copied aside (".rovinato"), and what could be made of it counts.
    explicit ArchivioImpostazioni(const QString& sFile);

    /// The settings of the component, as texts under their own keys.
    [[nodiscard]] std::optional<std::string> Leggi(std::string_view sChiave) const override
    {
        return m_Componente.Leggi(sChiave);
    }
    void Scrivi(std::string_view sChiave, const std::string& sValore) override
    {
        m_Componente.Scrivi(sChiave, sValore);
    }

    /// The settings of the program.
    [[nodiscard]] QVariant Valore(const QString& sChiave) const { return m_Impostazioni.value(sChiave); }
    void Poni(const QString& sChiave, const QVariant& valore) { m_Impostazioni.setValue(sChiave, valore); }

    /// Nothing was ever kept.
    [[nodiscard]] bool Vuoto() const { return m_Impostazioni.allKeys().isEmpty(); }

    /// Puts everything on the disk.
    /// Gives    whether it is there
    bool Salva();

    /// What was wrong with the file so far, in words for the user; empty when nothing was.
    [[nodiscard]] QString Guasto() const;

private:
    QSettings m_Impostazioni;
    qt::ArchivioQSettings m_Componente{m_Impostazioni};
};

} // namespace ordavel::desktop
