// GraficoBarre.hpp - a chart of bars with their shares, the mean, and marks of how the latest draws fell.

#pragma once

#include <QString>
#include <QWidget>

#include <vector>

namespace ordavel::qt {

/// One bar as it is drawn.
struct BarraGrafico {
    QString sValori; ///< under the bar
    QString sQuota;  ///< over it
    QString sTesto;  ///< all of it in words: tool tip, and what is told of the highlighted bar
    double nQuota = 0;
    double nQuotaUltime = 0;
};

/// All that is drawn.
struct ContenutoGrafico {
    std::vector<BarraGrafico> aBarre;
    double nPostoMedia = 0; ///< in bars from the left edge of the first
    QString sMedia;
    QString sUltime; ///< what the marks stand for; empty for no marks
    QString sVuoto;  ///< shown when there is no bar
};

/// Arrows, Home and End move the highlighted bar, and so does a click.
class GraficoBarre : public QWidget {
    Q_OBJECT

public:
    explicit GraficoBarre(QWidget* padre = nullptr);

    /// Shows other bars; none is highlighted.
    void Mostra(ContenutoGrafico contenuto);

    /// Highlights a bar, from 0; -1 for none.
    void Evidenzia(int nBarra);
    [[nodiscard]] int Evidenziata() const noexcept { return m_nEvidenziata; }

    [[nodiscard]] int Barre() const noexcept { return static_cast<int>(m_Contenuto.aBarre.size()); }
    /// Where a bar is drawn.
    [[nodiscard]] QRectF Rettangolo(int nBarra) const;
    /// The bar of a point, by its column; -1 when there is none.
    [[nodiscard]] int BarraIn(const QPointF& punto) const;
    /// Every how many bars a label has room.
    [[nodiscard]] int PassoEtichette() const;
    /// Does every share have room over its bar?
    [[nodiscard]] bool QuoteSopra() const;

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

Q_SIGNALS:
    void BarraEvidenziata(int nBarra);

protected:
    bool event(QEvent* evento) override;
    void paintEvent(QPaintEvent* evento) override;
    void keyPressEvent(QKeyEvent* evento) override;
    void mousePressEvent(QMouseEvent* evento) override;
    void focusInEvent(QFocusEvent* evento) override;
    void focusOutEvent(QFocusEvent* evento) override;

private:
    [[nodiscard]] const BarraGrafico& Barra(int nBarra) const;
    [[nodiscard]] QRectF Area() const;
    [[nodiscard]] double Posto() const;
    [[nodiscard]] double Altezza(double nQuota) const;
    [[nodiscard]] double CimaQuota(int nBarra) const;
    void Descrivi();

    void DipingiScala(QPainter& pittore) const;
    void DipingiBarra(QPainter& pittore, int nBarra) const;
    void DipingiEtichette(QPainter& pittore) const;
    void DipingiMedia(QPainter& pittore) const;
    void DipingiLegenda(QPainter& pittore) const;

    ContenutoGrafico m_Contenuto;
    double m_nScala = 1; ///< the share at the top
    double m_nPasso = 1; ///< between two lines of the scale
    int m_nEvidenziata = -1;
};

} // namespace ordavel::qt
