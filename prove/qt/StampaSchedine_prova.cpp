// StampaSchedine_prova.cpp - slips in a PDF looked at with other programs, on a printer, in the preview.

#include "qt/StampaSchedine.hpp"

#include "comune/CartellaProva.hpp"
#include "qt/AnteprimaSchedine.hpp"
#include "qt/Legami.hpp"

#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QImage>
#include <QLineEdit>
#include <QMessageBox>
#include <QPainter>
#include <QPrinter>
#include <QProcess>
#include <QProgressDialog>
#include <QPushButton>
#include <QRegularExpression>
#include <QScrollArea>
#include <QScrollBar>
#include <QSpinBox>
#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <functional>

namespace ordavel::qt {

namespace {

constexpr double kMmPollice = 25.4;
constexpr FoglioMm kA4{};

/// The numbers of column n, from 0: five, which differ from those of its neighbours.
std::array<std::uint8_t, 5> NumeriDi(std::int64_t n)
{
    std::array<std::uint8_t, 5> aNumeri{};
    for (std::size_t i = 0; i < aNumeri.size(); ++i) {
        aNumeri[i] = static_cast<std::uint8_t>(static_cast<std::int64_t>(i) * 18 + 1 + n % 18);
    }
    return aNumeri;
}

QString Uscita(const QString& sProgramma, const QStringList& aArgomenti)
{
    QProcess processo;
    processo.start(sProgramma, aArgomenti);
    EXPECT_TRUE(processo.waitForFinished(60000)) << sProgramma.toStdString();
    EXPECT_EQ(processo.exitCode(), 0) << processo.readAllStandardError().toStdString();
    return QString::fromUtf8(processo.readAllStandardOutput());
}

struct Schedine : testing::Test {
    QString Colonne(std::int64_t nQuante)
    {
        std::string sFile;
        for (std::int64_t n = 0; n < nQuante; ++n) {
            const auto aNumeri = NumeriDi(n);
            std::string sColonna(aNumeri.begin(), aNumeri.end());
            sColonna.resize(20, '\0');
            sFile += sColonna;
        }
        prove::ScriviFile(cartella / "colonne.col", sFile);
        return Testo(cartella / "colonne.col");
    }

    [[nodiscard]] QString Pdf() const { return Testo(cartella / "schedine.pdf"); }

    /// Page n of the PDF, from 1, at 100 dots an inch.
    [[nodiscard]] QImage Pagina(int nPagina) const
    {
        const QString sDove = Testo(cartella / "pagina");
        const QString sPagina = QString::number(nPagina);
        Uscita("pdftoppm", {"-r", "100", "-f", sPagina, "-l", sPagina, "-singlefile", "-png", Pdf(), sDove});
        return QImage(sDove + ".png");
    }

