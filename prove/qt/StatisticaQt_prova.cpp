// StatisticaQt_prova.cpp - the window of a statistic, and the boxes that stand in its place.

#include "qt/StatisticaQt.hpp"

#include "comune/CartellaProva.hpp"
#include "qt/GraficoBarre.hpp"
#include "qt/Legami.hpp"
#include "qt/PiattaformaQt.hpp"

#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QTreeWidget>
#include <gtest/gtest.h>

#include <functional>

namespace ordavel::qt {

namespace {

constexpr std::int16_t kLotto = 1;
constexpr std::int32_t kStatResto = 14;

struct StatisticaQtProva : testing::Test {
    /// Asks for a statistic and does something with the window that comes, which is closed behind it.
    bool Mostra(std::int32_t nIdStatistica, std::int16_t nGioco, const std::function<void(QWidget&)>& azione)
    {
        bool bVista = false;
        QTimer::singleShot(0, [&] {
            if (QWidget* finestra = QApplication::activeModalWidget()) {
                bVista = true;
                azione(*finestra);
                if (finestra->isVisible()) {
                    finestra->close();
                }
            }
        });
        statistica.MostraStatistica(nIdStatistica, nGioco);
        return bVista;
    }

    /// A file of Bari's draws 1-5 and 2-6, in turn; the other wheels are empty.
    void Archivio(int nQuante)
    {
        std::string sFile;
        for (int i = 0; i < nQuante; ++i) {
            std::string sRecord(67, '\0');
            sRecord.replace(12, 5, i % 2 == 0 ? "\1\2\3\4\5" : "\2\3\4\5\6");
            sFile += sRecord;
        }
        sArchivio = cartella / "lotto.bd";
        prove::ScriviFile(sArchivio, sFile);
    }

