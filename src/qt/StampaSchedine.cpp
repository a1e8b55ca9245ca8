// StampaSchedine.cpp - the columns of a file as slips.

#include "qt/StampaSchedine.hpp"

#include "core/ModFunzGeneriche.hpp"
#include "core/ModNumeri.hpp"
#include "persistenza/ModFileColonne.hpp"
#include "qt/AnteprimaSchedine.hpp"
#include "qt/DipingeSchedina.hpp"
#include "qt/Legami.hpp"

#include <QDir>
#include <QElapsedTimer>
#include <QFileDialog>
#include <QFileInfo>
#include <QPageLayout>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <QPrintDialog>
#include <QPrinter>
#include <QProgressDialog>
#include <QSaveFile>
#include <QStandardPaths>

#include <algorithm>
#include <cerrno>
#include <climits>
#include <span>
#include <utility>

namespace ordavel::qt {

namespace {

constexpr double kMmPollice = 25.4;
constexpr int kPuntiPollicePdf = 600;

/// Pages from the first to the last, both from 0, each told; a new sheet between them.
template <typename Pagina, typename Foglio>
bool PerOgniPagina(std::int64_t nPrima, std::int64_t nUltima, const StampaSchedine::Avanzamento& avanzamento,
                   Pagina pagina, Foglio nuovoFoglio)
{
    for (std::int64_t n = nPrima; n <= nUltima; ++n) {
        if (n > nPrima && !nuovoFoglio()) {
            Solleva(eErrore::dispositivo);
        }
        pagina(n);
        if (avanzamento && !avanzamento(n - nPrima + 1, nUltima - nPrima + 1)) {
            return false;
        }
    }
    return true;
}

/// Replacing by a rename would put a file in the place of a device.
void RifiutaCioCheNonEFile(const QString& sFile)
{
    const QFileInfo informazioni(sFile);
    if (informazioni.exists() && !informazioni.isFile()) {
        throw Errore(eErrore::accessoPercorso, Testo(sFile));
    }
    if (!informazioni.absoluteDir().exists()) {
        throw Errore(eErrore::percorsoNonTrovato, Testo(sFile));
    }
}

Errore ErroreDiScrittura(const QSaveFile& file)
{
    return file.error() == QFileDevice::ResourceError ? Errore(eErrore::discoPieno, Testo(file.fileName()))
                                                      : ErroreDiSistema(errno, Testo(file.fileName()));
}

void Prepara(QPdfWriter& pdf, const QString& sTitolo)
{
    pdf.setResolution(kPuntiPollicePdf);
    pdf.setPageLayout(QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Portrait, QMarginsF()));
    pdf.setTitle(sTitolo);
    pdf.setCreator("Ordavel");
}

/// The sheet of a printer, with the margins that it cannot print or 10 mm, whichever is more.
FoglioMm FoglioDi(const QPageLayout& pagina)
{
    QPageLayout inMm = pagina;
    inMm.setUnits(QPageLayout::Millimeter);
    const QMarginsF minimi = inMm.minimumMargins();
    FoglioMm foglio{.nLarghezza = inMm.fullRect().width(), .nAltezza = inMm.fullRect().height()};
    foglio.nMargine =
        std::max({foglio.nMargine, minimi.left(), minimi.right(), minimi.top(), minimi.bottom()});
    return foglio;
}

/// Runs a job under a bar that stops it; a short one ends before the bar is seen.
template <typename Lavoro> void ConBarra(QWidget* padre, const QString& sTesto, Lavoro lavoro)
{
    constexpr int kMassimo = 1000;
    constexpr qint64 kMillisecondi = 100;
    QProgressDialog barra(sTesto, "&Interrompi", 0, kMassimo, padre);
    barra.setWindowTitle("Stampa schedine");
    barra.setWindowModality(Qt::ApplicationModal);
    barra.setMinimumDuration(500);
    QElapsedTimer orologio;
    orologio.start();
    lavoro([&](std::int64_t nFatte, std::int64_t nTotale) {
        if (orologio.elapsed() >= kMillisecondi) {
            orologio.restart();
            barra.setLabelText(sTesto + QStringLiteral("\nPagina %1 di %2").arg(nFatte).arg(nTotale));
            // Short of the end: there the bar would close, and be shown again by the next page.
            barra.setValue(static_cast<int>(nFatte * (kMassimo - 1) / nTotale));
        }
        return !barra.wasCanceled();
    });
}

} // namespace

StampaSchedine::StampaSchedine(const QString& sFileColonne, int nClasse, QString sGioco)
    : m_File(Testo(sFileColonne), eApertura::lettura),
      m_nColonne(m_File.Lunghezza() / kByteColonna),
      m_nClasse(static_cast<std::int16_t>(std::clamp<int>(nClasse, 0, kNumeriColonna))),
      m_sGioco(std::move(sGioco)),
      m_sNomeFile(QFileInfo(sFileColonne).fileName())
{}

std::int64_t StampaSchedine::Pagine(const FoglioMm& foglio) const noexcept
{
    return PaginaSchedine(foglio, Testo(m_sGioco)).Pagine(m_nColonne);
}

