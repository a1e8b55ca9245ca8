// F_Manuale_prova.cpp - the manual as it is read: chapters, links, pictures, keys.

#include "desktop/F_Manuale.hpp"

#include "FinestraInProva.hpp"

#include <QAction>
#include <QImage>
#include <QListWidget>
#include <QScrollBar>
#include <QTest>
#include <QTextBlock>
#include <gtest/gtest.h>

namespace ordavel::desktop {

namespace {

/// What the fragments of the text have as one of their properties.
QStringList Nel(const QTextDocument& documento, const std::function<QString(const QTextCharFormat&)>& valore)
{
    QStringList aValori;
    for (QTextBlock blocco = documento.begin(); blocco.isValid(); blocco = blocco.next()) {
        for (auto pezzo = blocco.begin(); !pezzo.atEnd(); ++pezzo) {
            aValori.append(valore(pezzo.fragment().charFormat()));
        }
    }
    aValori.removeAll(QString());
    return aValori;
}

struct Manuale : testing::Test {
    F_Manuale finestra{nullptr};
    TestoManuale& testo = *finestra.findChild<TestoManuale*>();
};

} // namespace

TEST_F(Manuale, OgniImmagineSiVede)
{
    const QStringList aImmagini = Nel(*testo.document(), [](const QTextCharFormat& formato) {
        return formato.isImageFormat() ? formato.toImageFormat().name() : QString();
    });
    EXPECT_GT(aImmagini.size(), 10);
    for (const QString& sImmagine : aImmagini) {
        const QUrl dove = testo.source().resolved(QUrl(sImmagine));
        const QVariant dati = testo.document()->resource(QTextDocument::ImageResource, dove);
        EXPECT_FALSE(dati.value<QImage>().isNull()) << sImmagine.toStdString();
    }
}

TEST_F(Manuale, OgniRimandoPortaAUnCapitolo)
{
    const QStringList aRimandi =
        Nel(*testo.document(), [](const QTextCharFormat& formato) { return formato.anchorHref(); });
    EXPECT_GE(aRimandi.size(), testo.Capitoli().size());
    for (const QString& sRimando : aRimandi) {
        EXPECT_TRUE(sRimando.startsWith('#') && testo.VaiAdAncora(sRimando.mid(1))) << sRimando.toStdString();
    }
    EXPECT_FALSE(testo.VaiAdAncora("manca"));
}

TEST_F(Manuale, LIndicePortaAlCapitolo)
{
    finestra.show();
    auto* indice = finestra.findChild<QListWidget*>("Indice");
    ASSERT_EQ(indice->count(), testo.Capitoli().size());
    EXPECT_EQ(testo.verticalScrollBar()->value(), 0);
    indice->setCurrentRow(4);
    EXPECT_GT(testo.verticalScrollBar()->value(), 0);
    EXPECT_EQ(testo.textCursor().block().text(), indice->item(4)->text());
}

TEST_F(Manuale, NessunaImmagineEPiuLargaDellaFinestra)
{
    finestra.show();
    QCoreApplication::processEvents();
    EXPECT_EQ(testo.horizontalScrollBar()->maximum(), 0);
}

/// What the table of keys says of each command.
TEST_F(FinestraInProva, IlManualeDiceITastiDeiComandi)
{
    const F_Manuale manuale(nullptr);
    const QString sTesto = manuale.findChild<TestoManuale*>()->toPlainText();
    for (const QAction* azione : Finestra().findChildren<QAction*>()) {
        const QString sTasto = azione->shortcut()
                                   .toString(QKeySequence::PortableText)
                                   .replace("Shift", "Maiusc")
                                   .replace("Del", "Canc");
        EXPECT_TRUE(sTesto.contains(sTasto))
            << azione->objectName().toStdString() << " " << sTasto.toStdString();
    }
}

TEST(AncoreProva, SonoQuelleDeiTitoli)
{
    EXPECT_EQ(AncoraDi("Gioco, classe e numeri"), "gioco-classe-e-numeri");
    EXPECT_EQ(AncoraDi("L'effetto delle condizioni"), "leffetto-delle-condizioni");
}

} // namespace ordavel::desktop
