// F_Manuale.cpp - the manual.

#include "desktop/F_Manuale.hpp"

#include <QTextBrowser>
#include <QTextDocument>
#include <QUrl>
#include <QVBoxLayout>

namespace ordavel::desktop {

namespace {

/// In letters and lines of the window's font.
constexpr int kLarghezza = 80;
constexpr int kAltezza = 34;

} // namespace

F_Manuale::F_Manuale(QWidget* padre) : QDialog(padre)
{
    setObjectName("F_Manuale");
    setWindowTitle(QStringLiteral("Manuale di Ordavel"));
    setAccessibleName(windowTitle());
    auto* testo = new QTextBrowser(this);
    testo->setObjectName("Testo");
    testo->setAccessibleName(windowTitle());
    testo->setSource(QUrl(QStringLiteral("qrc:/desktop/manuale.html")));
    testo->document()->setDocumentMargin(fontMetrics().lineSpacing());
    auto* sotto = new QVBoxLayout(this);
    sotto->setContentsMargins(0, 0, 0, 0);
    sotto->addWidget(testo);
    resize(fontMetrics().averageCharWidth() * kLarghezza, fontMetrics().lineSpacing() * kAltezza);
}

} // namespace ordavel::desktop
