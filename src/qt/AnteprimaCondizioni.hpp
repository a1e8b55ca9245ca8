// AnteprimaCondizioni.hpp - a look at a list of conditions: a grid on its side, a condition a column, to be read only.

#pragma once

#include "ordavel/GrigliaCondizioni.hpp"

#include <QAbstractTableModel>
#include <QTableView>

#include <cstdint>
#include <vector>

namespace ordavel::qt {

/// The conditions up to the first empty row, as columns.
class ModelloAnteprima : public QAbstractTableModel {
    Q_OBJECT

public:
    explicit ModelloAnteprima(QObject* padre);

    /// Shows the conditions of a grid.
    void Mostra(const GrigliaCondizioni& griglia);

    [[nodiscard]] int rowCount(const QModelIndex& padre = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& padre = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& indice, int nRuolo) const override;
    [[nodiscard]] QVariant headerData(int nPosto, Qt::Orientation verso, int nRuolo) const override;

private:
    [[nodiscard]] QString Cella(const QModelIndex& indice) const;

    std::vector<Condizione> m_aCondizioni;
};

class AnteprimaCondizioni : public QTableView {
    Q_OBJECT

public:
    explicit AnteprimaCondizioni(QWidget* padre = nullptr);

    /// Shows the conditions of a grid, from the first on, unless it shows them already.
    void Mostra(const GrigliaCondizioni& griglia);

    [[nodiscard]] QSize sizeHint() const override;

private:
    ModelloAnteprima m_Modello;
    std::uint64_t m_nRevisione = 0; ///< of the grid on show
};

} // namespace ordavel::qt
