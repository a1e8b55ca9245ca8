// Icone.cpp - icons that follow the palette.
//
// The drawings name three colours, which stand for others: "currentColor" is the text's, pure blue the accent, pure
// red what warns.

#include "qt/Icone.hpp"

#include "qt/Colori.hpp"

#include <QApplication>
#include <QFile>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QSvgRenderer>

// A resource of an object library is known by its initialisation alone.
static void CaricaRisorse()
{
    Q_INIT_RESOURCE(icone);
}

namespace ordavel::qt {

namespace {

class MotoreIcona : public QIconEngine {
public:
    explicit MotoreIcona(QByteArray aDisegno) : m_Disegno(std::move(aDisegno)) {}

    [[nodiscard]] QIconEngine* clone() const override { return new MotoreIcona(m_Disegno); }

    void paint(QPainter* pennello, const QRect& dove, QIcon::Mode modo, QIcon::State /*stato*/) override
    {
        const QPalette tavolozza = QApplication::palette();
        const auto gruppo = modo == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
        const QColor testo = tavolozza.color(gruppo, QPalette::ButtonText);
        const bool bSpenta = modo == QIcon::Disabled;
        QByteArray aColorato = m_Disegno;
        aColorato.replace("currentColor", testo.name().toLatin1());
        aColorato.replace("#0000ff", (bSpenta ? testo : ColoreAccento(tavolozza)).name().toLatin1());
        aColorato.replace("#ff0000", (bSpenta ? testo : ColoreAvviso(tavolozza)).name().toLatin1());
        QSvgRenderer disegno(aColorato);
        pennello->save();
        pennello->setRenderHint(QPainter::Antialiasing);
        // A disabled text is not always pale, and an icon has no letters to tell.
        pennello->setOpacity(bSpenta ? 0.45 : 1.0);
        disegno.render(pennello, dove);
        pennello->restore();
    }

    QPixmap pixmap(const QSize& grandezza, QIcon::Mode modo, QIcon::State stato) override
    {
        QPixmap immagine(grandezza);
        immagine.fill(Qt::transparent);
        QPainter pennello(&immagine);
        paint(&pennello, QRect({0, 0}, grandezza), modo, stato);
        return immagine;
    }

private:
    QByteArray m_Disegno;
};

} // namespace

QIcon Icona(const QString& sChiave)
{
    CaricaRisorse();
    QFile file(":/ordavel/icone/" + sChiave + ".svg");
    return file.open(QIODevice::ReadOnly) ? QIcon(new MotoreIcona(file.readAll())) : QIcon();
}

} // namespace ordavel::qt
