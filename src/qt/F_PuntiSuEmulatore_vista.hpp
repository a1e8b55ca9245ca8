// F_PuntiSuEmulatore_vista.hpp - the window of "Punti su emulatore": a sheet, and the box that floats over its cell.

#pragma once

#include "editor/F_PuntiSuEmulatore.hpp"
#include "qt/VistaDialogo.hpp"

#include <QTableWidget>

class QLineEdit;

namespace ordavel::qt {

/// A table that keeps a widget over its current cell, wherever that goes.
class TabellaConCasella : public QTableWidget {
    Q_OBJECT

public:
    using QTableWidget::QTableWidget;

    /// Takes    casella   becomes its own
    void PoniCasella(QWidget* casella);
    /// Puts it where the current cell is.
    void Segui();

    [[nodiscard]] QSize sizeHint() const override;

protected:
    void scrollContentsBy(int nDx, int nDy) override;
    void updateGeometries() override;

private:
    QWidget* m_Casella = nullptr;
};

class F_PuntiSuEmulatoreVista : public VistaDialogo {
    Q_OBJECT

public:
    F_PuntiSuEmulatoreVista(F_PuntiSuEmulatore& dialogo, PiattaformaQt& piattaforma, QWidget* padre);

    /// The floating box leaves its cell by the arrows.
    bool eventFilter(QObject* oggetto, QEvent* evento) override;

private:
    void DisponiFoglio();
    void LegaFoglio();
    void LegaCasella();
    void MostraCelle(const std::vector<std::vector<std::string>>& aRighe);
    void MostraCorrente(const Foglio::Posto& posto);
    [[nodiscard]] bool Muovi(int nTasto);

    F_PuntiSuEmulatore& m_Logica;
    TabellaConCasella* m_Foglio;
    QLineEdit* m_Casella;
};

} // namespace ordavel::qt
