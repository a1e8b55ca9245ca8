// TestataGriglia.hpp - the part of the grid that stays in view: number and kind of each condition, and what it cuts.

#pragma once

#include <QHeaderView>
#include <QWidget>

namespace ordavel::qt {

class ModelloGriglia;

/// Rows 0 and 1 of the grid as the header of its columns, and under them a thin bar of what each condition cuts: hatched
/// while that is an estimate.
class TestataGriglia : public QHeaderView {
    Q_OBJECT

public:
    /// Takes    modello   outlives it
    explicit TestataGriglia(const ModelloGriglia& modello, QWidget* padre = nullptr);

    QSize sizeHint() const override;

    /// The places of the two rows inside the header, for whoever draws beside it.
    [[nodiscard]] QRect postoNumero(const QRect& sezione) const;
    [[nodiscard]] QRect postoNome(const QRect& sezione) const;
    [[nodiscard]] QRect postoTaglio(const QRect& sezione) const;

protected:
    void paintSection(QPainter* penna, const QRect& dove, int nColonna) const override;

private:
    void dipingiTaglio(QPainter& penna, const QRect& dove, int nColonna) const;

    const ModelloGriglia& m_Modello;
};

/// The labels of rows 0 and 1, left of the header.
class AngoloGriglia : public QWidget {
    Q_OBJECT

public:
    AngoloGriglia(const ModelloGriglia& modello, const TestataGriglia& testata, QWidget* padre);

protected:
    void paintEvent(QPaintEvent* evento) override;

private:
    const ModelloGriglia& m_Modello;
    const TestataGriglia& m_Testata;
};

} // namespace ordavel::qt
