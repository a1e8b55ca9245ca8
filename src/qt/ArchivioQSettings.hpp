// ArchivioQSettings.hpp - the settings of a component in Qt's store of settings.

#pragma once

#include "ordavel/ArchivioProprieta.hpp"

#include <QSettings>

namespace ordavel::qt {

/// Reads and writes under the component's own keys; all others are left alone.
class ArchivioQSettings : public ArchivioProprieta {
public:
    /// Takes    impostazioni   outlives it
    explicit ArchivioQSettings(QSettings& impostazioni) : m_Impostazioni(impostazioni) {}

    [[nodiscard]] std::optional<std::string> Leggi(std::string_view sChiave) const override
    {
        const QString sNome = QString::fromUtf8(sChiave.data(), static_cast<qsizetype>(sChiave.size()));
        return m_Impostazioni.contains(sNome)
                   ? std::optional(m_Impostazioni.value(sNome).toString().toStdString())
                   : std::nullopt;
    }

    void Scrivi(std::string_view sChiave, const std::string& sValore) override
    {
        m_Impostazioni.setValue(QString::fromUtf8(sChiave.data(), static_cast<qsizetype>(sChiave.size())),
                                QString::fromStdString(sValore));
    }

private:
    QSettings& m_Impostazioni;
};

} // namespace ordavel::qt
