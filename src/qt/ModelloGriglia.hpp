// ModelloGriglia.hpp - the conditions as a table model: the grid on its side, a condition a column.
//
// Rows 0 to 5 are those of kRigheGriglia; column 0 holds their labels, columns 1 to 2000 the conditions. The model shows
// a copy of the grid, which follows it when it is asked to: whoever writes into the grid need not know of the model.

#pragma once

#include "ordavel/Ordavel.hpp"

#include <QAbstractTableModel>
#include <QColor>
#include <QFont>

#include <cstdint>
#include <optional>
#include <vector>

namespace ordavel::qt {

/// The rows of the grid by name.
enum eRigaGriglia : int { rigaNumero, rigaCondizione, rigaParametri, rigaPunti, rigaRecupero, rigaQuadro };

/// What a condition cuts of the columns examined.
struct Taglio {
    double nQuota = 0; ///< 0 to 1
    bool bEsatto = false;

    [[nodiscard]] friend bool operator==(const Taglio&, const Taglio&) = default;
};

class ModelloGriglia : public QAbstractTableModel {
    Q_OBJECT

public:
    /// Takes    componente   outlives it
    explicit ModelloGriglia(Ordavel& componente, QObject* padre = nullptr);

    /// Takes over what was written into the grid, and the highlight; costs nothing when nobody has written.
    /// Gives    whether anybody may have written
    bool aggiorna();

    /// What the conditions cut, by a count of the system as it stands. A condition that changes loses its share.
    void poniConto(const ConteggioSistema& conto);
    /// The system is another by now: what was counted is an estimate at best.
    void invecchiaConto();
    void togliConto();

    /// Nothing for an empty column, a link, a kind that counts nothing, and where no count has come yet.
    [[nodiscard]] std::optional<Taglio> taglio(int nCondizione) const;

    /// The condition of a column, as it is shown.
    [[nodiscard]] const Condizione& condizione(int nCondizione) const;

    /// The last column that holds a condition; 0 for none.
    [[nodiscard]] int ultima() const;

    /// The font of a cell.
    [[nodiscard]] QFont carattere(int nRiga, int nColonna) const;

    int rowCount(const QModelIndex& padre = {}) const override;
    int columnCount(const QModelIndex& padre = {}) const override;
    QVariant data(const QModelIndex& indice, int nRuolo = Qt::DisplayRole) const override;
    QVariant headerData(int nSezione, Qt::Orientation verso, int nRuolo = Qt::DisplayRole) const override;
    Qt::ItemFlags flags(const QModelIndex& indice) const override;

private:
    void confronta();
    void evidenzia();
    void cambiati(int nPrima, int nUltima, const QList<int>& aRuoli);
    template <typename Nuovo> void poniTagli(Nuovo nuovo);
    [[nodiscard]] QString testo(int nRiga, int nColonna) const;
    [[nodiscard]] QString testoParlato(int nRiga, int nColonna) const;
    [[nodiscard]] QString testoTaglio(int nColonna) const;
    [[nodiscard]] QVariant colore(int nRiga, int nColonna, bool bSfondo) const;

    Ordavel& m_Componente;
    std::vector<Condizione> m_aCelle;            ///< as shown, by column; the first is not used
    std::vector<std::optional<Taglio>> m_aTagli; ///< by column
    std::optional<std::uint64_t> m_nRevisione;   ///< of the grid when it was copied
    int m_nEvidenziata = 0;
    QColor m_Evidenza;
    QFont m_Celle;
    QFont m_Etichette;
};

} // namespace ordavel::qt
