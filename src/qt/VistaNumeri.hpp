// VistaNumeri.hpp - the selector of numbers: ninety boxes, each selected or not.
//
// A click turns a box over, a pull does to every box that it passes what it did to the first. On the keyboard the
// arrows, Home and End move a frame, Space turns the framed box over. A double click, or Enter, is passed on as a
// signal, and is nothing special while nobody listens to it. A selected box is bold and framed, whatever the colours.

#pragma once

#include "qt/Legami.hpp"

#include <QWidget>

class QPainter;

namespace ordavel::qt {

class VistaNumeri : public QWidget {
    Q_OBJECT

public:
    static constexpr int kPerRiga = 10; ///< boxes in a line
    static constexpr int kRighe = 9;

    /// Takes    legami   binds as long as it lives
    VistaNumeri(Legami& legami, SelettoreNumeri& numeri, QWidget* padre = nullptr);

    /// Where the box of a number is, 1 to 90.
    [[nodiscard]] QRect Casella(int nNumero) const;
    /// The number at a place; 0 for none.
    [[nodiscard]] int NumeroA(QPoint punto) const;
    /// The number with the frame of the keyboard.
    [[nodiscard]] int Corrente() const noexcept { return m_nCorrente; }

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

Q_SIGNALS:
    /// A double click on a box that stays as the first of the two clicks made it; or Enter.
    void doubleClicked();

protected:
    void paintEvent(QPaintEvent* evento) override;
    void mousePressEvent(QMouseEvent* evento) override;
    void mouseMoveEvent(QMouseEvent* evento) override;
    void mouseDoubleClickEvent(QMouseEvent* evento) override;
    void keyPressEvent(QKeyEvent* evento) override;
    void focusInEvent(QFocusEvent* evento) override;
    void focusOutEvent(QFocusEvent* evento) override;

private:
    [[nodiscard]] bool Scelto(int nNumero) const { return m_aScelti(nNumero) != 0; }
    [[nodiscard]] bool Abilitato(int nNumero) const { return m_aAbilitati(nNumero) != 0; }
    [[nodiscard]] bool Ascoltato() const;
    [[nodiscard]] QSize Misura(int nMargine) const;
    void Poni(int nNumero, bool bScelto);
    void Inverti(int nNumero);
    void Sposta(int nNumero);
    void Descrivi();
    void Disegna(QPainter& pennello, int nNumero) const;

    QPointer<Legami> m_Legami;
    SelettoreNumeri& m_Numeri; ///< touched through m_Legami alone: it may end before the widget
    SegniNumeri m_aScelti;
    SegniNumeri m_aAbilitati;
    Tabella<ColoriCasella, 1, kNumeroMassimo> m_aColori;
    int m_nCorrente = 1;
    int m_nPremuto = 0;     ///< box of the last press
    bool m_bTirato = false; ///< what a pull makes of the boxes that it passes
    QPoint m_Prima;         ///< where the pull was last
};

} // namespace ordavel::qt
