// F_Impostazioni.hpp - the dialog of the settings: folders, draw archives, development.

#pragma once

#include "desktop/Impostazioni.hpp"
#include "qt/Legami.hpp"

#include <QDialog>

#include <array>
#include <vector>

class QComboBox;
class QLabel;
class QSpinBox;
class QTabWidget;

namespace ordavel::qt {
class PiattaformaQt;
} // namespace ordavel::qt

namespace ordavel::desktop {

class RigaPercorso;

/// Nothing counts before OK, and OK only when all of it can; an import of draws is done when it is asked for.
class F_Impostazioni : public QDialog {
    Q_OBJECT

public:
    /// Takes    piattaforma   boxes and choices of files; outlives it
    F_Impostazioni(const Impostazioni& impostazioni, qt::PiattaformaQt& piattaforma, QWidget* padre);

    /// What was chosen.
    [[nodiscard]] Impostazioni Scelte() const;

    /// OK: looks at everything, and shows what is wrong where it is.
    void accept() override;

private:
    struct RigaCartella {
        RigaPercorso* riga;
        QString Impostazioni::*campo;
    };

    [[nodiscard]] QWidget* PaginaCartelle();
    [[nodiscard]] QWidget* PaginaArchivi();
    [[nodiscard]] QWidget* PaginaSviluppo();
    void CollegaArchivio(std::size_t nGioco);
    void MostraArchivio(std::size_t nGioco);
    void Importa(std::size_t nGioco);
    [[nodiscard]] bool CartelleBuone();
    [[nodiscard]] bool ArchiviBuoni();
    void Rifiuta(int nPagina, RigaPercorso* riga, const QString& sPerche);

    const Impostazioni m_Prima;
    qt::PiattaformaQt& m_Piattaforma;
    qt::Legami m_Legami;
    QTabWidget* m_Pagine;
    std::vector<RigaCartella> m_aCartelle;
    std::array<RigaPercorso*, kArchivi> m_aArchivi{};
    std::array<QLabel*, kArchivi> m_aRiassunti{};
    QSpinBox* m_Thread = nullptr;
    QComboBox* m_Motore = nullptr;
};

} // namespace ordavel::desktop
