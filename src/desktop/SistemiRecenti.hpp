// SistemiRecenti.hpp - the systems that were opened or saved lately, newest first.

#pragma once

#include <QStringList>

namespace ordavel::desktop {

class ArchivioImpostazioni;

class SistemiRecenti {
public:
    static constexpr qsizetype kMassimo = 10;

    /// Takes    archivio   keeps the list; outlives it
    explicit SistemiRecenti(ArchivioImpostazioni& archivio) : m_Archivio(archivio) {}

    [[nodiscard]] QStringList Elenco() const;
    /// To the front, whether it was there or not; the eleventh drops out.
    void Aggiungi(const QString& sFile);
    void Togli(const QString& sFile);
    void Svuota();

private:
    void Scrivi(const QStringList& aFile);

    ArchivioImpostazioni& m_Archivio;
};

} // namespace ordavel::desktop
