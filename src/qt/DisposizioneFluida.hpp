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
    /// Gives    the height that is needed; places the items when bPosa
    int Disponi(const QRect& dove, bool bPosa) const;

    QList<QLayoutItem*> m_aVoci;
};

} // namespace ordavel::qt