    prove::CartellaProva cartella;
};

/// How dark a box is in its corners, where no digit reaches: 0 black, 255 white.
int Angoli(const QImage& immagine, const RettangoloMm& casella)
{
    const double nScala = immagine.width() / kA4.nLarghezza;
    int nSomma = 0;
    for (const double nX : {0.12, 0.88}) {
        for (const double nY : {0.12, 0.88}) {
            nSomma += qGray(immagine.pixel(static_cast<int>((casella.nX + nX * casella.nLarghezza) * nScala),
                                           static_cast<int>((casella.nY + nY * casella.nAltezza) * nScala)));
        }
    }
    return nSomma / 4;
}

/// Are exactly a column's numbers filled in its panel?
void ControllaSegni(const QImage& immagine, const PaginaSchedine& pagina, std::int32_t nPosto,
                    std::int32_t nPannello, std::int64_t nColonna)
{
    const auto aNumeri = NumeriDi(nColonna);
    for (std::int32_t n = 1; n <= 90; ++n) {
        const bool bSegnato = std::find(aNumeri.begin(), aNumeri.end(), n) != aNumeri.end();
        const int nGrigio = Angoli(immagine, pagina.Casella(nPosto, nPannello, n));
        EXPECT_TRUE(bSegnato ? nGrigio < 60 : nGrigio > 190)
            << "colonna " << nColonna << " numero " << n << ' ' << nGrigio;
    }
}

} // namespace

TEST_F(Schedine, MilleColonneDelLottoSonoCinquantaPagine)
{
    StampaSchedine stampa(Colonne(1000), 5, "Lotto");
    EXPECT_EQ(stampa.Colonne(), 1000);
    EXPECT_EQ(stampa.Pagine(kA4), 50);
    std::int64_t nDette = 0;
    ASSERT_TRUE(stampa.StampaPdf(Pdf(), [&](std::int64_t nFatte, std::int64_t nTotale) {
        EXPECT_EQ(nFatte, ++nDette);
        EXPECT_EQ(nTotale, 50);
        return true;
    }));
    EXPECT_EQ(nDette, 50);
    const QString sInformazioni = Uscita("pdfinfo", {Pdf()});
    EXPECT_TRUE(sInformazioni.contains(QRegularExpression("Pages: +50\n"))) << sInformazioni.toStdString();
    EXPECT_TRUE(sInformazioni.contains("(A4)"));
    const QString sTesto = Uscita("pdftotext", {"-layout", "-f", "50", "-l", "50", Pdf(), "-"});
    EXPECT_TRUE(sTesto.contains("LOTTO"));
    EXPECT_TRUE(sTesto.contains("Colonna 981"));
    EXPECT_TRUE(sTesto.contains("Colonna 1.000"));
    EXPECT_FALSE(sTesto.contains("Colonna 980"));
    EXPECT_TRUE(sTesto.contains("Pagina 50 di 50"));
    EXPECT_TRUE(sTesto.contains("colonne.col"));
}

TEST_F(Schedine, ISegniStannoSuiLoroMillimetri)
{
    StampaSchedine stampa(Colonne(45), 5, "Lotto");
    ASSERT_TRUE(stampa.StampaPdf(Pdf()));
    const PaginaSchedine pagina(kA4, "Lotto");
    const QImage seconda = Pagina(2);
    EXPECT_EQ(seconda.width(), qRound(kA4.nLarghezza / kMmPollice * 100));
    for (std::int32_t nPosto = 0; nPosto < pagina.Schedine(); ++nPosto) {
        ControllaSegni(seconda, pagina, nPosto, 0, 20 + nPosto);
    }
    // The last page has five slips, and paper where the sixth would be.
    const QImage terza = Pagina(3);
    ControllaSegni(terza, pagina, 4, 0, 44);
    EXPECT_EQ(Angoli(terza, pagina.Casella(5, 0, 1)), 255);
}

TEST_F(Schedine, PiuPannelliPerSchedina)
{
    StampaSchedine stampa(Colonne(22), 5, "SuperEnalotto");
    EXPECT_EQ(stampa.Pagine(kA4), 2);
    ASSERT_TRUE(stampa.StampaPdf(Pdf()));
    const PaginaSchedine pagina(kA4, "SuperEnalotto");
    const QImage prima = Pagina(1);
    for (std::int32_t nColonna = 0; nColonna < 20; ++nColonna) {
        ControllaSegni(prima, pagina, nColonna / 4, nColonna % 4, nColonna);
    }
    const QString sTesto = Uscita("pdftotext", {"-layout", Pdf(), "-"});
    EXPECT_TRUE(sTesto.contains("SUPERENALOTTO"));
    EXPECT_TRUE(sTesto.contains("6/6"));
}

TEST_F(Schedine, UnLavoroInterrottoLasciaIlFileDiPrima)
{
    prove::ScriviFile(cartella / "schedine.pdf", "di prima");
    StampaSchedine stampa(Colonne(200), 5, "Lotto");
    int nPagine = 0;
    EXPECT_FALSE(stampa.StampaPdf(Pdf(), [&](std::int64_t, std::int64_t) { return ++nPagine < 3; }));
    EXPECT_EQ(nPagine, 3);
    EXPECT_EQ(prove::LeggiFile(cartella / "schedine.pdf"), "di prima");
    EXPECT_EQ(QDir(Testo(cartella / "")).entryList(QDir::Files).size(), 2);
}

TEST_F(Schedine, CioCheNonSiPuoScrivereEUnFallimento)
{
    StampaSchedine stampa(Colonne(1), 5, "Lotto");
    const auto numero = [&](const QString& sFile) {
        try {
            stampa.StampaPdf(sFile);
        } catch (const Errore& errore) {
            return errore.Numero();
        }
        return eErrore{};
    };
    EXPECT_EQ(numero(Testo(cartella / "")), eErrore::accessoPercorso);
    EXPECT_EQ(numero(Testo(cartella / "manca/a.pdf")), eErrore::percorsoNonTrovato);
    EXPECT_EQ(numero("/dev/null"), eErrore::accessoPercorso);
    EXPECT_THROW(StampaSchedine(Testo(cartella / "manca.col"), 5, "Lotto"), Errore);
}

TEST_F(Schedine, UnFileSenzaColonneHaUnaPaginaSenzaSchedine)
{
    StampaSchedine stampa(Colonne(0), 5, "Lotto");
    EXPECT_EQ(stampa.Pagine(kA4), 0);
    ASSERT_TRUE(stampa.StampaPdf(Pdf()));
    EXPECT_TRUE(Uscita("pdfinfo", {Pdf()}).contains(QRegularExpression("Pages: +1\n")));
}

TEST_F(Schedine, UnaStampanteStampaLeSuePagine)
{
    StampaSchedine stampa(Colonne(100), 5, "Lotto");
    QPrinter stampante(QPrinter::HighResolution);
    stampante.setOutputFormat(QPrinter::PdfFormat);
    stampante.setOutputFileName(Pdf());
    stampante.setPageSize(QPageSize(QPageSize::A4));
    stampante.setFromTo(2, 4);
    ASSERT_TRUE(stampa.Stampa(stampante));
    EXPECT_TRUE(Uscita("pdfinfo", {Pdf()}).contains(QRegularExpression("Pages: +3\n")));
    EXPECT_TRUE(Uscita("pdftotext", {"-layout", "-f", "1", "-l", "1", Pdf(), "-"}).contains("Colonna 21"));
    ControllaSegni(Pagina(1), PaginaSchedine(kA4, "Lotto"), 0, 0, 20);
}

TEST_F(Schedine, LAnteprimaSfogliaETienePochePagine)
{
    StampaSchedine stampa(Colonne(1000), 5, "Lotto");
    bool bVista = false;
    QTimer::singleShot(0, [&] {
        auto* finestra = qobject_cast<AnteprimaSchedine*>(QApplication::activeModalWidget());
        ASSERT_NE(finestra, nullptr);
        bVista = true;
        EXPECT_EQ(finestra->Pagine(), 50);
        EXPECT_FALSE(finestra->findChild<QPushButton*>("Indietro")->isEnabled());
        auto* scorre = finestra->findChild<QScrollArea*>("Scorre");
        EXPECT_TRUE(scorre == finestra->focusWidget());
        QTest::keyClick(scorre, Qt::Key_PageDown);
        EXPECT_EQ(finestra->Pagina(), 1);
        QTest::mouseClick(finestra->findChild<QPushButton*>("Avanti"), Qt::LeftButton);
        EXPECT_EQ(finestra->Pagina(), 2);
        for (int i = 1; i <= 50; ++i) {
            finestra->findChild<QSpinBox*>("Pagina")->setValue(i);
            EXPECT_EQ(finestra->Pagina(), i - 1);
            EXPECT_LE(finestra->PagineTenute(), AnteprimaSchedine::kPagineTenute);
        }
        EXPECT_FALSE(finestra->findChild<QPushButton*>("Avanti")->isEnabled());
        QTest::keyClick(scorre, Qt::Key_PageDown);
        EXPECT_EQ(finestra->Pagina(), 49);
        QTest::keyClick(scorre, Qt::Key_PageUp);
        EXPECT_EQ(finestra->Pagina(), 48);
        QTest::mouseClick(finestra->findChild<QPushButton*>("Chiudi"), Qt::LeftButton);
    });
    stampa.Anteprima(nullptr);
    EXPECT_TRUE(bVista);
}

TEST_F(Schedine, UnaPaginaGrandeSiScorrePrimaDiSfogliarla)
{
    StampaSchedine stampa(Colonne(100), 5, "Lotto");
    AnteprimaSchedine finestra(stampa, nullptr);
    finestra.resize(500, 400);
    finestra.show();
    finestra.findChild<QComboBox*>("Ingrandimento")->setCurrentIndex(5);
    auto* scorre = finestra.findChild<QScrollArea*>("Scorre");
    ASSERT_GT(scorre->verticalScrollBar()->maximum(), 0);
    QTest::keyClick(scorre, Qt::Key_PageDown);
    EXPECT_EQ(finestra.Pagina(), 0);
    scorre->verticalScrollBar()->setValue(scorre->verticalScrollBar()->maximum());
    QTest::keyClick(scorre, Qt::Key_PageDown);
    EXPECT_EQ(finestra.Pagina(), 1);
    EXPECT_EQ(scorre->verticalScrollBar()->value(), 0);
    QTest::keyClick(scorre, Qt::Key_PageUp);
    EXPECT_EQ(finestra.Pagina(), 0);
    EXPECT_EQ(scorre->verticalScrollBar()->value(), scorre->verticalScrollBar()->maximum());
}

TEST_F(Schedine, IlPdfSiChiedeESiScrive)
{
    StampaSchedine stampa(Colonne(30), 5, "Lotto");
    QTimer::singleShot(0, [&] {
        auto* finestra = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        ASSERT_NE(finestra, nullptr);
        auto* nome = finestra->findChild<QLineEdit*>("fileNameEdit");
        EXPECT_EQ(nome->text(), "colonne.pdf");
        nome->setText(Testo(cartella / "schedine"));
        QTest::keyClick(nome, Qt::Key_Return);
    });
    stampa.ChiediEStampaPdf(nullptr);
    EXPECT_TRUE(Uscita("pdfinfo", {Pdf()}).contains(QRegularExpression("Pages: +2\n")));
}

TEST_F(Schedine, ChiRinunciaNonStampa)
{
    StampaSchedine stampa(Colonne(30), 5, "Lotto");
    for (const auto& chiedi : {&StampaSchedine::ChiediEStampa, &StampaSchedine::ChiediEStampaPdf}) {
        bool bVista = false;
        QTimer::singleShot(0, [&] {
            auto* finestra = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            ASSERT_NE(finestra, nullptr);
            bVista = true;
            finestra->reject();
        });
        (stampa.*chiedi)(nullptr);
        EXPECT_TRUE(bVista);
    }
    EXPECT_EQ(QDir(Testo(cartella / "")).entryList(QDir::Files).size(), 1);
}

TEST_F(Schedine, UnLavoroLungoSiInterrompe)
{
    StampaSchedine stampa(Colonne(20000), 5, "Lotto");
    bool bInterrotto = false;
    QTimer premi;
    QObject::connect(&premi, &QTimer::timeout, [&] {
        QWidget* davanti = QApplication::activeModalWidget();
        if (auto* scelta = qobject_cast<QFileDialog*>(davanti)) {
            scelta->findChild<QLineEdit*>("fileNameEdit")->setText(Pdf());
            QTest::keyClick(scelta->findChild<QLineEdit*>("fileNameEdit"), Qt::Key_Return);
        } else if (auto* barra = qobject_cast<QProgressDialog*>(davanti)) {
            bInterrotto = true;
            EXPECT_TRUE(barra->labelText().contains("di 1000"));
            QTest::mouseClick(barra->findChild<QPushButton*>(), Qt::LeftButton);
        }
    });
    premi.start(20);
    stampa.ChiediEStampaPdf(nullptr);
    EXPECT_TRUE(bInterrotto);
    EXPECT_FALSE(QFile::exists(Pdf()));
}

} // namespace ordavel::qt