    prove::CartellaProva cartella;
    std::string sArchivio;
    PiattaformaQt piattaforma{nullptr};
    StatisticaQt statistica{piattaforma, [this](std::int16_t) { return sArchivio; }};
};

} // namespace

TEST_F(StatisticaQtProva, SenzaArchivioLoDice)
{
    sArchivio = cartella / "manca.bd";
    EXPECT_TRUE(Mostra(kStatResto, kLotto, [&](QWidget& finestra) {
        const auto* messaggio = qobject_cast<QMessageBox*>(&finestra);
        ASSERT_NE(messaggio, nullptr);
        EXPECT_TRUE(messaggio->text().startsWith("Archivio delle estrazioni non disponibile"));
        EXPECT_TRUE(messaggio->text().contains("Lotto"));
        EXPECT_TRUE(messaggio->text().contains(Testo(sArchivio)));
        EXPECT_TRUE(messaggio->text().contains("Impostazioni"));
    }));
}

TEST_F(StatisticaQtProva, UnaSpecieSenzaStatisticaLoDice)
{
    Archivio(1);
    EXPECT_TRUE(Mostra(12, kLotto, [](QWidget& finestra) {
        const auto* messaggio = qobject_cast<QMessageBox*>(&finestra);
        ASSERT_NE(messaggio, nullptr);
        EXPECT_EQ(messaggio->icon(), QMessageBox::Information);
        EXPECT_TRUE(messaggio->text().contains("Punti Col."));
    }));
}

TEST_F(StatisticaQtProva, LaFinestraMostraGraficoRiassuntoEUltime)
{
    Archivio(101);
    EXPECT_TRUE(Mostra(kStatResto, kLotto, [](QWidget& finestra) {
        EXPECT_EQ(finestra.windowTitle(), "Statistica: Resto");
        // Sums of 15 and 20.
        const auto* grafico = finestra.findChild<GraficoBarre*>("Grafico");
        EXPECT_EQ(grafico->Barre(), 2);
        EXPECT_EQ(finestra.findChild<QLabel*>("LabUsate")->text(), "101 estrazioni");
        EXPECT_EQ(finestra.findChild<QLabel*>("LabMedia")->text(), "0,50");
        EXPECT_EQ(finestra.findChild<QLabel*>("LabLimiti")->text(), "0 - 1");
        const auto* ultime = finestra.findChild<QTreeWidget*>("Ultime");
        EXPECT_EQ(ultime->topLevelItemCount(), 20);
        EXPECT_EQ(ultime->topLevelItem(0)->text(0), "101");
        EXPECT_EQ(ultime->topLevelItem(0)->text(1), "1");
        EXPECT_EQ(ultime->topLevelItem(0)->text(2), "01 02 03 04 05");
    }));
}

TEST_F(StatisticaQtProva, LeScelteRifannoIlGrafico)
{
    Archivio(40);
    EXPECT_TRUE(Mostra(kStatResto, kLotto, [](QWidget& finestra) {
        const auto* grafico = finestra.findChild<GraficoBarre*>("Grafico");
        auto* variante = finestra.findChild<QComboBox*>("CmbVariante");
        EXPECT_EQ(variante->currentText(), "Resto a 2");
        variante->setCurrentIndex(7);
        // 15 and 20 modulo 9: 6 and 2, with what is between them.
        EXPECT_EQ(grafico->Barre(), 5);
        EXPECT_EQ(finestra.findChild<QLabel*>("LabMedia")->text(), "4,00");
        finestra.findChild<QComboBox*>("CmbUltime")->setCurrentIndex(0);
        EXPECT_EQ(finestra.findChild<QTreeWidget*>("Ultime")->topLevelItemCount(), 10);
        auto* ruota = finestra.findChild<QComboBox*>("CmbRuota");
        EXPECT_EQ(ruota->currentText(), "Bari");
        ruota->setCurrentIndex(1);
        EXPECT_EQ(grafico->Barre(), 0);
        EXPECT_EQ(finestra.findChild<QTreeWidget*>("Ultime")->topLevelItemCount(), 0);
        EXPECT_EQ(finestra.findChild<QLabel*>("LabUsate")->text(), "0 estrazioni (40 incomplete)");
    }));
}

TEST_F(StatisticaQtProva, UnUltimaEstrazioneEvidenziaLaSuaBarra)
{
    Archivio(4);
    EXPECT_TRUE(Mostra(kStatResto, kLotto, [](QWidget& finestra) {
        const auto* grafico = finestra.findChild<GraficoBarre*>("Grafico");
        auto* ultime = finestra.findChild<QTreeWidget*>("Ultime");
        ultime->setCurrentItem(ultime->topLevelItem(1));
        EXPECT_EQ(grafico->Evidenziata(), 1);
        EXPECT_EQ(finestra.findChild<QLabel*>("LabBarra")->text(),
                  "1: 2 estrazioni, 50,0 %; ultime 4: 2, 50,0 %");
    }));
}

TEST_F(StatisticaQtProva, TuttoHaUnNomeEChiudiChiude)
{
    Archivio(3);
    EXPECT_TRUE(Mostra(kStatResto, kLotto, [](QWidget& finestra) {
        for (const QWidget* widget : finestra.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
            if ((widget->focusPolicy() & Qt::TabFocus) != 0) {
                EXPECT_FALSE(widget->objectName().isEmpty()) << widget->metaObject()->className();
                EXPECT_FALSE(widget->accessibleName().isEmpty()) << widget->objectName().toStdString();
            }
        }
        EXPECT_TRUE(finestra.focusWidget() == finestra.findChild<GraficoBarre*>("Grafico"));
        QTest::mouseClick(finestra.findChild<QPushButton*>("Chiudi"), Qt::LeftButton);
        EXPECT_FALSE(finestra.isVisible());
    }));
}

TEST_F(StatisticaQtProva, EscChiude)
{
    Archivio(3);
    EXPECT_TRUE(Mostra(kStatResto, kLotto, [](QWidget& finestra) {
        QTest::keyClick(&finestra, Qt::Key_Escape);
        EXPECT_FALSE(finestra.isVisible());
    }));
}

} // namespace ordavel::qt