void StampaSchedine::LeggiPagina(const PaginaSchedine& pagina, std::int64_t nPagina)
{
    const std::int64_t nPrima = nPagina * pagina.Colonne();
    const std::int64_t nQuante = std::clamp<std::int64_t>(m_nColonne - nPrima, 0, pagina.Colonne());
    m_aColonne.assign(static_cast<std::size_t>(nQuante), Colonna{});
    for (std::int64_t i = 0; i < nQuante; ++i) {
        m_aColonne[static_cast<std::size_t>(i)] = LeggiColonna(m_File, nPrima + i + 1);
    }
}

void StampaSchedine::Dipingi(QPainter& pittore, double nPerMm, const FoglioMm& foglio, std::int64_t nPagina)
{
    const PaginaSchedine pagina(foglio, Testo(m_sGioco));
    LeggiPagina(pagina, nPagina);
    const DipingeSchedina schedina(pittore, nPerMm, pagina, m_sGioco);
    const std::int64_t nTotale = pagina.SchedineTotali(m_nColonne);
    const auto nPannelli = static_cast<std::size_t>(pagina.Pannelli());
    for (std::size_t i = 0; i < m_aColonne.size(); i += nPannelli) {
        const auto nPosto = static_cast<std::int32_t>(i / nPannelli);
        schedina.Dipingi(nPosto, nPagina * pagina.Schedine() + nPosto + 1, nTotale);
        for (std::size_t p = i; p < std::min(i + nPannelli, m_aColonne.size()); ++p) {
            schedina.DipingiPannello(
                nPosto, static_cast<std::int32_t>(p - i),
                nPagina * pagina.Colonne() + static_cast<std::int64_t>(p) + 1,
                std::span(m_aColonne[p].aNumeri).first(static_cast<std::size_t>(m_nClasse)));
        }
    }
    schedina.DipingiPiede(foglio, m_sNomeFile, nPagina + 1, pagina.Pagine(m_nColonne));
}

bool StampaSchedine::StampaPdf(const QString& sFile, const Avanzamento& avanzamento)
{
    RifiutaCioCheNonEFile(sFile);
    QSaveFile file(sFile);
    if (!file.open(QIODevice::WriteOnly)) {
        throw ErroreDiScrittura(file);
    }
    const FoglioMm foglio;
    bool bFinita = false;
    {
        QPdfWriter pdf(&file);
        Prepara(pdf, "Schedine " + m_sGioco);
        QPainter pittore(&pdf);
        bFinita = PerOgniPagina(
            0, Pagine(foglio) - 1, avanzamento,
            [&](std::int64_t n) { Dipingi(pittore, kPuntiPollicePdf / kMmPollice, foglio, n); },
            [&] { return file.error() == QFileDevice::NoError && pdf.newPage(); });
    }
    if (!bFinita) {
        file.cancelWriting();
    }
    if (!file.commit() && bFinita) {
        throw ErroreDiScrittura(file);
    }
    return bFinita;
}

bool StampaSchedine::Stampa(QPrinter& stampante, const Avanzamento& avanzamento)
{
    stampante.setFullPage(true);
    const FoglioMm foglio = FoglioDi(stampante.pageLayout());
    const std::int64_t nPagine = Pagine(foglio);
    const std::int64_t nPrima = std::max(stampante.fromPage(), 1) - 1;
    const std::int64_t nUltima =
        stampante.toPage() > 0 ? std::min<std::int64_t>(stampante.toPage(), nPagine) : nPagine;
    QPainter pittore;
    if (!pittore.begin(&stampante)) {
        Solleva(eErrore::dispositivo);
    }
    const bool bFinita = PerOgniPagina(
        nPrima, nUltima - 1, avanzamento,
        [&](std::int64_t n) { Dipingi(pittore, stampante.resolution() / kMmPollice, foglio, n); },
        [&] { return stampante.newPage(); });
    if (!bFinita) {
        stampante.abort();
    }
    return bFinita;
}

void StampaSchedine::ChiediEStampa(QWidget* padre)
{
    QPrinter stampante(QPrinter::HighResolution);
    stampante.setDocName("Schedine " + m_sGioco);
    QPrintDialog finestra(&stampante, padre);
    finestra.setWindowTitle("Stampa schedine");
    finestra.setMinMax(1, static_cast<int>(std::clamp<std::int64_t>(Pagine(FoglioMm{}), 1, INT_MAX)));
    if (finestra.exec() == QDialog::Accepted) {
        ConBarra(padre, "Stampa delle schedine in corso",
                 [&](const Avanzamento& avanzamento) { Stampa(stampante, avanzamento); });
    }
}

void StampaSchedine::ChiediEStampaPdf(QWidget* padre)
{
    const QString sNome = QFileInfo(m_sNomeFile).completeBaseName() + ".pdf";
    QFileDialog finestra(padre, "Schedine in PDF",
                         QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation),
                         "Documenti PDF (*.pdf)");
    finestra.setAcceptMode(QFileDialog::AcceptSave);
    finestra.setDefaultSuffix("pdf");
    finestra.selectFile(sNome);
    if (finestra.exec() == QDialog::Accepted) {
        ConBarra(padre, "Scrittura del PDF in corso", [&](const Avanzamento& avanzamento) {
            StampaPdf(finestra.selectedFiles().constFirst(), avanzamento);
        });
    }
}

void StampaSchedine::Anteprima(QWidget* padre)
{
    AnteprimaSchedine(*this, padre).exec();
}

} // namespace ordavel::qt
