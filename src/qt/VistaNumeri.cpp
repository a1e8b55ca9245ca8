// VistaNumeri.cpp - the selector of numbers.

#include "qt/VistaNumeri.hpp"

#include <QKeyEvent>
#include <QMetaMethod>
#include <QMouseEvent>
#include <QPainter>
#include <QStyle>

#include <algorithm>
#include <array>
#include <utility>

namespace ordavel::qt {

namespace {

/// 0xBBGGRR.
QColor ColoreQt(Colore nColore)
{
    constexpr int kByte = 0xFF;
    return {nColore & kByte, (nColore >> 8) & kByte, (nColore >> 16) & kByte};
}

/// How far a key moves the frame.
int PassoDiTasto(int nTasto)
{
    constexpr std::array<std::pair<int, int>, 4> kPassi{{{Qt::Key_Left, -1},
                                                         {Qt::Key_Right, 1},
                                                         {Qt::Key_Up, -VistaNumeri::kPerRiga},
                                                         {Qt::Key_Down, VistaNumeri::kPerRiga}}};
    const auto* passo =
        std::find_if(kPassi.begin(), kPassi.end(), [nTasto](const auto& p) { return p.first == nTasto; });
    return passo == kPassi.end() ? 0 : passo->second;
}

} // namespace

VistaNumeri::VistaNumeri(Legami& legami, SelettoreNumeri& numeri, QWidget* padre)
    : QWidget(padre), m_Legami(&legami), m_Numeri(numeri)
{
    setObjectName("SelnovoNumeri1");
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    legami.collega(static_cast<Controllo&>(numeri), this);
    const auto segui = [this, &legami](auto& stato, auto& copia) {
        legami.Segui(stato, this, [this, &copia](const auto& valore) {
            copia = valore;
            Descrivi();
            update();
        });
    };
    segui(numeri.Scelti, m_aScelti);
    segui(numeri.Abilitati, m_aAbilitati);
    segui(numeri.Colori, m_aColori);
}

QRect VistaNumeri::Casella(int nNumero) const
{
    const int nColonna = (nNumero - 1) % kPerRiga;
    const int nRiga = (nNumero - 1) / kPerRiga;
    const QPoint angolo(nColonna * width() / kPerRiga, nRiga * height() / kRighe);
    const QPoint oltre((nColonna + 1) * width() / kPerRiga, (nRiga + 1) * height() / kRighe);
    return {angolo, oltre - QPoint(1, 1)};
}

int VistaNumeri::NumeroA(QPoint punto) const
{
    if (!rect().contains(punto)) {
        return 0;
    }
    // A division alone may be one box off where the sizes do not come out even.
    for (int n = 1; n <= kNumeroMassimo; ++n) {
        if (Casella(n).contains(punto)) {
            return n;
        }
    }
    return 0;
}

QSize VistaNumeri::Misura(int nMargine) const
{
    QFont grassetto = font();
    grassetto.setBold(true);
    const QFontMetrics misure(grassetto);
    const int nLato = std::max(misure.horizontalAdvance("90"), misure.height()) + 2 * nMargine;
    return {nLato * kPerRiga, nLato * kRighe};
}

QSize VistaNumeri::sizeHint() const
{
    return Misura(fontMetrics().height() / 3);
}

QSize VistaNumeri::minimumSizeHint() const
{
    return Misura(fontMetrics().height() / 6);
}

void VistaNumeri::Poni(int nNumero, bool bScelto)
{
    if (nNumero != 0 && Abilitato(nNumero) && Scelto(nNumero) != bScelto && m_Legami) {
        m_Legami->Protetto([&] { m_Numeri.Seleziona(nNumero, bScelto); });
    }
}

void VistaNumeri::Inverti(int nNumero)
{
    Poni(nNumero, !Scelto(nNumero));
}

void VistaNumeri::Sposta(int nNumero)
{
    m_nCorrente = std::clamp<int>(nNumero, 1, kNumeroMassimo);
    Descrivi();
    update();
}

/// What is said of it: how many are selected, and the framed box.
void VistaNumeri::Descrivi()
{
    const auto nScelti = std::count_if(m_aScelti.aElementi.begin(), m_aScelti.aElementi.end(),
                                       [](std::uint8_t nSegno) { return nSegno != 0; });
    setAccessibleName(QStringLiteral("Numeri scelti: %1").arg(nScelti));
    const QString sStato = !Abilitato(m_nCorrente) ? QStringLiteral("non disponibile")
                           : Scelto(m_nCorrente)   ? QStringLiteral("scelto")
                                                   : QStringLiteral("non scelto");
    setAccessibleDescription(QStringLiteral("Numero %1, %2").arg(m_nCorrente).arg(sStato));
}

bool VistaNumeri::Ascoltato() const
{
    static const QMetaMethod kSegnale = QMetaMethod::fromSignal(&VistaNumeri::doubleClicked);
    return isSignalConnected(kSegnale);
}

void VistaNumeri::paintEvent(QPaintEvent* evento)
{
    QPainter pennello(this);
    for (int n = 1; n <= kNumeroMassimo; ++n) {
        if (Casella(n).intersects(evento->rect())) {
            Disegna(pennello, n);
        }
    }
}

void VistaNumeri::Disegna(QPainter& pennello, int nNumero) const
{
    const bool bScelto = Scelto(nNumero);
    const auto gruppo =
        isEnabled() && Abilitato(nNumero) ? palette().currentColorGroup() : QPalette::Disabled;
    const auto colore = [&](std::optional<Colore> nSuo, QPalette::ColorRole scelto, QPalette::ColorRole no) {
        return nSuo ? ColoreQt(*nSuo) : palette().color(gruppo, bScelto ? scelto : no);
    };
    const ColoriCasella& colori = m_aColori(nNumero);
    const QColor testo = colore(colori.nTesto, QPalette::HighlightedText, QPalette::Text);
    const QRect casella = Casella(nNumero).adjusted(1, 1, -1, -1);
    pennello.fillRect(casella, colore(colori.nSfondo, QPalette::Highlight, QPalette::Base));

    pennello.setPen(palette().color(gruppo, QPalette::Mid));
    pennello.drawRect(casella.adjusted(0, 0, -1, -1));
    if (bScelto) {
        constexpr int kDentro = 2;
        pennello.setPen(testo);
        pennello.drawRect(casella.adjusted(kDentro, kDentro, -kDentro - 1, -kDentro - 1));
    }

    QFont carattere = font();
    carattere.setBold(bScelto);
    pennello.setFont(carattere);
    pennello.setPen(testo);
    pennello.drawText(casella, Qt::AlignCenter, QString::number(nNumero));
    if (hasFocus() && nNumero == m_nCorrente) {
        pennello.setPen(QPen(testo, 1, Qt::DashLine));
        constexpr int kPiuDentro = 4;
        pennello.drawRect(casella.adjusted(kPiuDentro, kPiuDentro, -kPiuDentro - 1, -kPiuDentro - 1));
    }
}

void VistaNumeri::mousePressEvent(QMouseEvent* evento)
{
    m_nPremuto = evento->button() == Qt::LeftButton ? NumeroA(evento->position().toPoint()) : 0;
    if (m_nPremuto == 0) {
        return QWidget::mousePressEvent(evento);
    }
    m_Prima = evento->position().toPoint();
    Sposta(m_nPremuto);
    Inverti(m_nPremuto);
    m_bTirato = Scelto(m_nPremuto);
    if (!Abilitato(m_nPremuto)) {
        m_nPremuto = 0; // a pull that begins nowhere goes nowhere
    }
}

void VistaNumeri::mouseMoveEvent(QMouseEvent* evento)
{
    if (m_nPremuto == 0 || !evento->buttons().testFlag(Qt::LeftButton)) {
        return;
    }
    // A quick hand skips boxes: all on the way count.
    const QPoint via = evento->position().toPoint() - m_Prima;
    const int nPassi = std::max(1, via.manhattanLength());
    for (int i = 1; i <= nPassi; ++i) {
        Poni(NumeroA(m_Prima + QPoint(via.x() * i / nPassi, via.y() * i / nPassi)), m_bTirato);
    }
    m_Prima += via;
    if (const int nQui = NumeroA(m_Prima)) {
        Sposta(nQui);
    }
}

void VistaNumeri::mouseDoubleClickEvent(QMouseEvent* evento)
{
    const bool bStessa = m_nPremuto != 0 && NumeroA(evento->position().toPoint()) == m_nPremuto;
    if (bStessa && evento->button() == Qt::LeftButton && Ascoltato()) {
        m_nPremuto = 0;
        Q_EMIT doubleClicked();
        return;
    }
    mousePressEvent(evento);
}

void VistaNumeri::keyPressEvent(QKeyEvent* evento)
{
    const int nTasto = evento->key();
    const bool bInvio = nTasto == Qt::Key_Return || nTasto == Qt::Key_Enter;
    if (const int nNuovo = m_nCorrente + PassoDiTasto(nTasto); nNuovo != m_nCorrente) {
        if (nNuovo >= 1 && nNuovo <= kNumeroMassimo) {
            Sposta(nNuovo);
        }
    } else if (nTasto == Qt::Key_Home || nTasto == Qt::Key_End) {
        Sposta(nTasto == Qt::Key_Home ? 1 : kNumeroMassimo);
    } else if (nTasto == Qt::Key_Space) {
        Inverti(m_nCorrente);
    } else if (bInvio && Ascoltato()) {
        Q_EMIT doubleClicked();
    } else {
        QWidget::keyPressEvent(evento);
    }
}

void VistaNumeri::focusInEvent(QFocusEvent* evento)
{
    QWidget::focusInEvent(evento);
    update();
}

void VistaNumeri::focusOutEvent(QFocusEvent* evento)
{
    QWidget::focusOutEvent(evento);
    update();
}

} // namespace ordavel::qt
