// ModelloElenco.hpp - a report list in a table: headed columns, lines of which any number may be selected.
//
// The table reads the state itself, line by line as it shows them, so that a list of a million lines costs no more
// than one of a screenful. A view makes its table and binds it in one:
//
//     QTableView* lista = NuovoElenco(legami(), dialogo.ListView1, {.sNome = "ListView1", .sLetto = "Colonne"}, this);

#pragma once

#include "qt/Legami.hpp"

#include <QAbstractTableModel>

#include <cstdint>
#include <functional>
#include <vector>

class QTableView;

namespace ordavel::qt {

/// The lines of an Elenco, as a table reads them. Nothing of them is copied.
class ModelloElenco : public QAbstractTableModel {
    Q_OBJECT

public:
    /// Takes    legami    read through; when they are cut, the table is empty
    ///          aDestra   columns, from 0, whose texts stand on the right
    ModelloElenco(Legami& legami, const Elenco& elenco, std::vector<int> aDestra, QObject* padre);

    [[nodiscard]] int rowCount(const QModelIndex& padre = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& padre = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& indice, int nRuolo) const override;
    [[nodiscard]] QVariant headerData(int nPosto, Qt::Orientation verso, int nRuolo) const override;

    /// The state has other lines: all are new when their number is another, else each may say something else.
    void Rinfresca();

private:
    [[nodiscard]] QVariant Valore(const QModelIndex& indice, int nRuolo) const;

    QPointer<Legami> m_Legami;
    const Elenco& m_Elenco;
    std::vector<int> m_aDestra;
    int m_nRighe = 0; ///< as the table knows them
    int m_nColonne;
};

/// How a list is shown.
struct AspettoElenco {
    QString sNome;                 ///< object name
    QString sLetto;                ///< read out for who cannot see it
    std::vector<int> aDestra = {}; ///< columns, from 0, whose texts stand on the right
    int nElastica = -1;            ///< the column that takes what width is left, from 0; below 0 the last one
    /// Any number of lines may be selected, and the state hears of it; else the selection is the eye's alone.
    bool bMolte = false;
    /// What a click on a heading does, from 0; empty where headings are no buttons.
    std::function<void(int)> alTitolo = {};
    /// A double click or Enter on a line, from 0.
    std::function<void(int)> alDoppioClic = {};
};

/// Makes the table of a list and binds it. Lines keep their place in view when they are refreshed; columns grow with
/// what they show, and one takes what is left.
[[nodiscard]] QTableView* NuovoElenco(Legami& legami, Elenco& elenco, const AspettoElenco& aspetto,
                                      QWidget* padre);

} // namespace ordavel::qt
