// DisposizioneFluida.hpp - a layout that puts things side by side and goes on below where the room ends.

#pragma once

#include <QLayout>
#include <QList>

namespace ordavel::qt {

class DisposizioneFluida : public QLayout {
    Q_OBJECT

public:
    explicit DisposizioneFluida(int nSpazio);
    DisposizioneFluida(const DisposizioneFluida&) = delete;
    DisposizioneFluida& operator=(const DisposizioneFluida&) = delete;
    ~DisposizioneFluida() override;

    void addItem(QLayoutItem* voce) override;
    [[nodiscard]] int count() const override;
    [[nodiscard]] QLayoutItem* itemAt(int nPosto) const override;
    QLayoutItem* takeAt(int nPosto) override;
    [[nodiscard]] Qt::Orientations expandingDirections() const override { return {}; }
    [[nodiscard]] bool hasHeightForWidth() const override { return true; }
    [[nodiscard]] int heightForWidth(int nLargo) const override;
    void setGeometry(const QRect& dove) override;
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSize() const override;

private:
    /// A line: behind its last item, and how high it is.
    struct Riga {
        qsizetype nDopo = 0;
        int nAlta = 0;
    };

    /// Gives    the height that is needed; places the items when bPosa
    int Disponi(const QRect& dove, bool bPosa) const;
    /// The line that begins with an item.
    [[nodiscard]] Riga RigaDa(qsizetype nPrima, int nLargo) const;
    /// Places the items of a line, each in the middle of its height.
    void Posa(qsizetype nPrima, const Riga& riga, QPoint angolo, int nLargo) const;

    QList<QLayoutItem*> m_aVoci;
};

} // namespace ordavel::qt
