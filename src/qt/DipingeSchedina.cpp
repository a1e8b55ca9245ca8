// DipingeSchedina.cpp - the strokes of a slip.

#include "qt/DipingeSchedina.hpp"

#include "core/ModNumeri.hpp"
#include "qt/Legami.hpp"

#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>
#include <array>
#include <cmath>

namespace ordavel::qt {

namespace {

constexpr double kTrattoMm = 0.1;       ///< between numbers
constexpr double kTrattoBoxMm = 0.25;   ///< around a panel's numbers
constexpr double kTrattoBordoMm = 0.35; ///< around a slip
constexpr double kAngoloMm = 1.2;
constexpr double kTitoloMm = 3.0;
constexpr double kPiccoloMm = 2.4;
constexpr double kNumeroMm = 2.2;
constexpr double kSegnatoMm = 2.5;

/// A pale line between the numbers, one ink with the marks.
const QColor kInchiostro(Qt::black);
const QColor kCarta(Qt::white);
constexpr QRgb kRigaTenue = qRgb(150, 150, 150);

QString Numero(std::int64_t nNumero)
{
    return Testo(FormattaNumero(static_cast<double>(nNumero)));
}

} // namespace

DipingeSchedina::DipingeSchedina(QPainter& pittore, double nPerMm, const PaginaSchedine& pagina,
                                 const QString& sGioco)
    : m_Pittore(pittore),
      m_nPerMm(nPerMm),
      m_Pagina(pagina),
      m_sGioco(sGioco.toUpper()),
      m_Titolo(Carattere(kTitoloMm, true)),
      m_Piccolo(Carattere(kPiccoloMm, false)),
      m_Numero(Carattere(kNumeroMm, false)),
      m_Segnato(Carattere(kSegnatoMm, true))
{
    m_Pittore.setRenderHint(QPainter::Antialiasing);
}

QFont DipingeSchedina::Carattere(double nAltezzaMm, bool bGrassetto) const
{
    QFont carattere("Sans Serif");
    carattere.setStyleHint(QFont::SansSerif);
    carattere.setPixelSize(std::max(1, static_cast<int>(std::lround(nAltezzaMm * m_nPerMm))));
    carattere.setBold(bGrassetto);
    return carattere;
}

QRectF DipingeSchedina::Punti(const RettangoloMm& rettangolo) const
{
    return {rettangolo.nX * m_nPerMm, rettangolo.nY * m_nPerMm, rettangolo.nLarghezza * m_nPerMm,
            rettangolo.nAltezza * m_nPerMm};
}

void DipingeSchedina::Dipingi(std::int32_t nPosto, std::int64_t nSchedina, std::int64_t nTotale) const
{
    m_Pittore.setPen(QPen(kInchiostro, kTrattoBordoMm * m_nPerMm));
    m_Pittore.setBrush(kCarta);
    m_Pittore.drawRoundedRect(Punti(m_Pagina.Schedina(nPosto)), kAngoloMm * m_nPerMm, kAngoloMm * m_nPerMm);
    const double nRientro = kBordoMm * m_nPerMm;
    const QRectF testata = Punti(m_Pagina.Testata(nPosto)).adjusted(nRientro, 0, -nRientro, 0);
    m_Pittore.setFont(m_Titolo);
    m_Pittore.drawText(testata, Qt::AlignLeft | Qt::AlignVCenter, m_sGioco);
    m_Pittore.setFont(m_Piccolo);
    const QString sNumero = Numero(nSchedina) + "/" + Numero(nTotale);
    m_Pittore.drawText(testata, Qt::AlignRight | Qt::AlignVCenter, sNumero);
    m_Pittore.setPen(QPen(kInchiostro, kTrattoBoxMm * m_nPerMm));
    m_Pittore.drawLine(testata.bottomLeft(), testata.bottomRight());
}

/// The lines between the numbers in one go, then the frame around them.
void DipingeSchedina::DipingiGriglia(std::int32_t nPosto, std::int32_t nPannello) const
{
    const QRectF prima = Punti(m_Pagina.Casella(nPosto, nPannello, 1));
    const QRectF box(prima.topLeft(),
                     Punti(m_Pagina.Casella(nPosto, nPannello, kNumeroMassimo)).bottomRight());
    std::array<QLineF, kNumeriRiga - 1 + kRigheNumeri - 1> aLinee;
    auto linea = aLinee.begin();
    for (int i = 1; i < kNumeriRiga; ++i) {
        const double nX = box.left() + i * prima.width();
        *linea++ = QLineF(nX, box.top(), nX, box.bottom());
    }
    for (int i = 1; i < kRigheNumeri; ++i) {
        const double nY = box.top() + i * prima.height();
        *linea++ = QLineF(box.left(), nY, box.right(), nY);
    }
    m_Pittore.setPen(QPen(QColor(kRigaTenue), kTrattoMm * m_nPerMm));
    m_Pittore.drawLines(aLinee.data(), static_cast<int>(aLinee.size()));
    m_Pittore.setPen(QPen(kInchiostro, kTrattoBoxMm * m_nPerMm));
    m_Pittore.setBrush(Qt::NoBrush);
    m_Pittore.drawRect(box);
}

void DipingeSchedina::DipingiPannello(std::int32_t nPosto, std::int32_t nPannello, std::int64_t nColonna,
                                      std::span<const std::uint8_t> aNumeri) const
{
    m_Pittore.setPen(kInchiostro);
    m_Pittore.setFont(m_Piccolo);
    m_Pittore.drawText(Punti(m_Pagina.TestataPannello(nPosto, nPannello)), Qt::AlignLeft | Qt::AlignVCenter,
                       "Colonna " + Numero(nColonna));
    DipingiGriglia(nPosto, nPannello);
    for (std::int32_t n = 1; n <= kNumeroMassimo; ++n) {
        const QRectF casella = Punti(m_Pagina.Casella(nPosto, nPannello, n));
        const bool bSegnato = std::find(aNumeri.begin(), aNumeri.end(), n) != aNumeri.end();
        if (bSegnato) {
            m_Pittore.fillRect(casella, kInchiostro);
        }
        m_Pittore.setFont(bSegnato ? m_Segnato : m_Numero);
        m_Pittore.setPen(bSegnato ? kCarta : kInchiostro);
        m_Pittore.drawText(casella, Qt::AlignCenter, QString::number(n));
    }
}

void DipingeSchedina::DipingiPiede(const FoglioMm& foglio, const QString& sFile, std::int64_t nPagina,
                                   std::int64_t nPagine) const
{
    const RettangoloMm piede{.nX = foglio.nMargine,
                             .nY = foglio.nAltezza - foglio.nMargine,
                             .nLarghezza = foglio.nLarghezza - 2 * foglio.nMargine,
                             .nAltezza = foglio.nMargine / 2};
    m_Pittore.setPen(kInchiostro);
    m_Pittore.setFont(m_Piccolo);
    const QRectF posto = Punti(piede);
    m_Pittore.drawText(posto, Qt::AlignRight | Qt::AlignVCenter,
                       QStringLiteral("Pagina %1 di %2").arg(Numero(nPagina), Numero(nPagine)));
    const QString sNome =
        QFontMetricsF(m_Piccolo, m_Pittore.device()).elidedText(sFile, Qt::ElideMiddle, posto.width() / 2);
    m_Pittore.drawText(posto, Qt::AlignLeft | Qt::AlignVCenter, sNome);
}

} // namespace ordavel::qt
