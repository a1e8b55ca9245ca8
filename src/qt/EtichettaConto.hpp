// EtichettaConto.hpp - the line under the grid: how many columns pass.

#pragma once

#include <QLabel>

namespace ordavel::qt {

class ContoVivo;

/// "Passano: 1.234.567 su 43.949.268 (2,81 %)", or about how many, or why there is no count. "…" behind it while a
/// better one is on its way.
class EtichettaConto : public QLabel {
    Q_OBJECT

public:
    explicit EtichettaConto(QWidget* padre = nullptr);

    /// Shows what a count says from now on.
    void segui(ContoVivo& conto);

private:
    void mostra(const QString& sTesto, const QString& sSuggerimento = {});
    void occupa(bool bOccupato);
    void scrivi();

    QString m_sConto;
    bool m_bOccupato = false;
};

} // namespace ordavel::qt
