// F_ImportaArchivio.hpp - a draw archive made of a text: what the text holds is seen before anything is replaced.

#pragma once

#include "core/ModGiochi.hpp"
#include "qt/Legami.hpp"

#include <QDialog>

class QLabel;
class QPushButton;

namespace ordavel::qt {
class PiattaformaQt;
} // namespace ordavel::qt

namespace ordavel::desktop {

class RigaPercorso;

class F_ImportaArchivio : public QDialog {
    Q_OBJECT

public:
    /// Takes    gioco         whose archive it is
    ///          sArchivio     the present one, replaced when the user does not choose another; empty for none
    ///          piattaforma   boxes and choices of files; outlives it
    F_ImportaArchivio(const ProfiloGioco& gioco, const QString& sArchivio, qt::PiattaformaQt& piattaforma,
                      QWidget* padre);

    /// The archive that was made, once the dialog was accepted.
    [[nodiscard]] QString Archivio() const;

private:
    void Disponi();
    void ScegliTesto();
    void ScegliArchivio();
    void Esamina();
    [[nodiscard]] QString Anteprima(const QString& sTesto);
    void Importa();

    const ProfiloGioco& m_Gioco;
    qt::PiattaformaQt& m_Piattaforma;
    qt::Legami m_Legami;
    RigaPercorso* m_Testo;
    RigaPercorso* m_Archivio;
    QLabel* m_Esito;
    QPushButton* m_Importa = nullptr;
    bool m_bBuono = false; ///< the text can be read to its end
};

/// How many draws an archive has, and the latest; why not, where there are none.
[[nodiscard]] QString RiassuntoArchivio(const ProfiloGioco& gioco, const QString& sArchivio);

} // namespace ordavel::desktop
