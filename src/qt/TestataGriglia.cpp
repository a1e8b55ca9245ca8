// TestataGriglia.cpp - the part of the grid that stays in view.

#include "qt/TestataGriglia.hpp"

#include "qt/DelegatoGriglia.hpp"
#include "qt/ModelloGriglia.hpp"

#include <QPainter>
#include <QRegularExpression>

#include <algorithm>

namespace ordavel::qt {

namespace {

constexpr int kMargine = 3;

int AltezzaTesto(const ModelloGriglia& modello, int nRiga)
{
    return QFontMetrics(modello.carattere(nRiga, 1)).height();
}

/// Fills a cell and draws its lines to the right and below.
void DipingiFondo(QPainter& penna, const QRect& dove, const QBrush& fondo, const QColor& filo)
{
    penna.fillRect(dove, fondo);
    penna.setPen(filo);
    penna.drawLine(dove.topRight(), dove.bottomRight());
    penna.drawLine(dove.bottomLeft(), dove.bottomRight());
}

QRectF Dentro(const QRect& dove)
{
    return QRectF(dove).adjusted(kMargine, 1, -kMargine, -1);
}

/// The thin lines, to be seen on light and on dark grounds.
QColor Filo(const QPalette& tavolozza)
{
    QColor filo = tavolozza.color(QPalette::WindowText);
    filo.setAlphaF(0.3F);
    return filo;
}

/// A name is best broken where its parts meet: "LinkOpen", "InterruzioniPD".
QString NomeDivisibile(const QString& sNome)
{
    static const QRegularExpression kGiunto("(?<=[a-z])(?=[A-Z])");
    return QString(sNome).replace(kGiunto, QString(QChar(0x200B)));
}

qreal ParolaPiuLunga(const QString& sNome, const QFont& carattere)
{
    static const QRegularExpression kTagli("[ \\-\u200B]");
    const QFontMetricsF misure(carattere);
    qreal nParola = 0;
    for (const QString& sParola : sNome.split(kTagli)) {
        nParola = std::max(nParola, misure.horizontalAdvance(sParola));
    }
    return nParola;
}

/// The letters draw closer, percent by percent, where the longest word has no room.
QFont Stretto(QFont carattere, const QString& sNome, qreal nLargo)
{
    constexpr int kMinimo = 60;
    for (int n = 96; n >= kMinimo && ParolaPiuLunga(sNome, carattere) > nLargo; n -= 4) {
        carattere.setStretch(n);
    }
    return carattere;
}

int AltezzaTaglio(const ModelloGriglia& modello)
{
    return std::max(8, AltezzaTesto(modello, rigaNumero) * 2 / 3);
}

} // namespace

TestataGriglia::TestataGriglia(const ModelloGriglia& modello, QWidget* padre)
    : QHeaderView(Qt::Horizontal, padre), m_Modello(modello)
{
    setSectionsClickable(true);
    setSectionResizeMode(QHeaderView::Fixed);
    setHighlightSections(false);
    setMinimumSectionSize(kMargine);
}

QSize TestataGriglia::sizeHint() const
{
    const int nTesto = AltezzaTesto(m_Modello, rigaNumero);
    const int nNome =
        kRigheGriglia[rigaCondizione].nAltezzeTesto *
        std::max(AltezzaTesto(m_Modello, rigaCondizione), AltezzaTesto(m_Modello, rigaParametri));
    return {QHeaderView::sizeHint().width(), nTesto + nNome + AltezzaTaglio(m_Modello) + 4 * kMargine};
}

QRect TestataGriglia::postoNumero(const QRect& sezione) const
{
    return {sezione.topLeft(), QSize(sezione.width(), AltezzaTesto(m_Modello, rigaNumero) + 2 * kMargine)};
}

QRect TestataGriglia::postoTaglio(const QRect& sezione) const
{
    QRect posto = sezione;
    posto.setTop(sezione.bottom() + 1 - AltezzaTaglio(m_Modello));
    return posto;
}

QRect TestataGriglia::postoNome(const QRect& sezione) const
{
    QRect posto = sezione;
    posto.setTop(postoNumero(sezione).bottom() + 1);
    posto.setBottom(postoTaglio(sezione).top() - 1);
    return posto;
}

void TestataGriglia::dipingiTaglio(QPainter& penna, const QRect& dove, int nColonna) const
{
    const std::optional<Taglio> taglio = m_Modello.taglio(nColonna);
    if (!taglio) {
        return;
    }
    QRectF barra = QRectF(dove).adjusted(1.5, 1.5, -2.5, -2.5);
    penna.setPen(Filo(palette()));
    penna.drawRect(barra);
    barra.adjust(0.5, 0.5, -0.5, -0.5);
    barra.setWidth(barra.width() * taglio->nQuota);
    const QColor piena = palette().color(QPalette::Highlight);
    QColor pallida = piena;
    pallida.setAlphaF(0.35F);
    penna.fillRect(barra, taglio->bEsatto ? piena : pallida);
    if (!taglio->bEsatto) {
        penna.fillRect(barra, QBrush(piena, Qt::BDiagPattern));
    }
}

void TestataGriglia::paintSection(QPainter* penna, const QRect& dove, int nColonna) const
{
    if (!dove.isValid()) {
        return;
    }
    penna->save();
    penna->setClipRect(dove);
    const QColor filo = Filo(palette());
    const QRect numero = postoNumero(dove);
    DipingiFondo(*penna, numero, palette().button(), filo);
    penna->setPen(palette().color(QPalette::ButtonText));
    DipingiRighe(*penna, Dentro(numero), QString::number(nColonna),
                 m_Modello.carattere(rigaNumero, nColonna));
    const QModelIndex indice = m_Modello.index(rigaCondizione, nColonna);
    const QRect nome = postoNome(dove);
    DipingiFondo(*penna, nome, indice.data(Qt::BackgroundRole).value<QColor>(), filo);
    penna->setPen(indice.data(Qt::ForegroundRole).value<QColor>());
    const QString sNome = NomeDivisibile(indice.data().toString());
    const QFont carattere = m_Modello.carattere(rigaCondizione, nColonna);
    const QRectF posto = QRectF(nome).adjusted(1, 1, -2, -1);
    DipingiRighe(*penna, posto, sNome, Stretto(carattere, sNome, posto.width()));
    const QRect taglio = postoTaglio(dove);
    DipingiFondo(*penna, taglio, palette().base(), filo);
    dipingiTaglio(*penna, taglio, nColonna);
    penna->restore();
}

AngoloGriglia::AngoloGriglia(const ModelloGriglia& modello, const TestataGriglia& testata, QWidget* padre)
    : QWidget(padre), m_Modello(modello), m_Testata(testata)
{
    // Tool tip and click belong to nobody here; what stands in it is told by each column.
    setFocusPolicy(Qt::NoFocus);
}

void AngoloGriglia::paintEvent(QPaintEvent* /*evento*/)
{
    QPainter penna(this);
    QRect nome = m_Testata.postoNome(rect());
    nome.setBottom(rect().bottom());
    const std::pair<int, QRect> aPosti[] = {{rigaNumero, m_Testata.postoNumero(rect())},
                                            {rigaCondizione, nome}};
    for (const auto& [nRiga, posto] : aPosti) {
        DipingiFondo(penna, posto, palette().button(), Filo(palette()));
        penna.setPen(palette().color(QPalette::ButtonText));
        DipingiRighe(penna, Dentro(posto), m_Modello.index(nRiga, 0).data().toString(),
                     m_Modello.carattere(nRiga, 0));
    }
}

} // namespace ordavel::qt
