// SchermateComuni.hpp - what all tests that take pictures share: the system shown, fonts and colours, the file written.

#pragma once

#include "ordavel/ContenutoSistema.hpp"

#include <QApplication>
#include <QCursor>
#include <QFont>
#include <QImage>
#include <QImageWriter>
#include <QPalette>
#include <QPixmap>
#include <QWidget>
#include <gtest/gtest.h>

namespace ordavel::qt::prove {

inline QPalette TavolozzaScura()
{
    const QColor fondo(0x2B, 0x2B, 0x2E);
    const QColor base(0x3A, 0x3A, 0x3E);
    const QColor testo(0xE6, 0xE6, 0xE6);
    QPalette tavolozza(fondo);
    for (const QPalette::ColorRole ruolo :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText}) {
        tavolozza.setColor(ruolo, testo);
        tavolozza.setColor(QPalette::Disabled, ruolo, QColor(0x8A, 0x8A, 0x8A));
    }
    tavolozza.setColor(QPalette::Base, base);
    tavolozza.setColor(QPalette::AlternateBase, fondo);
    tavolozza.setColor(QPalette::ToolTipBase, base);
    tavolozza.setColor(QPalette::Highlight, QColor(0x2F, 0x6F, 0xB5));
    tavolozza.setColor(QPalette::HighlightedText, Qt::white);
    tavolozza.setColor(QPalette::PlaceholderText, QColor(0x9A, 0x9A, 0x9A));
    return tavolozza;
}

/// The example "superenalotto", and a few rows of other kinds.
inline ContenutoSistema SistemaEsempio()
{
    ContenutoSistema contenuto;
    contenuto.aCondizioni = {
        {"Peso", "Caselle :\r\n1-2-3-4-5-6", "220-320", "200-219", "1"},
        {"Pari-Dispari", "Pari", "2-3-4", "1-5", "1"},
        {"Consecutivi", "Consecutivi", "0-1", "2", "1"},
        {"LinkOpen", "LinkOpen", "", "", ""},
        {"Decine", "Decine", "1-2", "3", "1"},
        {"Ampiezza", "Ampiezza", "45-80", "-", " "},
        {"LinkClose", "LinkClose", "1-2", "", ""},
        {"Punti Col.", "03-11-19-23-\r\n31-38-45-53", "1-2-3-4", "", " "},
    };
    contenuto.aQuadro = {"1,1,-1"};
    for (const int n : {3, 4, 11, 14, 19, 22, 23, 31, 34, 38, 41, 45, 46, 53, 58, 62, 67, 73, 79, 86}) {
        contenuto.numeri(n) = 1;
    }
    return contenuto;
}

/// The same fonts and colours wherever pictures are taken, for as long as it lives.
class AspettoFisso {
public:
    explicit AspettoFisso(bool bScuro)
    {
        QApplication::setFont(QFont("DejaVu Sans", 9));
        // What is under the pointer looks so.
        QCursor::setPos(5000, 5000);
        if (bScuro) {
            QApplication::setPalette(TavolozzaScura());
        }
    }
    AspettoFisso(const AspettoFisso&) = delete;
    AspettoFisso& operator=(const AspettoFisso&) = delete;
    ~AspettoFisso()
    {
        QApplication::setPalette(m_Tavolozza);
        QApplication::setFont(m_Carattere);
    }

private:
    QPalette m_Tavolozza = QApplication::palette();
    QFont m_Carattere = QApplication::font();
};

/// Takes the picture of a window, as small a file as it can be.
inline void Ritrai(QWidget& finestra, const QString& sFile)
{
    QCoreApplication::processEvents();
    const QImage immagine = finestra.grab().toImage().convertToFormat(QImage::Format_RGB888);
    EXPECT_GT(immagine.width(), 100) << sFile.toStdString();
    QImageWriter penna(sFile);
    penna.setCompression(100);
    EXPECT_TRUE(penna.write(immagine)) << sFile.toStdString();
}

} // namespace ordavel::qt::prove
