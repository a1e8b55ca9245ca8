// F_Manuale.cpp - the manual.

#include "desktop/F_Manuale.hpp"

#include <QBoxLayout>
#include <QImage>
#include <QListWidget>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextFrame>
#include <QTextTable>
#include <QUrl>

namespace ordavel::desktop {

namespace {

/// In letters and lines of the window's font.
constexpr int kLarghezzaPagina = 92;
constexpr int kMargini = 8;
constexpr int kAltezza = 44;
/// Between chapters in the index, of a line.
constexpr int kDistacchi = 8;

constexpr int kLivelloCapitolo = 2;

/// Thin lines, and texts that keep away from them.
void Rifinisci(QTextTable& tabella, const QPalette& tavolozza, int nRiga)
{
    QTextTableFormat formato = tabella.format();
    formato.setBorderCollapse(true);
    formato.setBorder(1);
    formato.setBorderStyle(QTextFrameFormat::BorderStyle_Solid);
    formato.setBorderBrush(tavolozza.mid());
    formato.setCellSpacing(0);
    formato.setCellPadding(nRiga / 4.0);
    tabella.setFormat(formato);
}

} // namespace

QString AncoraDi(const QString& sTitolo)
{
    QString sAncora;
    for (const QChar cLettera : sTitolo.toLower()) {
        if (cLettera == u' ' || cLettera == u'-') {
            sAncora += u'-';
        } else if (cLettera.isLetterOrNumber()) {
            sAncora += cLettera;
        }
    }
    return sAncora;
}

TestoManuale::TestoManuale(QWidget* padre) : QTextBrowser(padre)
{
    setObjectName("Testo");
    setAccessibleName(QStringLiteral("Manuale di Ordavel"));
    setOpenLinks(false);
    document()->setDocumentMargin(fontMetrics().lineSpacing());
    setSource(QUrl(QStringLiteral("qrc:/desktop/manuale.md")), QTextDocument::MarkdownResource);
    for (QTextFrame* cornice : document()->rootFrame()->childFrames()) {
        if (auto* tabella = qobject_cast<QTextTable*>(cornice)) {
            Rifinisci(*tabella, palette(), fontMetrics().lineSpacing());
        }
    }
    for (QTextBlock blocco = document()->begin(); blocco.isValid(); blocco = blocco.next()) {
        if (blocco.blockFormat().headingLevel() == kLivelloCapitolo) {
            m_aCapitoli.append(blocco.text());
            m_aPosti.append(blocco.position());
        }
    }
}

void TestoManuale::VaiACapitolo(qsizetype nCapitolo)
{
    QTextCursor cursore(document());
    cursore.setPosition(m_aPosti.at(nCapitolo));
    setTextCursor(cursore);
    verticalScrollBar()->setValue(verticalScrollBar()->value() + cursorRect(cursore).top() -
                                  fontMetrics().lineSpacing() / 2);
}

bool TestoManuale::VaiAdAncora(const QString& sAncora)
{
    for (qsizetype i = 0; i < m_aCapitoli.size(); ++i) {
        if (AncoraDi(m_aCapitoli.at(i)) == sAncora) {
            VaiACapitolo(i);
            return true;
        }
    }
    return false;
}

QVariant TestoManuale::loadResource(int nTipo, const QUrl& nome)
{
    if (nTipo != QTextDocument::ImageResource) {
        return QTextBrowser::loadResource(nTipo, nome);
    }
    QImage immagine(QStringLiteral(":") + nome.path());
    const int nPagina = fontMetrics().averageCharWidth() * kLarghezzaPagina;
    if (immagine.width() > nPagina) {
        const double nFitto = devicePixelRatioF();
        const int nPunti = std::min(immagine.width(), static_cast<int>(nPagina * nFitto));
        immagine = immagine.scaledToWidth(nPunti, Qt::SmoothTransformation);
        immagine.setDevicePixelRatio(static_cast<double>(nPunti) / nPagina);
    }
    return immagine;
}

F_Manuale::F_Manuale(QWidget* padre)
    : QDialog(padre),
      m_Piattaforma(this),
      m_Legami(m_Piattaforma, "F_Manuale"),
      m_Testo(new TestoManuale(this))
{
    setObjectName("F_Manuale");
    setWindowTitle(QStringLiteral("Manuale di Ordavel"));
    setAccessibleName(windowTitle());
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    auto* riga = new QHBoxLayout(this);
    riga->setContentsMargins(0, 0, 0, 0);
    riga->setSpacing(0);
    QListWidget* indice = NuovoIndice();
    riga->addWidget(indice);
    riga->addWidget(m_Testo, 1);
    m_Legami.Al(m_Testo, &QTextBrowser::anchorClicked,
                [this](const QUrl& url) { m_Testo->VaiAdAncora(url.fragment(QUrl::FullyDecoded)); });
    m_Testo->setFocus();
    const int nLettera = fontMetrics().averageCharWidth();
    resize(indice->width() + nLettera * (kLarghezzaPagina + kMargini),
           fontMetrics().lineSpacing() * kAltezza);
}

QListWidget* F_Manuale::NuovoIndice()
{
    auto* indice = new QListWidget(this);
    indice->setObjectName("Indice");
    indice->setAccessibleName(QStringLiteral("Capitoli del manuale"));
    indice->addItems(m_Testo->Capitoli());
    indice->setFrameShape(QFrame::NoFrame);
    indice->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    indice->setSpacing(fontMetrics().lineSpacing() / kDistacchi);
    indice->setFixedWidth(indice->sizeHintForColumn(0) + 2 * fontMetrics().lineSpacing());
    m_Legami.Al(indice, &QListWidget::currentRowChanged, [this](int nRiga) {
        if (nRiga >= 0) {
            m_Testo->VaiACapitolo(nRiga);
        }
    });
    return indice;
}

} // namespace ordavel::desktop
